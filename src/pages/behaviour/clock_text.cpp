#include "pages/behaviour/clock_text.h"

namespace cv2 {
namespace {

// A number with at least `digits` digits (leading zeros).
std::wstring Padded(int value, int digits) {
    std::wstring text = std::to_wstring(value < 0 ? -value : value);
    while (static_cast<int>(text.size()) < digits)
        text.insert(text.begin(), L'0');
    return value < 0 ? L"-" + text : text;
}

// The name at `index` of a table of `count`, or "" for an index outside it.
const std::wstring& NameAt(const std::wstring* table, int count, int index) {
    static const std::wstring none;
    return index >= 0 && index < count ? table[index] : none;
}

// What a run of `count` letters `letter` stands for; false when the letter is plain text in
// this kind of picture.
using FieldText = bool (*)(wchar_t letter, int count, const ClockTime& time,
                           const ClockNames& names, std::wstring& out);

bool TimeField(wchar_t letter, int count, const ClockTime& t, const ClockNames& names,
               std::wstring& out) {
    const int digits = count >= 2 ? 2 : 1;
    switch (letter) {
    case L'h': {
        const int hour = t.hour % 12;
        out += Padded(hour == 0 ? 12 : hour, digits);
        return true;
    }
    case L'H':
        out += Padded(t.hour, digits);
        return true;
    case L'm':
        out += Padded(t.minute, digits);
        return true;
    case L's':
        out += Padded(t.second, digits);
        return true;
    case L't': {
        const std::wstring& mark = t.hour < 12 ? names.am : names.pm;
        out += count >= 2 ? mark : mark.substr(0, 1);
        return true;
    }
    }
    return false;
}

bool DateField(wchar_t letter, int count, const ClockTime& t, const ClockNames& names,
               std::wstring& out) {
    switch (letter) {
    case L'd':
        if (count >= 4)
            out += NameAt(names.days, 7, t.dayOfWeek);
        else if (count == 3)
            out += NameAt(names.shortDays, 7, t.dayOfWeek);
        else
            out += Padded(t.day, count);
        return true;
    case L'M':
        if (count >= 4)
            out += NameAt(names.months, 12, t.month - 1);
        else if (count == 3)
            out += NameAt(names.shortMonths, 12, t.month - 1);
        else
            out += Padded(t.month, count);
        return true;
    case L'y':
        if (count >= 3)
            out += Padded(t.year, 4);
        else
            out += Padded(t.year % 100, count);
        return true;
    case L'g':
        return true;
    }
    return false;
}

std::wstring FormatPicture(const std::wstring& picture, const ClockTime& time,
                           const ClockNames& names, FieldText field) {
    std::wstring out;
    size_t i = 0;
    while (i < picture.size()) {
        const wchar_t c = picture[i];
        if (c == L'\'') {
            // Quoted text; two quotes in a row are one quote, inside or outside quotes.
            ++i;
            if (i < picture.size() && picture[i] == L'\'') {
                out += L'\'';
                ++i;
                continue;
            }
            while (i < picture.size()) {
                if (picture[i] == L'\'') {
                    if (i + 1 < picture.size() && picture[i + 1] == L'\'') {
                        out += L'\'';
                        i += 2;
                        continue;
                    }
                    ++i;
                    break;
                }
                out += picture[i++];
            }
            continue;
        }
        size_t run = i + 1;
        while (run < picture.size() && picture[run] == c)
            ++run;
        if (field(c, static_cast<int>(run - i), time, names, out)) {
            i = run;
        } else {
            out += c;
            ++i;
        }
    }
    return out;
}

} // namespace

ClockNames EnglishClockNames() {
    static const wchar_t* const kDays[7] = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                                            L"Thursday", L"Friday", L"Saturday"};
    static const wchar_t* const kMonths[12] = {L"January",   L"February", L"March",    L"April",
                                               L"May",       L"June",     L"July",     L"August",
                                               L"September", L"October",  L"November", L"December"};
    ClockNames names;
    for (int i = 0; i < 7; ++i) {
        names.days[i] = kDays[i];
        names.shortDays[i] = names.days[i].substr(0, 3);
    }
    for (int i = 0; i < 12; ++i) {
        names.months[i] = kMonths[i];
        names.shortMonths[i] = names.months[i].substr(0, 3);
    }
    names.am = L"AM";
    names.pm = L"PM";
    return names;
}

std::wstring FormatTimePicture(const std::wstring& picture, const ClockTime& time,
                               const ClockNames& names) {
    return FormatPicture(picture, time, names, TimeField);
}

std::wstring FormatDatePicture(const std::wstring& picture, const ClockTime& time,
                               const ClockNames& names) {
    return FormatPicture(picture, time, names, DateField);
}

std::wstring ClockShownText(const ClockValues& values, const ClockTime& time,
                            const ClockNames& names) {
    const std::wstring timeText = FormatTimePicture(values.timeFormat, time, names);
    if (!values.normalClock)
        return timeText;
    std::wstring text = values.showTime ? timeText : std::wstring();
    if (values.showDate) {
        if (!text.empty())
            text += L' ';
        text += FormatDatePicture(values.dateFormat, time, names);
    }
    return text;
}

} // namespace cv2
