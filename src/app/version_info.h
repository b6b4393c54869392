// The program's own version resource, as the About box shows it.
#pragma once

#include <string>

namespace cv2 {

struct VersionInfo {
    unsigned short parts[4] = {0, 0, 0, 0}; // file version, most significant first
    std::wstring specialBuild;               // "SpecialBuild"
    std::wstring legalCopyright;             // "LegalCopyright"
};

// Reads the version resource of the module file at `path`; zeros and empty texts where there is
// no resource, no translation entry or no such value.
VersionInfo ReadVersionInfo(const std::wstring& path);

// "Version a.b.c.d <special build>".
std::wstring VersionLine(const VersionInfo& info);

} // namespace cv2
