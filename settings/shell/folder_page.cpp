#include "settings/shell/folder_page.h"

#include <algorithm>

#include "engine/reg_value.h"
#include "platform/text.h"
#include "settings/shell/folder_design.h"
#include "settings/store.h"
#include "ui/controls.h"
#include "ui/decimal.h"

namespace {

constexpr const wchar_t* kAdvanced = L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\";
constexpr const wchar_t* kExplorer = L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
constexpr const wchar_t* kPolicies = L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer\\";
constexpr const wchar_t* kColors = L"\\Control Panel\\Colors\\";
constexpr const wchar_t* kExploreVerb = L"\\Folder\\shell\\explore\\";

constexpr TPlace kFolderVerb{kClassesRoot, L"\\Folder\\shell\\", L""};
constexpr TPlace kViewCount{kCurrentUser, L"\\Software\\Microsoft\\Windows\\Shell\\", L"BagMRU Size"};
constexpr TPlace kLocalViewCount{kCurrentUser, L"\\Software\\Microsoft\\Windows\\ShellNoRoam\\",
                                 L"BagMRU Size"};

constexpr const wchar_t* kTree = L"Checkbox_Folder_View_Windows_Tree";
constexpr const wchar_t* kCount = L"Trabar_Folder_View_BehaviorSet_SaveViewSetCount";
constexpr const wchar_t* kCountShow = L"Label_Folder_View_BehaviorSet_SaveViewSetCountShow";
constexpr const wchar_t* kFileTip = L"Checkbox_Folder_List_Details_FileAndDesktopTip";

// The verb "explore" opens folders with the tree. Systems that lack it get it together with the choice.
constexpr TRow kTreeRow = TCheckBoxRow{.Control = kTree,
                                       .Value = kFolderVerb,
                                       .Shows = {.When = {{L"explore", kChecked}}, .Otherwise = kClear},
                                       .Records = {.Checked = Text(L"explore"), .Clear = Text(L"")}};

void LoadTree(TPageContext& context, const TSpecialRow& /*row*/) { LoadRow(context, kTreeRow); }

void RecordTree(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    constexpr std::int32_t kVerbFlags = 22;
    RecordRow(context, kTreeRow, sender);
    if (!static_cast<TCheckBox&>(sender).Checked()) return;
    const TRegRecor verb = RecordAt({kClassesRoot, kExploreVerb, L""}, {});
    if (context.Changes.CheckExists(verb) != TReadStatus::KeyUnavailable) return;
    RecordNumber(context, sender.Name() + L"1", {kClassesRoot, kExploreVerb, L"BrowserFlags"}, kVerbFlags);
    RecordNumber(context, sender.Name() + L"2", {kClassesRoot, kExploreVerb, L"ExplorerFlags"}, kVerbFlags);
    RecordText(context, sender.Name() + L"3", {kClassesRoot, L"\\Folder\\shell\\explore\\Command", L""},
               L"%SystemRoot%\\Explorer.exe /e,/idlist,%I,%L");
}

// Windows keeps the views of network folders (Shell) and of local ones (ShellNoRoam) apart; one track bar
// sets how many of each and shows the first number. A label repeats it in digits.
void ShowCount(const TPageContext& context) {
    const int count = context.Form.Find<TTrackBar>(kCount)->Position();
    context.Form.Find<TLabel>(kCountShow)->SetCaption(DecimalText(count));
}

void LoadCount(TPageContext& context, const TSpecialRow& row) {
    if (const auto count = StoredNumber(context, row.Value))
        context.Form.Find<TTrackBar>(kCount)->SetPosition(*count);
    ShowCount(context);
}

void RecordCount(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const int count = static_cast<TTrackBar&>(sender).Position();
    RecordNumber(context, sender.Name() + L"1", row.Value, count);
    RecordNumber(context, sender.Name() + L"2", kLocalViewCount, count);
    ShowCount(context);
}

// A check box like others, but that its click brings the count's label up to date too.
constexpr const wchar_t* kFileTipEnables[] = {L"Checkbox_Folder_List_Details_FolderTip"};
constexpr TRow kFileTipRow =
    TCheckBoxRow{.Control = kFileTip,
                 .Value = {kCurrentUser, kAdvanced, L"ShowInfoTip"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Enables = kFileTipEnables};

void LoadFileTip(TPageContext& context, const TSpecialRow& /*row*/) { LoadRow(context, kFileTipRow); }

void RecordFileTip(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    RecordRow(context, kFileTipRow, sender);
    ShowCount(context);
}

// A button opens the colour dialog, and the swatch beside it shows the colour. Explorer keeps its colours as
// the bytes red, green, blue, 0, and the control panel as decimal numbers with blanks between; a value that
// is neither leaves the swatch alone.
TColorSwatch& SwatchOf(const TPageContext& context, const TSpecialRow& row) {
    return *context.Form.Find<TColorSwatch>(row.Controls[1]);
}

/// Asks for another colour and shows it; nothing when the user cancels.
std::optional<TColor> ChangedColor(const TPageContext& context, const TSpecialRow& row) {
    TColorSwatch& swatch = SwatchOf(context, row);
    const auto color = context.System.Dialogs.PickColor(context.Form, swatch.Color());
    if (color) swatch.SetColor(*color);
    return color;
}

void LoadColorBytes(TPageContext& context, const TSpecialRow& row) {
    const auto value = Stored(context, row.Value);
    const TBytes bytes = value ? AsBytes(*value) : TBytes{};
    if (bytes.size() < 3) return;
    SwatchOf(context, row).SetColor(TColor{bytes[0]} | TColor{bytes[1]} << 8 | TColor{bytes[2]} << 16);
}

void RecordColorBytes(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const auto color = ChangedColor(context, row);
    if (color) RecordBytes(context, sender.Name(), row.Value, AsBytes(static_cast<std::int32_t>(*color)));
}

std::optional<TColor> ParseColor(std::wstring_view text) {
    TColor color = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        text = Trim(text);
        const std::size_t length = std::min(text.find(L' '), text.size());
        const auto part = ParseInteger(text.substr(0, length));
        if (!part || *part < 0 || *part > 0xFF) return std::nullopt;
        color |= static_cast<TColor>(*part) << shift;
        text.remove_prefix(length);
    }
    if (!Trim(text).empty()) return std::nullopt;
    return color;
}

void LoadColorText(TPageContext& context, const TSpecialRow& row) {
    const auto value = Stored(context, row.Value);
    const auto color = value ? ParseColor(AsText(*value)) : std::nullopt;
    if (color) SwatchOf(context, row).SetColor(*color);
}

void RecordColorText(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    const auto color = ChangedColor(context, row);
    if (!color) return;
    RecordText(context, sender.Name(), row.Value,
               DecimalText(*color & 0xFF) + L' ' + DecimalText(*color >> 8 & 0xFF) + L' ' +
                   DecimalText(*color >> 16));
}

// The edit's text is the value, whether it was typed or its up-down changed it. While the user types anew it
// may be empty.
void LoadSize(TPageContext& context, const TSpecialRow& row) {
    if (const auto size = StoredNumber(context, row.Value))
        context.Form.Find<TUpDown>(row.Controls[1])->SetPosition(*size);
}

void RecordSize(TPageContext& context, const TSpecialRow& row, TComponent& /*sender*/) {
    const auto& edit = *context.Form.Find<TEdit>(row.Controls[0]);
    RecordNumber(context, edit.Name(), row.Value, ParseInteger(Trim(edit.Text())).value_or(0));
}

constexpr const wchar_t* kTreeControls[] = {kTree};
constexpr const wchar_t* kCountControls[] = {kCount};
constexpr TRow kViewRows[] = {
    TSpecialRow{.Controls = kTreeControls,
                .Value = kFolderVerb,
                .Rule = L"\"explore\" checks it, other texts clear it; a missing verb \"explore\" is created",
                .Load = LoadTree,
                .Record = RecordTree,
                .LoadedOn = kUntilXp},
    TCheckBoxRow{.Control = L"Checkbox_Folder_View_Windows_ShowMenuBar",
                 .Value = {kCurrentUser, kAdvanced, L"AlwaysShowMenus"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .LoadedOn = kSinceVista},
    // The policy's mere presence counts, whatever its value.
    TCheckBoxRow{.Control = L"Checkbox_Folder_View_Windows_Details",
                 .Value = {kCurrentUser, kPolicies, L"NoPreviewPane"},
                 .Shows = {.Missing = kChecked, .Otherwise = kClear},
                 .Records = {.Checked = kDeleteValue, .Clear = Dword(1)},
                 .Restart = true,
                 .LoadedOn = kSinceVista},
    TCheckBoxRow{.Control = L"Checkbox_Folder_View_Windows_Restore",
                 .Value = {kCurrentUser, kAdvanced, L"PersistBrowsers"},
                 .Shows = {.When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
    TCheckBoxRow{.Control = L"Checkbox_Folder_View_BehaviorSet_SaveViewSet",
                 .Value = {kCurrentUser, kAdvanced, L"ClassicViewState"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Enables = kCountControls},
    TSpecialRow{.Controls = kCountControls,
                .Value = kViewCount,
                .Rule = L"the position; recorded for network and for local folders",
                .Load = LoadCount,
                .Record = RecordCount},
};

constexpr const wchar_t* kFileTipControls[] = {kFileTip};
constexpr const wchar_t* kColorButtons[] = {L"Button_Folder_List_CompressedFile_Change",
                                            L"Button_Folder_List_EncryptedFile_Change"};
constexpr const wchar_t* kColorLabels[] = {L"Label_Folder_List_CompressedFile",
                                           L"Label_Folder_List_EncryptedFile"};
constexpr const wchar_t* kCompressedControls[] = {L"Button_Folder_List_CompressedFile_Change",
                                                  L"Ctrbar_Folder_List_CompressedFile_Color"};
constexpr const wchar_t* kEncryptedControls[] = {L"Button_Folder_List_EncryptedFile_Change",
                                                 L"Ctrbar_Folder_List_EncryptedFile_Color"};
constexpr const wchar_t* kColorBytesRule = L"the bytes red, green, blue, 0; picked in the colour dialog";
constexpr TRow kListRows[] = {
    TSpecialRow{.Controls = kFileTipControls,
                .Value = {kCurrentUser, kAdvanced, L"ShowInfoTip"},
                .Rule = L"clear when 0, otherwise checked; records 1 or 0",
                .Load = LoadFileTip,
                .Record = RecordFileTip},
    TCheckBoxRow{.Control = L"Checkbox_Folder_List_Details_FolderTip",
                 .Value = {kCurrentUser, kAdvanced, L"FolderContentsInfoTip"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
    TRadioPairRow{.First = L"Radio_Folder_List_ArrangeIcons_WithNumber",
                  .Second = L"Radio_Folder_List_ArrangeIcons_WithLetter",
                  .ChangeName = L"Radio_Folder_List_ArrangeIcons_WithLetter",
                  .Value = {kLocalMachine, kPolicies, L"NoStrCmpLogical"},
                  .Missing = TPairState::First,
                  .FirstWhen = 0,
                  .FirstRecords = Dword(0),
                  .SecondRecords = Dword(1)},
    TCheckBoxRow{.Control = L"Checkbox_Folder_List_EAndCFileWithColor",
                 .Value = {kCurrentUser, kAdvanced, L"ShowCompColor"},
                 .Shows = {.Missing = kClear, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Enables = kColorButtons,
                 .EnablesOnClick = kColorLabels},
    TSpecialRow{.Controls = kCompressedControls,
                .Value = {kCurrentUser, kExplorer, L"AltColor"},
                .Rule = kColorBytesRule,
                .Load = LoadColorBytes,
                .Record = RecordColorBytes},
    TSpecialRow{.Controls = kEncryptedControls,
                .Value = {kCurrentUser, kExplorer, L"AltEncryptionColor"},
                .Rule = kColorBytesRule,
                .Load = LoadColorBytes,
                .Record = RecordColorBytes},
};

constexpr const wchar_t* kSizeControls[] = {L"Edit_Folder_Thumbnail_Size", L"UpDown_Folder_Thumbnail_Size"};
constexpr TRow kThumbnailRows[] = {
    TSpecialRow{.Controls = kSizeControls,
                .Value = {kCurrentUser, kExplorer, L"ThumbnailSize"},
                .Rule = L"the number in the edit; 0 while it is empty",
                .Load = LoadSize,
                .Record = RecordSize},
    TNumberRow{.Control = L"Trackbar_Folder_Thumbnail_Quality",
               .Value = {kCurrentUser, kExplorer, L"ThumbnailQuality"}},
    TCheckBoxRow{.Control = L"Checkbox_Folder_Thumbnail_Cache",
                 .Value = {kCurrentUser, kAdvanced, L"DisableThumbnailCache"},
                 .Shows = {.When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)}},
};

constexpr const wchar_t* kHotTrackingControls[] = {L"Button_Folder_Choose_Click_Change",
                                                   L"Ctrbar_Folder_Choose_Click_Color"};
constexpr TRow kChooseRows[] = {
    TSpecialRow{.Controls = kHotTrackingControls,
                .Value = {kCurrentUser, kColors, L"HotTrackingColor"},
                .Rule = L"\"red green blue\" in decimal; picked in the colour dialog",
                .Load = LoadColorText,
                .Record = RecordColorText},
    TCheckBoxRow{.Control = L"Checkbox_Folder_Choose_AddCheckBox",
                 .Value = {kCurrentUser, kAdvanced, L"AutoCheckSelect"},
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kKeep},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .LoadedOn = kSinceVista},
};

constexpr TLoader kLoaders[] = {kViewRows, kListRows, kThumbnailRows, kChooseRows};

constexpr TPresetState kViewDefault[] = {
    {kTree, 0},
    {L"Checkbox_Folder_View_Windows_Restore", 0},
    {L"Checkbox_Folder_View_Windows_Details", 1},
    {L"Checkbox_Folder_View_BehaviorSet_SaveViewSet", 1},
    {kCount, 5000},
};
constexpr TPresetState kListDefault[] = {
    {kFileTip, 1},
    {L"Checkbox_Folder_List_Details_FolderTip", 1},
    {L"Radio_Folder_List_ArrangeIcons_WithNumber", 1},
    {L"Checkbox_Folder_List_EAndCFileWithColor", 1},
};
constexpr TPresetState kThumbnailDefault[] = {
    {L"UpDown_Folder_Thumbnail_Size", 96},
    {L"Trackbar_Folder_Thumbnail_Quality", 90},
    {L"Checkbox_Folder_Thumbnail_Cache", 1},
};
constexpr TPreset kPresets[] = {
    {L"Button_Folder_View_BehaviorSet_Default", kViewDefault},
    {L"Button_Folder_List_Default", kListDefault},
    {L"Button_Folder_Thumbnail_Default", kThumbnailDefault},
};

constexpr TLevelCaption kLevelCaptions[] = {
    {L"GroupBox_Folder_Advanced_MyComputer", kUntilXp, TCaption::MyComputer},
};

constexpr TPageDefinition kPage{.Tag = 3,
                                .SharedHandler = L"Checkbox_Folder_View_Windows_TreeClick",
                                .Design = FolderDesign,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .LevelCaptions = kLevelCaptions};

}  // namespace

const TPageDefinition& FolderPage() { return kPage; }
