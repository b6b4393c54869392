#include "themes/theme_messages.h"

#include <windows.h>

namespace cv2 {
namespace {
// Registered before the entry point runs, like the rest of the process-wide state.
const UINT g_updateTheme = RegisterWindowMessageW(L"UpdateCV2xTheme");
const UINT g_exportTheme = RegisterWindowMessageW(L"ExportCV2xTheme");
} // namespace

unsigned UpdateThemeMessage() { return g_updateTheme; }
unsigned ExportThemeMessage() { return g_exportTheme; }

} // namespace cv2
