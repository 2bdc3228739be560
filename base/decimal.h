// Whole numbers in decimal.
#pragma once

#include <cstdint>
#include <string>

/// The number with leading zeros up to so many digits. std::to_wstring and swprintf would bring in 25 KB of formatting, of
/// floating-point numbers above all.
[[nodiscard]] std::wstring DecimalText(std::int64_t number, std::size_t digits = 1);
