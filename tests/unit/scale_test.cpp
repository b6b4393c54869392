#include "store/scale.h"

#include <gtest/gtest.h>

using namespace cv2;

TEST(Scale, IdentityAt96Dpi) {
    EXPECT_EQ(ScaleBy(26, 96), 26);
}

TEST(Scale, DoublesAt192Dpi) {
    EXPECT_EQ(ScaleBy(26, 192), 52);
}

TEST(Scale, RoundsAt128Dpi) {
    EXPECT_EQ(ScaleBy(26, 128), 35);
}

TEST(Scale, NegativeValuesTruncateTowardZero) {
    EXPECT_EQ(ScaleBy(-1, 96), 0);
}

TEST(Scale, UsesVerticalDensityForScaleAndHorizontalForScaleX) {
    const int oldX = g_dpiX, oldY = g_dpiY;
    g_dpiX = 96;
    g_dpiY = 192;
    EXPECT_EQ(Scale(20), 40);
    EXPECT_EQ(ScaleX(20), 20);
    g_dpiX = oldX;
    g_dpiY = oldY;
}

TEST(ScreenLayout, PortraitScreenUsesPortraitTemplate) {
    EXPECT_EQ(ChooseLayout(240, 320, true), DialogLayout::Portrait);
    EXPECT_EQ(ChooseLayout(480, 640, true), DialogLayout::Portrait);
}

TEST(ScreenLayout, LandscapeScreenUsesLandscapeTemplate) {
    EXPECT_EQ(ChooseLayout(320, 240, true), DialogLayout::Landscape);
    EXPECT_EQ(ChooseLayout(640, 480, false), DialogLayout::Landscape);
}

TEST(ScreenLayout, SquareScreenUsesSquareTemplateWhereThereIsOne) {
    EXPECT_EQ(ChooseLayout(240, 240, true), DialogLayout::Square);
    EXPECT_EQ(ChooseLayout(480, 480, true), DialogLayout::Square);
}

TEST(ScreenLayout, SquareScreenWithoutSquareTemplateFallsBackToPortrait) {
    EXPECT_EQ(ChooseLayout(240, 240, false), DialogLayout::Portrait);
}

TEST(ScreenLayout, PortraitWidthIsAMultipleOf240) {
    EXPECT_TRUE(IsPortraitWidth(240));
    EXPECT_TRUE(IsPortraitWidth(480));
    EXPECT_FALSE(IsPortraitWidth(320));
    EXPECT_FALSE(IsPortraitWidth(640));
}
