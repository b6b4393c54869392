#include "ui/backgrounds/graphics_browse.h"

#include "store/strings.h"
#include "ui/file_browser.h"

namespace cv2 {

bool BrowseGraphicsFile(HWND owner, std::wstring& path) {
    FileBrowser browser(true, false);
    browser.SetFilter(Localized(IDS_GRAPHICS_FILTER), true, L"graphics");
    if (!browser.Run(owner))
        return false;
    path = browser.result;
    return true;
}

} // namespace cv2
