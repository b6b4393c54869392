// Loading and releasing plug-in libraries, kept here because the desktop needs an error-mode
// switch around the load that the device does not have.
#pragma once

#include <windows.h>

namespace cv2 {

// Loads the library at `path`; null when it is missing, is no library or is built for another
// processor. No system message box is shown for a failed load.
HMODULE LoadPluginLibrary(const wchar_t* path);

// The export of that name, or null.
FARPROC PluginExport(HMODULE module, const char* name);

void ReleasePluginLibrary(HMODULE module);

} // namespace cv2
