// What Windows 8 to 11 tell Microsoft, programs and the user: sheets, rows and presets.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

[[nodiscard]] TControlDesign PrivacyDataSheet();
[[nodiscard]] TControlDesign PrivacyProgramsSheet();
[[nodiscard]] TControlDesign PrivacySuggestionsSheet();

/// A switch that Windows' own Settings keep for the user.
[[nodiscard]] constexpr TCheckBoxRow UserSwitch(const wchar_t* control, const wchar_t* key,
                                                const wchar_t* valueName, TBoxState missing = kChecked) {
    return OnOffBox(control, {kCurrentUser, key, valueName}, missing);
}

inline constexpr TDatum kDiagnosticData[] = {kDeleteValue, Dword(0), Dword(1), Dword(3)};
inline constexpr TBoxFurther kLearning[] = {
    {L"1",
     {kCurrentUser, kInputPersonalization, L"RestrictImplicitInkCollection"},
     {.Checked = Dword(0), .Clear = Dword(1)}},
    {L"2", {kCurrentUser, kTrainedData, L"HarvestContacts"}, {.Checked = Dword(1), .Clear = Dword(0)}},
    {L"3",
     {kCurrentUser, kPersonalization, L"AcceptedPrivacyPolicy"},
     {.Checked = Dword(1), .Clear = Dword(0)}},
};
inline constexpr TBoxFurther kActivities[] = {{L"1",
                                               {kLocalMachine, kWindowsPolicies, L"PublishUserActivities"},
                                               {.Checked = kDeleteValue, .Clear = Dword(0)}}};
inline constexpr TBoxFurther kFeedback[] = {{L"1",
                                             {kCurrentUser, kFeedbackRules, L"PeriodInNanoSeconds"},
                                             {.Checked = kDeleteValue, .Clear = Dword(0)}}};

inline constexpr TBoxFurther kSynchronizing[] = {
    {L"1",
     {kLocalMachine, kSettingSync, L"DisableSettingSyncUserOverride"},
     {.Checked = kDeleteValue, .Clear = Dword(1)}}};

