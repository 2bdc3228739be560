#include "settings/net/prefs_text.h"

#include <optional>

#include <gtest/gtest.h>

#include "settings/net/prefs_entry.h"

namespace {

using TLines = std::vector<std::wstring>;

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
        {L"Header;\r\nuser_pref(\"a\", 1);\n", {L"user_pref(\"a\", 1);"}},
        {L"user_pref;\nuser_pref (\"a\", 1);", {L"user_pref (\"a\", 1);"}},
        {L"Header;\nUSER_PREF(\"a\", 1);", {L"Header;", L"USER_PREF(\"a\", 1);"}},
        {L"user_pref(\"a\",\r\n 1);\ruser_pref(\"b\", 2); tail",
         {L"user_pref(\"a\", 1);", L"user_pref(\"b\", 2);"}},
        {L"user_pref(\"a\", 1);;\n;", {L"user_pref(\"a\", 1);", L";", L";"}},
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
        // A folder's last backslash hides the quote behind it too, but cuts no value.
        {L"user_pref(\"a\", \"x\\\\\");\nuser_pref(\"b\", \"y;z\");user_pref(\"c\", 3);",
         {L"user_pref(\"a\", \"x\\\\\");user_pref(\"b\", \"y;z\");", L"user_pref(\"c\", 3);"}},
    };
    for (const auto& [text, statements] : cases) {
        std::size_t calls = 0;
        EXPECT_EQ(SplitPrefs(text, [&] { ++calls; }), statements);
        EXPECT_EQ(calls, statements.size()) << "messages are handled once for each";
    }
}

/// A file, its entries, and how it is written: as it was when nothing is said.
struct TCommented {
    const wchar_t* File;
    TLines Entries;
    const wchar_t* Written = nullptr;
};

TEST(TPrefsText, KeepsCommentsWithTheirStatements) {
    const TCommented cases[] = {
        {L"# a;b\r\n\n// user_pref(\"c\", 0);\r/* \"\n */  \nuser_pref(\"a\", 1);\r\n",
         {L"# a;b\r\n\n// user_pref(\"c\", 0);\r/* \"\n */  \nuser_pref(\"a\", 1);"}},
        {L"\n\n// a\nuser_pref(\"a\", 1);\r\n\n  // b\n\n  user_pref(\"b\", 2);\r\n",
         {L"\n\n// a\nuser_pref(\"a\", 1);", L"\n  // b\n\n  user_pref(\"b\", 2);"}},
        {L"Header // a;\nof user_pref\nuser_pref(\"a\", 1);",
         {L" // a;\nuser_pref(\"a\", 1);"},
         L" // a;\nuser_pref(\"a\", 1);\r\n"},
        // What follows on the line stays there.
        {L"user_pref(\"a\", 1); // a; \"\n\nuser_pref(\"b\", 2);\t/* b\n */ # b\nuser_pref(\"c\", 3);#",
         {L"user_pref(\"a\", 1); // a; \"\n", L"\nuser_pref(\"b\", 2);\t/* b\n */ # b\n",
          L"user_pref(\"c\", 3);#"},
         L"user_pref(\"a\", 1); // a; \"\n\nuser_pref(\"b\", 2);\t/* b\n */ # b\nuser_pref(\"c\", 3);#\r\n"},
        {L"user_pref(\"a\", 1); /* b */ user_pref(\"b\", 2);\nuser_pref(\"c\", 3);",
         {L"user_pref(\"a\", 1);", L" /* b */ user_pref(\"b\", 2);", L"user_pref(\"c\", 3);"},
         L"user_pref(\"a\", 1);\r\n /* b */ user_pref(\"b\", 2);\r\nuser_pref(\"c\", 3);\r\n"},
        // Within statements, in odd places and unfinished.
        {L"user_pref(\"a\",\n// ;\n /* \" */1)\n;\r\nuser_pref(\"b\", 2);\r\n",
         {L"user_pref(\"a\",\n// ;\n /* \" */1);", L"user_pref(\"b\", 2);"},
         L"user_pref(\"a\",\n// ;\n /* \" */1);\r\nuser_pref(\"b\", 2);\r\n"},
        {L"user_pref(\"a\", 1);\r\n// end",
         {L"user_pref(\"a\", 1);", L"// end"},
         L"user_pref(\"a\", 1);\r\n// end\r\n"},
        {L"// alone\n", {L"// alone\n"}},
        {L"user_pref(\"a\", 1);\r\n\n/* end;\n",
         {L"user_pref(\"a\", 1);", L"\n/* end;\n*/"},
         L"user_pref(\"a\", 1);\r\n\n/* end;\n*/\r\n"},
        {L"user_pref(\"a\", 1); tail // end\n",
         {L"user_pref(\"a\", 1);", L" // end\n"},
         L"user_pref(\"a\", 1);\r\n // end\n"},
        // What is quoted is no comment, and what is not closed ends with its line.
        {L"user_pref(\"a\", \"x//y#\\\"/*\");\r\nuser_pref('b', 'http://\"');\r\n//'\nuser_pref(\"c\", it's "
         L"/* ' */ 3);\r\n",
         {L"user_pref(\"a\", \"x//y#\\\"/*\");",
          L"user_pref('b', 'http://\"');\r\n//'\nuser_pref(\"c\", it's /* ' */ 3);"}},
        {L"user_pref(\"a\", \"x;);\n// b\nuser_pref(\"b\", 2);\r\n",
         {L"user_pref(\"a\", \"x;);\n// b\nuser_pref(\"b\", 2);"}},
        {L"user_pref(\"a\", \"x\n// y\"); // \"\nuser_pref(\"b\", 2);\r\n",
         {L"user_pref(\"a\", \"x// y\"); // \"\n", L"user_pref(\"b\", 2);"},
         L"user_pref(\"a\", \"x// y\"); // \"\nuser_pref(\"b\", 2);\r\n"},
        // The statement behind a value that ends with a semicolon is in its entry, and no value is cut.
        {L"// a\nuser_pref(\"a\", \"x;\");\n// b\nuser_pref(\"b\", \"y;z\");\nuser_pref(\"c\", 3);",
         {L"// a\nuser_pref(\"a\", \"x;\");\n// b\nuser_pref(\"b\", \"y;z\");", L"user_pref(\"c\", 3);"},
         L"// a\nuser_pref(\"a\", \"x;\");\n// b\nuser_pref(\"b\", \"y;z\");\r\nuser_pref(\"c\", 3);\r\n"},
    };
    for (const TCommented& c : cases) {
        const TLines entries = SplitPrefs(c.File, [] {});
        EXPECT_EQ(entries, c.Entries);
        const std::wstring written = JoinPrefs(entries);
        EXPECT_EQ(written, c.Written != nullptr ? c.Written : c.File);
        EXPECT_EQ(JoinPrefs(SplitPrefs(written, [] {})), written);
    }
}

