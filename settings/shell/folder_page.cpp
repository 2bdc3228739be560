#include "settings/shell/folder_page.h"

#include "settings/page_context.h"
#include "settings/shared_rows.h"
#include "settings/shell/folder_design.h"
#include "settings/shell/folder_modern.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr TPlace kFolderVerb{kClassesRoot, kFolderVerbs, L""};

constexpr const wchar_t* kTree = L"Checkbox_Folder_View_Windows_Tree";
constexpr const wchar_t* kCount = L"Trabar_Folder_View_BehaviorSet_SaveViewSetCount";
constexpr const wchar_t* kCountShow = L"Label_Folder_View_BehaviorSet_SaveViewSetCountShow";
constexpr const wchar_t* kFileTip = L"Checkbox_Folder_List_Details_FileAndDesktopTip";

// The verb "explore" opens folders with the tree. Systems that lack it get it together with the choice.
constexpr TRow kTreeRow = TCheckBoxRow{.Control = kTree,
                                       .Value = kFolderVerb,
                                       .Shows = {.When = {{L"explore", kChecked}}, .Otherwise = kClear},
                                       .Records = {.Checked = Text(L"explore"), .Clear = Text(L"")}};
constexpr TPlace kTreePlaces[] = {kFolderVerb,
                                  {kClassesRoot, kExploreVerb, L"BrowserFlags"},
                                  {kClassesRoot, kExploreVerb, L"ExplorerFlags"},
                                  {kClassesRoot, kExploreCommand, L""}};

void LoadTree(TPageContext& context, const TSpecialRow& /*row*/) { LoadRow(context, kTreeRow); }

void RecordTree(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    constexpr std::int32_t kVerbFlags = 22;
    RecordRow(context, kTreeRow, sender);
    if (!static_cast<TCheckBox&>(sender).Checked()) return;
    const TRegRecor verb = RecordAt({kClassesRoot, kExploreVerb, L""}, {});
    if (context.Changes.CheckExists(verb) != TReadStatus::KeyUnavailable) return;
    RecordNumber(context, sender.Name() + L"1", row.Places[1], kVerbFlags);
    RecordNumber(context, sender.Name() + L"2", row.Places[2], kVerbFlags);
    RecordText(context, sender.Name() + L"3", row.Places[3], L"%SystemRoot%\\Explorer.exe /e,/idlist,%I,%L");
}

