#include "ui/file_browser.h"

#include <commctrl.h>

#include "platform/user_registry.h"
#include "store/screen.h"
#include "store/strings.h"
#include "ui/browser/browse_paths.h"
#include "ui/browser/browse_templates.h"
#include "ui/browser/browser_dialog.h"

namespace cv2 {

FileBrowser::FileBrowser(bool image, bool folder)
    : filter(Localized(IDS_ALL_FILES_FILTER)), imageMode(image), folderMode(folder) {}

FileBrowser::~FileBrowser() = default;

void FileBrowser::SetFilter(const wchar_t* newFilter, bool rememberFolder, const wchar_t* name) {
    filter = newFilter ? newFilter : L"";
    remember = rememberFolder;
    if (!remember)
        return;
    contextName = name ? name : filter;
    startFolder.clear();
    // A missing key or value leaves no start folder: the dialog then starts at "My Device".
    std::wstring folder;
    if (ReadUserString(kBrowseRegistryKey, contextName.c_str(), kBrowseValueBytes, folder))
        startFolder = folder;
}

bool FileBrowser::Run(HWND owner) {
    INITCOMMONCONTROLSEX icc = {sizeof icc, ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&icc);
    m_template = BrowserTemplateFor(ScreenWidth(), ScreenHeight());
    result.clear();
    if (RunBrowserDialog(owner, *this, m_template) != IDOK)
        return false;
    // Write failures leave the old folder remembered; nothing is reported.
    if (remember)
        WriteUserString(kBrowseRegistryKey, contextName.c_str(), RememberedFolderOf(result));
    return true;
}

} // namespace cv2
