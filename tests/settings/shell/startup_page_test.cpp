#include "settings/shell/startup_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kDefrag = L"Checkbox_Startup_System_Defrag_Enable";
constexpr const wchar_t* kNoLogo = L"Checkbox_Startup_System_ErrorMessage_Enable";
constexpr const wchar_t* kDelay = L"Updown_Startup_System_DelayTime_Time";
constexpr const wchar_t* kWait = L"UpDown_Startup_Exit_WaitTime_Time";
constexpr const wchar_t* kAutoClose = L"Radio_Startup_Exit_AutoClose_AutoClose";
constexpr const wchar_t* kAsk = L"Radio_Startup_Exit_AutoClose_ShowCloseDialog";
constexpr const wchar_t* kRestartExplorer = L"Checkbox_Startup_DesktopAndTaskbar_AutoRestartExplorer_AutoRun";
constexpr const wchar_t* kOwnProcess = L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Process";
constexpr const wchar_t* kOneProcess = L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Explorer";
constexpr const wchar_t* kBeep = L"Checkbox_Startup_Error_Sound_beep";
constexpr const wchar_t* kLog = L"Checkbox_Startup_Error_SystemError_Log";
constexpr const wchar_t* kCrash = L"CB_Startup_Error_SystemError_Type";

constexpr const wchar_t* kDesktop = L"\\Control Panel\\Desktop\\";
constexpr TPlace kBootFiles{kLocalMachine, L"\\SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction\\", L"Enable"};
constexpr TPlace kOptions{kLocalMachine, L"\\SYSTEM\\CurrentControlSet\\Control\\", L"SystemStartOptions"};
constexpr TPlace kHung{kCurrentUser, kDesktop, L"HungAppTimeout"};
constexpr TPlace kEndTasks{kCurrentUser, kDesktop, L"AutoEndTasks"};
constexpr TPlace kAutoCheck{kLocalMachine, L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\",
                            L"AutoChkTimeOut"};
constexpr TPlace kSeparate{kCurrentUser,
                           L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\",
                           L"SeparateProcess"};
constexpr TPlace kReboot{kLocalMachine, L"\\SYSTEM\\CurrentControlSet\\Control\\CrashControl\\",
                         L"AutoReboot"};

TEST(TStartupPage, ShowsWhatIsStored) {
    const TShownCase cases[] = {
        {kDefrag, kBootFiles, String(L"Y"), L"on"},
        {kDefrag, kBootFiles, String(L"yes"), L"off"},
        {kNoLogo, kOptions, String(L"noexecute=optin  fastdetect  tutag=ztasz8 noguiboot"), L"on"},
        {kNoLogo, kOptions, String(L"NOEXECUTE=OPTIN FASTDETECT TUTAG=ZTASZ8 NOGUIBOOT"), L"off"},
        {kDelay, kAutoCheck, std::nullopt, L"10"},
        {L"Edit_Startup_Exit_WaitTime_Time", kHung, String(L"5000"), L"5000"},
        {kWait, kHung, String(L"soon"), L"32000"},
        {kAutoClose, kEndTasks, std::nullopt, L"on"},
        {kAutoClose, kEndTasks, String(L"1"), L"on"},
        {kAsk, kEndTasks, String(L"2"), L"on"},
        {kOneProcess, kSeparate, std::nullopt, L"on"},
        {kOwnProcess, kSeparate, Number(1), L"on"},
        {kCrash, kReboot, Number(1), L"1"},
    };
    ExpectShown(StartupPage(), cases);
}

TEST(TStartupPage, ATimeThatIsNoNumberStopsNothing) {
    TPageBench bench(StartupPage());
    bench.Store(kHung, String(L"soon"));
    bench.Store(kEndTasks, String(L"0"));
    bench.Store(kReboot, 1);
    bench.Fake.Parameters.PutNumber(1, 1);
    bench.Load();
    EXPECT_TRUE(bench.Checked(kAsk));
    EXPECT_TRUE(bench.Checked(kBeep));
    EXPECT_EQ(bench.State(kCrash), L"1");
}

