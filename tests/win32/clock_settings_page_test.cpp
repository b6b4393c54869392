// Clock Settings on a real host window.
#include "pages/behaviour/clock_locale.h"
#include "pages/behaviour/clock_settings_page.h"

#include "check_pages_host.h"
#include "screen_capture.h"
#include "ui/text_extent.h"

using namespace cv2;
using namespace cv2test;

namespace {

const wchar_t kSection[] = L"General Settings";

LocaleTimeFacts TwelveHourLocale() {
    LocaleTimeFacts f;
    f.shortDate = L"M/d/yy";
    return f;
}

LocaleTimeFacts TwentyFourHourLocale() {
    LocaleTimeFacts f;
    f.twentyFourHour = true;
    f.hourLeadingZero = true;
    f.shortDate = L"dd.MM.yyyy";
    return f;
}

using Page = ClockSettingsPage;

class ClockSettingsPageTest : public PageTest {
  protected:
    IniDocument m_doc;
};

bool Visible(HWND control) {
    return (GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}
bool Checked(HWND box) {
    return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void Choose(PageHostWindow& host, HWND combo, int row) {
    SendMessageW(combo, CB_SETCURSEL, row, 0);
    host.SendCommand(combo, CBN_SELCHANGE);
}

} // namespace

TEST_F(ClockSettingsPageTest, TwelveHourLocaleWithoutLeadingZeroShows_h_mm) {
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    EXPECT_EQ(WindowText(page.Window(Page::Time)), L"h:mm");
    EXPECT_EQ(WindowText(page.Window(Page::Date)), L"M/d/yy");
}

TEST_F(ClockSettingsPageTest, TwentyFourHourLocaleWithLeadingZeroShows_HH_mm) {
    Page page(TwentyFourHourLocale);
    PageHostWindow host(page, m_doc);
    EXPECT_EQ(WindowText(page.Window(Page::Time)), L"HH:mm");
    EXPECT_EQ(WindowText(page.Window(Page::Date)), L"dd.MM.yyyy");
}

TEST_F(ClockSettingsPageTest, EmptySectionSelectsTheStandardClockWithTimeWithoutDate) {
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    EXPECT_EQ(SendMessageW(page.Window(Page::Style), CB_GETCURSEL, 0, 0), 0);
    EXPECT_TRUE(Checked(page.Window(Page::ShowTime)));
    EXPECT_FALSE(Checked(page.Window(Page::ShowDate)));
}

TEST_F(ClockSettingsPageTest, QuotedStoredValueShowsWithoutQuotesAndIsWrittenBackUnchanged) {
    m_doc.SetString(kSection, L"Time Format", L"\"HH:mm\"");
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    EXPECT_EQ(WindowText(page.Window(Page::Time)), L"HH:mm");
    page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(kSection, L"Time Format", L""), L"\"HH:mm\"");
}

TEST_F(ClockSettingsPageTest, UnquotedStoredValueShowsAsItIsAndIsWrittenBackInQuotes) {
    m_doc.SetString(kSection, L"Time Format", L"HH:mm");
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    EXPECT_EQ(WindowText(page.Window(Page::Time)), L"HH:mm");
    page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(kSection, L"Time Format", L""), L"\"HH:mm\"");
}

TEST_F(ClockSettingsPageTest, TypedPicturesAreStoredInQuotesWithoutValidation) {
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    SetWindowTextW(page.Window(Page::Date), L"any text");
    page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(kSection, L"Date Format", L""), L"\"any text\"");
}

TEST_F(ClockSettingsPageTest, ChoosingTheSmallClockHidesShowTimeAndShowDateButStillSavesThem) {
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    host.ShowPage();
    ASSERT_TRUE(Visible(page.Window(Page::ShowTime)));
    SendMessageW(page.Window(Page::ShowTime), BM_SETCHECK, BST_UNCHECKED, 0);
    SendMessageW(page.Window(Page::ShowDate), BM_SETCHECK, BST_CHECKED, 0);
    Choose(host, page.Window(Page::Style), 1);
    EXPECT_FALSE(Visible(page.Window(Page::ShowTime)));
    EXPECT_FALSE(Visible(page.Window(Page::ShowDate)));
    page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(kSection, L"Normal Clock", L""), L"FALSE");
    EXPECT_EQ(m_doc.GetString(kSection, L"Show Time", L""), L"FALSE");
    EXPECT_EQ(m_doc.GetString(kSection, L"Show Date", L""), L"TRUE");
}

