#include <gtest/gtest.h>

#include "ui/win32/paint_buffer.h"
#include "ui/win32/picture_store.h"
#include "ui/win32/png_decoder.h"

namespace {

/// A picture of the program's own resources, as a file.
std::vector<std::byte> ResourceFile(const wchar_t* name) {
    const HRSRC place = FindResourceW(nullptr, name, L"PNG");
    if (place == nullptr) return {};
    const auto* bytes = static_cast<const std::byte*>(LockResource(LoadResource(nullptr, place)));
    return {bytes, bytes + SizeofResource(nullptr, place)};
}

TEST(PngDecoderTest, DecodesWithTransparency) {
    const std::optional<TPixels> pixels = DecodePng(ResourceFile(L"general_16"));
    ASSERT_TRUE(pixels.has_value());
    EXPECT_EQ(pixels->Width, 16);
    EXPECT_EQ(pixels->Height, 16);
    ASSERT_EQ(pixels->Pixels.size(), 256u);
    EXPECT_EQ(pixels->Pixels[0], 0u) << "the corner of an icon is clear";
    bool anyOpaque = false;
    for (const TPixel pixel : pixels->Pixels) {
        const TPixel alpha = pixel >> 24;
        anyOpaque = anyOpaque || alpha == 0xFF;
        for (const int shift : {0, 8, 16}) EXPECT_LE(pixel >> shift & 0xFF, alpha);
    }
    EXPECT_TRUE(anyOpaque);
}

TEST(PngDecoderTest, KeepsTheOrderOfColours) {
    // One red pixel.
    constexpr unsigned char kRed[] = {0x89, 'P',  'N',  'G',  0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D,
                                      'I',  'H',  'D',  'R',  0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01,
                                      0x08, 0x02, 0x00, 0x00, 0x00, 0x90, 0x77, 0x53, 0xDE, 0x00, 0x00, 0x00,
                                      0x0C, 'I',  'D',  'A',  'T',  0x78, 0x9C, 0x63, 0xF8, 0xCF, 0xC0, 0x00,
                                      0x00, 0x03, 0x01, 0x01, 0x00, 0xC9, 0xFE, 0x92, 0xEF, 0x00, 0x00, 0x00,
                                      0x00, 'I',  'E',  'N',  'D',  0xAE, 0x42, 0x60, 0x82};
    const std::optional<TPixels> pixels = DecodePng(std::as_bytes(std::span(kRed)));
    ASSERT_TRUE(pixels.has_value());
    EXPECT_EQ(pixels->Pixels, std::vector<TPixel>{0xFFFF0000});
}

TEST(PngDecoderTest, BrokenFilesGiveNothing) {
    const std::vector<std::byte> file = ResourceFile(L"general_32");
    ASSERT_GT(file.size(), 100u);
    constexpr std::size_t kHeader = 33;  // signature and the chunk with the sizes

    for (std::size_t length = 0; length < kHeader + 12; ++length)
        EXPECT_FALSE(DecodePng(std::span(file).first(length)).has_value()) << length;
    EXPECT_FALSE(DecodePng(std::span(file).first(file.size() / 2)).has_value());

    // Every chunk carries a checksum, so a changed byte in the header is noticed.
    for (std::size_t i = 0; i < kHeader; ++i) {
        std::vector<std::byte> broken = file;
        broken[i] ^= std::byte{0x40};
        EXPECT_FALSE(DecodePng(broken).has_value()) << i;
    }
    // Elsewhere it may be in a part that does not matter; all that counts is that every answer is a whole picture.
    for (std::size_t i = kHeader; i < file.size(); ++i) {
        std::vector<std::byte> broken = file;
        broken[i] ^= std::byte{0xFF};
        const std::optional<TPixels> pixels = DecodePng(broken);
        EXPECT_TRUE(!pixels || pixels->Pixels.size() == 32u * 32u) << i;
    }
}

TEST(PictureStoreTest, FindsTheFittingSize) {
    TPictureStore store(nullptr);
    const auto sizeOf = [&store](const wchar_t* name, int size) {
        const TPicture* picture = store.Find(name, size);
        return picture == nullptr ? 0 : picture->Width();
    };
    EXPECT_EQ(sizeOf(L"general", 16), 16);
    EXPECT_EQ(sizeOf(L"general", 20), 20);
    EXPECT_EQ(sizeOf(L"general", 18), 18) << "scaled down";
    EXPECT_EQ(sizeOf(L"general", 40), 32) << "the largest there is";
    EXPECT_EQ(sizeOf(L"loading_0", 16), 16) << "has no size below 32";
    EXPECT_EQ(sizeOf(L"loading_6", 64), 64);
    EXPECT_EQ(sizeOf(L"missing", 16), 0);
    EXPECT_EQ(store.Find(L"general", 18), store.Find(L"general", 18)) << "decoded once";
}

TEST(PictureTest, DrawsOverWhatIsThere) {
    const HDC screen = GetDC(nullptr);
    {
        TPaintBuffer ground(screen, {0, 0, 4, 2});
        FillArea(ground.Handle(), {0, 0, 4, 2}, RGB(0x20, 0x40, 0x60));
        const TPicture picture({2, 1, {0xFFAABBCC, 0x00000000}});
        picture.Draw(ground.Handle(), 1, 1);
        const auto pixels = ground.Pixels();
        ASSERT_EQ(pixels.size(), 8u);
        constexpr TPixel kGround = 0x204060;
        const std::vector<TPixel> expected{kGround, kGround,  kGround, kGround,
                                           kGround, 0xAABBCC, kGround, kGround};
        for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(pixels[i] & 0xFFFFFF, expected[i]) << i;
    }
    ReleaseDC(nullptr, screen);
}

}  // namespace
