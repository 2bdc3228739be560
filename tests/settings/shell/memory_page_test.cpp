#include "settings/shell/memory_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kAlways = L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways";
constexpr const wchar_t* kPage = L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page";
constexpr const wchar_t* kClearPageFile = L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete";
constexpr const wchar_t* kSystem = L"Radio_MemoryAndCache_MemoryUse_System";
constexpr const wchar_t* kProgram = L"Radio_MemoryAndCache_MemoryUse_Program";

constexpr const wchar_t* kKey = L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\";

struct TPair {
    const wchar_t* First;
    const wchar_t* Second;
    const wchar_t* ValueName;
    const wchar_t* ChangeName;
};
constexpr TPair kPairs[] = {
    {kAlways, kPage, L"DisablePagingExecutive", L"RadPagingExecutive"},
    {kSystem, kProgram, L"LargeSystemCache", L"RadLargeSystem"},
};

TEST(TMemoryPage, RadioPairsShowTheStoredValue) {
    for (const TPair& pair : kPairs) {
        TPageBench missing(MemoryPage());
        missing.Load();
        EXPECT_FALSE(missing.Checked(pair.First));
        EXPECT_FALSE(missing.Checked(pair.Second)) << "a missing value leaves both alone";

        for (const std::int32_t stored : {0, 1, 2}) {
            TPageBench bench(MemoryPage());
            bench.Store({kLocalMachine, kKey, pair.ValueName}, stored);
            bench.Load();
            EXPECT_EQ(bench.Checked(pair.First), stored == 1);
            EXPECT_EQ(bench.Checked(pair.Second), stored != 1);
            EXPECT_EQ(bench.Recorded, 0);
        }
    }
}

TEST(TMemoryPage, TheLastClickOfAPairWins) {
    for (const TPair& pair : kPairs) {
        TPageBench bench(MemoryPage());
        const auto line = [&](const wchar_t* number) {
            return std::vector{pair.ChangeName + std::wstring(L": HKLM") + kKey + L"[" + pair.ValueName +
                               L"] = " + number};
        };
        bench.Click(pair.First, true);
        EXPECT_EQ(bench.Pending(), line(L"1"));
        bench.Click(pair.Second, true);
        EXPECT_EQ(bench.Pending(), line(L"0"));
        EXPECT_EQ(bench.Recorded, 2) << "a cleared sibling records nothing by itself";
        EXPECT_TRUE(bench.Context.RestartNeeded);
    }
}

TEST(TMemoryPage, ThePageFileBoxIsPlain) {
    for (const auto& [stored, shown] : {std::pair{0, false}, {1, true}, {2, false}}) {
        TPageBench bench(MemoryPage());
        bench.Preset(kClearPageFile, !shown);
        bench.Store({kLocalMachine, kKey, L"ClearPageFileAtShutdown"}, stored);
        bench.Load();
        EXPECT_EQ(bench.Checked(kClearPageFile), shown);
        bench.Click(kClearPageFile, !shown);
        EXPECT_EQ(bench.Pending(), std::vector{std::wstring(kClearPageFile) + L": HKLM" + kKey +
                                               L"[ClearPageFileAtShutdown] = " + (shown ? L"0" : L"1")});
        EXPECT_FALSE(bench.Context.RestartNeeded);
    }
}

TEST(TMemoryPage, DefaultButtonsChooseTheUsualSettings) {
    TPageBench bench(MemoryPage());
    bench.Preset(kAlways, true);
    bench.Preset(kClearPageFile, true);
    bench.Get<TButton>(L"Button_MemoryAndCache_MemoryManage_Default").Click();
    EXPECT_TRUE(bench.Checked(kPage));
    EXPECT_FALSE(bench.Checked(kClearPageFile));
    EXPECT_EQ(bench.Recorded, 2);
    bench.Get<TButton>(L"Button_MemoryAndCache_MemoryUse_Default").Click();
    EXPECT_TRUE(bench.Checked(kProgram));
}

}  // namespace
