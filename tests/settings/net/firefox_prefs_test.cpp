#include "settings/net/firefox_prefs.h"

#include <stdexcept>
#include <utility>

#include <gmock/gmock.h>

#include "tests/fakes/fake_system.h"

namespace {

using std::string_literals::operator""s;
using testing::ElementsAre;
using TLines = std::vector<std::wstring>;

constexpr const wchar_t* kFirefox = L"C:\\AppData\\Mozilla\\Firefox\\";
constexpr const wchar_t* kProfiles = L"C:\\AppData\\Mozilla\\Firefox\\profiles.ini";
constexpr const wchar_t* kPrefsFile = L"C:\\AppData\\Mozilla\\Firefox\\Profiles/a.default\\prefs.js";
constexpr const wchar_t* kUserFile = L"C:\\AppData\\Mozilla\\Firefox\\Profiles/a.default\\user.js";

class TFirefoxPrefsTest : public testing::Test {
  protected:
    TFirefoxPrefsTest() {
        Fake.Files.PutText(kProfiles, "[Profile0]\nIsRelative=1\nPath=Profiles/a.default\n");
    }
    TLines Load(std::string_view userFile) {
        Fake.Files.PutText(kUserFile, userFile);
        Prefs.LoadFirefoxPrefs();
        return Prefs.FirefoxPrefLines();
    }
    std::string Saved() {
        EXPECT_TRUE(Prefs.SaveFirefoxPrefs());
        return Fake.Files.Text(kUserFile);
    }

    TFakeSystem Fake;
    TFirefoxPrefs Prefs{Fake.System, kFirefox};
};

TEST_F(TFirefoxPrefsTest, IsInstalledWhenAProductBearsItsName) {
    const std::wstring products = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
    for (const auto& [product, installed] :
         {std::pair(L"Firefox by Mozilla", false), {L"The mozilla FIREFOX 3.6 (x86)", true}}) {
        Fake.Registry.PutKey(TRootKey::LocalMachine, products + product);
        EXPECT_EQ(Prefs.IsFirefoxInstalled(), installed);
    }
    Fake.Registry.DenyAccess(TRootKey::LocalMachine, products);
    EXPECT_FALSE(Prefs.IsFirefoxInstalled());

    const std::pair<TRootKey, std::wstring> others[] = {
        {TRootKey::CurrentUser, products},
        {TRootKey::LocalMachine, L"Software\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"},
    };
    for (const auto& [root, key] : others) {
        for (const wchar_t* product : {L"Mozilla Maintenance Service", L"Mozilla Firefox 115.9 (x86 de)"})
            Fake.Registry.PutKey(root, key + product);
        EXPECT_TRUE(Prefs.IsFirefoxInstalled()) << testing::PrintToString(key);
        Fake.Registry.DenyAccess(root, key);
        EXPECT_FALSE(Prefs.IsFirefoxInstalled());
    }
}

TEST_F(TFirefoxPrefsTest, FindsTheProfile) {
    const std::wstring folder = kFirefox;
    const std::pair<const char*, std::wstring> cases[] = {
        {"[General]\nStartWithLastProfile=1\n[Profile0]\nPath=Profiles/0\nIsRelative=1\n"
         "[Profile1]\nPath=Profiles/1\nIsRelative=1\nDefault=1\n[Profile2]\nPath=2\nDefault=1\n",
         folder + L"Profiles/1"},
        {"[Profile0]\nPath=Profiles/0\nIsRelative=1\n[Profile1]\nPath=1\nDefault=0\n",
         folder + L"Profiles/0"},
        {"[Install4F96]\nDefault=Profiles/x\n[Profile0]\nPath=D:\\Fox\nIsRelative=0\n", L"D:\\Fox"},
        {"[any]\nDefault=-3\nPath=D:\\Fox\\", L"D:\\Fox\\"},
        {"[Profile0]\nPath=D:\\Fox\nIsRelative=2\n", L"D:\\Fox"},
        {"[Profile0]\nPath=\xC3\xA9\n", L"\u00E9"},
        {"[Profile0]\nPath=\xE9\n", L"\u00E9"},
        {"[Profile1]\nPath=Profiles/1\nIsRelative=1\n", L""},
        {"", L""},
    };
    for (const auto& [ini, expected] : cases) {
        Fake.Files.PutText(kProfiles, ini);
        Prefs.LoadFirefoxPrefs();
        EXPECT_EQ(Prefs.FirefoxProfileFolder(), expected) << ini;
    }
    Fake.Files.Remove(kProfiles);
    Prefs.LoadFirefoxPrefs();
    EXPECT_EQ(Prefs.FirefoxProfileFolder(), L"");
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"Noexsit");
}

