// The General Settings page, which repeats the most used settings of the other pages.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& GeneralPage();
