#include "app/desktop_screen.h"

#include "platform/device_screen.h"
#include "platform/user_registry.h"

namespace cv2 {
namespace {

// Long enough for any screen's name; a longer value is no name of ours.
const size_t kNameBytes = 64 * sizeof(wchar_t);

const DeviceScreen* RememberedScreen() {
    std::wstring name;
    if (!ReadUserString(kBarRegistryKey, kDesktopScreenValue, kNameBytes, name))
        return nullptr;
    return FindDeviceScreen(name);
}

} // namespace

const DeviceScreen* ChooseDesktopScreen(const std::wstring& commandLine) {
    const DesktopFacts desktop = Desktop();
    if (!ShowsDeviceScreen(desktop.width, desktop.height))
        return nullptr;
    if (const DeviceScreen* named = FindDeviceScreen(ScreenArgument(commandLine)))
        return named;
    if (const DeviceScreen* remembered = RememberedScreen())
        return remembered;
    return &DefaultDeviceScreen(desktop.workArea.bottom - desktop.workArea.top);
}

void RememberDesktopScreen(const DeviceScreen& screen) {
    WriteUserString(kBarRegistryKey, kDesktopScreenValue, screen.name);
}

} // namespace cv2
