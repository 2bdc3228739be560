// Changes that are taken back before Apply, and pages that are read again beside changes that stay.
#include "tests/app/changes_fixture.h"

namespace {

TEST(TTakeBack, LeavesWhatIsStored) {
    int some = 0;
    for (unsigned seed = 0; seed < 12; ++seed) {
        SCOPED_TRACE(seed);
        TWorld world(seed + 1000);
        world.Open();
        const auto stored = world.Shown();
        world.Act(1 + world.Pick(8));
        while (world.Window->Find(L"Button_Changes")->Enabled()) {
            const auto pending = world.PendingRows();
            const auto chosen = static_cast<std::size_t>(world.Pick(static_cast<int>(pending.size())));
            world.Dialog(L"Button_Changes", [&](TForm& dialog) {
                auto& list = List(dialog, L"ListView_Changes");
                EXPECT_FALSE(dialog.Find(L"Button_Changes_Revert")->Enabled());
                list.SetSelected({chosen}, static_cast<int>(chosen));
                Press(dialog, L"Button_Changes_Revert");
                for (const TListView::TRow& row : list.Rows())
                    EXPECT_EQ(std::ranges::count(pending, row.Cells, &TListView::TRow::Cells), 1)
                        << "what stays, stays as it was" << testing::PrintToString(row.Cells);
            });
            const auto left = world.PendingRows();
            ASSERT_LT(left.size(), pending.size());
            some += left.empty() ? 0 : 1;
        }
        // Without a profile there is nothing to save preferences to, and so nothing is listed.
        if (world.Window->Context().FirefoxChanged) continue;
        EXPECT_FALSE(world.Window->Find(L"Button_Apply")->Enabled());
        const auto shown = world.Shown();
        for (const auto& [name, state] : stored) {
            // Fields that page loads leave alone follow the last click.
            EXPECT_EQ(shown.at(name), state) << testing::PrintToString(name);
        }
        if (testing::Test::HasFailure()) return;
    }
    EXPECT_GT(some, 10);
}

TEST(TTakeBack, IsWhatLeavesNothingOfWhatNoLoaderShows) {
    constexpr auto kTree = L"Checkbox_Folder_View_Windows_Tree";  // which Windows 7 has, but does not read
    constexpr auto kOpen = L"Radio_FileType_OpenFile_DefaultPrograme_Open";
    TWorld world(0);
    const auto store = [&](const wchar_t* command) {
        world.Fake.Registry.Put({TRootKey::ClassesRoot, L"\\Unknown\\shell\\open\\command\\", L""},
                                {TRegDataType::String, std::wstring(command)});
    };
    world.Fake.Windows.SetVersion({.PlatformId = 2, .Major = 6, .Minor = 1});
    store(L"old.exe");
    world.Open();
    auto& tree = *world.Window->Find<TCheckBox>(kTree);
    auto& command = *world.Window->Find<TEdit>(L"Edit_FileType_OpenFile_DefaultPrograme_Open");
    auto& open = *world.Window->Find<TRadioButton>(kOpen);

    auto& picture = *world.Window->Find<TCheckBox>(L"Checkbox_FileType_Advanced_PictureAndFax_OpenPicture");
    const bool wasChecked = picture.Checked();  // as another setting's value says
    picture.SetChecked(!wasChecked);
    tree.SetChecked(true);
    Press(*world.Window, L"Button_Apply");
    command.SetText(L"typed.exe");
    world.Window->ComeBack();
    EXPECT_TRUE(tree.Checked()) << "as it was applied";
    EXPECT_NE(picture.Checked(), wasChecked);
    EXPECT_EQ(command.Text(), L"typed.exe");

    open.SetChecked(false);
    open.SetChecked(true);
    tree.SetChecked(false);
    tree.SetChecked(true);
    world.TakeBack(L"tree");
    EXPECT_FALSE(tree.Checked());
    EXPECT_EQ(command.Text(), L"typed.exe") << "which Apply will write";
    Press(*world.Window, L"Button_Apply");
    world.Undo();
    EXPECT_EQ(command.Text(), L"old.exe");
}

TEST(TTakeBack, KeepsPreferencesBesideAPageThatCannotBeReadWhole) {
    constexpr auto kBlink = L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing";
    TWorld world(0);
    world.Fake.Windows.SetVersion({.PlatformId = 2, .Major = 6, .Minor = 1});
    world.Fake.Files.PutText(TWorld::kUserFile, "user_pref(\"browser.tabs.closeButtons\", \"none\");\r\n");
    EXPECT_THROW(world.Open(), std::exception);
    auto& tree = *world.Window->Find<TCheckBox>(L"Checkbox_Folder_View_Windows_Tree");
    tree.SetChecked(!tree.Checked());
    world.Window->Find<TCheckBox>(kBlink)->SetChecked(true);
    EXPECT_THROW(world.TakeBack(L"tree"), std::exception) << "which the fault log tells";
    EXPECT_EQ(world.PendingRows().size(), 1U);
    EXPECT_EQ(world.Window->Find(L"Button_Changes")->Caption(), L"1 change\u2026");
    Press(*world.Window, L"Button_Apply");
    const auto saved = world.Fake.Files.Read(TWorld::kUserFile);
    EXPECT_NE(std::string(saved->begin(), saved->end()).find("blink"), std::string::npos);
}

TEST(TTakeBack, LeavesOtherChangesAsTheyAre) {
    TWorld world(0);
    world.Fake.Windows.SetVersion({.PlatformId = 2, .Major = 6, .Minor = 1});
    world.Fake.Files.PutText(TWorld::kUserFile, "user_pref(\"a\", 1);\r\n");
    world.Open();
    auto& tree = *world.Window->Find<TCheckBox>(L"Checkbox_Folder_View_Windows_Tree");
    const auto& number = *world.Window->Find<TUpDown>(L"UpDown_Startup_Exit_WaitTime_Time");
    auto& page = *world.Window->Find<TEdit>(L"Edit_CommonSettings_Display_FirefoxHomepage_HomePage");
    auto& blink = *world.Window->Find<TCheckBox>(L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing");
    tree.SetChecked(!tree.Checked());
    TEdit& digits = *number.Associate();
    digits.SetFocused(true);
    digits.SetText(L"6000");
    digits.SetFocused(false);
    blink.SetChecked(!blink.Checked());
    page.SetText(L"x");
    world.TakeBack(L"tree");
    EXPECT_EQ(number.Position(), 6000);
    EXPECT_EQ(digits.Text(), L"6000");

    // A twin is taken back for good, though other preferences stay.
    world.TakeBack(L"ome page");
    EXPECT_EQ(page.Text(), L"");
    world.Window->Find<TCategoryItem>(L"RzGroup_Use.Items[1]")->Click();
    EXPECT_EQ(world.PendingRows().size(), 1U) << "the number; preferences are read again";
    EXPECT_EQ(world.Window->Find(L"Button_Changes")->Caption(), L"1 change\u2026");
    EXPECT_FALSE(blink.Marked());
}

TEST(TTakeBack, BringsThePictureOfTheLogonScreenBack) {
    TWorld world(0);
    world.Fake.Windows.SetVersion({.PlatformId = 2, .Major = 6, .Minor = 1});
    world.Open();
    const auto shown = [&](const wchar_t* which) {
        return world.Window->Find(std::wstring(L"Image_UserLogin_Common_LoginInterface_") + which)->Visible();
    };
    world.Window->Find<TRadioButton>(L"Radio_UserLogin_Common_LoginInterface_2k")->SetChecked(true);
    EXPECT_TRUE(shown(L"Info") && !shown(L"xp"));
    world.Window->ComeBack();
    world.TakeBack(L"");
    EXPECT_TRUE(shown(L"xp") && !shown(L"Info"));
}

}  // namespace
