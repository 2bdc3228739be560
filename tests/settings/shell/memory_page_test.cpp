#include "settings/shell/memory_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kAlways = L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways";
constexpr const wchar_t* kPage = L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page";
constexpr const wchar_t* kClearPageFile = L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete";
constexpr const wchar_t* kSystem = L"Radio_MemoryAndCache_MemoryUse_System";
constexpr const wchar_t* kProgram = L"Radio_MemoryAndCache_MemoryUse_Program";

constexpr const wchar_t* kKey = L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\";

std::wstring Line(const wchar_t* changeName, const wchar_t* rest) {
    return changeName + std::wstring(L": HKLM") + kKey + rest;
}

TEST(TMemoryPage, ShowsTheStoredValues) {
    std::vector<TShownCase> shown;
    const auto add = [&](const wchar_t* control, const wchar_t* name, std::optional<TRegistryData> stored,
                         const wchar_t* shows) {
        shown.push_back({control, {kLocalMachine, kKey, name}, std::move(stored), shows});
    };
    for (const auto& [first, second, name] :
         {std::tuple{kAlways, kPage, L"DisablePagingExecutive"}, {kSystem, kProgram, L"LargeSystemCache"}}) {
        for (const auto& [number, firstShows, secondShows] :
             {std::tuple{0, L"off", L"on"}, {1, L"on", L"off"}, {2, L"off", L"on"}}) {
            add(first, name, Number(number), firstShows);
            add(second, name, Number(number), secondShows);
        }
        add(first, name, std::nullopt, L"off");  // as designed: a missing value leaves both alone
        add(second, name, std::nullopt, L"off");
    }
    for (const auto& [number, shows] : {std::pair{0, L"off"}, {1, L"on"}, {2, L"off"}})
        add(kClearPageFile, L"ClearPageFileAtShutdown", Number(number), shows);
    add(kClearPageFile, L"ClearPageFileAtShutdown", std::nullopt, L"kept");
    ExpectShown(MemoryPage(), shown);
}

TEST(TMemoryPage, RecordsWhatEachStateStandsFor) {
    const TRecordedCase recorded[] = {
        {kAlways, L"on", {Line(L"RadPagingExecutive", L"[DisablePagingExecutive] = 1")}, true},
        {kPage, L"on", {Line(L"RadPagingExecutive", L"[DisablePagingExecutive] = 0")}, true},
        {kSystem, L"on", {Line(L"RadLargeSystem", L"[LargeSystemCache] = 1")}, true},
        {kProgram, L"on", {Line(L"RadLargeSystem", L"[LargeSystemCache] = 0")}, true},
        {kClearPageFile, L"on", {Line(kClearPageFile, L"[ClearPageFileAtShutdown] = 1")}},
        {kClearPageFile, L"off", {Line(kClearPageFile, L"[ClearPageFileAtShutdown] = 0")}},
    };
    ExpectRecorded(MemoryPage(), recorded);
}

TEST(TMemoryPage, DefaultButtonsChooseTheUsualSettings) {
    TPageBench bench(MemoryPage());
    for (const wchar_t* name : {kAlways, kClearPageFile, kSystem}) bench.Preset(name, true);
    bench.Act(L"Button_MemoryAndCache_MemoryManage_Default", {});
    EXPECT_TRUE(bench.Checked(kPage));
    EXPECT_FALSE(bench.Checked(kClearPageFile));
    EXPECT_EQ(bench.Recorded, 2) << "the cleared radio button records nothing by itself";
    bench.Act(L"Button_MemoryAndCache_MemoryUse_Default", {});
    EXPECT_TRUE(bench.Checked(kProgram));
}

}  // namespace
