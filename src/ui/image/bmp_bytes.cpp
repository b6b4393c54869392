#include "ui/image/bmp_bytes.h"

#include <cstdint>

namespace cv2 {
namespace {

void PutLe(std::vector<unsigned char>& out, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<unsigned char>(value >> (8 * i)));
}

} // namespace

std::vector<unsigned char> BmpBytes(const PixelImage& image) {
    std::vector<unsigned char> out;
    if (image.Empty())
        return out;
    const uint32_t stride = (static_cast<uint32_t>(image.width) * 3 + 3) & ~3u;
    const uint32_t pixelBytes = stride * static_cast<uint32_t>(image.height);
    const uint32_t headers = 14 + 40;
    out.reserve(headers + pixelBytes);
    out.push_back('B');
    out.push_back('M');
    PutLe(out, headers + pixelBytes, 4);
    PutLe(out, 0, 4);
    PutLe(out, headers, 4);
    PutLe(out, 40, 4);
    PutLe(out, static_cast<uint32_t>(image.width), 4);
    PutLe(out, static_cast<uint32_t>(image.height), 4);
    PutLe(out, 1, 2);  // planes
    PutLe(out, 24, 2); // bits per pixel
    PutLe(out, 0, 4);  // no compression
    PutLe(out, pixelBytes, 4);
    PutLe(out, 3780, 4); // 96 dots per inch, in dots per metre
    PutLe(out, 3780, 4);
    PutLe(out, 0, 4);
    PutLe(out, 0, 4);
    for (int y = image.height - 1; y >= 0; --y) {
        const unsigned char* row = image.Row(y);
        for (int x = 0; x < image.width; ++x, row += 4) {
            out.push_back(row[0]);
            out.push_back(row[1]);
            out.push_back(row[2]);
        }
        for (uint32_t pad = static_cast<uint32_t>(image.width) * 3; pad < stride; ++pad)
            out.push_back(0);
    }
    return out;
}

} // namespace cv2
