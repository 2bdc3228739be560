#include "settings/shell/desktop_icons.h"

#include "settings/page_context.h"
#include "settings/row_shapes.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

// Class identifiers of the shell's folders.
constexpr const wchar_t* kMyComputer = L"{20D04FE0-3AEA-1069-A2D8-08002B30309D}";
constexpr const wchar_t* kMyDocuments = L"{450D8FBA-AD25-11D0-98A8-0800361B1103}";
constexpr const wchar_t* kUserFiles = L"{59031a47-3f72-44a7-89c5-5595fe6b30ee}";
constexpr const wchar_t* kMyNetworkPlaces = L"{208D2C60-3AEA-1069-A2D7-08002B30309D}";
constexpr const wchar_t* kNetwork = L"{F02C1A0D-BE21-4350-88B0-7367FC96EF3C}";
constexpr const wchar_t* kInternetExplorer = L"{871C5380-42A0-1069-A2EA-08002B30309D}";
constexpr const wchar_t* kControlPanelByCategory = L"{5399E694-6CE5-4D6C-8FCE-1D8870FDCBA0}";
constexpr const wchar_t* kControlPanel = L"{21EC2020-3AEA-1069-A2DD-08002B30309D}";
constexpr const wchar_t* kRecycleBin = L"{645FF040-5081-101B-9F08-00AA002F954E}";

TControlDesign Design() {
    return PageControl(
        L"PageControl_Folder",
        Sheet(L"TabSheet_Folder_Desktop", L"Desktop",
              Group(L"GroupBox_Folder_Desktop", L"Icons on the desktop",
                    CheckBox(L"Checkbox_Folder_Desktop_MyComputer", L"&Computer"),
                    CheckBox(L"Checkbox_Folder_Desktop_MyDocuments", L"My &Documents"),
                    CheckBox(L"Checkbox_Folder_Desktop_UserFiles", L"User's &Files"),
                    CheckBox(L"Checkbox_Folder_Desktop_MyNetworkPlaces", L"My Network P&laces"),
                    CheckBox(L"Checkbox_Folder_Desktop_Network", L"&Network"),
                    CheckBox(L"Checkbox_Folder_Desktop_InternetExplorer", L"&Internet Explorer"),
                    CheckBox(L"Checkbox_Folder_Desktop_ControlPanel", L"Control &Panel"),
                    CheckBox(L"Checkbox_Folder_Desktop_RecycleBin", L"&Recycle Bin"),
                    CheckBox(L"Checkbox_Folder_Desktop_RecycleBinKey", L"Recycle &Bin"))),
        Sheet(L"TabSheet_Folder_MyComputer", L"Computer",
              Group(L"GroupBox_Folder_MyComputer", L"Folders beside the drives",
                    CheckBox(L"Checkbox_Folder_MyComputer_ShowControlPanel", L"Control &Panel"),
                    CheckBox(L"Checkbox_Folder_MyComputer_ControlPanel", L"&Control Panel"),
                    CheckBox(L"Checkbox_Folder_MyComputer_Printers", L"P&rinters"),
                    CheckBox(L"Checkbox_Folder_MyComputer_NetworkConnections", L"&Network Connections"),
                    CheckBox(L"Checkbox_Folder_MyComputer_AdministrativeTools", L"&Administrative Tools"),
                    CheckBox(L"Checkbox_Folder_MyComputer_ScheduledTasks", L"&Scheduled Tasks"),
                    CheckBox(L"Checkbox_Folder_MyComputer_RecycleBin", L"Recycle &Bin"))),
        Sheet(L"TabSheet_Folder_Drivers", L"Drivers",
              Label(L"Label_Folder_Drivers", L"&Hide the checked drives in Windows Explorer:"),
              ListView(L"ListView_Folder_Drivers", {L"Drive", L"In this computer"})));
}

constexpr TBoxRecord kHides{.Checked = Dword(0), .Clear = Dword(1)};
template <const wchar_t* const& folder>
constexpr TBoxFurther kOfClassicStartMenu[] = {{L"1", {kCurrentUser, kClassicStartMenu, folder}, kHides}};

