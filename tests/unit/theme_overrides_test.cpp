// Section "Overrides" of config.ini.
#include "themes/overrides_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace cv2;

TEST(ThemeOverrides, EmptySectionKeepsSoundsAndColorsWithoutCustomTahoma) {
    IniDocument doc;
    const OverrideValues v = ReadOverrideValues(doc);
    EXPECT_TRUE(v.useSounds);
    EXPECT_TRUE(v.useColors);
    EXPECT_FALSE(v.customFont);
    EXPECT_EQ(v.fontName, L"Tahoma");
}

TEST(ThemeOverrides, SaveWritesTheFourKeysInOrder) {
    IniDocument doc;
    OverrideValues v;
    v.useSounds = false;
    v.customFont = true;
    v.fontName = L"Courier New";
    WriteOverrideValues(doc, v);
    std::vector<std::wstring> lines;
    for (const auto& e : doc.GetSectionEntries(L"Overrides"))
        lines.push_back(std::wstring(e.first) + L"=" + e.second);
    EXPECT_EQ(lines, (std::vector<std::wstring>{L"Use Sounds=FALSE", L"Use Colors=TRUE",
                                                L"Custom Font=TRUE", L"Font Name=Courier New"}));
}

TEST(ThemeOverrides, FontNameIsCutTo49Characters) {
    IniDocument doc;
    doc.SetString(L"Overrides", L"Font Name", std::wstring(80, L'f').c_str());
    EXPECT_EQ(ReadOverrideValues(doc).fontName.size(), 49u);
    OverrideValues v;
    v.fontName = std::wstring(80, L'g');
    WriteOverrideValues(doc, v);
    EXPECT_EQ(doc.GetString(L"Overrides", L"Font Name", L"").size(), 49u);
}

TEST(ThemeOverrides, FontFamiliesBeginningWithAtAreNotOffered) {
    EXPECT_FALSE(IsOfferedFontFamily(L"@MS Mincho"));
    EXPECT_FALSE(IsOfferedFontFamily(L""));
    EXPECT_TRUE(IsOfferedFontFamily(L"Tahoma"));
    EXPECT_TRUE(IsOfferedFontFamily(L"Font @ Work"));
}
