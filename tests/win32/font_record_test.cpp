// The font record on the platform: creation for the screen's density, measuring, and drawing
// with shadow, glow and the program's own end ellipsis into real bitmaps.
#include "ui/pickers/font_record.h"

#include <gtest/gtest.h>

#include <string>

#include "store/scale.h"
#include "store/screen.h"

using namespace cv2;

namespace {

LOGFONTW LogFontOf(const FontRecord& record) {
    LOGFONTW lf = {};
    GetObjectW(record.font, sizeof lf, &lf);
    return lf;
}

int ScreenDpiY() {
    HDC dc = GetDC(nullptr);
    const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
    ReleaseDC(nullptr, dc);
    return dpi;
}

// A white 32-bit bitmap selected into a memory device context, read back pixel by pixel.
class Canvas {
  public:
    Canvas(int width, int height) : m_width(width), m_height(height) {
        BITMAPINFO bi = {};
        bi.bmiHeader.biSize = sizeof bi.bmiHeader;
        bi.bmiHeader.biWidth = width;
        bi.bmiHeader.biHeight = -height;
        bi.bmiHeader.biPlanes = 1;
        bi.bmiHeader.biBitCount = 32;
        m_dc = CreateCompatibleDC(nullptr);
        m_bitmap = CreateDIBSection(m_dc, &bi, DIB_RGB_COLORS, reinterpret_cast<void**>(&m_bits),
                                    nullptr, 0);
        m_old = SelectObject(m_dc, m_bitmap);
        RECT all = {0, 0, width, height};
        FillRect(m_dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    }
    ~Canvas() {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    HDC dc() const { return m_dc; }
    // Pixels close to `color`, and the box around them.
    int Count(COLORREF color, RECT* box = nullptr) const {
        GdiFlush();
        int n = 0;
        RECT b = {m_width, m_height, -1, -1};
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                const unsigned p = m_bits[y * m_width + x]; // 0x00RRGGBB
                const int r = (p >> 16) & 0xFF, g = (p >> 8) & 0xFF, bl = p & 0xFF;
                if (abs(r - GetRValue(color)) < 40 && abs(g - GetGValue(color)) < 40 &&
                    abs(bl - GetBValue(color)) < 40) {
                    ++n;
                    b = {std::min<LONG>(b.left, x), std::min<LONG>(b.top, y),
                         std::max<LONG>(b.right, x), std::max<LONG>(b.bottom, y)};
                }
            }
        }
        if (box)
            *box = b;
        return n;
    }
    // The box around every pixel that is not white.
    RECT InkBox() const {
        GdiFlush();
        RECT b = {m_width, m_height, -1, -1};
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                if ((m_bits[y * m_width + x] & 0xFFFFFF) == 0xFFFFFF)
                    continue;
                b = {std::min<LONG>(b.left, x), std::min<LONG>(b.top, y),
                     std::max<LONG>(b.right, x), std::max<LONG>(b.bottom, y)};
            }
        }
        return b;
    }
    bool SameAs(const Canvas& other) const {
        GdiFlush();
        return std::equal(m_bits, m_bits + m_width * m_height, other.m_bits);
    }

  private:
    int m_width, m_height;
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
    unsigned* m_bits = nullptr;
};

const COLORREF kBlue = RGB(0, 0, 255);
const COLORREF kRed = RGB(255, 0, 0);

class FontRecordTest : public ::testing::Test {
  protected:
    void SetUp() override { ReadScreenDensities(); }
};

} // namespace

TEST_F(FontRecordTest, SizeSixOnANinetySixDpiScreenGivesANinePixelFont) {
    FontRecord record;
    ASSERT_TRUE(record.Create(L"Tahoma", 6, 0, false));
    // Size plus three, scaled to the screen: 9 pixels at 96 dpi, 18 at 192.
    EXPECT_EQ(LogFontOf(record).lfHeight, -(9 * ScreenDpiY() / 96));
    if (ScreenDpiY() == 96) {
        EXPECT_EQ(LogFontOf(record).lfHeight, -9);
    }
}

