#include "platform/device_screens.h"

#include <gtest/gtest.h>

using namespace cv2;

TEST(DeviceScreens, SixScreensWithTheirSizesAndDensities) {
    size_t count = 0;
    const DeviceScreen* screens = DeviceScreens(&count);
    ASSERT_EQ(count, 6u);
    const int expected[6][3] = {{240, 320, 96},  {320, 240, 96},  {240, 240, 96},
                                {480, 640, 192}, {640, 480, 192}, {480, 480, 192}};
    for (size_t i = 0; i < count; ++i) {
        EXPECT_EQ(screens[i].width, expected[i][0]) << i;
        EXPECT_EQ(screens[i].height, expected[i][1]) << i;
        EXPECT_EQ(screens[i].dpi, expected[i][2]) << i;
    }
}

TEST(DeviceScreens, FoundByNameInAnyCase) {
    const DeviceScreen* screen = FindDeviceScreen(L"QVGA-Landscape");
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(screen->width, 320);
    EXPECT_EQ(screen->height, 240);
}

TEST(DeviceScreens, UnknownNameFindsNothing) {
    EXPECT_EQ(FindDeviceScreen(L"vga"), nullptr);
    EXPECT_EQ(FindDeviceScreen(L"vga-portrait2"), nullptr);
    EXPECT_EQ(FindDeviceScreen(L""), nullptr);
}

TEST(DeviceScreens, DesktopLargerThanEverySideShowsADeviceScreen) {
    EXPECT_TRUE(ShowsDeviceScreen(1280, 800));
    EXPECT_TRUE(ShowsDeviceScreen(1920, 1080));
    EXPECT_TRUE(ShowsDeviceScreen(641, 641));
}

TEST(DeviceScreens, DeviceSizedScreenKeepsTheWholeScreen) {
    size_t count = 0;
    const DeviceScreen* screens = DeviceScreens(&count);
    for (size_t i = 0; i < count; ++i)
        EXPECT_FALSE(ShowsDeviceScreen(screens[i].width, screens[i].height)) << i;
    EXPECT_FALSE(ShowsDeviceScreen(800, 600));
    EXPECT_FALSE(ShowsDeviceScreen(640, 1024));
}

TEST(DeviceScreens, TallWorkAreaStartsWithVgaPortrait) {
    EXPECT_STREQ(DefaultDeviceScreen(720).name, L"vga-portrait");
    EXPECT_STREQ(DefaultDeviceScreen(1040).name, L"vga-portrait");
}

TEST(DeviceScreens, ShortWorkAreaStartsWithQvgaPortrait) {
    EXPECT_STREQ(DefaultDeviceScreen(719).name, L"qvga-portrait");
    EXPECT_STREQ(DefaultDeviceScreen(600).name, L"qvga-portrait");
}

TEST(DeviceScreens, ScreenArgumentRunsToTheNextBlank) {
    EXPECT_EQ(ScreenArgument(L"--screen=qvga-landscape"), L"qvga-landscape");
    EXPECT_EQ(ScreenArgument(L"-x --screen=vga-square -y"), L"vga-square");
    EXPECT_EQ(ScreenArgument(L"--theme=a.skin"), L"");
    EXPECT_EQ(ScreenArgument(L""), L"");
}
