// Whole numbers as text.
#pragma once

#include <cstdint>
#include <string>

/// The number with leading zeros up to so many digits. std::to_wstring and swprintf would bring in 25 KB of formatting, of
/// floating-point numbers above all.
[[nodiscard]] std::wstring DecimalText(std::int64_t number, std::size_t digits = 1);

inline constexpr const wchar_t* kCapitalHexDigits = L"0123456789ABCDEF";
inline constexpr const wchar_t* kSmallHexDigits = L"0123456789abcdef";

/// The number in hexadecimal, with leading zeros up to so many digits.
[[nodiscard]] std::wstring HexText(std::uint64_t number, std::size_t digits = 1,
                                   const wchar_t* numerals = kCapitalHexDigits);
