// What the settings of the Network page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Net_Neighbor_Common_Task",
     "When Windows 2000 or XP opens another computer in the network, it first asks that one for its "
     "scheduled tasks, which can take long; clearing this spares the wait. Since Windows Vista it is of no "
     "use, and the stored state is not shown."},
    {"Checkbox_Net_Neighbor_Common_Printer",
     "When Windows Vista or later opens another computer in the network, it also shows the printers of that "
     "computer; clearing this can make it faster. On Windows 2000 and XP the stored state is not shown."},
    {"Checkbox_Net_Neighbor_Common_Share",
     "Windows 2000 and XP look for shared folders and printers in the workgroup by themselves and add them "
     "to My Network Places and to the printers. Clear it if you do not want printers to appear unasked. "
     "Later versions do not search this way."},
    {"Checkbox_Net_Neighbor_Common_Add",
     "When you open a document in a shared folder, Windows remembers that folder among the network places. "
     "Clearing this keeps the list from growing and from showing others what you have opened."},
    {"Checkbox_Net_Neighbor_Security_Hide",
     "Once Windows has been started again, the computer no longer appears in the list of computers in the "
     "network; it can take an hour until it is gone. Those who know its name can still open its shares. "
     "Windows Vista and later also find computers in other ways."},
    {"Checkbox_Net_Neighbor_Security_ActiveShare",
     "Shares such as C$ and ADMIN$, through which administrators reach whole drives over the network. Remote "
     "administration and some backup programs need them. Takes effect when Windows is started again."},
    {"Button_Net_Neighbor_Default",
     "Checks all boxes of this sheet except the one that hides this computer."},
    {"Checkbox_Net_Advanced_UPnp_Enable",
     "Two services of Windows XP and later find routers, media players and other devices in the network. "
     "Clearing this disables them, which closes a way into the computer; programs can then no longer set up "
     "the router. Takes effect when Windows is started again."},
    {"Checkbox_Net_Advanced_Qos_Keep",
     "Programs for voice or video that ask for it get up to this share of the line first. While none does, "
     "all of the line is free for others, so that clearing this does not make downloads faster."},
    {"Updown_Net_Advanced_Qos_Count",
     "Largest share of the line that programs can reserve together. Windows XP allows 20 percent as long as "
     "nothing is stored. What is reserved but not used is free for others."},
    {"Button_Net_Advanced_Default",
     "Turns on Universal Plug and Play and lets programs reserve up to 20 percent of the line."},
    {"Checkbox_Net_Password_Storage_SavePassword",
     "This value is known from Windows 95 and 98, which kept network passwords in a file. Microsoft "
     "documents no effect of it on Windows 2000 and later."},
    {"Checkbox_Net_Password_Transmission_OnlyForShare",
     "Does not let Windows send a password unencrypted to a server that asks for it so. Clear it only if a "
     "very old server refuses you otherwise: others in the network can then read the password. Takes effect "
     "when Windows is started again."},
    {"Button_Net_Password_Default", "Checks both boxes of this sheet, as Windows does by default."},
    {"Radio_Net_Internet_CloseConnection_Ask",
     "Stores the default of Windows, with which dial-up connections are not kept after you have logged off. "
     "Windows Vista and later read another value for this, so that there this has no effect."},
    {"Radio_Net_Internet_CloseConnection_NoClose",
     "Dial-up connections stay open when you log off, for example so that the next user can log on to a "
     "domain through them; mind the costs. Windows Vista and later read another value for this, so that "
     "there this has no effect."},
    {"Checkbox_Net_Internet_WindowsFirewall_Enable",
     "Keeps out connections from the network that were not allowed. Turn it off only if another firewall "
     "runs. On Windows XP it holds outside of a domain; since Windows Vista the service itself is stopped "
     "and disabled, which Microsoft does not recommend."},
};

}  // namespace

TExplanations NetworkExplanations() { return kTexts; }
