#include "settings/net/firefox_prefs.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <utility>

#include "platform/app_frame.h"
#include "platform/ext_ini_file.h"
#include "platform/unicode.h"
#include "settings/net/prefs_entry.h"
#include "settings/net/prefs_lexer.h"
#include "settings/net/prefs_text.h"

namespace {

/// What lists the products: those for all users, for this one, and those of 32 bits on a Windows of 64.
constexpr std::pair<TRootKey, const wchar_t*> kProducts[] = {
    {TRootKey::LocalMachine, L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"},
    {TRootKey::CurrentUser, L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"},
    {TRootKey::LocalMachine, L"\\SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"},
};
constexpr const wchar_t* kProduct = L"Mozilla Firefox";
constexpr const wchar_t* kPrefsFile = L"\\prefs.js";
constexpr const wchar_t* kUserFile = L"\\user.js";

std::int32_t ReadInteger(const TExtIniFile& file, const std::wstring& section, const wchar_t* key) {
    return ParseInteger(file.ReadString(section, key, L"")).value_or(0);
}

/// The section of the profile that an installation starts with, as Firefox 67 and later note it; nothing when they do not.
std::optional<std::wstring> ProfileOfInstallation(const TExtIniFile& profiles,
                                                  const std::vector<std::wstring>& sections) {
    std::unordered_map<std::wstring, std::size_t, TTextHash, TTextEqual> byPath;
    for (std::size_t i = 0; i < sections.size(); ++i)
        byPath.emplace(profiles.ReadString(sections[i], L"Path", L""), i);
    byPath.erase(L"");
    std::optional<std::wstring> found;  // which may be without a name
    for (const std::wstring& section : sections) {
        if (FindText(section, L"Install") != 0) continue;
        const auto profile = byPath.find(profiles.ReadString(section, L"Default", L""));
        if (profile == byPath.end()) continue;
        if (ReadInteger(profiles, section, L"Locked") != 0) return sections[profile->second];
        if (!found) found = sections[profile->second];
    }
    return found;
}

std::wstring ProfileInUse(const TExtIniFile& profiles) {
    const auto sections = profiles.ReadSections();
    if (auto section = ProfileOfInstallation(profiles, sections)) return *std::move(section);
    const auto found = std::ranges::find_if(sections, [&](const std::wstring& section) {
        return ReadInteger(profiles, section, L"Default") != 0;
    });
    return found == sections.end() ? L"Profile0" : *found;
}

/// A file is there but cannot be read.
class EUnreadable : public std::runtime_error {
  public:
    explicit EUnreadable(const std::wstring& path) : std::runtime_error("cannot read " + ToUtf8(path)) {}
};

std::shared_ptr<const std::vector<std::uint8_t>> Share(std::vector<std::uint8_t> bytes) {
    return std::make_shared<const std::vector<std::uint8_t>>(std::move(bytes));
}

/// The text with the same lines, each of them ended by CR LF.
std::string WithLineEnds(std::string_view text) {
    std::string lines;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, LineLength(text));
        lines += line.substr(0, line.find_first_of(kPrefsLineEnd));
        lines += kPrefsLineEnd;
        text.remove_prefix(line.size());
    }
    return lines;
}

}  // namespace

TFirefoxPrefs::TFirefoxPrefs(TSystem& system, std::wstring firefoxFolder)
    : FSystem(system), FFirefoxFolder(std::move(firefoxFolder)) {}

bool TFirefoxPrefs::IsFirefoxInstalled() const {
    return std::ranges::any_of(kProducts, [this](const auto& list) {
        return std::ranges::any_of(
            FSystem.Registry.SubKeys(list.first, list.second),
            [](const auto& product) { return FindText(product, kProduct) != std::wstring::npos; });
    });
}

TFirefoxPrefs::TSharedBytes TFirefoxPrefs::ReadBytes(const std::wstring& path) const {
    auto bytes = FSystem.Files.Read(path);
    if (!bytes && FSystem.Files.Exists(path)) throw EUnreadable(path);
    return bytes ? Share(*std::move(bytes)) : nullptr;
}

