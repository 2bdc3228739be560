// What Windows 8 to 11 made of the taskbar: its sheets, rows and presets.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

[[nodiscard]] TControlDesign TaskbarModernSheet();
[[nodiscard]] TControlDesign TaskbarScreensSheet();

// Windows' Settings and policy templates name the values; of those marked "not documented" the settings alone.

inline constexpr TLevels kFirstWindows11 = kSinceWindows11 & UntilBuild(22620);

[[nodiscard]] constexpr TChoiceRow SearchList(TLevels levels, int missing) {
    return {.Control = L"CB_Taskbar_Modern_Search",
            .Value = {kCurrentUser, kSearch, L"SearchboxTaskbarMode"},
            .Items = kFirstNumbers,
            .Missing = missing,
            .Levels = levels};
}

inline constexpr TRow kTaskbarModernRows[] = {
    ExplorerList(L"CB_Taskbar_Modern_Alignment", L"TaskbarAl", 2, 1, kSinceWindows11),
    SearchList(kSinceWindows10 & ~kFirstWindows11, 2),
    SearchList(kFirstWindows11, 1),
    On(SinceBuild(19041), AllowedBox(L"Checkbox_Taskbar_Modern_SearchHighlights",
                                     {kLocalMachine, kSearchPolicies, L"EnableDynamicContentInWSB"}, 0)),
    On(kSinceWindows10, ExplorerOption(L"Checkbox_Taskbar_Modern_TaskView", L"ShowTaskViewButton")),
    // What Settings write (TaskbarDa) Windows 11 protects from other programs.
    On(kSinceWindows11,
       AfterExplorer(AllowedBox(L"Checkbox_Taskbar_Modern_Widgets",
                                {kLocalMachine, kWidgetPolicies, L"AllowNewsAndInterests"}, 0))),
    On(SinceBuild(22621), AllowedBox(L"Checkbox_Taskbar_Modern_LockScreenWidgets",
                                     {kLocalMachine, kWidgetPolicies, L"DisableWidgetsOnLockScreen"}, 1)),
    On(SinceBuild(19041) & kUntilWindows10,
       AfterExplorer(
           AllowedBox(L"Checkbox_Taskbar_Modern_News", {kLocalMachine, kFeedPolicies, L"EnableFeeds"}, 0))),
    // 1 shows it, 2 hides it, 3 turns it off.
    TCheckBoxRow{.Control = L"Checkbox_Taskbar_Modern_Chat",
                 .Value = {kLocalMachine, kChatPolicies, L"ChatIcon"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = kDeleteValue, .Clear = Dword(3)},
                 .Restart = TRestart::Explorer,
                 .Levels = kSinceWindows11 & UntilBuild(22630)},
    On(SinceBuild(16299) & kUntilWindows10,
       AfterExplorer(AllowedBox(L"Checkbox_Taskbar_Modern_People",
                                {kCurrentUser, kUserShellPolicies, L"HidePeopleBar"}, 1))),
    On(SinceBuild(14393), ExplorerOption(L"Checkbox_Taskbar_Modern_Badges", L"TaskbarBadges")),
    On(SinceBuild(22621), ExplorerOption(L"Checkbox_Taskbar_Modern_Flashing", L"TaskbarFlashing")),
    On(kSinceWindows11, ExplorerOption(L"Checkbox_Taskbar_Modern_Sharing", L"TaskbarSn")),
    On(kSinceWindows11, ExplorerOption(L"Checkbox_Taskbar_Modern_Corner", L"TaskbarSd")),
    // Not documented.
    TCheckBoxRow{.Control = L"Checkbox_Taskbar_Modern_EndTask",
                 .Value = {kCurrentUser, kTaskbarDeveloper, L"TaskbarEndTask"},
                 .Shows = {.Missing = kClear, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Levels = SinceBuild(22631)},
    // Not documented.
    On(kSinceWindows10,
       AfterExplorer(ExplorerOption(L"Checkbox_Taskbar_Modern_LastActive", L"LastActiveClick", kClear))),
    On(kSinceWindows10, AllowedBox(L"Checkbox_Taskbar_Modern_RemoteJumpLists",
                                   {kCurrentUser, kUserShellPolicies, L"NoRemoteDestinations"}, 1)),
};

inline constexpr const wchar_t* kAllScreens = L"Checkbox_Taskbar_Screens_All";
/// Windows 11 learned in its third year to show buttons that are not combined.
inline constexpr TLevels kUncombinedButtons = UntilBuild(21999) | SinceBuild(22631);

inline constexpr TRow kTaskbarScreensRows[] = {
    On(kSinceWindows8 & kUntilWindows10, ExplorerOption(kAllScreens, L"MMTaskbarEnabled")),
    On(kSinceWindows11, ExplorerOption(kAllScreens, L"MMTaskbarEnabled", kClear)),
    ExplorerList(L"CB_Taskbar_Screens_Buttons", L"MMTaskbarMode", 3, 0, kSinceWindows8),
    ExplorerList(L"CB_Taskbar_Screens_Combine", L"MMTaskbarGlomLevel", 3, 0,
                 kSinceWindows8& kUncombinedButtons),
    // Not documented. Windows 10 looks when Explorer starts.
    On(SinceBuild(14393) & kUntilWindows10,
       AfterExplorer(
           ExplorerOption(L"Checkbox_Taskbar_Messages_Seconds", L"ShowSecondsInSystemClock", kClear))),
    On(SinceBuild(22621),
       ExplorerOption(L"Checkbox_Taskbar_Messages_Seconds", L"ShowSecondsInSystemClock", kClear)),
    On(kSinceWindows10,
       AfterExplorer(AllowedBox(L"Checkbox_Taskbar_Messages_Center",
                                {kCurrentUser, kUserShellPolicies, L"DisableNotificationCenter"}, 1))),
    On(kSinceWindows8& kUntilWindows10,
       AfterExplorer(AllowedBox(L"Checkbox_Taskbar_Messages_Promotion",
                                {kCurrentUser, kUserShellPolicies, L"NoSystraySystemPromotion"}, 1))),
    On(SinceBuild(18362) & kUntilWindows10,
       AfterExplorer(AllowedBox(L"Checkbox_Taskbar_Messages_MeetNow", ExplorerPolicy(L"HideSCAMeetNow"), 1))),
};

inline constexpr const wchar_t* kOtherTaskbars[] = {
    L"Label_Taskbar_Screens_Buttons", L"CB_Taskbar_Screens_Buttons", L"Label_Taskbar_Screens_Combine",
    L"CB_Taskbar_Screens_Combine"};
inline constexpr TNeed kOtherTaskbarsNeed{
    .Controls = kOtherTaskbars, .Of = kAllScreens, .Levels = kSinceWindows8};

inline constexpr TPresetState kTaskbarModernDefault[] = {
    {L"CB_Taskbar_Modern_Alignment", 1},
    {L"CB_Taskbar_Modern_Search", 2, ~kFirstWindows11},
    {L"CB_Taskbar_Modern_Search", 1, kFirstWindows11},
    {L"Checkbox_Taskbar_Modern_SearchHighlights", 1},
    {L"Checkbox_Taskbar_Modern_TaskView", 1},
    {L"Checkbox_Taskbar_Modern_Widgets", 1},
    {L"Checkbox_Taskbar_Modern_LockScreenWidgets", 1},
    {L"Checkbox_Taskbar_Modern_News", 1},
    {L"Checkbox_Taskbar_Modern_Chat", 1},
    {L"Checkbox_Taskbar_Modern_People", 1},
    {L"Checkbox_Taskbar_Modern_Sharing", 1},
    {L"Checkbox_Taskbar_Modern_Corner", 1},
    {L"Checkbox_Taskbar_Modern_EndTask", 0},
    {L"Checkbox_Taskbar_Modern_LastActive", 0},
    {L"Checkbox_Taskbar_Modern_RemoteJumpLists", 1},
};
inline constexpr TPresetState kTaskbarScreensDefault[] = {
    {kAllScreens, 1, kUntilWindows10},           {kAllScreens, 0, kSinceWindows11},
    {L"CB_Taskbar_Screens_Buttons", 0},          {L"CB_Taskbar_Screens_Combine", 0},
    {L"Checkbox_Taskbar_Messages_Seconds", 0},   {L"Checkbox_Taskbar_Messages_Center", 1},
    {L"Checkbox_Taskbar_Messages_Promotion", 1}, {L"Checkbox_Taskbar_Messages_MeetNow", 1},
    {L"Checkbox_Taskbar_Modern_Badges", 1},      {L"Checkbox_Taskbar_Modern_Flashing", 1},
};
