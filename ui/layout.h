// Computes where controls stand, from the size of their texts and a few distances. Portable: the native side only
// measures texts and moves windows.
#pragma once

#include "ui/form.h"

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

/// What each of those who want these widths gets of a total: what it wants, or where that is too much, none more than a
/// fair share. The last one gets what is left over.
[[nodiscard]] std::vector<int> FairShares(std::vector<int> wanted, int total);

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

/// Lays out one container. Group boxes are frames only: their controls lie in the same coordinates. Every other
/// container in the box is placed as a whole and lays out its own content.
class TLayout {
  public:
    /// Told the place of each control.
    using TPlace = std::function<void(TControl& control, const TRect& place)>;

    TLayout(const TForm& form, const TLayoutMetrics& metrics) : FForm(form), FMetrics(metrics) {}

    /// The size that the content of `container` needs when no more than `width` is there, without any margin.
    /// The width may come out larger when a control cannot be that narrow.
    [[nodiscard]] TSize ContentSize(const TControl& container, int width);

    /// Places the content of `container` into `area`.
    void Arrange(const TControl& container, const TRect& area, const TPlace& place);

  private:
    /// What rows of fields share.
    struct TFieldWidths {
        int First = 0;  ///< of the first control of each; 0 = its own
        int Lists = 0;  ///< of their drop-down lists

        /// The width of a row's part that would be `width` wide on its own.
        [[nodiscard]] int WidthOf(const TLayoutBox& part, std::size_t index, int width) const;
    };
    /// What the rows of a container need before and behind the left edge of their fields.
    struct TFieldNeeds {
        int Before = 0;
        int Behind = 0;
    };

    /// Finds the column in which all fields of a container begin.
    void AlignFields(const TLayoutBox& content, int width);
    void AddFieldNeeds(const TLayoutBox& box, int offset, bool isField, TFieldNeeds& needs) const;
    /// Of a row that is `width` wide.
    [[nodiscard]] TFieldWidths FirstWidth(int width) const;
    /// The size of a row's part, of which the others leave `width`.
    [[nodiscard]] TSize PartSize(const TLayoutBox& row, std::size_t index, int width,
                                 const TFieldWidths& widths) const;

    [[nodiscard]] TSize Measure(const TLayoutBox& box, int width) const;
    [[nodiscard]] TSize MeasureControl(const TControl& control, int width) const;
    [[nodiscard]] TSize MeasureColumn(const TLayoutBox& box, int width) const;
    [[nodiscard]] TSize MeasureRow(const TLayoutBox& box, int width, const TFieldWidths& widths) const;
    [[nodiscard]] TSize MeasureLine(const TLayoutBox& box, int width) const;
    [[nodiscard]] TSize MeasureFields(const TLayoutBox& box, int width) const;
    [[nodiscard]] TFieldWidths FieldWidths(const TLayoutBox& fields, int width) const;
    void Put(const TLayoutBox& box, const TRect& area, const TPlace& place) const;
    void PutControl(TControl& control, const TRect& area, const TPlace& place) const;
    void PutColumn(const TLayoutBox& box, const TRect& area, const TPlace& place) const;
    void PutRow(const TLayoutBox& box, const TRect& area, const TFieldWidths& widths,
                const TPlace& place) const;
    [[nodiscard]] int GapBefore(const TLayoutBox& box, std::size_t index) const;
    [[nodiscard]] TSize TextLine(const TControl& control, int width) const;

    const TForm& FForm;
    const TLayoutMetrics& FMetrics;
    int FFieldRoom = 0;  ///< between the column of the fields and the right edge
};
