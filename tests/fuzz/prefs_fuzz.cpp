// Firefox's preference files: every statement is kept whole, nothing is read that is not written there, and a change
// changes the statements that name the pref and no others.
#include <set>

#include "settings/net/firefox_prefs.h"
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
    const std::size_t first = text.find(kStatement);
    return first == std::wstring::npos ? text : text.substr(first);
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

const std::wstring* LastOf(const TLines& lines, const std::wstring& name) {
    const std::wstring* last = nullptr;
    for (const std::wstring& line : lines)
        if (Mentions(line, name)) last = &line;
    return last;
}

void RequireReading(const TFirefoxPrefs& prefs, const std::wstring& name) {
    const std::wstring value = prefs.GetFirefoxPref(name);
    const std::wstring* line = LastOf(prefs.FirefoxPrefLines(), name);
    if (line == nullptr)
        Require(value == TFirefoxPrefs::kNoSuchPref, "a pref that nobody names is absent");
    else
        Require(line->find(value) != std::wstring::npos && value.find(L')') == std::wstring::npos,
                "a value stands in the last statement that names the pref");
}

void RequireChange(TFirefoxPrefs& prefs, const std::wstring& name, const std::wstring& value) {
    TLines expected;
    bool named = false;
    for (const std::wstring& line : prefs.FirefoxPrefLines()) {
        const bool match = Mentions(line, name);
        named = named || match;
        if (!match)
            expected.push_back(line);
        else if (!value.empty())
            expected.push_back(line.substr(0, line.find_last_of(L',') + 1) + L" " + value + L");");
    }
    if (!named) expected.push_back(kStatement + name + L", " + value + L");");
    prefs.SetFirefoxPref(name, value);
    Require(prefs.FirefoxPrefLines() == expected, "all statements of the pref are changed, and only they");

    // Where the name is followed by the statement's last comma, the value can be read back.
    const std::wstring* line = LastOf(expected, name);
    if (line == nullptr) return;
    const std::wstring head = line->substr(0, line->size() - (L" " + value + L");").size());
    if (head.size() > name.size() && head.ends_with(L',') &&
        SameText(std::wstring_view(head).substr(head.size() - 1 - name.size(), name.size()), name) &&
        !Mentions(head.substr(0, head.size() - 2), name))
        Require(prefs.GetFirefoxPref(name) == Trim(value), "the value that was written is read");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TFakeSystem fake;
    fake.Files.PutText(L"C:\\Firefox\\profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
    fake.Files.Put(kUserFile, {data, data + size});
    std::size_t calls = 0;
    fake.Clock.OnProcessMessages = [&] { ++calls; };
    TFirefoxPrefs prefs(fake.System, L"C:\\Firefox\\");
    prefs.LoadFirefoxPrefs();

    const std::wstring body = Body(DecodeUtf8OrAnsi({data, size}, fake.Windows).Text);
    const TLines lines = prefs.FirefoxPrefLines();
    std::wstring joined;
    for (const std::wstring& line : lines) joined += line;
    Require(joined == body.substr(0, body.rfind(L';') + 1), "no character of a statement is lost");
    Require(lines == Split(body), "statements end where they should");
    Require(calls == lines.size(), "messages are handled once for each statement");

    Require(prefs.SaveFirefoxPrefs(), "what was loaded can be saved");
    const std::string saved = fake.Files.Text(kUserFile);
    if (joined.starts_with(kStatement)) {
        prefs.LoadFirefoxPrefs();
        Require(prefs.SaveFirefoxPrefs() && fake.Files.Text(kUserFile) == saved,
                "saving and loading changes nothing");
    }

    const std::wstring some = SomeValue(body);
    for (const std::wstring& name : Names(body)) {
        RequireReading(prefs, name);
        RequireChange(prefs, name, some);
        RequireReading(prefs, name);
        RequireChange(prefs, name, L"\"a, b;\"");
        RequireChange(prefs, name, L"");
        RequireReading(prefs, name);
    }
    return 0;
}
