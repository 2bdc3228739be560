// Firefox's preference files: every statement and every comment is kept whole, nothing is read that is not written there,
// and a change changes the statements that name the pref and no others.
#include <set>

#include "platform/unicode.h"
#include "settings/net/firefox_prefs.h"
#include "settings/net/prefs_lexer.h"
#include "tests/fakes/fake_system.h"
#include "tests/fuzz/fuzz.h"

namespace {

using TLines = std::vector<std::wstring>;

constexpr const wchar_t* kUserFile = L"C:\\Firefox\\p\\user.js";
constexpr const wchar_t* kStatement = L"user_pref(";
constexpr std::size_t kMostNames = 4;

bool IsOpen(const std::wstring& piece) {
    int quotes = 0;
    for (std::size_t i = 1; i < piece.size(); ++i)
        quotes += piece[i] == L'"' && piece[i - 1] != L'\\' ? 1 : 0;
    return quotes % 2 == 1;
}

/// The statements in a text without header, worked out by searching and cutting.
TLines Split(std::wstring text) {
    TLines lines;
    bool open = false;
    while (text.find(L';') != std::wstring::npos) {
        const std::wstring piece = text.substr(0, text.find(L';') + 1);
        text.erase(0, piece.size());
        if (!open)
            lines.push_back(piece);
        else
            lines.back() += piece;
        open = open != IsOpen(piece);
    }
    return lines;
}

/// The text in one line and without header.
std::wstring Body(std::wstring text) {
    std::erase(text, L'\r');
    std::erase(text, L'\n');
    for (std::size_t at = 0; (at = text.find(L"user_pref", at)) != std::wstring::npos; ++at)
        if (Trim(text.substr(at + 9)).starts_with(L'(')) return text.substr(at);
    return text;
}

/// A few quoted texts of the file, which may be names of prefs, and a name that is new to it.
std::set<std::wstring> Names(const std::wstring& body) {
    std::set<std::wstring> names{L"\"quilltune.new\""};
    for (std::size_t begin = body.find(L'"'); begin != std::wstring::npos && names.size() <= kMostNames;) {
        const std::size_t end = body.find(L'"', begin + 1);
        if (end == std::wstring::npos) break;
        names.insert(body.substr(begin, end - begin + 1));
        begin = body.find(L'"', end + 1);
    }
    return names;
}

/// A value made of the text: what "user_pref(" precedes up to the first ")", at most a line.
std::wstring SomeValue(const std::wstring& body) {
    std::wstring value = body.substr(0, body.find(L')'));
    return value.size() > 40 ? value.substr(value.size() - 40) : value;
}

bool Mentions(const std::wstring& line, const std::wstring& name) {
    for (std::size_t i = 0; i + name.size() <= line.size(); ++i)
        if (SameText(std::wstring_view(line).substr(i, name.size()), name)) return true;
    return false;
}

/// Without the white space, of which comments leave more or less.
std::wstring Dense(std::wstring text) {
    std::erase_if(text, [](wchar_t c) { return c <= L' '; });
    return text;
}

void RequireReading(const TFirefoxPrefs& prefs, const std::wstring& name) {
    const std::wstring value = prefs.GetFirefoxPref(name);
    if (value == TFirefoxPrefs::kNoSuchPref) return;
    Require(std::ranges::any_of(prefs.FirefoxPrefLines(),
                                [&](const std::wstring& line) {
                                    const std::wstring code = FromUtf8(WithBlankedComments(ToUtf8(line)));
                                    return Mentions(code, name) &&
                                           Dense(code).find(Dense(value)) != std::wstring::npos;
                                }),
            "a value stands in an entry with the name");
}

void RequireChange(TFirefoxPrefs& prefs, const std::wstring& name, const std::wstring& value) {
    const TLines before = prefs.FirefoxPrefLines();
    const bool named = prefs.GetFirefoxPref(name) != TFirefoxPrefs::kNoSuchPref;
    prefs.SetFirefoxPref(name, value);
    const TLines after = prefs.FirefoxPrefLines();
    if (!named) {
        Require(after.back() == kStatement + name + L", " + value + L");", "a new pref has a new statement");
    } else if (value.empty()) {
        Require(after.size() <= before.size(), "what is removed leaves nothing new");
    } else {
        Require(after.size() == before.size(), "what is changed stays in its place");
    }
    for (const std::wstring& line : before)
        if (!Mentions(line, name))
            Require(std::ranges::find(after, line) != after.end(), "others are left alone");
}

/// All that is no comment and no white space, and the comments without their line ends.
std::pair<std::string, std::vector<std::string>> Parts(const std::string& text) {
    std::pair<std::string, std::vector<std::string>> parts;
    for (TPrefsLexer lexer(text); lexer.Next();) {
        if (lexer.Part() == TPrefsPart::Comment)
            parts.second.emplace_back(Trim(lexer.Text()));
        else
            std::ranges::copy_if(lexer.Text(), std::back_inserter(parts.first),
                                 [](char c) { return !IsBlank(c); });
    }
    return parts;
}

/// A file as people write it, put together as the input says.
std::string HandWritten(const std::uint8_t* data, std::size_t size) {
    constexpr const char* kPieces[] = {
        "\n",
        "\r\n",
        "  ",
        "\n\n",
        "user_pref(\"a\", 1);",
        "user_pref(\"b\", \"x // y; /* #\");",
        "user_pref(\"c\", \"C:\\\\\");",
        "user_pref(\"d\", \"q\\\"; \\\")\");",
        "user_pref(\"e\", /* ;) \" */ 2) ;",
        "user_pref(\"f\", // ;) \"\n 3);",
        "user_pref(\"g\", \"x;\");",
        "user_pref('h', ')//');",
        "// user_pref(\"off\", 1);\n",
        "# it's; \"\r\n",
        "/* user_pref(\"off\", 2);\n */",
        "// \"a\", \r",
    };
    std::string text;
    for (std::size_t i = 0; i < std::min<std::size_t>(size, 100); ++i)
        text += kPieces[data[i] % std::size(kPieces)];
    return text;
}

/// What Apply writes without a change.
std::string SavedAgain(TFakeSystem& fake, TFirefoxPrefs& prefs) {
    prefs.LoadFirefoxPrefs();
    Require(prefs.SaveFirefoxPrefs(), "what was loaded can be saved");
    return fake.Files.Text(kUserFile);
}

void RequireHandWrittenIsKept(TFakeSystem& fake, TFirefoxPrefs& prefs, const std::string& text) {
    fake.Files.PutText(kUserFile, text);
    const auto parts = Parts(text);
    if (parts.second.empty()) return;
    const std::string saved = SavedAgain(fake, prefs);
    Require(Parts(saved) == parts, "what is in force stays so, and what is not stays a comment");
    Require(SavedAgain(fake, prefs) == saved, "saving twice changes nothing more");
    for (const wchar_t* name : {L"\"a\"", L"\"d\"", L"\"g\""}) {
        const std::wstring value = prefs.GetFirefoxPref(L"\"b\"");
        RequireChange(prefs, name, L"\"n;)\"");
        Require(prefs.GetFirefoxPref(name) == L"\"n;)\"", "the value that was written is read");
        Require(prefs.GetFirefoxPref(L"\"b\"") == value, "a change changes no other pref");
        RequireChange(prefs, name, L"");
        Require(prefs.GetFirefoxPref(L"\"b\"") == value, "removing a pref removes no other");
        Require(prefs.GetFirefoxPref(L"\"off\"") == TFirefoxPrefs::kNoSuchPref, "a comment sets nothing");
    }
    Require(prefs.SaveFirefoxPrefs(), "it can be saved again");
    const std::string changed = fake.Files.Text(kUserFile);
    const std::string again = SavedAgain(fake, prefs);
    Require(Parts(again) == Parts(changed), "what was changed is read as it was written");
}

}  // namespace