TEST(TPrefsText, ReadsAndChangesValuesWhereTheyStand) {
    // The entry; the value of "a"; the entry with "a" set to N; without "a", - when it is removed as a whole.
    const struct {
        const wchar_t* Entry;
        std::optional<std::wstring> Value;
        const wchar_t* Changed;
        const wchar_t* Removed;
    } cases[] = {
        {L"user_pref(\"A\", 100);", L"100", L"user_pref(\"A\", N);", L"-"},
        {L"user_pref(\"a.b\", 1);", {}, nullptr, nullptr},
        {L"user_pref(\"a\",100 ) ;", L"00", L"user_pref(\"a\", N) ;", L"-"},
        {L"user_pref (\"a\" ,  1 2\t );", L"1 2", L"user_pref (\"a\" , N);", L"-"},
        {L"user_pref(\"a\", \"f(x, \\\")\\\") {;}\");", L"\"f(x, \\\")\\\") {;}\"", L"user_pref(\"a\", N);",
         L"-"},
        {L"user_pref(\"a\", ')\"');", L"')\"'", L"user_pref(\"a\", N);", L"-"},
        {L"user_pref(\"a\", );", L"", L"user_pref(\"a\", N);", L"-"},
        // Without a comma, a parenthesis, the last quote, a function.
        {L"user_pref(\"a\" 4);", L"", L"user_pref(\"a\", N);", L"-"},
        {L"user_pref(\"a\", 1;", L"", L"user_pref(\"a\", N);", L"-"},
        {L"user_pref(\"a\";", L"", L"user_pref(\"a\", N);", L"-"},
        {L"user_pref(\"a\", \"x);", L"\"x", L"user_pref(\"a\", N);", L"-"},
        {L"user_pref(\"a\", \"x;", L"", L"user_pref(\"a\", N);", L"-"},
        {L"set \"a\", 1;", L"", L"set \"a\", N);", L"-"},
        // Others' values, and what comments say.
        {L"user_pref(\"b\", \"a\");", {}, nullptr, nullptr},
        {L"// \"a\", 2)\nuser_pref(\"b\", /* (\"a\" */ 1);", {}, nullptr, nullptr},
        {L"/* \"a\", 2 */ user_pref(\"a\", // \"a\", 3);\n 1); // \"a\"\n", L"1",
         L"/* \"a\", 2 */ user_pref(\"a\", N); // \"a\"\n", L"/* \"a\", 2 */  // \"a\"\n"},
        // Two statements in one entry.
        {L"user_pref(\"a\", \"x;\"); user_pref(\"b\", \"a\");", L"\"x;\"",
         L"user_pref(\"a\", N); user_pref(\"b\", \"a\");", L" user_pref(\"b\", \"a\");"},
        {L"// b\nuser_pref(\"b\", \";\");// a\nuser_pref(\"a\", 1) ;// c\n", L"1",
         L"// b\nuser_pref(\"b\", \";\");// a\nuser_pref(\"a\", N) ;// c\n",
         L"// b\nuser_pref(\"b\", \";\");// a\n// c\n"},
        {L"user_pref(\"a\", \";\");user_pref(\"a\", 2);", L"2", L"user_pref(\"a\", N);user_pref(\"a\", N);",
         L"-"},
        {L"user_pref(\"a\", 1; user_pref(\"b\", 2);", L"", L"user_pref(\"a\", N); user_pref(\"b\", 2);",
         L" user_pref(\"b\", 2);"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PrefValue(c.Entry, L"\"a\""), c.Value) << testing::PrintToString(std::wstring(c.Entry));
        TLines changed{c.Entry};
        TLines removed{c.Entry};
        EXPECT_EQ(ChangePref(changed, L"\"a\"", L"N"), c.Value.has_value());
        EXPECT_EQ(ChangePref(removed, L"\"a\"", L""), c.Value.has_value());
        EXPECT_EQ(changed, TLines{c.Value ? c.Changed : c.Entry});
        EXPECT_EQ(removed, c.Value && *c.Removed == L'-' ? TLines{} : TLines{c.Value ? c.Removed : c.Entry});
    }
    EXPECT_EQ(PrefValue(L"user_pref(\"\u00C4\", 1);", L"\"\u00E4\""), L"1");
}

}  // namespace
