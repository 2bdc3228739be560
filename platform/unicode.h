// Text in the encoding forms of Unicode. A surrogate pair is one character on every host; half a pair, and a number
// that is no character, becomes U+FFFD.
#pragma once

#include <string>
#include <string_view>

/// Stands for what is no character.
inline constexpr char32_t kReplacement = 0xFFFD;

[[nodiscard]] std::string ToUtf8(std::wstring_view text);
[[nodiscard]] std::u16string ToUtf16(std::wstring_view text);
