#include "store/format_text.h"

#include <gtest/gtest.h>

using cv2::FormatText;

TEST(FormatText, PlacesTakeTheArgumentsInOrder) {
    EXPECT_EQ(FormatText(L"Author: %s\r\nE-Mail: %s", {L"Ann", L"ann@example.org"}),
              L"Author: Ann\r\nE-Mail: ann@example.org");
}

TEST(FormatText, ArgumentsAreNotReadAsPatterns) {
    EXPECT_EQ(FormatText(L"[%s]", {L"100%s"}), L"[100%s]");
}

TEST(FormatText, MissingArgumentsLeaveThePlaceEmpty) {
    EXPECT_EQ(FormatText(L"%s and %s", {L"one"}), L"one and ");
}

TEST(FormatText, DoublePercentIsOnePercentAndOthersStay) {
    EXPECT_EQ(FormatText(L"100%% %d %", {}), L"100% %d %");
}
