// The user's locale facts behind the Clock Settings defaults.
#pragma once

#include "pages/behaviour/clock_text.h"
#include "pages/behaviour/clock_values.h"

namespace cv2 {

// Reads the 24-hour flag, the hour leading-zero flag and the short date picture of the user's
// default locale. A fact that cannot be read stays at its LocaleTimeFacts default.
LocaleTimeFacts UserLocaleTimeFacts();

// The day and month names and the morning and afternoon marks of the user's default locale; a
// name that cannot be read stays English.
ClockNames UserClockNames();

// The moment now, in local time.
ClockTime LocalClockTime();

} // namespace cv2
