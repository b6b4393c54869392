#include "app_fixture.h"

#include "store/screen.h"
#include "ui/icon_grid.h"

namespace cv2test {
namespace {

// What the program's start does before it makes any window, the tests do too: read the
// screen's densities and register the thumbnail grid's class.
const struct ProgramStart {
    ProgramStart() {
        cv2::ReadScreenDensities();
        cv2::RegisterIconGridClass(GetModuleHandleW(nullptr));
    }
} g_programStart;

void (*g_action)() = nullptr;
UINT_PTR g_timer = 0;

void CALLBACK FireOnce(HWND, UINT, UINT_PTR, DWORD) {
    KillTimer(nullptr, g_timer);
    g_timer = 0;
    if (auto action = g_action) {
        g_action = nullptr;
        action();
    }
}
} // namespace

void RunInsideModalLoop(void (*action)()) {
    g_action = action;
    g_timer = SetTimer(nullptr, 0, 50, FireOnce);
}

} // namespace cv2test
