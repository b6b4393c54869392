// Reader of Targa pictures: 24 and 32 bits per pixel, stored raw or run-length encoded, with the
// origin at the bottom-left or top-left corner.
#pragma once

#include <cstddef>

#include "ui/image/pixel_image.h"

namespace cv2 {

// Decodes a whole Targa file. Image types 1 to 3 (raw) and 9 to 11 (run-length) with a depth of
// 24 or 32 are read; any other type or depth, a zero size, or a file that ends before its pixels
// do gives an empty image. 32-bit pixels keep their fourth byte as alpha.
PixelImage ReadTarga(const unsigned char* data, size_t size);

} // namespace cv2
