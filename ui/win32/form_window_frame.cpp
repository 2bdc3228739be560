#include <algorithm>

#include "ui/controls.h"
#include "ui/win32/form_window.h"

namespace {

constexpr int kFormMargin = 8;

/// WM_DPICHANGED, since Windows 8.1: the window has come to a screen of another resolution.
constexpr UINT kResolutionChanged = 0x02E0;

/// The part of the screen that the task bar leaves to a window of the owner's screen, or of the main one.
RECT WorkArea(HWND owner) {
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY), &screen);
    return screen.rcWork;
}

/// Draws a window, then those in it, and before each handles what was sent, for the sake of whoever waits for an answer.
/// That may close the window.
void DrawPieces(const TWindowPeer& peer) {
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    const HWND window = peer.Handle();
    if (window == nullptr) return;
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_NOCHILDREN);
    for (const TControl* child : peer.Control().Children())
        if (const TWindowPeer* inner = ::PeerOf(*child)) DrawPieces(*inner);
}

}  // namespace

TFormWindow::TWindow::TWindow(TFormWindow& formWindow, TForm& form)
    : TContainerPeer(formWindow, form, kFormMargin), FFormWindow(formWindow), FMenu(form) {
    const HWND owner = formWindow.FOwner;
    DWORD frame = owner == nullptr ? WS_OVERLAPPEDWINDOW : WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
    if (form.CanMaximise) frame |= WS_MAXIMIZEBOX;
    CreateContainer(owner, form.ClassName().c_str(), frame, 0);
}

void TFormWindow::TWindow::Open() {
    CreateContent();
    TPageFiller::FillSheets(FFormWindow.FForm);
    SetWindowTextW(Handle(), WindowText().c_str());
    FMenu.Add(Handle());
    SetInitialSize();
}

void TFormWindow::TWindow::Appear(int showCommand) {
    // ShowWindow would draw the backgrounds of all windows before it returns.
    constexpr UINT kAppear = SWP_SHOWWINDOW | SWP_DEFERERASE | SWP_NOMOVE | SWP_NOSIZE;
    if (showCommand == SW_SHOWNORMAL || showCommand == SW_SHOW || showCommand == SW_SHOWDEFAULT)
        SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, kAppear);
    else
        ShowWindow(Handle(), showCommand);
    // At once, piece by piece: the inner windows would otherwise wait for whatever else there is to do.
    DrawPieces(*this);
}

SIZE TFormWindow::TWindow::DesignedSize(const RECT& work) const {
    const TScreen& screen = FFormWindow.Screen();
    const TForm& form = FFormWindow.FForm;
    RECT frame{0, 0, screen.Scale(form.ClientWidth), screen.Scale(form.ClientHeight)};
    AddFrame(frame, Handle(), screen.DotsPerInch());
    return {std::min(frame.right - frame.left, work.right - work.left),
            std::min(frame.bottom - frame.top, work.bottom - work.top)};
}

/// Centres the window in the work area, a dialog over its owner, no larger than the work area and within it.
void TFormWindow::TWindow::SetInitialSize() {
    const RECT work = WorkArea(FFormWindow.FOwner);
    RECT around = work;
    if (FFormWindow.FOwner != nullptr) GetWindowRect(FFormWindow.FOwner, &around);
    FMinimum = DesignedSize(work);
    SetWindowPos(
        Handle(), nullptr,
        std::clamp((around.left + around.right - FMinimum.cx) / 2, work.left, work.right - FMinimum.cx),
        std::clamp((around.top + around.bottom - FMinimum.cy) / 2, work.top, work.bottom - FMinimum.cy),
        FMinimum.cx, FMinimum.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    LayOut();
}

/// The frame may have become another; the window grows when it is now smaller than it may be.
void TFormWindow::TWindow::Restyle() {
    TContainerPeer::Restyle();
    FMinimum = DesignedSize(WorkArea(Handle()));
    if (IsIconic(Handle())) return;
    RECT place{};
    GetWindowRect(Handle(), &place);
    SetWindowPos(Handle(), nullptr, 0, 0, std::max(place.right - place.left, FMinimum.cx),
                 std::max(place.bottom - place.top, FMinimum.cy),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

LRESULT TFormWindow::TWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE: {
            if (wParam == SIZE_MINIMIZED) break;
            if (FFormWindow.FForm.OnHeight)
                FFormWindow.FForm.OnHeight(FFormWindow.Screen().Unscale(HIWORD(lParam)));
            const LRESULT result = TContainerPeer::OnMessage(message, wParam, lParam);
            FFormWindow.DrawAll();
            return result;
        }
        case WM_SYSCOMMAND:
            if (FMenu.Press(Handle(), wParam)) return 0;
            break;
        case WM_TIMER:
            if (wParam == TAttention::kRestTimer) {
                FFormWindow.FAttention.PointerRests();
                return 0;
            }
            if (const auto timer = FFormWindow.FTimers.find(static_cast<unsigned>(wParam));
                timer != FFormWindow.FTimers.end()) {
                timer->second->Tick();
                return 0;
            }
            break;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {FMinimum.cx, FMinimum.cy};
            return 0;
        case WM_CLOSE:
            // While it is disabled, the owner could not be activated in the dialog's place.
            if (FFormWindow.FOwner != nullptr) EnableWindow(FFormWindow.FOwner, TRUE);
            DestroyWindow(Handle());
            return 0;
        case WM_DESTROY:
            FFormWindow.Destroyed();
            return 0;
        case WM_SETTINGCHANGE:  // of anything, and not every program says of what; mostly the fonts stay
            if (wParam == SPI_SETNONCLIENTMETRICS || !FFormWindow.Screen().IsCurrent())
                FFormWindow.RestyleLater();
            break;
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED:
            FFormWindow.RestyleLater();
            break;
        case kResolutionChanged: {
            FFormWindow.Restyle(HIWORD(wParam));
            const RECT& place = *reinterpret_cast<const RECT*>(lParam);  // as Windows suggests it
            SetWindowPos(Handle(), nullptr, place.left, place.top, place.right - place.left,
                         place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
            return 0;
        }
        case WM_ACTIVATEAPP:
            if (wParam != FALSE) PostMessageW(Handle(), kComeBackMessage, 0, 0);
            break;
        case kRestyleMessage:
            FFormWindow.Restyle(FFormWindow.Screen().DotsPerInch());
            return 0;
        case kComeBackMessage:
            if (IsWindowEnabled(Handle())) FFormWindow.FForm.ComeBack();
            return 0;
        case kLayOutMessage:
            FFormWindow.LayOutChanged();
            return 0;
        default:
            if ((message >= WM_USER || message == WM_COPYDATA) && FFormWindow.OnMessage &&
                FFormWindow.OnMessage(message, lParam))
                return 0;
            break;
    }
    return TContainerPeer::OnMessage(message, wParam, lParam);
}
