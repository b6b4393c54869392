// Stretching a button picture by its margins.
#include "ui/image/image_margins.h"

#include <gtest/gtest.h>

using namespace cv2;

namespace {

// A 6 x 4 picture: its left two columns blue, its right column red, the rest green.
PixelImage Banded() {
    PixelImage p = MakePixelImage(6, 4);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            unsigned char* px = p.At(x, y);
            px[0] = x < 2 ? 255 : 0; // blue
            px[1] = x >= 2 && x < 5 ? 255 : 0;
            px[2] = x == 5 ? 255 : 0; // red
        }
    }
    return p;
}

int Blue(const PixelImage& p, int x, int y) {
    return p.At(x, y)[0];
}
int Green(const PixelImage& p, int x, int y) {
    return p.At(x, y)[1];
}
int Red(const PixelImage& p, int x, int y) {
    return p.At(x, y)[2];
}

} // namespace

TEST(ImageMargins, EdgesKeepTheirWidthAndTheMiddleStretches) {
    const PixelImage out = StretchByMargins(Banded(), 30, 4, {2, 0, 1, 0}, 100);
    ASSERT_EQ(out.width, 30);
    EXPECT_EQ(Blue(out, 0, 0), 255);
    EXPECT_EQ(Blue(out, 1, 3), 255);
    EXPECT_EQ(Green(out, 2, 0), 255);
    EXPECT_EQ(Green(out, 28, 2), 255);
    EXPECT_EQ(Red(out, 29, 1), 255);
    EXPECT_EQ(Red(out, 28, 1), 0);
}

TEST(ImageMargins, EdgesScaleWithTheScreen) {
    const PixelImage out = StretchByMargins(Banded(), 30, 8, {2, 0, 1, 0}, 200);
    EXPECT_EQ(Blue(out, 3, 0), 255);
    EXPECT_EQ(Green(out, 4, 0), 255);
    EXPECT_EQ(Red(out, 28, 7), 255);
    EXPECT_EQ(Red(out, 27, 7), 0);
}

TEST(ImageMargins, MarginsWiderThanTheResultShareIt) {
    const PixelImage out = StretchByMargins(Banded(), 3, 4, {2, 0, 1, 0}, 300);
    ASSERT_EQ(out.width, 3);
    EXPECT_EQ(Blue(out, 0, 0), 255);
    EXPECT_EQ(Blue(out, 1, 0), 255);
    EXPECT_EQ(Red(out, 2, 0), 255);
}

TEST(ImageMargins, HugeOrNegativeMarginsAreCutToThePicture) {
    for (ImageMargins m :
         {ImageMargins{100000, 100000, 100000, 100000}, ImageMargins{-5, -5, -2147483647, -1}}) {
        const PixelImage out = StretchByMargins(Banded(), 12, 9, m, 100);
        EXPECT_EQ(out.width, 12);
        EXPECT_EQ(out.height, 9);
    }
}

TEST(ImageMargins, EmptyPictureOrSizeGivesNothing) {
    EXPECT_TRUE(StretchByMargins(PixelImage(), 10, 10, {}, 100).Empty());
    EXPECT_TRUE(StretchByMargins(Banded(), 0, 10, {}, 100).Empty());
}
