// The native side of a list with columns and check boxes.
#pragma once

#include "ui/controls.h"
#include "ui/win32/window_peer.h"

class TListViewPeer : public TWindowPeer {
  public:
    TListViewPeer(TFormWindow& form, TListView& list, HWND parent);

    void Update(TControlAspect aspect) override;
    LRESULT OnNotify(NMHDR& header) override;
    void Place(const TRect& place) override;

  protected:
    void ShowState() override;
    void ShowItems() override;

  private:
    void ShowColumns();
    void InsertRows();
    /// Makes every column as wide as its caption and its texts, and the last one wide enough to fill the list.
    void FitColumns();

    bool FShowing =
        false;  ///< the list reports what the peer itself does to it; those reports are not the user's
};
