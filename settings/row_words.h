// What a row says of its setting, in words: for a reference of the settings.
#pragma once

#include <string>

#include "settings/rows.h"

/// Markdown, in English.
struct TRowWords {
    std::wstring Place;
    std::wstring Shows;   ///< what a stored value, or none, makes of the controls
    std::wstring Writes;  ///< what each state of the controls records
};

[[nodiscard]] TRowWords WordsOf(const TRow& row);

[[nodiscard]] std::wstring Words(const TPlace& place);
