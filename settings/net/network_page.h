// The Network page: network places and shares, UPnP and bandwidth, passwords, dial-up connections, firewall.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& NetworkPage();
