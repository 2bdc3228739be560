#include "settings/net/firefox_current.h"

TControlDesign FirefoxCurrentSheet() {
    return Sheet(
        L"TabSheet_Firefox_Current", L"Current versions",
        Group(L"GroupBox_Firefox_Current_Home", L"Start and home page",
              Row(Label(L"Label_Firefox_Current_Start", L"When Firefox &starts, show:"),
                  ComboBox(L"CB_Firefox_Current_Start",
                           {L"A blank page", L"The home page", L"The previous windows and tabs"})),
              CheckBox(L"Checkbox_Firefox_Current_Shortcuts", L"Show sponsored s&hortcuts on the home page"),
              CheckBox(L"Checkbox_Firefox_Current_SponsoredStories",
                       L"Show sponsored s&tories on the home page"),
              CheckBox(L"Checkbox_Firefox_Current_Stories", L"Show &recommended stories on the home page")),
        Group(L"GroupBox_Firefox_Current_Privacy", L"Privacy and security",
              CheckBox(L"Checkbox_Firefox_Current_Data", L"Send technical and &usage data to Mozilla"),
              Indent(CheckBox(L"Checkbox_Firefox_Current_Studies",
                              L"Allow &Firefox to install and run studies")),
              CheckBox(L"Checkbox_Firefox_Current_HttpsOnly", L"Use HTTPS &only, in all windows"),
              Row(Label(L"Label_Firefox_Current_Resolver", L"D&NS over HTTPS:"),
                  ComboBox(L"CB_Firefox_Current_Resolver",
                           {L"As Firefox decides", L"First, else as Windows does", L"Only", L"Off"})),
              CheckBox(L"Checkbox_Firefox_Current_PrivacyControl",
                       L"Tell websites not to sell or share &my data"),
              CheckBox(L"Checkbox_Firefox_Current_Trackers", L"&Block trackers in all windows")),
        Buttons(Button(L"Button_Firefox_Current_Default", L"&Default")));
}

TControlDesign FirefoxCurrentWindowSheet() {
    return Sheet(
        L"TabSheet_Firefox_CurrentWindow", L"Window (current versions)",
        Group(L"GroupBox_Firefox_CurrentWindow_Tabs", L"Tabs",
              CheckBox(L"Checkbox_Firefox_CurrentWindow_Beside",
                       L"Open every &new tab next to the current one"),
              CheckBox(L"Checkbox_Firefox_CurrentWindow_Switch",
                       L"&Switch to a link at once when it opens in a new tab"),
              CheckBox(L"Checkbox_Firefox_CurrentWindow_CloseWindow", L"&Close the window with its last tab"),
              CheckBox(L"Checkbox_Firefox_CurrentWindow_Confirm", L"C&onfirm before closing several tabs"),
              CheckBox(L"Checkbox_Firefox_CurrentWindow_Recent",
                       L"Ctrl+&Tab goes through tabs in the order of use")),
        Group(L"GroupBox_Firefox_CurrentWindow_AddressBar", L"Address bar",
              CheckBox(L"Checkbox_Firefox_CurrentWindow_SearchSuggestions",
                       L"Show search su&ggestions in the address bar"),
              CheckBox(L"Checkbox_Firefox_CurrentWindow_Sponsors",
                       L"Show suggestions from s&ponsors in the address bar")),
        Group(L"GroupBox_Firefox_CurrentWindow_Look", L"Look and sidebar",
              CheckBox(L"Checkbox_Firefox_CurrentWindow_Compact", L"Use the compact tool&bar"),
              CheckBox(L"Checkbox_Firefox_CurrentWindow_Chatbot", L"Offer an A&I chatbot in the sidebar"),
              CheckBox(L"Checkbox_Firefox_CurrentWindow_StyleSheets",
                       L"&Use style sheets of my own (userChrome.css, userContent.css)")),
        Buttons(Button(L"Button_Firefox_CurrentWindow_Default", L"&Default")));
}
