// The page of the mail and messenger programs. No item of the category bar that is shown leads to it.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& MailPage();
