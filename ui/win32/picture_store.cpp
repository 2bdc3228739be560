#include "ui/win32/picture_store.h"

#include <algorithm>
#include <iterator>

#include "base/decimal.h"
#include "ui/win32/paint_buffer.h"
#include "ui/win32/png_decoder.h"

namespace {

/// The heights that pictures are kept in, ascending. Not every picture has all of them.
constexpr int kSizes[] = {16, 20, 24, 32, 40, 48, 64, 100, 200};

}  // namespace

void TPicture::Draw(HDC target, int left, int top, unsigned opacity) const {
    // Blended by hand: not every screen or printer driver has an AlphaBlend.
    TPaintBuffer ground(target, {left, top, left + Width(), top + Height()});
    ground.CopyTarget();
    const std::span<TPixel> pixels = ground.Pixels();
    if (!pixels.empty()) BlendPixels(pixels, FPixels.Pixels, opacity);
}

const TPicture* TPictureStore::Find(const std::wstring& name, int size) {
    const auto [found, isNew] = FPictures.try_emplace({name, size});
    if (isNew) {
        if (std::optional<TPixels> pixels = Load(name, size))
            found->second = std::make_unique<TPicture>(std::move(*pixels));
    }
    return found->second.get();
}

std::optional<TPixels> TPictureStore::Load(const std::wstring& name, int size) const {
    const auto* const enough = std::lower_bound(std::begin(kSizes), std::end(kSizes), size);
    for (const auto* kept = enough; kept != std::end(kSizes); ++kept) {
        std::optional<TPixels> pixels = Decode(name + L"_" + DecimalText(*kept));
        if (pixels && *kept > size) pixels = ScalePixels(*pixels, pixels->Width * size / *kept, size);
        if (pixels) return pixels;
    }
    for (const auto* kept = enough; kept != std::begin(kSizes); --kept) {
        if (std::optional<TPixels> pixels = Decode(name + L"_" + DecimalText(kept[-1]))) return pixels;
    }
    return std::nullopt;
}

std::optional<TPixels> TPictureStore::Decode(const std::wstring& resource) const {
    const HRSRC place = FindResourceW(FInstance, resource.c_str(), L"PNG");
    if (place == nullptr) return std::nullopt;
    const HGLOBAL loaded = LoadResource(FInstance, place);
    const auto* bytes = static_cast<const std::byte*>(LockResource(loaded));
    if (bytes == nullptr) return std::nullopt;
    return DecodePng({bytes, SizeofResource(FInstance, place)});
}
