#include "settings/shell/startup_page.h"

#include "settings/shared_rows.h"
#include "settings/shell/startup_modern.h"

namespace {

constexpr const wchar_t* kDelayEdit = L"Edit_Startup_System_DelayTime_Time";
constexpr const wchar_t* kWaitEdit = L"Edit_Startup_Exit_WaitTime_Time";

TControlDesign SystemSheet() {
    return Sheet(
        L"TabSheet_Startup_System", L"Startup",
        Group(L"GroupBox_Startup_System_Defrag", L"When Windows starts",
              CheckBox(L"Checkbox_Startup_System_Defrag_Enable", L"Defragment the &boot files automatically"),
              CheckBox(L"Checkbox_Startup_System_ErrorMessage_Enable",
                       L"Start without the Windows &logo screen"),
              CheckBox(L"Checkbox_Startup_System_Fast", L"Use &fast startup"),
              CheckBox(L"Checkbox_Startup_System_Reopen",
                       L"Start programs again that were &open when I logged off"),
              CheckBox(L"Checkbox_Startup_System_Later", L"Wait before &programs of the startup list begin"),
              CheckBox(L"Checkbox_Startup_System_Sound", L"Play the startup &sound"),
              Row(Label(L"Label_Startup_System_DelayTime_Time", L"&Wait before a disk is checked:"),
                  Edit(kDelayEdit).Width(6),
                  UpDown(L"Updown_Startup_System_DelayTime_Time", kDelayEdit, 0, 600, 10),
                  Label(L"Label_Startup_System_DelayTime_Unit", L"seconds"))),
        Buttons(Button(L"Button_Startup_System_Default", L"&Default")));
}

TControlDesign ExitSheet() {
    return Sheet(
        L"TabSheet_Startup_Exit", L"Shutdown",
        Group(
            L"GroupBox_Startup_Exit_WaitTime", L"Programs that do not respond",
            Row(Label(L"Label_Startup_Exit_WaitTime_Time", L"&Wait for an answer:"), Edit(kWaitEdit).Width(6),
                UpDown(L"UpDown_Startup_Exit_WaitTime_Time", kWaitEdit, 1, 32000, 32000),
                Label(L"Label_Startup_Exit_WaitTime_Unit", L"milliseconds"))),
        Group(L"GroupBox_Startup_Exit_AutoClose", L"When Windows shuts down",
              RadioButton(L"Radio_Startup_Exit_AutoClose_AutoClose",
                          L"Automatically &end programs that do not respond"),
              RadioButton(L"Radio_Startup_Exit_AutoClose_ShowCloseDialog", L"As&k before ending a program")),
        StartupRestartGroup(), Buttons(Button(L"Button_Startup_Exit_Default", L"&Default")));
}

TControlDesign DesktopAndTaskbarSheet() {
    return Sheet(
        L"TabSheet_Startup_DesktopAndTaskbar", L"Desktop and Taskbar",
        Group(L"GroupBox_Startup_DesktopAndTaskbar_AutoRestartExplorer", L"For all users",
              CheckBox(L"Checkbox_Startup_DesktopAndTaskbar_AutoRestartExplorer_AutoRun",
                       L"&Restart Explorer automatically when it ends unexpectedly")),
        Group(L"GroupBox_Startup_DesktopAndTaskbar_DAndTSeparateProcess", L"Run the desktop and taskbar",
              RadioButton(L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Process",
                          L"In a &process of their own"),
              // What Windows does without a stored value.
              RadioButton(L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Explorer",
                          L"In the same process as the &folder windows")
                  .Checked()),
        Buttons(Button(L"Button_Startup_DesktopAndTaskbar_Default", L"&Default")));
}

TControlDesign ErrorSheet() {
    return Sheet(
        L"TabSheet_Startup_Error", L"Errors",
        Group(L"GroupBox_Startup_Error_SystemError", L"When something fails",
              CheckBox(L"Checkbox_Startup_Error_Sound_beep", L"&Beep when an error occurs"),
              CheckBox(L"Checkbox_Startup_Error_SystemError_Log", L"&Write an event to the system log"),
              // Beside the label the long texts of the list would be cut.
              Label(L"Label_Startup_Error_SystemError_Type", L"When Windows &crashes:"),
              ComboBox(L"CB_Startup_Error_SystemError_Type",
                       {L"Show an error message in blue screen", L"Restart system automatically"})),
        Group(L"GroupBox_Startup_Error_Dump", L"Memory dump",
              Row(Label(L"Label_Startup_Error_Dump", L"&Memory dump:"),
                  ComboBox(L"CB_Startup_Error_Dump",
                           {L"None", L"Complete", L"Kernel", L"Small", L"Automatic"})),
              CheckBox(L"Checkbox_Startup_Error_Overwrite", L"&Overwrite the last memory dump")),
        Group(L"GroupBox_Startup_Error_Report", L"Programs that crash",
              CheckBox(L"Checkbox_Startup_Error_Report", L"&Report problems to Microsoft"),
              CheckBox(L"Checkbox_Startup_Error_Message", L"&Show a message when a program crashes")),
        Buttons(Button(L"Button_Startup_Error_Default", L"&Default")));
}

TControlDesign Design() {
    return NotebookPage(16, PageControl(L"PageControl_Startup", SystemSheet(), ExitSheet(),
                                        DesktopAndTaskbarSheet(), ErrorSheet(), StartupUpdatesSheet()));
}

constexpr TRow kSystemRows[] = {
    TCheckBoxRow{.Control = L"Checkbox_Startup_System_Defrag_Enable",
                 .Value = {kLocalMachine, kBootOptimize, L"Enable"},
                 .Shows = {.When = {{AnyCase(L"y"), kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Text(L"y"), .Clear = Text(L"N")}},
    // The options are one of two fixed texts; whatever else Windows was started with is not kept.
    TCheckBoxRow{
        .Control = L"Checkbox_Startup_System_ErrorMessage_Enable",
        .Value = {kLocalMachine, kSystemControl, L"SystemStartOptions"},
        .Shows = {.When = {{AnyCase(L"NOEXECUTE=OPTIN  FASTDETECT  TUTAG=ZTASZ8 NOGUIBOOT"), kChecked}},
                  .Otherwise = kClear},
        .Records = {.Checked = Text(L"NOEXECUTE=OPTIN  FASTDETECT  TUTAG=ZTASZ8 NOGUIBOOT"),
                    .Clear = Text(L"NOEXECUTE=OPTIN  FASTDETECT  TUTAG=ZTASZ8")},
        .Levels = kUntilWindows7},
    TNumberRow{.Control = L"Updown_Startup_System_DelayTime_Time",
               .Value = {kLocalMachine, kSessionManager, L"AutoChkTimeOut"}},
};

constexpr TRow kExitRows[] = {
    TNumberRow{.Control = L"UpDown_Startup_Exit_WaitTime_Time",
               .Value = As(TCoding::Decimal, {kCurrentUser, kDesktop, L"HungAppTimeout"})},
    TRadioPairRow{.First = L"Radio_Startup_Exit_AutoClose_AutoClose",
                  .Second = L"Radio_Startup_Exit_AutoClose_ShowCloseDialog",
                  .ChangeName = L"Radio_Startup_Exit_AutoClose_AutoClose",
                  .Value = {kCurrentUser, kDesktop, L"AutoEndTasks"},
                  .Missing = TPairState::First,
                  .FirstWhen = L"1",
                  .FirstRecords = Text(L"1"),
                  .SecondRecords = Text(L"0")},
};

constexpr TRow kDesktopAndTaskbarRows[] = {
    AutoRestartExplorerRow(L"Checkbox_Startup_DesktopAndTaskbar_AutoRestartExplorer_AutoRun"),
    TRadioPairRow{.First = L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Process",
                  .Second = L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Explorer",
                  .ChangeName = L"RadProcess",
                  .Value = {kCurrentUser, kExplorerAdvanced, L"SeparateProcess"},
                  .FirstWhen = 1,
                  .FirstRecords = Dword(1),
                  .SecondRecords = Dword(0),
                  .Restart = TRestart::Windows},
};

constexpr TRow kErrorRows[] = {
    BeepRow(L"Checkbox_Startup_Error_Sound_beep"),
    TCheckBoxRow{.Control = L"Checkbox_Startup_Error_SystemError_Log",
                 .Value = {kLocalMachine, kCrashControl, L"LogEvent"},
                 .Shows = {.When = {{1, kChecked}}, .Otherwise = kClear},
                 .Records = {.Checked = Dword(1), .Clear = Dword(0)}},
    TNumberRow{.Control = L"CB_Startup_Error_SystemError_Type",
               .Value = {kLocalMachine, kCrashControl, L"AutoReboot"}},
};

constexpr TLoader kLoaders[] = {
    kSystemRows, kStartupModernRows, kExitRows,   kRestartRows, kDesktopAndTaskbarRows,
    kErrorRows,  kErrorModernRows,   kUpdatesRows};

constexpr TPresetState kSystemDefault[] = {
    {L"Checkbox_Startup_System_Defrag_Enable", 0}, {L"Updown_Startup_System_DelayTime_Time", 10},
    {L"Checkbox_Startup_System_Fast", 1},          {L"Checkbox_Startup_System_Reopen", 0},
    {L"Checkbox_Startup_System_Later", 1},         {L"Checkbox_Startup_System_Sound", 1},
};
// Not the 32000 milliseconds that an empty registry shows.
constexpr TPresetState kExitDefault[] = {
    {L"UpDown_Startup_Exit_WaitTime_Time", 5000},
    {L"Radio_Startup_Exit_AutoClose_AutoClose", 1},
    {L"Checkbox_Startup_Restart_Notify", 0},
    {L"Checkbox_Startup_Restart_Soon", 0},
    {L"Checkbox_Startup_Restart_Wait", 0},
    {L"Checkbox_Startup_Restart_SignIn", 1},
    {kActiveHours, 0},
};
constexpr TPresetState kDesktopAndTaskbarDefault[] = {
    {L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Explorer", 1},
    {L"Checkbox_Startup_DesktopAndTaskbar_AutoRestartExplorer_AutoRun", 1},
};
constexpr TPresetState kErrorDefault[] = {
    {L"Checkbox_Startup_Error_Sound_beep", 1}, {L"Checkbox_Startup_Error_SystemError_Log", 1},
    {L"CB_Startup_Error_SystemError_Type", 0}, {L"CB_Startup_Error_Dump", kAutomaticDump},
    {L"Checkbox_Startup_Error_Overwrite", 1},  {L"Checkbox_Startup_Error_Report", 1},
    {L"Checkbox_Startup_Error_Message", 1},
};
constexpr TPreset kPresets[] = {
    {L"Button_Startup_System_Default", kSystemDefault},
    {L"Button_Startup_Exit_Default", kExitDefault},
    {L"Button_Startup_DesktopAndTaskbar_Default", kDesktopAndTaskbarDefault},
    {L"Button_Startup_Error_Default", kErrorDefault},
    {L"Button_Startup_Updates_Default", kUpdatesDefault},
};

constexpr TNeed kNeeds[] = {kHoursNeed, kBinNeed};

constexpr TPageDefinition kPage{
    .Tag = 16, .Design = Design, .Loaders = kLoaders, .Presets = kPresets, .Needs = kNeeds};

}  // namespace

const TPageDefinition& StartupPage() { return kPage; }