TEST_F(ClockSettingsPageTest, ChoosingTheStandardClockAgainShowsTheCheckBoxes) {
    m_doc.SetString(kSection, L"Normal Clock", L"FALSE");
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    host.ShowPage();
    EXPECT_FALSE(Visible(page.Window(Page::ShowDate)));
    Choose(host, page.Window(Page::Style), 0);
    EXPECT_TRUE(Visible(page.Window(Page::ShowTime)));
    EXPECT_TRUE(Visible(page.Window(Page::ShowDate)));
}

TEST_F(ClockSettingsPageTest, LoadingWhileAnotherPageIsCurrentShowsNoControl) {
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    for (int i = 0; i < Page::Count; ++i)
        EXPECT_FALSE(Visible(page.Window(static_cast<Page::Control>(i)))) << i;
}

TEST_F(ClockSettingsPageTest, ShowingThePageKeepsTheSmallClocksCheckBoxesHidden) {
    m_doc.SetString(kSection, L"Normal Clock", L"no");
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    page.Show(true);
    EXPECT_TRUE(Visible(page.Window(Page::Style)));
    EXPECT_TRUE(Visible(page.Window(Page::Note)));
    EXPECT_FALSE(Visible(page.Window(Page::ShowTime)));
    page.Show(false);
    EXPECT_FALSE(Visible(page.Window(Page::Style)));
}

TEST_F(ClockSettingsPageTest, OtherCommandsAreNotTheirs) {
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    EXPECT_FALSE(page.OnCommand(MAKEWPARAM(1020, CBN_SELCHANGE), 0));
    EXPECT_FALSE(page.OnCommand(MAKEWPARAM(1020, CBN_DROPDOWN),
                                reinterpret_cast<LPARAM>(page.Window(Page::Style))));
}

TEST_F(ClockSettingsPageTest, OnDestroyRemovesTheEightControls) {
    Page page(TwelveHourLocale);
    PageHostWindow host(page, m_doc);
    HWND combo = page.Window(Page::Style);
    page.OnDestroy();
    EXPECT_FALSE(IsWindow(combo));
    EXPECT_EQ(GetWindow(host.hwnd(), GW_CHILD), nullptr);
}

TEST(ClockLocale, ShortDateIsTheUserLocalesPicture) {
    wchar_t expected[256] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, expected, 256);
    EXPECT_EQ(UserLocaleTimeFacts().shortDate, expected);
}

TEST(ClockLocale, HourFlagsAreTheUserLocalesFlags) {
    wchar_t time[8] = {}, zero[8] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ITIME, time, 8);
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ITLZERO, zero, 8);
    const LocaleTimeFacts facts = UserLocaleTimeFacts();
    EXPECT_EQ(facts.twentyFourHour, time[0] == L'1');
    EXPECT_EQ(facts.hourLeadingZero, zero[0] != L'0');
}

class ClockSettingsPageScreens : public ClockSettingsPageTest {};

TEST_F(ClockSettingsPageScreens, StandardClock) {
    Page page;
    PageHostWindow host(page, m_doc);
    host.ShowPage();
    EXPECT_FALSE(SaveScreenshot(L"clock_settings").empty());
    EXPECT_TRUE(ScreenHasContent());
    // Each label stands on one line beside its box.
    for (int label : {Page::TimeLabel, Page::DateLabel}) {
        RECT room = {};
        GetClientRect(page.Window(static_cast<Page::Control>(label)), &room);
        EXPECT_LE(WindowTextWidth(page.Window(static_cast<Page::Control>(label))), room.right)
            << "label " << label << " is cut off";
    }
}

TEST_F(ClockSettingsPageScreens, SmallClock) {
    m_doc.SetString(kSection, L"Normal Clock", L"FALSE");
    Page page;
    PageHostWindow host(page, m_doc);
    host.ShowPage();
    EXPECT_FALSE(SaveScreenshot(L"clock_settings_small").empty());
}
