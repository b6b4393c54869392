// A stand-in for the main window in page tests: a top-level window with the main window's client
// size, a header strip with the page's name, and the page's share of the host's messages.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "store/ini_document.h"
#include "ui/settings_page.h"

namespace cv2test {

class PageHostWindow {
  public:
    // Creates the window and the page's controls, then binds the page to `doc`.
    PageHostWindow(cv2::SettingsPage& page, cv2::IniDocument& doc);
    ~PageHostWindow();

    HWND hwnd() const { return m_hwnd; }
    // Makes the page current: shown and activated, and the window painted.
    void ShowPage();
    // Sends a control's notification the way the control itself does: to the host window.
    void SendCommand(HWND control, WORD code);

  private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
    void Paint();

    cv2::SettingsPage& m_page;
    HWND m_hwnd = nullptr;
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

} // namespace cv2test
