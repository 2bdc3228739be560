#include "app/history.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/decimal.h"
#include "engine/reg_file.h"
#include "engine/registry_tree.h"
#include "engine/way_back.h"
#include "platform/app_frame.h"
#include "platform/text.h"

namespace {

constexpr std::size_t kMostEntries = 100;
constexpr const wchar_t* kFolder = L"\\Vandrel\\Orbicare V4\\Quilltune\\History";
constexpr const wchar_t* kExtension = L".reg";
/// Below it Windows keeps the parameters that SystemParametersInfoW sets.
constexpr const wchar_t* kParameterProfile = L"Control Panel";
/// A larger file of preferences is restored statement by statement only.
constexpr std::size_t kLargestPreferenceFile = std::size_t{1024} * 1024;

constexpr std::wstring_view kStamp = L"dddd-dd-dd dd.dd.dd";

/// Orders entries of the same second; 0 when the name is no entry's.
int NumberOf(std::wstring_view entry) {
    if (entry.size() < kStamp.size()) return 0;
    for (std::size_t i = 0; i < kStamp.size(); ++i) {
        const bool isDigit = entry[i] >= L'0' && entry[i] <= L'9';
        if (kStamp[i] == L'd' ? !isDigit : entry[i] != kStamp[i]) return 0;
    }
    entry.remove_prefix(kStamp.size());
    if (entry.empty()) return 1;
    if (entry.front() != L' ') return 0;
    const auto number = ParseInteger(entry.substr(1));
    return number && *number > 1 && DecimalText(*number) == entry.substr(1) ? *number : 0;
}

std::wstring StampOf(const TLocalTime& time) {
    return DecimalText(time.Year, 4) + L'-' + DecimalText(time.Month, 2) + L'-' + DecimalText(time.Day, 2) +
           L' ' + DecimalText(time.Hour, 2) + L'.' + DecimalText(time.Minute, 2) + L'.' +
           DecimalText(time.Second, 2);
}

TTarget ProfileKey() {
    return TRegistryTarget{.Root = TRootKey::CurrentUser, .Key = kParameterProfile, .IsKey = true};
}

TChangeSet ProfileOf(TSystem& system) { return TreeOf(system, TRootKey::CurrentUser, kParameterProfile); }

}  // namespace

THistory::THistory(TSystem& system) : FSystem(system) {
    const std::wstring folder = TAppFrame(system).AppDataPath;
    if (!folder.empty()) FFolder = folder + kFolder;
}

std::wstring THistory::PathOf(const std::wstring& entry) const {
    return FFolder + L'\\' + entry + kExtension;
}

std::vector<std::wstring> THistory::Entries() const {
    std::vector<std::wstring> entries;
    if (FFolder.empty()) return entries;
    for (std::wstring& name : FSystem.Files.List(FFolder, std::wstring(L"*") + kExtension)) {
        name.resize(name.rfind(L'.'));
        if (NumberOf(name) != 0) entries.push_back(std::move(name));
    }
    std::ranges::sort(entries, std::ranges::greater(), [](std::wstring_view entry) {
        return std::pair(entry.substr(0, kStamp.size()), NumberOf(entry));
    });
    return entries;
}

std::optional<TChangeSet> THistory::Read(const std::wstring& entry) const {
    const auto bytes = FSystem.Files.Read(PathOf(entry));
    if (!bytes) return std::nullopt;
    auto content = ReadRegFile(*bytes, FSystem.Windows);
    auto* changes = std::get_if<TChangeSet>(&content);
    if (changes == nullptr) return std::nullopt;
    const auto profile = std::ranges::find(*changes, ProfileKey(), &TOperation::Target);
    if (profile == changes->end()) return std::move(*changes);
    // Of an Apply that was cut short. Setting the parameters again may change any of it.
    for (TChangeSet::iterator each = profile; each != changes->end(); ++each)
        each->Left = TRegistryContent{.HasKey = true, .Value = std::get<TRegistryEffect>(each->Effect).Value};
    for (TOperation& operation : Restoring({profile, changes->end()}, ProfileOf(FSystem))) {
        const auto same = std::ranges::find(*changes, operation.Target, &TOperation::Target);
        if (same == changes->end() || same->Effect != operation.Effect)
            changes->push_back(std::move(operation));
        else
            same->Left = std::move(operation.Left);
    }
    return std::move(*changes);
}

