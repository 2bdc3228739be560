// Peers of labels, edits and drop-down lists.
#pragma once

#include "ui/controls.h"
#include "ui/win32/window_peer.h"

class TLabelPeer : public TWindowPeer {
  public:
    TLabelPeer(TFormWindow& form, TLabel& label, HWND parent);
};

class TEditPeer : public TWindowPeer {
  public:
    TEditPeer(TFormWindow& form, TEdit& edit, HWND parent);
    void OnCommand(WORD code) override;
    void Place(const TRect& place) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void ShowState() override;
    [[nodiscard]] std::wstring WindowText() const override;

  private:
    LRESULT OnEditMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// Leaves the text no more than its line, in the middle of the frame, and the up-down its place.
    void ShrinkClient(RECT& area) const;
    void PaintAroundText() const;
    [[nodiscard]] TEdit& Edit() const { return static_cast<TEdit&>(Control()); }
    /// Draws the caption into an edit that is empty. Windows could do that since XP, and only with a theme.
    void PaintCue() const;

    bool FShowing = false;
    std::wstring FWhole;  ///< what the program showed last; the window may hold the beginning only
};

class TComboBoxPeer : public TWindowPeer {
  public:
    TComboBoxPeer(TFormWindow& form, TComboBox& box, HWND parent);
    void OnCommand(WORD code) override;
    void Place(const TRect& place) override;

  protected:
    void ShowState() override;
    void ShowItems() override;

  private:
    TRect FGiven;  ///< the place of the closed box
};
