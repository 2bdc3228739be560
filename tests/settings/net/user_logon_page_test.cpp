#include "settings/net/user_logon_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kWelcome = L"Radio_UserLogin_Common_LoginInterface_XP";
constexpr const wchar_t* kClassic = L"Radio_UserLogin_Common_LoginInterface_2k";
constexpr const wchar_t* kLastName = L"Checkbox_UserLogin_Common_Set_UserName";
constexpr const wchar_t* kPressCad = L"Checkbox_UserLogin_Common_Set_PressCAD";
constexpr const wchar_t* kShutdown = L"Checkbox_UserLogin_Common_Set_ShowShutdown";
constexpr const wchar_t* kEndTask = L"Checkbox_UserLogin_Common_Set_EndTask";
constexpr const wchar_t* kAutoLogon = L"Checkbox_UserLogin_AutoLogin_ActiveAutoLogin";
constexpr const wchar_t* kUser = L"Edit_UserLogin_AutoLogin_LoginInfo_UserName";
constexpr const wchar_t* kPassword = L"Edit_UserLogin_AutoLogin_LoginInfo_Password";
constexpr const wchar_t* kDomain = L"Edit_UserLogin_AutoLogin_LoginInfo_Domain";
constexpr const wchar_t* kSkip = L"Checkbox_UserLogin_AutoLogin_Option_SkipLogin";
constexpr const wchar_t* kAgain = L"Checkbox_UserLogin_AutoLogin_Option_AutoLoginAfterLogoff";
constexpr const wchar_t* kNotice = L"Checkbox_UserLogin_Message_Notify_ActiveShowMessage";
constexpr const wchar_t* kTitle = L"Edit_UserLogin_Message_Notify_Title";
constexpr const wchar_t* kText = L"Edit_UserLogin_Message_Notify_Text";
constexpr const wchar_t* kVerbose = L"Checkbox_UserLogin_Message_Logoff_ActiveShow";

#define WINLOGON L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\"
#define POLICIES L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\system\\"

constexpr TPlace Winlogon(const wchar_t* value) { return {kLocalMachine, L"\\" WINLOGON, value}; }
constexpr TPlace Policy(const wchar_t* value) { return {kLocalMachine, L"\\" POLICIES, value}; }
constexpr TPlace kAutoEndTasks{kCurrentUser, L"\\Control Panel\\Desktop\\", L"AutoEndTasks"};

class TLogonBench : public TPageBench {
  public:
    TLogonBench() : TPageBench(UserLogonPage()) {}

    bool Enabled(const wchar_t* name) { return Get<TControl>(name).Enabled(); }
    bool Shown(const wchar_t* name) { return Get<TControl>(name).Visible(); }
    /// Writes the changes and tells the value at Winlogon: a text in quotes, "-" when there is none.
    std::wstring Written(const wchar_t* value) {
        Context.Changes.WriteAll();
        const TRegistryData* data = Fake.Registry.Find({kLocalMachine, L"\\" WINLOGON, value});
        return data == nullptr ? L"-" : L'"' + std::get<std::wstring>(data->Value) + L'"';
    }
};

TEST(TUserLogonPage, ShowsWhatIsStored) {
    const TShownCase cases[] = {
        {kClassic, Winlogon(L"LogonType"), Number(0), L"on", 5},
        {kClassic, Winlogon(L"LogonType"), Number(0), L"kept", 6},
        {kLastName, Policy(L"dontdisplaylastusername"), Number(1), L"on"},
        {kPressCad, Winlogon(L"DisableCAD"), Number(0), L"on"},
        {kEndTask, kAutoEndTasks, std::nullopt, L"on"},
        {kEndTask, kAutoEndTasks, String(L"1"), L"on"},
        {kEndTask, kAutoEndTasks, String(L"0"), L"off"},
        {kAutoLogon, Winlogon(L"AutoAdminLogon"), String(L"1"), L"on"},
        {kAutoLogon, Winlogon(L"AutoAdminLogon"), String(L"01"), L"off"},
        {kPassword, Winlogon(L"DefaultPassword"), String(L"secret"), L"secret"},
        {kSkip, Winlogon(L"IgnoreShiftOverride"), String(L""), L"on"},
        {kSkip, Winlogon(L"IgnoreShiftOverride"), std::nullopt, L"kept"},
        {kAgain, Winlogon(L"ForceAutoLogon"), String(L"0"), L"off"},
        {kNotice, Winlogon(L"LegalNoticeCaption"), String(L""), L"on"},
        {kText, Winlogon(L"LegalNoticeText"), String(L"text"), L"text"},
    };
    ExpectShown(UserLogonPage(), cases);
}

