#include "settings/shell/system_page.h"

#include "settings/page_context.h"
#include "settings/row_shapes.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kOwner = L"Edit_System_Common_Infomation_Name";
constexpr const wchar_t* kOrganization = L"Edit_System_Common_Infomation_Company";
constexpr const wchar_t* kAutofinish = L"Checkbox_System_CommonDialog_FileName_Autofinish";
constexpr const wchar_t* kShowReturn = L"Checkbox_System_CommonDialog_FolderNavigation_ShowReturn";
constexpr const wchar_t* kBackground = L"CMboundColor";
constexpr const wchar_t* kText = L"CMfontcolor";

TControlDesign CommonSheet() {
    return Sheet(L"TabSheet_System_Common", L"General",
                 Group(L"GroupBox_System_Common_Infomation", L"Windows is registered to",
                       Fields(Row(Label(L"Label_System_Common_Infomation_Name", L"&Owner:"), Edit(kOwner)),
                              Row(Label(L"Label_System_Common_Infomation_Company", L"Or&ganization:"),
                                  Edit(kOrganization)))),
                 Group(L"GroupBox_System_Common_Installer", L"Setup programs suggest",
                       Fields(Row(Label(L"Label_System_Common_Installer_Name", L"&Name:"),
                                  Edit(L"Edit_System_Common_Installer_Name")),
                              Row(Label(L"Label_System_Common_Installer_Company", L"&Company:"),
                                  Edit(L"Edit_System_Common_Installer_Company")))),
                 Buttons(Button(L"Button_System_Common_Set", L"&Settings ")));
}

TControlDesign CommonDialogSheet() {
    return Sheet(L"TabSheet_System_CommonDialog", L"Common Dialogs",
                 Group(L"GroupBox_System_CommonDialog_FileName", L"File name",
                       CheckBox(L"Checkbox_System_CommonDialog_FileName_Recent",
                                L"Show the files used &recently in the list"),
                       CheckBox(kAutofinish, L"&Complete file names while they are typed")),
                 Group(L"GroupBox_System_CommonDialog_FolderNavigation", L"Folder navigation",
                       CheckBox(kShowReturn, L"Show the &Back button"),
                       CheckBox(L"Checkbox_System_CommonDialog_FolderNavigation_ShowLeft",
                                L"Show the &places bar on the left")),
                 Buttons(Button(L"Button_System_CommonDialog_Default", L"&Default")));
}

TControlDesign SearchSheet() {
    return Sheet(
        L"TabSheet_System_Search", L"Search",
        Group(L"GroupBox_System_Search_IndexService", L"Searching for files",
              CheckBox(L"Checkbox_System_Search_IndexService_Enabled", L"Disable &Indexing service."),
              CheckBox(L"Checkbox_System_Search_IndexService_ClassicSearch_InExplorer",
                       L"Use classic search in &Explorer."),
              Row(Button(L"Button_System_Search_IndexService_SearchFileType_Type", L"File &Type"))),
        Buttons(Button(L"Button_System_Search_Default", L"&Default")));
}

TControlDesign ColorList(const wchar_t* name) {
    // In the order of the console's colour numbers.
    return ComboBox(name, {L"Black", L"Blue", L"Green", L"Aqua", L"Red", L"Purple", L"Yellow", L"White",
                           L"Gray", L"Light Blue", L"Light Green", L"Light Aqua", L"Light Red",
                           L"Light Purple", L"Light Yellow", L"Bright White"});
}

TControlDesign CmdSheet() {
    return Sheet(
        L"TabSheet_System_Cmd", L"Command Prompt",
        Group(L"GroupBox_System_Cmd_DefaultColor", L"Default colors",
              Fields(Row(Label(L"Label_System_Cmd_BackgroundColor", L"&Background:"), ColorList(kBackground)),
                     Row(Label(L"Label_System_Cmd_TextColor", L"&Text:"), ColorList(kText)))));
}

TControlDesign Design() {
    return NotebookPage(17, PageControl(L"PageControl_System", CommonSheet(), CommonDialogSheet(),
                                        SearchSheet(), CmdSheet()));
}