TEST_F(FontRecordTest, SizeIsScaledForTheGivenDeviceContext) {
    Canvas canvas(4, 4);
    FontRecord record;
    ASSERT_TRUE(record.Create(L"Tahoma", 8, 0, false, canvas.dc()));
    EXPECT_EQ(LogFontOf(record).lfHeight, -((8 + 3) * GetDeviceCaps(canvas.dc(), LOGPIXELSY) / 96));
}

TEST_F(FontRecordTest, SizeBelowOneIsTakenAsTheHeight) {
    FontRecord record;
    ASSERT_TRUE(record.Create(L"Tahoma", -20, 0, false));
    EXPECT_EQ(LogFontOf(record).lfHeight, -20);
    EXPECT_EQ(record.size, -20);
}

TEST_F(FontRecordTest, StyleBitsShapeTheFont) {
    FontRecord record;
    ASSERT_TRUE(record.Create(L"Tahoma", 8,
                              kFontBold | kFontItalic | kFontUnderline | kFontStrikeout, true));
    const LOGFONTW lf = LogFontOf(record);
    EXPECT_EQ(lf.lfWeight, 700);
    EXPECT_TRUE(lf.lfItalic);
    EXPECT_TRUE(lf.lfUnderline);
    EXPECT_TRUE(lf.lfStrikeOut);
    EXPECT_EQ(lf.lfCharSet, DEFAULT_CHARSET);
    EXPECT_EQ(lf.lfQuality, 5); // ClearType
    EXPECT_EQ(record.clearType, 1u);
}

TEST_F(FontRecordTest, PlainFontIsNormalWeightWithDefaultQuality) {
    FontRecord record;
    ASSERT_TRUE(record.Create(L"Tahoma", 8, kFontShadow | kFontGlow, false));
    const LOGFONTW lf = LogFontOf(record);
    EXPECT_EQ(lf.lfWeight, 400);
    EXPECT_FALSE(lf.lfItalic);
    EXPECT_FALSE(lf.lfUnderline);
    EXPECT_EQ(lf.lfQuality, DEFAULT_QUALITY);
    EXPECT_EQ(record.style, kFontShadow | kFontGlow) << "kept for drawing";
}

TEST_F(FontRecordTest, AFaceLongerThan31CharactersIsCut) {
    const std::wstring longFace = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmn"; // 40
    FontRecord record;
    ASSERT_TRUE(record.Create(longFace.c_str(), 8, 0, false));
    EXPECT_EQ(std::wstring(record.face), longFace.substr(0, 31));
    EXPECT_EQ(std::wstring(LogFontOf(record).lfFaceName), longFace.substr(0, 31));
}

TEST_F(FontRecordTest, GetFaceCutsToTheCallersBuffer) {
    FontRecord record;
    record.Create(L"Tahoma", 8, 0, false);
    wchar_t small[4] = {L'x', L'x', L'x', L'x'};
    EXPECT_EQ(record.GetFace(small, 4), 3);
    EXPECT_STREQ(small, L"Tah");
    wchar_t big[40];
    EXPECT_EQ(record.GetFace(big, 40), 6);
    EXPECT_STREQ(big, L"Tahoma");
}

TEST_F(FontRecordTest, RecreatingReplacesTheHandleAndCanTakeItsOwnFace) {
    FontRecord record;
    record.Create(L"Tahoma", 8, 0, false);
    record.Create(record.face, 12, kFontBold, false);
    EXPECT_STREQ(record.face, L"Tahoma");
    EXPECT_EQ(record.size, 12);
    EXPECT_EQ(LogFontOf(record).lfWeight, 700);
}

TEST_F(FontRecordTest, ACopyHasItsOwnHandle) {
    FontRecord original;
    original.Create(L"Tahoma", 10, kFontItalic, false);
    original.color = kBlue;
    original.shadowX = 3;
    HFONT kept = original.font;
    {
        FontRecord copy(original);
        EXPECT_NE(copy.font, nullptr);
        EXPECT_NE(copy.font, original.font);
        EXPECT_EQ(copy.size, 10);
        EXPECT_EQ(copy.color, kBlue);
        EXPECT_EQ(copy.shadowX, 3);
        EXPECT_TRUE(LogFontOf(copy).lfItalic);
    }
    LOGFONTW lf = {};
    EXPECT_EQ(original.font, kept);
    EXPECT_NE(GetObjectW(original.font, sizeof lf, &lf), 0) << "the copy freed only its own";
}

