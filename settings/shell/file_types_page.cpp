#include "settings/shell/file_types_page.h"

#include "engine/reg_value.h"
#include "platform/text.h"
#include "settings/shared_rows.h"
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
                 Group(L"GroupBox_FileType_Advanced_NewShortcut", L"Shortcuts and pictures",
                       CheckBox(L"Checkbox_FileType_Advanced_NewShortcut_AddHead",
                                L"Add \"&Shortcut to\" to the names of new shortcuts"),
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

constexpr TPlace kOpenExplorer = DefaultOf(L"\\Folder\\shell\\Menu_root");
constexpr TPlace kSendTo = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Send To");
constexpr TPlace kCopyTo = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Copy To");
constexpr TPlace kMoveTo = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Move To");
constexpr TBoxFurther kOpenExplorerCommand[] = {
    {L"1",
     DefaultOf(L"\\Folder\\shell\\Menu_root\\Command\\"),
     {.Checked = Text(L"Explorer.exe /e,/root,/idlist,%I"), .Clear = kNothing}}};

constexpr TRow kMenuOperationRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_Drive_OpenDrive",
                 .Value = DefaultOf(L"\\Folder\\shell\\Menu_root\\"),
                 .Shows = kShowsWhileRegistered,
                 .Records = {.Checked = Translated(TCaption::OpenExplorer), .Clear = kDeleteKey},
                 .Further = kOpenExplorerCommand,
                 .LoadedFrom = &kOpenExplorer},
    OpenCmdRow(L"Checkbox_FileType_MenuOperation_Drive_OpenCmd"),
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_SendTo",
                 .Value = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Send To\\"),
                 .Shows = kShowsWhileRegistered,
                 .Records = {.Checked = Text(L"{7BA4C740-9E81-11CF-99D3-00AA004AE837}"), .Clear = kDeleteKey},
                 .LoadedFrom = &kSendTo},
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_CopyTo",
                 .Value = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Copy To\\"),
                 .Shows = kShowsWhileRegistered,
                 .Records = {.Checked = Text(L"{C2FBB630-2971-11D1-A18C-00C04FD75D13}"), .Clear = kDeleteKey},
                 .LoadedFrom = &kCopyTo},
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_MoveTo",
                 .Value = DefaultOf(L"\\AllFilesystemObjects\\shellex\\ContextMenuHandlers\\Move To\\"),
                 .Shows = kShowsWhileRegistered,
                 .Records = {.Checked = Text(L"{C2FBB631-2971-11D1-A18C-00C04FD75D13}"), .Clear = kDeleteKey},
                 .LoadedFrom = &kMoveTo},
    TCheckBoxRow{.Control = L"Checkbox_FileType_MenuOperation_FileAndFolder_Encryption",
                 .Value = {kLocalMachine, kExplorerAdvancedUpper, L"EncryptionContextMenu"},
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
constexpr const wchar_t* kAskByDialog = L"openas";  // the verb that shows the "Open With" dialog
constexpr TPlace kUnknownPlaces[] = {DefaultOf(L"\\Unknown\\shell\\"),
                                     DefaultOf(L"\\Unknown\\shell\\open\\Command\\")};
constexpr TPlace kNoEndExePlaces[] = {DefaultOf(L"\\.\\shell\\open\\"),
                                      DefaultOf(L"\\.\\shell\\open\\Command\\")};
constexpr TPlace kNoInternetOpenWith{kCurrentUser, kExplorerPolicies, L"NoInternetOpenWith"};

void LoadUnknown(TPageContext& context, const TSpecialRow& row) {
    const auto verb = Stored(context, row.Places[0]);
    const TOpening opening = !verb || AsText(*verb) == kAskByDialog ? kWithDialog : kWithProgram;
    context.Form.Find<TRadioButton>(row.Controls[opening])->SetChecked(true);
}

/// Of the files of unknown type; where there is no choice for them, the group's own.
std::wstring UnknownCommand(const TPageContext& context) {
    const wchar_t* edit = kUntilWindows7.Include(context.Release) ? kUnknownEdit : kNoEndExeEdit;
    return std::wstring(Trim(context.Form.Find<TEdit>(edit)->Text()));
}

/// The program needs two entries, the verb and its command, of which none may share its name with the
/// dialog's.
void RecordUnknown(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const TOpening opening = sender.Name() == row.Controls[kWithProgram] ? kWithProgram : kWithDialog;
    if (opening == kWithProgram) {
        RecordText(context, sender.Name() + L"1", row.Places[0], L"open");
        RecordText(context, sender.Name() + L"2", row.Places[1], UnknownCommand(context));
    } else {
        RecordText(context, sender.Name(), row.Places[0], kAskByDialog);
    }
}

/// The key of these files is deliberately not asked. The group starts from the policy of the Web service:
/// with the dialog, which that belongs to, where the policy was ever set, and with the program elsewhere.
void LoadNoEndExe(TPageContext& context, const TSpecialRow& row) {
    const TOpening opening = Stored(context, kNoInternetOpenWith) ? kWithDialog : kWithProgram;
    context.Form.Find<TRadioButton>(row.Controls[opening])->SetChecked(true);
}

/// The command is that of the files of unknown type, so that both open alike; the Change button of the group
/// sets another one.
void RecordNoEndExe(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const TOpening opening = sender.Name() == row.Controls[kWithProgram] ? kWithProgram : kWithDialog;
    if (opening == kWithProgram)
        RecordText(context, sender.Name(), row.Places[1], UnknownCommand(context));
    else
        Record(context, sender.Name(), row.Places[0], kDeleteKey);
}

// From Windows 8 on the classes of unknown files belong to Windows itself, which refuses changes, and the Web service is gone.
constexpr TRow kOpenFileRows[] = {
    // Special because the verb and its command are two entries, of which none may share its name with the dialog's.
    TSpecialRow{.Controls = kUnknownRadios,
                .Places = kUnknownPlaces,
                .Load = LoadUnknown,
                .Record = RecordUnknown,
                .Levels = kUntilWindows7},
    TProgramRow{.Button = kUnknownChange,
                .Edit = kUnknownEdit,
                .Value = DefaultOf(L"\\Unknown\\shell\\open\\command\\"),
                .Levels = kUntilWindows7},
    TCheckBoxRow{.Control = kNet,
                 .Value = kNoInternetOpenWith,
                 .Shows = {.When = {{L"0", kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
    // Special because it shows the value of another setting and takes its command from another edit.
    TSpecialRow{.Controls = kNoEndExeRadios,
                .Places = kNoEndExePlaces,
                .Load = LoadNoEndExe,
                .Record = RecordNoEndExe},
    TProgramRow{
        .Button = kNoEndExeChange, .Edit = kNoEndExeEdit, .Value = DefaultOf(L"\\.\\shell\\open\\command\\")},
};

// New shortcuts are called "Shortcut to …" unless the first byte of "link" is 0. The byte is more than a
// switch (Windows itself starts with 0x1E), so bits are added to what stands there.
constexpr TPlace kLink{kCurrentUser, kExplorer, L"link"};
constexpr std::int32_t kAddsHead = 0x0F;
constexpr const wchar_t* kAddHead = L"Checkbox_FileType_Advanced_NewShortcut_AddHead";

constexpr TBoxFurther kMayChangeDefault[] = {
    {L"1",
     DefaultOf(L"\\CLSID\\{e84fda7c-1d6a-45f6-b725-cb260c236066}\\shellex\\MayChangeDefaultMenu"),
     {.Checked = Text(L""), .Clear = kDeleteKey}}};

constexpr TRow kAdvancedRows[] = {
    TCheckBoxRow{.Control = kAddHead,
                 .Value = As(TCoding::FirstByte, kLink),
                 .Shows = {.When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = SetBits(kAddsHead), .Clear = Dword(0)},
                 .Restart = TRestart::Windows},
    // Whether the preview is registered is deliberately not asked, so that another viewer's change does not clear the
    // box: it starts from whether Explorer has kept a "link" for the user. Clearing takes only the right to be the
    // default from the preview: the pictures' menu keeps its entry.
    TCheckBoxRow{.Control = kOpenPicture,
                 .Value = DefaultOf(L"\\SystemFileAssociations\\image\\ShellEx\\ContextMenuHandlers\\"
                                    L"ShellImagePreview\\"),
                 .Shows = {.Missing = kClear, .Otherwise = kChecked},
                 .Records = {.Checked = Text(L"{e84fda7c-1d6a-45f6-b725-cb260c236066}"), .Clear = kNothing},
                 .Further = kMayChangeDefault,
                 .LoadedFrom = &kLink,
                 .Levels = kUntilWindows7},
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
constexpr TPresetState kAdvancedDefault[] = {{kAddHead, 1}, {kOpenPicture, 1}};
constexpr TPreset kPresets[] = {
    {L"Button_FileType_MenuOperation_Default", kMenuOperationDefault},
    {L"Button_FileType_OpenFile_Default", kOpenFileDefault},
    {L"Button_FileType_Advanced_Default", kAdvancedDefault},
};

constexpr const wchar_t* kNetControls[] = {kNet};
constexpr const wchar_t* kUnknownProgram[] = {kUnknownEdit, kUnknownChange};
constexpr const wchar_t* kNoEndExeProgram[] = {kNoEndExeEdit, kNoEndExeChange};
constexpr TNeed kNeeds[] = {
    {.Controls = kNetControls, .Of = kUnknownRadios[kWithDialog], .Levels = kUntilWindows7},
    {.Controls = kUnknownProgram, .Of = kUnknownRadios[kWithProgram], .Levels = kUntilWindows7},
    {.Controls = kNoEndExeProgram, .Of = kNoEndExeRadios[kWithProgram]},
};

constexpr const wchar_t* kStartsFromOther[] = {kNoEndExeRadios[kWithDialog], kNoEndExeRadios[kWithProgram],
                                               kOpenPicture};

constexpr TOffer kOffers[] = {{L"Checkbox_FileType_MenuOperation_Drive_OpenDrive", kUntilXp}};

constexpr TPageDefinition kPage{.Tag = 2,
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .Offers = kOffers,
                                .Needs = kNeeds,
                                .StartsFromOther = kStartsFromOther};

}  // namespace

const TPageDefinition& FileTypesPage() { return kPage; }
