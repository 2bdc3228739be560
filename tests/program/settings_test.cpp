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

const TPlace kBootFiles{kMachine, L"SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction", L"Enable"};
const TPlace kDelay{kMachine, L"SYSTEM\\CurrentControlSet\\Control\\Session Manager", L"AutoChkTimeOut"};
const TPlace kEndTasks{kUser, L"Control Panel\\Desktop", L"AutoEndTasks"};
const TPlace kProcess{kUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced",
                      L"SeparateProcess"};
const TPlace kReboot{kMachine, L"SYSTEM\\CurrentControlSet\\Control\\CrashControl", L"AutoReboot"};
const TPlace kRegistered{kMachine, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", L"RegisteredOwner"};
const TPlace kBackButton{kUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\comdlg32",
                         L"NoBackButton"};
const TPlace kColor{kUser, L"Software\\Microsoft\\Command Processor", L"DefaultColor"};

constexpr const wchar_t* kStartup = L"RzGroup_Others.Items[1]";
constexpr const wchar_t* kInformation = L"RzGroup_Communication.Items[0]";

const TSetting kSettings[] = {
    {kStartup, L"Checkbox_Startup_System_Defrag_Enable", Click, kBootFiles, Text(L"y")},
    // More than the field takes.
    {kStartup, L"Edit_Startup_System_DelayTime_Time", Type(L"601"), kDelay, Dword(600)},
    {kStartup, L"Radio_Startup_Exit_AutoClose_ShowCloseDialog", Click, kEndTasks, Text(L"0")},
    {kStartup, L"Radio_Startup_DesktopAndTaskbar_DAndTSeparateProcess_Process", Click, kProcess, Dword(1),
     true},
    {kStartup, L"CB_Startup_Error_SystemError_Type", Choose(1), kReboot, Dword(1)},
    {kInformation, L"Edit_System_Common_Infomation_Name", Type(L"Ada L\u00F8v"), kRegistered,
     Text(L"Ada L\u00F8v")},
    // The box of the back button records what another box shows.
    {kInformation, L"Checkbox_System_CommonDialog_FolderNavigation_ShowReturn", Click, kBackButton, Dword(0)},
    // On it white text, which the other list shows without a stored value.
    {kInformation, L"CMboundColor", Choose(4), kColor, Dword(0x47)},
};

std::vector<TPlace> Places() {
    std::vector<TPlace> places;
    for (const TSetting& setting : kSettings) places.push_back(setting.Place);
    return places;
}

class TSettings : public TProgramTest, public testing::WithParamInterface<const wchar_t*> {
  private:
    TValueKeeper FKeeper{Places()};
};

TEST_P(TSettings, AreWrittenByApply) {
    for (const TSetting& setting : kSettings) Store(setting.Place, std::nullopt);
    Store(kPlayedVersion, Text(GetParam()));
    const TProgram program;
    const TMainWindow& window = program.Window();
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

INSTANTIATE_TEST_SUITE_P(OnWindows, TSettings, testing::Values(L"winxp", L"win7"));

}  // namespace
