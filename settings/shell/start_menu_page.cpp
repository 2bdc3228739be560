#include "settings/shell/start_menu_page.h"

#include "settings/explorer_keys.h"
#include "settings/shell/admin_tools.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

/// How Windows' own dialog lets an item of the Start menu appear.
constexpr const wchar_t* kAppearances[] = {L"Don't display", L"Display as a link", L"Display as a menu"};

TControlDesign Design() {
    return NotebookPage(
        5,
        PageControl(
            L"PageControl_Use_StartMenu",
            Sheet(L"TabSheet_Use_StartMenu_Common", L"General",
                  Group(L"GroupBox_Use_StartMenu_Common_User", L"User",
                        CheckBox(L"Checkbox_Use_StartMenu_Common_User_ShowUserName", L"Show my &user name")),
                  Group(L"GroupBox_Use_StartMenu_Common_Behaviour", L"Behavior",
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
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Classic_ControlPanel", L"Co&ntrol Panel"),
                        CheckBox(L"Checkbox_Use_StartMenu_Common_Classic_MyDocuments", L"M&y Documents"),
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
                             Row(Label(L"Label_Use_StartMenu_Items_ControlPanel", L"Control &Panel:"),
                                 ComboBox(L"CB_Use_StartMenu_Items_ControlPanel", kAppearances)))),
                Group(L"GroupBox_Use_StartMenu_Items_Commands", L"Commands",
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Run", L"&Run"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Search", L"&Search"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Help", L"&Help and Support"),
                      CheckBox(L"Checkbox_Use_StartMenu_Items_Favorites", L"&Favorites"),
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
                                 L"Show &frequently used programs")),
                  Buttons(Button(L"Button_Use_StartMenu_RecentlyUse_Default", L"&Default")))));
}

/// An option of the Start menu's own dialog, which is on by default.
constexpr TCheckBoxRow Option(const wchar_t* control, const wchar_t* valueName) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerAdvanced, valueName},
            .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)}};
}

/// The classic Start menu keeps its options as texts.
constexpr TCheckBoxRow Cascading(const wchar_t* control, const wchar_t* valueName) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerAdvanced, valueName},
            .Shows = {.Missing = kClear, .When = {{AnyCase(L"YES"), kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Text(L"YES"), .Clear = Text(L"NO")}};
}

constexpr TRow kCommonRows[] = {
    PolicyRow(L"Checkbox_Use_StartMenu_Common_User_ShowUserName", L"NoUserNameInStartMenu", true),
    Option(L"Checkbox_Use_StartMenu_Common_Behaviour_AutoCascade", L"Start_AutoCascade"),
    Option(L"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop", L"Start_EnableDragDrop"),
    Option(L"Checkbox_Use_StartMenu_Common_Behaviour_NewApps", L"Start_NotifyNewApps"),
    Option(L"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons", L"Start_LargeMFUIcons"),
    PolicyRow(L"Checkbox_Use_StartMenu_Common_Behaviour_Personalized", L"Intellimenus", true),
    TParameterNumberRow{.Control = L"UpDown_Use_StartMenu_Common_Menu_Delay",
                        .Get = 0x6A,   // SPI_GETMENUSHOWDELAY
                        .Set = 0x6B},  // SPI_SETMENUSHOWDELAY
    Cascading(L"Checkbox_Use_StartMenu_Common_Classic_ControlPanel", L"CascadeControlPanel"),
    Cascading(L"Checkbox_Use_StartMenu_Common_Classic_MyDocuments", L"CascadeMyDocuments"),
    Cascading(L"Checkbox_Use_StartMenu_Common_Classic_Network", L"CascadeNetworkConnections"),
    Cascading(L"Checkbox_Use_StartMenu_Common_Classic_Printers", L"CascadePrinters"),
};

/// 0, 1 and 2 are the three appearances in their order; a link is what Windows shows by default.
constexpr TDatum kAppearanceValues[] = {Dword(0), Dword(1), Dword(2)};

constexpr TChoiceRow Folder(const wchar_t* control, const wchar_t* valueName) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerAdvanced, valueName},
            .Items = kAppearanceValues,
            .Missing = 1};
}

// Special because the command is there by default until XP and hidden by default since Vista, and because Windows 2000
// has no option for it, only the policy that forbids it.
constexpr const wchar_t* kRun[] = {L"Checkbox_Use_StartMenu_Items_Run"};
constexpr TPlace kNoRun{kCurrentUser, kExplorerPolicies, L"NoRun"};

void LoadRun(TPageContext& context, const TSpecialRow& row) {
    bool shown = StoredNumber(context, kNoRun) != 1;
    if (kSinceXp.Include(context.WindowsLevel)) {
        const auto value = Stored(context, row.Value);
        shown = value ? !TMatch(0)(*value) : kUntilXp.Include(context.WindowsLevel);
    }
    context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(shown);
}

void RecordRun(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const bool shown = static_cast<TCheckBox&>(sender).Checked();
    if (kSinceXp.Include(context.WindowsLevel))
        RecordNumber(context, sender.Name(), row.Value, shown ? 1 : 0);
    else
        RecordNumber(context, sender.Name(), kNoRun, shown ? 0 : 1);
}

