#include "ui/win32/container_peer.h"

#include <algorithm>
#include <utility>

#include "ui/win32/form_window.h"
#include "ui/win32/peer_factory.h"

namespace {

constexpr int kScrollLine = 20;  // at 96 dots per inch

/// The template of an empty dialog of a window class, as CreateDialogIndirectParamW wants it.
std::vector<WORD> EmptyDialog(const wchar_t* windowClass, DWORD style, DWORD extendedStyle) {
    std::vector<WORD> words{LOWORD(style), HIWORD(style), LOWORD(extendedStyle), HIWORD(extendedStyle)};
    words.insert(words.end(), 5, 0);  // number of controls, left, top, width, height
    words.push_back(0);               // no menu
    for (const wchar_t* c = windowClass; *c != 0; ++c) words.push_back(static_cast<WORD>(*c));
    words.push_back(0);
    words.push_back(0);  // no title
    return words;
}

/// The control at that place among the content, null behind its end. The controls of a group box count behind it: it is a
/// frame only, to Windows they are its siblings.
TControl* ContentAt(const TControl& container, std::size_t& index) {
    for (TControl* child : container.Children()) {
        if (index-- == 0) return child;
        if (child->Kind() != TComponentKind::GroupBox) continue;
        if (TControl* inner = ContentAt(*child, index)) return inner;
    }
    return nullptr;
}

}  // namespace

TContainerPeer::~TContainerPeer() {
    if (Handle() != nullptr) SetWindowLongPtrW(Handle(), GWLP_USERDATA, 0);
}

void TContainerPeer::CreateContainer(HWND parent, const wchar_t* windowClass, DWORD style,
                                     DWORD extendedStyle) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    if (!GetClassInfoExW(FForm.Instance(), windowClass, &description)) {
        description.lpfnWndProc = WindowProc;
        description.cbWndExtra = DLGWINDOWEXTRA;
        description.hInstance = FForm.Instance();
        description.hIcon = LoadIconW(FForm.Instance(), MAKEINTRESOURCEW(1));
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
        description.lpszClassName = windowClass;
        RegisterClassExW(&description);
    }
    if (IsShown() && (style & WS_CHILD) != 0) style |= WS_VISIBLE;
    style |= WS_CLIPSIBLINGS | WS_CLIPCHILDREN;  // it draws only what no other window does
    const std::vector<WORD> dialog = EmptyDialog(windowClass, style, extendedStyle | WS_EX_CONTROLPARENT);
    const HWND window = CreateDialogIndirectParamW(
        FForm.Instance(), reinterpret_cast<const DLGTEMPLATE*>(dialog.data()), parent, nullptr, 0);
    if (window == nullptr) return;
    SetWindowTextW(window, WindowText().c_str());
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    Adopt(window);
}

LRESULT CALLBACK TContainerPeer::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* peer = reinterpret_cast<TContainerPeer*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (peer == nullptr || peer->Handle() != window) return DefDlgProcW(window, message, wParam, lParam);
    return peer->HandleMessage(message, wParam, lParam);
}

LRESULT TContainerPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = Handle();
    switch (message) {
        case WM_SIZE:
            LayOut();
            break;
        case WM_MOUSEWHEEL:
            if (ScrollByWheel(GET_WHEEL_DELTA_WPARAM(wParam))) return 0;
            break;  // the container around this one may have something to scroll
        case WM_ERASEBKGND: {
            const LRESULT result = DefDlgProcW(window, message, wParam, lParam);
            FForm.Marks().Draw(window, reinterpret_cast<HDC>(wParam));
            return result;
        }
        // Windows tells a form only, common controls want to know.
        case WM_SETTINGCHANGE:
        case WM_SYSCOLORCHANGE:
            Forward(message, wParam, lParam);
            break;
        case WM_VSCROLL:
            if (lParam == 0) {
                Scroll(wParam);
                return 0;
            }
            [[fallthrough]];
        case WM_HSCROLL:
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_DRAWITEM:
            return Reflect(message, wParam, lParam);
        default:
            break;
    }
    return DefDlgProcW(window, message, wParam, lParam);
}

