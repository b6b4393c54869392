// What the Button Assignments and Button Order pages share for the whole application: whether
// the device has a phone (decided once at start-up) and which top-bar buttons are shown (the
// twelve built-in ones, then one per plug-in button). Button Assignments reads the flags from
// config.ini; both pages change them; Button Order turns them into the "Order" value.
#pragma once

#include <vector>

namespace cv2 {

struct TopBarState {
    bool hasPhone = false;
    std::vector<bool> visible;
};

// The application's state.
TopBarState& SharedTopBar();

} // namespace cv2
