// The registry keys of Windows Explorer that several pages write to, and when it takes over what is written there.
//
// Explorer reads its settings once. After each Apply it is told that they changed, and reads its preferences again. What
// it has built before from a policy (menus, the notification area) it may keep until the next logon: rows of policies, and
// those few of preferences that the taskbar reads only when it starts, are marked with Restart. This holds for the pages
// of the Start menu and the taskbar; on the others each row has a mark of its own.
#pragma once

#include "platform/shell.h"
#include "settings/rows.h"

/// Tells Explorer that its settings changed: policies, folder options, and those of the Start menu and the taskbar.
inline void TellExplorer(TShell& shell) {
    for (const wchar_t* area : {L"Policy", L"ShellState", L"TraySettings"})
        shell.BroadcastSettingChange(area);
}

/// The user's own choices, as Explorer's dialogs keep them.
inline constexpr const wchar_t* kExplorerAdvanced =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\";

/// The group policies of the user. Most of them are a DWORD that takes something away when it is 1.
inline constexpr const wchar_t* kExplorerPolicies =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";

[[nodiscard]] constexpr TPlace ExplorerPolicy(const wchar_t* policy) {
    return {kCurrentUser, kExplorerPolicies, policy};
}

/// A policy that takes away what the box stands for.
[[nodiscard]] constexpr TCheckBoxRow PolicyRow(const wchar_t* control, const wchar_t* policy) {
    return {.Control = control,
            .Value = ExplorerPolicy(policy),
            .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(0), .Clear = Dword(1)},
            .Restart = true};
}

/// The row of a preference that a policy can overrule.
[[nodiscard]] constexpr TCheckBoxRow Unless(const wchar_t* policy, TCheckBoxRow row) {
    row.Policy = ExplorerPolicy(policy);
    return row;
}

/// The row, on these levels alone.
[[nodiscard]] constexpr TCheckBoxRow On(TLevels levels, TCheckBoxRow row) {
    row.Levels = levels;
    return row;
}
