// The editor's own open-file dialog: a folder tree rooted at "My Device", a file list drawn by
// the thumbnail grid (pictures in image mode), a filter drop-down and a file-name box. It picks a
// file, or in folder mode a folder, and remembers per kind of file the last folder used.
//
// The dialog uses the thumbnail grid's window class, which the program registers at start-up
// (RegisterIconGridClass) before any browser runs.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace cv2 {

// Where the remembered folders are kept, under HKEY_CURRENT_USER: one text value per kind.
constexpr wchar_t kBrowseRegistryKey[] = L"Software\\Thornlea\\Corvane 2\\Browse";
// The remembered folder is read through a buffer of this many bytes.
constexpr size_t kBrowseValueBytes = 520;

class FileBrowser {
  public:
    FileBrowser(bool imageMode, bool folderMode);
    ~FileBrowser();
    FileBrowser(const FileBrowser&) = delete;
    FileBrowser& operator=(const FileBrowser&) = delete;

    // Replaces the filter ("label|patterns|label|patterns", patterns joined by ';'). With
    // `remember`, the folder is remembered under `contextName` (or, when that is null, under
    // the filter itself) and the remembered folder becomes the start folder.
    void SetFilter(const wchar_t* filter, bool remember, const wchar_t* contextName);
    // Runs the dialog with the template for the screen's shape; true when it ended with OK, and
    // `result` then holds the chosen path (or folder).
    bool Run(HWND owner);

    // The template the last Run opened (0 before any).
    int TemplateUsed() const { return m_template; }

    std::wstring filter;             // default: the "All Files" filter
    std::wstring startFolder;        // remembered folder, or empty
    std::wstring result;             // the chosen path after OK
    std::wstring contextName;        // registry value name of the remembered folder
    std::vector<std::wstring> files; // full paths of the files listed, sorted
    bool imageMode;
    bool folderMode;
    bool remember = false;

  private:
    int m_template = 0;
};

} // namespace cv2
