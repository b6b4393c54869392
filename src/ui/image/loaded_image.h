// The in-memory picture the program shows (previews of skin images and icons, the About box
// logo): a 24-bit bottom-up DIB section, with an alpha plane when the source had transparency.
#pragma once

#include <windows.h>

#include <vector>

#include "ui/image/pixel_image.h"

namespace cv2 {

class LoadedImage {
  public:
    LoadedImage() = default;
    ~LoadedImage() { Reset(); }
    LoadedImage(LoadedImage&& other) noexcept;
    LoadedImage& operator=(LoadedImage&& other) noexcept;
    LoadedImage(const LoadedImage&) = delete;
    LoadedImage& operator=(const LoadedImage&) = delete;

    // The pixels as a bitmap and, when they have alpha, an alpha plane. An empty pixel image,
    // or a failure to make the bitmap, gives an empty image.
    static LoadedImage FromPixels(const PixelImage& pixels);
    // Back to a pixel image (for scaling and blending).
    PixelImage ToPixels() const;

    bool IsEmpty() const { return m_bitmap == nullptr; }
    // The 24-bit bottom-up DIB section; the image owns it.
    HBITMAP Bitmap() const { return m_bitmap; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    // Bytes per bitmap row (width * 3 rounded up to a multiple of 4).
    int Stride() const { return m_stride; }
    // The bitmap's pixel rows, bottom row first, blue, green, red per pixel.
    const unsigned char* Bits() const { return m_bits; }
    // Set for sources with transparency (32-bit pictures, masked icons).
    bool HasAlpha() const { return !m_alpha.empty(); }
    // One byte per pixel, width * height, rows from the top row of the picture; null without
    // alpha.
    const unsigned char* Alpha() const { return m_alpha.empty() ? nullptr : m_alpha.data(); }

    // Composes the picture onto `background` where it is transparent and drops the alpha plane,
    // for places that show a plain bitmap (picture controls, image lists).
    void Flatten(COLORREF background);
    // Frees the bitmap and the alpha plane; the image is empty afterwards.
    void Reset();

  private:
    HBITMAP m_bitmap = nullptr;
    unsigned char* m_bits = nullptr;
    int m_width = 0;
    int m_height = 0;
    int m_stride = 0;
    std::vector<unsigned char> m_alpha;
};

// A device-independent bitmap of `bitCount` bits per pixel, its rows from the top when `topDown`
// and from the bottom otherwise; `bits` receives its pixels. Null when it cannot be made.
HBITMAP CreateDib(int width, int height, int bitCount, bool topDown, void** bits);

// The pixels of any bitmap. A 32-bit DIB section keeps its fourth bytes as alpha when they carry
// transparency (not all 255, not all 0); other bitmaps are read as opaque.
PixelImage PixelsFromBitmap(HBITMAP bitmap);

} // namespace cv2
