#include "settings/net/firefox_prefs.h"

#include <stdexcept>
#include <utility>

#include <gmock/gmock.h>

#include "settings/net/prefs_text.h"
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
    const TLines& Load(std::string_view userFile) {
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

TEST(TPrefsText, CountsTheQuotesAfterTheFirstCharacter) {
    for (const wchar_t* open : {L"a\"", L"a\"b\"c\"", L"\"\"", L"a\"\\\"", L"a\\\\\"\""})
        EXPECT_TRUE(HasOpenQuote(open)) << testing::PrintToString(std::wstring(open));
    for (const wchar_t* closed : {L"", L"\"", L"a", L"\"a", L"a\"\"", L"a\\\"", L"\\\"", L"\"\"\""})
        EXPECT_FALSE(HasOpenQuote(closed)) << testing::PrintToString(std::wstring(closed));
}

TEST(TPrefsText, SplitsAtSemicolonsOutsideQuotations) {
    const std::pair<const wchar_t*, TLines> cases[] = {
        {L"", {}},
        {L"no statement", {}},
        {L"# a;b\r\n// c\nuser_pref(\"a\", 1);\n", {L"user_pref(\"a\", 1);"}},
        {L"#;\nUSER_PREF(\"a\", 1);", {L"#;", L"USER_PREF(\"a\", 1);"}},
        {L"user_pref(\"a\",\r\n 1);\ruser_pref(\"b\", 2); tail",
         {L"user_pref(\"a\", 1);", L"user_pref(\"b\", 2);"}},
        {L"user_pref(\"a\", 1);;\n;", {L"user_pref(\"a\", 1);", L";", L";"}},
        {L"user_pref(\"a\", 1);\n// b\nuser_pref(\"b\", 2);",
         {L"user_pref(\"a\", 1);", L"// buser_pref(\"b\", 2);"}},
        {L"user_pref(\"a\", \"x;y;z\");user_pref(\"b\", 2);",
         {L"user_pref(\"a\", \"x;y;z\");", L"user_pref(\"b\", 2);"}},
        {L"user_pref(\"a\", \"x\\\";y\");user_pref(\"b\", 2);",
         {L"user_pref(\"a\", \"x\\\";y\");", L"user_pref(\"b\", 2);"}},
        // The quote at the beginning of a piece closes nothing: the next statement that is open by itself does.
        {L"user_pref(\"a\", \"x;\");user_pref(\"b\", 2);user_pref(\"c\", \"y;z\");user_pref(\"d\", 3);",
         {L"user_pref(\"a\", \"x;\");user_pref(\"b\", 2);user_pref(\"c\", \"y;",
          L"z\");user_pref(\"d\", 3);"}},
        {L"user_pref(\"a\", 1);user_pref(\"b\", \"x;y);\n z",
         {L"user_pref(\"a\", 1);", L"user_pref(\"b\", \"x;y);"}},
    };
    for (const auto& [text, statements] : cases) {
        std::size_t calls = 0;
        EXPECT_EQ(SplitPrefs(text, [&] { ++calls; }), statements);
        EXPECT_EQ(calls, statements.size()) << "messages are handled once for each";
    }
}

TEST(TPrefsText, ReadsValuesAsTheyAreWritten) {
    const std::tuple<const wchar_t*, const wchar_t*, std::optional<std::wstring>> cases[] = {
        {L"user_pref(\"browser.tabs.tabMinWidth\", 100);", L"\"Browser.Tabs.TabMinWidth\"", L"100"},
        {L"user_pref(\"browser.tabs.tabMinWidth\", 100);", L"\"browser.tabs\"", std::nullopt},
        {L"user_pref(\"a\", \"about:blank\");", L"\"a\"", L"\"about:blank\""},
        {L"user_pref(\"a\",100);", L"\"a\"", L"00"},
        {L"user_pref(\"a\",   1 2\t );", L"\"a\"", L"1 2"},
        {L"user_pref(\"a\", \"f(x) {}\");", L"\"a\"", L"\"f(x"},
        {L"user_pref(\"a\", );", L"\"a\"", L""},
        {L"user_pref(\"a\", 1;", L"\"a\"", L""},
        {L"user_pref(\"a\";", L"\"a\"", L""},
        {L"// on \"a\": user_pref(\"b\", 1);", L"\"b\"", L"1"},
        {L"user_pref(\"\u00C4\", 1);", L"\"\u00E4\"", L"1"},
    };
    for (const auto& [statement, name, value] : cases) EXPECT_EQ(PrefValue(statement, name), value);
}

TEST_F(TFirefoxPrefsTest, IsInstalledWhenAProductBearsItsName) {
    const std::wstring products = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
    for (const auto& [product, installed] :
         {std::pair(L"Firefox by Mozilla", false), {L"The mozilla FIREFOX 3.6 (x86)", true}}) {
        Fake.Registry.PutKey(TRootKey::LocalMachine, products + product);
        EXPECT_EQ(Prefs.IsFirefoxInstalled(), installed);
    }
    Fake.Registry.DenyAccess(TRootKey::LocalMachine, products);
    EXPECT_FALSE(Prefs.IsFirefoxInstalled());
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

TEST_F(TFirefoxPrefsTest, TheFirstUserFileIsACopy) {
    Fake.Files.PutText(kPrefsFile, "\xEF\xBB\xBF# Preferences;\n\n/* \xC3\xA9 */\r\nuser_pref(\"a\", 1);");
    Prefs.LoadFirefoxPrefs();
    EXPECT_EQ(Fake.Files.Text(kUserFile), "# Preferences;\r\n\r\n/* \xC3\xA9 */\r\nuser_pref(\"a\", 1);\r\n");
    EXPECT_THAT(Prefs.FirefoxPrefLines(), ElementsAre(L"user_pref(\"a\", 1);"));

    EXPECT_THAT(Load("user_pref(\"b\", 2);"), ElementsAre(L"user_pref(\"b\", 2);"));
    EXPECT_EQ(Fake.Files.Replaced().size(), 1U) << "a user.js that is there is only read";
    Fake.Files.Lock(kUserFile);
    Prefs.LoadFirefoxPrefs();
    EXPECT_THAT(Prefs.FirefoxPrefLines(), ElementsAre(L"user_pref(\"a\", 1);"));
    EXPECT_EQ(Fake.Files.Replaced().size(), 1U);

    Fake.Files.Remove(kUserFile);
    Fake.Files.FailReplace(1);
    Prefs.LoadFirefoxPrefs();
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"1");
}

TEST_F(TFirefoxPrefsTest, TheLastStatementCountsAndAllAreChanged) {
    const auto& lines = Load(
        "user_pref(\"a\", \"x, y\");// off\nuser_pref(\"A\", 2 ) ; user_pref(\"b\", 3);\nuser_pref(\"c\" "
        "4);");
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"a\""), L"2");
    Prefs.SetFirefoxPref(L"\"a\"", L"true");
    Prefs.SetFirefoxPref(L"\"c\"", L"5");
    EXPECT_THAT(lines, ElementsAre(L"user_pref(\"a\", \"x, true);", L"// offuser_pref(\"A\", true);",
                                   L" user_pref(\"b\", 3);", L" 5);"));
    Prefs.SetFirefoxPref(L"\"a\"", L"");
    EXPECT_THAT(lines, ElementsAre(L" user_pref(\"b\", 3);", L" 5);"));
    EXPECT_TRUE(Fake.Shell.DebugTexts().empty());

    Prefs.SetFirefoxPref(L"\"d.E\"", L"\"x\"");
    Prefs.SetFirefoxPref(L"\"gone\"", L"");
    EXPECT_EQ(lines[2], L"user_pref(\"d.E\", \"x\");");
    EXPECT_EQ(lines[3], L"user_pref(\"gone\", );");
    EXPECT_THAT(Fake.Shell.DebugTexts(), ElementsAre(L"not has", lines[2], L"not has", lines[3]));
    EXPECT_EQ(Prefs.GetFirefoxPref(L"\"gone\""), L"");
}

TEST_F(TFirefoxPrefsTest, SavesInTheEncodingThatWasRead) {
    const std::pair<std::string, std::string> cases[] = {
        {"#\nuser_pref(\"b\", \xC3\xA9\xE2\x82\xAC);tail", "user_pref(\"b\", \xC3\xA4);\r\n"},  // UTF-8
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
