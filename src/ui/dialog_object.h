// A dialog's own object: handed to DialogBoxParam as the creation parameter and kept in the
// dialog's user data, so its procedure finds it without a global "currently open" pointer.
#pragma once

#include <windows.h>

namespace cv2 {

// The object of `dialog`; null for the few messages that come before WM_INITDIALOG.
template <class T> T* DialogObject(HWND dialog, UINT msg, LPARAM lParam) {
    if (msg == WM_INITDIALOG)
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    return reinterpret_cast<T*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

} // namespace cv2
