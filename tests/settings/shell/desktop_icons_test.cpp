#include "settings/shell/desktop_icons.h"

#include <algorithm>

#include "tests/settings/page_bench.h"

namespace {

// Written as Windows has them, not as the page spells them.
constexpr const wchar_t* kHidden =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\NewStartPanel";
constexpr const wchar_t* kComputer = L"Checkbox_Folder_Desktop_MyComputer";
constexpr const wchar_t* kRecycleBin = L"Checkbox_Folder_Desktop_RecycleBin";
constexpr const wchar_t* kPrinters = L"Checkbox_Folder_MyComputer_Printers";
constexpr const wchar_t* kXpControlPanel = L"Checkbox_Folder_MyComputer_ShowControlPanel";
constexpr TPlace kComputerHidden{kCurrentUser, kHidden, L"{20D04FE0-3AEA-1069-A2D8-08002B30309D}"};
constexpr TPlace kRecycleBinHidden{kCurrentUser, kHidden, L"{645FF040-5081-101B-9F08-00AA002F954E}"};
constexpr const wchar_t* kPrintersKey =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\"
    L"{2227A280-3AEA-1069-A2DE-08002B30309D}\\";
constexpr TPlace kNoDrives{kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
                           L"NoDrives"};

TEST(TDesktopIcons, ShowWhatIsStored) {
    const TShownCase cases[] = {
        {kComputer, kComputerHidden, {}, L"off"},
        {kComputer, kComputerHidden, Number(0), L"on"},
        {kComputer, kComputerHidden, Number(1), L"off"},
        {kRecycleBin, kRecycleBinHidden, {}, L"on"},
        {kRecycleBin, kRecycleBinHidden, Number(1), L"off"},
        {kRecycleBin, kRecycleBinHidden, Number(0), L"on"},
        {kPrinters, {kLocalMachine, kPrintersKey, L""}, {}, L"off"},
        {kPrinters, {kLocalMachine, kPrintersKey, L""}, String(L"Printers"), L"on"},
        {kPrinters, {kLocalMachine, kPrintersKey, L"Other"}, Number(1), L"on"},  // no default value
        {kXpControlPanel,
         {kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideMyComputerIcons",
          L"{21EC2020-3AEA-1069-A2DD-08002B30309D}"},
         Number(0),
         L"on",
         5},
        // On Windows 2000 the desktop shows what has a key; elsewhere that key shows nowhere.
        {L"Checkbox_Folder_Desktop_RecycleBinKey",
         {kLocalMachine,
          L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\NameSpace\\"
          L"{645FF040-5081-101B-9F08-00AA002F954E}",
          L""},
         String(L"Recycle Bin"),
         L"on",
         4},
    };
    ExpectShown(DesktopIcons(), cases);
}

TEST(TDesktopIcons, AreHiddenForBothStartMenus) {
    const std::wstring key =
        L"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\";
    const std::wstring icon = L"\\[{645FF040-5081-101B-9F08-00AA002F954E}] = ";
    const auto pending = [&](const wchar_t* number) {
        return std::vector{std::wstring(kRecycleBin) + L": " + key + L"NewStartPanel" + icon + number,
                           std::wstring(kRecycleBin) + L"1: " + key + L"ClassicStartMenu" + icon + number};
    };
    const TRecordedCase cases[] = {{kRecycleBin, L"on", pending(L"0")}, {kRecycleBin, L"off", pending(L"1")}};
    ExpectRecorded(DesktopIcons(), cases);
}

TEST(TDesktopIcons, AFolderOfMyComputerIsAKeyAndTheLastClickWins) {
    for (const bool before : {false, true}) {
        TPageBench bench(DesktopIcons());
        if (before) bench.Fake.Registry.PutKey(kLocalMachine, kPrintersKey);
        bench.Load();
        for (int clicks = 1; clicks <= 3; ++clicks) bench.Click(kPrinters, (clicks % 2 == 1) != before);
        bench.Context.Changes.WriteAll();
        EXPECT_EQ(bench.Fake.Registry.HasKey(kLocalMachine, kPrintersKey), !before);
        if (before) continue;
        const TRegistryData* text = bench.Fake.Registry.Find({kLocalMachine, kPrintersKey, L""});
        ASSERT_NE(text, nullptr);
        EXPECT_EQ(*text, String(L""));
    }
}

TEST(TDesktopIcons, TheListOfDrivesIsTheLower26BitsOfTheMask) {
    struct TCase {
        std::optional<TRegistryData> Stored;
        std::wstring Checked;  ///< letters
        std::int32_t Toggled;  ///< after a click on A: and on C:
    };
    const TCase cases[] = {
        {{}, L"", 0x5},
        {Number(0x3FFFFFF), L"ABCDEFGHIJKLMNOPQRSTUVWXYZ", 0x3FFFFFA},
        {Number(static_cast<std::int32_t>(0x86000004)), L"CZ", static_cast<std::int32_t>(0x86000001)},
        {Bytes({5, 0, 0, 2}), L"ACZ", 0x2000000},
        {String(L"none"), L"", 0x5},
    };
    for (const TCase& c : cases) {
        TPageBench bench(DesktopIcons());
        if (c.Stored) bench.Store(kNoDrives, *c.Stored);
        bench.Load();
        auto& list = bench.Get<TListView>(L"ListView_Folder_Drivers");
        std::wstring checked;
        for (const auto& row : list.Rows())
            if (row.Checked) checked += row.Cells[0].substr(0, row.Cells[0].find(L':'));
        EXPECT_EQ(checked, c.Checked);
        EXPECT_TRUE(bench.Pending().empty());
        for (const std::size_t drive : {0, 2}) list.SetRowChecked(drive, !list.Rows()[drive].Checked);
        ASSERT_EQ(bench.Pending().size(), 1u);
        EXPECT_EQ(std::get<std::int32_t>(bench.Context.Changes.Pending()[0].Value), c.Toggled);
        EXPECT_EQ(bench.Context.Changes.Pending()[0].DataType, TRegDataType::Dword);
    }
}

TEST(TDesktopIcons, EachWindowsOffersTheIconsThatItHas) {
    const std::pair<const wchar_t*, std::vector<int>> offers[] = {
        {kComputer, {5, 6, 7}},
        {L"Checkbox_Folder_Desktop_RecycleBinKey", {0, 4}},
        {L"Checkbox_Folder_Desktop_MyDocuments", {5}},
        {L"Checkbox_Folder_Desktop_InternetExplorer", {5, 6}},
        {L"Checkbox_Folder_Desktop_UserFiles", {6, 7}},
        {kXpControlPanel, {5}},
        {L"Checkbox_Folder_MyComputer_ControlPanel", {6, 7}},
        {kPrinters, {0, 4, 5, 6, 7}},
    };
    for (const int level : {0, 4, 5, 6, 7}) {
        TPageBench bench(DesktopIcons());
        bench.Context.WindowsLevel = level;
        bench.Load();
        for (const auto& [control, levels] : offers)
            EXPECT_EQ(bench.Get<TControl>(control).Visible(),
                      std::find(levels.begin(), levels.end(), level) != levels.end())
                << testing::PrintToString(control) << " on level " << level;
    }
}

}  // namespace
