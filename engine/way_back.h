// The change set that leads back from another one. It is made before that is carried out.
#pragma once

#include "engine/change_set.h"

/// What restores everything that the operations will change: values with their types and bytes, whole keys, parameters,
/// services, preferences, or that something is not there. Empty when they will change nothing. What cannot be asked
/// cannot be restored, and is not among it.
[[nodiscard]] TChangeSet WayBack(TSystem& system, const TChangeSet& operations,
                                 const TPreferenceStore* preferences);

/// Whether carrying out the operations would leave everything as it is.
[[nodiscard]] bool ChangesNothing(TSystem& system, const TChangeSet& operations,
                                  const TPreferenceStore* preferences);
