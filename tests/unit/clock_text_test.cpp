// The clock's text: time and date pictures filled in with a moment.
#include "pages/behaviour/clock_text.h"

#include <gtest/gtest.h>

using namespace cv2;

namespace {

// Tuesday, 5 March 2024, 14:07:09.
ClockTime Afternoon() {
    ClockTime t;
    t.year = 2024;
    t.month = 3;
    t.day = 5;
    t.dayOfWeek = 2;
    t.hour = 14;
    t.minute = 7;
    t.second = 9;
    return t;
}

std::wstring Time(const wchar_t* picture, ClockTime t = Afternoon()) {
    return FormatTimePicture(picture, t, EnglishClockNames());
}

std::wstring Date(const wchar_t* picture) {
    return FormatDatePicture(picture, Afternoon(), EnglishClockNames());
}

} // namespace

TEST(ClockText, TwelveHourPictureWithoutLeadingZero) {
    ClockTime morning = Afternoon();
    morning.hour = 9;
    EXPECT_EQ(Time(L"h:mm", morning), L"9:07");
    EXPECT_EQ(Time(L"h:mm"), L"2:07");
}

TEST(ClockText, TwentyFourHourPictureWithLeadingZero) {
    ClockTime morning = Afternoon();
    morning.hour = 9;
    EXPECT_EQ(Time(L"HH:mm", morning), L"09:07");
    EXPECT_EQ(Time(L"H:mm"), L"14:07");
}

TEST(ClockText, MidnightAndNoonAreTwelveOnATwelveHourClock) {
    ClockTime t = Afternoon();
    t.hour = 0;
    EXPECT_EQ(Time(L"hh tt", t), L"12 AM");
    t.hour = 12;
    EXPECT_EQ(Time(L"h t", t), L"12 P");
}

TEST(ClockText, SecondsAndMarks) {
    EXPECT_EQ(Time(L"h:mm:ss tt"), L"2:07:09 PM");
}

TEST(ClockText, QuotedTextStandsAsItIs) {
    EXPECT_EQ(Time(L"'at' H'h'mm"), L"at 14h07");
    EXPECT_EQ(Time(L"H''mm"), L"14'07");
    EXPECT_EQ(Time(L"'it''s' H"), L"it's 14");
}

TEST(ClockText, AnUnclosedQuoteRunsToTheEnd) {
    EXPECT_EQ(Time(L"H 'mm"), L"14 mm");
}

TEST(ClockText, DateLettersArePlainTextInATimePicture) {
    EXPECT_EQ(Time(L"d H"), L"d 14");
}

TEST(ClockText, DatePictureNumbersAndNames) {
    EXPECT_EQ(Date(L"M/d/yyyy"), L"3/5/2024");
    EXPECT_EQ(Date(L"dd.MM.yy"), L"05.03.24");
    EXPECT_EQ(Date(L"ddd, MMM d"), L"Tue, Mar 5");
    EXPECT_EQ(Date(L"dddd d MMMM y"), L"Tuesday 5 March 24");
}

TEST(ClockText, TimeLettersArePlainTextInADatePicture) {
    EXPECT_EQ(Date(L"d h"), L"5 h");
}

TEST(ClockText, OutOfRangeMomentGivesEmptyNamesNotACrash) {
    ClockTime t = Afternoon();
    t.month = 13;
    t.dayOfWeek = -1;
    EXPECT_EQ(FormatDatePicture(L"dddd MMMM", t, EnglishClockNames()), L" ");
}

TEST(ClockText, StandardClockShowsTimeThenDate) {
    ClockValues v;
    v.timeFormat = L"H:mm";
    v.dateFormat = L"d/M";
    v.showDate = true;
    EXPECT_EQ(ClockShownText(v, Afternoon(), EnglishClockNames()), L"14:07 5/3");
    v.showTime = false;
    EXPECT_EQ(ClockShownText(v, Afternoon(), EnglishClockNames()), L"5/3");
    v.showDate = false;
    EXPECT_EQ(ClockShownText(v, Afternoon(), EnglishClockNames()), L"");
}

TEST(ClockText, SmallClockShowsTheTimeWhateverTheSwitchesSay) {
    ClockValues v;
    v.normalClock = false;
    v.showTime = false;
    v.showDate = true;
    v.timeFormat = L"H:mm";
    EXPECT_EQ(ClockShownText(v, Afternoon(), EnglishClockNames()), L"14:07");
}
