// Settings of many pages through the whole program: what the user does to a control, and what Apply then leaves in
// the registry. A page takes part with a few rows, one for each kind of control and data that it has.
#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using TPlace = TValuePlace;
using TAction = std::function<void(const TMainWindow& window, const wchar_t* control)>;

void Click(const TMainWindow& window, const wchar_t* control) { window.Click(control); }
TAction Type(const wchar_t* text) {
    return [text](const TMainWindow& window, const wchar_t* control) { window.Type(control, text); };
}
TAction Choose(int item) {
    return [item](const TMainWindow& window, const wchar_t* control) { window.ChooseItem(control, item); };
}

void Show(const TMainWindow& window, const wchar_t* item, const wchar_t* control) {
    window.Click(item);
    for (const auto& [outer, name] : window.Controls())
        if (name.starts_with(L"TabSheet_") && IsChild(outer, window.Find(control))) window.ChooseSheet(name);
}

/// At the beginning the value is not stored.
struct TSetting {
    const wchar_t* Item;
    const wchar_t* Control;
    TAction Act;
    TPlace Place;
    TStoredValue Expected;
    bool Restart = false;
};

const HKEY kMachine = HKEY_LOCAL_MACHINE;
const HKEY kUser = HKEY_CURRENT_USER;

constexpr const wchar_t* kVisits = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
constexpr const wchar_t* kStartup = L"RzGroup_Others.Items[1]";
constexpr const wchar_t* kFolders = L"RzGroup_Display.Items[1]";
constexpr const wchar_t* kInformation = L"RzGroup_Communication.Items[0]";
constexpr const wchar_t* kInput = L"RzGroup_Communication.Items[1]";

