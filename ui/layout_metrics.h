// Sizes, places and what a layout has to know of the screen.
#pragma once

#include <string>

struct TSize {
    int Width = 0;
    int Height = 0;
};

struct TRect {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;

    bool operator==(const TRect&) const = default;
};

/// Between the edges of a card and its content, at 96 dots per inch.
inline constexpr int kCardPadding = 4;
/// Below the content of a header, with its line.
inline constexpr int kHeaderFoot = 8;

/// The arrows of an up-down, or of a combo box, at 96 dots per inch.
inline constexpr int kArrowWidth = 17;
/// What Windows draws around a field: pixels, at every resolution.
inline constexpr int kFieldFrame = 2;

/// What a layout has to know of the screen. All results are in pixels.
class TLayoutMetrics {
  public:
    virtual ~TLayoutMetrics() = default;

    /// Size of a caption in the window's font ("&" marks the access key), wrapped at words when it is wider
    /// than `maxWidth`.
    [[nodiscard]] virtual TSize TextSize(const std::wstring& caption, int maxWidth) const = 0;

    /// A distance given for 96 dots per inch, in pixels of this screen.
    [[nodiscard]] virtual int Scale(int distance) const = 0;
};