TEST_F(FontRecordTest, LoadCreatesWithoutClearTypeAndTakesBothColours) {
    IniDocument doc;
    doc.SetString(L"Clock Font", L"Name", L"Tahoma");
    doc.SetString(L"Clock Font", L"Size", L"10");
    doc.SetString(L"Clock Font", L"Color", L"255");
    doc.SetString(L"Clock Font", L"Shadow", L"16711680");
    doc.SetString(L"Clock Font", L"style", L"Bold, GLOW, heavy");
    FontRecord record;
    record.clearType = 1;
    record.Load(doc, L"Clock Font", L"Arial", 8, 0, 0, L"shadow");
    EXPECT_STREQ(record.face, L"Tahoma");
    EXPECT_EQ(record.size, 10);
    EXPECT_EQ(record.style, kFontBold | kFontGlow);
    EXPECT_EQ(record.color, 255u);
    EXPECT_EQ(record.shadowColor, 16711680u);
    EXPECT_EQ(record.clearType, 0u);
    EXPECT_EQ(LogFontOf(record).lfQuality, DEFAULT_QUALITY);
}

TEST_F(FontRecordTest, ASectionWithoutKeysLoadsTheDefaultsAndSavesThemBack) {
    IniDocument theme;
    FontRecord small;
    small.Load(theme, L"Small Clock Font", L"Tahoma", 6, 0x00FFFFFF, 0, L"shadow");
    EXPECT_EQ(small.size, 6);
    EXPECT_EQ(small.style, kFontShadow);
    small.Save(theme, L"Small Clock Font");
    EXPECT_EQ(theme.GetString(L"Small Clock Font", L"Name", L""), L"Tahoma");
    EXPECT_EQ(theme.GetString(L"Small Clock Font", L"Size", L""), L"6");
    EXPECT_EQ(theme.GetString(L"Small Clock Font", L"Color", L""), L"16777215");
    EXPECT_EQ(theme.GetString(L"Small Clock Font", L"Shadow", L""), L"0");
    EXPECT_EQ(theme.GetString(L"Small Clock Font", L"Style", L""), L"shadow");
}

TEST_F(FontRecordTest, ARecordWithBoldUnderlineAndShadowWritesThoseWords) {
    FontRecord record;
    record.Create(L"Tahoma", 8, kFontBold | kFontUnderline | kFontShadow, false);
    IniDocument doc;
    record.Save(doc, L"F");
    EXPECT_EQ(doc.GetString(L"F", L"Style", L"?"), L"bold,underline,shadow");
}

TEST_F(FontRecordTest, MeasureWithoutAFontReturnsFalseAndLeavesTheSize) {
    FontRecord record;
    SIZE size = {123, 456};
    EXPECT_FALSE(record.Measure(L"text", &size));
    EXPECT_EQ(size.cx, 123);
    EXPECT_EQ(size.cy, 456);
}

TEST_F(FontRecordTest, MeasureAddsTheMarginAndTheGlowsRoom) {
    FontRecord plain, glowing;
    plain.Create(L"Tahoma", 8, 0, false);
    glowing.Create(L"Tahoma", 8, kFontGlow, false);
    HDC screen = GetDC(nullptr);
    HGDIOBJ old = SelectObject(screen, plain.font);
    SIZE extent = {};
    GetTextExtentPoint32W(screen, L"Clock", 5, &extent);
    SelectObject(screen, old);
    ReleaseDC(nullptr, screen);

    SIZE a = {}, b = {};
    ASSERT_TRUE(plain.Measure(L"Clock", &a));
    ASSERT_TRUE(glowing.Measure(L"Clock", &b));
    EXPECT_EQ(a.cx, extent.cx + Scale(4));
    EXPECT_EQ(a.cy, extent.cy);
    EXPECT_EQ(b.cx, a.cx + Scale(2));
    EXPECT_EQ(b.cy, a.cy + Scale(2));
}

