// What Windows 10 and 11 made of the Start menu: its sheet, rows and preset.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

[[nodiscard]] TControlDesign StartMenuModernSheet();

// Of a list whose first item is Windows' own choice: no policy. Windows' policy templates have the numbers.
inline constexpr TDatum kMostUsed[] = {kDeleteValue, Dword(1), Dword(2)};
inline constexpr TDatum kAllPrograms[] = {kDeleteValue, Dword(3), Dword(2), Dword(1)};
inline constexpr TDatum kStartSizes[] = {kDeleteValue, Dword(1), Dword(2)};

inline constexpr TBoxRecord kOneOrZero{.Checked = Dword(1), .Clear = Dword(0)};
/// Editions for companies read these two, which are for all users.
inline constexpr TBoxFurther kWebSearchPolicies[] = {
    {L"1",
     {kLocalMachine, kSearchPolicies, L"DisableWebSearch"},
     {.Checked = kDeleteValue, .Clear = Dword(1)}},
    {L"2",
     {kLocalMachine, kSearchPolicies, L"ConnectedSearchUseWeb"},
     {.Checked = kDeleteValue, .Clear = Dword(0)}},
};

[[nodiscard]] constexpr TCheckBoxRow WebSearchRow() {
    TCheckBoxRow row = AllowedBox(L"Checkbox_Use_StartMenu_Modern_WebSearch",
                                  UserShellPolicy(L"DisableSearchBoxSuggestions"), 1);
    row.Further = kWebSearchPolicies;
    return row;
}
inline constexpr TBoxFurther kMoreSuggestions[] = {
    {L"1", {kCurrentUser, kContentDelivery, L"SubscribedContent-338388Enabled"}, kOneOrZero}};

inline constexpr TRow kStartMenuModernRows[] = {
    On(SinceBuild(22621),
       ExplorerOption(L"Checkbox_Use_StartMenu_Modern_Recommendations", L"Start_IrisRecommendations")),
    ExplorerList(L"CB_Use_StartMenu_Modern_Layout", L"Start_Layout", 3, 0, SinceBuild(22621)),
    On(SinceBuild(17134) & kUntilWindows10,
       WithRestart(AllowedBox(L"Checkbox_Use_StartMenu_Modern_RecentlyAdded",
                              UserShellPolicy(L"HideRecentlyAddedApps"), 1))),
    TCheckBoxRow{.Control = L"Checkbox_Use_StartMenu_Modern_RecentlyAdded",
                 .Value = {kCurrentUser, kStart, L"ShowRecentList"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = kOneOrZero,
                 .Levels = kSinceWindows11},
    TChoiceRow{.Control = L"CB_Use_StartMenu_Modern_MostUsed",
               .Value = UserShellPolicy(L"ShowOrHideMostUsedApps"),
               .Items = kMostUsed,
               .Missing = 0,
               .Restart = true,
               .Levels = SinceBuild(19044)},
    TCheckBoxRow{.Control = L"Checkbox_Use_StartMenu_Modern_Suggestions",
                 .Value = {kCurrentUser, kContentDelivery, L"SystemPaneSuggestionsEnabled"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = kOneOrZero,
                 .Further = kMoreSuggestions,
                 .Levels = kOnlyWindows10},
    On(kSinceWindows10, WithRestart(WebSearchRow())),
    On(SinceBuild(19041),
       WithRestart(AllowedBox(L"Checkbox_Use_StartMenu_Modern_Account",
                              {kCurrentUser, kAccountPolicies, L"DisableAccountNotifications"}, 1))),
    On(SinceBuild(22621), WithRestart(AllowedBox(L"Checkbox_Use_StartMenu_Modern_Websites",
                                                 UserShellPolicy(L"HideRecommendedPersonalizedSites"), 1))),
    On(SinceBuild(17134), WithRestart(AllowedBox(L"Checkbox_Use_StartMenu_Modern_Menus",
                                                 UserShellPolicy(L"DisableContextMenusInStart"), 1))),
    TChoiceRow{.Control = L"CB_Use_StartMenu_Modern_AllPrograms",
               .Value = ExplorerPolicy(L"NoStartMenuMorePrograms"),
               .Items = kAllPrograms,
               .Missing = 0,
               .Restart = true,
               .Levels = kSinceWindows10},
    TChoiceRow{.Control = L"CB_Use_StartMenu_Modern_Size",
               .Value = UserShellPolicy(L"ForceStartSize"),
               .Items = kStartSizes,
               .Missing = 0,
               .Restart = true,
               .Levels = kOnlyWindows10},
    On(kSinceWindows10,
       AllowedBox(L"Checkbox_Use_StartMenu_Modern_Lock", ShellPolicyForAll(L"ShowLockOption"), 0)),
    On(kSinceWindows10,
       AllowedBox(L"Checkbox_Use_StartMenu_Modern_Sleep", ShellPolicyForAll(L"ShowSleepOption"), 0)),
    TCheckBoxRow{.Control = L"Checkbox_Use_StartMenu_Modern_Hibernate",
                 .Value = ShellPolicyForAll(L"ShowHibernateOption"),
                 .Shows = {.Missing = kClear, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kOneOrZero,
                 .Levels = kSinceWindows10},
    TCheckBoxRow{.Control = L"Checkbox_Use_StartMenu_Modern_RunAs",
                 .Value = UserShellPolicy(L"ShowRunAsDifferentUserInStart"),
                 .Shows = {.Missing = kClear, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = kDeleteValue},
                 .Restart = true,
                 .Levels = kSinceWindows10},
};

inline constexpr TPresetState kStartMenuModernDefault[] = {
    {L"Checkbox_Use_StartMenu_Modern_Recommendations", 1},
    {L"CB_Use_StartMenu_Modern_Layout", 0},
    {L"Checkbox_Use_StartMenu_Modern_RecentlyAdded", 1},
    {L"CB_Use_StartMenu_Modern_MostUsed", 0},
    {L"Checkbox_Use_StartMenu_Modern_Suggestions", 1},
    {L"Checkbox_Use_StartMenu_Modern_WebSearch", 1},
    {L"Checkbox_Use_StartMenu_Modern_Account", 1},
    {L"Checkbox_Use_StartMenu_Modern_Websites", 1},
    {L"Checkbox_Use_StartMenu_Modern_Menus", 1},
    {L"CB_Use_StartMenu_Modern_AllPrograms", 0},
    {L"CB_Use_StartMenu_Modern_Size", 0},
    {L"Checkbox_Use_StartMenu_Modern_Lock", 1},
    {L"Checkbox_Use_StartMenu_Modern_Sleep", 1},
    {L"Checkbox_Use_StartMenu_Modern_Hibernate", 0},
    {L"Checkbox_Use_StartMenu_Modern_RunAs", 0},
};
