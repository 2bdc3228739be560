// The colours and inner distances of the category bar, and the colours of panels and their texts, in one place.
#pragma once

#include "ui/containers.h"
#include "ui/win32/screen.h"

/// Colours follow the user's: tints of the window colour, or under a dark or a high-contrast scheme the system's own
/// colours alone. Taken when the object is made, so one is made for each painting.
class TCategoryColors {
  public:
    TCategoryColors();

    [[nodiscard]] COLORREF Bar() const { return FBar; }
    [[nodiscard]] COLORREF Frame() const { return FFrame; }
    [[nodiscard]] COLORREF Header() const { return FHeader; }
    [[nodiscard]] COLORREF HeaderLine() const { return FHeaderLine; }
    [[nodiscard]] COLORREF HeaderText() const { return FHeaderText; }

    /// Of texts and lines on a ground. A colour that could not be read there gives way to that of plain texts.
    struct TPanel {
        COLORREF Ground;
        COLORREF Text;
        COLORREF Title;
        COLORREF Quiet;
        COLORREF Line;
        COLORREF Notice;
    };
    [[nodiscard]] TPanel Panel(TPanelLook look) const;
    [[nodiscard]] COLORREF Accent() const { return FAccent; }

    struct TItem {
        COLORREF Ground;
        COLORREF Frame;
        COLORREF Text;
    };
    /// The colours of an item that the pointer is on (`hot`) or that is being pressed.
    [[nodiscard]] TItem Item(const TCategoryItem& item, bool hot, bool pressed) const;

  private:
    [[nodiscard]] COLORREF Tint(int percent) const;
    [[nodiscard]] TItem SystemItem(const TCategoryItem& item, bool hot) const;

    bool FSystemOnly;
    COLORREF FBar;
    COLORREF FFrame;
    COLORREF FHeader;
    COLORREF FHeaderLine;
    COLORREF FHeaderText;
    COLORREF FAccent;
};

/// Distances in pixels of the screen.
struct TCategoryMetrics {
    explicit TCategoryMetrics(const TScreen& screen);

    int GroupGap;      ///< the least distance between two groups
    int MostGroupGap;  ///< what it may grow to where there is room
    int HeaderHeight;
    int HeaderIndent;  ///< of the caption
    int ItemHeight;
    int LeastItemHeight;  ///< where the bar is low
    int PictureSize;
    int PictureLeft;
    int TextLeft;
    int TextRight;  ///< between an item's caption and its right edge
    int DotRight;   ///< between a marked item's dot and its right edge
    int MarkWidth;  ///< the bar at the left edge of the selected item
};
