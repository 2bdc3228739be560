// The native window of a form, and what all its peers share.
#pragma once

#include <exception>
#include <set>
#include <unordered_map>

#include "base/win32/late_bound.h"
#include "ui/form.h"
#include "ui/win32/accessible_description.h"
#include "ui/win32/attention.h"
#include "ui/win32/container_peer.h"
#include "ui/win32/marks.h"
#include "ui/win32/page_filler.h"
#include "ui/win32/panes.h"
#include "ui/win32/picture_store.h"
#include "ui/win32/screen.h"
#include "ui/win32/window_menu.h"

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
    /// some controls at a time, while there is nothing else to do. The answer is the program's exit code.
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
    [[nodiscard]] TForm& Form() const { return FForm; }
    [[nodiscard]] const TScreen& Screen() const { return *FScreen; }
    [[nodiscard]] TPictureStore& Pictures() { return FPictures; }
    [[nodiscard]] TMarks& Marks() { return FMarks; }
    [[nodiscard]] TPanes& Panes() { return FPanes; }
    [[nodiscard]] TAccessibleDescriptions& Accessible() { return FAccessible; }

    // For the peers.
    void Register(HWND window, TWindowPeer& peer) { FPeers[window] = &peer; }
    void Unregister(HWND window) { FPeers.erase(window); }
    [[nodiscard]] TWindowPeer* PeerOf(HWND window) const;
    /// The control of a window or of one around it; null when there is none.
    [[nodiscard]] TControl* ControlOf(HWND window) const;
    /// Scrolls a control's window into sight.
    void ScrollTo(HWND window) const;
    /// Fires an event of the form; its fault is told like that of any handler.
    void Tell(const TForm::TControlEvent& event, TControl* control) const;
    [[nodiscard]] int CommandId(const TControl& control);
    /// Lays the control's container out anew once the present message is handled.
    void LayOutLater(const TControl& control);
    void Fault(std::exception_ptr fault) const;
    /// Draws at once whatever waits for it: a user who resizes the window or goes to another page sees it whole, and not window
    /// by window.
    void DrawAll() const;
    /// Commits the edit that has the focus: a button can be pressed without taking the focus from it.
    void CommitFocus() const;
    /// See TContainerPeer.
    void CreateLate(TControl& control) { FWindow.CreateLate(control); }
    /// See TPageFiller.
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
        void Appear(int showCommand);
        LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

        void Restyle() override;

      private:
        /// The size of the window that gives the form its client area, no larger than the work area.
        [[nodiscard]] SIZE DesignedSize(const RECT& work) const;
        void SetInitialSize();

        TFormWindow& FFormWindow;
        TWindowMenu FMenu;
        SIZE FMinimum{};
    };

    // Posted to itself.
    static constexpr UINT kLayOutMessage = WM_APP;        ///< containers wait to be laid out
    static constexpr UINT kRestyleMessage = WM_APP + 1;   ///< the look of Windows has changed
    static constexpr UINT kComeBackMessage = WM_APP + 2;  ///< another program was in front

    /// Whether this is a dialog that is closed.
    [[nodiscard]] bool IsOver() const { return FOwner != nullptr && Handle() == nullptr; }
    bool NextMessage(MSG& message) const;
    void LayOutChanged();
    /// Follows a change of the look of Windows once the present message is handled.
    void RestyleLater();
    void Restyle(int dotsPerInch);
    void Destroyed();

    TForm& FForm;
    HINSTANCE FInstance;
    HWND FOwner;  ///< of a dialog: the window that waits for it
    TFaultHandler FFaultHandler;
    std::unique_ptr<TScreen> FScreen = std::make_unique<TScreen>(DotsPerInchOf(nullptr));
    TPictureStore FPictures;
    TAccessibleDescriptions FAccessible;
    TMarks FMarks;
    std::unordered_map<HWND, TWindowPeer*> FPeers;
    std::set<const TControl*> FChanged;  ///< containers to lay out
    TPageFiller FFiller{*this};
    TAttention FAttention{*this};
    TPanes FPanes{*this};
    std::unordered_map<unsigned, TTimer*> FTimers;
    HWND FNextFocus = nullptr;  ///< gets the focus when the window waits no longer for a dialog
    bool FRestyles = false;     ///< a change of the look waits
    bool FIsRestyling = false;  ///< half of the windows have the new look
    int FLastCommandId = 100;
    unsigned FLastTimerId = 0;
    TWindow FWindow;
};
