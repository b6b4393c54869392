// The top bar's button assignments as config.ini stores them: the built-in action table whose
// numbers the bar shares, the twelve buttons the page offers with their keys and defaults, and
// which buttons are shown. Portable; plug-in look-ups are passed in.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "store/ini_document.h"
#include "store/strings.h"

namespace cv2 {

// Built-in actions: the one at position p is stored as p + 2; "1" means no action.
constexpr size_t kBuiltInActions = 32;
// The label of each built-in action, in table order.
StringId BuiltInActionLabel(size_t position);

// The twelve buttons the page offers; selector rows from 12 on are plug-in buttons.
constexpr size_t kAssignedButtons = 12;
// The selector row of the Signal Strength button, shown only on a device with a phone.
constexpr size_t kSignalRow = 11;
// Programs and action values are read and kept in buffers of this many characters.
constexpr int kAssignmentChars = 260;

StringId AssignedButtonLabel(size_t row);

struct ButtonAssignments {
    std::wstring tap[kAssignedButtons];
    std::wstring hold[kAssignedButtons];
};

// Reads the tap and hold keys of all seventeen button numbers (tap first) and keeps the twelve
// the page offers.
ButtonAssignments ReadAssignments(const IniDocument& doc);

// The visibility flags: the twelve buttons', then one per plug-in button (on when its key name
// occurs in `order`). `order` is the lower-cased button order; a null key name is an absent
// plug-in button and reads hidden.
std::vector<bool> ReadVisibility(const IniDocument& doc, const std::wstring& order, bool hasPhone,
                                 const std::vector<const wchar_t*>& pluginKeys);

// Writes every key in the order the bar's own settings program writes them, with the copies of
// Button 6 and Button 14 into Button 7 and Button 15, and the three switches.
void WriteAssignments(IniDocument& doc, const ButtonAssignments& values,
                      const std::vector<bool>& flags);

// How a stored value is shown in a combo box.
enum class StoredKind { Empty, BuiltIn, Other };
// Empty for "1"; BuiltIn with its row for 2 to 33; Other for anything else (a plug-in action's
// value or a program path), read as the C runtime reads a leading number.
StoredKind ClassifyStored(const wchar_t* stored, int& row);

// What a combo's text is stored as: the number of the built-in action whose label it equals (any
// case, labels in row order); else the value of the plug-in action of that name; else the text
// itself. An empty text is stored as it stands, empty.
std::wstring StoredValueOf(const std::wstring& text, const std::vector<std::wstring>& labels,
                           const std::function<const wchar_t*(const wchar_t*)>& pluginValue);

} // namespace cv2
