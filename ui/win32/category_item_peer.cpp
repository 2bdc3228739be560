#include "ui/win32/category_item_peer.h"

#include <algorithm>

#include "ui/win32/category_look.h"
#include "ui/win32/category_peers.h"
#include "ui/win32/form_window.h"
#include "ui/win32/paint_buffer.h"

namespace {

constexpr unsigned kDisabledOpacity = 110;

/// The windows of all items of the bar, in order of display.
std::vector<HWND> ItemWindows(const TControl& item) {
    std::vector<HWND> windows;
    for (const TControl* group : item.Parent()->Parent()->Children()) {
        for (const TControl* sibling : group->Children()) {
            if (auto* peer = dynamic_cast<TWindowPeer*>(sibling->Peer())) windows.push_back(peer->Handle());
        }
    }
    return windows;
}

}  // namespace

TCategoryItemPeer::TCategoryItemPeer(TFormWindow& form, TCategoryItem& item, HWND parent)
    : TWindowPeer(form, item) {
    Create(parent, WC_BUTTONW, BS_OWNERDRAW | WS_TABSTOP | WS_GROUP);
    Subclass();
}

void TCategoryItemPeer::OnCommand(WORD code) {
    if (code != BN_CLICKED || !Control().Enabled()) return;
    TFormWindow& form = FForm;  // a page that is loaded handles messages, and the peer may be gone afterwards
    static_cast<TCategoryItem&>(Control()).Click();
    form.DrawAll();
}

void TCategoryItemPeer::ShowState() {
    // Until one item is selected, all of them are tab stops.
    if (static_cast<const TCategoryItem&>(Control()).Selected()) TakeTabStop();
    InvalidateRect(Handle(), nullptr, FALSE);
    ShowSpoken();
}

TSpoken TCategoryItemPeer::Spoken() const {
    TSpoken spoken = TWindowPeer::Spoken();
    if (static_cast<const TCategoryItem&>(Control()).Selected())
        spoken.Description =
            FForm.Form().SelectedText + (spoken.Description.empty() ? L"" : L", " + spoken.Description);
    return spoken;
}

void TCategoryItemPeer::TakeTabStop() {
    for (const HWND window : ItemWindows(Control())) SetTabStop(window, window == Handle());
}

void TCategoryItemPeer::ScrollIntoSight() {
    // An item must not move away from the pointer that is about to click it.
    if (GetKeyState(VK_LBUTTON) < 0) return;
    if (TCategoryBarPeer* bar = Bar()) bar->ScrollTo(Handle());
}

TCategoryBarPeer* TCategoryItemPeer::Bar() const {
    return static_cast<TCategoryBarPeer*>(Control().Parent()->Parent()->Peer());
}

void TCategoryItemPeer::SetHot(bool hot) {
    if (hot == FHot) return;
    FHot = hot;
    InvalidateRect(Handle(), nullptr, FALSE);
    if (!hot) return;
    TRACKMOUSEEVENT tracking{};
    tracking.cbSize = sizeof tracking;
    tracking.dwFlags = TME_LEAVE;
    tracking.hwndTrack = Handle();
    TrackMouseEvent(&tracking);
}

bool TCategoryItemPeer::MoveFocus(WPARAM key) {
    std::vector<HWND> windows = ItemWindows(Control());
    std::erase_if(windows, [](HWND window) { return !IsWindowVisible(window) || !IsWindowEnabled(window); });
    const auto here = std::find(windows.begin(), windows.end(), Handle());
    if (here == windows.end()) return false;
    auto target = here;
    switch (key) {
        case VK_UP:
        case VK_LEFT:
            if (here != windows.begin()) target = here - 1;
            break;
        case VK_DOWN:
        case VK_RIGHT:
            if (here + 1 != windows.end()) target = here + 1;
            break;
        case VK_HOME:
            target = windows.begin();
            break;
        case VK_END:
            target = windows.end() - 1;
            break;
        default:
            return false;
    }
    if (TCategoryBarPeer* bar = Bar()) bar->ShowFocus();
    if (target != here) SetFocus(*target);
    return true;
}

