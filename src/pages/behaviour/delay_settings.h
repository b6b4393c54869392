// The four whole-second timings of the "Delays/Timers" page, as stored in config.ini.
#pragma once

#include <string>

#include "store/config_sections.h"
#include "store/strings.h"

namespace cv2 {

struct DelaySetting {
    StringId caption;
    const wchar_t* key;          // in kDelaySection
    const wchar_t* defaultValue; // when the key is missing
    bool atLeastOne;             // values below 1 are stored as the default instead
};

constexpr const wchar_t* kDelaySection = config::kGeneralSettings;
constexpr int kDelaySettingCount = 4;
extern const DelaySetting kDelaySettings[kDelaySettingCount];

// The text stored for what the user typed. Only the refresh rate is checked: below 1 (which
// includes an empty box) it becomes "10". The other three are stored exactly as typed, empty
// text included.
std::wstring DelayValueToStore(const DelaySetting& setting, const std::wstring& typed);

} // namespace cv2
