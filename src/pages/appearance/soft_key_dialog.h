// The soft-key images dialog: the normal, pressed and disabled pictures of the left and the
// right soft key, one key at a time.
#pragma once

#include <windows.h>

#include <string>

namespace cv2 {

struct SoftKeyImages {
    // In the order the section stores them: left and right normal, pressed, then disabled.
    std::wstring paths[6];
};

// Runs the dialog on a copy of `images`, which take the copy only on OK.
bool EditSoftKeys(SoftKeyImages& images, HWND owner);

} // namespace cv2
