// What the settings of the Start and Maintenance page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Startup_System_Defrag_Enable",
     "While the computer is idle, Windows XP and later put the files that are read at the start next to each "
     "other on the disk, so that it starts faster. It is best left on. Windows 2000 does not have this."},
    {"Checkbox_Startup_System_ErrorMessage_Enable",
     "Windows writes this value at every start to tell with which options it was started, and does not read "
     "it for the next one, so that the logo stays. To hide it, use /NOGUIBOOT in boot.ini or, since Windows "
     "Vista, System Configuration (msconfig)."},
    {"Updown_Startup_System_DelayTime_Time",
     "After an improper shutdown, Windows checks drives when it starts. For so long you can skip that with a "
     "key. Windows itself waits 10 seconds; with 0 there is no time to skip it."},
    {"Button_Startup_System_Default",
     "Turns off the defragmenting of boot files, which Windows XP and later turn on by themselves, and sets "
     "the wait to 10 seconds."},
    {"UpDown_Startup_Exit_WaitTime_Time",
     "How long a program that is to be ended may leave Windows without an answer before it counts as hung. "
     "The default of Windows is 5000; 32000 is shown while nothing is stored. If it is too short, busy "
     "programs are taken for hung."},
    {"Radio_Startup_Exit_AutoClose_AutoClose",
     "Shutting down and logging off do not get stuck, but unsaved work in such programs is lost. This is "
     "also shown while nothing is stored, although Windows then asks."},
    {"Radio_Startup_Exit_AutoClose_ShowCloseDialog",
     "Windows names the program that does not respond and leaves it to you whether to wait for it or to end "
     "it, so that you can still save your work. It is the default of Windows."},
    {"Button_Startup_Exit_Default",
     "Sets the wait to 5000 milliseconds and ends programs without asking; Windows itself would ask."},
    {"Checkbox_Startup_DesktopAndTaskbar_AutoRestartExplorer_AutoRun",
     "Brings back the desktop and the taskbar after Explorer has crashed. Without it you must log off and on "
     "again. It is on by default and best left so."},
    {"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Process",
     "If a folder window crashes, the desktop and the taskbar go on running; it takes a little more memory. "
     "It is the same as \"Launch folder windows in a separate process\" in Folder Options."},
    {"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Explorer",
     "Saves memory, but a folder window that crashes takes the desktop and the taskbar with it until "
     "Explorer has started again. It is the default of Windows."},
    {"Button_Startup_DesktopAndTaskbar_Default",
     "Restarts Explorer automatically and runs everything in one process, as Windows does by default."},
    {"Checkbox_Startup_Error_Sound_beep",
     "The plain beep of Windows and of older programs. Up to Windows XP it comes from the speaker in the "
     "computer, in Windows 7 from the sound card."},
    {"Checkbox_Startup_Error_SystemError_Log",
     "After a crash, Event Viewer shows under System when it was and with which code, which helps to find "
     "the cause. It is best left on."},
    {"CB_Startup_Error_SystemError_Type",
     "As long as the blue screen stays, you can write down the code of the error; then you must restart by "
     "hand. Windows itself restarts at once, which is right for computers that run unattended."},
    {"Button_Startup_Error_Default",
     "Turns on the beep and the event, and lets the blue screen stay, where Windows itself would restart."},
};

}  // namespace

TExplanations StartupExplanations() { return kTexts; }
