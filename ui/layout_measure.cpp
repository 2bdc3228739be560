#include "ui/layout_measure.h"

#include <algorithm>
#include <utility>

#include "ui/containers.h"
#include "ui/controls.h"

namespace {

// Distances at 96 dots per inch.
constexpr int kGap = 7;           // between controls that stand together
constexpr int kGroupGap = 14;     // before and after a group box
constexpr int kButtonGap = 11;    // before the buttons of a window or sheet
constexpr int kGroupIndent = 14;  // of the controls below the title of a group box
constexpr int kTitleGap = 6;      // between that title and them
constexpr int kLineGap = 2;       // between what stands as close as lines of a text
constexpr int kIndent = 18;       // below the text of a check box
constexpr int kGlyph = 18;        // a check mark or radio circle with the space before its text
constexpr int kBoxHeight = 17;    // the least height of a check box or radio button
constexpr int kButtonWidth = 75;
constexpr int kButtonHeight = 23;
constexpr int kButtonPadding = 12;  // at each side of a button's text
constexpr int kFieldPadding = 4;    // above and below the text of an edit or combo box
constexpr int kTrackBarWidth = 150;
constexpr int kTrackBarHeight = 30;
constexpr int kEditWidth = 120;
constexpr int kSwatchWidth = 40;
constexpr int kListHeight = 140;
constexpr int kTableHeight = 80;
constexpr int kCategoryBarFrame = 60;  // what a category item needs beside its text: picture, margins
constexpr int kLeastBarWidth = 190;
constexpr int kMostBarWidth = 240;
constexpr int kUnlimited = 1 << 20;

/// Of a text that is half as large again as others.
int HeadingHeight(int line) { return 3 * line / 2 + 1; }

}  // namespace

TSize TLayoutMeasure::ContentSize(const TControl& container, int width) {
    AlignFields(FForm.Layout(container), width);
    return Measure(FForm.Layout(container), width);
}

void TLayoutMeasure::AlignFields(const TLayoutBox& content, int width) {
    TFieldNeeds needs;
    AddFieldNeeds(content, 0, false, needs);
    // Where there is too little room the texts before the fields are wrapped, as long as they are not too narrow.
    FFieldRoom = std::max(width - needs.Before, std::min(needs.Behind, 2 * width / 3));
}

void TLayoutMeasure::AddFieldNeeds(const TLayoutBox& box, int offset, bool isField,
                                   TFieldNeeds& needs) const {
    if (IsAbsent(box)) return;
    switch (box.Kind) {
        case TLayoutKind::Control:
            if (box.Control->Kind() == TComponentKind::GroupBox)
                AddFieldNeeds(FForm.Layout(*box.Control), offset + FMetrics.Scale(kGroupIndent), false,
                              needs);
            return;
        case TLayoutKind::Row: {
            if (!isField && !IsFieldRow(box)) return;
            const int first = Measure(box.Boxes[0], kUnlimited).Width;
            const int gap = FMetrics.Scale(kGap);
            needs.Before = std::max(needs.Before, offset + first + gap);
            needs.Behind = std::max(needs.Behind, LineWidth(box) - first - gap);
            return;
        }
        case TLayoutKind::Column:
        case TLayoutKind::Stack:
        case TLayoutKind::Fields:
        case TLayoutKind::Indent:
            if (box.Kind == TLayoutKind::Indent) offset += FMetrics.Scale(kIndent);
            for (const TLayoutBox& inner : box.Boxes)
                AddFieldNeeds(inner, offset, box.Kind == TLayoutKind::Fields, needs);
            return;
        default:
            return;
    }
}

TLayoutMeasure::TFieldWidths TLayoutMeasure::FirstWidth(int width) const {
    return {.First = std::max(1, width - FFieldRoom - FMetrics.Scale(kGap))};
}

int TLayoutMeasure::Indent() const { return FMetrics.Scale(kIndent); }

TRect TLayoutMeasure::InsideGroup(const TRect& group) const {
    const int indent = FMetrics.Scale(kGroupIndent);
    const int top = FMetrics.TextSize(L"0", kUnlimited).Height + FMetrics.Scale(kTitleGap);
    return {group.Left + indent, group.Top + top, group.Width - indent, group.Height - top};
}

