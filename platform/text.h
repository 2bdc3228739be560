// Text as the program reads, compares and converts it: the same on every host and in every locale.
#pragma once

#include <string_view>

#include "platform/windows_info.h"

/// The text of a whole file. A byte-order mark selects UTF-8 or UTF-16 in either byte order and is no part of the
/// text; without one the bytes are in the system's ANSI code page. Malformed sequences become U+FFFD, and half a
/// UTF-16 unit at the end is dropped. NUL is a character like any other.
[[nodiscard]] std::wstring DecodeText(std::span<const std::uint8_t> bytes, const TWindowsInfo& windows);

/// How a text without a byte-order mark is written.
enum class TTextEncoding : std::uint8_t { Utf8, Ansi };

struct TDecodedText {
    std::wstring Text;
    TTextEncoding Encoding = TTextEncoding::Utf8;
};

/// DecodeText for files that are in UTF-8 as a rule: without a byte-order mark, bytes that are well-formed UTF-8 are
/// UTF-8 and only others are in the ANSI code page. `Encoding` holds the text again without loss; after a byte-order
/// mark, of whatever kind, that is UTF-8.
[[nodiscard]] TDecodedText DecodeUtf8OrAnsi(std::span<const std::uint8_t> bytes, const TWindowsInfo& windows);

/// The text of a file that is well-formed UTF-8, where it stands behind the byte-order mark that it may have; nothing for
/// any other file.
[[nodiscard]] std::optional<std::string_view> Utf8Text(std::span<const std::uint8_t> bytes);

/// The other way round from ToUtf8. Malformed sequences become U+FFFD.
[[nodiscard]] std::wstring FromUtf8(std::string_view bytes);

/// The bytes of a text, without byte-order mark.
[[nodiscard]] std::vector<std::uint8_t> EncodeText(std::wstring_view text, TTextEncoding encoding,
                                                   const TWindowsInfo& windows);

/// Goes through a text, which must outlive it, line by line. A line ends with CR LF, LF or CR; the last line needs
/// no end, and an end does not begin another line.
class TLineReader {
  public:
    explicit TLineReader(std::wstring_view text) : FRest(text) {}

    /// The next line, without its end; false when there is none.
    [[nodiscard]] bool Next(std::wstring_view& line);

  private:
    std::wstring_view FRest;
};

/// Without the characters up to U+0020 at both ends.
[[nodiscard]] std::wstring_view Trim(std::wstring_view text);
[[nodiscard]] std::string_view Trim(std::string_view text);

/// Whether two texts differ in nothing but the case of their letters. Letters are those of the Unicode blocks
/// Basic Latin, Latin-1, Latin Extended-A, Greek (the modern alphabet) and Cyrillic; a letter without a single
/// counterpart of its own there (the German sharp s, the dotted capital I) is equal to itself alone. The final
/// sigma is a sigma.
[[nodiscard]] bool SameText(std::wstring_view a, std::wstring_view b);
/// The same for texts in UTF-8.
[[nodiscard]] bool SameText(std::string_view a, std::string_view b);

/// Where `part` first occurs in the text without regard to case, as SameText understands it; npos when it does not.
[[nodiscard]] std::size_t FindText(std::wstring_view text, std::wstring_view part);

/// The decimal number that the whole text is: an optional sign and digits. Nothing when there is anything else
/// in it or when the number does not fit.
[[nodiscard]] std::optional<std::int32_t> ParseInteger(std::wstring_view text);

/// ParseInteger for a set of 32 bits, which may be written with a sign or without.
[[nodiscard]] std::optional<std::uint32_t> ParseBits(std::wstring_view text);

/// Hash and equality for containers whose keys are texts without regard to case.
struct TTextHash {
    using is_transparent = void;
    [[nodiscard]] std::size_t operator()(std::wstring_view text) const;
    /// For texts in UTF-8. Those beyond ASCII have the same hash, so that keys should be ASCII as a rule.
    [[nodiscard]] std::size_t operator()(std::string_view text) const;
};
struct TTextEqual {
    using is_transparent = void;
    [[nodiscard]] bool operator()(std::wstring_view a, std::wstring_view b) const { return SameText(a, b); }
};