TEST_F(TFirefoxPrefsTest, AnInstallationNamesItsProfile) {
    const std::string profiles =
        "[Profile1]\nPath=Profiles/1\nIsRelative=1\nDefault=1\n[Profile0]\nPath=Profiles/0\nIsRelative=1\n"
        "[Profile2]\nPath=D:\\Fox\nIsRelative=0\n[General]\nVersion=2\n";
    const std::pair<const char*, const wchar_t*> cases[] = {
        {"[Install4F96]\nDefault=Profiles/0\nLocked=1\n", L"Profiles/0"},
        {"[INSTALL4F96]\nDefault=d:\\fox\n", L"D:\\Fox"},
        // Of several the first that holds on to its profile, and without such a one the first.
        {"[Install1]\nDefault=Profiles/1\n[Install2]\nDefault=D:\\Fox\nLocked=1\n"
         "[Install3]\nDefault=Profiles/0\nLocked=1\n",
         L"D:\\Fox"},
        {"[Install2]\nDefault=Profiles/0\nLocked=0\n[Install1]\nDefault=D:\\Fox\n", L"Profiles/0"},
        // One that names no profile is passed over.
        {"[Install1]\nDefault=Profiles/gone\nLocked=1\n[Install2]\nDefault=D:\\Fox\n", L"D:\\Fox"},
        {"[Install1]\nDefault=Profiles/gone\nLocked=1\n[Install2]\nDefault=\n[Install3]\nLocked=1\n",
         L"Profiles/1"},
        {"[4F96]\nDefault=Profiles/0\nLocked=1\n", L"Profiles/1"},
        {"[Install1]\nDefault=Profiles/nameless\n[]\nPath=Profiles/nameless\nIsRelative=1\n[Install2]\n"
         "Default=Profiles/0\n",
         L"Profiles/nameless"},
    };
    for (const auto& [installs, expected] : cases) {
        for (const bool isFirst : {false, true}) {
            Fake.Files.PutText(kProfiles, isFirst ? installs + profiles : profiles + installs);
            Prefs.LoadFirefoxPrefs();
            const std::wstring folder = expected[0] == L'D' ? L"" : kFirefox;
            EXPECT_EQ(Prefs.FirefoxProfileFolder(), folder + expected) << installs;
        }
    }
}

TEST_F(TFirefoxPrefsTest, TheFirstUserFileIsACopy) {
    Fake.Files.PutText(kPrefsFile, "\xEF\xBB\xBF# Preferences;\n\n/* \xC3\xA9 */\r\nuser_pref(\"a\", 1);");
    Prefs.LoadFirefoxPrefs();
    EXPECT_EQ(Fake.Files.Text(kUserFile), "# Preferences;\r\n\r\n/* \xC3\xA9 */\r\nuser_pref(\"a\", 1);\r\n");
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"1");

    EXPECT_THAT(Load("user_pref(\"b\", 2);"), ElementsAre(L"user_pref(\"b\", 2);"));
    EXPECT_EQ(Fake.Files.Replaced().size(), 1U) << "a user.js that is there is only read";
    Fake.Files.Remove(kUserFile);
    Fake.Files.FailReplace(1);
    Prefs.LoadFirefoxPrefs();
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"1");
}

