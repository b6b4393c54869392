// The stand-in for the main window in page tests: a top-level window with the main window's
// client size that gives its pages their share of the host's messages and paints the header
// strip with the shown page's name.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/ini_document.h"
#include "ui/settings_page.h"

namespace cv2test {

class PageHost {
  public:
    // The window starts hidden when `visible` is false, as the main window does until its first
    // page is in place.
    explicit PageHost(bool visible = true);
    ~PageHost(); // every page's OnDestroy, then the window
    PageHost(const PageHost&) = delete;
    PageHost& operator=(const PageHost&) = delete;

    // Creates the page's controls on this window; `show` makes it the page the header names.
    void Add(cv2::SettingsPage& page, bool show = true);
    HWND Window() const { return m_hwnd; }

    // The visible child with this id (the pages share their button ids).
    HWND Control(int id) const;
    // Clicks a button the way a tap does.
    void Click(int id) const;
    // Selects a rule list row the way a tap does (selection change sent to the host).
    void SelectRow(int row) const;
    std::vector<std::wstring> ListTexts() const;
    std::vector<LPARAM> ListData() const;
    bool Enabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }

  protected:
    // The page the header names from now on.
    void SetShown(cv2::SettingsPage& page) { m_shown = &page; }

  private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
    void Paint();

    HWND m_hwnd = nullptr;
    std::vector<cv2::SettingsPage*> m_pages;
    cv2::SettingsPage* m_shown = nullptr;
};

// One page bound to a document before the window shows, as the main window makes its first page.
class PageHostWindow : public PageHost {
  public:
    PageHostWindow(cv2::SettingsPage& page, cv2::IniDocument& doc);

    HWND hwnd() const { return Window(); }
    // Makes the page current: shown and activated, and the window painted.
    void ShowPage();
    // Sends a control's notification the way the control itself does: to the host window.
    void SendCommand(HWND control, WORD code);

  private:
    cv2::SettingsPage& m_page;
};

// Shared fonts and screen densities for a whole suite.
class PageTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
};

// The check state of a row of a list view with check boxes, and setting it as a tap would.
bool RowChecked(HWND list, int row);
void SetRowChecked(HWND list, int row, bool on);

std::wstring WindowText(HWND control);
// The rows of a list box, top to bottom.
std::vector<std::wstring> ListBoxTexts(HWND list);

} // namespace cv2test
