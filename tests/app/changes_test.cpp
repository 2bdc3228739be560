// Changes seen before Apply, taken back before it and undone after it, by a user who does anything.
#include <algorithm>

#include <gtest/gtest.h>

#include "app/change_sets.h"
#include "app/changes_form.h"
#include "app/history_form.h"
#include "app/main_window.h"
#include "engine/carry_out.h"
#include "engine/reg_file.h"
#include "tests/settings/random_system.h"
#include "ui/state.h"

namespace {

constexpr const wchar_t* kHistory = L"C:\\Data\\Vandrel\\Orbicare V4\\Quilltune\\History";

/// Stands for the native side: each dialog meets the next of its users.
class TUserPeer : public TFormPeer {
  public:
    using TUser = std::function<void(TForm& dialog)>;

    explicit TUserPeer(TUser user) : FUser(std::move(user)) {}

    void Close() override {}
    void Update(TControlAspect /*aspect*/) override {}
    void Reveal(TControl& /*control*/) override {}
    void ShowModal(TForm& dialog) override {
        dialog.SetPeer(std::make_unique<TUserPeer>(FUser));
        dialog.Show();
        FUser(dialog);
    }

  private:
    TUser FUser;
};

void Press(TForm& form, const wchar_t* button) { form.Find<TButton>(button)->Click(); }
TListView& List(TForm& form, const wchar_t* name) { return *form.Find<TListView>(name); }

/// The field that finds settings is not.
bool IsOnPage(const TControl& control) {
    const TControl* c = &control;
    while (c != nullptr && c->Kind() != TComponentKind::NotebookPage) c = c->Parent();
    return c != nullptr;
}

class TWorld : public TRandomSystem {
  public:
    using TRandomSystem::TRandomSystem;

    void Open() {
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
        Window->Show();
        Window->Find<TTimer>(L"Timer_Click")->Tick();
        Window->Find<TTimer>(L"Timer_Loading")->Tick();
        for (const auto& component : Window->Components())
            if (component->Kind() == TComponentKind::CategoryItem)
                static_cast<TCategoryItem&>(*component).Click();
    }

    /// What a user may do: anything with any control of any page.
    void Act(int actions) {
        std::vector<TControl*> controls;
        for (const auto& component : Window->Components()) {
            auto& control = static_cast<TControl&>(*component);
            const bool isIdle = StateOf(control) == TControlState() && !control.Name().ends_with(L"_Default");
            if (!isIdle && IsOnPage(control) && control.Enabled() && control.Visible())
                controls.push_back(&control);
        }
        for (; actions > 0; --actions) {
            TControl& control = *controls[static_cast<std::size_t>(Pick(static_cast<int>(controls.size())))];
            if (auto* edit = dynamic_cast<TEdit*>(&control)) {
                edit->SetFocused(true);
                edit->SetText(std::to_wstring(Pick(300)));
                edit->SetFocused(false);
            } else if (auto* button = dynamic_cast<TButton*>(&control)) {
                button->Click();
            } else if (auto* radio = dynamic_cast<TRadioButton*>(&control)) {
                radio->SetChecked(true);
            } else if (auto* list = dynamic_cast<TComboBox*>(&control)) {
                list->SetItemIndex(Pick(static_cast<int>(list->Items().size())));
            } else {
                SetState(control, StateFromNumber(control, Pick(5) / 2));
            }
        }
    }

    /// The button opens a dialog; the user acts in it, and in those that it opens.
    void Dialog(const wchar_t* button, const TUserPeer::TUser& user) {
        Window->SetPeer(std::make_unique<TUserPeer>(user));
        Press(*Window, button);
        Window->SetPeer(nullptr);
    }
    /// Undoes the newest entry of the history.
    void Undo() {
        Dialog(L"Button_History", [](TForm& dialog) {
            Press(dialog, dialog.ClassName() == L"TQuilltune_FormHistory" ? L"Button_History_Undo"
                                                                          : L"Button_Preview_Apply");
        });
    }
    std::vector<TListView::TRow> PendingRows() {
        std::vector<TListView::TRow> rows;
        if (Window->Find(L"Button_Changes")->Enabled())
            Dialog(L"Button_Changes",
                   [&](TForm& dialog) { rows = List(dialog, L"ListView_Changes").Rows(); });
        return rows;
    }