/// Hands a message of one of the container's windows to that window's own peer.
LRESULT TContainerPeer::Reflect(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND from = reinterpret_cast<HWND>(lParam);
    if (message == WM_NOTIFY) from = reinterpret_cast<NMHDR*>(lParam)->hwndFrom;
    if (message == WM_DRAWITEM) from = reinterpret_cast<DRAWITEMSTRUCT*>(lParam)->hwndItem;
    TWindowPeer* peer = FForm.PeerOf(from);
    if (peer == nullptr || peer == this) return DefDlgProcW(Handle(), message, wParam, lParam);
    switch (message) {
        case WM_COMMAND:
            peer->OnCommand(HIWORD(wParam));
            return 0;
        case WM_NOTIFY:
            return peer->OnNotify(*reinterpret_cast<NMHDR*>(lParam));
        case WM_DRAWITEM: {
            // An owner-drawn window may be asked though all of it is valid.
            const auto& item = *reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
            RECT clip{};
            if (GetClipBox(item.hDC, &clip) != NULLREGION) peer->OnDraw(item);
            return TRUE;
        }
        default:
            peer->OnScroll();
            return 0;
    }
}

void TContainerPeer::Forward(UINT message, WPARAM wParam, LPARAM lParam) const {
    for (HWND inner = GetWindow(Handle(), GW_CHILD); inner != nullptr; inner = GetWindow(inner, GW_HWNDNEXT))
        SendMessageW(inner, message, wParam, lParam);
}

void TContainerPeer::CreateContent() {
    while (CreateNext()) continue;
}

void TContainerPeer::Fill() {
    if (CreateNext()) {
        CreateContent();
        FStale = true;
    }
    if (IsShown()) CatchUp();
}

bool TContainerPeer::FillNext() {
    if (!CreateNext()) return CatchUpNext();
    FStale = true;
    return true;
}

bool TContainerPeer::CreateNext() {
    for (;;) {
        std::size_t index = FNextControl;
        TControl* control = ContentAt(Control(), index);
        if (control == nullptr) return false;
        ++FNextControl;  // a control that a fault keeps from being created is not tried again
        if (control->Peer() != nullptr || control->IsLate) continue;
        CreatePeer(FForm, *control, Handle());
        return true;
    }
}

void TContainerPeer::CreateLate(TControl& control) {
    CreatePeer(FForm, control, Handle());
    const TWindowPeer* created = PeerOf(control);
    if (created == nullptr) return;
    const TWindowPeer* before = nullptr;
    for (const TControl* sibling : Control().Children()) {
        if (sibling == &control) break;
        if (const TWindowPeer* peer = PeerOf(*sibling)) before = peer;
    }
    if (before != nullptr)
        SetWindowPos(created->Handle(), before->Handle(), 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    LayOut();
}

void TContainerPeer::Update(TControlAspect aspect) {
    if (aspect == TControlAspect::Visible && IsShown()) CatchUp();
    TWindowPeer::Update(aspect);
}

void TContainerPeer::Place(const TRect& place) {
    FNextPlace = place;
    if (IsShown()) CatchUp();
}

void TContainerPeer::LayOut() {
    if (FLayingOut || Handle() == nullptr) return;
    FStale = true;
    if (IsShown()) CatchUp();
}

void TContainerPeer::CatchUp() {
    while (CatchUpNext()) continue;
}

bool TContainerPeer::CatchUpNext() {
    if (const auto place = std::exchange(FNextPlace, std::nullopt)) {
        Move(*place, MoveFlags(*place));
    } else if (std::exchange(FStale, false)) {
        LayOutContent();
    } else if (!FPlaces.empty()) {
        const auto [peer, inner] = FPlaces.front();
        FPlaces.pop_front();
        peer->Place(inner);
    } else {
        FForm.Marks().Follow(Handle());
        return false;
    }
    return true;
}

/// A container that only grows or shrinks keeps what it shows; what moves in it is drawn anew.
UINT TContainerPeer::MoveFlags(const TRect& place) const {
    const bool stays = place.Left == Placed().Left && place.Top == Placed().Top;
    if (!stays) return SWP_NOCOPYBITS | SWP_FRAMECHANGED;
    const bool grows =
        Placed() != TRect() && place.Width >= Placed().Width && place.Height >= Placed().Height;
    return grows && IsCovered() ? SWP_NOREDRAW : 0;
}

int TContainerPeer::Margin() const { return FForm.Screen().Scale(FMargin); }

RECT TContainerPeer::ContentArea() const {
    RECT area{};
    GetClientRect(Handle(), &area);
    InflateRect(&area, -Margin(), -Margin());
    return area;
}

int TContainerPeer::ContentHeight(int width) const {
    return TLayout(FForm.Form(), FForm.Screen()).ContentSize(Control(), width).Height;
}

void TContainerPeer::LayOutContent() {
    const TFlagScope layingOut(FLayingOut);
    RECT area = ContentArea();
    SetScrollRange(ContentHeight(area.right - area.left) + 2 * Margin(),
                   area.bottom - area.top + 2 * Margin());
    area = ContentArea();  // a scroll bar may have come or gone
    const int width = std::max(0L, area.right - area.left);
    const int height = std::max(static_cast<int>(area.bottom - area.top), ContentHeight(width));
    const int offset = GetScrollPos(Handle(), SB_VERT);
    PlaceContent({area.left, area.top - offset, width, height});
}

void TContainerPeer::PlaceContent(const TRect& area) {
    FPlaces.clear();
    TLayout(FForm.Form(), FForm.Screen())
        .Arrange(Control(), area, [this](TControl& control, const TRect& place) {
            if (auto* peer = dynamic_cast<TWindowPeer*>(control.Peer())) FPlaces.emplace_back(peer, place);
        });
}

void TContainerPeer::SetScrollRange(int content, int visible) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = std::max(0, content - 1);
    info.nPage = static_cast<UINT>(std::max(0, visible));
    SetScrollInfo(Handle(), SB_VERT, &info, TRUE);
}

