#include "app/main_window.h"

#include <algorithm>
#include <set>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/faults.h"
#include "tests/fakes/fake_system.h"

namespace {

constexpr const wchar_t* kLastAccess = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
constexpr const wchar_t* kUdma = L"Checkbox_Drives_Common_Enable";
constexpr const wchar_t* kBlink = L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing";
constexpr const wchar_t* kDriverItem = L"RzGroup_Communication.Items[3]";
const TRegistryPlace kLastAccessValue{TRootKey::LocalMachine,
                                      L"System\\CurrentControlSet\\Control\\FileSystem",
                                      L"NtfsDisableLastAccessUpdate"};

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
        const TRegistryData* data = Fake.Registry.Find(kLastAccessValue);
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
    // The animation has seven frames, and goes on until the first page is loaded.
    for (const auto& [ticks, frame, text] :
         {std::tuple(1, 1, L"Loading system settings.."), std::tuple(6, 0, L"Loading system settings.")}) {
        for (int i = 0; i < ticks; ++i) Tick(L"Timer_Loading");
        EXPECT_EQ(Get<TImage>(L"ImageNote_Animate").Frame(), frame);
        EXPECT_EQ(Window->Find(L"Label_Wait")->Caption(), text);
        EXPECT_TRUE(Window->Find(L"Panel_Loading")->Visible());
    }

    Tick(L"Timer_Click");
    EXPECT_EQ(Get<TNotebook>(L"Notebook_Main").ActivePage()->Name(), L"19");
    EXPECT_TRUE(Get<TCategoryItem>(L"RzGroup_CommonSettings.Items[0]").Selected());
    Tick(L"Timer_Click");  // runs once
    Tick(L"Timer_Loading");
    EXPECT_FALSE(Window->Find(L"Panel_Loading")->Visible());
    EXPECT_TRUE(Enabled(L"Button_OK") && Enabled(L"Button_Cancel"));
    EXPECT_FALSE(Enabled(L"Button_Apply") || Enabled(L"Timer_Loading"));
}

TEST_F(TMainWindow, KnowsTheWindowsLevel) {
    // The numbers of other versions than these are the name's business.
    for (const auto& [minor, level] : {std::pair(0u, 4), {1u, 5}, {2u, 0}}) {
        Create(5, minor);
        EXPECT_EQ(Window->Context().Release.Level(), level);
        EXPECT_EQ(Window->Find(L"RzGroup_Use.Items[1]")->Visible(), level >= 5);
    }
}

TEST_F(TMainWindow, TheSelectedItemHasItsOwnColor) {
    Open();
    const wchar_t* items[] = {L"RzGroup_CommonSettings.Items[0]", kDriverItem, L"RzGroup_Others.Items[0]"};
    for (const wchar_t* chosen : {items[0], items[1], items[1]}) {
        Click(chosen);
        for (const wchar_t* each : items) {
            EXPECT_EQ(Get<TCategoryItem>(each).Selected(), each == chosen);
            EXPECT_EQ(Get<TCategoryItem>(each).Color(), each == chosen ? 0xC65D21u : 0xC56A31u);
        }
    }
    EXPECT_EQ(Get<TNotebook>(L"Notebook_Main").ActivePage()->Name(), L"14");
}

