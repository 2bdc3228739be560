// The prefs that an entry of Firefox's preference files sets; for entries see settings/net/prefs_text.h.
//
// Texts are in UTF-8 and taken as they are written: the name of a pref has its quotes, and a value is what stands between
// the comma behind the name and the closing parenthesis, with its quotes if it has any. Names are compared without regard
// to case. What stands in comments names nothing, and neither does the value of another pref.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The value of the pref; of two in the entry the later one. Nothing when the entry does not name it. The value's first
/// character is lost when the comma and the value have no space between them.
[[nodiscard]] std::optional<std::string> PrefValue(std::string_view entry, std::string_view quotedName);

/// PrefValue without that loss: the value as Firefox reads it.
[[nodiscard]] std::optional<std::string> WholePrefValue(std::string_view entry, std::string_view quotedName);

/// The entry with the value wherever it names the pref, and all around it as it was. An empty value removes the statements
/// and keeps their comments; empty when nothing is left. Nothing when the entry does not name the pref.
[[nodiscard]] std::optional<std::string> WithPref(std::string_view entry, std::string_view quotedName,
                                                  std::string_view value);

[[nodiscard]] std::string MakePref(std::string_view quotedName, std::string_view value);
