#include "ui/win32/form_window.h"

#include <utility>

#include "ui/containers.h"
#include "ui/controls.h"
#include "ui/win32/form_keys.h"

namespace {

/// A window that takes no input while another one is shown over it. `focus` is what then gets the focus.
class TDisabledWindow {
  public:
    TDisabledWindow(HWND window, HWND& focus) : FWindow(window), FFocus(focus) {
        FFocus = GetFocus();
        EnableWindow(FWindow, FALSE);
    }
    ~TDisabledWindow() {
        EnableWindow(FWindow, TRUE);
        // What was done in the other window may have left nothing to do there.
        const bool takesFocus = IsWindowEnabled(FFocus) && IsWindowVisible(FFocus);
        SetFocus(takesFocus || !IsChild(FWindow, FFocus) ? FFocus
                                                         : GetNextDlgTabItem(FWindow, FFocus, FALSE));
    }
    TDisabledWindow(const TDisabledWindow&) = delete;
    TDisabledWindow& operator=(const TDisabledWindow&) = delete;

  private:
    HWND FWindow;
    HWND& FFocus;
};

}  // namespace

TFormWindow::TFormWindow(TForm& form, HINSTANCE instance, TFaultHandler faultHandler, HWND owner)
    : FForm(form),
      FInstance(instance),
      FOwner(owner),
      FFaultHandler(std::move(faultHandler)),
      FPictures(instance),
      FWindow(*this, form) {}

TFormWindow& TFormWindow::Attach(TForm& form, HINSTANCE instance, TFaultHandler faultHandler, HWND owner) {
    auto window = std::make_unique<TFormWindow>(form, instance, std::move(faultHandler), owner);
    TFormWindow& attached = *window;
    form.SetPeer(std::move(window));
    return attached;
}

void TFormWindow::Show(int showCommand) {
    const auto attempt = [this](const auto& step) {
        try {
            step();
        } catch (...) {
            Fault(std::current_exception());
        }
    };
    // The form shows itself first: its windows are then created with their final captions.
    attempt([this] { FForm.Show(); });
    attempt([this] {
        if (const int own = DotsPerInchOf(Handle()); own != FScreen->DotsPerInch()) Restyle(own);
    });
    attempt([this] { FFiller.Start(); });
    attempt([this] { FWindow.Open(); });
    FWindow.Appear(showCommand);
}

