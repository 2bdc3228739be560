#include "ui/win32/form_window.h"

#include <algorithm>
#include <utility>

#include "ui/containers.h"
#include "ui/controls.h"
#include "ui/win32/page_peers.h"

namespace {

constexpr UINT kLayOutMessage = WM_APP;        // posted to itself: containers wait to be laid out
constexpr UINT kRestyleMessage = WM_APP + 1;   // posted to itself: the look of Windows has changed
constexpr UINT kComeBackMessage = WM_APP + 2;  // posted to itself: another program was in front
constexpr int kFormMargin = 8;
constexpr UINT_PTR kRestTimer = 0xFFFF;  // beyond those of the form
constexpr UINT kRest = 500;              // milliseconds without a move that are a rest
constexpr WPARAM kFirstSwitch = 0x100;   // in the window's menu; Windows keeps the last four bits for itself
constexpr WPARAM kSwitchStep = 0x10;

/// A window that takes no input while another one is shown over it. `focus` is what then gets the focus.
class TDisabledWindow {
  public:
    TDisabledWindow(HWND window, HWND& focus) : FWindow(window), FFocus(focus) {
        FFocus = GetFocus();
        EnableWindow(FWindow, FALSE);
    }
    ~TDisabledWindow() {
        EnableWindow(FWindow, TRUE);
        SetFocus(FFocus);
    }
    TDisabledWindow(const TDisabledWindow&) = delete;
    TDisabledWindow& operator=(const TDisabledWindow&) = delete;

  private:
    HWND FWindow;
    HWND& FFocus;
};

/// The part of the screen that the task bar leaves to a window of the owner's screen, or of the main one.
RECT WorkArea(HWND owner) {
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY), &screen);
    return screen.rcWork;
}

