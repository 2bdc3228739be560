#include "settings/shell/drives_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kUdma = L"Checkbox_Drives_Common_Enable";
constexpr const wchar_t* kLastAccess = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
constexpr const wchar_t* kShortName = L"Checkbox_Drives_Common_NTFS_SaveShortName";
constexpr const wchar_t* kSpaceWarn = L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn";
constexpr const wchar_t* kMedia = L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable";
constexpr const wchar_t* kRemovable = L"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia";
constexpr const wchar_t* kDvd = L"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD";

// Written as Windows has them, not as the page spells them.
constexpr TPlace kUdmaValue{
    kLocalMachine, L"System\\CurrentControlSet\\Control\\Class\\{4d36e96a-e325-11ce-bfc1-08002be10318}\\0000",
    L"EnableUDMA66"};
constexpr TPlace kLastAccessValue{kLocalMachine, L"System\\CurrentControlSet\\Control\\FileSystem",
                                  L"NtfsDisableLastAccessUpdate"};
constexpr TPlace kShortNameValue{kLocalMachine, L"System\\CurrentControlSet\\Control\\FileSystem",
                                 L"NtfsDisable8dot3NameCreation"};
constexpr const wchar_t* kPolicies = L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
constexpr TPlace kSpaceWarnValue{kCurrentUser, kPolicies, L"NoLowDiskSpaceChecks"};
constexpr TPlace kMediaValue{kLocalMachine, kPolicies, L"CDRAutoRun"};
constexpr TPlace kMask{kCurrentUser, kPolicies, L"NoDriveTypeAutoRun"};

/// How a row shows: K keeps the box's state, C clears it, X checks it.
struct TShown {
    const wchar_t* Box;
    TPlace Value;
    char Missing;
    char Zero;
    char One;
    char Two;
};

constexpr TShown kShown[] = {
    {kUdma, kUdmaValue, 'K', 'C', 'X', 'C'},           {kLastAccess, kLastAccessValue, 'X', 'X', 'C', 'X'},
    {kShortName, kShortNameValue, 'K', 'X', 'C', 'X'}, {kSpaceWarn, kSpaceWarnValue, 'X', 'X', 'C', 'X'},
    {kMedia, kMediaValue, 'X', 'C', 'X', 'C'},
};

void ExpectShown(const TShown& row, const std::optional<TRegistryData>& stored, char expected) {
    for (const bool before : {false, true}) {
        TPageBench bench(DrivesPage());
        bench.Preset(row.Box, before);
        if (stored) bench.Store(row.Value, *stored);
        bench.Load();
        const bool after = expected == 'K' ? before : expected == 'X';
        EXPECT_EQ(bench.Checked(row.Box), after)
            << testing::PrintToString(row.Box) << " expected " << expected;
        EXPECT_TRUE(bench.Pending().empty()) << "loading records nothing";
        EXPECT_FALSE(bench.Context.Loading);
    }
}

TEST(TDrivesPage, ShowsEveryStoredValue) {
    for (const TShown& row : kShown) {
        ExpectShown(row, std::nullopt, row.Missing);
        ExpectShown(row, TRegistryData{TRegDataType::Dword, 0}, row.Zero);
        ExpectShown(row, TRegistryData{TRegDataType::Dword, 1}, row.One);
        ExpectShown(row, TRegistryData{TRegDataType::Dword, 2}, row.Two);
        // Values of a type that Windows does not write there show what they mean, or as any other value.
        ExpectShown(row, TRegistryData{TRegDataType::String, std::wstring(L"1")}, row.One);
        ExpectShown(row, TRegistryData{TRegDataType::Binary, TBytes{1, 0, 0, 0}}, row.One);
        ExpectShown(row, TRegistryData{TRegDataType::String, std::wstring(L"yes")}, row.Two);
        ExpectShown(row, TRegistryData{TRegDataType::Binary, TBytes(64 * 1024, 1)}, row.Two);
        ExpectShown(row, TRegistryData{TRegDataType::Unknown, {}}, row.Two);
    }
}

TEST(TDrivesPage, RecordsWhatEachStateStandsFor) {
    struct TRecorded {
        const wchar_t* Box;
        const wchar_t* Place;
        const wchar_t* Checked;
        const wchar_t* Clear;
        bool Restart;
    };
    constexpr TRecorded kRecorded[] = {
        {kUdma,
         L"HKLM\\SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000\\"
         L"[EnableUDMA66]",
         L" = 1", L" = 0", true},
        {kLastAccess, L"HKLM\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\[NtfsDisableLastAccessUpdate]",
         L" = 0", L" = 1", false},
        {kShortName, L"HKLM\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\[NtfsDisable8dot3NameCreation]",
         L" = 0", L" = 1", false},
        {kSpaceWarn,
         L"HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer\\[NoLowDiskSpaceChecks]",
         L" = 0", L" = 1", true},
    };
    for (const TRecorded& row : kRecorded) {
        for (const bool checked : {true, false}) {
            TPageBench bench(DrivesPage());
            bench.Preset(row.Box, !checked);
            bench.Click(row.Box, checked);
            const std::wstring line =
                std::wstring(row.Box) + L": " + row.Place + (checked ? row.Checked : row.Clear);
            EXPECT_EQ(bench.Pending(), std::vector{line});
            EXPECT_EQ(bench.Context.RestartNeeded, row.Restart);
            EXPECT_EQ(bench.Recorded, 1);
        }
    }
}