TEST_F(TMainWindow, TheHeaderSaysWhichPageIsShownAndWhatItIsFor) {
    Open();
    std::set<std::wstring> said;
    for (const auto& component : Window->Components()) {
        const auto* item = dynamic_cast<const TCategoryItem*>(component.get());
        if (item == nullptr || !item->Visible()) continue;
        Click(item->Name().c_str());
        const std::wstring& text = Window->Find(L"Label_Header_Text")->Caption();
        EXPECT_EQ(Window->Find(L"Label_Header_Title")->Caption(), item->Caption());
        EXPECT_EQ(Get<TImage>(L"Image_Header").Picture(), item->Picture());
        EXPECT_EQ(Window->Find(L"Panel_Header")->Caption(), item->Caption() + L"\n" + text);
        EXPECT_TRUE(said.insert(text).second && !text.ends_with(L'.')) << testing::PrintToString(text);
    }
    EXPECT_EQ(said.size(), 17U);
    const auto says = [&](const wchar_t* item) {
        Click(item);
        return Window->Find(L"Label_Header_Text")->Caption();
    };
    const std::wstring about = says(kDriverItem);
    Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    EXPECT_TRUE(says(kDriverItem).starts_with(L"Without administrator rights"));
    EXPECT_TRUE(said.contains(says(L"RzGroup_Use.Items[1]"))) << "nothing there is for all users";
    EXPECT_NE(about, says(kDriverItem));
}

TEST_F(TMainWindow, APageIsLoadedOnItsFirstVisitOnly) {
    Fake.Registry.Put(kLastAccessValue, {TRegDataType::Dword, 1});
    Open();
    Click(kDriverItem);
    EXPECT_FALSE(Get<TCheckBox>(kLastAccess).Checked());
    EXPECT_FALSE(Enabled(L"Button_Apply")) << "loading is no change";
    Toggle(kLastAccess);
    Click(L"RzGroup_Communication.Items[4]");
    Click(kDriverItem);
    EXPECT_TRUE(Get<TCheckBox>(kLastAccess).Checked()) << "the user's change is still there";
}

