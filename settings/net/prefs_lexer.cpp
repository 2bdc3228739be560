#include "settings/net/prefs_lexer.h"

#include <algorithm>
#include <iterator>

namespace {

/// Whether an odd number of backslashes stands before that place.
bool IsEscaped(std::string_view text, std::size_t place) {
    std::size_t begin = place;
    while (begin > 0 && text[begin - 1] == '\\') --begin;
    return (place - begin) % 2 != 0;
}

}  // namespace

std::size_t FindLineEnd(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::find_if(text, IsLineEnd) - text.begin());
}

bool HasLineEnd(std::string_view text) {
    return text.find('\n') != std::string_view::npos || text.find('\r') != std::string_view::npos;
}

std::size_t LineLength(std::string_view text) {
    const std::size_t end = FindLineEnd(text);
    if (end == text.size()) return end;
    return end + (text.substr(end).starts_with(kPrefsLineEnd) ? 2 : 1);
}

std::size_t TPrefsLexer::CommentLength() const {
    if (FRest.starts_with("//") || FRest.starts_with('#')) return LineLength(FRest);
    if (!FRest.starts_with("/*")) return 0;
    const std::size_t end = FRest.find("*/", 2);
    return end == std::string_view::npos ? FRest.size() : end + 2;
}

std::size_t TPrefsLexer::QuotationLength() const {
    const char quote = FRest.front();
    if (quote != '"' && (quote != '\'' || (FBefore != '(' && FBefore != ','))) return 0;
    std::size_t end = FRest.find(quote, 1);
    while (end != std::string_view::npos && IsEscaped(FRest, end)) end = FRest.find(quote, end + 1);
    if (end == std::string_view::npos) return FindLineEnd(FRest);
    if (!HasLineEnd(FRest.substr(0, end))) return end + 1;
    const std::size_t next = FRest.find_first_not_of(" \t\r\n", end + 1);
    const bool looksClosed = next != std::string_view::npos && (FRest[next] == ')' || FRest[next] == ',');
    return looksClosed ? end + 1 : FindLineEnd(FRest);
}

std::size_t TPrefsLexer::CodeLength() {
    const auto endsCode = [](char c) { return c == '"' || c == '\'' || c == '/' || c == '#'; };
    const auto length =
        static_cast<std::size_t>(std::find_if(FRest.begin() + 1, FRest.end(), endsCode) - FRest.begin());
    const std::string_view code = FRest.substr(0, length);
    const auto last = std::find_if_not(code.rbegin(), code.rend(), IsBlank);
    if (last != code.rend()) FBefore = *last;
    return length;
}

bool TPrefsLexer::Next() {
    if (FRest.empty()) return false;
    std::size_t length = CommentLength();
    FPart = TPrefsPart::Comment;
    if (length == 0) {
        length = QuotationLength();
        FPart = TPrefsPart::Quotation;
        if (length != 0) FBefore = FRest.front();
    }
    if (length == 0) {
        length = CodeLength();
        FPart = TPrefsPart::Code;
    }
    FText = FRest.substr(0, length);
    FRest.remove_prefix(length);
    return true;
}

std::string WithBlankedComments(std::string_view text) {
    std::string blanked;
    blanked.reserve(text.size());
    for (TPrefsLexer lexer(text); lexer.Next();) {
        const std::size_t begin = blanked.size();
        blanked += lexer.Text();
        if (lexer.Part() != TPrefsPart::Comment) continue;
        std::replace_if(
            blanked.begin() + static_cast<std::ptrdiff_t>(begin), blanked.end(),
            [](char c) { return !IsLineEnd(c); }, ' ');
    }
    return blanked;
}
