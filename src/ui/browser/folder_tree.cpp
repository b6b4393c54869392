#include "ui/browser/folder_tree.h"

#include <shellapi.h>

#include <vector>

#include "platform/device_root.h"
#include "store/ini_document.h"
#include "store/strings.h"
#include "ui/browser/browse_paths.h"
#include "ui/browser/folder_listing.h"

namespace cv2 {

int ShellIconIndex(const std::wstring& path) {
    SHFILEINFOW info = {};
    if (!SHGetFileInfoW(path.c_str(), 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_SMALLICON))
        return 0;
    return info.iIcon;
}

void FolderTree::Attach(HWND tree, HIMAGELIST icons) {
    m_tree = tree;
    m_root = nullptr;
    if (icons)
        TreeView_SetImageList(tree, icons, TVSIL_NORMAL);
}

HTREEITEM FolderTree::Insert(HTREEITEM parent, const std::wstring& text, int icon) {
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = const_cast<wchar_t*>(text.c_str());
    insert.item.iImage = icon;
    insert.item.iSelectedImage = icon;
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(m_tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

HTREEITEM FolderTree::AddRoot() {
    m_root = Insert(TVI_ROOT, Localized(IDS_MY_DEVICE), ShellIconIndex(MyDeviceIconPath()));
    Insert(m_root, L"", 0);
    Expand(m_root);
    TreeView_SelectItem(m_tree, m_root);
    return m_root;
}

void FolderTree::DeleteChildren(HTREEITEM item) {
    while (HTREEITEM child = TreeView_GetChild(m_tree, item))
        TreeView_DeleteItem(m_tree, child);
}

void FolderTree::FillChildren(HTREEITEM item) {
    DeleteChildren(item);
    if (item == m_root && MyDeviceFiles().empty()) {
        // The drives: opening one to look for sub-folders could wait on a slow or empty drive,
        // so each can be expanded and shows what it holds when it is.
        for (const std::wstring& drive : MyDeviceFolders()) {
            HTREEITEM child = Insert(item, drive, ShellIconIndex(drive + L"\\"));
            Insert(child, L"", 0);
        }
        return;
    }
    const std::wstring folder = PathOf(item);
    for (const std::wstring& name : ListSubFolders(folder)) {
        const std::wstring path = InFolder(folder, name);
        HTREEITEM child = Insert(item, name, ShellIconIndex(path));
        if (HasSubFolder(path))
            Insert(child, L"", 0);
    }
}

void FolderTree::Expand(HTREEITEM item) {
    FillChildren(item);
    m_expanding = true;
    TreeView_Expand(m_tree, item, TVE_EXPAND);
    m_expanding = false;
}

void FolderTree::OnExpanding(const NMTREEVIEWW& info) {
    if (!m_expanding && (info.action & TVE_EXPAND))
        FillChildren(info.itemNew.hItem);
}

std::wstring TreeItemText(HWND tree, HTREEITEM item) {
    wchar_t text[MAX_PATH] = {};
    TVITEMW tv = {};
    tv.mask = TVIF_TEXT;
    tv.hItem = item;
    tv.pszText = text;
    tv.cchTextMax = MAX_PATH;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&tv));
    return text;
}

std::wstring FolderTree::ItemText(HTREEITEM item) const {
    return TreeItemText(m_tree, item);
}

std::wstring FolderTree::PathOf(HTREEITEM item) const {
    if (!item || item == m_root)
        return MyDeviceFiles();
    std::vector<std::wstring> names;
    for (HTREEITEM at = item; at && at != m_root; at = TreeView_GetParent(m_tree, at))
        names.insert(names.begin(), ItemText(at));
    return JoinFolderPath(names);
}

HTREEITEM FolderTree::FindChild(HTREEITEM parent, const std::wstring& name) const {
    for (HTREEITEM child = TreeView_GetChild(m_tree, parent); child;
         child = TreeView_GetNextSibling(m_tree, child)) {
        if (EqualsNoCase(ItemText(child).c_str(), name.c_str()))
            return child;
    }
    return nullptr;
}

HTREEITEM FolderTree::SelectFolder(const std::wstring& folder) {
    HTREEITEM deepest = m_root;
    for (const std::wstring& name : SplitFolderPath(folder)) {
        HTREEITEM child = FindChild(deepest, name);
        if (!child)
            break;
        Expand(child);
        deepest = child;
    }
    TreeView_SelectItem(m_tree, deepest);
    TreeView_EnsureVisible(m_tree, deepest);
    return deepest;
}

} // namespace cv2
