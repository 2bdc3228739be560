// Peers of a card and of the texts on it.
#pragma once

#include "ui/controls.h"
#include "ui/win32/container_peer.h"

/// A screen reader says the caption whenever it changes; it is not drawn.
class TCardPeer : public TContainerPeer {
  public:
    TCardPeer(TFormWindow& form, TPanel& card, HWND parent);
    void Update(TControlAspect aspect) override;
    [[nodiscard]] TSpoken Spoken() const override { return {.IsAlert = true}; }

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    [[nodiscard]] RECT ContentArea() const override;

  private:
    void Draw(HDC target) const;
};

/// A label of a fixed number of lines. Its window text is whole, whatever is cut.
class TCardLabelPeer : public TWindowPeer {
  public:
    TCardLabelPeer(TFormWindow& form, TLabel& label, HWND parent);
    void Update(TControlAspect aspect) override;
    void OnDraw(const DRAWITEMSTRUCT& item) override;

  private:
    void DrawWrapped(HDC target, RECT area) const;
    /// At the right end of the line; the answer is the width that is used up there.
    LONG DrawNotice(HDC target, RECT area) const;
    void DrawLines(HDC target, RECT area, int lineHeight) const;
};
