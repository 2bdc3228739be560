// Peers of the category bar and its groups. They lay out their own content: the look of the bar decides the
// distances, not a form's design.
#pragma once

#include "ui/containers.h"
#include "ui/win32/category_item_peer.h"
#include "ui/win32/category_look.h"
#include "ui/win32/container_peer.h"

/// A framed column of groups that scrolls when it is too tall.
class TCategoryBarPeer : public TContainerPeer {
  public:
    TCategoryBarPeer(TFormWindow& form, TCategoryBar& bar, HWND parent);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Until a key is used nobody looks for the focus.
    [[nodiscard]] bool ShowsFocus() const { return FShowsFocus; }
    void ShowFocus();

  protected:
    [[nodiscard]] int ContentHeight(int width) const override;
    void PlaceContent(const TRect& area) override;

  private:
    void PaintFrame() const;

    bool FShowsFocus = false;
};

/// A header with the group's caption, and the items below it.
class TCategoryGroupPeer : public TContainerPeer {
  public:
    TCategoryGroupPeer(TFormWindow& form, TCategoryGroup& group, HWND parent);
    void LayOut() override;
    void Update(TControlAspect aspect) override;
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// The height of the header and the visible items.
    [[nodiscard]] static int Height(const TControl& group, const TCategoryMetrics& metrics, int itemHeight);

  private:
    void PlaceItems();
    void Paint(HDC target) const;
};