inline constexpr TRow kPrivacyDataRows[] = {
    On(kSinceWindows10, AllowedBox(L"Checkbox_Privacy_Data_AdvertisingId",
                                   {kLocalMachine, kAdvertisingPolicies, L"DisabledByGroupPolicy"}, 1)),
    On(SinceBuild(15063),
       AllowedBox(L"Checkbox_Privacy_Data_Tailored",
                  {kCurrentUser, kCloudContent, L"DisableTailoredExperiencesWithDiagnosticData"}, 1)),
    On(kSinceWindows10, AllowedBox(L"Checkbox_Privacy_Data_Languages",
                                   {kCurrentUser, kUserProfile, L"HttpAcceptLanguageOptOut"}, 1)),
    TChoiceRow{.Control = L"CB_Privacy_Data_Diagnostics",
               .Value = {kLocalMachine, kDataCollection, L"AllowTelemetry"},
               .Items = kDiagnosticData,
               .Missing = 0,
               .Restart = TRestart::Windows,
               .Levels = kSinceWindows10},
    TCheckBoxRow{.Control = L"Checkbox_Privacy_Data_Activities",
                 .Value = {kLocalMachine, kWindowsPolicies, L"EnableActivityFeed"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = kDeleteValue, .Clear = Dword(0)},
                 .Further = kActivities,
                 .Levels = SinceBuild(17134)},
    TCheckBoxRow{.Control = L"Checkbox_Privacy_Data_Feedback",
                 .Value = {kCurrentUser, kFeedbackRules, L"NumberOfSIUFInPeriod"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = kDeleteValue, .Clear = Dword(0)},
                 .Further = kFeedback,
                 .Levels = kSinceWindows10},
    On(SinceBuild(17763), UserSwitch(L"Checkbox_Privacy_Data_Speech", kOnlineSpeech, L"HasAccepted", kClear)),
    TCheckBoxRow{.Control = L"Checkbox_Privacy_Data_Learning",
                 .Value = {kCurrentUser, kInputPersonalization, L"RestrictImplicitTextCollection"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Further = kLearning,
                 .Levels = kSinceWindows10},
    On(SinceBuild(14393), WithRestart(AllowedBox(L"Checkbox_Privacy_Data_Devices",
                                                 {kLocalMachine, kWindowsPolicies, L"EnableCdp"}, 0))),
    // Not documented.
    On(kSinceWindows10, UserSwitch(L"Checkbox_Privacy_Data_Typing", kTypingData, L"Enabled")),
    // 2 forbids it, and the other value that users allow it for themselves.
    TCheckBoxRow{.Control = L"Checkbox_Privacy_Data_Synchronize",
                 .Value = {kLocalMachine, kSettingSync, L"DisableSettingSync"},
                 .Shows = {.Missing = kChecked, .When = {{2, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = kDeleteValue, .Clear = Dword(2)},
                 .Further = kSynchronizing,
                 .Levels = kSinceWindows8},
};

/// 0, or no policy, leaves it to the user, 1 always allows it, 2 never.
inline constexpr TDatum kAppAccess[] = {kDeleteValue, Dword(1), Dword(2)};

/// A policy of what programs from the Store may do.
[[nodiscard]] constexpr TChoiceRow AppAccess(const wchar_t* control, const wchar_t* policy,
                                             TLevels levels = kSinceWindows10) {
    return {.Control = control,
            .Value = {kLocalMachine, kAppPrivacy, policy},
            .Items = kAppAccess,
            .Missing = 0,
            .Levels = levels};
}

inline constexpr TRow kPrivacyProgramsRows[] = {
    On(kSinceWindows8, AllowedBox(L"Checkbox_Privacy_Programs_Location",
                                  {kLocalMachine, kLocationPolicies, L"DisableLocation"}, 1)),
    On(kSinceWindows10, WithRestart(AllowedBox(L"Checkbox_Privacy_Programs_Recording",
                                               {kLocalMachine, kRecordingPolicies, L"AllowGameDVR"}, 0))),
    // Not documented.
    On(kSinceWindows10,
       UserSwitch(L"Checkbox_Privacy_Programs_Install", kContentDelivery, L"SilentInstalledAppsEnabled")),
    AppAccess(L"CB_Privacy_Programs_Location", L"LetAppsAccessLocation"),
    AppAccess(L"CB_Privacy_Programs_Camera", L"LetAppsAccessCamera"),
    AppAccess(L"CB_Privacy_Programs_Microphone", L"LetAppsAccessMicrophone"),
    AppAccess(L"CB_Privacy_Programs_Account", L"LetAppsAccessAccountInfo"),
    AppAccess(L"CB_Privacy_Programs_Notifications", L"LetAppsAccessNotifications"),
    AppAccess(L"CB_Privacy_Programs_Background", L"LetAppsRunInBackground", SinceBuild(15063)),
};

inline constexpr TBoxFurther kSettingsSuggestions[] = {
    {L"1",
     {kCurrentUser, kContentDelivery, L"SubscribedContent-353694Enabled"},
     {.Checked = Dword(1), .Clear = Dword(0)}},
    {L"2",
     {kCurrentUser, kContentDelivery, L"SubscribedContent-353696Enabled"},
     {.Checked = Dword(1), .Clear = Dword(0)}},
};

[[nodiscard]] constexpr TCheckBoxRow SettingsSuggestionsRow(const wchar_t* control) {
    TCheckBoxRow row = UserSwitch(control, kContentDelivery, L"SubscribedContent-338393Enabled");
    row.Further = kSettingsSuggestions;
    return row;
}

inline constexpr TBoxFurther kLockScreenTips[] = {
    {L"1",
     {kCurrentUser, kContentDelivery, L"SubscribedContent-338387Enabled"},
     {.Checked = Dword(1), .Clear = Dword(0)}}};

inline constexpr TRow kPrivacySuggestionsRows[] = {
    On(SinceBuild(17134), SettingsSuggestionsRow(L"Checkbox_Privacy_Suggestions_Settings")),
    On(SinceBuild(14393), UserSwitch(L"Checkbox_Privacy_Suggestions_Tips", kContentDelivery,
                                     L"SubscribedContent-338389Enabled")),
    On(SinceBuild(15063),
       AllowedBox(L"Checkbox_Privacy_Suggestions_Welcome",
                  {kCurrentUser, kCloudContent, L"DisableWindowsSpotlightWindowsWelcomeExperience"}, 1)),
    On(SinceBuild(18362),
       UserSwitch(L"Checkbox_Privacy_Suggestions_Setup", kProfileEngagement, L"ScoobeSystemSettingEnabled")),
    On(SinceBuild(15063),
       AllowedBox(L"Checkbox_Privacy_Suggestions_Center",
                  {kCurrentUser, kCloudContent, L"DisableWindowsSpotlightOnActionCenter"}, 1)),
    // Not documented.
    TCheckBoxRow{.Control = L"Checkbox_Privacy_Suggestions_LockScreen",
                 .Value = {kCurrentUser, kContentDelivery, L"RotatingLockScreenOverlayEnabled"},
                 .Shows = {.Missing = kChecked, .When = {{0, kClear}}, .Otherwise = kChecked},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)},
                 .Further = kLockScreenTips,
                 .Levels = kSinceWindows10},
    On(SinceBuild(14393),
       WithRestart(AllowedBox(L"Checkbox_Privacy_Suggestions_Spotlight",
                              {kCurrentUser, kCloudContent, L"DisableWindowsSpotlightFeatures"}, 1))),
    On(kSinceWindows11,
       WithRestart(AllowedBox(L"Checkbox_Privacy_Suggestions_Pictures",
                              {kCurrentUser, kCloudContent, L"DisableSpotlightCollectionOnDesktop"}, 1))),
    On(SinceBuild(16299), AllowedBox(L"Checkbox_Privacy_Search_Cloud",
                                     {kLocalMachine, kSearchPolicies, L"AllowCloudSearch"}, 0)),
    On(kSinceWindows10, AllowedBox(L"Checkbox_Privacy_Search_Location",
                                   {kLocalMachine, kSearchPolicies, L"AllowSearchToUseLocation"}, 0)),
    On(kOnlyWindows10, WithRestart(AllowedBox(L"Checkbox_Privacy_Search_Cortana",
                                              {kLocalMachine, kSearchPolicies, L"AllowCortana"}, 0))),
    On((SinceBuild(19044) & kUntilWindows10) | (SinceBuild(22621) & UntilBuild(26099)),
       WithRestart(AllowedBox(L"Checkbox_Privacy_Search_Copilot",
                              {kCurrentUser, kCopilotPolicies, L"TurnOffWindowsCopilot"}, 1))),
    On(SinceBuild(26100), WithRestart(AllowedBox(L"Checkbox_Privacy_Search_Recall",
                                                 {kCurrentUser, kAiPolicies, L"DisableAIDataAnalysis"}, 1))),
};

inline constexpr TPresetState kPrivacyDataDefault[] = {
    {L"Checkbox_Privacy_Data_AdvertisingId", 1}, {L"Checkbox_Privacy_Data_Tailored", 1},
    {L"Checkbox_Privacy_Data_Languages", 1},     {L"CB_Privacy_Data_Diagnostics", 0},
    {L"Checkbox_Privacy_Data_Activities", 1},    {L"Checkbox_Privacy_Data_Feedback", 1},
    {L"Checkbox_Privacy_Data_Speech", 0},        {L"Checkbox_Privacy_Data_Learning", 1},
    {L"Checkbox_Privacy_Data_Typing", 1},        {L"Checkbox_Privacy_Data_Devices", 1},
    {L"Checkbox_Privacy_Data_Synchronize", 1},
};
inline constexpr TPresetState kPrivacyProgramsDefault[] = {
    {L"Checkbox_Privacy_Programs_Location", 1}, {L"Checkbox_Privacy_Programs_Recording", 1},
    {L"Checkbox_Privacy_Programs_Install", 1},  {L"CB_Privacy_Programs_Location", 0},
    {L"CB_Privacy_Programs_Camera", 0},         {L"CB_Privacy_Programs_Microphone", 0},
    {L"CB_Privacy_Programs_Account", 0},        {L"CB_Privacy_Programs_Notifications", 0},
    {L"CB_Privacy_Programs_Background", 0},
};
inline constexpr TPresetState kPrivacySuggestionsDefault[] = {
    {L"Checkbox_Privacy_Suggestions_Settings", 1},  {L"Checkbox_Privacy_Suggestions_Tips", 1},
    {L"Checkbox_Privacy_Suggestions_Welcome", 1},   {L"Checkbox_Privacy_Suggestions_Setup", 1},
    {L"Checkbox_Privacy_Suggestions_Center", 1},    {L"Checkbox_Privacy_Suggestions_LockScreen", 1},
    {L"Checkbox_Privacy_Suggestions_Spotlight", 1}, {L"Checkbox_Privacy_Suggestions_Pictures", 1},
    {L"Checkbox_Privacy_Search_Cloud", 1},          {L"Checkbox_Privacy_Search_Location", 1},
    {L"Checkbox_Privacy_Search_Cortana", 1},        {L"Checkbox_Privacy_Search_Copilot", 1},
    {L"Checkbox_Privacy_Search_Recall", 1},
};

inline constexpr const wchar_t* kLocationList[] = {L"Label_Privacy_Programs_Location",
                                                   L"CB_Privacy_Programs_Location"};
inline constexpr TNeed kLocationNeed{
    .Controls = kLocationList, .Of = L"Checkbox_Privacy_Programs_Location", .Levels = kSinceWindows10};
