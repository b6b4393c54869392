// What the bar's clock shows: the time and date pictures of the Clock Settings page filled in
// with a moment, the way the platform's own time and date formatting reads such pictures.
// Portable: the moment and the locale's day and month names are passed in.
#pragma once

#include <string>

#include "pages/behaviour/clock_values.h"

namespace cv2 {

struct ClockTime {
    int year = 2000;
    int month = 1;     // 1 to 12
    int day = 1;       // 1 to 31
    int dayOfWeek = 6; // 0 Sunday to 6 Saturday
    int hour = 0;      // 0 to 23
    int minute = 0;
    int second = 0;
};

// The names a date picture may ask for, and the morning and afternoon marks of a time picture.
struct ClockNames {
    std::wstring days[7]; // Sunday first
    std::wstring shortDays[7];
    std::wstring months[12]; // January first
    std::wstring shortMonths[12];
    std::wstring am;
    std::wstring pm;
};
// English names, for when the locale cannot be asked.
ClockNames EnglishClockNames();

// A time picture: h and hh (12-hour), H and HH (24-hour), m and mm, s and ss, t (the first
// letter of the mark) and tt (the whole mark); text in single quotes stands as it is ('' is one
// quote); every other character stands as it is.
std::wstring FormatTimePicture(const std::wstring& picture, const ClockTime& time,
                               const ClockNames& names);
// A date picture: d, dd, ddd (short day name), dddd (day name), M, MM, MMM, MMMM, y, yy and
// yyyy; quotes and other characters as in a time picture. Eras (g) show nothing.
std::wstring FormatDatePicture(const std::wstring& picture, const ClockTime& time,
                               const ClockNames& names);

// The text of the standard clock (the time and the date as their switches say, joined by a
// space) or of the small clock (the time alone). Empty when the standard clock shows neither.
std::wstring ClockShownText(const ClockValues& values, const ClockTime& time,
                            const ClockNames& names);

} // namespace cv2
