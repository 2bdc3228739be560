#include "settings/net/user_logon_page.h"

#include "settings/row_shapes.h"

namespace {

constexpr TPlace Winlogon(const wchar_t* value) { return {kLocalMachine, kWinlogon, value}; }
constexpr TPlace Policy(const wchar_t* value) { return {kLocalMachine, kSystemPolicies, value}; }

constexpr const wchar_t* kWelcomePicture = L"Image_UserLogin_Common_LoginInterface_xp";
constexpr const wchar_t* kClassicPicture = L"Image_UserLogin_Common_LoginInterface_Info";

TControlDesign CommonSheet() {
    return Sheet(
        L"TabSheet_UserLogin_Common", L"General",
        Group(L"GroupBox_UserLogin_Common_LoginInterface", L"Logon screen",
              Row(Image(kWelcomePicture, L"logon_welcome", 150, 100),
                  Image(kClassicPicture, L"logon_classic", 150, 100).Hidden(),
                  Column(RadioButton(L"Radio_UserLogin_Common_LoginInterface_XP", L"Use the &Welcome screen")
                             .Checked(),
                         RadioButton(L"Radio_UserLogin_Common_LoginInterface_2k",
                                     L"Use the &classic logon box")))),
        Group(
            L"GroupBox_UserLogin_Common_Set", L"Logon options",
            CheckBox(L"Checkbox_UserLogin_Common_Set_UserName", L"Do not display the &last user name"),
            CheckBox(L"Checkbox_UserLogin_Common_Set_PressCAD", L"&Require users to press Ctrl+Alt+Delete"),
            CheckBox(L"Checkbox_UserLogin_Common_Set_ShowShutdown",
                     L"Allow &shutting down without logging on"),
            CheckBox(L"Checkbox_UserLogin_Common_Set_EndTask",
                     L"When I log off, &end programs that do not respond"),
            CheckBox(L"Checkbox_UserLogin_Common_Set_LockScreen", L"Show the loc&k screen before the logon"),
            CheckBox(L"Checkbox_UserLogin_Common_Set_Blur", L"&Blur the picture of the logon screen")),
        Buttons(Button(L"Button_UserLogin_Common_Set_Default", L"&Default").Hidden()));
}

TControlDesign AutoLoginSheet() {
    return Sheet(
        L"TabSheet_UserLogin_AutoLogin", L"Automatic Logon",
        Group(L"GroupBox_UserLogin_AutoLogin_LoginInfo", L"Automatic logon",
              CheckBox(L"Checkbox_UserLogin_AutoLogin_ActiveAutoLogin", L"&Log on automatically"),
              Indent(Fields(Row(Label(L"Label_UserLogin_AutoLogin_LoginInfo_UserName", L"&User name:"),
                                Edit(L"Edit_UserLogin_AutoLogin_LoginInfo_UserName")),
                            Row(Label(L"Label_UserLogin_AutoLogin_LoginInfo_Password", L"&Password:"),
                                Edit(L"Edit_UserLogin_AutoLogin_LoginInfo_Password")),
                            Row(Label(L"Label_UserLogin_AutoLogin_LoginInfo_Domain", L"D&omain:"),
                                Edit(L"Edit_UserLogin_AutoLogin_LoginInfo_Domain"))))),
        Group(L"GroupBox_UserLogin_AutoLogin_Option", L"Options",
              CheckBox(L"Checkbox_UserLogin_AutoLogin_Option_SkipLogin",
                       L"Do not let &Shift stop automatic logon"),
              CheckBox(L"Checkbox_UserLogin_AutoLogin_Option_AutoLoginAfterLogoff",
                       L"Log on a&gain automatically after logging off")),
        Buttons(Button(L"Button_UserLogin_AutoLogin_Option_Default", L"&Default").Hidden()));
}

TControlDesign MessageSheet() {
    return Sheet(L"TabSheet_UserLogin_Message", L"Messages",
                 Group(L"GroupBox_UserLogin_Message_Notify", L"Message before logon",
                       CheckBox(L"Checkbox_UserLogin_Message_Notify_ActiveShowMessage",
                                L"&Show a message before users log on"),
                       Indent(Fields(Row(Label(L"Label_UserLogin_Message_Notify_Title", L"&Title:"),
                                         Edit(L"Edit_UserLogin_Message_Notify_Title")),
                                     Row(Label(L"Label_UserLogin_Message_Notify_Text", L"Te&xt:"),
                                         Edit(L"Edit_UserLogin_Message_Notify_Text"))))),
                 Group(L"GroupBox_UserLogin_Message_Logoff", L"Progress",
                       CheckBox(L"Checkbox_UserLogin_Message_Logoff_ActiveShow",
                                L"Show detailed &messages while logging on and off")),
                 Buttons(Button(L"Button_UserLogin_Message_Logoff_Default", L"&Default").Hidden()));
}

TControlDesign Design() {
    return NotebookPage(
        13, PageControl(L"PageControl_UserLogin", CommonSheet(), AutoLoginSheet(), MessageSheet()));
}

constexpr TBoxRecord kOneWhenChecked{.Checked = Dword(1), .Clear = Dword(0)};
constexpr TBoxFurther kOlderUserName[] = {{L"1", Winlogon(L"DontDisplayLastUserName"), kOneWhenChecked}};
constexpr TBoxFurther kOlderShutdown[] = {{L"1", Winlogon(L"ShutdownWithoutLogon"), kOneWhenChecked}};

constexpr TRow kCommonRows[] = {
    TRadioPairRow{.First = L"Radio_UserLogin_Common_LoginInterface_XP",
                  .Second = L"Radio_UserLogin_Common_LoginInterface_2k",
                  .ChangeName = L"RadLogonType",
                  .Value = Winlogon(L"LogonType"),
                  .FirstWhen = 1,
                  .FirstRecords = Dword(1),
                  .SecondRecords = Dword(0),
                  .LoadedOn = kUntilXp,
                  .FirstShows = kWelcomePicture,
                  .SecondShows = kClassicPicture,
                  .Levels = kUntilWindows7},
    // This option and the one for shutting down have an older place at Winlogon, spelled differently here.
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_UserName",
                 .Value = Policy(L"dontdisplaylastusername"),
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneWhenChecked,
                 .Further = kOlderUserName},
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_PressCAD",
                 .Value = Winlogon(L"DisableCAD"),
                 .Shows = {.When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
    // From Windows 8 on the policy decides, and without it the keys are not required.
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_PressCAD",
                 .Value = Policy(L"DisableCAD"),
                 .Shows = {.Missing = kClear, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kSinceWindows8},
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_ShowShutdown",
                 .Value = Policy(L"ShutdownWithoutLogon"),
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneWhenChecked,
                 .Further = kOlderShutdown},
    // Stands on another page too, which writes a text.
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_EndTask",
                 .Value = {kCurrentUser, kDesktop, L"AutoEndTasks"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneWhenChecked},
    On(kSinceWindows8, AllowedBox(L"Checkbox_UserLogin_Common_Set_LockScreen",
                                  {kLocalMachine, kLockScreenPolicies, L"NoLockScreen"}, 1)),
    On(SinceBuild(18362),
       AllowedBox(L"Checkbox_UserLogin_Common_Set_Blur",
                  {kLocalMachine, kWindowsPolicies, L"DisableAcrylicBackgroundOnLogon"}, 1)),
};

