// The places that a row writes, as the engine knows places.
#pragma once

#include "engine/change_set.h"
#include "settings/rows.h"

/// Whether Windows must restart before a change takes effect.
[[nodiscard]] bool RestartOf(const TRow& row);

/// The places that the row writes.
[[nodiscard]] std::vector<TPlace> PlacesOf(const TRow& row);

[[nodiscard]] TTarget TargetOf(const TPlace& place);

/// The targets of all that the row writes.
[[nodiscard]] std::vector<TTarget> TargetsOf(const TRow& row);
