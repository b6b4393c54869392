#include "platform/string_module.h"

#include <windows.h>

namespace cv2 {

void* OpenStringModule(const wchar_t* name) { return LoadLibraryW(name); }

int LoadModuleString(void* module, unsigned id, wchar_t* buffer, int bufferChars) {
    return LoadStringW(static_cast<HMODULE>(module), id, buffer, bufferChars);
}

void CloseStringModule(void* module) { FreeLibrary(static_cast<HMODULE>(module)); }

} // namespace cv2
