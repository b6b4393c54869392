// Writing a picture in the PNG format, where the platform has an encoder for it (the desktop's
// imaging component does; a device may not).
#pragma once

#include <vector>

namespace cv2 {

// Encodes width x height pixels, rows from the top, blue, green, red and an unused byte per
// pixel, `stride` bytes from one row to the next. False (and `out` empty) when the platform
// has no PNG encoder or encoding failed.
bool EncodePng(int width, int height, const unsigned char* pixels, int stride,
               std::vector<unsigned char>& out);

} // namespace cv2
