#include "app/change_sets.h"

#include <algorithm>
#include <unordered_set>

#include "app/history.h"
#include "app/take_all.h"
#include "base/decimal.h"
#include "engine/reg_file.h"
#include "engine/registry_tree.h"
#include "platform/text.h"
#include "settings/change_words.h"
#include "settings/net/firefox_prefs.h"
#include "settings/scratch_system.h"

namespace {

using TPlaces = std::unordered_set<std::wstring, TTextHash, TTextEqual>;

/// The operations, and behind each that deletes a key what else is in that now, with no effect of its own. A way back that
/// does not know of it has not left it there.
TChangeSet WithWhatIsDeleted(TSystem& system, const TChangeSet& operations, const TCaptions& captions) {
    TPlaces known;
    for (const TOperation& operation : operations) known.insert(PlaceWords(operation.Target, captions));
    TChangeSet steps;
    for (const TOperation& operation : operations) {
        steps.push_back(operation);
        const auto* effect = std::get_if<TRegistryEffect>(&operation.Effect);
        if (effect == nullptr || effect->Action != TRegAction::DeleteKey) continue;
        const auto& target = std::get<TRegistryTarget>(operation.Target);
        for (TOperation& each : TreeOf(system, target.Root, target.Key)) {
            if (!known.insert(PlaceWords(each.Target, captions)).second) continue;
            steps.push_back({{}, std::move(each.Target), {}});
            if (operation.Left) steps.back().Left = TRegistryContent();
        }
    }
    return steps;
}

bool IsChangedSince(const TOperation& operation, const TContent& now) {
    if (!operation.Left) return false;
    const auto* left = std::get_if<TRegistryContent>(&*operation.Left);
    // Of a value it does not matter whether there is a key for what is not there.
    return left != nullptr && !std::get<TRegistryTarget>(operation.Target).IsKey
               ? left->Value != std::get<TRegistryContent>(now).Value
               : *operation.Left != now;
}

/// The preferences that the operations change; read only when they change some.
TFirefoxPrefs PreferencesFor(TSystem& system, const TChangeSet& operations) {
    TFirefoxPrefs preferences(system);
    if (std::ranges::any_of(operations, [](const TOperation& operation) {
            return std::holds_alternative<TPreferenceTarget>(operation.Target);
        }))
        preferences.LoadFirefoxPrefs();
    return preferences;
}

}  // namespace

std::variant<TChangeSet, std::wstring> ReadChangeFile(const TSystem& system, const std::wstring& path,
                                                      const TCaptions& captions) {
    const auto bytes = system.Files.Read(path);
    if (!bytes) return Formatted(captions[TCaption::RegFileNotRead], {path});
    auto content = ReadRegFile(*bytes, system.Windows);
    const auto* error = std::get_if<TRegFileError>(&content);
    if (error == nullptr) return std::get<TChangeSet>(std::move(content));
    const auto reason =
        static_cast<TCaption>(static_cast<int>(TCaption::RegFileNoHeader) + static_cast<int>(error->Fault));
    return Formatted(captions[TCaption::RegFileRefused],
                     {path, DecimalText(static_cast<std::int64_t>(error->Line)), captions[reason]});
}

std::vector<TListView::TRow> PreviewRows(TSystem& system, const TChangeSet& changeSet,
                                         const TCaptions& captions) {
    TScratchSystem scratch(system);
    const TFirefoxPrefs preferences = PreferencesFor(scratch.System, changeSet);
    const TChangeSet operations = WithWhatIsDeleted(system, changeSet, captions);
    const auto changes = ChangesOf(system, operations, &preferences);
    std::vector<TListView::TRow> rows;
    TPlaces shown;
    for (std::size_t i = changes.size(); i-- > 0;) {
        const TChange& change = changes[i];
        const auto* preference = std::get_if<TPreferenceTarget>(&change.Target);
        // The whole file repeats its statements.
        if (preference != nullptr && preference->QuotedName.empty()) continue;
        // What is only put back should the other operations change it.
        if (change.Setting.empty() && operations[i].Left == change.Before && change.Before == change.After)
            continue;
        std::wstring place = PlaceWords(change.Target, captions);
        if (!shown.insert(place).second) continue;
        std::wstring now = ContentWords(change.Target, change.Before, captions);
        if (IsChangedSince(operations[i], change.Before))
            now = Formatted(captions[TCaption::ChangedSince], {now});
        rows.push_back(
            {{std::move(place), std::move(now), ContentWords(change.Target, change.After, captions)}});
    }
    std::ranges::reverse(rows);
    return rows;
}

void CarryOutRecorded(TSystem& system, const TChangeSet& operations, TCarriedOut& done) {
    TFirefoxPrefs preferences = PreferencesFor(system, operations);
    TRecordedApply record(system, operations, &preferences);
    TakeAll({
        [&] { record.Begin(); },
        [&] { done = CarryOut(system, operations, &preferences); },
        [&] { record.Complete(); },
    });
}
