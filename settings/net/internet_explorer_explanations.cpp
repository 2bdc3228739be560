// What the settings of the Internet Explorer page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Edit_IE_Common_Homepage_Address",
     "Page that Internet Explorer opens when it starts and with its Home button; about:blank is an empty "
     "page. Further home pages (Internet Explorer 7 and later) stay as they are."},
    {"Updown_IE_Common_History_KeepDays",
     "Pages that were visited longer ago drop out of the history. Few days leave fewer traces for others at "
     "this computer, many make it easier to find a page again."},
    {"Button_IE_Common_History_Clear",
     "Deletes the list of visited pages and the addresses that were typed. This is done at once after a "
     "question, not with Apply, and cannot be undone."},
    {"Checkbox_IE_Common_Media_Open",
     "Without pictures, pages load faster over a slow line. A single picture is then shown by Show Picture "
     "in the context menu of its frame."},
    {"Checkbox_IE_Common_Media_Resize",
     "Shows a picture that is opened on its own and is larger than the window as small as needed to see it "
     "whole. Needs Internet Explorer 6 or later."},
    {"Checkbox_IE_Common_Media_Animation",
     "Lets animated GIF pictures move; without it they stand still, which is less distracting. Flash and "
     "other add-ons are not affected. Takes effect when Internet Explorer is started again."},
    {"Checkbox_IE_Common_Media_Sound",
     "Plays background music and other sounds that belong to a page. The sound of Flash, videos and other "
     "add-ons is not affected."},
    {"Checkbox_IE_Common_Popup_Block",
     "Keeps pages from opening windows that nobody asked for; by default, windows that open after a click "
     "are let through. Exceptions for single sites are made in Internet Explorer. The blocker came with "
     "Service Pack 2 of Windows XP."},
    {"Button_IE_Common_Default",
     "Sets the history to 20 days and checks all boxes of this sheet; the home page stays as it is."},
    {"Checkbox_IE_Tab_Active",
     "Shows several pages in one window, each on a tab of its own. Needs Internet Explorer 7 or later and "
     "takes effect when it is started again."},
    {"Checkbox_IE_Tab_WarnOnClose",
     "Asks before a window with several tabs is closed, so that one wrong click does not close them all. "
     "Whoever chooses there not to be asked again clears this box. Needs Internet Explorer 7 or later."},
    {"Checkbox_IE_Tab_Foreground",
     "A link that is opened in a new tab is shown at once. Otherwise its tab waits in the background while "
     "you read on. Needs Internet Explorer 7 or later."},
    {"CB_IE_Tab_New",
     "What a tab shows that you open yourself, for example with Ctrl+T. Internet Explorer 8 and later use "
     "this; Internet Explorer 7 does not know it."},
    {"CB_IE_Tab_Popup",
     "Where a window appears that a page wants to open and the Pop-up Blocker lets through. "
     "\"Automatically\" leaves the decision to Internet Explorer. Needs Internet Explorer 7 or later."},
    {"CB_IE_Tab_Link",
     "Where a page appears whose link you click in an e-mail or in another program. \"In the current tab\" "
     "replaces the page that is shown there. Needs Internet Explorer 7 or later."},
    {"Button_IE_Tab_Default", "Sets all options of this sheet to the defaults of Internet Explorer."},
    {"Checkbox_IE_AutoComplete_Address_Suggest",
     "While you type an address, a list offers those that fit. It also holds for the address bar of Explorer "
     "and the Run dialog. Clear it if others should not see at a glance where you have been."},
    {"Checkbox_IE_AutoComplete_Address_Append",
     "Adds the rest of a fitting address behind the cursor while you type; Enter accepts it, typing on "
     "replaces it. It also holds for the address bar of Explorer and the Run dialog."},
    {"Checkbox_IE_AutoComplete_Form_Suggest",
     "Offers earlier entries when a field of the same kind is filled in again. Everyone who uses your "
     "Windows account sees them, too."},
    {"Checkbox_IE_AutoComplete_Form_Password",
     "Fills in the password when you enter a user name that is known on the page. Passwords are stored "
     "encrypted, but everyone who uses your Windows account can log on with them."},
    {"Checkbox_IE_AutoComplete_Form_Ask",
     "Asks whether to keep a password that is entered for the first time. The answer No is remembered as "
     "well: for this name Internet Explorer does not ask on that page again."},
    {"Button_IE_AutoComplete_Default",
     "Turns on the list of addresses, passwords and the question before they are saved, and turns off the "
     "rest of this sheet."},
    {"Checkbox_IE_Advanced_Connection_Http11",
     "HTTP 1.1 is the protocol that web servers normally speak; it can use a connection several times. Clear "
     "it only to look for the cause of trouble with a very old server."},
    {"Checkbox_IE_Advanced_Connection_Proxy11",
     "This matters only where the Internet is reached through a proxy server. Clear it if pages do not load "
     "there, as some old proxy servers speak HTTP 1.0 only."},
    {"Checkbox_IE_Advanced_Connection_Count",
     "Up to Internet Explorer 7, only two connections (four with HTTP 1.0) to one server are made at a time, "
     "so that a third download waits; later versions allow six anyway. Takes effect when Internet Explorer "
     "is started again."},
    {"Checkbox_IE_Advanced_Warning_Certificate",
     "Warns when a secure site shows a certificate that was issued for another address: somebody may be "
     "posing as this site. It is best left on. Takes effect when Internet Explorer is started again."},
    {"Checkbox_IE_Advanced_Warning_Zone",
     "Tells you when you go from an encrypted page (https) to one that is not, or back. Those who keep an "
     "eye on the lock symbol in the window can do without it."},
    {"Checkbox_IE_Advanced_Warning_Redirect",
     "Asks before data that you entered in a form goes on to another place than the one to which the page "
     "sends it. It is best left on."},
    {"Checkbox_IE_Advanced_Warning_Script",
     "Interrupts you with every fault in the scripts of a page, which helps those who write web pages. For "
     "all others a symbol in the status bar is enough."},
    {"Checkbox_IE_Advanced_Warning_Friendly",
     "Replaces short error pages of a server by an explanation of Internet Explorer. Clear it to see what "
     "the server itself answers, for example when you look after a site."},
    {"Checkbox_IE_Advanced_Warning_Download",
     "Shows a message when a file has been downloaded. Clear it if you download many files and do not want "
     "to confirm each one."},
    {"Checkbox_IE_Advanced_Warning_Browser",
     "When Internet Explorer starts, it asks whether it is to open web pages and links again if another "
     "browser does so now. Clear it if you want to keep the other one."},
    {"Checkbox_IE_Advanced_Warning_Update",
     "Lets Internet Explorer ask Microsoft from time to time whether there is a newer version of it. Its "
     "security updates come through Windows Update either way."},
    {"Button_IE_Advanced_Default",
     "Turns on HTTP 1.1 and all boxes of the lower group except those for secure mode and script errors, and "
     "turns off the other two connection options."},
};

}  // namespace

TExplanations InternetExplorerExplanations() { return kTexts; }
