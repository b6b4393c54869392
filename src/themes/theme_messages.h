// The theme editor's private window messages, registered by name at start-up.
#pragma once

namespace cv2 {

// "UpdateCV2xTheme": the theme editor reloads every page from its document.
unsigned UpdateThemeMessage();
// "ExportCV2xTheme": the theme editor has every page write into the document in lParam.
unsigned ExportThemeMessage();

} // namespace cv2
