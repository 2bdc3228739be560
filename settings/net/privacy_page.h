// The Privacy page: automatic updates, clearing traces, what Internet Explorer tells and asks.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& PrivacyPage();