constexpr TTextRow TextRow(const TBoxField& field) { return {.Control = field.Edit, .Value = field.Value}; }

// Windows keeps the password as it is typed.
constexpr TBoxField kUserName{L"Edit_UserLogin_AutoLogin_LoginInfo_UserName", Winlogon(L"DefaultUserName"),
                              L"1", L"xxxxxx"};
constexpr TBoxField kPassword{L"Edit_UserLogin_AutoLogin_LoginInfo_Password", Winlogon(L"DefaultPassword"),
                              L"2", L""};
constexpr TBoxField kDomain{L"Edit_UserLogin_AutoLogin_LoginInfo_Domain", Winlogon(L"DefaultDomainName"),
                            L"3", nullptr};
constexpr TBoxField kCredentials[] = {kUserName, kPassword, kDomain};

constexpr TBoxRule kClearWhenZero{.When = {{L"0", kClear}}, .Otherwise = kChecked};
constexpr TBoxRecord kTextOneWhenChecked{.Checked = Text(L"1"), .Clear = Text(L"0")};
constexpr TRow kAutoLoginRows[] = {
    TFieldsRow{.Control = L"Checkbox_UserLogin_AutoLogin_ActiveAutoLogin",
               .Value = Winlogon(L"AutoAdminLogon"),
               .Shows = {.Missing = kClear, .When = {{L"1", kChecked}}, .Otherwise = kClear},
               .Records = kTextOneWhenChecked,
               .Fields = kCredentials},
    TextRow(kUserName),
    TextRow(kPassword),
    TextRow(kDomain),
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_AutoLogin_Option_SkipLogin",
                 .Value = Winlogon(L"IgnoreShiftOverride"),
                 .Shows = kClearWhenZero,
                 .Records = kTextOneWhenChecked},
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_AutoLogin_Option_AutoLoginAfterLogoff",
                 .Value = Winlogon(L"ForceAutoLogon"),
                 .Shows = kClearWhenZero,
                 .Records = kTextOneWhenChecked},
};