namespace {
// Draws "Il" in blue with `style` (red shadow or glow) and returns the box of everything drawn;
// `plainBox` receives the box of the same text drawn without effects.
RECT DrawEffect(uint32_t style, int shadowX, int shadowY, RECT* plainBox, int* redPixels,
                RECT* rectAfter) {
    Canvas plain(120, 50), effect(120, 50);
    FontRecord record;
    record.Create(L"Tahoma", 20, kFontBold, false, plain.dc());
    record.color = kBlue;
    record.shadowColor = kRed;
    record.shadowX = shadowX;
    record.shadowY = shadowY;
    RECT r = {10, 10, 110, 48};
    record.Draw(plain.dc(), L"Il", &r, DT_LEFT | DT_TOP | DT_SINGLELINE, true);
    *plainBox = plain.InkBox();
    record.Create(L"Tahoma", 20, kFontBold | style, false, effect.dc());
    record.Draw(effect.dc(), L"Il", &r, DT_LEFT | DT_TOP | DT_SINGLELINE, true);
    *redPixels = effect.Count(kRed);
    *rectAfter = r;
    return effect.InkBox();
}
} // namespace

TEST_F(FontRecordTest, ShadowIsDrawnAtItsOffsetInTheShadowColour) {
    RECT plain, after;
    int red = 0;
    const RECT ink = DrawEffect(kFontShadow, 4, 3, &plain, &red, &after);
    ASSERT_GT(plain.right, plain.left);
    EXPECT_GT(red, 0);
    EXPECT_EQ(ink.left, plain.left);
    EXPECT_EQ(ink.top, plain.top);
    EXPECT_EQ(ink.right, plain.right + 4);
    EXPECT_EQ(ink.bottom, plain.bottom + 3);
    EXPECT_EQ(after.left, 10) << "rectangle moved back";
    EXPECT_EQ(after.top, 10);
}

TEST_F(FontRecordTest, GlowSurroundsTheTextByOnePixelInTheShadowColour) {
    RECT plain, after;
    int red = 0;
    const RECT ink = DrawEffect(kFontGlow, 4, 3, &plain, &red, &after);
    ASSERT_GT(plain.right, plain.left);
    EXPECT_GT(red, 0);
    EXPECT_EQ(ink.left, plain.left);
    EXPECT_EQ(ink.top, plain.top);
    EXPECT_EQ(ink.right, plain.right + 2) << "glow around the text drawn at (+1, +1)";
    EXPECT_EQ(ink.bottom, plain.bottom + 2);
    EXPECT_EQ(after.left, 10) << "rectangle moved back from the glow's centre";
    EXPECT_EQ(after.top, 10);
}

TEST_F(FontRecordTest, WithoutShadowOrGlowOnlyTheTextColourIsDrawn) {
    Canvas canvas(120, 50);
    FontRecord record;
    record.Create(L"Tahoma", 20, kFontBold, false, canvas.dc());
    record.color = kBlue;
    record.shadowColor = kRed;
    RECT r = {2, 2, 118, 48};
    record.Draw(canvas.dc(), L"Il", &r, DT_LEFT | DT_TOP | DT_SINGLELINE, true);
    EXPECT_GT(canvas.Count(kBlue), 0);
    EXPECT_EQ(canvas.Count(kRed), 0);
}

TEST_F(FontRecordTest, DrawingRestoresTheDeviceContext) {
    Canvas canvas(60, 30);
    HFONT before = static_cast<HFONT>(GetCurrentObject(canvas.dc(), OBJ_FONT));
    SetTextColor(canvas.dc(), RGB(1, 2, 3));
    SetBkMode(canvas.dc(), OPAQUE);
    FontRecord record;
    record.Create(L"Tahoma", 8, kFontGlow, false);
    RECT r = {0, 0, 60, 30};
    record.Draw(canvas.dc(), L"x", &r, DT_SINGLELINE, true);
    EXPECT_EQ(GetCurrentObject(canvas.dc(), OBJ_FONT), before);
    EXPECT_EQ(GetTextColor(canvas.dc()), RGB(1, 2, 3));
    EXPECT_EQ(GetBkMode(canvas.dc()), OPAQUE);
}

