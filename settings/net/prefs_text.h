// The text of Firefox's preference files and the entries that it is made of. An entry is a statement, such as
//   user_pref("browser.tabs.tabMinWidth", 100);
// with the comments in front of it and those that follow on its line. Comments are kept as they stand, with their line
// ends and the empty lines about them; elsewhere an entry has no line breaks.
#pragma once

#include <functional>

#include "settings/net/prefs_entries.h"

/// The entries of a file in their order, each up to its semicolon. For this, a comment is white space. What precedes the
/// first "user_pref(", if there is one, and what follows the last semicolon is dropped but for its comments; those at the
/// end of the file become an entry without a statement.
///
/// A statement's first piece, up to the first semicolon, ends it, unless the quotes that follow no backslash are odd in
/// number: then the statement ends with the next piece that has an odd number of them as well. The first character of a
/// piece does not count, so that behind a quotation that ends with a semicolon the next statement belongs to the same
/// entry. `onStatement` is called for each statement.
[[nodiscard]] TPrefEntries SplitPrefs(std::string_view text, const std::function<void()>& onStatement);

/// The text of a file with these entries: each ends with CR LF, unless it ends with the line end of a comment.
[[nodiscard]] std::string JoinPrefs(const TPrefEntries& entries);
