// The Delays/Timers page on a real main window, driven through its number boxes.
#include "app_fixture.h"

#include "pages/behaviour/delays_page.h"

namespace cv2test {
namespace {

class DelaysPageTest : public AppFixture {
  protected:
    cv2::DelaysPage* MakePage(const std::string& config = "") {
        m_page = new cv2::DelaysPage;
        MakeApp({m_page}, config);
        return m_page;
    }
    std::wstring Box(int i) {
        wchar_t text[256] = {};
        GetWindowTextW(m_page->Edit(i), text, 256);
        return text;
    }
    void Type(int i, const wchar_t* text) { SetWindowTextW(m_page->Edit(i), text); }
    std::wstring Stored(const wchar_t* key) {
        return m_app->Config().GetString(L"General Settings", key, L"<missing>");
    }
    cv2::DelaysPage* m_page = nullptr;
};

TEST_F(DelaysPageTest, ConfigWithoutTheKeysShowsZeroTenFiveSixty) {
    MakePage();
    EXPECT_EQ(Box(0), L"0");
    EXPECT_EQ(Box(1), L"10");
    EXPECT_EQ(Box(2), L"5");
    EXPECT_EQ(Box(3), L"60");
}

TEST_F(DelaysPageTest, StoredValuesAreShown) {
    MakePage("[General Settings]\nStartup Delay=7\nPhone Refresh=30\nBoot Delay=2\nNotify Interval=120\n");
    EXPECT_EQ(Box(0), L"7");
    EXPECT_EQ(Box(1), L"30");
    EXPECT_EQ(Box(2), L"2");
    EXPECT_EQ(Box(3), L"120");
}

TEST_F(DelaysPageTest, RefreshRateOfZeroIsStoredAsTen) {
    MakePage();
    Type(1, L"0");
    m_app->Apply();
    EXPECT_EQ(Stored(L"Phone Refresh"), L"10");
}

TEST_F(DelaysPageTest, EmptyRefreshRateIsStoredAsTen) {
    MakePage();
    Type(1, L"");
    m_app->Apply();
    EXPECT_EQ(Stored(L"Phone Refresh"), L"10");
}

TEST_F(DelaysPageTest, RefreshRateOfOneIsStoredAsOne) {
    MakePage();
    Type(1, L"1");
    m_app->Apply();
    EXPECT_EQ(Stored(L"Phone Refresh"), L"1");
}

TEST_F(DelaysPageTest, EmptyBootDelayIsStoredEmpty) {
    MakePage();
    Type(2, L"");
    m_app->Apply();
    EXPECT_EQ(Stored(L"Boot Delay"), L"");
}

TEST_F(DelaysPageTest, OtherSettingsAreStoredAsTypedEvenZero) {
    MakePage();
    Type(0, L"0");
    Type(3, L"0");
    m_app->Apply();
    EXPECT_EQ(Stored(L"Startup Delay"), L"0");
    EXPECT_EQ(Stored(L"Notify Interval"), L"0");
}

TEST_F(DelaysPageTest, SaveWritesAllFourKeysInOrderIntoConfig) {
    MakePage("[Settings]\nTheme File=x\n");
    m_app->Apply();
    EXPECT_EQ(ConfigText(), "[Settings]\r\nTheme File=x\r\n\r\n"
                            "[General Settings]\r\nStartup Delay=0\r\nPhone Refresh=10\r\n"
                            "Boot Delay=5\r\nNotify Interval=60\r\n\r\n");
}

TEST_F(DelaysPageTest, BoxesTakeDigitsOnly) {
    MakePage();
    for (int i = 0; i < cv2::kDelaySettingCount; ++i)
        EXPECT_TRUE(GetWindowLongW(m_page->Edit(i), GWL_STYLE) & ES_NUMBER);
}

TEST_F(DelaysPageTest, ControlsAreHiddenWhileAnotherPageIsShown) {
    m_page = new cv2::DelaysPage;
    auto* other = new cv2::DelaysPage;
    MakeApp({other, m_page});
    EXPECT_FALSE(IsWindowVisible(m_page->Edit(0)));
    m_app->SelectPage(1);
    EXPECT_TRUE(IsWindowVisible(m_page->Edit(0)));
    EXPECT_FALSE(IsWindowVisible(other->Edit(0)));
}

} // namespace
} // namespace cv2test
