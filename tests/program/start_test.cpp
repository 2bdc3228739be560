// The program from its start until it is ready: the window, its pages and its category bar.
#include <set>

#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using TStart = TProgramTest;

struct TCategory {
    const wchar_t* Name;
    const wchar_t* Caption;
    const wchar_t* Page;  ///< null for a group
};

constexpr TCategory kCategories[] = {
    {L"RzGroup_CommonSettings", L"General Settings", nullptr},
    {L"RzGroup_CommonSettings.Items[0]", L"General Settings", L"19"},
    {L"RzGroup_Display", L"Menu", nullptr},
    {L"RzGroup_Display.Items[0]", L"File Types", L"2"},
    {L"RzGroup_Display.Items[1]", L"Folder Types", L"3"},
    {L"RzGroup_Display.Items[2]", L"Start Menu", L"5"},
    {L"RzGroup_Display.Items[3]", L"Task Bar", L"6"},
    {L"RzGroup_Use", L"Browser", nullptr},
    {L"RzGroup_Use.Items[0]", L"Internet Explorer", L"8"},
    {L"RzGroup_Use.Items[1]", L"Mozilla Firefox", L"9"},
    {L"RzGroup_Communication", L"System Settings", nullptr},
    {L"RzGroup_Communication.Items[0]", L"Information", L"17"},
    {L"RzGroup_Communication.Items[1]", L"Input Options", L"4"},
    {L"RzGroup_Communication.Items[2]", L"Network", L"7"},
    {L"RzGroup_Communication.Items[3]", L"Driver", L"14"},
    {L"RzGroup_Communication.Items[4]", L"Memory and Cache", L"15"},
    {L"RzGroup_Manage", L"Security", nullptr},
    {L"RzGroup_Manage.Items[0]", L"User Logon", L"13"},
    {L"RzGroup_Manage.Items[1]", L"Security Center", L"18"},
    {L"RzGroup_Manage.Items[2]", L"Privacy", L"12"},
    {L"RzGroup_Others", L"Others", nullptr},
    {L"RzGroup_Others.Items[0]", L"Animations and Effects", L"1"},
    {L"RzGroup_Others.Items[1]", L"Start and Maintenance", L"16"},
};

/// The names of the notebook pages that can be seen.
std::set<std::wstring> ShownPages(const TMainWindow& window) {
    std::set<std::wstring> shown;
    for (int tag = 1; tag <= 19; ++tag) {
        if (const std::wstring page = std::to_wstring(tag); window.Visible(page)) shown.insert(page);
    }
    return shown;
}

TEST_F(TStart, EndsReadyWithNothingToApply) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    EXPECT_EQ(TextOf(window.Handle()), L"Quilltune");
    EXPECT_TRUE(window.Enabled(L"Button_OK"));
    EXPECT_TRUE(window.Enabled(L"Button_Cancel"));
    EXPECT_FALSE(window.Enabled(L"Button_Apply"));
    EXPECT_EQ(ShownPages(window), std::set<std::wstring>{L"19"});

    // It fits a screen of 800 by 600 with a task bar.
    const RECT place = window.Rectangle();
    EXPECT_LE(place.right - place.left, 800);
    EXPECT_LE(place.bottom - place.top, 570);
}

TEST_F(TStart, GivesEveryControlANameOfItsOwn) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    (void)window.Find(L"Radio_MemoryAndCache_MemoryUse_Program");  // the pages are filled one after the other
    std::set<std::wstring> names;
    for (const TNamedControl& control : window.Controls())
        EXPECT_TRUE(names.insert(control.Name).second) << Utf8(control.Name) << " twice";
    EXPECT_GT(names.size(), 60u);
}

TEST_F(TStart, ShowsThePageOfEachCategoryItem) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    for (const TCategory& category : kCategories) {
        SCOPED_TRACE(Utf8(category.Name));
        EXPECT_EQ(window.Text(category.Name), category.Caption);
        if (category.Page == nullptr) continue;
        EXPECT_EQ(lstrcmpiW(ClassOf(window.Find(category.Name)).c_str(), L"Button"), 0);
        window.Click(category.Name);
        EXPECT_EQ(ShownPages(window), std::set<std::wstring>{category.Page});
    }
    EXPECT_FALSE(window.Visible(L"RzGroup_Communication.Items[5]"));
    EXPECT_FALSE(window.Visible(L"RzGroup_Communication.Items[6]"));
    EXPECT_FALSE(window.Enabled(L"Button_Apply")) << "visiting pages is no change";

    // The item that is selected already shows its page as well.
    window.Click(kMemoryItem);
    window.Click(kMemoryItem);
    EXPECT_EQ(ShownPages(window), std::set<std::wstring>{L"15"});
}

