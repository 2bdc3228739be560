#include "settings/shell/display_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kDrag = L"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag";
constexpr const wchar_t* kToolTip = L"Checkbox_Display_Animation_MessageAndAnimation_ToolTip";
constexpr const wchar_t* kToolTipType = L"CB_Display_Animation_MessageAndAnimation_ToolTipType";
constexpr const wchar_t* kMenu = L"Checkbox_Display_MenuAppearance_WindowsAndMessage_UseType";
constexpr const wchar_t* kMenuType = L"CB_Display_MenuAppearance_WindowsAndMessage_UseType";
constexpr const wchar_t* kHotTracking = L"Checkbox_Display_Effect_BehaviorSettings_ToolTip";
constexpr const wchar_t* kFlat = L"Checkbox_Display_MenuAppearance_DynamicElements_GraphicMenu";
constexpr const wchar_t* kVersion = L"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion";
constexpr const wchar_t* kScroll = L"Checkbox_Display_Animation_DynamicElements_ListAndTree";
constexpr const wchar_t* kListBox = L"Checkbox_Display_Animation_DynamicElements_SmoothListBox";
constexpr const wchar_t* kFolder = L"Checkbox_Display_Effect_BehaviorSettings_Folder";
constexpr const wchar_t* kMaxAndMin = L"Checkbox_Display_Animation_MessageAndAnimation_MaxAndMin";
constexpr const wchar_t* kSmooth = L"CB_Display_FontSmooth_SmoothType";

constexpr TPlace kPaintVersion{kCurrentUser, L"Control Panel\\Desktop", L"PaintDesktopVersion"};
constexpr TPlace kSmoothScroll{kCurrentUser, L"Control Panel\\Desktop", L"SmoothScroll"};

std::wstring Line(const wchar_t* name, const wchar_t* rest) { return name + std::wstring(L": ") + rest; }

TEST(TDisplayPage, ShowsRegistryValues) {
    const TShownCase cases[] = {
        {kVersion, kPaintVersion, Number(0), L"off"},
        {kVersion, kPaintVersion, String(L"2"), L"on"},
        {kVersion, kPaintVersion, std::nullopt, L"kept"},
        {kScroll, kSmoothScroll, String(L""), L"off"},
        {kScroll, kSmoothScroll, Number(0), L"off"},
        {kScroll, kSmoothScroll, Bytes({1, 0, 0, 0}), L"on"},
        {kScroll, kSmoothScroll, String(L"yes"), L"on"},
    };
    ExpectShown(DisplayPage(), cases);
}

TEST(TDisplayPage, ShowsSystemParameters) {
    struct TCase {
        std::uint32_t Action;
        std::uint32_t Number;
        const wchar_t* Control;
        const wchar_t* Shows;
        int Level = 7;
    };
    const TCase cases[] = {
        {0x26, 1, kDrag, L"on"},         {0x26, 0xFFFFFF00, kDrag, L"off"},  // only the lowest byte counts
        {0x1018, 1, kToolTipType, L"1"}, {0x1018, 0, kToolTipType, L"0"},
        {0x1022, 1, kFlat, L"on", 5},    {0x1022, 1, kFlat, L"off", 4},
    };
    for (const TCase& c : cases) {
        TPageBench bench(DisplayPage());
        bench.Context.WindowsLevel = c.Level;
        bench.Fake.Parameters.PutNumber(c.Action, c.Number);
        bench.Load();
        EXPECT_EQ(bench.State(c.Control), c.Shows) << std::hex << c.Action;
        EXPECT_TRUE(bench.Pending().empty());
    }
    TPageBench bench(DisplayPage());
    bench.Fake.Parameters.Put(0x48, {8, 0, 0, 0, 0, 1, 0, 0});
    bench.Load();
    EXPECT_TRUE(bench.Checked(kMaxAndMin)) << "any number but 0";
}

