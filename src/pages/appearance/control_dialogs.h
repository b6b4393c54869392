// The two small dialogs of the pages with controls of their own, both tables of text fields:
// the application buttons' images and a custom notification.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace cv2 {

// `texts` holds the normal, pressed, disabled and focused pictures, then the left, right, top
// and bottom margins. On OK (true) they hold what the dialog holds; a margin box left empty
// reads as "".
bool EditAppButtonImages(std::vector<std::wstring>& texts, HWND parent);

// A custom notification's dialog: `texts` holds the title of the dialog the bar recognises, the
// normal picture and the pressed picture; on OK (true) they hold what the dialog holds.
bool EditNotification(std::vector<std::wstring>& texts, HWND parent);

} // namespace cv2
