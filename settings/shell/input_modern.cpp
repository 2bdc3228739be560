#include "settings/shell/input_modern.h"

TControlDesign InputTextSheet() {
    return Sheet(
        L"TabSheet_Use_Text", L"Text",
        Group(L"GroupBox_Use_Text_Clipboard", L"Clipboard",
              CheckBox(L"Checkbox_Use_Text_Clipboard_History", L"Allow the clipboard &history"),
              CheckBox(L"Checkbox_Use_Text_Clipboard_Devices", L"Allow the clipboard of my &other devices")),
        Group(
            L"GroupBox_Use_Text_Typing", L"Typing",
            CheckBox(L"Checkbox_Use_Text_Typing_Suggest", L"Show &suggestions while typing on the keyboard"),
            CheckBox(L"Checkbox_Use_Text_Typing_Languages", L"Suggestions in all &languages that I use"),
            CheckBox(L"Checkbox_Use_Text_Language_Windows", L"Remember the input language for each &window"),
            CheckBox(L"Checkbox_Use_Text_Language_Bar", L"Show the language &bar of earlier versions")),
        Group(L"GroupBox_Use_Text_Help", L"Ask whether to turn on",
              CheckBox(L"Checkbox_Use_Text_Help_Sticky", L"Stic&ky keys, when Shift is pressed five times"),
              CheckBox(L"Checkbox_Use_Text_Help_Filter",
                       L"&Filter keys, when the right Shift key is held down"),
              CheckBox(L"Checkbox_Use_Text_Help_Toggle", L"&Toggle keys, when Num Lock is held down")),
        Buttons(Button(L"Button_Use_Text_Default", L"&Default")));
}

TControlDesign InputTouchSheet() {
    return Sheet(
        L"TabSheet_Use_Touch", L"Touch",
        Group(L"GroupBox_Use_Touch_Mouse", L"Mouse and finger",
              CheckBox(L"Checkbox_Use_Touch_Mouse_ClickLock", L"Dra&g without holding the button down"),
              CheckBox(L"Checkbox_Use_Touch_Mouse_Inactive",
                       L"Scroll the window &under the pointer, even if it is inactive"),
              CheckBox(L"Checkbox_Use_Touch_Keyboard_Contact", L"Show where the &finger touches")),
        Group(L"GroupBox_Use_Touch_Keyboard", L"Touch keyboard",
              CheckBox(L"Checkbox_Use_Touch_Keyboard_Open",
                       L"Open the touch &keyboard when no keyboard is attached"),
              CheckBox(L"Checkbox_Use_Touch_Keyboard_Background", L"Show the keys with a &background"),
              CheckBox(L"Checkbox_Use_Touch_Keyboard_Correct", L"&Correct misspelled words"),
              CheckBox(L"Checkbox_Use_Touch_Keyboard_Capitals",
                       L"Cap&ital letter at the beginning of a sentence"),
              CheckBox(L"Checkbox_Use_Touch_Keyboard_Period", L"&Period when the space key is tapped twice"),
              CheckBox(L"Checkbox_Use_Touch_Keyboard_Dictation", L"Show the dic&tation key")),
        Buttons(Button(L"Button_Use_Touch_Default", L"&Default")));
}
