// The About box of the real program.
#include "device_fixture.h"

#include "ids_app.h"
#include "screen_capture.h"
#include "version.h"

#include <cstdlib>
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
    void CopyLogo() {
        const char* samples = std::getenv("CV2_SAMPLES_DIR");
        std::string from = std::string(samples ? samples : ".") + "\\logo.png";
        ASSERT_TRUE(CopyFileW(std::wstring(from.begin(), from.end()).c_str(), File(L"logo.png").c_str(), FALSE));
    }
    static HANDLE Picture(HWND dialog) {
        return reinterpret_cast<HANDLE>(
            SendMessageW(GetDlgItem(dialog, IDC_ABOUT_LOGO), STM_GETIMAGE, IMAGE_BITMAP, 0));
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

TEST_F(AboutBoxE2E, WithoutLogoTheDialogStillOpensWithAnEmptyPicture) {
    ASSERT_TRUE(StartEditor());
    HWND box = OpenAbout();
    ASSERT_TRUE(box);
    EXPECT_EQ(Picture(box), nullptr);
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, 0), 0);
}

TEST_F(AboutBoxE2E, ShowsTheLogoFromTheProgramFolderAtItsOwnSize) {
    CopyLogo();
    ASSERT_TRUE(StartEditor());
    HWND box = OpenAbout();
    ASSERT_TRUE(box);
    EXPECT_NE(Picture(box), nullptr);
    RECT r;
    GetClientRect(GetDlgItem(box, IDC_ABOUT_LOGO), &r);
    EXPECT_EQ(r.right, 120); // the sample logo's size
    EXPECT_EQ(r.bottom, 48);
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, 0), 0);
}

class AboutBoxScreens : public AboutBoxE2E {};

TEST_F(AboutBoxScreens, AboutBox) {
    CopyLogo();
    ASSERT_TRUE(StartEditor());
    HWND box = OpenAbout();
    ASSERT_TRUE(box);
    EXPECT_NE(SaveScreenshot(L"about"), L"");
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, 0), 0);
}

} // namespace
} // namespace cv2test
