// The Button Order page on a real host window: the list it fills from the order and the
// visibility flags, moves with the up-down control, and the "Order" value it saves.
#include "pages/behaviour/button_order_page.h"

#include <commctrl.h>

#include <algorithm>

#include "check_pages_host.h"
#include "pages/behaviour/button_assignments_values.h"
#include "plugin_test_support.h"

using namespace cv2;
using namespace cv2test;

namespace {

class ButtonOrderPageTest : public PageTest {
  protected:
    void SetUp() override {
        // Every built-in button shown except Signal Strength, as on a device without a phone.
        state.visible.assign(12, true);
        state.visible[kSignalRow] = false;
    }
    IniDocument Doc(const std::string& text) {
        IniDocument d;
        d.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
        return d;
    }
    static std::vector<std::wstring> Listed(const ButtonOrderPage& page) {
        std::vector<std::wstring> texts;
        const int rows = static_cast<int>(SendMessageW(page.List(), LB_GETCOUNT, 0, 0));
        for (int i = 0; i < rows; ++i) {
            wchar_t text[128] = {};
            SendMessageW(page.List(), LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
            texts.push_back(text);
        }
        return texts;
    }
    // Presses an arrow of the up-down control: the notification it sends its parent.
    static void Press(PageHostWindow& host, const ButtonOrderPage& page, int delta) {
        NMUPDOWN nm = {};
        nm.hdr.hwndFrom = page.Mover();
        nm.hdr.idFrom = GetDlgCtrlID(page.Mover());
        nm.hdr.code = UDN_DELTAPOS;
        nm.iDelta = delta;
        SendMessageW(host.hwnd(), WM_NOTIFY, nm.hdr.idFrom, reinterpret_cast<LPARAM>(&nm));
    }
    static void SelectRow(const ButtonOrderPage& page, int row) {
        SendMessageW(page.List(), LB_SETCURSEL, row, 0);
    }
    static int Selected(const ButtonOrderPage& page) {
        return static_cast<int>(SendMessageW(page.List(), LB_GETCURSEL, 0, 0));
    }

    PluginRegistry registry;
    TopBarState state;
    IniDocument doc;
};

} // namespace

TEST_F(ButtonOrderPageTest, NoOrderKeyWithoutAPhoneListsTheDefaultsThenOtherVisibleButtons) {
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    EXPECT_EQ(
        (std::vector<std::wstring>{L"Notification", L"Connection", L"Volume", L"Clock", L"Menu",
                                   L"Battery/Memory", L"Close", L"Home", L"Custom 1", L"Custom 2"}),
        Listed(page));
}

TEST_F(ButtonOrderPageTest, NoOrderKeyWithAPhoneStartsWithSignalStrength) {
    state.hasPhone = true;
    state.visible[kSignalRow] = true;
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    EXPECT_EQ(L"Signal Strength", Listed(page).front());
}

TEST_F(ButtonOrderPageTest, UpArrowOnTheFirstEntryLeavesTheListUnchanged) {
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    const std::vector<std::wstring> before = Listed(page);
    SelectRow(page, 0);
    Press(host, page, -1);
    EXPECT_EQ(before, Listed(page));
    EXPECT_EQ(0, Selected(page));
}

TEST_F(ButtonOrderPageTest, DownArrowOnTheLastEntryDoesNothing) {
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    const std::vector<std::wstring> before = Listed(page);
    const int last = static_cast<int>(before.size()) - 1;
    SelectRow(page, last);
    Press(host, page, 1);
    EXPECT_EQ(before, Listed(page));
    EXPECT_EQ(last, Selected(page));
}

TEST_F(ButtonOrderPageTest, ArrowsMoveTheSelectedEntryAndKeepItSelected) {
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    SelectRow(page, 3); // Clock
    Press(host, page, -1);
    EXPECT_EQ(2, Selected(page));
    EXPECT_EQ(L"Clock", Listed(page)[2]);
    Press(host, page, 1);
    Press(host, page, 1);
    EXPECT_EQ(4, Selected(page));
    page.Save(nullptr);
    EXPECT_EQ(L"notify,connection,volume,menu,clock,battery,close,home,custom1,custom2",
              doc.GetString(L"Topbar Settings", L"Order", L""));
}

TEST_F(ButtonOrderPageTest, ArrowsWithoutASelectionDoNothing) {
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    const std::vector<std::wstring> before = Listed(page);
    Press(host, page, -1);
    EXPECT_EQ(before, Listed(page));
}

TEST_F(ButtonOrderPageTest, OrderWhoseOnlyEntryIsHiddenStoresAnEmptyValue) {
    doc = Doc("[Topbar Settings]\nOrder=Clock\n");
    state.visible.assign(12, false);
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    EXPECT_TRUE(Listed(page).empty());
    page.Save(nullptr);
    EXPECT_EQ(L"", doc.GetString(L"Topbar Settings", L"Order", L"<missing>"));
}

TEST_F(ButtonOrderPageTest, CloseRemovedFromTheOrderByHandNeverComesBack) {
    doc = Doc("[Topbar Settings]\nOrder=Notify,Clock\n");
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    page.Save(nullptr);
    const std::wstring saved = doc.GetString(L"Topbar Settings", L"Order", L"");
    EXPECT_EQ(std::wstring::npos, saved.find(L"close"));
    EXPECT_EQ(0u, saved.find(L"notify,clock,"));
}

TEST_F(ButtonOrderPageTest, WordsAfterASpaceAreNotTrimmedAndAreDropped) {
    doc = Doc("[Topbar Settings]\nOrder=Notify, Clock,Close\n");
    state.visible.assign(12, false);
    state.visible[3] = true; // Notification
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    EXPECT_EQ((std::vector<std::wstring>{L"Notification", L"Close"}), Listed(page));
}

TEST_F(ButtonOrderPageTest, SavedValuesUseTheKeyNamesInLowerCase) {
    state.visible.assign(12, false);
    for (int flag : {1, 3, 4, 5, 7, 10})
        state.visible[static_cast<size_t>(flag)] = true;
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    page.Save(nullptr);
    EXPECT_EQ(L"notify,connection,volume,clock,menu,battery,close",
              doc.GetString(L"Topbar Settings", L"Order", L""));
}

TEST_F(ButtonOrderPageTest, ActivatingRefillsFromTheVisibilityFlags) {
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    page.OnDeactivate();
    state.visible[4] = false; // Volume hidden
    state.visible[11] = true; // Signal Strength shown
    page.OnActivate();
    const std::vector<std::wstring> listed = Listed(page);
    EXPECT_EQ(listed.end(), std::find(listed.begin(), listed.end(), L"Volume"));
    EXPECT_EQ(L"Signal Strength", listed.back());
}

TEST_F(ButtonOrderPageTest, SaveOfAPageNeverShownFollowsTheFlags) {
    doc = Doc("[Topbar Settings]\nOrder=Volume,Clock,Close\n");
    state.visible.assign(12, false);
    state.visible[1] = true;
    state.visible[6] = true; // Home
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    page.Save(nullptr);
    EXPECT_EQ(L"clock,close,home", doc.GetString(L"Topbar Settings", L"Order", L""));
}

TEST_F(ButtonOrderPageTest, PluginButtonKeepsItsPlaceInTheOrder) {
    TempFolder dir;
    registry.Load({TextValue(L"Sample", CopyPlugin(dir, L"SamplePlugin.dll"))});
    doc = Doc("[Topbar Settings]\nOrder=Clock,Torch,Close\n");
    state.visible.assign(15, false);
    state.visible[1] = true;
    state.visible[14] = true;
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    EXPECT_EQ((std::vector<std::wstring>{L"Clock", L"Sample Torch", L"Close"}), Listed(page));
    page.Save(nullptr);
    EXPECT_EQ(L"clock,torch,close", doc.GetString(L"Topbar Settings", L"Order", L""));
    registry.Release();
}

TEST_F(ButtonOrderPageTest, UnnamedPluginButtonsNeverShow) {
    TempFolder dir;
    registry.Load({TextValue(L"Gaps", CopyPlugin(dir, L"GapsPlugin.dll"))});
    state.visible.assign(15, true);
    ButtonOrderPage page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    const std::vector<std::wstring> listed = Listed(page);
    EXPECT_EQ(listed.end(), std::find(listed.begin(), listed.end(), L""));
    EXPECT_EQ(L"Sample Torch", listed.back());
    registry.Release();
}
