#include "platform/device_screens.h"

#include <cwctype>

namespace cv2 {
namespace {

const DeviceScreen kScreens[] = {
    {L"qvga-portrait", 240, 320, 96},  {L"qvga-landscape", 320, 240, 96},
    {L"qvga-square", 240, 240, 96},    {L"vga-portrait", 480, 640, 192},
    {L"vga-landscape", 640, 480, 192}, {L"vga-square", 480, 480, 192},
};
constexpr size_t kScreenCount = sizeof kScreens / sizeof kScreens[0];
constexpr int kLargestSide = 640;
constexpr int kVgaWorkAreaHeight = 720;

bool SameName(const std::wstring& a, const wchar_t* b) {
    size_t i = 0;
    for (; i < a.size() && b[i]; ++i) {
        if (std::towlower(a[i]) != std::towlower(b[i]))
            return false;
    }
    return i == a.size() && !b[i];
}

} // namespace

const DeviceScreen* DeviceScreens(size_t* count) {
    if (count)
        *count = kScreenCount;
    return kScreens;
}

const DeviceScreen* FindDeviceScreen(const std::wstring& name) {
    for (const DeviceScreen& screen : kScreens) {
        if (SameName(name, screen.name))
            return &screen;
    }
    return nullptr;
}

bool ShowsDeviceScreen(int screenWidth, int screenHeight) {
    return screenWidth > kLargestSide && screenHeight > kLargestSide;
}

const DeviceScreen& DefaultDeviceScreen(int workAreaHeight) {
    return workAreaHeight >= kVgaWorkAreaHeight ? *FindDeviceScreen(L"vga-portrait")
                                                : *FindDeviceScreen(L"qvga-portrait");
}

std::wstring ScreenArgument(const std::wstring& commandLine) {
    static const wchar_t kSwitch[] = L"--screen=";
    const size_t at = commandLine.find(kSwitch);
    if (at == std::wstring::npos)
        return std::wstring();
    const size_t start = at + (sizeof kSwitch / sizeof kSwitch[0]) - 1;
    const size_t end = commandLine.find(L' ', start);
    return commandLine.substr(start, end == std::wstring::npos ? std::wstring::npos : end - start);
}

} // namespace cv2
