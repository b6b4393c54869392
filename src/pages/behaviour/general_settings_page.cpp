#include "pages/behaviour/general_settings_page.h"

#include "ids_behaviour.h"
#include "pages/behaviour/general_outside_stores.h"

namespace cv2 {

GeneralSettingsPage::GeneralSettingsPage() : GeneralSettingsPage(MakeDeviceOutsideStores()) {}

GeneralSettingsPage::GeneralSettingsPage(std::unique_ptr<OutsideStores> outside)
    : CheckListPage(IDS_GENERAL_SETTINGS, GeneralSettingsRows(), std::move(outside),
                    IDC_GENERAL_LIST) {}

} // namespace cv2
