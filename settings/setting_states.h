// The states that a setting can be brought into, and states in words, as a command line takes and gives them.
#pragma once

#include <optional>
#include <string>

#include "ui/state.h"

enum class TStateKind : std::uint8_t {
    None,    ///< it cannot be brought into a state
    OnOff,   ///< of a check box
    On,      ///< of a radio button, which another one clears
    Item,    ///< one of Items
    Number,  ///< from Min to Max
    Text,
    Color,
    Press,   ///< of a button; the state is none
    Checks,  ///< any of Items
};

/// The states of one setting.
struct TStates {
    TStateKind Kind = TStateKind::None;
    std::vector<std::wstring> Items{};
    int Min = 0;
    int Max = 0;

    [[nodiscard]] bool Allow(const TControlState& state) const;
};

/// "on" or "off", the item's number, a number, a text, a colour as #RRGGBB, the checked items with commas between them;
/// empty when there is no state.
[[nodiscard]] std::wstring WordsOf(const TStates& states, const TControlState& state);

/// Reads such words, in any case of the letters; an item may be given by its caption, and a button is "press"ed. Nothing
/// when they are none of the states.
[[nodiscard]] std::optional<TControlState> ParseState(const TStates& states, std::wstring_view words);

/// What ParseState takes, for whoever has given it something else: one text for each state, or one for all.
[[nodiscard]] std::vector<std::wstring> AllowedWords(const TStates& states);
