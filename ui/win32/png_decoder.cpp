#include "ui/win32/png_decoder.h"

#include <zlib.h>

#include <algorithm>
#include <string>

#include <png.h>

namespace {

// Far above every picture of the interface; keeps a broken header from asking for the whole memory.
constexpr png_uint_32 kLargestSide = 1024;

/// libpng's description of one image, freed at the end. This interface of libpng deals with its long jumps inside
/// the library and answers with plain results.
struct TPngImage : png_image {
    TPngImage() : png_image{} { version = PNG_IMAGE_VERSION; }
    ~TPngImage() { png_image_free(this); }
    TPngImage(const TPngImage&) = delete;
    TPngImage& operator=(const TPngImage&) = delete;
};

}  // namespace

std::optional<TPixels> DecodePng(std::span<const std::byte> file) {
    TPngImage image;
    if (file.empty() || png_image_begin_read_from_memory(&image, file.data(), file.size()) == 0)
        return std::nullopt;
    if (image.width > kLargestSide || image.height > kLargestSide) return std::nullopt;

    // In memory the bytes of a TPixel are blue, green, red, alpha.
    image.format = PNG_FORMAT_BGRA;
    TPixels result{static_cast<int>(image.width), static_cast<int>(image.height), {}};
    result.Pixels.resize(std::size_t{image.width} * image.height);
    if (png_image_finish_read(&image, nullptr, result.Pixels.data(), 0, nullptr) == 0) return std::nullopt;
    std::transform(result.Pixels.begin(), result.Pixels.end(), result.Pixels.begin(), Premultiply);
    return result;
}

std::wstring PngNotices() {
    const std::string notices = png_get_copyright(nullptr) +
                                (std::string("\nzlib version ") + zlibVersion()) +
                                "\nCopyright (c) 1995-2022 Jean-loup Gailly and Mark Adler";
    return {notices.begin() + (notices[0] == '\n' ? 1 : 0), notices.end()};
}
