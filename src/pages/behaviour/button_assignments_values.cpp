#include "pages/behaviour/button_assignments_values.h"

#include "store/config_sections.h"

#include <cwchar>

namespace cv2 {
namespace {

const StringId kActionLabels[kBuiltInActions] = {
    IDS_ACTION_CASCADING_START,
    IDS_ACTION_NOTIFICATION,
    IDS_ACTION_BUILTIN_VOLUME,
    IDS_ACTION_TASKS_PANEL,
    IDS_ACTION_TOGGLE_MUTE,
    IDS_ACTION_NEXT_APPOINTMENT,
    IDS_ACTION_BATTERY_BUBBLE,
    IDS_ACTION_BATTERY_PANEL,
    IDS_ACTION_SKINNABLE_VOLUME,
    IDS_ACTION_TODAY,
    IDS_ACTION_ALT,
    IDS_ACTION_BACKLIGHT,
    IDS_ACTION_CALENDAR,
    IDS_ACTION_CLOCK_SETTINGS,
    IDS_ACTION_CONNECTION,
    IDS_ACTION_COPY,
    IDS_ACTION_CTRL,
    IDS_ACTION_CUT,
    IDS_ACTION_MEMORY_PANEL,
    IDS_ACTION_MINIMIZE_TASK,
    IDS_ACTION_PASTE,
    IDS_ACTION_POWER_OFF,
    IDS_ACTION_SOFT_RESET,
    IDS_ACTION_SELECT_ALL,
    IDS_ACTION_SHIFT,
    IDS_ACTION_SIP_PANEL,
    IDS_ACTION_BUILTIN_START,
    IDS_ACTION_ROTATE,
    IDS_ACTION_PHONE_BUBBLE,
    IDS_ACTION_SWITCH_TASK,
    IDS_ACTION_CLIPBOARD,
    IDS_ACTION_SCREEN_TOGGLE,
};

constexpr const wchar_t* kActions = config::kActions;
constexpr const wchar_t* kGeneral = config::kGeneralSettings;
constexpr const wchar_t* kTopbar = config::kTopbarSettings;

// Where a button's visibility comes from.
enum class Shown { UseStartMenu, ShowTitle, ShowNotifications, InOrder, InOrderWithPhone };

struct AssignedButton {
    StringId label;
    int number; // "Button %d Action" / "Button %d Hold"
    int copy;   // a second number written with the same values; -1 for none
    Shown shown;
    const wchar_t* word; // the button's word in the order (InOrder buttons)
};

const AssignedButton kButtons[kAssignedButtons] = {
    {IDS_BUTTON_START_MENU, 0, -1, Shown::UseStartMenu, nullptr},
    {IDS_BUTTON_CLOCK, 3, -1, Shown::InOrder, L"clock"},
    {IDS_BUTTON_TITLE, 4, -1, Shown::ShowTitle, nullptr},
    {IDS_ACTION_NOTIFICATION, 5, -1, Shown::ShowNotifications, nullptr},
    {IDS_BUTTON_VOLUME, 6, 7, Shown::InOrder, L"volume"},
    {IDS_BUTTON_BATTERY, 8, -1, Shown::InOrder, L"battery"},
    {IDS_BUTTON_HOME, 9, -1, Shown::InOrder, L"home"},
    {IDS_BUTTON_MENU, 10, -1, Shown::InOrder, L"menu"},
    {IDS_BUTTON_CUSTOM1, 11, -1, Shown::InOrder, L"custom1"},
    {IDS_BUTTON_CUSTOM2, 12, -1, Shown::InOrder, L"custom2"},
    {IDS_BUTTON_CONNECTED, 14, 15, Shown::InOrder, L"connection"},
    {IDS_BUTTON_SIGNAL, 16, -1, Shown::InOrderWithPhone, L"signal"},
};

// Tap and hold defaults of the seventeen button numbers the bar knows.
struct NumberDefaults {
    const wchar_t* tap;
    const wchar_t* hold;
};
const NumberDefaults kDefaults[17] = {
    {L"2", L"5"},  {L"1", L"1"},  {L"1", L"1"},  {L"7", L"5"},  {L"2", L"1"},  {L"3", L"1"},
    {L"10", L"6"}, {L"10", L"6"}, {L"8", L"9"},  {L"11", L"1"}, {L"5", L"2"},  {L"1", L"1"},
    {L"1", L"1"},  {L"27", L"1"}, {L"16", L"1"}, {L"16", L"1"}, {L"30", L"1"},
};

std::wstring Key(int number, const wchar_t* kind) {
    wchar_t key[32];
    std::swprintf(key, sizeof key / sizeof key[0], L"Button %d %ls", number, kind);
    return key;
}

void WritePair(IniDocument& doc, int number, const std::wstring& tap, const std::wstring& hold) {
    doc.SetString(kActions, Key(number, L"Action").c_str(), tap.c_str());
    doc.SetString(kActions, Key(number, L"Hold").c_str(), hold.c_str());
}

// A button written twice: both Action keys, then both Hold keys.
void WriteCopiedPair(IniDocument& doc, const AssignedButton& button, const std::wstring& tap,
                     const std::wstring& hold) {
    doc.SetString(kActions, Key(button.number, L"Action").c_str(), tap.c_str());
    doc.SetString(kActions, Key(button.copy, L"Action").c_str(), tap.c_str());
    doc.SetString(kActions, Key(button.number, L"Hold").c_str(), hold.c_str());
    doc.SetString(kActions, Key(button.copy, L"Hold").c_str(), hold.c_str());
}

bool Flag(const std::vector<bool>& flags, size_t i) {
    return i < flags.size() && flags[i];
}

} // namespace

StringId BuiltInActionLabel(size_t position) {
    return kActionLabels[position < kBuiltInActions ? position : 0];
}

StringId AssignedButtonLabel(size_t row) {
    return kButtons[row < kAssignedButtons ? row : 0].label;
}

ButtonAssignments ReadAssignments(const IniDocument& doc) {
    std::wstring tap[17], hold[17];
    for (int n = 0; n < 17; ++n) {
        tap[n] =
            doc.GetString(kActions, Key(n, L"Action").c_str(), kDefaults[n].tap, kAssignmentChars);
        hold[n] =
            doc.GetString(kActions, Key(n, L"Hold").c_str(), kDefaults[n].hold, kAssignmentChars);
    }
    ButtonAssignments values;
    for (size_t row = 0; row < kAssignedButtons; ++row) {
        values.tap[row] = tap[kButtons[row].number];
        values.hold[row] = hold[kButtons[row].number];
    }
    return values;
}

std::vector<bool> ReadVisibility(const IniDocument& doc, const std::wstring& order, bool hasPhone,
                                 const std::vector<const wchar_t*>& pluginKeys) {
    std::vector<bool> flags;
    for (const AssignedButton& button : kButtons) {
        switch (button.shown) {
        case Shown::UseStartMenu:
            flags.push_back(doc.GetBool(kGeneral, L"Use Start Menu", true));
            break;
        case Shown::ShowTitle:
            flags.push_back(doc.GetBool(kTopbar, L"Show Title", true));
            break;
        case Shown::ShowNotifications:
            flags.push_back(doc.GetBool(kGeneral, L"Show Notifications", true));
            break;
        case Shown::InOrder:
        case Shown::InOrderWithPhone:
            flags.push_back(order.find(button.word) != std::wstring::npos &&
                            (button.shown == Shown::InOrder || hasPhone));
            break;
        }
    }
    for (const wchar_t* key : pluginKeys) {
        std::wstring lower = key ? key : L"";
        for (wchar_t& c : lower)
            c = FoldCase(c);
        // An empty key would be found in any order: absent and unnamed buttons stay hidden.
        flags.push_back(!lower.empty() && order.find(lower) != std::wstring::npos);
    }
    return flags;
}

void WriteAssignments(IniDocument& doc, const ButtonAssignments& values,
                      const std::vector<bool>& flags) {
    for (size_t row = 0; row < 4; ++row)
        WritePair(doc, kButtons[row].number, values.tap[row], values.hold[row]);
    doc.SetBool(kGeneral, L"Show Notifications", Flag(flags, 3));
    for (size_t row = 4; row < kAssignedButtons; ++row) {
        if (kButtons[row].copy >= 0)
            WriteCopiedPair(doc, kButtons[row], values.tap[row], values.hold[row]);
        else
            WritePair(doc, kButtons[row].number, values.tap[row], values.hold[row]);
    }
    doc.SetBool(kGeneral, L"Use Start Menu", Flag(flags, 0));
    doc.SetBool(kTopbar, L"Show Title", Flag(flags, 2));
}

StoredKind ClassifyStored(const wchar_t* stored, int& row) {
    const long number = LeadingLong(stored ? stored : L"");
    row = -1;
    if (number == 1)
        return StoredKind::Empty;
    if (number >= 2 && number <= static_cast<long>(kBuiltInActions) + 1) {
        row = static_cast<int>(number - 2);
        return StoredKind::BuiltIn;
    }
    return StoredKind::Other;
}

std::wstring StoredValueOf(const std::wstring& text, const std::vector<std::wstring>& labels,
                           const std::function<const wchar_t*(const wchar_t*)>& pluginValue) {
    for (size_t row = 0; row < labels.size() && row < kBuiltInActions; ++row) {
        if (EqualsNoCase(text.c_str(), labels[row].c_str()))
            return std::to_wstring(row + 2);
    }
    if (pluginValue) {
        if (const wchar_t* value = pluginValue(text.c_str()))
            return value;
    }
    return text;
}

} // namespace cv2
