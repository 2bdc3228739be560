// The Security Center page: the service and its warnings, the grace period of the screen saver's password.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& SecurityPage();