TEST_F(TFirefoxPrefsTest, TheLastStatementCountsAndAllAreChanged) {
    Load(
        "user_pref(\"a\", \"x, y\");// off\nuser_pref(\"A\", 2 ) ; user_pref(\"b\", 3);\nuser_pref(\"c\", "
        "\"a\");");
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"2");
    Prefs.SetFirefoxPref(L"\"a\"", L"true");
    EXPECT_THAT(Prefs.FirefoxPrefLines(),
                ElementsAre(L"user_pref(\"a\", true);// off\n", L"user_pref(\"A\", true) ;",
                            L" user_pref(\"b\", 3);", L"user_pref(\"c\", \"a\");"));
    EXPECT_TRUE(Prefs.HasEdit(L"\"A\"") && !Prefs.HasEdit(L"\"b\""));
    Prefs.SetFirefoxPref(L"\"a\"", L"");
    EXPECT_EQ(Saved(), "// off\n user_pref(\"b\", 3);\r\nuser_pref(\"c\", \"a\");\r\n");
    EXPECT_FALSE(Prefs.HasEdit(L"\"a\""));
    EXPECT_TRUE(Fake.Shell.DebugTexts().empty());

    Load("");
    Prefs.SetFirefoxPref(L"\"d.E\"", L"\"x\"");
    Prefs.SetFirefoxPref(L"\"gone\"", L"");
    const TLines lines = Prefs.FirefoxPrefLines();
    EXPECT_THAT(lines, ElementsAre(L"user_pref(\"d.E\", \"x\");", L"user_pref(\"gone\", );"));
    EXPECT_THAT(Fake.Shell.DebugTexts(), ElementsAre(L"not has", lines[0], L"not has", lines[1]));
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"gone\""), L"");
}

TEST_F(TFirefoxPrefsTest, WhatIsTakenBackIsWhatWasSetSinceTheLastSave) {
    Load("user_pref(\"a\", 1);\n");
    Prefs.SetFirefoxPref(L"\"a\"", L"2", L"A");
    const std::string saved = Saved();
    Prefs.SetFirefoxPref(L"\"b\"", L"1", L"B");
    Prefs.Revert(L"A");
    Prefs.Revert(L"B");
    EXPECT_EQ(Saved(), saved);
}

TEST_F(TFirefoxPrefsTest, CommentsStayCommentsAndAllElseStaysInForce) {
    Load(
        "// user_pref(\"off\", 1);\nuser_pref(\"a\", 1); // note\n/* b;\n */\nuser_pref(\"b\", "
        "\"http://b\");\n"
        "# user_pref(\"b\", 0);\n");
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"off\""), L"Noexsit");
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"b\""), L"\"http://b\"");
    Prefs.SetFirefoxPref(L"\"a\"", L"2");
    Prefs.SetFirefoxPref(L"\"off\"", L"3");
    EXPECT_EQ(Saved(),
              "// user_pref(\"off\", 1);\nuser_pref(\"a\", 2); // note\n/* b;\n */\nuser_pref(\"b\", "
              "\"http://b\");\r\n# user_pref(\"b\", 0);\nuser_pref(\"off\", 3);\r\n");
}

TEST_F(TFirefoxPrefsTest, WhatCannotBeReadIsNotLoadedAndNotSaved) {
    Fake.Files.PutText(kPrefsFile, "user_pref(\"a\", 1);");
    for (const wchar_t* locked : {kUserFile, kProfiles}) {
        Load("user_pref(\"b\", 2);");
        Fake.Files.Lock(locked);
        Prefs.LoadFirefoxPrefs();
        EXPECT_TRUE(Prefs.FirefoxPrefLines().empty());
        EXPECT_FALSE(Prefs.SaveFirefoxPrefs()) << "nothing was set";
        Prefs.SetFirefoxPref(L"\"b\"", L"3");
        Fake.Files.Unlock();
        EXPECT_THROW(static_cast<void>(Prefs.SaveFirefoxPrefs()), std::runtime_error) << "still not loaded";
        EXPECT_EQ(Fake.Files.Text(kUserFile), "user_pref(\"b\", 2);");
        Prefs.LoadFirefoxPrefs();
        EXPECT_EQ(Prefs.GetFirefoxPref(L"\"b\""), L"2");
    }
    Fake.Files.Remove(kUserFile);
    Fake.Files.Lock(kPrefsFile);
    Prefs.LoadFirefoxPrefs();
    EXPECT_FALSE(Fake.Files.Exists(kUserFile)) << "it would hide prefs.js for ever";
    Fake.Files.Unlock();
    Prefs.LoadFirefoxPrefs();
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"1");
}

