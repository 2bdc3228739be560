#include "app/about_form.h"

#include <gtest/gtest.h>

#include "tests/fakes/fake_system.h"
#include "ui/controls.h"

namespace {

TEST(TAboutForm, SaysWhatItIsAndOpensTheFolderIfThereIsOne) {
    TFakeSystem fake;
    fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Data");
    const TLanguage none(fake.System, L"Scanner");
    const std::wstring folder = L"C:\\Data\\Vandrel\\Orbicare V4";
    const std::wstring notices = L"a library\nof somebody";
    for (const bool isMissing : {false, true}) {
        const TCaptions captions;
        TQuilltune_FormAbout about(fake.System, captions, none, notices);
        about.Show();
        EXPECT_EQ(about.Find(L"Label_About_Notices")->Caption(), notices);
        EXPECT_EQ(about.Find(L"Label_About_Folder")->Caption(), folder);
        fake.Shell.MissingFolder = isMissing ? folder : L"";
        about.Find<TButton>(L"Button_About_Folder")->Click();
        EXPECT_EQ(fake.Shell.OpenedFolders.back(), folder);
        EXPECT_EQ(about.Find(L"Button_About_Folder")->Enabled(), !isMissing);
        EXPECT_EQ(about.Find(L"Label_About_Folder")->Caption() == folder, !isMissing);
        EXPECT_TRUE(fake.Dialogs.Questions().empty());
        about.Find<TButton>(L"Button_About_Close")->Click();
        EXPECT_TRUE(about.Closed());
    }
}

}  // namespace
