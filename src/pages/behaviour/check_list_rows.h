// The rows of the check-list pages (General Settings, Start Menu Settings) as constant tables,
// and reading and writing their switches. Most rows are booleans of config.ini; two rows of
// General Settings live elsewhere (a start-up shortcut and a value in the user's registry) and
// reach those stores through OutsideStores, so the logic runs without them.
#pragma once

#include <cstddef>
#include <vector>

#include "store/ini_document.h"
#include "store/strings.h"

namespace cv2 {

enum class RowStore {
    Ini,             // a boolean of config.ini
    StartupShortcut, // on while the start-up shortcut file exists
    UserRegistry,    // the sound-hook switch in the user's registry
};

struct CheckRow {
    StringId label; // localised label, with its English default in the string table
    RowStore store;
    const wchar_t* section; // config.ini section (Ini rows only)
    const wchar_t* key;     // config.ini key (Ini rows only)
    bool def;               // state when the key is absent (Ini rows only)
};

struct CheckTable {
    const CheckRow* rows;
    size_t count;
};

// The nineteen switches of General Settings, in list order.
CheckTable GeneralSettingsRows();
// The fourteen options of Start Menu Settings, in list order.
CheckTable StartMenuRows();

// The stores beyond config.ini. Every call may fail; failures are silent.
class OutsideStores {
  public:
    virtual ~OutsideStores() = default;
    virtual bool ShortcutExists() = 0;
    virtual bool CreateShortcut() = 0;
    virtual bool DeleteShortcut() = 0;
    // False when the key or the value is missing (the switch then reads off).
    virtual bool ReadSoundHookValue(unsigned long& value) = 0;
    // Creates the key when missing; false when it cannot be opened.
    virtual bool WriteSoundHookValue(unsigned long value) = 0;
};

// The check state of every row, in row order. `outside` may be null when the table has only
// Ini rows; other rows then read off.
std::vector<bool> ReadCheckRows(const CheckTable& table, const IniDocument& doc,
                                OutsideStores* outside);

// Writes every row: first the config.ini booleans in row order, then the registry value, then
// the shortcut, which is created only when missing and deleted only when present (an existing
// shortcut is never rewritten). `states` holds one entry per row.
void WriteCheckRows(const CheckTable& table, const std::vector<bool>& states, IniDocument& doc,
                    OutsideStores* outside);

} // namespace cv2