void FuzzPrefs(const std::uint8_t* data, std::size_t size) {
    TFakeSystem fake;
    fake.Files.PutText(L"C:\\Firefox\\profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
    fake.Files.Put(kUserFile, {data, data + size});
    std::size_t calls = 0;
    fake.Clock.OnProcessMessages = [&] { ++calls; };
    TFirefoxPrefs prefs(fake.System, L"C:\\Firefox\\");
    prefs.LoadFirefoxPrefs();

    const std::wstring text = DecodeUtf8OrAnsi({data, size}, fake.Windows).Text;
    const std::wstring body = Body(text);
    // In its own words where there are no comments; that ends of folders cut no values is for the tests.
    if (text.find_first_of(L"/#") == std::wstring::npos && text.find(L"\\\"") == std::wstring::npos) {
        const TLines lines = prefs.FirefoxPrefLines();
        std::wstring joined;
        for (const std::wstring& line : lines) joined += line;
        Require(joined == body.substr(0, body.rfind(L';') + 1), "no character of a statement is lost");
        Require(lines == Split(body), "statements end where they should");
        Require(calls == lines.size(), "messages are handled once for each statement");
        const std::string saved = SavedAgain(fake, prefs);
        if (joined.starts_with(kStatement))
            Require(SavedAgain(fake, prefs) == saved, "saving and loading changes nothing");
    }
    RequireHandWrittenIsKept(fake, prefs, HandWritten(data, size));

    fake.Files.Put(kUserFile, {data, data + size});
    prefs.LoadFirefoxPrefs();
    const std::wstring some = SomeValue(body);
    for (const std::wstring& name : Names(body)) {
        RequireReading(prefs, name);
        RequireChange(prefs, name, some);
        RequireReading(prefs, name);
        RequireChange(prefs, name, L"\"a, b;\"");
        RequireChange(prefs, name, L"");
        RequireReading(prefs, name);
    }
}
