// Arithmetic on pictures and colours, the same on every system.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "ui/color.h"

/// One pixel as 0xAARRGGBB. In a picture the colours are premultiplied: none is larger than the alpha.
using TPixel = std::uint32_t;

/// A picture's pixels, row by row from the top; as many as width times height.
struct TPixels {
    int Width = 0;
    int Height = 0;
    std::vector<TPixel> Pixels;
};

/// The pixel with its colours multiplied by its alpha.
[[nodiscard]] TPixel Premultiply(TPixel straight);

/// The picture in another size. Each new pixel is the average of the area that it covers of the old ones, so that
/// making a picture smaller keeps thin lines. Both sizes are at least one pixel.
[[nodiscard]] TPixels ScalePixels(const TPixels& source, int width, int height);

/// A disc as wide and high as it may be, with smooth edges.
[[nodiscard]] TPixels DiscPixels(int diameter, TColor color);

/// Opacity of a picture that is drawn as it is; 0 is invisible.
inline constexpr unsigned kOpaque = 255;

/// Lays pixels over opaque ones. `target` has at least as many pixels as `source`; its alpha is ignored.
void BlendPixels(std::span<TPixel> target, std::span<const TPixel> source, unsigned opacity = kOpaque);

/// The colour that is `percent` of the way from one to the other.
[[nodiscard]] TColor MixColors(TColor from, TColor to, int percent);

/// How light a colour is to the eye, 0 (black) to 255 (white).
[[nodiscard]] int Lightness(TColor color);
