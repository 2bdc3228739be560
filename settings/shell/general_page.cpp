#include "settings/shell/general_page.h"

#include "settings/net/security_switches.h"
#include "settings/shared_rows.h"
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
                 Group(L"GroupBox_CommonSettings_Function_Keyboard", L"Keyboard",
                       Row(Label(L"Label_CommonSettings_Function_CursorWidth_Width", L"Cursor &width:"),
                           Edit(L"MaskEdit_CommonSettings_Function_CursorWidth_Width").Width(4),
                           UpDown(L"UpDownCur_CommonSettings_Function_CursorWidth_Width",
                                  L"MaskEdit_CommonSettings_Function_CursorWidth_Width", 1, 10, 1),
                           Label(L"Label_CommonSettings_Function_CursorWidth_Unit", L"pixels")),
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
                                L"Clear history list at &logoff"),
                       CheckBox(L"Checkbox_CommonSettings_Security_Traces_Pagefile",
                                L"Clear the &page file when Windows shuts down")));
}

TControlDesign OthersSheet() {
    return Sheet(
        L"TabSheet_CommonSettings_Others", L"Others",
        Group(L"GroupBox_CommonSettings_Others_Font", L"Font smoothing",
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

constexpr const wchar_t* kHomePage = L"Edit_CommonSettings_Display_FirefoxHomepage_HomePage";
constexpr const wchar_t* kActiveSC = L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveSC";
constexpr const wchar_t* kStartWF = L"ChkeckBox_CommonSettings_Security_SecuritySettings_StartWF";
constexpr const wchar_t* kAdminTools = L"Checkbox_CommonSettings_Display_StartMenu_AdminTools";
constexpr const wchar_t* kAutoUpdateType[] = {L"CB_CommonSettings_Security_SecuritySettings_AutoUpdateType"};
constexpr auto kMinimizedLists =
    MinimizedLists(L"CB_CommonSettings_Display_MinWindow_Arrange",
                   L"CB_CommonSettings_Display_MinWindow_Left", L"CB_CommonSettings_Display_MinWindow_Top");

constexpr TRow kDisplayRows[] = {
    WindowsVersionRow(L"Checkbox_CommonSettings_Display_Desktop_WinVersion"),
    DragFullWindowsRow(L"Checkbox_CommonSettings_Display_Desktop_Drag"),
    MinimizedWindowsRow(kMinimizedLists),
    AdminToolsRow(kAdminTools, kUntil2000),
    AdminToolsRow(kAdminTools, kXpToWindows7),
    AdminToolsRow(kAdminTools, kWindows8And81),
    FirefoxHomePageRow(kHomePage),
};
constexpr TRow kFunctionRows[] = {
    CaretWidthRow(L"UpDownCur_CommonSettings_Function_CursorWidth_Width"),
    WindowsKeyRow(L"Checkbox_CommonSettings_Function_Keyboard_WinKey"),
    RestoreFoldersRow(L"Checkbox_CommonSettings_Function_Explorer_Restore"),
    OpenCmdRow(L"Checkbox_CommonSettings_Function_Explorer_OpenCmd"),
    AutoRestartExplorerRow(L"Checkbox_CommonSettings_Function_Explorer_AutoRun"),
    LastAccessRow(L"Checkbox_CommonSettings_Function_Drives_LastVisit"),
    ManagedLastAccessRow(L"Checkbox_CommonSettings_Function_Drives_LastVisit"),
    DiskSpaceRow(L"Checkbox_CommonSettings_Function_Drives_SpaceWarn"),
};
constexpr TRow kSecurityRows[] = {
    SecurityCenterRow(kActiveSC),
    FirewallServiceRow(kStartWF),
    FirewallRow(kStartWF),
    FirewallProfilesRow(kStartWF),
    AutoUpdateRow(L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveAU", kAutoUpdateType),
    AutoUpdatePolicyRow(L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveAU", kAutoUpdateType),
    AutoUpdateTypePolicyRow(kAutoUpdateType[0]),
    ClearRecentDocumentsRow(L"Checkbox_CommonSettings_Security_Traces_ClearLogoff"),
    ClearPagefileRow(L"Checkbox_CommonSettings_Security_Traces_Pagefile"),
};
constexpr TRow kOthersRows[] = {
    FontSmoothingRow(L"CB_CommonSettings_Others_Font_SmoothType", L"norCBfont"),
    BalloonTipsRow(L"Checkbox_CommonSettings_Others_Message_Balloons"),
    BeepRow(L"Checkbox_CommonSettings_Others_Message_Beep"),
};

constexpr TLoader kLoaders[] = {kDisplayRows, kFunctionRows, kSecurityRows, kOthersRows};

// Windows 2000 knows neither the policy of the Windows key nor that of balloon tips.
constexpr TOffer kOffers[] = {{L"Checkbox_CommonSettings_Function_Keyboard_WinKey", kNotWindows2000},
                              {L"Checkbox_CommonSettings_Others_Message_Balloons", kSinceXp}};

constexpr const wchar_t* kSideAndEdge[] = {
    L"Label_CommonSettings_Display_MinWindow_Left", L"CB_CommonSettings_Display_MinWindow_Left",
    L"Label_CommonSettings_Display_MinWindow_Top", L"CB_CommonSettings_Display_MinWindow_Top"};
constexpr TNeed kNeeds[] = {MinimizedNeed(kSideAndEdge, L"CB_CommonSettings_Display_MinWindow_Arrange")};

bool HasFirefox(const TPageContext& context) { return context.Firefox.IsFirefoxInstalled(); }

constexpr TLack kLacks[] = {{kHomePage, HasFirefox, TCaption::NoFirefox}, SecurityCenterLack(kActiveSC)};

bool Prepare(TPageContext& context) {
    if (HasFirefox(context)) context.Firefox.LoadFirefoxPrefs();
    context.Form.Find(kStartWF)->SetVisible(HasFirewall(context));
    return true;
}

constexpr TPageDefinition kPage{.Tag = 19,
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = {},
                                .Offers = kOffers,
                                .Twins = kTwins,
                                .Needs = kNeeds,
                                .Lacks = kLacks,
                                .Prepare = Prepare};

}  // namespace

const TPageDefinition& GeneralPage() { return kPage; }
