// The list of drives; the script of the desktop icons tells the rest.
#include "settings/shell/desktop_icons.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr TPlace kNoDrives{kCurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
                           L"NoDrives"};

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
        {String(L"2147483652"), L"C", INT32_MIN + 1},
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

}  // namespace
