#include "platform/plugin_library.h"

namespace cv2 {

HMODULE LoadPluginLibrary(const wchar_t* path) {
    // A library with a missing dependency would otherwise stop start-up with a message box.
    const UINT previous = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    SetErrorMode(previous | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    HMODULE module = LoadLibraryW(path);
    SetErrorMode(previous);
    return module;
}

FARPROC PluginExport(HMODULE module, const char* name) {
    return module ? GetProcAddress(module, name) : nullptr;
}

void ReleasePluginLibrary(HMODULE module) {
    if (module)
        FreeLibrary(module);
}

} // namespace cv2