std::wstring TFirefoxPrefs::FindProfileFolder() {
    if (FFirefoxFolder.empty()) FFirefoxFolder = TAppFrame(FSystem).AppDataPath + L"\\Mozilla\\Firefox\\";
    TExtIniFile profiles;
    if (const auto bytes = ReadBytes(FFirefoxFolder + L"profiles.ini"))
        profiles.SetStrings(TLineReader(DecodeUtf8OrAnsi(*bytes, FSystem.Windows).Text));
    const std::wstring section = ProfileInUse(profiles);
    const std::wstring path = profiles.ReadString(section, L"Path", L"");
    return !path.empty() && ReadInteger(profiles, section, L"IsRelative") == 1 ? FFirefoxFolder + path : path;
}

TFirefoxPrefs::TSource TFirefoxPrefs::Decode(TSharedBytes file) const {
    TSource source{.File = std::move(file)};
    if (!source.File) return source;
    if (const auto text = Utf8Text(*source.File)) {
        source.Text = *text;
        return source;
    }
    const auto [text, encoding] = DecodeUtf8OrAnsi(*source.File, FSystem.Windows);
    source.Converted = std::make_shared<const std::string>(ToUtf8(text));
    source.Text = *source.Converted;
    source.Encoding = encoding;
    return source;
}

TFirefoxPrefs::TBytes TFirefoxPrefs::Encode(const std::string& text, TTextEncoding encoding) const {
    if (encoding == TTextEncoding::Utf8) return {text.begin(), text.end()};
    return EncodeText(FromUtf8(text), encoding, FSystem.Windows);
}

