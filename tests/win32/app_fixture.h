// A real SettingsApp in this process, on a scratch config.ini, with the pages a test gives it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/settings_app.h"
#include "temp_folder.h"

namespace cv2test {

class AppFixture : public ::testing::Test {
  protected:
    void TearDown() override {
        m_app.reset();
        // Closing the main window asks the message loop to end; no loop runs here, so the
        // request is taken away before it can end a later test's modal dialog.
        MSG msg;
        while (PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        }
    }

    // Creates the application object; config.ini gets `configText` first (none when empty).
    cv2::SettingsApp& MakeApp(const std::vector<cv2::SettingsPage*>& pages,
                              const std::string& configText = "") {
        if (!configText.empty())
            m_dir.Write(L"config.ini", configText);
        m_app = std::make_unique<cv2::SettingsApp>(GetModuleHandleW(nullptr),
                                                   m_dir.File(L"config.ini"), pages);
        return *m_app;
    }
    std::string ConfigText() const { return m_dir.Read(L"config.ini"); }
    HWND Main() const { return m_app->Window(); }

    TempFolder m_dir;
    std::unique_ptr<cv2::SettingsApp> m_app;
};

// Runs `action` from inside the next modal loop (menu or message box) of this thread: a thread
// timer fires there and calls it once.
void RunInsideModalLoop(void (*action)());

} // namespace cv2test
