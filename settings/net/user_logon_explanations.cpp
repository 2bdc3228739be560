// What the settings of the User Logon page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Radio_UserLogin_Common_LoginInterface_XP",
     "Shows the accounts of Windows XP with their pictures to click on; fast user switching needs it. "
     "Computers in a domain always have the logon box. Windows 2000 has no Welcome screen, and Windows Vista "
     "and later have a logon screen of their own."},
    {"Radio_UserLogin_Common_LoginInterface_2k",
     "Asks for user name and password, as Windows 2000 does, and shows strangers no list of accounts. On "
     "Windows XP there is then no fast user switching. Windows Vista and later have a logon screen of their "
     "own."},
    {"Checkbox_UserLogin_Common_Set_UserName",
     "Whoever logs on must enter the user name as well, so that strangers do not learn it from the screen. "
     "The Welcome screen of Windows XP shows the names nevertheless."},
    {"Checkbox_UserLogin_Common_Set_PressCAD",
     "Other programs cannot catch these keys, so that you can be sure that it is Windows that asks for your "
     "password. The Welcome screen of Windows XP does without them, and a group policy takes precedence."},
    {"Checkbox_UserLogin_Common_Set_ShowShutdown",
     "Offers to shut down on the logon screen. Clear it on computers that strangers should not switch off, "
     "such as servers; their power switch must be out of reach as well."},
    {"Checkbox_UserLogin_Common_Set_EndTask",
     "Ends them without asking, so that unsaved work is lost. As long as nothing is stored Windows asks, "
     "although the box is checked. The page Start and Maintenance stores the same choice as a text, as "
     "Windows documents it, this box as a number."},
    {"Checkbox_UserLogin_AutoLogin_ActiveAutoLogin",
     "Windows starts without asking who you are. It is only for computers that nobody else can reach: the "
     "password is stored unencrypted in the registry. Clearing it deletes user name, password and domain "
     "there."},
    {"Edit_UserLogin_AutoLogin_LoginInfo_UserName",
     "Logon name of the account that is logged on. It can differ from the full name that is shown on the "
     "Welcome screen and in the Start menu."},
    {"Edit_UserLogin_AutoLogin_LoginInfo_Password",
     "It is shown here and stored as it is typed, so that everyone who may read the registry of this "
     "computer learns it. With an empty password, Windows may turn automatic logon off again."},
    {"Edit_UserLogin_AutoLogin_LoginInfo_Domain",
     "Domain to which the account belongs. For an account of this computer enter the name of the computer."},
    {"Checkbox_UserLogin_AutoLogin_Option_SkipLogin",
     "Normally, holding down Shift while Windows starts lets another user log on. Public terminals should "
     "not offer this way; before you close it, make sure that you do not lock yourself out."},
    {"Checkbox_UserLogin_AutoLogin_Option_AutoLoginAfterLogoff",
     "The same user is logged on again at once, as public terminals need it. Others can then log on only by "
     "holding down Shift, and not at all if that key is ignored."},
    {"Checkbox_UserLogin_Message_Notify_ActiveShowMessage",
     "Everyone who logs on must first confirm this message, for example terms of use. It also holds up an "
     "automatic logon. Clearing it deletes title and text."},
    {"Edit_UserLogin_Message_Notify_Title",
     "Stands above the message, for example the name of your company. A message that a group policy "
     "prescribes takes its place."},
    {"Edit_UserLogin_Message_Notify_Text",
     "What users read and confirm before they log on. A message that a group policy prescribes takes its "
     "place."},
    {"Checkbox_UserLogin_Message_Logoff_ActiveShow",
     "Says step by step what Windows is doing when it starts, shuts down and logs users on and off. That "
     "helps to find out what takes so long."},
};

}  // namespace

TExplanations UserLogonExplanations() { return kTexts; }
