// The editor on a desktop larger than every device screen: a window whose client area is the
// chosen device screen, and every screen question answered as that device would.
#include "app_fixture.h"

#include <cstring>

#include "dialog_driver.h"
#include "app/screen_menu.h"
#include "ids_app.h"
#include "platform/device_screen.h"
#include "platform/shell.h"
#include "platform/user_registry.h"
#include "store/scale.h"
#include "store/screen.h"
#include "themes/theme_info_dialog.h"
#include "ui/page_host.h"

namespace cv2test {
namespace {

using cv2::DeviceScreen;

// A page that keeps the last area its host gave it: when it was made, then at each new size.
class SizePage : public cv2::SettingsPage {
  public:
    SizePage() : SettingsPage(L"Size") {}
    void Create(HWND) override { size = Area(); }
    void Show(bool) override {}
    void OnSize(const RECT&) override { size = Area(); }
    RECT size = {};
};

std::vector<const DeviceScreen*> AllScreens() {
    size_t count = 0;
    const DeviceScreen* screens = cv2::DeviceScreens(&count);
    std::vector<const DeviceScreen*> all;
    for (size_t i = 0; i < count; ++i)
        all.push_back(&screens[i]);
    return all;
}

RECT ClientOnScreen(HWND hwnd) {
    RECT r;
    GetClientRect(hwnd, &r);
    MapWindowPoints(hwnd, nullptr, reinterpret_cast<POINT*>(&r), 2);
    return r;
}

RECT WindowRect(HWND hwnd) {
    RECT r;
    GetWindowRect(hwnd, &r);
    return r;
}

::testing::AssertionResult SameRect(const RECT& a, const RECT& b) {
    if (EqualRect(&a, &b))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "{" << a.left << "," << a.top << "," << a.right << "," << a.bottom << "} vs {"
           << b.left << "," << b.top << "," << b.right << "," << b.bottom << "}";
}

class DeviceScreenOnDesktop : public AppFixture,
                              public ::testing::WithParamInterface<const DeviceScreen*> {
  protected:
    void SetUp() override {
        m_dpiX = cv2::g_dpiX;
        m_dpiY = cv2::g_dpiY;
        const cv2::DesktopFacts desktop = {1920, 1080, {0, 0, 1920, 1040}, 96};
        cv2::SetDesktopForTests(&desktop);
        ASSERT_TRUE(cv2::OpenDeviceScreen(Screen(), L"Device screen"));
    }
    void TearDown() override {
        AppFixture::TearDown();
        // The menu remembers a choice; later tests start without one.
        RegDeleteKeyValueW(HKEY_CURRENT_USER, cv2::kBarRegistryKey, L"Desktop Screen");
        cv2::CloseDeviceScreen();
        cv2::SetDesktopForTests(nullptr);
        cv2::g_dpiX = m_dpiX;
        cv2::g_dpiY = m_dpiY;
    }
    const DeviceScreen& Screen() const { return *GetParam(); }
    HWND Frame() const { return cv2::DeviceScreenWindow(); }
    RECT Client() const { return ClientOnScreen(Frame()); }
    SizePage& MakeHostedApp() {
        auto* page = new SizePage;
        MakeApp({page});
        cv2::HostInDeviceScreen(Main(), IDC_CANCEL_EDITS);
        return *page;
    }

    int m_dpiX = 0;
    int m_dpiY = 0;
};

TEST_P(DeviceScreenOnDesktop, ClientAreaIsTheDeviceScreen) {
    const RECT client = Client();
    EXPECT_EQ(client.right - client.left, Screen().width);
    EXPECT_EQ(client.bottom - client.top, Screen().height);
}

TEST_P(DeviceScreenOnDesktop, WindowIsCentredOnTheWorkArea) {
    const RECT frame = WindowRect(Frame());
    EXPECT_NEAR((frame.left + frame.right) / 2, 960, 1);
    EXPECT_NEAR((frame.top + frame.bottom) / 2, 520, 1);
}

TEST_P(DeviceScreenOnDesktop, WorkAreaIsTheClientArea) {
    EXPECT_TRUE(SameRect(cv2::ScreenWorkArea(), Client()));
}

TEST_P(DeviceScreenOnDesktop, ScreenSizeIsTheDevices) {
    EXPECT_EQ(cv2::ScreenWidth(), Screen().width);
    EXPECT_EQ(cv2::ScreenHeight(), Screen().height);
}

TEST_P(DeviceScreenOnDesktop, DensityIsTheDevices) {
    EXPECT_EQ(cv2::g_dpiX, Screen().dpi);
    EXPECT_EQ(cv2::g_dpiY, Screen().dpi);
    EXPECT_EQ(cv2::IsHighResolution(), Screen().dpi == 192);
    EXPECT_EQ(cv2::Scale(26), Screen().dpi == 192 ? 52 : 26);
}

TEST_P(DeviceScreenOnDesktop, PagesGetTheScreenAboveTheMenuBar) {
    SizePage& page = MakeHostedApp();
    const RECT expected = cv2::PageArea(Screen().width, Screen().height - cv2::Scale(26));
    EXPECT_TRUE(SameRect(page.size, expected));
}

TEST_P(DeviceScreenOnDesktop, MainWindowAndMenuBarFillTheClientArea) {
    MakeHostedApp();
    const RECT client = Client();
    const RECT bar = WindowRect(GetParent(cv2::SHFindMenuBar(Main())));
    EXPECT_TRUE(SameRect(WindowRect(Main()), {client.left, client.top, client.right, bar.top}));
    EXPECT_TRUE(
        SameRect(bar, {client.left, client.bottom - cv2::Scale(26), client.right, client.bottom}));
}

TEST_P(DeviceScreenOnDesktop, FullScreenDialogCoversTheClientArea) {
    MakeHostedApp();
    RECT dialog = {};
    DialogDriver::OnNextDialog([&](HWND dlg) { dialog = WindowRect(dlg); }, IDCANCEL);
    cv2::ThemeInfo info;
    delete cv2::AskThemeInfo(info, Main());
    EXPECT_TRUE(SameRect(dialog, Client()));
}

TEST_P(DeviceScreenOnDesktop, MovingTheWindowTakesItsContentAlong) {
    MakeHostedApp();
    const RECT before = WindowRect(Main());
    const RECT frame = WindowRect(Frame());
    SetWindowPos(Frame(), nullptr, frame.left - 37, frame.top + 21, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    RECT expected = before;
    OffsetRect(&expected, -37, 21);
    EXPECT_TRUE(SameRect(WindowRect(Main()), expected));
    EXPECT_TRUE(SameRect(cv2::ScreenWorkArea(), Client()));
}

TEST_P(DeviceScreenOnDesktop, ScreenMenuChecksTheShownScreen) {
    MakeHostedApp();
    HMENU screens = GetSubMenu(GetSubMenu(cv2::MenuOfMenuBar(m_app->MenuBar()), 0), 0);
    ASSERT_NE(screens, nullptr);
    ASSERT_EQ(GetMenuItemCount(screens), 6);
    for (UINT id = IDC_SCREEN_FIRST; id <= IDC_SCREEN_LAST; ++id) {
        const bool shown = cv2::ScreenOfCommand(id) == &Screen();
        EXPECT_EQ((GetMenuState(screens, id, MF_BYCOMMAND) & MF_CHECKED) != 0, shown) << id;
    }
}

TEST_P(DeviceScreenOnDesktop, ChoosingAnotherScreenLaysThePageOutForIt) {
    SizePage& page = MakeHostedApp();
    for (const char* name : {"qvga-square", "vga-square", "vga-landscape", "qvga-portrait"}) {
        const DeviceScreen& next =
            *cv2::FindDeviceScreen(std::wstring(name, name + std::strlen(name)));
        const UINT id = IDC_SCREEN_FIRST + static_cast<UINT>(&next - AllScreens()[0]);
        SendMessageW(Main(), WM_COMMAND, MAKEWPARAM(id, 0), 0);
        const RECT client = Client();
        EXPECT_EQ(client.right - client.left, next.width) << name;
        EXPECT_EQ(client.bottom - client.top, next.height) << name;
        EXPECT_EQ(cv2::g_dpiY, next.dpi) << name;
        EXPECT_TRUE(SameRect(page.size, cv2::PageArea(next.width, next.height - cv2::Scale(26))))
            << name;
        EXPECT_TRUE(SameRect(cv2::ScreenWorkArea(), client)) << name;
    }
}

TEST_P(DeviceScreenOnDesktop, ClosingTheWindowAsksToCancel) {
    MakeHostedApp();
    std::wstring caption;
    DialogDriver::OnNextDialog(
        [&caption](HWND box) {
            wchar_t text[256] = {};
            GetWindowTextW(box, text, 256);
            caption = text;
        },
        IDNO);
    SendMessageW(Frame(), WM_SYSCOMMAND, SC_CLOSE, 0);
    MSG msg;
    while (caption.empty() && PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    EXPECT_EQ(caption, L"Cancel Confirmation");
    EXPECT_TRUE(IsWindow(Main()));
}

INSTANTIATE_TEST_SUITE_P(EveryScreen, DeviceScreenOnDesktop, ::testing::ValuesIn(AllScreens()),
                         [](const ::testing::TestParamInfo<const DeviceScreen*>& info) {
                             std::string name;
                             for (const wchar_t* c = info.param->name; *c; ++c)
                                 name += *c == L'-' ? '_' : static_cast<char>(*c);
                             return name;
                         });

} // namespace
} // namespace cv2test
