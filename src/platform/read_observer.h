// Where both file-access implementations report the files they read, for tests that count them.
#pragma once

#include <string>

namespace cv2 {

// Passes the path to the observer tests set with ObserveFileReads, if any.
void NoteFileRead(const std::wstring& path);

} // namespace cv2
