// Peers of what Windows knows as buttons: push buttons, check boxes, radio buttons, group boxes.
#pragma once

#include "ui/controls.h"
#include "ui/win32/window_peer.h"

class TPushButtonPeer : public TWindowPeer {
  public:
    TPushButtonPeer(TFormWindow& form, TButton& button, HWND parent);
    void OnCommand(WORD code) override;
    void Place(const TRect& place) override;

  private:
    /// Whether all of the window can be seen and nothing lies over it, on a ground that is everywhere the same.
    [[nodiscard]] bool IsWhole() const;
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
    void Update(TControlAspect aspect) override;

  protected:
    void ShowState() override;
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void ShowTabStops();
    /// Chooses the radio button that an arrow key leads to; false for other keys.
    bool Choose(WPARAM key);
};

/// A title and a line behind it. To other programs it is a group box around its controls.
class TGroupBoxPeer : public TWindowPeer {
  public:
    TGroupBoxPeer(TFormWindow& form, TGroupBox& group, HWND parent);
    void Place(const TRect& place) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    [[nodiscard]] int TitleHeight() const;
    void RedrawTitle() const;
    void Paint(HDC target) const;
};
