// Peers of a card or header, and of the texts on it.
#pragma once

#include "ui/controls.h"
#include "ui/win32/container_peer.h"

/// A screen reader says a card's caption whenever it changes; it is not drawn.
class TCardPeer : public TContainerPeer {
  public:
    TCardPeer(TFormWindow& form, TPanel& card, HWND parent);
    void Update(TControlAspect aspect) override;
    [[nodiscard]] TSpoken Spoken() const override { return {.IsAlert = Look() == TPanelLook::Card}; }

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    [[nodiscard]] RECT ContentArea() const override;

  private:
    [[nodiscard]] TPanelLook Look() const { return static_cast<const TPanel&>(Control()).Look; }
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
    LONG DrawNotice(HDC target, RECT area, COLORREF color) const;
    void DrawLines(HDC target, RECT area, COLORREF noticeColor) const;
};
