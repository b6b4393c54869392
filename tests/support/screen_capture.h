// Screenshots for the screens test layer, taken from inside a Windows test program.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace cv2test {

// The device screen the tests run on ("qvga-portrait", ...), from CV2_SCREEN; empty if unset.
std::string ScreenName();

// Saves the whole screen as a 24-bit BMP named `name`.bmp in the folder given by
// CV2_SCREENS_DIR (the screens layer of ./test.sh sets it per device screen). Returns the path,
// or an empty string when no folder is set or the capture failed.
std::wstring SaveScreenshot(const std::wstring& name);

// True when the screen shows more than one colour (a blank capture is a failed capture).
bool ScreenHasContent();

// The colour the screen shows at a point of it.
COLORREF ScreenPixel(int x, int y);

// Lets pending paint messages of this thread run, for up to `ms` milliseconds.
void PumpMessages(DWORD ms);
// Runs this thread's messages until `done` holds, for up to `ms` milliseconds; whether it held.
bool PumpUntil(const std::function<bool()>& done, DWORD ms = 5000);

} // namespace cv2test
