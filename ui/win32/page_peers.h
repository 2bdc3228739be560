// Peers of the notebook and its pages, and of tabs and their sheets.
#pragma once

#include "ui/containers.h"
#include "ui/win32/container_peer.h"

/// Its pages fill it. The windows of a page, and those of each of its sheets, are created when it is first shown, or
/// when there is nothing else to do (TFormWindow::Run).
class TNotebookPeer : public TContainerPeer {
  public:
    TNotebookPeer(TFormWindow& form, TNotebook& notebook, HWND parent);

    /// Creates a page's window, still without content.
    void CreatePage(TControl& page);

  protected:
    void ShowState() override;
    void PlaceContent(const TRect& area) override;
    [[nodiscard]] bool IsCovered() const override { return true; }
};

/// The tabs. The sheets are windows beside it that lie over its display area.
class TPageControlPeer : public TWindowPeer {
  public:
    TPageControlPeer(TFormWindow& form, TPageControl& tabs, HWND parent);
    void Update(TControlAspect aspect) override;
    LRESULT OnNotify(NMHDR& header) override;
    void Place(const TRect& place) override;

  protected:
    void ShowState() override;
    void ShowItems() override;

  private:
    void PlaceSheets();
};

class TTabSheetPeer : public TContainerPeer {
  public:
    TTabSheetPeer(TFormWindow& form, TTabSheet& sheet, HWND parent);
    void Update(TControlAspect aspect) override;
    void Restyle() override;

  protected:
    [[nodiscard]] bool IsShown() const override;
    [[nodiscard]] RECT ContentArea() const override;
};
