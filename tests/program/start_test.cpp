// The program from its start until it is ready: the window, its pages and its category bar.
#include <set>

#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using TStart = TProgramTest;
using TNames = std::set<std::wstring>;

/// The names of the notebook pages that can be seen.
TNames ShownPages(const TMainWindow& window) {
    TNames shown;
    for (int tag = 1; tag <= 19; ++tag)
        if (const std::wstring page = std::to_wstring(tag); window.Visible(page)) shown.insert(page);
    return shown;
}

TEST_F(TStart, EndsReadyWithNothingToApply) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    EXPECT_TRUE(window.Enabled(L"Button_OK"));
    EXPECT_TRUE(window.Enabled(L"Button_Cancel"));
    EXPECT_FALSE(window.Enabled(L"Button_Apply"));
    EXPECT_EQ(ShownPages(window), TNames{L"19"});

    // It fits a screen of 800 by 600; where the task bar takes some of that, it is smaller.
    const RECT place = window.Rectangle();
    EXPECT_LE(place.right - place.left, 800);
    EXPECT_LE(place.bottom - place.top, 600);
}

TEST_F(TStart, ShowsThePageOfEachCategoryItem) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    const std::pair<std::wstring, std::vector<int>> groups[] = {
        {L"RzGroup_CommonSettings", {19}}, {L"RzGroup_Display", {2, 3, 5, 6}},
        {L"RzGroup_Use", {8, 9}},          {L"RzGroup_Communication", {17, 4, 7, 14, 15}},
        {L"RzGroup_Manage", {13, 18, 12}}, {L"RzGroup_Others", {1, 16}},
    };
    for (const auto& [group, pages] : groups) {
        for (std::size_t i = 0; i < pages.size(); ++i) {
            window.Click(group + L".Items[" + std::to_wstring(i) + L"]");
            EXPECT_EQ(ShownPages(window), TNames{std::to_wstring(pages[i])});
        }
    }
    EXPECT_FALSE(window.Visible(L"RzGroup_Communication.Items[5]"));
    EXPECT_FALSE(window.Enabled(L"Button_Apply")) << "visiting pages is no change";

    TNames names;
    for (const TNamedControl& control : window.Controls())
        EXPECT_TRUE(names.insert(control.Name).second) << Utf8(control.Name) << " twice";
}

TEST_F(TStart, TheTabKeyReachesEverythingAndChangesNothing) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kMemoryItem);
    TNames reached;
    // More often than there are stops: the round closes.
    for (int i = 0; i < 60; ++i) {
        const std::wstring before = window.FocusedControl();
        reached.insert(before);
        window.Press(VK_TAB);
        ASSERT_TRUE(WaitUntil([&] { return window.FocusedControl() != before; })) << Utf8(before);
    }
    for (const wchar_t* stop :
         {L"Edit_Find", kMemoryItem, L"PageControl_MemoryAndCache",
          L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete",
          L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways", L"Button_OK", L"Button_Cancel"})
        EXPECT_TRUE(reached.contains(stop)) << Utf8(stop);
    EXPECT_FALSE(reached.contains(L"Radio_MemoryAndCache_MemoryUse_Program")) << "on another sheet";
    EXPECT_FALSE(reached.contains(L"Button_Apply")) << "disabled, for nothing is changed";
}

TEST_F(TStart, TheKeyboardFindsASettingAndLeadsBack) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    const auto waitFor = [&](const std::wstring& focused) {
        EXPECT_TRUE(WaitUntil([&] { return window.FocusedControl() == focused; }))
            << Utf8(focused) << ", not " << Utf8(window.FocusedControl());
    };
    waitFor(L"RzGroup_CommonSettings.Items[0]");
    window.Click(kMemoryItem);
    const std::wstring from = window.FocusedControl();
    window.Type(L"Edit_Find", L"last access driver");
    EXPECT_TRUE(window.Visible(L"ListView_Find"));
    EXPECT_EQ(ShownPages(window), TNames());
    ASSERT_FALSE(window.Rows(L"ListView_Find").empty());
    window.Press(VK_DOWN);
    waitFor(L"ListView_Find");
    window.Press(VK_ESCAPE);
    waitFor(from);
    EXPECT_EQ(ShownPages(window), TNames{L"15"});
    EXPECT_EQ(window.Text(L"Edit_Find"), L"");

    window.Type(L"Edit_Find", L"last access driver");
    window.Press(VK_RETURN);
    waitFor(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData");
    EXPECT_EQ(ShownPages(window), TNames{L"14"});
    EXPECT_FALSE(window.Visible(L"ListView_Find"));

    // What stands in the dialog is found, too.
    window.Type(L"Edit_Find", L"checkbox_folder_desktop_recyclebin");
    window.Press(VK_RETURN);
    const TMainWindow dialog = TMainWindow::WaitFor(program.Id(), TMainWindow::kFolderClass);
    EXPECT_TRUE(WaitUntil([&] { return dialog.FocusedControl() == L"Checkbox_Folder_Desktop_RecycleBin"; }))
        << Utf8(dialog.FocusedControl());
}

TEST_F(TStart, ASecondInstanceRestoresTheFirstAndEnds) {
    const TProgram first;
    const HWND window = first.Window().Handle();
    ShowWindowAsync(window, SW_MINIMIZE);
    ASSERT_TRUE(WaitUntil([window] { return IsIconic(window); }));

    const TProcess second;
    EXPECT_EQ(second.ExitCode(), 0u);
    EXPECT_TRUE(WaitUntil([window] { return !IsIconic(window); }));
    EXPECT_EQ(TopWindows(TMainWindow::kClass, 0), std::vector<HWND>{window});
}

}  // namespace
