// The category bar as data: its groups, their items, and the page that each item leads to.
#pragma once

#include <optional>
#include <span>

#include "settings/rows.h"
#include "ui/design.h"

struct TCategoryItemRow {
    const wchar_t* Caption;        ///< in the design; the window shows the text below
    const wchar_t* Picture;        ///< base name of the icon
    int Tag;                       ///< number of the notebook page
    std::optional<TCaption> Text;  ///< absent for a hidden item, which keeps its caption
    TCaption About{};              ///< what the page is for
    TLevels Levels = kEveryLevel;  ///< elsewhere it is hidden, too
};

struct TCategoryGroupRow {
    const wchar_t* Name;
    TCaption Text;
    std::span<const TCategoryItemRow> Items;
};

/// The groups in order of display.
[[nodiscard]] std::span<const TCategoryGroupRow> CategoryTable();

/// Component name of an item: the group's name and the item's index, hidden items counted.
[[nodiscard]] std::wstring CategoryItemName(const std::wstring& group, std::size_t index);

/// The category bar's controls.
[[nodiscard]] TControlDesign CategoryBarDesign();
