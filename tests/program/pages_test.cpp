// The Driver page and the Memory and Cache page: what they show, what they record, what Apply leaves in the registry.
#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using TPages = TProgramTest;

constexpr const wchar_t* kUdmaBox = L"Checkbox_Drives_Common_Enable";
constexpr const wchar_t* kVisitBox = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
constexpr const wchar_t* kShortNameBox = L"Checkbox_Drives_Common_NTFS_SaveShortName";
constexpr const wchar_t* kSpaceBox = L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn";
constexpr const wchar_t* kNoticeBox = L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable";
constexpr const wchar_t* kRemovableBox = L"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia";
constexpr const wchar_t* kDvdBox = L"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD";
constexpr const wchar_t* kKeepRadio = L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways";
constexpr const wchar_t* kPageRadio = L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page";
constexpr const wchar_t* kPageFileBox = L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete";
constexpr const wchar_t* kSystemRadio = L"Radio_MemoryAndCache_MemoryUse_System";
constexpr const wchar_t* kProgramRadio = L"Radio_MemoryAndCache_MemoryUse_Program";

constexpr const wchar_t* kDrives = L"TabSheet_Drives_Common";
constexpr const wchar_t* kDiskSpace = L"TabSheet_Drives_DiskSpace";
constexpr const wchar_t* kAutoPlay = L"TabSheet_Drives_AutoPlay";
constexpr const wchar_t* kMemoryManage = L"TabSheet_MemoryAndCache_MemoryManage";
constexpr const wchar_t* kMemoryUse = L"TabSheet_MemoryAndCache_MemoryUse";

void Show(const TMainWindow& window, const wchar_t* item, const wchar_t* sheet) {
    window.Click(item);
    window.ChooseSheet(sheet);
}

TEST_F(TPages, ShowWhateverIsStored) {
    const std::optional<TStoredValue> stored[] = {
        std::nullopt, Dword(0), Dword(1), Dword(7), Text(L"1"), Text(L"yes"), Binary({1, 2, 3, 4, 5}),
        Qword(1),
    };
    struct TShown {
        const wchar_t* Control;
        const char* Checked;  ///< 'x' where it shows checked, in the order of `stored`
    };
    // Missing, 0, 1, 7, "1", "yes", five bytes, another type. Of 7 the bit of removable drives is set, that of discs not.
    constexpr TShown kShown[] = {
        {kUdmaBox, "..x.x..."},     {kVisitBox, "xx.x.xxx"},    {kShortNameBox, ".x.x.xxx"},
        {kSpaceBox, "xx.x.xxx"},    {kNoticeBox, "x.x.x..."},   {kRemovableBox, ".xx.x..."},
        {kDvdBox, ".xxxx..."},      {kKeepRadio, "..x.x..."},   {kPageRadio, ".x.x.xxx"},
        {kPageFileBox, "..x.x..."}, {kSystemRadio, "..x.x..."}, {kProgramRadio, ".x.x.xxx"},
    };
    for (std::size_t i = 0; i < std::size(stored); ++i) {
        SCOPED_TRACE(testing::Message() << "column " << i);
        StoreAll(stored[i]);
        const TProgram program;
        const TMainWindow& window = program.Window();
        window.Click(kDriverItem);
        window.Click(kMemoryItem);
        for (const TShown& row : kShown)
            EXPECT_EQ(window.Checked(row.Control), row.Checked[i] == 'x') << Utf8(row.Control);
        EXPECT_FALSE(window.Enabled(L"Button_Apply")) << "loading is no change";
    }
}

