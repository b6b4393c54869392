#include "pages/appearance/taskbar_buttons_values.h"

#include "store/config_sections.h"
#include <string>
#include <vector>

namespace cv2 {

const TaskbarButtonRow kTaskbarButtonRows[kBuiltInButtonCount] = {
    {IDS_BUTTON_START_MENU, L"Start Menu"},
    {IDS_TASKBAR_CLOSE, L"Close"},
    {IDS_TASKBAR_OK, L"OK"},
    {IDS_ACTION_NOTIFICATION, L"Notify"},
    {IDS_BUTTON_VOLUME, L"Volume"},
    {IDS_TASKBAR_MUTE, L"Mute"},
    {IDS_TASKBAR_VIBRATE, L"Vibrate"},
    {IDS_BUTTON_BATTERY, L"Battery/Memory"},
    {IDS_BUTTON_HOME, L"Home"},
    {IDS_BUTTON_MENU, L"Menu"},
    {IDS_BUTTON_CUSTOM1, L"Custom1"},
    {IDS_BUTTON_CUSTOM2, L"Custom2"},
    {IDS_BUTTON_CONNECTED, L"Connection"},
    {IDS_TASKBAR_DISCONNECTED, L"Disconnect"},
    {IDS_BUTTON_SIGNAL, L"Signal Strength"},
    {IDS_TASKBAR_PHONE_CONNECTED, L"Signal Connected"},
    {IDS_TASKBAR_SIP, L"SIP"},
};

namespace {

constexpr int kBatteryListRow = 7;
constexpr int kSignalListRow = 14;
constexpr int kPhoneListRow = 15;

struct ButtonImagesTable {
    std::vector<std::wstring> names; // stable storage for the keys' names
    std::vector<SettingKey> keys;
    SettingSection section;

    ButtonImagesTable() {
        names.reserve(kBuiltInButtonCount * 2);
        for (const TaskbarButtonRow& row : kTaskbarButtonRows) {
            names.push_back(std::wstring(row.stem) + L" Normal");
            names.push_back(std::wstring(row.stem) + L" Pressed");
        }
        for (const std::wstring& name : names)
            keys.push_back({name.c_str(), SettingType::Path});
        keys.push_back({L"Battery/Memory Custom", SettingType::Boolean, L"FALSE"});
        keys.push_back({L"Signal Strength Custom", SettingType::Boolean, L"FALSE"});
        section = {config::kButtonImages, keys.data(), keys.size(), nullptr};
    }
};

} // namespace

const SettingSection& ButtonImagesSection() {
    static const ButtonImagesTable table;
    return table.section;
}

size_t CustomFlagRow(int row) {
    switch (row) {
    case kBatteryListRow:
        return kBatteryCustomRow;
    case kSignalListRow:
    case kPhoneListRow:
        return kSignalCustomRow;
    }
    return ButtonImagesSection().count;
}

} // namespace cv2
