#include "settings/net/firefox_prefs.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/ext_ini_file.h"
#include "platform/unicode.h"
#include "settings/net/prefs_text.h"

namespace {

constexpr const wchar_t* kUninstallKey = L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
constexpr const wchar_t* kProduct = L"Mozilla Firefox";
constexpr const wchar_t* kPrefsFile = L"\\prefs.js";
constexpr const wchar_t* kUserFile = L"\\user.js";
constexpr const wchar_t* kLineEnd = L"\r\n";

std::int32_t ReadInteger(const TExtIniFile& file, const std::wstring& section, const wchar_t* key) {
    return ParseInteger(file.ReadString(section, key, L"")).value_or(0);
}

/// The text with the same lines, each of them ended by CR LF.
std::wstring WithLineEnds(std::wstring_view text) {
    std::wstring lines;
    TLineReader reader(text);
    for (std::wstring_view line; reader.Next(line);) {
        lines += line;
        lines += kLineEnd;
    }
    return lines;
}

}  // namespace

TFirefoxPrefs::TFirefoxPrefs(TSystem& system, std::wstring firefoxFolder)
    : FSystem(system), FFirefoxFolder(std::move(firefoxFolder)) {}

bool TFirefoxPrefs::IsFirefoxInstalled() const {
    const auto products = FSystem.Registry.SubKeys(TRootKey::LocalMachine, kUninstallKey);
    return std::ranges::any_of(products, [](const std::wstring& product) {
        return FindText(product, kProduct) != std::wstring::npos;
    });
}

std::optional<TDecodedText> TFirefoxPrefs::ReadText(const std::wstring& path) const {
    const auto bytes = FSystem.Files.Read(path);
    if (!bytes) return std::nullopt;
    return DecodeUtf8OrAnsi(*bytes, FSystem.Windows);
}

std::wstring TFirefoxPrefs::FindProfileFolder() const {
    TExtIniFile profiles;
    if (const auto text = ReadText(FFirefoxFolder + L"profiles.ini"))
        profiles.SetStrings(TLineReader(text->Text));
    const auto sections = profiles.ReadSections();
    const auto found = std::ranges::find_if(sections, [&](const std::wstring& section) {
        return ReadInteger(profiles, section, L"Default") != 0;
    });
    const std::wstring section = found == sections.end() ? L"Profile0" : *found;
    const std::wstring path = profiles.ReadString(section, L"Path", L"");
    return ReadInteger(profiles, section, L"IsRelative") == 1 ? FFirefoxFolder + path : path;
}

TDecodedText TFirefoxPrefs::ReadPrefs(const std::wstring& profileFolder) const {
    const std::wstring userFile = profileFolder + kUserFile;
    const bool exists = FSystem.Files.Exists(userFile);
    if (exists) {
        if (auto text = ReadText(userFile)) return *std::move(text);
    }
    TDecodedText text = ReadText(profileFolder + kPrefsFile).value_or(TDecodedText{});
    if (!exists) {
        // Without the copy the next load begins from prefs.js again, which is no loss.
        static_cast<void>(FSystem.Files.Replace(
            userFile, EncodeText(WithLineEnds(text.Text), text.Encoding, FSystem.Windows)));
    }
    return text;
}

void TFirefoxPrefs::LoadFirefoxPrefs() {
    unsigned saves = 0;
    do {
        saves = FSaves;
        std::wstring folder = FindProfileFolder();
        auto [text, encoding] = ReadPrefs(folder);
        // Kept apart until they are whole: a message handled meanwhile may save.
        auto lines = SplitPrefs(std::move(text), [this] { FSystem.Clock.ProcessMessages(); });
        FFirefoxProfileFolder = std::move(folder);
        FFirefoxPrefLines = std::move(lines);
        FEncoding = encoding;
        FLoaded = true;
    } while (saves != FSaves);
}

std::wstring TFirefoxPrefs::GetFirefoxPref(std::wstring_view quotedName) const {
    for (std::size_t i = FFirefoxPrefLines.size(); i-- > 0;) {
        if (auto value = PrefValue(FFirefoxPrefLines[i], quotedName)) return *std::move(value);
    }
    return kNoSuchPref;
}

void TFirefoxPrefs::SetFirefoxPref(std::wstring_view quotedName, std::wstring_view value) {
    const auto names = [&](const std::wstring& line) {
        return FindText(line, quotedName) != std::wstring::npos;
    };
    if (std::ranges::none_of(FFirefoxPrefLines, names)) {
        FSystem.Shell.DebugOutput(L"not has");
        FSystem.Shell.DebugOutput(FFirefoxPrefLines.emplace_back(MakePref(quotedName, value)));
    } else if (value.empty()) {
        std::erase_if(FFirefoxPrefLines, names);
    } else {
        for (std::wstring& line : FFirefoxPrefLines) {
            if (names(line)) line = WithPrefValue(line, value);
        }
    }
}

bool TFirefoxPrefs::SaveFirefoxPrefs() {
    if (!FLoaded) return false;
    std::wstring text;
    for (const std::wstring& line : FFirefoxPrefLines) {
        text += line;
        text += kLineEnd;
    }
    const std::wstring path = FFirefoxProfileFolder + kUserFile;
    if (!FSystem.Files.Replace(path, EncodeText(text, FEncoding, FSystem.Windows)))
        throw std::runtime_error("cannot write " + ToUtf8(path));
    ++FSaves;
    return true;
}
