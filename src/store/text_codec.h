// Conversion between the 8-bit text of settings files and wide strings in memory.
// Windows uses the ANSI code page; elsewhere a fixed Windows-1252 table, so both builds read
// the same bytes the same way.
#pragma once

#include <string>
#include <vector>

namespace cv2 {

// Decodes 8-bit text. The text ends at the first NUL byte, as a C string would.
std::wstring DecodeAnsi(const unsigned char* bytes, size_t size);

// Encodes wide text as 8-bit text; characters the code page lacks become '?'.
std::string EncodeAnsi(const std::wstring& text);

// UTF-8 form of a wide string (host file names on POSIX).
std::string EncodeUtf8(const std::wstring& text);

} // namespace cv2
