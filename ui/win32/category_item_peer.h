// The native side of an item of the category bar: a button that draws itself.
#pragma once

#include "ui/containers.h"
#include "ui/win32/window_peer.h"

class TCategoryBarPeer;

class TCategoryItemPeer : public TWindowPeer {
  public:
    TCategoryItemPeer(TFormWindow& form, TCategoryItem& item, HWND parent);

    void OnCommand(WORD code) override;
    void Update(TControlAspect aspect) override;
    [[nodiscard]] TSpoken Spoken() const override;
    [[nodiscard]] RECT DotPlace() const override;
    void OnDraw(const DRAWITEMSTRUCT& drawing) override;

  protected:
    void ShowState() override;
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    /// Moves the focus along the bar; false when the key does not do that.
    bool MoveFocus(WPARAM key);
    /// Makes this the one item that the Tab key stops at.
    void TakeTabStop();
    void ScrollIntoSight();
    void SetHot(bool hot);
    [[nodiscard]] TCategoryBarPeer* Bar() const;

    bool FHot = false;  ///< the pointer is on the item
};
