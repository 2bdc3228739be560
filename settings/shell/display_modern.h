// What Windows 8 to 11 made of colors, of arranging windows and of animation: sheets, rows and presets.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

[[nodiscard]] TControlDesign DisplayColorsSheet();
[[nodiscard]] TControlDesign DisplayWindowsSheet();

/// In percent, what Windows itself takes.
inline constexpr int kWallpaperQuality = 85;

// Windows' Settings and the Win32 reference name the values; of those marked "not documented" the settings alone.

inline constexpr const wchar_t* kSystemColors = L"CB_Display_Colors_System";

inline constexpr TRow kDisplayColorsRows[] = {
    TChoiceRow{.Control = L"CB_Display_Colors_Programs",
               .Value = {kCurrentUser, kThemeColors, L"AppsUseLightTheme"},
               .Items = kOffAndOn,
               .Missing = 1,
               .Levels = SinceBuild(14393)},
    // Windows 10 is dark unless something else was chosen or preset.
    TChoiceRow{.Control = kSystemColors,
               .Value = {kCurrentUser, kThemeColors, L"SystemUsesLightTheme"},
               .Items = kOffAndOn,
               .Missing = 0,
               .Levels = SinceBuild(18362) & kUntilWindows10},
    TChoiceRow{.Control = kSystemColors,
               .Value = {kCurrentUser, kThemeColors, L"SystemUsesLightTheme"},
               .Items = kOffAndOn,
               .Missing = 1,
               .Levels = kSinceWindows11},
    On(kSinceWindows10, OnOffBox(L"Checkbox_Display_Colors_Transparency",
                                 {kCurrentUser, kThemeColors, L"EnableTransparency"})),
    On(kSinceWindows10, OnOffBox(L"Checkbox_Display_Colors_Taskbar",
                                 {kCurrentUser, kThemeColors, L"ColorPrevalence"}, kClear)),
    On(kSinceWindows10, OnOffBox(L"Checkbox_Display_Colors_Titles",
                                 {kCurrentUser, kWindowManager, L"ColorPrevalence"}, kClear)),
    On(kSinceWindows10,
       OnOffBox(L"Checkbox_Display_Colors_Automatic", {kCurrentUser, kDesktop, L"AutoColorization"}, kClear)),
    // Not documented. What the next wallpaper is compressed to.
    TNumberRow{.Control = L"UpDown_Display_Wallpaper_Quality",
               .Value = {kCurrentUser, kDesktop, L"JPEGImportQuality"},
               .Missing = kWallpaperQuality,
               .Levels = kSinceWindows10},
};

inline constexpr const wchar_t* kArranging = L"Checkbox_Display_Windows_Arrange";
inline constexpr const wchar_t* kArrangingAtEdges[] = {L"Checkbox_Display_Windows_Dock",
                                                       L"Checkbox_Display_Windows_Size"};

/// One of the parameters of arranging windows, which came with Windows 7.
[[nodiscard]] constexpr TCheckBoxRow ArrangingBox(const wchar_t* control, std::uint32_t get) {
    return On(kSinceWindows8, ParameterBox(control, SwitchParameter(get, get + 1)));
}

inline constexpr const wchar_t* kEdgeTabs = L"CB_Display_Windows_Tabs";

inline constexpr TRow kDisplayWindowsRows[] = {
    // Not documented; a policy with other numbers is.
    ExplorerList(kEdgeTabs, L"MultiTaskingAltTabFilter", 4, 1, SinceBuild(19044) & UntilBuild(22620)),
    ExplorerList(kEdgeTabs, L"MultiTaskingAltTabFilter", 4, 2, SinceBuild(22621)),
    ArrangingBox(kArranging, 0x82),            // …WINARRANGING
    ArrangingBox(kArrangingAtEdges[0], 0x90),  // …DOCKMOVING
    ArrangingBox(kArrangingAtEdges[1], 0x8E),  // …SNAPSIZING
    // Not documented.
    On(kSinceWindows10, ExplorerOption(L"Checkbox_Display_Windows_Assist", L"SnapAssist")),
    // Not documented.
    On(kSinceWindows11, ExplorerOption(L"Checkbox_Display_Windows_Layouts", L"EnableSnapAssistFlyout")),
    ArrangingBox(L"Checkbox_Display_Windows_Restore", 0x8C),  // …DRAGFROMMAXIMIZE
    On(kSinceWindows8& kUntilWindows10,
       AfterExplorer(AllowedBox(L"Checkbox_Display_Windows_Shake",
                                {kCurrentUser, kUserShellPolicies, L"NoWindowMinimizingShortcuts"}, 1))),
    // Not documented. Windows 11 does not look for shaking before it is told to.
    On(kSinceWindows11, UnlessBox(L"Checkbox_Display_Windows_Shake",
                                  {kCurrentUser, kExplorerAdvanced, L"DisallowShaking"}, kClear)),
};

inline constexpr TRow kDisplayAnimationRows[] = {
    On(kSinceWindows8,
       ParameterBox(L"Checkbox_Display_Animation_Windows_Controls", Effect(0x1042))),  // …CLIENTAREAANIMATION
    On(kSinceWindows8,
       AfterExplorer(ExplorerOption(L"Checkbox_Display_Animation_Windows_Taskbar", L"TaskbarAnimations"))),
    On(kSinceWindows8, OnOffBox(L"Checkbox_Display_Animation_Windows_Peek",
                                {kCurrentUser, kWindowManager, L"EnableAeroPeek"})),
};

inline constexpr TPresetState kDisplayColorsDefault[] = {
    {L"CB_Display_Colors_Programs", 1},        {kSystemColors, 0, kUntilWindows10},
    {kSystemColors, 1, kSinceWindows11},       {L"Checkbox_Display_Colors_Transparency", 1},
    {L"Checkbox_Display_Colors_Taskbar", 0},   {L"Checkbox_Display_Colors_Titles", 0},
    {L"Checkbox_Display_Colors_Automatic", 0}, {L"UpDown_Display_Wallpaper_Quality", kWallpaperQuality},
};
inline constexpr TPresetState kDisplayWindowsDefault[] = {
    {kArranging, 1},
    {kArrangingAtEdges[0], 1},
    {kArrangingAtEdges[1], 1},
    {L"Checkbox_Display_Windows_Assist", 1},
    {L"Checkbox_Display_Windows_Layouts", 1},
    {L"Checkbox_Display_Windows_Restore", 1},
    {kEdgeTabs, 1, UntilBuild(22620)},
    {kEdgeTabs, 2, SinceBuild(22621)},
    {L"Checkbox_Display_Windows_Shake", 1, kUntilWindows10},
    {L"Checkbox_Display_Windows_Shake", 0, kSinceWindows11},
};

inline constexpr TNeed kArrangingNeed{
    .Controls = kArrangingAtEdges, .Of = kArranging, .Disables = false, .Levels = kSinceWindows8};
