// The About box of the real program.
#include "device_fixture.h"

#include "ids_app.h"
#include "screen_capture.h"
#include "version.h"

#include <cstring>

namespace cv2test {
namespace {

class AboutBoxE2E : public DeviceFixture {
  protected:
    HWND OpenAbout() {
        PostMessageW(m_main, WM_COMMAND, MAKEWPARAM(IDC_ABOUT, 0), 0);
        HWND box = nullptr;
        // Visible only once its initialisation has run.
        WaitFor([&] { return (box = FindWindowW(L"#32770", L"About")) && IsWindowVisible(box); });
        return box;
    }
    static std::wstring Text(HWND dialog, int id) {
        wchar_t text[256] = {};
        SendMessageW(GetDlgItem(dialog, id), WM_GETTEXT, 256, reinterpret_cast<LPARAM>(text));
        return text;
    }
};

std::wstring Wide(const char* s) { return std::wstring(s, s + strlen(s)); }

TEST_F(AboutBoxE2E, ShowsTheVersionLineAndLegalNoticeFromTheVersionResource) {
    ASSERT_TRUE(StartEditor());
    HWND box = OpenAbout();
    ASSERT_TRUE(box) << "the About box did not open";
    EXPECT_EQ(Text(box, IDC_ABOUT_VERSION),
              L"Version " + Wide(CV2_VERSION_TEXT) + L" " + Wide(CV2_SPECIAL_BUILD));
    EXPECT_EQ(Text(box, IDC_ABOUT_LEGAL), Wide(CV2_COPYRIGHT));
    EXPECT_EQ(Text(box, IDC_ABOUT_HOME_LABEL), L"Home Page:");
    EXPECT_EQ(Text(box, IDC_ABOUT_SUPPORT_LABEL), L"Support:");
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, 0), 0);
    EXPECT_TRUE(WaitFor([&] { return !IsWindow(box); }));
    EXPECT_TRUE(EditorRunning());
}

class AboutBoxScreens : public AboutBoxE2E {};

TEST_F(AboutBoxScreens, AboutBox) {
    ASSERT_TRUE(StartEditor());
    HWND box = OpenAbout();
    ASSERT_TRUE(box);
    EXPECT_NE(SaveScreenshot(L"about"), L"");
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, 0), 0);
}

} // namespace
} // namespace cv2test
