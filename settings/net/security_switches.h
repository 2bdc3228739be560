// The protection of Windows: Security Center, Windows Firewall, automatic updates. Each can be switched on several pages.
#pragma once

#include "settings/needs.h"
#include "settings/row_shapes.h"

/// Windows Vista and later have Security Center and firewall always, Windows XP while its service
/// SharedAccess runs, older ones never.
[[nodiscard]] bool HasFirewall(const TPageContext& context);

/// Where there is no Security Center the box is disabled.
[[nodiscard]] constexpr TLack SecurityCenterLack(const wchar_t* control) {
    return {control, HasFirewall, TCaption::NoSecurityCenter};
}

/// Windows 10 does not let its service be switched.
[[nodiscard]] constexpr TServiceRow SecurityCenterRow(const wchar_t* control, TControlNames enables = {}) {
    return {.Control = control,
            .Value = Service(L"wscsvc"),
            .Order = 0,
            .Enables = enables,
            .Levels = kUntilWindows8};
}

/// Since Windows Vista the firewall is a service of its own.
[[nodiscard]] constexpr TServiceRow FirewallServiceRow(const wchar_t* control) {
    return {.Control = control, .Value = Service(L"MpsSvc"), .Order = 1, .Levels = kVistaAndWindows7};
}

[[nodiscard]] constexpr TCheckBoxRow FirewallRow(const wchar_t* control) {
    return {.Control = control,
            .Value = {kLocalMachine, kFirewallProfile, L"EnableFirewall"},
            .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)},
            .Levels = kUntilXp};
}

/// From Windows 8 on much else needs the service: each kind of network switches the firewall off instead.
inline constexpr TBoxRecord kFirewallRecords{.Checked = Dword(1), .Clear = Dword(0)};
inline constexpr TBoxFurther kFirewallProfiles[] = {
    {L"1", {kLocalMachine, kFirewallPublicProfile, L"EnableFirewall"}, kFirewallRecords},
    {L"2", {kLocalMachine, kFirewallDomainProfile, L"EnableFirewall"}, kFirewallRecords},
};
[[nodiscard]] constexpr TCheckBoxRow FirewallProfilesRow(const wchar_t* control) {
    TCheckBoxRow row = FirewallRow(control);
    row.Further = kFirewallProfiles;
    row.Levels = kSinceWindows8;
    return row;
}

/// The items of the list.
inline constexpr const wchar_t* kAutoUpdateTypes[] = {
    L"Use Windows default settings", L"Notify me before downloading updates",
    L"Notify me before auto downloading and installing updates",
    L"Download and install updates at a scheduled time"};
inline constexpr TDatum kAutoUpdateOptions[] = {Dword(0), Dword(2), Dword(3), Dword(4)};

/// `list` names the drop-down list of kinds.
[[nodiscard]] constexpr TSwitchRow AutoUpdateRow(const wchar_t* control, TControlNames list) {
    return {.On = control,
            .Amount = list,
            .Value = {kLocalMachine, kAutoUpdate, L"AUOptions"},
            .OffWhen = 1,
            .OffRecords = Dword(1),
            .Items = kAutoUpdateOptions,
            .Enables = list,
            .ChangeName = L"CHKAutoupdate",
            .Levels = kUntilWindows8};
}

// Windows 10 reads policies alone.

[[nodiscard]] constexpr TCheckBoxRow AutoUpdatePolicyRow(const wchar_t* control, TControlNames list) {
    return {.Control = control,
            .Value = {kLocalMachine, kAutoUpdatePolicies, L"NoAutoUpdate"},
            .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = kDeleteValue, .Clear = Dword(1)},
            .ChangeName = L"CHKAutoupdate",
            .Enables = list,
            .Levels = kSinceWindows10};
}

inline constexpr TDatum kAutoUpdatePolicyOptions[] = {kDeleteValue, Dword(2), Dword(3), Dword(4)};

[[nodiscard]] constexpr TChoiceRow AutoUpdateTypePolicyRow(const wchar_t* list) {
    return {.Control = list,
            .Value = {kLocalMachine, kAutoUpdatePolicies, L"AUOptions"},
            .Items = kAutoUpdatePolicyOptions,
            .Missing = 0,
            .ChangeName = L"CHKAutoupdateType",
            .Levels = kSinceWindows10};
}
