#include "settings/net/security_modern.h"

TControlDesign SecurityProtectionSheet() {
    return Sheet(
        L"TabSheet_Security_Protection", L"Protection",
        Group(L"GroupBox_Security_Protection", L"Programs",
              // Beside the label the long texts of the list would be cut.
              Label(L"Label_Security_Protection_Uac", L"As&k before programs change the computer:"),
              ComboBox(L"CB_Security_Protection_Uac",
                       {L"Always", L"Only for programs", L"Only for programs, without dimming", L"Never"}),
              Fields(Row(Label(L"Label_Security_Protection_SmartScreen", L"&SmartScreen:"),
                         ComboBox(L"CB_Security_Protection_SmartScreen",
                                  {L"As chosen in Settings", L"Warn", L"Block", L"Off"})),
                     Row(Label(L"Label_Security_Protection_Install", L"&Install programs:"),
                         ComboBox(L"CB_Security_Protection_Install",
                                  {L"As chosen in Settings", L"From anywhere", L"From the Store only"}))),
              CheckBox(L"Checkbox_Security_Protection_WebContent",
                       L"Check &web content of programs from the Store"),
              CheckBox(L"Checkbox_Security_Protection_Scripts", L"Allow s&cript files (.vbs, .js)"),
              CheckBox(L"Checkbox_Security_Protection_Lsa", L"Protect stored &logon data")),
        Group(L"GroupBox_Security_Remote", L"From other computers",
              CheckBox(L"Checkbox_Security_Remote_Assistance", L"Allow &Remote Assistance"),
              CheckBox(L"Checkbox_Security_Remote_Desktop", L"Allow Remote &Desktop connections"),
              CheckBox(L"Checkbox_Security_Remote_Password",
                       L"Ask for the &password before the desktop is shown")));
}
