#include "settings/shell/start_menu_page.h"

#include "tests/settings/page_bench.h"

namespace {

constexpr const wchar_t* kRun = L"Checkbox_Use_StartMenu_Items_Run";
constexpr const wchar_t* kAdminTools = L"Checkbox_Use_StartMenu_Items_AdminTools";
constexpr const wchar_t* kComputer = L"CB_Use_StartMenu_Items_MyComputer";
constexpr const wchar_t* kCascade = L"Checkbox_Use_StartMenu_Common_Classic_Printers";
constexpr const wchar_t* kUser = L"Checkbox_Use_StartMenu_Common_User_ShowUserName";
constexpr const wchar_t* kDelay = L"UpDown_Use_StartMenu_Common_Menu_Delay";

constexpr const wchar_t* kAdvanced = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced";
constexpr const wchar_t* kPolicies = L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
constexpr TPlace kShowRun{kCurrentUser, kAdvanced, L"Start_ShowRun"};
constexpr TPlace kNoRun{kCurrentUser, kPolicies, L"NoRun"};
constexpr TPlace kTools{kCurrentUser, kAdvanced, L"StartMenuAdminTools"};
constexpr TPlace kShowComputer{kCurrentUser, kAdvanced, L"Start_ShowMyComputer"};
constexpr TPlace kPrinters{kCurrentUser, kAdvanced, L"CascadePrinters"};
constexpr TPlace kNoUserName{kCurrentUser, kPolicies, L"NoUserNameInStartMenu"};

std::wstring Advanced(const wchar_t* change, const wchar_t* rest) {
    return std::wstring(change) + L": HKCU\\" + kAdvanced + L"\\" + rest;
}

TEST(TStartMenuPage, ShowsTheMenuAsWindowsDoes) {
    const TShownCase cases[] = {
        {kRun, kShowRun, std::nullopt, L"on", 5},
        {kRun, kShowRun, std::nullopt, L"off", 6},
        {kRun, kShowRun, Number(1), L"on", 7},
        {kRun, kShowRun, Number(0), L"off", 5},
        {kRun, kNoRun, Number(1), L"off", 4},
        {kRun, kShowRun, Number(0), L"on", 4},
        {kAdminTools, kTools, String(L"YES"), L"on", 4},
        {kAdminTools, kTools, String(L"no"), L"off", 4},
        {kAdminTools, kTools, Number(1), L"on"},
        {kAdminTools, kTools, std::nullopt, L"off"},
        {kComputer, kShowComputer, Number(2), L"2"},
        {kComputer, kShowComputer, std::nullopt, L"1"},
        {kComputer, kShowComputer, Number(7), L"kept"},
        {kComputer, kShowComputer, Number(2), L"kept", 4},
        {kCascade, kPrinters, String(L"yes"), L"on", 5},
        {kCascade, kPrinters, String(L"yes"), L"kept", 6},
        {kUser, kNoUserName, Number(1), L"off"},
        {kUser, kNoUserName, std::nullopt, L"on"},
    };
    ExpectShown(StartMenuPage(), cases);
}

TEST(TStartMenuPage, RecordsWhatWindowsReads) {
    const TRecordedCase cases[] = {
        {kComputer, L"2", {Advanced(kComputer, L"[Start_ShowMyComputer] = 2")}},
        {kCascade, L"off", {Advanced(kCascade, L"[CascadePrinters] = \"NO\"")}},
        {kUser,
         L"off",
         {std::wstring(kUser) + L": HKCU\\" + kPolicies + L"\\[NoUserNameInStartMenu] = 1"},
         true},
        {kDelay, L"0", {std::wstring(kDelay) + L": parameter 0x6B(0, 0)"}},
    };
    ExpectRecorded(StartMenuPage(), cases);
}

TEST(TStartMenuPage, CommandsOfTheMenuDifferByWindowsVersion) {
    for (const int level : {4, 5}) {
        TPageBench bench(StartMenuPage());
        bench.Context.WindowsLevel = level;
        bench.Act(kAdminTools, L"on");
        bench.Act(kRun, L"on");
        bench.Act(kRun, L"off");
        const std::wstring noRun = std::wstring(kRun) + L": HKCU\\" + kPolicies + L"\\[NoRun] = 1";
        if (level == 4)
            EXPECT_EQ(bench.Pending(),
                      (std::vector{Advanced(L"CHKmantools", L"[StartMenuAdminTools] = \"YES\""), noRun}));
        else
            EXPECT_EQ(bench.Pending(), (std::vector{Advanced(L"CHKmantools", L"[StartMenuAdminTools] = 1"),
                                                    Advanced(L"CHKmantools1", L"[Start_AdminToolsRoot] = 2"),
                                                    Advanced(kRun, L"[Start_ShowRun] = 0")}));
    }
}

}  // namespace
