#include "platform/exe_folder.h"

#include <windows.h>

#include "store/paths.h"

namespace cv2 {

std::wstring ExeFolder() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return FolderOf(path);
}

} // namespace cv2
