// Changes that are written, undone, imported and exported, by a user who does anything.
#include <algorithm>

#include "app/change_sets.h"
#include "engine/carry_out.h"
#include "engine/reg_file.h"
#include "tests/app/changes_fixture.h"

namespace {

constexpr const wchar_t* kHistory = L"C:\\Data\\Vandrel\\Orbicare V4\\Quilltune\\History";

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