TEST_F(TPages, RecordEachBoxAndWriteItOnApply) {
    struct TBox {
        const wchar_t* Item;
        const wchar_t* Sheet;
        const wchar_t* Control;
        TValuePlace Place;
        DWORD WhenChecked;
        DWORD WhenClear;
        bool Restart;
    };
    const TBox boxes[] = {
        {kDriverItem, kDrives, kUdmaBox, kEnableUdma, 1, 0, true},
        {kDriverItem, kDrives, kVisitBox, kLastAccess, 0, 1, false},
        {kDriverItem, kDrives, kShortNameBox, kShortNames, 0, 1, false},
        {kDriverItem, kDiskSpace, kSpaceBox, kSpaceChecks, 0, 1, true},
        {kDriverItem, kAutoPlay, kNoticeBox, kDiscNotice, 1, 0, true},
        {kMemoryItem, kMemoryManage, kPageFileBox, kClearPageFile, 1, 0, false},
    };
    std::vector<bool> checked;
    {
        const TProgram program;
        const TMainWindow& window = program.Window();
        // One click changes the state; two leave it as it was, and the value is written all the same.
        for (const int clicks : {1, 2}) {
            for (const TBox& box : boxes) {
                SCOPED_TRACE(testing::Message() << Utf8(box.Control) << ", " << clicks << " clicks");
                Show(window, box.Item, box.Sheet);
                const bool before = window.Checked(box.Control);
                const auto storedBefore = Stored(box.Place);
                for (int i = 0; i < clicks; ++i) window.Click(box.Control);
                EXPECT_EQ(window.Checked(box.Control), before == (clicks == 2));
                EXPECT_TRUE(window.Enabled(L"Button_Apply"));
                EXPECT_EQ(Stored(box.Place), storedBefore) << "written before Apply";

                if (box.Restart)
                    (void)program.ApplyWithoutRestart();
                else
                    program.Apply();
                EXPECT_EQ(Stored(box.Place),
                          Dword(window.Checked(box.Control) ? box.WhenChecked : box.WhenClear));
                EXPECT_FALSE(window.Enabled(L"Button_Apply"));
            }
            // The notice of discs has a second value, always the same as the first.
            EXPECT_EQ(Stored(kDiscDriver), Stored(kDiscNotice));
        }
        for (const TBox& box : boxes) {
            Show(window, box.Item, box.Sheet);
            window.Click(box.Control);
            checked.push_back(window.Checked(box.Control));
        }
        (void)program.ApplyWithoutRestart();
    }
    const TProgram again;
    for (std::size_t i = 0; i < std::size(boxes); ++i) {
        again.Window().Click(boxes[i].Item);
        EXPECT_EQ(again.Window().Checked(boxes[i].Control), checked[i]) << Utf8(boxes[i].Control);
        EXPECT_EQ(Stored(boxes[i].Place), Dword(checked[i] ? boxes[i].WhenChecked : boxes[i].WhenClear));
    }
}

TEST_F(TPages, ChangeOneBitOfTheAutoPlayMaskAtATime) {
    Store(kAutoPlayMask, Dword(0x91));
    const TProgram program;
    const TMainWindow& window = program.Window();
    Show(window, kDriverItem, kAutoPlay);
    ASSERT_TRUE(window.Checked(kRemovableBox));
    ASSERT_TRUE(window.Checked(kDvdBox));

    struct TCase {
        const char* What;
        std::optional<DWORD> Stored;
        std::vector<const wchar_t*> Clicks;
        DWORD Expected;
    };
    // The mask is read anew at each click. Behind the clicks stands the state that they lead to.
    const TCase cases[] = {
        {"clearing sets the bit", 0x91, {kRemovableBox /*clear*/}, 0x95},
        {"checking keeps a bit that is clear already", 0x91, {kRemovableBox /*checked*/}, 0x91},
        {"checking clears the bit", 0xB5, {kDvdBox /*clear*/, kDvdBox /*checked*/}, 0x95},
        {"without a mask clearing sets the bit alone", std::nullopt, {kRemovableBox /*clear*/}, 0x04},
        {"without a mask checking sets it too", std::nullopt, {kRemovableBox /*checked*/}, 0x04},
        {"and likewise for discs", std::nullopt, {kDvdBox /*clear*/, kDvdBox /*checked*/}, 0x20},
        {"both start from what is stored, the second wins",
         0x91,
         {kRemovableBox, kDvdBox /*both clear*/},
         0xB1},
        {"in either order", 0xB5, {kDvdBox, kRemovableBox /*both checked*/}, 0xB1},
        {"a further click keeps the first one's turn",
         0x91,
         {kRemovableBox /*clear*/, kDvdBox /*clear*/, kRemovableBox /*checked*/},
         0xB1},
    };
    for (const TCase& test : cases) {
        SCOPED_TRACE(test.What);
        Store(kAutoPlayMask, test.Stored ? std::optional(Dword(*test.Stored)) : std::nullopt);
        for (const wchar_t* box : test.Clicks) window.Click(box);
        // What Apply writes was settled by the clicks.
        Store(kAutoPlayMask, Dword(0xFF));
        program.Apply();
        EXPECT_EQ(Stored(kAutoPlayMask), Dword(test.Expected));
    }
}

