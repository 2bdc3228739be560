// The list of Firefox's profiles: whatever it says, the profile it calls the default is found and read, and nothing is
// written.
#include "platform/ext_ini_file.h"
#include "settings/net/firefox_prefs.h"
#include "tests/fakes/fake_system.h"
#include "tests/fuzz/fuzz.h"

namespace {

constexpr const wchar_t* kFolder = L"C:\\Firefox\\";

/// As the parser of such files has them, which has a fuzz target of its own.
std::wstring ProfileFolder(const std::wstring& text) {
    TExtIniFile ini;
    ini.SetStrings(TLineReader(text));
    const auto number = [&](const std::wstring& section, const wchar_t* key) {
        return ParseInteger(ini.ReadString(section, key, L"")).value_or(0);
    };
    // The lowest number wins, and the first of it.
    std::vector<std::pair<int, std::wstring>> choices = {{3, L"Profile0"}};
    for (const std::wstring& section : ini.ReadSections()) {
        if (number(section, L"Default") != 0) choices.emplace_back(2, section);
        const std::wstring named = ini.ReadString(section, L"Default", L"");
        if (named.empty() || FindText(section, L"Install") != 0) continue;
        for (const std::wstring& profile : ini.ReadSections())
            if (SameText(ini.ReadString(profile, L"Path", L""), named))
                choices.emplace_back(number(section, L"Locked") != 0 ? 0 : 1, profile);
    }
    const std::wstring chosen =
        std::ranges::min_element(choices, {}, &std::pair<int, std::wstring>::first)->second;
    const std::wstring path = ini.ReadString(chosen, L"Path", L"");
    return number(chosen, L"IsRelative") == 1 && !path.empty() ? kFolder + path : path;
}

}  // namespace

void FuzzProfiles(const std::uint8_t* data, std::size_t size) {
    TFakeSystem fake;
    fake.Files.Put(kFolder + std::wstring(L"profiles.ini"), {data, data + size});
    const std::wstring folder = ProfileFolder(DecodeUtf8OrAnsi({data, size}, fake.Windows).Text);
    fake.Files.PutText(folder + L"\\user.js", "user_pref(\"found\", true);\n");
    TFirefoxPrefs prefs(fake.System, kFolder);
    prefs.LoadFirefoxPrefs();
    Require(prefs.FirefoxProfileFolder() == folder,
            "the profile of an installation, the default one, or else the first one");
    Require((prefs.GetFirefoxPref(L"\"found\"") == L"true") == !folder.empty(),
            "its user.js is read, if there is one");
    Require(fake.Files.Replaced().empty(), "nothing is written");
}
