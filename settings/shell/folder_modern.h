// What Windows 8 to 11 made of folder windows: its sheets, rows and presets.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

[[nodiscard]] TControlDesign FolderFilesSheet();
[[nodiscard]] TControlDesign FolderExplorerSheet();

inline constexpr const wchar_t* kPinned = L"System.IsPinnedToNameSpaceTree";

inline constexpr TRow kFolderFilesRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Folder_Files_Extensions",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"HideFileExt"},
                 .Shows = {.Missing = kClear, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kSinceWindows8},
    TCheckBoxRow{.Control = L"Checkbox_Folder_Files_Hidden",
                 .Value = {kCurrentUser, kExplorerAdvanced, L"Hidden"},
                 .Shows = {.Missing = kClear, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(2)},
                 .Levels = kSinceWindows8},
    On(kSinceWindows8, ExplorerOption(L"Checkbox_Folder_Files_System", L"ShowSuperHidden", kClear)),
    On(kSinceWindows8, ExplorerOption(L"Checkbox_Folder_Files_IconsOnly", L"IconsOnly", kClear)),
    On(kSinceWindows8, AfterExplorer(AllowedBox(L"Checkbox_Folder_Files_NetworkThumbnails",
                                                UserShellPolicy(L"DisableThumbsDBOnNetworkFolders"), 1))),
    TCheckBoxRow{.Control = L"Checkbox_Folder_Files_AskDelete",
                 .Value = ExplorerPolicy(L"ConfirmFileDelete"),
                 .Shows = {.Missing = kClear, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = kDeleteValue},
                 .Levels = kSinceWindows8},
    On(kSinceWindows8, AllowedBox(L"Checkbox_Folder_Files_RecycleBin", ExplorerPolicy(L"NoRecycleFiles"), 1)),
    // OneDrive writes it for itself.
    On(kSinceWindows10, AfterExplorer(OnOffBox(L"Checkbox_Folder_Files_OneDrive",
                                               {kCurrentUser, kOneDriveFolder, kPinned}, kClear))),
};

inline constexpr TDatum kFirstFolders[] = {Dword(1), Dword(2)};
inline constexpr TDatum kRibbons[] = {kDeleteValue, Dword(1), Dword(2)};

/// An entry of the navigation pane, by its folder.
[[nodiscard]] constexpr TCheckBoxRow PinnedFolder(const wchar_t* control, const wchar_t* folder) {
    return AfterExplorer(AllowedBox(control, {kCurrentUser, folder, kPinned}, 0));
}

inline constexpr TRow kFolderExplorerRows[] = {
    TChoiceRow{.Control = L"CB_Folder_Explorer_LaunchTo",
               .Value = {kCurrentUser, kExplorerAdvanced, L"LaunchTo"},
               .Items = kFirstFolders,
               .Missing = 1,
               .Levels = kSinceWindows10},
    TChoiceRow{.Control = L"CB_Folder_Explorer_Ribbon",
               .Value = UserShellPolicy(L"ExplorerRibbonStartsMinimized"),
               .Items = kRibbons,
               .Missing = 0,
               .Levels = kSinceWindows8 & kUntilWindows10},
    On(kSinceWindows11, ExplorerOption(L"Checkbox_Folder_Explorer_Compact", L"UseCompactMode", kClear)),
    TCheckBoxRow{.Control = L"Checkbox_Folder_Explorer_FullPath",
                 .Value = {kCurrentUser, kCabinetState, L"FullPath"},
                 .Shows = {.Missing = kClear, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Levels = kSinceWindows8},
    // Not documented: a handler of the user's own, which is none, takes the place of the one that shows the short menu.
    TCheckBoxRow{.Control = L"Checkbox_Folder_Explorer_FullMenu",
                 .Value = {kCurrentUser, kShortMenuHandler, L""},
                 .Shows = {.Missing = kClear, .Otherwise = kChecked},
                 .Records = {.Checked = Text(L""), .Clear = kDeleteKey},
                 .Restart = TRestart::Explorer,
                 .Levels = kSinceWindows11},
    On(kSinceWindows8, ExplorerOption(L"Checkbox_Folder_Explorer_ItemCount", L"ShowStatusBar")),
    On(SinceBuild(14393),
       ExplorerOption(L"Checkbox_Folder_Explorer_SyncNotices", L"ShowSyncProviderNotifications")),
    TCheckBoxRow{.Control = L"Checkbox_Folder_Explorer_Recent",
                 .Value = {kCurrentUser, kExplorer, L"ShowRecent"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Levels = kSinceWindows10},
    TCheckBoxRow{.Control = L"Checkbox_Folder_Explorer_Frequent",
                 .Value = {kCurrentUser, kExplorer, L"ShowFrequent"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Levels = kSinceWindows10},
    On(SinceBuild(22621), AfterExplorer(AllowedBox(L"Checkbox_Folder_Explorer_Cloud",
                                                   ShellPolicyForAll(L"DisableGraphRecentItems"), 1))),
    On(SinceBuild(22631), PinnedFolder(L"Checkbox_Folder_Explorer_Gallery", kGalleryFolder)),
    On(SinceBuild(22621), PinnedFolder(L"Checkbox_Folder_Explorer_Home", kHomeFolder)),
    // Up to Windows 10 they stand on the page of Internet Explorer.
    On(kSinceWindows11, YesOrNo(L"Checkbox_Folder_Explorer_Suggest", kExplorerAutoComplete, L"AutoSuggest")),
    On(kSinceWindows11,
       YesOrNo(L"Checkbox_Folder_Explorer_Append", kExplorerAutoComplete, L"Append Completion", kClear)),
};

inline constexpr TPresetState kFolderFilesDefault[] = {
    {L"Checkbox_Folder_Files_Extensions", 0},
    {L"Checkbox_Folder_Files_Hidden", 0},
    {L"Checkbox_Folder_Files_System", 0},
    {L"Checkbox_Folder_Files_IconsOnly", 0},
    {L"Checkbox_Folder_Files_NetworkThumbnails", 1},
    {L"Checkbox_Folder_Files_AskDelete", 0},
    {L"Checkbox_Folder_Files_RecycleBin", 1},
    {L"Checkbox_Folder_Explorer_Suggest", 1},
    {L"Checkbox_Folder_Explorer_Append", 0},
};
inline constexpr TPresetState kFolderExplorerDefault[] = {
    {L"CB_Folder_Explorer_LaunchTo", 1},          {L"CB_Folder_Explorer_Ribbon", 0},
    {L"Checkbox_Folder_Explorer_Compact", 0},     {L"Checkbox_Folder_Explorer_FullPath", 0},
    {L"Checkbox_Folder_Explorer_FullMenu", 0},    {L"Checkbox_Folder_Explorer_ItemCount", 1},
    {L"Checkbox_Folder_Explorer_SyncNotices", 1}, {L"Checkbox_Folder_Explorer_Recent", 1},
    {L"Checkbox_Folder_Explorer_Frequent", 1},    {L"Checkbox_Folder_Explorer_Cloud", 1},
    {L"Checkbox_Folder_Explorer_Gallery", 1},     {L"Checkbox_Folder_Explorer_Home", 1},
};
