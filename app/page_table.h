// The notebook's pages.
#pragma once

#include "settings/page.h"

#include <span>

/// Number of pages of the notebook; they are named "1" to this number.
inline constexpr int kPageCount = 19;

/// The pages that have settings, in any order. A number without a definition is an empty page.
[[nodiscard]] std::span<const TPageDefinition* const> PageDefinitions();
