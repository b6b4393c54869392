#include "pages/behaviour/top_bar_state.h"

namespace cv2 {

TopBarState& SharedTopBar() {
    static TopBarState state;
    return state;
}

} // namespace cv2