TEST_F(TMainWindow, ShowsWhatWasStoredMeanwhileWhenTheUserComesBack) {
    Open();
    Click(kDriverItem);
    const auto& box = Get<TCheckBox>(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData");
    const auto storeAndComeBack = [&](int value) {
        Fake.Registry.Put(kLastAccessValue, {TRegDataType::Dword, value});
        Window->ComeBack();
        return box.Checked();
    };
    EXPECT_FALSE(storeAndComeBack(1));
    EXPECT_TRUE(storeAndComeBack(0));
    EXPECT_FALSE(Enabled(L"Button_Apply")) << "that is no change";
    Toggle(L"Checkbox_Drives_Common_NTFS_SaveShortName");
    EXPECT_TRUE(storeAndComeBack(1)) << "something is pending";
    EXPECT_TRUE(Enabled(L"Button_Apply"));
}

TEST_F(TMainWindow, ExplainsTheSettingThatTheUserIsAt) {
    Fake.Registry.Put(kLastAccessValue, {TRegDataType::Dword, 1});
    Open();
    Click(kDriverItem);
    const auto said = [this](const wchar_t* part) {
        return Window->Find(L"Label_Details_" + std::wstring(part))->Caption();
    };
    const std::wstring place =
        L"HKEY_LOCAL_"
        L"MACHINE\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\NtfsDisableLastAccessUpdate\nstored: ";
    const std::wstring idle = said(L"Title");
    Window->OnFocus(Window->Find(kDriverItem));
    EXPECT_EQ(said(L"Title"), idle);

    Window->OnFocus(Window->Find(kLastAccess));
    EXPECT_EQ(said(L"Title"), L"Record the date of the last access to files and folders");
    EXPECT_NE(said(L"Text").find(L"NTFS"), std::wstring::npos);
    EXPECT_EQ(said(L"Place"), place + L"0x00000001 (1) \u00B7 not changed");
    Toggle(kLastAccess);
    EXPECT_EQ(said(L"Place"), place + L"0x00000001 (1) \u00B7 after Apply: 0x00000000 (0) (pending)");
    Apply();
    EXPECT_EQ(said(L"Place"), place + L"0x00000000 (0) \u00B7 not changed");
    Fake.Registry.Put(kLastAccessValue, {TRegDataType::Dword, 7});
    Window->ComeBack();
    EXPECT_EQ(said(L"Place"), place + L"0x00000007 (7) \u00B7 not changed");

    Window->OnPoint(Window->Find(kUdma));
    EXPECT_EQ(said(L"Title"), L"Use Ultra DMA mode 66 for hard disks");
    EXPECT_NE(said(L"Place").find(L"after a restart"), std::wstring::npos);
    Window->OnHelp(Window->Find(kLastAccess));
    const std::wstring help = Fake.Dialogs.Questions().back().Text;
    Window->OnPoint(nullptr);
    EXPECT_EQ(help, said(L"Title") + L"\n\n" + said(L"Text") + L"\n\n" + said(L"Place"));
    EXPECT_EQ(help, Window->Find(L"Panel_Details")->Caption()) << "it is the focus again";

    Window->OnFocus(Window->Find(L"Button_Apply"));
    EXPECT_EQ(help, Window->Find(L"Panel_Details")->Caption()) << "what becomes of it";
    Click(L"RzGroup_Display.Items[3]");
    EXPECT_EQ(said(L"Title"), idle) << "it is no longer to be seen";

    // A label speaks of what is behind it, an edit of its up-down.
    for (const wchar_t* control :
         {L"Label_Taskbar_ButtonFlashes_Speed_Flash", L"Edit_Taskbar_ButtonFlashes_Speed_Flash",
          L"UpDown_Taskbar_ButtonFlashes_Speed_Flash"}) {
        ASSERT_NE(Window->Find(control), nullptr);
        Window->OnFocus(Window->Find(control));
        EXPECT_EQ(said(L"Title"), L"Number of flashes") << testing::PrintToString(std::wstring(control));
    }

    // What has no effect says why, and is enabled on both its pages once it has one.
    constexpr const wchar_t* kSides[] = {L"CB_Taskbar_MinWindow_Left",
                                         L"CB_CommonSettings_Display_MinWindow_Left"};
    Get<TPageControl>(L"PageControl_Taskbar").SetActiveSheet(Get<TTabSheet>(L"TabSheet_Taskbar_MinWindow"));
    Window->OnFocus(Window->Find(kSides[0]));
    EXPECT_TRUE(said(L"Text").starts_with(L"Has no effect while \"Hidden\" is chosen. "));
    for (const wchar_t* side : kSides) EXPECT_FALSE(Enabled(side));
    Get<TComboBox>(L"CB_Taskbar_MinWindow_Arrange").SetItemIndex(1);
    EXPECT_FALSE(said(L"Text").starts_with(L"Has no effect"));
    for (const wchar_t* side : kSides) EXPECT_TRUE(Enabled(side));
    EXPECT_TRUE(Enabled(L"Label_CommonSettings_Display_MinWindow_Left"));

    Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    Click(kDriverItem);
    Window->OnFocus(Window->Find(kLastAccess));
    EXPECT_TRUE(said(L"Place").ends_with(L"not changed \u00B7 needs administrator rights"));
}

TEST_F(TMainWindow, StripAndHeaderGiveWayToThePages) {
    Open();
    const auto shown = [this] {
        std::vector<bool> shown;
        for (const wchar_t* name :
             {L"Label_Details_Text", L"Panel_Details", L"Label_Header_Text", L"Panel_Header"})
            shown.push_back(Window->Find(name)->Visible());
        return shown;
    };
    std::vector<bool> left(4, true);
    int height = 566;
    Window->OnHeight(height);
    for (std::size_t gone = 0;; ++gone) {
        EXPECT_EQ(shown(), left) << height;
        if (gone == left.size()) break;
        left[gone] = false;
        while (height > 400 && std::ranges::count(shown(), true) == std::ranges::count(left, true) + 1)
            Window->OnHeight(--height);
        if (gone == 1) EXPECT_LT(height, 536) << "on a screen of 800 by 600 the strip tells the place";
    }
    Window->OnHeight(700);
    Click(kDriverItem);
    for (const bool isOn : {false, true}) {
        Window->Switches.front().OnClick(isOn);
        Window->OnFocus(Window->Find(isOn ? kUdma : kLastAccess));
        EXPECT_EQ(shown()[1], isOn);
    }
    EXPECT_EQ(Window->Find(L"Label_Details_Title")->Caption(), L"Use Ultra DMA mode 66 for hard disks");
}

TEST_F(TMainWindow, ApplyAndOkWriteAndOkAndCancelClose) {
    for (const wchar_t* button : {L"Button_Apply", L"Button_OK", L"Button_Cancel"}) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(button)));
        (void)Fake.Registry.DeleteValue(kLastAccessValue);
        Open();
        Click(kDriverItem);
        Toggle(kLastAccess);
        EXPECT_TRUE(Enabled(L"Button_Apply"));
        EXPECT_EQ(LastAccess(), std::nullopt);
        Press(button);
        EXPECT_EQ(Window->Closed(), button != std::wstring(L"Button_Apply"));
        const bool writes = button != std::wstring(L"Button_Cancel");
        EXPECT_EQ(Enabled(L"Button_Apply"), !writes);
        EXPECT_EQ(LastAccess(), writes ? std::optional(1) : std::nullopt);
    }
    EXPECT_EQ(Fake.Shell.Notifications(), (std::vector<TShellNotification>(2, {0x7FFFFFFF, 0x1000})));
    for (const wchar_t* area : {L"Policy", L"ShellState", L"TraySettings"})
        EXPECT_EQ(std::ranges::count(Fake.Shell.SettingChanges(), area), 2) << "once with each Apply";
    EXPECT_TRUE(Fake.Dialogs.Questions().empty());
}

