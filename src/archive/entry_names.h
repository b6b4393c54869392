// Entry names of zip archives: their two encodings, and the rules a name must meet before
// anything is written under it (it comes from a stranger).
#pragma once

#include <cstddef>
#include <string>

#include "archive/zip_problem.h"

namespace cv2 {

// The name as text. Names flagged as UTF-8, and unflagged ones that are valid UTF-8 (as tools
// on Linux and macOS write them), are read as UTF-8; anything else in the DOS code page 437
// that zip tools on Windows use.
std::wstring DecodeEntryName(const std::string& raw, bool utf8Flag);

// The bytes to store for a name: ASCII as it is, anything else as UTF-8 with `utf8` set (the
// entry then carries the UTF-8 flag).
std::string EncodeEntryName(const std::wstring& name, bool& utf8);

// A name that passed CheckEntryName: parts joined with '/', no trailing separator.
struct CleanName {
    std::wstring path;
    bool folder = false; // the entry stands for a folder (its name ended in a separator)
};

// Checks a decoded name, with '/' or '\' between its parts, against what may be written inside
// a folder: no root or drive, no "..", no empty or "." part, no character or part name that a
// Windows file system refuses (control characters, <>:"|?*, a part ending in a dot or a space,
// device names such as CON or LPT1 with or without an extension), at most `maxChars`
// characters. Fills `clean` when it passes.
ZipProblem CheckEntryName(const std::wstring& name, size_t maxChars, CleanName& clean);

// True when `part` (one folder or file name) is a device name of Windows such as "NUL" or
// "com1.txt", which opens the device instead of a file.
bool IsDeviceName(const std::wstring& part);

} // namespace cv2
