// The interactive editor: start, Apply, Cancel, Done, single instance, page menu.
#include "device_fixture.h"

#include <algorithm>

#include "screen_capture.h"

namespace cv2test {
namespace {

class MainWindowE2E : public DeviceFixture {
  protected:
    std::wstring EditText(HWND edit) {
        wchar_t text[256] = {};
        SendMessageW(edit, WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
        return text;
    }
    void Type(HWND edit, const wchar_t* text) {
        SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }
    void SetUp() override {
        DeviceFixture::SetUp();
        WriteText(L"config.ini", "[General Settings]\r\nStartup Delay=3\r\n");
    }
};

// The Delays/Timers page's number boxes, wherever the page stands in the menu: the only
// digits-only edit boxes of the main window.
HWND FindDelayBox(HWND main, int nth) {
    int seen = 0;
    for (HWND w = FindWindowExW(main, nullptr, L"Edit", nullptr); w;
         w = FindWindowExW(main, w, L"Edit", nullptr)) {
        if ((GetWindowLongW(w, GWL_STYLE) & ES_NUMBER) && seen++ == nth)
            return w;
    }
    return nullptr;
}

TEST_F(MainWindowE2E, ApplyWritesThePagesAndTellsTheBarInsideTheTaskbar) {
    StartBar();
    ASSERT_TRUE(StartEditor());
    HWND refresh = FindDelayBox(m_main, 1);
    ASSERT_TRUE(refresh);
    Type(refresh, L"0");
    Apply();
    // Other pages write their keys too; these lines keep their order among them.
    const std::string text = ReadText(L"config.ini");
    size_t at = 0;
    for (const char* line :
         {"[General Settings]\r\n", "Startup Delay=3\r\n", "Phone Refresh=10\r\n",
          "Boot Delay=5\r\n", "Notify Interval=60\r\n"}) {
        at = text.find(line, at);
        ASSERT_NE(at, std::string::npos) << line << " in\n" << text;
    }
    // Apply's walk starts at the first child of "HHTaskbar".
    EXPECT_EQ(BarLog(), "child CVResetConfig 242 0\n");
    EXPECT_TRUE(EditorRunning()) << "Apply must not close the editor";
}

TEST_F(MainWindowE2E, CancelAnsweredNoKeepsEditorAndEdits) {
    ASSERT_TRUE(StartEditor());
    HWND boot = FindDelayBox(m_main, 2);
    Type(boot, L"77");
    Cancel(false);
    EXPECT_TRUE(EditorRunning());
    EXPECT_EQ(EditText(boot), L"77");
    EXPECT_EQ(ReadText(L"config.ini"), "[General Settings]\r\nStartup Delay=3\r\n");
}

TEST_F(MainWindowE2E, EscapeAnsweredNoKeepsEditorAndEdits) {
    ASSERT_TRUE(StartEditor());
    HWND boot = FindDelayBox(m_main, 2);
    Type(boot, L"78");
    Cancel(false, true);
    EXPECT_TRUE(EditorRunning());
    EXPECT_EQ(EditText(boot), L"78");
}

TEST_F(MainWindowE2E, CancelAnsweredYesClosesWithoutWriting) {
    StartBar();
    ASSERT_TRUE(StartEditor());
    Type(FindDelayBox(m_main, 2), L"79");
    Cancel(true);
    EXPECT_TRUE(WaitEditorExit());
    EXPECT_EQ(ReadText(L"config.ini"), "[General Settings]\r\nStartup Delay=3\r\n");
    EXPECT_EQ(BarLog(), "");
}

TEST_F(MainWindowE2E, EscapeAnsweredYesClosesWithoutWriting) {
    ASSERT_TRUE(StartEditor());
    Cancel(true, true);
    EXPECT_TRUE(WaitEditorExit());
    EXPECT_EQ(ReadText(L"config.ini"), "[General Settings]\r\nStartup Delay=3\r\n");
}

TEST_F(MainWindowE2E, DoneSavesAndCloses) {
    StartBar();
    ASSERT_TRUE(StartEditor());
    Type(FindDelayBox(m_main, 3), L"90");
    PostMessageW(m_main, WM_COMMAND, MAKEWPARAM(IDOK, 0), 0);
    EXPECT_TRUE(WaitEditorExit());
    EXPECT_NE(ReadText(L"config.ini").find("Notify Interval=90\r\n"), std::string::npos);
    EXPECT_EQ(BarLog(), "child CVResetConfig 242 0\n");
}

TEST_F(MainWindowE2E, SecondStartRaisesTheFirstAndShowsNoSecondWindow) {
    ASSERT_TRUE(StartEditor());
    EXPECT_EQ(RunEditor(L""), 0u);
    EXPECT_EQ(CountWindows(L"CorvaneSettings"), 1);
    EXPECT_TRUE(EditorRunning());
    EXPECT_EQ(GetForegroundWindow(), m_main);
}

TEST_F(MainWindowE2E, TapOnRightHalfOfHeaderOpensPageMenuAndPicksAPage) {
    ASSERT_TRUE(StartEditor());
    ASSERT_TRUE(TapHeader()) << "the page menu did not open";
    PostMessageW(OpenMenu(), WM_KEYDOWN, VK_ESCAPE, 0);
    ASSERT_TRUE(WaitFor([] { return OpenMenu() == nullptr; }));

    const std::vector<std::wstring> pages = MainPageNames();
    const auto delays = std::find(pages.begin(), pages.end(), L"Delays/Timers");
    ASSERT_NE(delays, pages.end());
    ASSERT_NE(delays, pages.begin()) << "the test needs another page to be shown first";
    HWND box = FindDelayBox(m_main, 0);
    ASSERT_TRUE(box);
    EXPECT_FALSE(IsWindowVisible(box)) << "the first page is shown at start";
    SelectPage(static_cast<int>(delays - pages.begin()));
    EXPECT_TRUE(WaitFor([&] { return IsWindowVisible(box) != FALSE; }));
}

TEST_F(MainWindowE2E, TapOnLeftHalfOfHeaderOpensNothing) {
    ASSERT_TRUE(StartEditor());
    PostMessageW(m_main, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    SendMessageW(m_main, WM_NULL, 0, 0);
    Sleep(300);
    EXPECT_FALSE(OpenMenu());
}

// Runs once per device screen: geometry, then a picture of every page.
class MainWindowScreens : public DeviceFixture {};

TEST_F(MainWindowScreens, WindowFillsTheWorkAreaAboveTheMenuBar) {
    ASSERT_TRUE(StartEditor());
    wchar_t title[64] = {};
    GetWindowTextW(m_main, title, 64);
    EXPECT_STREQ(title, L"Corvane 2 Settings");
    RECT wa, window;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &wa, 0);
    GetWindowRect(m_main, &window);
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    const int barHeight = (26 * dpi + 48) / 96;
    EXPECT_EQ(window.left, wa.left);
    EXPECT_EQ(window.top, wa.top);
    EXPECT_EQ(window.right, wa.right);
    EXPECT_EQ(window.bottom, wa.bottom - barHeight);
}

TEST_F(MainWindowScreens, EveryPage) {
    ASSERT_TRUE(StartEditor());
    ASSERT_TRUE(WaitFor([] { return ScreenHasContent(); }));
    const std::vector<std::wstring> pages = MainPageNames();
    ASSERT_FALSE(pages.empty());
    for (size_t i = 0; i < pages.size(); ++i) {
        SelectPage(static_cast<int>(i));
        if (HasFatalFailure())
            return;
        EXPECT_NE(SaveScreenshot(ScreenshotName(L"main", static_cast<int>(i), pages[i])), L"");
    }
}

} // namespace
} // namespace cv2test
