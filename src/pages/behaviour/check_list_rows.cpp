#include "pages/behaviour/check_list_rows.h"

#include "store/config_sections.h"

namespace cv2 {
namespace {

const wchar_t* const kTopBar = config::kTopBarSettings;
const wchar_t* const kGeneral = config::kGeneralSettings;
const wchar_t* const kStartMenu = config::kStartMenuSettings;

constexpr RowStore kIni = RowStore::Ini;

const CheckRow kGeneralRows[] = {
    {IDS_GENERAL_SOFT_RESET, RowStore::StartupShortcut, nullptr, nullptr, false},
    {IDS_GENERAL_SHOW_TASKS, kIni, kTopBar, L"Show Tasks", true},
    {IDS_GENERAL_GOTO_TODAY, kIni, kGeneral, L"Goto Today", false},
    {IDS_GENERAL_SMART_MINIMIZE, kIni, kGeneral, L"Smart Minimize", false},
    {IDS_GENERAL_GRADIENT_TODAY, kIni, kGeneral, L"Gradient on Today", true},
    {IDS_GENERAL_CLEARTYPE, kIni, kGeneral, L"ClearType", true},
    {IDS_GENERAL_CLOSE_BY_ICON, kIni, kGeneral, L"Close By Icon", true},
    {IDS_GENERAL_RIGHT_HANDED, kIni, kGeneral, L"Right Handed Landscape", true},
    {IDS_GENERAL_STANDARD_HOLD, kIni, kGeneral, L"Standard Hold", false},
    {IDS_GENERAL_HIDE_TITLE, kIni, kGeneral, L"Hide Desktop Title", false},
    {IDS_GENERAL_ANIMATE_BATTERY, kIni, kTopBar, L"Animate Battery Meter", true},
    {IDS_GENERAL_HIDE_DISCONNECTED, kIni, kGeneral, L"Hide Disconnected", false},
    {IDS_GENERAL_NO_SOUND_HOOK, RowStore::UserRegistry, nullptr, nullptr, false},
    {IDS_GENERAL_MULTIPLE_NOTIFY, kIni, kGeneral, L"Show Multiple Notifications", false},
    {IDS_GENERAL_NOTIFY_REMINDER, kIni, kGeneral, L"Notify Reminder", true},
    {IDS_GENERAL_VIBRATE, kIni, kGeneral, L"Vibrate", false},
    {IDS_GENERAL_CLOSE_BATTERY, kIni, kGeneral, L"Close Battery", true},
    {IDS_GENERAL_ORIGINAL_NOTIFY, kIni, kGeneral, L"Show Original Notification", false},
    {IDS_GENERAL_SKIP_TODAY, kIni, kGeneral, L"Skip Today", false},
};

const CheckRow kStartMenuRows[] = {
    {IDS_START_MENU_ICONS, kIni, kStartMenu, L"Start Menu Icons", true},
    {IDS_START_RECENT_ITEMS, kIni, kStartMenu, L"Show Recent Items", true},
    {IDS_START_SHOW_SETTINGS, kIni, kStartMenu, L"Show Settings", true},
    {IDS_START_EXPAND_SETTINGS, kIni, kStartMenu, L"Expand Settings", false},
    {IDS_START_SHOW_FIND, kIni, kStartMenu, L"Show Find", false},
    {IDS_START_SHOW_HELP, kIni, kStartMenu, L"Show Help", true},
    {IDS_START_CACHE_ICONS, kIni, kStartMenu, L"Cache At Startup", false},
    // The label says "don't cache" but the key stores the check state as it is.
    {IDS_START_RELEASE_BACKGROUNDS, kIni, kStartMenu, L"Release Backgrounds", true},
    {IDS_START_COVER_TASKBAR, kIni, kStartMenu, L"Cover Taskbar", false},
    {IDS_START_OVERLAP_MENU, kIni, kStartMenu, L"Overlap Menu", false},
    {IDS_START_IE_FAVORITES, kIni, kStartMenu, L"IE Favorites", false},
    {IDS_START_FOLDERS_BOTTOM, kIni, kStartMenu, L"Folders Bottom", false},
    {IDS_START_MENU_KEY, kIni, kStartMenu, L"Cascading Menu Key", true},
    {IDS_START_SHOW_DESKTOP, kIni, kStartMenu, L"Show Desktop", true},
};

template <size_t N> CheckTable TableOf(const CheckRow (&rows)[N]) {
    return {rows, N};
}

bool ReadOutside(RowStore store, OutsideStores* outside) {
    if (!outside)
        return false;
    if (store == RowStore::StartupShortcut)
        return outside->ShortcutExists();
    unsigned long value = 0;
    return outside->ReadSoundHookValue(value) && value != 0;
}

// Creates the shortcut only when it is missing and deletes it only when it is there.
void WriteShortcut(bool on, OutsideStores& outside) {
    const bool exists = outside.ShortcutExists();
    if (on && !exists)
        outside.CreateShortcut();
    else if (!on && exists)
        outside.DeleteShortcut();
}

} // namespace

CheckTable GeneralSettingsRows() {
    return TableOf(kGeneralRows);
}
CheckTable StartMenuRows() {
    return TableOf(kStartMenuRows);
}

std::vector<bool> ReadCheckRows(const CheckTable& table, const IniDocument& doc,
                                OutsideStores* outside) {
    std::vector<bool> states(table.count, false);
    for (size_t i = 0; i < table.count; ++i) {
        const CheckRow& row = table.rows[i];
        states[i] = row.store == RowStore::Ini ? doc.GetBool(row.section, row.key, row.def)
                                               : ReadOutside(row.store, outside);
    }
    return states;
}

void WriteCheckRows(const CheckTable& table, const std::vector<bool>& states, IniDocument& doc,
                    OutsideStores* outside) {
    auto state = [&](size_t i) { return i < states.size() && states[i]; };
    for (size_t i = 0; i < table.count; ++i) {
        if (table.rows[i].store == RowStore::Ini)
            doc.SetBool(table.rows[i].section, table.rows[i].key, state(i));
    }
    if (!outside)
        return;
    for (size_t i = 0; i < table.count; ++i) {
        if (table.rows[i].store == RowStore::UserRegistry)
            outside->WriteSoundHookValue(state(i) ? 1 : 0);
    }
    for (size_t i = 0; i < table.count; ++i) {
        if (table.rows[i].store == RowStore::StartupShortcut)
            WriteShortcut(state(i), *outside);
    }
}

} // namespace cv2
