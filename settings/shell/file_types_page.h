// The File Types page: entries of context menus, what opens files that no program is registered for, new shortcuts
// and the preview of pictures.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& FileTypesPage();
