#include "settings/shell/input_design.h"

#include "settings/coding.h"
#include "settings/shell/input_modern.h"

namespace {

TControlDesign SensitivitySheet() {
    return Sheet(
        L"TabSheet_Use_MouseSensitivity", L"Mouse Sensitivity",
        Group(L"GroupBox_Use_MouseSensitivity_Speed", L"Moving and dragging",
              Fields(Row(Label(L"Label_Use_MouseSensitivity_Speed", L"Pointer speed, slow to &fast:"),
                         TrackBar(L"TrackBar_Use_MouseSensitivity_Speed", 1, 20, 10)),
                     Row(Label(L"Label_Use_MouseSensitivity_Drag", L"Movement that &starts dragging:"),
                         Edit(L"Edit_Use_MouseSensitivity_Drag").Width(5),
                         UpDown(L"UpDown_Use_MouseSensitivity_Drag", L"Edit_Use_MouseSensitivity_Drag", 1,
                                100, 4),
                         Label(L"Label_Use_MouseSensitivity_Drag_Unit", L"pixels"))),
              CheckBox(L"Checkbox_Use_MouseSensitivity_Speed_Precision",
                       L"M&ove farther when the mouse moves faster")),
        Group(L"GroupBox_Use_MouseSensitivity_DoubleClickError", L"Double-clicking",
              Fields(Row(Label(L"Label_Use_MouseSensitivity_DoubleClickError", L"Dou&ble-click tolerance:"),
                         Edit(L"Edit_Use_MouseSensitivity_DoubleClickError").Width(5).FilteringKeys(),
                         UpDown(L"Updown_Use_MouseSensitivity_DoubleClickError",
                                L"Edit_Use_MouseSensitivity_DoubleClickError", 1, 100, 4),
                         Label(L"Label_Use_MouseSensitivity_DoubleClickError_Unit", L"pixels")),
                     Row(Label(L"Label_Use_MouseSensitivity_DoubleClickTime",
                               L"Longest ti&me between the clicks:"),
                         Edit(L"Edit_Use_MouseSensitivity_DoubleClickTime").Width(5),
                         UpDown(L"UpDown_Use_MouseSensitivity_DoubleClickTime",
                                L"Edit_Use_MouseSensitivity_DoubleClickTime", 200, 900, 500),
                         Label(L"Label_Use_MouseSensitivity_DoubleClickTime_Unit", L"milliseconds")))),
        Group(L"GroupBox_Use_MouseSensitivity_Hover", L"Hovering",
              Fields(Row(Label(L"Label_Use_MouseSensitivity_Hover_MoveError",
                               L"Area in which the &pointer must stay:"),
                         Edit(L"Edit_Use_MouseSensitivity_Hover_MoveError").Width(5),
                         UpDown(L"UpDown_Use_MouseSensitivity_Hover_MoveError",
                                L"Edit_Use_MouseSensitivity_Hover_MoveError", 0, 100, 4),
                         Label(L"Label_Use_MouseSensitivity_Hover_MoveError_Unit", L"pixels")),
                     Row(Label(L"Label_Use_MouseSensitivity_Hover_Time", L"&Time for which it must stay:"),
                         Edit(L"Edit_Use_MouseSensitivity_Hover_Time").Width(5),
                         UpDown(L"UpDown_Use_MouseSensitivity_Hover_Time",
                                L"Edit_Use_MouseSensitivity_Hover_Time", 0, 1000, 400),
                         Label(L"Label_Use_MouseSensitivity_Hover_Time_Unit", L"milliseconds")))),
        Group(L"GroupBox_Use_MouseSensitivity_Tilt", L"Tilting the wheel",
              Row(Label(L"Label_Use_MouseSensitivity_Tilt_Count", L"Scroll by this &number of characters:"),
                  Edit(L"Edit_Use_MouseSensitivity_Tilt_Count").Width(5),
                  UpDown(L"UpDown_Use_MouseSensitivity_Tilt_Count", L"Edit_Use_MouseSensitivity_Tilt_Count",
                         1, 100, 3))),
        Buttons(Button(L"Button_Use_MouseSensitivity_Default", L"&Default")));
}

TControlDesign FunctionSheet() {
    return Sheet(
        L"TabSheet_Use_MouseFunction", L"Mouse Functions",
        Group(L"GroupBox_Use_MouseFunction_ChangeKey", L"For the left hand",
              CheckBox(L"Checkbox_Use_MouseFunction_ChangeKey_Change",
                       L"&Switch primary and secondary buttons")),
        Group(L"GroupBox_Use_MouseFunction_Wheel", L"Roll the wheel one notch to scroll",
              Row(RadioButton(L"Radio_Use_MouseFunction_Wheel_RollRow", L"This number of &lines:").Checked(),
                  Edit(L"Edit_Use_MouseFunction_Wheel_Count").Width(5).FilteringKeys(),
                  UpDown(L"UpDown_Use_MouseFunction_Wheel_Count", L"Edit_Use_MouseFunction_Wheel_Count", 1,
                         100, 3)),
              RadioButton(L"Radio_Use_MouseFunction_Wheel_RollPage", L"&One screen")),
        Group(
            L"GroupBox_Use_MouseFunction_Pointer", L"Pointer",
            CheckBox(L"Checkbox_Use_MouseFunction_Pointer_Shadow", L"Sho&w a shadow under the mouse pointer"),
            CheckBox(L"Checkbox_Use_MouseFunction_Pointer_Vanish", L"&Hide pointer while typing"),
            CheckBox(L"Checkbox_Use_MouseFunction_Pointer_Sonar",
                     L"Show location of pointer when I press the &Ctrl key"),
            CheckBox(L"Checkbox_Use_MouseFunction_Pointer_Snap",
                     L"Move pointer to the default &button in a dialog box"),
            CheckBox(L"Checkbox_Use_MouseFunction_Pointer_Tracking", L"Acti&vate a window by pointing at it"),
            Row(CheckBox(L"Checkbox_Use_MouseFunction_Trails_Show",
                         L"Display pointer &trails, short to long:"),
                TrackBar(L"TrackBar_Use_MouseFunction_Trails_Length", kShortestTrail, kLongestTrail,
                         kLongestTrail))),
        Buttons(Button(L"Button_Use_MouseFunction_Default", L"&Default")));
}

TControlDesign KeyboardSheet() {
    return Sheet(
        L"TabSheet_Use_Keyboard", L"Keyboard",
        Group(L"GroupBox_Use_Keyboard_Repeat", L"Character repeat",
              Fields(Row(Label(L"Label_Use_Keyboard_Repeat_Delay", L"Repeat d&elay, short to long:"),
                         TrackBar(L"TrackBar_Use_Keyboard_Repeat_Delay", 0, 3, 1)),
                     Row(Label(L"Label_Use_Keyboard_Repeat_Rate", L"&Repeat rate, slow to fast:"),
                         TrackBar(L"TrackBar_Use_Keyboard_Repeat_Rate", 0, 31, 31)))),
        Group(L"GroupBox_Use_Keyboard_Cursor", L"Cursor",
              Fields(Row(Label(L"Label_Use_Keyboard_BlinkingCursor_Speed", L"&Blink rate, none to fast:"),
                         TrackBar(L"TrackBar_Use_Keyboard_BlinkingCursor_Speed", kNoBlinkSpeed,
                                  kFastestBlinkSpeed, kDefaultBlinkSpeed)),
                     Row(Label(L"Label_Use_Keyboard_CursorWidth_Width", L"&Width:"),
                         Edit(L"Edit_Use_Keyboard_CursorWidth_Width").Width(5).Positive(),
                         UpDown(L"UpDown_Use_Keyboard_CursorWidth_Width",
                                L"Edit_Use_Keyboard_CursorWidth_Width", 1, 10, 1),
                         Label(L"Label_Use_Keyboard_CursorWidth_Unit", L"pixels")))),
        Group(L"GroupBox_Use_Keyboard_Keys", L"Keys",
              CheckBox(L"Checkbox_Use_Keyboard_WinKey_Active", L"Use the Windows &key as a shortcut key"),
              CheckBox(L"Checkbox_Use_Keyboard_NumLock_Active", L"Turn &Num Lock on at logon")),
        Buttons(Button(L"Button_Use_Keyboard_Default", L"&Default")));
}

}  // namespace

TControlDesign InputDesign() {
    return NotebookPage(4, PageControl(L"PageControl_Input", SensitivitySheet(), FunctionSheet(),
                                       KeyboardSheet(), InputTextSheet(), InputTouchSheet()));
}
