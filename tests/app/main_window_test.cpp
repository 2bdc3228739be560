#include "app/main_window.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "platform/faults.h"
#include "tests/fakes/fake_system.h"

namespace {

constexpr const wchar_t* kLastAccess = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
constexpr const wchar_t* kUdma = L"Checkbox_Drives_Common_Enable";
constexpr const wchar_t* kBlink = L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing";
constexpr const wchar_t* kDriverItem = L"RzGroup_Communication.Items[3]";
constexpr const wchar_t* kFileSystem = L"System\\CurrentControlSet\\Control\\FileSystem";

class TMainWindow : public testing::Test {
  protected:
    /// Creates the window on a Windows of that version.
    void Create(std::uint32_t major, std::uint32_t minor) {
        Fake.Windows.SetVersion({.PlatformId = 2, .Major = major, .Minor = minor});
        Fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Users\\Me\\AppData");
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
    }
    /// Creates and shows it, and lets the timers tick until it is ready.
    void Open(std::uint32_t major = 6, std::uint32_t minor = 1) {
        Create(major, minor);
        Window->Show();
        Tick(L"Timer_Click");
        Tick(L"Timer_Loading");
    }
    void Tick(const wchar_t* timer) { Get<TTimer>(timer).Tick(); }
    void Click(const wchar_t* item) { Get<TCategoryItem>(item).Click(); }
    void Press(const wchar_t* button) { Get<TButton>(button).Click(); }
    /// Presses Apply, which is enabled by a recorded change.
    void Apply() {
        Window->Find(L"Button_Apply")->SetEnabled(true);
        Press(L"Button_Apply");
    }
    void Toggle(const wchar_t* box) { Get<TCheckBox>(box).SetChecked(!Get<TCheckBox>(box).Checked()); }
    bool Enabled(const wchar_t* name) { return Window->Find(name)->Enabled(); }
    std::optional<std::int32_t> LastAccess() const {
        const TRegistryData* data =
            Fake.Registry.Find({TRootKey::LocalMachine, kFileSystem, L"NtfsDisableLastAccessUpdate"});
        return data == nullptr ? std::nullopt : std::optional(std::get<std::int32_t>(data->Value));
    }
    /// The marks that the pages set, which later pages reach through their own context.
    TPageContext& Marks() { return const_cast<TPageContext&>(Window->Context()); }

    template <typename T>
    T& Get(const wchar_t* name) {
        return *Window->Find<T>(name);
    }

