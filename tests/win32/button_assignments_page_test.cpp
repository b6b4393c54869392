// The Button Assignments page on a real host window, with the real sample plug-in loaded.
#include "pages/behaviour/button_assignments_page.h"

#include "check_pages_host.h"
#include "color_dialog_driver.h"
#include "file_browser_support.h"
#include "plugin_test_support.h"

using namespace cv2;
using namespace cv2test;

namespace {

using Page = ButtonAssignmentsPage;

class ButtonAssignmentsPageTest : public PageTest {
  protected:
    void LoadSample() {
        registry.Load({TextValue(L"Sample", CopyPlugin(dir, L"SamplePlugin.dll"))});
    }
    IniDocument Doc(const std::string& text) {
        IniDocument d;
        d.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
        return d;
    }
    // Picks a selector row the way a tap does.
    void Select(PageHostWindow& host, Page& page, int row) {
        SendMessageW(page.Window(Page::Selector), CB_SETCURSEL, row, 0);
        host.SendCommand(page.Window(Page::Selector), CBN_SELCHANGE);
    }
    static std::wstring Text(const Page& page, Page::Control c) {
        return WindowText(page.Window(c));
    }
    static bool Enabled(const Page& page, Page::Control c) {
        return IsWindowEnabled(page.Window(c)) != FALSE;
    }
    static bool Checked(const Page& page) {
        return SendMessageW(page.Window(Page::Visible), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }

    TempFolder dir;
    PluginRegistry registry;
    TopBarState state;
    IniDocument doc;
};

} // namespace

TEST_F(ButtonAssignmentsPageTest, EmptyActionsSectionShowsStartMenuDefaults) {
    Page page(registry, state);
    PageHostWindow host(page, doc);
    host.ShowPage();
    EXPECT_EQ(L"Start Menu", Text(page, Page::Selector));
    EXPECT_EQ(L"Cascading Start Menu", Text(page, Page::Tap));
    EXPECT_EQ(L"Tasks Panel", Text(page, Page::Hold));
    EXPECT_TRUE(Checked(page));
}

TEST_F(ButtonAssignmentsPageTest, EmptyActionsSectionShowsCustom1WithTwoEmptyCombos) {
    Page page(registry, state);
    PageHostWindow host(page, doc);
    Select(host, page, 8);
    EXPECT_EQ(L"Custom 1", Text(page, Page::Selector));
    EXPECT_EQ(L"", Text(page, Page::Tap));
    EXPECT_EQ(L"", Text(page, Page::Hold));
    EXPECT_EQ(CB_ERR, SendMessageW(page.Window(Page::Tap), CB_GETCURSEL, 0, 0));
}

TEST_F(ButtonAssignmentsPageTest, TypingTodayInAnyCaseStores11) {
    Page page(registry, state);
    PageHostWindow host(page, doc);
    SetWindowTextW(page.Window(Page::Tap), L"tOdAy");
    page.Save(nullptr);
    EXPECT_EQ(L"11", doc.GetString(L"Actions", L"Button 0 Action", L""));
}

TEST_F(ButtonAssignmentsPageTest, TypedProgramPathIsStoredVerbatim) {
    Page page(registry, state);
    PageHostWindow host(page, doc);
    Select(host, page, 6);
    SetWindowTextW(page.Window(Page::Hold), L"\\Program Files\\My Tool\\Tool.EXE");
    Select(host, page, 0);
    page.Save(nullptr);
    EXPECT_EQ(L"\\Program Files\\My Tool\\Tool.EXE",
              doc.GetString(L"Actions", L"Button 9 Hold", L""));
}

TEST_F(ButtonAssignmentsPageTest, BrowsedProgramIsStoredVerbatim) {
    RememberedValue remembered(L"Exes");
    dir.Write(L"My Tool.EXE", "MZ");
    remembered.Write(Bare(dir.Path()));
    Page page(registry, state);
    PageHostWindow host(page, doc);
    DialogDriver::OnNextDialog(
        [&](HWND browser) {
            SetDlgItemTextW(browser, IDC_BROWSE_NAME, dir.File(L"My Tool.EXE").c_str());
        },
        IDOK);
    host.SendCommand(page.Window(Page::TapBrowse), BN_CLICKED);
    EXPECT_EQ(dir.File(L"My Tool.EXE"), Text(page, Page::Tap));
    page.Save(nullptr);
    EXPECT_EQ(dir.File(L"My Tool.EXE"), doc.GetString(L"Actions", L"Button 0 Action", L""));
    EXPECT_EQ(L"Tasks Panel", Text(page, Page::Hold)); // the other combo is untouched
}

TEST_F(ButtonAssignmentsPageTest, AfterSavingButton7EqualsButton6AndButton15EqualsButton14) {
    doc = Doc("[Actions]\nButton 7 Action=3\nButton 15 Hold=4\n");
    Page page(registry, state);
    PageHostWindow host(page, doc);
    Select(host, page, 4);
    SetWindowTextW(page.Window(Page::Tap), L"Backlight");
    Select(host, page, 10);
    SetWindowTextW(page.Window(Page::Hold), L"\\Windows\\a.exe");
    page.Save(nullptr);
    EXPECT_EQ(L"13", doc.GetString(L"Actions", L"Button 7 Action", L""));
    EXPECT_EQ(doc.GetString(L"Actions", L"Button 6 Action", L"x"),
              doc.GetString(L"Actions", L"Button 7 Action", L"y"));
    EXPECT_EQ(L"\\Windows\\a.exe", doc.GetString(L"Actions", L"Button 15 Hold", L""));
    EXPECT_EQ(doc.GetString(L"Actions", L"Button 14 Hold", L"x"),
              doc.GetString(L"Actions", L"Button 15 Hold", L"y"));
}

TEST_F(ButtonAssignmentsPageTest, WithoutAPhoneTheSignalStrengthCheckBoxIsDisabled) {
    state.hasPhone = false;
    Page page(registry, state);
    PageHostWindow host(page, doc);
    Select(host, page, 11);
    EXPECT_EQ(L"Signal Strength", Text(page, Page::Selector));
    EXPECT_FALSE(Enabled(page, Page::Visible));
    EXPECT_TRUE(Enabled(page, Page::Tap));
    Select(host, page, 10);
    EXPECT_TRUE(Enabled(page, Page::Visible));
}

TEST_F(ButtonAssignmentsPageTest, WithAPhoneTheSignalStrengthCheckBoxWorks) {
    state.hasPhone = true;
    Page page(registry, state);
    PageHostWindow host(page, doc);
    Select(host, page, 11);
    EXPECT_TRUE(Enabled(page, Page::Visible));
    EXPECT_TRUE(Checked(page)); // "signal" leads the default order of a phone
}

TEST_F(ButtonAssignmentsPageTest, SelectingAPluginButtonEmptiesAndDisablesTheCombos) {
    LoadSample();
    Page page(registry, state);
    PageHostWindow host(page, doc);
    ASSERT_EQ(15, SendMessageW(page.Window(Page::Selector), CB_GETCOUNT, 0, 0));
    Select(host, page, 13);
    EXPECT_EQ(L"Sample Mail", Text(page, Page::Selector));
    EXPECT_EQ(L"", Text(page, Page::Tap));
    EXPECT_EQ(L"", Text(page, Page::Hold));
    for (Page::Control c : {Page::Tap, Page::TapBrowse, Page::Hold, Page::HoldBrowse})
        EXPECT_FALSE(Enabled(page, c)) << c;
    EXPECT_TRUE(Enabled(page, Page::Visible));
}

TEST_F(ButtonAssignmentsPageTest, PluginButtonsCheckBoxStillWorks) {
    LoadSample();
    Page page(registry, state);
    PageHostWindow host(page, doc);
    Select(host, page, 13);
    EXPECT_FALSE(Checked(page));
    host.SendCommand(page.Window(Page::Visible), BN_CLICKED);
    SendMessageW(page.Window(Page::Visible), BM_SETCHECK, BST_CHECKED, 0);
    Select(host, page, 0);
    ASSERT_EQ(15u, state.visible.size());
    EXPECT_TRUE(state.visible[13]);
    Select(host, page, 13);
    EXPECT_TRUE(Checked(page));
    // Its actions stay the plug-in's: nothing of it reaches the Actions section.
    page.Save(nullptr);
    EXPECT_EQ(28u, doc.GetSectionEntries(L"Actions").size());
}

TEST_F(ButtonAssignmentsPageTest, PluginButtonIsShownWhenItsKeyIsInTheOrder) {
    LoadSample();
    doc = Doc("[Topbar Settings]\nOrder=Clock,Torch,Close\n");
    Page page(registry, state);
    PageHostWindow host(page, doc);
    ASSERT_EQ(15u, state.visible.size());
    EXPECT_FALSE(state.visible[12]);
    EXPECT_TRUE(state.visible[14]);
    EXPECT_TRUE(state.visible[1]);
    EXPECT_FALSE(state.visible[4]);
}

TEST_F(ButtonAssignmentsPageTest, CombosHoldTheBuiltInActionsThenThePluginActions) {
    LoadSample();
    Page page(registry, state);
    PageHostWindow host(page, doc);
    for (Page::Control c : {Page::Tap, Page::Hold}) {
        HWND combo = page.Window(c);
        ASSERT_EQ(35, SendMessageW(combo, CB_GETCOUNT, 0, 0));
        wchar_t text[64] = {};
        SendMessageW(combo, CB_GETLBTEXT, 31, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(L"Toggle Screen On/Off", text);
        SendMessageW(combo, CB_GETLBTEXT, 32, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(L"Sample: Show Weather", text);
    }
}

TEST_F(ButtonAssignmentsPageTest, StoredPluginActionIsShownByNameAndSavedByValue) {
    LoadSample();
    doc = Doc("[Actions]\nButton 3 Action=SMP.MAIL\nButton 3 Hold=smp.torch\n");
    Page page(registry, state);
    PageHostWindow host(page, doc);
    Select(host, page, 1);
    EXPECT_EQ(L"Sample: Check Mail", Text(page, Page::Tap));
    EXPECT_EQ(33, SendMessageW(page.Window(Page::Tap), CB_GETCURSEL, 0, 0));
    EXPECT_EQ(L"Sample: Toggle Torch", Text(page, Page::Hold));
    Select(host, page, 0);
    page.Save(nullptr);
    EXPECT_EQ(L"smp.mail", doc.GetString(L"Actions", L"Button 3 Action", L""));
    EXPECT_EQ(L"smp.torch", doc.GetString(L"Actions", L"Button 3 Hold", L""));
}

TEST_F(ButtonAssignmentsPageTest, UnknownStoredValueIsShownAsText) {
    doc = Doc("[Actions]\nButton 0 Action=\\Windows\\calc.exe\nButton 0 Hold=99\n");
    Page page(registry, state);
    PageHostWindow host(page, doc);
    EXPECT_EQ(L"\\Windows\\calc.exe", Text(page, Page::Tap));
    EXPECT_EQ(L"99", Text(page, Page::Hold));
    page.Save(nullptr);
    EXPECT_EQ(L"\\Windows\\calc.exe", doc.GetString(L"Actions", L"Button 0 Action", L""));
    EXPECT_EQ(L"99", doc.GetString(L"Actions", L"Button 0 Hold", L""));
}

TEST_F(ButtonAssignmentsPageTest, LeavingThePageKeepsTheEdits) {
    Page page(registry, state);
    PageHostWindow host(page, doc);
    SetWindowTextW(page.Window(Page::Hold), L"Calendar");
    SendMessageW(page.Window(Page::Visible), BM_SETCHECK, BST_UNCHECKED, 0);
    page.OnDeactivate();
    EXPECT_EQ(L"14", page.Values().hold[0]);
    EXPECT_FALSE(state.visible[0]);
    page.Save(nullptr);
    EXPECT_FALSE(doc.GetBool(L"General Settings", L"Use Start Menu", true));
}

TEST_F(ButtonAssignmentsPageTest, CommandsOfOtherControlsAreDeclined) {
    Page page(registry, state);
    PageHostWindow host(page, doc);
    HWND other = CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 1, 1, host.hwnd(), nullptr,
                                 nullptr, nullptr);
    EXPECT_FALSE(page.OnCommand(MAKEWPARAM(641, BN_CLICKED), reinterpret_cast<LPARAM>(other)));
    EXPECT_TRUE(page.OnCommand(MAKEWPARAM(641, BN_CLICKED),
                               reinterpret_cast<LPARAM>(page.Window(Page::Visible))));
}
