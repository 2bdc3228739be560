// Peers of the controls that hold others: they lay out their content, scroll it when it is taller than they are,
// and hand the messages of the windows in them back to those windows' peers.
#pragma once

#include <deque>
#include <optional>
#include <utility>

#include "ui/layout.h"
#include "ui/win32/window_peer.h"

/// The window class of containers that have none of their own.
inline constexpr const wchar_t* kContainerClass = L"TQuilltune_Container";

/// Keeps a flag set while it lives, whatever fault ends its scope.
class TFlagScope {
  public:
    explicit TFlagScope(bool& flag) : FFlag(flag) { FFlag = true; }
    ~TFlagScope() { FFlag = false; }
    TFlagScope(const TFlagScope&) = delete;
    TFlagScope& operator=(const TFlagScope&) = delete;

  private:
    bool& FFlag;
};

class TContainerPeer : public TWindowPeer {
  public:
    /// `margin` is the distance between the edges and the content at 96 dots per inch.
    TContainerPeer(TFormWindow& form, TControl& control, int margin)
        : TWindowPeer(form, control), FMargin(margin) {}

    ~TContainerPeer() override;

    void Update(TControlAspect aspect) override;
    /// A container that is hidden takes its place when it is shown.
    void Place(const TRect& place) override;

    /// Places the content anew; that of a container that is hidden, when it is shown.
    virtual void LayOut();
    /// Does at once what waits until the container is shown.
    void CatchUp();

    /// Creates the peers of the controls in the container, as far as they do not exist yet and do not come late.
    void CreateContent();
    /// Creates and places what the container is still without.
    void Fill();
    /// Creates the peer of a control that comes late, where it would be had it not.
    void CreateLate(TControl& control);
    /// Creates one more peer, or when all of them exist, places one; false when nothing waits any more.
    bool FillNext();

    /// Scrolls so that an inner window is in sight.
    void ScrollTo(HWND inner);

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Creates a window that is a dialog to Windows: keyboard navigation passes through it, and themes paint
    /// its background.
    void CreateContainer(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extendedStyle);

    /// The part of the client area that the content may use.
    [[nodiscard]] virtual RECT ContentArea() const;
    [[nodiscard]] int Margin() const;
    /// The height of the content at a width.
    [[nodiscard]] virtual int ContentHeight(int width) const;
    virtual void PlaceContent(const TRect& area);
    /// Whether the content leaves nothing of the container to be seen, and what it gains in size is drawn with that.
    [[nodiscard]] virtual bool IsCovered() const { return false; }
    /// How the window is drawn when it moves to the place: flags of SetWindowPos.
    [[nodiscard]] UINT MoveFlags(const TRect& place) const;

  private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Creates the first peer that does not exist yet; false when all of them exist.
    bool CreateNext();
    /// Does the next of what CatchUp does; false when nothing waits any more.
    bool CatchUpNext();
    void LayOutContent();
    LRESULT Reflect(UINT message, WPARAM wParam, LPARAM lParam);
    [[nodiscard]] SCROLLINFO ScrollState() const;
    void Scroll(WPARAM request);
    /// False when there is nothing more to scroll in that direction.
    bool ScrollBy(int distance);
    /// Scrolls as the wheel was turned: up by WHEEL_DELTA for a notch, or by parts of it. False like ScrollBy.
    bool ScrollByWheel(int delta);
    /// Hands a message to all the container's windows.
    void Forward(UINT message, WPARAM wParam, LPARAM lParam) const;
    void SetScrollRange(int content, int visible);

    int FMargin;
    bool FLayingOut = false;
    std::size_t FNextControl = 0;                        ///< of the content, to be created
    bool FStale = false;                                 ///< the content waits to be laid out
    std::optional<TRect> FNextPlace;                     ///< waits to be taken
    std::deque<std::pair<TWindowPeer*, TRect>> FPlaces;  ///< of the content, that wait to be taken
    int FWheelRest = 0;  ///< of the wheel's turns: less than a pixel, in pixels times WHEEL_DELTA
};

/// A container without a look of its own.
class TPlainContainerPeer : public TContainerPeer {
  public:
    TPlainContainerPeer(TFormWindow& form, TControl& control, HWND parent, int margin);

  protected:
    [[nodiscard]] bool IsCovered() const override;
};
