// "Start Menu Settings": fourteen options of the bar's cascading start menu, all booleans of
// section "Start Menu Settings".
#pragma once

#include "ids_behaviour.h"
#include "pages/behaviour/check_list_page.h"

namespace cv2 {

class StartMenuSettingsPage : public CheckListPage {
  public:
    StartMenuSettingsPage()
        : CheckListPage(IDS_START_MENU_SETTINGS, StartMenuRows(), nullptr, IDC_START_MENU_LIST) {}
};

} // namespace cv2