// The edits of the registered owner load before those that fall back to their texts.
constexpr TRow kCommonRows[] = {
    TTextRow{.Control = kOwner, .Value = {kLocalMachine, kWindowsNt, L"RegisteredOwner"}},
    TTextRow{.Control = kOrganization, .Value = {kLocalMachine, kWindowsNt, L"RegisteredOrganization"}},
    TTextRow{.Control = L"Edit_System_Common_Installer_Name",
             .Value = {kCurrentUser, kSetupUser, L"DefName"},
             .MissingShows = kOwner},
    TTextRow{.Control = L"Edit_System_Common_Installer_Company",
             .Value = {kCurrentUser, kSetupUser, L"DefCompany"},
             .MissingShows = kOrganization},
};

// Special because the back button follows the state of the completion box, not its own, and only when its own box is clicked.
void LoadShowReturn(TPageContext& context, const TSpecialRow& row) {
    context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(StoredNumber(context, row.Places[0]) != 1);
}

void RecordShowReturn(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const bool completes = context.Form.Find<TCheckBox>(kAutofinish)->Checked();
    RecordNumber(context, sender.Name(), row.Places[0], completes ? 0 : 1);
}

constexpr const wchar_t* kShowReturnBox[] = {kShowReturn};
constexpr TPlace kNoBackButton[] = {{kCurrentUser, kCommonDialogPolicies, L"NoBackButton"}};

constexpr TRow kCommonDialogRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_System_CommonDialog_FileName_Recent",
                 .Value = {kCurrentUser, kCommonDialogPolicies, L"NoFileMru"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    TCheckBoxRow{.Control = kAutofinish,
                 .Value = {kCurrentUser, kExplorerAutoComplete, L"AutoComplete In File Dialog"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
    TSpecialRow{.Controls = kShowReturnBox,
                .Places = kNoBackButton,
                .Load = LoadShowReturn,
                .Record = RecordShowReturn},
    TCheckBoxRow{.Control = L"Checkbox_System_CommonDialog_FolderNavigation_ShowLeft",
                 .Value = {kCurrentUser, kCommonDialogPolicies, L"NoPlacesBar"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
};

constexpr TRow kSearchRows[] = {
    // The start types of a service: 2 automatic, 4 disabled.
    TCheckBoxRow{.Control = L"Checkbox_System_Search_IndexService_Enabled",
                 .Value = {kLocalMachine, kIndexService, L"Start"},
                 .Shows = {.When = {{4, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(4), .Clear = Dword(2)},
                 .Levels = kUntilWindows7},
    TCheckBoxRow{.Control = L"Checkbox_System_Search_IndexService_ClassicSearch_InExplorer",
                 .Value = {kCurrentUser, kCabinetState, L"Use Search Asst"},
                 .Shows = {.When = {{L"yes", kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Text(L"no"), .Clear = Text(L"yes")},
                 .Levels = kUntilWindows7},
};

// Both colours are one byte. 0 stands for the console's own default, white on black.
constexpr TBitsList kColorLists[] = {{kBackground, 0xF0}, {kText, 0x0F}};
constexpr std::int32_t kWhiteOnBlack = 0x07;

constexpr TRow kCmdRows[] = {
    TListsRow{.Lists = kColorLists,
              .Value = {kCurrentUser, kCommandProcessor, L"DefaultColor"},
              .Missing = kWhiteOnBlack,
              .Least = 1,
              .ChangeName = kBackground},
};

constexpr TLoader kLoaders[] = {kCommonRows, kCommonDialogRows, kSearchRows, kCmdRows};

constexpr TPresetState kCommonDialogDefault[] = {
    {L"Checkbox_System_CommonDialog_FileName_Recent", 1},
    {kAutofinish, 1},
    {kShowReturn, 1},
    {L"Checkbox_System_CommonDialog_FolderNavigation_ShowLeft", 1},
};
constexpr TPresetState kSearchDefault[] = {
    {L"Checkbox_System_Search_IndexService_Enabled", 0},
    {L"Checkbox_System_Search_IndexService_ClassicSearch_InExplorer", 0},
};
constexpr TPreset kPresets[] = {
    {L"Button_System_CommonDialog_Default", kCommonDialogDefault},
    {L"Button_System_Search_Default", kSearchDefault},
};

constexpr TPageDefinition kPage{.Tag = 17, .Design = Design, .Loaders = kLoaders, .Presets = kPresets};

}  // namespace

const TPageDefinition& SystemPage() { return kPage; }
