// Messages of the program's command-line modes on standard error: the handle the program was
// given, or the console of the program that started it.
#pragma once

#include <string>

namespace cv2 {

// Writes the text; nothing happens when there is nowhere to write it.
void WriteStdError(const std::wstring& text);

} // namespace cv2
