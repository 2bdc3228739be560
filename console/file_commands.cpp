// The commands that work with change sets: files of them, and the history.
#include <algorithm>
#include <set>

#include "app/change_sets.h"
#include "app/history.h"
#include "app/setting_names.h"
#include "base/decimal.h"
#include "console/outcome_words.h"
#include "engine/reg_file.h"
#include "engine/registry_tree.h"
#include "platform/text.h"
#include "settings/change_words.h"
#include "settings/row_places.h"
#include "settings/tell_explorer.h"

namespace {

/// The changes of the file; nothing when it cannot be read, which is named. Throws TWrongUsage when it is understood in no
/// way.
std::optional<TChangeSet> ReadFile(TTask& task) {
    const std::wstring& path = task.Words.front();
    auto content = ReadChangeFile(task.System, path, task.Captions());
    if (auto* changes = std::get_if<TChangeSet>(&content)) return std::move(*changes);
    auto& reason = std::get<std::wstring>(content);
    if (task.System.Files.Read(path)) throw TWrongUsage{std::move(reason)};
    task.Fail(reason);
    return std::nullopt;
}

/// Places that are not as they should be.
struct TFailed {
    std::set<std::wstring> Places;
    std::vector<std::wstring> Keys;  ///< and all that is in them, each with a backslash

    [[nodiscard]] bool Include(const std::wstring& place) const {
        return Places.contains(place) ||
               std::ranges::any_of(Keys, [&](const std::wstring& key) { return place.starts_with(key); });
    }
};

/// What the operations change, with `done` when they were carried out.
TList Records(const std::vector<TListView::TRow>& rows, const wchar_t* now, const TFailed* failed) {
    TList list;
    for (const TListView::TRow& row : rows) {
        TRecord record{{L"place", {row.Cells[0]}}, {now, {row.Cells[1]}}, {L"after", {row.Cells[2]}}};
        if (failed != nullptr) record.push_back({L"done", {!failed->Include(row.Cells[0])}, false});
        list.push_back({std::move(record)});
    }
    return list;
}

void Preview(const TTask& task, const TChangeSet& operations) {
    task.Print({Records(PreviewRows(task.System, operations, task.Captions()), L"now", nullptr)});
}

void Apply(TTask& task, const TChangeSet& operations) {
    if (task.DryRun) return Preview(task, operations);
    const auto rows = PreviewRows(task.System, operations, task.Captions());
    TCarriedOut done;
    Try(task, [&] { CarryOutRecorded(task.System, operations, done); });
    NotifyShell(task.System.Shell, task.Release, done.Written.AssociationsChanged);
    if (done.SavedPreferences) task.Console.Complain(task.Captions()[TCaption::RestartFirefox]);
    task.Need(done.Written.RestartNeeded);
    TFailed failed;
    for (const TOperation& operation : done.Failed) {
        const std::wstring place = PlaceWords(operation.Target, task.Captions());
        if (!failed.Places.insert(place).second) continue;
        FailAt(task, operation.Target);
        const auto* registry = std::get_if<TRegistryTarget>(&operation.Target);
        if (registry != nullptr && registry->IsKey) failed.Keys.push_back(place + L'\\');
    }
    task.Print({Records(rows, L"before", &failed)});
}

/// The keys that the setting has as long as it is on, and that it does not have now.
std::vector<TOperation> MissingKeys(TTask& task, const TSetting& setting) {
    std::vector<TOperation> deletions;
    if (task.Catalogue().States(setting).Kind != TStateKind::OnOff) return deletions;
    for (TChange& change : task.Catalogue().WouldWrite(setting, false)) {
        const auto* target = std::get_if<TRegistryTarget>(&change.Target);
        const auto* content = std::get_if<TRegistryContent>(&change.Before);
        if (target != nullptr && target->IsKey && content != nullptr && !content->HasKey)
            deletions.push_back({setting.Id, change.Target, TRegistryEffect{TRegAction::DeleteKey}});
    }
    return deletions;
}

/// What brings the content about elsewhere; nothing when there is no telling.
TEffect EffectOf(const TContent& content) {
    if (const auto* registry = std::get_if<TRegistryContent>(&content))
        return registry->Value ? TRegistryEffect{TRegAction::Write, registry->Value}
                               : TRegistryEffect{TRegAction::DeleteValue};
    if (const auto* parameter = std::get_if<TParameterContent>(&content))
        return *parameter ? TEffect(**parameter) : TEffect();
    if (const auto* service = std::get_if<TServiceContent>(&content))
        return *service ? TEffect(**service) : TEffect();
    return std::get<TPreferenceContent>(content);
}

/// Of a setting that is on or off because a key is there: the key alone, where it has no value that would bring it along.
std::vector<TOperation> KeyAlone(const TTask& task, const TSetting& setting) {
    for (const TRow* row : setting.Rows) {
        const auto* key = std::get_if<TKeyRow>(row);
        if (key == nullptr || !LevelsOf(*row).Include(task.Release)) continue;
        auto target = std::get<TRegistryTarget>(TargetOf(key->Value));
        const auto content = std::get<TRegistryContent>(ContentOf(task.System, target, nullptr));
        if (content.Value) continue;
        target.IsKey = true;
        const TRegAction action = content.HasKey ? TRegAction::Write : TRegAction::DeleteKey;
        return {{setting.Id, target, TRegistryEffect{action}, setting.Restart}};
    }
    return {};
}

/// What is stored for the setting, as changes that bring it about elsewhere.
TChangeSet StoredFor(TTask& task, const TSetting& setting) {
    if (auto key = KeyAlone(task, setting); !key.empty()) return key;
    const TPresent present = task.Catalogue().Present(setting);
    const bool isMissing = std::ranges::any_of(present.Stored, [](const TPresent::TStored& each) {
        const auto* content = std::get_if<TRegistryContent>(&each.Content);
        return content != nullptr && !content->HasKey;
    });
    TChangeSet stored;
    if (isMissing) stored = MissingKeys(task, setting);
    if (!stored.empty()) return stored;
    for (const TPresent::TStored& each : present.Stored)
        stored.push_back({setting.Id, each.Target, EffectOf(each.Content), setting.Restart});
    return stored;
}

std::wstring EntryAt(const TTask& task, const std::vector<std::wstring>& entries) {
    const std::wstring typed = task.Words.empty() ? L"1" : task.Words.front();
    const auto number = ParseInteger(typed);
    if (!number || *number < 1) throw TWrongUsage{task.Texts(TText::WrongNumber, {typed})};
    if (static_cast<std::size_t>(*number) > entries.size())
        throw TWrongUsage{task.Texts(TText::NoEntry, {typed})};
    return entries[static_cast<std::size_t>(*number) - 1];
}

}  // namespace

