// What the settings of the Task Bar page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Taskbar_ButtonFlashes_Active",
     "Programs in the background cannot take the keyboard away from you while you work; their taskbar "
     "buttons flash instead. If you clear it, any program may bring its window to the front at any time."},
    {"UpDown_Taskbar_ButtonFlashes_Common_Time",
     "When you have used neither keyboard nor mouse for this time, a window may come to the front by itself. "
     "The default is 200 seconds."},
    {"UpDown_Taskbar_ButtonFlashes_Speed_Flash",
     "How often the button flashes when a program was kept from coming to the front. Programs that make "
     "their button flash by themselves choose their own number."},
    {"Button_Taskbar_ButtonFlashes_Default",
     "Lets buttons flash three times and keeps windows back for 200 seconds, as Windows does by default."},
    {"Checkbox_Taskbar_ButtonAppearance_Bar_Lock",
     "Keeps the taskbar and its toolbars from being moved or resized by accident. Clear it to move the bar "
     "to another edge or to give it a second row."},
    {"Checkbox_Taskbar_ButtonAppearance_Bar_Peek",
     "Pointing to the right end of the taskbar makes all windows transparent, so that you see the desktop. "
     "Needs the Aero look; a click there shows the desktop in any case."},
    {"Checkbox_Taskbar_ButtonAppearance_Group_Active",
     "When the taskbar becomes full, the windows of one program share a button that opens a list. Clear it "
     "if you want to reach every window with one click."},
    {"UpDown_Taskbar_ButtonAppearance_Group_AtLeastCount",
     "A program with at least this number of windows gets one button, even when there is room. Without a "
     "number of your own Windows groups only when the taskbar is full. Has no effect while grouping is "
     "turned off."},
    {"CB_Taskbar_ButtonAppearance_Look_Combine",
     "Windows 7 shows one button without a label for each program. With labels you tell windows apart at a "
     "glance, but fewer fit on the taskbar."},
    {"Checkbox_Taskbar_ButtonAppearance_Look_SmallIcons",
     "Makes the taskbar of Windows 7 about as low as in earlier versions and leaves more room for windows, "
     "which helps on small screens."},
    {"Button_Taskbar_ButtonAppearance_Default",
     "Locks the taskbar and chooses the buttons as in a new Windows; the number of windows that make a group "
     "stays as it is."},
    {"Checkbox_Taskbar_Notification_Icons_Show",
     "Clearing hides all icons beside the clock, also those through which programs are operated or report "
     "problems. The clock stays."},
    {"Checkbox_Taskbar_Notification_Icons_HideInactive",
     "Windows shows only icons that you use or that have something to say; an arrow shows the others. If you "
     "clear it, all icons are visible at all times."},
    {"Checkbox_Taskbar_Notification_Icons_Clock",
     "The time at the end of the taskbar. While it is hidden here, the properties of the taskbar cannot "
     "bring it back."},
    {"Checkbox_Taskbar_Notification_Icons_Volume",
     "The loudspeaker with which you set the volume since Vista. While it is hidden here, Windows' own "
     "settings cannot bring it back."},
    {"Checkbox_Taskbar_Notification_Icons_Network",
     "The icon that tells since Vista whether you are connected, and offers wireless networks. While it is "
     "hidden here, Windows' own settings cannot bring it back."},
    {"Checkbox_Taskbar_Notification_Icons_Power",
     "The icon with the battery's charge and the power plans, on portable computers. While it is hidden "
     "here, Windows' own settings cannot bring it back."},
    {"Checkbox_Taskbar_Notification_Icons_ActionCenter",
     "The flag of Windows 7 that reports problems with security and maintenance. While it is hidden, look "
     "into the Action Center yourself from time to time."},
    {"Checkbox_Taskbar_Notification_Balloons_Show",
     "The balloons beside the clock in which Windows and programs report news. Clearing also hides warnings, "
     "for example of low disk space."},
    {"Button_Taskbar_Notification_Default", "Checks all boxes of this sheet, as Windows does by default."},
    {"CB_Taskbar_MinWindow_Arrange",
     "Where minimized windows go while no taskbar shows them: as small title bars on the desktop, or "
     "nowhere. The choice lasts until you log off, because the desktop sets it back at every logon."},
    {"CB_Taskbar_MinWindow_Left",
     "The side of the desktop at which the small title bars of minimized windows begin. Has no effect while "
     "they are hidden."},
    {"CB_Taskbar_MinWindow_Top",
     "The edge of the desktop at which the small title bars of minimized windows begin. Has no effect while "
     "they are hidden."},
    {"Button_Taskbar_MinWindow_Default", "Hides minimized windows, as the desktop does by itself."},
    {"CB_Taskbar_Modern_Alignment",
     "In the center the icons move when programs are added; at the left the Start button stays in its "
     "corner, as in earlier versions."},
    {"CB_Taskbar_Modern_Search",
     "A box takes much room; the icon, or simply typing in the Start menu, searches just as well."},
    {"Checkbox_Taskbar_Modern_SearchHighlights",
     "Drawings and news of the day in the search box and its window, fetched from Microsoft. Clearing leaves "
     "the plain search, for all users."},
    {"Checkbox_Taskbar_Modern_TaskView",
     "The button that shows all windows and further desktops. Windows key + Tab does the same without it."},
    {"Checkbox_Taskbar_Modern_Widgets",
     "Weather, news and other small displays at the end of the taskbar. Clearing turns them off for all "
     "users of this computer."},
    {"Checkbox_Taskbar_Modern_LockScreenWidgets",
     "Weather, traffic and the like below the clock of the lock screen, which anybody can see who passes. "
     "For all users."},
    {"Checkbox_Taskbar_Modern_News",
     "Weather and headlines on the taskbar of Windows 10, which open when the pointer passes over them. "
     "Clearing removes them for all users."},
    {"Checkbox_Taskbar_Modern_Chat",
     "The icon of Teams for private users, which the first versions of Windows 11 bring along. For all "
     "users."},
    {"Checkbox_Taskbar_Modern_People",
     "The button of Windows 10 to which you can pin people. Few programs ever used it."},
    {"Checkbox_Taskbar_Modern_Badges",
     "Small marks such as the number of unread messages on the icons of programs. With small icons Windows "
     "10 shows none."},
    {"Checkbox_Taskbar_Modern_Flashing",
     "Icons turn red and blink when a program wants something. Without this they only get a mark."},
    {"Checkbox_Taskbar_Modern_Sharing",
     "Offers to show a window to the others during a call, when you point at its taskbar button. Clear it if "
     "you share one by accident."},
    {"Checkbox_Taskbar_Modern_Corner",
     "A click at the very end of the taskbar minimizes all windows. Windows key + D does the same."},
    {"Checkbox_Taskbar_Modern_EndTask",
     "Ends a program that no longer answers without Task Manager. Unsaved work in it is lost, and it is not "
     "asked."},
    {"Checkbox_Taskbar_Modern_LastActive",
     "Otherwise the click shows small pictures of all its windows first. Holding down Ctrl does the same for "
     "one click."},
    {"Checkbox_Taskbar_Modern_RemoteJumpLists",
     "Jump Lists then also name files on servers. Clear it if opening the list waits for a slow network."},
    {"Button_Taskbar_Modern_Default",
     "Chooses buttons and search as in a new Windows, and takes the policies of this sheet away."},
    {"Checkbox_Taskbar_Screens_All",
     "With more than one screen each gets a taskbar of its own. The clock may be missing on the others."},
    {"CB_Taskbar_Screens_Buttons",
     "With several taskbars you choose whether each shows all windows or only those of its own screen. Has "
     "no effect with one taskbar."},
    {"CB_Taskbar_Screens_Combine",
     "Holds for the taskbars of the further screens; that of the main screen has its own choice."},
    {"Checkbox_Taskbar_Messages_Seconds",
     "The clock counts the seconds. It takes a little more power, which matters on battery only."},
    {"Checkbox_Taskbar_Messages_Center",
     "The pane with past notifications, on Windows 10 also with the quick settings. Messages still pop up "
     "without it, but cannot be read later."},
    {"Checkbox_Taskbar_Messages_Promotion",
     "Windows brings icons out of the overflow when you use them often. Clear it if the order is to stay as "
     "you made it."},
    {"Checkbox_Taskbar_Messages_MeetNow",
     "The camera beside the clock of Windows 10 that starts a video call with Skype. Skype is no longer run "
     "by Microsoft."},
    {"Button_Taskbar_Screens_Default",
     "Chooses the taskbars, the clock and the messages as in a new Windows."},
};

}  // namespace

TExplanations TaskbarExplanations() { return kTexts; }
