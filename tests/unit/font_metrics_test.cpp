// Font height for a point size, the room of shadows and glows, and the end ellipsis.
#include "ui/pickers/font_metrics.h"
#include "ui/pickers/font_style.h"

#include <gtest/gtest.h>

#include <string>

using namespace cv2;

namespace {
// Every character 10 pixels wide, the ellipsis too.
int TenPerChar(const std::wstring& s) {
    return static_cast<int>(s.size()) * 10;
}
} // namespace

TEST(FontHeight, SizeSixOnANinetySixDpiScreenGivesANinePixelFont) {
    EXPECT_EQ(FontHeightForSize(6, 96), -9);
}

TEST(FontHeight, ThreePointsAreAddedBeforeScaling) {
    EXPECT_EQ(FontHeightForSize(8, 96), -11);
    EXPECT_EQ(FontHeightForSize(8, 192), -22);
}

TEST(FontHeight, ScalingTruncatesTowardZero) {
    // (7 + 3) * 131 / 96 = 13.6
    EXPECT_EQ(FontHeightForSize(7, 131), -13);
}

TEST(FontHeight, SizeBelowOneIsUsedAsTheHeightUnchanged) {
    EXPECT_EQ(FontHeightForSize(0, 192), 0);
    EXPECT_EQ(FontHeightForSize(-12, 192), -12);
}

TEST(FontHeight, HugeSizesStopAtTheLargestHeight) {
    EXPECT_EQ(FontHeightForSize(999, 192), -2004);
    EXPECT_EQ(FontHeightForSize(5000, 96), -kMaxFontHeight);
    EXPECT_EQ(FontHeightForSize(2147483647, 192), -kMaxFontHeight);
}

TEST(FontHeight, SizesFarBelowOneStopAtTheLargestHeightToo) {
    EXPECT_EQ(FontHeightForSize(-kMaxFontHeight, 96), -kMaxFontHeight);
    EXPECT_EQ(FontHeightForSize(-5000, 96), -kMaxFontHeight);
    EXPECT_EQ(FontHeightForSize(-2147483647 - 1, 192), -kMaxFontHeight);
}

TEST(TextExtentRoom, PlainTextGetsFourScaledPixelsOfWidth) {
    const TextExtent e = MeasuredExtent({50, 13}, 0, 96);
    EXPECT_EQ(e.width, 54);
    EXPECT_EQ(e.height, 13);
    EXPECT_EQ(MeasuredExtent({50, 13}, 0, 192).width, 58);
}

TEST(TextExtentRoom, ShadowAddsOneScaledPixelEachWay) {
    const TextExtent e = MeasuredExtent({50, 13}, kFontShadow, 192);
    EXPECT_EQ(e.width, 50 + 8 + 2);
    EXPECT_EQ(e.height, 13 + 2);
}

TEST(TextExtentRoom, GlowAddsTwoScaledPixelsEachWay) {
    const TextExtent e = MeasuredExtent({50, 13}, kFontGlow, 96);
    EXPECT_EQ(e.width, 50 + 4 + 2);
    EXPECT_EQ(e.height, 13 + 2);
}

TEST(TextExtentRoom, BoldAndItalicAddNothing) {
    EXPECT_EQ(EffectGrowth(kFontBold | kFontItalic | kFontUnderline | kFontStrikeout, 96), 0);
}

TEST(GlowPasses, EightPositionsAroundTheCentreInTheirOrder) {
    const Offset expected[8] = {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {0, 1}, {0, 2}, {1, 2}, {2, 2}};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(kGlowPasses[i].dx, expected[i].dx) << i;
        EXPECT_EQ(kGlowPasses[i].dy, expected[i].dy) << i;
        EXPECT_FALSE(kGlowPasses[i].dx == 1 && kGlowPasses[i].dy == 1) << "centre is the text";
    }
}

TEST(EndEllipsis, TextThatFitsIsLeftAlone) {
    EXPECT_EQ(FitWithEllipsis(L"Clock", 50, TenPerChar), L"Clock");
}

TEST(EndEllipsis, TextThatDoesNotFitEndsInTheEllipsisCharacter) {
    // 10 characters in 45 pixels: estimate 45 * 10 / 100 + 1 = 5, then "abc…" (40) fits.
    const std::wstring fitted = FitWithEllipsis(L"abcdefghij", 45, TenPerChar);
    EXPECT_EQ(fitted, std::wstring(L"abc") + kEllipsis);
}

TEST(EndEllipsis, ShortensOneCharacterAtATimeUntilItFits) {
    // The first character is very wide: "a…" (110) never fits "ab…" either, so the loop stops at
    // two characters.
    const auto measure = [](const std::wstring& s) {
        int w = 0;
        for (wchar_t c : s)
            w += (c == L'a') ? 100 : 10;
        return w;
    };
    const std::wstring fitted = FitWithEllipsis(L"abcdef", 105, measure);
    EXPECT_EQ(fitted, std::wstring(L"a") + kEllipsis);
}

TEST(EndEllipsis, TextThatCannotKeepTwoCharactersIsDrawnAsItIsAtThatPoint) {
    // 5 pixels for 4 characters: the estimate keeps 5 * 4 / 40 + 1 = 1 character, and no
    // shorter text with an ellipsis is tried.
    EXPECT_EQ(FitWithEllipsis(L"wxyz", 5, TenPerChar), L"w");
    // Estimate 2: cutting would leave one, so the two stay as they are, without an ellipsis.
    EXPECT_EQ(FitWithEllipsis(L"wxyz", 12, TenPerChar), L"wx");
}

TEST(EndEllipsis, ANearFitStillLosesItsLastCharacterToTheEllipsis) {
    // One pixel too wide: the estimate keeps all four, and the first cut gives "ab…".
    const auto measure = [](const std::wstring& s) {
        return s.back() == kEllipsis ? static_cast<int>(s.size()) * 10 : 41;
    };
    EXPECT_EQ(FitWithEllipsis(L"abcd", 40, measure), std::wstring(L"ab") + kEllipsis);
}

TEST(EndEllipsis, NegativeWidthKeepsOneCharacter) {
    EXPECT_EQ(FitWithEllipsis(L"abcdef", -20, TenPerChar), L"a");
}
