#include "settings/net/firefox_page.h"

#include "base/decimal.h"
#include "engine/reg_value.h"
#include "settings/page_context.h"
#include "settings/shared_rows.h"
#include "settings/store.h"
#include "ui/containers.h"
#include "ui/controls.h"

namespace {

constexpr const wchar_t* kTabs = L"PagFirefox";
constexpr const wchar_t* kNoFirefoxSheet = L"TabSheet_Firefox_NoFirefox";

TControlDesign CommonSheet() {
    return Sheet(
        L"TabSheet_Firefox_Common", L"General",
        Group(L"GroupBox_Firefox_Common_DynamicText", L"Web pages",
              CheckBox(L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing", L"Do not let text &blink")),
        Group(L"GroupBox_Firefox_Common_ErrorMessage", L"Show error messages in",
              RadioButton(L"Radio_Firefox_Common_ErrorMessage_Windows", L"A &message box"),
              RadioButton(L"Radio_Firefox_Common_ErrorMessage_WebPage", L"The web &page")),
        Group(L"GroupBox_Firefox_Common_Homepage", L"Home page",
              Row(Label(L"Label_Firefox_Common_Homepage_Address", L"Add&ress:"),
                  Edit(L"Edit_Firefox_Common_Homepage_Address"))),
        Buttons(Button(L"Button_Firefox_Common_Default", L"&Default")));
}

TControlDesign UseSheet() {
    return Sheet(
        L"TabSheet_Firefox_Use", L"Usage",
        Group(L"GroupBox_Firefox_Use_AddressBar", L"Address bar",
              CheckBox(L"Checkbox_Firefox_Use_AddressBar_AutoFill", L"&Complete addresses while I type"),
              CheckBox(L"Checkbox_Firefox_Use_AddressBar_ShowLoadAddressButton", L"Show the &Go button")),
        Group(L"GroupBox_Firefox_Use_MenuSpeed", L"Open submenus",
              RadioButton(L"Radio_Firefox_Use_MenuSpeed_UseWinSet", L"As &Windows does").Checked(),
              RadioButton(L"Radio_Firefox_Use_MenuSpeed_Click", L"When I c&lick them"),
              Row(RadioButton(L"Radio_Firefox_Use_MenuSpeed_Delay", L"When I &point to them, after"),
                  Label(L"Label_Firefox_Use_MenuSpeed_Delay", L"217 ms")),
              Indent(TrackBar(L"TrackBar_Firefox_Use_MenuSpeed_Delay", 0, 1200, 217))),
        Buttons(Button(L"Button_Firefox_Use_Default", L"&Default")));
}

TControlDesign PopupSheet() {
    return Sheet(L"TabSheet_Firefox_Popup", L"Popup Window",
                 Group(L"GroupBox_Firefox_Popup_Open", L"Links that open a new window",
                       CheckBox(L"Checkbox_Firefox_Popup_Open_Type", L"&Open them in a tab instead"),
                       Indent(RadioButton(L"Radio_Firefox_Popup_Open_SameTab", L"In the &current tab"),
                              RadioButton(L"Radio_Firefox_Popup_Open_NewTab", L"In a &new tab").Checked())),
                 Group(L"GroupBox_Firefox_Popup_JavaScript", L"Scripts may open windows",
                       CheckBox(L"Checkbox_Firefox_Popup_JavaScript_Size", L"That cannot be &resized"),
                       CheckBox(L"Checkbox_Firefox_Popup_JavaScript_Min", L"Without a &Minimize button"),
                       CheckBox(L"Checkbox_Firefox_Popup_JavaScript_HideMenu", L"Without a men&u bar"),
                       CheckBox(L"Checkbox_Firefox_Popup_JavaScript_HideTask", L"Without an address &bar"),
                       CheckBox(L"Checkbox_Firefox_Popup_JavaScript_HideSroll", L"Without &scroll bars")),
                 Buttons(Button(L"Button_Firefox_Popup_Default", L"&Default")));
}

TControlDesign TabsSheet() {
    return Sheet(
        L"TabSheet_Firefox_Label", L"Tabs",
        Group(L"GroupBox_Firefox_Tab_CloseButton", L"Tab bar",
              Fields(Row(Label(L"Label_Firefox_Tab_CloseButton_Pos", L"&Close button:"),
                         ComboBox(L"CB_Firefox_Tab_CloseButton_Pos",
                                  {L"Only on the current tab", L"On all tabs",
                                   L"Do not show \"Close\" button", L"On the right end of the tab menu"})),
                     Row(Label(L"Label_Firefox_Tab_MinWidth_Min", L"&Least width of a tab:"),
                         Edit(L"Edit_Firefox_Tab_MinWidth_Min", L"125").Width(4).Sender(),
                         UpDown(L"Updown_Firefox_Tab_MinWidth_Min", L"Edit_Firefox_Tab_MinWidth_Min", 36, 500,
                                125),
                         Label(L"Label_Firefox_Tab_MinWidth_Unit", L"pixels")))));
}

TControlDesign Design() {
    return NotebookPage(9, PageControl(kTabs, CommonSheet(), UseSheet(), PopupSheet(), TabsSheet(),
                                       Sheet(kNoFirefoxSheet, L"No fireFox",
                                             Label(L"Label_Firefox_NoFirefox_Info",
                                                   L"Mozilla Firefox is not installed on this computer"),
                                             Label(L"Label_Firefox_NoFirefox_Link",
                                                   L"It is available from www.mozilla.org/firefox"))));
}

// Written in these spellings, read in any case.
constexpr const wchar_t* kTrue = L"True";
constexpr const wchar_t* kFalse = L"false";

constexpr TBoxRecord kTrueWhenChecked{.Checked = Text(kTrue), .Clear = Text(kFalse)};
constexpr TBoxRecord kFalseWhenChecked{.Checked = Text(kFalse), .Clear = Text(kTrue)};

// A missing preference shows as Firefox's own default for it.
constexpr TBoxRule kCheckedOnlyWhenTrue{
    .Missing = kClear, .When = {{AnyCase(kTrue), kChecked}}, .Otherwise = kClear};
constexpr TBoxRule kCheckedOnlyWhenFalse{
    .Missing = kClear, .When = {{AnyCase(kFalse), kChecked}}, .Otherwise = kClear};
constexpr TBoxRule kCheckedUnlessTrue{
    .Missing = kChecked, .When = {{AnyCase(kTrue), kClear}}, .Otherwise = kChecked};

constexpr TRow kCommonRows[] = {
    TCheckBoxRow{.Control = L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing",
                 .Value = Pref(L"\"browser.blink_allowed\""),
                 .Shows = kCheckedOnlyWhenFalse,
                 .Records = kFalseWhenChecked},
    TRadioPairRow{.First = L"Radio_Firefox_Common_ErrorMessage_WebPage",
                  .Second = L"Radio_Firefox_Common_ErrorMessage_Windows",
                  .ChangeName = L"",
                  .Value = Pref(L"\"browser.xul.error_pages.enabled\""),
                  .Missing = TPairState::Second,
                  .FirstWhen = AnyCase(kTrue),
                  .FirstRecords = Text(kTrue),
                  .SecondRecords = Text(kFalse)},
    FirefoxHomePageRow(L"Edit_Firefox_Common_Homepage_Address"),
};

// The delay is read from one preference and written to another, which the Go button has too. A delay of 65000
// stands for a click.
constexpr TPlace kGoButtonPref = Pref(L"\"browser.urlbar.hideGoButton\"");
constexpr const wchar_t* kOnClick = L"65000";

constexpr const wchar_t* kSpeedAsWindows = L"Radio_Firefox_Use_MenuSpeed_UseWinSet";
constexpr const wchar_t* kSpeedClick = L"Radio_Firefox_Use_MenuSpeed_Click";
constexpr const wchar_t* kSpeedDelay = L"Radio_Firefox_Use_MenuSpeed_Delay";
constexpr const wchar_t* kDelayBar = L"TrackBar_Firefox_Use_MenuSpeed_Delay";
constexpr const wchar_t* kMenuSpeedControls[] = {kSpeedAsWindows, kSpeedClick, kSpeedDelay, kDelayBar};

TRadioButton& Radio(const TPageContext& context, const wchar_t* name) {
    return *context.Form.Find<TRadioButton>(name);
}

void ShowDelay(const TPageContext& context, int milliseconds) {
    context.Form.Find(L"Label_Firefox_Use_MenuSpeed_Delay")->SetCaption(DecimalText(milliseconds) + L" ms");
}

// Special because three radio buttons and a track bar make one value.
void LoadMenuSpeed(TPageContext& context, const TSpecialRow& /*row*/) {
    auto& bar = *context.Form.Find<TTrackBar>(kDelayBar);
    const auto value = Stored(context, Pref(L"\"ui.submenuDelay\""));
    const bool isClick = value && TMatch(kOnClick)(*value);
    const bool isDelay = value && !isClick;
    Radio(context, isClick ? kSpeedClick : isDelay ? kSpeedDelay : kSpeedAsWindows).SetChecked(true);
    if (isDelay) bar.SetPosition(AsInteger(*value).value_or(bar.Position()));
    ShowDelay(context, bar.Position());
}

void RecordMenuSpeed(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    auto& bar = *context.Form.Find<TTrackBar>(kDelayBar);
    const bool isDelay = Radio(context, kSpeedDelay).Checked();
    if (isDelay)
        RecordNumber(context, sender.Name(), kGoButtonPref, bar.Position());
    else
        RecordText(context, sender.Name(), kGoButtonPref,
                   Radio(context, kSpeedClick).Checked() ? kOnClick : L"");
    ShowDelay(context, bar.Position());
}

constexpr TPlace kMenuSpeedPlaces[] = {kGoButtonPref};

constexpr TRow kUseRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Firefox_Use_AddressBar_AutoFill",
                 .Value = Pref(L"\"browser.urlbar.autoFill\""),
                 .Shows = kCheckedOnlyWhenTrue,
                 .Records = kTrueWhenChecked},
    TCheckBoxRow{.Control = L"Checkbox_Firefox_Use_AddressBar_ShowLoadAddressButton",
                 .Value = kGoButtonPref,
                 .Shows = kCheckedUnlessTrue,
                 .Records = kFalseWhenChecked},
    TSpecialRow{.Controls = kMenuSpeedControls,
                .Places = kMenuSpeedPlaces,
                .Load = LoadMenuSpeed,
                .Record = RecordMenuSpeed},
};

// 1 is the current tab, 2 a new window, 3 a new tab, as Firefox documents them for this preference.
constexpr TDatum kOpenTabs[] = {Text(L"1"), Text(L"3")};
constexpr int kNewTab = 1;
constexpr const wchar_t* kTabRadios[] = {L"Radio_Firefox_Popup_Open_SameTab",
                                         L"Radio_Firefox_Popup_Open_NewTab"};

// Each of these preferences keeps scripts from taking something away from the windows that they open.
constexpr TRow kPopupRows[] = {
    TSwitchRow{.On = L"Checkbox_Firefox_Popup_Open_Type",
               .Amount = kTabRadios,
               .Value = Pref(L"\"browser.link.open_newwindow\""),
               .OffWhen = L"2",
               .OffRecords = Text(L"2"),
               .Missing = kChecked,
               .Items = kOpenTabs,
               .OtherItem = kNewTab,
               .Enables = kTabRadios},
    TCheckBoxRow{.Control = L"Checkbox_Firefox_Popup_JavaScript_Size",
                 .Value = Pref(L"\"dom.disable_window_open_feature.resizable\""),
                 .Shows = kCheckedOnlyWhenFalse,
                 .Records = kFalseWhenChecked},
    TCheckBoxRow{.Control = L"Checkbox_Firefox_Popup_JavaScript_Min",
                 .Value = Pref(L"\"dom.disable_window_open_feature.minimizable\""),
                 .Shows = kCheckedUnlessTrue,
                 .Records = kFalseWhenChecked},
    TCheckBoxRow{.Control = L"Checkbox_Firefox_Popup_JavaScript_HideMenu",
                 .Value = Pref(L"\"dom.disable_window_open_feature.menubar\""),
                 .Shows = kCheckedUnlessTrue,
                 .Records = kFalseWhenChecked},
    TCheckBoxRow{.Control = L"Checkbox_Firefox_Popup_JavaScript_HideTask",
                 .Value = Pref(L"\"dom.disable_window_open_feature.location\""),
                 .Shows = kCheckedOnlyWhenFalse,
                 .Records = kFalseWhenChecked},
    TCheckBoxRow{.Control = L"Checkbox_Firefox_Popup_JavaScript_HideSroll",
                 .Value = Pref(L"\"dom.disable_window_open_feature.scrollbars\""),
                 .Shows = kCheckedUnlessTrue,
                 .Records = kFalseWhenChecked},
};

constexpr int kOnAllTabs = 1;
constexpr int kDefaultTabWidth = 125;

// Of both the preference that is missing means Firefox's own default.
constexpr TRow kTabsRows[] = {
    TNumberRow{.Control = L"CB_Firefox_Tab_CloseButton_Pos",
               .Value = Pref(L"\"browser.tabs.closeButtons\""),
               .Missing = kOnAllTabs,
               .NoNumberIsFault = true},
    TNumberRow{.Control = L"Updown_Firefox_Tab_MinWidth_Min",
               .Value = Pref(L"\"browser.tabs.tabMinWidth\""),
               .Missing = kDefaultTabWidth,
               .Edit = L"Edit_Firefox_Tab_MinWidth_Min",
               .RemovedAt = kDefaultTabWidth},
};

constexpr const wchar_t* kDelayControls[] = {L"Label_Firefox_Use_MenuSpeed_Delay", kDelayBar};
constexpr TNeed kNeeds[] = {{.Controls = kDelayControls, .Of = kSpeedDelay}};

constexpr TLoader kLoaders[] = {kCommonRows, kUseRows, kPopupRows, kTabsRows};

constexpr TPresetState kCommonDefault[] = {
    {L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing", 0},
    {L"Radio_Firefox_Common_ErrorMessage_Windows", 1},
};
constexpr TPresetState kUseDefault[] = {
    {L"Checkbox_Firefox_Use_AddressBar_AutoFill", 0},
    {L"Checkbox_Firefox_Use_AddressBar_ShowLoadAddressButton", 1},
    {L"Radio_Firefox_Use_MenuSpeed_UseWinSet", 1},
};
constexpr TPresetState kPopupDefault[] = {
    {L"Checkbox_Firefox_Popup_Open_Type", 1},
    {L"Radio_Firefox_Popup_Open_NewTab", 1},
    {L"Checkbox_Firefox_Popup_JavaScript_Size", 0},
    {L"Checkbox_Firefox_Popup_JavaScript_Min", 0},
    {L"Checkbox_Firefox_Popup_JavaScript_HideMenu", 0},
    {L"Checkbox_Firefox_Popup_JavaScript_HideTask", 0},
    {L"Checkbox_Firefox_Popup_JavaScript_HideSroll", 0},
};
constexpr TPreset kPresets[] = {
    {L"Button_Firefox_Common_Default", kCommonDefault},
    {L"Button_Firefox_Use_Default", kUseDefault},
    {L"Button_Firefox_Popup_Default", kPopupDefault},
};

/// Offers the settings or, without a Firefox, the sheet that says so. Answers whether there are any to load.
bool Prepare(TPageContext& context) {
    const bool installed = context.Firefox.IsFirefoxInstalled();
    auto& tabs = *context.Form.Find<TPageControl>(kTabs);
    for (TControl* sheet : tabs.Children())
        tabs.SetTabVisible(static_cast<TTabSheet&>(*sheet), installed != (sheet->Name() == kNoFirefoxSheet));
    if (installed) context.Firefox.LoadFirefoxPrefs();
    return installed;
}

constexpr TPageDefinition kPage{.Tag = 9,
                                .Design = Design,
                                .Loaders = kLoaders,
                                .Presets = kPresets,
                                .Needs = kNeeds,
                                .LoadsEveryVisit = true,
                                .Prepare = Prepare};

}  // namespace

const TPageDefinition& FirefoxPage() { return kPage; }
