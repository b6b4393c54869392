// Reader of icon files: the directory of images, the choice of one image for a wanted size, and
// the decoding of that image (1, 4 and 8 bits with a palette, 16, 24 and 32 bits; the AND mask
// makes pixels transparent, 32-bit images carry their own alpha). Images stored as PNG files
// take part in the choice and are decoded by the caller's decoder.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "ui/image/pixel_image.h"

namespace cv2 {

// What the choice of an image looks at, from the image's own bitmap header or, for an image stored
// as a PNG file, from the PNG's header chunk.
struct IconCandidate {
    int width = 0;
    int bitCount = 0;
    bool readable = false; // the header and the pixel data lie inside the file
};

// The index of the image to use for `wantedSize`: among readable images no wider than it with at
// most 32 bits per pixel, in file order, the first is chosen and each later one replaces it unless
// it is both no wider and of no greater bit count. With no such image, image 0.
size_t ChooseIconImage(const std::vector<IconCandidate>& images, int wantedSize);

// Decodes a whole PNG file held in memory; an empty image when it cannot.
using PngDecoder = std::function<PixelImage(const unsigned char* data, size_t size)>;

// Decodes the image of the icon file chosen for `wantedSize`, at its own size (the stored height
// covers the colour bits and the mask, so the picture is half as high). A bitmap image is decoded
// here; a PNG-coded one is handed whole to `decodePng`. A directory or image that reaches past
// the end of the file, an unsupported image (a compressed bitmap, or a PNG without a decoder) or
// an empty directory gives an empty image.
PixelImage ReadIcon(const unsigned char* data, size_t size, int wantedSize,
                    const PngDecoder& decodePng = nullptr);

} // namespace cv2
