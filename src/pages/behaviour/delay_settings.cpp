#include "pages/behaviour/delay_settings.h"

#include "store/ini_document.h"

namespace cv2 {

const DelaySetting kDelaySettings[kDelaySettingCount] = {
    {IDS_STARTUP_DELAY, L"Startup Delay", L"0", false},
    {IDS_PHONE_REFRESH, L"Phone Refresh", L"10", true},
    {IDS_BOOT_DELAY, L"Boot Delay", L"5", false},
    {IDS_NOTIFY_REMINDER, L"Notify Interval", L"60", false},
};

std::wstring DelayValueToStore(const DelaySetting& setting, const std::wstring& typed) {
    if (setting.atLeastOne && LeadingLong(typed.c_str()) < 1)
        return setting.defaultValue;
    return typed;
}

} // namespace cv2
