#include "ui/win32/window_peer.h"

#include <algorithm>

#include "ui/controls.h"
#include "ui/spoken_name.h"
#include "ui/win32/automation_name.h"
#include "ui/win32/form_window.h"

namespace {

constexpr int kFrameWidth = 2;  // at 96 dots per inch

/// Of a window that is subclassed.
TWindowPeer* PeerFrom(HWND window) {
    return reinterpret_cast<TWindowPeer*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

}  // namespace

std::optional<TKey> KeyDown(UINT message, WPARAM wParam) {
    if (message != WM_KEYDOWN) return std::nullopt;
    switch (wParam) {
        case VK_RETURN:
            return TKey::Enter;
        case VK_ESCAPE:
            return TKey::Escape;
        case VK_DOWN:
            return TKey::Down;
        default:
            return std::nullopt;
    }
}

bool AsksForKey(LPARAM lParam) {
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    return message != nullptr && KeyDown(message->message, message->wParam);
}

void SetTabStop(HWND window, bool isStop) {
    const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
    if (((style & WS_TABSTOP) != 0) != isStop) SetWindowLongPtrW(window, GWL_STYLE, style ^ WS_TABSTOP);
}

TWindowPeer::~TWindowPeer() {
    const HWND handle = FHandle;
    Detach();
    if (handle != nullptr) DestroyWindow(handle);
}

void TWindowPeer::Create(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extendedStyle) {
    style |= WS_CHILD;
    if (IsShown()) style |= WS_VISIBLE;
    if (!FControl.Enabled()) style |= WS_DISABLED;
    const auto id = reinterpret_cast<HMENU>(static_cast<INT_PTR>(FForm.CommandId(FControl)));
    Adopt(CreateWindowExW(extendedStyle, windowClass, WindowText().c_str(), style, 0, 0, 0, 0, parent, id,
                          FForm.Instance(), nullptr));
}

void TWindowPeer::Adopt(HWND handle) {
    if (handle == nullptr) return;
    FHandle = handle;
    FForm.Register(handle, *this);
    SetAutomationName(handle, FControl.Name());
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(FForm.Screen().Font()));
    ShowItems();
    ShowState();
    if (FControl.Marked()) ShowMark();
}

void TWindowPeer::Subclass() {
    SetWindowLongPtrW(FHandle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    FBaseProc = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(FHandle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(SubclassProc)));
}

void TWindowPeer::PassWheelOn() {
    FProcBelowWheel = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(FHandle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WheelProc)));
}

LRESULT CALLBACK TWindowPeer::WheelProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC below = PeerFrom(window)->FProcBelowWheel;
    // Only a drop-down list says that it is open.
    if (message == WM_MOUSEWHEEL && !CallWindowProcW(below, window, CB_GETDROPPEDSTATE, 0, 0))
        return SendMessageW(GetParent(window), message, wParam, lParam);
    return CallWindowProcW(below, window, message, wParam, lParam);
}

LRESULT CALLBACK TWindowPeer::SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    TWindowPeer* const peer = PeerFrom(window);
    if (peer->FHandle == nullptr) return CallWindowProcW(peer->FBaseProc, window, message, wParam, lParam);
    return peer->HandleMessage(message, wParam, lParam);
}

LRESULT TWindowPeer::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    TFormWindow& form = FForm;  // the peer may be gone afterwards
    try {
        if (message == WM_GETOBJECT) form.Accessible().Tell(FHandle, Spoken());
        return OnMessage(message, wParam, lParam);
    } catch (...) {
        form.Fault(std::current_exception());
        return 0;
    }
}

LRESULT TWindowPeer::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(FBaseProc, FHandle, message, wParam, lParam);
}

void TWindowPeer::Restyle() {
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(FForm.Screen().Font()));
    FPlace = {};
}

// Drawn anew: a copy of what the window showed would bring along what lay over it or what its parent cut off.
void TWindowPeer::Place(const TRect& place) { Move(place, SWP_NOCOPYBITS); }

// Backgrounds are drawn once, when everything has its place, and not anew after each window of a container.
void TWindowPeer::Move(const TRect& place, UINT flags) {
    if (place == FPlace) return;
    FPlace = place;
    SetWindowPos(FHandle, nullptr, place.Left, place.Top, place.Width, place.Height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_DEFERERASE | flags);
}

