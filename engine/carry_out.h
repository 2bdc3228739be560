// Carrying changes out: what is pending, or a change set that was read or saved.
#pragma once

#include "engine/change_set.h"

/// Carries out the changes of the registry, of parameters and of services in this order.
TWritten CarryOut(TSysControl& changes);

struct TCarriedOut {
    TWritten Written;
    bool SavedPreferences = false;
    TChangeSet Failed;  ///< the operations after which something else is there than they should leave
};

/// Carries out the operations in their order, preferences at last and together. What is there already is left alone. An
/// operation that fails is no reason to hold back the others. A whole file of preferences is put back only where it still
/// is as it was left. `preferences` may be null when none are among them.
[[nodiscard]] TCarriedOut CarryOut(TSystem& system, const TChangeSet& operations,
                                   TPreferenceStore* preferences);
