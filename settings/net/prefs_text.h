// The text of Firefox's preference files: statements such as user_pref("browser.tabs.tabMinWidth", 100);
//
// Texts are taken as they are written: the name of a pref has its quotes, and a value is what stands between the comma
// and the closing parenthesis, with its quotes if it has any.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Whether a quotation that begins in the piece of text does not end in it: whether the quotes that follow no backslash
/// are odd in number. The first character of the piece does not count, whatever it is.
[[nodiscard]] bool HasOpenQuote(std::wstring_view text);

/// The statements of a file in their order, each up to its semicolon and without line breaks. What precedes the first
/// "user_pref(", if there is one, and what follows the last semicolon is dropped; a comment between two statements becomes part of the
/// second one. A semicolon in a quotation ends no statement, unless the quotation never ends. `onStatement` is called
/// for each statement.
[[nodiscard]] std::vector<std::wstring> SplitPrefs(std::wstring text,
                                                   const std::function<void()>& onStatement);

/// The value in a statement that names the pref, without regard to case; nothing when it does not name it. A value is
/// cut at its first ")", and its first character is lost when the comma and the value have no space between them.
[[nodiscard]] std::optional<std::wstring> PrefValue(std::wstring_view statement,
                                                    std::wstring_view quotedName);

[[nodiscard]] std::wstring MakePref(std::wstring_view quotedName, std::wstring_view value);

/// The statement with `value` in place of what follows its last comma.
[[nodiscard]] std::wstring WithPrefValue(std::wstring_view statement, std::wstring_view value);