void PreviewFile(TTask& task) {
    if (const auto operations = ReadFile(task)) Preview(task, *operations);
}

void ApplyFile(TTask& task) {
    auto operations = ReadFile(task);
    if (!operations) return;
    // The file need not say that Windows must restart.
    TSettingNames(task.System, task.Language(), task.Release).Attribute(*operations);
    Apply(task, *operations);
}

void ExportFile(TTask& task) {
    std::vector<const TSetting*> settings;
    for (std::size_t i = 1; i < task.Words.size(); ++i) settings.push_back(&task.Setting(task.Words[i]));
    const bool isAll = settings.empty();
    if (isAll) settings = task.Catalogue().Settings();
    TFirefoxPrefs preferences(task.System);
    preferences.LoadFirefoxPrefs();
    TChangeSet operations;
    std::set<std::wstring> known;
    TList list;
    for (const TSetting* setting : settings) {
        if (!task.Catalogue().PendingState(*setting).IsOffered) {
            if (!isAll) task.Fail(task.Texts(TText::NotOffered, {setting->Id}));
            continue;
        }
        for (TOperation& operation : StoredFor(task, *setting)) {
            const std::wstring place = PlaceWords(operation.Target, task.Captions());
            if (std::holds_alternative<std::monostate>(operation.Effect) || !known.insert(place).second)
                continue;
            const TContent content = ContentOf(task.System, operation.Target, &preferences);
            list.push_back(
                {TRecord{{L"setting", {operation.Setting}, false},
                         {L"place", {place}},
                         {L"content", {ContentWords(operation.Target, content, task.Captions())}}}});
            operations.push_back(std::move(operation));
        }
    }
    const std::wstring& path = task.Words.front();
    if (!task.System.Files.Replace(path, WriteRegFile(operations)))
        return task.Fail(Formatted(task.Captions()[TCaption::RegFileNotWritten], {path}));
    task.Print({std::move(list)});
}

void ListHistory(TTask& task) {
    const THistory history(task.System);
    const TSettingNames names(task.System, task.Language(), task.Release);
    TList list;
    for (const std::wstring& entry : history.Entries()) {
        const auto wayBack = history.Read(entry);
        TList ids;
        std::set<std::wstring> named{std::wstring()};
        for (const TOperation& operation : wayBack.value_or(TChangeSet()))
            if (named.insert(operation.Setting).second) ids.push_back({operation.Setting});
        list.push_back(
            {TRecord{{L"number", {static_cast<std::int64_t>(list.size()) + 1}},
                     {L"time", {entry}},
                     {L"settings", {wayBack ? names.Of(*wayBack) : task.Captions()[TCaption::Unreadable]}},
                     {L"ids", {std::move(ids)}, false},
                     {L"readable", {wayBack.has_value()}, false}}});
    }
    task.Print({std::move(list)});
}

void UndoEntry(TTask& task) {
    const THistory history(task.System);
    const std::wstring entry = EntryAt(task, history.Entries());
    const auto wayBack = history.Read(entry);
    if (!wayBack) return task.Fail(task.Texts(TText::UnreadableEntry, {entry}));
    Apply(task, *wayBack);
}