const TSetting kSettings[] = {
    {kDriverItem, kUdmaBox, Click, kEnableUdma, Dword(1), true},
    {kDriverItem, kVisits, Click, kLastAccess, Dword(1)},
    // Changes one bit of a mask.
    {kDriverItem, L"Checkbox_Drives_AutoPlay_AutoPlayInfo_RemovableMedia", Click,
     TPlace{kUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
            L"NoDriveTypeAutoRun"},
     Dword(4)},
    {kMemoryItem, L"Radio_MemoryAndCache_MemoryUse_System", Click,
     TPlace{kMachine, L"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management",
            L"LargeSystemCache"},
     Dword(1), true},
    {kStartup, L"Checkbox_Startup_System_Defrag_Enable", Click,
     TPlace{kMachine, L"SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction", L"Enable"}, Text(L"y")},
    // More than the field takes.
    {kStartup, L"Edit_Startup_System_DelayTime_Time", Type(L"601"),
     TPlace{kMachine, L"SYSTEM\\CurrentControlSet\\Control\\Session Manager", L"AutoChkTimeOut"}, Dword(600)},
    {kStartup, L"Radio_Startup_Exit_AutoClose_ShowCloseDialog", Click,
     TPlace{kUser, L"Control Panel\\Desktop", L"AutoEndTasks"}, Text(L"0")},
    {kStartup, L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Process", Click,
     TPlace{kUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced", L"SeparateProcess"},
     Dword(1), true},
    {kStartup, L"CB_Startup_Error_SystemError_Type", Choose(1),
     TPlace{kMachine, L"SYSTEM\\CurrentControlSet\\Control\\CrashControl", L"AutoReboot"}, Dword(1)},
    {kInformation, L"Edit_System_Common_Infomation_Name", Type(L"Ada L\u00F8v"),
     TPlace{kMachine, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", L"RegisteredOwner"},
     Text(L"Ada L\u00F8v")},
    // Windows keeps what it is told.
    {kInput, L"Edit_Use_MouseSensitivity_DoubleClickTime", Type(L"450"),
     TPlace{kUser, L"Control Panel\\Mouse", L"DoubleClickSpeed"}, Text(L"450")},
    // The box of the back button records what another box shows.
    {kInformation, L"Checkbox_System_CommonDialog_FolderNavigation_ShowReturn", Click,
     TPlace{kUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\comdlg32", L"NoBackButton"},
     Dword(0)},
    // On it white text, which the other list shows without a stored value.
    {kInformation, L"CMboundColor", Choose(4),
     TPlace{kUser, L"Software\\Microsoft\\Command Processor", L"DefaultColor"}, Dword(0x47)},
};

std::vector<TPlace> Places() {
    std::vector<TPlace> places;
    for (const TSetting& setting : kSettings) places.push_back(setting.Place);
    return places;
}

class TSettings : public TProgramTest {
  private:
    TValueKeeper FKeeper{Places()};
};

TEST_F(TSettings, AreWrittenByApplyOnEveryWindows) {
    for (const wchar_t* windows : {L"win2k", L"winxp", L"win7"}) {
        for (const TSetting& setting : kSettings) Store(setting.Place, std::nullopt);
        Store(kPlayedVersion, Text(windows));
        const TProgram program;
        const TMainWindow& window = program.Window();
        EXPECT_EQ(window.Visible(L"RzGroup_Use.Items[1]"), windows != std::wstring(L"win2k"))
            << "Firefox, from XP on";
        for (const TSetting& setting : kSettings) {
            SCOPED_TRACE(Utf8(setting.Control));
            Show(window, setting.Item, setting.Control);
            EXPECT_FALSE(window.Enabled(L"Button_Apply")) << "loading is no change";
            setting.Act(window, setting.Control);
            EXPECT_EQ(Stored(setting.Place), std::nullopt) << "written before Apply";
            setting.Restart ? (void)program.ApplyWithoutRestart() : program.Apply();
            EXPECT_EQ(Stored(setting.Place), setting.Expected);
        }
    }
}

/// Wine plays Windows 11 when its registry says so and nothing else is said of the program.
TEST_F(TSettings, OfLaterWindowsAreOfferedAndWrittenThere) {
    constexpr const wchar_t* kTaskbar = L"RzGroup_Display.Items[3]";
    constexpr const wchar_t* kAdvanced = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced";
    constexpr const wchar_t* kWindowsNt = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
    const TPlace version{kMachine, kWindowsNt, L"CurrentVersion"};
    const TPlace build{kMachine, kWindowsNt, L"CurrentBuildNumber"};
    // As 32-bit programs see it.
    constexpr const wchar_t* kWindowsNt32 = L"SOFTWARE\\Wow6432Node\\Microsoft\\Windows NT\\CurrentVersion";
    const TPlace version32{kMachine, kWindowsNt32, L"CurrentVersion"};
    const TPlace build32{kMachine, kWindowsNt32, L"CurrentBuildNumber"};
    const struct {
        std::optional<TStoredValue> Played;
        const wchar_t* Control;
        TAction Act;
        const wchar_t* ValueName;
    } cases[] = {
        {Text(L"win8"), L"Checkbox_Taskbar_Screens_All", Click, L"MMTaskbarEnabled"},
        {Text(L"win81"), L"Checkbox_Taskbar_Screens_All", Click, L"MMTaskbarEnabled"},
        {Text(L"win10"), L"Checkbox_Taskbar_Modern_TaskView", Click, L"ShowTaskViewButton"},
        {std::nullopt, L"CB_Taskbar_Modern_Alignment", Choose(0), L"TaskbarAl"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(Utf8(each.Control));
        const TPlace place{kUser, kAdvanced, each.ValueName};
        const TValueKeeper keeper{{place, version, build, version32, build32}};
        Store(place, std::nullopt);
        Store(kPlayedVersion, each.Played);
        if (!each.Played) {
            for (const TPlace& view : {version, version32}) Store(view, Text(L"10.0"));
            for (const TPlace& view : {build, build32}) Store(view, Text(L"22631"));
        }
        const TProgram program;
        const TMainWindow& window = program.Window();
        EXPECT_EQ(window.Visible(L"RzGroup_Use.Items[0]"), each.Played.has_value()) << "Internet Explorer";
        Show(window, kDriverItem, kVisits);
        EXPECT_FALSE(window.Visible(kUdmaBox));
        Show(window, kTaskbar, each.Control);
        each.Act(window, each.Control);
        program.Apply();
        EXPECT_EQ(Stored(place), Dword(0));
    }
}

TEST_F(TSettings, TheRestartQuestionComesAfterTheWritingAndOnce) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    Show(window, kDriverItem, kUdmaBox);
    window.Click(kUdmaBox);
    window.Click(L"Button_Apply");
    const TMessageBox question = window.WaitForQuestion();
    EXPECT_EQ(Stored(kEnableUdma), Dword(1));
    EXPECT_EQ(question.Title(), L"Quilltune");
    EXPECT_EQ(question.Text(), L"Need to restart Windows to take effect, restart now?");
    EXPECT_TRUE(question.Offers(IDYES));
    EXPECT_FALSE(IsWindowEnabled(window.Handle()));
    question.Answer(IDNO);
    window.Click(kVisits);
    program.Apply();  // No has settled it
}

constexpr const wchar_t* kInstaller = L"Edit_System_Common_Installer_Name";
const TValuePlace kInstallerName{kUser, L"Software\\Microsoft\\MS Setup (ACME)\\User Info", L"DefName"};
constexpr const wchar_t* kThumbnail = L"Edit_Folder_Thumbnail_Size";
const TValuePlace kThumbnailSize{kUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer",
                                 L"ThumbnailSize"};

TEST_F(TSettings, TextsAreRecordedWhenTheyChangeHoweverTheyDoAndNeverElse) {
    const TValueKeeper keeper{{kInstallerName}};
    Store(kInstallerName, std::nullopt);
    const TProgram program;
    const TMainWindow& window = program.Window();
    Show(window, kInformation, kInstaller);
    for (const wchar_t* edit : {L"Edit_System_Common_Infomation_Name", kInstaller})
        for (const WORD key : {VK_TAB, VK_SHIFT, VK_LEFT, VK_END}) {
            window.Press(key, window.Find(edit));
            (void)window.Text(edit);
        }
    EXPECT_FALSE(window.Enabled(L"Button_Apply"));
    SendMessageW(window.Find(kInstaller), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Ada"));
    program.Apply();
    EXPECT_EQ(Stored(kInstallerName), Text(L"Ada"));
    SendMessageW(window.Find(kInstaller), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
    program.Apply();
    EXPECT_EQ(Stored(kInstallerName), Text(L""));
}

TEST_F(TSettings, ABoundedNumberIsCorrectedBeforeItIsWritten) {
    const TValueKeeper keeper{{kThumbnailSize}};
    void (*const ways[])(const TMainWindow& window) = {
        [](const TMainWindow& window) { window.Press(VK_RETURN); },
        [](const TMainWindow& window) { window.Click(L"Button_OK"); },
        // Alt and the access key of Apply.
        [](const TMainWindow& window) {
            PostMessageW(window.Find(kThumbnail), WM_SYSCHAR, L'a', 0x20000001);
        },
        // The parent is told, the focus stays.
        [](const TMainWindow& window) {
            const HWND apply = window.Find(L"Button_Apply");
            SendMessageW(GetParent(apply), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(apply), BN_CLICKED),
                         reinterpret_cast<LPARAM>(apply));
        },
    };
    for (const auto& apply : ways) {
        Store(kThumbnailSize, std::nullopt);
        const TProgram program;
        Show(program.Window(), kFolders, kThumbnail);
        program.Window().Type(kThumbnail, L"5");
        apply(program.Window());
        EXPECT_TRUE(WaitUntil([] { return Stored(kThumbnailSize) == Dword(32); }));
    }
}

TEST_F(TSettings, TheKeyboardAloneOpensAPageAndChangesASetting) {
    Store(kLastAccess, Dword(0));
    const TProgram program;
    const TMainWindow& window = program.Window();
    const auto goTo = [&](WORD key, const wchar_t* control) {
        for (int i = 0; i < 60 && window.FocusedControl() != control; ++i) {
            const std::wstring before = window.FocusedControl();
            window.Press(key);
            ASSERT_TRUE(WaitUntil([&] { return window.FocusedControl() != before; })) << Utf8(before);
        }
        ASSERT_EQ(window.FocusedControl(), control);
    };
    goTo(VK_TAB, L"RzGroup_CommonSettings.Items[0]");
    goTo(VK_DOWN, kDriverItem);
    window.Press(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return window.Visible(L"14"); }));
    goTo(VK_TAB, kVisits);
    window.Press(VK_SPACE);
    goTo(VK_TAB, L"Button_Apply");
    window.Press(VK_RETURN);
    ASSERT_TRUE(WaitUntil([] { return Stored(kLastAccess) == Dword(1); }));
    // The button is disabled now; the keyboard goes on elsewhere.
    ASSERT_TRUE(WaitUntil(
        [&] { return !window.FocusedControl().empty() && window.FocusedControl() != L"Button_Apply"; }));
    goTo(VK_TAB, L"Button_Cancel");
    window.Press(VK_RETURN);
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST_F(TSettings, AreWrittenByOkAndEnterAndByNoOtherWayOut) {
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
        EXPECT_TRUE(program.Window().Checked(kVisits));
        program.Window().Click(kVisits);
        leave(program.Window());
        EXPECT_EQ(program.ExitCode(), 0u);
        EXPECT_EQ(Stored(kLastAccess), Dword(writes ? 1 : 0));
    }
}

}  // namespace
