#include "pages/behaviour/clock_locale.h"

#include <windows.h>

namespace cv2 {
namespace {

std::wstring LocaleText(LCTYPE type) {
    wchar_t text[kPictureChars] = {};
    if (!GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, kPictureChars))
        return std::wstring();
    return text;
}

// Takes the locale's text for `name` when it has one.
void ReadName(LCTYPE type, std::wstring& name) {
    const std::wstring text = LocaleText(type);
    if (!text.empty())
        name = text;
}

} // namespace

LocaleTimeFacts UserLocaleTimeFacts() {
    LocaleTimeFacts facts;
    facts.twentyFourHour = LocaleText(LOCALE_ITIME) == L"1";
    const std::wstring leadingZero = LocaleText(LOCALE_ITLZERO);
    facts.hourLeadingZero = !leadingZero.empty() && leadingZero != L"0";
    facts.shortDate = LocaleText(LOCALE_SSHORTDATE);
    return facts;
}

ClockNames UserClockNames() {
    ClockNames names = EnglishClockNames();
    // The locale numbers its days from Monday; the names here start on Sunday.
    for (int i = 0; i < 7; ++i) {
        const int fromMonday = (i + 6) % 7;
        ReadName(static_cast<LCTYPE>(LOCALE_SDAYNAME1 + fromMonday), names.days[i]);
        ReadName(static_cast<LCTYPE>(LOCALE_SABBREVDAYNAME1 + fromMonday), names.shortDays[i]);
    }
    for (int i = 0; i < 12; ++i) {
        ReadName(static_cast<LCTYPE>(LOCALE_SMONTHNAME1 + i), names.months[i]);
        ReadName(static_cast<LCTYPE>(LOCALE_SABBREVMONTHNAME1 + i), names.shortMonths[i]);
    }
    ReadName(LOCALE_S1159, names.am);
    ReadName(LOCALE_S2359, names.pm);
    return names;
}

ClockTime LocalClockTime() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    ClockTime t;
    t.year = now.wYear;
    t.month = now.wMonth;
    t.day = now.wDay;
    t.dayOfWeek = now.wDayOfWeek;
    t.hour = now.wHour;
    t.minute = now.wMinute;
    t.second = now.wSecond;
    return t;
}

} // namespace cv2
