// The settings that stand on two pages: on the general page and on their own. Each is the same row, for another control.
#pragma once

#include <array>

#include "settings/needs.h"
#include "settings/row_shapes.h"

// Display

[[nodiscard]] constexpr TCheckBoxRow WindowsVersionRow(const wchar_t* control) {
    return WithRestart(TypeKeepingBox(control, kDesktop, L"PaintDesktopVersion"));
}

[[nodiscard]] constexpr TCheckBoxRow DragFullWindowsRow(const wchar_t* control) {
    return ParameterBox(control, SwitchParameter(0x26, 0x25, TParameterSlot::Param));  // …DRAGFULLWINDOWS
}

/// The list's items: off, standard, ClearType.
inline constexpr const wchar_t* kFontSmoothingTypes[] = {L"No Smoothing", L"Standard Font Smoothing",
                                                         L"ClearType"};
inline constexpr TDatum kSmoothing[] = {Dword(0), Dword(1), Dword(1)};
/// FE_FONTSMOOTHINGSTANDARD and FE_FONTSMOOTHINGCLEARTYPE; switching smoothing off leaves the type as it is.
inline constexpr TDatum kSmoothingTypes[] = {kNothing, Dword(1), Dword(2)};

/// Font smoothing, and its type, which came with Windows XP.
[[nodiscard]] constexpr TChoiceRow FontSmoothingRow(const wchar_t* list, const wchar_t* changeName) {
    return {.Control = list,
            .Value = SwitchParameter(0x4A, 0x4B, TParameterSlot::Param),  // …FONTSMOOTHING
            .Items = kSmoothing,
            .Further = TChoiceFurther{.Suffix = L"1",
                                      .Value = NumberParameter(0x200A, 0x200B,  // …FONTSMOOTHINGTYPE
                                                               TParameterSlot::Data),
                                      .Items = kSmoothingTypes,
                                      .Levels = kSinceXp},
            .ChangeName = changeName};
}

// Minimised windows on the desktop

/// The items of the three lists.
inline constexpr const wchar_t* kMinimizedArrangements[] = {L"Hidden", L"In a row", L"In a column"};
inline constexpr const wchar_t* kMinimizedSides[] = {L"From the left", L"From the right"};
inline constexpr const wchar_t* kMinimizedEdges[] = {L"At the top", L"At the bottom"};

/// The shell sets ARW_HIDE whenever it starts, so that the choice does not outlive the session.
inline constexpr const wchar_t* kMinimizedNote =
    L"Windows sets the arrangement back to Hidden at every logon";

// The bits of iArrange, as documented for MINIMIZEDMETRICS.
inline constexpr std::uint32_t kStartRight = 0x01;  // ARW_STARTRIGHT
inline constexpr std::uint32_t kStartTop = 0x02;    // ARW_STARTTOP
inline constexpr std::uint32_t kUpOrDown = 0x04;    // ARW_UP, ARW_DOWN
inline constexpr std::uint32_t kHide = 0x08;        // ARW_HIDE
inline constexpr std::uint32_t kArrangementBits[] = {kHide, 0, kUpOrDown};
inline constexpr std::uint32_t kEdgeBits[] = {kStartTop, 0};

[[nodiscard]] constexpr std::array<TBitsList, 3> MinimizedLists(const wchar_t* arrangement,
                                                                const wchar_t* side, const wchar_t* edge) {
    return {{{arrangement, kHide | kUpOrDown, kArrangementBits},
             {side, kStartRight, {}},
             {edge, kStartTop, kEdgeBits}}};
}

/// The lowest byte of iArrange, with cbSize, iWidth, iHorzGap and iVertGap before it.
[[nodiscard]] constexpr TListsRow MinimizedWindowsRow(std::span<const TBitsList> lists) {
    return {.Lists = lists,
            .Value = Bits(0xFF, BlockParameter(0x2B, 0x2C, 20, 16)),  // …MINIMIZEDMETRICS
            .Missing = kHide,
            .ChangeName = L"Cmblocal"};
}

/// Side and edge, with their labels, say nothing of windows that are hidden.
[[nodiscard]] constexpr TNeed MinimizedNeed(TControlNames sideAndEdge, const wchar_t* arrangement) {
    return {.Controls = sideAndEdge, .Of = arrangement, .State = 0, .IsNot = true};
}

// Start menu and taskbar
inline constexpr TBoxFurther kAdminToolsBeside[] = {
    {L"1",
     {kCurrentUser, kExplorerAdvanced, L"Start_AdminToolsRoot"},
     {.Checked = Dword(2), .Clear = Dword(0)}}};

/// The switch "Administrative Tools in the Start menu" of Windows 2000, and that of the later ones, whose second column has
/// a number of its own: 2 shows them in both; Windows 8 has no such column, and shows them on its Start screen.
[[nodiscard]] constexpr TCheckBoxRow AdminToolsRow(const wchar_t* control, TLevels levels) {
    const bool isText = levels == kUntil2000;
    TCheckBoxRow row{
        .Control = control,
        .Value = {kCurrentUser, kExplorerAdvanced, L"StartMenuAdminTools"},
        .Shows = {.Missing = kClear, .When = {{kEmptyOrNo, kClear}}, .Otherwise = kChecked},
        .Records = {.Checked = isText ? Text(L"YES") : Dword(1), .Clear = isText ? Text(L"NO") : Dword(0)},
        .ChangeName = L"CHKmantools",
        .Levels = levels};
    if (levels == kXpToWindows7) row.Further = kAdminToolsBeside;
    return row;
}

