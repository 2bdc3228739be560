#include "settings/net/security_page.h"

#include "tests/settings/page_bench.h"

namespace {

#define CENTER L"SOFTWARE\\Microsoft\\Security Center"
#define WINLOGON L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon"
#define SECONDS L"Updown_Security_Advanced_Screensaver_WaitTime"
constexpr const wchar_t* kActive = L"Checkbox_Security_Center_Active";
constexpr const wchar_t* kWarnings[] = {L"Checkbox_Security_Center_SC_NoAntivirusSoftware",
                                        L"Checkbox_Security_Center_SC_NoFirewall",
                                        L"Checkbox_Security_Center_SC_SecuritySoftwareExpired"};
constexpr const wchar_t* kExpired = kWarnings[2];
constexpr const wchar_t* kSecondsEdit = L"Edit_Security_Advanced_Screensaver_WaitTime";

TEST(TSecurityPage, TheServicesDecideWhatCanBeSwitched) {
    using enum TServiceState;
    struct TCase {
        int Level;
        bool SharedAccess;
        std::optional<TServiceState> Center;
        bool Shows;
        bool Enabled;
    };
    const TCase cases[] = {
        {4, true, std::nullopt, false, false}, {5, false, Running, true, false},  // the center is asked last
        {5, true, Running, true, true},        {6, false, Running, true, true},
        {7, false, StartPending, false, true}, {7, false, std::nullopt, false, true},
    };
    for (const TCase& c : cases) {
        TPageBench bench(SecurityPage());
        bench.Context.WindowsLevel = c.Level;
        bench.Preset(kActive, true);
        if (c.SharedAccess) bench.Fake.Services.Put(L"SharedAccess", {.State = Running});
        if (c.Center) bench.Fake.Services.Put(L"wscsvc", {.State = *c.Center});
        bench.Load();
        EXPECT_EQ(bench.Checked(kActive), c.Shows) << c.Level;
        EXPECT_EQ(bench.Get<TCheckBox>(kActive).Enabled(), c.Enabled) << c.Level;
        for (const wchar_t* warning : kWarnings)
            EXPECT_EQ(bench.Get<TCheckBox>(warning).Enabled(), c.Shows && c.Enabled) << c.Level;
    }
}

TEST(TSecurityPage, SwitchingTheSecurityCenterIsLeftToApply) {
    TPageBench bench(SecurityPage());
    for (const bool on : {true, false}) {
        bench.Click(kActive, on);
        EXPECT_EQ(bench.Context.SecurityCenterAction, on ? TServiceAction::Enable : TServiceAction::Disable);
        for (const wchar_t* warning : kWarnings) EXPECT_EQ(bench.Get<TCheckBox>(warning).Enabled(), on);
    }
    EXPECT_TRUE(bench.Pending().empty());
    EXPECT_EQ(bench.Recorded, 2);
}

TEST(TSecurityPage, ShowsStoredValues) {
    constexpr TPlace kUntilXp{kLocalMachine, CENTER, L"UpdatesDisableNotify"};
    constexpr TPlace kSinceVista{kLocalMachine, CENTER, L"AutoUpdateDisableNotify"};
    constexpr TPlace kGrace{kLocalMachine, WINLOGON, L"ScreenSaverGracePeriod"};
    const TShownCase cases[] = {
        {kWarnings[1], {kLocalMachine, CENTER, L"FirewallDisableNotify"}, Number(0), L"on"},
        {kExpired, kUntilXp, Number(0), L"on", 5},
        {kExpired, kUntilXp, Number(0), L"kept", 6},
        {kExpired, kSinceVista, Number(2), L"on", 6},
        {kSecondsEdit, kGrace, std::nullopt, L"5"},
        {kSecondsEdit, kGrace, String(L"120"), L"120"},
        {SECONDS, kGrace, String(L"soon"), L"kept"},
    };
    ExpectShown(SecurityPage(), cases);
}

TEST(TSecurityPage, RecordsTheWarningOfOutdatedSoftwareWhereWindowsHasIt) {
    for (const auto& [level, name] :
         {std::pair{5, L"UpdatesDisableNotify"}, {6, L"AutoUpdateDisableNotify"}}) {
        TPageBench bench(SecurityPage());
        bench.Context.WindowsLevel = level;
        bench.Click(kExpired, true);
        EXPECT_EQ(bench.Pending(),
                  std::vector{std::wstring(kExpired) + L": HKLM\\" CENTER L"\\[" + name + L"] = 0"});
    }
}

TEST(TSecurityPage, RecordsTheGracePeriodAsItIsTyped) {
    TPageBench bench(SecurityPage());
    const auto expectRecorded = [&](const wchar_t* text) {
        EXPECT_EQ(bench.Pending(),
                  std::vector{SECONDS L": HKLM\\" WINLOGON L"\\[ScreenSaverGracePeriod] = \"" +
                              std::wstring(text) + L'"'});
    };
    bench.Act(SECONDS, L"7");
    expectRecorded(L"7");
    bench.Act(kSecondsEdit, L"0");
    expectRecorded(L"0");
    bench.Get<TEdit>(kSecondsEdit).SetFocused(false);
    expectRecorded(L"1");
}

}  // namespace
