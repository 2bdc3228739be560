// The registry keys of Windows Explorer that several pages write to.
#pragma once

#include "settings/rows.h"

/// The user's own choices, as Explorer's dialogs keep them.
inline constexpr const wchar_t* kExplorerAdvanced =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\";

/// The group policies of the user. Most of them are a DWORD that takes something away when it is 1.
inline constexpr const wchar_t* kExplorerPolicies =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";

/// A policy that takes away what the box stands for.
[[nodiscard]] constexpr TCheckBoxRow PolicyRow(const wchar_t* control, const wchar_t* policy, bool restart) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerPolicies, policy},
            .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(0), .Clear = Dword(1)},
            .Restart = restart};
}
