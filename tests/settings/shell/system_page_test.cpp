#include "settings/shell/system_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kOwner = L"Edit_System_Common_Infomation_Name";
constexpr const wchar_t* kInstaller = L"Edit_System_Common_Installer_Name";
constexpr const wchar_t* kRecent = L"Checkbox_System_CommonDialog_FileName_Recent";
constexpr const wchar_t* kAutofinish = L"Checkbox_System_CommonDialog_FileName_Autofinish";
constexpr const wchar_t* kShowReturn = L"Checkbox_System_CommonDialog_FolderNavigation_ShowReturn";
constexpr const wchar_t* kNoIndex = L"Checkbox_System_Search_IndexService_Enabled";
constexpr const wchar_t* kClassic = L"Checkbox_System_Search_IndexService_ClassicSearch_InExplorer";
constexpr const wchar_t* kBackground = L"CMboundColor";
constexpr const wchar_t* kText = L"CMfontcolor";

constexpr const wchar_t* kDialogKey = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\comdlg32\\";
constexpr TPlace kRegisteredOwner{kLocalMachine, L"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\",
                                  L"RegisteredOwner"};
constexpr TPlace kCompletion{kCurrentUser,
                             L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoComplete\\",
                             L"AutoComplete In File Dialog"};
constexpr TPlace kNoBack{kCurrentUser, kDialogKey, L"NoBackButton"};
constexpr TPlace kStart{kLocalMachine, L"\\SYSTEM\\CurrentControlSet\\Services\\CiSvc\\", L"Start"};
constexpr TPlace kAssistant{kCurrentUser,
                            L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CabinetState\\",
                            L"Use Search Asst"};
constexpr TPlace kColor{kCurrentUser, L"\\Software\\Microsoft\\Command Processor\\", L"DefaultColor"};
const std::wstring kColorLine =
    L"CMboundColor: HKCU\\Software\\Microsoft\\Command Processor\\[DefaultColor] = ";

TEST(TSystemPage, ShowsWhatIsStored) {
    const TShownCase cases[] = {
        {kRecent, {kCurrentUser, kDialogKey, L"NoFileMru"}, Number(1), L"off"},
        {kRecent, {kCurrentUser, kDialogKey, L"NoFileMru"}, Number(2), L"on"},
        {kAutofinish, kCompletion, std::nullopt, L"on"},
        {kAutofinish, kCompletion, Number(0), L"off"},
        {kAutofinish, kCompletion, Number(2), L"on"},
        {kShowReturn, kNoBack, std::nullopt, L"on"},
        {kShowReturn, kNoBack, Number(1), L"off"},
        {kNoIndex, kStart, Number(4), L"on"},
        {kNoIndex, kStart, Number(3), L"off"},
        {kClassic, kAssistant, std::nullopt, L"kept"},
        {kClassic, kAssistant, String(L"yes"), L"off"},
        {kClassic, kAssistant, String(L"maybe"), L"on"},
        {kBackground, kColor, Number(0x1F), L"1"},
        {kText, kColor, Number(0x1F), L"15"},
        {kText, kColor, std::nullopt, L"7"},
        {kText, kColor, Number(0), L"7"},
        {kBackground, kColor, Number(-0x30), L"0"},
        {kBackground, kColor, Number(0x107), L"0"},
        {kText, kColor, Number(0x105), L"5"},
    };
    ExpectShown(SystemPage(), cases);
}

