#include "settings/shell/input_page.h"

#include "settings/coding.h"
#include "settings/shared_rows.h"
#include "settings/shell/input_design.h"
#include "settings/shell/input_modern.h"

namespace {

/// A rectangle, whose width and height are two parameters that the page always sets alike.
constexpr TNumberRow Rectangle(const wchar_t* control, TPlace width, TPlace height) {
    return {.Control = control, .Value = width, .Further = TNumberFurther{.Suffix = L"1", .Value = height}};
}

/// What Windows tells only through functions of its own is read where it keeps it.
constexpr TNumberRow ReadFrom(const TPlace& place, TNumberRow row) {
    row.LoadedFrom = &place;
    return row;
}

constexpr TPlace kDoubleClickWidth = As(TCoding::Number, {kCurrentUser, kMouse, L"DoubleClickWidth"});
constexpr TPlace kDoubleClickSpeed = As(TCoding::Number, {kCurrentUser, kMouse, L"DoubleClickSpeed"});
constexpr TPlace kDragWidth = As(TCoding::Number, {kCurrentUser, kDesktop, L"DragWidth"});

constexpr TRow kSensitivityRows[] = {
    TNumberRow{.Control = L"TrackBar_Use_MouseSensitivity_Speed",
               .Value = NumberParameter(0x70, 0x71, TParameterSlot::Data)},  // …MOUSESPEED
    ReadFrom(kDoubleClickWidth,
             Rectangle(L"Updown_Use_MouseSensitivity_DoubleClickError",
                       NumberParameter(kSystemMetric + 36, 0x1D),    // SM_CXDOUBLECLK, SPI_SETDOUBLECLKWIDTH
                       NumberParameter(kSystemMetric + 37, 0x1E))),  // SM_CYDOUBLECLK, SPI_SETDOUBLECLKHEIGHT
    ReadFrom(kDoubleClickSpeed,
             {.Control = L"UpDown_Use_MouseSensitivity_DoubleClickTime",
              .Value = NumberParameter(kDoubleClickTime, 0x20)}),  // SPI_SETDOUBLECLICKTIME
    ReadFrom(kDragWidth,
             Rectangle(L"UpDown_Use_MouseSensitivity_Drag",
                       NumberParameter(kSystemMetric + 68, 0x4C),    // SM_CXDRAG, SPI_SETDRAGWIDTH
                       NumberParameter(kSystemMetric + 69, 0x4D))),  // SM_CYDRAG, SPI_SETDRAGHEIGHT
    Rectangle(L"UpDown_Use_MouseSensitivity_Hover_MoveError",
              NumberParameter(0x62, 0x63),   // …MOUSEHOVERWIDTH
              NumberParameter(0x64, 0x65)),  // …MOUSEHOVERHEIGHT
    TNumberRow{.Control = L"UpDown_Use_MouseSensitivity_Hover_Time",
               .Value = NumberParameter(0x66, 0x67)},  // …MOUSEHOVERTIME
    TNumberRow{.Control = L"UpDown_Use_MouseSensitivity_Tilt_Count",
               .Value = NumberParameter(0x6C, 0x6D)},  // …WHEELSCROLLCHARS
};

// The wheel scrolls a number of lines, or a page, which Wine, whose numbers have a sign, reads as the largest of them.
constexpr std::int32_t kWheelPageScroll = -1;  // WHEEL_PAGESCROLL
constexpr std::int32_t kMostLines = 0x7FFFFFFE;
constexpr const wchar_t* kWheelCount[] = {L"UpDown_Use_MouseFunction_Wheel_Count"};
constexpr const wchar_t* kWheelControls[] = {L"Edit_Use_MouseFunction_Wheel_Count",
                                             L"UpDown_Use_MouseFunction_Wheel_Count"};
constexpr const wchar_t* kTrailLength[] = {L"TrackBar_Use_MouseFunction_Trails_Length"};

constexpr TPlace kSwapped = As(TCoding::Number, {kCurrentUser, kMouse, L"SwapMouseButtons"});

// Where no other name is said, the parameters are SPI_GET… and SPI_SET….
constexpr TRow kFunctionRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Use_MouseFunction_ChangeKey_Change",
                 .Value = NumberParameter(kSystemMetric + 23, 0x21),  // SM_SWAPBUTTON, SPI_SETMOUSEBUTTONSWAP
                 .Shows = {.When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .LoadedFrom = &kSwapped},
    TSwitchRow{.On = L"Radio_Use_MouseFunction_Wheel_RollRow",
               .Off = L"Radio_Use_MouseFunction_Wheel_RollPage",
               .Amount = kWheelCount,
               .Value = NumberParameter(0x68, 0x69),  // …WHEELSCROLLLINES
               .OffWhen = Outside(0, kMostLines),
               .OffRecords = Dword(kWheelPageScroll),
               .Enables = kWheelControls,
               .ChangeName = L"RadWheelRoll"},
    ParameterBox(L"Checkbox_Use_MouseFunction_Pointer_Shadow", Effect(0x101A)),  // …CURSORSHADOW
    ParameterBox(L"Checkbox_Use_MouseFunction_Pointer_Vanish", Effect(0x1020)),  // …MOUSEVANISH
    ParameterBox(L"Checkbox_Use_MouseFunction_Pointer_Sonar", Effect(0x101C)),   // …MOUSESONAR
    ParameterBox(L"Checkbox_Use_MouseFunction_Pointer_Snap",
                 SwitchParameter(0x5F, 0x60, TParameterSlot::Param)),  // …SNAPTODEFBUTTON
    ParameterBox(L"Checkbox_Use_MouseFunction_Pointer_Tracking",
                 Effect(0x1000)),  // …ACTIVEWINDOWTRACKING
    // The number of pointers, which is no trail below 2.
    TSwitchRow{.On = L"Checkbox_Use_MouseFunction_Trails_Show",
               .Amount = kTrailLength,
               .Value = NumberParameter(0x5E, 0x5D),  // …MOUSETRAILS
               .OffWhen = Below(kShortestTrail),
               .OffRecords = Dword(0),
               .Enables = kTrailLength},
};

