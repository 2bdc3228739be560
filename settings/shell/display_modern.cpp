#include "settings/shell/display_modern.h"

TControlDesign DisplayColorsSheet() {
    return Sheet(
        L"TabSheet_Display_Colors", L"Colors",
        Group(L"GroupBox_Display_Colors", L"Light and dark",
              Fields(Row(Label(L"Label_Display_Colors_Programs", L"&Programs:"),
                         ComboBox(L"CB_Display_Colors_Programs", {L"Dark", L"Light"})),
                     Row(Label(L"Label_Display_Colors_System", L"Ta&skbar and Start menu:"),
                         ComboBox(L"CB_Display_Colors_System", {L"Dark", L"Light"}))),
              CheckBox(L"Checkbox_Display_Colors_Transparency", L"&Use transparency")),
        Group(L"GroupBox_Display_Accent", L"Accent color",
              CheckBox(L"Checkbox_Display_Colors_Taskbar", L"Accent color on taskbar and Start &menu"),
              CheckBox(L"Checkbox_Display_Colors_Titles", L"Accent color on &title bars and window borders"),
              CheckBox(L"Checkbox_Display_Colors_Automatic", L"&Choose the accent color from the wallpaper")),
        Group(L"GroupBox_Display_Wallpaper", L"Wallpaper",
              Row(Label(L"Label_Display_Wallpaper_Quality", L"&Quality of pictures:"),
                  Edit(L"Edit_Display_Wallpaper_Quality").Width(5),
                  UpDown(L"UpDown_Display_Wallpaper_Quality", L"Edit_Display_Wallpaper_Quality", 60, 100,
                         kWallpaperQuality),
                  Label(L"Label_Display_Wallpaper_Percent", L"%"))),
        Buttons(Button(L"Button_Display_Colors_Default", L"&Default")));
}

TControlDesign DisplayWindowsSheet() {
    return Sheet(
        L"TabSheet_Display_Windows", L"Arranging",
        Group(L"GroupBox_Display_Windows_Snap", L"Snapping",
              CheckBox(L"Checkbox_Display_Windows_Arrange", L"&Snap windows"),
              CheckBox(L"Checkbox_Display_Windows_Dock", L"Snap a window that is dragged to the &edge"),
              CheckBox(L"Checkbox_Display_Windows_Size", L"E&xtend a window whose border touches the edge"),
              CheckBox(L"Checkbox_Display_Windows_Assist", L"Suggest what to snap &next to a window"),
              CheckBox(L"Checkbox_Display_Windows_Layouts", L"Show &layouts at the Maximize button")),
        Group(L"GroupBox_Display_Windows_Switch", L"Switching between windows",
              Row(Label(L"Label_Display_Windows_Tabs", L"Alt+&Tab also shows tabs of Edge:"),
                  ComboBox(L"CB_Display_Windows_Tabs",
                           {L"The last 20", L"The last 5", L"The last 3", L"None"}))),
        Group(L"GroupBox_Display_Windows_Title", L"Dragging the title bar",
              CheckBox(L"Checkbox_Display_Windows_Restore", L"&Restore a maximized window"),
              CheckBox(L"Checkbox_Display_Windows_Shake", L"Shaking &minimizes all other windows")),
        Buttons(Button(L"Button_Display_Windows_Default", L"&Default")));
}