/// An icon on the desktop; 0 shows it. As delivered, Windows shows the Recycle Bin alone.
template <const wchar_t* const& folder>
constexpr TRow Icon(const wchar_t* control, TBoxState missing = kClear) {
    return TCheckBoxRow{.Control = control,
                        .Value = {kCurrentUser, kNewStartPanel, folder},
                        .Shows = {.Missing = missing, .When = {{0, kChecked}}, .Otherwise = kClear},
                        .Records = kHides,
                        .Further = kOfClassicStartMenu<folder>};
}

constexpr TRow kDesktopRows[] = {
    Icon<kMyComputer>(L"Checkbox_Folder_Desktop_MyComputer"),
    Icon<kMyDocuments>(L"Checkbox_Folder_Desktop_MyDocuments"),
    Icon<kUserFiles>(L"Checkbox_Folder_Desktop_UserFiles"),
    Icon<kMyNetworkPlaces>(L"Checkbox_Folder_Desktop_MyNetworkPlaces"),
    Icon<kNetwork>(L"Checkbox_Folder_Desktop_Network"),
    Icon<kInternetExplorer>(L"Checkbox_Folder_Desktop_InternetExplorer"),
    Icon<kControlPanelByCategory>(L"Checkbox_Folder_Desktop_ControlPanel"),
    Icon<kRecycleBin>(L"Checkbox_Folder_Desktop_RecycleBin", kChecked),
    TKeyRow{.Control = L"Checkbox_Folder_Desktop_RecycleBinKey",
            .Value = {kLocalMachine,
                      L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace\\"
                      L"{645FF040-5081-101B-9F08-00AA002F954E}\\",
                      L""}},
};

