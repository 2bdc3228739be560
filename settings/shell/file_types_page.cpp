#include "settings/shell/file_types_page.h"

#include "engine/reg_value.h"
#include "platform/text.h"
#include "settings/explorer_keys.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kUnknownEdit = L"Edit_FileType_OpenFile_DefaultPrograme_Open";
constexpr const wchar_t* kUnknownChange = L"Button_FileType_OpenFile_DefaultPrograme_Change";
constexpr const wchar_t* kNoEndExeEdit = L"Edit_FileType_OpenFile_NoEndExe_Open";
constexpr const wchar_t* kNoEndExeChange = L"Button_FileType_OpenFile_NoEndExe_Change";
constexpr const wchar_t* kNet = L"Checkbox_FileType_OpenFile_DefaultPrograme_Net";
constexpr const wchar_t* kOpenPicture = L"Checkbox_FileType_Advanced_PictureAndFax_OpenPicture";

TControlDesign MenuOperationSheet() {
    return Sheet(
        L"TabSheet_FileType_MenuOperation", L"Context Menus",
        Group(L"GroupBox_FileType_MenuOperation_Drive", L"Menu of drives and folders",
              CheckBox(L"Checkbox_FileType_MenuOperation_Drive_OpenDrive", L"Open &Explorer here"),
              CheckBox(L"Checkbox_FileType_MenuOperation_Drive_OpenCmd", L"Open &Cmd here")),
        Group(L"GroupBox_FileType_MenuOperation_FileAndFolder", L"Menu of files and folders",
              CheckBox(L"Checkbox_FileType_MenuOperation_FileAndFolder_SendTo", L"&Send To"),
              CheckBox(L"Checkbox_FileType_MenuOperation_FileAndFolder_CopyTo", L"Copy To &Folder"),
              CheckBox(L"Checkbox_FileType_MenuOperation_FileAndFolder_MoveTo", L"&Move To Folder"),
              CheckBox(L"Checkbox_FileType_MenuOperation_FileAndFolder_Encryption", L"Encr&ypt and Decrypt"),
              CheckBox(L"Checkbox_FileType_MenuOperation_FileAndFolder_New", L"&New")),
        Buttons(Button(L"Button_FileType_MenuOperation_Default", L"&Default")));
}

TControlDesign OpenFileSheet() {
    return Sheet(
        L"TabSheet_FileType_OpenFile", L"Opening Files",
        Group(L"GroupBox_FileType_OpenFile_DefaultPrograme", L"Files of unknown type",
              RadioButton(L"Radio_FileType_OpenFile_DefaultPrograme_WithOpen", L"Show \"&Open With\""),
              Indent(CheckBox(kNet, L"Use the &Web service to find a program")),
              RadioButton(L"Radio_FileType_OpenFile_DefaultPrograme_Open", L"Open with this &program:"),
              Indent(Row(Edit(kUnknownEdit), Button(kUnknownChange, L"&Change...")))),
        Group(L"GroupBox_FileType_OpenFile_NoEndExe", L"Files without an extension",
              RadioButton(L"Radio_FileType_OpenFile_NoEndExe_OpenWith", L"Show \"Open W&ith\""),
              RadioButton(L"Radio_FileType_OpenFile_NoEndExe_Open", L"Open with &this program:"),
              Indent(Row(Edit(kNoEndExeEdit), Button(kNoEndExeChange, L"C&hange...")))),
        Buttons(Button(L"Button_FileType_OpenFile_Default", L"&Default")));
}

TControlDesign AdvancedSheet() {
    return Sheet(L"TabSheet_FileType_Advanced", L"Advanced",
                 Group(L"GroupBox_FileType_Advanced_NewShortcut", L"New shortcuts",
                       CheckBox(L"Checkbox_FileType_Advanced_NewShortcut_AddHead",
                                L"Add \"&Shortcut to\" to the names of new shortcuts")),
                 Group(L"GroupBox_FileType_Advanced_PictureAndFax", L"Windows Picture and Fax Viewer",
                       CheckBox(L"Checkbox_FileType_Advanced_PictureAndFax_OpenPicture",
                                L"&Preview pictures with the Windows Picture and Fax Viewer")),
                 Buttons(Button(L"Button_FileType_Advanced_Default", L"&Default")));
}

TControlDesign Design() {
    return NotebookPage(
        2, PageControl(L"PageControl_FileType", MenuOperationSheet(), OpenFileSheet(), AdvancedSheet()));
}

/// The default value of a key in the classes of files.
constexpr TPlace DefaultOf(const wchar_t* key) { return {kClassesRoot, key, L""}; }

