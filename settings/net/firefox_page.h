// The Mozilla Firefox page: appearance, address bar, new windows and tabs of the user's Firefox.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& FirefoxPage();