std::wstring THistory::Add(const TChangeSet& wayBack) {
    constexpr int kMostTries = 1000;
    const std::wstring stamp = StampOf(FSystem.Clock.LocalTime());
    if (FFolder.empty() || !FSystem.Files.CreateFolder(FFolder))
        throw std::runtime_error("cannot create the folder of the history");
    const TBytes bytes = WriteRegFile(wayBack);
    for (int number = 1; number < kMostTries; ++number) {
        std::wstring entry = number == 1 ? stamp : stamp + L' ' + DecimalText(number);
        if (FSystem.Files.Exists(PathOf(entry))) continue;
        if (!FSystem.Files.CreateNew(PathOf(entry), bytes)) {
            // Another program may have taken the name.
            if (FSystem.Files.Exists(PathOf(entry))) continue;
            break;
        }
        return entry;
    }
    throw std::runtime_error("cannot write the history");
}

void THistory::Replace(const std::wstring& entry, const TChangeSet& wayBack) {
    if (!FSystem.Files.Replace(PathOf(entry), WriteRegFile(wayBack)))
        throw std::runtime_error("cannot complete the history");
}

void THistory::RemoveOldest(const std::wstring& latest) {
    auto others = Entries();
    std::erase(others, latest);  // it stays, also when the clock was set back
    for (std::size_t i = kMostEntries - 1; i < others.size(); ++i) Remove(others[i]);
}

void THistory::Remove(const std::wstring& entry) { (void)FSystem.Files.Delete(PathOf(entry)); }

TRecordedApply::TRecordedApply(TSystem& system, TChangeSet operations, const TPreferenceStore* preferences)
    : FSystem(system), FPreferences(preferences), FHistory(system), FOperations(std::move(operations)) {}

void TRecordedApply::Begin() {
    const auto sets = [this](auto isKind) {
        return std::ranges::any_of(FOperations, isKind, &TOperation::Target);
    };
    FSetsParameters =
        sets([](const TTarget& target) { return std::holds_alternative<TParameterTarget>(target); });
    FSetsPreferences =
        sets([](const TTarget& target) { return std::holds_alternative<TPreferenceTarget>(target); });
    if (FSetsParameters) FProfile = ProfileOf(FSystem);
    if (FSetsPreferences && FPreferences != nullptr) FPreferenceFile = FPreferences->Saved({});
    FBack = WayBack(FSystem, FOperations, FPreferences);
    // Setting a parameter to what it is changes what is kept of it all the same.
    if (!FSetsParameters && ChangesNothing(FSystem, FOperations, FPreferences)) return;
    TChangeSet back = FBack;
    back.insert(back.end(), FProfile.begin(), FProfile.end());
    Save(back);
}

TChangeSet TRecordedApply::WithBesides() const {
    TChangeSet back = FBack;
    const TChangeSet besides = Besides();
    back.insert(back.end(), besides.begin(), besides.end());
    return back;
}

void TRecordedApply::Supplement() {
    if (!FFailed && !FEntry.empty()) Save(WithBesides());
}

void TRecordedApply::Complete() {
    if (FFailed) return;
    const TChangeSet back = WithBesides();
    if (!ChangesNothing(FSystem, back, FPreferences)) {
        Save(back);
        if (!FEntry.empty()) FHistory.RemoveOldest(FEntry);
        return;
    }
    if (!FEntry.empty()) FHistory.Remove(FEntry);
    FEntry.clear();
    FSaved.clear();
}

TChangeSet TRecordedApply::Besides() const {
    TChangeSet besides;
    if (FSetsParameters) besides = Restoring(FProfile, ProfileOf(FSystem));
    if (!FPreferenceFile || FPreferenceFile->size() > kLargestPreferenceFile) return besides;
    if (auto file = FPreferences->Saved({}); file && file != FPreferenceFile)
        besides.push_back(
            {{}, TPreferenceTarget{}, FPreferenceFile, TRestart::None, TContent(std::move(file))});
    return besides;
}

void TRecordedApply::Save(const TChangeSet& back) {
    if (back.empty() || back == FSaved) return;
    FFailed = true;
    if (FEntry.empty())
        FEntry = FHistory.Add(back);
    else
        FHistory.Replace(FEntry, back);
    FFailed = false;
    FSaved = back;
}
