// The native side of a list whose rows can be selected. Windows asks for the texts when it shows them, so that a list may
// be long.
#pragma once

#include <array>

#include "ui/win32/list_view_peer.h"

class TTablePeer : public TListViewPeer {
  public:
    TTablePeer(TFormWindow& form, TListView& list, HWND parent);

    LRESULT OnNotify(NMHDR& header) override;
    [[nodiscard]] TSpoken Spoken() const override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void ShowState() override;
    void ShowItems() override;

  private:
    /// Makes the columns as wide as their captions and texts, as far as all of them find room, and the last one wide
    /// enough to fill the list; nothing once the user has made a column as wide as he likes it.
    void FitColumns() override;
    /// False when the list itself is to handle the message.
    bool OnKey(UINT message, WPARAM key);
    /// A cell's text as Windows asks for it: to draw it, when it is too long for its column, or to tell it.
    [[nodiscard]] const std::wstring& TextOf(std::size_t row, std::size_t cell);
    [[nodiscard]] bool Fits(const std::wstring& text, std::size_t cell) const;
    /// The whole of a row of which a text is too long for its column, a line for each text.
    [[nodiscard]] std::wstring TipOf(std::size_t row) const;
    void DrawEmptyText() const;
    /// Whether the message is a key that the list has a use for though the form has one, too.
    [[nodiscard]] bool Takes(const MSG& message) const;
    /// Whether Enter opens a row; else it presses the default button.
    [[nodiscard]] bool TakesEnter() const;
    /// Tells what the user has done. Called when the message that it came from is done: a click first clears the
    /// selection and then selects a row.
    void FireEvents();
    [[nodiscard]] std::vector<std::size_t> SelectedRows() const;
    [[nodiscard]] int FocusedRow() const;
    /// The number of the first row from `start` on, round and round, that begins with the text; -1 when none does.
    [[nodiscard]] int FindRow(const NMLVFINDITEMW& search) const;

    bool FShowing = false;     ///< the list reports what the peer itself does to it
    int FDepth = 0;            ///< of the messages being handled
    bool FHasChanged = false;  ///< the user has changed the selection or the focus
    bool FDeletes = false;     ///< the user has pressed Delete
    bool FEscapes = false;     ///< … Escape
    int FOpened = -1;          ///< the row that the user has opened
    bool FHasOwnWidths = false;
    bool FDraws = false;
    /// The texts that Windows was told last to draw. It may look at one until it has asked for two more (NMLVDISPINFO).
    std::array<std::wstring, 3> FDrawn;
};