/// For the sake of whoever waits for an answer, while there is more to do.
void HandleSentMessages() {
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

/// Null when a fault kept it from being created.
TContainerPeer* ContainerOf(const TControl& control) { return static_cast<TContainerPeer*>(control.Peer()); }

/// Creates the content of the sheets in a container.
void FillSheets(const TControl& container) {
    for (const TControl* tabs : container.Children()) {
        if (tabs->Kind() != TComponentKind::PageControl) continue;
        for (const TControl* sheet : tabs->Children())
            if (TContainerPeer* peer = ContainerOf(*sheet)) peer->Fill();
    }
}

/// The notebook page that a sheet lies on, or that the control is; null for a sheet of a dialog.
const TControl* PageOf(const TControl& control) {
    const TControl* page = &control;
    while (page != nullptr && page->Kind() != TComponentKind::NotebookPage) page = page->Parent();
    return page;
}

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
    attempt([this] { FWindow.Open(); });
    ShowWindow(Handle(), showCommand);
    HandleSentMessages();  // one of them may close the window
    // All at once: the inner windows would otherwise come one after the other.
    if (Handle() != nullptr) RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

int TFormWindow::Run() {
    GetCursorPos(&FPointer);
    while (!IsOver()) {
        MSG message;
        if (!NextMessage(message)) {
            // Looking for a message has handled those that were sent; one of them may have closed the dialog.
            FollowFocus();
            if (!IsOver() && !CreateNext()) WaitMessage();
            continue;
        }
        FollowPointer(message);
        if (StepSheet(message) || PressButton(message) || AskHelp(message) || PressFindKey(message)) continue;
        if (message.message == WM_QUIT) return static_cast<int>(message.wParam);
        if (Handle() == nullptr || !IsDialogMessageW(Handle(), &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        FollowFocus();
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
    if (CreatesFirstPage()) return take(kNoTimer);
    return (!FTimers.empty() && take(kNoPaint)) || take(0);
}

void TFormWindow::ShowModal(TForm& dialog) {
    if (!IsWindowEnabled(Handle())) return;
    TFormWindow& window = Attach(dialog, FInstance, FFaultHandler, Handle());
    const TDisabledWindow disabled(Handle(), FNextFocus);
    window.Show(SW_SHOW);
    SetFocus(GetNextDlgTabItem(window.Handle(), nullptr, FALSE));
    if (dialog.FirstFocus != nullptr) dialog.Reveal(*dialog.FirstFocus);
    // The end of the program is the outer loop's affair.
    if (const int exitCode = window.Run(); window.Handle() != nullptr) {
        PostQuitMessage(exitCode);
        DestroyWindow(window.Handle());
    }
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

/// Enter presses a button and opens a category item, which Windows would not take for a button because it is drawn by
/// its owner. Elsewhere it is the default button's.
bool TFormWindow::PressButton(const MSG& message) const {
    if (message.message != WM_KEYDOWN || message.wParam != VK_RETURN) return false;
    const TWindowPeer* peer = PeerOf(message.hwnd);
    if (peer == nullptr) return false;
    const TComponentKind kind = peer->Control().Kind();
    if (kind != TComponentKind::Button && kind != TComponentKind::CategoryItem) return false;
    SendMessageW(GetParent(message.hwnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(message.hwnd), BN_CLICKED),
                 reinterpret_cast<LPARAM>(message.hwnd));
    return true;
}

bool TFormWindow::PressFindKey(const MSG& message) {
    const auto isDown = [](int key) { return GetKeyState(key) < 0; };
    if (message.message != WM_KEYDOWN || message.wParam != 'F' || !FForm.OnFindKey) return false;
    if (!isDown(VK_CONTROL) || isDown(VK_MENU) || isDown(VK_SHIFT) || !IsWindowEnabled(Handle()))
        return false;
    try {
        FForm.FindKey();
    } catch (...) {
        Fault(std::current_exception());
    }
    return true;
}

/// Scrolls a control's window into sight.
void TFormWindow::ScrollTo(HWND window) const {
    const TWindowPeer* peer = PeerOf(window);
    if (peer == nullptr) return;
    if (auto* container = dynamic_cast<TContainerPeer*>(PeerOf(GetParent(window))))
        container->ScrollTo(window);
}

void TFormWindow::FollowFocus() {
    const HWND focus = GetFocus();
    if (std::exchange(FFocus, focus) == focus) return;
    ScrollTo(focus);
    // Another program or a dialog in front leaves the user where he was.
    if (focus != nullptr && IsChild(Handle(), focus)) Tell(FForm.OnFocus, ControlOf(focus));
}

void TFormWindow::FollowPointer(const MSG& message) {
    // Windows sends moves of what lies below the pointer, too.
    if (message.message != WM_MOUSEMOVE || !FForm.OnPoint || Handle() == nullptr) return;
    const POINT now = message.pt;
    if (now.x == FPointer.x && now.y == FPointer.y) return;
    FPointer = now;
    SetTimer(Handle(), kRestTimer, kRest, nullptr);
}

void TFormWindow::PointerRests() {
    KillTimer(Handle(), kRestTimer);
    POINT point{};
    GetCursorPos(&point);
    Tell(FForm.OnPoint, IsWindowEnabled(Handle()) ? ControlAt(point) : nullptr);
}

bool TFormWindow::AskHelp(const MSG& message) const {
    if (message.message != WM_KEYDOWN || message.wParam != VK_F1 || !FForm.OnHelp) return false;
    Tell(FForm.OnHelp, ControlOf(message.hwnd));
    return true;
}

TControl* TFormWindow::ControlOf(HWND window) const {
    while (window != nullptr && PeerOf(window) == nullptr) window = GetParent(window);
    return window == nullptr ? nullptr : &PeerOf(window)->Control();
}

TControl* TFormWindow::ControlAt(POINT point) const {
    const HWND front = WindowFromPoint(point);
    if (front != Handle() && !IsChild(Handle(), front)) return nullptr;
    // Windows itself would stop at a group box or at a window that is disabled.
    HWND found = Handle();
    for (HWND inner = found; inner != nullptr;) {
        found = inner;
        for (inner = GetWindow(found, GW_CHILD); inner != nullptr; inner = GetWindow(inner, GW_HWNDNEXT)) {
            RECT place{};
            GetWindowRect(inner, &place);
            const TWindowPeer* peer = PeerOf(inner);
            const bool isFrame = peer != nullptr && peer->Control().Kind() == TComponentKind::GroupBox;
            if (IsWindowVisible(inner) && !isFrame && PtInRect(&place, point)) break;
        }
    }
    return ControlOf(found);
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

void TFormWindow::RestyleLater() {
    // Windows announces a change by several messages, some of them to the inner windows after the form.
    if (!std::exchange(FRestyles, true)) PostMessageW(Handle(), kRestyleMessage, 0, 0);
}

void TFormWindow::Restyle() {
    FRestyles = false;
    // The former fonts live until no window has them.
    const auto former = std::exchange(FScreen, std::make_unique<TScreen>());
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

void TFormWindow::CommitFocus() const {
    const TWindowPeer* peer = PeerOf(GetFocus());
    if (peer == nullptr || peer->Control().Kind() != TComponentKind::Edit) return;
    try {
        static_cast<TEdit&>(peer->Control()).Commit();
    } catch (...) {
        Fault(std::current_exception());  // as when the focus leaves it; the button is pressed all the same
    }
}

void TFormWindow::CreatePage(TControl& page) {
    auto* notebook = static_cast<TNotebookPeer*>(page.Parent()->Peer());
    if (page.Peer() == nullptr && notebook != nullptr) notebook->CreatePage(page);
    if (TContainerPeer* peer = ContainerOf(page)) {
        peer->Fill();
        peer->CatchUp();  // the sheets get their size before their content
    }
    // All of them, so that whoever looks for a control finds it when its page is shown.
    FillSheets(page);
}

bool TFormWindow::CreatesFirstPage() const {
    if (FUnfilled.empty()) return false;
    const TControl* page = PageOf(*FUnfilled.front());
    return page != nullptr && page == page->Parent()->Children().front();
}

/// Creates or places one more control of the pages and sheets; false when there is nothing left to do.
bool TFormWindow::CreateNext() {
    if (Handle() == nullptr || FUnfilled.empty()) return false;
    TControl* control = FUnfilled.front();
    bool isFilled = true;  // what a fault keeps from being created is not tried again
    try {
        if (TContainerPeer* peer = ContainerOf(*control)) {
            isFilled = !peer->FillNext();
        } else if (auto* notebook = dynamic_cast<TNotebookPeer*>(control->Parent()->Peer())) {
            notebook->CreatePage(*control);
            isFilled = control->Peer() == nullptr;
        }
    } catch (...) {
        Fault(std::current_exception());
    }
    if (isFilled) std::erase(FUnfilled, control);
    return true;
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

TFormWindow::TWindow::TWindow(TFormWindow& formWindow, TForm& form)
    : TContainerPeer(formWindow, form, kFormMargin), FFormWindow(formWindow) {
    const HWND owner = formWindow.FOwner;
    DWORD frame = owner == nullptr ? WS_OVERLAPPEDWINDOW : WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
    if (form.CanMaximise) frame |= WS_MAXIMIZEBOX;
    CreateContainer(owner, form.ClassName().c_str(), frame, 0);
}

void TFormWindow::TWindow::Open() {
    for (const auto& component : FFormWindow.FForm.Components()) {
        const TComponentKind kind = component->Kind();
        if (kind == TComponentKind::NotebookPage || kind == TComponentKind::TabSheet)
            FFormWindow.FUnfilled.push_back(static_cast<TControl*>(component.get()));
    }
    CreateContent();
    FillSheets(FFormWindow.FForm);
    SetWindowTextW(Handle(), WindowText().c_str());
    AddSwitches();
    SetInitialSize();
}

void TFormWindow::TWindow::AddSwitches() {
    const auto& switches = FFormWindow.FForm.Switches;
    if (switches.empty()) return;
    const HMENU menu = GetSystemMenu(Handle(), FALSE);
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    for (std::size_t i = 0; i < switches.size(); ++i)
        AppendMenuW(menu, MF_STRING, kFirstSwitch + i * kSwitchStep, switches[i].Caption.c_str());
    ShowSwitches();
}

void TFormWindow::TWindow::ShowSwitches() const {
    const auto& switches = FFormWindow.FForm.Switches;
    const HMENU menu = GetSystemMenu(Handle(), FALSE);
    for (std::size_t i = 0; i < switches.size(); ++i)
        CheckMenuItem(menu, static_cast<UINT>(kFirstSwitch + i * kSwitchStep),
                      switches[i].IsOn ? MF_CHECKED : MF_UNCHECKED);
}

bool TFormWindow::TWindow::PressSwitch(WPARAM command) {
    auto& switches = FFormWindow.FForm.Switches;
    const std::size_t index = (command - kFirstSwitch) / kSwitchStep;
    if (command < kFirstSwitch || index >= switches.size()) return false;
    TForm::TSwitch& pressed = switches[index];
    pressed.IsOn = !pressed.IsOn;
    ShowSwitches();
    pressed.OnClick(pressed.IsOn);
    return true;
}

SIZE TFormWindow::TWindow::DesignedSize(const RECT& work) const {
    const TScreen& screen = FFormWindow.Screen();
    const TForm& form = FFormWindow.FForm;
    RECT frame{0, 0, screen.Scale(form.ClientWidth), screen.Scale(form.ClientHeight)};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_EXSTYLE)));
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
        case WM_SIZE:
            if (FFormWindow.FForm.OnHeight && wParam != SIZE_MINIMIZED)
                FFormWindow.FForm.OnHeight(FFormWindow.Screen().Unscale(HIWORD(lParam)));
            break;
        case WM_SYSCOMMAND:
            if (PressSwitch(wParam)) return 0;
            break;
        case WM_TIMER:
            if (wParam == kRestTimer) {
                FFormWindow.PointerRests();
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
        case WM_ACTIVATEAPP:
            if (wParam != FALSE) PostMessageW(Handle(), kComeBackMessage, 0, 0);
            break;
        case kRestyleMessage:
            FFormWindow.Restyle();
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
