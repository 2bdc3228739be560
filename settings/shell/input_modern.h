// What Windows 8 to 11 ask, suggest and show while something is typed, pointed at or touched: sheets, rows and presets.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

[[nodiscard]] TControlDesign InputTextSheet();
[[nodiscard]] TControlDesign InputTouchSheet();

// Microsoft's reference of Windows' settings, its policy templates and the Win32 reference name the values.

inline constexpr TRow kSensitivityModernRows[] = {
    // The acceleration; Windows no longer looks at the two thresholds before it.
    On(kSinceWindows8, ParameterBox(L"Checkbox_Use_MouseSensitivity_Speed_Precision",
                                    PointedParameter(0x03, 0x04, 3, 2))),  // …MOUSE
};

/// Whether keys of a kind of help, held down or pressed often, ask for it (…_HOTKEYACTIVE).
[[nodiscard]] constexpr TCheckBoxRow HelpKeysBox(const wchar_t* control, std::uint32_t get,
                                                 std::uint8_t size) {
    return On(kSinceWindows8, ParameterBox(control, Bits(0x4, BlockParameter(get, get + 1, size, 4))));
}

[[nodiscard]] constexpr TCheckBoxRow TypingBox(const wchar_t* control, TLevels levels,
                                               const wchar_t* valueName, TBoxState missing) {
    return On(levels, OnOffBox(control, {kCurrentUser, kInputSettings, valueName}, missing));
}

inline constexpr TRow kTextRows[] = {
    On(SinceBuild(17763), AllowedBox(L"Checkbox_Use_Text_Clipboard_History",
                                     {kLocalMachine, kWindowsPolicies, L"AllowClipboardHistory"}, 0)),
    On(SinceBuild(17763), AllowedBox(L"Checkbox_Use_Text_Clipboard_Devices",
                                     {kLocalMachine, kWindowsPolicies, L"AllowCrossDeviceClipboard"}, 0)),
    TypingBox(L"Checkbox_Use_Text_Typing_Suggest", SinceBuild(17134), L"EnableHwkbTextPrediction", kClear),
    TypingBox(L"Checkbox_Use_Text_Typing_Languages", SinceBuild(17134), L"MultilingualEnabled", kClear),
    On(kSinceWindows8,
       ParameterBox(L"Checkbox_Use_Text_Language_Bar", Effect(0x1050))),  // …SYSTEMLANGUAGEBAR
    On(kSinceWindows8,
       ParameterBox(L"Checkbox_Use_Text_Language_Windows", Effect(0x104E))),  // …THREADLOCALINPUTSETTINGS
    HelpKeysBox(L"Checkbox_Use_Text_Help_Sticky", 0x3A, 8),                   // …STICKYKEYS
    HelpKeysBox(L"Checkbox_Use_Text_Help_Filter", 0x32, 24),                  // …FILTERKEYS
    HelpKeysBox(L"Checkbox_Use_Text_Help_Toggle", 0x34, 8),                   // …TOGGLEKEYS
};

/// The window in which the user types, that under the pointer, or both as programs like it.
inline constexpr std::int32_t kPointedWindow = 2;

inline constexpr TRow kTouchRows[] = {
    On(kSinceWindows8,
       ParameterBox(L"Checkbox_Use_Touch_Mouse_ClickLock", Effect(0x101E))),  // …MOUSECLICKLOCK
    TCheckBoxRow{.Control = L"Checkbox_Use_Touch_Mouse_Inactive",
                 .Value = PointedParameter(0x201C, 0x201D, 1, 0),  // …MOUSEWHEELROUTING
                 .Shows = {.Missing = kChecked, .When = {{kPointedWindow, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(kPointedWindow), .Clear = Dword(0)},
                 .Levels = kSinceWindows10},
    On(kSinceWindows10, OnOffBox(L"Checkbox_Use_Touch_Keyboard_Open",
                                 {kCurrentUser, kTouchKeyboard, L"EnableDesktopModeAutoInvoke"}, kClear)),
    On(kSinceWindows11, OnOffBox(L"Checkbox_Use_Touch_Keyboard_Background",
                                 {kCurrentUser, kTouchKeyboard, L"IsKeyBackgroundEnabled"})),
    TypingBox(L"Checkbox_Use_Touch_Keyboard_Correct", kSinceWindows11, L"EnableAutocorrection", kChecked),
    TypingBox(L"Checkbox_Use_Touch_Keyboard_Capitals", kSinceWindows11, L"EnableAutoShiftEngage", kChecked),
    TypingBox(L"Checkbox_Use_Touch_Keyboard_Period", kSinceWindows11, L"EnableDoubleTapSpace", kChecked),
    TypingBox(L"Checkbox_Use_Touch_Keyboard_Dictation", kSinceWindows11, L"IsVoiceTypingKeyEnabled",
              kChecked),
    // 2 shows it darker.
    On(kSinceWindows8, ParameterBox(L"Checkbox_Use_Touch_Keyboard_Contact",
                                    PointedParameter(0x2018, 0x2019, 1, 0))),  // …CONTACTVISUALIZATION
};

inline constexpr TPresetState kTextDefault[] = {
    {L"Checkbox_Use_Text_Clipboard_History", 1}, {L"Checkbox_Use_Text_Clipboard_Devices", 1},
    {L"Checkbox_Use_Text_Typing_Suggest", 0},    {L"Checkbox_Use_Text_Typing_Languages", 0},
    {L"Checkbox_Use_Text_Language_Windows", 0},  {L"Checkbox_Use_Text_Language_Bar", 0},
    {L"Checkbox_Use_Text_Help_Sticky", 1},       {L"Checkbox_Use_Text_Help_Filter", 1},
    {L"Checkbox_Use_Text_Help_Toggle", 1},
};
inline constexpr TPresetState kTouchDefault[] = {
    {L"Checkbox_Use_Touch_Mouse_ClickLock", 0},     {L"Checkbox_Use_Touch_Mouse_Inactive", 1},
    {L"Checkbox_Use_Touch_Keyboard_Contact", 1},    {L"Checkbox_Use_Touch_Keyboard_Open", 0},
    {L"Checkbox_Use_Touch_Keyboard_Background", 1}, {L"Checkbox_Use_Touch_Keyboard_Correct", 1},
    {L"Checkbox_Use_Touch_Keyboard_Capitals", 1},   {L"Checkbox_Use_Touch_Keyboard_Period", 1},
    {L"Checkbox_Use_Touch_Keyboard_Dictation", 1},
};
