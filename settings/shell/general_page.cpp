#include "settings/shell/general_page.h"

#include <array>
#include <stdexcept>

#include "settings/net/firefox_home_page.h"
#include "settings/net/privacy_page.h"
#include "settings/net/security_switches.h"
#include "settings/shell/admin_tools.h"
#include "settings/shell/display_page.h"
#include "settings/shell/drives_page.h"
#include "settings/shell/file_types_page.h"
#include "settings/shell/folder_page.h"
#include "settings/shell/font_smoothing.h"
#include "settings/shell/input_page.h"
#include "settings/shell/memory_page.h"
#include "settings/shell/minimized_windows.h"
#include "settings/shell/startup_page.h"
#include "settings/shell/taskbar_page.h"
#include "ui/controls.h"

namespace {

TControlDesign DisplaySheet() {
    return Sheet(
        L"TabSheet_CommonSettings_Display", L"Display",
        Group(L"GroupBox_CommonSettings_Display_Desktop", L"Desktop",
              CheckBox(L"Checkbox_CommonSettings_Display_Desktop_WinVersion",
                       L"Show the Windows &version on the desktop"),
              CheckBox(L"Checkbox_CommonSettings_Display_Desktop_Drag",
                       L"Show &window contents while dragging")),
        Group(L"GroupBox_CommonSettings_Display_MinWindow", L"Minimized windows on the desktop",
              Fields(Row(Label(L"Label_CommonSettings_Display_MinWindow_Arrange", L"A&rrangement:"),
                         ComboBox(L"CB_CommonSettings_Display_MinWindow_Arrange", kMinimizedArrangements)),
                     Row(Label(L"Label_CommonSettings_Display_MinWindow_Left", L"&Side:"),
                         ComboBox(L"CB_CommonSettings_Display_MinWindow_Left", kMinimizedSides)),
                     Row(Label(L"Label_CommonSettings_Display_MinWindow_Top", L"&Edge:"),
                         ComboBox(L"CB_CommonSettings_Display_MinWindow_Top", kMinimizedEdges))),
              Label(L"Label_CommonSettings_Display_MinWindow_Note", kMinimizedNote)),
        Group(L"GroupBox_CommonSettings_Display_StartMenu", L"Start menu",
              CheckBox(L"Checkbox_CommonSettings_Display_StartMenu_AdminTools",
                       L"Show the Administrative &Tools")),
        Group(L"GroupBox_CommonSettings_Display_FirefoxHomepage", L"Mozilla Firefox",
              Row(Label(L"Label_CommonSettings_Display_FirefoxHomepage_HomePage", L"&Home page:"),
                  Edit(L"Edit_CommonSettings_Display_FirefoxHomepage_HomePage"))));
}

TControlDesign FunctionSheet() {
    return Sheet(L"TabSheet_CommonSettings_Function", L"Function",
                 Group(L"GroupBox_CommonSettings_Function_CursorWidth", L"Cursor",
                       Row(Label(L"Label_CommonSettings_Function_CursorWidth_Width", L"&Width:"),
                           Edit(L"MaskEdit_CommonSettings_Function_CursorWidth_Width").Width(4),
                           UpDown(L"UpDownCur_CommonSettings_Function_CursorWidth_Width",
                                  L"MaskEdit_CommonSettings_Function_CursorWidth_Width", 1, 10, 1),
                           Label(L"Label_CommonSettings_Function_CursorWidth_Unit", L"pixels"))),
                 Group(L"GroupBox_CommonSettings_Function_Keyboard", L"Keyboard",
                       CheckBox(L"Checkbox_CommonSettings_Function_Keyboard_WinKey",
                                L"Use the Windows &key as a shortcut key")),
                 Group(L"GroupBox_CommonSettings_Function_Explorer", L"Windows Explorer",
                       CheckBox(L"Checkbox_CommonSettings_Function_Explorer_Restore",
                                L"&Restore previous folder windows at logon"),
                       CheckBox(L"Checkbox_CommonSettings_Function_Explorer_OpenCmd",
                                L"Offer \"Open &Cmd here\" for folders"),
                       CheckBox(L"Checkbox_CommonSettings_Function_Explorer_AutoRun",
                                L"Restart &Explorer automatically when it ends unexpectedly")),
                 Group(L"GroupBox_CommonSettings_Function_Drives", L"Drives",
                       CheckBox(L"Checkbox_CommonSettings_Function_Drives_LastVisit",
                                L"Record the date of the &last access to files and folders"),
                       CheckBox(L"Checkbox_CommonSettings_Function_Drives_SpaceWarn",
                                L"Warn me when a drive runs out of &space")));
}

TControlDesign SecuritySheet() {
    return Sheet(L"TabSheet_CommonSettings_Security", L"Security",
                 Group(L"GroupBox_CommonSettings_Security_SecuritySettings", L"Protection",
                       CheckBox(L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveSC",
                                L"Turn on the Security &Center"),
                       CheckBox(L"ChkeckBox_CommonSettings_Security_SecuritySettings_StartWF",
                                L"Turn on Windows &Firewall"),
                       CheckBox(L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveAU",
                                L"Turn on automatic &updates"),
                       Indent(ComboBox(L"CB_CommonSettings_Security_SecuritySettings_AutoUpdateType",
                                       kAutoUpdateTypes))),
                 Group(L"GroupBox_CommonSettings_Security_Traces", L"Traces",
                       CheckBox(L"Checkbox_CommonSettings_Security_Traces_ClearLogoff",
                                L"Clear history list at &logoff."),
                       CheckBox(L"Checkbox_CommonSettings_Security_Traces_Pagefile",
                                L"Clear the &page file when Windows shuts down")));
}

TControlDesign OthersSheet() {
    return Sheet(
        L"TabSheet_CommonSettings_Others", L"Others",
        Group(L"GroupBox_CommonSettings_Others_Font", L"Edges of screen fonts",
              Row(Label(L"Label_CommonSettings_Others_Font_SmoothType", L"&Method:"),
                  ComboBox(L"CB_CommonSettings_Others_Font_SmoothType", kFontSmoothingTypes))),
        Group(L"GroupBox_CommonSettings_Others_Message", L"Messages",
              CheckBox(L"Checkbox_CommonSettings_Others_Message_Balloons", L"Show balloon &tips"),
              CheckBox(L"Checkbox_CommonSettings_Others_Message_Beep", L"&Beep when an error occurs")));
}

TControlDesign Design() {
    return NotebookPage(19, PageControl(L"PageControl_CommonSettings", DisplaySheet(), FunctionSheet(),
                                        SecuritySheet(), OthersSheet()));
}

/// The row of another page, for a control of this one. What depends on the original stays on its own page.
TRow Repeat(const TPageDefinition& page, const std::wstring& original, const wchar_t* control) {
    for (const TLoader& loader : page.Loaders) {
        for (TRow row : loader) {
            const bool found = std::visit(
                [&](auto& kind) {
                    if constexpr (requires { kind.Control; }) {
                        if (kind.Control != original) return false;
                        kind.Control = control;
                        if constexpr (requires { kind.Enables; }) kind.Enables = kind.EnablesOnClick = {};
                        if constexpr (requires { kind.Toggles; }) kind.Toggles = nullptr;
                        return true;
                    }
                    return false;
                },
                row);
            if (found) return row;
        }
    }
    throw std::logic_error("no such row to repeat");
}

bool IsFirefoxMarked(const TPageContext& context) { return context.FirefoxChanged; }

constexpr TTwin kTwins[] = {
    {L"Checkbox_CommonSettings_Display_Desktop_WinVersion",
     L"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion"},
    {L"Checkbox_CommonSettings_Display_Desktop_Drag",
     L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag"},
    {L"CB_CommonSettings_Display_MinWindow_Arrange", L"CB_Taskbar_MinWindow_Arrange"},
    {L"CB_CommonSettings_Display_MinWindow_Left", L"CB_Taskbar_MinWindow_Left"},
    {L"CB_CommonSettings_Display_MinWindow_Top", L"CB_Taskbar_MinWindow_Top"},
    {L"Checkbox_CommonSettings_Display_StartMenu_AdminTools", L"Checkbox_Use_StartMenu_Items_AdminTools"},
    {L"Edit_CommonSettings_Display_FirefoxHomepage_HomePage", L"Edit_Firefox_Common_Homepage_Address",
     IsFirefoxMarked},
    {L"UpDownCur_CommonSettings_Function_CursorWidth_Width", L"UpDown_Use_Keyboard_CursorWidth_Width"},
    {L"Checkbox_CommonSettings_Function_Keyboard_WinKey", L"Checkbox_Use_Keyboard_WinKey_Active"},
    {L"Checkbox_CommonSettings_Function_Explorer_Restore", L"Checkbox_Folder_View_Windows_Restore"},
    {L"Checkbox_CommonSettings_Function_Explorer_OpenCmd", L"Checkbox_FileType_MenuOperation_Drive_OpenCmd"},
    {L"Checkbox_CommonSettings_Function_Explorer_AutoRun",
     L"Checkbox_Startup_DesktopAndTaskbar_AutoRestartExplorer_AutoRun"},
    {L"Checkbox_CommonSettings_Function_Drives_LastVisit", L"Checkbox_Drives_Common_NTFS_SaveLastVisitData"},
    {L"Checkbox_CommonSettings_Function_Drives_SpaceWarn", L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn"},
    {L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveSC", L"Checkbox_Security_Center_Active"},
    {L"ChkeckBox_CommonSettings_Security_SecuritySettings_StartWF",
     L"Checkbox_Net_Internet_WindowsFirewall_Enable"},
    {L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveAU",
     L"Checkbox_Privacy_Common_AutoUpdate_Active"},
    {L"CB_CommonSettings_Security_SecuritySettings_AutoUpdateType", L"CB_Privacy_Common_AutoUpdate_Type"},
    {L"Checkbox_CommonSettings_Security_Traces_ClearLogoff",
     L"Checkbox_CleanTraces_ClearHistoryList_ClearLogoff"},
    {L"Checkbox_CommonSettings_Security_Traces_Pagefile",
     L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete"},
    {L"CB_CommonSettings_Others_Font_SmoothType", L"CB_Display_FontSmooth_SmoothType"},
    {L"Checkbox_CommonSettings_Others_Message_Balloons", L"Checkbox_Taskbar_Notification_Balloons_Show"},
    {L"Checkbox_CommonSettings_Others_Message_Beep", L"Checkbox_Startup_Error_Sound_beep"},
};

/// The row of the control's twin, which lies on that page.
TRow RepeatTwin(const TPageDefinition& page, const std::wstring& control) {
    for (const TTwin& twin : kTwins)
        if (twin.Control == control) return Repeat(page, twin.Twin, twin.Control);
    throw std::logic_error("no twin to repeat");
}

constexpr const wchar_t* kMinimizedLists[] = {L"CB_CommonSettings_Display_MinWindow_Arrange",
                                              L"CB_CommonSettings_Display_MinWindow_Left",
                                              L"CB_CommonSettings_Display_MinWindow_Top"};
constexpr const wchar_t* kAdminTools[] = {L"Checkbox_CommonSettings_Display_StartMenu_AdminTools"};
constexpr const wchar_t* kHomePage[] = {L"Edit_CommonSettings_Display_FirefoxHomepage_HomePage"};
constexpr const wchar_t* kActiveSC[] = {L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveSC"};
constexpr const wchar_t* kStartWF[] = {L"ChkeckBox_CommonSettings_Security_SecuritySettings_StartWF"};
constexpr const wchar_t* kActiveAU[] = {L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveAU",
                                        L"CB_CommonSettings_Security_SecuritySettings_AutoUpdateType"};
constexpr const wchar_t* kSmoothType[] = {L"CB_CommonSettings_Others_Font_SmoothType"};

// The box goes with the firewall, as its group does on the network page.
void LoadStartWF(TPageContext& context, const TSpecialRow& row) {
    LoadFirewall(context, row);
    context.Form.Find(row.Controls[0])->SetVisible(HasFirewall(context));
}

void RecordSmoothing(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    RecordFontSmoothing(context, L"norCBfont", static_cast<TComboBox&>(sender));
}

/// The rows are those of other pages, which are asked for them when the page is first wanted.
struct TGeneralCatalogue {
    const std::vector<TRow> Display{
        RepeatTwin(DisplayPage(), L"Checkbox_CommonSettings_Display_Desktop_WinVersion"),
        RepeatTwin(DisplayPage(), L"Checkbox_CommonSettings_Display_Desktop_Drag"),
        MinimizedWindowsRow(kMinimizedLists),
        AdminToolsRow(kAdminTools),
        FirefoxHomePageRow(kHomePage),
    };
    const std::vector<TRow> Function{
        RepeatTwin(InputPage(), L"UpDownCur_CommonSettings_Function_CursorWidth_Width"),
        RepeatTwin(InputPage(), L"Checkbox_CommonSettings_Function_Keyboard_WinKey"),
        RepeatTwin(FolderPage(), L"Checkbox_CommonSettings_Function_Explorer_Restore"),
        RepeatTwin(FileTypesPage(), L"Checkbox_CommonSettings_Function_Explorer_OpenCmd"),
        RepeatTwin(StartupPage(), L"Checkbox_CommonSettings_Function_Explorer_AutoRun"),
        RepeatTwin(DrivesPage(), L"Checkbox_CommonSettings_Function_Drives_LastVisit"),
        RepeatTwin(DrivesPage(), L"Checkbox_CommonSettings_Function_Drives_SpaceWarn"),
    };
    const std::vector<TRow> Security{
        TSpecialRow{.Controls = kActiveSC,
                    .Value = kSecurityCenterStart,
                    .Rule = kSecurityCenterRule,
                    .Load = LoadSecurityCenter,
                    .Record = RecordSecurityCenter},
        TSpecialRow{.Controls = kStartWF,
                    .Value = kFirewallEnabled,
                    .Rule = kFirewallRule,
                    .Load = LoadStartWF,
                    .Record = RecordFirewall},
        TSpecialRow{.Controls = kActiveAU,
                    .Value = kAutoUpdateOptions,
                    .Rule = kAutoUpdateRule,
                    .Load = LoadAutoUpdate,
                    .Record = RecordAutoUpdate},
        RepeatTwin(PrivacyPage(), L"Checkbox_CommonSettings_Security_Traces_ClearLogoff"),
        RepeatTwin(MemoryPage(), L"Checkbox_CommonSettings_Security_Traces_Pagefile"),
    };
    const std::vector<TRow> Others{
        TSpecialRow{.Controls = kSmoothType,
                    .Value = kFontSmoothing,
                    .Rule = kFontSmoothingRule,
                    .Load = LoadFontSmoothing,
                    .Record = RecordSmoothing},
        RepeatTwin(TaskbarPage(), L"Checkbox_CommonSettings_Others_Message_Balloons"),
        RepeatTwin(StartupPage(), L"Checkbox_CommonSettings_Others_Message_Beep"),
    };
    const std::array<TLoader, 4> Loaders{Display, Function, Security, Others};
};

// Windows 2000 knows neither the policy of the Windows key nor that of balloon tips.
constexpr TOffer kOffers[] = {{L"GroupBox_CommonSettings_Function_Keyboard", kNotWindows2000},
                              {L"Checkbox_CommonSettings_Others_Message_Balloons", kSinceXp}};

bool Prepare(TPageContext& context) {
    const bool installed = context.Firefox.IsFirefoxInstalled();
    context.Form.Find(kHomePage[0])->SetEnabled(installed);
    if (installed) context.Firefox.LoadFirefoxPrefs();
    return true;
}

}  // namespace

const TPageDefinition& GeneralPage() {
    static const TGeneralCatalogue kCatalogue;
    static const TPageDefinition kPage{.Tag = 19,
                                       .SharedHandler = L"CB_CommonSettings_Others_Font_SmoothTypeChange",
                                       .Design = Design,
                                       .Loaders = kCatalogue.Loaders,
                                       .Presets = {},
                                       .Offers = kOffers,
                                       .Twins = kTwins,
                                       .Prepare = Prepare};
    return kPage;
}