constexpr TBoxField kNoticeTitle{L"Edit_UserLogin_Message_Notify_Title", Winlogon(L"LegalNoticeCaption"), L"",
                                 L""};
constexpr TBoxField kNoticeText{L"Edit_UserLogin_Message_Notify_Text", Winlogon(L"LegalNoticeText"), L"1",
                                L""};
constexpr TBoxField kNoticeFields[] = {kNoticeTitle, kNoticeText};

constexpr TRow kMessageRows[] = {
    TFieldsRow{.Control = L"Checkbox_UserLogin_Message_Notify_ActiveShowMessage",
               .Value = kNoticeTitle.Value,
               .Shows = {.Missing = kClear, .Otherwise = kChecked},
               .Fields = kNoticeFields},
    TextRow(kNoticeTitle),
    TextRow(kNoticeText),
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Message_Logoff_ActiveShow",
                 .Value = Policy(L"verbosestatus"),
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneWhenChecked},
};

constexpr TLoader kLoaders[] = {kCommonRows, kAutoLoginRows, kMessageRows};

constexpr const wchar_t* kAutoLogonOptions[] = {L"Checkbox_UserLogin_AutoLogin_Option_SkipLogin",
                                                L"Checkbox_UserLogin_AutoLogin_Option_AutoLoginAfterLogoff"};
constexpr const wchar_t* kLogonBoxOptions[] = {L"Checkbox_UserLogin_Common_Set_UserName",
                                               L"Checkbox_UserLogin_Common_Set_PressCAD"};
constexpr TNeed kNeeds[] = {
    {.Controls = kAutoLogonOptions, .Of = L"Checkbox_UserLogin_AutoLogin_ActiveAutoLogin", .Disables = false},
    // The Welcome screen shows the names and does without the keys.
    {.Controls = kLogonBoxOptions,
     .Of = L"Radio_UserLogin_Common_LoginInterface_2k",
     .Disables = false,
     .Levels = kOnlyXp},
};

constexpr TPageDefinition kPage{
    .Tag = 13, .Design = Design, .Loaders = kLoaders, .Presets = {}, .Needs = kNeeds, .ShowsPending = true};

}  // namespace

const TPageDefinition& UserLogonPage() { return kPage; }
