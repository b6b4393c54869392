// The stored button assignments: defaults, the copies the bar expects, the three switches and
// how combo texts become stored values.
#include "pages/behaviour/button_assignments_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace cv2;

namespace {

IniDocument Doc(const std::string& text) {
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

std::vector<std::wstring> Labels() {
    std::vector<std::wstring> labels;
    for (size_t i = 0; i < kBuiltInActions; ++i)
        labels.push_back(DefaultText(BuiltInActionLabel(i)));
    return labels;
}

const wchar_t* NoPlugin(const wchar_t*) {
    return nullptr;
}

std::vector<std::wstring> Keys(const IniDocument& doc, const wchar_t* section) {
    std::vector<std::wstring> keys;
    for (const auto& e : doc.GetSectionEntries(section))
        keys.push_back(std::wstring(e.first) + L"=" + e.second);
    return keys;
}

} // namespace

TEST(ButtonAssignments, EmptyActionsSectionGivesTheDefaults) {
    const ButtonAssignments v = ReadAssignments(IniDocument());
    const wchar_t* taps[] = {L"2",  L"7", L"2", L"3", L"10", L"8",
                             L"11", L"5", L"1", L"1", L"16", L"30"};
    const wchar_t* holds[] = {L"5", L"5", L"1", L"1", L"6", L"9",
                              L"1", L"2", L"1", L"1", L"1", L"1"};
    for (size_t row = 0; row < kAssignedButtons; ++row) {
        EXPECT_EQ(taps[row], v.tap[row]) << row;
        EXPECT_EQ(holds[row], v.hold[row]) << row;
    }
}

TEST(ButtonAssignments, ButtonsReadFromTheirNumbers) {
    const ButtonAssignments v = ReadAssignments(
        Doc("[Actions]\nButton 14 Action=21\nButton 15 Action=22\nButton 13 Action=9\n"
            "Button 16 Hold=\\Windows\\x.exe\n"));
    EXPECT_EQ(L"21", v.tap[10]);
    EXPECT_EQ(L"\\Windows\\x.exe", v.hold[11]);
}

TEST(ButtonAssignments, SavedKeysInTheBarsOrder) {
    IniDocument doc;
    WriteAssignments(doc, ReadAssignments(IniDocument()), std::vector<bool>(12, true));
    EXPECT_EQ((std::vector<std::wstring>{
                  L"Button 0 Action=2",  L"Button 0 Hold=5",     L"Button 3 Action=7",
                  L"Button 3 Hold=5",    L"Button 4 Action=2",   L"Button 4 Hold=1",
                  L"Button 5 Action=3",  L"Button 5 Hold=1",     L"Button 6 Action=10",
                  L"Button 7 Action=10", L"Button 6 Hold=6",     L"Button 7 Hold=6",
                  L"Button 8 Action=8",  L"Button 8 Hold=9",     L"Button 9 Action=11",
                  L"Button 9 Hold=1",    L"Button 10 Action=5",  L"Button 10 Hold=2",
                  L"Button 11 Action=1", L"Button 11 Hold=1",    L"Button 12 Action=1",
                  L"Button 12 Hold=1",   L"Button 14 Action=16", L"Button 15 Action=16",
                  L"Button 14 Hold=1",   L"Button 15 Hold=1",    L"Button 16 Action=30",
                  L"Button 16 Hold=1"}),
              Keys(doc, L"Actions"));
    EXPECT_EQ((std::vector<std::wstring>{L"Show Notifications=TRUE", L"Use Start Menu=TRUE"}),
              Keys(doc, L"General Settings"));
    EXPECT_EQ((std::vector<std::wstring>{L"Show Title=TRUE"}), Keys(doc, L"Topbar Settings"));
}

TEST(ButtonAssignments, Button7CopiesButton6AndButton15CopiesButton14) {
    ButtonAssignments v = ReadAssignments(Doc("[Actions]\nButton 7 Action=3\nButton 15 Hold=4\n"));
    v.tap[4] = L"12";
    v.hold[10] = L"\\Program Files\\a.exe";
    IniDocument doc;
    WriteAssignments(doc, v, std::vector<bool>(12, true));
    EXPECT_EQ(L"12", doc.GetString(L"Actions", L"Button 7 Action", L""));
    EXPECT_EQ(doc.GetString(L"Actions", L"Button 6 Action", L""),
              doc.GetString(L"Actions", L"Button 7 Action", L""));
    EXPECT_EQ(L"\\Program Files\\a.exe", doc.GetString(L"Actions", L"Button 15 Hold", L""));
    EXPECT_EQ(doc.GetString(L"Actions", L"Button 14 Hold", L""),
              doc.GetString(L"Actions", L"Button 15 Hold", L""));
}

TEST(ButtonAssignments, NumbersOneTwoAndThirteenAreNeverWritten) {
    IniDocument doc;
    WriteAssignments(doc, ReadAssignments(IniDocument()), std::vector<bool>(12, true));
    for (const wchar_t* key : {L"Button 1 Action", L"Button 2 Hold", L"Button 13 Action"})
        EXPECT_EQ(L"-", doc.GetString(L"Actions", key, L"-")) << key;
}

TEST(ButtonAssignments, SwitchesWrittenFromTheirFlags) {
    std::vector<bool> flags(12, true);
    flags[0] = false;
    flags[2] = false;
    IniDocument doc;
    WriteAssignments(doc, ReadAssignments(IniDocument()), flags);
    EXPECT_FALSE(doc.GetBool(L"General Settings", L"Use Start Menu", true));
    EXPECT_FALSE(doc.GetBool(L"Topbar Settings", L"Show Title", true));
    EXPECT_TRUE(doc.GetBool(L"General Settings", L"Show Notifications", false));
}

TEST(ButtonAssignments, VisibilityFromSwitchesAndTheOrder) {
    const IniDocument doc =
        Doc("[General Settings]\nUse Start Menu=FALSE\n[Topbar Settings]\nShow Title=no\n");
    const std::vector<bool> flags = ReadVisibility(doc, L"clock,home,signal", false, {});
    const std::vector<bool> expected = {false, true,  false, true,  false, false,
                                        true,  false, false, false, false, false};
    EXPECT_EQ(expected, flags);
}

TEST(ButtonAssignments, SignalStrengthShownOnlyWithAPhone) {
    EXPECT_TRUE(ReadVisibility(IniDocument(), L"signal", true, {})[kSignalRow]);
    EXPECT_FALSE(ReadVisibility(IniDocument(), L"signal", false, {})[kSignalRow]);
}

TEST(ButtonAssignments, PluginButtonShownWhenItsKeyIsInTheOrder) {
    const std::vector<bool> flags = ReadVisibility(IniDocument(), L"clock,weather", false,
                                                   {L"Weather", nullptr, L"", L"torch"});
    ASSERT_EQ(16u, flags.size());
    EXPECT_TRUE(flags[12]);
    EXPECT_FALSE(flags[13]); // absent
    EXPECT_FALSE(flags[14]); // unnamed: an empty key is in every order
    EXPECT_FALSE(flags[15]);
}

TEST(ButtonAssignments, TypingTodayInAnyCaseStores11) {
    EXPECT_EQ(L"11", StoredValueOf(L"today", Labels(), NoPlugin));
    EXPECT_EQ(L"11", StoredValueOf(L"TODAY", Labels(), NoPlugin));
}

TEST(ButtonAssignments, ProgramPathStoredVerbatim) {
    EXPECT_EQ(L"\\Program Files\\My App\\App.EXE",
              StoredValueOf(L"\\Program Files\\My App\\App.EXE", Labels(), NoPlugin));
    EXPECT_EQ(L"\"\\a b.exe\"", StoredValueOf(L"\"\\a b.exe\"", Labels(), NoPlugin));
}

TEST(ButtonAssignments, PluginActionNameStoresItsValue) {
    auto plugin = [](const wchar_t* name) -> const wchar_t* {
        return EqualsNoCase(name, L"Sample: Check Mail") ? L"smp.mail" : nullptr;
    };
    EXPECT_EQ(L"smp.mail", StoredValueOf(L"sample: check mail", Labels(), plugin));
}

// An emptied combo is text like any other: it is stored as it stands, not as "no action".
TEST(ButtonAssignments, EmptyTextIsStoredAsItStands) {
    EXPECT_EQ(L"", StoredValueOf(L"", Labels(), NoPlugin));
    const auto plugin = [](const wchar_t*) -> const wchar_t* { return nullptr; };
    EXPECT_EQ(L"", StoredValueOf(L"", Labels(), plugin));
}

TEST(ButtonAssignments, StoredValuesClassified) {
    int row = -1;
    EXPECT_EQ(StoredKind::Empty, ClassifyStored(L"1", row));
    EXPECT_EQ(StoredKind::BuiltIn, ClassifyStored(L"2", row));
    EXPECT_EQ(0, row);
    EXPECT_EQ(StoredKind::BuiltIn, ClassifyStored(L"33", row));
    EXPECT_EQ(31, row);
    EXPECT_EQ(StoredKind::Other, ClassifyStored(L"34", row));
    EXPECT_EQ(StoredKind::Other, ClassifyStored(L"smp.mail", row));
    EXPECT_EQ(StoredKind::Other, ClassifyStored(L"\\Windows\\a.exe", row));
    EXPECT_EQ(StoredKind::Other, ClassifyStored(L"", row));
}