TEST(TUserLogonPage, RecordsWhatEachStateStandsFor) {
    const auto line = [](const wchar_t* name, const wchar_t* rest) { return name + std::wstring(rest); };
    const TRecordedCase cases[] = {
        {kClassic, L"on", {L"RadLogonType: HKLM\\" WINLOGON L"[LogonType] = 0"}},
        {kLastName,
         L"on",
         {line(kLastName, L": HKLM\\" POLICIES L"[dontdisplaylastusername] = 1"),
          line(kLastName, L"1: HKLM\\" WINLOGON L"[DontDisplayLastUserName] = 1")}},
        {kPressCad, L"off", {line(kPressCad, L": HKLM\\" WINLOGON L"[DisableCAD] = 1")}},
        {kShutdown,
         L"off",
         {line(kShutdown, L": HKLM\\" POLICIES L"[ShutdownWithoutLogon] = 0"),
          line(kShutdown, L"1: HKLM\\" WINLOGON L"[ShutdownWithoutLogon] = 0")}},
        {kEndTask, L"on", {line(kEndTask, L": HKCU\\Control Panel\\Desktop\\[AutoEndTasks] = 1")}},
        {kPassword, L"secret", {line(kPassword, L": HKLM\\" WINLOGON L"[DefaultPassword] = \"secret\"")}},
        {kSkip, L"on", {line(kSkip, L": HKLM\\" WINLOGON L"[IgnoreShiftOverride] = \"1\"")}},
        {kAgain, L"off", {line(kAgain, L": HKLM\\" WINLOGON L"[ForceAutoLogon] = \"0\"")}},
        {kTitle, L"title", {line(kTitle, L": HKLM\\" WINLOGON L"[LegalNoticeCaption] = \"title\"")}},
        {kNotice,
         L"on",
         {line(kNotice, L": HKLM\\" WINLOGON L"[LegalNoticeCaption] = \"\""),
          line(kNotice, L"1: HKLM\\" WINLOGON L"[LegalNoticeText] = \"\"")}},
        {kNotice,
         L"off",
         {line(kNotice, L": delete HKLM\\" WINLOGON L"[LegalNoticeCaption]"),
          line(kNotice, L"1: delete HKLM\\" WINLOGON L"[LegalNoticeText]")}},
        {kVerbose, L"off", {line(kVerbose, L": HKLM\\" POLICIES L"[verbosestatus] = 0")}},
    };
    ExpectRecorded(UserLogonPage(), cases);
}

TEST(TUserLogonPage, APictureShowsTheLogonScreen) {
    constexpr const wchar_t* kWelcomePicture = L"Image_UserLogin_Common_LoginInterface_xp";
    constexpr const wchar_t* kClassicPicture = L"Image_UserLogin_Common_LoginInterface_Info";
    TLogonBench bench;
    bench.Context.WindowsLevel = 5;
    bench.Store(Winlogon(L"LogonType"), 0);
    bench.Load();
    EXPECT_FALSE(bench.Shown(kWelcomePicture));
    EXPECT_TRUE(bench.Shown(kClassicPicture));
    bench.Click(kWelcome, true);
    EXPECT_TRUE(bench.Shown(kWelcomePicture));
    EXPECT_FALSE(bench.Shown(kClassicPicture));
    EXPECT_EQ(bench.Pending(),
              std::vector<std::wstring>{L"RadLogonType: HKLM\\" WINLOGON L"[LogonType] = 1"});
}

