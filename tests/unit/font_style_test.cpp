// Style words and the keys of one font in a settings section.
#include "ui/pickers/font_style.h"

#include <gtest/gtest.h>

#include <string>

#include "font_ini_text.h"

using namespace cv2;

using cv2test::ParsedIni;

TEST(FontStyle, WordsReadWithoutRegardToCase) {
    EXPECT_EQ(StyleFromWords(L"Bold, GLOW"), kFontBold | kFontGlow);
}

TEST(FontStyle, UnknownWordIsIgnored) {
    EXPECT_EQ(StyleFromWords(L"heavy"), 0u);
    EXPECT_EQ(StyleFromWords(L"heavy,italic"), kFontItalic);
}

TEST(FontStyle, WordsSplitAtCommasAndSpaces) {
    EXPECT_EQ(StyleFromWords(L"underline strikeout,,shadow"),
              kFontUnderline | kFontStrikeout | kFontShadow);
    EXPECT_EQ(StyleFromWords(L" , "), 0u);
    EXPECT_EQ(StyleFromWords(nullptr), 0u);
}

TEST(FontStyle, PartOfAWordIsNoWord) {
    EXPECT_EQ(StyleFromWords(L"bolder italics"), 0u);
}

TEST(FontStyle, BoldUnderlineShadowWritesInTheFixedOrder) {
    EXPECT_EQ(StyleToWords(kFontShadow | kFontUnderline | kFontBold), L"bold,underline,shadow");
}

TEST(FontStyle, EveryFlagWritesEveryWordInOrder) {
    EXPECT_EQ(StyleToWords(63), L"bold,italic,underline,strikeout,shadow,glow");
}

TEST(FontStyle, NoFlagsWriteAnEmptyValue) {
    EXPECT_EQ(StyleToWords(0), L"");
}

TEST(FontStyle, WrittenWordsReadBackToTheSameFlags) {
    for (uint32_t style = 0; style < 64; ++style)
        EXPECT_EQ(StyleFromWords(StyleToWords(style).c_str()), style);
}

TEST(FontSizes, OfferedInTheirFixedOrder) {
    const int expected[] = {6, 7, 8, 9, 10, 11, 12, 14, 16, 20, 24, 28, 36};
    ASSERT_EQ(sizeof kFontSizes, sizeof expected);
    for (size_t i = 0; i < sizeof expected / sizeof expected[0]; ++i)
        EXPECT_EQ(kFontSizes[i], expected[i]);
}

TEST(FontKeys, ReadsEveryKeyOfTheSection) {
    const IniDocument doc =
        ParsedIni("[Title Font]\nName=Verdana\nSize=10\nColor=255\nShadow=65280\nStyle=italic\n");
    const FontKeys keys = ReadFontKeys(doc, L"Title Font", L"Tahoma", 8, 0x00FFFFFF, 0, L"shadow");
    EXPECT_EQ(keys.face, L"Verdana");
    EXPECT_EQ(keys.size, 10);
    EXPECT_EQ(keys.color, 255u);
    EXPECT_EQ(keys.shadowColor, 65280u);
    EXPECT_EQ(keys.style, kFontItalic);
}

TEST(FontKeys, MissingSectionTakesEveryDefault) {
    const IniDocument doc;
    const FontKeys keys =
        ReadFontKeys(doc, L"Small Clock Font", L"Tahoma", 6, 0x00FFFFFF, 0, L"shadow");
    EXPECT_EQ(keys.face, L"Tahoma");
    EXPECT_EQ(keys.size, 6);
    EXPECT_EQ(keys.color, 0x00FFFFFFu);
    EXPECT_EQ(keys.shadowColor, 0u);
    EXPECT_EQ(keys.style, kFontShadow);
}

TEST(FontKeys, StyleKeyIsFoundInAnyCase) {
    const IniDocument doc = ParsedIni("[F]\nSTYLE=bold\n");
    EXPECT_EQ(ReadFontKeys(doc, L"F", L"Tahoma", 8, 0, 0, L"").style, kFontBold);
}

TEST(FontKeys, AnEmptyStyleValueMeansNoStyleNotTheDefault) {
    const IniDocument doc = ParsedIni("[F]\nStyle=\n");
    EXPECT_EQ(ReadFontKeys(doc, L"F", L"Tahoma", 8, 0, 0, L"bold").style, 0u);
}

TEST(FontKeys, FaceIsReadUpToFiftyCharacters) {
    const std::string face(60, 'x');
    const IniDocument doc = ParsedIni("[F]\nName=" + face + "\n");
    EXPECT_EQ(ReadFontKeys(doc, L"F", L"Tahoma", 8, 0, 0, L"").face,
              std::wstring(static_cast<size_t>(kFaceReadChars), L'x'));
}

TEST(FontKeys, WritesTheFiveKeysInOrderWithTheStyleCapitalised) {
    IniDocument doc;
    FontKeys keys;
    keys.face = L"Tahoma";
    keys.size = 8;
    keys.color = 16777215;
    keys.shadowColor = 0;
    keys.style = kFontBold | kFontUnderline | kFontShadow;
    WriteFontKeys(doc, L"Clock Font", keys);
    const auto entries = doc.GetSectionEntries(L"Clock Font");
    ASSERT_EQ(entries.size(), 5u);
    const wchar_t* expected[][2] = {{L"Name", L"Tahoma"},
                                    {L"Size", L"8"},
                                    {L"Color", L"16777215"},
                                    {L"Shadow", L"0"},
                                    {L"Style", L"bold,underline,shadow"}};
    for (size_t i = 0; i < 5; ++i) {
        EXPECT_STREQ(entries[i].first, expected[i][0]);
        EXPECT_STREQ(entries[i].second, expected[i][1]);
    }
}

TEST(FontKeys, WritingReplacesAnExistingLowerCaseStyleKey) {
    IniDocument doc = ParsedIni("[F]\nstyle=glow\n");
    FontKeys keys;
    keys.face = L"Tahoma";
    keys.style = kFontItalic;
    WriteFontKeys(doc, L"F", keys);
    EXPECT_EQ(ReadFontKeys(doc, L"F", L"", 0, 0, 0, L"").style, kFontItalic);
    size_t styleKeys = 0;
    for (const auto& e : doc.GetSectionEntries(L"F"))
        styleKeys += EqualsNoCase(e.first, L"style") ? 1 : 0;
    EXPECT_EQ(styleKeys, 1u);
}
