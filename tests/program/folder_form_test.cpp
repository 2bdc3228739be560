// The desktop-icons dialog: opened over the main window, driven, and what it leaves in the registry.
#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

constexpr const wchar_t* kFolderItem = L"RzGroup_Display.Items[1]";
constexpr const wchar_t* kDrives = L"ListView_Folder_Drivers";
constexpr const wchar_t* kRecycleBin = L"{645FF040-5081-101B-9F08-00AA002F954E}";
const TValuePlace kHidden{
    HKEY_CURRENT_USER,
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\NewStartPanel", kRecycleBin};
const TValuePlace kHiddenClassic{
    HKEY_CURRENT_USER,
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\ClassicStartMenu",
    kRecycleBin};
const TValuePlace kPrintersKey{
    HKEY_LOCAL_MACHINE,
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\"
    L"{2227A280-3AEA-1069-A2DE-08002B30309D}",
    L""};
const TValuePlace kNoDrives{HKEY_CURRENT_USER,
                            L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer", L"NoDrives"};

class TFolderForm : public TProgramTest {
  protected:
    TFolderForm() {
        for (const TValuePlace& place : {kHidden, kHiddenClassic, kNoDrives}) Store(place, std::nullopt);
        RegDeleteKeyW(kPrintersKey.Root, kPrintersKey.Key);
        Store(kPlayedVersion, Text(L"win7"));
    }
    ~TFolderForm() override { RegDeleteKeyW(kPrintersKey.Root, kPrintersKey.Key); }
    /// Opens the dialog from the folder page.
    static TMainWindow Open(const TProgram& program, const wchar_t* button) {
        const TMainWindow& window = program.Window();
        window.Click(kFolderItem);
        window.ChooseSheet(L"TabSheet_Folder_Advanced");
        window.Click(button);
        return TMainWindow::WaitFor(program.Id(), TMainWindow::kFolderClass);
    }
    static bool IsGone(const TMainWindow& dialog) {
        return WaitUntil([&] { return !IsWindow(dialog.Handle()); });
    }

  private:
    TValueKeeper FKeeper{{kHidden, kHiddenClassic, kNoDrives}};
};

TEST_F(TFolderForm, OkWritesWhatWasChangedOnEverySheet) {
    Store(kNoDrives, Dword(0x40000002));
    const TProgram program;
    const TMainWindow dialog = Open(program, L"Button_Folder_Advanced_Desktop_Set");
    EXPECT_FALSE(IsWindowEnabled(program.Window().Handle()));
    EXPECT_TRUE(dialog.Visible(L"TabSheet_Folder_Desktop"));
    dialog.Click(L"Checkbox_Folder_Desktop_RecycleBin");
    dialog.ChooseSheet(L"TabSheet_Folder_MyComputer");
    dialog.Click(L"Checkbox_Folder_MyComputer_Printers");
    dialog.ChooseSheet(L"TabSheet_Folder_Drivers");
    dialog.Press(VK_HOME, dialog.Find(kDrives));
    dialog.Press(VK_SPACE, dialog.Find(kDrives));
    EXPECT_EQ(Stored(kHidden), std::nullopt) << "written before OK";
    dialog.Press(VK_RETURN, dialog.Find(kDrives));
    ASSERT_TRUE(IsGone(dialog));
    EXPECT_EQ(Stored(kHidden), Dword(1));
    EXPECT_EQ(Stored(kHiddenClassic), Dword(1));
    EXPECT_EQ(Stored(kPrintersKey), Text(L""));
    EXPECT_EQ(Stored(kNoDrives), Dword(0x40000003));
    EXPECT_TRUE(IsWindowEnabled(program.Window().Handle()));
    EXPECT_FALSE(program.Window().Enabled(L"Button_Apply"));

    const TMainWindow again = Open(program, L"Button_Folder_Advanced_MyComputer_Set");
    EXPECT_TRUE(again.Visible(L"TabSheet_Folder_MyComputer"));
    EXPECT_TRUE(again.Checked(L"Checkbox_Folder_MyComputer_Printers")) << "loaded anew";
    EXPECT_FALSE(again.Checked(L"Checkbox_Folder_Desktop_RecycleBin"));
}

TEST_F(TFolderForm, TheOtherWaysOutWriteNothing) {
    const TProgram program;
    void (*const ways[])(const TMainWindow& dialog) = {
        [](const TMainWindow& dialog) { dialog.Click(L"Button_Cancel"); },
        [](const TMainWindow& dialog) { dialog.Press(VK_ESCAPE); },
        [](const TMainWindow& dialog) { dialog.Close(); },
    };
    for (const auto& leave : ways) {
        const TMainWindow dialog = Open(program, L"Button_Folder_Advanced_Desktop_Set");
        dialog.Click(L"Checkbox_Folder_Desktop_RecycleBin");
        leave(dialog);
        ASSERT_TRUE(IsGone(dialog));
    }
    EXPECT_EQ(Stored(kHidden), std::nullopt);

    // The program can end while the dialog is open.
    (void)Open(program, L"Button_Folder_Advanced_Desktop_Set");
    program.Window().Close();
    EXPECT_EQ(program.ExitCode(), 0u);
}

}  // namespace
