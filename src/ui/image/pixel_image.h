// The plain pixel buffer every image reader decodes into and the scaler works on. Portable: the
// Win32 side turns it into a device-independent bitmap and an alpha plane.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace cv2 {

// Images larger than this many pixels are refused: nothing the editor previews comes near it, and
// a hostile header must not make the program ask for gigabytes.
constexpr int64_t kMaxImagePixels = 4096 * 4096;

struct PixelImage {
    int width = 0;
    int height = 0;
    // True when the fourth byte of each pixel carries transparency; otherwise it is 255.
    bool hasAlpha = false;
    // Blue, green, red, alpha per pixel; rows from the top, width * 4 bytes each, no padding.
    std::vector<unsigned char> pixels;

    bool Empty() const { return width <= 0 || height <= 0 || pixels.empty(); }
    unsigned char* Row(int y) { return pixels.data() + static_cast<size_t>(y) * width * 4; }
    const unsigned char* Row(int y) const {
        return pixels.data() + static_cast<size_t>(y) * width * 4;
    }
    unsigned char* At(int x, int y) { return Row(y) + static_cast<size_t>(x) * 4; }
    const unsigned char* At(int x, int y) const { return Row(y) + static_cast<size_t>(x) * 4; }
};

// True when width x height is a size the program accepts (both positive, within the pixel cap).
bool IsAcceptableSize(int64_t width, int64_t height);

// An opaque black image of that size (alpha 255), or an empty one when the size is not
// acceptable.
PixelImage MakePixelImage(int width, int height);

// Reverses the order of the rows (for sources stored bottom row first).
void FlipRows(PixelImage& image);

// Decides whether the fourth bytes mean anything: when every one of them is zero the source had no
// transparency to tell (a common way of writing 32-bit pixels), so they become 255 and the result
// is false. Otherwise the alpha stays and the result is true.
bool KeepAlphaUnlessAllZero(PixelImage& image);

} // namespace cv2
