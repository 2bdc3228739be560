// The User Logon page: the logon screen, automatic logon, messages before and during logon.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& UserLogonPage();
