#include "pages/behaviour/button_order_values.h"

#include "store/config_sections.h"
#include "store/strings.h"

namespace cv2 {
namespace {

constexpr const wchar_t* kSection = config::kTopbarSettings;
constexpr wchar_t kKey[] = L"Order";

struct BuiltInItem {
    StringId name;
    const wchar_t* key;
    int flag;
};
// The order of the rows is the order in which hidden-then-shown buttons return to the list.
const BuiltInItem kBuiltIn[kBuiltInOrderItems] = {
    {IDS_ORDER_CLOSE, L"close", -1},        {IDS_ORDER_CLOCK, L"clock", 1},
    {IDS_ORDER_NOTIFICATION, L"notify", 3}, {IDS_ORDER_VOLUME, L"volume", 4},
    {IDS_ORDER_BATTERY, L"battery", 5},     {IDS_ORDER_HOME, L"home", 6},
    {IDS_ORDER_MENU, L"menu", 7},           {IDS_ORDER_CUSTOM1, L"custom1", 8},
    {IDS_ORDER_CUSTOM2, L"custom2", 9},     {IDS_ORDER_CONNECTION, L"connection", 10},
    {IDS_ORDER_SIGNAL, L"signal", 11},
};

std::wstring Lower(std::wstring text) {
    for (wchar_t& c : text)
        c = FoldCase(c);
    return text;
}

} // namespace

std::vector<OrderItem> BuiltInOrderItems() {
    std::vector<OrderItem> items;
    for (const BuiltInItem& row : kBuiltIn)
        items.push_back(OrderItem{Localized(row.name), row.key, row.flag, true});
    return items;
}

const wchar_t* DefaultOrder(bool hasPhone) {
    return hasPhone ? L"Signal,Notify,Connection,Volume,Clock,Menu,Battery,Close"
                    : L"Notify,Connection,Volume,Clock,Menu,Battery,Close";
}

std::wstring ReadOrderValue(const IniDocument& doc, bool hasPhone) {
    return Lower(doc.GetString(kSection, kKey, DefaultOrder(hasPhone), kOrderValueChars));
}

void WriteOrderValue(IniDocument& doc, const std::wstring& value) {
    doc.SetString(kSection, kKey, value.c_str());
}

std::vector<int> ParseOrder(const std::wstring& value, const std::vector<OrderItem>& items) {
    std::vector<int> order;
    size_t start = 0;
    while (start <= value.size() && order.size() < kMaxOrderEntries) {
        size_t end = value.find(L',', start);
        if (end == std::wstring::npos)
            end = value.size();
        const std::wstring word = value.substr(start, end - start);
        for (size_t i = 0; i < items.size() && order.size() < kMaxOrderEntries; ++i) {
            // An empty word names nothing, not even a slot whose key name is absent.
            if (items[i].present && !word.empty() &&
                EqualsNoCase(word.c_str(), items[i].key.c_str()))
                order.push_back(static_cast<int>(i));
        }
        start = end + 1;
    }
    return order;
}

std::wstring JoinOrder(const std::vector<int>& order, const std::vector<OrderItem>& items) {
    std::wstring value;
    for (int index : order) {
        if (index < 0 || static_cast<size_t>(index) >= items.size())
            continue;
        value += Lower(items[static_cast<size_t>(index)].key) + L",";
    }
    if (!value.empty())
        value.pop_back();
    return value;
}

bool ItemVisible(const OrderItem& item, const std::vector<bool>& flags) {
    if (!item.present)
        return false;
    if (item.flag < 0)
        return true;
    return static_cast<size_t>(item.flag) < flags.size() && flags[static_cast<size_t>(item.flag)];
}

std::vector<int> ListedItems(const std::vector<int>& order, const std::vector<OrderItem>& items,
                             const std::vector<bool>& flags) {
    std::vector<int> listed;
    std::vector<bool> placed(items.size(), false);
    for (int index : order) {
        if (index < 0 || static_cast<size_t>(index) >= items.size())
            continue;
        if (ItemVisible(items[static_cast<size_t>(index)], flags)) {
            listed.push_back(index);
            placed[static_cast<size_t>(index)] = true;
        }
    }
    // Built-in items from 1 on, then plug-in items: "Close" (item 0) is left out here.
    for (size_t i = 1; i < items.size(); ++i) {
        if (!placed[i] && ItemVisible(items[i], flags))
            listed.push_back(static_cast<int>(i));
    }
    return listed;
}

} // namespace cv2
