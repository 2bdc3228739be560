// What the settings of the Startup Menu page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Use_StartMenu_Common_User_ShowUserName",
     "Windows XP shows the name at the top of the Start menu. Since Vista it is an entry that opens your "
     "personal folder. Has no effect on the classic Start menu."},
    {"Checkbox_Use_StartMenu_Common_Behaviour_Classic",
     "The menu with a single column, as in Windows 2000. While it is chosen here, the properties of the "
     "Start menu cannot change it back, and most other settings of this page, which are for the menu with "
     "two columns, have no effect."},
    {"Checkbox_Use_StartMenu_Common_Behaviour_AutoCascade",
     "If you clear it, submenus of the Start menu open only when you click them, which helps when the mouse "
     "often opens the wrong one."},
    {"Checkbox_Use_StartMenu_Common_Behaviour_DragDrop",
     "Lets you add and rearrange entries of the Start menu with the mouse. Clear it if they get moved by "
     "accident; since Vista this also takes away the menus of the right mouse button."},
    {"Checkbox_Use_StartMenu_Common_Behaviour_NewApps",
     "New programs stand out in color in the Start menu until you have used them. Clear it if the marks "
     "distract you."},
    {"Checkbox_Use_StartMenu_Common_Behaviour_LargeIcons",
     "Concerns the list of programs on the left side of the Start menu. Small icons leave room for more "
     "programs."},
    {"Checkbox_Use_StartMenu_Common_Behaviour_Personalized",
     "The classic Start menu and that of Windows 2000 hide what you have not used for some time, behind an "
     "arrow. Clear it if you want to find all entries in their places at all times."},
    {"UpDown_Use_StartMenu_Common_Menu_Delay",
     "How long the mouse pointer must rest on an entry until its submenu opens, in the menus of all "
     "programs. The default is 400; with less, menus feel quicker, with more, fewer open by mistake."},
    {"Checkbox_Use_StartMenu_Common_Classic_ControlPanel",
     "The tools of the Control Panel appear in a submenu instead of a window. Concerns the classic Start "
     "menu and that of Windows 2000."},
    {"Checkbox_Use_StartMenu_Common_Classic_MyDocuments",
     "Files and folders of your documents appear in a submenu instead of a window. It becomes long when "
     "there are many. Concerns the classic Start menu and that of Windows 2000."},
    {"Checkbox_Use_StartMenu_Common_Classic_Network",
     "Network and dial-up connections appear in a submenu, from which you can start them directly. Concerns "
     "the classic Start menu and that of Windows 2000."},
    {"Checkbox_Use_StartMenu_Common_Classic_Printers",
     "Your printers appear in a submenu, from which you can open their queues directly. Concerns the classic "
     "Start menu and that of Windows 2000."},
    {"Button_Use_StartMenu_Common_Default",
     "Chooses the Start menu as in a new Windows with its usual behavior and a delay of 400 milliseconds; "
     "what the classic menu opens as menus stays as it is."},
    {"CB_Use_StartMenu_Items_MyComputer",
     "The entry for drives and devices. As a link it opens a window, as a menu it unfolds the drives. Has no "
     "effect on the classic Start menu."},
    {"CB_Use_StartMenu_Items_MyDocuments",
     "The entry for your documents. As a menu it shows all files and subfolders, which becomes long when "
     "there are many. Has no effect on the classic Start menu."},
    {"CB_Use_StartMenu_Items_MyPictures",
     "The entry for the folder in which cameras and scanners put their pictures by default. Has no effect on "
     "the classic Start menu."},
    {"CB_Use_StartMenu_Items_MyMusic",
     "The entry for the folder in which Windows Media Player puts music from CDs by default. Has no effect "
     "on the classic Start menu."},
    {"CB_Use_StartMenu_Items_Videos",
     "The entry for your videos, which the Start menu of Windows 7 does not show by default. As a menu it "
     "unfolds the files."},
    {"CB_Use_StartMenu_Items_Downloads",
     "The entry for the folder in which browsers put downloads by default. The Start menu of Windows 7 does "
     "not show it by default."},
    {"CB_Use_StartMenu_Items_ControlPanel",
     "As a menu it shows all tools at once, without categories, which saves a click or two. Has no effect on "
     "the classic Start menu."},
    {"CB_Use_StartMenu_Items_NetConn",
     "As a menu Windows XP lists your connections, to start them directly; as a link it opens their folder. "
     "Has no effect on the classic Start menu."},
    {"Checkbox_Use_StartMenu_Items_Run",
     "Opens programs, folders and Web addresses by name. Since Vista Windows does not show the entry by "
     "default, as Windows key + R does the same. On Windows 2000 clearing also blocks these keys and New "
     "Task in Task Manager."},
    {"Checkbox_Use_StartMenu_Items_Search",
     "The entry that searches for files. The search box of Vista is another matter and stays. On Windows "
     "2000 clearing also blocks Windows key + F."},
    {"Checkbox_Use_StartMenu_Items_Help",
     "The entry that opens the help of Windows. Without it F1 still shows help on the desktop and in "
     "programs."},
    {"Checkbox_Use_StartMenu_Items_Favorites",
     "Shows the favorites of Internet Explorer in a submenu. Useful if you collect your Web pages there; "
     "other browsers keep bookmarks of their own."},
    {"Checkbox_Use_StartMenu_Items_NetConn",
     "The entry with which you connect to wireless networks, dial-up or a VPN. Windows 7 does not show it by "
     "default, because the network icon beside the clock does the same."},
    {"Checkbox_Use_StartMenu_Items_Printers",
     "The entry for the folder in which printers are set up and print jobs are watched. Has no effect on the "
     "classic Start menu."},
    {"Checkbox_Use_StartMenu_Items_Programs",
     "The entry with which you choose the programs for Web pages, mail, music and the like. Windows XP has "
     "it since Service Pack 1. You find it in the Control Panel, too."},
    {"Checkbox_Use_StartMenu_Items_AdminTools",
     "Shows tools such as Services, Event Viewer and Computer Management among the programs of the Start "
     "menu, since Windows XP in its right column as well. They are in the Control Panel in any case."},
    {"Checkbox_Use_StartMenu_Items_LogOff",
     "If you clear it, the Start menu does not offer to log off, so that nobody does it by accident. "
     "Ctrl+Alt+Del still does."},
    {"Checkbox_Use_StartMenu_RecentlyUse_Document_Keep",
     "Windows notes which documents you open. If you clear it, others cannot see what you worked on, and the "
     "Jump Lists of Windows 7 list no documents. Programs may keep lists of their own."},
    {"Checkbox_Use_StartMenu_RecentlyUse_Document_Show",
     "Only the menu is shown or hidden; what is remembered stays. Windows 7 does not show it by default, as "
     "its Jump Lists offer the documents of each program."},
    {"UpDown_Use_StartMenu_RecentlyUse_Document_FileCount",
     "How many of the documents opened last the menu lists. The default is 15."},
    {"Checkbox_Use_StartMenu_RecentlyUse_Program_Keep",
     "Windows counts how often you start each program. The list of frequently used programs and personalized "
     "menus need this; without it they do not adapt to you."},
    {"Checkbox_Use_StartMenu_RecentlyUse_Program_Show",
     "The list below the pinned programs on the left side of the Start menu. If you clear it, only pinned "
     "programs remain there."},
    {"UpDown_Use_StartMenu_RecentlyUse_Program_Count",
     "How many programs the list in the Start menu holds: 6 on a new Windows XP, 9 on Vista, 10 on Windows "
     "7. On a small screen fewer may fit."},
    {"UpDown_Use_StartMenu_RecentlyUse_JumpList_Count",
     "How many recent items Windows 7 lists when you right-click a taskbar button or open a program's arrow "
     "in the Start menu. What you have pinned comes in addition."},
    {"Button_Use_StartMenu_RecentlyUse_Default",
     "Remembers documents and programs and lists as many of them as a new Windows does."},
    {"CB_Use_StartMenu_Modern_AllPrograms",
     "The alphabetical list. \"Collapsed\" hides it behind a button, \"removed\" leaves only what is "
     "pinned."},
    {"CB_Use_StartMenu_Modern_MostUsed",
     "The list grows from what you start often. If others look at your screen, it tells them what that is."},
    {"CB_Use_StartMenu_Modern_Layout", "Which of the two halves of the Start menu gets more rows."},
    {"CB_Use_StartMenu_Modern_Size",
     "Windows 10 can fill the whole screen with Start, as Windows 8 does; good for touch."},
    {"Checkbox_Use_StartMenu_Modern_RecentlyAdded",
     "Programs that you have just installed stand at the top for a while. On Windows 10 clearing it also "
     "locks the switch in Settings."},
    {"Checkbox_Use_StartMenu_Modern_Recommendations",
     "The lower half of the Start menu of Windows 11 names files, tips and programs from the Store. Clearing "
     "takes away the advertising part; recent files stay."},
    {"Checkbox_Use_StartMenu_Modern_Suggestions",
     "Windows 10 puts programs from the Store, which are not installed, between your own. Clear it to keep "
     "the menu free of them."},
    {"Checkbox_Use_StartMenu_Modern_Websites",
     "Windows 11 also recommends web pages, from what you have looked at in Edge. Clear it if this tells "
     "others too much."},
    {"Checkbox_Use_StartMenu_Modern_WebSearch",
     "What you type into the search also goes to Bing. Clearing keeps it on this computer; two of the three "
     "values are read by the editions for companies only."},
    {"Checkbox_Use_StartMenu_Modern_Account",
     "Marks at your picture that remind you of a backup, a missing address or an offer for your Microsoft "
     "account."},
    {"Checkbox_Use_StartMenu_Modern_Menus",
     "Without the menus nobody unpins or uninstalls programs by accident, which helps on computers that many "
     "people use."},
    {"Checkbox_Use_StartMenu_Modern_RunAs",
     "Starts a program under another account, from the menu of the right mouse button. Useful with a "
     "separate account for administration."},
    {"Checkbox_Use_StartMenu_Modern_Lock",
     "The entry in the menu of your picture. Windows key + L locks the computer in any case. For all users."},
    {"Checkbox_Use_StartMenu_Modern_Sleep",
     "The entry of the power menu. Clear it on computers that must not fall asleep, such as servers at home. "
     "For all users."},
    {"Checkbox_Use_StartMenu_Modern_Hibernate",
     "Stores everything on the disk and turns the computer off, so that it goes on later without using "
     "power. Needs hibernation to be turned on; for all users."},
    {"Button_Use_StartMenu_Modern_Default",
     "Shows and offers what a new Windows does, and takes the policies of this sheet away."},
};

}  // namespace

TExplanations StartMenuExplanations() { return kTexts; }
