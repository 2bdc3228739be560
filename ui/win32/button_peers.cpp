#include "ui/win32/button_peers.h"

#include <algorithm>

#include "ui/win32/category_look.h"
#include "ui/win32/form_window.h"
#include "ui/win32/paint_buffer.h"

namespace {

constexpr int kTitleGap = 12;  // between a group's title and the line behind it, at 96 dots per inch

/// The radio buttons of one parent, of which one can be checked, whatever stands between them.
std::vector<TRadioButton*> GroupOf(const TControl& button) {
    std::vector<TRadioButton*> group;
    for (TControl* sibling : button.Parent()->Children())
        if (sibling->Kind() == TComponentKind::RadioButton)
            group.push_back(static_cast<TRadioButton*>(sibling));
    return group;
}

bool CanBeChosen(const TRadioButton* button) { return button->Enabled() && button->Visible(); }

/// To Windows each control begins a group, but for the radio buttons that follow another.
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

/// A user who resizes the window moves its buttons at every step.
void TPushButtonPeer::Place(const TRect& place) {
    const bool onlyMoves = place.Width == Placed().Width && place.Height == Placed().Height;
    Move(place, onlyMoves && IsWhole() ? 0 : SWP_NOCOPYBITS);
}

bool TPushButtonPeer::IsWhole() const {
    if (Control().Parent() != &FForm.Form()) return false;
    RECT place{};
    RECT view{};
    RECT common{};
    GetWindowRect(Handle(), &place);
    GetClientRect(FForm.Handle(), &view);
    MapWindowPoints(FForm.Handle(), nullptr, reinterpret_cast<POINT*>(&view), 2);
    const auto lies = [&](const TControl* sibling) {
        const TWindowPeer* peer = PeerOf(*sibling);
        if (peer == nullptr || peer == this || !IsWindowVisible(peer->Handle())) return false;
        RECT other{};
        GetWindowRect(peer->Handle(), &other);
        return IntersectRect(&common, &place, &other) != FALSE;
    };
    return IntersectRect(&common, &place, &view) && EqualRect(&common, &place) &&
           std::ranges::none_of(Control().Parent()->Children(), lies);
}

TCheckBoxPeer::TCheckBoxPeer(TFormWindow& form, TCheckBox& box, HWND parent) : TWindowPeer(form, box) {
    Create(parent, WC_BUTTONW, BS_AUTOCHECKBOX | BS_MULTILINE | WS_TABSTOP | WS_GROUP);
    Subclass();
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
    Subclass();
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

void TRadioButtonPeer::Update(TControlAspect aspect) {
    TWindowPeer::Update(aspect);
    if (aspect == TControlAspect::Enabled || aspect == TControlAspect::Visible) ShowTabStops();
}

/// The Tab key stops at the checked button of a group. Windows would leave out a group without one, which then could
/// not be reached by the keyboard: there it stops at the first that can be chosen.
void TRadioButtonPeer::ShowTabStops() {
    const std::vector<TRadioButton*> group = GroupOf(Control());
    auto stop = std::find_if(group.begin(), group.end(),
                             [](auto* button) { return button->Checked() && CanBeChosen(button); });
    if (stop == group.end()) stop = std::find_if(group.begin(), group.end(), CanBeChosen);
    for (auto button = group.begin(); button != group.end(); ++button) {
        const TWindowPeer* peer = *button == &Control() ? this : PeerOf(**button);
        if (peer != nullptr && peer->Handle() != nullptr) SetTabStop(peer->Handle(), button == stop);
    }
}

LRESULT TRadioButtonPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // Windows ends a group at every control that is no radio button, so the arrow keys are handled here.
    if (message == WM_GETDLGCODE) return TWindowPeer::OnMessage(message, wParam, lParam) | DLGC_WANTARROWS;
    if (message == WM_KEYDOWN && Choose(wParam)) return 0;
    return TWindowPeer::OnMessage(message, wParam, lParam);
}

/// As in the dialogs of Windows the keys go round, and the button that they reach is checked.
bool TRadioButtonPeer::Choose(WPARAM key) {
    const bool back = key == VK_LEFT || key == VK_UP;
    if (!back && key != VK_RIGHT && key != VK_DOWN) return false;
    std::vector<TRadioButton*> group = GroupOf(Control());
    if (back) std::reverse(group.begin(), group.end());
    std::rotate(group.begin(), std::find(group.begin(), group.end(), &Control()) + 1, group.end());
    const auto next = std::find_if(group.begin(), group.end(), CanBeChosen);
    if (next == group.end()) return true;
    SendMessageW(GetParent(Handle()), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    SetFocus(PeerOf(**next)->Handle());
    (*next)->SetChecked(true);
    return true;
}

TGroupBoxPeer::TGroupBoxPeer(TFormWindow& form, TGroupBox& group, HWND parent) : TWindowPeer(form, group) {
    Create(parent, WC_BUTTONW, BS_GROUPBOX | WS_GROUP, WS_EX_TRANSPARENT);
    Subclass();
}

/// Windows takes the whole area of the window for covered, but only the title is: the parent draws what is below that,
/// before and after the move.
void TGroupBoxPeer::Place(const TRect& place) {
    if (place == Placed()) return;
    RedrawTitle();
    Move(place, SWP_NOREDRAW);
    RedrawTitle();
}

int TGroupBoxPeer::TitleHeight() const { return FForm.Screen().TextSize(L"0", 1 << 20).Height; }

void TGroupBoxPeer::RedrawTitle() const {
    const TRect& place = Placed();
    RedrawBelow({place.Left, place.Top + TitleHeight(), place.Left + place.Width, place.Top + place.Height});
}

LRESULT TGroupBoxPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
        case WM_PRINTCLIENT:
            PaintWindow(Handle(), message, wParam, [this](HDC target) { Paint(target); });
            return 0;
        case WM_ERASEBKGND:
            return TRUE;
        // A group box of Windows would draw itself at once.
        case WM_SETTEXT:
        case WM_ENABLE:
        case WM_UPDATEUISTATE: {
            const LRESULT result = DefWindowProcW(Handle(), message, wParam, lParam);
            RedrawTitle();
            return result;
        }
        default:
            return TWindowPeer::OnMessage(message, wParam, lParam);
    }
}