// A menu entry is there while its key has a default value, whatever it is, and goes with the whole key. The
// spellings that are read and written differ in case and in the last backslash only; to Windows they are one
// key.
constexpr TBoxRule kShowsWhileRegistered{.Missing = kClear, .Otherwise = kChecked};

constexpr TRow kMenuOperationRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_Drive_OpenDrive",
                 .Value = DefaultOf(L"\\Folder\\shell\\Menu_root\\"),
                 .Shows = kShowsWhileRegistered,
                 .Records = {.Checked = Translated(TCaption::OpenExplorer), .Clear = kDeleteKey},
                 .Further = TBoxFurther{.Suffix = L"1",
                                        .Value = DefaultOf(L"\\Folder\\shell\\Menu_root\\Command\\"),
                                        .Records = {.Checked = Text(L"Explorer.exe /e,/root,/idlist,%I"),
                                                    .Clear = kNothing}},
                 .LoadedFrom = DefaultOf(L"\\Folder\\shell\\Menu_root")},
    TCheckBoxRow{
        .Control = L"Checkbox_FileType_MenuOperation_Drive_OpenCmd",
        .Value = DefaultOf(L"\\Directory\\shell\\Menu_CMD\\"),
        .Shows = kShowsWhileRegistered,
        .Records = {.Checked = Translated(TCaption::OpenCmd), .Clear = kDeleteKey},
        .Further = TBoxFurther{.Suffix = L"1",
                               .Value = DefaultOf(L"\\Directory\\shell\\Menu_CMD\\Command\\"),
                               .Records = {.Checked = Text(L"cmd.exe /k \"cd %L\""), .Clear = kNothing}},
        .LoadedFrom = DefaultOf(L"\\Directory\\shell\\Menu_Cmd")},
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_SendTo",
                 .Value = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Send To\\"),
                 .Shows = kShowsWhileRegistered,
                 .Records = {.Checked = Text(L"{7BA4C740-9E81-11CF-99D3-00AA004AE837}"), .Clear = kDeleteKey},
                 .LoadedFrom = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Send To")},
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_CopyTo",
                 .Value = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Copy To\\"),
                 .Shows = kShowsWhileRegistered,
                 .Records = {.Checked = Text(L"{C2FBB630-2971-11D1-A18C-00C04FD75D13}"), .Clear = kDeleteKey},
                 .LoadedFrom = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Copy To")},
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_MoveTo",
                 .Value = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Move To\\"),
                 .Shows = kShowsWhileRegistered,
                 .Records = {.Checked = Text(L"{C2FBB631-2971-11D1-A18C-00C04FD75D13}"), .Clear = kDeleteKey},
                 .LoadedFrom = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Move To")},
    TCheckBoxRow{
        .Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_Encryption",
        .Value = {kLocalMachine, L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\",
                  L"EncryptionContextMenu"},
        .Shows = {.When = {{L"1", kChecked}}, .Otherwise = kClear},
        .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
    TCheckBoxRow{
        .Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_New",
        .Value = DefaultOf(L"\\Directory\\Background\\shellex\\ContextMenuHandlers\\New\\"),
        .Shows = kShowsWhileRegistered,
        .Records = {.Checked = Text(L"{D969A300-E7FF-11D0-A93B-00A0C90F2719}"), .Clear = kDeleteKey}},
};

// Opening files. Two groups offer the choice between the "Open With" dialog and a program; the program's
// command line stands in an edit that records nothing by itself, beside a button that chooses another one.

/// The two radio buttons of a group, in the order of the rows' Controls.
enum TOpening : std::size_t { kWithDialog, kWithProgram };

constexpr const wchar_t* kUnknownRadios[] = {L"Radio_FileType_OpenFile_DefaultPrograme_WithOpen",
                                             L"Radio_FileType_OpenFile_DefaultPrograme_Open"};
constexpr const wchar_t* kNoEndExeRadios[] = {L"Radio_FileType_OpenFile_NoEndExe_OpenWith",
                                              L"Radio_FileType_OpenFile_NoEndExe_Open"};
constexpr const wchar_t* kUnknownChangeButton[] = {kUnknownChange};
constexpr const wchar_t* kNoEndExeChangeButton[] = {kNoEndExeChange};

constexpr const wchar_t* kAskByDialog = L"openas";  // the verb that shows the "Open With" dialog
constexpr TPlace kNoInternetOpenWith{kCurrentUser, kExplorerPolicies, L"NoInternetOpenWith"};

void EnableUnknown(const TPageContext& context, TOpening opening) {
    context.Form.Find(kNet)->SetEnabled(opening == kWithDialog);
    context.Form.Find(kUnknownEdit)->SetEnabled(opening == kWithProgram);
    context.Form.Find(kUnknownChange)->SetEnabled(opening == kWithProgram);
}

