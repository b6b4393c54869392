// The file browser's folder tree: "My Device" at the top, each folder's sub-folders listed when
// it is expanded, and the path of any item built from the names above it.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>

namespace cv2 {

class FolderTree {
  public:
    // Takes over the tree control; `icons` is the shell's small system icon list.
    void Attach(HWND tree, HIMAGELIST icons);
    HWND Window() const { return m_tree; }

    // Inserts "My Device" with the device root's icon and an empty child so that it can expand,
    // expands it and selects it. Returns the item.
    HTREEITEM AddRoot();
    HTREEITEM Root() const { return m_root; }

    // Expands the item from the program: its children are listed anew.
    void Expand(HTREEITEM item);
    // TVN_ITEMEXPANDING: lists the item's sub-folders anew when it opens.
    void OnExpanding(const NMTREEVIEWW& info);

    // Walks the names of `folder` down from "My Device", expanding each matching child (names
    // compared without regard to case), selects the deepest match and returns it (the root when
    // nothing matched).
    HTREEITEM SelectFolder(const std::wstring& folder);

    // The folder an item stands for. "My Device" stands for the device root's files, which is
    // no folder on the desktop (empty text).
    std::wstring PathOf(HTREEITEM item) const;
    std::wstring ItemText(HTREEITEM item) const;
    HTREEITEM Selected() const { return TreeView_GetSelection(m_tree); }

  private:
    // Replaces the item's children by one per sub-folder of its folder.
    void FillChildren(HTREEITEM item);
    HTREEITEM Insert(HTREEITEM parent, const std::wstring& text, int icon);
    HTREEITEM FindChild(HTREEITEM parent, const std::wstring& name) const;
    void DeleteChildren(HTREEITEM item);

    HWND m_tree = nullptr;
    HTREEITEM m_root = nullptr;
    bool m_expanding = false; // the program expands an item and has listed it already
};

// The text of a tree item (up to MAX_PATH - 1 characters).
std::wstring TreeItemText(HWND tree, HTREEITEM item);

// The shell icon index of a file or folder in the small system icon list; 0 when unknown.
int ShellIconIndex(const std::wstring& path);

} // namespace cv2
