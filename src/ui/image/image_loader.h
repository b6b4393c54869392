// Loading a picture file into a LoadedImage at the size it will be shown.
#pragma once

#include <string>

#include "ui/image/loaded_image.h"
#include "ui/image/pixel_image.h"

namespace cv2 {

// Reads the picture at `path` and scales it to wantedWidth x wantedHeight (0 or less for one
// side follows the other keeping the shape; both: as stored). Icons (the path contains ".ico",
// optionally ending in "|" and the wanted icon size, else the system icon width is wanted) and
// Targa files (".tga") are read by the program's own readers, everything else (BMP, JPEG, PNG,
// GIF) by the platform's image decoder. A missing or unreadable file gives an empty image.
LoadedImage LoadImageFile(const std::wstring& path, int wantedWidth, int wantedHeight);

// The picture at `path` at its own size, before scaling; empty when it cannot be read.
PixelImage ReadImagePixels(const std::wstring& path);
// The same, shrunk (shape kept) to fit maxWidth x maxHeight when it is larger. A large photo is
// shrunk by the decoder while it decodes, never held whole.
PixelImage ReadImagePixels(const std::wstring& path, int maxWidth, int maxHeight);

// The picture at `path` decoded by the platform's image decoder, reading the file in chunks;
// larger than maxWidth x maxHeight (when given) it is shrunk to fit.
PixelImage DecodeWithPlatform(const std::wstring& path, int maxWidth = 0, int maxHeight = 0);
// The same for a whole image file held in memory (a PNG-coded image inside an icon file).
PixelImage DecodeBytesWithPlatform(const unsigned char* data, size_t size);

} // namespace cv2
