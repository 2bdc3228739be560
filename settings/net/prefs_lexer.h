// What the characters of Firefox's preference files are: code, quotations, comments.
#pragma once

#include <cstdint>
#include <string_view>

enum class TPrefsPart : std::uint8_t { Code, Quotation, Comment };

/// Goes through a text, which must outlive it, stretch by stretch; together the stretches are the text.
///
/// - A comment is `//` or `#` with all up to its line end, that included, or `/*` with all up to `*/`.
/// - A quotation lies between two `"`, or between two `'` of which the first stands behind "(" or ",", so that an
///   apostrophe quotes nothing. A backslash takes the meaning from the character behind it. A quotation goes
///   beyond its line only when "," or ")" follows its end: one that was forgotten to be closed must not turn the rest of
///   the file inside out.
class TPrefsLexer {
  public:
    explicit TPrefsLexer(std::wstring_view text) : FRest(text) {}

    /// Takes the next stretch off the text; false at its end.
    [[nodiscard]] bool Next();

    [[nodiscard]] TPrefsPart Part() const { return FPart; }
    [[nodiscard]] std::wstring_view Text() const { return FText; }

  private:
    [[nodiscard]] std::size_t CommentLength() const;
    [[nodiscard]] std::size_t QuotationLength() const;
    [[nodiscard]] std::size_t CodeLength();

    std::wstring_view FRest;
    std::wstring_view FText;
    TPrefsPart FPart = TPrefsPart::Code;
    wchar_t FBefore = 0;  ///< the last character of code that is no white space
};

/// How long the text is up to the end of its first line, line end included; all of it when there is none.
[[nodiscard]] std::size_t LineLength(std::wstring_view text);

/// The text with blanks in place of comments, character for character; line ends remain.
[[nodiscard]] std::wstring WithBlankedComments(std::wstring_view text);
