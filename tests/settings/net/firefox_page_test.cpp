#include "settings/net/firefox_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kBlink = L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing";
constexpr const wchar_t* kErrorBox = L"Radio_Firefox_Common_ErrorMessage_Windows";
constexpr const wchar_t* kErrorPage = L"Radio_Firefox_Common_ErrorMessage_WebPage";
constexpr const wchar_t* kHomePage = L"Edit_Firefox_Common_Homepage_Address";
constexpr const wchar_t* kAutoFill = L"Checkbox_Firefox_Use_AddressBar_AutoFill";
constexpr const wchar_t* kGoButton = L"Checkbox_Firefox_Use_AddressBar_ShowLoadAddressButton";
constexpr const wchar_t* kAsWindows = L"Radio_Firefox_Use_MenuSpeed_UseWinSet";
constexpr const wchar_t* kClick = L"Radio_Firefox_Use_MenuSpeed_Click";
constexpr const wchar_t* kDelay = L"Radio_Firefox_Use_MenuSpeed_Delay";
constexpr const wchar_t* kDelayBar = L"TrackBar_Firefox_Use_MenuSpeed_Delay";
constexpr const wchar_t* kDelayLabel = L"Label_Firefox_Use_MenuSpeed_Delay";
constexpr const wchar_t* kInTab = L"Checkbox_Firefox_Popup_Open_Type";
constexpr const wchar_t* kSameTab = L"Radio_Firefox_Popup_Open_SameTab";
constexpr const wchar_t* kNewTab = L"Radio_Firefox_Popup_Open_NewTab";
constexpr const wchar_t* kSize = L"Checkbox_Firefox_Popup_JavaScript_Size";
constexpr const wchar_t* kMinimize = L"Checkbox_Firefox_Popup_JavaScript_Min";
constexpr const wchar_t* kMenuBar = L"Checkbox_Firefox_Popup_JavaScript_HideMenu";
constexpr const wchar_t* kAddressBar = L"Checkbox_Firefox_Popup_JavaScript_HideTask";
constexpr const wchar_t* kScrollBars = L"Checkbox_Firefox_Popup_JavaScript_HideSroll";
constexpr const wchar_t* kCloseButton = L"CB_Firefox_Tab_CloseButton_Pos";
constexpr const wchar_t* kWidth = L"Updown_Firefox_Tab_MinWidth_Min";
constexpr const wchar_t* kWidthEdit = L"Edit_Firefox_Tab_MinWidth_Min";

constexpr const char* kGoPref = "browser.urlbar.hideGoButton";

