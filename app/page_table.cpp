#include "app/page_table.h"

#include <array>

#include "settings/shell/drives_page.h"
#include "settings/shell/folder_page.h"
#include "settings/shell/memory_page.h"

std::span<const TPageDefinition* const> PageDefinitions() {
    static const std::array kPages{&FolderPage(), &DrivesPage(), &MemoryPage()};
    return kPages;
}
