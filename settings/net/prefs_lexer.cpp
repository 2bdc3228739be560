#include "settings/net/prefs_lexer.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace {

constexpr std::wstring_view kLineEnd = L"\r\n";

bool IsLineEnd(wchar_t c) { return c == L'\r' || c == L'\n'; }

}  // namespace

std::size_t LineLength(std::wstring_view text) {
    const auto end = static_cast<std::size_t>(std::ranges::find_if(text, IsLineEnd) - text.begin());
    if (end == text.size()) return end;
    return end + (text.substr(end).starts_with(kLineEnd) ? 2 : 1);
}

std::size_t TPrefsLexer::CommentLength() const {
    if (FRest.starts_with(L"//") || FRest.starts_with(L'#')) return LineLength(FRest);
    if (!FRest.starts_with(L"/*")) return 0;
    const std::size_t end = FRest.find(L"*/", 2);
    return end == std::wstring_view::npos ? FRest.size() : end + 2;
}

std::size_t TPrefsLexer::QuotationLength() const {
    const wchar_t quote = FRest.front();
    if (quote != L'"' && (quote != L'\'' || (FBefore != L'(' && FBefore != L','))) return 0;
    std::size_t firstLine = 0;  // how much of it is on the first line, if there are more
    for (std::size_t i = 1; i < FRest.size(); ++i) {
        if (FRest[i] == quote) {
            const std::size_t next = FRest.find_first_not_of(L" \t\r\n", i + 1);
            const bool looksClosed =
                next != std::wstring_view::npos && (FRest[next] == L')' || FRest[next] == L',');
            return firstLine == 0 || looksClosed ? i + 1 : firstLine;
        }
        if (FRest[i] == L'\\' && i + 1 < FRest.size()) ++i;
        if (firstLine == 0 && IsLineEnd(FRest[i])) firstLine = i;
    }
    return firstLine == 0 ? FRest.size() : firstLine;
}

std::size_t TPrefsLexer::CodeLength() {
    const auto endsCode = [](wchar_t c) { return c == L'"' || c == L'\'' || c == L'/' || c == L'#'; };
    const auto* const end = std::find_if(FRest.begin() + 1, FRest.end(), endsCode);
    const auto last =
        std::find_if(std::reverse_iterator(end), FRest.rend(), [](wchar_t c) { return c > L' '; });
    if (last != FRest.rend()) FBefore = *last;
    return static_cast<std::size_t>(end - FRest.begin());
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

std::wstring WithBlankedComments(std::wstring_view text) {
    std::wstring blanked;
    blanked.reserve(text.size());
    for (TPrefsLexer lexer(text); lexer.Next();) {
        const std::size_t begin = blanked.size();
        blanked += lexer.Text();
        if (lexer.Part() != TPrefsPart::Comment) continue;
        std::replace_if(
            blanked.begin() + static_cast<std::ptrdiff_t>(begin), blanked.end(),
            [](wchar_t c) { return !IsLineEnd(c); }, L' ');
    }
    return blanked;
}
