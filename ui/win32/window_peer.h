// The base of the native peers: one window that shows one control.
#pragma once

#include <windows.h>

#include <optional>

#include "ui/controls.h"
#include "ui/layout.h"
#include "ui/win32/accessible_description.h"
// After windows.h, which it needs.
#include <commctrl.h>

class TFormWindow;

class TWindowPeer : public TPeer {
  public:
    TWindowPeer(TFormWindow& form, TControl& control) : FForm(form), FControl(control) {}
    ~TWindowPeer() override;
    TWindowPeer(const TWindowPeer&) = delete;
    TWindowPeer& operator=(const TWindowPeer&) = delete;

    /// The window; null once it is destroyed.
    [[nodiscard]] HWND Handle() const { return FHandle; }
    [[nodiscard]] TControl& Control() const { return FControl; }

    void Update(TControlAspect aspect) override;

    // Messages that Windows sends to the parent and that the parent hands back to the window they are about.
    virtual void OnCommand(WORD /*code*/) {}
    virtual LRESULT OnNotify(NMHDR& /*header*/) { return 0; }
    virtual void OnScroll() {}
    virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}

    /// Takes over the fonts and measures that were changed in Windows; the window has to be placed anew.
    virtual void Restyle();

    /// Moves the window to its place in the parent; nothing happens when it is there.
    virtual void Place(const TRect& place);

    /// Hands the mouse wheel on to the parent, but for a drop-down list while it is open: a user who scrolls a sheet comes
    /// across its controls, and is not to change them. Subclass() comes before, and whatever else subclasses the window, or
    /// the wheel never comes here.
    void PassWheelOn();

    /// What a screen reader is to say of the control besides what it shows.
    [[nodiscard]] virtual TSpoken Spoken() const;

    /// Where in the parent the dot of a marked control is to be; empty while the control is not shown.
    [[nodiscard]] virtual RECT DotPlace() const;

    /// Where in the parent the frame around the control is to be, and how wide it is drawn.
    [[nodiscard]] RECT FramePlace() const;
    [[nodiscard]] int FrameWidth() const;

    /// Forgets the window, which is about to be destroyed, and withdraws its automation name.
    void Detach();

  protected:
    /// Creates the window with the control's caption, name, enabled and visible marks. Called once.
    void Create(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extendedStyle = 0);
    /// Takes over a window that was made otherwise.
    void Adopt(HWND handle);

    /// Lets OnMessage handle the messages of a window whose class is Windows' own.
    void Subclass();
    /// Lets screen readers know that the control's description is another one now.
    void ShowSpoken();
    /// Lets OnMessage handle a message, and tells its fault to the form: none may cross Windows' own frames.
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// Handles a message of the window.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

    /// Shows the control's state; called on creation too.
    virtual void ShowState() {}
    virtual void ShowItems() {}
    /// What the window's caption is to be.
    [[nodiscard]] virtual std::wstring WindowText() const { return FControl.Caption(); }
    [[nodiscard]] virtual bool IsShown() const;

    /// Where the window is in its parent.
    [[nodiscard]] RECT PlaceInParent() const;
    /// Where the window was placed last.
    [[nodiscard]] const TRect& Placed() const { return FPlace; }
    /// Moves the window; `flags` are those of SetWindowPos that say how it is drawn.
    void Move(const TRect& place, UINT flags);
    /// Has the parent draw anew where the window is, and the windows there with it; not inside of `hole`.
    void RedrawBelow(const RECT& hole = {}) const;

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(FHandle, message, wParam, lParam);
    }

    TFormWindow& FForm;

  private:
    void ShowMark();
    void ShowOrHide();
    static LRESULT CALLBACK SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK WheelProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    TControl& FControl;
    HWND FHandle = nullptr;
    WNDPROC FBaseProc = nullptr;        ///< of the window's class, once it is subclassed
    WNDPROC FProcBelowWheel = nullptr;  ///< what gets all but the wheel, once that is passed on
    TRect FPlace;
};

/// Whether the Tab key stops at the window.
void SetTabStop(HWND window, bool isStop);

/// The key that the message says is pressed, if it is one that controls may take for themselves.
[[nodiscard]] std::optional<TKey> KeyDown(UINT message, WPARAM wParam);
/// Whether Windows asks by WM_GETDLGCODE who gets such a key.
[[nodiscard]] bool AsksForKey(LPARAM lParam);

/// The window that shows `control`; nullptr while it has none.
[[nodiscard]] inline TWindowPeer* PeerOf(const TControl& control) {
    return dynamic_cast<TWindowPeer*>(control.Peer());
}