    /// Takes back the change of the last setting with these words in its name.
    void TakeBack(const wchar_t* words) {
        Dialog(L"Button_Changes", [&](TForm& dialog) {
            auto& list = List(dialog, L"ListView_Changes");
            for (std::size_t i = 0; i < list.Rows().size(); ++i)
                if (list.Rows()[i].Cells[0].find(words) != std::wstring::npos)
                    list.SetSelected({i}, static_cast<int>(i));
            Press(dialog, L"Button_Changes_Revert");
        });
    }

    /// What the controls of the pages show.
    std::map<std::wstring, std::tuple<TControlState, bool, bool>> Shown() {
        std::map<std::wstring, std::tuple<TControlState, bool, bool>> shown;
        for (const auto& component : Window->Components()) {
            auto& control = static_cast<TControl&>(*component);
            if (StateOf(control) != TControlState())
                shown[control.Name()] = {StateOf(control), control.Enabled(), control.Marked()};
        }
        return shown;
    }
    std::vector<std::wstring> Entries() { return THistory(Fake.System).Entries(); }

    std::unique_ptr<TQuilltune_FormMain> Window;
};

TEST(TChanges, UndoBringsBackWhatWas) {
    int entries = 0;
    int stopped = 0;
    for (unsigned seed = 0; seed < 12; ++seed) {
        SCOPED_TRACE(seed);
        TWorld world(seed);
        world.Open();
        const auto before = world.Snapshot();
        world.Act(1 + world.Pick(12));
        const auto rows = world.PendingRows();
        EXPECT_EQ(world.Snapshot(), before) << "looking changes nothing";
        EXPECT_EQ(world.Window->Find(L"Button_Apply")->Enabled(),
                  !rows.empty() || world.Window->Context().FirefoxChanged);
        const std::wstring count =
            rows.size() == 1 ? L"1 change\u2026" : std::to_wstring(rows.size()) + L" changes\u2026";
        if (!rows.empty()) EXPECT_EQ(world.Window->Find(L"Button_Changes")->Caption(), count);
        if (world.Pick(2) == 0) world.Fake.Registry.FailChange(1 + world.Pick(5));
        Press(*world.Window, L"Button_Apply");
        stopped += world.PendingRows().empty() ? 0 : 1;
        world.Fake.Registry.FailChange(0);
        const auto after = world.Snapshot();
        ASSERT_EQ(world.Entries().size(), after == before ? 0U : 1U);
        if (after == before) continue;
        ++entries;
        world.Undo();
        EXPECT_EQ(world.Snapshot().Registry, before.Registry);
        EXPECT_EQ(world.Snapshot(), before);
        if (testing::Test::HasFailure()) return;
        ASSERT_EQ(world.Entries().size(), 2U) << "an undo can be undone";
        world.Undo();
        EXPECT_EQ(world.Snapshot(), after);
        if (testing::Test::HasFailure()) return;
    }
    EXPECT_GT(entries, 5);
    EXPECT_GT(stopped, 0);
}

TEST(TChanges, TakingBackLeavesWhatIsStored) {
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

TEST(TChanges, LeaveWhatNoLoaderShowsAsTheUserLeftItUntilTheyAreTakenBack) {
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

TEST(TChanges, OfPreferencesOutliveAPageThatCannotBeReadWhole) {
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

TEST(TChanges, StayAsTheyAreWhenAnotherOneIsTakenBack) {
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

TEST(TChanges, OfALogonScreenTakeItsPictureBackWithThem) {
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

constexpr const wchar_t* kSavesAccess = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
const TRegistryPlace kSavesAccessValue{TRootKey::LocalMachine,
                                       L"System\\CurrentControlSet\\Control\\FileSystem",
                                       L"NtfsDisableLastAccessUpdate"};

class TFileOfChanges : public testing::Test {
  protected:
    TFileOfChanges() {
        World.Fake.Registry.Put(kSavesAccessValue, {TRegDataType::Dword, 1});
        World.Open();
    }
    void Import(const TUserPeer::TUser& user) {
        World.Window->SetPeer(std::make_unique<TUserPeer>(user));
        World.Window->OpenFile(L"C:\\a.reg");
        World.Window->SetPeer(nullptr);
    }
    std::optional<std::int32_t> LastAccess() {
        const auto* data = World.Fake.Registry.Find(kSavesAccessValue);
        return data == nullptr ? std::nullopt : std::optional(std::get<std::int32_t>(data->Value));
    }
    bool Shows() { return World.Window->Find<TCheckBox>(kSavesAccess)->Checked(); }

    TWorld World{7};
};

TEST_F(TFileOfChanges, IsWrittenFromWhatIsPendingAndTakenOverAfterAPreview) {
    World.Window->Find<TCheckBox>(kSavesAccess)->SetChecked(!Shows());
    World.Fake.Dialogs.AnswerFile(L"C:\\a.reg");
    World.Fake.Files.PutFolder(L"C:");
    World.Dialog(L"Button_Changes", [](TForm& dialog) { Press(dialog, L"Button_Changes_Export"); });
    const bool wanted = Shows();
    World.Dialog(L"Button_Changes", [](TForm& dialog) {
        List(dialog, L"ListView_Changes").SetSelected({0}, 0);
        List(dialog, L"ListView_Changes").Delete();
    });
    EXPECT_NE(Shows(), wanted);
    for (const bool agrees : {false, true}) {
        Import([&](TForm& dialog) {
            ASSERT_EQ(dialog.ClassName(), L"TQuilltune_FormPreview");
            const auto cells = List(dialog, L"ListView_Preview").Rows().at(0).Cells;
            EXPECT_TRUE(cells[0].ends_with(L"NtfsDisableLastAccessUpdate") && cells[1] != cells[2]);
            Press(dialog, agrees ? L"Button_Preview_Apply" : L"Button_Preview_Cancel");
        });
        EXPECT_EQ(Shows(), agrees == wanted) << "the page follows";
        EXPECT_EQ(World.Entries().size(), agrees ? 1U : 0U);
    }
    EXPECT_EQ(World.Fake.Dialogs.Questions().size(), 0U) << "this setting needs no restart";
}

TEST_F(TFileOfChanges, OfSomebodyElseIsKnownByItsPlaces) {
    World.Fake.Files.PutText(L"C:\\a.reg",
                             "REGEDIT4\n[HKLM\\System\\CurrentControlSet\\Control\\FileSystem]\n"
                             "\"NtfsDisableLastAccessUpdate\"=dword:0\n[HKEY_USERS\\S-1\\K]\n@=\"v\"\n");
    Import([](TForm& dialog) { Press(dialog, L"Button_Preview_Apply"); });
    EXPECT_EQ(LastAccess(), 0);
    EXPECT_TRUE(Shows());
    World.Dialog(L"Button_History", [](TForm& dialog) {
        EXPECT_EQ(List(dialog, L"ListView_History").Rows().at(0).Cells.at(1),
                  L"Record the date of the last access to files and folders (Driver, General)");
    });
    World.Undo();
    EXPECT_EQ(LastAccess(), 1);
    EXPECT_FALSE(World.Fake.Registry.HasKey(TRootKey::Users, L"S-1"));
}

TEST_F(TFileOfChanges, ThatCannotBeWrittenInPartLeavesAWordInTheFaultLog) {
    World.Fake.Registry.PutKey(TRootKey::CurrentUser, L"Denied");
    World.Fake.Registry.DenyAccess(TRootKey::CurrentUser, L"Denied");
    World.Fake.Files.PutText(L"C:\\a.reg", "REGEDIT4\n[HKCU\\Denied]\n\"v\"=\"1\"\n[HKCU\\K]\n\"v\"=\"1\"\n");
    EXPECT_THROW(Import([](TForm& dialog) { Press(dialog, L"Button_Preview_Apply"); }), std::runtime_error);
    EXPECT_TRUE(World.Fake.Registry.HasKey(TRootKey::CurrentUser, L"K"));
    EXPECT_EQ(World.Entries().size(), 1U);
}

TEST_F(TFileOfChanges, WithAnErrorIsRefusedAsAWhole) {
    World.Fake.Files.PutText(L"C:\\a.reg", "REGEDIT4\n[HKCU\\K]\n\"v\"=dword:1\n\"w\"=dword:z\n");
    Import([](TForm&) { FAIL(); });
    ASSERT_EQ(World.Fake.Dialogs.Questions().size(), 1U);
    EXPECT_NE(World.Fake.Dialogs.Questions()[0].Text.find(L"Line 4: "), std::wstring::npos);
    EXPECT_FALSE(World.Fake.Registry.HasKey(TRootKey::CurrentUser, L"K"));
}

TEST_F(TFileOfChanges, OfTheHistoryIsKeptForAHundredAppliesAndNothingElseIsTouched) {
    for (int i = 0; i < 105; ++i)
        World.Fake.Files.PutText(
            kHistory + (L"\\2001-01-01 00.00." + std::to_wstring(100 + i).substr(1)) + L".reg",
            "no such file");
    for (const wchar_t* other : {L"\\mine.reg", L"\\2000-01-01 00.00.00 1.reg", L"\\2000-01-01.txt"})
        World.Fake.Files.PutText(std::wstring(kHistory) + other, "kept");
    World.Window->Find<TCheckBox>(kSavesAccess)->SetChecked(!Shows());
    Press(*World.Window, L"Button_Apply");
    const auto entries = World.Entries();
    EXPECT_EQ(entries.size(), 100U);
    EXPECT_EQ(entries.front(), L"2010-02-01 03.04.00");
    EXPECT_EQ(World.Fake.Files.List(kHistory, L"*").size(), 103U);
    World.Dialog(L"Button_History", [](TForm& dialog) {
        EXPECT_TRUE(dialog.Find(L"Button_History_Undo")->Enabled());
        auto& list = List(dialog, L"ListView_History");
        EXPECT_EQ(list.Rows()[1].Cells[1], L"(cannot be read)");
        list.SetSelected({1}, 1);
        EXPECT_FALSE(dialog.Find(L"Button_History_Undo")->Enabled());
    });
}

TEST(TChanges, AnUndoIsCarriedOutWholeWhateverIsDoneMeanwhile) {
    TWorld world(0);
    world.Fake.Services.Put(L"service", {.PendingQueries = 1});
    const TRegistryTarget value{TRootKey::CurrentUser, L"Software\\K", L"v"};
    (void)THistory(world.Fake.System)
        .Add({{{}, TServiceTarget{L"service"}, TServiceStatus{TServiceStartType::Manual, true}},
              {{}, value, TRegistryEffect{TRegAction::Write, TRawValue{1, {'a', 0, 0, 0}}}}});
    world.Open();
    int previews = 0;
    world.Dialog(L"Button_History", [&](TForm& dialog) {
        if (dialog.ClassName() == L"TQuilltune_FormPreview")
            return Press(dialog, previews++ == 0 ? L"Button_Preview_Apply" : L"Button_Preview_Cancel");
        world.Fake.Clock.OnProcessMessages = [&] {
            if (previews == 1) Press(dialog, L"Button_History_Undo");
        };
        Press(dialog, L"Button_History_Undo");
    });
    EXPECT_EQ(previews, 2);
    EXPECT_NE(world.Fake.Registry.Find({value.Root, value.Key, value.ValueName}), nullptr);
}

TEST(TChanges, SaysWhyNothingOfAFileIsTakenOver) {
    TWorld world(0);
    world.Open();
    world.Fake.Files.PutText(L"C:\\broken.reg", "REGEDIT4\n\n[HKCU\\K]\n\"v\"=dword:x\n");
    for (const auto& [path, text] :
         {std::pair(L"C:\\none.reg", L"The file C:\\none.reg cannot be read."),
          std::pair(
              L"C:\\broken.reg",
              L"Nothing of the file C:\\broken.reg is taken over. Line 4: the data cannot be understood.")}) {
        world.Window->OpenFile(path);
        EXPECT_EQ(world.Fake.Dialogs.Questions().back().Text, text);
    }
}

TEST(TChanges, TheLatestApplyStaysInTheHistoryWhateverTheClockSays) {
    TFakeSystem fake;
    fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Data");
    for (int i = 10; i < 110; ++i)
        fake.Files.PutText(kHistory + (L"\\2099-01-01 00.00.00 " + std::to_wstring(i)) + L".reg", "");
    THistory history(fake.System);
    const std::wstring entry = history.Add({});
    history.RemoveOldest(entry);
    const auto entries = history.Entries();
    EXPECT_EQ(entries.size(), 100u);
    EXPECT_EQ(entries.back(), entry);
    EXPECT_EQ(entries[98], L"2099-01-01 00.00.00 11") << "the oldest of the others has gone";
}

TEST(TChanges, AParameterThatIsSetToWhatItIsLeavesAWayBackOfItsProfile) {
    constexpr std::uint32_t kSetBeep = 2;
    constexpr std::uint32_t kGetBeep = 1;
    TFakeSystem fake;
    fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Data");
    fake.Parameters.PutNumber(kGetBeep, 1);
    const TRegistryPlace profile{TRootKey::CurrentUser, L"Control Panel\\Sound", L"Beep"};
    fake.Registry.Put({profile.Root, profile.Key, L"Beside"}, {TRegDataType::Dword, 1});
    const auto before = fake.Registry.Lines();
    TRecordedApply record(
        fake.System,
        {{{}, TParameterTarget{.Set = kSetBeep, .Get = kGetBeep, .InParam = true}, TSpiData(1U)}}, nullptr);
    const THistory history(fake.System);
    record.Begin();
    ASSERT_EQ(history.Entries().size(), 1U) << "what Windows will make of it is not known yet";
    fake.Registry.Put(profile, {TRegDataType::String, std::wstring(L"yes")});
    const auto back = history.Read(history.Entries()[0]);
    EXPECT_TRUE(CarryOut(fake.System, *back, nullptr).Failed.empty());
    EXPECT_EQ(fake.Registry.Lines(), before);
    record.Complete();
    EXPECT_TRUE(history.Entries().empty()) << "nothing to restore";
}

TEST(TChanges, APreviewShowsWhatGoesWithADeletedKey) {
    using TCells = std::vector<std::wstring>;
    TFakeSystem fake;
    for (const wchar_t* key : {L"K", L"K\\Below"})
        for (const wchar_t* name : {L"", L"a", L"b"})
            fake.Registry.Put({TRootKey::CurrentUser, key, name}, {TRegDataType::String, std::wstring(L"x")});
    const TRegistryEffect write{TRegAction::Write, TRawValue{1, {'x', 0, 0, 0}}};
    const TRegistryTarget key{.Root = TRootKey::CurrentUser, .Key = L"K", .IsKey = true};
    TChangeSet operations{{{}, key, TRegistryEffect{TRegAction::DeleteKey}}};
    for (const wchar_t* name : {L"a", L"c"})
        operations.push_back({{}, TRegistryTarget{key.Root, key.Key, name}, write});
    std::vector<TCells> rows;
    for (const auto& row : PreviewRows(fake.System, operations, TCaptions())) rows.push_back(row.Cells);
    const std::wstring path = L"HKEY_CURRENT_USER\\K";
    EXPECT_EQ(rows, (std::vector<TCells>{{path, L"(key)", L"(key)"},
                                         {path + L"\\(Default)", L"x", L"(not set)"},
                                         {path + L"\\b", L"x", L"(not set)"},
                                         {path + L"\\Below", L"(key)", L"(no key)"},
                                         {path + L"\\Below\\(Default)", L"x", L"(not set)"},
                                         {path + L"\\Below\\a", L"x", L"(not set)"},
                                         {path + L"\\Below\\b", L"x", L"(not set)"},
                                         {path + L"\\a", L"x", L"x"},
                                         {path + L"\\c", L"(not set)", L"x"}}));
}

TEST(TChanges, AnEndBetweenTheWritesLeavesAWayBackOfTheParametersProfile) {
    TFakeSystem fake;
    fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Data");
    const TRegistryPlace odd{TRootKey::CurrentUser, L"Control Panel\\Mouse", L"DoubleClickSpeed"};
    fake.Registry.PutRaw(odd, {0x1234, {1}});
    fake.Registry.Put({odd.Root, odd.Key, L"Beside"}, {TRegDataType::Dword, 1});
    const auto before = fake.Registry.Lines();
    const TChangeSet operations{{{}, TParameterTarget{.Set = 0x20, .InParam = true}, TSpiData(500U)}};
    TRecordedApply(fake.System, operations, nullptr).Begin();
    // What Windows leaves there when the parameter is set.
    fake.Registry.Put(odd, {TRegDataType::String, std::wstring(L"500")});
    fake.Registry.Put({odd.Root, L"Control Panel\\New", L"New"}, {TRegDataType::String, std::wstring(L"0")});
    const THistory history(fake.System);
    const auto back = history.Read(history.Entries().at(0));
    ASSERT_TRUE(back);
    EXPECT_EQ(PreviewRows(fake.System, *back, TCaptions()).size(), 3U)
        << "what differs, and what goes with a key";
    // Setting a parameter again changes more of it.
    fake.Registry.Put({odd.Root, odd.Key, L"Beside"}, {TRegDataType::Dword, 2});
    EXPECT_TRUE(CarryOut(fake.System, *back, nullptr).Failed.empty());
    EXPECT_EQ(fake.Registry.Lines(), before);
}

}  // namespace
