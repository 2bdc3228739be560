#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "platform/unicode.h"

namespace {

using TByteSpan = std::span<const std::uint8_t>;

constexpr char32_t kMalformed = 0xFFFFFFFF;  ///< stands for bytes that are no character

void Append(std::wstring& text, char32_t code) {
    if constexpr (sizeof(wchar_t) == 2) {
        if (code > 0xFFFF) {
            code -= 0x10000;
            text.push_back(static_cast<wchar_t>(0xD800 + (code >> 10)));
            code = 0xDC00 + (code & 0x3FF);
        }
    }
    text.push_back(static_cast<wchar_t>(code));
}

/// A range of first bytes of a UTF-8 sequence, how many bytes follow, and the bounds of the first that does. The
/// bounds leave out longer forms than needed, surrogates and what lies beyond U+10FFFF.
struct TUtf8Lead {
    std::uint8_t First;
    std::uint8_t Last;
    int Trails;
    std::uint8_t Low;
    std::uint8_t High;
};

constexpr auto kUtf8Leads = std::to_array<TUtf8Lead>({
    {0xC2, 0xDF, 1, 0x80, 0xBF},
    {0xE0, 0xE0, 2, 0xA0, 0xBF},
    {0xE1, 0xEC, 2, 0x80, 0xBF},
    {0xED, 0xED, 2, 0x80, 0x9F},
    {0xEE, 0xEF, 2, 0x80, 0xBF},
    {0xF0, 0xF0, 3, 0x90, 0xBF},
    {0xF1, 0xF3, 3, 0x80, 0xBF},
    {0xF4, 0xF4, 3, 0x80, 0x8F},
});

/// Takes a character off the beginning of `rest`; kMalformed when there is none. Of a sequence that goes wrong it
/// takes as much as is right, but at least a byte, as Unicode recommends.
char32_t TakeUtf8(TByteSpan& rest) {
    const auto take = [&] {
        const std::uint8_t byte = rest.front();
        rest = rest.subspan(1);
        return byte;
    };
    const std::uint8_t first = take();
    if (first < 0x80) return first;
    const auto* const lead = std::ranges::find_if(
        kUtf8Leads, [&](const TUtf8Lead& each) { return first >= each.First && first <= each.Last; });
    if (lead == kUtf8Leads.end()) return kMalformed;
    char32_t code = first & (0x3FU >> lead->Trails);
    std::uint8_t low = lead->Low;
    std::uint8_t high = lead->High;
    for (int i = 0; i < lead->Trails; ++i) {
        if (rest.empty() || rest.front() < low || rest.front() > high) return kMalformed;
        code = code << 6 | (take() & 0x3FU);
        low = 0x80;
        high = 0xBF;
    }
    return code;
}

/// In a word of eight bytes the bits that ASCII lacks.
constexpr std::uint64_t kBeyondAscii = 0x8080808080808080;

/// How many bytes at the beginning are ASCII; the last few of them may be left out.
std::size_t AsciiLength(TByteSpan bytes) {
    std::size_t length = 0;
    for (std::uint64_t word = 0; length + sizeof word <= bytes.size(); length += sizeof word) {
        std::memcpy(&word, bytes.data() + length, sizeof word);
        if ((word & kBeyondAscii) != 0) break;
    }
    return length;
}

std::wstring FromUtf8(TByteSpan bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const char32_t code = TakeUtf8(bytes);
        Append(text, code == kMalformed ? kReplacement : code);
    }
    return text;
}

bool IsUtf8(TByteSpan bytes) {
    for (;;) {
        bytes = bytes.subspan(AsciiLength(bytes));
        if (bytes.empty()) return true;
        if (TakeUtf8(bytes) == kMalformed) return false;
    }
}

/// `highByte` is the place of the high byte in a unit, 0 or 1.
std::wstring FromUtf16(TByteSpan bytes, std::size_t highByte) {
    const std::size_t count = bytes.size() / 2;
    const auto unit = [&](std::size_t i) -> char32_t {
        return static_cast<char32_t>(bytes[2 * i + highByte] << 8 | bytes[2 * i + 1 - highByte]);
    };
    const auto isHigh = [](char32_t code) { return code >= 0xD800 && code <= 0xDBFF; };
    const auto isLow = [](char32_t code) { return code >= 0xDC00 && code <= 0xDFFF; };
    std::wstring text;
    text.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        char32_t code = unit(i);
        if (isHigh(code) && i + 1 < count && isLow(unit(i + 1)))
            code = 0x10000 + ((code - 0xD800) << 10) + (unit(++i) - 0xDC00);
        else if (isHigh(code) || isLow(code))
            code = kReplacement;
        Append(text, code);
    }
    return text;
}

