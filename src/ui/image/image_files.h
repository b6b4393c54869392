// Which reader a picture file goes to, and the program's own readers applied to files.
#pragma once

#include <string>

#include "ui/image/icon_reader.h"
#include "ui/image/pixel_image.h"

namespace cv2 {

enum class ImageReader {
    Icon,    // the path contains ".ico"
    Targa,   // the path contains ".tga"
    Platform // everything else (BMP, JPEG, PNG, GIF): the platform's image decoder
};

// Looks at the lower-cased path: containing ".ico" anywhere selects the icon reader, else
// containing ".tga" the Targa reader, else the platform decoder.
ImageReader ReaderForPath(const std::wstring& path);

// An icon path may end in "|" and the wanted icon size in pixels ("x.ico|16"). Returns the path
// without that suffix and sets `size`; without a suffix, or when the text after "|" is not a
// positive number, `size` is `defaultSize`.
std::wstring SplitIconSize(const std::wstring& path, int defaultSize, int& size);

// The Targa file at `path`; empty when it cannot be read or decoded.
PixelImage ReadTargaFile(const std::wstring& path);

// The image of the icon file at `path` (which may carry a size suffix) best fitting the wanted
// size; `defaultSize` (the system's icon width) when the path gives none. A PNG-coded image goes
// to `decodePng`.
PixelImage ReadIconFile(const std::wstring& path, int defaultSize,
                        const PngDecoder& decodePng = nullptr);

} // namespace cv2
