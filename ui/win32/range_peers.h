// Peers of track bars and up-downs, and the one that makes timers tick.
#pragma once

#include "ui/controls.h"
#include "ui/win32/window_peer.h"

class TTrackBarPeer : public TWindowPeer {
  public:
    TTrackBarPeer(TFormWindow& form, TTrackBar& bar, HWND parent);
    void OnScroll() override;

  protected:
    void ShowState() override;
};

class TUpDownPeer : public TWindowPeer {
  public:
    TUpDownPeer(TFormWindow& form, TUpDown& upDown, HWND parent);
    LRESULT OnNotify(NMHDR& header) override;
    void Place(const TRect& place) override;

  protected:
    void ShowState() override;

  private:
    /// With the edit that shows its position.
    void Pair();

    bool FIsPaired = false;
};

class TTimerPeer : public TPeer {
  public:
    TTimerPeer(TFormWindow& form, TTimer& timer);
    void Update(TControlAspect aspect) override;

  private:
    TFormWindow& FForm;
    TTimer& FTimer;
    unsigned FId = 0;  ///< 0 while it does not run
};
