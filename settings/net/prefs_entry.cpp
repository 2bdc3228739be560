#include "settings/net/prefs_entry.h"

#include <algorithm>

#include "platform/text.h"
#include "settings/net/prefs_lexer.h"

namespace {

/// Where a statement stands in an entry.
struct TStatement {
    std::size_t Begin = 0;
    std::size_t NameEnd = 0;
    std::optional<std::size_t> Value;  ///< behind the comma; nothing when there is no comma
    std::size_t ValueEnd = 0;          ///< at the closing parenthesis, or where it is missing
    bool IsClosed = false;             ///< there is a closing parenthesis
    std::size_t End = 0;               ///< behind the semicolon
};

struct TStatements {
    std::vector<TStatement> Named;  ///< those that name the pref, the last one first
    bool HasOthers = false;
};

/// Where the text goes on behind white space.
std::size_t SkipWhiteSpace(std::wstring_view text, std::size_t at) {
    return std::min(text.find_first_not_of(L" \t\r\n", at), text.size());
}

/// The statement whose name ends there. `text` has no comments.
TStatement StatementAround(std::wstring_view text, std::size_t begin, std::size_t nameEnd) {
    TStatement statement{.Begin = begin, .NameEnd = nameEnd, .ValueEnd = text.size()};
    std::size_t at = nameEnd;
    for (TPrefsLexer lexer(text.substr(nameEnd)); lexer.Next() && statement.ValueEnd == text.size();) {
        const std::wstring_view part = lexer.Text();
        if (lexer.Part() == TPrefsPart::Code) {
            const std::size_t end = part.find_first_of(L");");
            const std::size_t comma = part.find(L',');
            if (!statement.Value && comma < end) statement.Value = at + comma + 1;
            if (end != std::wstring_view::npos) statement.ValueEnd = at + end;
        }
        at += part.size();
    }
    // Where the quotes do not match, what looks like the end must do.
    if (statement.ValueEnd == text.size())
        statement.ValueEnd = std::min(text.find(L')', statement.Value.value_or(nameEnd)), text.size());
    statement.IsClosed = text.substr(statement.ValueEnd).starts_with(L')');
    statement.End = statement.ValueEnd + (statement.IsClosed ? 1 : 0);
    const std::size_t semicolon = SkipWhiteSpace(text, statement.End);
    if (text.substr(semicolon).starts_with(L';')) statement.End = semicolon + 1;
    return statement;
}

/// Where the word before the parenthesis begins.
std::size_t WordBegin(std::wstring_view text, std::size_t parenthesis) {
    const auto isWord = [](wchar_t c) {
        return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'_';
    };
    std::size_t begin = parenthesis;
    while (begin > 0 && text[begin - 1] <= L' ') --begin;
    while (begin > 0 && isWord(text[begin - 1])) --begin;
    return begin;
}

/// `text` has no comments. A name is a quotation behind a parenthesis; without any, wherever the text has it.
TStatements FindStatements(std::wstring_view text, std::wstring_view quotedName) {
    TStatements statements;
    std::size_t at = 0;
    std::optional<std::size_t> parenthesis;  // if it is the last character of code
    for (TPrefsLexer lexer(text); lexer.Next();) {
        const std::wstring_view part = lexer.Text();
        const std::size_t begin = at;
        at += part.size();
        if (lexer.Part() == TPrefsPart::Code) {
            const std::size_t last = part.find_last_not_of(L" \t\r\n");
            if (last != std::wstring_view::npos)
                parenthesis = part[last] == L'(' ? std::optional(begin + last) : std::nullopt;
        } else if (parenthesis) {
            const bool isNamed = SameText(text.substr(begin, quotedName.size()), quotedName);
            const TStatement statement = StatementAround(text, WordBegin(text, *parenthesis),
                                                         isNamed ? begin + quotedName.size() : at);
            if (isNamed)
                statements.Named.insert(statements.Named.begin(), statement);
            else
                statements.HasOthers = true;
            at = statement.End;
            lexer = TPrefsLexer(text.substr(at));
            parenthesis.reset();
        }
    }
    if (!statements.Named.empty() || statements.HasOthers) return statements;
    if (const std::size_t found = FindText(text, quotedName); found != std::wstring_view::npos)
        statements.Named.push_back(StatementAround(text, 0, found + quotedName.size()));
    return statements;
}

std::wstring WithValue(std::wstring_view entry, const TStatement& statement, std::wstring_view value) {
    std::wstring changed(entry.substr(0, statement.Value.value_or(statement.NameEnd)));
    if (!statement.Value) changed += L',';
    changed += L' ';
    changed += value;
    if (!statement.IsClosed) changed += L')';
    if (statement.ValueEnd == entry.size()) changed += L';';
    changed += entry.substr(statement.ValueEnd);
    return changed;
}

/// The white space and the comments of the entry; nothing when it has no comments.
std::wstring CommentsOf(std::wstring_view entry) {
    std::wstring comments;
    bool hasComments = false;
    for (TPrefsLexer lexer(entry); lexer.Next();) {
        if (lexer.Part() == TPrefsPart::Comment) {
            comments += lexer.Text();
            hasComments = true;
        } else if (lexer.Part() == TPrefsPart::Code) {
            std::ranges::copy_if(lexer.Text(), std::back_inserter(comments),
                                 [](wchar_t c) { return c <= L' '; });
        }
    }
    return hasComments ? comments : std::wstring();
}

/// The entry without the statements that name the pref; empty when nothing worth keeping is left.
std::wstring WithoutNamed(std::wstring entry, const TStatements& statements) {
    for (const TStatement& statement : statements.Named)
        entry.erase(statement.Begin, statement.End - statement.Begin);
    if (!statements.HasOthers) entry = CommentsOf(entry);
    entry.erase(entry.find_last_not_of(L" \t") + 1);
    return entry;
}

}  // namespace

