// The notebook's pages.
#pragma once

#include <span>

#include "settings/page.h"

/// Number of pages of the notebook; they are named "1" to this number.
inline constexpr int kPageCount = 19;

/// A page whose drop-down lists start with their first item chosen until the page's loader chooses another.
struct TPageLists {
    const wchar_t* Label;  ///< in the log of the start
    int Tag;
};

/// In the order in which they start.
[[nodiscard]] std::span<const TPageLists> PagesOfChosenLists();

/// Chooses the first item of every drop-down list below the container, without firing.
void ChooseFirstItems(TControl& container);

/// The pages that have settings, in the order in which their windows are created; the first one is shown first. A number
/// without a definition is an empty page.
[[nodiscard]] std::span<const TPageDefinition* const> PageDefinitions();
