// The device theme colours read from this machine's registry.
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/device_colors.h"
#include "platform/theme_color_table.h"
#include "platform/theme_colors.h"

using namespace cv2;

namespace {

// Puts the colour key in place for one test and takes it away again.
class ThemeColorKey : public ::testing::Test {
  protected:
    void SetUp() override { RegDeleteTreeW(HKEY_LOCAL_MACHINE, kThemeColorKey); }
    void TearDown() override { RegDeleteTreeW(HKEY_LOCAL_MACHINE, kThemeColorKey); }
    static void Store(const wchar_t* name, DWORD value) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kThemeColorKey, name, REG_DWORD, &value,
                                  sizeof value),
                  ERROR_SUCCESS);
    }
};

} // namespace

TEST_F(ThemeColorKey, WithoutTheKeyTheFallbacksAnswer) {
    EXPECT_EQ(DeviceThemeColor(0), 0x00E76D08u);
    EXPECT_EQ(DeviceThemeColor(6), 0x00C6CFDEu);
    EXPECT_EQ(DeviceThemeColor(1), DeviceSysColor(COLOR_ACTIVECAPTION));
    EXPECT_EQ(DeviceThemeColor(5), DeviceSysColor(COLOR_MENUTEXT));
}

TEST_F(ThemeColorKey, StoredValuesAreRead) {
    Store(L"5", 0x00123456);
    Store(L"8", 0x00654321);
    EXPECT_EQ(DeviceThemeColor(0), 0x00123456u);
    EXPECT_EQ(DeviceThemeColor(1), 0x00654321u);
    EXPECT_EQ(DeviceThemeColor(2), 0x00FFFFFFu);
}

TEST_F(ThemeColorKey, ValueOfAnotherSizeIsNotTaken) {
    const wchar_t text[] = L"12";
    ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kThemeColorKey, L"5", REG_SZ, text, sizeof text),
              ERROR_SUCCESS);
    EXPECT_EQ(DeviceThemeColor(0), 0x00E76D08u);
}
