// The Input Options page: how exactly the mouse must be held, what its buttons, wheel and pointer do, the keyboard.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& InputPage();
