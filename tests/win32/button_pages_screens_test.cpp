// Screenshots of Button Assignments, Button Order and Plugins on the device screen the run is
// set to, with the sample plug-in loaded, and a check that nothing is cut off or overlapping.
#include <gtest/gtest.h>

#include "check_pages_host.h"
#include "pages/behaviour/button_assignments_page.h"
#include "pages/behaviour/button_order_page.h"
#include "pages/behaviour/plugins/plugins_page.h"
#include "plugin_test_support.h"
#include "rule_page_support.h"
#include "screen_capture.h"

using namespace cv2;
using namespace cv2test;

namespace {

class ButtonPagesScreensTest : public PageTest {
  protected:
    void SetUp() override {
        const std::wstring sample = CopyPlugin(dir, L"SamplePlugin.dll");
        registry.Load({TextValue(L"Sample Plugin", sample),
                       TextValue(L"Weather Station (turned off)", sample + L",0"),
                       TextValue(L"Old Plugin", dir.File(L"missing.dll"))});
        const std::string text = "[Actions]\nButton 0 Action=2\nButton 0 Hold=smp.mail\n"
                                 "[Topbar Settings]\nOrder=Notify,Weather,Clock,Volume,Close\n";
        doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    }
    void TearDown() override { registry.Release(); }

    void Shoot(SettingsPage& page, const wchar_t* name) {
        PageHostWindow host(page, doc);
        host.ShowPage();
        ExpectLaidOutApart(host.hwnd());
        EXPECT_FALSE(SaveScreenshot(name).empty());
        EXPECT_TRUE(ScreenHasContent());
    }

    TempFolder dir;
    PluginRegistry registry;
    TopBarState state;
    IniDocument doc;
};

} // namespace

TEST_F(ButtonPagesScreensTest, ButtonAssignments) {
    ButtonAssignmentsPage page(registry, state);
    Shoot(page, L"button_assignments_page");
}

TEST_F(ButtonPagesScreensTest, ButtonOrder) {
    ButtonAssignmentsPage assignments(registry, state);
    assignments.Load(&doc); // the visibility flags
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    SendMessageW(page.List(), LB_SETCURSEL, 1, 0);
    ExpectLaidOutApart(host.hwnd());
    EXPECT_FALSE(SaveScreenshot(L"button_order_page").empty());
}

TEST_F(ButtonPagesScreensTest, Plugins) {
    PluginsPage page(registry);
    Shoot(page, L"plugins_page");
}
