// The notebook's pages.
#pragma once

#include <span>

#include "settings/page.h"

/// Number of pages of the notebook; they are named "1" to this number.
inline constexpr int kPageCount = 19;

/// The pages that have settings, in any order. A number without a definition is an empty page.
[[nodiscard]] std::span<const TPageDefinition* const> PageDefinitions();
