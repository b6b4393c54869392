// The application object: owns config.ini, the main window with its menu bar, and the
// top-level settings pages with their page menu.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>
#include <vector>

#include "platform/device_screens.h"
#include "store/ini_document.h"
#include "ui/page_host.h"

namespace cv2 {

class SettingsApp {
  public:
    static constexpr wchar_t kWindowClass[] = L"CorvaneSettings";

    // Loads `configPath`, takes ownership of `pages` (in page-menu order), creates the main
    // window and its menu bar and selects the first page. If the window or the bar cannot be
    // made, a quit message is posted so the message loop ends at once.
    SettingsApp(HINSTANCE instance, const std::wstring& configPath,
                const std::vector<SettingsPage*>& pages);
    ~SettingsApp();
    SettingsApp(const SettingsApp&) = delete;
    SettingsApp& operator=(const SettingsApp&) = delete;

    HWND Window() const { return m_hwnd; }
    HWND MenuBar() const { return m_menuBar; }
    PageHost& Host() { return m_host; }
    IniDocument& Config() { return m_config; }

    void AddPage(SettingsPage* page) { m_host.AddPage(page); }
    void SelectPage(int index) { m_host.SelectPage(index); }
    bool TrackPageMenu(int x, int y) { return m_host.TrackPageMenu(x, y); }
    // Saves every page into the document, writes config.ini and tells the bar. When the file
    // cannot be written the user is told why, the bar is not told, and false is returned.
    bool Apply();
    // Asks whether to leave without saving; true for Yes.
    bool ConfirmCancel();

  private:
    static LRESULT CALLBACK WindowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
    LRESULT HandleMessage(UINT msg, WPARAM wParam, LPARAM lParam);
    void OnCreate(HWND hwnd);
    bool OnCommand(WPARAM wParam, LPARAM lParam);
    LRESULT OnCtlColorButton(WPARAM wParam, LPARAM lParam);
    void CreateMainWindow(HINSTANCE instance);
    void CreateMenuBar(HINSTANCE instance);
    void LoadMenuBarImages(HINSTANCE instance);
    void ShowScreen(const DeviceScreen& screen);

    HWND m_hwnd = nullptr;
    HWND m_menuBar = nullptr;
    PageHost m_host;
    IniDocument m_config;
    HIMAGELIST m_images = nullptr;
};

} // namespace cv2