TEST_F(TMainWindow, AHistoryThatCannotBeWrittenHoldsNothingBack) {
    Open();
    Click(kDriverItem);
    Toggle(kUdma);
    Fake.Files.FailReplace(1);
    EXPECT_THROW(Press(L"Button_OK"), std::runtime_error);
    EXPECT_EQ(Fake.Dialogs.Questions().size(), 1u);
    EXPECT_TRUE(Window->Closed() && !Enabled(L"Button_Apply"));
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
    EXPECT_EQ(Fake.Dialogs.Askers(), std::vector{Window->Name()});
    EXPECT_EQ(Fake.Shell.Restarts(), 0);

    Toggle(kLastAccess);
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Dialogs.Questions().size(), 1u) << "No was the answer to the earlier change";

    Toggle(kUdma);
    Fake.Dialogs.Answer(TMessageAnswer::Yes);
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Shell.Restarts(), 1);
}

TEST_F(TMainWindow, OffersToRestartExplorerWhereNothingMoreIsNeeded) {
    constexpr const wchar_t* kLastActive = L"Checkbox_Taskbar_Modern_LastActive";
    Open(10, 0);
    Click(L"RzGroup_Display.Items[3]");
    Toggle(kLastActive);
    Fake.Dialogs.Answer(TMessageAnswer::No);
    Press(L"Button_Apply");
    ASSERT_EQ(Fake.Dialogs.Questions().size(), 1u);
    EXPECT_EQ(Fake.Dialogs.Questions()[0].Text,
              L"Need to restart Explorer to take effect, restart now? Its open windows are closed.");
    EXPECT_EQ(Fake.Shell.ExplorerRestarts, 0) << "never unasked";
    EXPECT_THAT(Fake.Shell.SettingChanges(), testing::Contains(L"ImmersiveColorSet"));
    Toggle(kLastActive);
    Fake.Dialogs.Answer(TMessageAnswer::Yes);
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Shell.ExplorerRestarts, 1);

    Click(L"RzGroup_Others.Items[1]");
    Toggle(kLastActive);
    Toggle(L"Checkbox_Startup_DesktopAndTaskbar_AutoRestartExplorer_AutoRun");
    Fake.Dialogs.Answer(TMessageAnswer::No);
    Press(L"Button_Apply");
    ASSERT_EQ(Fake.Dialogs.Questions().size(), 3u) << "one question";
    EXPECT_EQ(Fake.Dialogs.Questions()[2].Text, L"Need to restart Windows to take effect, restart now?");
}

