#include "settings/net/security_page.h"

#include "settings/net/security_modern.h"
#include "settings/net/security_switches.h"

namespace {

constexpr const wchar_t* kNoAntivirus = L"Checkbox_Security_Center_SC_NoAntivirusSoftware";
constexpr const wchar_t* kNoFirewall = L"Checkbox_Security_Center_SC_NoFirewall";
constexpr const wchar_t* kExpired = L"Checkbox_Security_Center_SC_SecuritySoftwareExpired";

TControlDesign Design() {
    return NotebookPage(
        18,
        PageControl(L"PageControl_Security",
                    Sheet(L"TabSheet_Security_Center", L"Security Center",
                          Group(L"GroupBox_Security_Center_SC", L"Windows Security Center",
                                CheckBox(L"Checkbox_Security_Center_Active", L"&Turn on the Security Center"),
                                Indent(CheckBox(kNoAntivirus, L"Warn of non-installed &virus scanner."),
                                       CheckBox(kNoFirewall, L"Warn of non-installed &firewall."),
                                       CheckBox(kExpired, L"Warn of &outdated security software."))),
                          Buttons(Button(L"Button_Security_Center_Default", L"&Default").Hidden())),
                    Sheet(L"TabSheet_Security_Advanced", L"Advanced",
                          Group(L"GroupBox_Security_Advanced_Screensaver", L"Screen saver",
                                Row(Label(L"Label_Security_Advanced_Screensaver_WaitTime",
                                          L"&Time before the password is required:"),
                                    Edit(L"Edit_Security_Advanced_Screensaver_WaitTime").Width(6),
                                    UpDown(L"Updown_Security_Advanced_Screensaver_WaitTime",
                                           L"Edit_Security_Advanced_Screensaver_WaitTime", 1, 9999, 5),
                                    Label(L"Label_Security_Advanced_Screensaver_Seconds", L"seconds"))),
                          Buttons(Button(L"Button_Security_Advanced_Default", L"&Default").Hidden())),
                    SecurityProtectionSheet()));
}

constexpr TCheckBoxRow Warning(const wchar_t* control, const wchar_t* valueName) {
    return {.Control = control,
            .Value = {kLocalMachine, kSecurityCenter, valueName},
            .Shows = {.When = {{1, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(0), .Clear = Dword(1)}};
}

constexpr const wchar_t* kActive = L"Checkbox_Security_Center_Active";
// The Security Center warns only while it is switched on.
constexpr const wchar_t* kWarnings[] = {kNoAntivirus, kNoFirewall, kExpired};

constexpr TRow kCenterRows[] = {
    SecurityCenterRow(kActive, kWarnings),
    On(kUntilWindows7, Warning(kNoAntivirus, L"AntiVirusDisableNotify")),
    On(kUntilWindows7, Warning(kNoFirewall, L"FirewallDisableNotify")),
    // Windows Vista gave the warning of outdated software another value.
    On(kUntilXp, Warning(kExpired, L"UpdatesDisableNotify")),
    On(kVistaAndWindows7, Warning(kExpired, L"AutoUpdateDisableNotify")),
};

constexpr TRow kAdvancedRows[] = {
    // What the user typed is recorded as it stands, which is not always the position: a number below the least
    // one is corrected only when the focus leaves the edit.
    TNumberRow{.Control = L"Updown_Security_Advanced_Screensaver_WaitTime",
               .Value = As(TCoding::Decimal, {kLocalMachine, kWinlogon, L"ScreenSaverGracePeriod"}),
               .Source = TNumberSource::Typed},
};

constexpr TLoader kLoaders[] = {kCenterRows, kAdvancedRows, kProtectionRows};

constexpr TNeed kNeeds[] = {kRemoteNeed};
constexpr TLack kLacks[] = {SecurityCenterLack(kActive)};

constexpr TPageDefinition kPage{.Tag = 18,
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = {},
                                .Needs = kNeeds,
                                .Lacks = kLacks,
                                .ShowsPending = true};

}  // namespace

const TPageDefinition& SecurityPage() { return kPage; }
