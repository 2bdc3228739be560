#include "settings/shell/startup_modern.h"

TControlDesign StartupRestartGroup() {
    return Group(
        L"GroupBox_Startup_Restart", L"Restart for updates",
        CheckBox(L"Checkbox_Startup_Restart_Notify", L"&Tell me when a restart is needed"),
        CheckBox(L"Checkbox_Startup_Restart_Soon", L"&Restart as soon as possible, even during work"),
        CheckBox(L"Checkbox_Startup_Restart_Wait", L"Do not restart while somebody is &logged on"),
        CheckBox(L"Checkbox_Startup_Restart_SignIn", L"Log me on afterwards, f&inish and lock the screen"),
        CheckBox(L"Checkbox_Startup_Restart_Hours", L"Do not restart during these &hours"),
        Indent(Fields(
            Row(Label(L"Label_Startup_Restart_From", L"Fr&om:"), Edit(L"Edit_Startup_Restart_From").Width(4),
                UpDown(L"UpDown_Startup_Restart_From", L"Edit_Startup_Restart_From", 0, 23, kFirstHour)),
            Row(Label(L"Label_Startup_Restart_To", L"&Until:"), Edit(L"Edit_Startup_Restart_To").Width(4),
                UpDown(L"UpDown_Startup_Restart_To", L"Edit_Startup_Restart_To", 0, 23, kLastHour)))));
}

TControlDesign StartupUpdatesSheet() {
    return Sheet(
        L"TabSheet_Startup_Updates", L"Updates and Storage",
        Group(L"GroupBox_Startup_Updates", L"Updates",
              CheckBox(L"Checkbox_Startup_Updates_Drivers", L"Also install d&rivers"),
              CheckBox(L"Checkbox_Startup_Updates_Office", L"Also update other &Microsoft programs"),
              CheckBox(L"Checkbox_Startup_Updates_Store", L"Update &programs from the Store automatically"),
              CheckBox(L"Checkbox_Startup_Updates_Early", L"Get new &functions as soon as they are ready"),
              Row(Label(L"Label_Startup_Updates_Delivery", L"From other &computers:"),
                  ComboBox(L"CB_Startup_Updates_Delivery",
                           {L"As chosen in Settings", L"No", L"In my network", L"Also in the Internet"}))),
        Group(
            L"GroupBox_Startup_Storage", L"Storage Sense",
            CheckBox(L"Checkbox_Startup_Storage_Sense", L"Free disk &space automatically"),
            Row(Label(L"Label_Startup_Storage_Bin", L"Empty the Recycle &Bin:"),
                ComboBox(L"CB_Startup_Storage_Bin", {L"As chosen in Settings", L"Never", L"After 1 day",
                                                     L"After 14 days", L"After 30 days", L"After 60 days"}))),
        Buttons(Button(L"Button_Startup_Updates_Default", L"&Default")));
}
