#include "settings/shell/file_types_page.h"

#include <gmock/gmock.h>

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kExplorer = L"Checkbox_FileType_MenuOperation_Drive_OpenDrive";
constexpr const wchar_t* kCmd = L"Checkbox_FileType_MenuOperation_Drive_OpenCmd";
constexpr const wchar_t* kEncryption = L"Checkbox_FileType_MenuOperation_FileAndFolder_Encryption";
constexpr const wchar_t* kDialog = L"Radio_FileType_OpenFile_DefaultPrograme_WithOpen";
constexpr const wchar_t* kProgram = L"Radio_FileType_OpenFile_DefaultPrograme_Open";
constexpr const wchar_t* kNet = L"Checkbox_FileType_OpenFile_DefaultPrograme_Net";
constexpr const wchar_t* kEdit = L"Edit_FileType_OpenFile_DefaultPrograme_Open";
constexpr const wchar_t* kChange = L"Button_FileType_OpenFile_DefaultPrograme_Change";
constexpr const wchar_t* kNoEndDialog = L"Radio_FileType_OpenFile_NoEndExe_OpenWith";
constexpr const wchar_t* kNoEndProgram = L"Radio_FileType_OpenFile_NoEndExe_Open";
constexpr const wchar_t* kNoEndEdit = L"Edit_FileType_OpenFile_NoEndExe_Open";
constexpr const wchar_t* kNoEndChange = L"Button_FileType_OpenFile_NoEndExe_Change";
constexpr const wchar_t* kAddHead = L"Checkbox_FileType_Advanced_NewShortcut_AddHead";
constexpr const wchar_t* kPicture = L"Checkbox_FileType_Advanced_PictureAndFax_OpenPicture";

// Written as Windows has them, not as the page spells them.
constexpr TPlace kMenuRoot{kClassesRoot, L"Folder\\shell\\menu_root", L""};
constexpr TPlace kMenuCmd{kClassesRoot, L"Directory\\shell\\menu_cmd", L""};
constexpr TPlace kVerb{kClassesRoot, L"Unknown\\shell", L""};
constexpr TPlace kNetValue{kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer",
                           L"NoInternetOpenWith"};
