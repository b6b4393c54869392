// The values of Clock Settings: locale defaults and quoted pictures.
#include "pages/behaviour/clock_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace cv2;

namespace {
const wchar_t kSection[] = L"General Settings";

LocaleTimeFacts Locale(bool h24, bool zero, const wchar_t* date = L"M/d/yyyy") {
    LocaleTimeFacts f;
    f.twentyFourHour = h24;
    f.hourLeadingZero = zero;
    f.shortDate = date;
    return f;
}
} // namespace

TEST(ClockSettings, TwelveHourLocaleWithoutLeadingZeroDefaultsTo_h_mm) {
    IniDocument doc;
    EXPECT_EQ(ReadClockValues(doc, Locale(false, false)).timeFormat, L"h:mm");
}

TEST(ClockSettings, TwentyFourHourLocaleWithLeadingZeroDefaultsTo_HH_mm) {
    IniDocument doc;
    EXPECT_EQ(ReadClockValues(doc, Locale(true, true)).timeFormat, L"HH:mm");
}

TEST(ClockSettings, HourPartFollowsBothLocaleFlags) {
    EXPECT_EQ(DefaultTimePicture(true, false), L"H:mm");
    EXPECT_EQ(DefaultTimePicture(false, true), L"hh:mm");
}

TEST(ClockSettings, DateDefaultsToTheLocaleShortDatePicture) {
    IniDocument doc;
    EXPECT_EQ(ReadClockValues(doc, Locale(false, false, L"dd.MM.yy")).dateFormat, L"dd.MM.yy");
}

TEST(ClockSettings, EmptySectionGivesStandardClockWithTimeAndWithoutDate) {
    IniDocument doc;
    const ClockValues v = ReadClockValues(doc, Locale(false, false));
    EXPECT_TRUE(v.normalClock);
    EXPECT_TRUE(v.showTime);
    EXPECT_FALSE(v.showDate);
}

TEST(ClockSettings, QuotedStoredPictureShowsWithoutQuotesAndIsWrittenBackUnchanged) {
    IniDocument doc;
    doc.SetString(kSection, L"Time Format", L"\"HH:mm\"");
    const ClockValues v = ReadClockValues(doc, Locale(false, false));
    EXPECT_EQ(v.timeFormat, L"HH:mm");
    WriteClockValues(doc, v);
    EXPECT_EQ(doc.GetString(kSection, L"Time Format", L""), L"\"HH:mm\"");
}

TEST(ClockSettings, UnquotedStoredPictureShowsAsItIsAndIsWrittenBackInQuotes) {
    IniDocument doc;
    doc.SetString(kSection, L"Date Format", L"HH:mm");
    const ClockValues v = ReadClockValues(doc, Locale(false, false));
    EXPECT_EQ(v.dateFormat, L"HH:mm");
    WriteClockValues(doc, v);
    EXPECT_EQ(doc.GetString(kSection, L"Date Format", L""), L"\"HH:mm\"");
}

TEST(ClockSettings, QuotedTextIsCutAtItsLastQuoteAndLosesItsFirstCharacter) {
    EXPECT_EQ(UnquotedPicture(L"x\"abc\"def"), L"\"abc");
    EXPECT_EQ(UnquotedPicture(L"\" h:mm \""), L" h:mm ");
    EXPECT_EQ(UnquotedPicture(L"\""), L"");
    EXPECT_EQ(UnquotedPicture(L"\"\""), L"");
}

TEST(ClockSettings, BlanksAroundAPictureSurviveTheFile) {
    IniDocument doc;
    ClockValues v;
    v.timeFormat = L" h:mm ";
    WriteClockValues(doc, v);
    const std::string text = doc.Serialize();
    IniDocument reread;
    reread.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    EXPECT_EQ(ReadClockValues(reread, Locale(false, false)).timeFormat, L" h:mm ");
}

TEST(ClockSettings, SaveWritesTheFiveKeysInOrder) {
    IniDocument doc;
    ClockValues v;
    v.normalClock = false;
    v.showTime = false;
    v.showDate = true;
    v.timeFormat = L"H:mm";
    v.dateFormat = L"d/M";
    WriteClockValues(doc, v);
    std::vector<std::wstring> lines;
    for (const auto& e : doc.GetSectionEntries(kSection))
        lines.push_back(std::wstring(e.first) + L"=" + e.second);
    EXPECT_EQ(lines, (std::vector<std::wstring>{L"Normal Clock=FALSE", L"Show Time=FALSE",
                                                L"Show Date=TRUE", L"Time Format=\"H:mm\"",
                                                L"Date Format=\"d/M\""}));
}

TEST(ClockSettings, StoredPicturesAreCutTo255Characters) {
    IniDocument doc;
    doc.SetString(kSection, L"Time Format", std::wstring(400, L'h').c_str());
    EXPECT_EQ(ReadClockValues(doc, Locale(false, false)).timeFormat.size(), 255u);
}
