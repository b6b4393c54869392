#include "ui/image/pixel_image.h"

#include <algorithm>

namespace cv2 {

bool IsAcceptableSize(int64_t width, int64_t height) {
    return width > 0 && height > 0 && width <= kMaxImagePixels && height <= kMaxImagePixels &&
           width * height <= kMaxImagePixels;
}

PixelImage MakePixelImage(int width, int height) {
    PixelImage image;
    if (!IsAcceptableSize(width, height))
        return image;
    image.width = width;
    image.height = height;
    image.pixels.assign(static_cast<size_t>(width) * height * 4, 0);
    for (size_t i = 3; i < image.pixels.size(); i += 4)
        image.pixels[i] = 255;
    return image;
}

void FlipRows(PixelImage& image) {
    const size_t rowBytes = static_cast<size_t>(image.width) * 4;
    for (int top = 0, bottom = image.height - 1; top < bottom; ++top, --bottom)
        std::swap_ranges(image.Row(top), image.Row(top) + rowBytes, image.Row(bottom));
}

bool KeepAlphaUnlessAllZero(PixelImage& image) {
    for (size_t i = 3; i < image.pixels.size(); i += 4) {
        if (image.pixels[i] != 0)
            return true;
    }
    for (size_t i = 3; i < image.pixels.size(); i += 4)
        image.pixels[i] = 255;
    return false;
}

} // namespace cv2
