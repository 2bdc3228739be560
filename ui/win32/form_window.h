// The native window of a form, and what all its peers share.
#pragma once

#include <deque>
#include <exception>
#include <set>
#include <unordered_map>

#include "ui/form.h"
#include "ui/win32/accessible_description.h"
#include "ui/win32/container_peer.h"
#include "ui/win32/marks.h"
#include "ui/win32/picture_store.h"
#include "ui/win32/screen.h"

class TTimer;

class TFormWindow : public TFormPeer {
  public:
    /// Told of every exception that an event handler lets out; the program then goes on.
    using TFaultHandler = std::function<void(std::exception_ptr fault)>;
    /// Messages of the program's own (WM_USER and above) and WM_COPYDATA; true when it was one.
    using TMessageHandler = std::function<bool(UINT message, LPARAM lParam)>;

    /// Creates the window, invisible and empty. See Attach.
    TFormWindow(TForm& form, HINSTANCE instance, TFaultHandler faultHandler, HWND owner = nullptr);

    /// Makes the native window of a form, owned by the form. With an owner it is a dialog over that window.
    static TFormWindow& Attach(TForm& form, HINSTANCE instance, TFaultHandler faultHandler,
                               HWND owner = nullptr);

    /// Runs the form's OnShow, then creates its controls and shows the window.
    void Show(int showCommand);
    /// Handles messages until the program is to end; a dialog's, until the dialog is closed. Creates what is hidden,
    /// a control at a time, while there is nothing else to do. The answer is the program's exit code.
    int Run();
    /// Restores the window when it is minimised, and brings it to the front.
    void ComeForward();

    void Close() override;
    /// Its faults are told to this window's handler.
    void ShowModal(TForm& dialog) override;
    void Reveal(TControl& control) override;
    void Update(TControlAspect aspect) override;

    TMessageHandler OnMessage;

    [[nodiscard]] HWND Handle() const { return FWindow.Handle(); }
    [[nodiscard]] HINSTANCE Instance() const { return FInstance; }
    [[nodiscard]] const TForm& Form() const { return FForm; }
    [[nodiscard]] const TScreen& Screen() const { return *FScreen; }
    [[nodiscard]] TPictureStore& Pictures() { return FPictures; }
    [[nodiscard]] TMarks& Marks() { return FMarks; }
    [[nodiscard]] TAccessibleDescriptions& Accessible() { return FAccessible; }

    // For the peers.
    void Register(HWND window, TWindowPeer& peer) { FPeers[window] = &peer; }
    void Unregister(HWND window) { FPeers.erase(window); }
    [[nodiscard]] TWindowPeer* PeerOf(HWND window) const;
    [[nodiscard]] int CommandId(const TControl& control);
    /// Lays the control's container out anew once the present message is handled.
    void LayOutLater(const TControl& control);
    void Fault(std::exception_ptr fault) const;
    /// Commits the edit that has the focus: a button can be pressed without taking the focus from it.
    void CommitFocus() const;
    /// Creates what is to be seen of a notebook page, as far as it does not exist yet: its window, its content and that
    /// of its sheets.
    void CreatePage(TControl& page);
    /// Lets the timer tick until StopTimer; the answer identifies it.
    [[nodiscard]] unsigned StartTimer(TTimer& timer);
    void StopTimer(unsigned id);

  private:
    /// The window itself.
    class TWindow : public TContainerPeer {
      public:
        TWindow(TFormWindow& formWindow, TForm& form);
        void Open();
        LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

        void Restyle() override;

      private:
        void AddSwitches();
        void ShowSwitches() const;
        bool PressSwitch(WPARAM command);
        /// The size of the window that gives the form its client area, no larger than the work area.
        [[nodiscard]] SIZE DesignedSize(const RECT& work) const;
        void SetInitialSize();

        TFormWindow& FFormWindow;
        SIZE FMinimum{};
    };

    /// Whether this is a dialog that is closed.
    [[nodiscard]] bool IsOver() const { return FOwner != nullptr && Handle() == nullptr; }
    bool CreateNext();
    /// Whether the notebook's first page is still being created.
    [[nodiscard]] bool CreatesFirstPage() const;
    bool NextMessage(MSG& message) const;
    bool StepSheet(const MSG& message) const;
    bool PressButton(const MSG& message) const;
    bool PressFindKey(const MSG& message);
    void ScrollTo(HWND window) const;
    /// Scrolls what has got the focus into sight, and tells the form of it.
    void FollowFocus();
    /// Waits for the pointer's rest when it has moved.
    void FollowPointer(const MSG& message);
    void PointerRests();
    bool AskHelp(const MSG& message) const;
    /// The control of a window or of one around it; null when there is none.
    [[nodiscard]] TControl* ControlOf(HWND window) const;
    /// The control below a point of the screen, enabled or not.
    [[nodiscard]] TControl* ControlAt(POINT point) const;
    void Tell(const TForm::TControlEvent& event, TControl* control) const;
    void LayOutChanged();
    /// Follows a change of the look of Windows once the present message is handled.
    void RestyleLater();
    void Restyle();
    void Destroyed();

    TForm& FForm;
    HINSTANCE FInstance;
    HWND FOwner;  ///< of a dialog: the window that waits for it
    TFaultHandler FFaultHandler;
    std::unique_ptr<TScreen> FScreen = std::make_unique<TScreen>();
    TPictureStore FPictures;
    TAccessibleDescriptions FAccessible;
    TMarks FMarks;
    std::unordered_map<HWND, TWindowPeer*> FPeers;
    std::set<const TControl*> FChanged;  ///< containers to lay out
    std::deque<TControl*>
        FUnfilled;  ///< pages and sheets that may lack content, in the order of its creation
    std::unordered_map<unsigned, TTimer*> FTimers;
    HWND FFocus = nullptr;  ///< as the form knows it
    POINT FPointer{};
    HWND FNextFocus = nullptr;  ///< gets the focus when the window waits no longer for a dialog
    bool FRestyles = false;     ///< a change of the look waits
    int FLastCommandId = 100;
    unsigned FLastTimerId = 0;
    TWindow FWindow;
};
