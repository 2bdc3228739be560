// Colours as numbers.
#pragma once

#include <cstdint>

/// A colour as 0x00BBGGRR, the layout of the Windows COLORREF.
using TColor = std::uint32_t;
