#include "settings/shell/input_page.h"

#include <algorithm>

#include "settings/explorer_keys.h"
#include "settings/shell/input_design.h"
#include "settings/store.h"
#include "ui/controls.h"
#include "ui/decimal.h"

namespace {

constexpr const wchar_t* kMouse = L"\\Control Panel\\Mouse\\";
constexpr const wchar_t* kDesktop = L"\\Control Panel\\Desktop\\";

// Special because the width and the height of a rectangle are two parameters, which the page always sets alike, and
// because Windows tells some measures only through functions of their own; those are read where it keeps them.
struct TMeasure {
    std::uint32_t Set;
    std::uint32_t SetHeight;  ///< 0 = it is no rectangle
    std::uint32_t Get;        ///< 0 = there is no such parameter
};
constexpr TMeasure kMeasures[] = {
    {.Set = 0x001D, .SetHeight = 0x001E, .Get = 0},       // SPI_…DOUBLECLK…
    {.Set = 0x0020, .SetHeight = 0, .Get = 0},            // SPI_SETDOUBLECLICKTIME
    {.Set = 0x004C, .SetHeight = 0x004D, .Get = 0},       // SPI_…DRAG…
    {.Set = 0x0063, .SetHeight = 0x0065, .Get = 0x0062},  // SPI_…MOUSEHOVER…
};

void LoadMeasure(TPageContext& context, const TSpecialRow& row) {
    const TMeasure& measure = kMeasures[row.Parameter];
    const auto size = measure.Get == 0 ? StoredNumber(context, row.Value)
                                       : static_cast<std::int32_t>(ReadParameter(context, measure.Get));
    if (size) context.Form.Find<TUpDown>(row.Controls[0])->SetPosition(*size);
}

void RecordMeasure(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const auto size = static_cast<std::uint32_t>(static_cast<TUpDown&>(sender).Position());
    const TMeasure& measure = kMeasures[row.Parameter];
    RecordParameter(context, sender.Name(), measure.Set, size, 0U);
    if (measure.SetHeight != 0) RecordParameter(context, sender.Name() + L"1", measure.SetHeight, size, 0U);
}

constexpr const wchar_t* kDoubleClickError[] = {L"Updown_Use_MouseSensitivity_DoubleClickError"};
constexpr const wchar_t* kDoubleClickTime[] = {L"UpDown_Use_MouseSensitivity_DoubleClickTime"};
constexpr const wchar_t* kDrag[] = {L"UpDown_Use_MouseSensitivity_Drag"};
constexpr const wchar_t* kMoveError[] = {L"UpDown_Use_MouseSensitivity_Hover_MoveError"};

constexpr TRow kSensitivityRows[] = {
    TParameterNumberRow{.Control = L"TrackBar_Use_MouseSensitivity_Speed",
                        .Get = 0x0070,  // SPI_GETMOUSESPEED
                        .Set = 0x0071,  // SPI_SETMOUSESPEED
                        .Slot = TParameterSlot::Data},
    TSpecialRow{.Controls = kDoubleClickError,
                .Value = {kCurrentUser, kMouse, L"DoubleClickWidth"},
                .Rule = L"the number; sets the system parameters 0x1D (width) and 0x1E (height), in uiParam",
                .Load = LoadMeasure,
                .Record = RecordMeasure,
                .Parameter = 0},
    TSpecialRow{.Controls = kDoubleClickTime,
                .Value = {kCurrentUser, kMouse, L"DoubleClickSpeed"},
                .Rule = L"the number of milliseconds; sets the system parameter 0x20, in uiParam",
                .Load = LoadMeasure,
                .Record = RecordMeasure,
                .Parameter = 1},
    TSpecialRow{.Controls = kDrag,
                .Value = {kCurrentUser, kDesktop, L"DragWidth"},
                .Rule = L"the number; sets the system parameters 0x4C (width) and 0x4D (height), in uiParam",
                .Load = LoadMeasure,
                .Record = RecordMeasure,
                .Parameter = 2},
    TSpecialRow{.Controls = kMoveError,
                .Value = {kCurrentUser, kMouse, L"MouseHoverWidth"},
                .Rule = L"the system parameter 0x62; sets 0x63 (width) and 0x65 (height), in uiParam",
                .Load = LoadMeasure,
                .Record = RecordMeasure,
                .Parameter = 3},
    TParameterNumberRow{.Control = L"UpDown_Use_MouseSensitivity_Hover_Time",
                        .Get = 0x0066,   // SPI_GETMOUSEHOVERTIME
                        .Set = 0x0067},  // SPI_SETMOUSEHOVERTIME
    TParameterNumberRow{.Control = L"UpDown_Use_MouseSensitivity_Tilt_Count",
                        .Get = 0x006C,   // SPI_GETWHEELSCROLLCHARS
                        .Set = 0x006D},  // SPI_SETWHEELSCROLLCHARS
};

// Special because Windows tells whether the buttons are swapped only as a system metric.
void LoadButtonSwap(TPageContext& context, const TSpecialRow& row) {
    const auto swapped = StoredNumber(context, row.Value);
    if (swapped) context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(*swapped != 0);
}

void RecordButtonSwap(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    constexpr std::uint32_t kSetMouseButtonSwap = 0x0021;
    RecordParameter(context, sender.Name(), kSetMouseButtonSwap,
                    static_cast<TCheckBox&>(sender).Checked() ? 1 : 0, 0U);
}

// Special because the radio buttons and the up-down are one parameter: a number of lines, or a page.
constexpr const wchar_t* kWheel[] = {L"Radio_Use_MouseFunction_Wheel_RollRow",
                                     L"Radio_Use_MouseFunction_Wheel_RollPage",
                                     L"UpDown_Use_MouseFunction_Wheel_Count"};
constexpr std::uint32_t kWheelPageScroll = 0xFFFFFFFF;
constexpr std::uint32_t kWheelPageRead = 0x7FFFFFFF;  // what Wine, whose numbers have a sign, makes of it

void EnableWheelCount(const TPageContext& context, bool enabled) {
    for (const wchar_t* name :
         {L"Edit_Use_MouseFunction_Wheel_Count", L"UpDown_Use_MouseFunction_Wheel_Count"})
        context.Form.Find(name)->SetEnabled(enabled);
}

void LoadWheel(TPageContext& context, const TSpecialRow& row) {
    constexpr std::uint32_t kGetWheelScrollLines = 0x0068;
    const std::uint32_t lines = ReadParameter(context, kGetWheelScrollLines);
    const bool byPage = lines >= kWheelPageRead;
    context.Form.Find<TRadioButton>(row.Controls[byPage ? 1 : 0])->SetChecked(true);
    if (!byPage) context.Form.Find<TUpDown>(row.Controls[2])->SetPosition(static_cast<int>(lines));
    EnableWheelCount(context, !byPage);
}

void RecordWheel(TPageContext& context, const TSpecialRow& row, TComponent& /*sender*/) {
    constexpr std::uint32_t kSetWheelScrollLines = 0x0069;
    const bool byPage = context.Form.Find<TRadioButton>(row.Controls[1])->Checked();
    const int lines = context.Form.Find<TUpDown>(row.Controls[2])->Position();
    EnableWheelCount(context, !byPage);
    RecordParameter(context, L"RadWheelRoll", kSetWheelScrollLines,
                    byPage ? kWheelPageScroll : static_cast<std::uint32_t>(lines), 0U);
}

// Special because the box and the slider are one parameter: the number of pointers, which is no trail below 2.
constexpr const wchar_t* kTrails[] = {L"Checkbox_Use_MouseFunction_Trails_Show",
                                      L"TrackBar_Use_MouseFunction_Trails_Length"};

void LoadTrails(TPageContext& context, const TSpecialRow& row) {
    constexpr std::uint32_t kGetMouseTrails = 0x005E;
    const auto pointers = static_cast<int>(ReadParameter(context, kGetMouseTrails));
    const bool shown = pointers >= kShortestTrail;
    context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(shown);
    auto& length = *context.Form.Find<TTrackBar>(row.Controls[1]);
    if (shown) length.SetPosition(pointers);
    length.SetEnabled(shown);
}

void RecordTrails(TPageContext& context, const TSpecialRow& row, TComponent& /*sender*/) {
    constexpr std::uint32_t kSetMouseTrails = 0x005D;
    const bool shown = context.Form.Find<TCheckBox>(row.Controls[0])->Checked();
    auto& length = *context.Form.Find<TTrackBar>(row.Controls[1]);
    length.SetEnabled(shown);
    RecordParameter(context, row.Controls[0], kSetMouseTrails,
                    shown ? static_cast<std::uint32_t>(length.Position()) : 0, 0U);
}

constexpr const wchar_t* kButtonSwap[] = {L"Checkbox_Use_MouseFunction_ChangeKey_Change"};

constexpr TRow kFunctionRows[] = {
    TSpecialRow{.Controls = kButtonSwap,
                .Value = {kCurrentUser, kMouse, L"SwapMouseButtons"},
                .Rule = L"clear when 0, else checked; sets the system parameter 0x21 to 1 or 0, in uiParam",
                .Load = LoadButtonSwap,
                .Record = RecordButtonSwap},
    TSpecialRow{
        .Controls = kWheel,
        .Value = {kCurrentUser, kDesktop, L"WheelScrollLines"},
        .Rule = L"the system parameter 0x68: a number of lines, or 0xFFFFFFFF; set by 0x69, in uiParam",
        .Load = LoadWheel,
        .Record = RecordWheel},
    TParameterSwitchRow{.Control = L"Checkbox_Use_MouseFunction_Pointer_Shadow",
                        .Get = 0x101A,   // SPI_GETCURSORSHADOW
                        .Set = 0x101B},  // SPI_SETCURSORSHADOW
    TParameterSwitchRow{.Control = L"Checkbox_Use_MouseFunction_Pointer_Vanish",
                        .Get = 0x1020,   // SPI_GETMOUSEVANISH
                        .Set = 0x1021},  // SPI_SETMOUSEVANISH
    TParameterSwitchRow{.Control = L"Checkbox_Use_MouseFunction_Pointer_Sonar",
                        .Get = 0x101C,   // SPI_GETMOUSESONAR
                        .Set = 0x101D},  // SPI_SETMOUSESONAR
    TParameterSwitchRow{.Control = L"Checkbox_Use_MouseFunction_Pointer_Snap",
                        .Get = 0x005F,  // SPI_GETSNAPTODEFBUTTON
                        .Set = 0x0060,  // SPI_SETSNAPTODEFBUTTON
                        .Slot = TParameterSlot::Param},
    TParameterSwitchRow{.Control = L"Checkbox_Use_MouseFunction_Pointer_Tracking",
                        .Get = 0x1000,   // SPI_GETACTIVEWINDOWTRACKING
                        .Set = 0x1001},  // SPI_SETACTIVEWINDOWTRACKING
    TSpecialRow{.Controls = kTrails,
                .Value = {kCurrentUser, kMouse, L"MouseTrails"},
                .Rule =
                    L"the system parameter 0x5E: the number of pointers, clear below 2; set by 0x5D, 0 when "
                    L"clear, in uiParam",
                .Load = LoadTrails,
                .Record = RecordTrails},
};

// Special because the slider shows a speed, Windows keeps a time, and -1 is a cursor that does not blink. Windows
// reads the value when the user logs on.
constexpr const wchar_t* kBlink[] = {L"TrackBar_Use_Keyboard_BlinkingCursor_Speed"};
constexpr std::int32_t kNoBlink = -1;

void LoadBlink(TPageContext& context, const TSpecialRow& row) {
    const auto time = StoredNumber(context, row.Value);
    if (!time) return;
    auto& slider = *context.Form.Find<TTrackBar>(row.Controls[0]);
    slider.SetPosition(*time == kNoBlink ? slider.Min()
                                         : MirrorBlink(std::clamp(*time, kFastestBlink, kSlowestBlink)));
}

void RecordBlink(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const std::int32_t time = MirrorBlink(static_cast<TTrackBar&>(sender).Position());
    RecordText(context, sender.Name(), row.Value, DecimalText(time > kSlowestBlink ? kNoBlink : time));
}

// Special because the value is a set of bits, one for each light of the keyboard, kept as decimal text without a sign.
// Some systems write it anew at logoff; that of the default user, which the logon screen reads, lasts. Apply leaves
// that one out where the user has no rights to it.
constexpr const wchar_t* kNumLock[] = {L"Checkbox_Use_Keyboard_NumLock_Active"};
constexpr std::uint32_t kNumLockLight = 2;
constexpr TPlace kLights{kCurrentUser, L"\\Control Panel\\Keyboard\\", L"InitialKeyboardIndicators"};
constexpr TPlace kLogonLights{kUsers, L"\\.DEFAULT\\Control Panel\\Keyboard\\", kLights.ValueName};

void LoadNumLock(TPageContext& context, const TSpecialRow& row) {
    const auto lights = StoredBits(context, row.Value);
    if (lights) context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked((*lights & kNumLockLight) != 0);
}

void RecordNumLock(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const std::uint32_t light = static_cast<TCheckBox&>(sender).Checked() ? kNumLockLight : 0;
    const auto record = [&](const std::wstring& name, const TPlace& place) {
        const std::uint32_t others = StoredBits(context, place).value_or(0) & ~kNumLockLight;
        RecordText(context, name, place, DecimalText(others | light));
    };
    record(sender.Name(), row.Value);
    record(sender.Name() + L"1", kLogonLights);
}

constexpr TRow kKeyboardRows[] = {
    TParameterNumberRow{.Control = L"TrackBar_Use_Keyboard_Repeat_Delay",
                        .Get = 0x0016,   // SPI_GETKEYBOARDDELAY
                        .Set = 0x0017},  // SPI_SETKEYBOARDDELAY
    TParameterNumberRow{.Control = L"TrackBar_Use_Keyboard_Repeat_Rate",
                        .Get = 0x000A,   // SPI_GETKEYBOARDSPEED
                        .Set = 0x000B},  // SPI_SETKEYBOARDSPEED
    TSpecialRow{.Controls = kBlink,
                .Value = {kCurrentUser, kDesktop, L"CursorBlinkRate"},
                .Rule = L"position 2530 less the milliseconds, the leftmost when -1; text, -1 left of 1330",
                .Load = LoadBlink,
                .Record = RecordBlink,
                .Restart = true},
    TParameterNumberRow{.Control = L"UpDown_Use_Keyboard_CursorWidth_Width",
                        .Get = 0x2006,  // SPI_GETCARETWIDTH
                        .Set = 0x2007,  // SPI_SETCARETWIDTH
                        .Slot = TParameterSlot::Data},
    TCheckBoxRow{.Control = L"Checkbox_Use_Keyboard_WinKey_Active",
                 .Value = {kCurrentUser, kExplorerPolicies, L"NoWinKeys"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Restart = true},
    TSpecialRow{.Controls = kNumLock,
                .Value = kLights,
                .Rule = L"checked when the bit 2 is set; changes that bit alone, as text, here and below "
                        L"`HKU\\.DEFAULT`",
                .Load = LoadNumLock,
                .Record = RecordNumLock},
};

constexpr TLoader kLoaders[] = {kSensitivityRows, kFunctionRows, kKeyboardRows};

constexpr TPresetState kSensitivityDefault[] = {
    {L"TrackBar_Use_MouseSensitivity_Speed", 10},
    {L"Updown_Use_MouseSensitivity_DoubleClickError", 4},
    {L"UpDown_Use_MouseSensitivity_DoubleClickTime", 500},
    {L"UpDown_Use_MouseSensitivity_Drag", 4},
    {L"UpDown_Use_MouseSensitivity_Hover_MoveError", 4},
    {L"UpDown_Use_MouseSensitivity_Hover_Time", 400},
    {L"UpDown_Use_MouseSensitivity_Tilt_Count", 3, kSinceVista},
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
};

// Windows 2000 has none of these. The policy for the Windows key came with XP and Server 2003.
constexpr TOffer kOffers[] = {
    {L"GroupBox_Use_MouseSensitivity_Tilt", kSinceVista},
    {L"Checkbox_Use_Keyboard_WinKey_Active", kNotWindows2000},
    {L"Checkbox_Use_MouseFunction_Pointer_Vanish", kSinceXp},
    {L"Checkbox_Use_MouseFunction_Pointer_Sonar", kSinceXp},
    {L"GroupBox_Use_MouseFunction_Trails", kSinceXp},
};

constexpr TPageDefinition kPage{.Tag = 4,
                                .SharedHandler = L"Checkbox_Use_MouseFunction_ChangeKey_ChangeClick",
                                .Design = InputDesign,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .Offers = kOffers};

}  // namespace

const TPageDefinition& InputPage() { return kPage; }
