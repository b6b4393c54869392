// Screenshots of Button Assignments, Button Order and Plugins in the real main window on the
// device screen the run is set to, with the sample plug-in loaded, and a check that nothing is
// cut off or overlapping.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "pages/behaviour/button_assignments_page.h"
#include "pages/behaviour/button_order_page.h"
#include "pages/behaviour/plugins/plugins_page.h"
#include "plugin_test_support.h"
#include "rule_page_support.h"
#include "screen_capture.h"

using namespace cv2;
using namespace cv2test;

namespace {

class ButtonPagesScreens : public AppFixture {
  protected:
    void SetUp() override {
        const std::wstring sample = CopyPlugin(plugins, L"SamplePlugin.dll");
        registry.Load({TextValue(L"Sample Plugin", sample),
                       TextValue(L"Weather Station (turned off)",
                                 CopyPlugin(plugins, L"NoButtonsPlugin.dll") + L",0"),
                       TextValue(L"Old Plugin", plugins.File(L"missing.dll"))});
        // The pages the main window would hold, in its order; owned by the application.
        MakeApp({new ButtonAssignmentsPage(registry, state), new ButtonOrderPage(registry, state),
                 new PluginsPage(registry)},
                "[Actions]\nButton 0 Action=2\nButton 0 Hold=smp.mail\n"
                "[Topbar Settings]\nOrder=Notify,Weather,Clock,Volume,Close\n");
    }
    void TearDown() override {
        AppFixture::TearDown();
        registry.Release();
    }

    void Shoot(int page, const wchar_t* name) {
        m_app->SelectPage(page);
        UpdateWindow(Main());
        PumpMessages(100);
        ExpectLaidOutApart(Main());
        EXPECT_FALSE(SaveScreenshot(name).empty());
        EXPECT_TRUE(ScreenHasContent());
    }

    TempFolder plugins;
    PluginRegistry registry;
    TopBarState state;
};

} // namespace

TEST_F(ButtonPagesScreens, ButtonAssignments) {
    Shoot(0, L"button_assignments_page");
}

TEST_F(ButtonPagesScreens, ButtonAssignmentsPluginButton) {
    HWND selector = GetDlgItem(Main(), 640);
    ASSERT_TRUE(selector);
    SendMessageW(selector, CB_SETCURSEL, 12, 0);
    SendMessageW(Main(), WM_COMMAND, MAKEWPARAM(640, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(selector));
    Shoot(0, L"button_assignments_plugin_button");
}

TEST_F(ButtonPagesScreens, ButtonOrder) {
    m_app->SelectPage(1);
    SendMessageW(GetDlgItem(Main(), 1490), LB_SETCURSEL, 1, 0);
    Shoot(1, L"button_order_page");
}

TEST_F(ButtonPagesScreens, Plugins) {
    Shoot(2, L"plugins_page");
}