void LoadUnknown(TPageContext& context, const TSpecialRow& row) {
    const auto verb = Stored(context, row.Value);
    const TOpening opening = !verb || AsText(*verb) == kAskByDialog ? kWithDialog : kWithProgram;
    context.Form.Find<TRadioButton>(row.Controls[opening])->SetChecked(true);
    EnableUnknown(context, opening);
}

std::wstring UnknownCommand(const TPageContext& context) {
    return std::wstring(Trim(context.Form.Find<TEdit>(kUnknownEdit)->Text()));
}

/// The program needs two entries, the verb and its command, of which none may share its name with the
/// dialog's.
void RecordUnknown(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const TOpening opening = sender.Name() == row.Controls[kWithProgram] ? kWithProgram : kWithDialog;
    if (opening == kWithProgram) {
        RecordText(context, sender.Name() + L"1", row.Value, L"open");
        RecordText(context, sender.Name() + L"2", DefaultOf(L"\\Unknown\\shell\\open\\Command\\"),
                   UnknownCommand(context));
    } else {
        RecordText(context, sender.Name(), row.Value, kAskByDialog);
    }
    EnableUnknown(context, opening);
}

void EnableNoEndExe(const TPageContext& context, TOpening opening) {
    context.Form.Find(kNoEndExeEdit)->SetEnabled(opening == kWithProgram);
    context.Form.Find(kNoEndExeChange)->SetEnabled(opening == kWithProgram);
}

/// The key of these files is deliberately not asked. The group starts from the policy of the Web service:
/// with the dialog, which that belongs to, where the policy was ever set, and with the program elsewhere.
void LoadNoEndExe(TPageContext& context, const TSpecialRow& row) {
    const TOpening opening = Stored(context, kNoInternetOpenWith) ? kWithDialog : kWithProgram;
    context.Form.Find<TRadioButton>(row.Controls[opening])->SetChecked(true);
    EnableNoEndExe(context, opening);
}

/// The command is that of the files of unknown type, so that both open alike; the Change button of the group
/// sets another one.
void RecordNoEndExe(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const TOpening opening = sender.Name() == row.Controls[kWithProgram] ? kWithProgram : kWithDialog;
    if (opening == kWithProgram)
        RecordText(context, sender.Name(), DefaultOf(L"\\.\\shell\\open\\Command\\"),
                   UnknownCommand(context));
    else
        Record(context, sender.Name(), row.Value, kDeleteKey);
    EnableNoEndExe(context, opening);
}

/// The edit that shows the command line of a Change button's group.
TEdit& CommandEdit(const TPageContext& context, const TSpecialRow& row) {
    const bool isUnknown = std::wstring_view(row.Controls[0]) == kUnknownChange;
    return *context.Form.Find<TEdit>(isUnknown ? kUnknownEdit : kNoEndExeEdit);
}

void LoadCommand(TPageContext& context, const TSpecialRow& row) {
    if (const auto command = Stored(context, row.Value)) CommandEdit(context, row).SetText(AsText(*command));
}

void ChooseProgram(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const auto path = context.System.Dialogs.OpenFile(
        context.Form, context.Captions[TCaption::ExeFile] + L"(*.exe,*.com,*.bat)|*.exe;*.com;*.bat;|" +
                          context.Captions[TCaption::AllFile] + L"(*.*)|*.*;");
    if (!path) return;
    const std::wstring command = L'"' + *path + L"\" \"%1\"";
    CommandEdit(context, row).SetText(command);
    RecordText(context, sender.Name(), row.Value, command);
}

constexpr const wchar_t* kCommandRule =
    L"its edit shows the command line; a press lets the user choose the program and records it";

