// Computes where controls stand, from the size of their texts and a few distances. Portable: the native side only
// measures texts and moves windows.
#pragma once

#include "ui/layout_measure.h"

/// What each of those who want these widths gets of a total: what it wants, or where that is too much, none more than a
/// fair share. The last one gets what is left over.
[[nodiscard]] std::vector<int> FairShares(std::vector<int> wanted, int total);

/// Lays out one container. Group boxes are frames only: their controls lie in the same coordinates. Every other
/// container in the box is placed as a whole and lays out its own content.
class TLayout {
  public:
    /// Told the place of each control.
    using TPlace = std::function<void(TControl& control, const TRect& place)>;

    TLayout(const TForm& form, const TLayoutMetrics& metrics)
        : FForm(form), FMetrics(metrics), FMeasure(form, metrics) {}

    /// The size that the content of `container` needs when no more than `width` is there, without any margin.
    /// The width may come out larger when a control cannot be that narrow.
    [[nodiscard]] TSize ContentSize(const TControl& container, int width) {
        return FMeasure.ContentSize(container, width);
    }

    /// Places the content of `container` into `area`.
    void Arrange(const TControl& container, const TRect& area, const TPlace& place);

  private:
    using TFieldWidths = TLayoutMeasure::TFieldWidths;

    void Put(const TLayoutBox& box, const TRect& area, const TPlace& place) const;
    void PutControl(TControl& control, const TRect& area, const TPlace& place) const;
    void PutColumn(const TLayoutBox& box, const TRect& area, const TPlace& place) const;
    void PutRow(const TLayoutBox& box, const TRect& area, const TFieldWidths& widths,
                const TPlace& place) const;

    const TForm& FForm;
    const TLayoutMetrics& FMetrics;
    TLayoutMeasure FMeasure;
};
