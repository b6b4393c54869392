// The sorted entry list of the rule pages and the text helpers around it.
#include "pages/behaviour/rule_list.h"

#include <gtest/gtest.h>

using namespace cv2;

namespace {
std::vector<std::wstring> Texts(const RuleList& list) {
    std::vector<std::wstring> texts;
    for (const RuleEntry& e : list.Entries())
        texts.push_back(e.text);
    return texts;
}
} // namespace

TEST(RuleList, KeepsEntriesAlphabeticalWithoutRegardToCase) {
    RuleList list;
    list.Add(L"phone", 0);
    list.Add(L"Calendar", 1);
    list.Add(L"ActiveSync", 2);
    list.Add(L"notes", 0);
    EXPECT_EQ(Texts(list),
              (std::vector<std::wstring>{L"ActiveSync", L"Calendar", L"notes", L"phone"}));
}

TEST(RuleList, AddReturnsTheSortedPlace) {
    RuleList list;
    EXPECT_EQ(list.Add(L"M", 0), 0u);
    EXPECT_EQ(list.Add(L"Z", 0), 1u);
    EXPECT_EQ(list.Add(L"a", 7), 0u);
    EXPECT_EQ(list[0].data, 7);
}

TEST(RuleList, EqualTextsKeepTheOrderTheyCameIn) {
    RuleList list;
    list.Add(L"Mail", 1);
    list.Add(L"MAIL", 2);
    list.Add(L"mail", 3);
    ASSERT_EQ(list.Size(), 3u);
    EXPECT_EQ(list[0].data, 1);
    EXPECT_EQ(list[1].data, 2);
    EXPECT_EQ(list[2].data, 3);
}

TEST(RuleList, ShorterTextSortsBeforeItsLongerForm) {
    RuleList list;
    list.Add(L"Phone [Ignore]", 0);
    list.Add(L"Phone", 0);
    EXPECT_EQ(list[0].text, L"Phone");
}

TEST(RuleList, LatinOneCapitalsSortWithTheirSmallForms) {
    EXPECT_EQ(CompareListText(L"\u00C9cran", L"\u00E9cran"), 0);
    EXPECT_LT(CompareListText(L"Zebra", L"\u00C9cran"), 0);
}

TEST(RuleList, RemoveOutsideTheListIsRefused) {
    RuleList list;
    list.Add(L"a", 0);
    EXPECT_FALSE(list.Remove(1));
    EXPECT_TRUE(list.Remove(0));
    EXPECT_TRUE(list.Empty());
}

TEST(RuleText, UpperCaseTurnsAsciiAndLatinOneSmallLetters) {
    EXPECT_EQ(UpperCase(L"repligo.exe"), L"REPLIGO.EXE");
    EXPECT_EQ(UpperCase(L"caf\u00e9 \u00f7 1"), L"CAF\u00c9 \u00f7 1");
}

TEST(RuleText, TitleIsCutBeforeTheLastBracketAndItsBlank) {
    EXPECT_EQ(TitleOfLabelledText(L"Inbox [Close]"), L"Inbox");
    EXPECT_EQ(TitleOfLabelledText(L"Notes [2] [Minimize]"), L"Notes [2]");
    EXPECT_EQ(TitleOfLabelledText(L"NoBlank[Show]"), L"NoBlank");
    EXPECT_EQ(TitleOfLabelledText(L" [Hide]"), L"");
    EXPECT_EQ(TitleOfLabelledText(L"Plain"), L"Plain");
}
