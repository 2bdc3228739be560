#include "ui/layout.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "ui/controls.h"

std::vector<int> FairShares(std::vector<int> wanted, int total) {
    std::vector<std::size_t> order(wanted.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return wanted[a] < wanted[b]; });
    auto others = static_cast<int>(order.size());
    for (const std::size_t i : order) {
        wanted[i] = std::min(wanted[i], std::max(0, total) / others--);
        total -= wanted[i];
    }
    if (!wanted.empty()) wanted.back() += std::max(0, total);
    return wanted;
}

void TLayout::Arrange(const TControl& container, const TRect& area, const TPlace& place) {
    FMeasure.AlignFields(FForm.Layout(container), area.Width);
    Put(FForm.Layout(container), area, place);
}

void TLayout::Put(const TLayoutBox& box, const TRect& area, const TPlace& place) const {
    if (IsAbsent(box)) return;
    switch (box.Kind) {
        case TLayoutKind::Control:
            PutControl(*box.Control, area, place);
            return;
        case TLayoutKind::Row:
            PutRow(box, area, IsFieldRow(box) ? FMeasure.FirstWidth(area.Width) : TFieldWidths{}, place);
            return;
        case TLayoutKind::Foot:
        case TLayoutKind::Buttons: {
            const int spare = area.Width - FMeasure.LineWidth(box);
            if (spare < 0) return PutColumn(box, area, place);
            const int left = area.Left + (box.Kind == TLayoutKind::Buttons ? spare : 0);
            PutRow(box, {left, area.Top, area.Width - spare, area.Height}, {}, place);
            return;
        }
        case TLayoutKind::Ends:
            if (FMeasure.LineWidth(box) > area.Width) return PutColumn(box, area, place);
            for (const TLayoutBox& end : box.Boxes) Put(end, area, place);  // each keeps to its own
            return;
        case TLayoutKind::Indent: {
            const int indent = FMeasure.Indent();
            PutColumn(box, {area.Left + indent, area.Top, area.Width - indent, area.Height}, place);
            return;
        }
        case TLayoutKind::Center: {
            const TSize size = FMeasure.MeasureColumn(box, area.Width);
            PutColumn(box,
                      {area.Left + std::max(0, area.Width - size.Width) / 2,
                       area.Top + std::max(0, area.Height - size.Height) / 2, size.Width, size.Height},
                      place);
            return;
        }
        case TLayoutKind::Column:
        case TLayoutKind::Stack:
        case TLayoutKind::Fields:
            PutColumn(box, area, place);
            return;
        case TLayoutKind::Overlay:
            for (const TLayoutBox& inner : box.Boxes) Put(inner, area, place);
            return;
    }
}

void TLayout::PutControl(TControl& control, const TRect& area, const TPlace& place) const {
    place(control, area);
    if (control.Kind() != TComponentKind::GroupBox) return;
    Put(FForm.Layout(control), FMeasure.InsideGroup(area), place);
}

void TLayout::PutColumn(const TLayoutBox& box, const TRect& area, const TPlace& place) const {
    const TFieldWidths widths =
        box.Kind == TLayoutKind::Fields ? FMeasure.FieldWidths(box, area.Width) : TFieldWidths{};
    std::vector<int> heights(box.Boxes.size());
    int spare = area.Height;
    // What takes the height that the others leave shares it, but each takes what it needs.
    int shares = 0;
    int needed = 0;
    bool any = false;
    for (std::size_t i = 0; i < box.Boxes.size(); ++i) {
        const TLayoutBox& inner = box.Boxes[i];
        if (IsAbsent(inner)) continue;
        heights[i] = FMeasure.Measure(inner, area.Width).Height;
        spare -= heights[i] + (std::exchange(any, true) ? FMeasure.GapBefore(box, i) : 0);
        if (!StretchesInColumn(inner)) continue;
        shares += inner.Share;
        needed += heights[i];
    }
    int shared = needed + std::max(0, spare);
    int top = area.Top;
    any = false;
    for (std::size_t i = 0; i < box.Boxes.size(); ++i) {
        const TLayoutBox& inner = box.Boxes[i];
        if (IsAbsent(inner)) continue;
        if (std::exchange(any, true)) top += FMeasure.GapBefore(box, i);
        int height = heights[i];
        if (StretchesInColumn(inner) && shares > 0) {
            needed -= height;
            height = std::clamp(shared * inner.Share / shares, height, shared - needed);
            shared -= height;
            shares -= inner.Share;
        }
        if (inner.Kind == TLayoutKind::Foot) top = std::max(top, area.Top + area.Height - height);
        TRect part{area.Left, top, area.Width, height};
        if (IsKind(inner, TComponentKind::ComboBox)) part.Width = FMeasure.Measure(inner, area.Width).Width;
        if (box.Kind == TLayoutKind::Fields)
            PutRow(inner, part, widths, place);
        else
            Put(inner, part, place);
        top += height;
    }
}

void TLayout::PutRow(const TLayoutBox& box, const TRect& area, const TFieldWidths& widths,
                     const TPlace& place) const {
    int spare = std::max(0, area.Width - FMeasure.MeasureRow(box, area.Width, widths).Width);
    int left = area.Left;
    bool any = false;
    for (std::size_t i = 0; i < box.Boxes.size(); ++i) {
        const TLayoutBox& inner = box.Boxes[i];
        if (IsAbsent(inner)) continue;
        if (std::exchange(any, true)) left += FMeasure.GapBefore(box, i);
        TSize size = FMeasure.PartSize(box, i, std::max(area.Left + area.Width - left, 0), widths);
        if (StretchesInRow(inner)) size.Width += std::exchange(spare, 0);
        // Containers fill the height of their row; everything else is centred on its line.
        const int height = StretchesInColumn(inner) ? area.Height : std::min(size.Height, area.Height);
        TRect part{left, area.Top + (area.Height - height) / 2, size.Width, height};
        // The arrows lie within the frame of their edit.
        if (i + 1 < box.Boxes.size() && IsKind(box.Boxes[i + 1], TComponentKind::UpDown))
            part.Width += FMetrics.Scale(kArrowWidth);
        if (IsKind(inner, TComponentKind::UpDown))
            part = {part.Left - kFieldFrame, part.Top + kFieldFrame, part.Width,
                    part.Height - 2 * kFieldFrame};
        Put(inner, part, place);
        left += size.Width;
    }
}
