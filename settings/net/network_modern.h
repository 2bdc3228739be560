// Older protocols, and how Windows 8 to 11 find other computers.
#pragma once

#include "settings/row_shapes.h"

inline constexpr const wchar_t* kSmb1Client = L"Checkbox_Net_Neighbor_Old_Client";

/// By the edition of Windows, always, never.
inline constexpr TDatum kGuests[] = {kDeleteValue, Dword(1), Dword(0)};

inline constexpr TRow kOldProtocolRows[] = {
    // Without a value it is on, where Windows' component for it is installed.
    On(kSinceWindows8,
       WithRestart(OnOffBox(L"Checkbox_Net_Neighbor_Old_Server", {kLocalMachine, kServer, L"SMB1"}))),
    // What Microsoft's security guide (SecGuide.admx) switches. Windows 8 also needs another list of services at the workstation
    // service, or has no network.
    TCheckBoxRow{.Control = kSmb1Client,
                 .Value = {kLocalMachine, kSmb1Driver, L"Start"},
                 .Shows = {.Missing = kClear, .When = {{4, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(2), .Clear = Dword(4)},
                 .Restart = TRestart::Windows,
                 .Levels = Since(9)},
    TChoiceRow{.Control = L"CB_Net_Neighbor_Old_Guest",
               .Value = {kLocalMachine, kWorkstationPolicies, L"AllowInsecureGuestAuth"},
               .Items = kGuests,
               .Missing = 0,
               .Levels = kSinceWindows10},
};

inline constexpr TRow kFindingRows[] = {
    On(kSinceWindows8, WithRestart(AllowedBox(L"Checkbox_Net_Advanced_Find_Multicast",
                                              {kLocalMachine, kNamePolicies, L"EnableMulticast"}, 0))),
    On(kSinceWindows8,
       WithRestart(AllowedBox(L"Checkbox_Net_Advanced_Find_All",
                              {kLocalMachine, kNamePolicies, L"DisableSmartNameResolution"}, 1))),
    TKeyRow{.Control = L"Checkbox_Net_Advanced_Find_Ask",
            .Value = {kLocalMachine, kNoNetworkQuestion, L""},
            .WhileChecked = false,
            .Levels = kSinceWindows8},
    TCheckBoxRow{
        .Control = L"Checkbox_Net_Advanced_Find_Teredo",
        .Value = {kLocalMachine, kTransitionPolicies, L"Teredo_State"},
        .Shows = {.Missing = kChecked, .When = {{AnyCase(L"Disabled"), kClear}}, .Otherwise = kChecked},
        .Records = {.Checked = kDeleteValue, .Clear = Text(L"Disabled")},
        .Restart = TRestart::Windows,
        .Levels = kSinceWindows8},
};
