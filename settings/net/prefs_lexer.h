// What the characters of Firefox's preference files are: code, quotations, comments. The files are in UTF-8, and so are
// they here: all that matters about them is ASCII, and a large file is not copied.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

inline constexpr std::string_view kPrefsLineEnd = "\r\n";
[[nodiscard]] constexpr bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }
/// White space is every character up to U+0020.
[[nodiscard]] constexpr bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

/// Where the text first has a line end; its own end when it has none.
[[nodiscard]] std::size_t FindLineEnd(std::string_view text);
/// Finds out in a fraction of the time that a text has no line end.
[[nodiscard]] bool HasLineEnd(std::string_view text);

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
    explicit TPrefsLexer(std::string_view text) : FRest(text) {}

    /// Takes the next stretch off the text; false at its end.
    [[nodiscard]] bool Next();

    [[nodiscard]] TPrefsPart Part() const { return FPart; }
    [[nodiscard]] std::string_view Text() const { return FText; }

  private:
    [[nodiscard]] std::size_t CommentLength() const;
    [[nodiscard]] std::size_t QuotationLength() const;
    [[nodiscard]] std::size_t CodeLength();

    std::string_view FRest;
    std::string_view FText;
    TPrefsPart FPart = TPrefsPart::Code;
    char FBefore = 0;  ///< the last character of code that is no white space
};

/// How long the text is up to the end of its first line, line end included; all of it when there is none.
[[nodiscard]] std::size_t LineLength(std::string_view text);

/// The text with blanks in place of comments, character for character; line ends remain.
[[nodiscard]] std::string WithBlankedComments(std::string_view text);
