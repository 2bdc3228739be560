#include "settings/net/network_page.h"

#include "tests/settings/page_bench.h"

namespace {

#define TASK L"Checkbox_Net_Neighbor_Common_Task"
#define PRINTER L"Checkbox_Net_Neighbor_Common_Printer"
#define ADD L"Checkbox_Net_Neighbor_Common_Add"
#define UPNP L"Checkbox_Net_Advanced_UPnp_Enable"
#define QOS L"Checkbox_Net_Advanced_Qos_Keep"
#define QOS_PERCENT L"Updown_Net_Advanced_Qos_Count"
#define QOS_EDIT L"Edit_Net_Advanced_Qos_Count"
#define ASK L"Radio_Net_Internet_CloseConnection_Ask"
#define NO_CLOSE L"Radio_Net_Internet_CloseConnection_NoClose"
#define FIREWALL L"Checkbox_Net_Internet_WindowsFirewall_Enable"

#define NAME_SPACE L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace\\"
#define SERVICES L"SYSTEM\\CurrentControlSet\\Services\\"
#define WINLOGON L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\"
#define SCHEDULER L"SOFTWARE\\Policies\\Microsoft\\Windows\\PSched\\"
#define PROFILE SERVICES L"SharedAccess\\Parameters\\FirewallPolicy\\StandardProfile\\"
constexpr TPlace kTaskKey{kLocalMachine, NAME_SPACE L"{D6277990-4C6A-11CF-8D87-00AA0060F5BF}", L""};
constexpr TPlace kPrinterKey{kLocalMachine, NAME_SPACE L"{2227A280-3AEA-1069-A2DE-08002B30309D}", L""};
constexpr TPlace kAddValue{kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
                           L"NoRecentDocsNetHood"};
constexpr TPlace kUPnpValue{kLocalMachine, SERVICES L"SSDPSRV", L"Start"};
constexpr TPlace kQosValue{kLocalMachine, SCHEDULER, L"NonBestEffortLimit"};
constexpr TPlace kKeep{kLocalMachine, WINLOGON, L"KeepRASConnections"};
constexpr TPlace kFirewallValue{kLocalMachine, PROFILE, L"EnableFirewall"};

TEST(TNetworkPage, ShowsAndRecordsValues) {
    const TShownCase shown[] = {
        {TASK, kTaskKey, String(L""), L"on", 5},
        {TASK, kTaskKey, String(L"1"), L"kept", 6},
        {PRINTER, kPrinterKey, String(L"Printers"), L"on", 6},
        {PRINTER, kPrinterKey, String(L"Printers"), L"kept", 5},
        {ADD, kAddValue, Number(2), L"off"},
        {UPNP, kUPnpValue, Number(3), L"on"},
        {ASK, kKeep, std::nullopt, L"on"},
        {NO_CLOSE, kKeep, String(L"2"), L"on"},
        {QOS, kQosValue, std::nullopt, L"on"},
        {QOS_PERCENT, kQosValue, std::nullopt, L"kept"},
        {QOS_EDIT, kQosValue, Number(35), L"35"},
        {QOS, kQosValue, Bytes(TBytes(8, 1)), L"off"},
        {FIREWALL, kFirewallValue, std::nullopt, L"on", 5},
    };
    ExpectShown(NetworkPage(), shown);
    const TRecordedCase recorded[] = {
        {TASK, L"off", {TASK L": delete HKLM\\" NAME_SPACE L"{D6277990-4C6A-11CF-8D87-00AA0060F5BF}"}},
        {PRINTER,
         L"on",
         {PRINTER L": HKLM\\" NAME_SPACE L"{2227A280-3AEA-1069-A2DE-08002B30309D}[] = \"Printers\""}},
        {UPNP,
         L"off",
         {UPNP L": HKLM\\" SERVICES L"SSDPSRV\\[Start] = 4",
          UPNP L"1: HKLM\\" SERVICES L"upnphost\\[Start] = 4"}},
        {NO_CLOSE, L"on", {ASK L": HKLM\\" WINLOGON L"[KeepRASConnections] = \"1\""}},
    };
    ExpectRecorded(NetworkPage(), recorded);
}

TEST(TNetworkPage, ReservedBandwidthIsOneChangeOfBoxAndPosition) {
    TPageBench bench(NetworkPage());
    bench.Store(kQosValue, 0);
    bench.Load();
    const auto enabled = [&] {
        return std::pair(bench.Get<TEdit>(QOS_EDIT).Enabled(), bench.Get<TUpDown>(QOS_PERCENT).Enabled());
    };
    EXPECT_EQ(enabled(), std::pair(false, false));
    for (const auto& [control, state, number] : {std::tuple(QOS, L"on", L"20"),
                                                 {QOS_EDIT, L"150", L"100"},
                                                 {QOS_PERCENT, L"30", L"30"},
                                                 {QOS, L"off", L"0"},
                                                 {L"Button_Net_Advanced_Default", L"", L"20"}}) {
        bench.Act(control, state);
        EXPECT_EQ(bench.Pending().front(),
                  QOS L": HKLM\\" SCHEDULER L"[NonBestEffortLimit] = " + std::wstring(number));
        const bool reserves = number != std::wstring(L"0");
        EXPECT_EQ(enabled(), std::pair(reserves, reserves));
    }
    EXPECT_EQ(bench.Pending().size(), 3u) << "one change, and the two of the Default button";
}

TEST(TNetworkPage, TheFirewallIsAValueUntilXpAndAServiceSinceVista) {
    using enum TServiceState;
    for (const auto& [level, sharedAccess, offered] : {std::tuple(4, Running, false),
                                                       {5, Stopped, false},
                                                       {5, Paused, false},
                                                       {5, Running, true},
                                                       {6, Stopped, true}}) {
        TPageBench bench(NetworkPage());
        bench.Context.WindowsLevel = level;
        bench.Fake.Services.Put(L"MpsSvc", {.State = Running});
        bench.Fake.Services.Put(L"SharedAccess", {.State = sharedAccess});
        bench.Store(kFirewallValue, 2);
        bench.Load();
        const bool isService = level >= 6;
        EXPECT_EQ(bench.Get<TGroupBox>(L"GroupBox_Net_Internet_WindowsFirewall").Visible(), offered);
        EXPECT_EQ(bench.Checked(FIREWALL), isService) << level;

        for (const bool on : {!isService, isService, !isService}) {
            bench.Click(FIREWALL, on);
            EXPECT_EQ(bench.Context.FirewallAction, !isService ? TServiceAction::Nothing
                                                    : on       ? TServiceAction::Enable
                                                               : TServiceAction::Disable);
        }
        std::vector<std::wstring> value{FIREWALL L": HKLM\\" PROFILE L"[EnableFirewall] = 1"};
        if (isService) value.clear();
        EXPECT_EQ(bench.Pending(), value);
        EXPECT_EQ(bench.Recorded, 3);
    }
}

TEST(TNetworkPage, ShowsWhatAnotherPageIsAboutToWrite) {
    TPageBench bench(NetworkPage());
    bench.Store(kAddValue, 0);
    bench.Context.Changes.Add(
        {L"Box of another page", kAddValue.Root, kAddValue.Key, kAddValue.ValueName, TRegDataType::Dword, 1});
    bench.Load();
    EXPECT_FALSE(bench.Checked(ADD));
}

}  // namespace