// One bit for each light of the keyboard. Some systems write the value anew at logoff; that of the default user, which the
// logon screen reads, lasts. Apply leaves that one out where the user has no rights to it.
constexpr const wchar_t* kLights = L"InitialKeyboardIndicators";
constexpr std::uint32_t kNumLockLight = 2;
constexpr TPlace NumLock(TRootKey root, const wchar_t* key) {
    return As(TCoding::Decimal, Bits(kNumLockLight, {root, key, kLights}));
}
constexpr TBoxRecord kBit{.Checked = Dword(1), .Clear = Dword(0)};
constexpr TBoxFurther kNumLockAtLogon[] = {{L"1", NumLock(kUsers, kLogonKeyboard), kBit}};

constexpr TRow kKeyboardRows[] = {
    TNumberRow{.Control = L"TrackBar_Use_Keyboard_Repeat_Delay",
               .Value = NumberParameter(0x16, 0x17)},  // …KEYBOARDDELAY
    TNumberRow{.Control = L"TrackBar_Use_Keyboard_Repeat_Rate",
               .Value = NumberParameter(0x0A, 0x0B)},  // …KEYBOARDSPEED
    // Windows reads it when the user logs on.
    TNumberRow{.Control = L"TrackBar_Use_Keyboard_BlinkingCursor_Speed",
               .Value = As(TCoding::BlinkRate, {kCurrentUser, kDesktop, L"CursorBlinkRate"}),
               .Restart = true},
    CaretWidthRow(L"UpDown_Use_Keyboard_CursorWidth_Width"),
    WindowsKeyRow(L"Checkbox_Use_Keyboard_WinKey_Active"),
    TCheckBoxRow{.Control = L"Checkbox_Use_Keyboard_NumLock_Active",
                 .Value = NumLock(kCurrentUser, kKeyboard),
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = kBit,
                 .Further = kNumLockAtLogon},
};