TEST(TDisplayPage, Records) {
    const TRecordedCase cases[] = {
        {kDrag, L"on", {Line(kDrag, L"parameter 0x25(1, 0)")}},
        {kHotTracking, L"off", {Line(kHotTracking, L"parameter 0x100F(0, 0)")}, true},
        {kToolTipType, L"1", {Line(kToolTipType, L"parameter 0x1019(0, 1)")}},
        {kMaxAndMin, L"on", {Line(kMaxAndMin, L"parameter 0x49(8, 08 00 00 00 01 00 00 00)")}},
        {kListBox, L"on", {Line(kListBox, L"parameter 0x1007(0, 1)")}, true},
        {kFolder,
         L"off",
         {Line(kFolder,
               L"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\[WebView] = 0")},
         true},
        {kVersion, L"on", {Line(kVersion, L"HKCU\\Control Panel\\Desktop\\[PaintDesktopVersion] = 1")}, true},
    };
    ExpectRecorded(DisplayPage(), cases);

    TPageBench bench(DisplayPage());
    bench.Store(kSmoothScroll, String(L"0"));
    bench.Act(kScroll, L"on");
    EXPECT_EQ(bench.Pending(),
              std::vector{Line(kScroll, L"HKCU\\Control Panel\\Desktop\\[SmoothScroll] = \"1\"")})
        << "written in the type that is stored";
}

TEST(TDisplayPage, FontSmoothingIsTwoParameters) {
    struct TCase {
        int Level;
        std::uint32_t On;
        std::uint32_t Type;
        const wchar_t* Shows;
    };
    for (const TCase& c :
         {TCase{7, 0, 2, L"0"}, {7, 1, 1, L"1"}, {5, 1, 2, L"2"}, {7, 1, 3, L"-1"}, {4, 1, 2, L"1"}}) {
        TPageBench bench(DisplayPage());
        bench.Context.WindowsLevel = c.Level;
        bench.Fake.Parameters.PutNumber(0x4A, c.On);
        bench.Fake.Parameters.PutNumber(0x200A, c.Type);
        bench.Load();
        EXPECT_EQ(bench.State(kSmooth), c.Shows);
    }
    for (const int level : {4, 5}) {
        TPageBench bench(DisplayPage());
        bench.Context.WindowsLevel = level;
        bench.Act(kSmooth, L"2");
        std::vector<std::wstring> expected{L"CBfontset: parameter 0x4B(1, 0)"};
        if (level == 5) expected.emplace_back(L"CBfontset1: parameter 0x200B(0, 2)");
        EXPECT_EQ(bench.Pending(), expected);
        bench.Act(kSmooth, L"0");
        expected[0] = L"CBfontset: parameter 0x4B(0, 0)";
        EXPECT_EQ(bench.Pending(), expected) << "a type chosen before stays";
    }
}

TEST(TDisplayPage, TheAnimationBoxesTurnTheirListsOver) {
    for (const auto& [box, list] : {std::pair{kMenu, kMenuType}, {kToolTip, kToolTipType}}) {
        TPageBench bench(DisplayPage());
        bench.Load();
        TComboBox& type = bench.Get<TComboBox>(list);
        EXPECT_FALSE(type.Enabled()) << "the animation is off";
        type.SetEnabled(true);
        bench.Act(box, L"on");
        EXPECT_FALSE(type.Enabled()) << "whatever the box says";
        bench.Act(box, L"off");
        EXPECT_TRUE(type.Enabled());
    }
}

TEST(TDisplayPage, PresetsAreOddOnPurpose) {
    TPageBench bench(DisplayPage());
    bench.Act(L"Button_Display_Effect_HighestPerformance", L"");
    EXPECT_TRUE(bench.Checked(kHotTracking));
    EXPECT_EQ(bench.Recorded, 2) << "hot tracking and the folder tasks; nothing else changes";
    bench.Act(L"Button_Display_Effect_BestAppearance", L"");
    EXPECT_FALSE(bench.Checked(kHotTracking));
    EXPECT_TRUE(bench.Checked(kDrag));
    bench.Act(L"Button_Display_Animation_Default", L"");
    EXPECT_EQ(bench.State(kToolTipType), L"1");
    bench.Act(L"Button_Display_Animation_HighestPerformance", L"");
    EXPECT_EQ(bench.State(kToolTipType), L"1") << "not touched";
    bench.Act(L"Button_Display_MenuAppearance_HighestPerformance", L"");
    EXPECT_TRUE(bench.Checked(kFlat));
    EXPECT_EQ(bench.State(kMenuType), L"-1") << "not touched";
}

}  // namespace
