#include "app/preview_form.h"

#include <algorithm>
#include <unordered_set>

#include "engine/registry_tree.h"
#include "platform/language.h"
#include "platform/text.h"
#include "settings/change_words.h"
#include "ui/design.h"

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

}  // namespace

std::vector<TListView::TRow> PreviewRows(TSystem& system, const TChangeSet& changeSet,
                                         const TPreferenceStore* preferences, const TCaptions& captions) {
    const TChangeSet operations = WithWhatIsDeleted(system, changeSet, captions);
    const auto changes = ChangesOf(system, operations, preferences);
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

TQuilltune_FormPreview::TQuilltune_FormPreview(const TLanguage& language, std::vector<TListView::TRow> rows)
    : TForm(L"Quilltune_FormPreview", L"TQuilltune_FormPreview") {
    SetCaption(L"Preview");
    ClientWidth = 620;
    ClientHeight = 300;
    CanMaximise = true;
    Build(*this, Column(Table(L"ListView_Preview", {L"Place", L"Now", L"After"}),
                        Buttons(Button(L"Button_Preview_Apply", L"&Apply"),
                                Button(L"Button_Preview_Cancel", L"Cancel"))));
    Find<TListView>(L"ListView_Preview")->SetRows(std::move(rows));
    OnShow = [this, &language](TComponent&) { language.Translate(*this); };
    auto* apply = Find<TButton>(L"Button_Preview_Apply");
    apply->Default = true;
    apply->OnClick = [this](TComponent&) {
        FAccepted = true;
        Close();
    };
    auto* cancel = Find<TButton>(L"Button_Preview_Cancel");
    cancel->Cancel = true;
    cancel->OnClick = [this](TComponent&) { Close(); };
}
