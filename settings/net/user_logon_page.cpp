#include "settings/net/user_logon_page.h"

#include "engine/reg_value.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kWinlogon = L"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\";
constexpr const wchar_t* kSystemPolicies =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\system\\";
constexpr const wchar_t* kDesktop = L"\\Control Panel\\Desktop\\";

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
        Group(L"GroupBox_UserLogin_Common_Set", L"Logon options",
              CheckBox(L"Checkbox_UserLogin_Common_Set_UserName", L"Do not display the &last user name"),
              CheckBox(L"Checkbox_UserLogin_Common_Set_PressCAD", L"&Require users to press Ctrl+Alt+Delete"),
              CheckBox(L"Checkbox_UserLogin_Common_Set_ShowShutdown",
                       L"Allow &shutting down without logging on"),
              CheckBox(L"Checkbox_UserLogin_Common_Set_EndTask",
                       L"When I log off, &end programs that do not respond")),
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
                       L"&Ignore the Shift key, which else prevents the automatic logon"),
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
                 Group(L"GroupBox_UserLogin_Message_Logoff", L"Status messages",
                       CheckBox(L"Checkbox_UserLogin_Message_Logoff_ActiveShow",
                                L"Show detailed &messages while logging on and off")),
                 Buttons(Button(L"Button_UserLogin_Message_Logoff_Default", L"&Default").Hidden()));
}

TControlDesign Design() {
    return NotebookPage(
        13, PageControl(L"PageControl_UserLogin", CommonSheet(), AutoLoginSheet(), MessageSheet()));
}

constexpr const wchar_t* kLogonScreens[] = {L"Radio_UserLogin_Common_LoginInterface_XP",
                                            L"Radio_UserLogin_Common_LoginInterface_2k"};

void ShowLogonScreen(const TPageContext& context, bool isWelcome) {
    context.Form.Find(kWelcomePicture)->SetVisible(isWelcome);
    context.Form.Find(kClassicPicture)->SetVisible(!isWelcome);
}

// Special because a picture shows what is chosen.
void LoadLogonScreen(TPageContext& context, const TSpecialRow& row) {
    const auto value = Stored(context, row.Value);
    if (!value) return;
    const bool isWelcome = AsInteger(*value) == 1;
    context.Form.Find<TRadioButton>(kLogonScreens[isWelcome ? 0 : 1])->SetChecked(true);
    ShowLogonScreen(context, isWelcome);
}

void RecordLogonScreen(TPageContext& context, const TSpecialRow& row, TComponent& /*sender*/) {
    const bool isWelcome = context.Form.Find<TRadioButton>(kLogonScreens[0])->Checked();
    RecordNumber(context, L"RadLogonType", row.Value, isWelcome ? 1 : 0);
    ShowLogonScreen(context, isWelcome);
}

constexpr TBoxRecord kOneWhenChecked{.Checked = Dword(1), .Clear = Dword(0)};
constexpr TRow kCommonRows[] = {
    TSpecialRow{.Controls = kLogonScreens,
                .Value = Winlogon(L"LogonType"),
                .Rule = L"1: the first; else the second; missing: unchanged; writes 1 or 0",
                .Load = LoadLogonScreen,
                .Record = RecordLogonScreen,
                .LoadedOn = kUntilXp},
    // This option and the one for shutting down have an older place at Winlogon, spelled differently here.
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_UserName",
                 .Value = Policy(L"dontdisplaylastusername"),
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneWhenChecked,
                 .Further = TBoxFurther{.Suffix = L"1",
                                        .Value = Winlogon(L"DontDisplayLastUserName"),
                                        .Records = kOneWhenChecked}},
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_PressCAD",
                 .Value = Winlogon(L"DisableCAD"),
                 .Shows = {.When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_ShowShutdown",
                 .Value = Policy(L"ShutdownWithoutLogon"),
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneWhenChecked,
                 .Further = TBoxFurther{.Suffix = L"1",
                                        .Value = Winlogon(L"ShutdownWithoutLogon"),
                                        .Records = kOneWhenChecked}},
    // Stands on another page too, which writes a text.
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Common_Set_EndTask",
                 .Value = {kCurrentUser, kDesktop, L"AutoEndTasks"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneWhenChecked},
};

/// An edit and the value that it holds.
struct TField {
    const wchar_t* Edit;
    TPlace Value;
};

constexpr TTextRow TextRow(const TField& field) { return {.Control = field.Edit, .Value = field.Value}; }

TEdit& EditOf(const TPageContext& context, const TField& field) {
    return *context.Form.Find<TEdit>(field.Edit);
}

void EnableFields(const TPageContext& context, std::span<const TField> fields, bool enabled) {
    for (const TField& field : fields) EditOf(context, field).SetEnabled(enabled);
}

void ShowBoxWithFields(const TPageContext& context, const TSpecialRow& row, std::span<const TField> fields,
                       bool checked) {
    context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(checked);
    EnableFields(context, fields, checked);
}