[[nodiscard]] constexpr TCheckBoxRow BalloonTipsRow(const wchar_t* control) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerAdvanced, L"EnableBalloonTips"},
            .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)},
            .Restart = true,
            .Levels = kUntilWindows10};
}

// Input and Explorer

[[nodiscard]] constexpr TNumberRow CaretWidthRow(const wchar_t* upDown) {
    return {.Control = upDown,
            .Value = NumberParameter(0x2006, 0x2007, TParameterSlot::Data)};  // …CARETWIDTH
}

[[nodiscard]] constexpr TCheckBoxRow WindowsKeyRow(const wchar_t* control) {
    return PolicyRow(control, L"NoWinKeys");
}

[[nodiscard]] constexpr TCheckBoxRow RestoreFoldersRow(const wchar_t* control) {
    return {.Control = control,
            .Value = {kCurrentUser, kExplorerAdvancedUpper, L"PersistBrowsers"},
            .Shows = {.When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)}};
}

/// A menu entry is there while its key has a default value, whatever it is, and goes with the whole key. The spellings that
/// are read and written differ in case and in the last backslash only.
inline constexpr TBoxRule kShowsWhileRegistered{.Missing = kClear, .Otherwise = kChecked};

inline constexpr TPlace kOpenCmd{kClassesRoot, L"\\Directory\\shell\\Menu_Cmd", L""};
inline constexpr TBoxFurther kOpenCmdCommand[] = {
    {L"1",
     {kClassesRoot, L"\\Directory\\shell\\Menu_CMD\\Command\\", L""},
     {.Checked = Text(L"cmd.exe /k \"cd %L\""), .Clear = kNothing}}};

[[nodiscard]] constexpr TCheckBoxRow OpenCmdRow(const wchar_t* control) {
    return {.Control = control,
            .Value = {kClassesRoot, L"\\Directory\\shell\\Menu_CMD\\", L""},
            .Shows = kShowsWhileRegistered,
            .Records = {.Checked = Translated(TCaption::OpenCmd), .Clear = kDeleteKey},
            .Further = kOpenCmdCommand,
            .LoadedFrom = &kOpenCmd};
}

[[nodiscard]] constexpr TCheckBoxRow AutoRestartExplorerRow(const wchar_t* control) {
    return {.Control = control,
            .Value = {kLocalMachine, kWinlogon, L"AutoRestartShell"},
            .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)},
            .Restart = true};
}

// Drives, memory, errors

inline constexpr TPlace kLastAccess{kLocalMachine, kFileSystem, L"NtfsDisableLastAccessUpdate"};
inline constexpr TPlace kNoLastAccess = Bits(1, kLastAccess);

/// NTFS stamps every file it touches unless this value is 1.
[[nodiscard]] constexpr TCheckBoxRow LastAccessRow(const wchar_t* control) {
    return {.Control = control,
            .Value = kLastAccess,
            .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(0), .Clear = Dword(1)},
            .Levels = UntilBuild(17133)};
}

/// Then Windows began to decide itself, as the second bit says, unless the highest one is set without it ("fsutil behavior
/// set disablelastaccess").
[[nodiscard]] constexpr TCheckBoxRow ManagedLastAccessRow(const wchar_t* control) {
    constexpr std::int32_t kUserDecides = std::numeric_limits<std::int32_t>::min();
    TCheckBoxRow row = LastAccessRow(control);
    row.LoadedFrom = &kNoLastAccess;
    row.Records = {.Checked = Dword(kUserDecides), .Clear = Dword(kUserDecides | 1)};
    row.Levels = SinceBuild(17134);
    return row;
}

[[nodiscard]] constexpr TCheckBoxRow DiskSpaceRow(const wchar_t* control) {
    TCheckBoxRow row = PolicyRow(control, L"NoLowDiskSpaceChecks");
    row.Value.Key = kExplorerPoliciesUpper;
    return row;
}

[[nodiscard]] constexpr TCheckBoxRow ClearPagefileRow(const wchar_t* control) {
    return {.Control = control,
            .Value = {kLocalMachine, kMemoryManagement, L"ClearPageFileAtShutdown"},
            .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)}};
}

[[nodiscard]] constexpr TCheckBoxRow BeepRow(const wchar_t* control) {
    return ParameterBox(control, SwitchParameter(0x01, 0x02, TParameterSlot::Param));  // …BEEP
}

// Traces and Firefox

[[nodiscard]] constexpr TCheckBoxRow ClearRecentDocumentsRow(const wchar_t* control) {
    return {.Control = control,
            .Value = ExplorerPolicy(L"ClearRecentDocsOnExit"),
            .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)}};
}

/// The preferences must be loaded before the row is.
[[nodiscard]] constexpr TTextRow FirefoxHomePageRow(const wchar_t* edit) {
    return {.Control = edit,
            .Value = As(TCoding::Quoted, Pref(L"\"browser.startup.homepage\"")),
            .MissingClears = true};
}
