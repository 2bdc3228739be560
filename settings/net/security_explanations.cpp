// What the settings of the Security Center page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Security_Center_Active",
     "Watches over firewall, virus scanner and automatic updates and warns you. It does not protect anything "
     "itself: turning it off ends only the warnings. It came with Service Pack 2 of Windows XP and is part "
     "of the Action Center in Windows 7."},
    {"Checkbox_Security_Center_SC_NoAntivirusSoftware",
     "Also warns of a virus scanner that is turned off or out of date. Clear it if Windows does not "
     "recognize yours and you watch over it yourself. Windows 7 has its own choice of messages in the Action "
     "Center."},
    {"Checkbox_Security_Center_SC_NoFirewall",
     "Also warns of a firewall that is turned off. Clear it if Windows does not recognize yours and you "
     "watch over it yourself. Windows 7 has its own choice of messages in the Action Center."},
    {"Checkbox_Security_Center_SC_SecuritySoftwareExpired",
     "In Windows this is the warning that automatic updates are turned off; that of an outdated virus "
     "scanner belongs to the virus scanner. Windows 7 has its own choice of messages in the Action Center."},
    {"Updown_Security_Advanced_Screensaver_WaitTime",
     "For so long after the screen saver has started, moving the mouse ends it without a password. Windows "
     "itself waits 5 seconds; longer leaves your desktop open to others. It only matters for a screen saver "
     "with password protection."},
};

}  // namespace

TExplanations SecurityExplanations() { return kTexts; }