constexpr TPlace kLink{kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer", L"link"};

TEST(TFileTypesPage, ShowsWhatIsStored) {
    const TShownCase cases[] = {
        {kExplorer, kMenuRoot, String(L""), L"on", 5},
        {kExplorer, kMenuRoot, String(L""), L"kept", 6},
        {kCmd, kMenuCmd, Number(0), L"on"},
        {kCmd, kMenuCmd, std::nullopt, L"off"},
        {kDialog, kVerb, std::nullopt, L"on"},
        {kDialog, kVerb, String(L"openas"), L"on"},
        {kProgram, kVerb, String(L"open"), L"on"},
        {kEdit, {kClassesRoot, L"Unknown\\shell\\open\\command", L""}, String(L"a.exe %1"), L"a.exe %1"},
        {kNoEndEdit, {kClassesRoot, L".\\shell\\open\\command", L""}, String(L"b.exe %1"), L"b.exe %1"},
        {kNet, kNetValue, Number(0), L"on"},
        {kNet, kNetValue, Number(2), L"off"},
        {kNoEndDialog, kNetValue, Number(2), L"on"},
        {kNoEndDialog, kNetValue, std::nullopt, L"off"},
        {kNoEndProgram, kNetValue, std::nullopt, L"on"},
        {kAddHead, kLink, Bytes({0x1E, 0, 0, 0}), L"on"},
        {kAddHead, kLink, Bytes({0, 1, 0, 0}), L"off"},
        {kPicture, kLink, Bytes({0, 0, 0, 0}), L"on"},
        {kPicture, kLink, std::nullopt, L"off"},
    };
    ExpectShown(FileTypesPage(), cases);

    for (const wchar_t* box : {kEncryption, kNet, kAddHead}) {
        TPageBench bench(FileTypesPage());
        bench.Preset(box, true);
        bench.Load();
        EXPECT_TRUE(bench.Checked(box)) << "a missing value leaves the box alone";
    }
}

TEST(TFileTypesPage, RecordsWhatEachStateStandsFor) {
    const std::wstring root = L"HKCR\\Folder\\shell\\Menu_root\\";
    const std::wstring mayChange =
        L"HKCR\\CLSID\\{e84fda7c-1d6a-45f6-b725-cb260c236066}\\shellex\\MayChangeDefaultMenu";
    const TRecordedCase cases[] = {
        {kExplorer,
         L"on",
         {kExplorer + (L": " + root + L"[] = \"Open Explorer here\""),
          kExplorer + (L"1: " + root + L"Command\\[] = \"Explorer.exe /e,/root,/idlist,%I\"")}},
        {kExplorer, L"off", {kExplorer + (L": delete " + root)}},
        {kDialog, L"on", {std::wstring(kDialog) + L": HKCR\\Unknown\\shell\\[] = \"openas\""}},
        {kNoEndDialog, L"on", {std::wstring(kNoEndDialog) + L": delete HKCR\\.\\shell\\open\\"}},
        {kPicture,
         L"on",
         {std::wstring(kPicture) + L": HKCR\\SystemFileAssociations\\image\\ShellEx\\ContextMenuHandlers\\"
                                   L"ShellImagePreview\\[] = \"{e84fda7c-1d6a-45f6-b725-cb260c236066}\"",
          kPicture + (L"1: " + mayChange + L"[] = \"\"")}},
        {kPicture, L"off", {kPicture + (L": delete " + mayChange)}},
    };
    ExpectRecorded(FileTypesPage(), cases);
}

TEST(TFileTypesPage, AMenuEntryCheckedAndClearedBeforeApplyKeepsItsCommand) {
    TPageBench bench(FileTypesPage());
    bench.Click(kCmd, true);
    bench.Click(kCmd, false);
    bench.Context.Changes.WriteAll();
    const auto* command =
        bench.Fake.Registry.Find({kClassesRoot, L"Directory\\shell\\Menu_CMD\\Command", L""});
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(std::get<std::wstring>(command->Value), L"cmd.exe /k \"cd %L\"");
}

TEST(TFileTypesPage, TheFirstByteOfLinkKeepsItsBitsAndItsNeighbours) {
    const struct {
        std::optional<TRegistryData> Stored;
        const wchar_t* Checked;
        const wchar_t* Clear;
    } cases[] = {{Bytes({0x1E, 0, 0, 0}), L"1F 00 00 00", L"00 00 00 00"},
                 {Bytes({0, 7, 8, 9}), L"0F 07 08 09", L"00 07 08 09"},
                 {Bytes({}), L"0F", L"00"},
                 {std::nullopt, L"0F", L"00"}};
    for (const auto& c : cases) {
        for (const bool checked : {true, false}) {
            TPageBench bench(FileTypesPage());
            if (c.Stored) bench.Store(kLink, *c.Stored);
            bench.Preset(kAddHead, !checked);
            bench.Click(kAddHead, checked);
            EXPECT_THAT(bench.Pending().at(0), testing::EndsWith(std::wstring(L"\\Explorer\\[link] = ") +
                                                                 (checked ? c.Checked : c.Clear)));
            EXPECT_TRUE(bench.Context.RestartNeeded);
        }
    }
}

/// Which controls of the sheet can be used: the Web service, then edit and button of either group.
std::wstring Enabled(TPageBench& bench) {
    std::wstring marks;
    for (const wchar_t* name : {kNet, kEdit, kChange, kNoEndEdit, kNoEndChange})
        marks += bench.Get<TControl>(name).Enabled() ? L'+' : L'-';
    return marks;
}

TEST(TFileTypesPage, TheChoiceEnablesWhatBelongsToIt) {
    TPageBench bench(FileTypesPage());
    bench.Store(kNetValue, 1);
    bench.Load();
    EXPECT_EQ(Enabled(bench), L"+----");
    bench.Click(kProgram, true);
    EXPECT_EQ(Enabled(bench), L"-++--");
    bench.Click(kNoEndProgram, true);
    EXPECT_EQ(Enabled(bench), L"-++++");
    bench.Get<TButton>(L"Button_FileType_OpenFile_Default").Click();
    EXPECT_EQ(Enabled(bench), L"+----");
    EXPECT_TRUE(bench.Checked(kNet));

    TPageBench program(FileTypesPage());
    program.Store(kVerb, String(L"open"));
    program.Load();
    EXPECT_EQ(Enabled(program), L"-++++");
}

TEST(TFileTypesPage, BothGroupsOpenWithTheCommandForUnknownTypes) {
    TPageBench bench(FileTypesPage());
    bench.Get<TEdit>(kEdit).SetText(L"  a.exe %1 ");
    bench.Get<TEdit>(kNoEndEdit).SetText(L"b.exe");
    EXPECT_EQ(bench.Recorded, 0) << "typing alone records nothing";
    bench.Click(kProgram, true);
    bench.Click(kNoEndProgram, true);
    const std::wstring command = L"\\shell\\open\\Command\\[] = \"a.exe %1\"";
    EXPECT_EQ(
        bench.Pending(),
        (std::vector{kProgram + std::wstring(L"1: HKCR\\Unknown\\shell\\[] = \"open\""),
                     kProgram + (L"2: HKCR\\Unknown" + command), kNoEndProgram + (L": HKCR\\." + command)}));
}

TEST(TFileTypesPage, AChosenProgramStandsInQuotesInItsOwnGroup) {
    for (const auto& [button, edit, place] :
         {std::tuple{kChange, kEdit, L": HKCR\\Unknown"}, {kNoEndChange, kNoEndEdit, L": HKCR\\."}}) {
        TPageBench bench(FileTypesPage());
        bench.Get<TEdit>(edit).SetText(L"before");
        bench.Act(button, {});
        EXPECT_EQ(bench.State(edit), L"before") << "the chooser was cancelled";
        EXPECT_TRUE(bench.Pending().empty());

        bench.Fake.Dialogs.AnswerFile(L"C:\\My Tools\\view.exe");
        bench.Act(button, {});
        const std::wstring command = L"\"C:\\My Tools\\view.exe\" \"%1\"";
        EXPECT_EQ(bench.State(edit), command);
        EXPECT_EQ(bench.Pending(),
                  std::vector{button + (place + (L"\\shell\\open\\command\\[] = \"" + command + L'"'))});
        EXPECT_EQ(bench.Fake.Dialogs.Filters().back(),
                  L"Executable file(*.exe,*.com,*.bat)|*.exe;*.com;*.bat;|All Files(*.*)|*.*;");
    }
}

}  // namespace
