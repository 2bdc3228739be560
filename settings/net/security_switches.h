// The protection of Windows: Security Center, Windows Firewall, automatic updates. Each can be switched on
// several pages; a page names its controls in a special row and gives the row the functions of the switch.
//
// A switch that stands for a service records what becomes of the service.
#pragma once

#include "settings/rows.h"

/// Windows Vista and later have Security Center and firewall always, Windows XP while its service
/// SharedAccess runs, older ones never.
[[nodiscard]] bool HasFirewall(const TPageContext& context);

// The services, in the order in which Apply switches them.
inline constexpr const wchar_t* kSecurityServices[] = {L"wscsvc", L"MpsSvc"};

// Controls: the check box.
inline constexpr TPlace kSecurityCenterStart{kLocalMachine,
                                             L"\\SYSTEM\\CurrentControlSet\\Services\\wscsvc\\", L"Start"};
inline constexpr const wchar_t* kSecurityCenterRule =
    L"checked while the service runs; checked enables and starts it, clear stops and disables it";
void LoadSecurityCenter(TPageContext& context, const TSpecialRow& row);
void RecordSecurityCenter(TPageContext& context, const TSpecialRow& row, TComponent& sender);

// Controls: the check box.
inline constexpr TPlace kFirewallEnabled{
    kLocalMachine,
    L"\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy\\StandardProfile\\",
    L"EnableFirewall"};
inline constexpr const wchar_t* kFirewallRule =
    L"until Windows XP checked when 1 or missing, checked: DWORD 1, clear: DWORD 0; since Windows Vista the "
    L"service MpsSvc: checked while it runs, checked enables and starts it, clear stops and disables it";
void LoadFirewall(TPageContext& context, const TSpecialRow& row);
void RecordFirewall(TPageContext& context, const TSpecialRow& row, TComponent& sender);

// Controls: the check box, then the drop-down list of kinds. Both record under one name, on every page.
inline constexpr TPlace kAutoUpdateOptions{
    kLocalMachine, L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\WindowsUpdate\\Auto Update\\",
    L"AUOptions"};
inline constexpr const wchar_t* kAutoUpdateRule =
    L"1: clear; else checked, and the items are 0, 2, 3, 4; missing: unchanged. Writes the same as DWORD";
/// The items of the list.
inline constexpr const wchar_t* kAutoUpdateTypes[] = {
    L"Use Windows default settings", L"Notify me before downloading updates",
    L"Notify me before auto downloading and installing updates",
    L"Download and install updates at a scheduled time"};
void LoadAutoUpdate(TPageContext& context, const TSpecialRow& row);
void RecordAutoUpdate(TPageContext& context, const TSpecialRow& row, TComponent& sender);
