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

} // namespace

LocaleTimeFacts UserLocaleTimeFacts() {
    LocaleTimeFacts facts;
    facts.twentyFourHour = LocaleText(LOCALE_ITIME) == L"1";
    const std::wstring leadingZero = LocaleText(LOCALE_ITLZERO);
    facts.hourLeadingZero = !leadingZero.empty() && leadingZero != L"0";
    facts.shortDate = LocaleText(LOCALE_SSHORTDATE);
    return facts;
}

} // namespace cv2
