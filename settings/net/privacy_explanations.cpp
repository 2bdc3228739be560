// What the settings of the Privacy page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_Privacy_Common_AutoUpdate_Active",
     "Gets security updates from Microsoft. Without them known holes stay open unless you look for updates "
     "yourself. Windows 2000 needs Service Pack 3 for it, and a group policy takes precedence."},
    {"CB_Privacy_Common_AutoUpdate_Type",
     "How much Windows does by itself. The first choice counts as not yet set up, so that Windows may ask "
     "you; the third downloads updates without asking and tells you before they are installed."},
    {"Button_Privacy_Common_Default", "Turns automatic updates on with the default settings of Windows."},
    {"Checkbox_CleanTraces_ClearHistoryList_ClearLogoff",
     "Empties the list of recently used documents, in Windows 7 also the jump lists of programs, so that "
     "others do not see what you have opened. The documents themselves stay."},
    {"Checkbox_CleanTraces_ClearIECache_ClearOnExit",
     "Deletes the stored copies of pages and pictures when the last window is closed, so that others find "
     "fewer traces. Pages that you visit again take longer to load; the history stays."},
    {"Button_CleanTraces_Default", "Clears both boxes of this sheet, as Windows does by default."},
    {"Checkbox_Privacy_IE_Authentication_Enable",
     "Servers of your own network then no longer recognize you by Kerberos; most of them still accept NTLM. "
     "Useful for finding out why logging on to a site fails. Takes effect when Internet Explorer is started "
     "again."},
    {"Checkbox_Privacy_IE_Update_Stop",
     "Keeps Internet Explorer up to version 6 from fetching pages for offline reading by a schedule. It has "
     "nothing to do with updates of Windows, and Internet Explorer 7 and later no longer fetch such pages."},
    {"Button_Privacy_IE_Default", "Clears both boxes of this sheet."},
};

}  // namespace

TExplanations PrivacyExplanations() { return kTexts; }