TEST_F(TStart, OneTabSheetOfTheShownPageIsVisible) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    const std::vector<std::wstring> sheets = {L"TabSheet_Drives_Common", L"TabSheet_Drives_DiskSpace",
                                              L"TabSheet_Drives_AutoPlay"};
    const auto visible = [&] {
        std::vector<std::wstring> found;
        for (const std::wstring& sheet : sheets) {
            if (window.Visible(sheet)) found.push_back(sheet);
        }
        return found;
    };
    EXPECT_TRUE(visible().empty());
    window.Click(kDriverItem);
    EXPECT_EQ(visible(), std::vector{sheets[0]});
    for (const std::size_t i : {2, 1, 0}) {
        window.ChooseSheet(sheets[i]);
        EXPECT_EQ(visible(), std::vector{sheets[i]});
    }
    window.Click(kMemoryItem);
    EXPECT_TRUE(visible().empty());
}

TEST_F(TStart, CategoryItemsAnswerToMouseAndKeyboard) {
    const TProgram program;
    const TMainWindow& window = program.Window();

    const HWND driver = window.Find(kDriverItem);
    PostMessageW(driver, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    PostMessageW(driver, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    EXPECT_TRUE(WaitUntil([&] { return window.Visible(L"14"); }));

    window.Press(VK_SPACE, window.Find(kMemoryItem));
    EXPECT_TRUE(WaitUntil([&] { return window.Visible(L"15"); }));
}

TEST_F(TStart, TheTabKeyReachesEverythingAndChangesNothing) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kMemoryItem);
    std::set<std::wstring> reached;
    // More often than there are stops: the round closes.
    for (int i = 0; i < 60; ++i) {
        const std::wstring before = window.FocusedControl();
        reached.insert(before);
        window.Press(VK_TAB);
        ASSERT_TRUE(WaitUntil([&] { return window.FocusedControl() != before; }))
            << "stuck at " << Utf8(before);
    }
    for (const wchar_t* stop :
         {kMemoryItem, L"PageControl_MemoryAndCache", L"Checkbox_MemoryAndCache_MemoryManage_Pagefile_Delete",
          L"Button_MemoryAndCache_MemoryManage_Default", L"Button_OK", L"Button_Cancel"})
        EXPECT_TRUE(reached.contains(stop)) << Utf8(stop);
    EXPECT_FALSE(reached.contains(L"Radio_MemoryAndCache_MemoryUse_Program"))
        << "on a sheet that is not shown";
    EXPECT_FALSE(reached.contains(L"Button_Apply")) << "disabled";
    // One stop for the pair of radio buttons, of which neither is checked.
    EXPECT_NE(reached.contains(L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways"),
              reached.contains(L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page"));
    // Windows says that a radio button is clicked also when it merely gets the focus.
    EXPECT_FALSE(window.Checked(L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Allways"));
    EXPECT_FALSE(window.Checked(L"Radio_MemoryAndCache_MemoryManage_VirtualMemory_Page"));
    EXPECT_FALSE(window.Enabled(L"Button_Apply"));
}

TEST_F(TStart, HidesTheFirefoxItemOnWindowsOlderThanXp) {
    struct TCase {
        const wchar_t* Version;
        bool Offered;
    };
    // Server 2003 and what came after Windows 7 count as older than XP.
    for (const TCase& test : {TCase{L"win2k", false}, TCase{L"winxp", true}, TCase{L"win2003", false},
                              TCase{L"vista", true}, TCase{L"win7", true}, TCase{L"win10", false}}) {
        SCOPED_TRACE(Utf8(test.Version));
        const TWindowsVersion version(test.Version);
        const TProgram program;
        EXPECT_EQ(program.Window().Visible(L"RzGroup_Use.Items[1]"), test.Offered);
        EXPECT_TRUE(program.Window().Visible(L"RzGroup_Use.Items[0]"));
        // The pages work on every version.
        program.Window().Click(kDriverItem);
        EXPECT_TRUE(program.Window().Checked(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData"));
    }
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
    EXPECT_TRUE(IsWindowVisible(window));
}

}  // namespace
