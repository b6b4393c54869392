// Working the colour picker from a dialog that opens it, and a plain host window to own the
// dialogs under test. Shared by the colour and font picker tests.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "dialog_driver.h"
#include "ids_ui.h"
#include "screen_capture.h"
#include "store/screen.h"
#include "ui/pickers/color_value.h"
#include "ui/shared_fonts.h"

namespace cv2test {

// Clicks a colour button of `dlg` and, in the colour picker that opens, sets red, green and blue
// through the number boxes before ending it with `endWith`; `shownColor` receives the colour the
// picker opened with.
inline void PickColourThrough(HWND dlg, int button, cv2::ColorRef color, int endWith,
                              cv2::ColorRef* shownColor = nullptr) {
    DialogDriver::OnNextDialog(
        [=](HWND picker) {
            if (shownColor) {
                *shownColor = cv2::MakeColor(
                    static_cast<int>(GetDlgItemInt(picker, IDC_COLOR_RED_EDIT, nullptr, FALSE)),
                    static_cast<int>(GetDlgItemInt(picker, IDC_COLOR_GREEN_EDIT, nullptr, FALSE)),
                    static_cast<int>(GetDlgItemInt(picker, IDC_COLOR_BLUE_EDIT, nullptr, FALSE)));
            }
            SetDlgItemInt(picker, IDC_COLOR_RED_EDIT, static_cast<UINT>(cv2::RedOf(color)), FALSE);
            SetDlgItemInt(picker, IDC_COLOR_GREEN_EDIT, static_cast<UINT>(cv2::GreenOf(color)),
                          FALSE);
            SetDlgItemInt(picker, IDC_COLOR_BLUE_EDIT, static_cast<UINT>(cv2::BlueOf(color)),
                          FALSE);
        },
        endWith);
    DialogDriver::Click(dlg, button);
}

// A visible top-level window that owns the dialogs under test, with the shared fonts made as the
// main window makes them.
class PickerHostTest : public ::testing::Test {
  protected:
    void SetUp() override {
        // A main window destroyed by an earlier test leaves its quit request in this thread's
        // queue; a modal loop would take it and end at once.
        MSG quit;
        while (PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        }
        cv2::ReadScreenDensities();
        cv2::CreateSharedFonts();
        WNDCLASSW wc = {};
        wc.lpfnWndProc = DefWindowProcW;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
        wc.lpszClassName = L"PickerTestHost";
        RegisterClassW(&wc);
        host = CreateWindowExW(0, L"PickerTestHost", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0,
                               0, cv2::ScreenWidth(), cv2::ScreenHeight(), nullptr, nullptr,
                               wc.hInstance, nullptr);
        ASSERT_NE(host, nullptr);
    }
    void TearDown() override {
        DestroyWindow(host);
        cv2::DestroySharedFonts();
    }

    // Runs `open`, which opens a modal dialog, saves the screen as `name` while the dialog
    // shows, and cancels it.
    void ShootDialog(const wchar_t* name, const std::function<void()>& open) {
        std::wstring shot;
        bool content = false;
        DialogDriver::OnNextDialog(
            [&](HWND dlg) {
                ShowWindow(dlg, SW_SHOW);
                UpdateWindow(dlg);
                shot = SaveScreenshot(name);
                content = ScreenHasContent();
            },
            IDCANCEL);
        open();
        EXPECT_TRUE(content);
        if (!ScreenName().empty()) {
            EXPECT_FALSE(shot.empty());
        }
    }

    HWND host = nullptr;
};

} // namespace cv2test
