// Rows of the shapes that several pages use.
//
// Explorer reads its settings once. After each Apply it is told that they changed, and reads its preferences again. What
// it has built before from a policy (menus, the notification area) it may keep until the next logon: rows of policies, and
// those few of preferences that the taskbar reads only when it starts, are marked with Restart. What Windows 7 has,
// too, waits for Windows, whose restart has always been offered; what came later waits for Explorer where that is enough.
// This holds for the pages of the Start menu and the taskbar; on the others each row has a mark of its own.
#pragma once

#include "settings/registry_keys.h"
#include "settings/rows.h"

/// A policy that takes away what the box stands for.
[[nodiscard]] constexpr TCheckBoxRow PolicyRow(const wchar_t* control, const wchar_t* policy) {
    return {.Control = control,
            .Value = ExplorerPolicy(policy),
            .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(0), .Clear = Dword(1)},
            .Restart = TRestart::Windows};
}

/// A policy of the shell of later Windows.
[[nodiscard]] constexpr TPlace UserShellPolicy(const wchar_t* policy) {
    return {kCurrentUser, kUserShellPolicies, policy};
}
[[nodiscard]] constexpr TPlace ShellPolicyForAll(const wchar_t* policy) {
    return {kLocalMachine, kShellPolicies, policy};
}

/// Something that is there unless a policy, of this number, forbids it. Checking takes the policy away, and with it the hold
/// over what the user chooses in Windows.
[[nodiscard]] constexpr TCheckBoxRow AllowedBox(const wchar_t* control, TPlace policy, std::int32_t forbids) {
    return {.Control = control,
            .Value = policy,
            .Shows = {.Missing = kChecked, .When = {{forbids, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = kDeleteValue, .Clear = Dword(forbids)}};
}

/// A switch that is 1 or 0.
[[nodiscard]] constexpr TCheckBoxRow OnOffBox(const wchar_t* control, TPlace place,
                                              TBoxState missing = kChecked) {
    return {.Control = control,
            .Value = place,
            .Shows = {.Missing = missing, .When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)}};
}

/// Something that happens unless a value is set.
[[nodiscard]] constexpr TCheckBoxRow UnlessBox(const wchar_t* control, TPlace place,
                                               TBoxState missing = kChecked) {
    return {.Control = control,
            .Value = place,
            .Shows = {.Missing = missing, .When = {{0, kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Dword(0), .Clear = Dword(1)}};
}

/// Something that Windows does only when a policy asks for it.
[[nodiscard]] constexpr TCheckBoxRow DemandedBox(const wchar_t* control, TPlace policy) {
    TCheckBoxRow row = OnOffBox(control, policy, kClear);
    row.Records.Clear = kDeleteValue;
    return row;
}

/// A choice in one of Explorer's own dialogs.
[[nodiscard]] constexpr TCheckBoxRow ExplorerOption(const wchar_t* control, const wchar_t* valueName,
                                                    TBoxState missing = kChecked) {
    return OnOffBox(control, {kCurrentUser, kExplorerAdvanced, valueName}, missing);
}

/// An option of the user's that is kept as "yes" or "no".
[[nodiscard]] constexpr TCheckBoxRow YesOrNo(const wchar_t* control, const wchar_t* key,
                                             const wchar_t* valueName, TBoxState missing = kChecked) {
    return {.Control = control,
            .Value = {kCurrentUser, key, valueName},
            .Shows = {.Missing = missing, .When = {{AnyCase(L"yes"), kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Text(L"yes"), .Clear = Text(L"no")}};
}

inline constexpr TDatum kFirstNumbers[] = {Dword(0), Dword(1), Dword(2), Dword(3)};

/// A list of Explorer's whose items are numbered.
[[nodiscard]] constexpr TChoiceRow ExplorerList(const wchar_t* control, const wchar_t* valueName,
                                                std::size_t count, int missing, TLevels levels) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerAdvanced, valueName},
            .Items = std::span(kFirstNumbers).first(count),
            .Missing = missing,
            .Levels = levels};
}

/// The row of a preference that a policy can overrule.
[[nodiscard]] constexpr TCheckBoxRow Unless(const wchar_t* policy, TCheckBoxRow row) {
    row.Policy = policy;
    return row;
}

/// The row, on these levels alone.
template <typename T>
[[nodiscard]] constexpr T On(TLevels levels, T row) {
    row.Levels = levels;
    return row;
}

/// The row, read on these levels alone.
template <typename T>
[[nodiscard]] constexpr T ReadOn(TLevels levels, T row) {
    row.LoadedOn = levels;
    return row;
}

/// The row of what waits for Explorer to be started again.
template <typename T>
[[nodiscard]] constexpr T AfterExplorer(T row) {
    row.Restart = TRestart::Explorer;
    return row;
}

/// The row of what waits for a restart of Windows.
template <typename T>
[[nodiscard]] constexpr T WithRestart(T row) {
    row.Restart = TRestart::Windows;
    return row;
}

/// An option that is written in whatever type Windows keeps it.
[[nodiscard]] constexpr TCheckBoxRow TypeKeepingBox(const wchar_t* control, const wchar_t* key,
                                                    const wchar_t* valueName) {
    return {.Control = control,
            .Value = {kCurrentUser, key, valueName},
            .Shows = {.When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = AsStored(1), .Clear = AsStored(0)}};
}

/// One of the switches from 0x1000 on, which are set by the code behind the one that asks.
[[nodiscard]] constexpr TPlace Effect(std::uint32_t get) { return SwitchParameter(get, get + 1); }

/// A system parameter that is on or off.
[[nodiscard]] constexpr TCheckBoxRow ParameterBox(const wchar_t* control, TPlace parameter,
                                                  const wchar_t* toggles = nullptr) {
    return {.Control = control,
            .Value = parameter,
            .Shows = {.Missing = kClear, .When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)},
            .Toggles = toggles};
}

inline constexpr TDatum kOffAndOn[] = {Dword(0), Dword(1)};

/// A system parameter that is off with the first item of a list and on with the second.
[[nodiscard]] constexpr TChoiceRow ParameterList(const wchar_t* control, TPlace parameter) {
    return {.Control = control, .Value = parameter, .Items = kOffAndOn};
}
