#include "base/decimal.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>

std::wstring DecimalText(std::int64_t number, std::size_t digits) {
    char buffer[20];  // as many as the longest number needs
    const char* const end = std::to_chars(std::begin(buffer), std::end(buffer), number).ptr;
    const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
    return std::wstring(std::max(digits, text.size()) - text.size(), L'0').append(text.begin(), text.end());
}

std::wstring HexText(std::uint64_t number, std::size_t digits, const wchar_t* numerals) {
    std::wstring text;
    for (; number != 0 || text.size() < digits; number >>= 4) text += numerals[number & 15];
    std::ranges::reverse(text);
    return text;
}
