// Test support for the rule list pages and their dialogs: a host window standing in for the
// main window, and a driver that works the modal dialogs the pages open.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "check_pages_host.h" // WindowText
#include "dialog_driver.h"
#include "store/ini_document.h"
#include "ui/settings_page.h"

namespace cv2test {

// A top-level window the size of the editor's main window that forwards commands and sizes to
// its pages, as the main window does.
class PageHost {
  public:
    PageHost();
    ~PageHost();
    PageHost(const PageHost&) = delete;
    PageHost& operator=(const PageHost&) = delete;

    // Creates the page's controls on this window and shows them.
    void Add(cv2::SettingsPage& page, bool show = true);
    HWND Window() const { return m_hwnd; }

    // The visible child with this id (the pages share their button ids).
    HWND Control(int id) const;
    // Clicks a button the way a tap does.
    void Click(int id) const;
    // Selects a list row the way a tap does (selection change sent to the host).
    void SelectRow(int row) const;
    std::vector<std::wstring> ListTexts() const;
    std::vector<LPARAM> ListData() const;
    bool Enabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }

  private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
    HWND m_hwnd = nullptr;
    std::vector<cv2::SettingsPage*> m_pages;
};

// A document parsed from file text.
cv2::IniDocument DocOf(const std::string& text);
// The rows of a list box, top to bottom.
std::vector<std::wstring> ListBoxTexts(HWND list);

// Dialog steps.
std::wstring ItemText(HWND dialog, int id);
bool ItemVisible(HWND dialog, int id);
void SetItemText(HWND dialog, int id, const std::wstring& text);
void ClickItem(HWND dialog, int id);
// Posts the button's command, for buttons that open or close a dialog.
void PressItem(HWND dialog, int id);

// Expects the visible children of `parent` inside its client area and clear of each other.
void ExpectLaidOutApart(HWND parent);

} // namespace cv2test
