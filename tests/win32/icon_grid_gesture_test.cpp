// The desktop's tap-and-hold recogniser that the grid relies on.
#include <gtest/gtest.h>

#include "icon_grid_host.h"
#include "platform/shell.h"

using namespace cv2;
using namespace cv2test;

namespace {

DWORD Recognise(HWND hwnd, POINT down, DWORD flags = SHRG_RETURNCMD) {
    SHRGINFO info = {sizeof info, hwnd, down, flags};
    return SHRecognizeGesture(&info);
}

bool PenUpQueued(HWND hwnd) {
    MSG msg;
    return PeekMessageW(&msg, hwnd, WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE) != FALSE;
}

} // namespace

TEST(TapAndHold, StillPressIsAHold) {
    GridHost host;
    EXPECT_EQ(Recognise(host.grid, {20, 20}), GN_CONTEXTMENU);
    EXPECT_NE(GetCapture(), host.grid); // capture is given back
}

TEST(TapAndHold, QueuedPenUpIsATapAndStaysQueued) {
    GridHost host;
    PostMessageW(host.grid, WM_LBUTTONUP, 0, MAKELPARAM(20, 20));
    EXPECT_EQ(Recognise(host.grid, {20, 20}), 0u);
    EXPECT_TRUE(PenUpQueued(host.grid));
}

TEST(TapAndHold, MovingAwayIsNoHold) {
    GridHost host;
    PostMessageW(host.grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(20 + 40, 20));
    EXPECT_EQ(Recognise(host.grid, {20, 20}), 0u);
}

TEST(TapAndHold, TremblingWithinTheDragDistanceIsStillAHold) {
    GridHost host;
    PostMessageW(host.grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(21, 21));
    EXPECT_EQ(Recognise(host.grid, {20, 20}), GN_CONTEXTMENU);
}

TEST(TapAndHold, WithoutReturnCommandNothingIsReported) {
    GridHost host;
    EXPECT_EQ(Recognise(host.grid, {20, 20}, 0), 0u);
    EXPECT_EQ(Recognise(nullptr, {20, 20}), 0u);
}