constexpr TRow kOpenFileRows[] = {
    TSpecialRow{
        .Controls = kUnknownRadios,
        .Value = DefaultOf(L"\\Unknown\\shell\\"),
        .Rule = L"the first while missing or \"openas\", which it records; the second records \"open\" and "
                L"the command",
        .Load = LoadUnknown,
        .Record = RecordUnknown},
    TSpecialRow{.Controls = kUnknownChangeButton,
                .Value = DefaultOf(L"\\Unknown\\shell\\open\\command\\"),
                .Rule = kCommandRule,
                .Load = LoadCommand,
                .Record = ChooseProgram},
    TCheckBoxRow{.Control = kNet,
                 .Value = kNoInternetOpenWith,
                 .Shows = {.When = {{L"0", kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
    TSpecialRow{
        .Controls = kNoEndExeRadios,
        .Value = DefaultOf(L"\\.\\shell\\open\\"),
        .Rule = L"the second while \"NoInternetOpenWith\" is missing; the first deletes the key, the second "
                L"records the command for files of unknown type",
        .Load = LoadNoEndExe,
        .Record = RecordNoEndExe},
    TSpecialRow{.Controls = kNoEndExeChangeButton,
                .Value = DefaultOf(L"\\.\\shell\\open\\command\\"),
                .Rule = kCommandRule,
                .Load = LoadCommand,
                .Record = ChooseProgram},
};

// New shortcuts are called "Shortcut to …" unless the first byte of "link" is 0. The byte is more than a
// switch (Windows itself starts with 0x1E), so bits are added to what stands there; the other bytes stay as
// they are.
constexpr TPlace kLink{kCurrentUser, L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\", L"link"};
constexpr std::uint8_t kAddsHead = 0x0F;

void LoadAddHead(TPageContext& context, const TSpecialRow& row) {
    const auto link = Stored(context, row.Value);
    if (!link) return;
    const TBytes bytes = AsBytes(*link);
    context.Form.Find<TCheckBox>(row.Controls[0])->SetChecked(!bytes.empty() && bytes[0] != 0);
}

void RecordAddHead(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    TBytes bytes = AsBytes(Stored(context, row.Value).value_or(TRegValue{}));
    if (bytes.empty()) bytes.push_back(0);
    bytes[0] = static_cast<TCheckBox&>(sender).Checked() ? bytes[0] | kAddsHead : 0;
    RecordBytes(context, sender.Name(), row.Value, bytes);
}

constexpr const wchar_t* kAddHead[] = {L"Checkbox_FileType_Advanced_NewShortcut_AddHead"};

constexpr TRow kAdvancedRows[] = {
    TSpecialRow{.Controls = kAddHead,
                .Value = kLink,
                .Rule = L"checked unless the first byte is 0; sets the bits 0x0F of it or makes it 0",
                .Load = LoadAddHead,
                .Record = RecordAddHead,
                .Restart = true},
    // Whether the preview is registered is deliberately not asked, so that another viewer's change does not clear the
    // box: it starts from whether Explorer has kept a "link" for the user. Clearing takes only the right to be the
    // default from the preview: the pictures' menu keeps its entry.
    TCheckBoxRow{.Control = kOpenPicture,
                 .Value = DefaultOf(L"\\SystemFileAssociations\\image\\ShellEx\\ContextMenuHandlers\\"
                                    L"ShellImagePreview\\"),
                 .Shows = {.Missing = kClear, .Otherwise = kChecked},
                 .Records = {.Checked = Text(L"{e84fda7c-1d6a-45f6-b725-cb260c236066}"), .Clear = kNothing},
                 .Further = TBoxFurther{.Suffix = L"1",
                                        .Value = DefaultOf(L"\\CLSID\\{e84fda7c-1d6a-45f6-b725-cb260c236066}"
                                                           L"\\shellex\\MayChangeDefaultMenu"),
                                        .Records = {.Checked = Text(L""), .Clear = kDeleteKey}},
                 .LoadedFrom = kLink},
};

constexpr TLoader kLoaders[] = {kMenuOperationRows, kOpenFileRows, kAdvancedRows};

// The first button leaves the other menu entries alone and sets three controls of the keyboard page instead.
constexpr TPresetState kMenuOperationDefault[] = {
    {L"Checkbox_FileType_MenuOperation_Drive_OpenDrive", 1},
    {L"UpDown_Use_Keyboard_CursorWidth_Width", 1},
    {L"Checkbox_Use_Keyboard_WinKey_Active", 1},
    {L"TrackBar_Use_Keyboard_BlinkingCursor_Speed", 2000},
};
constexpr TPresetState kOpenFileDefault[] = {
    {kUnknownRadios[kWithDialog], 1},
    {kNet, 1},
    {kNoEndExeRadios[kWithDialog], 1},
};
constexpr TPresetState kAdvancedDefault[] = {{kAddHead[0], 1}, {kOpenPicture, 1}};
constexpr TPreset kPresets[] = {
    {L"Button_FileType_MenuOperation_Default", kMenuOperationDefault},
    {L"Button_FileType_OpenFile_Default", kOpenFileDefault},
    {L"Button_FileType_Advanced_Default", kAdvancedDefault},
};

constexpr TOffer kOffers[] = {{L"Checkbox_FileType_MenuOperation_Drive_OpenDrive", kUntilXp}};

constexpr TPageDefinition kPage{.Tag = 2,
                                .SharedHandler = L"Checkbox_FileType_MenuOperation_Drive_OpenDriveClick",
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .Offers = kOffers};

}  // namespace

const TPageDefinition& FileTypesPage() { return kPage; }
