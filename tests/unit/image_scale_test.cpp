#include "ui/image/image_scale.h"

#include <gtest/gtest.h>

#include "image_test_data.h"

using namespace cv2;

namespace {

// An image whose pixel (x, y) is given by `bgra` (blue in the low byte).
template <class F> PixelImage Make(int width, int height, bool alpha, F bgra) {
    PixelImage image = MakePixelImage(width, height);
    image.hasAlpha = alpha;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const uint32_t v = bgra(x, y);
            for (int c = 0; c < 4; ++c)
                image.At(x, y)[c] = static_cast<unsigned char>(v >> (8 * c));
        }
    }
    return image;
}

} // namespace

TEST(ImageScale, SameSizeKeepsEveryPixel) {
    const PixelImage source = cv2test::Picture("alpha");
    EXPECT_TRUE(cv2test::SamePixels(ScaleImage(source, 23, 17), source));
}

TEST(ImageScale, HalvingAveragesEachTwoByTwoBlock) {
    const PixelImage source =
        Make(4, 2, false, [](int x, int y) { return 0xFF000000u | (x * 40 + y * 8 + 1); });
    const PixelImage half = ScaleImage(source, 2, 1);
    ASSERT_EQ(half.width, 2);
    ASSERT_EQ(half.height, 1);
    // (1 + 41 + 9 + 49) / 4 and (81 + 121 + 89 + 129) / 4
    EXPECT_EQ(half.At(0, 0)[0], 25);
    EXPECT_EQ(half.At(1, 0)[0], 105);
    EXPECT_EQ(half.At(1, 0)[3], 255);
}

TEST(ImageScale, ShrunkRealPictureIsTheAverageOfItsBlocks) {
    const PixelImage source = cv2test::Opaque(cv2test::Picture("graded32"));
    const PixelImage small = ScaleImage(source, 8, 8);
    ASSERT_EQ(small.width, 8);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            for (int c = 0; c < 3; ++c) {
                int sum = 0;
                for (int dy = 0; dy < 4; ++dy) {
                    for (int dx = 0; dx < 4; ++dx)
                        sum += source.At(x * 4 + dx, y * 4 + dy)[c];
                }
                EXPECT_NEAR(small.At(x, y)[c], sum / 16.0, 0.51) << x << "," << y << " " << c;
            }
        }
    }
}

TEST(ImageScale, EnlargingByAWholeFactorRepeatsPixels) {
    const PixelImage source = cv2test::Picture("few16");
    const PixelImage big = ScaleImage(source, 48, 32);
    ASSERT_EQ(big.width, 48);
    ASSERT_EQ(big.height, 32);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 48; ++x) {
            const unsigned char* s = source.At(x / 3, y / 2);
            ASSERT_EQ(big.At(x, y)[3], s[3]) << x << "," << y;
            if (s[3] != 0) {
                ASSERT_EQ(std::vector<int>(big.At(x, y), big.At(x, y) + 3),
                          std::vector<int>(s, s + 3));
            }
        }
    }
}

TEST(ImageScale, AlphaIsResampledWithTheColours) {
    const PixelImage source =
        Make(2, 1, true, [](int x, int) { return x == 0 ? 0xFF0000FFu : 0x550000FFu; });
    const PixelImage one = ScaleImage(source, 1, 1);
    EXPECT_TRUE(one.hasAlpha);
    EXPECT_EQ(one.At(0, 0)[3], (0xFF + 0x55 + 1) / 2);
    EXPECT_EQ(one.At(0, 0)[0], 0xFF);
}

TEST(ImageScale, FullyTransparentPixelsLendNoColour) {
    // Opaque red beside transparent green.
    const PixelImage source =
        Make(2, 1, true, [](int x, int) { return x == 0 ? 0xFFFF0000u : 0x0000FF00u; });
    const PixelImage one = ScaleImage(source, 1, 1);
    EXPECT_EQ(one.At(0, 0)[2], 255);
    EXPECT_EQ(one.At(0, 0)[1], 0);
    EXPECT_EQ(one.At(0, 0)[3], 128);
}

TEST(ImageScale, OpaqueImageStaysOpaque) {
    const PixelImage source = cv2test::Opaque(cv2test::Picture("opaque"));
    const PixelImage scaled = ScaleImage(source, 10, 31);
    ASSERT_FALSE(scaled.Empty());
    EXPECT_FALSE(scaled.hasAlpha);
    for (size_t i = 3; i < scaled.pixels.size(); i += 4)
        ASSERT_EQ(scaled.pixels[i], 255);
}

TEST(ImageScale, NoWantedSizeKeepsTheImage) {
    const PixelImage source = cv2test::Picture("alpha");
    EXPECT_TRUE(cv2test::SamePixels(ScaleImage(source, 0, 0), source));
    EXPECT_TRUE(cv2test::SamePixels(ScaleImage(source, -1, -5), source));
}

TEST(ImageScale, MissingSideFollowsTheAspectRatio) {
    const PixelImage source = cv2test::Picture("alpha");
    const PixelImage byHeight = ScaleImage(source, 0, 34);
    EXPECT_EQ(byHeight.width, 46);
    const PixelImage byWidth = ScaleImage(source, 10, 0);
    EXPECT_EQ(byWidth.height, 7); // 17 * 10 / 23 = 7.39
}

TEST(ImageScale, EmptyImageStaysEmpty) {
    EXPECT_TRUE(ScaleImage(PixelImage(), 16, 16).Empty());
}

TEST(ImageScale, SizeBeyondThePixelCapYieldsEmptyImage) {
    const PixelImage source = cv2test::Picture("few16");
    EXPECT_TRUE(ScaleImage(source, 100000, 100000).Empty());
}
