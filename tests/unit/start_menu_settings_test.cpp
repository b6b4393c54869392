// The options of Start Menu Settings.
#include "pages/behaviour/check_list_rows.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace cv2;

namespace {
const wchar_t kSection[] = L"Start Menu Settings";
}

TEST(StartMenuSettings, HasFourteenRowsWithTheirLabelNumbers) {
    const CheckTable table = StartMenuRows();
    std::vector<unsigned> ids;
    for (size_t i = 0; i < table.count; ++i)
        ids.push_back(table.rows[i].label);
    EXPECT_EQ(ids, (std::vector<unsigned>{182, 183, 184, 185, 186, 187, 188, 189, 190, 191, 193,
                                          194, 304, 313}));
}

TEST(StartMenuSettings, EmptySectionChecksRows0_1_2_5_7_12And13) {
    IniDocument doc;
    const std::vector<bool> states = ReadCheckRows(StartMenuRows(), doc, nullptr);
    std::vector<int> checked;
    for (size_t i = 0; i < states.size(); ++i) {
        if (states[i])
            checked.push_back(static_cast<int>(i));
    }
    EXPECT_EQ(checked, (std::vector<int>{0, 1, 2, 5, 7, 12, 13}));
}

TEST(StartMenuSettings, SavingWritesAllFourteenKeysAlsoThoseThatWereAbsent) {
    IniDocument doc;
    doc.SetString(kSection, L"Show Find", L"yes");
    WriteCheckRows(StartMenuRows(), ReadCheckRows(StartMenuRows(), doc, nullptr), doc, nullptr);
    std::vector<std::wstring> keys, values;
    for (const auto& e : doc.GetSectionEntries(kSection)) {
        keys.push_back(e.first);
        values.push_back(e.second);
    }
    // The key that was there keeps its place; the others follow in row order.
    EXPECT_EQ(keys, (std::vector<std::wstring>{
                        L"Show Find", L"Start Menu Icons", L"Show Recent Items", L"Show Settings",
                        L"Expand Settings", L"Show Help", L"Cache At Startup",
                        L"Release Backgrounds", L"Cover Taskbar", L"Overlap Menu", L"IE Favorites",
                        L"Folders Bottom", L"Cascading Menu Key", L"Show Desktop"}));
    EXPECT_EQ(values[0], L"TRUE");
    EXPECT_EQ(doc.Sections().size(), 1u);
}

TEST(StartMenuSettings, NegativeLabelOfReleaseBackgroundsStoresTheCheckStateItself) {
    const CheckTable table = StartMenuRows();
    EXPECT_EQ(table.rows[7].label, IDS_START_RELEASE_BACKGROUNDS);
    IniDocument doc;
    std::vector<bool> states(table.count, false);
    states[7] = true;
    WriteCheckRows(table, states, doc, nullptr);
    EXPECT_EQ(doc.GetString(kSection, L"Release Backgrounds", L""), L"TRUE");
    states[7] = false;
    WriteCheckRows(table, states, doc, nullptr);
    EXPECT_EQ(doc.GetString(kSection, L"Release Backgrounds", L""), L"FALSE");
}

TEST(StartMenuSettings, ValuesOtherThanTrueOrYesReadAsUnchecked) {
    IniDocument doc;
    doc.SetString(kSection, L"Start Menu Icons", L"on");
    doc.SetString(kSection, L"Show Help", L"");
    const std::vector<bool> states = ReadCheckRows(StartMenuRows(), doc, nullptr);
    EXPECT_FALSE(states[0]);
    EXPECT_FALSE(states[5]);
}
