// The real program on a desktop larger than every device screen: a movable window whose client
// area is the chosen device screen. ./test.sh runs these on a 1280x800 X screen; on a device
// screen they are skipped.
#include <windows.h>

#include <string>

#include "device_fixture.h"
#include "ids_app.h"
#include "ids_themes.h"
#include "layout_check.h"
#include "screen_capture.h"

namespace cv2test {
namespace {

const UINT kVgaSquare = IDC_SCREEN_FIRST + 5;
const UINT kQvgaSquare = IDC_SCREEN_FIRST + 2;

class DesktopE2E : public DeviceFixture {
  protected:
    static bool OnDesktop() {
        return GetSystemMetrics(SM_CXSCREEN) > 640 && GetSystemMetrics(SM_CYSCREEN) > 640;
    }
    void SetUp() override {
        if (!OnDesktop())
            GTEST_SKIP() << "the screen is a device screen";
        DeviceFixture::SetUp();
        ForgetChoice();
        // The custom theme is the current one, so Customize opens the theme editor.
        const std::wstring config = File(L"config.ini");
        WriteText(L"config.ini",
                  "[Settings]\r\nTheme File=" + std::string(config.begin(), config.end()) + "\r\n");
    }
    void TearDown() override {
        if (IsSkipped())
            return;
        DeviceFixture::TearDown();
        ForgetChoice();
    }
    static void ForgetChoice() {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, L"Software\\Thornlea\\Corvane 2", L"Desktop Screen");
    }
    // The window that shows the device screen: it owns the main window.
    HWND Frame() const { return GetWindow(m_main, GW_OWNER); }
    RECT Client() const {
        RECT r;
        GetClientRect(Frame(), &r);
        MapWindowPoints(Frame(), nullptr, reinterpret_cast<POINT*>(&r), 2);
        return r;
    }
    bool ClientIs(int width, int height) const {
        const RECT r = Client();
        return r.right - r.left == width && r.bottom - r.top == height;
    }
    // Whether `window` covers the device screen down to a menu bar `barHeight` pixels tall.
    ::testing::AssertionResult FillsScreenAboveBar(HWND window, int barHeight) const {
        RECT expected = Client(), r;
        expected.bottom -= barHeight;
        GetWindowRect(window, &r);
        if (EqualRect(&r, &expected))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure()
               << r.left << "," << r.top << "," << r.right << "," << r.bottom << " vs "
               << expected.left << "," << expected.top << "," << expected.right << ","
               << expected.bottom;
    }
    // Closes the device screen's window; the question it brings up, or null.
    HWND CloseDeviceWindow() const {
        PostMessageW(Frame(), WM_SYSCOMMAND, SC_CLOSE, 0);
        HWND box = nullptr;
        WaitFor([&] { return (box = FindWindowW(L"#32770", L"Cancel Confirmation")) != nullptr; });
        return box;
    }
    void ShowScreen(UINT command) {
        PostMessageW(m_main, WM_COMMAND, MAKEWPARAM(command, 0), 0);
        SendMessageW(m_main, WM_NULL, 0, 0);
    }
    HWND OpenThemeEditor() {
        HWND customize = nullptr;
        EXPECT_TRUE(WaitFor([&] {
            customize = ShownControl(IDC_THEMES_CUSTOMIZE);
            return customize && IsWindowEnabled(customize);
        }));
        PostMessageW(customize, BM_CLICK, 0, 0);
        HWND editor = nullptr;
        WaitFor([&] {
            editor = FindWindowW(L"#32770", nullptr);
            return editor && IsWindowVisible(editor);
        });
        return editor;
    }
};

TEST_F(DesktopE2E, DefaultScreenIsVgaPortrait) {
    ASSERT_TRUE(StartEditor());
    ASSERT_TRUE(Frame());
    EXPECT_TRUE(ClientIs(480, 640));
    wchar_t title[64] = {};
    GetWindowTextW(Frame(), title, 64);
    EXPECT_STREQ(title, L"Corvane 2 Settings");
    const LONG style = GetWindowLongW(Frame(), GWL_STYLE);
    EXPECT_TRUE((style & WS_CAPTION) == WS_CAPTION && (style & WS_MINIMIZEBOX) &&
                (style & WS_SYSMENU));
}

TEST_F(DesktopE2E, ScreenArgumentChoosesQvgaLandscape) {
    ASSERT_TRUE(StartEditor(L"--screen=qvga-landscape"));
    EXPECT_TRUE(ClientIs(320, 240));
    EXPECT_TRUE(FillsScreenAboveBar(m_main, 26));
}

TEST_F(DesktopE2E, ScreenMenuSwitchesToSquareAndLaysThePageOut) {
    ASSERT_TRUE(StartEditor());
    ShowScreen(kVgaSquare);
    EXPECT_TRUE(WaitFor([&] { return ClientIs(480, 480); }));
    EXPECT_TRUE(FillsScreenAboveBar(m_main, 52));
    ExpectLaidOutApart(m_main);
    EXPECT_TRUE(EditorRunning());
}

TEST_F(DesktopE2E, ChosenScreenHoldsAtTheNextStart) {
    ASSERT_TRUE(StartEditor());
    ShowScreen(kQvgaSquare);
    ASSERT_TRUE(WaitFor([&] { return ClientIs(240, 240); }));
    Cancel(true);
    ASSERT_TRUE(WaitEditorExit());
    ASSERT_TRUE(StartEditor());
    EXPECT_TRUE(ClientIs(240, 240));
}

TEST_F(DesktopE2E, ThemeEditorLiesInsideTheWindow) {
    ASSERT_TRUE(StartEditor());
    HWND editor = OpenThemeEditor();
    ASSERT_TRUE(editor) << "Customize opened no editor";
    EXPECT_TRUE(FillsScreenAboveBar(editor, 52));
    PostMessageW(editor, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(editor); }));
}

