// How Windows 8 to 11 start, update and report what fails: sheets, rows and presets.
#pragma once

#include "settings/page.h"
#include "settings/row_shapes.h"

/// Of the sheet of shutting down.
[[nodiscard]] TControlDesign StartupRestartGroup();
[[nodiscard]] TControlDesign StartupUpdatesSheet();

inline constexpr TBoxFurther kSoundChoice[] = {
    {L"1",
     {kLocalMachine, kEditionOverrides, L"UserSetting_DisableStartupSound"},
     {.Checked = Dword(0), .Clear = Dword(1)}}};

inline constexpr TRow kStartupModernRows[] = {
    // A policy of that name leaves the choice to this value.
    On(kSinceWindows8,
       OnOffBox(L"Checkbox_Startup_System_Fast", {kLocalMachine, kSessionPower, L"HiberbootEnabled"})),
    // Not documented.
    On(SinceBuild(19041),
       OnOffBox(L"Checkbox_Startup_System_Reopen", {kCurrentUser, kUserWinlogon, L"RestartApps"}, kClear)),
    // Not documented. Without the value Explorer waits, the longer the busier the computer is.
    On(kSinceWindows8, AllowedBox(L"Checkbox_Startup_System_Later",
                                  {kCurrentUser, kExplorerSerialize, L"StartupDelayInMSec"}, 0)),
    // Not documented. The other value is what Windows' own dialog writes.
    TCheckBoxRow{.Control = L"Checkbox_Startup_System_Sound",
                 .Value = {kLocalMachine, kStartupSound, L"DisableStartupSound"},
                 .Shows = {.Missing = kChecked, .When = {{0, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(0), .Clear = Dword(1)},
                 .Further = kSoundChoice,
                 .Levels = kSinceWindows11},
};

/// None, complete, kernel, small, and since Windows 8 automatic.
inline constexpr TDatum kMemoryDumps[] = {Dword(0), Dword(1), Dword(2), Dword(3), Dword(7)};
inline constexpr int kAutomaticDump = 4;

inline constexpr TRow kErrorModernRows[] = {
    TChoiceRow{.Control = L"CB_Startup_Error_Dump",
               .Value = {kLocalMachine, kCrashControl, L"CrashDumpEnabled"},
               .Items = kMemoryDumps,
               .Missing = kAutomaticDump,
               .Restart = TRestart::Windows,
               .Levels = kSinceWindows8},
    On(kSinceWindows8, WithRestart(OnOffBox(L"Checkbox_Startup_Error_Overwrite",
                                            {kLocalMachine, kCrashControl, L"Overwrite"}))),
    On(kSinceWindows8,
       UnlessBox(L"Checkbox_Startup_Error_Report", {kCurrentUser, kErrorReporting, L"Disabled"})),
    On(kSinceWindows8,
       UnlessBox(L"Checkbox_Startup_Error_Message", {kCurrentUser, kErrorReporting, L"DontShowUI"})),
};

/// No policy, 0 from Microsoft alone, 1 also from the local network, 3 also from the Internet.
inline constexpr TDatum kDeliveryModes[] = {kDeleteValue, Dword(0), Dword(1), Dword(3)};
/// No policy, 0 never, or after so many days, as Windows' own list has them.
inline constexpr TDatum kBinDays[] = {kDeleteValue, Dword(0), Dword(1), Dword(14), Dword(30), Dword(60)};

inline constexpr const wchar_t* kActiveHours = L"Checkbox_Startup_Restart_Hours";
inline constexpr const wchar_t* kHours[] = {L"UpDown_Startup_Restart_From", L"UpDown_Startup_Restart_To",
                                            L"Edit_Startup_Restart_From",   L"Edit_Startup_Restart_To",
                                            L"Label_Startup_Restart_From",  L"Label_Startup_Restart_To"};
/// What Windows takes without values.
inline constexpr int kFirstHour = 8;
inline constexpr int kLastHour = 17;

[[nodiscard]] constexpr TNumberRow ActiveHour(const wchar_t* upDown, const wchar_t* valueName, int missing) {
    return {.Control = upDown,
            .Value = {kLocalMachine, kUpdatePolicies, valueName},
            .Missing = missing,
            .Levels = SinceBuild(14393)};
}

inline constexpr TRow kRestartRows[] = {
    On(SinceBuild(17763),
       OnOffBox(L"Checkbox_Startup_Restart_Notify",
                {kLocalMachine, kUpdateSettings, L"RestartNotificationsAllowed2"}, kClear)),
    On(SinceBuild(18362),
       OnOffBox(L"Checkbox_Startup_Restart_Soon", {kLocalMachine, kUpdateSettings, L"IsExpedited"}, kClear)),
    On(kSinceWindows8, DemandedBox(L"Checkbox_Startup_Restart_Wait",
                                   {kLocalMachine, kAutoUpdatePolicies, L"NoAutoRebootWithLoggedOnUsers"})),
    On(SinceBuild(18362), AllowedBox(L"Checkbox_Startup_Restart_SignIn",
                                     {kLocalMachine, kSystemPolicies, L"DisableAutomaticRestartSignOn"}, 1)),
    On(SinceBuild(14393), DemandedBox(kActiveHours, {kLocalMachine, kUpdatePolicies, L"SetActiveHours"})),
    ActiveHour(kHours[0], L"ActiveHoursStart", kFirstHour),
    ActiveHour(kHours[1], L"ActiveHoursEnd", kLastHour),
};

inline constexpr TRow kUpdatesRows[] = {
    On(SinceBuild(14393),
       AllowedBox(L"Checkbox_Startup_Updates_Drivers",
                  {kLocalMachine, kUpdatePolicies, L"ExcludeWUDriversInQualityUpdate"}, 1)),
    On(kSinceWindows10, OnOffBox(L"Checkbox_Startup_Updates_Office",
                                 {kLocalMachine, kUpdateSettings, L"AllowMUUpdateService"}, kClear)),
    On(SinceBuild(22621),
       OnOffBox(L"Checkbox_Startup_Updates_Early",
                {kLocalMachine, kUpdateSettings, L"IsContinuousInnovationOptedIn"}, kClear)),
    On(kSinceWindows10,
       AllowedBox(L"Checkbox_Startup_Updates_Store", {kLocalMachine, kStorePolicies, L"AutoDownload"}, 2)),
    TChoiceRow{.Control = L"CB_Startup_Updates_Delivery",
               .Value = {kLocalMachine, kDeliveryPolicies, L"DODownloadMode"},
               .Items = kDeliveryModes,
               .Missing = 0,
               .Restart = TRestart::Windows,
               .Levels = kSinceWindows10},
    On(SinceBuild(15063),
       OnOffBox(L"Checkbox_Startup_Storage_Sense", {kCurrentUser, kStorageSense, L"01"}, kClear)),
    TChoiceRow{.Control = L"CB_Startup_Storage_Bin",
               .Value = {kLocalMachine, kStoragePolicies, L"ConfigStorageSenseRecycleBinCleanupThreshold"},
               .Items = kBinDays,
               .Missing = 0,
               .Levels = SinceBuild(18362)},
};

inline constexpr TPresetState kUpdatesDefault[] = {
    {L"Checkbox_Startup_Updates_Drivers", 1}, {L"Checkbox_Startup_Updates_Office", 0},
    {L"Checkbox_Startup_Updates_Early", 0},   {L"CB_Startup_Updates_Delivery", 0},
    {L"Checkbox_Startup_Storage_Sense", 0},   {L"CB_Startup_Storage_Bin", 0},
};

inline constexpr const wchar_t* kBinList[] = {L"Label_Startup_Storage_Bin", L"CB_Startup_Storage_Bin"};
inline constexpr TNeed kHoursNeed{.Controls = kHours, .Of = kActiveHours, .Levels = SinceBuild(14393)};
inline constexpr TNeed kBinNeed{.Controls = kBinList,
                                .Of = L"Checkbox_Startup_Storage_Sense",
                                .Disables = false,
                                .Levels = SinceBuild(18362)};
