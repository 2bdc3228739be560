// What the settings of the Animations and Effects page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"CheckBox_Display_Effect_DisplayAndEffectSettings_Background",
     "Windows XP draws a faint picture into the corner of folders such as My Music. Clear it to save a "
     "little time on slow computers."},
    {"CheckBox_Display_Effect_DisplayAndEffectSettings_Drag",
     "If you clear it, only a frame moves with the mouse until you let go. That is faster on slow graphics "
     "cards and remote connections."},
    {"CheckBox_Display_Effect_DisplayAndEffectSettings_Title",
     "Title bars change from one color to another. This is for the classic look; visual styles and Aero draw "
     "their title bars themselves."},
    {"CheckBox_Display_Effect_DisplayAndEffectSettings_CurSh",
     "The shadow makes the pointer easier to see on a light background. Needs more than 256 colors. The same "
     "setting is found among the mouse functions."},
    {"CheckBox_Display_Effect_DisplayAndEffectSettings_Rect",
     "Since Windows XP the rectangle that you draw with the mouse around icons is filled with a transparent "
     "color; otherwise it is a dotted line, which is faster to draw."},
    {"CheckBox_Display_Effect_DisplayAndEffectSettings_DesktopShadow",
     "Since Windows XP the wallpaper shows through behind the names of icons, and a shadow keeps them "
     "readable. Otherwise each name stands on the desktop's plain color."},
    {"Checkbox_Display_Effect_BehaviorSettings_Folder",
     "Windows XP shows a pane with tasks for the selected files at the left of folder windows. Without it "
     "there is more room for files. Windows 7 does not have this pane."},
    {"Checkbox_Display_Effect_BehaviorSettings_Keyboard",
     "Otherwise the letters that choose a command together with Alt are underlined only after you press Alt. "
     "Worth it if you work with the keyboard a lot."},
    {"Checkbox_Display_Effect_BehaviorSettings_ToolTip",
     "Names in menu bars and the like stand out when you point to them, so that you see what a click would "
     "hit. Many newer programs draw this by themselves."},
    {"Checkbox_Display_Effect_BehaviorSettings_DesktopWinVersion",
     "Name and build number of Windows stand in the lower right corner of the desktop. Useful if you look "
     "after several computers or take screenshots of errors."},
    {"Button_Display_Effect_BestAppearance",
     "Turns on all effects of the upper group and the common tasks in folders, and turns off highlighting."},
    {"Button_Display_Effect_HighestPerformance",
     "Turns off all effects of the upper group, which relieves slow computers, but turns on highlighting and "
     "the common tasks in folders."},
    {"Button_Display_Effect_Default",
     "Turns on all effects of the upper group, highlighting and the common tasks in folders, and turns off "
     "underlined access keys and the Windows version."},
    {"Checkbox_Display_Animation_MessageAndAnimation_MaxAndMin",
     "A window seems to fly to its taskbar button and back, so that you see where it goes. Clear it if "
     "windows should appear at once."},
    {"Checkbox_Display_Animation_MessageAndAnimation_ToolTip",
     "The small explanations beside the mouse pointer appear gradually, in the way chosen below. Clear it if "
     "they should appear at once."},
    {"CB_Display_Animation_MessageAndAnimation_ToolTipType",
     "How ToolTips appear while their animation is turned on. Fading needs more than 256 colors."},
    {"Checkbox_Display_Animation_DynamicElements_ListAndTree",
     "Lists and trees, such as those of Explorer, glide when they scroll instead of jumping. Programs that "
     "are running already may need to be started again."},
    {"Checkbox_Display_Animation_DynamicElements_ComboBox",
     "Drop-down lists slide open instead of appearing at once. Clear it for quicker reactions and on remote "
     "connections."},
    {"Checkbox_Display_Animation_DynamicElements_SmoothListBox",
     "Simple lists in dialogs glide when they scroll instead of jumping. Clear it for quicker reactions and "
     "on remote connections."},
    {"Button_Display_Animation_HighestPerformance", "Turns off all animations of this sheet."},
    {"Button_Display_Animation_Default",
     "Turns on all animations of this sheet but the smooth scrolling of list boxes, and lets ToolTips fade "
     "in."},
    {"Checkbox_Display_MenuAppearance_WindowsAndMessage_Click",
     "The command that you have chosen stays visible for a moment and fades, so that you see what you "
     "clicked. Needs more than 256 colors."},
    {"Checkbox_Display_MenuAppearance_WindowsAndMessage_UseType",
     "Menus appear gradually, in the way chosen below. Clear it if they should appear at once, for example "
     "on remote connections."},
    {"CB_Display_MenuAppearance_WindowsAndMessage_UseType",
     "How menus appear while their animation is turned on. Fading needs more than 256 colors."},
    {"Checkbox_Display_MenuAppearance_DynamicElements_GraphicMenu",
     "Menus have a thin frame instead of a raised edge. Since Windows XP; choosing a theme sets it anew. "
     "Where a visual style draws the menus itself, as since Vista, this shows little or not at all."},
    {"Checkbox_Display_MenuAppearance_DynamicElements_MenuShadow",
     "A soft shadow sets menus off from the windows below them. Windows 2000 does not have it."},
    {"Button_Display_MenuAppearance_HighestPerformance",
     "Turns off animation, fading and shadows of menus and makes them flat."},
    {"Button_Display_MenuAppearance_Default",
     "Lets flat menus with a shadow fade in and out, as in a new Windows XP."},
    {"CB_Display_FontSmooth_SmoothType",
     "ClearType makes text on flat screens easier to read, by using the parts of each pixel; it exists since "
     "Windows XP. On tube monitors the standard method is often better. Without smoothing, letters have "
     "steps."},
};

}  // namespace

TExplanations DisplayExplanations() { return kTexts; }
