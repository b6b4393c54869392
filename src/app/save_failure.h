// Telling the user that the settings file could not be written.
#pragma once

#include <windows.h>

#include <string>

#include "platform/file_access.h"

namespace cv2 {

// The message that names the file and the system's reason.
std::wstring SaveFailureText(const std::wstring& path, const WriteFailure& failure);

// Shows that message in a box owned by `owner`.
void ReportSaveFailure(HWND owner, const std::wstring& path, const WriteFailure& failure);

} // namespace cv2
