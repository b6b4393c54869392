#include "ui/image/loaded_image.h"

#include <algorithm>
#include <utility>

namespace cv2 {
namespace {

int Stride24(int width) {
    return (width * 3 + 3) & ~3;
}

bool AllAlphaIs(const PixelImage& image, unsigned char value) {
    for (size_t i = 3; i < image.pixels.size(); i += 4) {
        if (image.pixels[i] != value)
            return false;
    }
    return true;
}

// A 32-bit DIB section read in place: its rows may run either way.
PixelImage FromDib32(const DIBSECTION& dib) {
    PixelImage image = MakePixelImage(dib.dsBm.bmWidth, dib.dsBm.bmHeight);
    if (image.Empty())
        return image;
    const bool bottomUp = dib.dsBmih.biHeight > 0;
    for (int y = 0; y < image.height; ++y) {
        const int stored = bottomUp ? image.height - 1 - y : y;
        const unsigned char* row =
            static_cast<const unsigned char*>(dib.dsBm.bmBits) + stored * dib.dsBm.bmWidthBytes;
        std::copy(row, row + image.width * 4, image.Row(y));
    }
    image.hasAlpha = !AllAlphaIs(image, 255) && !AllAlphaIs(image, 0);
    if (!image.hasAlpha) {
        for (size_t i = 3; i < image.pixels.size(); i += 4)
            image.pixels[i] = 255;
    }
    return image;
}

// Any other bitmap through GetDIBits, as 32-bit top-down rows.
PixelImage FromDeviceBitmap(HBITMAP bitmap, const BITMAP& bm) {
    PixelImage image = MakePixelImage(bm.bmWidth, bm.bmHeight);
    if (image.Empty())
        return image;
    BITMAPINFO bmi = {};
    bmi.bmiHeader.biSize = sizeof bmi.bmiHeader;
    bmi.bmiHeader.biWidth = image.width;
    bmi.bmiHeader.biHeight = -image.height;
    bmi.bmiHeader.biPlanes = 1;
    bmi.bmiHeader.biBitCount = 32;
    bmi.bmiHeader.biCompression = BI_RGB;
    HDC dc = GetDC(nullptr);
    const int rows = GetDIBits(dc, bitmap, 0, static_cast<UINT>(image.height), image.pixels.data(),
                               &bmi, DIB_RGB_COLORS);
    ReleaseDC(nullptr, dc);
    if (rows != image.height)
        return {};
    for (size_t i = 3; i < image.pixels.size(); i += 4)
        image.pixels[i] = 255;
    return image;
}

} // namespace

LoadedImage::LoadedImage(LoadedImage&& other) noexcept {
    *this = std::move(other);
}

LoadedImage& LoadedImage::operator=(LoadedImage&& other) noexcept {
    if (this != &other) {
        Reset();
        std::swap(m_bitmap, other.m_bitmap);
        std::swap(m_bits, other.m_bits);
        std::swap(m_width, other.m_width);
        std::swap(m_height, other.m_height);
        std::swap(m_stride, other.m_stride);
        std::swap(m_alpha, other.m_alpha);
    }
    return *this;
}

void LoadedImage::Reset() {
    if (m_bitmap)
        DeleteObject(m_bitmap);
    m_bitmap = nullptr;
    m_bits = nullptr;
    m_width = m_height = m_stride = 0;
    m_alpha.clear();
}

LoadedImage LoadedImage::FromPixels(const PixelImage& pixels) {
    LoadedImage image;
    if (pixels.Empty())
        return image;
    void* bits = nullptr;
    image.m_bitmap = CreateDib(pixels.width, pixels.height, 24, false, &bits);
    if (!image.m_bitmap)
        return image;
    image.m_bits = static_cast<unsigned char*>(bits);
    image.m_width = pixels.width;
    image.m_height = pixels.height;
    image.m_stride = Stride24(pixels.width);
    if (pixels.hasAlpha)
        image.m_alpha.resize(static_cast<size_t>(pixels.width) * pixels.height);
    for (int y = 0; y < pixels.height; ++y) {
        const unsigned char* in = pixels.Row(y);
        unsigned char* out =
            image.m_bits + static_cast<size_t>(pixels.height - 1 - y) * image.m_stride;
        for (int x = 0; x < pixels.width; ++x, in += 4, out += 3) {
            out[0] = in[0];
            out[1] = in[1];
            out[2] = in[2];
            if (pixels.hasAlpha)
                image.m_alpha[static_cast<size_t>(y) * pixels.width + x] = in[3];
        }
    }
    GdiFlush();
    return image;
}

PixelImage LoadedImage::ToPixels() const {
    PixelImage pixels = MakePixelImage(m_width, m_height);
    if (IsEmpty() || pixels.Empty())
        return {};
    GdiFlush();
    pixels.hasAlpha = HasAlpha();
    for (int y = 0; y < m_height; ++y) {
        const unsigned char* in = m_bits + static_cast<size_t>(m_height - 1 - y) * m_stride;
        unsigned char* out = pixels.Row(y);
        for (int x = 0; x < m_width; ++x, in += 3, out += 4) {
            out[0] = in[0];
            out[1] = in[1];
            out[2] = in[2];
            out[3] = HasAlpha() ? m_alpha[static_cast<size_t>(y) * m_width + x] : 255;
        }
    }
    return pixels;
}

void LoadedImage::Flatten(COLORREF background) {
    if (IsEmpty() || !HasAlpha())
        return;
    GdiFlush();
    const int under[3] = {GetBValue(background), GetGValue(background), GetRValue(background)};
    for (int y = 0; y < m_height; ++y) {
        unsigned char* row = m_bits + static_cast<size_t>(m_height - 1 - y) * m_stride;
        const unsigned char* alpha = &m_alpha[static_cast<size_t>(y) * m_width];
        for (int x = 0; x < m_width; ++x) {
            for (int c = 0; c < 3; ++c) {
                unsigned char& v = row[x * 3 + c];
                v = static_cast<unsigned char>((v * alpha[x] + under[c] * (255 - alpha[x]) + 127) /
                                               255);
            }
        }
    }
    m_alpha.clear();
}

HBITMAP CreateDib(int width, int height, int bitCount, bool topDown, void** bits) {
    BITMAPINFO bmi = {};
    bmi.bmiHeader.biSize = sizeof bmi.bmiHeader;
    bmi.bmiHeader.biWidth = width;
    bmi.bmiHeader.biHeight = topDown ? -height : height;
    bmi.bmiHeader.biPlanes = 1;
    bmi.bmiHeader.biBitCount = static_cast<WORD>(bitCount);
    bmi.bmiHeader.biCompression = BI_RGB;
    return CreateDIBSection(nullptr, &bmi, DIB_RGB_COLORS, bits, nullptr, 0);
}

PixelImage PixelsFromBitmap(HBITMAP bitmap) {
    DIBSECTION dib = {};
    const int size = GetObjectW(bitmap, sizeof dib, &dib);
    if (size == sizeof(DIBSECTION) && dib.dsBm.bmBits && dib.dsBm.bmBitsPixel == 32 &&
        dib.dsBmih.biCompression == BI_RGB) {
        GdiFlush();
        return FromDib32(dib);
    }
    if (size < static_cast<int>(sizeof(BITMAP)))
        return {};
    return FromDeviceBitmap(bitmap, dib.dsBm);
}

} // namespace cv2
