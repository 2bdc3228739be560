// A key of the registry with everything in it and below it, as it is at a moment.
#pragma once

#include "engine/change_set.h"

/// What creates the key, its values and all keys below it, in this order; empty when there is no such key.
[[nodiscard]] TChangeSet TreeOf(TSystem& system, TRootKey root, const std::wstring& key);

/// What leads from the later state of a tree back to the earlier one.
[[nodiscard]] TChangeSet Restoring(const TChangeSet& earlier, const TChangeSet& later);
