// The Driver page and the Memory and Cache page: what they show, what they record, what Apply leaves in the registry.
#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using TPages = TProgramTest;

constexpr const wchar_t* kUdmaBox = L"Checkbox_Drives_Common_Enable";  // needs a restart
constexpr const wchar_t* kVisitBox = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
constexpr const wchar_t* kRemovableBox = L"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia";
constexpr const wchar_t* kDvdBox = L"Checkbox_Drives_AutoPlay_AutoPlayInfo_DVD";
constexpr const wchar_t* kDrives = L"TabSheet_Drives_Common";
constexpr const wchar_t* kDiskSpace = L"TabSheet_Drives_DiskSpace";
constexpr const wchar_t* kAutoPlay = L"TabSheet_Drives_AutoPlay";
constexpr const wchar_t* kMemoryManage = L"TabSheet_MemoryAndCache_MemoryManage";
constexpr const wchar_t* kMemoryUse = L"TabSheet_MemoryAndCache_MemoryUse";

void Show(const TMainWindow& window, const wchar_t* item, const wchar_t* sheet) {
    window.Click(item);
    window.ChooseSheet(sheet);
}

/// A box or radio button and the value behind it: WhenChecked, or else the other one of 0 and 1.
struct TSetting {
    const wchar_t* Item;
    const wchar_t* Sheet;
    std::wstring Control;
    TValuePlace Place;
    DWORD WhenChecked;
    bool Restart;
};
const TSetting kSettings[] = {
    {kDriverItem, kDrives, kUdmaBox, kEnableUdma, 1, true},
    {kDriverItem, kDrives, kVisitBox, kLastAccess, 0, false},
    {kDriverItem, kDrives, L"Checkbox_Drives_Common_NTFS_SaveShortName", kShortNames, 0, false},
    {kDriverItem, kDiskSpace, L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn", kSpaceChecks, 0, true},
    {kDriverItem, kAutoPlay, L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable", kDiscNotice, 1, true},
    {kMemoryItem, kMemoryManage, L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete", kClearPageFile, 1,
     false},
    {kMemoryItem, kMemoryManage, L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page", kPagingExecutive, 0,
     true},
    {kMemoryItem, kMemoryManage, L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways", kPagingExecutive,
     1, true},
    {kMemoryItem, kMemoryUse, L"Radio_MemoryAndCache_MemoryUse_Program", kSystemCache, 0, true},
    {kMemoryItem, kMemoryUse, L"Radio_MemoryAndCache_MemoryUse_System", kSystemCache, 1, true},
};

TEST_F(TPages, ShowRecordAndWriteOnEveryWindows) {
    for (const auto& [windows, stored] : {std::pair(L"win2k", 0UL), {L"win7", 1UL}}) {
        Store(kPlayedVersion, Text(windows));
        StoreAll(Dword(stored));
        const TProgram program;
        const TMainWindow& window = program.Window();
        EXPECT_EQ(window.Visible(L"RzGroup_Use.Items[1]"), stored == 1) << "Firefox, from XP on";
        for (const TSetting& setting : kSettings) {
            Show(window, setting.Item, setting.Sheet);
            EXPECT_EQ(window.Checked(setting.Control), setting.WhenChecked == stored)
                << Utf8(setting.Control);
        }
        EXPECT_FALSE(window.Enabled(L"Button_Apply")) << "loading is no change";

        for (const TSetting& setting : kSettings) {
            SCOPED_TRACE(Utf8(setting.Control));
            Show(window, setting.Item, setting.Sheet);
            const bool before = window.Checked(setting.Control);
            const auto storedBefore = Stored(setting.Place);
            window.Click(setting.Control);
            if (setting.Control.starts_with(L"Radio") && before) {
                EXPECT_FALSE(window.Enabled(L"Button_Apply")) << "the chosen button is no choice any more";
                continue;
            }
            EXPECT_NE(window.Checked(setting.Control), before);
            EXPECT_EQ(Stored(setting.Place), storedBefore) << "written before Apply";
            setting.Restart ? (void)program.ApplyWithoutRestart() : program.Apply();
            EXPECT_EQ(Stored(setting.Place), Dword(before ? 1 - setting.WhenChecked : setting.WhenChecked));
        }
        EXPECT_EQ(Stored(kDiscDriver), Stored(kDiscNotice)) << "the same value twice";
    }
}

TEST_F(TPages, ChangeOneBitOfTheAutoPlayMaskAtATime) {
    Store(kAutoPlayMask, Dword(0x91));
    const TProgram program;
    const TMainWindow& window = program.Window();
    Show(window, kDriverItem, kAutoPlay);
    const struct {
        std::optional<TStoredValue> Stored;
        std::vector<const wchar_t*> Clicks;
        DWORD Expected;
    } cases[] = {
        {Dword(0x91), {kRemovableBox}, 0x95},           // cleared: sets the bit
        {Dword(0xB5), {kDvdBox, kDvdBox}, 0x95},        // cleared and checked: clears it
        {std::nullopt, {kRemovableBox}, 0x04},          // checked, but there is no mask
        {Dword(0x91), {kRemovableBox, kDvdBox}, 0xB1},  // both start from what is stored, the second wins
    };
    for (const auto& [stored, clicks, expected] : cases) {
        Store(kAutoPlayMask, stored);
        for (const wchar_t* box : clicks) window.Click(box);
        Store(kAutoPlayMask, Dword(0xFF));  // what Apply writes was settled by the clicks
        program.Apply();
        EXPECT_EQ(Stored(kAutoPlayMask), Dword(expected));
    }
}

TEST_F(TPages, DefaultButtonsChangeAndRecordWhatDiffers) {
    StoreAll(Dword(1));  // nothing is as the buttons set it
    const TProgram program;
    const TMainWindow& window = program.Window();
    const struct {
        const wchar_t* Item;
        const wchar_t* Sheet;
        const wchar_t* Button;
        std::vector<TValuePlace> Zeroes;
    } cases[] = {
        {kDriverItem, kDrives, L"Button_Drives_Common_Default", {kEnableUdma, kLastAccess, kShortNames}},
        {kDriverItem, kDiskSpace, L"Button_Drives_DiskSpace_SpaceWarn_Default", {kSpaceChecks}},
        {kMemoryItem,
         kMemoryManage,
         L"Button_MemoryAndCache_MemoryManage_Default",
         {kPagingExecutive, kClearPageFile}},
        {kMemoryItem, kMemoryUse, L"Button_MemoryAndCache_MemoryUse_Default", {kSystemCache}},
    };
    for (const auto& [item, sheet, button, zeroes] : cases) {
        Show(window, item, sheet);
        window.Click(button);
        (void)program.ApplyWithoutRestart();
        for (const TValuePlace& place : zeroes) EXPECT_EQ(Stored(place), Dword(0)) << Utf8(place.Name);
        window.Click(button);
        EXPECT_FALSE(window.Enabled(L"Button_Apply")) << Utf8(button) << " has nothing more to change";
    }
    EXPECT_EQ(Stored(kDiscNotice), Dword(1)) << "no button's business";
}

TEST_F(TPages, TheRestartQuestionComesAfterTheWritingAndOnce) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kDriverItem);
    window.Click(kUdmaBox);
    window.Click(L"Button_Apply");
    const TMessageBox question = window.WaitForQuestion();
    EXPECT_EQ(Stored(kEnableUdma), Dword(1));
    EXPECT_EQ(question.Title(), L"Quilltune");
    EXPECT_EQ(question.Text(), L"Need to restart Windows to take effect, restart now?");
    EXPECT_TRUE(question.Offers(IDYES));
    EXPECT_FALSE(IsWindowEnabled(window.Handle()));
    question.Answer(IDNO);
    window.Click(kVisitBox);
    program.Apply();  // No has settled it
    EXPECT_EQ(Stored(kLastAccess), Dword(1));
}

TEST_F(TPages, OkAndEnterWriteAndTheOtherWaysOutDoNot) {
    const std::pair<bool, void (*)(const TMainWindow& window)> ways[] = {
        {true, [](const TMainWindow& window) { window.Click(L"Button_OK"); }},
        {true, [](const TMainWindow& window) { window.Press(VK_RETURN); }},
        {false, [](const TMainWindow& window) { window.Click(L"Button_Cancel"); }},
        {false, [](const TMainWindow& window) { window.Press(VK_ESCAPE); }},
        {false, [](const TMainWindow& window) { window.Close(); }},
    };
    for (const auto& [writes, leave] : ways) {
        Store(kLastAccess, Dword(0));
        const TProgram program;
        program.Window().Click(kDriverItem);
        program.Window().Click(kVisitBox);
        leave(program.Window());
        EXPECT_EQ(program.ExitCode(), 0u);
        EXPECT_EQ(Stored(kLastAccess), Dword(writes ? 1 : 0));
    }
}

}  // namespace
