// The list of Firefox's profiles: whatever it says, the profile it calls the default is found and read, and nothing is
// written.
#include "settings/net/firefox_prefs.h"
#include "tests/fakes/fake_system.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/ini_model.h"

namespace {

constexpr const wchar_t* kFolder = L"C:\\Firefox\\";

std::int32_t Number(TIniModel& model, const std::wstring& section, const wchar_t* key) {
    const auto value = model.Value(section, key);
    return value ? ParseInteger(*value).value_or(0) : 0;
}

std::wstring ProfileFolder(TIniModel model) {
    std::wstring chosen = L"Profile0";
    for (const TIniModel::TSection& section : model.Sections()) {
        if (Number(model, section.Name, L"Default") == 0) continue;
        chosen = section.Name;
        break;
    }
    const std::wstring path = model.Value(chosen, L"Path").value_or(L"");
    return Number(model, chosen, L"IsRelative") == 1 ? kFolder + path : path;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TFakeSystem fake;
    fake.Files.Put(kFolder + std::wstring(L"profiles.ini"), {data, data + size});
    const std::wstring folder = ProfileFolder(TIniModel(DecodeUtf8OrAnsi({data, size}, fake.Windows).Text));
    fake.Files.PutText(folder + L"\\user.js", "user_pref(\"found\", true);\n");
    TFirefoxPrefs prefs(fake.System, kFolder);
    prefs.LoadFirefoxPrefs();
    Require(prefs.FirefoxProfileFolder() == folder, "the default profile, or else the first one");
    Require(prefs.GetFirefoxPref(L"\"found\"") == L"true", "its user.js is read");
    Require(fake.Files.Replaced().empty(), "nothing is written");
    return 0;
}
