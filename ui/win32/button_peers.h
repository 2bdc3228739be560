// Peers of what Windows knows as buttons: push buttons, check boxes, radio buttons, group boxes.
#pragma once

#include "ui/controls.h"
#include "ui/win32/window_peer.h"

class TPushButtonPeer : public TWindowPeer {
  public:
    TPushButtonPeer(TFormWindow& form, TButton& button, HWND parent);
    void OnCommand(WORD code) override;
};

class TCheckBoxPeer : public TWindowPeer {
  public:
    TCheckBoxPeer(TFormWindow& form, TCheckBox& box, HWND parent);
    void OnCommand(WORD code) override;

  protected:
    void ShowState() override;
};

class TRadioButtonPeer : public TWindowPeer {
  public:
    TRadioButtonPeer(TFormWindow& form, TRadioButton& button, HWND parent);
    void OnCommand(WORD code) override;

  protected:
    void ShowState() override;

  private:
    void ShowTabStops();
};

class TGroupBoxPeer : public TWindowPeer {
  public:
    TGroupBoxPeer(TFormWindow& form, TGroupBox& group, HWND parent);
};