    TFakeSystem Fake;
    std::unique_ptr<TQuilltune_FormMain> Window;
};

TEST_F(TMainWindow, OpensWithTheGeneralSettingsAndNothingToApply) {
    Create(6, 1);
    EXPECT_EQ(Fake.Shell.DebugTexts(), std::vector<std::wstring>{L"OsName:Windows 7"});
    Window->Show();
    for (const wchar_t* button : {L"Button_OK", L"Button_Cancel", L"Button_Apply"})
        EXPECT_FALSE(Enabled(button));
    EXPECT_TRUE(Window->Find(L"Panel_Loading")->Visible());

    Tick(L"Timer_Loading");
    EXPECT_EQ(Get<TImage>(L"ImageNote_Animate").Frame(), 1);
    EXPECT_EQ(Window->Find(L"Label_Wait")->Caption(), L"Loading system settings..");
    EXPECT_TRUE(Window->Find(L"Panel_Loading")->Visible()) << "not before the first page is loaded";

    Tick(L"Timer_Click");
    EXPECT_EQ(Get<TNotebook>(L"Notebook_Main").ActivePage()->Name(), L"19");
    EXPECT_TRUE(Get<TCategoryItem>(L"RzGroup_CommonSettings.Items[0]").Selected());
    Tick(L"Timer_Click");  // runs once
    Tick(L"Timer_Loading");
    EXPECT_FALSE(Window->Find(L"Panel_Loading")->Visible());
    EXPECT_TRUE(Enabled(L"Button_OK"));
    EXPECT_TRUE(Enabled(L"Button_Cancel"));
    EXPECT_FALSE(Enabled(L"Button_Apply"));
    EXPECT_FALSE(Enabled(L"Timer_Loading"));
}

TEST_F(TMainWindow, TheAnimationHasSevenFrames) {
    Create(6, 1);
    Window->Show();
    for (int i = 0; i < 7; ++i) Tick(L"Timer_Loading");
    EXPECT_EQ(Get<TImage>(L"ImageNote_Animate").Frame(), 0);
    EXPECT_EQ(Window->Find(L"Label_Wait")->Caption(), L"Loading system settings.");
}

TEST_F(TMainWindow, KnowsTheWindowsLevel) {
    struct TCase {
        std::uint32_t Major;
        std::uint32_t Minor;
        int Level;
    };
    for (const TCase& c :
         {TCase{5, 0, 4}, {5, 1, 5}, {5, 2, 0}, {6, 0, 6}, {6, 1, 7}, {6, 2, 0}, {10, 0, 0}}) {
        Create(c.Major, c.Minor);
        EXPECT_EQ(Window->Context().WindowsLevel, c.Level);
        EXPECT_EQ(Window->Find(L"RzGroup_Use.Items[1]")->Visible(), c.Level >= 5);
    }
}

TEST_F(TMainWindow, TheSelectedItemHasItsOwnColor) {
    Open();
    auto& general = Get<TCategoryItem>(L"RzGroup_CommonSettings.Items[0]");
    auto& driver = Get<TCategoryItem>(kDriverItem);
    EXPECT_EQ(general.Color(), 0xC65D21u);
    EXPECT_EQ(driver.Color(), 0xC56A31u);
    EXPECT_EQ(Get<TCategoryItem>(L"RzGroup_Others.Items[0]").Color(), 0xC56A31u);
    Click(kDriverItem);
    Click(kDriverItem);
    EXPECT_EQ(general.Color(), 0xC56A31u);
    EXPECT_FALSE(general.Selected());
    EXPECT_EQ(driver.Color(), 0xC65D21u);
    EXPECT_TRUE(driver.Selected());
    EXPECT_EQ(Get<TNotebook>(L"Notebook_Main").ActivePage()->Name(), L"14");
}

TEST_F(TMainWindow, APageIsLoadedOnItsFirstVisitOnly) {
    Fake.Registry.Put({TRootKey::LocalMachine, kFileSystem, L"NtfsDisableLastAccessUpdate"},
                      {TRegDataType::Dword, 1});
    Open();
    Click(kDriverItem);
    EXPECT_FALSE(Get<TCheckBox>(kLastAccess).Checked());
    EXPECT_FALSE(Enabled(L"Button_Apply")) << "loading is no change";
    Toggle(kLastAccess);
    Click(L"RzGroup_Communication.Items[4]");
    Click(kDriverItem);
    EXPECT_TRUE(Get<TCheckBox>(kLastAccess).Checked()) << "the user's change is still there";
}

TEST_F(TMainWindow, ApplyWritesAndCancelDoesNot) {
    Open();
    Click(kDriverItem);
    Toggle(kLastAccess);
    EXPECT_TRUE(Enabled(L"Button_Apply"));
    EXPECT_EQ(LastAccess(), std::nullopt);
    Press(L"Button_Apply");
    EXPECT_EQ(LastAccess(), 1);
    EXPECT_FALSE(Enabled(L"Button_Apply"));
    EXPECT_EQ(Fake.Shell.Notifications(), (std::vector<TShellNotification>{{0x7FFFFFFF, 0x1000}}));
    EXPECT_TRUE(Fake.Dialogs.Questions().empty());

    Toggle(kLastAccess);
    Press(L"Button_Cancel");
    EXPECT_EQ(LastAccess(), 1);
    EXPECT_TRUE(Window->Closed());
}

TEST_F(TMainWindow, OkAppliesAndCloses) {
    Open();
    Click(kDriverItem);
    Toggle(kLastAccess);
    Press(L"Button_OK");
    EXPECT_EQ(LastAccess(), 1);
    EXPECT_TRUE(Window->Closed());
}

TEST_F(TMainWindow, AsksForARestartOnceForEachChangeThatNeedsIt) {
    Open();
    Click(kDriverItem);
    Toggle(kUdma);
    Fake.Dialogs.Answer(TMessageAnswer::No);
    Press(L"Button_Apply");
    const TQuestion question{L"Quilltune", L"Need to restart Windows to take effect, restart now?",
                             TMessageButtons::YesNo, TMessageIcon::Question};
    EXPECT_EQ(Fake.Dialogs.Questions(), std::vector{question});
    EXPECT_EQ(Fake.Shell.Restarts(), 0);

    Toggle(kLastAccess);
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Dialogs.Questions().size(), 1u) << "No was the answer to the earlier change";

