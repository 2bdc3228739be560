#include "settings/shell/memory_page.h"

#include "settings/shared_rows.h"

namespace {

TControlDesign Design() {
    return NotebookPage(
        15,
        PageControl(
            L"PageControl_MemoryAndCache",
            Sheet(L"TabSheet_MemoryAndCache_MemoryManage", L"Memory Management",
                  Group(L"GroupBox_MemoryAndCache_MemoryManage_VirtualMemory", L"Windows kernel and drivers",
                        RadioButton(L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways",
                                    L"A&lways keep in physical memory"),
                        RadioButton(L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page",
                                    L"Move to the page &file when memory runs short")),
                  Group(L"GroupBox_MemoryAndCache_MemoryManage_Pagefile", L"Traces",
                        CheckBox(L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete",
                                 L"&Clear the page file when Windows shuts down")),
                  Buttons(Button(L"Button_MemoryAndCache_MemoryManage_Default", L"&Default"))),
            Sheet(L"TabSheet_MemoryAndCache_MemoryUse", L"Memory Usage",
                  Group(L"GroupBox_MemoryAndCache_MemoryUse", L"Adjust memory for best performance of",
                        RadioButton(L"Radio_MemoryAndCache_MemoryUse_System", L"&System cache"),
                        RadioButton(L"Radio_MemoryAndCache_MemoryUse_Program", L"&Programs")),
                  Buttons(Button(L"Button_MemoryAndCache_MemoryUse_Default", L"&Default")))));
}

constexpr TRow kMemoryManageRows[] = {
    TRadioPairRow{.First = L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways",
                  .Second = L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page",
                  .ChangeName = L"RadPagingExecutive",
                  .Value = {kLocalMachine, kMemoryManagement, L"DisablePagingExecutive"},
                  .FirstWhen = 1,
                  .FirstRecords = Dword(1),
                  .SecondRecords = Dword(0),
                  .Restart = true},
    ClearPagefileRow(L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete"),
};

constexpr TRow kMemoryUseRows[] = {
    TRadioPairRow{.First = L"Radio_MemoryAndCache_MemoryUse_System",
                  .Second = L"Radio_MemoryAndCache_MemoryUse_Program",
                  .ChangeName = L"RadLargeSystem",
                  .Value = {kLocalMachine, kMemoryManagement, L"LargeSystemCache"},
                  .FirstWhen = 1,
                  .FirstRecords = Dword(1),
                  .SecondRecords = Dword(0),
                  .Restart = true,
                  .Levels = kUntilWindows7},
};

constexpr TLoader kLoaders[] = {kMemoryManageRows, kMemoryUseRows};

constexpr TPresetState kMemoryManageDefault[] = {
    {L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page", 1},
    {L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete", 0},
};
constexpr TPresetState kMemoryUseDefault[] = {{L"Radio_MemoryAndCache_MemoryUse_Program", 1}};
constexpr TPreset kPresets[] = {
    {L"Button_MemoryAndCache_MemoryManage_Default", kMemoryManageDefault},
    {L"Button_MemoryAndCache_MemoryUse_Default", kMemoryUseDefault},
};

constexpr TPageDefinition kPage{.Tag = 15, .Design = Design, .Loaders = kLoaders, .Presets = kPresets};

}  // namespace

const TPageDefinition& MemoryPage() { return kPage; }
