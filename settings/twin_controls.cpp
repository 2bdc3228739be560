#include "settings/twin_controls.h"

#include <algorithm>

#include "settings/page_table.h"
#include "ui/state.h"

namespace {

/// The page that has a row for the control.
const TPageDefinition* PageOf(const std::wstring& control) {
    for (const TPageDefinition* page : PageDefinitions())
        for (const TLoader& loader : page->Loaders)
            for (const TRow& row : loader)
                if (std::ranges::count(ControlsOf(row), control) != 0) return page;
    return nullptr;
}

void CopyState(const TControl& from, TControl& to) {
    if (to.Kind() == TComponentKind::ComboBox) to.SetEnabled(from.Enabled());
    SetState(to, StateOf(from));
}

}  // namespace

TTwinControls::TTwinControls(TPageContext& context) : FContext(context) {
    for (const TPageDefinition* page : PageDefinitions()) AddPairs(*page);
}

/// The controls of one row, such as a box and its list, follow together: what they record, they record together.
void TTwinControls::AddPairs(const TPageDefinition& page) {
    for (const TLoader& loader : page.Loaders) {
        for (const TRow& row : loader) {
            if (!LevelsOf(row).Include(FContext.Release)) continue;
            TPair pair{.First = {.Controls = {}, .Page = &page}};
            for (const std::wstring& control : ControlsOf(row)) {
                const auto twin = std::ranges::find_if(
                    page.Twins, [&](const TTwin& each) { return control == each.Control; });
                if (twin == page.Twins.end()) continue;
                pair.Second.Page = PageOf(twin->Twin);
                pair.First.Controls.push_back(FContext.Form.Find(control));
                pair.Second.Controls.push_back(FContext.Form.Find(twin->Twin));
                pair.IsMarked = twin->IsMarked;
            }
            if (!pair.First.Controls.empty()) FPairs.push_back(std::move(pair));
        }
    }
}

void TTwinControls::Changed(const TControl& control) {
    for (TPair& pair : FPairs) {
        const bool first = std::ranges::count(pair.First.Controls, &control) != 0;
        if (!first && std::ranges::count(pair.Second.Controls, &control) == 0) continue;
        pair.Changed = true;
        const TSide& follower = first ? pair.Second : pair.First;
        if (!FLoadedPages.contains(follower.Page->Tag)) continue;
        Follow(first ? pair.First : pair.Second, follower);
        Record(follower);
    }
}

void TTwinControls::PageLoaded(int tag) {
    FLoadedPages.insert(tag);
    for (const TPair& pair : FPairs) {
        const TSide& here = pair.First.Page->Tag == tag ? pair.First : pair.Second;
        const TSide& there = pair.First.Page->Tag == tag ? pair.Second : pair.First;
        if (here.Page->Tag != tag || !FLoadedPages.contains(there.Page->Tag)) continue;
        if (IsPending(pair)) {
            Follow(there, here);
            Record(here);
        } else {
            Follow(here, there);
        }
    }
}

void TTwinControls::PagesReloaded() {
    for (const TPair& pair : FPairs) {
        const bool areLoaded =
            FLoadedPages.contains(pair.First.Page->Tag) && FLoadedPages.contains(pair.Second.Page->Tag);
        if (areLoaded && !IsPending(pair)) Follow(pair.Second, pair.First);
    }
}

std::vector<std::wstring> TTwinControls::PartnersOf(const std::wstring& control) const {
    std::vector<std::wstring> partners;
    for (const TPair& pair : FPairs) {
        for (std::size_t i = 0; i < pair.First.Controls.size(); ++i) {
            const std::wstring& first = pair.First.Controls[i]->Name();
            const std::wstring& second = pair.Second.Controls[i]->Name();
            if (first == control) partners.push_back(second);
            if (second == control) partners.push_back(first);
        }
    }
    return partners;
}

void TTwinControls::Written() {
    for (TPair& pair : FPairs) pair.Changed = pair.Changed && IsPending(pair);
}

void TTwinControls::TakenBack(const std::set<std::wstring>& controls) {
    const auto isTaken = [&](const TControl* control) { return controls.contains(control->Name()); };
    for (TPair& pair : FPairs)
        if (std::ranges::any_of(pair.First.Controls, isTaken)) pair.Changed = false;
}

bool TTwinControls::IsPending(const TPair& pair) const {
    if (pair.Changed && pair.IsMarked != nullptr && pair.IsMarked(FContext)) return true;
    const auto recorded = [&](const auto& change) {
        return std::ranges::count(pair.First.Controls, change.Setting, &TControl::Name) != 0 ||
               std::ranges::count(pair.Second.Controls, change.Setting, &TControl::Name) != 0;
    };
    return std::ranges::any_of(FContext.Changes.Pending(), recorded) ||
           std::ranges::any_of(FContext.Changes.Services(), recorded);
}

void TTwinControls::Follow(const TSide& leader, const TSide& follower) {
    const TLoadingScope loading(FContext);  // one control after the other: what is between is nobody's change
    for (std::size_t i = 0; i < leader.Controls.size(); ++i) {
        // What this Windows does not offer stays as it is.
        if (follower.Controls[i]->Visible()) CopyState(*leader.Controls[i], *follower.Controls[i]);
    }
    ApplyNeeds(FContext, *follower.Page);
}

void TTwinControls::Record(const TSide& side) {
    TControl& control = *side.Controls.front();
    if (!control.Visible()) return;
    for (const TLoader& loader : side.Page->Loaders)
        for (const TRow& row : loader) RecordRow(FContext, row, control);
}
