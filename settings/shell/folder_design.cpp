#include "settings/shell/folder_design.h"

#include "settings/shell/folder_modern.h"

namespace {

// The colours that Explorer uses as long as none are stored, as 0x00BBGGRR.
constexpr TColor kCompressedBlue = 0xFF0000;
constexpr TColor kEncryptedGreen = 0x0D9213;
constexpr TColor kHotTrackingBlue = 0xCC6600;

TControlDesign ViewSheet() {
    return Sheet(
        L"TabSheet_Folder_View", L"View",
        Group(
            L"GroupBox_Folder_View_Windows", L"Folder windows",
            CheckBox(L"Checkbox_Folder_View_Windows_Tree", L"Open folders with the folder &tree"),
            CheckBox(L"Checkbox_Folder_View_Windows_ShowMenuBar", L"Always show &menus"),
            CheckBox(L"Checkbox_Folder_View_Windows_Details", L"Allow the details &pane"),
            CheckBox(L"Checkbox_Folder_View_Windows_Restore", L"Restore previous folder windows at &logon")),
        Group(L"GroupBox_Folder_View_BehaviorSet", L"View settings",
              CheckBox(L"Checkbox_Folder_View_BehaviorSet_SaveViewSet",
                       L"&Remember each folder's view settings"),
              Indent(Row(Label(L"Label_Folder_View_BehaviorSet_SaveViewSetCount", L"&Number of folders:"),
                         TrackBar(L"Trabar_Folder_View_BehaviorSet_SaveViewSetCount", 100, 7000, 5000),
                         Label(L"Label_Folder_View_BehaviorSet_SaveViewSetCountShow", L"5000")))),
        Buttons(Button(L"Button_Folder_View_BehaviorSet_Default", L"&Default")));
}

TControlDesign ListSheet() {
    return Sheet(
        L"TabSheet_Folder_List", L"File List",
        Group(L"GroupBox_Folder_List_Details", L"Tips",
              CheckBox(L"Checkbox_Folder_List_Details_FileAndDesktopTip",
                       L"Show pop-up description for folder and desktop &items"),
              Indent(CheckBox(L"Checkbox_Folder_List_Details_FolderTip",
                              L"Display file size information in folder &tips"))),
        Group(L"GroupBox_Folder_List_ArrangeIcons", L"Sort file names",
              RadioButton(L"Radio_Folder_List_ArrangeIcons_WithNumber",
                          L"By the &numbers in them (Photo 2 before Photo 10)")
                  .Checked(),
              RadioButton(L"Radio_Folder_List_ArrangeIcons_WithLetter",
                          L"By single &characters (Photo 10 before Photo 2)")),
        Group(L"GroupBox_Folder_List_EAndCFile", L"Encrypted and compressed files",
              CheckBox(L"Checkbox_Folder_List_EAndCFileWithColor",
                       L"&Show encrypted or compressed NTFS files in color"),
              Indent(Fields(Row(Label(L"Label_Folder_List_CompressedFile", L"Compressed files:"),
                                ColorSwatch(L"Ctrbar_Folder_List_CompressedFile_Color", kCompressedBlue),
                                Button(L"Button_Folder_List_CompressedFile_Change", L"C&hange...")),
                            Row(Label(L"Label_Folder_List_EncryptedFile", L"Encrypted files:"),
                                ColorSwatch(L"Ctrbar_Folder_List_EncryptedFile_Color", kEncryptedGreen),
                                Button(L"Button_Folder_List_EncryptedFile_Change", L"Chan&ge..."))))),
        Buttons(Button(L"Button_Folder_List_Default", L"&Default")));
}

TControlDesign ThumbnailSheet() {
    return Sheet(
        L"TabSheet_Folder_Thumbnail", L"Thumbnails",
        Group(L"GroupBox_Folder_Thumbnail", L"Thumbnails",
              Fields(Row(Label(L"Label_Folder_Thumbnail_Size", L"&Size:"),
                         Edit(L"Edit_Folder_Thumbnail_Size").Width(4).FilteringKeys().Sender(),
                         UpDown(L"UpDown_Folder_Thumbnail_Size", L"Edit_Folder_Thumbnail_Size", 32, 256, 96),
                         Label(L"Label_Folder_Thumbnail_SizeUnit", L"pixels")),
                     Row(Label(L"Label_Folder_Thumbnail_Quality", L"&Quality, low to high:"),
                         TrackBar(L"Trackbar_Folder_Thumbnail_Quality", 0, 100, 90))),
              CheckBox(L"Checkbox_Folder_Thumbnail_Cache", L"&Cache thumbnails")),
        Buttons(Button(L"Button_Folder_Thumbnail_Default", L"&Default")));
}

TControlDesign ChooseSheet() {
    return Sheet(L"TabSheet_Folder_Choose", L"Selection",
                 Group(L"GroupBox_Folder_Choose_Click", L"Single-click to open an item",
                       Row(Label(L"Label_Folder_Choose_Click", L"Color of the item under the pointer:"),
                           ColorSwatch(L"Ctrbar_Folder_Choose_Click_Color", kHotTrackingBlue),
                           Button(L"Button_Folder_Choose_Click_Change", L"&Change..."))),
                 Group(L"GroupBox_Folder_Choose_AddCheckBox", L"Selecting several items",
                       CheckBox(L"Checkbox_Folder_Choose_AddCheckBox", L"&Use check boxes to select items")));
}

TControlDesign AdvancedSheet() {
    return Sheet(L"TabSheet_Folder_Advanced", L"Advanced",
                 Group(L"GroupBox_Folder_Advanced_MyComputer", L"Computer",
                       Label(L"Label_Folder_Advanced_MyComputer", L"Choose the icons that this folder shows"),
                       Buttons(Button(L"Button_Folder_Advanced_MyComputer_Set", L"&Settings..."))),
                 Group(L"GroupBox_Folder_Advanced_Desktop", L"Desktop",
                       Label(L"Label_Folder_Advanced_Desktop", L"Choose the icons that the desktop shows"),
                       Buttons(Button(L"Button_Folder_Advanced_Desktop_Set", L"S&ettings..."))));
}

}  // namespace

TControlDesign FolderDesign() {
    return NotebookPage(
        3, PageControl(L"PageControl_Folder", ViewSheet(), ListSheet(), ThumbnailSheet(), ChooseSheet(),
                       AdvancedSheet(), FolderFilesSheet(), FolderExplorerSheet()));
}
