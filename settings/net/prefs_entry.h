// The prefs that an entry of Firefox's preference files sets; for entries see settings/net/prefs_text.h.
//
// Texts are taken as they are written: the name of a pref has its quotes, and a value is what stands between the comma
// behind the name and the closing parenthesis, with its quotes if it has any. Names are compared without regard to case.
// What stands in comments names nothing, and neither does the value of another pref.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The value of the pref; of two in the entry the later one. Nothing when the entry does not name it. The value's first
/// character is lost when the comma and the value have no space between them.
[[nodiscard]] std::optional<std::wstring> PrefValue(std::wstring_view entry, std::wstring_view quotedName);

/// PrefValue without that loss: the value as Firefox reads it.
[[nodiscard]] std::optional<std::wstring> WholePrefValue(std::wstring_view entry,
                                                         std::wstring_view quotedName);

/// Sets the value wherever the entries name the pref, and leaves all around it. An empty value removes the statements and
/// keeps their comments. False, and nothing changed, when no entry names the pref.
[[nodiscard]] bool ChangePref(std::vector<std::wstring>& entries, std::wstring_view quotedName,
                              std::wstring_view value);

[[nodiscard]] std::wstring MakePref(std::wstring_view quotedName, std::wstring_view value);
