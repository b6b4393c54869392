// The top bar's button order: the items that can be placed, the "Order" value of config.ini
// that lists their key names, and which items the Button Order list shows. Portable.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "store/ini_document.h"

namespace cv2 {

struct OrderItem {
    std::wstring name;   // display name
    std::wstring key;    // the word stored in "Order", compared in any case
    int flag = -1;       // visibility flag of the Button Assignments page; -1 for always shown
    bool present = true; // false for a plug-in button slot its plug-in left unnamed
};

// The order holds this many entries; further ones are dropped.
constexpr size_t kMaxOrderEntries = 25;
constexpr size_t kBuiltInOrderItems = 11;
// "Order" is read through a buffer of this many characters.
constexpr int kOrderValueChars = 256;

// The eleven built-in items, with their localised display names.
std::vector<OrderItem> BuiltInOrderItems();

// The value used when config.ini has no "Order".
const wchar_t* DefaultOrder(bool hasPhone);
// "Order" with its default, in lower case.
std::wstring ReadOrderValue(const IniDocument& doc, bool hasPhone);
void WriteOrderValue(IniDocument& doc, const std::wstring& value);

// The item indices a value names, in its order: each comma-separated word appends every item
// whose key name it equals. Words are not trimmed; unknown words are dropped; at most 25.
std::vector<int> ParseOrder(const std::wstring& value, const std::vector<OrderItem>& items);

// The value for an order: key names in lower case joined by commas; empty for no entries.
std::wstring JoinOrder(const std::vector<int>& order, const std::vector<OrderItem>& items);

// Whether an item shows given the visibility flags.
bool ItemVisible(const OrderItem& item, const std::vector<bool>& flags);

// What the list shows: the visible entries of the order, in its order (duplicates kept); then
// the visible built-in items 1 to 10 not yet placed; then the visible plug-in items not yet
// placed. "Close" comes back only through the order.
std::vector<int> ListedItems(const std::vector<int>& order, const std::vector<OrderItem>& items,
                             const std::vector<bool>& flags);

} // namespace cv2
