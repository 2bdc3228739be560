// What the settings of the dialog Icons and Drives are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Folder_Desktop_MyComputer",
     "Opens the drives and devices of your computer. A new Windows shows it only in the Start menu."},
    {"Checkbox_Folder_Desktop_MyDocuments",
     "Opens the folder in which most programs of Windows XP store documents. Without the icon you find it in "
     "the Start menu."},
    {"Checkbox_Folder_Desktop_UserFiles",
     "Since Vista this opens the folder with your name that holds documents, pictures, music and downloads."},
    {"Checkbox_Folder_Desktop_MyNetworkPlaces",
     "Opens shared folders of other computers in Windows XP. Useful on home and office networks only."},
    {"Checkbox_Folder_Desktop_Network",
     "Since Vista this shows the computers and devices of your network. Useful on home and office networks "
     "only."},
    {"Checkbox_Folder_Desktop_InternetExplorer",
     "Opens the browser; its menu leads to the Internet options. Vista no longer offers the icon in its own "
     "dialog, but can still show it."},
    {"Checkbox_Folder_Desktop_ControlPanel",
     "Since Vista the desktop can show the Control Panel, which saves the way through the Start menu."},
    {"Checkbox_Folder_Desktop_RecycleBin",
     "Only the icon is hidden: deleted files still go there and take up space until you empty it."},
    {"Checkbox_Folder_Desktop_RecycleBinKey",
     "Windows 2000 shows the icon by an entry of the system for all users. Only the icon is hidden: deleted "
     "files still go there."},
    {"Checkbox_Folder_MyComputer_ShowControlPanel",
     "Windows XP shows it in My Computer beside the drives. It corresponds to a choice in the folder "
     "options."},
    {"Checkbox_Folder_MyComputer_ControlPanel",
     "Adds the Control Panel to the Computer folder, for all users."},
    {"Checkbox_Folder_MyComputer_Printers",
     "Adds the folder of printers, in which you set them up and watch print jobs, for all users."},
    {"Checkbox_Folder_MyComputer_NetworkConnections",
     "Adds the folder in which network and dial-up connections are set up, for all users."},
    {"Checkbox_Folder_MyComputer_AdministrativeTools",
     "Adds the folder with Services, Event Viewer and other tools for administrators, for all users."},
    {"Checkbox_Folder_MyComputer_ScheduledTasks",
     "Adds the folder of programs that Windows starts at set times, for all users."},
    {"Checkbox_Folder_MyComputer_RecycleBin",
     "Adds the Recycle Bin, for all users; practical when its icon on the desktop is hidden."},
    {"ListView_Folder_Drivers",
     "Explorer does not show the checked drives. This protects nothing: whoever types the path still gets "
     "there, and programs can use the drives as before."},
};

}  // namespace

TExplanations DesktopIconsExplanations() { return kTexts; }
