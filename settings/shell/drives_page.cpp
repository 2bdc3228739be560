#include "settings/shell/drives_page.h"

#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kExplorerPolicies =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer\\";
constexpr const wchar_t* kUserExplorerPolicies =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";
constexpr const wchar_t* kFileSystem = L"\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\";
constexpr const wchar_t* kCdrom = L"\\SYSTEM\\CurrentControlSet\\Services\\Cdrom\\";
constexpr const wchar_t* kIdeController =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000\\";

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
                  Group(L"GroupBox_Drives_DiskSpace_SpaceWarn", L"Low disk space",
                        CheckBox(L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn",
                                 L"&Warn me when a drive runs out of space")),
                  Buttons(Button(L"Button_Drives_DiskSpace_SpaceWarn_Default", L"&Default"))),
            Sheet(
                L"TabSheet_Drives_AutoPlay", L"AutoPlay",
                Group(L"GroupBox_Drives_AutoPlay_MonitorMediaChanges", L"Media changes",
                      CheckBox(L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable",
                               L"&Notice when a disc is inserted")),
                Group(L"GroupBox_Drives_AutoPlay_AutoPlayInfo", L"Use AutoPlay for",
                      CheckBox(L"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia", L"Re&movable drives"),
                      CheckBox(L"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD", L"&CD and DVD drives")))));
}

constexpr TRow kCommonRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Drives_Common_Enable",
                 .Value = {kLocalMachine, kIdeController, L"EnableUDMA66"},
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Restart = true},
    // NTFS stamps every file it touches unless this value is 1.
    TCheckBoxRow{.Control = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData",
                 .Value = {kLocalMachine, kFileSystem, L"NtfsDisableLastAccessUpdate"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    TCheckBoxRow{.Control = L"Checkbox_Drives_Common_NTFS_SaveShortName",
                 .Value = {kLocalMachine, kFileSystem, L"NtfsDisable8dot3NameCreation"},
                 .Shows = {.When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
};

constexpr TRow kDiskSpaceRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn",
                 .Value = {kCurrentUser, kExplorerPolicies, L"NoLowDiskSpaceChecks"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Restart = true},
};

// "NoDriveTypeAutoRun" is a mask with one bit for each drive type whose AutoPlay is off (the types of
// GetDriveTypeW). Two boxes change a bit each, so no fixed number can be recorded: the others must stay.
constexpr std::int32_t kRemovableDrives = 0x04;
constexpr std::int32_t kCdDrives = 0x20;

void LoadAutoPlay(TPageContext& context, const TSpecialRow& row) {
    const auto mask = StoredBits(context, row.Value);
    const auto bit = static_cast<std::uint32_t>(row.Parameter);
    if (mask) context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked((*mask & bit) == 0);
}

void RecordAutoPlay(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const auto mask = StoredBits(context, row.Value);
    const auto bit = static_cast<std::uint32_t>(row.Parameter);
    // Without a stored mask the bit is set whatever the box says: the system's default mask is not known here.
    std::uint32_t changed = bit;
    if (mask) changed = static_cast<TCheckBox&>(sender).Checked() ? *mask & ~bit : *mask | bit;
    RecordNumber(context, sender.Name(), row.Value, static_cast<std::int32_t>(changed));
}

constexpr TPlace kAutoPlayMask{kCurrentUser, kUserExplorerPolicies, L"NoDriveTypeAutoRun"};
constexpr const wchar_t* kRemovableMedia[] = {L"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia"};
constexpr const wchar_t* kDvd[] = {L"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD"};
constexpr const wchar_t* kAutoPlayRule =
    L"checked while the drive type's bit is clear; changes that bit alone";

constexpr TRow kAutoPlayRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable",
                 .Value = {kLocalMachine, kExplorerPolicies, L"CDRAutoRun"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Further = TBoxFurther{.Suffix = L"1",
                                        .Value = {kLocalMachine, kCdrom, L"Autorun"},
                                        .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
                 .Restart = true},
    TSpecialRow{.Controls = kRemovableMedia,
                .Value = kAutoPlayMask,
                .Rule = kAutoPlayRule,
                .Load = LoadAutoPlay,
                .Record = RecordAutoPlay,
                .Parameter = kRemovableDrives},
    TSpecialRow{.Controls = kDvd,
                .Value = kAutoPlayMask,
                .Rule = kAutoPlayRule,
                .Load = LoadAutoPlay,
                .Record = RecordAutoPlay,
                .Parameter = kCdDrives},
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

constexpr TPageDefinition kPage{.Tag = 14,
                                .SharedHandler = L"Checkbox_Drives_Common_EnableClick",
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets};

}  // namespace

const TPageDefinition& DrivesPage() { return kPage; }
