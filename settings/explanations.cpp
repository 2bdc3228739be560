#include "settings/explanations.h"

#include "platform/unicode.h"

#define ZLIB_CONST
#include <zlib.h>

namespace {

// Far above what they have; keeps broken bytes from asking for the whole memory.
constexpr std::size_t kLargestSize = std::size_t{1} << 20;

/// The size of what is packed, which the last four bytes say.
std::size_t UnpackedSize(std::span<const std::uint8_t> packed) {
    std::size_t size = 0;
    for (std::size_t i = 0; i < 4 && i < packed.size(); ++i) size = size << 8 | packed[packed.size() - 1 - i];
    return size;
}

/// The state of zlib, freed at the end.
struct TInflation : z_stream {
    TInflation() : z_stream{} {}
    ~TInflation() { inflateEnd(this); }
    TInflation(const TInflation&) = delete;
    TInflation& operator=(const TInflation&) = delete;
};

/// The packed text; empty when the bytes are broken.
std::string Inflated(std::span<const std::uint8_t> packed) {
    const std::size_t size = UnpackedSize(packed);
    if (size > kLargestSize) return {};
    std::string text(size, '\0');
    TInflation stream;
    stream.next_in = packed.data();
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef*>(text.data());
    stream.avail_out = static_cast<uInt>(text.size());
    constexpr int kGzip = 16;
    if (inflateInit2(&stream, MAX_WBITS + kGzip) != Z_OK || inflate(&stream, Z_FINISH) != Z_STREAM_END)
        return {};
    return text;
}

}  // namespace

TExtIniFile UnpackExplanations(std::span<const std::uint8_t> packed) {
    TExtIniFile texts;
    const std::wstring text = FromUtf8(Inflated(packed));
    texts.SetStrings(TLineReader(text));
    return texts;
}

const TExtIniFile& Explanations() {
    static const TExtIniFile kTexts = UnpackExplanations(kPackedExplanations);
    return kTexts;
}
