// The phone flag comes from the phone's state key of the local machine.
#include "platform/device_phone.h"

#include <gtest/gtest.h>

#include "plugin_test_support.h"

using namespace cv2test;

TEST(DevicePhone, StateKeyPresentMeansAPhone) {
    PhoneScope phone(true);
    EXPECT_TRUE(cv2::DeviceHasPhone());
}

TEST(DevicePhone, NoStateKeyMeansNoPhone) {
    PhoneScope phone(false);
    EXPECT_FALSE(cv2::DeviceHasPhone());
}
