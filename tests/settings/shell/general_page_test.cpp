// The general page and the pages of its twins in the whole window; its script tells the rest.
#include "app/main_window.h"
#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kDrag = L"Checkbox_CommonSettings_Display_Desktop_Drag";
constexpr const wchar_t* kDragTwin = L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag";
constexpr const wchar_t* kHomePage = L"Edit_CommonSettings_Display_FirefoxHomepage_HomePage";
constexpr const wchar_t* kHomePageTwin = L"Edit_Firefox_Common_Homepage_Address";
constexpr const wchar_t* kUpdates = L"ChkeckBox_CommonSettings_Security_SecuritySettings_ActiveAU";
constexpr const wchar_t* kUpdateType = L"CB_CommonSettings_Security_SecuritySettings_AutoUpdateType";
constexpr const wchar_t* kUpdatesTwin = L"Checkbox_Privacy_Common_AutoUpdate_Active";
constexpr const wchar_t* kUpdateTypeTwin = L"CB_Privacy_Common_AutoUpdate_Type";
constexpr const wchar_t* kDisplayItem = L"RzGroup_Others.Items[0]";
constexpr const wchar_t* kFirefoxItem = L"RzGroup_Use.Items[1]";
constexpr const wchar_t* kPrivacyItem = L"RzGroup_Manage.Items[2]";

/// The whole window, with Firefox.
class TTwins : public testing::Test {
  protected:
    TTwins() {
        Fake.Windows.SetVersion({.PlatformId = 2, .Major = 6, .Minor = 1});
        Fake.Parameters.Pair(0x25, 0x26, TFakeParameters::TCarrier::Param);
        Fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\AppData");
        Fake.Registry.Put({TRootKey::LocalMachine,
                           L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox", L"x"},
                          Number(1));
        Fake.Files.PutText(L"C:\\AppData\\Mozilla\\Firefox\\profiles.ini",
                           "[Profile0]\nIsRelative=1\nPath=a\n");
        Fake.Files.PutText(kUserFile, "user_pref(\"browser.startup.homepage\", \"old\");\r\n");
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
        Window->Show();
        Get<TTimer>(L"Timer_Click").Tick();
        Get<TTimer>(L"Timer_Loading").Tick();
    }
    template <typename T>
    T& Get(const std::wstring& name) {
        return *Window->Find<T>(name);
    }
    void Visit(const wchar_t* item) { Get<TCategoryItem>(item).Click(); }
    void Type(const wchar_t* edit, const wchar_t* text) { Get<TEdit>(edit).SetText(text); }
    void Apply() { Get<TButton>(L"Button_Apply").Click(); }
    std::uint32_t DragFullWindows() {
        std::vector<std::uint8_t> buffer(4);
        EXPECT_TRUE(Fake.Parameters.Get(0x26, 0, buffer));
        return buffer[0];
    }

    static constexpr const wchar_t* kUserFile = L"C:\\AppData\\Mozilla\\Firefox\\a\\user.js";
    TFakeSystem Fake;
    std::unique_ptr<TQuilltune_FormMain> Window;
};

TEST_F(TTwins, FollowEachOtherBeforeAndAfterApply) {
    Get<TCheckBox>(kDrag).SetChecked(true);
    Visit(kDisplayItem);
    EXPECT_TRUE(Get<TCheckBox>(kDragTwin).Checked()) << "the change is not written yet";
    Get<TCheckBox>(kDragTwin).SetChecked(false);
    EXPECT_FALSE(Get<TCheckBox>(kDrag).Checked());
    Get<TCheckBox>(kDrag).SetChecked(true);
    Apply();
    EXPECT_EQ(DragFullWindows(), 1u) << "the last click wins, whichever entry is the last of the list";
    EXPECT_TRUE(Get<TCheckBox>(kDragTwin).Checked());
}

TEST_F(TTwins, ABoxAndItsListBothFollow) {
    Get<TCheckBox>(kUpdates).SetChecked(true);
    Get<TComboBox>(kUpdateType).SetItemIndex(2);
    Visit(kPrivacyItem);
    EXPECT_TRUE(Get<TCheckBox>(kUpdatesTwin).Checked());
    EXPECT_EQ(Get<TComboBox>(kUpdateTypeTwin).ItemIndex(), 2);
    Get<TComboBox>(kUpdateTypeTwin).SetItemIndex(3);
    EXPECT_EQ(Get<TComboBox>(kUpdateType).ItemIndex(), 3);
}

TEST_F(TTwins, TheHomePageOutlivesAReloadOfThePreferences) {
    EXPECT_EQ(Get<TEdit>(kHomePage).Text(), L"old");
    Type(kHomePage, L"new");
    Visit(kFirefoxItem);
    EXPECT_EQ(Get<TEdit>(kHomePageTwin).Text(), L"new");
    Apply();
    EXPECT_EQ(Fake.Files.Text(kUserFile), "user_pref(\"browser.startup.homepage\", \"new\");\r\n");
    Type(kHomePageTwin, L"newer");
    EXPECT_EQ(Get<TEdit>(kHomePage).Text(), L"newer");
    Visit(kFirefoxItem);
    EXPECT_EQ(Get<TEdit>(kHomePageTwin).Text(), L"new") << "the page begins anew from the files";
    EXPECT_EQ(Get<TEdit>(kHomePage).Text(), L"new");
}

}  // namespace
