#include "settings/net/prefs_text.h"

#include <optional>

#include <gtest/gtest.h>

#include "settings/net/prefs_entry.h"

namespace {

using TPrefLines = std::vector<std::string>;

TPrefLines Lines(const TPrefEntries& entries) {
    TPrefLines lines;
    for (std::size_t i = 0; i < entries.Count(); ++i) lines.emplace_back(entries[i]);
    return lines;
}

TEST(TPrefsText, SplitsAtSemicolonsOutsideQuotations) {
    const std::pair<const char*, TPrefLines> cases[] = {
        {"", {}},
        {"no statement", {}},
        {"Header;\r\nuser_pref(\"a\", 1);\n", {"user_pref(\"a\", 1);"}},
        {"user_pref;\nuser_pref (\"a\", 1);", {"user_pref (\"a\", 1);"}},
        {"Header;\nUSER_PREF(\"a\", 1);", {"Header;", "USER_PREF(\"a\", 1);"}},
        {"user_pref(\"a\",\r\n 1);\ruser_pref(\"b\", 2); tail",
         {"user_pref(\"a\", 1);", "user_pref(\"b\", 2);"}},
        {"user_pref(\"a\", 1);;\n;", {"user_pref(\"a\", 1);", ";", ";"}},
        {"user_pref(\"a\", \"x;y;z\");user_pref(\"b\", 2);",
         {"user_pref(\"a\", \"x;y;z\");", "user_pref(\"b\", 2);"}},
        {"user_pref(\"a\", \"x\\\";y\");user_pref(\"b\", 2);",
         {"user_pref(\"a\", \"x\\\";y\");", "user_pref(\"b\", 2);"}},
        // The quote at the beginning of a piece closes nothing: the next statement that is open by itself does.
        {"user_pref(\"a\", \"x;\");user_pref(\"b\", 2);user_pref(\"c\", \"y;z\");user_pref(\"d\", 3);",
         {"user_pref(\"a\", \"x;\");user_pref(\"b\", 2);user_pref(\"c\", \"y;", "z\");user_pref(\"d\", 3);"}},
        {"user_pref(\"a\", 1);user_pref(\"b\", \"x;y);\n z",
         {"user_pref(\"a\", 1);", "user_pref(\"b\", \"x;y);"}},
        // A folder's last backslash hides the quote behind it too, but cuts no value.
        {"user_pref(\"a\", \"x\\\\\");\nuser_pref(\"b\", \"y;z\");user_pref(\"c\", 3);",
         {"user_pref(\"a\", \"x\\\\\");user_pref(\"b\", \"y;z\");", "user_pref(\"c\", 3);"}},
    };
    for (const auto& [text, statements] : cases) {
        std::size_t calls = 0;
        EXPECT_EQ(Lines(SplitPrefs(text, [&] { ++calls; })), statements);
        EXPECT_EQ(calls, statements.size()) << "messages are handled once for each";
    }
}

/// A file, its entries, and how it is written: as it was when nothing is said.
struct TCommented {
    const char* File;
    TPrefLines Entries;
    const char* Written = nullptr;
};

TEST(TPrefsText, KeepsCommentsWithTheirStatements) {
    const TCommented cases[] = {
        {"# a;b\r\n\n// user_pref(\"c\", 0);\r/* \"\n */  \nuser_pref(\"a\", 1);\r\n",
         {"# a;b\r\n\n// user_pref(\"c\", 0);\r/* \"\n */  \nuser_pref(\"a\", 1);"}},
        {"\n\n// a\nuser_pref(\"a\", 1);\r\n\n  // b\n\n  user_pref(\"b\", 2);\r\n",
         {"\n\n// a\nuser_pref(\"a\", 1);", "\n  // b\n\n  user_pref(\"b\", 2);"}},
        {"Header // a;\nof user_pref\nuser_pref(\"a\", 1);",
         {" // a;\nuser_pref(\"a\", 1);"},
         " // a;\nuser_pref(\"a\", 1);\r\n"},
        // What follows on the line stays there.
        {"user_pref(\"a\", 1); // a; \"\n\nuser_pref(\"b\", 2);\t/* b\n */ # b\nuser_pref(\"c\", 3);#",
         {"user_pref(\"a\", 1); // a; \"\n", "\nuser_pref(\"b\", 2);\t/* b\n */ # b\n",
          "user_pref(\"c\", 3);#"},
         "user_pref(\"a\", 1); // a; \"\n\nuser_pref(\"b\", 2);\t/* b\n */ # b\nuser_pref(\"c\", 3);#\r\n"},
        {"user_pref(\"a\", 1); /* b */ user_pref(\"b\", 2);\nuser_pref(\"c\", 3);",
         {"user_pref(\"a\", 1);", " /* b */ user_pref(\"b\", 2);", "user_pref(\"c\", 3);"},
         "user_pref(\"a\", 1);\r\n /* b */ user_pref(\"b\", 2);\r\nuser_pref(\"c\", 3);\r\n"},
        // Within statements, in odd places and unfinished.
        {"user_pref(\"a\",\n// ;\n /* \" */1)\n;\r\nuser_pref(\"b\", 2);\r\n",
         {"user_pref(\"a\",\n// ;\n /* \" */1);", "user_pref(\"b\", 2);"},
         "user_pref(\"a\",\n// ;\n /* \" */1);\r\nuser_pref(\"b\", 2);\r\n"},
        {"user_pref(\"a\", 1);\r\n// end",
         {"user_pref(\"a\", 1);", "// end"},
         "user_pref(\"a\", 1);\r\n// end\r\n"},
        {"// alone\n", {"// alone\n"}},
        {"user_pref(\"a\", 1);\r\n\n/* end;\n",
         {"user_pref(\"a\", 1);", "\n/* end;\n*/"},
         "user_pref(\"a\", 1);\r\n\n/* end;\n*/\r\n"},
        {"user_pref(\"a\", 1); tail // end\n",
         {"user_pref(\"a\", 1);", " // end\n"},
         "user_pref(\"a\", 1);\r\n // end\n"},
        // What is quoted is no comment, and what is not closed ends with its line.
        {"user_pref(\"a\", \"x//y#\\\"/*\");\r\nuser_pref('b', 'http://\"');\r\n//'\nuser_pref(\"c\", it's "
         "/* ' */ 3);\r\n",
         {"user_pref(\"a\", \"x//y#\\\"/*\");",
          "user_pref('b', 'http://\"');\r\n//'\nuser_pref(\"c\", it's /* ' */ 3);"}},
        {"user_pref(\"a\", \"x;);\n// b\nuser_pref(\"b\", 2);\r\n",
         {"user_pref(\"a\", \"x;);\n// b\nuser_pref(\"b\", 2);"}},
        {"user_pref(\"a\", \"x\n// y\"); // \"\nuser_pref(\"b\", 2);\r\n",
         {"user_pref(\"a\", \"x// y\"); // \"\n", "user_pref(\"b\", 2);"},
         "user_pref(\"a\", \"x// y\"); // \"\nuser_pref(\"b\", 2);\r\n"},
        // The statement behind a value that ends with a semicolon is in its entry, and no value is cut.
        {"// a\nuser_pref(\"a\", \"x;\");\n// b\nuser_pref(\"b\", \"y;z\");\nuser_pref(\"c\", 3);",
         {"// a\nuser_pref(\"a\", \"x;\");\n// b\nuser_pref(\"b\", \"y;z\");", "user_pref(\"c\", 3);"},
         "// a\nuser_pref(\"a\", \"x;\");\n// b\nuser_pref(\"b\", \"y;z\");\r\nuser_pref(\"c\", 3);\r\n"},
    };
    for (const TCommented& c : cases) {
        const TPrefEntries entries = SplitPrefs(c.File, [] {});
        EXPECT_EQ(Lines(entries), c.Entries);
        const std::string written = JoinPrefs(entries);
        EXPECT_EQ(written, c.Written != nullptr ? c.Written : c.File);
        EXPECT_EQ(JoinPrefs(SplitPrefs(written, [] {})), written);
    }
}

TEST(TPrefsText, ReadsAndChangesValuesWhereTheyStand) {
    // The entry; the value of "a"; the entry with "a" set to N; without "a", - when it is removed as a whole.
    const struct {
        const char* Entry;
        std::optional<std::string> Value;
        const char* Changed;
        const char* Removed;
    } cases[] = {
        {"user_pref(\"A\", 100);", "100", "user_pref(\"A\", N);", "-"},
        {"user_pref(\"a.b\", 1);", {}, nullptr, nullptr},
        {"user_pref(\"a\",100 ) ;", "00", "user_pref(\"a\", N) ;", "-"},
        {"user_pref (\"a\" ,  1 2\t );", "1 2", "user_pref (\"a\" , N);", "-"},
        {"user_pref(\"a\", \"f(x, \\\")\\\") {;}\");", "\"f(x, \\\")\\\") {;}\"", "user_pref(\"a\", N);",
         "-"},
        {"user_pref(\"a\", ')\"');", "')\"'", "user_pref(\"a\", N);", "-"},
        {"user_pref(\"a\",\u00E91/* \u20AC */2);", "1       2", "user_pref(\"a\", N);", "-"},
        {"user_pref(\"a\", );", "", "user_pref(\"a\", N);", "-"},
        // Without a comma, a parenthesis, the last quote, a function.
        {"user_pref(\"a\" 4);", "", "user_pref(\"a\", N);", "-"},
        {"user_pref(\"a\", 1;", "", "user_pref(\"a\", N);", "-"},
        {"user_pref(\"a\";", "", "user_pref(\"a\", N);", "-"},
        {"user_pref(\"a\", \"x);", "\"x", "user_pref(\"a\", N);", "-"},
        {"user_pref(\"a\", \"x;", "", "user_pref(\"a\", N);", "-"},
        {"set \"a\", 1;", "", "set \"a\", N);", "-"},
        // Others' values, and what comments say.
        {"user_pref(\"b\", \"a\");", {}, nullptr, nullptr},
        {"// \"a\", 2)\nuser_pref(\"b\", /* (\"a\" */ 1);", {}, nullptr, nullptr},
        {"/* \"a\", 2 */ user_pref(\"a\", // \"a\", 3);\n 1); // \"a\"\n", "1",
         "/* \"a\", 2 */ user_pref(\"a\", N); // \"a\"\n", "/* \"a\", 2 */  // \"a\"\n"},
        // Two statements in one entry.
        {"user_pref(\"a\", \"x;\"); user_pref(\"b\", \"a\");", "\"x;\"",
         "user_pref(\"a\", N); user_pref(\"b\", \"a\");", " user_pref(\"b\", \"a\");"},
        {"// b\nuser_pref(\"b\", \";\");// a\nuser_pref(\"a\", 1) ;// c\n", "1",
         "// b\nuser_pref(\"b\", \";\");// a\nuser_pref(\"a\", N) ;// c\n",
         "// b\nuser_pref(\"b\", \";\");// a\n// c\n"},
        {"user_pref(\"a\", \";\");user_pref(\"a\", 2);", "2", "user_pref(\"a\", N);user_pref(\"a\", N);",
         "-"},
        {"user_pref(\"a\", 1; user_pref(\"b\", 2);", "", "user_pref(\"a\", N); user_pref(\"b\", 2);",
         " user_pref(\"b\", 2);"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Entry);
        const auto changed = WithPref(c.Entry, "\"a\"", "N");
        const auto removed = WithPref(c.Entry, "\"a\"", "");
        EXPECT_EQ(PrefValue(c.Entry, "\"a\""), c.Value);
        ASSERT_TRUE(changed.has_value() == c.Value.has_value() && removed.has_value() == c.Value.has_value());
        if (!c.Value) continue;
        EXPECT_EQ(*changed, c.Changed);
        EXPECT_EQ(*removed, *c.Removed == '-' ? "" : c.Removed);
    }
    EXPECT_EQ(PrefValue("user_pref(\"\u00C4\", 1);", "\"\u00E4\""), "1");
}

}  // namespace
