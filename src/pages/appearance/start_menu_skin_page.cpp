#include "pages/appearance/start_menu_skin_page.h"

#include "pages/appearance/start_menu_dialog.h"

namespace cv2 {
namespace {

// Both rows and "Settings"; the start menu's pictures get no preview.
constexpr PanelView kView = {IDS_FIRST_LEVEL_ROW, IDS_SUBLEVEL_ROW, kPanelRows | kPanelSettings,
                             kPanelPreviews | kPanelList | kPanelCustomColors};

} // namespace

StartMenuSkinPage::StartMenuSkinPage()
    : PanelPage({IDS_START_MENU_SKIN, nullptr}, kStartMenuSkinSection, kView,
                {kRowFirstLevelPicture, kRowSublevelPicture}) {}

bool StartMenuSkinPage::OnCommand(WPARAM wParam, LPARAM) {
    if (!IsSettingsClick(wParam))
        return false;
    StartMenuLook look = LookOf(m_values);
    if (EditStartMenu(look, Owner()))
        SetLook(m_values, look);
    return true;
}

} // namespace cv2