namespace {

/// What stands from `skipped` characters behind the comma on.
std::optional<std::wstring> ValueOf(std::wstring_view entry, std::wstring_view quotedName,
                                    std::size_t skipped) {
    if (FindText(entry, quotedName) == std::wstring_view::npos) return std::nullopt;
    const std::wstring text = WithBlankedComments(entry);
    const TStatements statements = FindStatements(text, quotedName);
    if (statements.Named.empty()) return std::nullopt;
    const TStatement& statement = statements.Named.front();
    // Where the comma is missing, what stands in its place goes too.
    const std::size_t begin = statement.Value.value_or(statement.NameEnd + 1) + skipped;
    if (!statement.IsClosed || begin > statement.ValueEnd) return L"";
    const std::wstring value = text.substr(begin, statement.ValueEnd - begin);
    return std::wstring(Trim(value));
}

}  // namespace

std::optional<std::wstring> PrefValue(std::wstring_view entry, std::wstring_view quotedName) {
    return ValueOf(entry, quotedName, 1);  // the space behind the comma
}

std::optional<std::wstring> WholePrefValue(std::wstring_view entry, std::wstring_view quotedName) {
    return ValueOf(entry, quotedName, 0);
}

bool ChangePref(std::vector<std::wstring>& entries, std::wstring_view quotedName, std::wstring_view value) {
    bool isNamed = false;
    for (std::wstring& entry : entries) {
        if (FindText(entry, quotedName) == std::wstring_view::npos) continue;
        const TStatements statements = FindStatements(WithBlankedComments(entry), quotedName);
        if (statements.Named.empty()) continue;
        isNamed = true;
        if (value.empty()) {
            entry = WithoutNamed(std::move(entry), statements);
            continue;
        }
        for (const TStatement& statement : statements.Named) entry = WithValue(entry, statement, value);
    }
    if (isNamed && value.empty()) std::erase(entries, std::wstring());
    return isNamed;
}

std::wstring MakePref(std::wstring_view quotedName, std::wstring_view value) {
    std::wstring statement(L"user_pref(");
    statement += quotedName;
    statement += L", ";
    statement += value;
    statement += L");";
    return statement;
}
