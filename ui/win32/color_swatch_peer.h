// The native side of a colour swatch: a sunken field of one colour.
#pragma once

#include "ui/controls.h"
#include "ui/win32/window_peer.h"

class TColorSwatchPeer : public TWindowPeer {
  public:
    TColorSwatchPeer(TFormWindow& form, TColorSwatch& swatch, HWND parent);

    void OnDraw(const DRAWITEMSTRUCT& item) override;

  protected:
    void ShowState() override;
};
