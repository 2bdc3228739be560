// The Infomation page: registered owner, open and save dialogs, search, colours of the command prompt.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& SystemPage();
