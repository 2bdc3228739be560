// The text of Firefox's preference files and the entries that it is made of. An entry is a statement, such as
//   user_pref("browser.tabs.tabMinWidth", 100);
// with the comments in front of it and those that follow on its line. Comments are kept as they stand, with their line
// ends and the empty lines about them; elsewhere an entry has no line breaks.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Whether a quotation that begins in the piece of text does not end in it: whether the quotes that follow no backslash
/// are odd in number. The first character of the piece does not count, whatever it is.
[[nodiscard]] bool HasOpenQuote(std::wstring_view text);

/// The entries of a file in their order, each up to its semicolon. For this, a comment is white space. What precedes the
/// first "user_pref(", if there is one, and what follows the last semicolon is dropped but for its comments; those at the
/// end of the file become an entry without a statement. A semicolon in a quotation ends no entry, unless the quotation
/// never ends; behind a quotation that ends with a semicolon the next statement belongs to the same entry.
/// `onStatement` is called for each statement.
[[nodiscard]] std::vector<std::wstring> SplitPrefs(std::wstring_view text,
                                                   const std::function<void()>& onStatement);

/// The text of a file with these entries: each ends with CR LF, unless it ends with the line end of a comment.
[[nodiscard]] std::wstring JoinPrefs(const std::vector<std::wstring>& entries);