TEST(TSystemPage, TheInstallerFallsBackToTheRegisteredOwner) {
    TPageBench bench(SystemPage());
    bench.Store(kRegisteredOwner, String(L"Ada"));
    bench.Store({kCurrentUser, L"\\Software\\Microsoft\\MS Setup (ACME)\\User Info\\", L"DefCompany"},
                String(L"Looms"));
    bench.Load();
    EXPECT_EQ(bench.State(kInstaller), L"Ada");
    EXPECT_EQ(bench.State(L"Edit_System_Common_Installer_Company"), L"Looms");
    EXPECT_TRUE(bench.Pending().empty());
    for (const wchar_t* typed : {L"B", L"By", L"Byron"}) bench.Act(kInstaller, typed);
    EXPECT_EQ(
        bench.Pending(),
        std::vector{kInstaller +
                    std::wstring(L": HKCU\\Software\\Microsoft\\MS Setup (ACME)\\User Info\\[DefName] = "
                                 L"\"Byron\"")});
    EXPECT_EQ(bench.State(kOwner), L"Ada");
}

TEST(TSystemPage, RecordsWhatTheUserChooses) {
    const auto line = [](const wchar_t* control, const TPlace& place, const wchar_t* data) {
        return std::vector{control + std::wstring(place.Root == kLocalMachine ? L": HKLM" : L": HKCU") +
                           place.Key + L'[' + place.ValueName + L"] = " + data};
    };
    const TRecordedCase cases[] = {
        {kOwner, L"Ada", line(kOwner, kRegisteredOwner, L"\"Ada\"")},
        {kRecent, L"on", line(kRecent, {kCurrentUser, kDialogKey, L"NoFileMru"}, L"0")},
        {kAutofinish, L"on", line(kAutofinish, kCompletion, L"1")},
        // The completion box is clear.
        {kShowReturn, L"on", line(kShowReturn, kNoBack, L"1")},
        {kNoIndex, L"on", line(kNoIndex, kStart, L"4")},
        {kNoIndex, L"off", line(kNoIndex, kStart, L"2")},
        {kClassic, L"on", line(kClassic, kAssistant, L"\"no\"")},
        {kClassic, L"off", line(kClassic, kAssistant, L"\"yes\"")},
    };
    ExpectRecorded(SystemPage(), cases);
}

TEST(TSystemPage, TheBackButtonIsRecordedByItsOwnBoxOnly) {
    TPageBench bench(SystemPage());
    bench.Load();
    bench.Click(kAutofinish, false);
    EXPECT_EQ(bench.Pending().size(), 1u);
    bench.Click(kAutofinish, true);
    bench.Click(kShowReturn, false);
    ASSERT_EQ(bench.Pending().size(), 2u);
    EXPECT_TRUE(bench.Pending()[1].ends_with(L"[NoBackButton] = 0"));
}

TEST(TSystemPage, BothColorListsMakeOneChange) {
    TPageBench bench(SystemPage());
    bench.Store(kColor, 0x1F);
    bench.Load();
    bench.Act(kBackground, L"4");
    EXPECT_EQ(bench.Pending(), std::vector{kColorLine + L"79"});
    bench.Act(kText, L"14");
    EXPECT_EQ(bench.Pending(), std::vector{kColorLine + L"78"});
}

TEST(TSystemPage, DefaultButtonsChooseTheUsualSettings) {
    TPageBench bench(SystemPage());
    bench.Preset(kNoIndex, true);
    bench.Preset(kClassic, true);
    bench.Act(L"Button_System_CommonDialog_Default", {});
    for (const wchar_t* box : {kRecent, kAutofinish, kShowReturn}) EXPECT_TRUE(bench.Checked(box));
    EXPECT_TRUE(bench.Checked(L"Checkbox_System_CommonDialog_FolderNavigation_ShowLeft"));
    EXPECT_EQ(bench.Pending().size(), 4u);
    bench.Act(L"Button_System_Search_Default", {});
    EXPECT_FALSE(bench.Checked(kNoIndex));
    EXPECT_FALSE(bench.Checked(kClassic));
    // These buttons have no work to do.
    bench.Act(L"Button_System_Common_Set", {});
    bench.Act(L"Button_System_Search_IndexService_SearchFileType_Type", {});
    EXPECT_EQ(bench.Pending().size(), 6u);
}

}  // namespace