TEST_F(FontRecordTest, CalcRectWithGlowKeepsTheCornerAndAddsTheGlowsRoom) {
    Canvas canvas(10, 10);
    FontRecord plain, glowing;
    plain.Create(L"Tahoma", 8, 0, false, canvas.dc());
    glowing.Create(L"Tahoma", 8, kFontGlow, false, canvas.dc());
    RECT a = {5, 7, 5, 7}, b = {5, 7, 5, 7};
    plain.Draw(canvas.dc(), L"Clock", &a, DT_SINGLELINE | DT_CALCRECT, true);
    glowing.Draw(canvas.dc(), L"Clock", &b, DT_SINGLELINE | DT_CALCRECT, true);
    EXPECT_EQ(b.left, 5);
    EXPECT_EQ(b.top, 7);
    EXPECT_EQ(b.right, a.right + Scale(2));
    EXPECT_EQ(b.bottom, a.bottom + Scale(2));
}

TEST_F(FontRecordTest, CalcRectWithShadowAddsOneStep) {
    Canvas canvas(10, 10);
    FontRecord plain, shadowed;
    plain.Create(L"Tahoma", 8, 0, false, canvas.dc());
    shadowed.Create(L"Tahoma", 8, kFontShadow, false, canvas.dc());
    RECT a = {0, 0, 0, 0}, b = {0, 0, 0, 0};
    plain.Draw(canvas.dc(), L"Clock", &a, DT_SINGLELINE | DT_CALCRECT, true);
    shadowed.Draw(canvas.dc(), L"Clock", &b, DT_SINGLELINE | DT_CALCRECT, true);
    EXPECT_EQ(b.right, a.right + Scale(1));
    EXPECT_EQ(b.bottom, a.bottom + Scale(1));
}

TEST_F(FontRecordTest, ATextThatDoesNotFitEndsInTheEllipsisCharacter) {
    Canvas drawn(200, 30), expected(200, 30);
    FontRecord record;
    record.Create(L"Tahoma", 8, 0, false, drawn.dc());
    record.color = kBlue;
    const std::wstring text = L"Program Files and Settings";
    RECT cell = {0, 0, 60, 30};

    // What the program's own ellipsis should leave, measured on the same device context.
    HGDIOBJ old = SelectObject(expected.dc(), record.font);
    const std::wstring fitted = FitWithEllipsis(text, 60, [&](const std::wstring& s) {
        RECT r = cell;
        DrawTextW(expected.dc(), s.c_str(), static_cast<int>(s.size()), &r,
                  DT_SINGLELINE | DT_CALCRECT);
        return static_cast<int>(r.right - r.left);
    });
    SelectObject(expected.dc(), old);
    ASSERT_FALSE(fitted.empty());
    EXPECT_EQ(fitted.back(), kEllipsis);
    EXPECT_LT(fitted.size(), text.size());

    record.Draw(drawn.dc(), text.c_str(), &cell, DT_SINGLELINE | DT_END_ELLIPSIS, true);
    RECT same = {0, 0, 60, 30};
    record.Draw(expected.dc(), fitted.c_str(), &same, DT_SINGLELINE, true);
    EXPECT_TRUE(drawn.SameAs(expected));
    EXPECT_GT(drawn.Count(kBlue), 0);
}

TEST_F(FontRecordTest, ATextThatCannotKeepTwoCharactersIsDrawnAsItIsAtThatPoint) {
    Canvas canvas(200, 30);
    FontRecord record;
    record.Create(L"Tahoma", 8, 0, false, canvas.dc());
    RECT narrow = {0, 0, 1, 30};
    record.Draw(canvas.dc(), L"WWWW", &narrow, DT_SINGLELINE | DT_END_ELLIPSIS | DT_CALCRECT, true);
    RECT one = {0, 0, 1, 30};
    record.Draw(canvas.dc(), L"W", &one, DT_SINGLELINE | DT_CALCRECT, true);
    EXPECT_EQ(narrow.right, one.right) << "one W, no ellipsis";
}

TEST_F(FontRecordTest, TextThatFitsIsDrawnWhole) {
    Canvas drawn(200, 30), plain(200, 30);
    FontRecord record;
    record.Create(L"Tahoma", 8, 0, false, drawn.dc());
    RECT a = {0, 0, 200, 30}, b = {0, 0, 200, 30};
    record.Draw(drawn.dc(), L"Clock", &a, DT_SINGLELINE | DT_END_ELLIPSIS, true);
    record.Draw(plain.dc(), L"Clock", &b, DT_SINGLELINE, true);
    EXPECT_TRUE(drawn.SameAs(plain));
}
