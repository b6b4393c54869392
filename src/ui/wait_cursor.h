// The wait cursor for as long as the object lives; the previous cursor comes back after.
#pragma once

#include <windows.h>

namespace cv2 {

class WaitCursor {
  public:
    WaitCursor() : m_old(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { SetCursor(m_old); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

  private:
    HCURSOR m_old;
};

} // namespace cv2
