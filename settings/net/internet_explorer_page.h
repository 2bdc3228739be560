// The Internet Explorer page: home page, history and pictures, tabs, AutoComplete, connections and warnings.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& InternetExplorerPage();
