// Pictures for the file browser's thumbnail cells.
#pragma once

#include <windows.h>

#include <string>

#include "ui/image/loaded_image.h"

namespace cv2 {

// The picture at `path`, fitted into a `side` x `side` slot (kept when it fits, else shrunk so
// its longer side fills the slot) and composed onto `background` where it is transparent. Empty
// when the file cannot be read as a picture.
LoadedImage LoadThumbnail(const std::wstring& path, int side, COLORREF background);

} // namespace cv2
