#include "settings/net/privacy_page.h"

#include "settings/net/privacy_modern.h"
#include "settings/net/security_switches.h"
#include "settings/shared_rows.h"

namespace {

TControlDesign Design() {
    return NotebookPage(
        12,
        PageControl(
            L"PageControl_Privacy",
            Sheet(L"TabSheet_Privacy_Common", L"General",
                  Group(L"GroupBox_Privacy_Common_AutoUpdate", L"Automatic Updates",
                        CheckBox(L"Checkbox_Privacy_Common_AutoUpdate_Active", L"&Turn on automatic updates"),
                        Indent(ComboBox(L"CB_Privacy_Common_AutoUpdate_Type", kAutoUpdateTypes))),
                  Buttons(Button(L"Button_Privacy_Common_Default", L"&Default"))),
            Sheet(L"TabSheet_CleanTraces", L"Clean Traces",
                  Group(L"GroupBox_CleanTraces_ClearHistoryList", L"Recently used documents",
                        CheckBox(L"Checkbox_CleanTraces_ClearHistoryList_ClearLogoff",
                                 L"Clear &history list at logoff.")),
                  Group(L"GroupBox_CleanTraces_ClearIECache", L"Temporary Internet files",
                        CheckBox(L"Checkbox_CleanTraces_ClearIECache_ClearOnExit",
                                 L"Empty Internet Explorer &cache when close it.")),
                  Buttons(Button(L"Button_CleanTraces_Default", L"&Default"))),
            Sheet(L"TabSheet_Privacy_IE", L"Internet Explorer",
                  Group(L"GroupBox_Privacy_IE_Authentication", L"What it does without asking",
                        CheckBox(L"Checkbox_Privacy_IE_Authentication_Enable",
                                 L"Disable integrated &Windows authentication."),
                        CheckBox(L"Checkbox_Privacy_IE_Update_Stop", L"&Prevent checking for updates.")),
                  Buttons(Button(L"Button_Privacy_IE_Default", L"&Default"))),
            PrivacyDataSheet(), PrivacyProgramsSheet(), PrivacySuggestionsSheet()));
}

constexpr const wchar_t* kAutoUpdateType[] = {L"CB_Privacy_Common_AutoUpdate_Type"};

constexpr TRow kCommonRows[] = {
    AutoUpdateRow(L"Checkbox_Privacy_Common_AutoUpdate_Active", kAutoUpdateType),
    AutoUpdatePolicyRow(L"Checkbox_Privacy_Common_AutoUpdate_Active", kAutoUpdateType),
    AutoUpdateTypePolicyRow(kAutoUpdateType[0]),
};

constexpr TRow kCleanTracesRows[] = {
    ClearRecentDocumentsRow(L"Checkbox_CleanTraces_ClearHistoryList_ClearLogoff"),
    TCheckBoxRow{.Control = L"Checkbox_CleanTraces_ClearIECache_ClearOnExit",
                 .Value = {kCurrentUser, kInternetCache, L"Persistent"},
                 .Shows = {.When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows10},
};

constexpr TRow kInternetExplorerRows[] = {
    // The box disables what its name calls enabling; the name is how the outside world knows it.
    TCheckBoxRow{.Control = L"Checkbox_Privacy_IE_Authentication_Enable",
                 .Value = {kCurrentUser, kInternetSettings, L"EnableNegotiate"},
                 .Shows = {.When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows10},
    TCheckBoxRow{.Control = L"Checkbox_Privacy_IE_Update_Stop",
                 .Value = {kCurrentUser, kWebcheck, L"NoScheduledUpdates"},
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Levels = kUntilWindows7},
};

constexpr TLoader kLoaders[] = {kCommonRows,      kCleanTracesRows,     kInternetExplorerRows,
                                kPrivacyDataRows, kPrivacyProgramsRows, kPrivacySuggestionsRows};

constexpr TPresetState kCommonDefault[] = {
    {L"Checkbox_Privacy_Common_AutoUpdate_Active", 1},
    {L"CB_Privacy_Common_AutoUpdate_Type", 0},
};
constexpr TPresetState kCleanTracesDefault[] = {
    {L"Checkbox_CleanTraces_ClearHistoryList_ClearLogoff", 0},
    {L"Checkbox_CleanTraces_ClearIECache_ClearOnExit", 0},
};
constexpr TPresetState kInternetExplorerDefault[] = {
    {L"Checkbox_Privacy_IE_Authentication_Enable", 0},
    {L"Checkbox_Privacy_IE_Update_Stop", 0},
};
constexpr TPreset kPresets[] = {
    {L"Button_Privacy_Common_Default", kCommonDefault},
    {L"Button_CleanTraces_Default", kCleanTracesDefault},
    {L"Button_Privacy_IE_Default", kInternetExplorerDefault},
    {L"Button_Privacy_Data_Default", kPrivacyDataDefault},
    {L"Button_Privacy_Programs_Default", kPrivacyProgramsDefault},
    {L"Button_Privacy_Suggestions_Default", kPrivacySuggestionsDefault},
};

constexpr TNeed kNeeds[] = {kLocationNeed};

constexpr TPageDefinition kPage{.Tag = 12,
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .Needs = kNeeds,
                                .ShowsPending = true};

}  // namespace

const TPageDefinition& PrivacyPage() { return kPage; }