constexpr TRow kMyComputerRows[] = {
    // Windows XP has the Control Panel there, and hides it unless this value is 0.
    TCheckBoxRow{.Control = L"Checkbox_Folder_MyComputer_ShowControlPanel",
                 .Value = {kCurrentUser, kHideMyComputerIcons, kControlPanel},
                 .Shows = {.Missing = kClear, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    TKeyRow{.Control = L"Checkbox_Folder_MyComputer_ControlPanel",
            .Value = {kLocalMachine,
                      L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\"
                      L"{21EC2020-3AEA-1069-A2DD-08002B30309D}\\",
                      L""}},
    TKeyRow{.Control = L"Checkbox_Folder_MyComputer_Printers",
            .Value = {kLocalMachine,
                      L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\"
                      L"{2227A280-3AEA-1069-A2DE-08002B30309D}\\",
                      L""}},
    TKeyRow{.Control = L"Checkbox_Folder_MyComputer_NetworkConnections",
            .Value = {kLocalMachine,
                      L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\"
                      L"{7007ACC7-3202-11D1-AAD2-00805FC1270E}\\",
                      L""}},
    TKeyRow{.Control = L"Checkbox_Folder_MyComputer_AdministrativeTools",
            .Value = {kLocalMachine,
                      L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\"
                      L"{D20EA4E1-3957-11d2-A40B-0C5020524153}\\",
                      L""}},
    TKeyRow{.Control = L"Checkbox_Folder_MyComputer_ScheduledTasks",
            .Value = {kLocalMachine,
                      L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\"
                      L"{D6277990-4C6A-11CF-8D87-00AA0060F5BF}\\",
                      L""}},
    TKeyRow{.Control = L"Checkbox_Folder_MyComputer_RecycleBin",
            .Value = {kLocalMachine,
                      L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\"
                      L"{645FF040-5081-101B-9F08-00AA002F954E}\\",
                      L""}},
};

// Special because it is a list of drives: "NoDrives" is a mask with one bit for each drive that is hidden, A: in the lowest. The list shows and changes them
// all, so no row of it has a fixed number to record.
constexpr int kDriveCount = 26;
constexpr std::uint32_t kAllDrives = (1U << kDriveCount) - 1;

/// What a user knows the drive by.
const std::wstring& NameOf(const TPageContext& context, const TDrive& drive) {
    if (!drive.Label.empty()) return drive.Label;
    switch (drive.Kind) {
        case TDriveKind::Removable:
            return context.Captions[TCaption::DriveRemovable];
        case TDriveKind::Network:
            return context.Captions[TCaption::DriveNetwork];
        case TDriveKind::Disc:
            return context.Captions[TCaption::DriveDisc];
        case TDriveKind::Fixed:
            break;
    }
    return context.Captions[TCaption::DriveFixed];
}

void LoadDrives(TPageContext& context, const TSpecialRow& row) {
    const std::uint32_t mask = StoredBits(context, row.Places[0]).value_or(0);
    std::vector<TListView::TRow> drives;
    drives.reserve(kDriveCount);
    for (int i = 0; i < kDriveCount; ++i)
        drives.push_back(
            {.Cells = {{static_cast<wchar_t>(L'A' + i), L':'}, L""}, .Checked = (mask >> i & 1) != 0});
    for (const TDrive& drive : context.System.Files.Drives())
        drives[static_cast<std::size_t>(drive.Letter - L'A')].Cells[1] = NameOf(context, drive);
    context.Form.Find<TListView>(row.Controls[0])->SetRows(std::move(drives));
}

void RecordDrives(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    std::uint32_t mask = StoredBits(context, row.Places[0]).value_or(0) & ~kAllDrives;
    std::uint32_t bit = 1;
    for (const TListView::TRow& drive : static_cast<TListView&>(sender).Rows()) {
        if (drive.Checked) mask |= bit;
        bit <<= 1;
    }
    RecordNumber(context, sender.Name(), row.Places[0], static_cast<std::int32_t>(mask));
}

constexpr const wchar_t* kDrives[] = {L"ListView_Folder_Drivers"};
constexpr TPlace kNoDrives[] = {ExplorerPolicy(L"NoDrives")};
constexpr TRow kDriveRows[] = {
    TSpecialRow{.Controls = kDrives, .Places = kNoDrives, .Load = LoadDrives, .Record = RecordDrives},
};

constexpr TLoader kLoaders[] = {kDesktopRows, kMyComputerRows, kDriveRows};

constexpr TOffer kOffers[] = {
    {L"Checkbox_Folder_Desktop_MyComputer", kSinceXp},
    {L"Checkbox_Folder_Desktop_MyDocuments", kOnlyXp},
    {L"Checkbox_Folder_Desktop_UserFiles", kSinceVista},
    {L"Checkbox_Folder_Desktop_MyNetworkPlaces", kOnlyXp},
    {L"Checkbox_Folder_Desktop_Network", kSinceVista},
    // Vista's own dialog no longer offers it, but its desktop still knows it.
    {L"Checkbox_Folder_Desktop_InternetExplorer", kXpAndVista},
    {L"Checkbox_Folder_Desktop_ControlPanel", kSinceVista},
    {L"Checkbox_Folder_Desktop_RecycleBin", kSinceXp},
    // Windows 2000 has no list of hidden icons: what its desktop shows are keys.
    {L"Checkbox_Folder_Desktop_RecycleBinKey", kUntil2000},
    {L"Checkbox_Folder_MyComputer_ShowControlPanel", kOnlyXp},
    {L"Checkbox_Folder_MyComputer_ControlPanel", kSinceVista},
    {L"Checkbox_Folder_MyComputer_ScheduledTasks", kUntilXp},
};

constexpr TLevelCaption kLevelCaptions[] = {
    {L"TabSheet_Folder_Desktop", kEveryLevel, TCaption::Desktop},
    {L"TabSheet_Folder_Drivers", kEveryLevel, TCaption::Drivers},
    {L"Checkbox_Folder_Desktop_MyComputer", kUntilXp, TCaption::DesktopMyComputer},
    {L"TabSheet_Folder_MyComputer", kUntilXp, TCaption::MyComputer},
};

constexpr TPageDefinition kDialog{.Tag = 0,
                                  .Design = Design,
                                  .Loaders = kLoaders,
                                  .Presets = {},
                                  .Offers = kOffers,
                                  .LevelCaptions = kLevelCaptions};

}  // namespace

const TPageDefinition& DesktopIcons() { return kDialog; }
