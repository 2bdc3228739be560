// Decodes PNG images.
#pragma once

#include <cstddef>
#include <optional>

#include "ui/pixels.h"

/// The pixels of a PNG file of any colour type and depth, premultiplied. Nothing when the file is broken, cut off
/// or larger than any picture of the interface.
[[nodiscard]] std::optional<TPixels> DecodePng(std::span<const std::byte> file);

/// Names, versions and copyright notices of the libraries that do it.
[[nodiscard]] std::wstring PngNotices();