int TFormWindow::Run() {
    FAttention.Start();
    while (!IsOver()) {
        MSG message;
        if (!NextMessage(message)) {
            // Looking for a message has handled those that were sent; one of them may have closed the dialog.
            FAttention.FollowFocus();
            if (!IsOver() && !FFiller.CreateSome()) WaitMessage();
            continue;
        }
        FAttention.FollowPointer(message);
        if (PressFormKey(*this, message)) continue;
        if (message.message == WM_QUIT) {
            // The end of the program is the outer loop's affair.
            if (FOwner != nullptr) PostQuitMessage(static_cast<int>(message.wParam));
            return static_cast<int>(message.wParam);
        }
        if (Handle() == nullptr || !IsDialogMessageW(Handle(), &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        FAttention.FollowFocus();
    }
    return 0;
}

/// Takes the next message; false when there is none.
bool TFormWindow::NextMessage(MSG& message) const {
    constexpr UINT kNoTimer = PM_QS_INPUT | PM_QS_PAINT | PM_QS_SENDMESSAGE | QS_POSTMESSAGE << 16;
    constexpr UINT kNoPaint = PM_QS_INPUT | PM_QS_SENDMESSAGE | PM_QS_POSTMESSAGE;
    const auto take = [&](UINT kinds) {
        return PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | kinds) != FALSE;
    };
    // The timers that end the start wait for the page that they show, and nothing is drawn between the one that shows
    // it below the loading panel and the one that takes the panel away.
    if (FFiller.CreatesFirstPage()) return take(kNoTimer);
    return (!FTimers.empty() && take(kNoPaint)) || take(0);
}

void TFormWindow::ShowModal(TForm& dialog) {
    if (!IsWindowEnabled(Handle())) return;
    TFormWindow& window = Attach(dialog, FInstance, FFaultHandler, Handle());
    const TDisabledWindow disabled(Handle(), FNextFocus);
    window.Show(SW_SHOW);
    SetFocus(GetNextDlgTabItem(window.Handle(), nullptr, FALSE));
    if (dialog.FirstFocus != nullptr) dialog.Reveal(*dialog.FirstFocus);
    window.Run();
    if (window.Handle() != nullptr) DestroyWindow(window.Handle());
}

void TFormWindow::Reveal(TControl& control) {
    const TControl* target = &control;
    if (control.Kind() == TComponentKind::UpDown) {
        if (const TEdit* edit = static_cast<TUpDown&>(control).Associate()) target = edit;
    }
    const TWindowPeer* peer = ::PeerOf(*target);
    if (peer == nullptr || !IsWindowVisible(peer->Handle())) return;
    const HWND window = peer->Handle();
    ScrollTo(window);
    if (!target->Enabled()) return;
    SendMessageW(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    if (IsWindowEnabled(Handle()))
        SetFocus(window);
    else
        FNextFocus = window;
}

void TFormWindow::ScrollTo(HWND window) const {
    const TWindowPeer* peer = PeerOf(window);
    if (peer == nullptr) return;
    if (auto* container = dynamic_cast<TContainerPeer*>(PeerOf(GetParent(window))))
        container->ScrollTo(window);
}

TControl* TFormWindow::ControlOf(HWND window) const {
    while (window != nullptr && PeerOf(window) == nullptr) window = GetParent(window);
    return window == nullptr ? nullptr : &PeerOf(window)->Control();
}

void TFormWindow::Tell(const TForm::TControlEvent& event, TControl* control) const {
    if (!event) return;
    try {
        event(control);
    } catch (...) {
        Fault(std::current_exception());
    }
}

void TFormWindow::ComeForward() {
    if (IsIconic(Handle())) ShowWindow(Handle(), SW_RESTORE);
    const HWND front = GetLastActivePopup(Handle());  // the dialog, while one is shown
    SetForegroundWindow(front);
    BringWindowToTop(front);
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

void TFormWindow::CreatePage(TControl& page) {
    LayOutChanged();  // what is placed after it is seen is drawn twice
    FFiller.CreatePage(page);
}

void TFormWindow::RestyleLater() {
    // Windows announces a change by several messages, some of them to the inner windows after the form.
    if (!std::exchange(FRestyles, true)) PostMessageW(Handle(), kRestyleMessage, 0, 0);
}

void TFormWindow::Restyle(int dotsPerInch) {
    FRestyles = false;
    const TFlagScope restyling(FIsRestyling);
    // The former fonts live until no window has them.
    const auto former = std::exchange(FScreen, std::make_unique<TScreen>(dotsPerInch));
    for (const auto& [window, peer] : FPeers) peer->Restyle();
    FWindow.LayOut();
    // Every container comes after those around it.
    for (const auto& component : FForm.Components()) {
        if (auto* peer = dynamic_cast<TContainerPeer*>(static_cast<TControl&>(*component).Peer()))
            peer->LayOut();
    }
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void TFormWindow::Fault(std::exception_ptr fault) const {
    if (FFaultHandler) FFaultHandler(std::move(fault));
}

void TFormWindow::DrawAll() const {
    if (Handle() != nullptr && !FIsRestyling)
        RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void TFormWindow::CommitFocus() const {
    const TWindowPeer* peer = PeerOf(GetFocus());
    if (peer == nullptr || peer->Control().Kind() != TComponentKind::Edit) return;
    try {
        static_cast<TEdit&>(peer->Control()).Commit();
    } catch (...) {
        Fault(std::current_exception());  // as when the focus leaves it; the button is pressed all the same
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
    if (FOwner == nullptr) PostQuitMessage(0);
}
