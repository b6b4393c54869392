// COM for the lifetime of the main window.
#pragma once

namespace cv2 {

// The device starts COM with default flags (its only model); the desktop's shell and imaging
// objects want a single-threaded apartment on the UI thread.
void InitializeCom();
void UninitializeCom();

} // namespace cv2
