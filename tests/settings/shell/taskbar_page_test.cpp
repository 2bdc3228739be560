#include "settings/shell/taskbar_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kActive = L"Checkbox_Taskbar_ButtonFlashes_Active";
constexpr const wchar_t* kTime = L"UpDown_Taskbar_ButtonFlashes_Common_Time";
constexpr const wchar_t* kTimeEdit = L"Edit_Taskbar_ButtonFlashes_Common_Time";
constexpr const wchar_t* kArrange = L"CB_Taskbar_MinWindow_Arrange";
constexpr const wchar_t* kLeft = L"CB_Taskbar_MinWindow_Left";
constexpr const wchar_t* kTop = L"CB_Taskbar_MinWindow_Top";
constexpr const wchar_t* kVolume = L"Checkbox_Taskbar_Notification_Icons_Volume";
constexpr const wchar_t* kCount = L"UpDown_Taskbar_ButtonAppearance_Group_AtLeastCount";
constexpr const wchar_t* kPolicies = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";
constexpr const wchar_t* kAdvanced = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\";

TEST(TTaskbarPage, TheLockTimeoutIsABoxAndSeconds) {
    struct TCase {
        std::uint32_t Milliseconds;
        bool Locks;
        int Seconds;
    };
    for (const TCase& c : {TCase{200000, true, 200}, {1, true, 1}, {1001, true, 2}, {0, false, 200}}) {
        TPageBench bench(TaskbarPage());
        bench.Fake.Parameters.PutNumber(0x2000, c.Milliseconds);
        bench.Load();
        EXPECT_EQ(bench.Checked(kActive), c.Locks);
        EXPECT_EQ(bench.State(kTime), std::to_wstring(c.Seconds));
        EXPECT_EQ(bench.Get<TEdit>(kTimeEdit).Enabled(), c.Locks);
    }
    TPageBench bench(TaskbarPage());
    bench.Act(kActive, L"on");
    bench.Act(kTimeEdit, L"32");
    EXPECT_EQ(bench.Pending(), std::vector{kActive + std::wstring(L": parameter 0x2001(0, 32000)")});
    bench.Act(kActive, L"off");
    EXPECT_EQ(bench.Pending(), std::vector{kActive + std::wstring(L": parameter 0x2001(0, 0)")});
}

TEST(TTaskbarPage, ThreeListsMakeOneArrangement) {
    struct TCase {
        std::uint8_t Arrange;
        const wchar_t* States[3];
    };
    const TCase cases[] = {{0x08, {L"0", L"0", L"1"}},
                           {0x00, {L"1", L"0", L"1"}},
                           {0x05, {L"2", L"1", L"1"}},
                           {0x0B, {L"0", L"1", L"0"}}};
    for (const TCase& c : cases) {
        TPageBench bench(TaskbarPage());
        bench.Fake.Parameters.Put(0x2B,
                                  {20, 0, 0, 0, 160, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0, c.Arrange, 0, 0, 0});
        bench.Load();
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(bench.State((const wchar_t*[]){kArrange, kLeft, kTop}[i]), c.States[i])
                << int{c.Arrange};
        bench.Act(kTop, c.States[2][0] == L'1' ? L"0" : L"1");
        const std::uint8_t changed = c.Arrange ^ 0x02;
        EXPECT_EQ(
            bench.Pending(),
            std::vector{L"Cmblocal: parameter 0x2C(20, 14 00 00 00 A0 00 00 00 01 00 00 00 02 00 00 00 0" +
                        std::wstring(1, L"0123456789AB"[changed]) + L" 00 00 00)"});
    }
}

TEST(TTaskbarPage, ShowsAndRecordsValues) {
    const TPlace volume{kCurrentUser, kPolicies, L"HideSCAVolume"};
    const TPlace size{kCurrentUser, kAdvanced, L"TaskbarGroupSize"};
    const TPlace combine{kCurrentUser, kAdvanced, L"TaskbarGlomLevel"};
    const TShownCase shown[] = {
        {kVolume, volume, Number(1), L"off"},
        {kVolume, volume, std::nullopt, L"on"},
        {kVolume, volume, Number(1), L"kept", 5},
        {kCount, size, Number(4), L"4", 6},
        {kCount, size, Number(1), L"2", 5},
        {kCount, size, Number(4), L"kept", 7},
        {L"CB_Taskbar_ButtonAppearance_Look_Combine", combine, Number(2), L"2"},
    };
    ExpectShown(TaskbarPage(), shown);
    const TRecordedCase recorded[] = {
        {kVolume, L"off", {kVolume + std::wstring(L": HKCU") + kPolicies + L"[HideSCAVolume] = 1"}, true},
        {kCount, L"5", {kCount + std::wstring(L": HKCU") + kAdvanced + L"[TaskbarGroupSize] = 5"}, true},
        {L"UpDown_Taskbar_ButtonFlashes_Speed_Flash",
         L"9",
         {L"UpDown_Taskbar_ButtonFlashes_Speed_Flash: parameter 0x2005(0, 9)"}},
    };
    ExpectRecorded(TaskbarPage(), recorded);
}

}  // namespace
