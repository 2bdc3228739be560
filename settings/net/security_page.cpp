#include "settings/net/security_page.h"

#include "settings/net/security_switches.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kSecurityCenter = L"\\SOFTWARE\\Microsoft\\Security Center\\";
constexpr const wchar_t* kWinlogon = L"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\";

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
                          Buttons(Button(L"Button_Security_Advanced_Default", L"&Default").Hidden()))));
}

// The Security Center warns only while it is switched on.
void EnableWarnings(const TPageContext& context, bool enabled) {
    for (const wchar_t* warning : {kNoAntivirus, kNoFirewall, kExpired})
        context.Form.Find(warning)->SetEnabled(enabled);
}

void LoadActive(TPageContext& context, const TSpecialRow& row) {
    LoadSecurityCenter(context, row);
    const auto& box = *context.Form.Find<TCheckBox>(row.Controls[0]);
    if (!box.Enabled() || !box.Checked()) EnableWarnings(context, false);
}

void RecordActive(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    RecordSecurityCenter(context, row, sender);
    EnableWarnings(context, static_cast<TCheckBox&>(sender).Checked());
}

constexpr TCheckBoxRow Warning(const wchar_t* control, const wchar_t* valueName) {
    return {.Control = control,
            .Value = {kLocalMachine, kSecurityCenter, valueName},
            .Shows = {.When = {{1, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(0), .Clear = Dword(1)}};
}

// Windows Vista gave the warning of outdated software another value.
TRow ExpiredWarning(const TPageContext& context) {
    return Warning(kExpired, kSinceVista.Include(context.WindowsLevel) ? L"AutoUpdateDisableNotify"
                                                                       : L"UpdatesDisableNotify");
}

void LoadExpired(TPageContext& context, const TSpecialRow& /*row*/) {
    LoadRow(context, ExpiredWarning(context));
}

void RecordExpired(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    RecordRow(context, ExpiredWarning(context), sender);
}

constexpr const wchar_t* kActive[] = {L"Checkbox_Security_Center_Active"};
constexpr const wchar_t* kExpiredControls[] = {kExpired};

constexpr TRow kCenterRows[] = {
    TSpecialRow{.Controls = kActive,
                .Value = kSecurityCenterStart,
                .Rule = kSecurityCenterRule,
                .Load = LoadActive,
                .Record = RecordActive},
    Warning(kNoAntivirus, L"AntiVirusDisableNotify"),
    Warning(kNoFirewall, L"FirewallDisableNotify"),
    TSpecialRow{.Controls = kExpiredControls,
                .Value = {kLocalMachine, kSecurityCenter, L"AutoUpdateDisableNotify"},
                .Rule = L"until Windows XP `UpdatesDisableNotify`; clear when 1; else checked; missing: "
                        L"unchanged; checked: DWORD 0; clear: DWORD 1",
                .Load = LoadExpired,
                .Record = RecordExpired},
};

// What the user typed is recorded as it stands, which is not always the position: a number below the least
// one is corrected only when the focus leaves the edit.
void LoadWaitTime(TPageContext& context, const TSpecialRow& row) {
    const auto seconds = StoredNumber(context, row.Value);
    if (seconds) context.Form.Find<TUpDown>(row.Controls[0])->SetPosition(*seconds);
}

void RecordWaitTime(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    RecordText(context, sender.Name(), row.Value, static_cast<TUpDown&>(sender).Associate()->Text());
}

constexpr const wchar_t* kWaitTime[] = {L"Updown_Security_Advanced_Screensaver_WaitTime"};

constexpr TRow kAdvancedRows[] = {
    TSpecialRow{.Controls = kWaitTime,
                .Value = {kLocalMachine, kWinlogon, L"ScreenSaverGracePeriod"},
                .Rule = L"the number; missing: unchanged; writes the text of the edit",
                .Load = LoadWaitTime,
                .Record = RecordWaitTime},
};

constexpr TLoader kLoaders[] = {kCenterRows, kAdvancedRows};

constexpr TPageDefinition kPage{.Tag = 18,
                                .SharedHandler = L"Checkbox_Security_Center_ActiveClick",
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = {},
                                .ShowsPending = true};

}  // namespace

const TPageDefinition& SecurityPage() { return kPage; }