constexpr TLoader kLoaders[] = {
    kSensitivityRows, kSensitivityModernRows, kFunctionRows, kKeyboardRows, kTextRows, kTouchRows};

constexpr TPresetState kSensitivityDefault[] = {
    {L"TrackBar_Use_MouseSensitivity_Speed", 10},
    {L"Updown_Use_MouseSensitivity_DoubleClickError", 4},
    {L"UpDown_Use_MouseSensitivity_DoubleClickTime", 500},
    {L"UpDown_Use_MouseSensitivity_Drag", 4},
    {L"UpDown_Use_MouseSensitivity_Hover_MoveError", 4},
    {L"UpDown_Use_MouseSensitivity_Hover_Time", 400},
    {L"UpDown_Use_MouseSensitivity_Tilt_Count", 3, kSinceVista},
    {L"Checkbox_Use_MouseSensitivity_Speed_Precision", 1},
};
constexpr TPresetState kFunctionDefault[] = {
    {L"Checkbox_Use_MouseFunction_ChangeKey_Change", 0},
    {L"Radio_Use_MouseFunction_Wheel_RollRow", 1},
    {L"UpDown_Use_MouseFunction_Wheel_Count", 3},
    {L"Checkbox_Use_MouseFunction_Pointer_Shadow", 1},
    {L"Checkbox_Use_MouseFunction_Pointer_Vanish", 1, kSinceXp},
    {L"Checkbox_Use_MouseFunction_Pointer_Sonar", 0, kSinceXp},
    {L"Checkbox_Use_MouseFunction_Pointer_Snap", 0},
    {L"Checkbox_Use_MouseFunction_Pointer_Tracking", 0},
    {L"Checkbox_Use_MouseFunction_Trails_Show", 0, kSinceXp},
};
constexpr TPresetState kKeyboardDefault[] = {
    {L"TrackBar_Use_Keyboard_Repeat_Delay", 1},
    {L"TrackBar_Use_Keyboard_Repeat_Rate", 31},
    {L"TrackBar_Use_Keyboard_BlinkingCursor_Speed", kDefaultBlinkSpeed},
    {L"UpDown_Use_Keyboard_CursorWidth_Width", 1},
    {L"Checkbox_Use_Keyboard_WinKey_Active", 1, kNotWindows2000},
    {L"Checkbox_Use_Keyboard_NumLock_Active", 0},
};
constexpr TPreset kPresets[] = {
    {L"Button_Use_MouseSensitivity_Default", kSensitivityDefault},
    {L"Button_Use_MouseFunction_Default", kFunctionDefault},
    {L"Button_Use_Keyboard_Default", kKeyboardDefault},
    {L"Button_Use_Text_Default", kTextDefault},
    {L"Button_Use_Touch_Default", kTouchDefault},
};

// Windows 2000 has none of these. The policy for the Windows key came with XP and Server 2003.
constexpr TOffer kOffers[] = {
    {L"GroupBox_Use_MouseSensitivity_Tilt", kSinceVista},
    {L"Checkbox_Use_Keyboard_WinKey_Active", kNotWindows2000},
    {L"Checkbox_Use_MouseFunction_Pointer_Vanish", kSinceXp},
    {L"Checkbox_Use_MouseFunction_Pointer_Sonar", kSinceXp},
    {L"Checkbox_Use_MouseFunction_Trails_Show", kSinceXp},
    {L"TrackBar_Use_MouseFunction_Trails_Length", kSinceXp},
};

constexpr TPageDefinition kPage{
    .Tag = 4, .Design = InputDesign, .Loaders = kLoaders, .Presets = kPresets, .Offers = kOffers};

}  // namespace

const TPageDefinition& InputPage() { return kPage; }
