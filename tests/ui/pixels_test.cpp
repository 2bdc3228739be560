#include "ui/pixels.h"

#include <gtest/gtest.h>

namespace {

TEST(PixelsTest, PremultipliedColoursNeverExceedTheAlpha) {
    EXPECT_EQ(Premultiply(0xFF123456), 0xFF123456u);
    EXPECT_EQ(Premultiply(0x00FFFFFF), 0x00000000u);
    EXPECT_EQ(Premultiply(0x80FF8000), 0x80804000u);
    for (TPixel alpha = 0; alpha <= 0xFF; ++alpha)
        EXPECT_EQ(Premultiply(alpha << 24 | 0xFFFFFF), alpha * 0x01010101u) << alpha;
}

TEST(PixelsTest, ScalingAveragesTheCoveredArea) {
    const TPixels board{2, 2, {0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000}};
    EXPECT_EQ(ScalePixels(board, 1, 1).Pixels, std::vector<TPixel>{0xFF808080});

    // Three pixels into two: the middle one counts half to either side.
    const TPixels line{3, 1, {0xFF0000C0, 0xFF000060, 0xFF000000}};
    EXPECT_EQ(ScalePixels(line, 2, 1).Pixels, (std::vector<TPixel>{0xFF0000A0, 0xFF000020}));

    // The axes are not mixed up, and rows stay rows.
    const TPixels rows{1, 4, {0xFF100000, 0xFF300000, 0xFF000010, 0xFF000030}};
    EXPECT_EQ(ScalePixels(rows, 1, 2).Height, 2);
    EXPECT_EQ(ScalePixels(rows, 1, 2).Pixels, (std::vector<TPixel>{0xFF200000, 0xFF000020}));
}

TEST(PixelsTest, ScalingKeepsPlainSurfaces) {
    const TPixels plain{32, 32, std::vector<TPixel>(32 * 32, 0x99887766)};
    for (const std::size_t size : {1U, 7U, 20U, 32U, 45U})
        EXPECT_EQ(ScalePixels(plain, static_cast<int>(size), static_cast<int>(size)).Pixels,
                  std::vector<TPixel>(size * size, 0x99887766));
}

TEST(PixelsTest, BlendingLaysPicturesOverOpaqueGround) {
    std::vector<TPixel> target{0x00112233, 0x00112233, 0x00FFFFFF, 0x00FFFFFF, 0x00FFFFFF, 0x00ABCDEF};
    // Clear, opaque, half black, half white, brighter than its alpha; the last pixel is not covered.
    BlendPixels(target, std::vector<TPixel>{0x00000000, 0xFF445566, 0x80000000, 0x80808080, 0x10FFFFFF});
    EXPECT_EQ(target,
              (std::vector<TPixel>{0xFF112233, 0xFF445566, 0xFF7F7F7F, 0xFFFFFFFF, 0xFFFFFFFF, 0x00ABCDEF}));

    target = {0x00FFFFFF, 0x00FFFFFF, 0x00102030};
    BlendPixels(target, std::vector<TPixel>{0xFF000000, 0x00000000}, 128);
    EXPECT_EQ(target, (std::vector<TPixel>{0xFF7F7F7F, 0xFFFFFFFF, 0x00102030})) << "half faded";
    BlendPixels(target, std::vector<TPixel>{0xFFABCDEF}, 0);
    EXPECT_EQ(target[0], 0xFF7F7F7Fu);
}

TEST(PixelsTest, ColoursMixAndAreWeighedByChannel) {
    EXPECT_EQ(MixColors(0xFFFFFF, 0xC65D21, 0), 0xFFFFFFu);
    EXPECT_EQ(MixColors(0xFFFFFF, 0xC65D21, 100), 0xC65D21u);
    EXPECT_EQ(MixColors(0x000000, 0x6432C8, 50), 0x321964u);
    EXPECT_EQ(MixColors(0x6432C8, 0x000000, 50), 0x321964u);

    EXPECT_EQ(Lightness(0x000000), 0);
    EXPECT_EQ(Lightness(0xFFFFFF), 255);
    EXPECT_GT(Lightness(0x00FF00), Lightness(0x0000FF));  // green above red
    EXPECT_GT(Lightness(0x0000FF), Lightness(0xFF0000));  // red above blue
}

}  // namespace
