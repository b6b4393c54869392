// A picture as the bytes of a 24-bit BMP file, for writing a preview to disk. Portable.
#pragma once

#include <vector>

#include "ui/image/pixel_image.h"

namespace cv2 {

// The file: header, then the rows bottom first, blue, green, red, each padded to four bytes.
// Transparency is dropped. Empty for an empty picture.
std::vector<unsigned char> BmpBytes(const PixelImage& image);

} // namespace cv2
