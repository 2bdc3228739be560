#include "app/page_table.h"

#include <array>

#include "settings/shell/drives_page.h"
#include "settings/shell/memory_page.h"
#include "settings/shell/startup_page.h"
#include "settings/shell/system_page.h"

std::span<const TPageDefinition* const> PageDefinitions() {
    static const std::array kPages{&DrivesPage(), &MemoryPage(), &StartupPage(), &SystemPage()};
    return kPages;
}
