#include "pages/behaviour/delay_settings.h"

#include <gtest/gtest.h>

using namespace cv2;

TEST(DelaySettings, KeysAndDefaultsInPageOrder) {
    EXPECT_STREQ(kDelaySettings[0].key, L"Startup Delay");
    EXPECT_STREQ(kDelaySettings[0].defaultValue, L"0");
    EXPECT_STREQ(kDelaySettings[1].key, L"Phone Refresh");
    EXPECT_STREQ(kDelaySettings[1].defaultValue, L"10");
    EXPECT_STREQ(kDelaySettings[2].key, L"Boot Delay");
    EXPECT_STREQ(kDelaySettings[2].defaultValue, L"5");
    EXPECT_STREQ(kDelaySettings[3].key, L"Notify Interval");
    EXPECT_STREQ(kDelaySettings[3].defaultValue, L"60");
}

TEST(DelaySettings, RefreshBelowOneBecomesTen) {
    EXPECT_EQ(DelayValueToStore(kDelaySettings[1], L"0"), L"10");
    EXPECT_EQ(DelayValueToStore(kDelaySettings[1], L""), L"10");
    EXPECT_EQ(DelayValueToStore(kDelaySettings[1], L"1"), L"1");
    EXPECT_EQ(DelayValueToStore(kDelaySettings[1], L"25"), L"25");
}

TEST(DelaySettings, OnlyTheRefreshIsChecked) {
    EXPECT_EQ(DelayValueToStore(kDelaySettings[0], L""), L"");
    EXPECT_EQ(DelayValueToStore(kDelaySettings[2], L"0"), L"0");
    EXPECT_EQ(DelayValueToStore(kDelaySettings[3], L""), L"");
}
