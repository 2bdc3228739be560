#include "settings/net/network_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kTask = L"Checkbox_Net_Neighbor_Common_Task";
constexpr const wchar_t* kPrinter = L"Checkbox_Net_Neighbor_Common_Printer";
constexpr const wchar_t* kAdd = L"Checkbox_Net_Neighbor_Common_Add";
constexpr const wchar_t* kUPnp = L"Checkbox_Net_Advanced_UPnp_Enable";
constexpr const wchar_t* kQos = L"Checkbox_Net_Advanced_Qos_Keep";
constexpr const wchar_t* kQosPercent = L"Updown_Net_Advanced_Qos_Count";
constexpr const wchar_t* kQosEdit = L"Edit_Net_Advanced_Qos_Count";
constexpr const wchar_t* kNoClose = L"Radio_Net_Internet_CloseConnection_NoClose";
constexpr const wchar_t* kFirewall = L"Checkbox_Net_Internet_WindowsFirewall_Enable";

// Written as Windows has them, not as the page spells them.
#define NAME_SPACE L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace\\"
#define SERVICES L"System\\CurrentControlSet\\Services\\"
constexpr TPlace kTaskKey{kLocalMachine, NAME_SPACE L"{d6277990-4c6a-11cf-8d87-00aa0060f5bf}", L""};
constexpr TPlace kPrinterKey{kLocalMachine, NAME_SPACE L"{2227a280-3aea-1069-a2de-08002b30309d}", L""};
constexpr TPlace kAddValue{kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
                           L"NoRecentDocsNetHood"};
constexpr TPlace kQosValue{kLocalMachine, L"Software\\Policies\\Microsoft\\Windows\\Psched",
                           L"NonBestEffortLimit"};
constexpr TPlace kKeep{kLocalMachine, L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon",
                       L"KeepRasConnections"};
constexpr TPlace kFirewallValue{
    kLocalMachine, SERVICES L"SharedAccess\\Parameters\\FirewallPolicy\\StandardProfile", L"EnableFirewall"};

TEST(TNetworkPage, ShowsStoredValues) {
    const TShownCase cases[] = {
        {kTask, kTaskKey, String(L""), L"on", 5},
        {kTask, kTaskKey, String(L"1"), L"kept", 6},
        {kPrinter, kPrinterKey, String(L"Printers"), L"on", 6},
        {kPrinter, kPrinterKey, String(L"Printers"), L"kept", 5},
        {kAdd, kAddValue, Number(2), L"off"},
        {kUPnp, {kLocalMachine, SERVICES L"SSDPSRV", L"Start"}, Number(3), L"on"},
        {L"Radio_Net_Internet_CloseConnection_Ask", kKeep, std::nullopt, L"on"},
        {kNoClose, kKeep, String(L"2"), L"on"},
        {kQos, kQosValue, std::nullopt, L"on"},
        {kQosPercent, kQosValue, std::nullopt, L"kept"},
        {kQosEdit, kQosValue, Number(35), L"35"},
        {kQos, kQosValue, Bytes(TBytes(8, 1)), L"off"},
        {kFirewall, kFirewallValue, std::nullopt, L"on", 5},
    };
    ExpectShown(NetworkPage(), cases);
}

TEST(TNetworkPage, RecordsWhatEachStateStandsFor) {
    const TRecordedCase cases[] = {
        {kTask,
         L"off",
         {L"Checkbox_Net_Neighbor_Common_Task: delete "
          L"HKLM\\" NAME_SPACE L"{D6277990-4C6A-11CF-8D87-00AA0060F5BF}"}},
        {kPrinter,
         L"on",
         {L"Checkbox_Net_Neighbor_Common_Printer: "
          L"HKLM\\" NAME_SPACE L"{2227A280-3AEA-1069-A2DE-08002B30309D}[] = \"Printers\""}},
        {kUPnp,
         L"off",
         {L"Checkbox_Net_Advanced_UPnp_Enable: "
          L"HKLM\\SYSTEM\\CurrentControlSet\\Services\\SSDPSRV\\[Start] = 4",
          L"Checkbox_Net_Advanced_UPnp_Enable1: "
          L"HKLM\\SYSTEM\\CurrentControlSet\\Services\\upnphost\\[Start] = 4"}},
        {kNoClose,
         L"on",
         {L"Radio_Net_Internet_CloseConnection_Ask: HKLM\\SOFTWARE\\Microsoft\\Windows NT\\"
          L"CurrentVersion\\Winlogon\\[KeepRASConnections] = \"1\""}},
    };
    ExpectRecorded(NetworkPage(), cases);
}

