// The text of a registry file, which is read part by part and written piece by piece.
#pragma once

#include <span>

#include "platform/registry.h"
#include "platform/windows_info.h"

/// What a comment of this program begins with.
inline constexpr std::wstring_view kRegNote = L";Quilltune ";

/// Goes through a text, which must outlive it, line by line, and through each line part by part. Every part that is taken
/// is gone from the rest of the line. Blanks are spaces and tabs.
class TRegFileText {
  public:
    /// Where a text in quotes stands, which decides what it may hold.
    enum class TQuotes : std::uint8_t {
        Value,  ///< raw line breaks as well, but no NUL
        Note,   ///< "\0" is NUL; it ends in its line
    };

    explicit TRegFileText(std::wstring_view text) : FText(text) {}

    /// Goes to the beginning of the next line, as TLineReader has them; false when there is none.
    [[nodiscard]] bool NextLine();
    [[nodiscard]] std::size_t LineNumber() const { return FNumber; }
    [[nodiscard]] std::wstring_view Rest() const { return FRest; }

    void SkipBlanks();
    /// Whether there is nothing more in the line but blanks and a comment, which are taken.
    [[nodiscard]] bool TakeEnd();
    /// Takes the part when the rest begins with it.
    [[nodiscard]] bool Take(std::wstring_view part);
    /// Takes blanks, the word and the blanks behind it, unless the rest begins with another word.
    [[nodiscard]] bool TakeWord(std::wstring_view word);
    /// Takes a text in quotes without its escapes.
    [[nodiscard]] bool TakeQuoted(std::wstring& text, TQuotes place);
    /// Takes hexadecimal digits; nothing when there are none or more than 32 bits.
    [[nodiscard]] std::optional<std::uint32_t> TakeHex();
    /// Takes bytes with commas between them. A comma may be followed by a backslash as the last thing of its line; they
    /// then go on in another one, if `overLines`. False when the text is broken; what follows the bytes stays there.
    [[nodiscard]] bool TakeBytes(TBytes& bytes, bool overLines);

  private:
    [[nodiscard]] bool TakeByte(TBytes& bytes);
    [[nodiscard]] bool GoOnInAnotherLine();

    std::wstring_view FText;
    std::wstring_view FRest;
    std::size_t FEnd = 0;   ///< of the line, without its line break
    std::size_t FNext = 0;  ///< where the next line begins
    std::size_t FNumber = 0;
};

/// The text in quotes, with escapes. It is in a single line, and can be read at either place, at that of a value unless it
/// holds NUL.
void AppendQuoted(std::wstring& line, std::wstring_view text);
/// The lowest digits of the number.
void AppendHex(std::wstring& line, std::uint32_t number, int digits);
void AppendBytes(std::wstring& line, std::span<const std::uint8_t> bytes);

/// The units of a text of 16 bits each, the low byte first. A surrogate that has no other half stays as it is.
[[nodiscard]] TBytes Utf16Bytes(std::wstring_view text);
/// The other way round. Half a unit at the end is dropped.
[[nodiscard]] std::wstring FromUtf16Bytes(std::span<const std::uint8_t> bytes, bool highFirst = false);
