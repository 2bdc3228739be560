// What the settings of the Folder Types page are for.
#include "settings/explanation.h"

namespace {

constexpr const char* kFolderThumbnailSize =
    "Windows XP draws thumbnails in this size; larger ones take more memory and time. Since Vista you choose "
    "the size in each folder's view instead.";

constexpr TExplanation kTexts[] = {
    {"Checkbox_Folder_View_Windows_Tree",
     "A double-click opens a folder with the folder tree at its side, for all users. Made for Windows XP and "
     "earlier: since Vista folder windows have a navigation pane, so leave this alone there."},
    {"Checkbox_Folder_View_Windows_ShowMenuBar",
     "Since Vista folder windows hide their menu bar until you press Alt. With this it stays visible. "
     "Earlier versions always show it."},
    {"Checkbox_Folder_View_Windows_Details",
     "The pane with the properties of what is selected, at the lower edge of folder windows since Vista. "
     "Clearing hides it, and the menus of Windows cannot bring it back. Earlier versions do not have it."},
    {"Checkbox_Folder_View_Windows_Restore",
     "Folder windows that were open when you logged off are opened again when you log on. Saves time if you "
     "work in the same folders every day; logging on takes a little longer."},
    {"Checkbox_Folder_View_BehaviorSet_SaveViewSet",
     "Each folder opens with the view and sorting in which you left it; otherwise folders open in the view "
     "of their kind. Windows 7 always remembers and no longer offers this choice."},
    {"Trabar_Folder_View_BehaviorSet_SaveViewSetCount",
     "When the number is reached, Windows forgets the view of the folder that was not opened for the longest "
     "time. By default Windows XP keeps some hundred. The value is meant for Windows 2000 and XP; later "
     "versions keep their views at other places as well."},
    {"Button_Folder_View_BehaviorSet_Default",
     "Opens folders without the tree, does not restore them at logon, allows the details pane and remembers "
     "the view of 5000 folders; the menus stay as they are."},
    {"Checkbox_Folder_List_Details_FileAndDesktopTip",
     "A small window with type, size and date appears when the mouse pointer rests on a file. Clear it if "
     "the tips cover what you want to see."},
    {"Checkbox_Folder_List_Details_FolderTip",
     "The tip of a folder tells its size and some of the files in it. Windows has to look through the folder "
     "for this, which may take time on slow or network drives."},
    {"Radio_Folder_List_ArrangeIcons_WithNumber",
     "Numbers in names are compared by their value, as most people count. This is the default since Windows "
     "XP; Windows 2000 always compares single characters."},
    {"Radio_Folder_List_ArrangeIcons_WithLetter",
     "Names are compared character by character, digits as well, as Windows 2000 does. Useful for names with "
     "hexadecimal numbers or fixed numbers of digits. Applies to all users."},
    {"Checkbox_Folder_List_EAndCFileWithColor",
     "Compressed files show in blue and, since Windows XP, encrypted ones in green, unless you choose other "
     "colors below."},
    {"Button_Folder_List_CompressedFile_Change",
     "Windows shows the names of compressed files in this color, in blue as long as you choose none."},
    {"Button_Folder_List_EncryptedFile_Change",
     "Since Windows XP the names of encrypted files show in this color, in green as long as you choose none. "
     "Windows 2000 does not mark them."},
    {"Button_Folder_List_Default",
     "Shows tips and colors and sorts by the numbers in names; the colors chosen stay as they are."},
    {"Edit_Folder_Thumbnail_Size", kFolderThumbnailSize},
    {"UpDown_Folder_Thumbnail_Size", kFolderThumbnailSize},
    {"Trackbar_Folder_Thumbnail_Quality",
     "How strongly Windows XP compresses the thumbnails that it stores: less quality saves space on the "
     "disk. Thumbnails that are stored already stay as they are. Later versions have no such choice."},
    {"Checkbox_Folder_Thumbnail_Cache",
     "Windows XP keeps the small pictures in a hidden file Thumbs.db in each folder, so that they show "
     "faster the next time. Clear it to avoid these files, for example on network drives; existing ones are "
     "not deleted."},
    {"Button_Folder_Thumbnail_Default", "Sets size 96, quality 90 and caching, as in a new Windows XP."},
    {"Button_Folder_Choose_Click_Change",
     "Windows uses this system color for links and, when folders open items with a single click, for the "
     "name under the pointer. It shows from the next logon; choosing a theme or color scheme sets it anew."},
    {"Checkbox_Folder_Choose_AddCheckBox",
     "Since Vista a small box appears on each item when you point to it, so that you can select several "
     "without holding down Ctrl. Handy for pen and touch input. Earlier versions do not have it."},
    {"Checkbox_Folder_Files_Extensions",
     "Shows \"letter.docx\" where Windows shows \"letter\". It protects you from files such as "
     "\"invoice.pdf.exe\", which pretend to be something else."},
    {"Checkbox_Folder_Files_Hidden",
     "Programs keep their settings in hidden folders such as AppData. They show paler than others; delete "
     "nothing there that you do not know."},
    {"Checkbox_Folder_Files_System",
     "Files of Windows itself, which it needs to start. Only for those who look for a fault; best turned off "
     "again afterwards."},
    {"Checkbox_Folder_Files_IconsOnly",
     "Folders with many pictures and films open faster, because nothing has to be read from them. You see "
     "only their symbols."},
    {"Checkbox_Folder_Files_NetworkThumbnails",
     "Explorer leaves a hidden file thumbs.db in folders of other computers, which sometimes keeps them from "
     "being deleted. Clear it to avoid that."},
    {"Checkbox_Folder_Files_AskDelete",
     "Since Windows 8 files go to the Recycle Bin without a question. Check it if a slip of the finger "
     "worries you."},
    {"Checkbox_Folder_Files_RecycleBin",
     "If you clear it, deleted files are gone at once and cannot be brought back."},
    {"Button_Folder_Files_Default", "Shows and deletes files as a new Windows does."},
    {"CB_Folder_Explorer_LaunchTo",
     "What a new Explorer window shows: the drives, or what you used last and have pinned."},
    {"CB_Folder_Explorer_Ribbon",
     "The broad bar of commands in Explorer up to Windows 10. Small, it shows only its titles until you "
     "click one."},
    {"Checkbox_Folder_Explorer_Compact",
     "Windows 11 leaves room for fingers between the lines. With less of it more files fit into the window."},
    {"Checkbox_Folder_Explorer_FullPath",
     "Title and taskbar name the whole way to the folder, which tells folders of the same name apart."},
    {"Checkbox_Folder_Explorer_FullMenu",
     "Windows 11 shows a short menu first and all commands only after \"Show more options\". With this the "
     "full menu comes at once, for your account; Windows 11 may stop reading it in a later version."},
    {"Checkbox_Folder_Explorer_ItemCount",
     "The bar that says how many items there are, how many are selected and how large they are."},
    {"Checkbox_Folder_Explorer_SyncNotices",
     "Storage services may show messages at the top of the window. Some of them are advertising for more "
     "space."},
    {"Checkbox_Folder_Explorer_Recent",
     "Home or Quick access then lists the files opened last. Clear it if others should not see them there."},
    {"Checkbox_Folder_Explorer_Frequent",
     "Folders that you open often appear there by themselves; pinned ones stay in any case."},
    {"Checkbox_Folder_Explorer_Cloud",
     "Home also names files in OneDrive and Microsoft 365, which it asks for at Microsoft. For all users."},
    {"Checkbox_Folder_Explorer_Home",
     "The entry at the top with what you used last. If you clear it, let Explorer open with This PC."},
    {"Checkbox_Folder_Explorer_Gallery",
     "The entry with all your pictures in order of time. The pictures stay where they are."},
    {"Button_Folder_Explorer_Default",
     "Brings windows, lists and the navigation pane into the state of a new Windows."},
};

}  // namespace

TExplanations FolderExplanations() { return kTexts; }
