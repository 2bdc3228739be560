#include "settings/net/network_page.h"

#include "engine/reg_value.h"
#include "settings/explorer_keys.h"
#include "settings/net/security_switches.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kRemoteTasks =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace\\"
    L"{D6277990-4C6A-11CF-8D87-00AA0060F5BF}";
constexpr const wchar_t* kRemotePrinters =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace\\"
    L"{2227A280-3AEA-1069-A2DE-08002B30309D}";
constexpr const wchar_t* kServer = L"\\SYSTEM\\CurrentControlSet\\Services\\lanmanserver\\parameters\\";
constexpr const wchar_t* kWorkstation =
    L"\\SYSTEM\\CurrentControlSet\\Services\\lanmanworkstation\\parameters\\";
constexpr const wchar_t* kDiscovery = L"\\SYSTEM\\CurrentControlSet\\Services\\SSDPSRV\\";
constexpr const wchar_t* kDeviceHost = L"\\SYSTEM\\CurrentControlSet\\Services\\upnphost\\";
constexpr const wchar_t* kPacketScheduler = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\PSched\\";
constexpr const wchar_t* kNetworkPolicies =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Network\\";
constexpr const wchar_t* kWinlogon = L"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\";

constexpr int kQosPercent = 20;  // what Windows itself reserves

TControlDesign Design() {
    return NotebookPage(
        7,
        PageControl(
            L"PageControl_Net",
            Sheet(L"TabSheet_Net_Neighbor", L"Network",
                  Group(L"GroupBox_Net_Neighbor_Common", L"Browsing the network",
                        CheckBox(L"Checkbox_Net_Neighbor_Common_Task",
                                 L"Search network computer for scheduled &tasks."),
                        CheckBox(L"Checkbox_Net_Neighbor_Common_Printer", L"Search network for &printer"),
                        CheckBox(L"Checkbox_Net_Neighbor_Common_Share",
                                 L"&Search network for shared resources automaticaaly."),
                        CheckBox(L"Checkbox_Net_Neighbor_Common_Add",
                                 L"Add &used shares to My Network Places for faster access.")),
                  Group(L"GroupBox_Net_Neighbor_Security", L"Security",
                        CheckBox(L"Checkbox_Net_Neighbor_Security_Hide",
                                 L"&Hide this computer in the Network Places of other computers."),
                        CheckBox(L"Checkbox_Net_Neighbor_Security_ActiveShare",
                                 L"&Enable administrative shares.")),
                  Buttons(Button(L"Button_Net_Neighbor_Default", L"&Default"))),
            Sheet(L"TabSheet_Net_Advanced", L"Advanced",
                  Group(L"GroupBox_Net_Advanced_UPnp", L"Network devices",
                        CheckBox(L"Checkbox_Net_Advanced_UPnp_Enable", L"&Enable Universal Plug and Play.")),
                  Group(L"GroupBox_Net_Advanced_Qos", L"QoS Packet Scheduler",
                        CheckBox(L"Checkbox_Net_Advanced_Qos_Keep", L"&Reserve bandwidth."),
                        Indent(Row(Label(L"Label_Net_Advanced_Qos_Count", L"&Bandwidth limit:"),
                                   Edit(L"Edit_Net_Advanced_Qos_Count").Width(5),
                                   UpDown(L"Updown_Net_Advanced_Qos_Count", L"Edit_Net_Advanced_Qos_Count", 0,
                                          100, kQosPercent),
                                   Label(L"Label_Net_Advanced_Qos_Percent", L"%")))),
                  Buttons(Button(L"Button_Net_Advanced_Default", L"&Default"))),
            Sheet(L"TabSheet_Net_Password", L"Passwords",
                  Group(L"GroupBox_Net_Password_Storage", L"Storage",
                        CheckBox(L"Checkbox_Net_Password_Storage_SavePassword",
                                 L"&Save passwords for network services.")),
                  Group(L"GroupBox_Net_Password_Transmission", L"Transmission",
                        CheckBox(L"Checkbox_Net_Password_Transmission_OnlyForShare",
                                 L"Transfer only &encrypted passwords for shared resources.")),
                  Buttons(Button(L"Button_Net_Password_Default", L"&Default"))),
            Sheet(L"TabSheet_Net_Internet", L"Internet",
                  Group(L"GroupBox_Net_Internet_CloseConnection", L"Dial-up connections",
                        RadioButton(L"Radio_Net_Internet_CloseConnection_Ask", L"As&k at logoff."),
                        RadioButton(L"Radio_Net_Internet_CloseConnection_NoClose",
                                    L"Always keep dial-up &connections at logoff.")),
                  Group(L"GroupBox_Net_Internet_WindowsFirewall", L"Windows Firewall",
                        CheckBox(L"Checkbox_Net_Internet_WindowsFirewall_Enable",
                                 L"Turn on Windows &Firewall")))));
}