TEST(TStartupPage, ACrashTypeThatIsNoItemChoosesNone) {
    TPageBench bench(StartupPage());
    bench.Get<TComboBox>(kCrash).Reinitialise();
    bench.Load();
    EXPECT_EQ(bench.State(kCrash), L"0");
    bench.Store(kReboot, 2);
    bench.Load();
    EXPECT_EQ(bench.State(kCrash), L"-1");
}

TEST(TStartupPage, RecordsWhatTheUserChooses) {
    const std::wstring options =
        L"HKLM\\SYSTEM\\CurrentControlSet\\Control\\[SystemStartOptions] = \"NOEXECUTE=OPTIN  FASTDETECT  "
        L"TUTAG=ZTASZ8";
    const std::wstring bootFiles = L"HKLM\\SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction\\[Enable] = ";
    const std::wstring endTasks =
        kAutoClose + std::wstring(L": HKCU\\Control Panel\\Desktop\\[AutoEndTasks] = ");
    const std::wstring process =
        L"RadProcess: HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\"
        L"[SeparateProcess] = ";
    const auto named = [](const wchar_t* name, const std::wstring& line) {
        return std::vector{name + (L": " + line)};
    };
    const TRecordedCase cases[] = {
        {kDefrag, L"on", named(kDefrag, bootFiles + L"\"y\"")},
        {kDefrag, L"off", named(kDefrag, bootFiles + L"\"N\"")},
        {kNoLogo, L"on", named(kNoLogo, options + L" NOGUIBOOT\"")},
        {kNoLogo, L"off", named(kNoLogo, options + L"\"")},
        {L"Edit_Startup_System_DelayTime_Time", L"601",
         named(kDelay, L"HKLM\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\[AutoChkTimeOut] = 600")},
        {kWait, L"700", named(kWait, L"HKCU\\Control Panel\\Desktop\\[HungAppTimeout] = \"700\"")},
        {kAutoClose, L"on", {endTasks + L"\"1\""}},
        {kAsk, L"on", {endTasks + L"\"0\""}},
        {kRestartExplorer, L"on",
         named(kRestartExplorer,
               L"HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\[AutoRestartShell] = 1"),
         true},
        {kOwnProcess, L"on", {process + L"1"}, true},
        {kBeep, L"on", named(kBeep, L"parameter 0x2(1, 0)")},
        {kBeep, L"off", named(kBeep, L"parameter 0x2(0, 0)")},
        {kCrash, L"1",
         named(kCrash, L"HKLM\\SYSTEM\\CurrentControlSet\\Control\\CrashControl\\[AutoReboot] = 1")},
    };
    ExpectRecorded(StartupPage(), cases);
}

TEST(TStartupPage, DefaultButtonsChooseTheUsualSettings) {
    TPageBench bench(StartupPage());
    bench.Preset(kOwnProcess, true);
    bench.Preset(kNoLogo, true);
    for (const wchar_t* button :
         {L"Button_Startup_System_Default", L"Button_Startup_Exit_Default",
          L"Button_Startup_DesktopAndTaskbar_Default", L"Button_Startup_Error_Default"})
        bench.Act(button, {});
    const std::pair<const wchar_t*, const wchar_t*> expected[] = {
        {kDelay, L"10"},      {kWait, L"5000"}, {kAutoClose, L"on"}, {kRestartExplorer, L"on"},
        {kOneProcess, L"on"}, {kBeep, L"on"},   {kLog, L"on"},       {kCrash, L"0"},
    };
    for (const auto& [control, state] : expected)
        EXPECT_EQ(bench.State(control), state) << testing::PrintToString(control);
    EXPECT_TRUE(bench.Checked(kNoLogo)) << "no button's business";
    EXPECT_EQ(bench.Pending().size(), 7u) << "what was so already records nothing";
}

}  // namespace
