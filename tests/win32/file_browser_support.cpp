#include "file_browser_support.h"

#include <commctrl.h>

#include "bmp_file.h"
#include "ids_ui.h"
#include "screen_capture.h"
#include "ui/browser/folder_tree.h"
#include "ui/icon_grid.h"

namespace cv2test {

using cv2::TreeItemText;

void WritePictures(const TempFolder& dir, int count, const std::wstring& prefix) {
    const int shapes[][2] = {{96, 64}, {48, 48}, {64, 96}, {160, 100}, {24, 24}};
    for (int i = 0; i < count; ++i) {
        wchar_t number[16];
        swprintf(number, 16, L"%03d", i + 1);
        const int* shape = shapes[i % 5];
        dir.Write(prefix + number + L".bmp",
                  BmpFileBytes(shape[0], shape[1], static_cast<unsigned>(i)));
    }
}

void MakeFolder(const TempFolder& dir, const std::wstring& name) {
    CreateDirectoryW(dir.File(name).c_str(), nullptr);
}

std::wstring Bare(const std::wstring& folder) {
    if (!folder.empty() && folder.back() == L'\\')
        return folder.substr(0, folder.size() - 1);
    return folder;
}

std::wstring SelectedTreeText(HWND dialog) {
    HWND tree = GetDlgItem(dialog, IDC_BROWSE_TREE);
    return TreeItemText(tree, TreeView_GetSelection(tree));
}

std::vector<std::wstring> ChildTexts(HWND tree, HTREEITEM item) {
    std::vector<std::wstring> texts;
    for (HTREEITEM child = TreeView_GetChild(tree, item); child;
         child = TreeView_GetNextSibling(tree, child))
        texts.push_back(TreeItemText(tree, child));
    return texts;
}

HTREEITEM FindChildItem(HWND tree, HTREEITEM parent, const std::wstring& text) {
    for (HTREEITEM child = TreeView_GetChild(tree, parent); child;
         child = TreeView_GetNextSibling(tree, child)) {
        if (TreeItemText(tree, child) == text)
            return child;
    }
    return nullptr;
}

void GridKey(HWND dialog, WPARAM key) {
    HWND grid = GetDlgItem(dialog, IDC_BROWSE_FILES);
    SendMessageW(grid, WM_KEYDOWN, key, 0);
    SendMessageW(grid, WM_KEYUP, key, 0);
}

int GridPictureCount(HWND dialog) {
    HWND grid = GetDlgItem(dialog, IDC_BROWSE_FILES);
    HIMAGELIST images =
        reinterpret_cast<HIMAGELIST>(SendMessageW(grid, cv2::GRM_GETIMAGELIST, 0, 0));
    return images ? ImageList_GetImageCount(images) : -1;
}

void LetItPaint(HWND dialog) {
    UpdateWindow(dialog);
    RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    PumpMessages(100);
}

RememberedValue::RememberedValue(std::wstring name) : m_name(std::move(name)) {
    m_had = Read(m_old);
}

RememberedValue::~RememberedValue() {
    if (m_had)
        Write(m_old);
    else
        Remove();
}

bool RememberedValue::Read(std::wstring& folder) const {
    wchar_t data[1024] = {};
    DWORD size = sizeof data - sizeof(wchar_t);
    DWORD type = 0;
    if (RegGetValueW(HKEY_CURRENT_USER, cv2::kBrowseRegistryKey, m_name.c_str(), RRF_RT_REG_SZ,
                     &type, data, &size) != ERROR_SUCCESS)
        return false;
    folder = data;
    return true;
}

void RememberedValue::Write(const std::wstring& folder) const {
    RegSetKeyValueW(HKEY_CURRENT_USER, cv2::kBrowseRegistryKey, m_name.c_str(), REG_SZ,
                    folder.c_str(), static_cast<DWORD>((folder.size() + 1) * sizeof(wchar_t)));
}

void RememberedValue::Remove() const {
    RegDeleteKeyValueW(HKEY_CURRENT_USER, cv2::kBrowseRegistryKey, m_name.c_str());
}

} // namespace cv2test
