#include "settings/shell/start_menu_modern.h"

TControlDesign StartMenuModernSheet() {
    return Sheet(
        L"TabSheet_Use_StartMenu_Modern", L"Windows 10 and 11",
        Group(L"GroupBox_Use_StartMenu_Modern_Lists", L"Lists and search",
              Fields(Row(Label(L"Label_Use_StartMenu_Modern_AllPrograms", L"List of all &programs:"),
                         ComboBox(L"CB_Use_StartMenu_Modern_AllPrograms",
                                  {L"Shown", L"Collapsed", L"Collapsed and fixed", L"Removed"})),
                     Row(Label(L"Label_Use_StartMenu_Modern_MostUsed", L"&Most used programs:"),
                         ComboBox(L"CB_Use_StartMenu_Modern_MostUsed",
                                  {L"As chosen in Settings", L"Always show", L"Never show"})),
                     Row(Label(L"Label_Use_StartMenu_Modern_Layout", L"Room f&or:"),
                         ComboBox(L"CB_Use_StartMenu_Modern_Layout",
                                  {L"Both", L"Pinned programs", L"Recommendations"})),
                     Row(Label(L"Label_Use_StartMenu_Modern_Size", L"Si&ze of Start:"),
                         ComboBox(L"CB_Use_StartMenu_Modern_Size",
                                  {L"As chosen in Settings", L"Menu", L"Full screen"}))),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_RecentlyAdded", L"Show recently added pro&grams"),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_Recommendations",
                       L"Show &recommendations for tips and new programs"),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_Suggestions", L"Show &suggestions in Start"),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_Websites", L"Recomme&nd websites"),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_WebSearch", L"Show &web results in search"),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_Account", L"Show notices about the a&ccount")),
        Group(L"GroupBox_Use_StartMenu_Modern_Commands", L"Menus and power",
              CheckBox(L"Checkbox_Use_StartMenu_Modern_Menus",
                       L"Allow men&us of the right mouse button in Start"),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_RunAs", L"Offer \"Run as d&ifferent user\""),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_Lock", L"Offer Loc&k"),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_Sleep", L"Offer Sl&eep"),
              CheckBox(L"Checkbox_Use_StartMenu_Modern_Hibernate", L"Offer &Hibernate")),
        Buttons(Button(L"Button_Use_StartMenu_Modern_Default", L"&Default")));
}
