// The localisation module seam: a string-table library loaded by name.
#pragma once

namespace cv2 {

// Loads the module; null when it is not there (or on platforms without such modules).
void* OpenStringModule(const wchar_t* name);
// Copies string `id` into `buffer`; returns its length, 0 when the module lacks it.
int LoadModuleString(void* module, unsigned id, wchar_t* buffer, int bufferChars);
void CloseStringModule(void* module);

} // namespace cv2
