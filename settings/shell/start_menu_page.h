// The Start Menu page: what it shows, how it behaves, what it remembers.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& StartMenuPage();
