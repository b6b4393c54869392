// Start Menu Settings on a real host window.
#include "pages/behaviour/start_menu_settings_page.h"

#include "store/scale.h"

#include "check_pages_host.h"
#include "screen_capture.h"

#include <commctrl.h>

using namespace cv2;
using namespace cv2test;

namespace {

const wchar_t kSection[] = L"Start Menu Settings";

class StartMenuSettingsPageTest : public PageTest {
  protected:
    IniDocument m_doc;
};

} // namespace

TEST_F(StartMenuSettingsPageTest, EmptySectionShowsRows0_1_2_5_7_12And13Checked) {
    StartMenuSettingsPage page;
    PageHostWindow host(page, m_doc);
    ASSERT_EQ(ListView_GetItemCount(page.List()), 14);
    std::vector<int> checked;
    for (int i = 0; i < 14; ++i) {
        if (RowChecked(page.List(), i))
            checked.push_back(i);
    }
    EXPECT_EQ(checked, (std::vector<int>{0, 1, 2, 5, 7, 12, 13}));
}

TEST_F(StartMenuSettingsPageTest, SavingWritesAllFourteenKeysAlsoThoseThatWereAbsent) {
    StartMenuSettingsPage page;
    PageHostWindow host(page, m_doc);
    page.Save(nullptr);
    const auto entries = m_doc.GetSectionEntries(kSection);
    ASSERT_EQ(entries.size(), 14u);
    EXPECT_STREQ(entries[0].first, L"Start Menu Icons");
    EXPECT_STREQ(entries[0].second, L"TRUE");
    EXPECT_STREQ(entries[13].first, L"Show Desktop");
    EXPECT_STREQ(entries[3].second, L"FALSE");
}

TEST_F(StartMenuSettingsPageTest, CheckedDontCacheBackgroundsIsStoredAsReleaseBackgroundsTRUE) {
    m_doc.SetString(kSection, L"Release Backgrounds", L"FALSE");
    StartMenuSettingsPage page;
    PageHostWindow host(page, m_doc);
    wchar_t text[128] = {};
    ListView_GetItemText(page.List(), 7, 0, text, 128);
    EXPECT_STREQ(text, L"Don't cache background images");
    EXPECT_FALSE(RowChecked(page.List(), 7));
    SetRowChecked(page.List(), 7, true);
    page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(kSection, L"Release Backgrounds", L""), L"TRUE");
}

TEST_F(StartMenuSettingsPageTest, SaveIntoAnotherDocumentLeavesTheBoundOneAlone) {
    StartMenuSettingsPage page;
    PageHostWindow host(page, m_doc);
    IniDocument other;
    page.Save(&other);
    EXPECT_EQ(other.GetSectionEntries(kSection).size(), 14u);
    EXPECT_FALSE(m_doc.HasSection(kSection));
}

TEST_F(StartMenuSettingsPageTest, ListFollowsTheHostSize) {
    StartMenuSettingsPage page;
    PageHostWindow host(page, m_doc);
    SetWindowPos(host.hwnd(), nullptr, 0, 0, 200, 150, SWP_NOMOVE | SWP_NOZORDER);
    RECT client;
    GetClientRect(host.hwnd(), &client);
    ASSERT_EQ(client.right, 200) << "the host has no frame";
    RECT list;
    GetWindowRect(page.List(), &list);
    EXPECT_EQ(list.right - list.left, 200);
    EXPECT_EQ(list.bottom - list.top, 150 - Scale(23));
}

class StartMenuSettingsPageScreens : public StartMenuSettingsPageTest {};

TEST_F(StartMenuSettingsPageScreens, DefaultOptions) {
    StartMenuSettingsPage page;
    PageHostWindow host(page, m_doc);
    host.ShowPage();
    EXPECT_FALSE(SaveScreenshot(L"start_menu_settings").empty());
    EXPECT_TRUE(ScreenHasContent());
}
