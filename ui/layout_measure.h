// How large the boxes of a container have to be, and how far apart they stand.
#pragma once

#include "ui/form.h"
#include "ui/layout_metrics.h"

/// Measures the boxes of one container.
class TLayoutMeasure {
  public:
    /// What rows of fields share.
    struct TFieldWidths {
        int First = 0;  ///< of the first control of each; 0 = its own
        int Lists = 0;  ///< of their drop-down lists

        /// The width of a row's part that would be `width` wide on its own.
        [[nodiscard]] int WidthOf(const TLayoutBox& part, std::size_t index, int width) const;
    };

    TLayoutMeasure(const TForm& form, const TLayoutMetrics& metrics) : FForm(form), FMetrics(metrics) {}

    /// See TLayout.
    [[nodiscard]] TSize ContentSize(const TControl& container, int width);
    /// Finds the column in which all fields of a container begin, on which the other answers depend.
    void AlignFields(const TLayoutBox& content, int width);

    [[nodiscard]] TSize Measure(const TLayoutBox& box, int width) const;
    [[nodiscard]] TSize MeasureColumn(const TLayoutBox& box, int width) const;
    [[nodiscard]] TSize MeasureRow(const TLayoutBox& box, int width, const TFieldWidths& widths) const;
    /// The width of a row that has all the room that it wants.
    [[nodiscard]] int LineWidth(const TLayoutBox& row) const;
    /// The size of a row's part, of which the others leave `width`.
    [[nodiscard]] TSize PartSize(const TLayoutBox& row, std::size_t index, int width,
                                 const TFieldWidths& widths) const;
    /// Of a row of fields that is `width` wide.
    [[nodiscard]] TFieldWidths FirstWidth(int width) const;
    [[nodiscard]] TFieldWidths FieldWidths(const TLayoutBox& fields, int width) const;

    /// The distance between a box and the one before it in the same column or row.
    [[nodiscard]] int GapBefore(const TLayoutBox& box, std::size_t index) const;
    /// How far controls are set in below the one that they depend on.
    [[nodiscard]] int Indent() const;
    /// What a group box leaves to its controls.
    [[nodiscard]] TRect InsideGroup(const TRect& group) const;

  private:
    /// What the rows of a container need before and behind the left edge of their fields.
    struct TFieldNeeds {
        int Before = 0;
        int Behind = 0;
    };

    void AddFieldNeeds(const TLayoutBox& box, int offset, bool isField, TFieldNeeds& needs) const;
    [[nodiscard]] TSize MeasureControl(const TControl& control, int width) const;
    [[nodiscard]] TSize MeasureLine(const TLayoutBox& box, int width) const;
    [[nodiscard]] TSize MeasureFields(const TLayoutBox& box, int width) const;
    [[nodiscard]] TSize TextLine(const TControl& control, int width) const;

    const TForm& FForm;
    const TLayoutMetrics& FMetrics;
    int FFieldRoom = 0;  ///< between the column of the fields and the right edge
};
