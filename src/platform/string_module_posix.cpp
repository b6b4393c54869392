#include "platform/string_module.h"

namespace cv2 {

// Native builds carry no localisation modules: every text is its default.
void* OpenStringModule(const wchar_t*) { return nullptr; }
int LoadModuleString(void*, unsigned, wchar_t*, int) { return 0; }
void CloseStringModule(void*) {}

} // namespace cv2
