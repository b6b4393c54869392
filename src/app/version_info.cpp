#include "app/version_info.h"

#include <windows.h>

#include <cstdio>
#include <vector>

namespace cv2 {
namespace {

// A string of the first language/code-page pair listed under "\VarFileInfo\Translation".
std::wstring StringValue(const std::vector<BYTE>& block, const wchar_t* name) {
    WORD* translation = nullptr;
    UINT size = 0;
    if (!VerQueryValueW(block.data(), L"\\VarFileInfo\\Translation",
                        reinterpret_cast<void**>(&translation), &size) ||
        size < 2 * sizeof(WORD))
        return L"";
    wchar_t path[64];
    swprintf(path, 64, L"\\StringFileInfo\\%04x%04x\\%ls", translation[0], translation[1], name);
    wchar_t* value = nullptr;
    if (!VerQueryValueW(block.data(), path, reinterpret_cast<void**>(&value), &size) || !value)
        return L"";
    return value;
}

} // namespace

VersionInfo ReadVersionInfo(const std::wstring& path) {
    VersionInfo info;
    DWORD handle = 0;
    const DWORD size = GetFileVersionInfoSizeW(path.c_str(), &handle);
    if (size == 0)
        return info;
    std::vector<BYTE> block(size);
    if (!GetFileVersionInfoW(path.c_str(), 0, size, block.data()))
        return info;
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT fixedSize = 0;
    if (VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &fixedSize) && fixed &&
        fixedSize >= sizeof *fixed) {
        info.parts[0] = HIWORD(fixed->dwFileVersionMS);
        info.parts[1] = LOWORD(fixed->dwFileVersionMS);
        info.parts[2] = HIWORD(fixed->dwFileVersionLS);
        info.parts[3] = LOWORD(fixed->dwFileVersionLS);
    }
    info.specialBuild = StringValue(block, L"SpecialBuild");
    info.legalCopyright = StringValue(block, L"LegalCopyright");
    return info;
}

std::wstring VersionLine(const VersionInfo& info) {
    wchar_t line[128];
    swprintf(line, 128, L"Version %d.%d.%d.%d %ls", info.parts[0], info.parts[1], info.parts[2],
             info.parts[3], info.specialBuild.c_str());
    return line;
}

} // namespace cv2
