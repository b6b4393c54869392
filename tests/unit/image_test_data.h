// Helpers of the image tests: the committed picture files (made by tests/data/images/
// make_images.sh with ImageMagick and icoutils), their raw references, pixel comparison, and
// small hand-made Targa and icon files.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "platform/file_access.h"
#include "ui/image/pixel_image.h"

namespace cv2test {

// A file of tests/data/images, found from this header's own location (under Wine through Z:).
inline std::wstring ImageDataPath(const std::string& name) {
    std::string here = __FILE__;
    here = here.substr(0, here.find_last_of("/\\") + 1) + "../data/images/" + name;
    std::wstring path(here.begin(), here.end());
#ifdef _WIN32
    for (wchar_t& c : path) {
        if (c == L'/')
            c = L'\\';
    }
    if (!path.empty() && path[0] == L'\\')
        path = L"Z:" + path;
#endif
    return path;
}

inline std::string ReadImageData(const std::string& name) {
    cv2::Bytes bytes;
    cv2::ReadWholeFile(ImageDataPath(name), bytes);
    return std::string(bytes.begin(), bytes.end());
}

// The reference X.rgba of picture X as a pixel image (alpha kept).
inline cv2::PixelImage Reference(const std::string& picture, int width, int height) {
    const std::string rgba = ReadImageData(picture + ".rgba");
    cv2::PixelImage image;
    if (rgba.size() != static_cast<size_t>(width) * height * 4) {
        ADD_FAILURE() << picture << ".rgba has " << rgba.size() << " bytes";
        return image;
    }
    image.width = width;
    image.height = height;
    image.hasAlpha = true;
    image.pixels.resize(rgba.size());
    for (size_t i = 0; i < rgba.size(); i += 4) {
        image.pixels[i] = static_cast<unsigned char>(rgba[i + 2]);
        image.pixels[i + 1] = static_cast<unsigned char>(rgba[i + 1]);
        image.pixels[i + 2] = static_cast<unsigned char>(rgba[i]);
        image.pixels[i + 3] = static_cast<unsigned char>(rgba[i + 3]);
    }
    return image;
}

// A picture of tests/data/images by name ("alpha", "few32", ...), from its reference.
inline cv2::PixelImage Picture(const std::string& name) {
    struct Size {
        const char* name;
        int width, height;
    };
    static const Size sizes[] = {{"opaque", 23, 17},  {"alpha", 23, 17},    {"opaque_jpg", 23, 17},
                                 {"bw16", 16, 16},    {"few16", 16, 16},    {"graded16", 16, 16},
                                 {"few32", 32, 32},   {"graded32", 32, 32}, {"few48", 48, 48},
                                 {"graded48", 48, 48}};
    for (const Size& size : sizes) {
        if (name == size.name)
            return Reference(name, size.width, size.height);
    }
    ADD_FAILURE() << "no picture " << name;
    return {};
}

// Compares pixel for pixel; colours of pixels transparent in both are not compared, since a
// fully transparent pixel shows no colour. `tolerance` allows that much per channel.
inline ::testing::AssertionResult SamePixels(const cv2::PixelImage& actual,
                                             const cv2::PixelImage& expected, int tolerance = 0) {
    if (actual.width != expected.width || actual.height != expected.height)
        return ::testing::AssertionFailure()
               << "size " << actual.width << "x" << actual.height << ", expected " << expected.width
               << "x" << expected.height;
    if (actual.pixels.size() != expected.pixels.size())
        return ::testing::AssertionFailure() << "pixel buffer of " << actual.pixels.size();
    int wrong = 0;
    std::string first;
    for (int y = 0; y < expected.height; ++y) {
        for (int x = 0; x < expected.width; ++x) {
            const unsigned char* a = actual.At(x, y);
            const unsigned char* e = expected.At(x, y);
            const int from = (a[3] == 0 && e[3] == 0) ? 3 : 0;
            for (int c = from; c < 4; ++c) {
                if (std::abs(a[c] - e[c]) > tolerance) {
                    if (wrong++ == 0)
                        first = "first at (" + std::to_string(x) + "," + std::to_string(y) +
                                ") channel " + std::to_string(c) + ": " + std::to_string(a[c]) +
                                " != " + std::to_string(e[c]);
                    break;
                }
            }
        }
    }
    if (wrong)
        return ::testing::AssertionFailure() << wrong << " pixels differ, " << first;
    return ::testing::AssertionSuccess();
}

// The same picture without its alpha (every pixel opaque), for 24-bit sources.
inline cv2::PixelImage Opaque(cv2::PixelImage image) {
    for (size_t i = 3; i < image.pixels.size(); i += 4)
        image.pixels[i] = 255;
    image.hasAlpha = false;
    return image;
}

inline void Put16(std::string& s, unsigned v) {
    s += static_cast<char>(v & 0xFF);
    s += static_cast<char>((v >> 8) & 0xFF);
}
inline void Put32(std::string& s, uint32_t v) {
    Put16(s, v & 0xFFFF);
    Put16(s, v >> 16);
}

// An 18-byte Targa header followed by `id` and `data`.
inline std::string TargaFile(int type, int width, int height, int depth, int descriptor,
                             const std::string& data, const std::string& id = "") {
    std::string s;
    s += static_cast<char>(id.size());
    s += '\0'; // no colour map
    s += static_cast<char>(type);
    s += std::string(5, '\0');
    Put16(s, 0);
    Put16(s, 0);
    Put16(s, static_cast<unsigned>(width));
    Put16(s, static_cast<unsigned>(height));
    s += static_cast<char>(depth);
    s += static_cast<char>(descriptor);
    return s + id + data;
}

// One icon image: bitmap header, palette, colour rows bottom first, AND mask rows bottom first.
// `pixel(x, y)` gives the stored value (palette index, or the pixel's bytes blue first as a
// little-endian number), `transparent(x, y)` the mask bit; y counts from the top.
inline std::string IconBitmap(int width, int height, int bits, const std::vector<uint32_t>& palette,
                              const std::function<uint32_t(int, int)>& pixel,
                              const std::function<bool(int, int)>& transparent,
                              uint32_t compression = 0) {
    std::string s;
    Put32(s, 40);
    Put32(s, static_cast<uint32_t>(width));
    Put32(s, static_cast<uint32_t>(height * 2));
    Put16(s, 1);
    Put16(s, static_cast<unsigned>(bits));
    Put32(s, compression);
    Put32(s, 0);
    Put32(s, 0);
    Put32(s, 0);
    Put32(s, static_cast<uint32_t>(palette.size()));
    Put32(s, 0);
    for (uint32_t c : palette)
        Put32(s, c);
    const size_t stride = ((static_cast<size_t>(width) * bits + 31) / 32) * 4;
    for (int y = height - 1; y >= 0; --y) {
        std::string row(stride, '\0');
        for (int x = 0; x < width; ++x) {
            const uint32_t v = pixel(x, y);
            if (bits < 8) {
                const int perByte = 8 / bits;
                row[x / perByte] =
                    static_cast<char>(row[x / perByte] | (v << (8 - bits * (1 + x % perByte))));
            } else {
                for (int b = 0; b < bits / 8; ++b)
                    row[x * (bits / 8) + b] = static_cast<char>((v >> (8 * b)) & 0xFF);
            }
        }
        s += row;
    }
    const size_t maskStride = ((static_cast<size_t>(width) + 31) / 32) * 4;
    for (int y = height - 1; y >= 0; --y) {
        std::string row(maskStride, '\0');
        for (int x = 0; x < width; ++x) {
            if (transparent(x, y))
                row[x / 8] = static_cast<char>(row[x / 8] | (0x80 >> (x % 8)));
        }
        s += row;
    }
    return s;
}

// An icon file holding the given images in this order.
inline std::string IconFile(const std::vector<std::string>& images) {
    std::string s;
    Put16(s, 0);
    Put16(s, 1);
    Put16(s, static_cast<unsigned>(images.size()));
    uint32_t offset = static_cast<uint32_t>(6 + 16 * images.size());
    for (const std::string& image : images) {
        s += std::string(8, '\0'); // size, colours and planes: the reader takes them from the image
        Put32(s, static_cast<uint32_t>(image.size()));
        Put32(s, offset);
        offset += static_cast<uint32_t>(image.size());
    }
    for (const std::string& image : images)
        s += image;
    return s;
}

} // namespace cv2test