int TLayoutMeasure::GapBefore(const TLayoutBox& box, std::size_t index) const {
    if (index == 0) return 0;
    if (box.Kind == TLayoutKind::Stack) return FMetrics.Scale(kLineGap);
    const TLayoutBox& here = box.Boxes[index];
    const TLayoutBox& before = box.Boxes[index - 1];
    if (IsKind(here, TComponentKind::UpDown)) return 0;  // it clings to its edit
    if (box.Kind != TLayoutKind::Column) return FMetrics.Scale(kGap);
    if (here.Kind == TLayoutKind::Buttons || here.Kind == TLayoutKind::Foot || here.Kind == TLayoutKind::Ends)
        return FMetrics.Scale(kButtonGap);
    const bool grouped = IsKind(here, TComponentKind::GroupBox) || IsKind(before, TComponentKind::GroupBox);
    return FMetrics.Scale(grouped ? kGroupGap : kGap);
}

TSize TLayoutMeasure::Measure(const TLayoutBox& box, int width) const {
    if (IsAbsent(box)) return {};
    switch (box.Kind) {
        case TLayoutKind::Control:
            return MeasureControl(*box.Control, width);
        case TLayoutKind::Row:
            return MeasureRow(box, width, IsFieldRow(box) ? FirstWidth(width) : TFieldWidths{});
        case TLayoutKind::Foot:
        case TLayoutKind::Buttons:
        case TLayoutKind::Ends:
            return MeasureLine(box, width);
        case TLayoutKind::Fields:
            return MeasureFields(box, width);
        case TLayoutKind::Indent: {
            const int indent = Indent();
            TSize size = MeasureColumn(box, width - indent);
            size.Width += indent;
            return size;
        }
        case TLayoutKind::Column:
        case TLayoutKind::Stack:
        case TLayoutKind::Center:
            return MeasureColumn(box, width);
        case TLayoutKind::Overlay:
            break;
    }
    TSize size;
    for (const TLayoutBox& inner : box.Boxes) {
        const TSize part = Measure(inner, width);
        size = {std::max(size.Width, part.Width), std::max(size.Height, part.Height)};
    }
    return size;
}

TSize TLayoutMeasure::MeasureColumn(const TLayoutBox& box, int width) const {
    TSize size;
    bool any = false;
    for (std::size_t i = 0; i < box.Boxes.size(); ++i) {
        if (IsAbsent(box.Boxes[i])) continue;
        const TSize part = Measure(box.Boxes[i], width);
        if (std::exchange(any, true)) size.Height += GapBefore(box, i);
        size.Height += part.Height;
        size.Width = std::max(size.Width, part.Width);
    }
    return size;
}

TSize TLayoutMeasure::MeasureRow(const TLayoutBox& box, int width, const TFieldWidths& widths) const {
    TSize size;
    bool any = false;
    for (std::size_t i = 0; i < box.Boxes.size(); ++i) {
        if (IsAbsent(box.Boxes[i])) continue;
        if (std::exchange(any, true)) size.Width += GapBefore(box, i);
        const TSize part = PartSize(box, i, std::max(width - size.Width, 0), widths);
        size.Width += part.Width;
        size.Height = std::max(size.Height, part.Height);
    }
    return size;
}

int TLayoutMeasure::LineWidth(const TLayoutBox& row) const { return MeasureRow(row, kUnlimited, {}).Width; }

TSize TLayoutMeasure::PartSize(const TLayoutBox& row, std::size_t index, int width,
                               const TFieldWidths& widths) const {
    const TLayoutBox& part = row.Boxes[index];
    TSize size = Measure(part, index == 0 && widths.First > 0 ? widths.First : width);
    size.Width = widths.WidthOf(part, index, size.Width);
    return size;
}

/// One line, or when that is too narrow for all, a line for each.
TSize TLayoutMeasure::MeasureLine(const TLayoutBox& box, int width) const {
    return LineWidth(box) <= width ? MeasureRow(box, width, {}) : MeasureColumn(box, width);
}

int TLayoutMeasure::TFieldWidths::WidthOf(const TLayoutBox& part, std::size_t index, int width) const {
    if (index == 0) return First > 0 ? First : width;
    return IsKind(part, TComponentKind::ComboBox) ? std::max(width, Lists) : width;
}

TLayoutMeasure::TFieldWidths TLayoutMeasure::FieldWidths(const TLayoutBox& fields, int width) const {
    TFieldWidths widths = FirstWidth(width);
    for (const TLayoutBox& row : fields.Boxes) {
        if (IsAbsent(row)) continue;
        for (const TLayoutBox& part : row.Boxes)
            if (IsKind(part, TComponentKind::ComboBox))
                widths.Lists = std::max(widths.Lists, Measure(part, width).Width);
    }
    widths.Lists = std::min(widths.Lists, std::max(0, width - widths.First - FMetrics.Scale(kGap)));
    return widths;
}

