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

/// Where the text first has the name; npos when it does not.
std::size_t FindName(std::string_view text, std::string_view quotedName) {
    std::size_t at = 0;
    while ((at = text.find(quotedName.front(), at)) != std::string_view::npos &&
           !SameText(text.substr(at, quotedName.size()), quotedName))
        ++at;
    return at;
}

/// Where the next character begins.
std::size_t CharacterEnd(std::string_view text, std::size_t at) {
    constexpr auto isContinuation = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
    do ++at;
    while (at < text.size() && isContinuation(text[at]));
    return at;
}

/// Where the text goes on behind white space.
std::size_t SkipWhiteSpace(std::string_view text, std::size_t at) {
    return std::min(text.find_first_not_of(" \t\r\n", at), text.size());
}

/// The statement whose name ends there. `text` has no comments.
TStatement StatementAround(std::string_view text, std::size_t begin, std::size_t nameEnd) {
    TStatement statement{.Begin = begin, .NameEnd = nameEnd, .ValueEnd = text.size()};
    std::size_t at = nameEnd;
    for (TPrefsLexer lexer(text.substr(nameEnd)); lexer.Next() && statement.ValueEnd == text.size();) {
        const std::string_view part = lexer.Text();
        if (lexer.Part() == TPrefsPart::Code) {
            const std::size_t end = part.find_first_of(");");
            const std::size_t comma = part.find(',');
            if (!statement.Value && comma < end) statement.Value = at + comma + 1;
            if (end != std::string_view::npos) statement.ValueEnd = at + end;
        }
        at += part.size();
    }
    // Where the quotes do not match, what looks like the end must do.
    if (statement.ValueEnd == text.size())
        statement.ValueEnd = std::min(text.find(')', statement.Value.value_or(nameEnd)), text.size());
    statement.IsClosed = text.substr(statement.ValueEnd).starts_with(')');
    statement.End = statement.ValueEnd + (statement.IsClosed ? 1 : 0);
    const std::size_t semicolon = SkipWhiteSpace(text, statement.End);
    if (text.substr(semicolon).starts_with(';')) statement.End = semicolon + 1;
    return statement;
}

/// Where the word before the parenthesis begins.
std::size_t WordBegin(std::string_view text, std::size_t parenthesis) {
    const auto isWord = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    };
    std::size_t begin = parenthesis;
    while (begin > 0 && IsBlank(text[begin - 1])) --begin;
    while (begin > 0 && isWord(text[begin - 1])) --begin;
    return begin;
}

/// `text` has no comments. A name is a quotation behind a parenthesis; without any, wherever the text has it.
TStatements FindStatements(std::string_view text, std::string_view quotedName) {
    TStatements statements;
    std::size_t at = 0;
    std::optional<std::size_t> parenthesis;  // if it is the last character of code
    for (TPrefsLexer lexer(text); lexer.Next();) {
        const std::string_view part = lexer.Text();
        const std::size_t begin = at;
        at += part.size();
        if (lexer.Part() == TPrefsPart::Code) {
            const std::size_t last = part.find_last_not_of(" \t\r\n");
            if (last != std::string_view::npos)
                parenthesis = part[last] == '(' ? std::optional(begin + last) : std::nullopt;
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
    if (const std::size_t found = FindName(text, quotedName); found != std::string_view::npos)
        statements.Named.push_back(StatementAround(text, 0, found + quotedName.size()));
    return statements;
}

std::string WithValue(std::string_view entry, const TStatement& statement, std::string_view value) {
    std::string changed(entry.substr(0, statement.Value.value_or(statement.NameEnd)));
    if (!statement.Value) changed += ',';
    changed += ' ';
    changed += value;
    if (!statement.IsClosed) changed += ')';
    if (statement.ValueEnd == entry.size()) changed += ';';
    changed += entry.substr(statement.ValueEnd);
    return changed;
}

/// The white space and the comments of the entry; nothing when it has no comments.
std::string CommentsOf(std::string_view entry) {
    std::string comments;
    bool hasComments = false;
    for (TPrefsLexer lexer(entry); lexer.Next();) {
        if (lexer.Part() == TPrefsPart::Comment) {
            comments += lexer.Text();
            hasComments = true;
        } else if (lexer.Part() == TPrefsPart::Code) {
            std::ranges::copy_if(lexer.Text(), std::back_inserter(comments), IsBlank);
        }
    }
    return hasComments ? comments : std::string();
}

/// The entry without the statements that name the pref; empty when nothing worth keeping is left.
std::string WithoutNamed(std::string entry, const TStatements& statements) {
    for (const TStatement& statement : statements.Named)
        entry.erase(statement.Begin, statement.End - statement.Begin);
    if (!statements.HasOthers) entry = CommentsOf(entry);
    entry.erase(entry.find_last_not_of(" \t") + 1);
    return entry;
}

/// `skipsSpace`: what stands behind the comma is no part of the value.
std::optional<std::string> ValueOf(std::string_view entry, std::string_view quotedName, bool skipsSpace) {
    if (FindName(entry, quotedName) == std::string_view::npos) return std::nullopt;
    const std::string text = WithBlankedComments(entry);
    const TStatements statements = FindStatements(text, quotedName);
    if (statements.Named.empty()) return std::nullopt;
    const TStatement& statement = statements.Named.front();
    // Where the comma is missing, what stands in its place goes too.
    std::size_t begin = statement.Value ? *statement.Value : CharacterEnd(entry, statement.NameEnd);
    if (skipsSpace) begin = CharacterEnd(entry, begin);
    if (!statement.IsClosed || begin > statement.ValueEnd) return "";
    std::string value;
    for (std::size_t at = begin; at < statement.ValueEnd; at = CharacterEnd(entry, at)) {
        const std::string_view character = entry.substr(at, CharacterEnd(entry, at) - at);
        value += text[at] == entry[at] ? character : " ";
    }
    return std::string(Trim(value));
}

}  // namespace

std::optional<std::string> PrefValue(std::string_view entry, std::string_view quotedName) {
    return ValueOf(entry, quotedName, true);
}

std::optional<std::string> WholePrefValue(std::string_view entry, std::string_view quotedName) {
    return ValueOf(entry, quotedName, false);
}

std::optional<std::string> WithPref(std::string_view entry, std::string_view quotedName,
                                    std::string_view value) {
    if (FindName(entry, quotedName) == std::string_view::npos) return std::nullopt;
    const TStatements statements = FindStatements(WithBlankedComments(entry), quotedName);
    if (statements.Named.empty()) return std::nullopt;
    std::string changed(entry);
    if (value.empty()) return WithoutNamed(std::move(changed), statements);
    for (const TStatement& statement : statements.Named) changed = WithValue(changed, statement, value);
    return changed;
}

std::string MakePref(std::string_view quotedName, std::string_view value) {
    std::string statement("user_pref(");
    statement += quotedName;
    statement += ", ";
    statement += value;
    statement += ");";
    return statement;
}
