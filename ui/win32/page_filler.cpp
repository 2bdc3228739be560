#include "ui/win32/page_filler.h"

#include <algorithm>
#include <functional>

#include "ui/win32/form_window.h"
#include "ui/win32/page_peers.h"

namespace {

/// So few that no key waits for them, and so many that looking for one costs little beside them.
constexpr int kControlsAtATime = 4;

/// Null when a fault kept it from being created.
TContainerPeer* ContainerOf(const TControl& control) { return static_cast<TContainerPeer*>(control.Peer()); }

/// The notebook page that a sheet lies on, or that the control is; null for a sheet of a dialog.
const TControl* PageOf(const TControl& control) {
    const TControl* page = &control;
    while (page != nullptr && page->Kind() != TComponentKind::NotebookPage) page = page->Parent();
    return page;
}

/// How many controls it is, with those on it; none at all without one.
std::size_t SizeOf(const TControl* control) {
    if (control == nullptr) return 0;
    std::size_t size = 1;
    for (const TControl* child : control->Children()) size += SizeOf(child);
    return size;
}

}  // namespace

void TPageFiller::FillSheets(const TControl& container) {
    for (const TControl* tabs : container.Children()) {
        if (tabs->Kind() != TComponentKind::PageControl) continue;
        for (const TControl* sheet : tabs->Children())
            if (TContainerPeer* peer = ContainerOf(*sheet)) peer->Fill();
    }
}

void TPageFiller::Start() {
    const auto add = [this](const auto& isNext) {
        for (const auto& component : FForm.Form().Components())
            if (auto& control = static_cast<TControl&>(*component); isNext(control))
                FUnfilled.push_back(&control);
    };
    add([](const TControl& control) { return control.IsLate && control.Visible(); });
    add([](const TControl& control) { return control.IsLate && !control.Visible(); });
    add([](const TControl& control) {
        return control.Kind() == TComponentKind::NotebookPage || control.Kind() == TComponentKind::TabSheet;
    });
    // After what comes late and the page that is shown first the largest pages: who chooses one before its turn waits longest
    // for these.
    const auto first = std::ranges::find_if_not(FUnfilled, &TControl::IsLate);
    const auto others = std::find_if(
        first, FUnfilled.end(), [&](const TControl* control) { return PageOf(*control) != PageOf(**first); });
    std::ranges::stable_sort(others, FUnfilled.end(), std::greater(),
                             [](const TControl* control) { return SizeOf(PageOf(*control)); });
}

void TPageFiller::CreatePage(TControl& page) {
    auto* notebook = static_cast<TNotebookPeer*>(page.Parent()->Peer());
    if (page.Peer() == nullptr && notebook != nullptr) notebook->CreatePage(page);
    if (TContainerPeer* peer = ContainerOf(page)) {
        peer->Fill();
        peer->CatchUp();  // the sheets get their size before their content
    }
    // All of them, so that whoever looks for a control finds it when its page is shown.
    FillSheets(page);
}

bool TPageFiller::CreatesFirstPage() const {
    if (FUnfilled.empty()) return false;
    if (FUnfilled.front()->IsLate) return true;
    const TControl* page = PageOf(*FUnfilled.front());
    return page != nullptr && page == page->Parent()->Children().front();
}

bool TPageFiller::CreateSome() {
    for (int i = 0; i < kControlsAtATime; ++i)
        if (!CreateNext()) return i > 0;
    return true;
}

bool TPageFiller::CreateNext() {
    if (FForm.Handle() == nullptr || FUnfilled.empty()) return false;
    TControl* control = FUnfilled.front();
    bool isFilled = true;  // what a fault keeps from being created is not tried again
    try {
        if (control->IsLate) {
            FForm.CreateLate(*control);
        } else if (TContainerPeer* peer = ContainerOf(*control)) {
            isFilled = !peer->FillNext();
        } else if (auto* notebook = dynamic_cast<TNotebookPeer*>(control->Parent()->Peer())) {
            notebook->CreatePage(*control);
            isFilled = control->Peer() == nullptr;
        }
    } catch (...) {
        FForm.Fault(std::current_exception());
    }
    if (isFilled) std::erase(FUnfilled, control);
    return true;
}
