#include "settings/shell/drives_page.h"

#include "settings/shared_rows.h"

namespace {

TControlDesign Design() {
    return NotebookPage(
        14,
        PageControl(
            L"PageControl_Drives",
            Sheet(L"TabSheet_Drives_Common", L"General",
                  Group(L"GroupBox_Drives_Common", L"Transfer mode",
                        CheckBox(L"Checkbox_Drives_Common_Enable", L"&Use Ultra DMA mode 66 for hard disks")),
                  Group(L"GroupBox_Drives_Common_NTFS", L"NTFS file system",
                        CheckBox(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData",
                                 L"&Record the date of the last access to files and folders"),
                        CheckBox(L"Checkbox_Drives_Common_NTFS_SaveShortName",
                                 L"Create &short (8.3) file names for MS-DOS programs")),
                  Buttons(Button(L"Button_Drives_Common_Default", L"&Default"))),
            Sheet(L"TabSheet_Drives_DiskSpace", L"Disk Space",
                  Group(L"GroupBox_Drives_DiskSpace_SpaceWarn", L"Notification area",
                        CheckBox(L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn",
                                 L"&Warn me when a drive runs out of space")),
                  Buttons(Button(L"Button_Drives_DiskSpace_SpaceWarn_Default", L"&Default"))),
            Sheet(
                L"TabSheet_Drives_AutoPlay", L"AutoPlay",
                Group(L"GroupBox_Drives_AutoPlay_MonitorMediaChanges", L"For all users",
                      CheckBox(L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable",
                               L"&Notice when a disc is inserted")),
                Group(L"GroupBox_Drives_AutoPlay_AutoPlayInfo", L"Use AutoPlay for",
                      CheckBox(L"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia", L"Re&movable drives"),
                      CheckBox(L"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD", L"&CD and DVD drives")),
                Group(L"GroupBox_Drives_AutoPlay_Modern", L"Media and devices",
                      CheckBox(L"Checkbox_Drives_AutoPlay_Modern_All",
                               L"&Use AutoPlay for all media and devices"),
                      CheckBox(L"Checkbox_Drives_AutoPlay_Modern_Devices",
                               L"Use AutoPlay for cameras and &telephones"),
                      Row(Label(L"Label_Drives_AutoPlay_Modern_Commands", L"Commands in auto&run.inf:"),
                          ComboBox(L"CB_Drives_AutoPlay_Modern_Commands",
                                   {L"As Windows does", L"Never run", L"Run unasked"}))))));
}

constexpr TRow kCommonRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Drives_Common_Enable",
                 .Value = {kLocalMachine, kIdeController, L"EnableUDMA66"},
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Restart = TRestart::Windows,
                 .Levels = kUntilWindows7},
    LastAccessRow(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData"),
    ManagedLastAccessRow(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData"),
    TCheckBoxRow{.Control = L"Checkbox_Drives_Common_NTFS_SaveShortName",
                 .Value = {kLocalMachine, kFileSystem, L"NtfsDisable8dot3NameCreation"},
                 .Shows = {.When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
    // From Windows 8 on 2 leaves it to each volume, as Windows does by itself.
    TCheckBoxRow{.Control = L"Checkbox_Drives_Common_NTFS_SaveShortName",
                 .Value = {kLocalMachine, kFileSystem, L"NtfsDisable8dot3NameCreation"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(2), .Clear = Dword(1)},
                 .Levels = kSinceWindows8},
};

constexpr TRow kDiskSpaceRows[] = {DiskSpaceRow(L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn")};

// "NoDriveTypeAutoRun" is a mask with one bit for each drive type whose AutoPlay is off (the types of
// GetDriveTypeW). Without a stored mask the bit is set whatever the box says: the system's default mask is not known here.
constexpr std::uint32_t kRemovableDrives = 0x04;
constexpr std::uint32_t kCdDrives = 0x20;

constexpr TDatum kOff = Dword(1);

constexpr TCheckBoxRow AutoPlay(const wchar_t* control, std::uint32_t driveType) {
    return {.Control = control,
            .Value = Bits(driveType, ExplorerPolicy(L"NoDriveTypeAutoRun")),
            .Shows = {.When = {{0, kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Dword(0), .Clear = Dword(1)},
            .RecordsWhenMissing = &kOff};
}
constexpr TBoxFurther kCdromAutorun[] = {
    {L"1", {kLocalMachine, kCdromService, L"Autorun"}, {.Checked = Dword(1), .Clear = Dword(0)}}};

/// No policy, never run, run without asking.
constexpr TDatum kAutorunCommands[] = {kDeleteValue, Dword(1), Dword(2)};

constexpr TRow kAutoPlayRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable",
                 .Value = {kLocalMachine, kExplorerPoliciesUpper, L"CDRAutoRun"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Further = kCdromAutorun,
                 .Restart = TRestart::Windows},
    AutoPlay(L"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia", kRemovableDrives),
    AutoPlay(L"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD", kCdDrives),
    On(kSinceWindows8, UnlessBox(L"Checkbox_Drives_AutoPlay_Modern_All",
                                 {kCurrentUser, kAutoPlayHandlers, L"DisableAutoplay"})),
    On(kSinceWindows8, WithRestart(AllowedBox(L"Checkbox_Drives_AutoPlay_Modern_Devices",
                                              UserShellPolicy(L"NoAutoplayfornonVolume"), 1))),
    TChoiceRow{.Control = L"CB_Drives_AutoPlay_Modern_Commands",
               .Value = ExplorerPolicy(L"NoAutorun"),
               .Items = kAutorunCommands,
               .Missing = 0,
               .Restart = TRestart::Windows,
               .Levels = kSinceWindows8},
};

constexpr TLoader kLoaders[] = {kCommonRows, kDiskSpaceRows, kAutoPlayRows};

constexpr TPresetState kCommonDefault[] = {
    {L"Checkbox_Drives_Common_Enable", 0},
    {L"Checkbox_Drives_Common_NTFS_SaveLastVisitData", 1},
    {L"Checkbox_Drives_Common_NTFS_SaveShortName", 1},
};
constexpr TPresetState kSpaceWarnDefault[] = {{L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn", 1}};
constexpr TPreset kPresets[] = {
    {L"Button_Drives_Common_Default", kCommonDefault},
    {L"Button_Drives_DiskSpace_SpaceWarn_Default", kSpaceWarnDefault},
};

constexpr const wchar_t* kDiscs[] = {L"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD"};
constexpr TNeed kNeeds[] = {
    {.Controls = kDiscs, .Of = L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable", .Disables = false}};

constexpr TPageDefinition kPage{
    .Tag = 14, .Design = Design, .Loaders = kLoaders, .Presets = kPresets, .Needs = kNeeds};

}  // namespace

const TPageDefinition& DrivesPage() { return kPage; }