constexpr const wchar_t* kAdminTools[] = {L"Checkbox_Use_StartMenu_Items_AdminTools"};

constexpr TRow kItemRows[] = {
    Folder(L"CB_Use_StartMenu_Items_MyComputer", L"Start_ShowMyComputer"),
    Folder(L"CB_Use_StartMenu_Items_MyDocuments", L"Start_ShowMyDocs"),
    Folder(L"CB_Use_StartMenu_Items_MyPictures", L"Start_ShowMyPics"),
    Folder(L"CB_Use_StartMenu_Items_MyMusic", L"Start_ShowMyMusic"),
    Folder(L"CB_Use_StartMenu_Items_ControlPanel", L"Start_ShowControlPanel"),
    TSpecialRow{.Controls = kRun,
                .Value = {kCurrentUser, kExplorerAdvanced, L"Start_ShowRun"},
                .Rule = L"clear when 0, else checked; missing: checked up to XP, else clear; writes 1 or 0; "
                        L"on Windows 2000 "
                        L"the policy `NoRun`: clear when 1, writes 0 or 1",
                .Load = LoadRun,
                .Record = RecordRun},
    PolicyRow(L"Checkbox_Use_StartMenu_Items_Search", L"NoFind", false),
    PolicyRow(L"Checkbox_Use_StartMenu_Items_Help", L"NoSMHelp", false),
    TCheckBoxRow{.Control = L"Checkbox_Use_StartMenu_Items_Favorites",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"StartMenuFavorites"},
                 .Shows = {.Missing = kClear, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
    Option(L"Checkbox_Use_StartMenu_Items_Programs", L"Start_ShowSetProgramAccessAndDefaults"),
    AdminToolsRow(kAdminTools),
    PolicyRow(L"Checkbox_Use_StartMenu_Items_LogOff", L"StartMenuLogOff", false),
};

constexpr TRow kRecentlyUsedRows[] = {
    PolicyRow(L"Checkbox_Use_StartMenu_RecentlyUse_Document_Keep", L"NoRecentDocsHistory", true),
    PolicyRow(L"Checkbox_Use_StartMenu_RecentlyUse_Document_Show", L"NoRecentDocsMenu", true),
    TNumberRow{.Control = L"UpDown_Use_StartMenu_RecentlyUse_Document_FileCount",
               .Value = {kCurrentUser, kExplorerPolicies, L"MaxRecentDocs"},
               .Restart = true},
    PolicyRow(L"Checkbox_Use_StartMenu_RecentlyUse_Program_Keep", L"NoInstrumentation", true),
    PolicyRow(L"Checkbox_Use_StartMenu_RecentlyUse_Program_Show", L"NoStartMenuMFUprogramsList", true),
};

constexpr TLoader kLoaders[] = {kCommonRows, kItemRows, kRecentlyUsedRows};

constexpr TPresetState kCommonDefault[] = {
    {L"Checkbox_Use_StartMenu_Common_User_ShowUserName", 1},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_AutoCascade", 1},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop", 1},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_NewApps", 1},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons", 1},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_Personalized", 1},
    {L"UpDown_Use_StartMenu_Common_Menu_Delay", 400},
};
constexpr TPresetState kRecentlyUsedDefault[] = {
    {L"Checkbox_Use_StartMenu_RecentlyUse_Document_Keep", 1},
    {L"Checkbox_Use_StartMenu_RecentlyUse_Document_Show", 1},
    {L"UpDown_Use_StartMenu_RecentlyUse_Document_FileCount", 15},
    {L"Checkbox_Use_StartMenu_RecentlyUse_Program_Keep", 1},
    {L"Checkbox_Use_StartMenu_RecentlyUse_Program_Show", 1},
};
constexpr TPreset kPresets[] = {
    {L"Button_Use_StartMenu_Common_Default", kCommonDefault},
    {L"Button_Use_StartMenu_RecentlyUse_Default", kRecentlyUsedDefault},
};

// Windows XP brought the two-column Start menu; Vista left the personalized menus and most of the classic one behind.
constexpr TOffer kOffers[] = {
    {L"GroupBox_Use_StartMenu_Common_User", kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_AutoCascade", kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop", kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_NewApps", kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons", kSinceXp},
    {L"Checkbox_Use_StartMenu_Common_Behaviour_Personalized", kUntilXp},
    {L"GroupBox_Use_StartMenu_Items_Folders", kSinceXp},
    {L"Checkbox_Use_StartMenu_Items_Favorites", kSinceXp},
    {L"Checkbox_Use_StartMenu_Items_Programs", kSinceXp},
    {L"Checkbox_Use_StartMenu_Items_LogOff", kSinceXp},
    {L"GroupBox_Use_StartMenu_Common_Classic", kUntilXp},
    {L"Checkbox_Use_StartMenu_RecentlyUse_Program_Show", kSinceXp},
};

constexpr TPageDefinition kPage{.Tag = 5,
                                .SharedHandler = L"Checkbox_Use_StartMenu_Common_User_ShowUserNameClick",
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .Offers = kOffers};

}  // namespace

const TPageDefinition& StartMenuPage() { return kPage; }
