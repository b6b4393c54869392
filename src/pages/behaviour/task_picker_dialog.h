// The list picker: a full-screen list of the running applications to choose one from.
#pragma once

#include <windows.h>

#include <string>

namespace cv2 {

// Offers the titles of the running applications' windows, or with `processNames` the names of
// their programs. True with `choice` set when the user confirmed an entry.
bool RunTaskPicker(HWND owner, bool processNames, std::wstring& choice);

} // namespace cv2
