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

TEST(PngDecoderTest, DecodesColoursAndTransparency) {
    const std::optional<TPixels> icon = DecodePng(ResourceFile(L"general_16"));
    ASSERT_TRUE(icon.has_value());
    EXPECT_TRUE(icon->Width == 16 && icon->Height == 16);
    ASSERT_EQ(icon->Pixels.size(), 256u);
    EXPECT_EQ(icon->Pixels[0], 0u) << "the corner of an icon is clear";
    TPixel mostOpaque = 0;
    for (const TPixel pixel : icon->Pixels) {
        mostOpaque = std::max(mostOpaque, pixel >> 24);
        for (const int shift : {0, 8, 16}) EXPECT_LE(pixel >> shift & 0xFF, pixel >> 24);
    }
    EXPECT_EQ(mostOpaque, 0xFFu);

    constexpr char kRed[] =
        "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x8\2\0\0\0\x90wS\xDE\0\0\0\fIDAT\x78\x9C\x63\xF8\xCF"
        "\xC0\0\0\3"
        "\1\1\0\xC9\xFE\x92\xEF\0\0\0\0IEND\xAE\x42\x60\x82";
    const std::optional<TPixels> red = DecodePng(std::as_bytes(std::span(kRed).first<sizeof kRed - 1>()));
    ASSERT_TRUE(red.has_value());
    EXPECT_EQ(red->Pixels, std::vector<TPixel>{0xFFFF0000});
}

TEST(PngDecoderTest, BrokenFilesGiveNothing) {
    const std::vector<std::byte> file = ResourceFile(L"general_32");
    ASSERT_GT(file.size(), 100u);
    constexpr std::size_t kHeader = 33;  // signature and the chunk with the sizes
    for (std::size_t length = 0; length < kHeader + 12; ++length)
        EXPECT_FALSE(DecodePng(std::span(file).first(length)).has_value()) << length;
    EXPECT_FALSE(DecodePng(std::span(file).first(file.size() / 2)).has_value());

    for (std::size_t i = 0; i < file.size(); ++i) {
        std::vector<std::byte> broken = file;
        broken[i] ^= std::byte{0xFF};
        // The header's checksum tells; elsewhere the change may not matter, but every answer is a whole picture.
        const std::optional<TPixels> pixels = DecodePng(broken);
        EXPECT_TRUE(!pixels || (i >= kHeader && pixels->Pixels.size() == 32u * 32u)) << i;
    }
}

TEST(PictureStoreTest, FindsTheFittingSize) {
    TPictureStore store(nullptr);
    const std::tuple<const wchar_t*, int, int> cases[] = {
        {L"general", 16, 16},         {L"general", 20, 20},   {L"general", 18, 18},  // scaled down
        {L"general", 40, 40},         {L"general", 48, 48},                          // of few colours
        {L"general", 64, 48},         {L"loading_0", 16, 16},  // the largest, the smallest there is
        {L"loading_6", 64, 64},       {L"missing", 16, 0},    {L"logon_classic", 100, 150},
        {L"logon_classic", 150, 225},  // sizes are heights, scaling keeps the shape
    };
    for (const auto& [name, size, found] : cases) {
        const TPicture* picture = store.Find(name, size);
        EXPECT_EQ(picture == nullptr ? 0 : picture->Width(), found) << size;
    }
    EXPECT_EQ(store.Find(L"general", 18), store.Find(L"general", 18)) << "decoded once";
}

TEST(PictureTest, DrawsOverWhatIsThere) {
    const HDC screen = GetDC(nullptr);
    {
        TPaintBuffer ground(screen, {0, 0, 4, 2});
        FillArea(ground.Handle(), {0, 0, 4, 2}, RGB(0x20, 0x40, 0x60));
        TPicture({2, 1, {0xFFAABBCC, 0x00000000}}).Draw(ground.Handle(), 1, 1);
        ASSERT_EQ(ground.Pixels().size(), 8u);
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_EQ(ground.Pixels()[i] & 0xFFFFFF, i == 5 ? 0xAABBCCu : 0x204060u) << i;
    }
    ReleaseDC(nullptr, screen);
}

}  // namespace
