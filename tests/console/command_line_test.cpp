// The command line over systems in memory, beside the window on the same system.
#include <nlohmann/json.hpp>

#include <gmock/gmock.h>

#include "app/history.h"
#include "app/main_window.h"
#include "console/command.h"
#include "platform/unicode.h"
#include "platform/windows_version.h"
#include "tests/settings/random_system.h"
#include "ui/containers.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const wchar_t* kShortNames = L"Checkbox_Drives_Common_NTFS_SaveShortName";
const TRegistryPlace kShortNamesPlace{TRootKey::LocalMachine,
                                      L"SYSTEM\\CurrentControlSet\\Control\\FileSystem",
                                      L"NtfsDisable8dot3NameCreation"};
const TRegistryPlace kBalloonsPlace{TRootKey::CurrentUser,
                                    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced",
                                    L"EnableBalloonTips"};

using TLines = std::vector<std::string>;

struct TAnswer : TConsole {
    TAnswer(TSystem& system, const std::vector<std::wstring>& words)
        : Status(RunCommandLine(system, words, *this)) {}

    void Print(std::wstring_view line) override { Lines.push_back(ToUtf8(line)); }
    void Complain(std::wstring_view line) override { Messages.push_back(ToUtf8(line)); }
    [[nodiscard]] nlohmann::json Json() const { return nlohmann::json::parse(Lines.at(0)); }

    TLines Lines;
    TLines Messages;
    TExitStatus Status;
};

struct TCommandLine : TRandomSystem {
    explicit TCommandLine(unsigned seed = 3) : TRandomSystem(seed) {
        Fake.Windows.SetVersion({.PlatformId = 2, .Major = 6, .Minor = 1});
    }
    TAnswer Run(const std::vector<std::wstring>& words) { return {Fake.System, words}; }
    TSnapshot Snapshot(bool withHistory = false) {
        TSnapshot snapshot = TRandomSystem::Snapshot();
        if (!withHistory) return snapshot;
        for (const std::wstring& entry : THistory(Fake.System).Entries()) snapshot.Registry.push_back(entry);
        return snapshot;
    }
};

TEST(TCommandLine, AnswersWrongUsageInOneLineAndWritesNothing) {
    const std::pair<std::vector<std::wstring>, const char*> cases[] = {
        {{}, "--help"},
        {{L"lsit"}, "list"},
        {{L"list", L"--jsno"}, "--json"},
        {{L"list", L"--dry-run"}, "--dry-run"},
        {{L"list", L"--language"}, "--language"},
        {{L"list", L"--language=Klingon"}, "Klingon"},
        {{L"list", L"Tsak Bar"}, "Task Bar"},
        {{L"list", L"o"}, "several pages"},
        {{L"list", L"a", L"b"}, "\"b\" is too much"},
        {{L"get"}, "qtune get ID..."},
        {{L"get", L""}, "No setting"},
        {{L"get", L"NTFS_SaveShotrName"}, "Checkbox_Drives_Common_NTFS_SaveShortName"},
        {{L"get", L"NTFS_Save"}, "part of 2 settings"},
        {{L"show", L"\x1F600"}, "No setting"},
        {{L"get", L"two\r\nlines"}, "two  lines"},
        {{L"set", kShortNames}, "ID=STATE"},
        {{L"set", L"=on"}, "No setting"},
        {{L"set", L"NTFS_SaveShortName=on", L"NTFS_SaveShortName=perhaps"}, "on, off"},
        {{L"set", L"UpDown_Taskbar_ButtonFlashes_Speed_Flash=4000000000"}, " to "},
        {{L"set", L"CB_Taskbar_ButtonAppearance_Look_Combine=9"}, "2 ("},
        {{L"set", L"Button_Drives_Common_Default=on"}, "press"},
        {{L"set", L"Checkbox_CommonSettings_Function_Keyboard_WinKey=off",
          L"Checkbox_Startmenu_Classic_Expand_Printers=On!"},
         "Checkbox_Startmenu_Classic_Expand_Printers"},
        // One of the two states is not the present one.
        {{L"set", L"Checkbox_Taskbar_Notification_Icons_Show=off",
          L"Checkbox_Taskbar_Notification_Icons_Volume=on",
          L"Checkbox_Taskbar_Notification_Icons_Volume=off"},
         "only while \"Show the notification area\" is checked"},
        {{L"undo", L"0"}, "\"0\""},
        {{L"undo", L"1"}, "no entry 1"},
        {{L"apply", L"C:\\broken.reg"}, "Line 4"},
    };
    TCommandLine line;
    line.Fake.Files.PutText(L"C:\\broken.reg", "REGEDIT4\n\n[HKCU\\K]\n\"v\"=dword:x\n");
    const auto before = line.Snapshot(true);
    for (const auto& [words, part] : cases) {
        const TAnswer answer = line.Run(words);
        EXPECT_EQ(answer.Status, TExitStatus::WrongUsage) << part;
        EXPECT_THAT(answer.Messages, ElementsAre(HasSubstr(part)));
        EXPECT_THAT(answer.Lines, IsEmpty());
    }
    EXPECT_EQ(line.Snapshot(true), before);
}

