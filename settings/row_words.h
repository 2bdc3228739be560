// A row in words: where the setting lives, how a stored value shows, what each state writes.
#pragma once

#include <string>

#include "settings/rows.h"

/// In English and with Markdown's marks for what is code.
struct TRowWords {
    std::wstring Place;
    std::wstring Shows;
    std::wstring Writes;
};

[[nodiscard]] TRowWords WordsOf(const TRow& row);

/// The Windows versions of a range.
[[nodiscard]] std::wstring WordsOf(const TLevels& levels);
