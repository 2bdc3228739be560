#include "ui/win32/button_peers.h"

#include <algorithm>

#include "ui/win32/form_window.h"

namespace {

/// Arrow keys stay within a group: each control begins one, but for the radio buttons that follow another.
DWORD GroupStyle(const TRadioButton& button) {
    const std::vector<TControl*>& siblings = button.Parent()->Children();
    for (std::size_t i = 1; i < siblings.size(); ++i) {
        if (siblings[i] == &button && siblings[i - 1]->Kind() == TComponentKind::RadioButton) return 0;
    }
    return WS_GROUP;
}

}  // namespace

TPushButtonPeer::TPushButtonPeer(TFormWindow& form, TButton& button, HWND parent)
    : TWindowPeer(form, button) {
    const DWORD look = button.Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    Create(parent, WC_BUTTONW, look | WS_TABSTOP | WS_GROUP);
}

void TPushButtonPeer::OnCommand(WORD code) {
    if (code != BN_CLICKED) return;
    FForm.CommitFocus();
    static_cast<TButton&>(Control()).Click();
}

TCheckBoxPeer::TCheckBoxPeer(TFormWindow& form, TCheckBox& box, HWND parent) : TWindowPeer(form, box) {
    Create(parent, WC_BUTTONW, BS_AUTOCHECKBOX | BS_MULTILINE | WS_TABSTOP | WS_GROUP);
}

void TCheckBoxPeer::OnCommand(WORD code) {
    if (code == BN_CLICKED) static_cast<TCheckBox&>(Control()).SetChecked(Send(BM_GETCHECK) == BST_CHECKED);
}

void TCheckBoxPeer::ShowState() {
    Send(BM_SETCHECK, static_cast<TCheckBox&>(Control()).Checked() ? BST_CHECKED : BST_UNCHECKED);
}

TRadioButtonPeer::TRadioButtonPeer(TFormWindow& form, TRadioButton& button, HWND parent)
    : TWindowPeer(form, button) {
    Create(parent, WC_BUTTONW, BS_AUTORADIOBUTTON | BS_MULTILINE | WS_TABSTOP | GroupStyle(button));
}

void TRadioButtonPeer::OnCommand(WORD code) {
    // Windows reports a click also when an unchecked button merely gets the focus; only a real one checks it.
    if (code == BN_CLICKED && Send(BM_GETCHECK) == BST_CHECKED)
        static_cast<TRadioButton&>(Control()).SetChecked(true);
}

void TRadioButtonPeer::ShowState() {
    Send(BM_SETCHECK, static_cast<TRadioButton&>(Control()).Checked() ? BST_CHECKED : BST_UNCHECKED);
    ShowTabStops();
}

/// The Tab key stops at the checked button of a group. Windows would leave out a group without one, which then could
/// not be reached by the keyboard: there it stops at the first.
void TRadioButtonPeer::ShowTabStops() {
    std::vector<TRadioButton*> group;
    for (TControl* control : Control().Parent()->Children()) {
        if (control->Kind() == TComponentKind::RadioButton)
            group.push_back(static_cast<TRadioButton*>(control));
    }
    const auto checked =
        std::find_if(group.begin(), group.end(), [](auto* button) { return button->Checked(); });
    const TRadioButton* stop = checked == group.end() ? group.front() : *checked;
    for (const TRadioButton* button : group) {
        const auto* peer = button == &Control() ? this : dynamic_cast<TWindowPeer*>(button->Peer());
        if (peer == nullptr || peer->Handle() == nullptr) continue;
        const LONG_PTR style = GetWindowLongPtrW(peer->Handle(), GWL_STYLE);
        SetWindowLongPtrW(peer->Handle(), GWL_STYLE,
                          button == stop ? style | WS_TABSTOP : style & ~WS_TABSTOP);
    }
}

TGroupBoxPeer::TGroupBoxPeer(TFormWindow& form, TGroupBox& group, HWND parent) : TWindowPeer(form, group) {
    Create(parent, WC_BUTTONW, BS_GROUPBOX | WS_GROUP, WS_EX_TRANSPARENT);
}
