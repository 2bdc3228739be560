// The places that a row writes, as the engine knows places.
#pragma once

#include "engine/change_set.h"
#include "settings/rows.h"

[[nodiscard]] TTarget TargetOf(const TPlace& place);

/// The targets of all that the row writes.
[[nodiscard]] std::vector<TTarget> TargetsOf(const TRow& row);
