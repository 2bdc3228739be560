// Its life: the start, the pages that the category bar opens, faults on the way, the language.
#include <utility>

#include "platform/faults.h"
#include "tests/app/main_window_fixture.h"

namespace {

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

TEST_F(TMainWindow, TheFirewallIsThereOnBothPagesOnceItsServiceAnswers) {
    Open(5, 1);
    Click(L"RzGroup_Communication.Items[2]");
    for (const bool answers : {false, true}) {
        if (answers) Fake.Services.Put(L"SharedAccess", {.State = TServiceState::Running});
        Window->ComeBack();
        for (const wchar_t* control : {L"ChkeckBox_CommonSettings_Security_SecuritySettings_StartWF",
                                       L"GroupBox_Net_Internet_WindowsFirewall"})
            EXPECT_EQ(Window->Find(control)->Visible(), answers);
    }
}

TEST_F(TMainWindow, AFaultWhileAPageLoadsEndsItsLoaderOnly) {
    InstallFirefox(
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
    InstallFirefox("user_pref(\"browser.blink_allowed\", false);");
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
    InstallFirefox("user_pref(\"browser.blink_allowed\", false);");
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