LRESULT TCategoryItemPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto base = [&](UINT passed) { return TWindowPeer::OnMessage(passed, wParam, lParam); };
    switch (message) {
        case WM_ERASEBKGND:
            return TRUE;  // OnDraw covers everything
        // An owner-drawn button would report a second quick click as something else than a click.
        case WM_LBUTTONDBLCLK:
            return base(WM_LBUTTONDOWN);
        case WM_MOUSEMOVE:
            SetHot(true);
            break;
        case WM_MOUSELEAVE:
            SetHot(false);
            break;
        // The arrow keys cross the bounds of groups, which a dialog's own handling would not.
        case WM_GETDLGCODE:
            return base(message) | DLGC_WANTARROWS;
        case WM_KEYDOWN:
            if (MoveFocus(wParam)) return 0;
            break;
        case WM_UPDATEUISTATE:
            if (wParam == MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS) && Bar() != nullptr) Bar()->ShowFocus();
            break;
        case WM_SETFOCUS:
            if (GetKeyState(VK_TAB) < 0 && Bar() != nullptr) Bar()->ShowFocus();
            TakeTabStop();
            ScrollIntoSight();
            break;
        default:
            break;
    }
    return base(message);
}

void TCategoryItemPeer::Update(TControlAspect aspect) {
    TWindowPeer::Update(aspect);
    if (aspect == TControlAspect::Mark)
        InvalidateRect(Handle(), nullptr, FALSE);  // the dot may shorten the caption
}

/// At the right end of the item, which draws it itself.
RECT TCategoryItemPeer::DotPlace() const {
    if (!IsShown()) return {};
    const RECT place = PlaceInParent();
    const int size = FForm.Screen().Scale(kDotSize);
    const LONG right = place.right - TCategoryMetrics(FForm.Screen()).DotRight;
    const LONG top = (place.top + place.bottom - size) / 2;
    return {right - size, top, right, top + size};
}

void TCategoryItemPeer::OnDraw(const DRAWITEMSTRUCT& drawing) {
    const auto& item = static_cast<const TCategoryItem&>(Control());
    const RECT& area = drawing.rcItem;
    if (IsRectEmpty(&area)) return;
    const TCategoryMetrics metrics(FForm.Screen());
    const TCategoryColors::TItem colors =
        TCategoryColors().Item(item, FHot, (drawing.itemState & ODS_SELECTED) != 0);
    TPaintBuffer buffer(drawing.hDC, area);
    const HDC target = buffer.Handle();

    FillArea(target, area, colors.Frame);
    RECT inner = area;
    InflateRect(&inner, -1, -1);
    FillArea(target, inner, colors.Ground);
    if (item.Selected())
        FillArea(target, {area.left, area.top, area.left + metrics.MarkWidth, area.bottom}, colors.Text);

    if (const TPicture* picture = FForm.Pictures().Find(item.Picture(), metrics.PictureSize)) {
        const int top = area.top + (area.bottom - area.top - picture->Height()) / 2;
        picture->Draw(target, area.left + metrics.PictureLeft, top,
                      item.Enabled() ? kOpaque : kDisabledOpacity);
    }

    SelectObject(target, item.Selected() ? FForm.Screen().BoldFont() : FForm.Screen().Font());
    SetBkMode(target, TRANSPARENT);
    SetTextColor(target, colors.Text);
    RECT text{area.left + metrics.TextLeft, area.top, area.right - metrics.TextRight, area.bottom};
    if (item.Marked()) {
        RECT dot = DotPlace();
        MapWindowPoints(GetParent(Handle()), Handle(), reinterpret_cast<POINT*>(&dot), 2);
        DrawDot(target, dot, colors.Text);
        text.right = dot.left - metrics.TextRight;
    }
    UINT format = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;
    if ((drawing.itemState & ODS_NOACCEL) != 0) format |= DT_HIDEPREFIX;
    DrawTextW(target, item.Caption().c_str(), static_cast<int>(item.Caption().size()), &text, format);

    const TCategoryBarPeer* bar = Bar();
    if ((drawing.itemState & ODS_FOCUS) == 0 || bar == nullptr || !bar->ShowsFocus()) return;
    SetBkColor(target, RGB(255, 255, 255));
    SetTextColor(target, RGB(0, 0, 0));
    DrawFocusRect(target, &inner);
}
