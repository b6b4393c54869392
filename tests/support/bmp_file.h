// Small generated pictures for tests and benchmarks: the bytes of 24-bit BMP files, each one
// different (a colour field with a lighter disc, varied by a number).
#pragma once

#include <cstdint>
#include <string>

namespace cv2test {

inline void PutLe(std::string& bytes, uint32_t value, int size) {
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
}

// A `width` x `height` picture; `seed` picks its colours and where its disc lies.
inline std::string BmpFileBytes(int width, int height, unsigned seed) {
    const int stride = (width * 3 + 3) / 4 * 4;
    const uint32_t pixelBytes = static_cast<uint32_t>(stride * height);
    std::string bytes = "BM";
    PutLe(bytes, 54 + pixelBytes, 4);
    PutLe(bytes, 0, 4);
    PutLe(bytes, 54, 4);
    PutLe(bytes, 40, 4);
    PutLe(bytes, static_cast<uint32_t>(width), 4);
    PutLe(bytes, static_cast<uint32_t>(height), 4);
    PutLe(bytes, 1, 2);
    PutLe(bytes, 24, 2);
    PutLe(bytes, 0, 4);
    PutLe(bytes, pixelBytes, 4);
    PutLe(bytes, 2835, 4);
    PutLe(bytes, 2835, 4);
    PutLe(bytes, 0, 4);
    PutLe(bytes, 0, 4);
    const unsigned char red = static_cast<unsigned char>(40 + (seed * 67) % 200);
    const unsigned char green = static_cast<unsigned char>(40 + (seed * 131) % 200);
    const unsigned char blue = static_cast<unsigned char>(40 + (seed * 29) % 200);
    const int cx = width / 4 + static_cast<int>(seed % 3) * width / 4;
    const int cy = height / 2;
    const int r2 = (height / 3) * (height / 3);
    for (int y = 0; y < height; ++y) {
        std::string row;
        for (int x = 0; x < width; ++x) {
            const bool disc = (x - cx) * (x - cx) + (y - cy) * (y - cy) <= r2;
            const int shade = disc ? 60 : (y * 40 / (height > 0 ? height : 1));
            row += static_cast<char>(blue + shade > 255 ? 255 : blue + shade);
            row += static_cast<char>(green + shade > 255 ? 255 : green + shade);
            row += static_cast<char>(red + shade > 255 ? 255 : red + shade);
        }
        row.resize(static_cast<size_t>(stride), '\0');
        bytes += row;
    }
    return bytes;
}

} // namespace cv2test