bool StartsWith(TByteSpan bytes, std::initializer_list<std::uint8_t> mark) {
    return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
}

constexpr std::size_t kUtf8MarkLength = 3;
bool HasUtf8Mark(TByteSpan bytes) { return StartsWith(bytes, {0xEF, 0xBB, 0xBF}); }

/// The text after a byte-order mark; nothing when there is none.
std::optional<std::wstring> DecodeMarked(TByteSpan bytes) {
    if (HasUtf8Mark(bytes)) return FromUtf8(bytes.subspan(kUtf8MarkLength));
    if (StartsWith(bytes, {0xFF, 0xFE})) return FromUtf16(bytes.subspan(2), 1);
    if (StartsWith(bytes, {0xFE, 0xFF})) return FromUtf16(bytes.subspan(2), 0);
    return std::nullopt;
}

/// Capitals beyond ASCII and how far their small letters are from them.
struct TCapitals {
    char32_t First;
    char32_t Last;
    char32_t Step;  ///< 2 where capitals and small letters alternate
    int Distance;
};

constexpr auto kCapitals = std::to_array<TCapitals>({
    // Latin-1 without the multiplication sign.
    {0x00C0, 0x00D6, 1, 32},
    {0x00D8, 0x00DE, 1, 32},
    // Latin Extended-A. The small letter of Y with diaeresis is in Latin-1.
    {0x0100, 0x012E, 2, 1},
    {0x0132, 0x0136, 2, 1},
    {0x0139, 0x0147, 2, 1},
    {0x014A, 0x0176, 2, 1},
    {0x0178, 0x0178, 1, -121},
    {0x0179, 0x017D, 2, 1},
    // Greek: the letters with tonos, the alphabet, the final sigma as if it were a capital.
    {0x0386, 0x0386, 1, 38},
    {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64},
    {0x038E, 0x038F, 1, 63},
    {0x0391, 0x03A1, 1, 32},
    {0x03A3, 0x03AB, 1, 32},
    {0x03C2, 0x03C2, 1, 1},
    // Cyrillic.
    {0x0400, 0x040F, 1, 80},
    {0x0410, 0x042F, 1, 32},
    {0x0460, 0x0480, 2, 1},
    {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 15},
    {0x04C1, 0x04CD, 2, 1},
    {0x04D0, 0x052E, 2, 1},
});

/// The small letter of a capital; any other character stays as it is.
char32_t Fold(wchar_t character) {
    const auto code = static_cast<char32_t>(character);
    if (code < 0x80) return code >= U'A' && code <= U'Z' ? code + 32 : code;
    if (code > kCapitals.back().Last) return code;
    for (const TCapitals& capitals : kCapitals) {
        if (code < capitals.First) break;
        if (code <= capitals.Last && (code - capitals.First) % capitals.Step == 0)
            return static_cast<char32_t>(static_cast<int>(code) + capitals.Distance);
    }
    return code;
}

/// Takes the first eight bytes off the text; zeros stand for those that it lacks.
std::uint64_t TakeWord(std::string_view& text) {
    std::uint64_t word = 0;
    if (text.size() >= sizeof word) {
        std::memcpy(&word, text.data(), sizeof word);
        text.remove_prefix(sizeof word);
    } else {
        std::memcpy(&word, text.data(), text.size());
        text = {};
    }
    return word;
}

/// Of a character in UTF-8 the small letter of an ASCII capital; all bytes beyond ASCII are alike. Capitals have as many
/// bytes as their small letters, so that texts that are the same stay the same.
char FoldByte(char byte) {
    if (static_cast<unsigned char>(byte) >= 0x80) return '\x7F';
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

}  // namespace

std::wstring DecodeText(std::span<const std::uint8_t> bytes, const TWindowsInfo& windows) {
    if (auto text = DecodeMarked(bytes)) return *std::move(text);
    return windows.FromAnsi(bytes);
}

