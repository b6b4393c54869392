#include "app_fixture.h"

#include "store/screen.h"

namespace cv2test {
namespace {

// The program reads the screen's densities before it makes any window; so do the tests.
const struct ReadDensities {
    ReadDensities() { cv2::ReadScreenDensities(); }
} g_densities;

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
