// What people change in the versions of Firefox that run on Windows 8 to 11: sheets, rows and presets.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

[[nodiscard]] TControlDesign FirefoxCurrentSheet();
[[nodiscard]] TControlDesign FirefoxCurrentWindowSheet();

// These versions take lower-case spellings alone; what is neither true nor false counts as missing.

/// A preference that is true where it is missing.
[[nodiscard]] constexpr TCheckBoxRow TrueByDefault(const wchar_t* control, const wchar_t* quotedName) {
    return {.Control = control,
            .Value = Pref(quotedName),
            .Shows = {.Missing = kChecked, .When = {{L"false", kClear}}, .Otherwise = kChecked},
            .Records = {.Checked = Text(L"true"), .Clear = Text(L"false")},
            .Levels = kSinceWindows8};
}

/// One that is false there.
[[nodiscard]] constexpr TCheckBoxRow FalseByDefault(const wchar_t* control, const wchar_t* quotedName) {
    return {.Control = control,
            .Value = Pref(quotedName),
            .Shows = {.Missing = kClear, .When = {{L"true", kChecked}}, .Otherwise = kClear},
            .Records = {.Checked = Text(L"true"), .Clear = Text(L"false")},
            .Levels = kSinceWindows8};
}

/// Studies are for those who send data.
[[nodiscard]] constexpr TCheckBoxRow FirefoxDataRow(const wchar_t* control, TControlNames studies) {
    TCheckBoxRow row = TrueByDefault(control, L"\"datareporting.healthreport.uploadEnabled\"");
    row.Enables = studies;
    return row;
}

/// A blank page, the home page, what was open before. 2, the page that was visited last, is no longer offered.
inline constexpr TDatum kFirefoxStarts[] = {Text(L"0"), Text(L"1"), Text(L"3")};
inline constexpr int kFirefoxHomePage = 1;
/// As Firefox decides, first, only, off: modes of the trusted recursive resolver.
inline constexpr TDatum kFirefoxResolvers[] = {Text(L"0"), Text(L"2"), Text(L"3"), Text(L"5")};
inline constexpr const wchar_t* kFirefoxStudies[] = {L"Checkbox_Firefox_Current_Studies"};

inline constexpr TRow kFirefoxCurrentRows[] = {
    TChoiceRow{.Control = L"CB_Firefox_Current_Start",
               .Value = Pref(L"\"browser.startup.page\""),
               .Items = kFirefoxStarts,
               .Missing = kFirefoxHomePage,
               .Levels = kSinceWindows8},
    TrueByDefault(L"Checkbox_Firefox_Current_Shortcuts",
                  L"\"browser.newtabpage.activity-stream.showSponsoredTopSites\""),
    TrueByDefault(L"Checkbox_Firefox_Current_SponsoredStories",
                  L"\"browser.newtabpage.activity-stream.showSponsored\""),
    TrueByDefault(L"Checkbox_Firefox_Current_Stories",
                  L"\"browser.newtabpage.activity-stream.feeds.section.topstories\""),
    FirefoxDataRow(L"Checkbox_Firefox_Current_Data", kFirefoxStudies),
    TrueByDefault(kFirefoxStudies[0], L"\"app.shield.optoutstudies.enabled\""),
    FalseByDefault(L"Checkbox_Firefox_Current_HttpsOnly", L"\"dom.security.https_only_mode\""),
    TChoiceRow{.Control = L"CB_Firefox_Current_Resolver",
               .Value = Pref(L"\"network.trr.mode\""),
               .Items = kFirefoxResolvers,
               .Missing = 0,
               .Levels = kSinceWindows8},
    FalseByDefault(L"Checkbox_Firefox_Current_PrivacyControl", L"\"privacy.globalprivacycontrol.enabled\""),
    // Firefox derives its level of protection from this and its like, and at every start puts one that does not fit right.
    FalseByDefault(L"Checkbox_Firefox_Current_Trackers", L"\"privacy.trackingprotection.enabled\""),
};

