#include "settings/net/firefox_prefs.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/ext_ini_file.h"
#include "platform/unicode.h"
#include "settings/net/prefs_entry.h"
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

/// A file is there but cannot be read.
class EUnreadable : public std::runtime_error {
  public:
    explicit EUnreadable(const std::wstring& path) : std::runtime_error("cannot read " + ToUtf8(path)) {}
};

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

std::optional<TFirefoxPrefs::TBytes> TFirefoxPrefs::ReadBytes(const std::wstring& path) const {
    auto bytes = FSystem.Files.Read(path);
    if (!bytes && FSystem.Files.Exists(path)) throw EUnreadable(path);
    return bytes;
}

std::wstring TFirefoxPrefs::FindProfileFolder() const {
    TExtIniFile profiles;
    if (const auto bytes = ReadBytes(FFirefoxFolder + L"profiles.ini"))
        profiles.SetStrings(TLineReader(DecodeUtf8OrAnsi(*bytes, FSystem.Windows).Text));
    const auto sections = profiles.ReadSections();
    const auto found = std::ranges::find_if(sections, [&](const std::wstring& section) {
        return ReadInteger(profiles, section, L"Default") != 0;
    });
    const std::wstring section = found == sections.end() ? L"Profile0" : *found;
    const std::wstring path = profiles.ReadString(section, L"Path", L"");
    return !path.empty() && ReadInteger(profiles, section, L"IsRelative") == 1 ? FFirefoxFolder + path : path;
}

TFirefoxPrefs::TContent TFirefoxPrefs::ReadProfile(const std::wstring& profileFolder) const {
    const std::wstring userFile = profileFolder + kUserFile;
    TContent content{.State = TState::Loaded, .UserFile = ReadBytes(userFile)};
    const bool exists = content.UserFile.has_value();
    const TBytes bytes =
        exists ? *content.UserFile : ReadBytes(profileFolder + kPrefsFile).value_or(TBytes());
    const auto [text, encoding] = DecodeUtf8OrAnsi(bytes, FSystem.Windows);
    if (!exists) {
        // Without the copy the next load begins from prefs.js again, which is no loss.
        TBytes copy = EncodeText(WithLineEnds(text), encoding, FSystem.Windows);
        if (FSystem.Files.Replace(userFile, copy)) content.UserFile = std::move(copy);
    }
    content.Entries = SplitPrefs(text, [this] { FSystem.Clock.ProcessMessages(); });
    content.Encoding = encoding;
    return content;
}

void TFirefoxPrefs::LoadFirefoxPrefs() {
    unsigned saves = 0;
    do {
        saves = FSaves;
        // Kept apart until they are whole: a message handled meanwhile may save.
        std::wstring folder;
        TContent content;
        try {
            folder = FindProfileFolder();
            if (!folder.empty()) content = ReadProfile(folder);
        } catch (const EUnreadable&) {
            content.State = TState::Unreadable;
        }
        FFirefoxProfileFolder = std::move(folder);
        FContent = std::move(content);
        FEdits.clear();
    } while (saves != FSaves);
}

std::wstring TFirefoxPrefs::GetFirefoxPref(std::wstring_view quotedName) const {
    for (std::size_t i = FContent.Entries.size(); i-- > 0;) {
        if (auto value = PrefValue(FContent.Entries[i], quotedName)) return *std::move(value);
    }
    return kNoSuchPref;
}

void TFirefoxPrefs::SetFirefoxPref(std::wstring_view quotedName, std::wstring_view value,
                                   std::wstring_view setting) {
    const bool appended = !ChangePref(FContent.Entries, quotedName, value);
    FEdits.push_back({std::wstring(quotedName), std::wstring(value), appended, std::wstring(setting)});
    if (!appended) return;
    FSystem.Shell.DebugOutput(L"not has");
    FSystem.Shell.DebugOutput(FContent.Entries.emplace_back(MakePref(quotedName, value)));
}

bool TFirefoxPrefs::HasEdit(std::wstring_view quotedName) const {
    return std::ranges::any_of(FEdits,
                               [&](const TEdit& edit) { return SameText(edit.QuotedName, quotedName); });
}

namespace {

/// The last statement counts.
TPreferenceContent LastValue(const std::vector<std::wstring>& entries, std::wstring_view quotedName) {
    for (std::size_t i = entries.size(); i-- > 0;)
        if (auto value = WholePrefValue(entries[i], quotedName)) return value;
    return std::nullopt;
}

}  // namespace

std::vector<TFirefoxPrefs::TEdited> TFirefoxPrefs::Edited() const {
    std::vector<TEdited> edited;
    if (FContent.State == TState::Nothing) return edited;
    for (const TEdit& edit : FEdits) {
        const auto isSame = [&](const TEdited& each) {
            return each.Setting == edit.Setting && SameText(each.QuotedName, edit.QuotedName);
        };
        std::erase_if(edited, isSame);
        edited.push_back({edit.Setting, edit.QuotedName,
                          edit.Value.empty() ? std::nullopt : TPreferenceContent(edit.Value)});
    }
    // Removing what no statement names leaves a statement without a value.
    for (TEdited& each : edited)
        if (!each.After) each.After = LastValue(FContent.Entries, each.QuotedName);
    return edited;
}

TPreferenceContent TFirefoxPrefs::Saved(std::wstring_view quotedName) const {
    if (FContent.State == TState::Nothing) return std::nullopt;
    for (const wchar_t* file : {kUserFile, kPrefsFile})
        if (const auto bytes = FSystem.Files.Read(FFirefoxProfileFolder + file))
            return LastValue(SplitPrefs(DecodeUtf8OrAnsi(*bytes, FSystem.Windows).Text, [] {}), quotedName);
    return std::nullopt;
}

void TFirefoxPrefs::FollowUserFile(const std::wstring& path) {
    auto bytes = ReadBytes(path);
    if (!bytes || bytes == FContent.UserFile) return;
    auto [text, encoding] = DecodeUtf8OrAnsi(*bytes, FSystem.Windows);
    FContent = {.State = TState::Loaded,
                .UserFile = std::move(bytes),
                .Entries = SplitPrefs(text, [] {}),
                .Encoding = encoding};
    for (const TEdit& edit : FEdits) {
        // What was to be removed may be gone already.
        const bool mayAppend = edit.Appended || !edit.Value.empty();
        if (!ChangePref(FContent.Entries, edit.QuotedName, edit.Value) && mayAppend)
            FContent.Entries.push_back(MakePref(edit.QuotedName, edit.Value));
    }
}

bool TFirefoxPrefs::SaveFirefoxPrefs() {
    const bool loaded = FContent.State == TState::Loaded;
    if (FContent.State == TState::Nothing || (!loaded && FEdits.empty())) return false;
    if (!loaded) throw std::runtime_error("cannot save preferences that could not be read");
    const std::wstring path = FFirefoxProfileFolder + kUserFile;
    FollowUserFile(path);
    TBytes bytes = EncodeText(JoinPrefs(FContent.Entries), FContent.Encoding, FSystem.Windows);
    if (!FSystem.Files.Replace(path, bytes)) throw std::runtime_error("cannot write " + ToUtf8(path));
    FContent.UserFile = std::move(bytes);
    FEdits.clear();
    ++FSaves;
    return true;
}