TEST(TNetworkPage, ReservedBandwidthIsOneChangeOfBoxAndPosition) {
    TPageBench bench(NetworkPage());
    bench.Store(kQosValue, 0);
    bench.Load();
    EXPECT_FALSE(bench.Get<TEdit>(kQosEdit).Enabled() || bench.Get<TUpDown>(kQosPercent).Enabled());
    struct TStep {
        const wchar_t* Control;
        const wchar_t* State;
        const wchar_t* Records;
        bool Enabled;
    };
    constexpr TStep kSteps[] = {
        {kQos, L"on", L"20", true},
        {kQosEdit, L"150", L"100", true},
        {kQosPercent, L"30", L"30", true},
        {kQos, L"off", L"0", false},
        {L"Button_Net_Advanced_Default", L"", L"20", true},
    };
    for (const TStep& step : kSteps) {
        bench.Act(step.Control, step.State);
        EXPECT_EQ(bench.Pending().front(),
                  L"Checkbox_Net_Advanced_Qos_Keep: HKLM\\SOFTWARE\\Policies\\Microsoft\\Windows\\PSched\\"
                  L"[NonBestEffortLimit] = " +
                      std::wstring(step.Records));
        EXPECT_EQ(bench.Get<TEdit>(kQosEdit).Enabled(), step.Enabled);
        EXPECT_EQ(bench.Get<TUpDown>(kQosPercent).Enabled(), step.Enabled);
    }
    EXPECT_EQ(bench.Pending().size(), 3u) << "one change, and the two of the Default button";
}

TEST(TNetworkPage, TheFirewallIsAValueUntilXpAndAServiceSinceVista) {
    struct TCase {
        int Level;
        TServiceState SharedAccess;
        bool Offered;
    };
    constexpr TCase kCases[] = {{4, TServiceState::Running, false},
                                {5, TServiceState::Stopped, false},
                                {5, TServiceState::Paused, false},
                                {5, TServiceState::Running, true},
                                {6, TServiceState::Stopped, true}};
    for (const TCase& c : kCases) {
        TPageBench bench(NetworkPage());
        bench.Context.WindowsLevel = c.Level;
        bench.Fake.Services.Put(L"MpsSvc", {.State = TServiceState::Running});
        bench.Fake.Services.Put(L"SharedAccess", {.State = c.SharedAccess});
        bench.Store(kFirewallValue, 2);
        bench.Load();
        const bool isService = c.Level >= 6;
        EXPECT_EQ(bench.Get<TGroupBox>(L"GroupBox_Net_Internet_WindowsFirewall").Visible(), c.Offered);
        EXPECT_EQ(bench.Checked(kFirewall), isService) << c.Level;

        for (const bool on : {!isService, isService, !isService}) {
            bench.Click(kFirewall, on);
            const auto action = on ? TServiceAction::Enable : TServiceAction::Disable;
            EXPECT_EQ(bench.Context.FirewallAction, isService ? action : TServiceAction::Nothing);
        }
        const std::vector value{std::wstring(kFirewall) +
                                L": HKLM\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\"
                                L"FirewallPolicy\\StandardProfile\\[EnableFirewall] = 1"};
        EXPECT_EQ(bench.Pending(), isService ? std::vector<std::wstring>{} : value);
        EXPECT_EQ(bench.Recorded, 3);
    }
}

TEST(TNetworkPage, ShowsWhatAnotherPageIsAboutToWrite) {
    TPageBench bench(NetworkPage());
    bench.Store(kAddValue, 0);
    bench.Context.Changes.Add({.Name = L"Box of another page",
                               .RootKey = kAddValue.Root,
                               .Key = kAddValue.Key,
                               .ValueName = kAddValue.ValueName,
                               .DataType = TRegDataType::Dword,
                               .Value = 1});
    bench.Load();
    EXPECT_FALSE(bench.Checked(kAdd));
}

}  // namespace