TEST_F(TFirefoxPrefsTest, SavingKeepsWhatOthersWroteSinceItWasLoaded) {
    constexpr const char* kBefore = "user_pref(\"a\", 1);\r\nuser_pref(\"b\", 1);\r\n";
    const auto edit = [this] {
        Load("user_pref(\"a\", 1);\r\nuser_pref(\"b\", 1);\r\n");
        Prefs.SetFirefoxPref(L"\"a\"", L"2");
        Prefs.SetFirefoxPref(L"\"b\"", L"");
        Prefs.SetFirefoxPref(L"\"c\"", L"3");
    };
    const std::pair<const char*, const char*> cases[] = {
        {kBefore, "user_pref(\"a\", 2);\r\nuser_pref(\"c\", 3);\r\n"},
        {"// \xC3\xA9\nuser_pref(\"d\", 4);",
         "// \xC3\xA9\nuser_pref(\"d\", 4);\r\nuser_pref(\"a\", 2);\r\nuser_pref(\"c\", 3);\r\n"},
        {"user_pref(\"c\", \"\xE9\");user_pref(\"b\", 5);user_pref(\"a\", 6);",
         "user_pref(\"c\", 3);\r\nuser_pref(\"a\", 2);\r\n"},
        {"", "user_pref(\"a\", 2);\r\nuser_pref(\"c\", 3);\r\n"},
    };
    for (const auto& [now, written] : cases) {
        edit();
        Fake.Files.PutText(kUserFile, now);
        const auto changes = PendingChanges(Fake.System, TSysControl(Fake.System), &Prefs);
        ASSERT_EQ(changes.size(), 3U);
        if (now == kBefore) {
            EXPECT_EQ(changes[1].Before, TContent(TPreferenceContent(L"1")));
        }
        EXPECT_EQ(Saved(), written);
        for (const TChange& change : changes)
            EXPECT_EQ(change.After, ContentOf(Fake.System, change.Target, &Prefs));
        Fake.Files.PutText(kUserFile, std::string(written) + "user_pref(\"e\", 7);");
        EXPECT_EQ(Saved(), std::string(written) + "user_pref(\"e\", 7);\r\n")
            << "what was saved is no edit any more";
    }
    edit();
    Fake.Files.Remove(kUserFile);
    EXPECT_EQ(Saved(), "user_pref(\"a\", 2);\r\nuser_pref(\"c\", 3);\r\n");

    edit();
    Fake.Files.PutText(kUserFile, "user_pref(\"d\", 4);");
    Fake.Files.Lock(kUserFile);
    EXPECT_THROW(static_cast<void>(Prefs.SaveFirefoxPrefs()), std::runtime_error);
    EXPECT_EQ(Fake.Files.Text(kUserFile), "user_pref(\"d\", 4);");
    Fake.Files.Unlock();
    Fake.Files.FailReplace(1);
    EXPECT_THROW(static_cast<void>(Prefs.SaveFirefoxPrefs()), std::runtime_error);
    EXPECT_EQ(Saved(), "user_pref(\"d\", 4);\r\nuser_pref(\"a\", 2);\r\nuser_pref(\"c\", 3);\r\n");
}

