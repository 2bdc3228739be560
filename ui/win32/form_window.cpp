#include "ui/win32/form_window.h"

#include <algorithm>
#include <utility>

#include "ui/containers.h"
#include "ui/controls.h"
#include "ui/win32/page_peers.h"

namespace {

constexpr UINT kLayOutMessage = WM_APP;  // posted to itself: containers wait to be laid out
constexpr int kFormMargin = 8;
// The size of the client area at 96 dots per inch: it leaves room for the frame on a screen of 800 by 600.
constexpr int kClientWidth = 740;
constexpr int kClientHeight = 504;

}  // namespace

TFormWindow::TFormWindow(TForm& form, HINSTANCE instance, TFaultHandler faultHandler)
    : FForm(form),
      FInstance(instance),
      FFaultHandler(std::move(faultHandler)),
      FPictures(instance),
      FWindow(*this, form) {}

TFormWindow& TFormWindow::Attach(TForm& form, HINSTANCE instance, TFaultHandler faultHandler) {
    auto window = std::make_unique<TFormWindow>(form, instance, std::move(faultHandler));
    TFormWindow& attached = *window;
    form.SetPeer(std::move(window));
    return attached;
}

void TFormWindow::Show(int showCommand) {
    // The form shows itself first: its windows are then created with their final captions.
    try {
        FForm.Show();
    } catch (...) {
        Fault(std::current_exception());
    }
    FWindow.Open();
    ShowWindow(Handle(), showCommand);
    // All at once: the inner windows would otherwise come one after the other.
    RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

int TFormWindow::Run() {
    HWND focus = nullptr;
    for (;;) {
        MSG message;
        if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (!CreateNextPage()) WaitMessage();
            continue;
        }
        if (StepSheet(message)) continue;
        if (message.message == WM_QUIT) return static_cast<int>(message.wParam);
        if (Handle() == nullptr || !IsDialogMessageW(Handle(), &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (const HWND now = GetFocus(); now != focus) {
            focus = now;
            FollowFocus(now);
        }
    }
}

/// Control and Tab choose the next sheet, with Shift the one before, as in the dialogs of Windows.
bool TFormWindow::StepSheet(const MSG& message) const {
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || GetKeyState(VK_CONTROL) >= 0)
        return false;
    for (const auto& component : FForm.Components()) {
        if (component->Kind() != TComponentKind::PageControl) continue;
        auto& tabs = static_cast<TPageControl&>(*component);
        const auto* peer = dynamic_cast<TWindowPeer*>(tabs.Peer());
        if (peer == nullptr || !IsWindowVisible(peer->Handle())) continue;
        SetFocus(peer->Handle());  // the control that had it is about to disappear
        tabs.StepSheet(GetKeyState(VK_SHIFT) < 0);
        return true;
    }
    return false;
}

/// Scrolls the control that has the focus into sight.
void TFormWindow::FollowFocus(HWND focus) const {
    const TWindowPeer* peer = PeerOf(focus);
    if (peer == nullptr) return;
    if (auto* container = dynamic_cast<TContainerPeer*>(PeerOf(GetParent(focus)))) container->ScrollTo(focus);
}

void TFormWindow::ComeForward() {
    if (IsIconic(Handle())) ShowWindow(Handle(), SW_RESTORE);
    SetForegroundWindow(Handle());
    BringWindowToTop(Handle());
}

void TFormWindow::Close() {
    if (Handle() != nullptr) PostMessageW(Handle(), WM_CLOSE, 0, 0);
}

void TFormWindow::Update(TControlAspect aspect) { FWindow.Update(aspect); }

TWindowPeer* TFormWindow::PeerOf(HWND window) const {
    const auto found = FPeers.find(window);
    return found == FPeers.end() ? nullptr : found->second;
}

int TFormWindow::CommandId(const TControl& control) {
    // The keyboard's Enter and Escape reach the buttons by these numbers.
    if (control.Kind() == TComponentKind::Button) {
        const auto& button = static_cast<const TButton&>(control);
        if (button.Default) return IDOK;
        if (button.Cancel) return IDCANCEL;
    }
    return ++FLastCommandId;
}

void TFormWindow::LayOutLater(const TControl& control) {
    const TControl* container = control.Parent();
    while (container != nullptr && container->Kind() == TComponentKind::GroupBox)
        container = container->Parent();
    if (container == nullptr) return;
    if (FChanged.empty()) PostMessageW(Handle(), kLayOutMessage, 0, 0);
    FChanged.insert(container);
}

void TFormWindow::LayOutChanged() {
    for (const TControl* container : std::exchange(FChanged, {})) {
        if (container == &FForm)
            FWindow.LayOut();
        else if (auto* peer = dynamic_cast<TContainerPeer*>(container->Peer()))
            peer->LayOut();
    }
}

void TFormWindow::Fault(std::exception_ptr fault) const {
    if (FFaultHandler) FFaultHandler(std::move(fault));
}

void TFormWindow::CreatePage(TControl& page) {
    auto& notebook = static_cast<TNotebookPeer&>(*page.Parent()->Peer());
    if (page.Peer() == nullptr) notebook.CreatePage(page);
    if (!FFilledPages.insert(&page).second) return;
    auto& peer = static_cast<TContainerPeer&>(*page.Peer());
    peer.CreateContent();
    peer.LayOut();
}

/// Creates the window of one notebook page, or the content of one when all have their windows; false when there is
/// nothing left to create.
bool TFormWindow::CreateNextPage() {
    if (Handle() == nullptr) return false;
    try {
        TControl* unfilled = nullptr;
        for (const auto& component : FForm.Components()) {
            if (component->Kind() != TComponentKind::NotebookPage) continue;
            auto& page = static_cast<TControl&>(*component);
            if (page.Peer() == nullptr) {
                static_cast<TNotebookPeer&>(*page.Parent()->Peer()).CreatePage(page);
                return true;
            }
            if (unfilled == nullptr && !FFilledPages.contains(&page)) unfilled = &page;
        }
        if (unfilled == nullptr) return false;
        CreatePage(*unfilled);
        return true;
    } catch (...) {
        Fault(std::current_exception());
        return false;
    }
}

unsigned TFormWindow::StartTimer(TTimer& timer) {
    const unsigned id = ++FLastTimerId;
    FTimers[id] = &timer;
    SetTimer(Handle(), id, timer.Interval(), nullptr);
    return id;
}

void TFormWindow::StopTimer(unsigned id) {
    KillTimer(Handle(), id);
    FTimers.erase(id);
}

void TFormWindow::Destroyed() {
    // Windows destroys the inner windows next; their names must be withdrawn while they still exist.
    while (!FPeers.empty()) FPeers.begin()->second->Detach();
    FTimers.clear();
    PostQuitMessage(0);
}

TFormWindow::TWindow::TWindow(TFormWindow& owner, TForm& form)
    : TContainerPeer(owner, form, kFormMargin), FOwner(owner) {
    CreateContainer(nullptr, form.ClassName().c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0);
}

void TFormWindow::TWindow::Open() {
    CreateContent();
    SetWindowTextW(Handle(), WindowText().c_str());
    SetInitialSize();
}

/// Centres the window in the work area, no larger than that.
void TFormWindow::TWindow::SetInitialSize() {
    const TScreen& screen = FOwner.Screen();
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    RECT frame{0, 0, screen.Scale(kClientWidth), screen.Scale(kClientHeight)};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_EXSTYLE)));
    const int width = std::min(frame.right - frame.left, work.right - work.left);
    const int height = std::min(frame.bottom - frame.top, work.bottom - work.top);
    FMinimum = {width, height};
    SetWindowPos(Handle(), nullptr, work.left + (work.right - work.left - width) / 2,
                 work.top + (work.bottom - work.top - height) / 2, width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    LayOut();
}

LRESULT TFormWindow::TWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_TIMER:
            if (const auto timer = FOwner.FTimers.find(static_cast<unsigned>(wParam));
                timer != FOwner.FTimers.end()) {
                timer->second->Tick();
                return 0;
            }
            break;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {FMinimum.cx, FMinimum.cy};
            return 0;
        case WM_CLOSE:
            DestroyWindow(Handle());
            return 0;
        case WM_DESTROY:
            FOwner.Destroyed();
            return 0;
        case kLayOutMessage:
            FOwner.LayOutChanged();
            return 0;
        default:
            if (message >= WM_USER && FOwner.OnMessage && FOwner.OnMessage(message)) return 0;
            break;
    }
    return TContainerPeer::OnMessage(message, wParam, lParam);
}
