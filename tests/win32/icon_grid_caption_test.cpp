// The grid's caption font: creation for the screen, measuring and drawing with glow.
#include <gtest/gtest.h>

#include "store/scale.h"
#include "store/screen.h"
#include "ui/grid_caption.h"

using namespace cv2;

namespace {

LOGFONTW Described(const GridCaptionFont& f) {
    LOGFONTW lf = {};
    GetObjectW(f.font, sizeof lf, &lf);
    return lf;
}

int ScreenDpiY() {
    HDC dc = GetDC(nullptr);
    const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
    ReleaseDC(nullptr, dc);
    return dpi;
}

// Draws "Mg" black on grey with the record and says whether any pixel has `color`.
bool DrawsColour(GridCaptionFont& f, COLORREF color) {
    HDC screen = GetDC(nullptr);
    HDC mem = CreateCompatibleDC(screen);
    HBITMAP canvas = CreateCompatibleBitmap(screen, 60, 30);
    HGDIOBJ old = SelectObject(mem, canvas);
    const RECT all = {0, 0, 60, 30};
    HBRUSH grey = CreateSolidBrush(RGB(128, 128, 128));
    FillRect(mem, &all, grey);
    DeleteObject(grey);
    f.color = RGB(0, 0, 0);
    DrawCaption(f, mem, L"Mg", all, DT_CENTER | DT_VCENTER | DT_SINGLELINE, true);
    bool found = false;
    for (int y = 0; y < 30 && !found; ++y)
        for (int x = 0; x < 60 && !found; ++x)
            found = GetPixel(mem, x, y) == color;
    SelectObject(mem, old);
    DeleteObject(canvas);
    DeleteDC(mem);
    ReleaseDC(nullptr, screen);
    return found;
}

} // namespace

TEST(GridCaptionFont, SizeSixIsNinePixelsAt96Dpi) {
    GridCaptionFont f;
    ASSERT_TRUE(CreateCaptionFont(f, L"Tahoma", 6, 0, true));
    EXPECT_EQ(Described(f).lfHeight, -(9 * ScreenDpiY() / 96));
    if (ScreenDpiY() == 96)
        EXPECT_EQ(Described(f).lfHeight, -9);
}

TEST(GridCaptionFont, ClearTypeAndStyleReachTheFont) {
    GridCaptionFont f;
    CreateCaptionFont(f, L"Tahoma", 8, kCaptionBold | kCaptionItalic, true);
    EXPECT_EQ(Described(f).lfQuality, CLEARTYPE_QUALITY);
    EXPECT_EQ(Described(f).lfWeight, FW_BOLD);
    EXPECT_TRUE(Described(f).lfItalic);
    EXPECT_EQ(f.style, unsigned(kCaptionBold | kCaptionItalic));
    CreateCaptionFont(f, L"Tahoma", 8, 0, false);
    EXPECT_EQ(Described(f).lfQuality, DEFAULT_QUALITY);
    EXPECT_EQ(f.clearType, 0);
}

TEST(GridCaptionFont, FaceIsCutTo31Characters) {
    GridCaptionFont f;
    CreateCaptionFont(f, L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghij", 8, 0, false);
    EXPECT_STREQ(f.face, L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcde");
}

TEST(GridCaptionFont, MeasureAddsFourAndGlowTwoMore) {
    GridCaptionFont f;
    CreateCaptionFont(f, L"Tahoma", 6, 0, true);
    HDC screen = GetDC(nullptr);
    HGDIOBJ old = SelectObject(screen, f.font);
    SIZE raw = {};
    GetTextExtentPoint32W(screen, L"Caption", 7, &raw);
    SelectObject(screen, old);
    ReleaseDC(nullptr, screen);

    SIZE plain = {}, glow = {};
    ASSERT_TRUE(MeasureCaption(f, L"Caption", &plain));
    EXPECT_EQ(plain.cx, raw.cx + ScaleBy(4, ScreenDpiY()));
    EXPECT_EQ(plain.cy, raw.cy);
    f.style |= kCaptionGlow;
    MeasureCaption(f, L"Caption", &glow);
    EXPECT_EQ(glow.cx, plain.cx + ScaleBy(2, ScreenDpiY()));
    EXPECT_EQ(glow.cy, plain.cy + ScaleBy(2, ScreenDpiY()));
}

TEST(GridCaptionFont, MeasureWithoutFontFails) {
    GridCaptionFont f;
    SIZE size = {7, 7};
    EXPECT_FALSE(MeasureCaption(f, L"x", &size));
    EXPECT_EQ(size.cx, 7);
}

TEST(GridCaptionFont, GlowDrawsTheShadowColourAroundTheText) {
    GridCaptionFont f;
    CreateCaptionFont(f, L"Tahoma", 10, 0, false);
    f.shadowColor = RGB(255, 0, 0);
    EXPECT_FALSE(DrawsColour(f, RGB(255, 0, 0)));
    f.style = kCaptionGlow;
    EXPECT_TRUE(DrawsColour(f, RGB(255, 0, 0)));
    EXPECT_TRUE(DrawsColour(f, RGB(0, 0, 0))); // the text itself on top
}
