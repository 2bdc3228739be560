// The Start and Maintenance page: boot options, programs that hang, Explorer's processes, what an error does.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& StartupPage();
