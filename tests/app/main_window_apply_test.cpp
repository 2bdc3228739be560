// What Apply, OK and Cancel do: what is written, restarts, services, the Firefox preferences.
#include <algorithm>
#include <utility>

#include <gmock/gmock.h>

#include "tests/app/main_window_fixture.h"

namespace {

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

TEST_F(TMainWindow, FirefoxChangesWaitForAReadableFileButNotForAProfile) {
    const std::wstring firefox = L"C:\\Users\\Me\\AppData\\Mozilla\\Firefox\\";
    InstallFirefox("user_pref(\"b\", 1);");
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

}  // namespace
