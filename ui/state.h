// The state of a control as a value: what a user would have changed in it.
#pragma once

#include <variant>
#include <vector>

#include "ui/color.h"
#include "ui/component.h"

/// The chosen item of a drop-down list; -1 when none is.
struct TItemState {
    int Index = -1;
    bool operator==(const TItemState&) const = default;
};

/// The position of an up-down or track bar.
struct TNumberState {
    int Number = 0;
    bool operator==(const TNumberState&) const = default;
};

struct TColorState {
    TColor Color = 0;
    bool operator==(const TColorState&) const = default;
};

/// Which rows of a list view are checked, one mark a row.
using TChecksState = std::vector<bool>;

/// Nothing of a control that has no state (a button, a label, a table); whether a check box or radio button is checked; an item; a
/// number; the text of an edit; a colour; the checked rows of a list view.
using TControlState =
    std::variant<std::monostate, bool, TItemState, TNumberState, std::wstring, TColorState, TChecksState>;

[[nodiscard]] TControlState StateOf(const TControl& control);

/// Brings the control into the state, which fires as if the user did it. A state that is not of the control's kind changes
/// nothing.
void SetState(TControl& control, const TControlState& state);

/// The state of the control that is meant by a number: 0 clear and all else checked, an item, a position.
[[nodiscard]] TControlState StateFromNumber(const TControl& control, int number);
