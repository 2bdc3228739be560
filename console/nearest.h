// The words that somebody may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Those of the known words that are, or hold, nearly what was typed, in whatever case: the nearest few, the best first.
[[nodiscard]] std::vector<std::wstring> NearestWords(std::wstring_view typed,
                                                     const std::vector<std::wstring>& known);
