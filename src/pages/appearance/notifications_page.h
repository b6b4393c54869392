// The Notifications page: the theme's custom notification buttons, each the title of a
// notification dialog the bar recognises with a normal and a pressed picture, added, changed
// and deleted through a small dialog.
#pragma once

#include "ui/settings_page.h"

namespace cv2 {

SettingsPage* NewNotificationsPage();

} // namespace cv2