/// A script may prepare what this Windows does not have: it is written as the nearest Windows would that has it.
TEST(TCommandLine, ForcesWhatAnotherWindowsHas) {
    TCommandLine line;
    const TRegistryPlace advanced{
        TRootKey::CurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced", {}};
    for (const wchar_t* each : {L"TaskbarAl", L"ShowTaskViewButton"})
        (void)line.Fake.Registry.DeleteValue({advanced.Root, advanced.Key, each});
    const auto written = [&](const wchar_t* valueName) {
        const TRegistryData* data = line.Fake.Registry.Find({advanced.Root, advanced.Key, valueName});
        return data != nullptr && *data == TRegistryData{TRegDataType::Dword, 0};
    };
    const std::vector<std::wstring> words{L"set", L"Taskbar_Modern_Alignment=0",
                                          L"Taskbar_Modern_TaskView=off"};
    EXPECT_EQ(line.Run(words).Status, TExitStatus::WrongUsage);
    auto forced = words;
    forced.emplace_back(L"--force");
    EXPECT_EQ(line.Run(forced).Status, TExitStatus::Done);
    EXPECT_TRUE(written(L"TaskbarAl") && written(L"ShowTaskViewButton"));
    const auto shown = line.Run({L"show", L"Taskbar_Modern_Chat", L"--json"}).Json();
    EXPECT_EQ(shown["windows"], nlohmann::json({"Windows 11 until build 22630"}));
    EXPECT_FALSE(shown["offered"]);
}

/// Whatever is typed: words that are right, nearly right and wrong, in any order.
TEST(TCommandLine, SurvivesWhateverIsTyped) {
    TCommandLine line(7);
    const std::vector<std::wstring> words = {L"list",
                                             L"find",
                                             L"show",
                                             L"get",
                                             L"set",
                                             L"preview",
                                             L"apply",
                                             L"export",
                                             L"history",
                                             L"undo",
                                             L"SET",
                                             L"--json",
                                             L"--dry-run",
                                             L"--force",
                                             L"--language",
                                             L"German",
                                             L"--help",
                                             L"--",
                                             L"-1",
                                             L"",
                                             L"=",
                                             L"1",
                                             L"99999999999",
                                             L"C:\\f.reg",
                                             L"C:\\none.reg",
                                             L"Task Bar",
                                             kShortNames,
                                             L"Speed_Flash",
                                             L"NTFS_SaveShortName=off",
                                             L"NTFS_SaveShortName=",
                                             L"Speed_Flash=3",
                                             L"AltColor=#1",
                                             L"x=\n\t\"",
                                             L"Button_Drives_Common_Default=press",
                                             L"Button_Folder_List_CompressedFile_Change=#102030"};
    line.Fake.Files.PutText(L"C:\\f.reg", "REGEDIT4\n\n[HKEY_CURRENT_USER\\K]\n\"v\"=\"x\ty\"\n");
    for (int i = 0; i < 300; ++i) {
        std::vector<std::wstring> typed;
        for (int count = line.Pick(5); count >= 0; --count)
            typed.push_back(words[static_cast<std::size_t>(line.Pick(static_cast<int>(words.size())))]);
        const auto before = line.Snapshot(true);
        const TAnswer answer = line.Run(typed);
        const bool isJson = std::ranges::count(typed, L"--json") != 0 && !answer.Lines.empty() &&
                            !answer.Lines[0].starts_with("Usage");
        if (isJson) EXPECT_TRUE(nlohmann::json::accept(answer.Lines[0])) << answer.Lines[0];
        if (answer.Status == TExitStatus::WrongUsage) {
            EXPECT_EQ(line.Snapshot(true), before) << testing::PrintToString(typed);
            EXPECT_THAT(answer.Messages, SizeIs(1)) << testing::PrintToString(typed);
        }
    }
}

TEST(TCommandLine, ShowsWhatIsStoredAndChangesIt) {
    TCommandLine line;
    line.Fake.Registry.Put(kShortNamesPlace, {TRegDataType::Dword, 1});
    line.Fake.Registry.Put(kBalloonsPlace, {TRegDataType::Dword, 1});
    EXPECT_THAT(line.Run({L"get", L"ntfs_saveshortname"}).Lines, ElementsAre("off"));
    const auto shown = line.Run({L"show", kShortNames, L"--json"}).Json();
    EXPECT_EQ(shown["state"], "off");
    EXPECT_EQ(shown["stored"][0]["content"], "0x00000001 (1)");
    EXPECT_EQ(shown["writes"][0]["after"], "0x00000000 (0)");
    const std::string place =
        "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\NtfsDisable8dot3NameCreation";
    for (const std::string& words : {std::string("8dot3"), place})
        EXPECT_EQ(line.Run({L"find", FromUtf8(words), L"--json"}).Json()[0]["id"], ToUtf8(kShortNames));
    const std::string change = place + "\t0x00000001 (1)\t0x00000000 (0)";
    const auto before = line.Snapshot(true);  // there is no history yet
    EXPECT_THAT(line.Run({L"set", L"NTFS_SaveShortName=on", L"--dry-run"}).Lines, ElementsAre(change));
    EXPECT_EQ(line.Snapshot(true), before);
    const TAnswer set = line.Run({L"set", L"NTFS_SaveShortName=ON"});
    EXPECT_EQ(set.Status, TExitStatus::Done);
    EXPECT_THAT(set.Lines, ElementsAre(change));
    EXPECT_EQ(line.Fake.Registry.Find(kShortNamesPlace)->Value, TRegValue(0));
    EXPECT_THAT(line.Run({L"set", L"NTFS_SaveShortName=on"}).Lines, IsEmpty()) << "it is already";
    const TAnswer restart = line.Run({L"set", L"CommonSettings_Others_Message_Balloons=off"});
    EXPECT_EQ(restart.Status, TExitStatus::Restart);
    EXPECT_THAT(restart.Messages, ElementsAre(HasSubstr("restart")));
    const auto history = line.Run({L"history", L"--json"}).Json();
    ASSERT_EQ(history.size(), 2U);
    EXPECT_EQ(history[1]["ids"][0], ToUtf8(kShortNames));
    EXPECT_EQ(line.Run({L"undo", L"2"}).Status, TExitStatus::Done);
    EXPECT_EQ(line.Run({L"undo", L"2"}).Status, TExitStatus::Restart) << "the balloon tips";
    EXPECT_EQ(line.Snapshot(), before);
}

TEST(TCommandLine, GivesAColorEvenToAButtonThatIsDisabledAndNoneTwice) {
    constexpr auto kBox = L"Checkbox_Folder_List_EAndCFileWithColor";
    const std::wstring button = L"Button_Folder_List_CompressedFile_Change";
    TCommandLine line;
    line.Fake.Registry.Put(
        {TRootKey::CurrentUser, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced",
         L"ShowCompColor"},
        {TRegDataType::Dword, 0});
    ASSERT_THAT(line.Run({L"get", kBox}).Lines, ElementsAre("off"));
    EXPECT_EQ(line.Run({L"set", button + L"=#102030"}).Status, TExitStatus::WrongUsage) << "it is disabled";
    const std::vector<std::wstring> words{L"set", button + L"=#102030", kBox + std::wstring(L"=on")};
    EXPECT_THAT(line.Run(words).Lines, SizeIs(2));
    EXPECT_THAT(line.Run({L"get", button}).Lines, ElementsAre("#102030"));
    EXPECT_THAT(line.Run(words).Lines, IsEmpty()) << "it is so already";
    EXPECT_THAT(line.Run({L"set", kBox + std::wstring(L"=off")}).Lines, SizeIs(1));
    EXPECT_THAT(line.Run({L"set", button + L"=#405060", L"--force"}).Lines, SizeIs(1));
    EXPECT_THAT(line.Run({L"get", button}).Lines, ElementsAre("#405060"));
}

TEST(TCommandLine, TakesOfAChoiceWhatGetPrints) {
    TCommandLine line;
    const std::wstring on = L"Radio_Folder_List_ArrangeIcons_WithNumber=";
    const std::wstring off = L"Radio_Folder_List_ArrangeIcons_WithLetter=";
    EXPECT_NE(line.Run({L"set", on + L"on"}).Status, TExitStatus::WrongUsage);
    const auto before = line.Snapshot(true);
    EXPECT_EQ(line.Run({L"set", on + L"on", off + L"off"}).Status, TExitStatus::Done);
    const TAnswer refused = line.Run({L"set", on + L"off"});
    EXPECT_EQ(refused.Status, TExitStatus::WrongUsage);
    EXPECT_THAT(refused.Messages, ElementsAre(HasSubstr("It takes: on")));
    EXPECT_EQ(line.Snapshot(true), before);
    EXPECT_THAT(line.Run({L"set", on + L"off", off + L"on"}).Lines, SizeIs(1));
    EXPECT_THAT(line.Run({L"get", off.substr(0, off.size() - 1)}).Lines, ElementsAre("on"));
}

TEST(TCommandLine, NamesPreferencesAndSaysWhenTheyCannotBeSaved) {
    TCommandLine line;
    line.Fake.Registry.PutKey(TRootKey::LocalMachine,
                              L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
    const wchar_t* const file = L"C:\\Data\\f.reg";
    line.Fake.Files.PutText(file, "");
    const std::wstring autoFill = L"Checkbox_Firefox_Use_AddressBar_AutoFill";
    for (const bool hasProfile : {true, false}) {
        line.Fake.Files.Remove(L"C:\\Data\\Mozilla\\Firefox\\profiles.ini");
        if (hasProfile) {
            line.Fake.Files.PutText(L"C:\\Data\\Mozilla\\Firefox\\profiles.ini",
                                    "[Profile0]\nIsRelative=1\nPath=p\n");
            line.Fake.Files.PutText(TCommandLine::kUserFile,
                                    "user_pref(\"browser.urlbar.autoFill\", true);\r\n");
            EXPECT_EQ(line.Run({L"export", file, autoFill, L"--json"}).Json()[0]["content"], "true");
        }
        const TAnswer set = line.Run({L"set", autoFill + (hasProfile ? L"=off" : L"=on")});
        EXPECT_EQ(set.Status, hasProfile ? TExitStatus::Done : TExitStatus::Failed);
        EXPECT_THAT(set.Messages, ElementsAre(HasSubstr(hasProfile ? "Firefox" : "browser.urlbar.autoFill")));
    }
}

TEST(TCommandLine, SaysWhenOnlyExplorerMustRestart) {
    TCommandLine line;
    line.Fake.Windows.SetVersion({.PlatformId = 2, .Major = 10, .Minor = 0, .Build = 19045});
    const auto shown = line.Run({L"show", L"Taskbar_Modern_LastActive", L"--json"}).Json();
    EXPECT_TRUE(shown["explorer"] == true && shown["restart"] == false);
    const bool isOn = shown["state"] == "on";
    const TAnswer set =
        line.Run({L"set", L"Taskbar_Modern_LastActive=" + std::wstring(isOn ? L"off" : L"on")});
    EXPECT_EQ(set.Status, TExitStatus::Done);
    EXPECT_THAT(set.Messages, ElementsAre(HasSubstr("Explorer")));
}

TEST(TCommandLine, NamesWhatCannotBeWrittenAndWritesTheRest) {
    TCommandLine line;
    line.Fake.Registry.Put(kShortNamesPlace, {TRegDataType::Dword, 1});
    line.Fake.Registry.Put(kBalloonsPlace, {TRegDataType::Dword, 1});
    line.Fake.Registry.DenyAccess(TRootKey::LocalMachine, L"");
    const TAnswer answer =
        line.Run({L"set", L"NTFS_SaveShortName=on", L"Others_Message_Balloons=off", L"--json"});
    EXPECT_EQ(answer.Status, TExitStatus::Failed);
    EXPECT_THAT(answer.Messages, testing::Contains(testing::AllOf(HasSubstr("NtfsDisable8dot3NameCreation"),
                                                                  HasSubstr("no right"))));
    EXPECT_EQ(line.Fake.Registry.Find(kBalloonsPlace)->Value, TRegValue(0));
    EXPECT_EQ(line.Run({L"history", L"--json"}).Json().size(), 1U);
    line.Fake.Files.PutText(L"C:\\f.reg", "REGEDIT4\n\n[HKEY_LOCAL_MACHINE\\K]\n\"v\"=\"x\"\n");
    EXPECT_EQ(line.Run({L"apply", L"C:\\f.reg"}).Status, TExitStatus::Failed);
    EXPECT_EQ(line.Run({L"apply", L"C:\\none.reg"}).Status, TExitStatus::Failed);
    line.Fake.Files.Lock(L"C:\\f.reg");
    EXPECT_EQ(line.Run({L"apply", L"C:\\f.reg"}).Status, TExitStatus::Failed);
}

/// Changes settings as a user does, and says what he did as a command line does.
class TUser {
  public:
    explicit TUser(TRandomSystem& world) : FWorld(world), FWindow(world.Fake.System) {
        FWindow.Show();
        FWindow.Find<TTimer>(L"Timer_Click")->Tick();
        FWindow.Find<TTimer>(L"Timer_Loading")->Tick();
        for (const auto& component : FWindow.Components())
            if (component->Kind() == TComponentKind::CategoryItem)
                static_cast<TCategoryItem&>(*component).Click();
    }

    void Change(TCatalogue& catalogue, const TSetting& setting) {
        TControl* control = FWindow.Find(setting.Id);
        if (control == nullptr || !catalogue.PendingState(setting).IsOffered || !control->Enabled()) return;
        const TStates states = catalogue.States(setting);
        const auto pick = [&](std::size_t count) { return FWorld.Pick(static_cast<int>(count)); };
        TControlState state;
        switch (states.Kind) {
            case TStateKind::OnOff:
                state = StateOf(*control) == TControlState(false);
                break;
            case TStateKind::On:
                state = true;
                break;
            case TStateKind::Item:
                state = TItemState{pick(states.Items.size())};
                break;
            case TStateKind::Number:
                state =
                    TNumberState{states.Min + pick(static_cast<std::size_t>(states.Max - states.Min) + 1)};
                break;
            case TStateKind::Text:
                if (control->Kind() != TComponentKind::Edit) return;
                state = L"some \"text\" " + std::to_wstring(pick(9));
                break;
            case TStateKind::Press:
                if (pick(4) != 0) return;
                static_cast<TButton&>(*control).Click();
                break;
            default:
                return;
        }
        const std::wstring words = WordsOf(states, state);
        if (auto* edit = dynamic_cast<TEdit*>(control)) {
            edit->SetFocused(true);
            edit->SetText(words);
            edit->SetFocused(false);
        } else if (states.Kind != TStateKind::Press) {
            SetState(*control, state);
        }
        Words.push_back(setting.Id + L'=' + (states.Kind == TStateKind::Press ? L"press" : words));
    }

    void Apply() { FWindow.Find<TButton>(L"Button_Apply")->Click(); }

    std::vector<std::wstring> Words{L"set"};

  private:
    TRandomSystem& FWorld;
    TQuilltune_FormMain FWindow;
};

TEST(TCommandLine, SetsWhatTheWindowSets) {
    std::size_t changes = 0;
    for (unsigned seed = 0; seed < 8; ++seed) {
        SCOPED_TRACE(seed);
        TRandomSystem byWindow(seed);
        TRandomSystem byCommand(seed);
        TUser user(byWindow);
        std::wstring name;
        GetOSName(byCommand.Fake.System, name);
        TCatalogue catalogue(byCommand.Fake.System, nullptr, WindowsLevel(name));
        const auto& settings = catalogue.Settings();
        for (int i = 0; i < 25; ++i)
            user.Change(
                catalogue,
                *settings[static_cast<std::size_t>(byWindow.Pick(static_cast<int>(settings.size())))]);
        user.Apply();
        if (user.Words.size() == 1) continue;
        changes += user.Words.size() - 1;
        const TAnswer answer(byCommand.Fake.System, user.Words);
        EXPECT_THAT(answer.Status, testing::AnyOf(TExitStatus::Done, TExitStatus::Restart))
            << testing::PrintToString(answer.Messages);
        EXPECT_EQ(byCommand.Snapshot(), byWindow.Snapshot()) << testing::PrintToString(user.Words);
    }
    EXPECT_GT(changes, 50U);
}

/// What one machine exports makes another one show the same.
TEST(TCommandLine, TakesTheSettingsOfOneMachineToAnother) {
    for (unsigned seed = 0; seed < 3; ++seed) {
        TCommandLine one(seed);
        TCommandLine other(seed + 100);
        if (seed != 0)
            for (TCommandLine* machine : {&one, &other})
                machine->Fake.Windows.SetVersion({.PlatformId = 2, .Major = 10, .Minor = 0, .Build = 19045});
        // Settings that are on while a key is there, whatever is in it, or while it is not.
        const std::wstring nameSpace =
            L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\MyComputer\\NameSpace\\";
        const std::pair<TCommandLine*, std::wstring> keys[] = {
            {&one, nameSpace + L"{21EC2020-3AEA-1069-A2DD-08002B30309D}"},
            {&other, L"SYSTEM\\CurrentControlSet\\Control\\Network\\NewNetworkWindowOff"}};
        for (const auto& [machine, key] : keys) {
            for (TCommandLine* each : {&one, &other})
                (void)each->Fake.Registry.DeleteKey(TRootKey::LocalMachine, key);
            machine->Fake.Registry.PutKey(TRootKey::LocalMachine, key);
        }
        const wchar_t* const file = L"C:\\Data\\all.reg";
        one.Fake.Files.PutText(file, "");
        EXPECT_THAT(one.Run({L"export", file}).Messages, IsEmpty());
        other.Fake.Files.PutText(file, one.Fake.Files.Text(file));
        other.Run({L"apply", file});
        const auto wanted = one.Run({L"list", L"--json"}).Json();
        const auto is = other.Run({L"list", L"--json"}).Json();
        ASSERT_EQ(is.size(), wanted.size());
        for (std::size_t i = 0; i < is.size(); ++i)
            if (is[i]["offered"] && wanted[i]["offered"])
                EXPECT_EQ(is[i]["state"], wanted[i]["state"]) << wanted[i];
    }
}

}  // namespace
