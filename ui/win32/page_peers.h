// Peers of the notebook and its pages, and of tabs and their sheets.
#pragma once

#include "ui/containers.h"
#include "ui/win32/container_peer.h"

/// Its pages fill it; the content of each is created when the page is first shown.
class TNotebookPeer : public TContainerPeer {
  public:
    TNotebookPeer(TFormWindow& form, TNotebook& notebook, HWND parent);

  protected:
    void PlaceContent(const TRect& area) override;
};

class TNotebookPagePeer : public TPlainContainerPeer {
  public:
    TNotebookPagePeer(TFormWindow& form, TNotebookPage& page, HWND parent);
    void Update(TControlAspect aspect) override;
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

  protected:
    [[nodiscard]] bool IsShown() const override;
};
