#include "settings/shell/taskbar_modern.h"

TControlDesign TaskbarModernSheet() {
    return Sheet(
        L"TabSheet_Taskbar_Modern", L"Windows 10 and 11",
        Group(
            L"GroupBox_Taskbar_Modern", L"Buttons and search",
            Fields(Row(Label(L"Label_Taskbar_Modern_Alignment", L"Alignmen&t:"),
                       ComboBox(L"CB_Taskbar_Modern_Alignment", {L"Left", L"Center"})),
                   Row(Label(L"Label_Taskbar_Modern_Search", L"&Search on the taskbar:"),
                       ComboBox(L"CB_Taskbar_Modern_Search",
                                {L"Hidden", L"Icon", L"Box", L"Icon and label (Windows 11)"}))),
            CheckBox(L"Checkbox_Taskbar_Modern_SearchHighlights", L"Show search &highlights"),
            CheckBox(L"Checkbox_Taskbar_Modern_TaskView", L"Show the Task &View button"),
            CheckBox(L"Checkbox_Taskbar_Modern_Widgets", L"Allow &widgets"),
            CheckBox(L"Checkbox_Taskbar_Modern_LockScreenWidgets", L"Show widgets on the &lock screen"),
            CheckBox(L"Checkbox_Taskbar_Modern_News", L"Show &news and interests"),
            CheckBox(L"Checkbox_Taskbar_Modern_Chat", L"Show the &Chat icon"),
            CheckBox(L"Checkbox_Taskbar_Modern_People", L"Show the &People button"),
            CheckBox(L"Checkbox_Taskbar_Modern_Sharing", L"Share any window fro&m the taskbar"),
            CheckBox(L"Checkbox_Taskbar_Modern_Corner", L"Show the desktop by a click into the far co&rner"),
            CheckBox(L"Checkbox_Taskbar_Modern_EndTask",
                     L"Offer \"&End task\" in the menu of taskbar buttons"),
            CheckBox(L"Checkbox_Taskbar_Modern_LastActive",
                     L"Clicking a combined button &opens the window used last"),
            CheckBox(L"Checkbox_Taskbar_Modern_RemoteJumpLists",
                     L"List documents from other computers in &Jump Lists")),
        Buttons(Button(L"Button_Taskbar_Modern_Default", L"&Default")));
}

TControlDesign TaskbarScreensSheet() {
    return Sheet(L"TabSheet_Taskbar_Screens", L"Screens",
                 Group(L"GroupBox_Taskbar_Screens", L"Several screens",
                       CheckBox(kAllScreens, L"Show the &taskbar on all screens"),
                       Fields(Row(Label(L"Label_Taskbar_Screens_Buttons", L"Show taskbar &buttons on:"),
                                  ComboBox(L"CB_Taskbar_Screens_Buttons",
                                           {L"All taskbars", L"Main taskbar and that of the window",
                                            L"Taskbar of the window"})),
                              Row(Label(L"Label_Taskbar_Screens_Combine", L"Buttons on &other taskbars:"),
                                  ComboBox(L"CB_Taskbar_Screens_Combine",
                                           {L"Always combine, hide labels", L"Combine when taskbar is full",
                                            L"Never combine"})))),
                 Group(L"GroupBox_Taskbar_Messages", L"Clock and messages",
                       CheckBox(L"Checkbox_Taskbar_Messages_Seconds", L"Show &seconds in the clock"),
                       CheckBox(L"Checkbox_Taskbar_Messages_Center", L"Show the &notification center"),
                       CheckBox(L"Checkbox_Taskbar_Modern_Badges", L"Show numbers on tas&kbar icons"),
                       CheckBox(L"Checkbox_Taskbar_Modern_Flashing", L"Let taskbar icons &flash"),
                       CheckBox(L"Checkbox_Taskbar_Messages_Promotion",
                                L"Move icons that are &used often beside the clock"),
                       CheckBox(L"Checkbox_Taskbar_Messages_MeetNow", L"Show the &Meet Now icon")),
                 Buttons(Button(L"Button_Taskbar_Screens_Default", L"&Default")));
}