SCROLLINFO TContainerPeer::ScrollState() const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(Handle(), SB_VERT, &info);
    return info;
}

void TContainerPeer::Scroll(WPARAM request) {
    const SCROLLINFO info = ScrollState();
    const int page = static_cast<int>(info.nPage);
    const int line = FForm.Screen().Scale(kScrollLine);
    switch (LOWORD(request)) {
        case SB_LINEUP:
            ScrollBy(-line);
            break;
        case SB_LINEDOWN:
            ScrollBy(line);
            break;
        case SB_PAGEUP:
            ScrollBy(-page);
            break;
        case SB_PAGEDOWN:
            ScrollBy(page);
            break;
        case SB_THUMBTRACK:
            ScrollBy(info.nTrackPos - info.nPos);
            break;
        case SB_TOP:
            ScrollBy(-info.nPos);
            break;
        case SB_BOTTOM:
            ScrollBy(info.nMax);
            break;
        default:
            break;
    }
}

bool TContainerPeer::ScrollBy(int distance) {
    const int before = GetScrollPos(Handle(), SB_VERT);
    SetScrollPos(Handle(), SB_VERT, before + distance, TRUE);
    if (GetScrollPos(Handle(), SB_VERT) == before) return false;
    LayOut();
    return true;
}

bool TContainerPeer::ScrollByWheel(int delta) {
    const SCROLLINFO info = ScrollState();
    const int page = static_cast<int>(info.nPage);
    if (info.nMax < page) return false;
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    // At most a page, for which WHEEL_PAGESCROLL, a huge number, stands as well.
    const int line = FForm.Screen().Scale(kScrollLine);
    const int notch = lines < static_cast<UINT>(page / line) ? static_cast<int>(lines) * line : page;
    // Fine wheels report parts of a notch.
    if ((FWheelRest > 0) == (delta > 0)) FWheelRest = 0;
    FWheelRest -= delta * notch;
    const int distance = FWheelRest / WHEEL_DELTA;
    FWheelRest %= WHEEL_DELTA;
    return distance == 0 || ScrollBy(distance);
}

void TContainerPeer::ScrollTo(HWND inner) {
    RECT place{};
    RECT view{};
    GetWindowRect(inner, &place);
    MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&place), 2);
    GetClientRect(Handle(), &view);
    const int margin = Margin();
    if (place.top < margin)
        ScrollBy(place.top - margin);
    else if (place.bottom > view.bottom - margin)
        ScrollBy(std::min(place.bottom - view.bottom + margin, place.top - margin));
}

TPlainContainerPeer::TPlainContainerPeer(TFormWindow& form, TControl& control, HWND parent, int margin)
    : TContainerPeer(form, control, margin) {
    CreateContainer(parent, kContainerClass, WS_CHILD | DS_CONTROL, 0);
}

bool TPlainContainerPeer::IsCovered() const {
    const std::vector<TControl*>& content = Control().Children();
    return Control().Kind() == TComponentKind::NotebookPage && content.size() == 1 &&
           content.front()->Kind() == TComponentKind::PageControl;
}