inline constexpr TRow kFirefoxCurrentWindowRows[] = {
    FalseByDefault(L"Checkbox_Firefox_CurrentWindow_Beside", L"\"browser.tabs.insertAfterCurrent\""),
    TCheckBoxRow{.Control = L"Checkbox_Firefox_CurrentWindow_Switch",
                 .Value = Pref(L"\"browser.tabs.loadInBackground\""),
                 .Shows = {.Missing = kClear, .When = {{L"false", kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Text(L"false"), .Clear = Text(L"true")},
                 .Levels = kSinceWindows8},
    TrueByDefault(L"Checkbox_Firefox_CurrentWindow_CloseWindow", L"\"browser.tabs.closeWindowWithLastTab\""),
    FalseByDefault(L"Checkbox_Firefox_CurrentWindow_Confirm", L"\"browser.tabs.warnOnClose\""),
    FalseByDefault(L"Checkbox_Firefox_CurrentWindow_Recent", L"\"browser.ctrlTab.sortByRecentlyUsed\""),
    TrueByDefault(L"Checkbox_Firefox_CurrentWindow_SearchSuggestions",
                  L"\"browser.urlbar.suggest.searches\""),
    FalseByDefault(L"Checkbox_Firefox_CurrentWindow_Sponsors",
                   L"\"browser.urlbar.suggest.quicksuggest.sponsored\""),
    // 0 is normal, 1 compact, 2 for touch screens.
    TCheckBoxRow{.Control = L"Checkbox_Firefox_CurrentWindow_Compact",
                 .Value = Pref(L"\"browser.uidensity\""),
                 .Shows = {.Missing = kClear, .When = {{L"1", kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Text(L"1"), .Clear = Text(L"0")},
                 .Levels = kSinceWindows8},
    TrueByDefault(L"Checkbox_Firefox_CurrentWindow_Chatbot", L"\"browser.ml.chat.enabled\""),
    FalseByDefault(L"Checkbox_Firefox_CurrentWindow_StyleSheets",
                   L"\"toolkit.legacyUserProfileCustomizations.stylesheets\""),
};

inline constexpr TPresetState kFirefoxCurrentDefault[] = {
    {L"CB_Firefox_Current_Start", kFirefoxHomePage},
    {L"Checkbox_Firefox_Current_Shortcuts", 1},
    {L"Checkbox_Firefox_Current_SponsoredStories", 1},
    {L"Checkbox_Firefox_Current_Stories", 1},
    {L"Checkbox_Firefox_Current_Data", 1},
    {L"Checkbox_Firefox_Current_Studies", 1},
    {L"Checkbox_Firefox_Current_HttpsOnly", 0},
    {L"CB_Firefox_Current_Resolver", 0},
    {L"Checkbox_Firefox_Current_PrivacyControl", 0},
    {L"Checkbox_Firefox_Current_Trackers", 0},
};
inline constexpr TPresetState kFirefoxCurrentWindowDefault[] = {
    {L"Checkbox_Firefox_CurrentWindow_Beside", 0},
    {L"Checkbox_Firefox_CurrentWindow_Switch", 0},
    {L"Checkbox_Firefox_CurrentWindow_CloseWindow", 1},
    {L"Checkbox_Firefox_CurrentWindow_Confirm", 0},
    {L"Checkbox_Firefox_CurrentWindow_Recent", 0},
    {L"Checkbox_Firefox_CurrentWindow_SearchSuggestions", 1},
    {L"Checkbox_Firefox_CurrentWindow_Sponsors", 0},
    {L"Checkbox_Firefox_CurrentWindow_Compact", 0},
    {L"Checkbox_Firefox_CurrentWindow_Chatbot", 1},
    {L"Checkbox_Firefox_CurrentWindow_StyleSheets", 0},
};
