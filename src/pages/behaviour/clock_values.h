// The values of the Clock Settings page, all in section "General Settings" of config.ini, and
// the default time and date pictures made from the user's locale.
#pragma once

#include <string>

#include "store/ini_document.h"

namespace cv2 {

// What the page needs to know about the user's locale; read by the Win32 side.
struct LocaleTimeFacts {
    bool twentyFourHour = false;  // the locale's 24-hour flag is "1"
    bool hourLeadingZero = false; // the locale's hour leading-zero flag is not "0"
    std::wstring shortDate;       // the locale's short date picture
};

// "H", "h", "HH" or "hh" followed by ":mm".
std::wstring DefaultTimePicture(bool twentyFourHour, bool hourLeadingZero);

// Pictures are stored in double quotes so leading and trailing blanks survive the file.
std::wstring QuotedPicture(const std::wstring& picture);
// A text holding a double quote is cut at its last double quote and loses its first character;
// a text without one is returned as it is.
std::wstring UnquotedPicture(const std::wstring& stored);

struct ClockValues {
    bool normalClock = true; // the standard clock; false for the small one
    bool showTime = true;
    bool showDate = false;
    std::wstring timeFormat;
    std::wstring dateFormat;
};

// Pictures longer than this many characters are cut, as the page's text buffers cut them.
constexpr int kPictureChars = 256;

ClockValues ReadClockValues(const IniDocument& doc, const LocaleTimeFacts& locale);
// Writes the five keys in the page's fixed order, the pictures in double quotes.
void WriteClockValues(IniDocument& doc, const ClockValues& values);

} // namespace cv2