TFirefoxPrefs::TContent TFirefoxPrefs::ReadProfile(const std::wstring& profileFolder) const {
    const std::wstring userFile = profileFolder + kUserFile;
    TContent content{.State = TState::Loaded, .UserFile = ReadBytes(userFile)};
    TSource& source = content.Source;
    source = Decode(content.UserFile ? content.UserFile : ReadBytes(profileFolder + kPrefsFile));
    if (!content.UserFile) {
        // Without the copy the next load begins from prefs.js again, which is no loss.
        TBytes copy = Encode(WithLineEnds(source.Text), source.Encoding);
        if (FSystem.Files.Replace(userFile, copy)) content.UserFile = Share(std::move(copy));
    }
    content.Entries = SplitPrefs(source.Text, [this] { FSystem.Clock.ProcessMessages(); });
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

std::vector<std::wstring> TFirefoxPrefs::FirefoxPrefLines() const {
    std::vector<std::wstring> lines;
    for (std::size_t i = 0; i < FContent.Entries.Count(); ++i)
        if (!FContent.Entries[i].empty()) lines.push_back(FromUtf8(FContent.Entries[i]));
    return lines;
}

std::wstring TFirefoxPrefs::GetFirefoxPref(std::wstring_view quotedName) const {
    const std::string name = ToUtf8(quotedName);
    for (const std::size_t place : FContent.Entries.Quoting(name))
        if (const auto value = PrefValue(FContent.Entries[place], name)) return FromUtf8(*value);
    return kNoSuchPref;
}

bool TFirefoxPrefs::Replace(const std::string& quotedName, const std::string& value) {
    bool isNamed = false;
    for (const std::size_t place : FContent.Entries.Quoting(quotedName)) {
        auto changed = WithPref(FContent.Entries[place], quotedName, value);
        if (!changed) continue;
        FContent.Entries.Replace(place, *std::move(changed));
        isNamed = true;
    }
    return isNamed;
}

void TFirefoxPrefs::SetFirefoxPref(std::wstring_view quotedName, std::wstring_view value,
                                   std::wstring_view setting) {
    TEdit edit{.QuotedName = ToUtf8(quotedName), .Value = ToUtf8(value), .Setting = std::wstring(setting)};
    edit.Appended = !Replace(edit.QuotedName, edit.Value);
    if (edit.Appended) {
        std::string entry = MakePref(edit.QuotedName, edit.Value);
        FSystem.Shell.DebugOutput(L"not has");
        FSystem.Shell.DebugOutput(FromUtf8(entry));
        FContent.Entries.Append(std::move(entry));
    }
    FEdits.push_back(std::move(edit));
}

bool TFirefoxPrefs::HasEdit(std::wstring_view quotedName) const {
    const std::string name = ToUtf8(quotedName);
    return std::ranges::any_of(FEdits, [&](const TEdit& edit) { return SameText(edit.QuotedName, name); });
}

namespace {

/// The last statement counts.
TPreferenceContent LastValue(const TPrefEntries& entries, const std::string& quotedName) {
    for (const std::size_t place : entries.Quoting(quotedName))
        if (const auto value = WholePrefValue(entries[place], quotedName)) return FromUtf8(*value);
    return std::nullopt;
}

}  // namespace

std::vector<TFirefoxPrefs::TEdited> TFirefoxPrefs::Edited() const {
    std::vector<TEdited> edited;
    if (FContent.State == TState::Nothing) return edited;
    for (const TEdit& edit : FEdits) {
        const std::wstring name = FromUtf8(edit.QuotedName);
        const auto isSame = [&](const TEdited& each) {
            return each.Setting == edit.Setting && SameText(each.QuotedName, name);
        };
        std::erase_if(edited, isSame);
        edited.push_back({edit.Setting, name,
                          edit.Value.empty() ? std::nullopt : TPreferenceContent(FromUtf8(edit.Value))});
    }
    // Removing what no statement names leaves a statement without a value.
    for (TEdited& each : edited)
        if (!each.After) each.After = LastValue(FContent.Entries, ToUtf8(each.QuotedName));
    return edited;
}

TPreferenceContent TFirefoxPrefs::Saved(std::wstring_view quotedName) const {
    if (FContent.State == TState::Nothing) return std::nullopt;
    for (const wchar_t* file : {kUserFile, kPrefsFile}) {
        auto bytes = FSystem.Files.Read(FFirefoxProfileFolder + file);
        if (!bytes) continue;
        if (quotedName.empty()) return std::wstring(bytes->begin(), bytes->end());
        const TSource source = Decode(Share(*std::move(bytes)));
        return LastValue(SplitPrefs(source.Text, [] {}), ToUtf8(quotedName));
    }
    return std::nullopt;
}

void TFirefoxPrefs::Change(const std::wstring& quotedName, const TPreferenceContent& content,
                           const std::wstring& setting) {
    if (quotedName.empty()) {
        FWholeFile = content ? TBytes(content->begin(), content->end()) : TBytes();
    } else if (content || GetFirefoxPref(quotedName) != kNoSuchPref) {
        SetFirefoxPref(quotedName, content.value_or(std::wstring()), setting);
    }
}

void TFirefoxPrefs::Save() {
    if (!SaveFirefoxPrefs()) throw std::runtime_error("there is no profile to save preferences to");
}

void TFirefoxPrefs::Revert(const std::wstring& setting) {
    if (std::erase_if(FEdits, [&](const TEdit& edit) { return edit.Setting == setting; }) == 0) return;
    if (FContent.UserFile) FContent.Source = Decode(FContent.UserFile);  // it may have been saved since
    Rebuild();
}

void TFirefoxPrefs::FollowUserFile(const std::wstring& path) {
    const TSharedBytes bytes = ReadBytes(path);
    if (!bytes || (FContent.UserFile && *bytes == *FContent.UserFile)) return;
    FContent = {.State = TState::Loaded, .UserFile = bytes, .Source = Decode(bytes)};
    Rebuild();
}

void TFirefoxPrefs::Rebuild() {
    FContent.Entries = SplitPrefs(FContent.Source.Text, [] {});
    for (const TEdit& edit : FEdits) {
        // What was to be removed may be gone already.
        const bool mayAppend = edit.Appended || !edit.Value.empty();
        if (!Replace(edit.QuotedName, edit.Value) && mayAppend)
            FContent.Entries.Append(MakePref(edit.QuotedName, edit.Value));
    }
}

bool TFirefoxPrefs::SaveFirefoxPrefs() {
    const bool loaded = FContent.State == TState::Loaded;
    if (FContent.State == TState::Nothing || (!loaded && FEdits.empty())) return false;
    if (!loaded) throw std::runtime_error("cannot save preferences that could not be read");
    const std::wstring path = FFirefoxProfileFolder + kUserFile;
    FollowUserFile(path);
    TBytes bytes = FWholeFile ? *FWholeFile : Encode(JoinPrefs(FContent.Entries), FContent.Source.Encoding);
    if (!FSystem.Files.Replace(path, bytes)) throw std::runtime_error("cannot write " + ToUtf8(path));
    FContent.UserFile = Share(std::move(bytes));
    FEdits.clear();
    if (FWholeFile) {
        FWholeFile.reset();
        FContent.Source = Decode(FContent.UserFile);
        Rebuild();
    }
    ++FSaves;
    return true;
}
