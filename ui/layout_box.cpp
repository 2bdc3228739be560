#include "ui/layout_box.h"

#include <algorithm>

#include "ui/controls.h"

namespace {

/// Kinds that take the space that the others of their row or column leave.
bool Stretches(const TLayoutBox& box) {
    if (box.Kind == TLayoutKind::Overlay || box.Kind == TLayoutKind::Center) return true;
    if (box.Kind == TLayoutKind::Column || box.Kind == TLayoutKind::Row)
        return std::any_of(box.Boxes.begin(), box.Boxes.end(), Stretches);
    if (box.Kind != TLayoutKind::Control) return false;
    switch (box.Control->Kind()) {
        case TComponentKind::Notebook:
        case TComponentKind::PageControl:
        case TComponentKind::ListView:
            return true;
        default:
            return false;
    }
}

bool IsField(const TLayoutBox& box) {
    if (box.Kind != TLayoutKind::Control) return false;
    switch (box.Control->Kind()) {
        case TComponentKind::Edit:
        case TComponentKind::ComboBox:
        case TComponentKind::TrackBar:
        case TComponentKind::ColorSwatch:
            return true;
        default:
            return false;
    }
}

}  // namespace

bool IsKind(const TLayoutBox& box, TComponentKind kind) {
    return box.Kind == TLayoutKind::Control && box.Control->Kind() == kind;
}

bool IsAbsent(const TLayoutBox& box) {
    if (box.Kind == TLayoutKind::Control)
        return box.Control->Kind() == TComponentKind::Timer || !box.Control->Visible();
    return std::all_of(box.Boxes.begin(), box.Boxes.end(), IsAbsent);
}

bool IsFieldRow(const TLayoutBox& box) {
    return box.Kind == TLayoutKind::Row && box.Boxes.size() > 1 &&
           box.Boxes[0].Kind == TLayoutKind::Control && !IsField(box.Boxes[0]) && IsField(box.Boxes[1]);
}

bool StretchesInColumn(const TLayoutBox& box) {
    if (Stretches(box)) return true;
    if (box.Kind == TLayoutKind::Column || box.Kind == TLayoutKind::Row)
        return std::any_of(box.Boxes.begin(), box.Boxes.end(), StretchesInColumn);
    return box.Kind == TLayoutKind::Control && box.Control->Kind() == TComponentKind::CategoryBar;
}

bool StretchesInRow(const TLayoutBox& box) {
    if (Stretches(box)) return true;
    if (box.Kind != TLayoutKind::Control) return false;
    switch (box.Control->Kind()) {  // those that never take height
        case TComponentKind::TrackBar:
            return true;
        case TComponentKind::Edit:
            return static_cast<const TEdit*>(box.Control)->WidthInCharacters == 0;
        default:
            return false;
    }
}