TEST_F(TFirefoxPrefsTest, WithoutAProfileNothingIsReadOrWritten) {
    Fake.Files.PutText(L"\\user.js", "user_pref(\"a\", 1);");
    Fake.Files.PutText(std::wstring(kFirefox) + L"\\user.js", "user_pref(\"a\", 1);");
    for (const char* ini : {"", "[Profile1]\nPath=1\n", "[Profile0]\nIsRelative=1\nPath=\n",
                            "[x]\nDefault=1\nIsRelative=1\n[Profile0]\nPath=Profiles/a.default\n"}) {
        Fake.Files.PutText(kProfiles, ini);
        Prefs.LoadFirefoxPrefs();
        EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"Noexsit");
        Prefs.SetFirefoxPref(L"\"a\"", L"2");
        EXPECT_FALSE(Prefs.SaveFirefoxPrefs());
    }
    EXPECT_TRUE(Fake.Files.Replaced().empty());
}

TEST_F(TFirefoxPrefsTest, SavesInTheEncodingThatWasRead) {
    const std::pair<std::string, std::string> cases[] = {
        {"#\nuser_pref(\"b\", \xC3\xA9\xE2\x82\xAC);tail", "#\nuser_pref(\"b\", \xC3\xA4);\r\n"},  // UTF-8
        {"user_pref(\"\xE9\", 1);user_pref(\"b\", 1);",  // the code page, which is Latin-1
         "user_pref(\"\xE9\", 1);\r\nuser_pref(\"b\", \xE4);\r\n"},
        {"user_pref(\"\xEF\xBF\xBD\", 1);user_pref(\"b\", 1);",  // a replacement character is no fault
         "user_pref(\"\xEF\xBF\xBD\", 1);\r\nuser_pref(\"b\", \xC3\xA4);\r\n"},
        {"\xEF\xBB\xBFuser_pref(\"b\", 1);user_pref(\xFF);",  // the mark decides
         "user_pref(\"b\", \xC3\xA4);\r\nuser_pref(\xEF\xBF\xBD);\r\n"},
        {"\xFF\xFE\"\0b\0\"\0,\0;\0"s, "\"b\", \xC3\xA4);\r\n"},
    };
    for (const auto& [read, written] : cases) {
        Load(read);
        Prefs.SetFirefoxPref(L"\"b\"", L"\u00E4");
        EXPECT_EQ(Saved(), written);
    }
    Load("");
    EXPECT_EQ(Saved(), "");
}

TEST_F(TFirefoxPrefsTest, SavingFailsAloud) {
    EXPECT_FALSE(Prefs.SaveFirefoxPrefs()) << "nothing was loaded";
    Load("user_pref(\"a\", 1);");
    Prefs.SetFirefoxPref(L"\"a\"", L"2");
    Fake.Files.FailReplace(1);
    EXPECT_THROW(static_cast<void>(Prefs.SaveFirefoxPrefs()), std::runtime_error);
    EXPECT_EQ(Fake.Files.Text(kUserFile), "user_pref(\"a\", 1);");
    EXPECT_EQ(Saved(), "user_pref(\"a\", 2);\r\n") << "the next time succeeds";
}

TEST_F(TFirefoxPrefsTest, AnApplyWhileItLoadsLosesNothing) {
    Load("user_pref(\"a\", 1);user_pref(\"b\", 1);");
    Prefs.SetFirefoxPref(L"\"a\"", L"2");
    bool applied = false;
    Fake.Clock.OnProcessMessages = [&] {
        if (std::exchange(applied, true)) return;
        EXPECT_EQ(Saved(), "user_pref(\"a\", 2);\r\nuser_pref(\"b\", 1);\r\n");
    };
    Prefs.LoadFirefoxPrefs();
    EXPECT_THAT(Prefs.FirefoxPrefLines(), ElementsAre(L"user_pref(\"a\", 2);", L"user_pref(\"b\", 1);"));

    Prefs.SetFirefoxPref(L"\"a\"", L"3");
    Prefs.LoadFirefoxPrefs();
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"2") << "what was not saved is dropped";
}

}  // namespace
