#include "settings/shell/input_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kDoubleClick = L"Updown_Use_MouseSensitivity_DoubleClickError";
constexpr const wchar_t* kDrag = L"UpDown_Use_MouseSensitivity_Drag";
constexpr const wchar_t* kMoveError = L"UpDown_Use_MouseSensitivity_Hover_MoveError";
constexpr const wchar_t* kSwap = L"Checkbox_Use_MouseFunction_ChangeKey_Change";
constexpr const wchar_t* kByRow = L"Radio_Use_MouseFunction_Wheel_RollRow";
constexpr const wchar_t* kByPage = L"Radio_Use_MouseFunction_Wheel_RollPage";
constexpr const wchar_t* kCount = L"UpDown_Use_MouseFunction_Wheel_Count";
constexpr const wchar_t* kCountEdit = L"Edit_Use_MouseFunction_Wheel_Count";
constexpr const wchar_t* kTrails = L"Checkbox_Use_MouseFunction_Trails_Show";
constexpr const wchar_t* kTrailLength = L"TrackBar_Use_MouseFunction_Trails_Length";
constexpr const wchar_t* kSnap = L"Checkbox_Use_MouseFunction_Pointer_Snap";
constexpr const wchar_t* kBlink = L"TrackBar_Use_Keyboard_BlinkingCursor_Speed";
constexpr const wchar_t* kWidth = L"UpDown_Use_Keyboard_CursorWidth_Width";
constexpr const wchar_t* kNumLock = L"Checkbox_Use_Keyboard_NumLock_Active";
constexpr const wchar_t* kWinKey = L"Checkbox_Use_Keyboard_WinKey_Active";

std::wstring After(const wchar_t* name, const wchar_t* rest) { return std::wstring(name) + rest; }

TEST(TInputPage, ShowsWhatTheRegistryHolds) {
    const TPlace doubleClick{kCurrentUser, L"\\Control Panel\\Mouse", L"DoubleClickWidth"};
    const TPlace swap{kCurrentUser, L"\\Control Panel\\Mouse", L"SwapMouseButtons"};
    const TPlace drag{kCurrentUser, L"\\Control Panel\\Desktop", L"DragWidth"};
    const TPlace blink{kCurrentUser, L"\\Control Panel\\Desktop", L"CursorBlinkRate"};
    const TPlace winKey{kCurrentUser, L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
                        L"NoWinKeys"};
    const TPlace lights{kCurrentUser, L"Control Panel\\Keyboard", L"InitialKeyboardIndicators"};
    const TShownCase shown[] = {
        {kDoubleClick, doubleClick, String(L"9"), L"9"},
        {kDoubleClick, doubleClick, std::nullopt, L"4"},
        {kDrag, drag, String(L"400"), L"100"},
        {kSwap, swap, String(L"1"), L"on"},
        {kSwap, swap, String(L"0"), L"off"},
        {kBlink, blink, String(L"530"), L"2000"},
        {kBlink, blink, String(L"1200"), L"1330"},
        {kBlink, blink, String(L"200"), L"2330"},
        {kBlink, blink, String(L"-1"), L"1230"},
        {kBlink, blink, String(L"5000"), L"1330"},  // it blinks, however slowly
        {kBlink, blink, Number(INT32_MIN), L"2330"},
        {kBlink, blink, String(L"often"), L"kept"},
        {kNumLock, lights, String(L"3"), L"on"},
        {kNumLock, lights, String(L"1"), L"off"},
        {kWinKey, winKey, std::nullopt, L"on"},
        {kWinKey, winKey, Number(1), L"off"},
    };
    ExpectShown(InputPage(), shown);
}

