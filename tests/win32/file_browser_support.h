// Test support for the file browser: folders of generated files, the dialog's controls, and a
// remembered folder in the registry that a test may change and that is put back afterwards.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>
#include <vector>

#include "temp_folder.h"
#include "ui/file_browser.h"

namespace cv2test {

// Writes `count` small BMP pictures "<prefix>NNN.bmp" of a few shapes into `dir`.
void WritePictures(const TempFolder& dir, int count, const std::wstring& prefix = L"Picture ");
// Makes a sub-folder of `dir`, optionally below another ("a\\b").
void MakeFolder(const TempFolder& dir, const std::wstring& name);
// The folder without its trailing backslash, as the browser shows folder paths.
std::wstring Bare(const std::wstring& folder);

// The tree's selected item's text and the path the name box shows.
std::wstring SelectedTreeText(HWND dialog);
// The texts of the children of the tree's selected item (after expanding it).
std::vector<std::wstring> ChildTexts(HWND tree, HTREEITEM item);
HTREEITEM FindChildItem(HWND tree, HTREEITEM parent, const std::wstring& text);
// Sends the grid an arrow key as the keyboard does (down and up).
void GridKey(HWND dialog, WPARAM key);
// Number of pictures in the grid's image list.
int GridPictureCount(HWND dialog);
// Runs pending paints of this thread for a moment, so the grid asks for what it shows.
void LetItPaint(HWND dialog);

// A value under the remembered-folder key, put back as it was when the test ends.
class RememberedValue {
  public:
    explicit RememberedValue(std::wstring name);
    ~RememberedValue();
    RememberedValue(const RememberedValue&) = delete;
    RememberedValue& operator=(const RememberedValue&) = delete;

    // The stored folder; false when there is no such value.
    bool Read(std::wstring& folder) const;
    void Write(const std::wstring& folder) const;
    void Remove() const;

  private:
    std::wstring m_name;
    bool m_had = false;
    std::wstring m_old;
};

} // namespace cv2test
