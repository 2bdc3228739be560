// What the settings of the Information page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Edit_System_Common_Infomation_Name",
     "Name that About Windows (winver) shows and that Setup programs suggest as long as the group below "
     "holds no other. It has no effect on user accounts or on the license."},
    {"Edit_System_Common_Infomation_Company",
     "Company, school or the like that About Windows (winver) shows below the owner; it may be empty. Setup "
     "programs suggest it as long as the group below holds no other."},
    {"Edit_System_Common_Installer_Name",
     "User name that older Setup programs of Microsoft can suggest; others may take the registered owner. "
     "While nothing is stored, the registered owner is shown here."},
    {"Edit_System_Common_Installer_Company",
     "Company that older Setup programs of Microsoft can suggest; others may take the registered "
     "organization. While nothing is stored, the registered organization is shown here."},
    {"Checkbox_System_CommonDialog_FileName_Recent",
     "Lets the list at the File name field of the Open dialog offer the files used last; clear it if others "
     "should not see them. Dialogs in the style of Windows Vista and later ignore it."},
    {"Checkbox_System_CommonDialog_FileName_Autofinish",
     "While you type a file name in an Open or Save dialog, Windows offers the names in the folder that fit. "
     "Programs with dialogs of their own are not affected."},
    {"Checkbox_System_CommonDialog_FolderNavigation_ShowReturn",
     "The button leads back to the folder that was shown before. A click here stores the state of \"Complete "
     "file names while they are typed\": show the button if that is checked, hide it otherwise. Dialogs in "
     "the style of Windows Vista and later ignore it."},
    {"Checkbox_System_CommonDialog_FolderNavigation_ShowLeft",
     "The bar at the left of Open and Save dialogs with Desktop, My Documents and other places. Without it "
     "there is more room for the files. Dialogs in the style of Windows Vista and later ignore it."},
    {"Button_System_CommonDialog_Default", "Checks all boxes of this sheet, as Windows does by default."},
    {"Checkbox_System_Search_IndexService_Enabled",
     "The Indexing Service of Windows 2000 and XP reads files in the background so that they are found "
     "faster. If this is cleared, it starts with Windows. Takes effect when Windows is started again; "
     "Windows Search, its successor, is not affected."},
    {"Checkbox_System_Search_IndexService_ClassicSearch_InExplorer",
     "Shows plain search fields in Explorer in place of the Search Companion with its animated figure. Only "
     "Windows XP has that one; other versions ignore this setting."},
    {"Button_System_Search_Default",
     "Lets the Indexing Service start with Windows and chooses the Search Companion of Windows XP."},
    {"CMboundColor",
     "Color behind the text of command prompts that are opened from then on. Black behind black text counts "
     "as no choice, which gives the colors of the window. The switch /T of cmd overrides it."},
    {"CMfontcolor",
     "Color of the text in command prompts that are opened from then on; it should stand out from the "
     "background. The switch /T of cmd overrides it."},
};

}  // namespace

TExplanations SystemExplanations() { return kTexts; }