void TGroupBoxPeer::Paint(HDC target) const {
    const TScreen& screen = FForm.Screen();
    RECT area{};
    GetClientRect(Handle(), &area);
    area.bottom = std::min<LONG>(area.bottom, TitleHeight());
    if (IsRectEmpty(&area)) return;
    const TPaintBuffer buffer(target, area);
    const HDC memory = buffer.Handle();
    // The ground is the parent's.
    const RECT place = PlaceInParent();
    POINT origin{};
    OffsetViewportOrgEx(memory, -place.left, -place.top, &origin);
    SendMessageW(GetParent(Handle()), WM_ERASEBKGND, reinterpret_cast<WPARAM>(memory), 0);
    SetViewportOrgEx(memory, origin.x, origin.y, nullptr);

    const TCategoryColors::TPanel colors = TCategoryColors().Panel(TPanelLook::Plain);
    const std::wstring& caption = Control().Caption();
    const auto length = static_cast<int>(caption.size());
    const HGDIOBJ font = SelectObject(memory, screen.BoldFont());
    SetBkMode(memory, TRANSPARENT);
    SetTextColor(memory, IsWindowEnabled(Handle()) ? colors.Title : GetSysColor(COLOR_GRAYTEXT));
    RECT text = area;
    DrawTextW(memory, caption.c_str(), length, &text, DT_SINGLELINE | DT_CALCRECT);
    const LONG left = text.right + screen.Scale(kTitleGap);
    text.right = std::min(text.right, area.right);
    DrawTextW(memory, caption.c_str(), length, &text, DT_SINGLELINE | DT_END_ELLIPSIS);
    const LONG middle = (area.top + area.bottom) / 2;
    if (left < area.right) FillArea(memory, {left, middle, area.right, middle + 1}, colors.Line);
    SelectObject(memory, font);
}