    Toggle(kUdma);
    Fake.Dialogs.Answer(TMessageAnswer::Yes);
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Shell.Restarts(), 1);
}

TEST_F(TMainWindow, ApplySwitchesServicesAndTellsTheShellOfAssociations) {
    for (const bool vista : {false, true}) {
        Open(vista ? 6 : 5, vista ? 0 : 1);
        Fake.Services.Put(L"wscsvc", {.State = TServiceState::Running});
        Fake.Services.Put(L"MpsSvc", {});
        Marks().SecurityCenterAction = TServiceAction::Disable;
        Marks().FirewallAction = TServiceAction::Enable;
        Marks().AssociationsChanged = true;
        Apply();
        Apply();
    }
    EXPECT_EQ(Fake.Services.Service(L"wscsvc").StartType, TServiceStartType::Disabled);
    EXPECT_EQ(Fake.Services.Service(L"wscsvc").State, TServiceState::Stopped);
    EXPECT_EQ(Fake.Services.Service(L"MpsSvc").State, TServiceState::Running);
    const auto& log = Fake.Services.Log();
    EXPECT_EQ(std::ranges::count_if(log, [](const auto& e) { return e.Call == TServiceCall::Start; }), 1)
        << "on XP the firewall is left alone";
    EXPECT_EQ(
        std::ranges::count_if(log, [](const auto& e) { return e.Call == TServiceCall::ChangeStartType; }), 3);
    EXPECT_EQ(Fake.Services.OpenHandles(), 0u);
    const auto associations = TShellNotification{0x08000000, 0};
    EXPECT_EQ(std::ranges::count(Fake.Shell.Notifications(), associations), 2);
}

TEST_F(TMainWindow, SavesFirefoxPreferencesOnlyWhenTheyWereLoadedAndChanged) {
    const std::wstring firefox = L"C:\\Users\\Me\\AppData\\Mozilla\\Firefox\\";
    const std::wstring userFile = firefox + L"a\\user.js";
    Fake.Files.PutText(firefox + L"profiles.ini", "[Profile0]\nIsRelative=1\nPath=a\n");
    Fake.Files.PutText(userFile, "user_pref(\"b\", 1);\r\n");
    Open();
    Marks().FirefoxChanged = true;
    Apply();
    EXPECT_TRUE(Fake.Dialogs.Questions().empty()) << "nothing was loaded";

    Marks().Firefox.LoadFirefoxPrefs();
    Marks().Firefox.SetFirefoxPref(L"\"b\"", L"2");
    Press(L"Button_OK");
    EXPECT_TRUE(Fake.Files.Replaced().empty()) << "no page said that something changed";

    Marks().FirefoxChanged = true;
    Fake.Files.FailReplace(1);
    EXPECT_THROW(Apply(), std::runtime_error);
    EXPECT_TRUE(Enabled(L"Button_Apply"));
    Apply();
    EXPECT_EQ(Fake.Files.Text(userFile), "user_pref(\"b\", 2);\r\n");
    const TQuestion message{L"Quilltune", L"Need to restart Firefox to take effect.", TMessageButtons::Ok,
                            TMessageIcon::None};
    EXPECT_EQ(Fake.Dialogs.Questions(), std::vector{message});
    EXPECT_FALSE(Window->Context().FirefoxChanged);
}

