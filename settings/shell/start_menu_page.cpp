#include "settings/shell/start_menu_page.h"

#include "settings/shared_rows.h"
#include "settings/shell/start_menu_modern.h"

namespace {

/// How Windows' own dialog lets an item of the Start menu appear.
constexpr const wchar_t* kAppearances[] = {L"Don't display", L"Display as a link", L"Display as a menu"};

TControlDesign Design() {
    return NotebookPage(
        5,
        PageControl(
            L"PageControl_Use_StartMenu",
            Sheet(L"TabSheet_Use_StartMenu_Common", L"General",
                  Group(L"GroupBox_Use_StartMenu_Common_Behaviour", L"Appearance and behavior",
                        CheckBox(L"Checkbox_Use_StartMenu_Common_User_ShowUserName", L"Show my &user name"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Behaviour_Classic",
                                 L"Use the &classic Start menu"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Behaviour_AutoCascade",
                                 L"&Open submenus when I pause on them with the mouse pointer"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop",
                                 L"&Enable dragging and dropping"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Behaviour_NewApps",
                                 L"&Highlight newly installed programs"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons", L"Use &large icons"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Behaviour_Personalized",
                                 L"Use &personalized menus"),
                        Row(Label(L"Label_Use_StartMenu_Common_Menu_Delay", L"Delay before a &menu opens:"),
                            Edit(L"Edit_Use_StartMenu_Common_Menu_Delay").Width(6),
                            UpDown(L"UpDown_Use_StartMenu_Common_Menu_Delay",
                                   L"Edit_Use_StartMenu_Common_Menu_Delay", 0, 4000, 400),
                            Label(L"Label_Use_StartMenu_Common_Menu_Unit", L"milliseconds"))),
                  Group(L"GroupBox_Use_StartMenu_Common_Classic", L"Open as menus in the classic Start menu",
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Classic_ControlPanel", L"Cont&rol Panel"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Classic_MyDocuments", L"Documen&ts"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Classic_Network", L"Net&work Connections"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Classic_Printers", L"Printers and Fa&xes")),
                  Buttons(Button(L"Button_Use_StartMenu_Common_Default", L"&Default"))),
            Sheet(
                L"TabSheet_Use_StartMenu_Items", L"Items",
                Group(L"GroupBox_Use_StartMenu_Items_Folders", L"Folders",
                      Fields(Row(Label(L"Label_Use_StartMenu_Items_MyComputer", L"&Computer:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_MyComputer", kAppearances)),
                             Row(Label(L"Label_Use_StartMenu_Items_MyDocuments", L"&Documents:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_MyDocuments", kAppearances)),
                             Row(Label(L"Label_Use_StartMenu_Items_MyPictures", L"P&ictures:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_MyPictures", kAppearances)),
                             Row(Label(L"Label_Use_StartMenu_Items_MyMusic", L"&Music:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_MyMusic", kAppearances)),
                             Row(Label(L"Label_Use_StartMenu_Items_Videos", L"&Videos:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_Videos", kAppearances)),
                             Row(Label(L"Label_Use_StartMenu_Items_Downloads", L"Do&wnloads:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_Downloads", kAppearances)),
                             Row(Label(L"Label_Use_StartMenu_Items_ControlPanel", L"Control &Panel:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_ControlPanel", kAppearances)),
                             Row(Label(L"Label_Use_StartMenu_Items_NetConn", L"&Network Connections:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_NetConn", kAppearances)))),
                Group(L"GroupBox_Use_StartMenu_Items_Commands", L"Commands",
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Run", L"&Run"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Search", L"&Search"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Help", L"&Help and Support"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Favorites", L"&Favorites"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_NetConn", L"C&onnect To"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Printers", L"Printers and Fa&xes"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Programs", L"Set Program Access and D&efaults"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_AdminTools", L"Administrative &Tools"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_LogOff", L"&Log Off"))),
            Sheet(L"TabSheet_Use_StartMenu_RecentlyUse", L"Recently Used",
                  Group(L"GroupBox_Use_StartMenu_RecentlyUse_Document", L"Documents",
                        CheckBox(L"Checkbox_Use_StartMenu_RecentlyUse_Document_Keep",
                                 L"&Remember recently opened documents"),
                        CheckBox(L"Checkbox_Use_StartMenu_RecentlyUse_Document_Show",
                                 L"&Show recently opened documents in the Start menu"),
                        Row(Label(L"Label_Use_StartMenu_RecentlyUse_Document_FileCount",
                                  L"&Number of documents:"),
                            Edit(L"Edit_Use_StartMenu_RecentlyUse_Document_FileCount").Width(4),
                            UpDown(L"UpDown_Use_StartMenu_RecentlyUse_Document_FileCount",
                                   L"Edit_Use_StartMenu_RecentlyUse_Document_FileCount", 1, 99, 15))),
                  Group(L"GroupBox_Use_StartMenu_RecentlyUse_Program", L"Programs",
                        CheckBox(L"Checkbox_Use_StartMenu_RecentlyUse_Program_Keep",
                                 L"Remember which &programs I use"),
                        CheckBox(L"Checkbox_Use_StartMenu_RecentlyUse_Program_Show",
                                 L"Show &frequently used programs"),
                        Row(Label(L"Label_Use_StartMenu_RecentlyUse_Program_Count", L"N&umber of programs:"),
                            Edit(L"Edit_Use_StartMenu_RecentlyUse_Program_Count").Width(4),
                            UpDown(L"UpDown_Use_StartMenu_RecentlyUse_Program_Count",
                                   L"Edit_Use_StartMenu_RecentlyUse_Program_Count", 0, 30, 10))),
                  Group(L"GroupBox_Use_StartMenu_RecentlyUse_JumpList", L"Jump Lists",
                        Row(Label(L"Label_Use_StartMenu_RecentlyUse_JumpList_Count", L"Number of &items:"),
                            Edit(L"Edit_Use_StartMenu_RecentlyUse_JumpList_Count").Width(4),
                            UpDown(L"UpDown_Use_StartMenu_RecentlyUse_JumpList_Count",
                                   L"Edit_Use_StartMenu_RecentlyUse_JumpList_Count", 0, 60, 10))),
                  Buttons(Button(L"Button_Use_StartMenu_RecentlyUse_Default", L"&Default"))),
            StartMenuModernSheet()));
}

/// Choices of the classic Start menu are texts.
constexpr TCheckBoxRow Cascading(const wchar_t* control, const wchar_t* valueName) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerAdvanced, valueName},
            .Shows = {.Missing = kClear, .When = {{kYes, kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Text(L"YES"), .Clear = Text(L"NO")}};
}

constexpr const wchar_t* kUserName = L"Checkbox_Use_StartMenu_Common_User_ShowUserName";
constexpr const wchar_t* kPersonalized = L"Checkbox_Use_StartMenu_Common_Behaviour_Personalized";
constexpr const wchar_t* kClassicPrinters = L"Checkbox_Use_StartMenu_Common_Classic_Printers";

constexpr TRow kCommonRows[] = {
    On(kOnlyXp, PolicyRow(kUserName, L"NoUserNameInStartMenu")),
    On(kVistaAndWindows7, ExplorerOption(kUserName, L"Start_ShowUser")),
    TCheckBoxRow{.Control = L"Checkbox_Use_StartMenu_Common_Behaviour_Classic",
                 .Value = {kCurrentUser, kExplorerPolicies, L"NoSimpleStartMenu"},
                 .Shows = {.Missing = kClear, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Restart = true},
    On(kUntilWindows7,
       ExplorerOption(L"Checkbox_Use_StartMenu_Common_Behaviour_AutoCascade", L"Start_AutoCascade")),
    On(kUntilWindows7,
       ExplorerOption(L"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop", L"Start_EnableDragDrop")),
    On(kUntilWindows7,
       ExplorerOption(L"Checkbox_Use_StartMenu_Common_Behaviour_NewApps", L"Start_NotifyNewApps")),
    On(kUntilWindows7,
       ExplorerOption(L"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons", L"Start_LargeMFUIcons")),
    On(kUntil2000, PolicyRow(kPersonalized, L"Intellimenus")),
    TCheckBoxRow{.Control = kPersonalized,
                 .Value = {kCurrentUser, kExplorerAdvanced, L"IntelliMenus"},
                 .Shows = {.Missing = kChecked, .When = {{kNo, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Text(L"Yes"), .Clear = Text(L"No")},
                 .Restart = true,
                 .Policy = L"Intellimenus",
                 .Levels = kXpAndVista},
    TNumberRow{.Control = L"UpDown_Use_StartMenu_Common_Menu_Delay",
               .Value = NumberParameter(0x6A, 0x6B)},  // …MENUSHOWDELAY
    Cascading(L"Checkbox_Use_StartMenu_Common_Classic_ControlPanel", L"CascadeControlPanel"),
    Cascading(L"Checkbox_Use_StartMenu_Common_Classic_MyDocuments", L"CascadeMyDocuments"),
    Cascading(L"Checkbox_Use_StartMenu_Common_Classic_Network", L"CascadeNetworkConnections"),
    Cascading(kClassicPrinters, L"CascadePrinters"),
};

/// 0, 1 and 2 are the three appearances in their order.
constexpr TDatum kAppearanceValues[] = {Dword(0), Dword(1), Dword(2)};
constexpr int kHidden = 0;
constexpr int kLink = 1;
constexpr int kMenu = 2;

constexpr TChoiceRow Folder(const wchar_t* control, const wchar_t* valueName, int missing = kLink) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerAdvanced, valueName},
            .Items = kAppearanceValues,
            .Missing = missing,
            .Levels = kUntilWindows7};
}

constexpr const wchar_t* kRun = L"Checkbox_Use_StartMenu_Items_Run";
constexpr const wchar_t* kSearchItem = L"Checkbox_Use_StartMenu_Items_Search";
constexpr const wchar_t* kHelp = L"Checkbox_Use_StartMenu_Items_Help";
constexpr const wchar_t* kNetConn = L"Checkbox_Use_StartMenu_Items_NetConn";
constexpr const wchar_t* kPrinters = L"Checkbox_Use_StartMenu_Items_Printers";
constexpr const wchar_t* kAdminTools = L"Checkbox_Use_StartMenu_Items_AdminTools";

// Windows 2000 has no options for its commands, only policies that forbid them.
constexpr TRow kItemRows[] = {
    Folder(L"CB_Use_StartMenu_Items_MyComputer", L"Start_ShowMyComputer"),
    Folder(L"CB_Use_StartMenu_Items_MyDocuments", L"Start_ShowMyDocs"),
    Folder(L"CB_Use_StartMenu_Items_MyPictures", L"Start_ShowMyPics"),
    Folder(L"CB_Use_StartMenu_Items_MyMusic", L"Start_ShowMyMusic"),
    Folder(L"CB_Use_StartMenu_Items_Videos", L"Start_ShowVideos", kHidden),
    Folder(L"CB_Use_StartMenu_Items_Downloads", L"Start_ShowDownloads", kHidden),
    Folder(L"CB_Use_StartMenu_Items_ControlPanel", L"Start_ShowControlPanel"),
    Folder(L"CB_Use_StartMenu_Items_NetConn", L"Start_ShowNetConn", kMenu),
    On(kUntil2000, PolicyRow(kRun, L"NoRun")),
    On(kOnlyXp, Unless(L"NoRun", ExplorerOption(kRun, L"Start_ShowRun"))),
    On(kVistaAndWindows7, Unless(L"NoRun", ExplorerOption(kRun, L"Start_ShowRun", kClear))),
    On(kUntil2000, PolicyRow(kSearchItem, L"NoFind")),
    On(kOnlyXp, Unless(L"NoFind", ExplorerOption(kSearchItem, L"Start_ShowSearch"))),
    On(kOnlyVista, ExplorerOption(kSearchItem, L"Start_ShowSearch")),
    On(kUntil2000, PolicyRow(kHelp, L"NoSMHelp")),
    On(kXpToWindows7, Unless(L"NoSMHelp", ExplorerOption(kHelp, L"Start_ShowHelp"))),
    On(kUntilWindows7,
       ExplorerOption(L"Checkbox_Use_StartMenu_Items_Favorites", L"StartMenuFavorites", kClear)),
    On(kOnlyVista, ExplorerOption(kNetConn, L"Start_ShowNetConn")),
    On(kOnlyWindows7, ExplorerOption(kNetConn, L"Start_ShowNetConn", kClear)),
    On(kOnlyXp, ExplorerOption(kPrinters, L"Start_ShowPrinters")),
    On(kOnlyVista, ExplorerOption(kPrinters, L"Start_ShowPrinters", kClear)),
    On(kOnlyWindows7, ExplorerOption(kPrinters, L"Start_ShowPrinters")),
    On(kUntilWindows7,
       ExplorerOption(L"Checkbox_Use_StartMenu_Items_Programs", L"Start_ShowSetProgramAccessAndDefaults")),
    AdminToolsRow(kAdminTools, kUntil2000),
    AdminToolsRow(kAdminTools, kXpToWindows7),
    AdminToolsRow(kAdminTools, kWindows8And81),
    PolicyRow(L"Checkbox_Use_StartMenu_Items_LogOff", L"StartMenuLogOff"),
};

constexpr const wchar_t* kKeepDocuments = L"Checkbox_Use_StartMenu_RecentlyUse_Document_Keep";
constexpr const wchar_t* kShowDocuments = L"Checkbox_Use_StartMenu_RecentlyUse_Document_Show";
constexpr const wchar_t* kKeepPrograms = L"Checkbox_Use_StartMenu_RecentlyUse_Program_Keep";
constexpr const wchar_t* kShowPrograms = L"Checkbox_Use_StartMenu_RecentlyUse_Program_Show";
constexpr const wchar_t* kProgramCount = L"UpDown_Use_StartMenu_RecentlyUse_Program_Count";
constexpr const wchar_t* kJumpListCount = L"UpDown_Use_StartMenu_RecentlyUse_JumpList_Count";

/// Recent documents appear as a menu, the only way there is.
constexpr TCheckBoxRow RecentDocuments(TBoxState missing) {
    TCheckBoxRow row =
        Unless(L"NoRecentDocsMenu", ExplorerOption(kShowDocuments, L"Start_ShowRecentDocs", missing));
    row.Records.Checked = Dword(kMenu);
    return row;
}

constexpr TNumberRow ProgramCount(TLevels levels, int missing) {
    return {.Control = kProgramCount,
            .Value = {kCurrentUser, kExplorerAdvanced, L"Start_MinMFU"},
            .Missing = missing,
            .Levels = levels};
}
constexpr int kProgramsOnXp = 6;
constexpr int kProgramsOnVista = 9;
constexpr int kProgramsOnWindows7 = 10;
constexpr int kJumpListItems = 10;

constexpr TRow kRecentlyUsedRows[] = {
    On(kUntilXp, PolicyRow(kKeepDocuments, L"NoRecentDocsHistory")),
    On(kSinceVista, Unless(L"NoRecentDocsHistory", ExplorerOption(kKeepDocuments, L"Start_TrackDocs"))),
    On(kUntil2000, PolicyRow(kShowDocuments, L"NoRecentDocsMenu")),
    On(kXpAndVista, RecentDocuments(kChecked)),
    On(kOnlyWindows7, RecentDocuments(kClear)),
    TNumberRow{.Control = L"UpDown_Use_StartMenu_RecentlyUse_Document_FileCount",
               .Value = ExplorerPolicy(L"MaxRecentDocs"),
               .Restart = true,
               .Levels = kUntilWindows7},
    On(kUntilVista, PolicyRow(kKeepPrograms, L"NoInstrumentation")),
    On(kSinceWindows7, ExplorerOption(kKeepPrograms, L"Start_TrackProgs")),
    // The Start screen of Windows 8 has no such list.
    On(~kWindows8And81, PolicyRow(kShowPrograms, L"NoStartMenuMFUprogramsList")),
    ProgramCount(kOnlyXp, kProgramsOnXp),
    ProgramCount(kOnlyVista, kProgramsOnVista),
    ProgramCount(kOnlyWindows7, kProgramsOnWindows7),
    TNumberRow{.Control = kJumpListCount,
               .Value = {kCurrentUser, kExplorerAdvanced, L"Start_JumpListItems"},
               .Missing = kJumpListItems,
               .Levels = kUntilWindows8},
    TNumberRow{.Control = kJumpListCount,
               .Value = {kCurrentUser, kExplorerAdvanced, L"JumpListItems_Maximum"},
               .Missing = kJumpListItems,
               .Levels = kSinceWindows10},
};

constexpr TLoader kLoaders[] = {kCommonRows, kItemRows, kRecentlyUsedRows, kStartMenuModernRows};

constexpr TPresetState kCommonDefault[] = {
    {kUserName, 1, kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_Classic", 0, kXpAndVista},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_AutoCascade", 1, kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop", 1, kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_NewApps", 1, kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons", 1, kSinceXp},
    {kPersonalized, 1, kUntilVista},
    {L"UpDown_Use_StartMenu_Common_Menu_Delay", 400},
};
constexpr TPresetState kRecentlyUsedDefault[] = {
    {kKeepDocuments, 1},
    {kShowDocuments, 1, kUntilVista},
    {kShowDocuments, 0, kOnlyWindows7},
    {L"UpDown_Use_StartMenu_RecentlyUse_Document_FileCount", 15},
    {kKeepPrograms, 1},
    {kShowPrograms, 1, kSinceXp},
    {kProgramCount, kProgramsOnXp, kOnlyXp},
    {kProgramCount, kProgramsOnVista, kOnlyVista},
    {kProgramCount, kProgramsOnWindows7, kOnlyWindows7},
    {kJumpListCount, kJumpListItems, kSinceWindows7},
};
constexpr TPreset kPresets[] = {
    {L"Button_Use_StartMenu_Common_Default", kCommonDefault},
    {L"Button_Use_StartMenu_RecentlyUse_Default", kRecentlyUsedDefault},
    {L"Button_Use_StartMenu_Modern_Default", kStartMenuModernDefault},
};

// Windows XP brought the two-column Start menu, Windows 7 left the classic one behind.
constexpr TOffer kOffers[] = {
    {kUserName, kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_Classic", kXpAndVista},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_AutoCascade", kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop", kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_NewApps", kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons", kSinceXp},
    {kPersonalized, kUntilVista},
    {L"GroupBox_Use_StartMenu_Common_Classic", kUntilVista},
    {L"GroupBox_Use_StartMenu_Items_Folders", kSinceXp},
    {L"Label_Use_StartMenu_Items_Videos", kSinceWindows7},
    {L"CB_Use_StartMenu_Items_Videos", kSinceWindows7},
    {L"Label_Use_StartMenu_Items_Downloads", kSinceWindows7},
    {L"CB_Use_StartMenu_Items_Downloads", kSinceWindows7},
    {L"Label_Use_StartMenu_Items_NetConn", kOnlyXp},
    {L"CB_Use_StartMenu_Items_NetConn", kOnlyXp},
    {kSearchItem, kUntilVista},
    {L"Checkbox_Use_StartMenu_Items_Favorites", kSinceXp},
    {kNetConn, kSinceVista},
    {kPrinters, kSinceXp},
    {L"Checkbox_Use_StartMenu_Items_Programs", kSinceXp},
    {L"Checkbox_Use_StartMenu_Items_LogOff", kSinceXp},
    {kShowPrograms, kSinceXp},
    {L"Label_Use_StartMenu_RecentlyUse_Program_Count", kSinceXp},
    {L"Edit_Use_StartMenu_RecentlyUse_Program_Count", kSinceXp},
    {kProgramCount, kSinceXp},
    {L"GroupBox_Use_StartMenu_RecentlyUse_JumpList", kSinceWindows7},
};

// Printers share their folder with faxes on Windows XP and Server 2003, and with all devices since Windows 7.
constexpr TLevelCaption kLevelCaptions[] = {
    {L"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop", kSinceVista, TCaption::StartMenuDragDrop},
    {L"Checkbox_Use_StartMenu_Common_Classic_MyDocuments", kUntilXp, TCaption::StartMenuClassicMyDocuments},
    {kClassicPrinters, kOnlyWindows2000, TCaption::StartMenuPrinters},
    {kClassicPrinters, kOnlyVista, TCaption::StartMenuPrinters},
    {L"Label_Use_StartMenu_Items_MyComputer", kOnlyXp, TCaption::StartMenuMyComputer},
    {L"Label_Use_StartMenu_Items_MyDocuments", kOnlyXp, TCaption::StartMenuMyDocuments},
    {L"Label_Use_StartMenu_Items_MyPictures", kOnlyXp, TCaption::StartMenuMyPictures},
    {L"Label_Use_StartMenu_Items_MyMusic", kOnlyXp, TCaption::StartMenuMyMusic},
    {kPrinters, kOnlyVista, TCaption::StartMenuPrinters},
    {kPrinters, kSinceWindows7, TCaption::StartMenuDevices},
    {L"Checkbox_Use_StartMenu_Items_Programs", kSinceVista, TCaption::StartMenuDefaultPrograms},
};

// Of the menu with two columns.
constexpr const wchar_t* kTwoColumns[] = {kUserName,
                                          L"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons",
                                          L"Label_Use_StartMenu_Items_MyComputer",
                                          L"CB_Use_StartMenu_Items_MyComputer",
                                          L"Label_Use_StartMenu_Items_MyDocuments",
                                          L"CB_Use_StartMenu_Items_MyDocuments",
                                          L"Label_Use_StartMenu_Items_MyPictures",
                                          L"CB_Use_StartMenu_Items_MyPictures",
                                          L"Label_Use_StartMenu_Items_MyMusic",
                                          L"CB_Use_StartMenu_Items_MyMusic",
                                          L"Label_Use_StartMenu_Items_ControlPanel",
                                          L"CB_Use_StartMenu_Items_ControlPanel",
                                          L"Label_Use_StartMenu_Items_NetConn",
                                          L"CB_Use_StartMenu_Items_NetConn",
                                          kPrinters,
                                          kShowPrograms,
                                          L"Label_Use_StartMenu_RecentlyUse_Program_Count",
                                          L"Edit_Use_StartMenu_RecentlyUse_Program_Count",
                                          kProgramCount};
constexpr const wchar_t* kProgramCountControls[] = {L"Label_Use_StartMenu_RecentlyUse_Program_Count",
                                                    L"Edit_Use_StartMenu_RecentlyUse_Program_Count",
                                                    kProgramCount};
constexpr const wchar_t* kDocumentCount[] = {L"UpDown_Use_StartMenu_RecentlyUse_Document_FileCount"};
constexpr TNeed kNeeds[] = {
    {.Controls = kTwoColumns,
     .Of = L"Checkbox_Use_StartMenu_Common_Behaviour_Classic",
     .State = 0,
     .Levels = kXpAndVista},
    {.Controls = kProgramCountControls, .Of = kShowPrograms},
    {.Controls = kDocumentCount, .Of = kKeepDocuments, .Disables = false},
    {.Controls = kDocumentCount, .Of = kShowDocuments, .Disables = false},
};

constexpr TPageDefinition kPage{.Tag = 5,
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .Offers = kOffers,
                                .LevelCaptions = kLevelCaptions,
                                .Needs = kNeeds};

}  // namespace

const TPageDefinition& StartMenuPage() { return kPage; }
