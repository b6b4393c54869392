#include "app/bar_notify.h"

#include <windows.h>

namespace cv2 {
namespace {
const WPARAM kResetCode = 242;
}

bool NotifyBar(BarWalk walk) {
    HWND taskbar = FindWindowW(L"HHTaskbar", nullptr);
    if (!taskbar)
        return false;
    HWND hwnd = walk == BarWalk::FromTaskbar ? taskbar : GetWindow(taskbar, GW_CHILD);
    for (; IsWindow(hwnd); hwnd = GetWindow(hwnd, GW_HWNDNEXT)) {
        wchar_t className[50] = {};
        GetClassNameW(hwnd, className, 50);
        if (lstrcmpiW(className, L"Corvane_FullBar") == 0) {
            SendMessageW(hwnd, RegisterWindowMessageW(L"CVResetConfig"), kResetCode, 0);
            return true;
        }
    }
    return false;
}

void NotifyBarFromTaskbar() { NotifyBar(BarWalk::FromTaskbar); }
void NotifyBarFromFirstChild() { NotifyBar(BarWalk::FromFirstChild); }

} // namespace cv2