TEST(TDrivesPage, MediaChangesAreRecordedForExplorerAndForTheDriver) {
    TPageBench bench(DrivesPage());
    bench.Click(kMedia, true);
    bench.Click(kMedia, false);
    bench.Click(kMedia, true);
    const std::vector<std::wstring> expected{
        std::wstring(kMedia) +
            L": HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer\\[CDRAutoRun] = 1",
        std::wstring(kMedia) + L"1: HKLM\\SYSTEM\\CurrentControlSet\\Services\\Cdrom\\[Autorun] = 1"};
    EXPECT_EQ(bench.Pending(), expected) << "one entry each, however often it is clicked";
    EXPECT_TRUE(bench.Context.RestartNeeded);
}

TEST(TDrivesPage, AutoPlayBoxesChangeTheirBitAlone) {
    struct TCase {
        const wchar_t* Box;
        std::optional<TRegistryData> Stored;
        bool Loads;
        std::int32_t CheckedRecords;
        std::int32_t ClearRecords;
    };
    const auto number = [](std::int32_t mask) { return TRegistryData{TRegDataType::Dword, mask}; };
    const TCase cases[] = {
        {kRemovable, number(0x91), true, 0x91, 0x95},
        {kRemovable, number(0x95), false, 0x91, 0x95},
        {kDvd, number(0xB5), false, 0x95, 0xB5},
        {kDvd, number(-1), false, ~0x20, -1},
        {kDvd, number(0), true, 0, 0x20},
        {kRemovable, std::nullopt, false, 0x04, 0x04},
        {kDvd, std::nullopt, false, 0x20, 0x20},
        // Windows 2000 keeps the mask as four bytes.
        {kRemovable, TRegistryData{TRegDataType::Binary, TBytes{0x95, 0, 0, 0}}, false, 0x91, 0x95},
        {kDvd, TRegistryData{TRegDataType::String, std::wstring(L"none")}, false, 0x20, 0x20},
    };
    for (const TCase& c : cases) {
        for (const bool checked : {true, false}) {
            TPageBench bench(DrivesPage());
            if (c.Stored) bench.Store(kMask, *c.Stored);
            bench.Load();
            EXPECT_EQ(bench.Checked(c.Box), c.Loads);
            bench.Preset(c.Box, !checked);
            bench.Click(c.Box, checked);
            const std::wstring line = std::wstring(c.Box) +
                                      L": "
                                      L"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explore"
                                      L"r\\[NoDriveTypeAutoRun] = " +
                                      std::to_wstring(checked ? c.CheckedRecords : c.ClearRecords);
            EXPECT_EQ(bench.Pending(), std::vector{line});
            EXPECT_FALSE(bench.Context.RestartNeeded);
        }
    }
}

TEST(TDrivesPage, EachAutoPlayBoxStartsFromTheStoredMask) {
    TPageBench bench(DrivesPage());
    bench.Store(kMask, 0xB5);
    bench.Load();
    bench.Click(kRemovable, true);
    bench.Click(kDvd, true);
    bench.Context.Changes.WriteAll();
    const TRegistryData* mask = bench.Fake.Registry.Find({kMask.Root, kMask.Key, kMask.ValueName});
    EXPECT_EQ(std::get<std::int32_t>(mask->Value), 0x95) << "the box recorded last is written last";
}

TEST(TDrivesPage, DefaultButtonsRecordOnlyWhatTheyChange) {
    TPageBench bench(DrivesPage());
    bench.Preset(kUdma, true);
    bench.Preset(kLastAccess, true);
    bench.Preset(kShortName, false);
    bench.Get<TButton>(L"Button_Drives_Common_Default").Click();
    EXPECT_FALSE(bench.Checked(kUdma));
    EXPECT_TRUE(bench.Checked(kLastAccess));
    EXPECT_TRUE(bench.Checked(kShortName));
    EXPECT_EQ(bench.Recorded, 2);

    bench.Get<TButton>(L"Button_Drives_DiskSpace_SpaceWarn_Default").Click();
    EXPECT_TRUE(bench.Checked(kSpaceWarn));
    bench.Get<TButton>(L"Button_Drives_DiskSpace_SpaceWarn_Default").Click();
    EXPECT_EQ(bench.Recorded, 3);
}

}  // namespace
