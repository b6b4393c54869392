// Button Assignments and Button Order in one main window, sharing the visibility flags: a button
// hidden on the first leaves the second's list and the saved order; one shown joins at the end.
#include <gtest/gtest.h>

#include "app_fixture.h"
#include "ids_behaviour.h"
#include "pages/behaviour/button_assignments_page.h"
#include "pages/behaviour/button_order_page.h"
#include "plugin_test_support.h"

using namespace cv2;
using namespace cv2test;

namespace {

class ButtonPagesTogether : public AppFixture {
  protected:
    void Open(const std::string& config) {
        assignments = new ButtonAssignmentsPage(registry, state);
        order = new ButtonOrderPage(registry, state);
        MakeApp({assignments, order}, config);
        m_app->SelectPage(0);
    }
    // Picks a button on the assignments page and sets its check box.
    void SetShown(int row, bool shown) {
        HWND selector = assignments->Window(ButtonAssignmentsPage::Selector);
        SendMessageW(selector, CB_SETCURSEL, row, 0);
        SendMessageW(Main(), WM_COMMAND, MAKEWPARAM(IDC_ASSIGN_BUTTON, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(selector));
        SendMessageW(assignments->Window(ButtonAssignmentsPage::Visible), BM_SETCHECK,
                     shown ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    std::vector<std::wstring> Listed() const {
        std::vector<std::wstring> texts;
        const int rows = static_cast<int>(SendMessageW(order->List(), LB_GETCOUNT, 0, 0));
        for (int i = 0; i < rows; ++i) {
            wchar_t text[128] = {};
            SendMessageW(order->List(), LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
            texts.push_back(text);
        }
        return texts;
    }

    PluginRegistry registry;
    TopBarState state;
    ButtonAssignmentsPage* assignments = nullptr; // owned by the application
    ButtonOrderPage* order = nullptr;
};

} // namespace

TEST_F(ButtonPagesTogether, ButtonHiddenOnAssignmentsLeavesTheOrderPage) {
    Open("[Topbar Settings]\nOrder=Clock,Volume,Close\n[General Settings]\n"
         "Show Notifications=FALSE\n");
    SetShown(4, false); // Volume
    m_app->SelectPage(1);
    EXPECT_EQ((std::vector<std::wstring>{L"Clock", L"Close"}), Listed());
    m_app->Apply();
    EXPECT_NE(std::string::npos, ConfigText().find("Order=clock,close\r\n")) << ConfigText();
}

TEST_F(ButtonPagesTogether, ButtonShownOnAssignmentsJoinsTheEndOfTheOrder) {
    Open("[Topbar Settings]\nOrder=Clock,Close\n[General Settings]\nShow Notifications=FALSE\n");
    SetShown(6, true); // Home
    m_app->SelectPage(1);
    EXPECT_EQ((std::vector<std::wstring>{L"Clock", L"Close", L"Home"}), Listed());
}

TEST_F(ButtonPagesTogether, ApplyWithoutVisitingTheOrderPageStillFollowsTheSwitches) {
    Open("[Topbar Settings]\nOrder=Clock,Volume,Close\n[General Settings]\n"
         "Show Notifications=FALSE\n");
    SetShown(1, false); // Clock
    m_app->Apply();
    EXPECT_NE(std::string::npos, ConfigText().find("Order=volume,close\r\n")) << ConfigText();
}
