#include "settings/net/security_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kActive = L"Checkbox_Security_Center_Active";
constexpr const wchar_t* kNoFirewall = L"Checkbox_Security_Center_SC_NoFirewall";
constexpr const wchar_t* kExpired = L"Checkbox_Security_Center_SC_SecuritySoftwareExpired";
constexpr const wchar_t* kSeconds = L"Updown_Security_Advanced_Screensaver_WaitTime";
constexpr const wchar_t* kSecondsEdit = L"Edit_Security_Advanced_Screensaver_WaitTime";

constexpr const wchar_t* kWarnings[] = {L"Checkbox_Security_Center_SC_NoAntivirusSoftware", kNoFirewall,
                                        kExpired};

TEST(TSecurityPage, TheServicesDecideWhatCanBeSwitched) {
    struct TCase {
        int Level;
        bool SharedAccess;
        std::optional<TServiceState> Center;
        bool Shows;
        bool Enabled;
        bool Warnings;
    };
    const TCase cases[] = {
        {4, true, std::nullopt, false, false, false},
        {5, false, TServiceState::Running, true, false, false},  // the Security Center itself is asked last
        {5, true, TServiceState::Running, true, true, true},
        {6, false, TServiceState::Running, true, true, true},
        {7, false, TServiceState::StartPending, false, true, false},
        {7, false, std::nullopt, false, true, false},
    };
    for (const TCase& c : cases) {
        TPageBench bench(SecurityPage());
        bench.Context.WindowsLevel = c.Level;
        bench.Preset(kActive, true);
        if (c.SharedAccess) bench.Fake.Services.Put(L"SharedAccess", {.State = TServiceState::Running});
        if (c.Center) bench.Fake.Services.Put(L"wscsvc", {.State = *c.Center});
        bench.Load();
        EXPECT_EQ(bench.Checked(kActive), c.Shows) << c.Level;
        EXPECT_EQ(bench.Get<TCheckBox>(kActive).Enabled(), c.Enabled) << c.Level;
        for (const wchar_t* warning : kWarnings)
            EXPECT_EQ(bench.Get<TCheckBox>(warning).Enabled(), c.Warnings) << c.Level;
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
    constexpr const wchar_t* kCenter = L"SOFTWARE\\Microsoft\\Security Center";
    constexpr TPlace kUntilXpValue{kLocalMachine, kCenter, L"UpdatesDisableNotify"};
    constexpr TPlace kSinceVistaValue{kLocalMachine, kCenter, L"AutoUpdateDisableNotify"};
    constexpr TPlace kGrace{kLocalMachine, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon",
                            L"ScreenSaverGracePeriod"};
    const TShownCase cases[] = {
        {kNoFirewall, {kLocalMachine, kCenter, L"FirewallDisableNotify"}, Number(0), L"on"},
        {kExpired, kUntilXpValue, Number(0), L"on", 5},
        {kExpired, kUntilXpValue, Number(0), L"kept", 6},
        {kExpired, kSinceVistaValue, Number(2), L"on", 6},
        {kSecondsEdit, kGrace, std::nullopt, L"5"},
        {kSecondsEdit, kGrace, String(L"120"), L"120"},
        {kSeconds, kGrace, String(L"soon"), L"kept"},
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
                  std::vector{std::wstring(kExpired) + L": HKLM\\SOFTWARE\\Microsoft\\Security Center\\[" +
                              name + L"] = 0"});
    }
}

TEST(TSecurityPage, RecordsTheGracePeriodAsItIsTyped) {
    TPageBench bench(SecurityPage());
    const auto expectRecorded = [&](const wchar_t* text) {
        EXPECT_EQ(bench.Pending(),
                  std::vector{std::wstring(kSeconds) +
                              L": HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\"
                              L"[ScreenSaverGracePeriod] = \"" +
                              text + L'"'});
    };
    bench.Act(kSeconds, L"7");
    expectRecorded(L"7");
    bench.Act(kSecondsEdit, L"0");
    expectRecorded(L"0");
    bench.Get<TEdit>(kSecondsEdit).SetFocused(false);
    expectRecorded(L"1");
}

}  // namespace
