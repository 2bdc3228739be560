#include "ui/pixels.h"

#include <algorithm>
#include <array>

namespace {

constexpr int kChannels = 4;

/// The channel that stands `index` bytes above the lowest.
unsigned Channel(std::uint32_t pixel, int index) { return (pixel >> (8 * index)) & 0xFF; }

std::uint32_t ToChannel(unsigned value, int index) {
    return static_cast<std::uint32_t>(value) << (8 * index);
}

/// value × share ÷ 255, rounded.
unsigned Share(unsigned value, unsigned share) { return (value * share + kOpaque / 2) / kOpaque; }

/// The part of one new pixel that an old one covers, along one axis. Lengths are counted in units of which an old
/// pixel has as many as there are new pixels, and a new one as many as there are old pixels; both are whole then.
std::int64_t Overlap(int newIndex, int oldIndex, int newCount, int oldCount) {
    const std::int64_t start = std::max(std::int64_t{newIndex} * oldCount, std::int64_t{oldIndex} * newCount);
    const std::int64_t end =
        std::min((std::int64_t{newIndex} + 1) * oldCount, (std::int64_t{oldIndex} + 1) * newCount);
    return std::max<std::int64_t>(end - start, 0);
}

TPixel AverageOf(const TPixels& source, int x, int y, int width, int height) {
    const auto first = [](int index, int newCount, int oldCount) {
        return static_cast<int>(std::int64_t{index} * oldCount / newCount);
    };
    std::array<std::int64_t, kChannels> sums{};
    std::int64_t whole = 0;
    for (int row = first(y, height, source.Height); row < source.Height; ++row) {
        const std::int64_t rowPart = Overlap(y, row, height, source.Height);
        if (rowPart == 0) break;
        for (int column = first(x, width, source.Width); column < source.Width; ++column) {
            const std::int64_t part = rowPart * Overlap(x, column, width, source.Width);
            if (part == 0) break;
            whole += part;
            const std::size_t index = static_cast<std::size_t>(row) * static_cast<std::size_t>(source.Width) +
                                      static_cast<std::size_t>(column);
            for (int i = 0; i < kChannels; ++i)
                sums[static_cast<std::size_t>(i)] += part * Channel(source.Pixels[index], i);
        }
    }
    TPixel average = 0;
    if (whole == 0) return average;
    for (int i = 0; i < kChannels; ++i)
        average |=
            ToChannel(static_cast<unsigned>((sums[static_cast<std::size_t>(i)] + whole / 2) / whole), i);
    return average;
}

}  // namespace

TPixel Premultiply(TPixel straight) {
    const unsigned alpha = Channel(straight, 3);
    TPixel pixel = ToChannel(alpha, 3);
    for (int i = 0; i < 3; ++i) pixel |= ToChannel(Share(Channel(straight, i), alpha), i);
    return pixel;
}

TPixels ScalePixels(const TPixels& source, int width, int height) {
    TPixels scaled{width, height, {}};
    scaled.Pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) scaled.Pixels.push_back(AverageOf(source, x, y, width, height));
    }
    return scaled;
}

TPixels DiscPixels(int diameter, TColor color) {
    constexpr int kFineness = 8;
    const int size = kFineness * diameter;
    const TPixel inside = ToChannel(kOpaque, 3) | ToChannel(Channel(color, 0), 2) |
                          ToChannel(Channel(color, 1), 1) | ToChannel(Channel(color, 2), 0);
    TPixels fine{size, size, {}};
    for (int y = 1 - size; y < size; y += 2)
        for (int x = 1 - size; x < size; x += 2)
            fine.Pixels.push_back(x * x + y * y < size * size ? inside : 0);
    return ScalePixels(fine, diameter, diameter);
}

void BlendPixels(std::span<TPixel> target, std::span<const TPixel> source, unsigned opacity) {
    for (std::size_t i = 0; i < source.size(); ++i) {
        const unsigned behind = kOpaque - Share(Channel(source[i], 3), opacity);
        TPixel pixel = ToChannel(kOpaque, 3);
        for (int c = 0; c < 3; ++c) {
            const unsigned sum = Share(Channel(source[i], c), opacity) + Share(Channel(target[i], c), behind);
            pixel |= ToChannel(std::min(sum, kOpaque), c);
        }
        target[i] = pixel;
    }
}

TColor MixColors(TColor from, TColor to, int percent) {
    TColor mixed = 0;
    for (int i = 0; i < 3; ++i) {
        const int start = static_cast<int>(Channel(from, i));
        const int distance = static_cast<int>(Channel(to, i)) - start;
        mixed |= ToChannel(static_cast<unsigned>(start + distance * percent / 100), i);
    }
    return mixed;
}

int Lightness(TColor color) {
    // The eye takes green as brightest and blue as darkest.
    return static_cast<int>(
        (Channel(color, 0) * 299 + Channel(color, 1) * 587 + Channel(color, 2) * 114 + 500) / 1000);
}