TEST_F(TMainWindow, WhatARefusedPassLeavesIsStillToBeApplied) {
    Open();
    Click(kDriverItem);
    Toggle(kLastAccess);
    Toggle(kUdma);  // waits for a restart
    Fake.Registry.FailChange(2);
    Press(L"Button_Apply");
    EXPECT_EQ(LastAccess(), 1);
    EXPECT_TRUE(Fake.Dialogs.Questions().empty()) << "what waits for a restart is not written";
    EXPECT_TRUE(Enabled(L"Button_Apply"));
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Dialogs.Questions().size(), 1u);
    EXPECT_FALSE(Enabled(L"Button_Apply"));

    Toggle(kUdma);
    Toggle(kLastAccess);
    Fake.Registry.FailChange(2);
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Dialogs.Questions().size(), 2u) << "it was written before the pass ended";
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Dialogs.Questions().size(), 2u) << "and was asked about already";
    EXPECT_FALSE(Enabled(L"Button_Apply"));
}

TEST_F(TMainWindow, ChangesMadeWhileAServiceIsWaitedForAreLeftForTheNextApply) {
    Open();
    Fake.Services.Put(L"wscsvc", {});
    Click(kDriverItem);
    Marks().Changes.Switch({.Service = L"wscsvc", .On = true});
    Fake.Clock.OnProcessMessages = [this, ran = false]() mutable {
        if (std::exchange(ran, true)) return;
        Toggle(kUdma);
        Click(L"RzGroup_Display.Items[0]");
        Toggle(L"Checkbox_FileType_MenuOperation_FileAndFolder_SendTo");
    };
    Apply();
    EXPECT_TRUE(Fake.Dialogs.Questions().empty());
    EXPECT_TRUE(Enabled(L"Button_Apply"));
    EXPECT_EQ(std::ranges::count(Fake.Shell.Notifications(), TShellNotification{0x08000000, 0}), 0);
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Dialogs.Questions().size(), 1u);
    EXPECT_EQ(std::ranges::count(Fake.Shell.Notifications(), TShellNotification{0x08000000, 0}), 1);
    EXPECT_FALSE(Enabled(L"Button_Apply"));
}

