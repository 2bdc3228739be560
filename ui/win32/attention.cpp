#include "ui/win32/attention.h"

#include <utility>

#include "ui/win32/form_window.h"

namespace {

constexpr UINT kRest = 500;  // milliseconds without a move that are a rest

}  // namespace

void TAttention::Start() { GetCursorPos(&FPointer); }

void TAttention::FollowFocus() {
    const HWND focus = GetFocus();
    if (std::exchange(FFocus, focus) == focus) return;
    FForm.ScrollTo(focus);
    FForm.Panes().Note(focus);
    // Another program or a dialog in front leaves the user where he was.
    if (focus != nullptr && IsChild(FForm.Handle(), focus))
        FForm.Tell(FForm.Form().OnFocus, FForm.ControlOf(focus));
}

void TAttention::FollowPointer(const MSG& message) {
    // Windows sends moves of what lies below the pointer, too.
    if (message.message != WM_MOUSEMOVE || !FForm.Form().OnPoint || FForm.Handle() == nullptr) return;
    const POINT now = message.pt;
    if (now.x == FPointer.x && now.y == FPointer.y) return;
    FPointer = now;
    SetTimer(FForm.Handle(), kRestTimer, kRest, nullptr);
}

void TAttention::PointerRests() {
    KillTimer(FForm.Handle(), kRestTimer);
    POINT point{};
    GetCursorPos(&point);
    FForm.Tell(FForm.Form().OnPoint, IsWindowEnabled(FForm.Handle()) ? ControlAt(point) : nullptr);
}

TControl* TAttention::ControlAt(POINT point) const {
    const HWND front = WindowFromPoint(point);
    if (front != FForm.Handle() && !IsChild(FForm.Handle(), front)) return nullptr;
    // Windows itself would stop at a group box or at a window that is disabled.
    HWND found = FForm.Handle();
    for (HWND inner = found; inner != nullptr;) {
        found = inner;
        for (inner = GetWindow(found, GW_CHILD); inner != nullptr; inner = GetWindow(inner, GW_HWNDNEXT)) {
            RECT place{};
            GetWindowRect(inner, &place);
            const TWindowPeer* peer = FForm.PeerOf(inner);
            const bool isFrame = peer != nullptr && peer->Control().Kind() == TComponentKind::GroupBox;
            if (IsWindowVisible(inner) && !isFrame && PtInRect(&place, point)) break;
        }
    }
    return FForm.ControlOf(found);
}
