#include "pages/behaviour/clock_values.h"

#include "store/config_sections.h"
#include "store/paths.h"

namespace cv2 {
namespace {

const wchar_t* const kSection = config::kGeneralSettings;

std::wstring ReadPicture(const IniDocument& doc, const wchar_t* key, const std::wstring& def) {
    const std::wstring def256 = CutToBuffer(def, kPictureChars);
    return UnquotedPicture(doc.GetString(kSection, key, def256.c_str(), kPictureChars));
}

} // namespace

std::wstring DefaultTimePicture(bool twentyFourHour, bool hourLeadingZero) {
    std::wstring hour = twentyFourHour ? L"H" : L"h";
    if (hourLeadingZero)
        hour += hour;
    return hour + L":mm";
}

std::wstring QuotedPicture(const std::wstring& picture) {
    return L"\"" + picture + L"\"";
}

std::wstring UnquotedPicture(const std::wstring& stored) {
    const size_t last = stored.rfind(L'"');
    if (last == std::wstring::npos)
        return stored;
    // The first character goes whether or not it is the opening quote.
    return last == 0 ? std::wstring() : stored.substr(1, last - 1);
}

ClockValues ReadClockValues(const IniDocument& doc, const LocaleTimeFacts& locale) {
    ClockValues v;
    v.normalClock = doc.GetBool(kSection, L"Normal Clock", true);
    v.showTime = doc.GetBool(kSection, L"Show Time", true);
    v.showDate = doc.GetBool(kSection, L"Show Date", false);
    v.timeFormat = ReadPicture(doc, L"Time Format",
                               DefaultTimePicture(locale.twentyFourHour, locale.hourLeadingZero));
    v.dateFormat = ReadPicture(doc, L"Date Format", locale.shortDate);
    return v;
}

void WriteClockValues(IniDocument& doc, const ClockValues& values) {
    doc.SetBool(kSection, L"Normal Clock", values.normalClock);
    doc.SetBool(kSection, L"Show Time", values.showTime);
    doc.SetBool(kSection, L"Show Date", values.showDate);
    doc.SetString(kSection, L"Time Format",
                  QuotedPicture(CutToBuffer(values.timeFormat, kPictureChars)).c_str());
    doc.SetString(kSection, L"Date Format",
                  QuotedPicture(CutToBuffer(values.dateFormat, kPictureChars)).c_str());
}

} // namespace cv2