constexpr const wchar_t* kTreeControls[] = {kTree};
constexpr const wchar_t* kCountControls[] = {kCount};
constexpr TRow kViewRows[] = {
    // Special because checking it creates the verb where there is none.
    TSpecialRow{.Controls = kTreeControls,
                .Places = kTreePlaces,
                .Load = LoadTree,
                .Record = RecordTree,
                .LoadedOn = kUntilXp,
                .Levels = kUntilWindows7},
    TCheckBoxRow{.Control = L"Checkbox_Folder_View_Windows_ShowMenuBar",
                 .Value = {kCurrentUser, kExplorerAdvancedUpper, L"AlwaysShowMenus"},
                 .Shows = {.Missing = kChecked, .When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .LoadedOn = kSinceVista,
                 .Levels = kUntilWindows7},
    // The policy's mere presence counts, whatever its value.
    TCheckBoxRow{.Control = L"Checkbox_Folder_View_Windows_Details",
                 .Value = {kCurrentUser, kExplorerPoliciesUpper, L"NoPreviewPane"},
                 .Shows = {.Missing = kChecked, .Otherwise = kClear},
                 .Records = {.Checked = kDeleteValue, .Clear = Dword(1)},
                 .Restart = TRestart::Windows,
                 .LoadedOn = kSinceVista},
    RestoreFoldersRow(L"Checkbox_Folder_View_Windows_Restore"),
    TCheckBoxRow{.Control = L"Checkbox_Folder_View_BehaviorSet_SaveViewSet",
                 .Value = {kCurrentUser, kExplorerAdvancedUpper, L"ClassicViewState"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Enables = kCountControls,
                 .Levels = kUntilWindows7},
    // Windows keeps the views of network folders (Shell) and of local ones (ShellNoRoam) apart.
    TNumberRow{
        .Control = kCount,
        .Value = {kCurrentUser, kShell, L"BagMRU Size"},
        .Further = TNumberFurther{.Suffix = L"2", .Value = {kCurrentUser, kShellNoRoam, L"BagMRU Size"}},
        .Suffix = L"1",
        .Digits = kCountShow,
        .Levels = kUntilWindows7},
    TNumberRow{.Control = kCount,
               .Value = {kCurrentUser, kShellOfUser, L"BagMRU Size"},
               .Digits = kCountShow,
               .Levels = kSinceWindows8},
};

constexpr TDigits kFolderCount{kCountShow, kCount};
constexpr TOnClick kShowsFolderCount{.Digits = &kFolderCount};
constexpr const wchar_t* kFileTipEnables[] = {L"Checkbox_Folder_List_Details_FolderTip"};
constexpr const wchar_t* kColorButtons[] = {L"Button_Folder_List_CompressedFile_Change",
                                            L"Button_Folder_List_EncryptedFile_Change"};
constexpr const wchar_t* kColorLabels[] = {L"Label_Folder_List_CompressedFile",
                                           L"Label_Folder_List_EncryptedFile"};
constexpr TOnClick kEnablesColorLabels{.Enables = kColorLabels};
constexpr TBoxFurther kEncryptedColor[] = {
    {L"1",
     {kCurrentUser, kExplorerAdvancedUpper, L"ShowEncryptCompressedColor"},
     {.Checked = Dword(1), .Clear = Dword(0)}}};
/// Windows 8 gave encrypted files a value of their own beside that of all.
constexpr TCheckBoxRow ColorRow(TLevels levels) {
    TCheckBoxRow row{.Control = L"Checkbox_Folder_List_EAndCFileWithColor",
                     .Value = {kCurrentUser, kExplorerAdvancedUpper, L"ShowCompColor"},
                     .Shows = {.Missing = kClear, .When = {{0, kClear}}, .Otherwise = kChecked},
                     .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                     .Enables = kColorButtons,
                     .OnClick = &kEnablesColorLabels,
                     .Levels = levels};
    if (levels == kSinceWindows8) row.Further = kEncryptedColor;
    return row;
}

constexpr TRow kListRows[] = {
    TCheckBoxRow{.Control = kFileTip,
                 .Value = {kCurrentUser, kExplorerAdvancedUpper, L"ShowInfoTip"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Enables = kFileTipEnables,
                 .OnClick = &kShowsFolderCount},
    TCheckBoxRow{.Control = L"Checkbox_Folder_List_Details_FolderTip",
                 .Value = {kCurrentUser, kExplorerAdvancedUpper, L"FolderContentsInfoTip"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
    TRadioPairRow{.First = L"Radio_Folder_List_ArrangeIcons_WithNumber",
                  .Second = L"Radio_Folder_List_ArrangeIcons_WithLetter",
                  .ChangeName = L"Radio_Folder_List_ArrangeIcons_WithLetter",
                  .Value = {kLocalMachine, kExplorerPoliciesUpper, L"NoStrCmpLogical"},
                  .Missing = TPairState::First,
                  .FirstWhen = 0,
                  .FirstRecords = Dword(0),
                  .SecondRecords = Dword(1)},
    ColorRow(kUntilWindows7),
    ColorRow(kSinceWindows8),
    TColorRow{.Button = L"Button_Folder_List_CompressedFile_Change",
              .Swatch = L"Ctrbar_Folder_List_CompressedFile_Color",
              .Value = As(TCoding::ColorBytes, {kCurrentUser, kExplorerUpper, L"AltColor"})},
    TColorRow{.Button = L"Button_Folder_List_EncryptedFile_Change",
              .Swatch = L"Ctrbar_Folder_List_EncryptedFile_Color",
              .Value = As(TCoding::ColorBytes, {kCurrentUser, kExplorerUpper, L"AltEncryptionColor"})},
};

constexpr TRow kThumbnailRows[] = {
    TNumberRow{.Control = L"UpDown_Folder_Thumbnail_Size",
               .Value = {kCurrentUser, kExplorerUpper, L"ThumbnailSize"},
               .Source = TNumberSource::Typed,
               .Edit = L"Edit_Folder_Thumbnail_Size",
               .ChangeName = L"Edit_Folder_Thumbnail_Size",
               .Levels = kUntilWindows7},
    TNumberRow{.Control = L"Trackbar_Folder_Thumbnail_Quality",
               .Value = {kCurrentUser, kExplorerUpper, L"ThumbnailQuality"},
               .Levels = kUntilWindows7},
    TCheckBoxRow{.Control = L"Checkbox_Folder_Thumbnail_Cache",
                 .Value = {kCurrentUser, kExplorerAdvancedUpper, L"DisableThumbnailCache"},
                 .Shows = {.When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
};

constexpr TRow kChooseRows[] = {
    TColorRow{.Button = L"Button_Folder_Choose_Click_Change",
              .Swatch = L"Ctrbar_Folder_Choose_Click_Color",
              .Value = As(TCoding::ColorText, {kCurrentUser, kColors, L"HotTrackingColor"})},
    TCheckBoxRow{.Control = L"Checkbox_Folder_Choose_AddCheckBox",
                 .Value = {kCurrentUser, kExplorerAdvancedUpper, L"AutoCheckSelect"},
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kKeep},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .LoadedOn = kSinceVista},
};

constexpr TLoader kLoaders[] = {kViewRows,   kListRows,        kThumbnailRows,
                                kChooseRows, kFolderFilesRows, kFolderExplorerRows};

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
    {L"Button_Folder_Files_Default", kFolderFilesDefault},
    {L"Button_Folder_Explorer_Default", kFolderExplorerDefault},
};

constexpr TLevelCaption kLevelCaptions[] = {
    {L"GroupBox_Folder_Advanced_MyComputer", kUntilXp, TCaption::MyComputer},
};

constexpr TPageDefinition kPage{.Tag = 3,
                                .Design = FolderDesign,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .LevelCaptions = kLevelCaptions};

}  // namespace

const TPageDefinition& FolderPage() { return kPage; }
