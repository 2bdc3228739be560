#include "settings/net/prefs_text.h"

#include <algorithm>

#include "platform/text.h"

namespace {

constexpr std::wstring_view kStatement = L"user_pref(";
constexpr std::wstring_view kEnd = L");";

/// Takes the text up to its next semicolon off the beginning of `rest`; empty when there is none.
std::wstring_view TakePiece(std::wstring_view& rest) {
    const std::wstring_view piece = rest.substr(0, rest.find(L';') + 1);
    rest.remove_prefix(piece.size());
    return piece;
}

}  // namespace

bool HasOpenQuote(std::wstring_view text) {
    bool open = false;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == L'"' && text[i - 1] != L'\\') open = !open;
    }
    return open;
}

std::vector<std::wstring> SplitPrefs(std::wstring text, const std::function<void()>& onStatement) {
    std::erase_if(text, [](wchar_t c) { return c == L'\r' || c == L'\n'; });
    std::wstring_view rest = text;
    const std::size_t first = rest.find(kStatement);
    if (first != std::wstring_view::npos) rest.remove_prefix(first);
    std::vector<std::wstring> statements;
    for (;;) {
        const std::wstring_view all = rest;
        std::wstring_view piece = TakePiece(rest);
        if (piece.empty()) return statements;
        if (HasOpenQuote(piece)) {
            do piece = TakePiece(rest);
            while (!piece.empty() && !HasOpenQuote(piece));
        }
        statements.emplace_back(all.substr(0, all.size() - rest.size()));
        onStatement();
    }
}

std::optional<std::wstring> PrefValue(std::wstring_view statement, std::wstring_view quotedName) {
    const std::size_t found = FindText(statement, quotedName);
    if (found == std::wstring_view::npos) return std::nullopt;
    // The comma after the name, and the space after the comma.
    statement.remove_prefix(std::min(found + quotedName.size() + 2, statement.size()));
    const std::size_t end = statement.find(L')');
    return std::wstring(Trim(statement.substr(0, end == std::wstring_view::npos ? 0 : end)));
}

std::wstring MakePref(std::wstring_view quotedName, std::wstring_view value) {
    std::wstring statement(kStatement);
    statement += quotedName;
    statement += L',';
    return WithPrefValue(statement, value);
}

std::wstring WithPrefValue(std::wstring_view statement, std::wstring_view value) {
    std::wstring changed(statement.substr(0, statement.rfind(L',') + 1));
    changed += L' ';
    changed += value;
    changed += kEnd;
    return changed;
}
