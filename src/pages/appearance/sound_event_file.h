// Which part of a sound event's text names the file. The bar hands the whole text to the
// platform's sound call, which may carry more than a file name after a "|" or a ","; only the
// part before the first "|" (or, when there is none, before the first ",") has to be a file.
#pragma once

#include <string>

namespace cv2 {

// The part of `text` that names the file.
std::wstring SoundFilePart(const std::wstring& text);

// True when the file part names an existing file that is not a folder.
bool IsPlayableSound(const std::wstring& text);

} // namespace cv2
