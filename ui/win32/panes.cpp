#include "ui/win32/panes.h"

#include "ui/win32/form_window.h"

namespace {

bool IsIn(HWND window, HWND container) { return window == container || IsChild(container, window); }

bool CanHaveFocus(HWND window) { return IsWindowVisible(window) && IsWindowEnabled(window); }

}  // namespace

std::optional<std::size_t> TPanes::PaneOf(HWND window) const {
    const auto& panes = FForm.Form().Panes;
    for (std::size_t pane = 0; pane < panes.size(); ++pane) {
        for (const TControl* control : panes[pane]) {
            const TWindowPeer* peer = PeerOf(*control);
            if (peer != nullptr && IsIn(window, peer->Handle())) return pane;
        }
    }
    return std::nullopt;
}

void TPanes::Note(HWND focus) {
    if (const auto pane = PaneOf(focus)) FLast[*pane] = focus;
}

HWND TPanes::Entry(std::size_t pane) const {
    if (const auto last = FLast.find(pane); last != FLast.end() && CanHaveFocus(last->second))
        return last->second;
    for (const TControl* control : FForm.Form().Panes[pane]) {
        const TWindowPeer* peer = PeerOf(*control);
        if (peer == nullptr || !CanHaveFocus(peer->Handle())) continue;
        const bool isStop = (GetWindowLongW(peer->Handle(), GWL_STYLE) & WS_TABSTOP) != 0;
        const HWND entry = isStop ? peer->Handle() : GetNextDlgTabItem(peer->Handle(), nullptr, FALSE);
        if (entry != nullptr && IsIn(entry, peer->Handle()) && CanHaveFocus(entry)) return entry;
    }
    return nullptr;
}

bool TPanes::Step(bool back) {
    const std::size_t count = FForm.Form().Panes.size();
    const std::size_t step = back ? count - 1 : 1;
    const auto here = PaneOf(GetFocus());
    std::size_t pane = here ? *here + step : 0;
    for (std::size_t tried = 0; tried < count; ++tried, pane += step) {
        const HWND entry = Entry(pane % count);
        if (entry == nullptr) continue;
        SendMessageW(entry, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
        SendMessageW(FForm.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(entry), TRUE);
        return true;
    }
    return false;
}
