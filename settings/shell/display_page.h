// The Animations and Effects page: window effects, animations, menus, font smoothing.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& DisplayPage();