void TWindowPeer::RedrawBelow(const RECT& hole) const {
    const HWND parent = GetParent(FHandle);
    if (!IsWindowVisible(parent)) return;
    const RECT place = PlaceInParent();
    const HRGN around = CreateRectRgnIndirect(&place);
    const HRGN inside = CreateRectRgnIndirect(&hole);
    CombineRgn(around, around, inside, RGN_DIFF);
    RedrawWindow(parent, nullptr, around, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    DeleteObject(inside);
    DeleteObject(around);
}

/// Before the control, or before its label, if that is beside it.
RECT TWindowPeer::DotPlace() const {
    if (!IsShown()) return {};
    const TControl* first = &FControl;
    if (first->Kind() == TComponentKind::UpDown) {
        const TEdit* edit = static_cast<const TUpDown&>(FControl).Associate();
        if (edit != nullptr && PeerOf(*edit) != nullptr) first = edit;
    }
    const auto* peer = first == &FControl ? this : PeerOf(*first);
    RECT place = peer->PlaceInParent();
    const auto& siblings = first->Parent()->Children();
    const auto self = std::find(siblings.begin(), siblings.end(), first);
    if (self != siblings.begin() && (*(self - 1))->Kind() == TComponentKind::Label) {
        if (const auto* label = PeerOf(**(self - 1)); label != nullptr && label->IsShown()) {
            const RECT before = label->PlaceInParent();
            const bool isBeside =
                before.right <= place.left && before.top < place.bottom && place.top < before.bottom;
            if (isBeside) place = before;
        }
    }
    const int size = FForm.Screen().Scale(kDotSize);
    const LONG right = place.left - FForm.Screen().Scale(kDotGap);
    const LONG top = (place.top + place.bottom - size) / 2;
    return {right - size, top, right, top + size};
}

RECT TWindowPeer::FramePlace() const {
    RECT place = PlaceInParent();
    if (FControl.Kind() == TComponentKind::UpDown) {
        const TEdit* edit = static_cast<const TUpDown&>(FControl).Associate();
        if (const auto* peer = edit == nullptr ? nullptr : PeerOf(*edit)) {
            const RECT number = peer->PlaceInParent();
            UnionRect(&place, &place, &number);
        }
    }
    const int distance = 2 * FrameWidth();
    InflateRect(&place, distance, distance);
    return place;
}

int TWindowPeer::FrameWidth() const { return FForm.Screen().Scale(kFrameWidth); }

RECT TWindowPeer::PlaceInParent() const {
    RECT place{};
    GetWindowRect(FHandle, &place);
    MapWindowPoints(nullptr, GetParent(FHandle), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void TWindowPeer::ShowMark() {
    if (FControl.Marked())
        FForm.Marks().Add(*this);
    else
        FForm.Marks().Remove(*this);
    ShowSpoken();
}

TSpoken TWindowPeer::Spoken() const {
    return {.Name = SpokenName(FControl), .Description = FControl.Marked() ? FForm.Form().MarkText : L""};
}

void TWindowPeer::ShowSpoken() { FForm.Accessible().Change(FHandle, Spoken()); }

void TWindowPeer::Detach() {
    if (FHandle == nullptr) return;
    FForm.Marks().Remove(*this);
    FForm.Marks().Unframe(*this);
    FForm.Accessible().Forget(FHandle);
    RemoveAutomationName(FHandle);
    FForm.Unregister(FHandle);
    FHandle = nullptr;
}

/// For Windows the controls of a group box are its neighbours: they do not hide with it by themselves.
bool TWindowPeer::IsShown() const {
    const TControl* control = &FControl;
    while (control->Visible() && control->Parent() != nullptr &&
           control->Parent()->Kind() == TComponentKind::GroupBox)
        control = control->Parent();
    return control->Visible();
}

/// ShowWindow would draw the backgrounds of all windows that come to light at once, before what is below them is hidden.
void TWindowPeer::ShowOrHide() {
    const bool isShown = IsShown();
    if (isShown == ((GetWindowLongW(FHandle, GWL_STYLE) & WS_VISIBLE) != 0)) return;
    const bool wasSeen = IsWindowVisible(FHandle) != FALSE;
    SetWindowPos(FHandle, nullptr, 0, 0, 0, 0,
                 (isShown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW) | SWP_DEFERERASE | SWP_NOMOVE | SWP_NOSIZE |
                     SWP_NOZORDER | SWP_NOACTIVATE);
    if (!wasSeen) return;  // nor had it the focus
    const HWND focus = GetFocus();
    if (focus == FHandle || IsChild(FHandle, focus)) SetFocus(GetParent(FHandle));
}

void TWindowPeer::Update(TControlAspect aspect) {
    if (FHandle == nullptr) return;
    switch (aspect) {
        case TControlAspect::Caption:
            SetWindowTextW(FHandle, WindowText().c_str());
            FForm.LayOutLater(FControl);
            break;
        case TControlAspect::Enabled:
            // Windows would leave the keyboard without a focus.
            if (!FControl.Enabled() && IsWindowVisible(FHandle) && GetFocus() == FHandle)
                SetFocus(GetNextDlgTabItem(FForm.Handle(), FHandle, FALSE));
            EnableWindow(FHandle, FControl.Enabled());
            break;
        case TControlAspect::Visible:
            ShowOrHide();
            if (FControl.Kind() == TComponentKind::GroupBox)
                for (const TControl* child : FControl.Children())
                    if (child->Peer() != nullptr) child->Peer()->Update(aspect);
            FForm.LayOutLater(FControl);
            break;
        case TControlAspect::State:
            ShowState();
            break;
        case TControlAspect::Items:
            ShowItems();
            ShowState();
            break;
        case TControlAspect::Mark:
            ShowMark();
            break;
        case TControlAspect::Frame:
            if (FControl.Framed())
                FForm.Marks().Frame(this);
            else
                FForm.Marks().Unframe(*this);
            break;
        case TControlAspect::Front:
        case TControlAspect::Back:
            SetWindowPos(FHandle, aspect == TControlAspect::Front ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
            break;
    }
}
