#include "ui/win32/form_keys.h"

#include "ui/containers.h"
#include "ui/win32/form_window.h"

namespace {

bool IsDown(int key) { return GetKeyState(key) < 0; }

/// With Control the Tab key, or Page Down, chooses the next sheet, with Shift or as Page Up the one before, as in the dialogs
/// of Windows.
bool StepSheet(TFormWindow& form, const MSG& message) {
    const WPARAM key = message.wParam;
    if ((key != VK_TAB && key != VK_NEXT && key != VK_PRIOR) || !IsDown(VK_CONTROL)) return false;
    for (const auto& component : form.Form().Components()) {
        if (component->Kind() != TComponentKind::PageControl) continue;
        auto& tabs = static_cast<TPageControl&>(*component);
        const auto* peer = dynamic_cast<TWindowPeer*>(tabs.Peer());
        if (peer == nullptr || !IsWindowVisible(peer->Handle())) continue;
        SetFocus(peer->Handle());  // the control that had it is about to disappear
        tabs.StepSheet(key == VK_PRIOR || (key == VK_TAB && IsDown(VK_SHIFT)));
        return true;
    }
    return false;
}

/// Enter presses a button and opens a category item, which Windows would not take for a button because it is drawn by
/// its owner. Elsewhere it is the default button's.
bool PressButton(TFormWindow& form, const MSG& message) {
    if (message.wParam != VK_RETURN) return false;
    const TWindowPeer* peer = form.PeerOf(message.hwnd);
    if (peer == nullptr) return false;
    const TComponentKind kind = peer->Control().Kind();
    if (kind != TComponentKind::Button && kind != TComponentKind::CategoryItem) return false;
    SendMessageW(GetParent(message.hwnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(message.hwnd), BN_CLICKED),
                 reinterpret_cast<LPARAM>(message.hwnd));
    return true;
}

bool StepPane(TFormWindow& form, const MSG& message) {
    return message.wParam == VK_F6 && !IsDown(VK_CONTROL) && form.Panes().Step(IsDown(VK_SHIFT));
}

bool AskHelp(TFormWindow& form, const MSG& message) {
    if (message.wParam != VK_F1 || !form.Form().OnHelp) return false;
    form.Tell(form.Form().OnHelp, form.ControlOf(message.hwnd));
    return true;
}

bool PressFindKey(TFormWindow& form, const MSG& message) {
    if (message.wParam != 'F' || !form.Form().OnFindKey) return false;
    if (!IsDown(VK_CONTROL) || IsDown(VK_MENU) || IsDown(VK_SHIFT) || !IsWindowEnabled(form.Handle()))
        return false;
    try {
        form.Form().FindKey();
    } catch (...) {
        form.Fault(std::current_exception());
    }
    return true;
}

}  // namespace

bool PressFormKey(TFormWindow& form, const MSG& message) {
    if (message.message != WM_KEYDOWN) return false;
    return StepSheet(form, message) || PressButton(form, message) || StepPane(form, message) ||
           AskHelp(form, message) || PressFindKey(form, message);
}