TEST_F(TMainWindow, ApplySwitchesServicesAndTellsTheShellOfAssociations) {
    for (const bool vista : {false, true}) {
        Open(vista ? 6 : 5, vista ? 0 : 1);
        Fake.Services.Put(L"wscsvc", {.State = TServiceState::Running});
        Fake.Services.Put(L"MpsSvc", {});
        if (vista) Marks().Changes.Switch({.Service = L"MpsSvc", .Order = 1, .On = true});
        Marks().Changes.Switch({.Service = L"wscsvc"});
        Click(L"RzGroup_Display.Items[0]");
        Toggle(L"Checkbox_FileType_MenuOperation_FileAndFolder_SendTo");
        Fake.Services.Calls.clear();
        Press(L"Button_Apply");
        EXPECT_FALSE(Enabled(L"Button_Apply"));
        Apply();
        EXPECT_EQ(Fake.Services.Service(L"wscsvc").StartType, TServiceStartType::Disabled);
        EXPECT_EQ(Fake.Services.Service(L"MpsSvc").State,
                  vista ? TServiceState::Running : TServiceState::Stopped)
            << "on XP the firewall is left alone";
        EXPECT_EQ(std::ranges::count(Fake.Services.Calls, "manager F003F"), vista ? 2 : 1) << "once each";
        EXPECT_EQ(std::ranges::count(Fake.Shell.Notifications(), TShellNotification{0x08000000, 0}),
                  vista ? 2 : 1);
    }
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
    Apply();
    EXPECT_TRUE(Fake.Files.Replaced().empty()) << "no page said that something changed";

    Marks().FirefoxChanged = true;
    Click(kDriverItem);
    Toggle(kLastAccess);
    Fake.Files.FailReplace(2);  // the history comes first
    EXPECT_THROW(Press(L"Button_OK"), std::runtime_error);
    EXPECT_TRUE(Enabled(L"Button_Apply") && !Window->Closed());
    EXPECT_EQ(Window->Find(L"Button_Changes")->Caption(), L"1 change\u2026") << "the registry is written";
    EXPECT_FALSE(Window->Find(kLastAccess)->Marked());
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

TEST_F(TMainWindow, FirefoxChangesWaitForAReadableFileButNotForAProfile) {
    const std::wstring firefox = L"C:\\Users\\Me\\AppData\\Mozilla\\Firefox\\";
    InstallFirefox(Fake, "user_pref(\"b\", 1);");
    Open();
    Fake.Files.Lock(firefox + L"a\\user.js");
    Click(L"RzGroup_Use.Items[1]");
    Toggle(kBlink);
    EXPECT_THROW(Apply(), std::runtime_error);
    EXPECT_TRUE(Enabled(L"Button_Apply") && Window->Context().FirefoxChanged);
    Fake.Files.Unlock();
    Click(L"RzGroup_Use.Items[1]");
    Toggle(kBlink);
    Apply();
    EXPECT_EQ(Fake.Files.Text(firefox + L"a\\user.js"),
              "user_pref(\"b\", 1);\r\nuser_pref(\"browser.blink_allowed\", false);\r\n");
    EXPECT_EQ(Fake.Dialogs.Questions().size(), 1U);

    Fake.Files.Remove(firefox + L"profiles.ini");
    const std::size_t replaced = Fake.Files.Replaced().size();
    Click(L"RzGroup_Use.Items[1]");
    Toggle(kBlink);
    Apply();
    EXPECT_FALSE(Enabled(L"Button_Apply") || Window->Context().FirefoxChanged);
    EXPECT_TRUE(Fake.Dialogs.Questions().size() == 1 && Fake.Files.Replaced().size() == replaced);
}

TEST_F(TMainWindow, AFaultWhileAPageLoadsEndsItsLoaderOnly) {
    InstallFirefox(Fake,
                   "user_pref(\"browser.blink_allowed\", false);"
                   "user_pref(\"network.trr.mode\", 5);"
                   "user_pref(\"browser.tabs.closeButtons\", \"1\");"
                   "user_pref(\"browser.tabs.tabMinWidth\", 100);");
    Open(6, 2);
    EXPECT_THROW(Click(L"RzGroup_Use.Items[1]"), EConvertError);
    EXPECT_FALSE(Window->Context().Loading);
    EXPECT_EQ(Get<TNotebook>(L"Notebook_Main").ActivePage()->Name(), L"9");
    EXPECT_TRUE(Get<TCheckBox>(kBlink).Checked());
    EXPECT_EQ(Get<TComboBox>(L"CB_Firefox_Current_Resolver").ItemIndex(), 3) << "of a later loader";
    EXPECT_EQ(Get<TUpDown>(L"Updown_Firefox_Tab_MinWidth_Min").Position(), 125) << "comes after the fault";
    Toggle(kBlink);
    EXPECT_TRUE(Enabled(L"Button_Apply"));
}

/// The native side of a control that cannot be shown.
struct TBrokenPeer : TPeer {
    void Update(TControlAspect /*aspect*/) override { throw std::runtime_error("broken"); }
};

TEST_F(TMainWindow, BecomesUsableWhateverFaultItsStartMeets) {
    int faults = 0;
    const auto attempt = [&](const std::function<void()>& step) {
        try {
            step();
        } catch (const std::runtime_error&) {
            ++faults;
        }
    };
    InstallFirefox(Fake, "user_pref(\"browser.blink_allowed\", false);");
    const wchar_t* loader = L"";
    for (const wchar_t* broken :
         {loader, L"CB_CommonSettings_Display_MinWindow_Arrange", L"RzGroup_CommonSettings.Items[0]",
          L"Notebook_Main", L"Panel_Loading", L"ImageNote_Animate", L"Label_Wait", L"Timer_Click",
          L"Timer_Loading", L"Button_OK", L"Button_Apply"}) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(broken)));
        Create(6, 1);
        Fake.Clock.OnProcessMessages = [] {};
        if (broken == loader)
            Fake.Clock.OnProcessMessages = [] { throw std::runtime_error("a message's"); };
        else
            Window->Find(broken)->SetPeer(std::make_unique<TBrokenPeer>());
        faults = 0;
        attempt([&] { Window->Show(); });
        for (const wchar_t* timer : {L"Timer_Loading", L"Timer_Click", L"Timer_Loading"})
            attempt([&] { Tick(timer); });
        EXPECT_GT(faults, 0);
        EXPECT_FALSE(Window->Find(L"Panel_Loading")->Visible());
        EXPECT_TRUE(Enabled(L"Button_OK") && Enabled(L"Button_Cancel"));
        EXPECT_FALSE(Enabled(L"Button_Apply") || Enabled(L"Timer_Click") || Enabled(L"Timer_Loading"));
        EXPECT_EQ(Get<TNotebook>(L"Notebook_Main").ActivePage()->Name(), L"19");
        EXPECT_TRUE(Get<TCategoryItem>(L"RzGroup_CommonSettings.Items[0]").Selected());
    }
}

