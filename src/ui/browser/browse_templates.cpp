#include "ui/browser/browse_templates.h"

#include "ids_ui.h"
#include "store/scale.h"

namespace cv2 {

int BrowserTemplateFor(int screenWidth, int screenHeight) {
    switch (ChooseLayout(screenWidth, screenHeight, true)) {
    case DialogLayout::Square:
        return IDD_FILE_BROWSER_SQUARE;
    case DialogLayout::Portrait:
        return IDD_FILE_BROWSER;
    case DialogLayout::Landscape:
        break;
    }
    return IDD_FILE_BROWSER_WIDE;
}

} // namespace cv2