/// The page of an installed Firefox.
class TFirefoxBench : public TPageBench {
  public:
    TFirefoxBench() : TPageBench(FirefoxPage()) {
        Fake.Files.PutText(L"C:\\Mozilla\\profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
        Fake.Registry.PutKey(
            TRootKey::LocalMachine,
            L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox (3.6)");
    }
    /// Shows the page of a profile with that statement, or with none.
    void Open(const std::string& pref = "", const std::string& value = "") {
        Fake.Files.PutText(L"C:\\Mozilla\\p\\user.js",
                           pref.empty() ? "" : "user_pref(\"" + pref + "\", " + value + ");\n");
        Load();
    }
    const std::vector<std::wstring>& Lines() const { return Context.Firefox.FirefoxPrefLines(); }
    bool Enabled(const wchar_t* name) { return Get<TControl>(name).Enabled(); }
    bool Offered(const wchar_t* sheet) { return Get<TTabSheet>(sheet).TabVisible(); }
};

std::wstring Statement(const std::string& pref, const std::string& value) {
    const std::string text = "user_pref(\"" + pref + "\", " + value + ");";
    return {text.begin(), text.end()};
}

TEST(TFirefoxPage, ShowsWhatTheProfileSays) {
    const struct {
        const char* Pref;
        const char* Value;
        const wchar_t* Control;
        const wchar_t* Shows;
    } cases[] = {
        {"browser.blink_allowed", "FALSE", kBlink, L"on"},
        {"browser.xul.error_pages.enabled", "TRUE", kErrorPage, L"on"},
        {"browser.xul.error_pages.enabled", "1", kErrorBox, L"on"},
        {"browser.startup.homepage", "\"about:\"blank\"", kHomePage, L"about:blank"},
        {"browser.urlbar.autoFill", "True", kAutoFill, L"on"},
        {"browser.urlbar.hideGoButton", "tRue", kGoButton, L"off"},
        {"browser.urlbar.hideGoButton", "300", kAsWindows, L"on"},
        {"ui.submenuDelay", "65000", kClick, L"on"},
        {"ui.submenuDelay", "300", kDelayLabel, L"300 ms"},
        {"ui.submenuDelay", "065000", kDelayBar, L"1200"},
        {"ui.submenuDelay", "soon", kDelay, L"on"},
        {"ui.submenuDelay", "soon", kDelayBar, L"217"},
        {"browser.link.open_newwindow", "1", kSameTab, L"on"},
        {"browser.link.open_newwindow", "2", kInTab, L"off"},
        {"browser.link.open_newwindow", "2", kNewTab, L"on"},
        {"browser.link.open_newwindow", "0", kNewTab, L"on"},
        {"dom.disable_window_open_feature.resizable", "false", kSize, L"on"},
        {"dom.disable_window_open_feature.resizable", "0", kSize, L"off"},
        {"dom.disable_window_open_feature.minimizable", "True", kMinimize, L"off"},
        {"dom.disable_window_open_feature.menubar", "true", kMenuBar, L"off"},
        {"dom.disable_window_open_feature.location", "False", kAddressBar, L"on"},
        {"dom.disable_window_open_feature.scrollbars", "true", kScrollBars, L"off"},
        {"browser.tabs.closeButtons", "3", kCloseButton, L"3"},
        {"browser.tabs.closeButtons", "4", kCloseButton, L"-1"},
        {"browser.tabs.tabMinWidth", "wide", kWidth, L"125"},
    };
    for (const auto& c : cases) {
        TFirefoxBench bench;
        bench.Open(c.Pref, c.Value);
        EXPECT_EQ(bench.State(c.Control), c.Shows) << c.Pref << " = " << c.Value;
        EXPECT_EQ(bench.Recorded, 0);
        EXPECT_EQ(bench.Lines(), std::vector{Statement(c.Pref, c.Value)});
        EXPECT_FALSE(bench.Context.FirefoxChanged);
    }
}

TEST(TFirefoxPage, APreferenceThatIsMissingShowsAsFirefoxHasIt) {
    TFirefoxBench bench;
    bench.Open("browser.startup.homepage", "\"a\"");
    bench.Open();
    for (const wchar_t* on :
         {kErrorBox, kGoButton, kAsWindows, kInTab, kNewTab, kMinimize, kMenuBar, kScrollBars})
        EXPECT_EQ(bench.State(on), L"on") << testing::PrintToString(on);
    for (const wchar_t* off : {kBlink, kAutoFill, kSize, kAddressBar})
        EXPECT_EQ(bench.State(off), L"off") << testing::PrintToString(off);
    EXPECT_EQ(bench.State(kHomePage), L"");
    EXPECT_FALSE(bench.Enabled(kDelayBar));
    EXPECT_EQ(bench.State(kCloseButton), L"1");
    EXPECT_EQ(bench.State(kWidth), L"125");
}

TEST(TFirefoxPage, EveryChangeIsInTheStoreAtOnce) {
    const struct {
        const wchar_t* Control;
        const wchar_t* State;
        const char* Pref;
        const char* Value;
    } cases[] = {
        {kBlink, L"on", "browser.blink_allowed", "false"},
        {kErrorBox, L"on", "browser.xul.error_pages.enabled", "false"},
        {kHomePage, L"", "browser.startup.homepage", "\"\""},
        {kHomePage, L"a b", "browser.startup.homepage", "\"a b\""},
        {kAutoFill, L"on", "browser.urlbar.autoFill", "True"},
        {kGoButton, L"off", kGoPref, "True"},
        {kClick, L"on", kGoPref, "65000"},
        {kInTab, L"off", "browser.link.open_newwindow", "2"},
        {kInTab, L"on", "browser.link.open_newwindow", "3"},
        {kSameTab, L"on", "browser.link.open_newwindow", "1"},
        {kSize, L"on", "dom.disable_window_open_feature.resizable", "false"},
        {kMenuBar, L"off", "dom.disable_window_open_feature.menubar", "True"},
        {kCloseButton, L"2", "browser.tabs.closeButtons", "2"},
        {kWidth, L"36", "browser.tabs.tabMinWidth", "36"},
        {kWidthEdit, L"600", "browser.tabs.tabMinWidth", "500"},
    };
    for (const auto& c : cases) {
        TFirefoxBench bench;
        bench.Open();
        const std::wstring state = c.State;
        if (state.starts_with(L'o') && state == bench.State(c.Control))
            bench.Preset(c.Control, state == L"off");
        if (c.Control == kErrorBox) bench.Preset(kErrorPage, true);
        bench.Act(c.Control, state);
        EXPECT_EQ(bench.Lines(), std::vector{Statement(c.Pref, c.Value)});
        EXPECT_TRUE(bench.Context.FirefoxChanged);
        EXPECT_GE(bench.Recorded, 1) << "Apply is to be enabled";
        EXPECT_TRUE(bench.Pending().empty());
    }
}

TEST(TFirefoxPage, TheMenuDelayIsAChoiceAndANumber) {
    TFirefoxBench bench;
    bench.Open();
    bench.Click(kDelay, true);
    EXPECT_TRUE(bench.Enabled(kDelayBar));
    bench.Act(kDelayBar, L"300");
    EXPECT_EQ(bench.Lines(), std::vector{Statement(kGoPref, "300")});
    EXPECT_EQ(bench.State(kDelayLabel), L"300 ms");
    bench.Click(kClick, true);
    EXPECT_FALSE(bench.Enabled(kDelayBar));
    bench.Click(kAsWindows, true);
    EXPECT_TRUE(bench.Lines().empty()) << "the preference is removed";
}

TEST(TFirefoxPage, LinksInANewWindowLeaveNoChoiceOfTab) {
    TFirefoxBench bench;
    bench.Open("browser.link.open_newwindow", "2");
    EXPECT_FALSE(bench.Enabled(kSameTab));
    bench.Click(kInTab, true);
    EXPECT_TRUE(bench.Enabled(kSameTab));
    EXPECT_TRUE(bench.Enabled(kNewTab));
    bench.Click(kInTab, false);
    EXPECT_FALSE(bench.Enabled(kNewTab));
}

TEST(TFirefoxPage, TheUsualTabWidthLeavesNoStatement) {
    TFirefoxBench bench;
    bench.Open("browser.tabs.tabMinWidth", "100");
    auto& edit = bench.Get<TEdit>(kWidthEdit);
    edit.SetFocused(true);
    const auto type = [&](const wchar_t* text) { edit.SetText(text); };
    // What a user sees in passing is not what is meant: only numbers within the bounds count while typing.
    for (const wchar_t* text : {L"1", L"12"}) type(text);
    EXPECT_EQ(bench.Lines(), std::vector{Statement("browser.tabs.tabMinWidth", "100")});
    type(L"125");
    EXPECT_TRUE(bench.Lines().empty());
    for (const wchar_t* text : {L"", L"1", L"12", L"125"}) type(text);
    EXPECT_TRUE(bench.Lines().empty()) << "not an empty statement either";
    bench.Act(kWidth, L"126");
    bench.Act(kWidth, L"125");
    EXPECT_TRUE(bench.Lines().empty()) << "one click of the arrows also changes the focused edit";

    type(L"5");
    edit.SetFocused(false);
    EXPECT_EQ(bench.Lines(), std::vector{Statement("browser.tabs.tabMinWidth", "36")});
}

TEST(TFirefoxPage, TheDefaultButtonsOfThreeSheets) {
    TFirefoxBench bench;
    bench.Open("browser.startup.homepage", "\"a\"");
    for (const wchar_t* box : {kBlink, kAutoFill, kSize, kAddressBar}) bench.Preset(box, true);
    for (const wchar_t* box : {kGoButton, kInTab}) bench.Preset(box, false);
    for (const wchar_t* radio : {kErrorPage, kDelay, kSameTab}) bench.Preset(radio, true);
    for (const wchar_t* sheet : {L"Common", L"Use", L"Popup"})
        bench.Act(L"Button_Firefox_" + std::wstring(sheet) + L"_Default", L"");
    for (const wchar_t* on : {kErrorBox, kGoButton, kAsWindows, kInTab, kNewTab})
        EXPECT_TRUE(bench.Checked(on)) << testing::PrintToString(on);
    for (const wchar_t* off : {kBlink, kAutoFill, kSize, kMinimize, kMenuBar, kAddressBar, kScrollBars})
        EXPECT_FALSE(bench.Checked(off)) << testing::PrintToString(off);
    EXPECT_EQ(bench.State(kHomePage), L"a");
    EXPECT_EQ(bench.Recorded, 12) << "as often as a user had to click";
    EXPECT_EQ(bench.Context.Firefox.GetFirefoxPref(L"\"dom.disable_window_open_feature.menubar\""), L"True");
}

TEST(TFirefoxPage, EveryVisitLooksForFirefoxAndItsProfile) {
    EXPECT_TRUE(FirefoxPage().LoadsEveryVisit);
    TFirefoxBench bench;
    bench.Open("browser.blink_allowed", "false");
    EXPECT_FALSE(bench.Offered(L"TabSheet_Firefox_NoFirefox"));
    EXPECT_EQ(bench.Get<TPageControl>(L"PagFirefox").OfferedSheets().size(), 4u);

    bench.Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    bench.Open("browser.blink_allowed", "true");
    EXPECT_EQ(bench.Get<TPageControl>(L"PagFirefox").OfferedSheets(),
              std::vector{&bench.Get<TTabSheet>(L"TabSheet_Firefox_NoFirefox")});
    EXPECT_TRUE(bench.Checked(kBlink)) << "nothing is read";

    bench.Fake.Registry.ClearFaults();
    bench.Click(kBlink, false);
    bench.Open("browser.blink_allowed", "false");
    EXPECT_FALSE(bench.Offered(L"TabSheet_Firefox_NoFirefox")) << "installed meanwhile";
    EXPECT_TRUE(bench.Checked(kBlink)) << "what was not applied is dropped";
    EXPECT_TRUE(bench.Context.FirefoxChanged);
}

}  // namespace
