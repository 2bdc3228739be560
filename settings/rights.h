// What only administrators may change, and whether this process may.
#pragma once

#include <string>
#include <vector>

#include "engine/change_set.h"

struct TPageContext;
struct TPageDefinition;

/// Whether the place is the computer's and not the user's: as Windows comes, only administrators may change it.
[[nodiscard]] bool IsForAllUsers(const TTarget& target);

/// Whether this process may change what is there, or put something there. Rights can differ from one key to another.
[[nodiscard]] bool MayChange(const TSystem& system, const TTarget& target);

/// Whether this process may change what is for all users.
[[nodiscard]] bool HasAdministratorRights(const TSystem& system);

/// The page's controls whose settings are for all users. Those that are recorded at further places count by the first one.
[[nodiscard]] std::vector<std::wstring> ControlsForAllUsers(const TPageContext& context,
                                                            const TPageDefinition& page);

/// Marks the captions of these, once, by a star.
void MarkControlsForAllUsers(const TPageContext& context, const TPageDefinition& page);

/// Says in the header of a page that is loaded that the marked settings cannot be changed; empty where they can, or the page
/// shows none.
[[nodiscard]] std::wstring RightsLine(const TPageContext& context, const TPageDefinition& page);
