// The six device screens the editor is laid out for, and which of them a desktop shows.
#pragma once

#include <cstddef>
#include <string>

namespace cv2 {

struct DeviceScreen {
    const wchar_t* name; // the name ./run.sh and "--screen=" use
    int width;
    int height;
    int dpi;
};

// The six screens: QVGA portrait, landscape and square at 96 dpi, then the same at VGA size and
// 192 dpi.
const DeviceScreen* DeviceScreens(size_t* count);
// The screen of that name (any case), or null.
const DeviceScreen* FindDeviceScreen(const std::wstring& name);

// A real screen shows a device screen in a window when it is larger than every device screen in
// both dimensions (wider and taller than 640 pixels): then every one of the six fits on it, and
// a real screen that is itself one of them keeps the editor filling it as on the device.
bool ShowsDeviceScreen(int screenWidth, int screenHeight);
// The screen a desktop starts with when the user has not chosen one: VGA portrait when the work
// area is at least 720 pixels tall (room for 640 and a caption), else QVGA portrait.
const DeviceScreen& DefaultDeviceScreen(int workAreaHeight);

// The value of "--screen=<name>" in a command line (the text up to the next blank), or empty.
std::wstring ScreenArgument(const std::wstring& commandLine);

} // namespace cv2
