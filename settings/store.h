// Reading and recording at a setting's place, whichever kind of place it is.
#pragma once

#include <optional>

#include "engine/reg_recor.h"
#include "settings/datum.h"

struct TPageContext;

/// What a loader shows: what the value at the place means, or nothing when it cannot be read or is none of the place's
/// coding. On pages that show pending changes (see TPageDefinition::ShowsPending) a change of a registry place that is not
/// written yet answers first.
[[nodiscard]] std::optional<TRegValue> Stored(const TPageContext& context, const TPlace& place);

/// The number that Stored means; nothing when there is none.
[[nodiscard]] std::optional<std::int32_t> StoredNumber(const TPageContext& context, const TPlace& place);

/// The set of bits that Stored means; nothing when there is none.
[[nodiscard]] std::optional<std::uint32_t> StoredBits(const TPageContext& context, const TPlace& place);

/// Whether the registry key of the place is there, in the process's own view of the registry.
[[nodiscard]] bool KeyExists(const TPageContext& context, const TPlace& place);

/// A change of that name and place, still without type and value.
[[nodiscard]] TRegRecor RecordAt(const TPlace& place, const std::wstring& changeName);

/// Adds a pending change, marked with the setting that is being recorded.
void AddChange(TPageContext& context, TRegRecor record);

/// Records a change. A preference changes at once, in the store that Apply saves.
///
/// Two states of a setting may be different operations: a write and a deletion have change names of their own, and the one
/// that is recorded takes the place of the other, so that Apply carries out what the last click meant and nothing else.
/// "Nothing" takes a write back; of a system parameter it leaves what was recorded before.
void Record(TPageContext& context, const std::wstring& changeName, const TPlace& place, const TDatum& datum);
void RecordText(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                const std::wstring& text);
void RecordNumber(TPageContext& context, const std::wstring& changeName, const TPlace& place,
                  std::int32_t number);
