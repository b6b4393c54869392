// The Start Menu Skin page: the start menu's two pictures through the image panel (without
// previews), everything else through the start menu dialog.
#pragma once

#include "pages/appearance/panel_page.h"

namespace cv2 {

class StartMenuSkinPage : public PanelPage {
  public:
    StartMenuSkinPage();
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
};

} // namespace cv2