TEST(TUserLogonPage, ShowsChangesOfOtherPagesThatAreNotWritten) {
    TLogonBench bench;
    bench.Store(kAutoEndTasks, String(L"1"));
    TRegRecor change;
    change.Name = L"Radio_Startup_Exit_AutoClose_AutoClose";
    change.RootKey = TRootKey::CurrentUser;
    change.Key = L"\\Control Panel\\Desktop";
    change.ValueName = L"AutoEndTasks";
    change.DataType = TRegDataType::String;
    change.Value = L"0";
    bench.Context.Changes.Add(change);
    bench.Load();
    EXPECT_FALSE(bench.Checked(kEndTask));
}

TEST(TUserLogonPage, FieldsAreOfUseWhileTheirBoxIsChecked) {
    TLogonBench bench;
    bench.Load();
    for (const wchar_t* field : {kUser, kPassword, kDomain, kTitle, kText})
        EXPECT_FALSE(bench.Enabled(field));
    bench.Click(kAutoLogon, true);
    bench.Click(kNotice, true);
    for (const wchar_t* field : {kUser, kPassword, kDomain, kTitle, kText}) EXPECT_TRUE(bench.Enabled(field));
    bench.Click(kAutoLogon, false);
    bench.Click(kNotice, false);
    for (const wchar_t* field : {kUser, kPassword, kDomain, kTitle, kText})
        EXPECT_FALSE(bench.Enabled(field));
}

TEST(TUserLogonPage, AutomaticLogonOnAndOffAgainWritesOverTheCredentials) {
    TLogonBench bench;
    bench.Store(Winlogon(L"DefaultPassword"), String(L"old"));
    bench.Load();
    EXPECT_FALSE(bench.Get<TEdit>(kPassword).Password) << "the text is not masked";
    bench.Act(kDomain, L"home");
    bench.Click(kAutoLogon, true);
    EXPECT_EQ(bench.Pending()[3],
              kAutoLogon + std::wstring(L"2: HKLM\\" WINLOGON L"[DefaultPassword] = \"old\""));
    bench.Click(kAutoLogon, false);
    EXPECT_EQ(bench.Pending().size(), 5u);
    EXPECT_EQ(bench.Written(L"AutoAdminLogon"), L"\"0\"");
    EXPECT_EQ(bench.Written(L"DefaultUserName"), L"\"xxxxxx\"");
    EXPECT_EQ(bench.Written(L"DefaultPassword"), L"\"\"");
    EXPECT_EQ(bench.Written(L"DefaultDomainName"), L"\"home\"");
    EXPECT_TRUE(bench.Fake.Shell.DebugTexts().empty()) << "no debugger learns the password";
}

TEST(TUserLogonPage, AutomaticLogonOffAndOnAgainDeletesTheCredentials) {
    TLogonBench bench;
    bench.Store(Winlogon(L"AutoAdminLogon"), String(L"1"));
    for (const wchar_t* value : {L"DefaultUserName", L"DefaultPassword", L"DefaultDomainName"})
        bench.Store(Winlogon(value), String(L"old"));
    bench.Load();
    bench.Click(kAutoLogon, false);
    bench.Click(kAutoLogon, true);
    bench.Act(kUser, L"m");
    bench.Act(kUser, L"me");
    EXPECT_EQ(bench.Written(L"AutoAdminLogon"), L"\"1\"");
    EXPECT_EQ(bench.Written(L"DefaultUserName"), L"\"me\"") << "typed after the deletion, written after it";
    EXPECT_EQ(bench.Written(L"DefaultPassword"), L"-");
    EXPECT_EQ(bench.Written(L"DefaultDomainName"), L"-");
}

TEST(TUserLogonPage, TheDefaultButtonsAreHiddenAndDoNothing) {
    TLogonBench bench;
    for (const wchar_t* button :
         {L"Button_UserLogin_Common_Set_Default", L"Button_UserLogin_AutoLogin_Option_Default",
          L"Button_UserLogin_Message_Logoff_Default"}) {
        EXPECT_FALSE(bench.Shown(button));
        bench.Act(button, L"");
    }
    EXPECT_EQ(bench.Recorded, 0);
}

}  // namespace