TSize TLayoutMeasure::MeasureFields(const TLayoutBox& box, int width) const {
    const TFieldWidths widths = FieldWidths(box, width);
    TSize size;
    bool any = false;
    for (std::size_t i = 0; i < box.Boxes.size(); ++i) {
        if (IsAbsent(box.Boxes[i])) continue;
        const TSize part = MeasureRow(box.Boxes[i], width, widths);
        size.Height += part.Height + (std::exchange(any, true) ? GapBefore(box, i) : 0);
        size.Width = std::max(size.Width, part.Width);
    }
    return size;
}

/// A line (or several, when it must wrap) of text beside a check mark.
TSize TLayoutMeasure::TextLine(const TControl& control, int width) const {
    const int glyph = FMetrics.Scale(kGlyph);
    TSize size = FMetrics.TextSize(control.Caption(), std::max(width - glyph, 1));
    return {size.Width + glyph, std::max(size.Height, FMetrics.Scale(kBoxHeight))};
}

TSize TLayoutMeasure::MeasureControl(const TControl& control, int width) const {
    const auto scale = [this](int distance) { return FMetrics.Scale(distance); };
    const int line = FMetrics.TextSize(L"0", kUnlimited).Height;
    const int fieldHeight = line + 2 * scale(kFieldPadding);
    switch (control.Kind()) {
        case TComponentKind::CheckBox:
        case TComponentKind::RadioButton:
            return TextLine(control, width);
        case TComponentKind::Label:
            if (const auto& label = static_cast<const TLabel&>(control); label.Lines > 0)
                return {width, label.Look == TTextLook::Heading ? HeadingHeight(line) : label.Lines * line};
            return FMetrics.TextSize(control.Caption(), std::max(width, 1));
        case TComponentKind::Button: {
            const TSize text = FMetrics.TextSize(control.Caption(), kUnlimited);
            return {std::max(text.Width + 2 * scale(kButtonPadding), scale(kButtonWidth)),
                    std::max(line + 2 * scale(kFieldPadding), scale(kButtonHeight))};
        }
        case TComponentKind::Edit: {
            const int characters = static_cast<const TEdit&>(control).WidthInCharacters;
            const int digit = FMetrics.TextSize(L"0", kUnlimited).Width;
            return {characters > 0 ? characters * digit + 3 * scale(kFieldPadding) : scale(kEditWidth),
                    fieldHeight};
        }
        case TComponentKind::UpDown:
            return {scale(kArrowWidth), fieldHeight};
        case TComponentKind::ComboBox: {
            int text = 0;
            for (const std::wstring& item : static_cast<const TComboBox&>(control).Items())
                text = std::max(text, FMetrics.TextSize(item, kUnlimited).Width);
            return {std::min(text + scale(kArrowWidth) + 4 * scale(kFieldPadding), width), fieldHeight};
        }
        case TComponentKind::TrackBar:
            return {scale(kTrackBarWidth), scale(kTrackBarHeight)};
        case TComponentKind::ColorSwatch:
            return {scale(kSwatchWidth), fieldHeight};
        case TComponentKind::Image: {
            const auto& image = static_cast<const TImage&>(control);
            return {scale(image.Width()), scale(image.Height())};
        }
        case TComponentKind::ListView:
            return {width,
                    scale(static_cast<const TListView&>(control).IsTable() ? kTableHeight : kListHeight)};
        case TComponentKind::GroupBox: {
            const int indent = scale(kGroupIndent);
            const TSize content = Measure(FForm.Layout(control), width - indent);
            const int caption = FMetrics.TextSize(control.Caption(), kUnlimited).Width;
            return {std::max(content.Width + indent, caption), line + scale(kTitleGap) + content.Height};
        }
        case TComponentKind::Panel: {
            const TPanelLook look = static_cast<const TPanel&>(control).Look;
            const int padding = look == TPanelLook::Card ? scale(kCardPadding) : 0;
            const int foot = look == TPanelLook::Header ? scale(kHeaderFoot) : padding;
            const TSize content = TLayoutMeasure(FForm, FMetrics).ContentSize(control, width - 2 * padding);
            return {content.Width + 2 * padding, content.Height + padding + foot};
        }
        case TComponentKind::CategoryBar: {
            int text = 0;
            for (const TControl* group : control.Children()) {
                text = std::max(text, FMetrics.TextSize(group->Caption(), kUnlimited).Width);
                for (const TControl* item : group->Children())
                    text = std::max(text, FMetrics.TextSize(item->Caption(), kUnlimited).Width);
            }
            const int bold = text * 9 / 8;  // as the selected one is
            return {std::clamp(bold + scale(kCategoryBarFrame), scale(kLeastBarWidth), scale(kMostBarWidth)),
                    0};
        }
        default:
            return {};
    }
}
