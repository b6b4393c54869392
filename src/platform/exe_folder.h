#pragma once

#include <string>

namespace cv2 {

// The folder of the running executable, ending in a backslash (at most 260 characters).
std::wstring ExeFolder();

} // namespace cv2
