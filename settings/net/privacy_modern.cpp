#include "settings/net/privacy_modern.h"

namespace {

TControlDesign Access(const wchar_t* name) {
    return ComboBox(name, {L"As set for each program", L"Always allow", L"Never allow"});
}

}  // namespace

TControlDesign PrivacyDataSheet() {
    return Sheet(
        L"TabSheet_Privacy_Data", L"Data",
        Group(L"GroupBox_Privacy_Data_Advertising", L"Advertising",
              CheckBox(L"Checkbox_Privacy_Data_AdvertisingId", L"Let programs use my advertising &ID"),
              CheckBox(L"Checkbox_Privacy_Data_Tailored",
                       L"Adapt &tips and advertisements to my diagnostic data"),
              CheckBox(L"Checkbox_Privacy_Data_Languages", L"Let &websites see my list of languages")),
        Group(L"GroupBox_Privacy_Data_Microsoft", L"Data to Microsoft",
              Row(Label(L"Label_Privacy_Data_Diagnostics", L"Dia&gnostic data:"),
                  ComboBox(L"CB_Privacy_Data_Diagnostics",
                           {L"As chosen in Settings", L"None (Enterprise)", L"Required", L"Optional"})),
              CheckBox(L"Checkbox_Privacy_Data_Activities", L"Keep a &history of my activities"),
              CheckBox(L"Checkbox_Privacy_Data_Feedback", L"Windows may ask for my &opinion"),
              CheckBox(L"Checkbox_Privacy_Data_Speech", L"Recognize &speech online"),
              CheckBox(L"Checkbox_Privacy_Data_Learning", L"&Learn from what I type and write"),
              CheckBox(L"Checkbox_Privacy_Data_Typing", L"Help im&prove typing and handwriting"),
              CheckBox(L"Checkbox_Privacy_Data_Devices", L"Go on with work from my other de&vices"),
              CheckBox(L"Checkbox_Privacy_Data_Synchronize", L"S&ynchronize my settings")),
        Buttons(Button(L"Button_Privacy_Data_Default", L"&Default")));
}

TControlDesign PrivacyProgramsSheet() {
    return Sheet(
        L"TabSheet_Privacy_Programs", L"Programs",
        Group(L"GroupBox_Privacy_Programs_Computer", L"This computer",
              CheckBox(L"Checkbox_Privacy_Programs_Location", L"Allow the &location of this computer"),
              CheckBox(L"Checkbox_Privacy_Programs_Recording", L"Allow recording of &games"),
              CheckBox(L"Checkbox_Privacy_Programs_Install", L"&Install suggested programs without asking")),
        Group(L"GroupBox_Privacy_Programs", L"Programs from the Store may use",
              Fields(Row(Label(L"Label_Privacy_Programs_Location", L"L&ocation:"),
                         Access(L"CB_Privacy_Programs_Location")),
                     Row(Label(L"Label_Privacy_Programs_Camera", L"&Camera:"),
                         Access(L"CB_Privacy_Programs_Camera")),
                     Row(Label(L"Label_Privacy_Programs_Microphone", L"&Microphone:"),
                         Access(L"CB_Privacy_Programs_Microphone")),
                     Row(Label(L"Label_Privacy_Programs_Account", L"My &name and picture:"),
                         Access(L"CB_Privacy_Programs_Account")),
                     Row(Label(L"Label_Privacy_Programs_Notifications", L"No&tifications:"),
                         Access(L"CB_Privacy_Programs_Notifications")),
                     Row(Label(L"Label_Privacy_Programs_Background", L"The &background:"),
                         Access(L"CB_Privacy_Programs_Background")))),
        Buttons(Button(L"Button_Privacy_Programs_Default", L"&Default")));
}

TControlDesign PrivacySuggestionsSheet() {
    return Sheet(
        L"TabSheet_Privacy_Suggestions", L"Suggestions and Search",
        Group(
            L"GroupBox_Privacy_Suggestions", L"Suggestions",
            CheckBox(L"Checkbox_Privacy_Suggestions_Settings", L"Show suggestions in &Settings"),
            CheckBox(L"Checkbox_Privacy_Suggestions_Tips", L"Show &tips about Windows"),
            CheckBox(L"Checkbox_Privacy_Suggestions_Welcome", L"Show a &welcome after updates"),
            CheckBox(L"Checkbox_Privacy_Suggestions_Setup", L"Ask me to &finish setting up this computer"),
            CheckBox(L"Checkbox_Privacy_Suggestions_Center", L"Show suggestions in the &notification center"),
            CheckBox(L"Checkbox_Privacy_Suggestions_LockScreen", L"Show tips on the loc&k screen"),
            CheckBox(L"Checkbox_Privacy_Suggestions_Spotlight", L"Allow Windows spotli&ght"),
            CheckBox(L"Checkbox_Privacy_Suggestions_Pictures", L"Offer spotlight pict&ures for the desktop")),
        Group(L"GroupBox_Privacy_Search", L"Search and assistants",
              CheckBox(L"Checkbox_Privacy_Search_Cloud", L"Search in &OneDrive, Outlook and other services"),
              CheckBox(L"Checkbox_Privacy_Search_Location", L"Search may use my &location"),
              CheckBox(L"Checkbox_Privacy_Search_Cortana", L"Allow &Cortana"),
              CheckBox(L"Checkbox_Privacy_Search_Copilot", L"Allow Co&pilot in Windows"),
              CheckBox(L"Checkbox_Privacy_Search_Recall",
                       L"Let Windows take snapshots of the screen (&Recall)")),
        Buttons(Button(L"Button_Privacy_Suggestions_Default", L"&Default")));
}
