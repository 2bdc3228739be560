// What the settings of the File Types page are for.
#include "settings/explanation.h"

namespace {

constexpr TExplanation kTexts[] = {
    {"Checkbox_FileType_MenuOperation_Drive_OpenDrive",
     "Adds a command to the menu of drives and folders that opens a new window in which the item is the top "
     "of the folder tree. Useful for working in one branch only. Applies to all users."},
    {"Checkbox_FileType_MenuOperation_Drive_OpenCmd",
     "Adds a command to the menu of folders that opens the command prompt there, for all users. Since Vista "
     "Windows has one of its own, which appears when you hold down Shift while right-clicking."},
    {"Checkbox_FileType_MenuOperation_FileAndFolder_SendTo",
     "The submenu that passes files on to the desktop, a drive, a mail message or a program. Clearing "
     "removes it for all users; the shortcuts in the SendTo folder are kept."},
    {"Checkbox_FileType_MenuOperation_FileAndFolder_CopyTo",
     "Adds a command that asks for a folder and copies the selected items there. Windows has it in the "
     "folder windows, but not in this menu. Applies to all users."},
    {"Checkbox_FileType_MenuOperation_FileAndFolder_MoveTo",
     "Adds a command that asks for a folder and moves the selected items there. Windows has it in the folder "
     "windows, but not in this menu. Applies to all users."},
    {"Checkbox_FileType_MenuOperation_FileAndFolder_Encryption",
     "Saves the way through the properties of files on NTFS drives. The Home editions of Windows cannot "
     "encrypt files. Back up your certificate: without it the files cannot be read after a new "
     "installation."},
    {"Checkbox_FileType_MenuOperation_FileAndFolder_New",
     "The submenu that creates folders, shortcuts and documents; it appears on the empty area of a folder or "
     "the desktop. Clearing removes it for all users."},
    {"Button_FileType_MenuOperation_Default",
     "Checks \"Open Explorer here\" and resets the cursor and the Windows key in the input options; the "
     "other entries of the menus stay as they are."},
    {"Radio_FileType_OpenFile_DefaultPrograme_WithOpen",
     "A double-click on a file whose type no program has registered lets you choose a program. This is how "
     "Windows is set up."},
    {"Radio_FileType_OpenFile_DefaultPrograme_Open",
     "Opens files of unknown type at once with one program, for example an editor. Applies to all users, and "
     "to files that the program cannot read as well."},
    {"Button_FileType_OpenFile_DefaultPrograme_Change",
     "Lets you pick the program that opens files of unknown type. The field shows the command with which it "
     "is called."},
    {"Checkbox_FileType_OpenFile_DefaultPrograme_Net",
     "Windows first offers to look up the file type on a Web site of Microsoft's, which is told the "
     "extension. Without it you get the list of installed programs at once. Windows 2000 has no such "
     "service."},
    {"Radio_FileType_OpenFile_NoEndExe_OpenWith",
     "Takes away the program of their own, so that the choice for files of unknown type holds for these as "
     "well. What is chosen here at first does not tell which of the two is in force."},
    {"Radio_FileType_OpenFile_NoEndExe_Open",
     "Opens these files at once with a program of their own, for all users. At first it is the one that "
     "stands in the group above; the button chooses another."},
    {"Button_FileType_OpenFile_NoEndExe_Change",
     "Lets you pick the program that opens files without an extension. The field shows the command with "
     "which it is called."},
    {"Button_FileType_OpenFile_Default",
     "Chooses \"Open With\" for both kinds of files, and the Web service."},
    {"Checkbox_FileType_Advanced_NewShortcut_AddHead",
     "Clear it to name new shortcuts as what they point to. Since Vista Windows puts \"- Shortcut\" behind "
     "the name instead, which this turns off as well. Existing shortcuts keep their names."},
    {"Checkbox_FileType_Advanced_PictureAndFax_OpenPicture",
     "Lets the viewer of Windows XP open pictures by default; clearing takes only this from it, its menu "
     "entry stays. Other versions do not have this viewer: leave the setting alone there. At first the box "
     "does not tell what is set."},
    {"Button_FileType_Advanced_Default", "Checks both boxes of this sheet, as Windows XP does by default."},
};

}  // namespace

TExplanations FileTypesExplanations() { return kTexts; }