TEST_F(DesktopE2E, ClosingTheWindowAsksToCancel) {
    ASSERT_TRUE(StartEditor());
    HWND box = CloseDeviceWindow();
    ASSERT_TRUE(box) << "no cancel confirmation";
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDYES, BN_CLICKED), 0);
    EXPECT_TRUE(WaitEditorExit());
}

TEST_F(DesktopE2E, CancelQuestionIsCentredOnTheMovedScreen) {
    ASSERT_TRUE(StartEditor());
    SetWindowPos(Frame(), nullptr, 40, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_TRUE(WaitFor([&] { return Client().top < 100; }));
    HWND box = CloseDeviceWindow();
    ASSERT_TRUE(box) << "no cancel confirmation";
    const RECT screen = Client();
    RECT question;
    GetWindowRect(box, &question);
    EXPECT_NEAR((question.left + question.right) / 2, (screen.left + screen.right) / 2, 1);
    EXPECT_NEAR((question.top + question.bottom) / 2, (screen.top + screen.bottom) / 2, 1);
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDNO, BN_CLICKED), 0);
}

// The main window and the theme editor on the desktop at two screen choices, for people to
// look at (saved when CV2_SCREENS_DIR is set).
TEST_F(DesktopE2E, Screenshots) {
    for (const wchar_t* screen : {L"vga-portrait", L"qvga-landscape"}) {
        ASSERT_TRUE(StartEditor(std::wstring(L"--screen=") + screen));
        ASSERT_TRUE(WaitFor([] { return ScreenHasContent(); }));
        PumpMessages(300);
        SaveScreenshot(std::wstring(L"desktop-") + screen + L"-main");
        HWND editor = OpenThemeEditor();
        ASSERT_TRUE(editor);
        Sleep(300);
        SaveScreenshot(std::wstring(L"desktop-") + screen + L"-theme-editor");
        PostMessageW(editor, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(editor); }));
        HWND box = CloseDeviceWindow();
        ASSERT_TRUE(box);
        Sleep(300);
        SaveScreenshot(std::wstring(L"desktop-") + screen + L"-cancel");
        PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDYES, BN_CLICKED), 0);
        ASSERT_TRUE(WaitEditorExit());
    }
}

} // namespace
} // namespace cv2test
