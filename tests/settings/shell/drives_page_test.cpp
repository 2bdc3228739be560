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

constexpr const wchar_t* kIde =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000\\";
constexpr const wchar_t* kNtfs = L"\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\";
constexpr const wchar_t* kPolicies = L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer\\";
constexpr TPlace kMask{kCurrentUser, kPolicies, L"NoDriveTypeAutoRun"};

struct TBox {
    const wchar_t* Name;
    TPlace Value;
    const wchar_t* Shows[4];  ///< missing, 0, 1, 2
    bool Restart;
};
constexpr TBox kBoxes[] = {
    {kUdma, {kLocalMachine, kIde, L"EnableUDMA66"}, {L"kept", L"off", L"on", L"off"}, true},
    {kLastAccess,
     {kLocalMachine, kNtfs, L"NtfsDisableLastAccessUpdate"},
     {L"on", L"on", L"off", L"on"},
     false},
    {kShortName,
     {kLocalMachine, kNtfs, L"NtfsDisable8dot3NameCreation"},
     {L"kept", L"on", L"off", L"on"},
     false},
    {kSpaceWarn, {kCurrentUser, kPolicies, L"NoLowDiskSpaceChecks"}, {L"on", L"on", L"off", L"on"}, true},
    {kMedia, {kLocalMachine, kPolicies, L"CDRAutoRun"}, {L"on", L"off", L"on", L"off"}, true},
};

TEST(TDrivesPage, ShowsEveryStoredValue) {
    std::vector<TShownCase> shown;
    for (const TBox& box : kBoxes) {
        shown.push_back({box.Name, box.Value, std::nullopt, box.Shows[0]});
        for (const int number : {0, 1, 2})
            shown.push_back({box.Name, box.Value, Number(number), box.Shows[number + 1]});
        // Values of a type that Windows does not write there show what they mean, or as any other value.
        for (const auto& meansOne : {String(L"1"), Bytes({1, 0, 0, 0})})
            shown.push_back({box.Name, box.Value, meansOne, box.Shows[2]});
        for (const auto& other : {String(L"yes"), Bytes(TBytes(65536, 1)), TRegistryData{}})
            shown.push_back({box.Name, box.Value, other, box.Shows[3]});
    }
    ExpectShown(DrivesPage(), shown);
}

TEST(TDrivesPage, RecordsWhatEachStateStandsFor) {
    std::vector<TRecordedCase> recorded;
    for (const TBox& box : kBoxes) {
        for (const std::wstring state : {L"off", L"on"}) {
            const std::wstring number = state == box.Shows[2] ? L" = 1" : L" = 0";
            const std::wstring root = box.Value.Root == kCurrentUser ? L": HKCU" : L": HKLM";
            std::vector lines{box.Name + root + box.Value.Key + L'[' + box.Value.ValueName + L']' + number};
            if (box.Name == kMedia)
                lines.push_back(std::wstring(kMedia) +
                                L"1: HKLM\\SYSTEM\\CurrentControlSet\\Services\\Cdrom\\[Autorun]" + number);
            recorded.push_back({box.Name, state, lines, box.Restart});
        }
    }
    ExpectRecorded(DrivesPage(), recorded);
}

TEST(TDrivesPage, AutoPlayBoxesChangeTheirBitAlone) {
    struct TCase {
        const wchar_t* Box;
        std::optional<TRegistryData> Stored;
        bool Loads;
        std::int32_t CheckedRecords;
        std::int32_t ClearRecords;
    };
    const TCase cases[] = {
        {kRemovable, Number(0x91), true, 0x91, 0x95},
        {kRemovable, Number(0x95), false, 0x91, 0x95},
        {kDvd, Number(-1), false, ~0x20, -1},
        {kDvd, Number(0), true, 0, 0x20},
        {kRemovable, std::nullopt, false, 0x04, 0x04},
        {kDvd, std::nullopt, false, 0x20, 0x20},
        {kRemovable, Bytes({0x95, 0, 0, 0}), false, 0x91, 0x95},  // so Windows 2000 keeps the mask
        {kDvd, String(L"none"), false, 0x20, 0x20},
    };
    for (const TCase& c : cases) {
        for (const bool checked : {true, false}) {
            TPageBench bench(DrivesPage());
            if (c.Stored) bench.Store(kMask, *c.Stored);
            bench.Load();
            EXPECT_EQ(bench.Checked(c.Box), c.Loads);
            bench.Preset(c.Box, !checked);
            bench.Click(c.Box, checked);
            EXPECT_EQ(bench.Pending(),
                      std::vector{c.Box +
                                  std::wstring(L": HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\"
                                               L"Policies\\Explorer\\[NoDriveTypeAutoRun] = ") +
                                  std::to_wstring(checked ? c.CheckedRecords : c.ClearRecords)});
            EXPECT_FALSE(bench.Context.RestartNeeded);
        }
    }
    TPageBench bench(DrivesPage());
    bench.Store(kMask, 0xB5);
    bench.Load();
    bench.Click(kRemovable, true);
    bench.Click(kDvd, true);
    EXPECT_TRUE(bench.Pending()[0].ends_with(L"177")) << "each starts from the stored mask";
    EXPECT_TRUE(bench.Pending()[1].ends_with(L"149"));
}

TEST(TDrivesPage, DefaultButtonsRecordOnlyWhatTheyChange) {
    TPageBench bench(DrivesPage());
    bench.Preset(kUdma, true);
    bench.Preset(kLastAccess, true);
    bench.Act(L"Button_Drives_Common_Default", {});
    EXPECT_FALSE(bench.Checked(kUdma));
    EXPECT_TRUE(bench.Checked(kLastAccess));
    EXPECT_TRUE(bench.Checked(kShortName));
    EXPECT_EQ(bench.Recorded, 2);
    for (int press = 0; press < 2; ++press) bench.Act(L"Button_Drives_DiskSpace_SpaceWarn_Default", {});
    EXPECT_TRUE(bench.Checked(kSpaceWarn));
    EXPECT_EQ(bench.Recorded, 3);
}

}  // namespace
