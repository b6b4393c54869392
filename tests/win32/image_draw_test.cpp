// Drawing loaded images onto a device context and into a picture control.
#include "ui/image/image_draw.h"

#include <gtest/gtest.h>

#include "../unit/image_test_data.h"
#include "platform/transparent_image.h"

using namespace cv2;

namespace {

// A memory device context on a 32-bit top-down DIB filled with one colour, whose pixels the
// test reads back directly.
class Canvas {
  public:
    Canvas(int width, int height, COLORREF fill) : m_width(width) {
        BITMAPINFO bmi = {};
        bmi.bmiHeader.biSize = sizeof bmi.bmiHeader;
        bmi.bmiHeader.biWidth = width;
        bmi.bmiHeader.biHeight = -height;
        bmi.bmiHeader.biPlanes = 1;
        bmi.bmiHeader.biBitCount = 32;
        bmi.bmiHeader.biCompression = BI_RGB;
        m_bitmap = CreateDIBSection(nullptr, &bmi, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        m_dc = CreateCompatibleDC(nullptr);
        m_old = SelectObject(m_dc, m_bitmap);
        RECT all = {0, 0, width, height};
        HBRUSH brush = CreateSolidBrush(fill);
        FillRect(m_dc, &all, brush);
        DeleteObject(brush);
    }
    ~Canvas() {
        SelectObject(m_dc, m_old);
        DeleteDC(m_dc);
        DeleteObject(m_bitmap);
    }
    HDC Dc() const { return m_dc; }
    COLORREF At(int x, int y) const {
        GdiFlush();
        const unsigned char* p = static_cast<const unsigned char*>(m_bits) + (y * m_width + x) * 4;
        return RGB(p[2], p[1], p[0]);
    }

  private:
    int m_width;
    void* m_bits = nullptr;
    HBITMAP m_bitmap = nullptr;
    HDC m_dc = nullptr;
    HGDIOBJ m_old = nullptr;
};

// One row: opaque red, transparent green, half-transparent blue (alpha 128), opaque white.
LoadedImage FourPixels(bool alpha) {
    PixelImage p = MakePixelImage(4, 1);
    p.hasAlpha = alpha;
    const unsigned char pixels[16] = {0,   0, 255, 255, 0,   255, 0,   0,
                                      255, 0, 0,   128, 255, 255, 255, 255};
    std::copy(pixels, pixels + 16, p.pixels.begin());
    if (!alpha) {
        for (size_t i = 3; i < 16; i += 4)
            p.pixels[i] = 255;
    }
    return LoadedImage::FromPixels(p);
}

} // namespace

TEST(ImageDraw, OpaquePixelsCoverAndTransparentOnesShowWhatIsUnder) {
    Canvas canvas(8, 4, RGB(10, 20, 30));
    DrawImage(canvas.Dc(), FourPixels(true), 2, 1);
    EXPECT_EQ(canvas.At(2, 1), RGB(255, 0, 0));
    EXPECT_EQ(canvas.At(3, 1), RGB(10, 20, 30));
    EXPECT_EQ(canvas.At(4, 1), RGB((10 * 127 + 127) / 255, (20 * 127 + 127) / 255,
                                   (255 * 128 + 30 * 127 + 127) / 255));
    EXPECT_EQ(canvas.At(5, 1), RGB(255, 255, 255));
    EXPECT_EQ(canvas.At(1, 1), RGB(10, 20, 30)); // outside the picture
    EXPECT_EQ(canvas.At(2, 0), RGB(10, 20, 30));
}

TEST(ImageDraw, ImageWithoutAlphaIsCopied) {
    Canvas canvas(4, 1, RGB(10, 20, 30));
    DrawImage(canvas.Dc(), FourPixels(false), 0, 0);
    EXPECT_EQ(canvas.At(1, 0), RGB(0, 255, 0));
    EXPECT_EQ(canvas.At(2, 0), RGB(0, 0, 255));
}

TEST(ImageDraw, StretchedDrawFillsTheRectangle) {
    for (bool alpha : {false, true}) {
        Canvas canvas(10, 3, RGB(10, 20, 30));
        DrawImage(canvas.Dc(), FourPixels(alpha), RECT{1, 0, 9, 2});
        EXPECT_EQ(canvas.At(1, 0), RGB(255, 0, 0)) << alpha;
        EXPECT_EQ(canvas.At(2, 1), RGB(255, 0, 0)) << alpha;
        EXPECT_EQ(canvas.At(8, 1), RGB(255, 255, 255)) << alpha;
        EXPECT_EQ(canvas.At(9, 0), RGB(10, 20, 30)) << alpha;
        EXPECT_EQ(canvas.At(1, 2), RGB(10, 20, 30)) << alpha;
    }
}

TEST(ImageDraw, EmptyImageDrawsNothing) {
    Canvas canvas(2, 2, RGB(10, 20, 30));
    DrawImage(canvas.Dc(), LoadedImage(), 0, 0);
    DrawImageKeyed(canvas.Dc(), LoadedImage(), RECT{0, 0, 2, 2}, RGB(0, 0, 0));
    EXPECT_EQ(canvas.At(0, 0), RGB(10, 20, 30));
}

TEST(ImageDraw, KeyedDrawLeavesOutTheKeyColour) {
    Canvas canvas(4, 1, RGB(10, 20, 30));
    DrawImageKeyed(canvas.Dc(), FourPixels(false), RECT{0, 0, 4, 1}, RGB(0, 255, 0));
    EXPECT_EQ(canvas.At(0, 0), RGB(255, 0, 0));
    EXPECT_EQ(canvas.At(1, 0), RGB(10, 20, 30));
    EXPECT_EQ(canvas.At(2, 0), RGB(0, 0, 255));
}

TEST(TransparentImage, SourceMayBeADeviceContext) {
    Canvas source(2, 1, RGB(255, 0, 255));
    SetPixel(source.Dc(), 1, 0, RGB(1, 2, 3));
    Canvas canvas(2, 1, RGB(10, 20, 30));
    EXPECT_TRUE(
        TransparentImage(canvas.Dc(), 0, 0, 2, 1, source.Dc(), 0, 0, 2, 1, RGB(255, 0, 255)));
    EXPECT_EQ(canvas.At(0, 0), RGB(10, 20, 30));
    EXPECT_EQ(canvas.At(1, 0), RGB(1, 2, 3));
}

TEST(ImageDraw, PictureControlShowsTheImageAtItsSize) {
    HWND parent = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 200, 200, nullptr, nullptr,
                                  nullptr, nullptr);
    HWND picture = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 5, 5, 100, 100, parent,
                                   nullptr, nullptr, nullptr);
    LoadedImage image = LoadedImage::FromPixels(cv2test::Picture("alpha"));
    ShowInPictureControl(picture, image, RGB(255, 255, 255));
    RECT r;
    GetClientRect(picture, &r);
    EXPECT_EQ(r.right, 23);
    EXPECT_EQ(r.bottom, 17);
    EXPECT_EQ(reinterpret_cast<HBITMAP>(SendMessageW(picture, STM_GETIMAGE, IMAGE_BITMAP, 0)),
              image.Bitmap());
    EXPECT_FALSE(image.HasAlpha()); // composed onto the background for the plain control
    DestroyWindow(parent);
}

TEST(ImageDraw, PictureControlStaysEmptyWithoutAnImage) {
    HWND parent = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 200, 200, nullptr, nullptr,
                                  nullptr, nullptr);
    HWND picture = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_BITMAP, 5, 5, 40,
                                   30, parent, nullptr, nullptr, nullptr);
    LoadedImage none;
    ShowInPictureControl(picture, none, RGB(255, 255, 255));
    EXPECT_EQ(SendMessageW(picture, STM_GETIMAGE, IMAGE_BITMAP, 0), 0);
    DestroyWindow(parent);
}
