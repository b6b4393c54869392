// The "Order" value of the top bar and which buttons the Button Order list shows.
#include "pages/behaviour/button_order_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace cv2;

namespace {

// Everything shown except Signal Strength, as on a device without a phone with all built-in
// buttons visible.
std::vector<bool> AllShownButSignal() {
    std::vector<bool> flags(12, true);
    flags[11] = false;
    return flags;
}

std::vector<std::wstring> Names(const std::vector<int>& listed,
                                const std::vector<OrderItem>& items) {
    std::vector<std::wstring> names;
    for (int i : listed)
        names.push_back(items[static_cast<size_t>(i)].name);
    return names;
}

IniDocument Doc(const std::string& text) {
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

} // namespace

TEST(ButtonOrder, DefaultsDependOnThePhone) {
    EXPECT_STREQ(L"Signal,Notify,Connection,Volume,Clock,Menu,Battery,Close", DefaultOrder(true));
    EXPECT_STREQ(L"Notify,Connection,Volume,Clock,Menu,Battery,Close", DefaultOrder(false));
}

TEST(ButtonOrder, ReadValueIsLowerCased) {
    EXPECT_EQ(L"notify,connection,volume,clock,menu,battery,close",
              ReadOrderValue(IniDocument(), false));
    EXPECT_EQ(L"clock,home", ReadOrderValue(Doc("[Topbar Settings]\nOrder=Clock,HOME\n"), true));
}

TEST(ButtonOrder, NoOrderKeyWithoutPhoneListsDefaultsThenOtherVisibleButtons) {
    const std::vector<OrderItem> items = BuiltInOrderItems();
    const std::vector<int> order = ParseOrder(ReadOrderValue(IniDocument(), false), items);
    EXPECT_EQ(
        (std::vector<std::wstring>{L"Notification", L"Connection", L"Volume", L"Clock", L"Menu",
                                   L"Battery/Memory", L"Close", L"Home", L"Custom 1", L"Custom 2"}),
        Names(ListedItems(order, items, AllShownButSignal()), items));
}

TEST(ButtonOrder, HiddenButtonsLeaveTheList) {
    const std::vector<OrderItem> items = BuiltInOrderItems();
    std::vector<bool> flags(12, false);
    flags[1] = true; // Clock
    const std::vector<int> order = ParseOrder(L"notify,clock,close", items);
    EXPECT_EQ((std::vector<std::wstring>{L"Clock", L"Close"}),
              Names(ListedItems(order, items, flags), items));
}

TEST(ButtonOrder, OrderEmptiedByHidingGivesAnEmptyValue) {
    const std::vector<OrderItem> items = BuiltInOrderItems();
    const std::vector<int> order = ParseOrder(L"clock", items);
    const std::vector<int> listed = ListedItems(order, items, std::vector<bool>(12, false));
    EXPECT_TRUE(listed.empty());
    EXPECT_EQ(L"", JoinOrder(listed, items));
}

TEST(ButtonOrder, CloseRemovedByHandNeverComesBack) {
    const std::vector<OrderItem> items = BuiltInOrderItems();
    const std::vector<int> order = ParseOrder(L"notify,clock", items);
    const std::vector<int> listed = ListedItems(order, items, std::vector<bool>(12, true));
    EXPECT_EQ(std::wstring::npos, JoinOrder(listed, items).find(L"close"));
}

TEST(ButtonOrder, WordsAreNotTrimmed) {
    const std::vector<OrderItem> items = BuiltInOrderItems();
    EXPECT_EQ(L"notify,volume", JoinOrder(ParseOrder(L"notify, clock,volume", items), items));
}

TEST(ButtonOrder, SavedValuesUseLowerCaseKeyNames) {
    const std::vector<OrderItem> items = BuiltInOrderItems();
    const std::vector<int> order =
        ParseOrder(L"NOTIFY,Connection,Volume,clock,Menu,Battery,Close", items);
    EXPECT_EQ(L"notify,connection,volume,clock,menu,battery,close", JoinOrder(order, items));
}

TEST(ButtonOrder, UnknownWordsAreDroppedAndDuplicatesKept) {
    const std::vector<OrderItem> items = BuiltInOrderItems();
    EXPECT_EQ(L"clock,clock", JoinOrder(ParseOrder(L"clock,,weather,clock", items), items));
}

TEST(ButtonOrder, TheOrderHoldsTwentyFiveEntries) {
    const std::vector<OrderItem> items = BuiltInOrderItems();
    std::wstring value;
    for (int i = 0; i < 30; ++i)
        value += L"clock,";
    EXPECT_EQ(kMaxOrderEntries, ParseOrder(value, items).size());
}

TEST(ButtonOrder, AbsentPluginSlotsMatchNoWordAndNeverShow) {
    std::vector<OrderItem> items = BuiltInOrderItems();
    items.push_back(OrderItem{L"", L"", 12, false});
    items.push_back(OrderItem{L"Weather", L"weather", 13, true});
    std::vector<bool> flags(14, true);
    const std::vector<int> order = ParseOrder(L",weather,", items);
    ASSERT_EQ(1u, order.size());
    EXPECT_EQ(12, order[0]);
    const std::vector<int> listed = ListedItems(order, items, flags);
    for (int i : listed)
        EXPECT_NE(11, i);
    EXPECT_EQ(12, listed.front());
}

TEST(ButtonOrder, VisiblePluginButtonsComeAfterTheBuiltInOnes) {
    std::vector<OrderItem> items = BuiltInOrderItems();
    items.push_back(OrderItem{L"Weather", L"weather", 12, true});
    std::vector<bool> flags(13, false);
    flags[12] = true;
    flags[1] = true;
    EXPECT_EQ((std::vector<std::wstring>{L"Close", L"Clock", L"Weather"}),
              Names(ListedItems(ParseOrder(L"close", items), items, flags), items));
}

TEST(ButtonOrder, WrittenToTopbarSettings) {
    IniDocument doc;
    WriteOrderValue(doc, L"clock,close");
    EXPECT_EQ(L"clock,close", doc.GetString(L"Topbar Settings", L"Order", L""));
}