TEST(TInputPage, RecordsInTheArgumentThatWindowsReads) {
    const TRecordedCase recorded[] = {
        {kDoubleClick,
         L"6",
         {After(kDoubleClick, L": parameter 0x1D(6, 0)"), After(kDoubleClick, L"1: parameter 0x1E(6, 0)")}},
        {kDrag, L"6", {After(kDrag, L": parameter 0x4C(6, 0)"), After(kDrag, L"1: parameter 0x4D(6, 0)")}},
        {kMoveError,
         L"0",
         {After(kMoveError, L": parameter 0x63(0, 0)"), After(kMoveError, L"1: parameter 0x65(0, 0)")}},
        {kSwap, L"on", {After(kSwap, L": parameter 0x21(1, 0)")}},
        {kSnap, L"on", {After(kSnap, L": parameter 0x60(1, 0)")}},
        {L"Checkbox_Use_MouseFunction_Pointer_Sonar",
         L"on",
         {L"Checkbox_Use_MouseFunction_Pointer_Sonar: parameter 0x101D(0, 1)"}},
        {kWidth, L"10", {After(kWidth, L": parameter 0x2007(0, 10)")}},
        {kBlink,
         L"1330",
         {After(kBlink, L": HKCU\\Control Panel\\Desktop\\[CursorBlinkRate] = \"1200\"")},
         true},
        {kBlink,
         L"1329",
         {After(kBlink, L": HKCU\\Control Panel\\Desktop\\[CursorBlinkRate] = \"-1\"")},
         true},
        {kNumLock,
         L"on",
         {kNumLock + std::wstring(L": HKCU\\Control Panel\\Keyboard\\[InitialKeyboardIndicators] = \"2\"")}},
        {kWinKey,
         L"on",
         {After(kWinKey,
                L": HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\"
                L"[NoWinKeys] = 0")},
         true},
    };
    ExpectRecorded(InputPage(), recorded);
}

TEST(TInputPage, TheWheelRollsLinesOrPages) {
    TPageBench bench(InputPage());
    bench.Fake.Parameters.PutNumber(0x68, 0xFFFFFFFF);
    bench.Load();
    EXPECT_TRUE(bench.Checked(kByPage));
    EXPECT_FALSE(bench.Checked(kByRow));
    EXPECT_FALSE(bench.Get<TEdit>(kCountEdit).Enabled());
    EXPECT_EQ(bench.State(kCount), L"3") << "a page is no number of lines";

    bench.Act(kByRow, L"on");
    EXPECT_TRUE(bench.Get<TEdit>(kCountEdit).Enabled());
    bench.Act(kCountEdit, L"250");
    EXPECT_EQ(bench.Pending(), std::vector<std::wstring>{L"RadWheelRoll: parameter 0x69(100, 0)"});
    bench.Act(kByPage, L"on");
    EXPECT_EQ(bench.Pending(), std::vector<std::wstring>{L"RadWheelRoll: parameter 0x69(4294967295, 0)"});

    bench.Get<TButton>(L"Button_Use_MouseFunction_Default").Click();
    EXPECT_EQ(bench.Pending()[0], L"RadWheelRoll: parameter 0x69(3, 0)");
    EXPECT_TRUE(bench.Get<TEdit>(kCountEdit).Enabled());
}

TEST(TInputPage, ATrailIsAtLeastTwoPointers) {
    for (const auto& [stored, shown, length] : {std::tuple{0U, false, 7}, {1U, false, 7}, {4U, true, 4}}) {
        TPageBench bench(InputPage());
        bench.Context.WindowsLevel = 5;
        bench.Fake.Parameters.PutNumber(0x5E, stored);
        bench.Load();
        EXPECT_EQ(bench.Checked(kTrails), shown);
        EXPECT_EQ(bench.State(kTrailLength), std::to_wstring(length));
        EXPECT_EQ(bench.Get<TTrackBar>(kTrailLength).Enabled(), shown);
        bench.Act(kTrails, shown ? L"off" : L"on");
        EXPECT_EQ(bench.Pending(),
                  std::vector{After(kTrails, shown ? L": parameter 0x5D(0, 0)" : L": parameter 0x5D(7, 0)")});
    }
}

}  // namespace
