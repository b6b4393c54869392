// Choosing a picture file with the editor's file browser.
#pragma once

#include <windows.h>

#include <string>

namespace cv2 {

// Opens the file browser on pictures (with thumbnails, the graphics filter, and the folder last
// used for pictures); true when the user chose a file, `path` then holding it.
bool BrowseGraphicsFile(HWND owner, std::wstring& path);

} // namespace cv2
