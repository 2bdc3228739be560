// The native side of an image.
#pragma once

#include "ui/controls.h"
#include "ui/win32/window_peer.h"

class TImagePeer : public TWindowPeer {
  public:
    TImagePeer(TFormWindow& form, TImage& image, HWND parent);

    void OnDraw(const DRAWITEMSTRUCT& item) override;

  protected:
    void ShowState() override;
};
