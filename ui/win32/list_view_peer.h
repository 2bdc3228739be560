// The native side of a list with columns, and that of one with check boxes.
#pragma once

#include "ui/controls.h"
#include "ui/win32/window_peer.h"

/// A text as the messages of lists want it. They read it only, though their type does not say so.
[[nodiscard]] inline LPWSTR MessageText(const std::wstring& text) { return const_cast<LPWSTR>(text.c_str()); }

class TListViewPeer : public TWindowPeer {
  public:
    using TWindowPeer::TWindowPeer;

    void Update(TControlAspect aspect) override;
    void Place(const TRect& place) override;

  protected:
    [[nodiscard]] TListView& List() const { return static_cast<TListView&>(Control()); }
    void CreateList(HWND parent, DWORD style);
    void SetExtendedStyle(DWORD style) const {
        Send(LVM_SETEXTENDEDLISTVIEWSTYLE, style, static_cast<LPARAM>(style));
    }
    void ShowColumns();
    virtual void FitColumns() = 0;
    /// The width of a text, with the space at its sides that a column has.
    [[nodiscard]] int WidthOf(const std::wstring& text) const;
    /// The width that all columns share.
    [[nodiscard]] int Width() const;
};

class TCheckListPeer : public TListViewPeer {
  public:
    TCheckListPeer(TFormWindow& form, TListView& list, HWND parent);

    LRESULT OnNotify(NMHDR& header) override;

  protected:
    void ShowState() override;
    void ShowItems() override;

  private:
    void InsertRows();
    /// Makes every column as wide as its caption and its texts, and the last one wide enough to fill the list.
    void FitColumns() override;

    bool FShowing =
        false;  ///< the list reports what the peer itself does to it; those reports are not the user's
};