TDecodedText DecodeUtf8OrAnsi(std::span<const std::uint8_t> bytes, const TWindowsInfo& windows) {
    if (auto text = DecodeMarked(bytes)) return {.Text = *std::move(text)};
    if (IsUtf8(bytes)) return {.Text = FromUtf8(bytes)};
    return {.Text = windows.FromAnsi(bytes), .Encoding = TTextEncoding::Ansi};
}

std::optional<std::string_view> Utf8Text(std::span<const std::uint8_t> bytes) {
    if (HasUtf8Mark(bytes)) bytes = bytes.subspan(kUtf8MarkLength);
    if (!IsUtf8(bytes)) return std::nullopt;
    return std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

std::wstring FromUtf8(std::string_view bytes) {
    return FromUtf8(TByteSpan(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
}

std::vector<std::uint8_t> EncodeText(std::wstring_view text, TTextEncoding encoding,
                                     const TWindowsInfo& windows) {
    if (encoding == TTextEncoding::Ansi) return windows.ToAnsi(text);
    const std::string bytes = ToUtf8(text);
    return {bytes.begin(), bytes.end()};
}

bool TLineReader::Next(std::wstring_view& line) {
    if (FRest.empty()) return false;
    const auto isEnd = [](wchar_t c) { return c == L'\r' || c == L'\n'; };
    const auto length = static_cast<std::size_t>(std::ranges::find_if(FRest, isEnd) - FRest.begin());
    line = FRest.substr(0, length);
    FRest.remove_prefix(length);
    if (!FRest.empty()) FRest.remove_prefix(FRest.starts_with(L"\r\n") ? 2 : 1);
    return true;
}

std::wstring_view Trim(std::wstring_view text) {
    while (!text.empty() && text.front() <= L' ') text.remove_prefix(1);
    while (!text.empty() && text.back() <= L' ') text.remove_suffix(1);
    return text;
}

std::string_view Trim(std::string_view text) {
    const auto isBlank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

bool SameText(std::wstring_view a, std::wstring_view b) { return std::ranges::equal(a, b, {}, Fold, Fold); }

bool SameText(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, FoldByte, FoldByte) && SameText(FromUtf8(a), FromUtf8(b));
}

std::size_t FindText(std::wstring_view text, std::wstring_view part) {
    const auto same = [](wchar_t a, wchar_t b) { return Fold(a) == Fold(b); };
    const auto* const found = std::search(text.begin(), text.end(), part.begin(), part.end(), same);
    return found == text.end() && !part.empty() ? std::wstring_view::npos
                                                : static_cast<std::size_t>(found - text.begin());
}

namespace {

std::optional<std::int64_t> ParseUpTo(std::int64_t limit, std::wstring_view text) {
    const bool negative = text.starts_with(L'-');
    if (negative || text.starts_with(L'+')) text.remove_prefix(1);
    if (text.empty()) return std::nullopt;
    if (negative) limit = -std::int64_t{std::numeric_limits<std::int32_t>::min()};
    std::int64_t number = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9') return std::nullopt;
        number = number * 10 + (c - L'0');
        if (number > limit) return std::nullopt;
    }
    return negative ? -number : number;
}

}  // namespace

std::optional<std::int32_t> ParseInteger(std::wstring_view text) {
    const auto number = ParseUpTo(std::numeric_limits<std::int32_t>::max(), text);
    if (!number) return std::nullopt;
    return static_cast<std::int32_t>(*number);
}

std::optional<std::uint32_t> ParseBits(std::wstring_view text) {
    const auto number = ParseUpTo(std::numeric_limits<std::uint32_t>::max(), text);
    if (!number) return std::nullopt;
    return static_cast<std::uint32_t>(*number);
}

std::size_t TTextHash::operator()(std::wstring_view text) const {
    std::size_t hash = 2166136261U;  // FNV-1a, a character at a time
    for (const wchar_t c : text) hash = (hash ^ Fold(c)) * 16777619U;
    return hash;
}

std::size_t TTextHash::operator()(std::string_view text) const {
    constexpr std::uint64_t kSmallLetters = 0x2020202020202020;  // sets the bit that an ASCII capital lacks
    std::uint64_t hash = text.size();
    while (!text.empty()) {
        const std::uint64_t word = TakeWord(text);
        if ((word & kBeyondAscii) != 0) return 0;
        hash = (hash ^ (word | kSmallLetters)) * 0x9E3779B97F4A7C15;
        hash ^= hash >> 32;
    }
    return static_cast<std::size_t>(hash);
}