/// Deletes the value. If a write is recorded under that name already, it remains a write, and of `text`.
void RecordDeletion(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                    const std::wstring& text) {
    TRegRecor record = RecordAt(place, changeName);
    record.Action = TRegAction::DeleteValue;
    record.Value = text;
    AddChange(context, std::move(record));
}

constexpr const wchar_t* kAutoLogon[] = {L"Checkbox_UserLogin_AutoLogin_ActiveAutoLogin"};
// Windows keeps the password as it is typed.
constexpr TField kUserName{L"Edit_UserLogin_AutoLogin_LoginInfo_UserName", Winlogon(L"DefaultUserName")};
constexpr TField kPassword{L"Edit_UserLogin_AutoLogin_LoginInfo_Password", Winlogon(L"DefaultPassword")};
constexpr TField kDomain{L"Edit_UserLogin_AutoLogin_LoginInfo_Domain", Winlogon(L"DefaultDomainName")};
constexpr TField kCredentials[] = {kUserName, kPassword, kDomain};

// Special because the box writes or deletes the three fields' values beside its own.
void LoadAutoLogon(TPageContext& context, const TSpecialRow& row) {
    const auto value = Stored(context, row.Value);
    ShowBoxWithFields(context, row, kCredentials, value && AsText(*value) == L"1");
}

void RecordAutoLogon(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const bool checked = static_cast<TCheckBox&>(sender).Checked();
    const std::wstring& name = sender.Name();
    EnableFields(context, kCredentials, checked);
    RecordText(context, name, row.Value, checked ? L"1" : L"0");
    if (checked) {
        RecordText(context, name + L"1", kUserName.Value, EditOf(context, kUserName).Text());
        RecordText(context, name + L"2", kPassword.Value, EditOf(context, kPassword).Text());
        RecordText(context, name + L"3", kDomain.Value, EditOf(context, kDomain).Text());
    } else {
        RecordDeletion(context, name + L"1", kUserName.Value, L"xxxxxx");
        RecordDeletion(context, name + L"2", kPassword.Value, L"");
        RecordDeletion(context, name + L"3", kDomain.Value, EditOf(context, kDomain).Text());
    }
}

constexpr TBoxRule kClearWhenZero{.When = {{L"0", kClear}}, .Otherwise = kChecked};
constexpr TBoxRecord kTextOneWhenChecked{.Checked = Text(L"1"), .Clear = Text(L"0")};
constexpr TRow kAutoLoginRows[] = {
    TSpecialRow{.Controls = kAutoLogon,
                .Value = Winlogon(L"AutoAdminLogon"),
                .Rule = L"checked when \"1\", else clear; writes 1 and the three fields' texts, or 0 and "
                        L"deletes their values",
                .Load = LoadAutoLogon,
                .Record = RecordAutoLogon},
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

constexpr const wchar_t* kNotice[] = {L"Checkbox_UserLogin_Message_Notify_ActiveShowMessage"};
constexpr TField kNoticeTitle{L"Edit_UserLogin_Message_Notify_Title", Winlogon(L"LegalNoticeCaption")};
constexpr TField kNoticeText{L"Edit_UserLogin_Message_Notify_Text", Winlogon(L"LegalNoticeText")};
constexpr TField kNoticeFields[] = {kNoticeTitle, kNoticeText};

// Special because the box has no value of its own: it writes or deletes those of its fields.
void LoadNotice(TPageContext& context, const TSpecialRow& row) {
    ShowBoxWithFields(context, row, kNoticeFields, Stored(context, row.Value).has_value());
}

void RecordNotice(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    const bool checked = static_cast<TCheckBox&>(sender).Checked();
    EnableFields(context, kNoticeFields, checked);
    const auto record = [&](const std::wstring& changeName, const TField& field) {
        if (checked)
            RecordText(context, changeName, field.Value, EditOf(context, field).Text());
        else
            RecordDeletion(context, changeName, field.Value, L"");
    };
    record(sender.Name(), kNoticeTitle);
    record(sender.Name() + L"1", kNoticeText);
}

constexpr TRow kMessageRows[] = {
    TSpecialRow{.Controls = kNotice,
                .Value = kNoticeTitle.Value,
                .Rule = L"checked unless missing; writes the two fields' texts, or deletes this value and "
                        L"`LegalNoticeText`",
                .Load = LoadNotice,
                .Record = RecordNotice},
    TextRow(kNoticeTitle),
    TextRow(kNoticeText),
    TCheckBoxRow{.Control = L"Checkbox_UserLogin_Message_Logoff_ActiveShow",
                 .Value = Policy(L"verbosestatus"),
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneWhenChecked},
};

constexpr TLoader kLoaders[] = {kCommonRows, kAutoLoginRows, kMessageRows};

constexpr TPageDefinition kPage{.Tag = 13,
                                .SharedHandler = L"Checkbox_UserLogin_Common_Set_UserNameClick",
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = {},
                                .ShowsPending = true};

}  // namespace

const TPageDefinition& UserLogonPage() { return kPage; }
