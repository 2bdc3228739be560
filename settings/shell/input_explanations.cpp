// What the settings of the Input Options page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"TrackBar_Use_MouseSensitivity_Speed",
     "How far the pointer goes when you move the mouse. Choose more for large screens, less for precise "
     "work. The default is in the middle."},
    {"Updown_Use_MouseSensitivity_DoubleClickError",
     "Both clicks must fall into a square of this width to count as a double-click. Choose more if your "
     "double-clicks often fail because the hand moves. The default is 4."},
    {"UpDown_Use_MouseSensitivity_DoubleClickTime",
     "Choose more if you find it hard to click twice quickly; with too much, two single clicks open things "
     "by mistake. The default is 500."},
    {"UpDown_Use_MouseSensitivity_Drag",
     "The mouse must move this far with its button held down before an item is dragged. Choose more if files "
     "get moved by accident while you click. The default is 4."},
    {"UpDown_Use_MouseSensitivity_Hover_MoveError",
     "As long as the pointer stays within this area, it counts as resting, for example when folders select "
     "an item by pointing. Choose more for an unsteady hand."},
    {"UpDown_Use_MouseSensitivity_Hover_Time",
     "After this time a resting pointer takes effect, for example when folders select an item by pointing. "
     "Programs may use times of their own."},
    {"UpDown_Use_MouseSensitivity_Tilt_Count",
     "How far a tilt of the wheel moves the content to the side. Needs a mouse whose wheel can be tilted and "
     "a program that supports it; Windows does so since Vista."},
    {"Button_Use_MouseSensitivity_Default", "Sets all values of this sheet as Windows does by default."},
    {"Checkbox_Use_MouseFunction_ChangeKey_Change",
     "For left-handed use: the right button then clicks and drags, the left one opens menus. It takes effect "
     "as soon as you apply it, for the next click already."},
    {"Radio_Use_MouseFunction_Wheel_RollRow",
     "The usual choice, in which you keep the text in view. Programs that scroll by steps of their own may "
     "not follow it."},
    {"UpDown_Use_MouseFunction_Wheel_Count",
     "Choose more to get through long texts quickly. The default is 3; some programs use steps of their "
     "own."},
    {"Radio_Use_MouseFunction_Wheel_RollPage",
     "Each notch moves by as much as the window shows, like the Page Down key. Good for reading page by "
     "page."},
    {"Checkbox_Use_MouseFunction_Pointer_Shadow",
     "Makes the pointer easier to see on a light background. Needs more than 256 colors; on remote "
     "connections it is better turned off."},
    {"Checkbox_Use_MouseFunction_Pointer_Vanish",
     "The pointer does not cover the text that you type and comes back when you move the mouse. Some "
     "programs with text fields of their own do not follow it."},
    {"Checkbox_Use_MouseFunction_Pointer_Sonar",
     "Press and release the Ctrl key alone, and circles close in on the pointer. Helps to find it on large "
     "screens."},
    {"Checkbox_Use_MouseFunction_Pointer_Snap",
     "When a dialog opens, the pointer jumps to the button that Enter would press. Saves movement, but a "
     "hasty click may confirm what you have not read."},
    {"Checkbox_Use_MouseFunction_Pointer_Tracking",
     "The window under the pointer gets what you type, without a click; it does not come to the front by "
     "this. Known from Unix; whoever pushes the mouse by accident types into another window."},
    {"Checkbox_Use_MouseFunction_Trails_Show",
     "The pointer leaves copies of itself behind when it moves. Helps on slow displays and with poor sight; "
     "others find it restless."},
    {"TrackBar_Use_MouseFunction_Trails_Length",
     "How many copies the pointer leaves behind. Has no effect while pointer trails are turned off."},
    {"Button_Use_MouseFunction_Default",
     "Sets buttons, wheel and pointer as in a new Windows, without pointer trails."},
    {"TrackBar_Use_Keyboard_Repeat_Delay",
     "How long a key must be held down until its character repeats, from about a quarter of a second to one "
     "second. Choose more if characters come twice unintentionally."},
    {"TrackBar_Use_Keyboard_Repeat_Rate",
     "How fast the character of a key repeats that is held down, from about 2.5 to 30 times a second. Choose "
     "more to move the cursor through text quickly."},
    {"TrackBar_Use_Keyboard_BlinkingCursor_Speed",
     "How fast the mark blinks at which you type. At the left end it does not blink at all, which is calmer "
     "for the eyes. Windows reads this when you log on."},
    {"UpDown_Use_Keyboard_CursorWidth_Width",
     "A wider mark is easier to find in text, especially at high resolutions. Programs that draw their own, "
     "as many word processors do, do not follow it."},
    {"Checkbox_Use_Keyboard_WinKey_Active",
     "Clear it to turn off combinations such as Windows key + E and Windows key + R, for example when a game "
     "keeps losing the screen to them."},
    {"Checkbox_Use_Keyboard_NumLock_Active",
     "The number pad types digits from the logon screen on, which helps when your password has some. Some "
     "Windows versions store the state of the key anew at each logoff."},
    {"Button_Use_Keyboard_Default", "Sets repeat, cursor and keys as in a new Windows, with Num Lock off."},
};

}  // namespace

TExplanations InputExplanations() { return kTexts; }