constexpr TRow kNeighborRows[] = {
    // Explorer looks for tasks and printers on a computer while their name-space key exists. Tasks are looked
    // for until Windows XP, printers since Windows Vista.
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Common_Task",
                 .Value = {kLocalMachine, kRemoteTasks, L""},
                 .Shows = {.Missing = kClear, .Otherwise = kChecked},
                 .Records = {.Checked = Text(L"1"), .Clear = kDeleteKey},
                 .LoadedOn = kUntilXp},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Common_Printer",
                 .Value = {kLocalMachine, kRemotePrinters, L""},
                 .Shows = {.Missing = kClear, .Otherwise = kChecked},
                 .Records = {.Checked = Text(L"Printers"), .Clear = kDeleteKey},
                 .LoadedOn = kSinceVista},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Common_Share",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"NoNetCrawling"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Common_Add",
                 .Value = {kCurrentUser, kExplorerPolicies, L"NoRecentDocsNetHood"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Security_Hide",
                 .Value = {kLocalMachine, kServer, L"Hidden"},
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Security_ActiveShare",
                 .Value = {kLocalMachine, kServer, L"AutoShareWks"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
};

// The box and the position make one number: the percentage, or 0 while nothing is reserved. Without a stored
// value Windows reserves a percentage of its own, so the box is checked.
constexpr const wchar_t* kQos[] = {L"Checkbox_Net_Advanced_Qos_Keep", L"Updown_Net_Advanced_Qos_Count"};

void EnableQosField(TUpDown& percent, bool enabled) {
    percent.SetEnabled(enabled);
    percent.Associate()->SetEnabled(enabled);
}

void LoadQos(TPageContext& context, const TSpecialRow& row) {
    auto& percent = *context.Form.Find<TUpDown>(row.Controls[1]);
    const auto value = Stored(context, row.Value);
    const auto number = value ? AsInteger(*value) : percent.Position();
    const bool reserves = !value || (number && *number > 0);
    context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(reserves);
    EnableQosField(percent, reserves);
    if (reserves) percent.SetPosition(*number);
}

void RecordQos(TPageContext& context, const TSpecialRow& row, TComponent& /*sender*/) {
    auto& percent = *context.Form.Find<TUpDown>(row.Controls[1]);
    const bool reserves = context.Form.Find<TCheckBox>(row.Controls[0])->Checked();
    RecordNumber(context, row.Controls[0], row.Value, reserves ? percent.Position() : 0);
    EnableQosField(percent, reserves);
}

constexpr std::int32_t kManual = 3;
constexpr std::int32_t kDisabled = 4;

constexpr TRow kAdvancedRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Net_Advanced_UPnp_Enable",
                 .Value = {kLocalMachine, kDiscovery, L"Start"},
                 .Shows = {.When = {{kManual, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(kManual), .Clear = Dword(kDisabled)},
                 .Further = TBoxFurther{.Suffix = L"1",
                                        .Value = {kLocalMachine, kDeviceHost, L"Start"},
                                        .Records = {.Checked = Dword(kManual), .Clear = Dword(kDisabled)}}},
    TSpecialRow{.Controls = kQos,
                .Value = {kLocalMachine, kPacketScheduler, L"NonBestEffortLimit"},
                .Rule = L"checked when above 0 or missing, and the position is the number; checked writes "
                        L"the position, clear 0 (DWORD)",
                .Load = LoadQos,
                .Record = RecordQos},
};

constexpr TRow kPasswordRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Net_Password_Storage_SavePassword",
                 .Value = {kLocalMachine, kNetworkPolicies, L"DisablePwdCaching"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    TCheckBoxRow{.Control = L"Checkbox_Net_Password_Transmission_OnlyForShare",
                 .Value = {kLocalMachine, kWorkstation, L"enableplaintextpassword"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
};

// A Windows without firewall has no group for it either.
void LoadFirewallGroup(TPageContext& context, const TSpecialRow& row) {
    if (!HasFirewall(context)) context.Form.Find(L"GroupBox_Net_Internet_WindowsFirewall")->SetVisible(false);
    LoadFirewall(context, row);
}

constexpr const wchar_t* kFirewall[] = {L"Checkbox_Net_Internet_WindowsFirewall_Enable"};

constexpr TRow kInternetRows[] = {
    TRadioPairRow{.First = L"Radio_Net_Internet_CloseConnection_Ask",
                  .Second = L"Radio_Net_Internet_CloseConnection_NoClose",
                  .ChangeName = L"Radio_Net_Internet_CloseConnection_Ask",
                  .Value = {kLocalMachine, kWinlogon, L"KeepRASConnections"},
                  .Missing = TPairState::First,
                  .FirstWhen = L"0",
                  .FirstRecords = Text(L"0"),
                  .SecondRecords = Text(L"1")},
    TSpecialRow{.Controls = kFirewall,
                .Value = kFirewallEnabled,
                .Rule = kFirewallRule,
                .Load = LoadFirewallGroup,
                .Record = RecordFirewall},
};

constexpr TLoader kLoaders[] = {kNeighborRows, kAdvancedRows, kPasswordRows, kInternetRows};

constexpr TPresetState kNeighborDefault[] = {
    {L"Checkbox_Net_Neighbor_Common_Task", 1},   {L"Checkbox_Net_Neighbor_Common_Printer", 1},
    {L"Checkbox_Net_Neighbor_Common_Share", 1},  {L"Checkbox_Net_Neighbor_Common_Add", 1},
    {L"Checkbox_Net_Neighbor_Security_Hide", 0}, {L"Checkbox_Net_Neighbor_Security_ActiveShare", 1},
};
constexpr TPresetState kAdvancedDefault[] = {
    {L"Checkbox_Net_Advanced_UPnp_Enable", 1},
    {L"Checkbox_Net_Advanced_Qos_Keep", 1},
    {L"Updown_Net_Advanced_Qos_Count", kQosPercent},
};
constexpr TPresetState kPasswordDefault[] = {
    {L"Checkbox_Net_Password_Storage_SavePassword", 1},
    {L"Checkbox_Net_Password_Transmission_OnlyForShare", 1},
};
constexpr TPreset kPresets[] = {
    {L"Button_Net_Neighbor_Default", kNeighborDefault},
    {L"Button_Net_Advanced_Default", kAdvancedDefault},
    {L"Button_Net_Password_Default", kPasswordDefault},
};

constexpr TLevelCaption kLevelCaptions[] = {
    {L"TabSheet_Net_Neighbor", kUntilXp, TCaption::NetworkPlaces},
};

constexpr TPageDefinition kPage{.Tag = 7,
                                .SharedHandler = L"Checkbox_Net_Neighbor_Common_TaskClick",
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .LevelCaptions = kLevelCaptions,
                                .ShowsPending = true};

}  // namespace

const TPageDefinition& NetworkPage() { return kPage; }
