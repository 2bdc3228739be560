// The Task Bar page: flashing and grouped buttons, the notification area, minimised windows.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& TaskbarPage();
