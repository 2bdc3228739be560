// What protects Windows 8 to 11 from programs and from a distance: sheet and rows. No preset touches any of it.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

[[nodiscard]] TControlDesign SecurityProtectionSheet();

// The four steps of Windows' own slider: how administrators are asked, and whether the screen is dimmed. Since Windows 8 the
// lowest leaves User Account Control itself on.
inline constexpr TDatum kConsent[] = {Dword(2), Dword(5), Dword(5), Dword(0)};
inline constexpr TDatum kDimming[] = {Dword(1), Dword(1), Dword(0), Dword(0)};

// No policy, warn, block, off.
inline constexpr TDatum kSmartScreen[] = {kDeleteValue, Dword(1), Dword(1), Dword(0)};
inline constexpr TDatum kSmartScreenLevels[] = {kDeleteValue, Text(L"Warn"), Text(L"Block"), kNothing};

// No policy, anywhere, Store only.
inline constexpr TDatum kInstallSources[] = {kDeleteValue, Text(L"Anywhere"), Text(L"StoreOnly")};
inline constexpr TDatum kInstallControl[] = {kDeleteValue, Dword(1), Dword(1)};

/// 2 protects without a lock in the firmware, which nothing could take back; older Windows do not know it.
[[nodiscard]] constexpr TCheckBoxRow AuthorityRow(TBoxState missing, TLevels levels) {
    return {.Control = L"Checkbox_Security_Protection_Lsa",
            .Value = {kLocalMachine, kAuthority, L"RunAsPPL"},
            .Shows = {.Missing = missing, .When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(2), .Clear = Dword(0)},
            .Restart = TRestart::Windows,
            .Levels = levels};
}

inline constexpr TRow kProtectionRows[] = {
    TChoiceRow{.Control = L"CB_Security_Protection_Uac",
               .Value = {kLocalMachine, kSystemPolicies, L"ConsentPromptBehaviorAdmin"},
               .Items = kConsent,
               .Missing = 1,
               .Further = TChoiceFurther{.Suffix = L"1",
                                         .Value = {kLocalMachine, kSystemPolicies, L"PromptOnSecureDesktop"},
                                         .Items = kDimming},
               .Levels = kSinceWindows8},
    TChoiceRow{.Control = L"CB_Security_Protection_SmartScreen",
               .Value = {kLocalMachine, kWindowsPolicies, L"EnableSmartScreen"},
               .Items = kSmartScreen,
               .Missing = 0,
               .Further = TChoiceFurther{.Suffix = L"1",
                                         .Value = {kLocalMachine, kWindowsPolicies, L"ShellSmartScreenLevel"},
                                         .Items = kSmartScreenLevels},
               .Levels = kSinceWindows8},
    On(Since(9), OnOffBox(L"Checkbox_Security_Protection_WebContent",
                          {kCurrentUser, kAppHost, L"EnableWebContentEvaluation"})),
    TChoiceRow{.Control = L"CB_Security_Protection_Install",
               .Value = {kLocalMachine, kSmartScreenPolicies, L"ConfigureAppInstallControl"},
               .Items = kInstallSources,
               .Missing = 0,
               .Further = TChoiceFurther{.Suffix = L"1",
                                         .Value = {kLocalMachine, kSmartScreenPolicies,
                                                   L"ConfigureAppInstallControlEnabled"},
                                         .Items = kInstallControl},
               .Levels = SinceBuild(15063)},
    On(kSinceWindows8,
       AllowedBox(L"Checkbox_Security_Protection_Scripts", {kLocalMachine, kScriptHost, L"Enabled"}, 0)),
    AuthorityRow(kClear, SinceBuild(22621) & UntilBuild(26099)),
    AuthorityRow(kChecked, SinceBuild(26100)),
    On(kSinceWindows8, OnOffBox(L"Checkbox_Security_Remote_Assistance",
                                {kLocalMachine, kRemoteAssistance, L"fAllowToGetHelp"}, kClear)),
    On(kSinceWindows8, UnlessBox(L"Checkbox_Security_Remote_Desktop",
                                 {kLocalMachine, kTerminalServer, L"fDenyTSConnections"}, kClear)),
    On(kSinceWindows8, OnOffBox(L"Checkbox_Security_Remote_Password",
                                {kLocalMachine, kRemoteDesktop, L"UserAuthentication"}, kClear)),
};

inline constexpr const wchar_t* kRemoteOptions[] = {L"Checkbox_Security_Remote_Password"};
inline constexpr TNeed kRemoteNeed{.Controls = kRemoteOptions,
                                   .Of = L"Checkbox_Security_Remote_Desktop",
                                   .Disables = false,
                                   .Levels = kSinceWindows8};
