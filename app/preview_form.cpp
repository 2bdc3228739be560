#include "app/preview_form.h"

#include <algorithm>
#include <set>

#include "engine/registry_tree.h"
#include "platform/language.h"
#include "settings/change_words.h"
#include "ui/design.h"

namespace {

/// The operations, and behind each that deletes a key what is in that now, with no effect of its own.
TChangeSet WithWhatIsDeleted(TSystem& system, const TChangeSet& operations) {
    TChangeSet steps;
    for (const TOperation& operation : operations) {
        steps.push_back(operation);
        const auto* effect = std::get_if<TRegistryEffect>(&operation.Effect);
        if (effect == nullptr || effect->Action != TRegAction::DeleteKey) continue;
        const auto& target = std::get<TRegistryTarget>(operation.Target);
        for (TOperation& each : TreeOf(system, target.Root, target.Key))
            if (each.Target != operation.Target) steps.push_back({{}, std::move(each.Target), {}});
    }
    return steps;
}

}  // namespace

std::vector<TListView::TRow> PreviewRows(TSystem& system, const TChangeSet& changeSet,
                                         const TPreferenceStore* preferences, const TCaptions& captions) {
    const TChangeSet operations = WithWhatIsDeleted(system, changeSet);
    const auto changes = ChangesOf(system, operations, preferences);
    std::vector<TListView::TRow> rows;
    std::set<std::wstring> shown;
    for (std::size_t i = changes.size(); i-- > 0;) {
        const TChange& change = changes[i];
        const auto* preference = std::get_if<TPreferenceTarget>(&change.Target);
        // The whole file repeats its statements.
        if (preference != nullptr && preference->QuotedName.empty()) continue;
        std::wstring place = PlaceWords(change.Target, captions);
        if (!shown.insert(place).second) continue;
        std::wstring now = ContentWords(change.Target, change.Before, captions);
        if (operations[i].Left && *operations[i].Left != change.Before)
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
