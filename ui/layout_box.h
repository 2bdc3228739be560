// How controls stand inside a container: boxes within boxes, without any numbers.
#pragma once

#include <vector>

enum class TComponentKind;
class TControl;

enum class TLayoutKind {
    Control,  ///< a single control
    Column,   ///< one below the other, as wide as the container
    Row,      ///< side by side, in one line
    Buttons,  ///< side by side, at the right end of the line
    Foot,     ///< side by side, at the lower left of the container
    Ends,     ///< a row at the left end of the line and buttons at its right end
    Stack,    ///< one below the other, as close as the lines of a text
    Fields,   ///< rows whose first controls share one width, so that the second ones line up
    Indent,   ///< a column set in below the control it depends on
    Center,   ///< a column in the middle of the container
    Overlay,  ///< one over the other, all of them as large as the container
};

struct TLayoutBox {
    TLayoutKind Kind = TLayoutKind::Column;
    TControl* Control = nullptr;  ///< for kind Control
    int Share = 1;                ///< of the height, among the boxes of a column that take what others leave
    std::vector<TLayoutBox> Boxes;
};

// What the measuring and the placing ask of a box.

[[nodiscard]] bool IsKind(const TLayoutBox& box, TComponentKind kind);
/// A control that is hidden takes no place; a timer never has one.
[[nodiscard]] bool IsAbsent(const TLayoutBox& box);
/// Something with a text, and the field behind it.
[[nodiscard]] bool IsFieldRow(const TLayoutBox& box);
/// Whether it takes the height that the others of its column leave, and that of its row.
[[nodiscard]] bool StretchesInColumn(const TLayoutBox& box);
/// Whether it takes the width that the others of its row leave.
[[nodiscard]] bool StretchesInRow(const TLayoutBox& box);
