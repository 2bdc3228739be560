// The desktop-icons dialog, and how the main window opens it.
#include "app/folder_form.h"

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "tests/fakes/fake_system.h"

namespace {

constexpr const wchar_t* kRecycleBin = L"Checkbox_Folder_Desktop_RecycleBin";
const TRegistryPlace kRecycleBinHidden{
    TRootKey::CurrentUser,
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\NewStartPanel",
    L"{645FF040-5081-101B-9F08-00AA002F954E}"};

/// Stands for the main window's native side: a dialog meets a user who acts in it.
class TFakeFormPeer : public TFormPeer {
  public:
    explicit TFakeFormPeer(std::function<void(TForm& dialog)> user) : FUser(std::move(user)) {}

    void Close() override {}
    void Update(TControlAspect /*aspect*/) override {}
    void Reveal(TControl& /*control*/) override {}
    void ShowModal(TForm& dialog) override {
        dialog.Show();
        FUser(dialog);
    }

  private:
    std::function<void(TForm& dialog)> FUser;
};

class TFolderForm : public testing::Test {
  protected:
    TFolderForm() {
        Fake.Windows.SetVersion({.PlatformId = 2, .Major = 6, .Minor = 1});
        Fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\AppData");
        Fake.Files.PutDrives({{L'C', TDriveKind::Fixed, L"System"}, {L'Z', TDriveKind::Disc, L""}});
        Fake.Files.PutText(L"C:\\Program Files\\Quilltune\\Toolbox_Language\\English.lng",
                           "[Quilltune_M]\nD_Drivers=Drives!\n"
                           "[Scanner_Quilltune_FormFolder]\nQuilltune_FormFolder.Caption=Title\n");
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
        Window->Show();
    }
    /// Opens the dialog with a button of the main window.
    void Open(const wchar_t* button, const std::function<void(TForm& dialog)>& user) {
        int shown = 0;
        Window->SetPeer(std::make_unique<TFakeFormPeer>([&](TForm& dialog) {
            ++shown;
            user(dialog);
        }));
        Window->Find<TButton>(button)->Click();
        EXPECT_EQ(shown, 1);
    }
    std::optional<std::int32_t> RecycleBinHidden() const {
        const TRegistryData* data = Fake.Registry.Find(kRecycleBinHidden);
        return data == nullptr ? std::nullopt : std::optional(std::get<std::int32_t>(data->Value));
    }

    TFakeSystem Fake;
    std::unique_ptr<TQuilltune_FormMain> Window;
};

constexpr const wchar_t* kDesktopButton = L"Button_Folder_Advanced_Desktop_Set";

TEST_F(TFolderForm, EachButtonOpensItTranslatedAtItsSheet) {
    for (const auto& [button, sheet] :
         {std::pair(kDesktopButton, L"TabSheet_Folder_Desktop"),
          {L"Button_Folder_Advanced_MyComputer_Set", L"TabSheet_Folder_MyComputer"}}) {
        Open(button, [sheet = sheet](TForm& dialog) {
            EXPECT_EQ(dialog.Caption(), L"Title");
            EXPECT_EQ(dialog.Find(L"TabSheet_Folder_Drivers")->Caption(), L"Drives!");
            EXPECT_EQ(dialog.Find<TPageControl>(L"PageControl_Folder")->ActiveSheet()->Name(), sheet);
        });
    }
}

TEST_F(TFolderForm, F1ExplainsItsSettings) {
    Open(kDesktopButton, [&](TForm& dialog) {
        dialog.OnHelp(dialog.Find(L"Button_OK"));
        dialog.OnHelp(nullptr);
        EXPECT_TRUE(Fake.Dialogs.Questions().empty());
        dialog.Find<TCheckBox>(kRecycleBin)->SetChecked(false);
        dialog.OnHelp(dialog.Find(kRecycleBin));
        ASSERT_EQ(Fake.Dialogs.Questions().size(), 1U);
        const std::wstring help = Fake.Dialogs.Questions()[0].Text;
        for (const wchar_t* part :
             {L"Recycle Bin\n\n", L"HideDesktopIcons", L"stored: (not set)", L"0x00000001"})
            EXPECT_NE(help.find(part), std::wstring::npos) << testing::PrintToString(help);
    });
}

TEST_F(TFolderForm, DrivesAreNamedAndWhatIsForAllUsersIsMarked) {
    Open(kDesktopButton, [&](TForm& dialog) {
        EXPECT_EQ(dialog.Find(L"Label_Folder_Rights"), nullptr);
        const auto& drives = dialog.Find<TListView>(L"ListView_Folder_Drivers")->Rows();
        ASSERT_EQ(drives.size(), 26U);
        EXPECT_EQ(drives[1].Cells, (std::vector<std::wstring>{L"B:", L""}));
        EXPECT_EQ(drives[2].Cells, (std::vector<std::wstring>{L"C:", L"System"}));
        EXPECT_EQ(drives[25].Cells, (std::vector<std::wstring>{L"Z:", L"CD or DVD drive"}));
    });
    Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    Open(kDesktopButton, [&](TForm& dialog) {
        EXPECT_EQ(dialog.Find(L"Label_Folder_Rights")->Caption(),
                  L"What is marked * needs administrator rights");
        EXPECT_EQ(dialog.Find(L"Checkbox_Folder_MyComputer_Printers")->Caption(), L"P&rinters *");
        EXPECT_EQ(dialog.Find(kRecycleBin)->Caption(), L"&Recycle Bin");
    });
}

TEST_F(TFolderForm, OkWritesAndTellsTheShellAndNothingElseDoes) {
    const auto clear = [](TForm& dialog) {
        EXPECT_TRUE(dialog.Find<TCheckBox>(kRecycleBin)->Checked()) << "loaded at each showing";
        dialog.Find<TCheckBox>(kRecycleBin)->SetChecked(false);
    };
    Open(kDesktopButton, [&](TForm& dialog) {
        clear(dialog);
        dialog.Find<TButton>(L"Button_Cancel")->Click();
        EXPECT_TRUE(dialog.Closed());
    });
    Open(kDesktopButton, clear);  // and the window's cross
    EXPECT_EQ(RecycleBinHidden(), std::nullopt);
    EXPECT_TRUE(Fake.Shell.Notifications().empty() && Fake.Shell.SettingChanges().empty());

    Open(kDesktopButton, [&](TForm& dialog) {
        clear(dialog);
        dialog.Find<TButton>(L"Button_OK")->Click();
        EXPECT_TRUE(dialog.Closed());
    });
    EXPECT_EQ(RecycleBinHidden(), 1);
    EXPECT_EQ(Fake.Shell.Notifications(),
              (std::vector<TShellNotification>{{0x7FFFFFFF, 0x1000}, {0x08000000, 0}}));
    EXPECT_EQ(Fake.Shell.SettingChanges(),
              (std::vector<std::wstring>{L"Policy", L"ShellState", L"TraySettings"}));
    EXPECT_FALSE(Window->Find(L"Button_Apply")->Enabled()) << "no business of the main window's";
}

}  // namespace