/// Makes an installed Firefox whose profile holds the preferences.
void InstallFirefox(TFakeSystem& fake, std::string_view prefs) {
    fake.Registry.PutKey(TRootKey::LocalMachine,
                         L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
    const std::wstring firefox = L"C:\\Users\\Me\\AppData\\Mozilla\\Firefox\\";
    fake.Files.PutText(firefox + L"profiles.ini", "[Profile0]\nIsRelative=1\nPath=a\n");
    fake.Files.PutText(firefox + L"a\\user.js", prefs);
}

TEST_F(TMainWindow, AFaultWhileAPageLoadsEndsItsLoaderOnly) {
    InstallFirefox(Fake,
                   "user_pref(\"browser.blink_allowed\", false);"
                   "user_pref(\"browser.tabs.closeButtons\", \"1\");"
                   "user_pref(\"browser.tabs.tabMinWidth\", 100);");
    Open();
    EXPECT_THROW(Click(L"RzGroup_Use.Items[1]"), EConvertError);
    EXPECT_FALSE(Window->Context().Loading);
    EXPECT_EQ(Get<TNotebook>(L"Notebook_Main").ActivePage()->Name(), L"9");
    EXPECT_TRUE(Get<TCheckBox>(kBlink).Checked());
    EXPECT_EQ(Get<TUpDown>(L"Updown_Firefox_Tab_MinWidth_Min").Position(), 125) << "comes after the fault";
    Toggle(kBlink);
    EXPECT_TRUE(Enabled(L"Button_Apply"));
}

TEST_F(TMainWindow, APageOpenedWhileAnotherLoadsDoesNotEndItsLoading) {
    InstallFirefox(Fake, "user_pref(\"browser.blink_allowed\", false);");
    Open();
    Fake.Clock.OnProcessMessages = [this] {
        Fake.Clock.OnProcessMessages = nullptr;
        Click(kDriverItem);
    };
    Click(L"RzGroup_Use.Items[1]");
    EXPECT_TRUE(Get<TCheckBox>(kBlink).Checked());
    EXPECT_FALSE(Window->Context().FirefoxChanged) << "its controls are still being filled";
    EXPECT_FALSE(Enabled(L"Button_Apply"));
    EXPECT_FALSE(Window->Context().Loading);
}

TEST_F(TMainWindow, SpeaksTheLanguageOfTheSuite) {
    constexpr const wchar_t* kFolder = L"C:\\Program Files\\Quilltune\\Toolbox_Language\\";
    Fake.Files.PutText(kFolder + std::wstring(L"English.lng"), "[Main]\nDisplayName=English\n");
    Fake.Files.PutText(
        kFolder + std::wstring(L"Test.lng"),
        "[Quilltune_M]\nD_SystemDriver=Drives!\nD_System=System!\nD_RestartWindows=Restart?\n"
        "[Scanner_Quilltune_FormMain]\nQuilltune_FormMain.Caption=Title\nButton_Apply.Caption=Do it\n");
    Fake.Files.PutText(L"C:\\Users\\Me\\AppData\\Vandrel\\Orbicare V4\\Main.ini", "[Main]\nLanguage=TEST\n");
    Open();
    EXPECT_EQ(Window->Caption(), L"Title");
    EXPECT_EQ(Window->Find(L"Button_Apply")->Caption(), L"Do it");
    EXPECT_EQ(Window->Find(L"RzGroup_Communication")->Caption(), L"System!");
    EXPECT_EQ(Window->Find(kDriverItem)->Caption(), L"Drives!");
    EXPECT_EQ(Window->Find(L"RzGroup_Communication.Items[4]")->Caption(), L"Memory and Cache");
    EXPECT_EQ(Window->Find(L"RzGroup_Communication.Items[5]")->Caption(), L"Opera")
        << "hidden items keep theirs";
    Marks().RestartNeeded = true;
    Apply();
    ASSERT_EQ(Fake.Dialogs.Questions().size(), 1u);
    EXPECT_EQ(Fake.Dialogs.Questions()[0].Title, L"Title");
    EXPECT_EQ(Fake.Dialogs.Questions()[0].Text, L"Restart?");
}

}  // namespace
