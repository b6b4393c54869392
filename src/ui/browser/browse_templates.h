// Which of the file browser's three templates a screen gets.
#pragma once

namespace cv2 {

// The square template on a square screen (whatever way it is turned), the portrait template when
// the width is a portrait width, else the landscape one.
int BrowserTemplateFor(int screenWidth, int screenHeight);

} // namespace cv2
