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
    {"Checkbox_Privacy_Data_AdvertisingId",
     "A number by which programs from the Store recognize you for advertising. Clearing turns it off for all "
     "users; there is as much advertising as before, but it fits you less."},
    {"Checkbox_Privacy_Data_Tailored",
     "Microsoft chooses tips and offers by what it learns from your computer. Clearing ends this choice, not "
     "the tips."},
    {"Checkbox_Privacy_Data_Languages",
     "Pages in your language come by themselves then. Without it a page may appear in English first."},
    {"CB_Privacy_Data_Diagnostics",
     "How much Windows reports about its state and your use of it. \"Required\" keeps it working and safe; "
     "\"None\" is obeyed by the editions for companies only. For all users."},
    {"Checkbox_Privacy_Data_Activities",
     "Windows 10 notes which documents and pages you open and shows them in a timeline. Clearing ends this "
     "for all users."},
    {"Checkbox_Privacy_Data_Feedback",
     "Questions such as \"Would you recommend Windows?\". They have nothing to do with the diagnostic data."},
    {"Checkbox_Privacy_Data_Speech",
     "Dictation by Windows key + H sends your voice to Microsoft. Without it only what works on the computer "
     "itself is left."},
    {"Checkbox_Privacy_Data_Learning",
     "A list of your words makes suggestions and handwriting better. Clearing ends the collecting and the "
     "use of names from your contacts."},
    {"Button_Privacy_Data_Default",
     "Sends and learns what a new Windows does, and takes the policies of this sheet away."},
    {"Checkbox_Privacy_Programs_Location",
     "If you clear it, no program and not even Windows itself learns where the computer is: no local "
     "weather, no automatic time zone, no search for a lost device. For all users."},
    {"CB_Privacy_Programs_Location",
     "Holds for programs from the Store. \"Never\" overrules what is set for single programs in Settings, "
     "for all users."},
    {"CB_Privacy_Programs_Camera",
     "Programs from the Store; others are not held back by this. With \"Never\" video calls of such programs "
     "show no picture."},
    {"CB_Privacy_Programs_Microphone",
     "As for the camera. With \"Never\" such programs hear nothing in calls and recordings."},
    {"CB_Privacy_Programs_Account",
     "Your name, picture and other details of your account. Some programs use them to greet you or to log "
     "you on."},
    {"CB_Privacy_Programs_Notifications",
     "Reading the notifications of other programs. Watches and programs that show your telephone's messages "
     "need it."},
    {"CB_Privacy_Programs_Background",
     "\"Never\" saves power, but programs from the Store then get no messages while they are closed; alarms "
     "and mail may come late."},
    {"Button_Privacy_Programs_Default", "Leaves it to the choices in Windows what programs may use."},
    {"Checkbox_Privacy_Suggestions_Settings",
     "Settings then recommends pages and Microsoft's services at its top."},
    {"Checkbox_Privacy_Suggestions_Tips",
     "Messages that explain functions of Windows now and then; some recommend Microsoft's programs."},
    {"Checkbox_Privacy_Suggestions_Welcome",
     "The page \"Welcome to Windows\" in the browser after large updates."},
    {"Checkbox_Privacy_Suggestions_Setup",
     "A full page after logging on that offers OneDrive, Edge and the like. You can leave it with \"Remind "
     "me later\"."},
    {"Checkbox_Privacy_Search_Cloud",
     "The search of the taskbar then finds mails and files that you keep at Microsoft. Clear it if it should "
     "look on this computer only."},
    {"Checkbox_Privacy_Search_Location",
     "Results such as \"pharmacy\" then fit where you are. For all users."},
    {"Checkbox_Privacy_Search_Cortana",
     "Microsoft's spoken assistant on Windows 10, which it no longer develops. The search stays."},
    {"Checkbox_Privacy_Search_Copilot",
     "Clearing hides the button and the pane of the first Copilot. The Copilot program of later versions is "
     "removed like any other program."},
    {"Checkbox_Privacy_Search_Recall",
     "Recall on computers made for it keeps a picture of your screen every few seconds, so that you can "
     "search in them. Clearing ends this and deletes the pictures taken so far."},
    {"Button_Privacy_Suggestions_Default", "Shows and searches what a new Windows does."},
};

}  // namespace

TExplanations PrivacyExplanations() { return kTexts; }