TEST_F(TMainWindow, APageOpenedWhileAnotherLoadsDoesNotEndItsLoading) {
    InstallFirefox(Fake, "user_pref(\"browser.blink_allowed\", false);");
    Open();
    Fake.Clock.OnProcessMessages = [this, ran = false]() mutable {
        if (std::exchange(ran, true)) return;
        Click(kDriverItem);
    };
    Click(L"RzGroup_Use.Items[1]");
    EXPECT_TRUE(Get<TCheckBox>(kBlink).Checked());
    EXPECT_FALSE(Window->Context().FirefoxChanged) << "its controls are still being filled";
    EXPECT_FALSE(Enabled(L"Button_Apply"));
    EXPECT_FALSE(Window->Context().Loading);
}

TEST_F(TMainWindow, SpeaksTheLanguageOfTheSuite) {
    const std::wstring folder = L"C:\\Program Files\\Quilltune\\Toolbox_Language\\";
    Fake.Files.PutText(folder + L"English.lng", "[Main]\nDisplayName=English\n");
    Fake.Files.PutText(
        folder + L"Test.lng",
        "[Quilltune_M]\nD_SystemDriver=Drives!\nD_System=System!\nD_RestartWindows=Restart?\n"
        "[Scanner_Quilltune_FormMain]\nQuilltune_FormMain.Caption=Title\nButton_Apply.Caption=Do it\n");
    Fake.Files.PutText(L"C:\\Users\\Me\\AppData\\Vandrel\\Orbicare V4\\Main.ini", "[Main]\nLanguage=TEST\n");
    Open();
    // The last item is hidden, and keeps its own.
    for (const auto& [name, caption] : {std::pair(L"Button_Apply", L"Do it"),
                                        {L"RzGroup_Communication", L"System!"},
                                        {kDriverItem, L"Drives!"},
                                        {L"RzGroup_Communication.Items[4]", L"Memory and Cache"},
                                        {L"RzGroup_Communication.Items[5]", L"Opera"}})
        EXPECT_EQ(Window->Find(name)->Caption(), caption);
    EXPECT_EQ(Window->Caption(), L"Title");
    Click(kDriverItem);
    Toggle(kUdma);
    Press(L"Button_Apply");
    EXPECT_EQ(Fake.Dialogs.Questions().at(0).Title, L"Title");
    EXPECT_EQ(Fake.Dialogs.Questions().at(0).Text, L"Restart?");
}

}  // namespace
