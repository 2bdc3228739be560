#include "platform/unicode.h"

namespace {

bool IsHighSurrogate(char32_t code) { return code >= 0xD800 && code <= 0xDBFF; }
bool IsLowSurrogate(char32_t code) { return code >= 0xDC00 && code <= 0xDFFF; }

/// Takes a character, which may be a surrogate pair, off the beginning of `rest`.
char32_t TakeCharacter(std::wstring_view& rest) {
    const auto take = [&] {
        const auto code = static_cast<char32_t>(rest.front());
        rest.remove_prefix(1);
        return code;
    };
    const char32_t first = take();
    if (IsHighSurrogate(first) && !rest.empty() && IsLowSurrogate(static_cast<char32_t>(rest.front())))
        return 0x10000 + ((first - 0xD800) << 10) + (take() - 0xDC00);
    return IsHighSurrogate(first) || IsLowSurrogate(first) || first > 0x10FFFF ? kReplacement : first;
}

}  // namespace

std::string ToUtf8(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const char32_t code = TakeCharacter(text);
        const auto lead = [&](char32_t mark, int trails) {
            bytes.push_back(static_cast<char>(mark | code >> (6 * trails)));
            while (trails-- > 0) bytes.push_back(static_cast<char>(0x80 | (code >> (6 * trails) & 0x3F)));
        };
        if (code < 0x80)
            lead(0, 0);
        else if (code < 0x800)
            lead(0xC0, 1);
        else if (code < 0x10000)
            lead(0xE0, 2);
        else
            lead(0xF0, 3);
    }
    return bytes;
}

std::u16string ToUtf16(std::wstring_view text) {
    std::u16string units;
    units.reserve(text.size());
    while (!text.empty()) {
        const char32_t code = TakeCharacter(text);
        if (code < 0x10000) {
            units.push_back(static_cast<char16_t>(code));
        } else {
            units.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
            units.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
        }
    }
    return units;
}
