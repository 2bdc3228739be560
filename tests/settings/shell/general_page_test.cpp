// The general page and the pages of its twins in the whole window; its script tells the rest.
#include <random>

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
constexpr const wchar_t* kOpenCmd = L"Checkbox_CommonSettings_Function_Explorer_OpenCmd";
constexpr const wchar_t* kOpenCmdTwin = L"Checkbox_FileType_MenuOperation_Drive_OpenCmd";
constexpr const wchar_t* kGeneralItem = L"RzGroup_CommonSettings.Items[0]";
constexpr const wchar_t* kFileTypesItem = L"RzGroup_Display.Items[0]";
constexpr const wchar_t* kMemoryItem = L"RzGroup_Communication.Items[4]";
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
        Open();
    }
    void Open() {
        FVisited.clear();
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
        Window->Show();
        Get<TTimer>(L"Timer_Click").Tick();
        Get<TTimer>(L"Timer_Loading").Tick();
    }
    template <typename T>
    T& Get(const std::wstring& name) {
        return *Window->Find<T>(name);
    }
    void Visit(const wchar_t* item) {
        Get<TCategoryItem>(item).Click();
        FVisited.insert(item);
    }
    void Type(const wchar_t* edit, const wchar_t* text) { Get<TEdit>(edit).SetText(text); }
    void Apply() { Get<TButton>(L"Button_Apply").Click(); }
    std::uint32_t DragFullWindows() {
        std::vector<std::uint8_t> buffer(4);
        EXPECT_TRUE(Fake.Parameters.Get(0x26, 0, buffer));
        return buffer[0];
    }

    static constexpr const wchar_t* kUserFile = L"C:\\AppData\\Mozilla\\Firefox\\a\\user.js";
    const TRegistryPlace kUpdateOptions{
        TRootKey::LocalMachine, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\WindowsUpdate\\Auto Update",
        L"AUOptions"};
    TFakeSystem Fake;
    std::unique_ptr<TQuilltune_FormMain> Window;
    std::set<std::wstring> FVisited;  ///< items
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
    EXPECT_EQ(Get<TEdit>(kHomePageTwin).Text(), L"newer");
    EXPECT_EQ(Get<TEdit>(kHomePage).Text(), L"newer");
}

TEST_F(TTwins, FollowWhatALaterPageFinds) {
    Fake.Registry.Put(kUpdateOptions, Number(3));
    Fake.Files.PutText(kUserFile, "user_pref(\"browser.startup.homepage\", \"other\");\r\n");
    Visit(kPrivacyItem);
    Visit(kFirefoxItem);
    EXPECT_TRUE(Get<TCheckBox>(kUpdates).Checked());
    EXPECT_EQ(Get<TComboBox>(kUpdateType).ItemIndex(), 2);
    EXPECT_TRUE(Get<TComboBox>(kUpdateType).Enabled());
    EXPECT_EQ(Get<TEdit>(kHomePage).Text(), L"other");
    EXPECT_FALSE(Get<TButton>(L"Button_Apply").Enabled());
}

// Whatever the user does in whatever order, and whenever Windows refuses a write: the two of a pair show the same, and
// Apply writes what they show.
TEST_F(TTwins, ShowTheSameAndWhatApplyWritesInAnyOrder) {
    constexpr std::int32_t kOptions[] = {0, 2, 3, 4};
    for (unsigned seed = 0; seed < 60; ++seed) {
        std::mt19937 random(seed);
        const auto pick = [&](int count) {
            return static_cast<int>(random() % static_cast<unsigned>(count));
        };
        SCOPED_TRACE(seed);
        Fake.Registry.Put(kUpdateOptions, Number(pick(5)));
        Open();
        std::wstring order;
        for (int step = 0; step < 25; ++step) {
            const int side = pick(2);
            const int action = pick(10);
            order += std::to_wstring(action) + L'/' + std::to_wstring(side) + L' ';
            const wchar_t* items[] = {kGeneralItem, kPrivacyItem, kFirefoxItem, kFileTypesItem, kMemoryItem};
            const auto toggle = [&](const wchar_t* general, const wchar_t* twin, const wchar_t* item) {
                Visit(side == 0 ? kGeneralItem : item);
                auto& box = Get<TCheckBox>(side == 0 ? general : twin);
                box.SetChecked(!box.Checked());
            };
            if (action < 4) Visit(items[pick(5)]);
            if (action == 4) toggle(kUpdates, kUpdatesTwin, kPrivacyItem);
            if (action == 5) {
                Visit(side == 0 ? kGeneralItem : kPrivacyItem);
                auto& list = Get<TComboBox>(side == 0 ? kUpdateType : kUpdateTypeTwin);
                if (list.Enabled()) list.SetItemIndex(pick(4));
            }
            if (action == 6) toggle(kOpenCmd, kOpenCmdTwin, kFileTypesItem);
            if (action == 7) {
                Visit(side == 0 ? kGeneralItem : kFirefoxItem);
                Type(side == 0 ? kHomePage : kHomePageTwin, std::to_wstring(step).c_str());
            }
            if (action == 8) Fake.Registry.FailChange(1 + pick(4));
            if (action >= 8) Apply();
            if (step == 24) {
                Fake.Registry.FailChange(0);
                Apply();
            }
            const bool isWritten = !Get<TButton>(L"Button_Apply").Enabled();
            const auto expectSame = [&](const auto& general, const auto& twin) {
                EXPECT_EQ(general, twin) << std::string(order.begin(), order.end());
            };
            if (FVisited.contains(kPrivacyItem)) {
                expectSame(Get<TCheckBox>(kUpdates).Checked(), Get<TCheckBox>(kUpdatesTwin).Checked());
                expectSame(Get<TComboBox>(kUpdateType).ItemIndex(),
                           Get<TComboBox>(kUpdateTypeTwin).ItemIndex());
                expectSame(Get<TComboBox>(kUpdateType).Enabled(), Get<TComboBox>(kUpdateTypeTwin).Enabled());
            }
            if (FVisited.contains(kFileTypesItem))
                expectSame(Get<TCheckBox>(kOpenCmd).Checked(), Get<TCheckBox>(kOpenCmdTwin).Checked());
            if (FVisited.contains(kFirefoxItem))
                expectSame(Get<TEdit>(kHomePage).Text(), Get<TEdit>(kHomePageTwin).Text());
            if (!isWritten) continue;
            const auto kind = static_cast<std::size_t>(Get<TComboBox>(kUpdateType).ItemIndex());
            expectSame(Get<TCheckBox>(kUpdates).Checked() ? kOptions[kind] : 1,
                       std::get<std::int32_t>(Fake.Registry.Find(kUpdateOptions)->Value));
            expectSame(Get<TCheckBox>(kOpenCmd).Checked(),
                       Fake.Registry.HasKey(TRootKey::ClassesRoot, L"Directory\\shell\\Menu_CMD\\Command"));
            const std::wstring home = Get<TEdit>(kHomePage).Text();
            expectSame(Fake.Files.Text(kUserFile), "user_pref(\"browser.startup.homepage\", \"" +
                                                       std::string(home.begin(), home.end()) + "\");\r\n");
        }
        if (HasFailure()) return;
    }
}

}  // namespace
