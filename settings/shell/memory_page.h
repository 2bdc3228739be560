// The Memory and Cache page: paging of the kernel, clearing the page file, the system cache.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& MemoryPage();
