#include "pages/behaviour/general_startup.h"

#include "store/paths.h"

namespace cv2 {

std::wstring StartupShortcutPath(const std::wstring& startupFolder) {
    if (startupFolder.empty())
        return std::wstring();
    return CutToBuffer(FolderWithSlash(startupFolder) + L"Corvane.lnk", kMaxPath);
}

std::wstring StartupShortcutTarget(const std::wstring& settingsFolder) {
    return L"\"" + CutToBuffer(settingsFolder, kMaxPath) + L"Corvane2.exe\" /boot";
}

} // namespace cv2
