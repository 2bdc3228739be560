#include "settings/net/network_page.h"

#include "settings/net/network_modern.h"
#include "settings/net/security_switches.h"
#include "settings/store.h"

namespace {

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
                  Group(L"GroupBox_Net_Neighbor_Old", L"Older protocols",
                        CheckBox(L"Checkbox_Net_Neighbor_Old_Server", L"Share files by SMB &1"),
                        CheckBox(L"Checkbox_Net_Neighbor_Old_Client", L"Open shares by S&MB 1"),
                        Row(Label(L"Label_Net_Neighbor_Old_Guest", L"Open shares as a &guest:"),
                            ComboBox(L"CB_Net_Neighbor_Old_Guest",
                                     {L"As this edition of Windows does", L"Always", L"Never"}))),
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
                  Group(L"GroupBox_Net_Advanced_Find", L"Finding computers",
                        CheckBox(L"Checkbox_Net_Advanced_Find_Multicast", L"Find computers by &LLMNR"),
                        CheckBox(L"Checkbox_Net_Advanced_Find_All", L"Ask all &networks at once for a name"),
                        CheckBox(L"Checkbox_Net_Advanced_Find_Ask",
                                 L"As&k whether a new network may see this computer"),
                        CheckBox(L"Checkbox_Net_Advanced_Find_Teredo", L"Use &Teredo (IPv6 through IPv4)")),
                  Buttons(Button(L"Button_Net_Advanced_Default", L"&Default"))),
            Sheet(L"TabSheet_Net_Password", L"Passwords",
                  Group(L"GroupBox_Net_Password_Storage", L"Passwords for other computers",
                        CheckBox(L"Checkbox_Net_Password_Storage_SavePassword",
                                 L"&Save passwords for network services."),
                        CheckBox(L"Checkbox_Net_Password_Transmission_OnlyForShare",
                                 L"Transfer only &encrypted passwords for shared resources.")),
                  Buttons(Button(L"Button_Net_Password_Default", L"&Default"))),
            Sheet(L"TabSheet_Net_Internet", L"Internet",
                  Group(L"GroupBox_Net_Internet_CloseConnection", L"Dial-up connections",
                        RadioButton(L"Radio_Net_Internet_CloseConnection_Ask", L"As&k at logoff."),
                        RadioButton(L"Radio_Net_Internet_CloseConnection_NoClose",
                                    L"Always keep dial-up &connections at logoff.")),
                  Group(L"GroupBox_Net_Internet_WindowsFirewall", L"Protection",
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
                 .LoadedOn = kUntilXp,
                 .Levels = kUntilWindows7},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Common_Printer",
                 .Value = {kLocalMachine, kRemotePrinters, L""},
                 .Shows = {.Missing = kClear, .Otherwise = kChecked},
                 .Records = {.Checked = Text(L"Printers"), .Clear = kDeleteKey},
                 .LoadedOn = kSinceVista},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Common_Share",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"NoNetCrawling"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Common_Add",
                 .Value = {kCurrentUser, kExplorerPolicies, L"NoRecentDocsNetHood"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    // The service that announces computers went with SMB 1.
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Security_Hide",
                 .Value = {kLocalMachine, kServer, L"Hidden"},
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Levels = UntilBuild(16298)},
    TCheckBoxRow{.Control = L"Checkbox_Net_Neighbor_Security_ActiveShare",
                 .Value = {kLocalMachine, kServer, L"AutoShareWks"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
};

constexpr const wchar_t* kQosCount[] = {L"Updown_Net_Advanced_Qos_Count"};
constexpr const wchar_t* kQosControls[] = {L"Updown_Net_Advanced_Qos_Count", L"Edit_Net_Advanced_Qos_Count"};

constexpr std::int32_t kManual = 3;
constexpr std::int32_t kDisabled = 4;
constexpr TBoxFurther kDeviceHost[] = {{L"1",
                                        {kLocalMachine, kDeviceHostService, L"Start"},
                                        {.Checked = Dword(kManual), .Clear = Dword(kDisabled)}}};

constexpr TRow kAdvancedRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Net_Advanced_UPnp_Enable",
                 .Value = {kLocalMachine, kDiscoveryService, L"Start"},
                 .Shows = {.When = {{kManual, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(kManual), .Clear = Dword(kDisabled)},
                 .Further = kDeviceHost},
    // Without a stored value Windows reserves a percentage of its own.
    TSwitchRow{.On = L"Checkbox_Net_Advanced_Qos_Keep",
               .Amount = kQosCount,
               .Value = {kLocalMachine, kPacketScheduler, L"NonBestEffortLimit"},
               .OffWhen = Below(1),
               .OffRecords = Dword(0),
               .Missing = kChecked,
               .Enables = kQosControls},
};

constexpr TRow kPasswordRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Net_Password_Storage_SavePassword",
                 .Value = {kLocalMachine, kNetworkPolicies, L"DisablePwdCaching"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
    TCheckBoxRow{.Control = L"Checkbox_Net_Password_Transmission_OnlyForShare",
                 .Value = {kLocalMachine, kWorkstation, L"enableplaintextpassword"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
};

constexpr const wchar_t* kFirewall = L"Checkbox_Net_Internet_WindowsFirewall_Enable";

constexpr TRow kInternetRows[] = {
    TRadioPairRow{.First = L"Radio_Net_Internet_CloseConnection_Ask",
                  .Second = L"Radio_Net_Internet_CloseConnection_NoClose",
                  .ChangeName = L"Radio_Net_Internet_CloseConnection_Ask",
                  .Value = {kLocalMachine, kWinlogon, L"KeepRASConnections"},
                  .Missing = TPairState::First,
                  .FirstWhen = L"0",
                  .FirstRecords = Text(L"0"),
                  .SecondRecords = Text(L"1"),
                  .Levels = kUntilWindows7},
    FirewallServiceRow(kFirewall),
    FirewallRow(kFirewall),
    FirewallProfilesRow(kFirewall),
};

bool HasSmb1Client(const TPageContext& context) {
    return Stored(context, {kLocalMachine, kSmb1Driver, L"ImagePath"}).has_value();
}

constexpr TLack kLacks[] = {{kSmb1Client, HasSmb1Client, TCaption::NoSmb1}};

constexpr TLoader kLoaders[] = {kNeighborRows, kOldProtocolRows, kAdvancedRows,
                                kFindingRows,  kPasswordRows,    kInternetRows};

constexpr TPresetState kNeighborDefault[] = {
    {L"Checkbox_Net_Neighbor_Common_Task", 1},   {L"Checkbox_Net_Neighbor_Common_Printer", 1},
    {L"Checkbox_Net_Neighbor_Common_Share", 1},  {L"Checkbox_Net_Neighbor_Common_Add", 1},
    {L"Checkbox_Net_Neighbor_Security_Hide", 0}, {L"Checkbox_Net_Neighbor_Security_ActiveShare", 1},
};
constexpr TPresetState kAdvancedDefault[] = {
    {L"Checkbox_Net_Advanced_UPnp_Enable", 1},       {L"Checkbox_Net_Advanced_Qos_Keep", 1},
    {L"Updown_Net_Advanced_Qos_Count", kQosPercent}, {L"Checkbox_Net_Advanced_Find_All", 1},
    {L"Checkbox_Net_Advanced_Find_Ask", 1},          {L"Checkbox_Net_Advanced_Find_Teredo", 1},
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

/// A Windows without firewall has no group for it either.
bool Prepare(TPageContext& context) {
    context.Form.Find(L"GroupBox_Net_Internet_WindowsFirewall")->SetVisible(HasFirewall(context));
    return true;
}

constexpr TPageDefinition kPage{.Tag = 7,
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .LevelCaptions = kLevelCaptions,
                                .Lacks = kLacks,
                                .ShowsPending = true,
                                .Prepare = Prepare};

}  // namespace

const TPageDefinition& NetworkPage() { return kPage; }
