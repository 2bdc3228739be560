#include "settings/shell/folder_modern.h"

TControlDesign FolderFilesSheet() {
    return Sheet(
        L"TabSheet_Folder_Files", L"Files",
        Group(
            L"GroupBox_Folder_Files", L"What folders show",
            CheckBox(L"Checkbox_Folder_Files_Extensions", L"Show file name &extensions"),
            CheckBox(L"Checkbox_Folder_Files_Hidden", L"Show &hidden files and folders"),
            CheckBox(L"Checkbox_Folder_Files_System", L"Show &protected system files"),
            CheckBox(L"Checkbox_Folder_Files_IconsOnly", L"Always show &icons, never pictures"),
            CheckBox(L"Checkbox_Folder_Files_NetworkThumbnails", L"Store small pictures in &network folders"),
            CheckBox(L"Checkbox_Folder_Files_OneDrive", L"Show &OneDrive beside the folders")),
        Group(L"GroupBox_Folder_Files_Delete", L"Deleting",
              CheckBox(L"Checkbox_Folder_Files_AskDelete", L"As&k before deleting"),
              CheckBox(L"Checkbox_Folder_Files_RecycleBin", L"&Move deleted files to the Recycle Bin")),
        Group(L"GroupBox_Folder_Explorer_Address", L"Address bar and Run dialog",
              CheckBox(L"Checkbox_Folder_Explorer_Suggest", L"&Suggest addresses in a list"),
              CheckBox(L"Checkbox_Folder_Explorer_Append", L"Comple&te addresses while I type")),
        Buttons(Button(L"Button_Folder_Files_Default", L"&Default")));
}

TControlDesign FolderExplorerSheet() {
    return Sheet(
        L"TabSheet_Folder_Explorer", L"Explorer",
        Group(L"GroupBox_Folder_Explorer", L"Window",
              Fields(Row(Label(L"Label_Folder_Explorer_LaunchTo", L"&Open Explorer with:"),
                         ComboBox(L"CB_Folder_Explorer_LaunchTo", {L"This PC", L"Home or Quick access"})),
                     Row(Label(L"Label_Folder_Explorer_Ribbon", L"Ri&bbon:"),
                         ComboBox(L"CB_Folder_Explorer_Ribbon",
                                  {L"As I left it", L"Always small", L"Always open"}))),
              CheckBox(L"Checkbox_Folder_Explorer_Compact", L"Use compact spa&cing"),
              CheckBox(L"Checkbox_Folder_Explorer_FullPath", L"Show the full &path in the title"),
              CheckBox(L"Checkbox_Folder_Explorer_FullMenu",
                       L"Show the full &menu at once when right-clicking"),
              CheckBox(L"Checkbox_Folder_Explorer_ItemCount", L"Show the number of &items at the lower edge"),
              CheckBox(L"Checkbox_Folder_Explorer_SyncNotices", L"Show notices of O&neDrive and the like")),
        Group(L"GroupBox_Folder_Explorer_Home", L"Lists and navigation pane",
              CheckBox(L"Checkbox_Folder_Explorer_Recent", L"Show &recently used files"),
              CheckBox(L"Checkbox_Folder_Explorer_Frequent", L"Show &frequently used folders"),
              CheckBox(L"Checkbox_Folder_Explorer_Cloud", L"Show files from the c&loud in Home"),
              CheckBox(L"Checkbox_Folder_Explorer_Home", L"Show &Home"),
              CheckBox(L"Checkbox_Folder_Explorer_Gallery", L"Show &Gallery")),
        Buttons(Button(L"Button_Folder_Explorer_Default", L"&Default")));
}
