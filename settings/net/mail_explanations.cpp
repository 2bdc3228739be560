// What the settings of the E-mail and Contacts page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Mail_OutlookExpress_Messenger",
     "Outlook Express can log on to Windows Messenger and show its contacts. Clearing this is to keep it "
     "from that; Microsoft does not document the value. Outlook Express exists up to Windows XP only."},
    {"Checkbox_Mail_Outlook_Tray",
     "Minimized, Outlook leaves the taskbar and can be opened by its icon in the notification area, whose "
     "menu has the same choice since Outlook 2003. It is stored for every version from Outlook 2002 to 2010 "
     "that has settings here."},
    {"Checkbox_Mail_Messenger_Run",
     "If this is cleared, nobody at this computer can use the chat program of Windows XP, nor can Remote "
     "Assistance send its invitations with it. Other messengers, such as Windows Live Messenger, are not "
     "affected."},
    {"Checkbox_Mail_Messenger_AutoRun",
     "If this is cleared, the chat program of Windows XP is not loaded when a user logs on, which saves "
     "memory. It can still be opened as usual."},
};

}  // namespace

TExplanations MailExplanations() { return kTexts; }
