// The device theme colours: registry value names and fall-backs.
#include "platform/theme_color_table.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace cv2;

namespace {

bool NothingStored(const wchar_t*, uint32_t&) {
    return false;
}
ColorRef SystemAnswer(int index) {
    return 0x00010000u + static_cast<ColorRef>(index);
}

} // namespace

TEST(ThemeColors, WithoutTheRegistryKeyColourZeroAndSixAreTheirFixedFallbacks) {
    EXPECT_EQ(ResolveThemeColor(0, NothingStored, SystemAnswer), 0x00E76D08u);
    EXPECT_EQ(ResolveThemeColor(6, NothingStored, SystemAnswer), 0x00C6CFDEu);
    EXPECT_EQ(ResolveThemeColor(2, NothingStored, SystemAnswer), 0x00FFFFFFu);
    EXPECT_EQ(ResolveThemeColor(3, NothingStored, SystemAnswer), 0x00E76D08u);
    EXPECT_EQ(ResolveThemeColor(7, NothingStored, SystemAnswer), 0u);
}

TEST(ThemeColors, SystemFallbacksAreActiveCaptionAndMenuText) {
    EXPECT_EQ(ResolveThemeColor(1, NothingStored, SystemAnswer), SystemAnswer(2));
    EXPECT_EQ(ResolveThemeColor(4, NothingStored, SystemAnswer), SystemAnswer(2));
    EXPECT_EQ(ResolveThemeColor(5, NothingStored, SystemAnswer), SystemAnswer(7));
}

TEST(ThemeColors, StoredValuesAreReadUnderTheirNumbers) {
    const std::map<std::wstring, uint32_t> stored = {{L"5", 10},  {L"8", 11},  {L"9", 12},
                                                     {L"13", 13}, {L"14", 14}, {L"39", 15},
                                                     {L"7", 16},  {L"4", 17}};
    const auto read = [&](const wchar_t* name, uint32_t& value) {
        const auto it = stored.find(name);
        if (it == stored.end())
            return false;
        value = it->second;
        return true;
    };
    for (int i = 0; i < kThemeColorCount; ++i)
        EXPECT_EQ(ResolveThemeColor(i, read, SystemAnswer), 10u + static_cast<unsigned>(i));
}

TEST(ThemeColors, IndexOutsideZeroToSevenIsBlack) {
    EXPECT_EQ(ResolveThemeColor(-1, NothingStored, SystemAnswer), 0u);
    EXPECT_EQ(ResolveThemeColor(8, NothingStored, SystemAnswer), 0u);
    EXPECT_EQ(ThemeColorRowAt(8), nullptr);
}