TEST_F(TPages, TheLastClickOfARadioPairWins) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    struct TPair {
        const wchar_t* Sheet;
        const wchar_t* First;
        const wchar_t* Second;
        TValuePlace Place;
    };
    for (const TPair& pair : {TPair{kMemoryManage, kKeepRadio, kPageRadio, kPagingExecutive},
                              TPair{kMemoryUse, kSystemRadio, kProgramRadio, kSystemCache}}) {
        SCOPED_TRACE(Utf8(pair.First));
        Show(window, kMemoryItem, pair.Sheet);
        window.Click(pair.First);
        EXPECT_TRUE(window.Checked(pair.First));
        window.Click(pair.Second);
        EXPECT_TRUE(window.Checked(pair.Second));
        EXPECT_FALSE(window.Checked(pair.First));
        (void)program.ApplyWithoutRestart();
        EXPECT_EQ(Stored(pair.Place), Dword(0));

        window.Click(pair.First);
        EXPECT_FALSE(window.Checked(pair.Second));
        (void)program.ApplyWithoutRestart();
        EXPECT_EQ(Stored(pair.Place), Dword(1));

        // The chosen button is no choice any more.
        window.Click(pair.First);
        EXPECT_FALSE(window.Enabled(L"Button_Apply"));
    }
}

TEST_F(TPages, DefaultButtonsChangeAndRecordWhatDiffers) {
    StoreAll(Dword(1));  // nothing is as the buttons set it
    const TProgram program;
    const TMainWindow& window = program.Window();
    struct TDefault {
        const wchar_t* Item;
        const wchar_t* Sheet;
        const wchar_t* Button;
        std::vector<const wchar_t*> Checked;
        std::vector<const wchar_t*> Clear;
        std::vector<TValuePlace> Zeroes;
        bool Restart;
    };
    const TDefault defaults[] = {
        {kDriverItem,
         kDrives,
         L"Button_Drives_Common_Default",
         {kVisitBox, kShortNameBox},
         {kUdmaBox},
         {kEnableUdma, kLastAccess, kShortNames},
         true},
        {kDriverItem,
         kDiskSpace,
         L"Button_Drives_DiskSpace_SpaceWarn_Default",
         {kSpaceBox},
         {},
         {kSpaceChecks},
         true},
        {kMemoryItem,
         kMemoryManage,
         L"Button_MemoryAndCache_MemoryManage_Default",
         {kPageRadio},
         {kKeepRadio, kPageFileBox},
         {kPagingExecutive, kClearPageFile},
         true},
        {kMemoryItem,
         kMemoryUse,
         L"Button_MemoryAndCache_MemoryUse_Default",
         {kProgramRadio},
         {kSystemRadio},
         {kSystemCache},
         true},
    };
    for (const TDefault& test : defaults) {
        SCOPED_TRACE(Utf8(test.Button));
        Show(window, test.Item, test.Sheet);
        window.Click(test.Button);
        for (const wchar_t* control : test.Checked) EXPECT_TRUE(window.Checked(control)) << Utf8(control);
        for (const wchar_t* control : test.Clear) EXPECT_FALSE(window.Checked(control)) << Utf8(control);
        for (const TValuePlace& place : test.Zeroes)
            EXPECT_EQ(Stored(place), Dword(1)) << "written before Apply";
        (void)program.ApplyWithoutRestart();
        for (const TValuePlace& place : test.Zeroes) EXPECT_EQ(Stored(place), Dword(0)) << Utf8(place.Name);
        // What is as it should be already is no change.
        window.Click(test.Button);
        EXPECT_FALSE(window.Enabled(L"Button_Apply"));
    }
    EXPECT_EQ(Stored(kDiscNotice), Dword(1)) << "no button's business";
}

TEST_F(TPages, KeepTheStateOfAnUnsavedChangeWhenVisitedAgain) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kDriverItem);
    window.Click(kVisitBox);
    const bool changed = window.Checked(kVisitBox);
    Store(kLastAccess, Dword(changed ? 1 : 0));
    window.Click(kMemoryItem);
    window.Click(kDriverItem);
    EXPECT_EQ(window.Checked(kVisitBox), changed);
    EXPECT_TRUE(window.Enabled(L"Button_Apply"));
}

}  // namespace
