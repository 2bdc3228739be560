#include "settings/net/internet_explorer_page.h"

#include "settings/page_context.h"
#include "settings/row_shapes.h"

namespace {

TControlDesign Design() {
    return NotebookPage(
        8,
        PageControl(
            L"PageControl_IE",
            Sheet(L"TabSheet_IE_Common", L"General",
                  Group(L"GroupBox_IE_Common_Homepage", L"Home page",
                        Row(Label(L"Label_IE_Common_Homepage_Address", L"Add&ress:"),
                            Edit(L"Edit_IE_Common_Homepage_Address"))),
                  Group(L"GroupBox_IE_Common_History", L"History",
                        Row(Label(L"Label_IE_Common_History_KeepDays", L"Days to &keep pages in history:"),
                            Edit(L"Edit_IE_Common_History_KeepDays").Width(4),
                            UpDown(L"Updown_IE_Common_History_KeepDays", L"Edit_IE_Common_History_KeepDays",
                                   1, 100, 20),
                            Button(L"Button_IE_Common_History_Clear", L"&Clear History..."))),
                  Group(L"GroupBox_IE_Common_Media", L"Web pages",
                        CheckBox(L"Checkbox_IE_Common_Media_Open", L"Show &pictures"),
                        CheckBox(L"Checkbox_IE_Common_Media_Resize", L"&Fit large pictures into the window"),
                        CheckBox(L"Checkbox_IE_Common_Media_Animation", L"Play an&imations in web pages"),
                        CheckBox(L"Checkbox_IE_Common_Media_Sound", L"Play s&ounds in web pages"),
                        CheckBox(L"Checkbox_IE_Common_Popup_Block", L"Turn on the Pop-up &Blocker")),
                  Buttons(Button(L"Button_IE_Common_Default", L"&Default"))),
            Sheet(
                L"TabSheet_IE_Tab", L"Tabs",
                Group(L"GroupBox_IE_Tab", L"Tabbed browsing",
                      CheckBox(L"Checkbox_IE_Tab_Active", L"&Enable tabbed browsing"),
                      Indent(CheckBox(L"Checkbox_IE_Tab_WarnOnClose", L"&Warn me when closing several tabs"),
                             CheckBox(L"Checkbox_IE_Tab_Foreground",
                                      L"Always &switch to new tabs when they are created"),
                             Fields(Row(Label(L"Label_IE_Tab_New", L"Show in &new tabs:"),
                                        ComboBox(L"CB_IE_Tab_New", {L"A blank page", L"The first home page",
                                                                    L"The new tab page"})),
                                    Row(Label(L"Label_IE_Tab_Popup", L"Open &pop-ups:"),
                                        ComboBox(L"CB_IE_Tab_Popup",
                                                 {L"Automatically", L"In a new window", L"In a new tab"})),
                                    Row(Label(L"Label_IE_Tab_Link", L"Open &links from other programs:"),
                                        ComboBox(L"CB_IE_Tab_Link", {L"In a new window", L"In a new tab",
                                                                     L"In the current tab"}))))),
                Buttons(Button(L"Button_IE_Tab_Default", L"&Default"))),
            Sheet(
                L"TabSheet_IE_AutoComplete", L"AutoComplete",
                Group(L"GroupBox_IE_AutoComplete_Address", L"Web addresses",
                      CheckBox(L"Checkbox_IE_AutoComplete_Address_Suggest", L"&Suggest addresses in a list"),
                      CheckBox(L"Checkbox_IE_AutoComplete_Address_Append",
                               L"&Complete addresses while I type")),
                Group(L"GroupBox_IE_AutoComplete_Form", L"Forms",
                      CheckBox(L"Checkbox_IE_AutoComplete_Form_Suggest", L"Remember what I type into &forms"),
                      CheckBox(L"Checkbox_IE_AutoComplete_Form_Password",
                               L"Remember &user names and passwords on forms"),
                      Indent(CheckBox(L"Checkbox_IE_AutoComplete_Form_Ask",
                                      L"As&k me before saving passwords"))),
                Buttons(Button(L"Button_IE_AutoComplete_Default", L"&Default"))),
            Sheet(L"TabSheet_IE_Advanced", L"Connections and Warnings",
                  Group(L"GroupBox_IE_Advanced_Connection", L"Connections",
                        CheckBox(L"Checkbox_IE_Advanced_Connection_Http11", L"Use &HTTP 1.1"),
                        CheckBox(L"Checkbox_IE_Advanced_Connection_Proxy11",
                                 L"Use HTTP 1.1 through &proxy connections"),
                        CheckBox(L"Checkbox_IE_Advanced_Connection_Count",
                                 L"Allow &ten connections to a server at the same time")),
                  Group(L"GroupBox_IE_Advanced_Warning", L"Warnings",
                        CheckBox(L"Checkbox_IE_Advanced_Warning_Certificate",
                                 L"Warn about mismatched &certificates"),
                        CheckBox(L"Checkbox_IE_Advanced_Warning_Zone",
                                 L"Warn when changing between secure and &not secure mode"),
                        CheckBox(L"Checkbox_IE_Advanced_Warning_Redirect",
                                 L"&Warn when a form is sent on to another site"),
                        CheckBox(L"Checkbox_IE_Advanced_Warning_Script",
                                 L"&Show a message for every script error"),
                        CheckBox(L"Checkbox_IE_Advanced_Warning_Friendly",
                                 L"Show &friendly HTTP error messages"),
                        CheckBox(L"Checkbox_IE_Advanced_Warning_Download",
                                 L"Notify me when down&loads are complete"),
                        CheckBox(L"Checkbox_IE_Advanced_Warning_Browser",
                                 L"Tell me when Internet E&xplorer is not the default browser"),
                        CheckBox(L"Checkbox_IE_Advanced_Warning_Update",
                                 L"A&utomatically check for Internet Explorer updates")),
                  Buttons(Button(L"Button_IE_Advanced_Default", L"&Default")))));
}

/// An option that Internet Explorer keeps as 1 or 0.
constexpr TCheckBoxRow OneOrZero(const wchar_t* control, const wchar_t* key, const wchar_t* valueName,
                                 TBoxState missing) {
    return {.Control = control,
            .Value = {kCurrentUser, key, valueName},
            .Shows = {.Missing = missing, .When = {{0, kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Dword(1), .Clear = Dword(0)}};
}

// Special because it is no setting: it is done at once, once the user has agreed.
constexpr const wchar_t* kClearButton[] = {L"Button_IE_Common_History_Clear"};
constexpr TPlace kTypedUrlsPlace[] = {{kCurrentUser, kTypedUrls, L""}};

void ClearHistory(TPageContext& context, const TSpecialRow& row, TComponent& /*sender*/) {
    const TMessageAnswer answer =
        context.System.Dialogs.Message(context.Form, context.Captions[TCaption::ClearIEHistory],
                                       TMessageButtons::YesNo, TMessageIcon::Question);
    if (answer != TMessageAnswer::Yes) return;
    context.System.Shell.ClearBrowsingHistory();
    static_cast<void>(context.System.Registry.DeleteKey(row.Places[0].Root, row.Places[0].Key));
}

constexpr TRow kCommonRows[] = {
    TTextRow{.Control = L"Edit_IE_Common_Homepage_Address",
             .Value = {kCurrentUser, kInternetExplorerMain, L"Start Page"}},
    TNumberRow{.Control = L"Updown_IE_Common_History_KeepDays",
               .Value = {kCurrentUser, kUrlHistory, L"DaysToKeep"}},
    TSpecialRow{.Controls = kClearButton, .Places = kTypedUrlsPlace, .Load = nullptr, .Record = ClearHistory},
    YesOrNo(L"Checkbox_IE_Common_Media_Open", kInternetExplorerMain, L"Display Inline Images", kChecked),
    YesOrNo(L"Checkbox_IE_Common_Media_Resize", kInternetExplorerMain, L"Enable AutoImageResize", kChecked),
    YesOrNo(L"Checkbox_IE_Common_Media_Animation", kInternetExplorerMain, L"Play_Animations", kChecked),
    YesOrNo(L"Checkbox_IE_Common_Media_Sound", kInternetExplorerMain, L"Play_Background_Sounds", kChecked),
    // Versions of Internet Explorer keep it as a text or as a number; what is there keeps its type.
    TCheckBoxRow{.Control = L"Checkbox_IE_Common_Popup_Block",
                 .Value = {kCurrentUser, kNewWindows, L"PopupMgr"},
                 .Shows = {.Missing = kChecked, .When = {{kNo, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = YesNoAsStored(true), .Clear = YesNoAsStored(false)}},
};

constexpr TDatum kThreeWays[] = {Dword(0), Dword(1), Dword(2)};
constexpr const wchar_t* kTabControls[] = {L"Checkbox_IE_Tab_WarnOnClose",
                                           L"Checkbox_IE_Tab_Foreground",
                                           L"Label_IE_Tab_New",
                                           L"CB_IE_Tab_New",
                                           L"Label_IE_Tab_Popup",
                                           L"CB_IE_Tab_Popup",
                                           L"Label_IE_Tab_Link",
                                           L"CB_IE_Tab_Link"};

constexpr TRow kTabRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_IE_Tab_Active",
                 .Value = {kCurrentUser, kTabbedBrowsing, L"Enabled"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Enables = kTabControls},
    OneOrZero(L"Checkbox_IE_Tab_WarnOnClose", kTabbedBrowsing, L"WarnOnClose", kChecked),
    OneOrZero(L"Checkbox_IE_Tab_Foreground", kTabbedBrowsing, L"OpenInForeground", kClear),
    // Internet Explorer 7 always shows a page of its own.
    TChoiceRow{.Control = L"CB_IE_Tab_New",
               .Value = {kCurrentUser, kTabbedBrowsing, L"NewTabPageShow"},
               .Items = kThreeWays,
               .Missing = 2},
    TChoiceRow{.Control = L"CB_IE_Tab_Popup",
               .Value = {kCurrentUser, kTabbedBrowsing, L"PopupsUseNewWindow"},
               .Items = kThreeWays,
               .Missing = 0},
    TChoiceRow{.Control = L"CB_IE_Tab_Link",
               .Value = {kCurrentUser, kTabbedBrowsing, L"ShortcutBehavior"},
               .Items = kThreeWays,
               .Missing = 1},
};

constexpr const wchar_t* kAskControls[] = {L"Checkbox_IE_AutoComplete_Form_Ask"};

constexpr TRow kAutoCompleteRows[] = {
    YesOrNo(L"Checkbox_IE_AutoComplete_Address_Suggest", kExplorerAutoComplete, L"AutoSuggest", kChecked),
    YesOrNo(L"Checkbox_IE_AutoComplete_Address_Append", kExplorerAutoComplete, L"Append Completion", kClear),
    YesOrNo(L"Checkbox_IE_AutoComplete_Form_Suggest", kInternetExplorerMain, L"Use FormSuggest", kClear),
    TCheckBoxRow{.Control = L"Checkbox_IE_AutoComplete_Form_Password",
                 .Value = {kCurrentUser, kInternetExplorerMain, L"FormSuggest Passwords"},
                 .Shows = {.Missing = kChecked, .When = {{AnyCase(L"yes"), kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Text(L"yes"), .Clear = Text(L"no")},
                 .Enables = kAskControls},
    YesOrNo(L"Checkbox_IE_AutoComplete_Form_Ask", kInternetExplorerMain, L"FormSuggest PW Ask", kChecked),
};
constexpr TBoxFurther kOldServers[] = {{L"1",
                                        {kCurrentUser, kInternetSettings, L"MaxConnectionsPer1_0Server"},
                                        {.Checked = Dword(10), .Clear = kDeleteValue}}};
constexpr TBoxFurther kOldServersOfItsOwn[] = {{L"1",
                                                {kCurrentUser, kMaxConnections10, L"iexplore.exe"},
                                                {.Checked = Dword(10), .Clear = kDeleteValue}}};

constexpr TRow kAdvancedRows[] = {
    OneOrZero(L"Checkbox_IE_Advanced_Connection_Http11", kInternetSettings, L"EnableHttp1_1", kChecked),
    OneOrZero(L"Checkbox_IE_Advanced_Connection_Proxy11", kInternetSettings, L"ProxyHttp1.1", kClear),
    // One number for servers that speak HTTP 1.1, another for those that speak 1.0.
    TCheckBoxRow{.Control = L"Checkbox_IE_Advanced_Connection_Count",
                 .Value = {kCurrentUser, kInternetSettings, L"MaxConnectionsPerServer"},
                 .Shows = {.Missing = kClear, .When = {{10, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(10), .Clear = kDeleteValue},
                 .Further = kOldServers,
                 .Levels = kUntilWindows7},
    // Since Internet Explorer 8 they are its own (KB 282402).
    TCheckBoxRow{.Control = L"Checkbox_IE_Advanced_Connection_Count",
                 .Value = {kCurrentUser, kMaxConnections, L"iexplore.exe"},
                 .Shows = {.Missing = kClear, .When = {{10, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(10), .Clear = kDeleteValue},
                 .Further = kOldServersOfItsOwn,
                 .Levels = kSinceWindows8},
    OneOrZero(L"Checkbox_IE_Advanced_Warning_Certificate", kInternetSettings, L"WarnonBadCertRecving",
              kChecked),
    OneOrZero(L"Checkbox_IE_Advanced_Warning_Zone", kInternetSettings, L"WarnonZoneCrossing", kClear),
    OneOrZero(L"Checkbox_IE_Advanced_Warning_Redirect", kInternetSettings, L"WarnOnPostRedirect", kChecked),
    YesOrNo(L"Checkbox_IE_Advanced_Warning_Script", kInternetExplorerMain,
            L"Error Dlg Displayed On Every Error", kClear),
    YesOrNo(L"Checkbox_IE_Advanced_Warning_Friendly", kInternetExplorerMain, L"Friendly http errors",
            kChecked),
    YesOrNo(L"Checkbox_IE_Advanced_Warning_Download", kInternetExplorerMain, L"NotifyDownloadComplete",
            kChecked),
    YesOrNo(L"Checkbox_IE_Advanced_Warning_Browser", kInternetExplorerMain, L"Check_Associations", kChecked),
    TCheckBoxRow{.Control = L"Checkbox_IE_Advanced_Warning_Update",
                 .Value = {kCurrentUser, kInternetExplorerMain, L"NoUpdateCheck"},
                 .Shows = {.Missing = kChecked, .When = {{1, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Levels = kUntilWindows7},
};

constexpr TLoader kLoaders[] = {kCommonRows, kTabRows, kAutoCompleteRows, kAdvancedRows};

constexpr TPresetState kCommonDefault[] = {
    {L"Updown_IE_Common_History_KeepDays", 20}, {L"Checkbox_IE_Common_Media_Open", 1},
    {L"Checkbox_IE_Common_Media_Resize", 1},    {L"Checkbox_IE_Common_Media_Animation", 1},
    {L"Checkbox_IE_Common_Media_Sound", 1},     {L"Checkbox_IE_Common_Popup_Block", 1, kSinceXp},
};
constexpr TPresetState kTabDefault[] = {
    {L"Checkbox_IE_Tab_Active", 1, kSinceXp},
    {L"Checkbox_IE_Tab_WarnOnClose", 1, kSinceXp},
    {L"Checkbox_IE_Tab_Foreground", 0, kSinceXp},
    {L"CB_IE_Tab_New", 2, kSinceXp},
    {L"CB_IE_Tab_Popup", 0, kSinceXp},
    {L"CB_IE_Tab_Link", 1, kSinceXp},
};
constexpr TPresetState kAutoCompleteDefault[] = {
    {L"Checkbox_IE_AutoComplete_Address_Suggest", 1}, {L"Checkbox_IE_AutoComplete_Address_Append", 0},
    {L"Checkbox_IE_AutoComplete_Form_Suggest", 0},    {L"Checkbox_IE_AutoComplete_Form_Password", 1},
    {L"Checkbox_IE_AutoComplete_Form_Ask", 1},
};
constexpr TPresetState kAdvancedDefault[] = {
    {L"Checkbox_IE_Advanced_Connection_Http11", 1}, {L"Checkbox_IE_Advanced_Connection_Proxy11", 0},
    {L"Checkbox_IE_Advanced_Connection_Count", 0},  {L"Checkbox_IE_Advanced_Warning_Certificate", 1},
    {L"Checkbox_IE_Advanced_Warning_Zone", 0},      {L"Checkbox_IE_Advanced_Warning_Redirect", 1},
    {L"Checkbox_IE_Advanced_Warning_Script", 0},    {L"Checkbox_IE_Advanced_Warning_Friendly", 1},
    {L"Checkbox_IE_Advanced_Warning_Download", 1},  {L"Checkbox_IE_Advanced_Warning_Browser", 1},
    {L"Checkbox_IE_Advanced_Warning_Update", 1},
};
constexpr TPreset kPresets[] = {
    {L"Button_IE_Common_Default", kCommonDefault},
    {L"Button_IE_Tab_Default", kTabDefault},
    {L"Button_IE_AutoComplete_Default", kAutoCompleteDefault},
    {L"Button_IE_Advanced_Default", kAdvancedDefault},
};

// Tabs came with Internet Explorer 7, which needs Windows XP, and the pop-up blocker with XP's second service pack.
constexpr TOffer kOffers[] = {
    {L"TabSheet_IE_Tab", kSinceXp},
    {L"Checkbox_IE_Common_Popup_Block", kSinceXp},
};

constexpr TPageDefinition kPage{
    .Tag = 8, .Design = Design, .Loaders = kLoaders, .Presets = kPresets, .Offers = kOffers};

}  // namespace

const TPageDefinition& InternetExplorerPage() { return kPage; }
