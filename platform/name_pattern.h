// File name patterns, matched the same on every host.
#pragma once

#include <string_view>

/// Whether a file name is described by `pattern` without regard to case: "*" stands for any characters, "?" for
/// exactly one. Only the long name counts: Windows itself lets "*.lng" match "x.lngx" through its short name.
[[nodiscard]] bool MatchesPattern(std::wstring_view name, std::wstring_view pattern);
