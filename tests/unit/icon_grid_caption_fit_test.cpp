// The end ellipsis of captions, measured with a fixed width per character.
#include "ui/grid_caption_fit.h"

#include <gtest/gtest.h>

using namespace cv2;

namespace {
// Every character, the ellipsis included, is 10 wide.
int Tens(const std::wstring& s) {
    return static_cast<int>(s.size()) * 10;
}
} // namespace

TEST(CaptionEllipsis, TextThatFitsIsUnchanged) {
    EXPECT_EQ(FitEndEllipsis(L"Picture", 70, Tens), L"Picture");
}

TEST(CaptionEllipsis, TextThatDoesNotFitEndsInTheEllipsis) {
    EXPECT_EQ(FitEndEllipsis(L"Wallpaper.png", 60, Tens), std::wstring(L"Wallp\x2026"));
}

TEST(CaptionEllipsis, ShortenedTextFitsTheWidth) {
    const std::wstring shown = FitEndEllipsis(L"A rather long caption", 95, Tens);
    EXPECT_LE(Tens(shown), 95);
    EXPECT_EQ(shown.back(), L'\x2026');
    EXPECT_EQ(shown.substr(0, shown.size() - 1),
              std::wstring(L"A rather long caption").substr(0, shown.size() - 1));
}

TEST(CaptionEllipsis, TextThatCannotKeepTwoCharactersIsDrawnAsItStands) {
    // The estimate leaves no room for a cut: the text stays whole.
    EXPECT_EQ(FitEndEllipsis(L"WWWW", 5, Tens), L"WWWW");
    EXPECT_EQ(FitEndEllipsis(L"WW", 5, Tens), L"WW");
    // With a wide ellipsis the cutting stops at two characters that still do not fit.
    auto wideEllipsis = [](const std::wstring& s) {
        return static_cast<int>(s.size()) * 10 + (s.back() == L'\x2026' ? 20 : 0);
    };
    EXPECT_EQ(FitEndEllipsis(L"WWWWWW", 35, wideEllipsis), std::wstring(L"W\x2026"));
}

TEST(CaptionEllipsis, EstimateStartsNearTheFittingLength) {
    int calls = 0;
    auto counting = [&](const std::wstring& s) {
        ++calls;
        return Tens(s);
    };
    FitEndEllipsis(std::wstring(200, L'x'), 500, counting);
    EXPECT_LE(calls, 4); // the full text, then a few cuts from the estimate
}
