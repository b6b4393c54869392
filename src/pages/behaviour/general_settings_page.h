// "General Settings": nineteen switches of the bar, one of them the start-up shortcut and one
// a value in the user's registry.
#pragma once

#include "pages/behaviour/check_list_page.h"

namespace cv2 {

class GeneralSettingsPage : public CheckListPage {
  public:
    // Uses this device's Startup folder and registry.
    GeneralSettingsPage();
    // Uses the given stores instead (tests).
    explicit GeneralSettingsPage(std::unique_ptr<OutsideStores> outside);
};

} // namespace cv2
