#include "app/pending_review.h"

#include <algorithm>
#include <exception>
#include <iterator>

#include "base/decimal.h"
#include "settings/category_table.h"
#include "ui/containers.h"

TChangeSet TPendingReview::Operations() const {
    return OperationsOf(FContext.Changes, FContext.FirefoxChanged ? &FContext.Firefox : nullptr);
}

bool TPendingReview::IsRepeated(const TChangeSet& operations, std::size_t index) const {
    const TOperation& operation = operations[index];
    const auto partners = FTwins.PartnersOf(operation.Setting);
    const auto stands = [&](const TOperation& earlier) {
        return earlier.Target == operation.Target && std::ranges::count(partners, earlier.Setting) != 0;
    };
    return std::any_of(operations.begin(), operations.begin() + static_cast<std::ptrdiff_t>(index), stands);
}

std::vector<TChange> TPendingReview::Changes() const {
    const TChangeSet operations = Operations();
    const auto changes = ChangesOf(FContext.System, operations, &FContext.Firefox);
    std::vector<TChange> listed;
    for (std::size_t i = 0; i < changes.size(); ++i)
        if (!IsRepeated(operations, i)) listed.push_back(changes[i]);
    return listed;
}

std::size_t TPendingReview::Count() const {
    const TChangeSet operations = Operations();
    std::size_t count = 0;
    for (std::size_t i = 0; i < operations.size(); ++i) count += IsRepeated(operations, i) ? 0U : 1U;
    return count;
}

std::set<std::wstring> TPendingReview::Pending() const {
    std::set<std::wstring> pending;
    for (const TOperation& operation : Operations()) {
        pending.insert(operation.Setting);
        for (const std::wstring& partner : FTwins.PartnersOf(operation.Setting)) pending.insert(partner);
    }
    return pending;
}

std::set<std::wstring> TPendingReview::Together(std::set<std::wstring> controls) const {
    for (std::size_t size = 0; size != controls.size();) {
        size = controls.size();
        for (const auto& page : FPages) {
            for (const TLoader& loader : page->Definition().Loaders) {
                for (const TRow& row : loader) {
                    const auto names = ControlsOf(row);
                    const auto isAmong = [&](const std::wstring& name) { return controls.contains(name); };
                    if (std::ranges::any_of(names, isAmong)) controls.insert(names.begin(), names.end());
                }
            }
        }
        for (const std::wstring& control : std::set(controls))
            for (const std::wstring& partner : FTwins.PartnersOf(control)) controls.insert(partner);
    }
    return controls;
}

void TPendingReview::ShowMarks() {
    std::set<TControl*> marked;
    std::set<int> tags;
    for (const std::wstring& name : Pending()) {
        TControl* control = FContext.Form.Find(name);
        if (control == nullptr) continue;
        marked.insert(control);
        const TControl* page = control;
        while (page != nullptr && page->Kind() != TComponentKind::NotebookPage) page = page->Parent();
        for (const auto& each : FPages)
            if (page != nullptr && page->Name() == DecimalText(each->Tag())) tags.insert(each->Tag());
    }
    for (const TCategoryGroupRow& group : CategoryTable())
        for (TControl* item : FContext.Form.Find(group.Name)->Children())
            if (tags.contains(static_cast<TCategoryItem*>(item)->Tag())) marked.insert(item);
    for (TControl* control : FMarked)
        if (!marked.contains(control)) control->SetMarked(false);
    for (TControl* control : marked) control->SetMarked(true);
    FMarked = std::move(marked);
}

void TPendingReview::TakeBack(const std::vector<std::wstring>& settings, const std::set<int>& loadedPages) {
    const std::set<std::wstring> takenBack = Together({settings.begin(), settings.end()});
    for (const std::wstring& setting : takenBack) {
        FContext.Changes.RemoveSetting(setting);
        FContext.Firefox.Revert(setting);
    }
    FContext.FirefoxChanged = FContext.FirefoxChanged && !FContext.Firefox.Edited().empty();
    FTwins.TakenBack(takenBack);
    FTwins.Written();
    Reload(loadedPages, takenBack);
}

void TPendingReview::Reload(const std::set<int>& loadedPages, const std::set<std::wstring>& takenBack) {
    const std::set<std::wstring> pending = Together(Pending());
    const auto isPending = [&](const std::wstring& control) { return pending.contains(control); };
    const auto edits = FContext.Firefox.Edited();
    std::exception_ptr fault;
    for (const auto& page : FPages) {
        try {
            if (loadedPages.contains(page->Tag())) page->Reload(isPending, takenBack);
        } catch (...) {
            if (!fault) fault = std::current_exception();
        }
    }
    if (FContext.FirefoxChanged)
        for (const auto& edit : edits) FContext.Firefox.Change(edit.QuotedName, edit.After, edit.Setting);
    FTwins.PagesReloaded();
    if (fault) std::rethrow_exception(fault);
}
