// Colour values: their decimal form in settings files, the picker's number boxes and swatch.
#include "ui/pickers/color_value.h"

#include <gtest/gtest.h>

#include <string>

#include "font_ini_text.h"

using namespace cv2;

using cv2test::ParsedIni;

TEST(ColorValue, RedIsTheLowByteThenGreenThenBlue) {
    EXPECT_EQ(MakeColor(0x12, 0x34, 0x56), 0x00563412u);
    EXPECT_EQ(RedOf(0x00563412u), 0x12);
    EXPECT_EQ(GreenOf(0x00563412u), 0x34);
    EXPECT_EQ(BlueOf(0x00563412u), 0x56);
}

TEST(ColorValue, StoredAsTheDecimalOfTheWholeValue) {
    IniDocument doc;
    WriteColor(doc, L"Colors", L"Red", MakeColor(255, 0, 0));
    WriteColor(doc, L"Colors", L"Blue", MakeColor(0, 0, 255));
    WriteColor(doc, L"Colors", L"White", MakeColor(255, 255, 255));
    EXPECT_EQ(doc.GetString(L"Colors", L"Red", L""), L"255");
    EXPECT_EQ(doc.GetString(L"Colors", L"Blue", L""), L"16711680");
    EXPECT_EQ(doc.GetString(L"Colors", L"White", L""), L"16777215");
}

TEST(ColorValue, ReadsTheLeadingNumberAndStopsAtTheFirstNonDigit) {
    const IniDocument doc = ParsedIni("[Colors]\nA=16711680\nB=255abc\nC=blue\n");
    EXPECT_EQ(ReadColor(doc, L"Colors", L"A", 7), 16711680u);
    EXPECT_EQ(ReadColor(doc, L"Colors", L"B", 7), 255u);
    EXPECT_EQ(ReadColor(doc, L"Colors", L"C", 7), 0u);
}

TEST(ColorValue, MissingKeyGivesTheCallersDefault) {
    const IniDocument doc = ParsedIni("[Colors]\nA=1\n");
    EXPECT_EQ(ReadColor(doc, L"Colors", L"Missing", 0x00CCFFFF), 0x00CCFFFFu);
    EXPECT_EQ(ReadColor(doc, L"Nowhere", L"A", 0x00E76D08), 0x00E76D08u);
}

TEST(ColorValue, AValueWithTheTopByteSetReadsBackUnchanged) {
    IniDocument doc;
    WriteColor(doc, L"Colors", L"Odd", 0xFF123456u);
    EXPECT_EQ(ReadColor(doc, L"Colors", L"Odd", 0), 0xFF123456u);
}

TEST(ColorChannelText, OnlyTheFirstFourCharactersCount) {
    EXPECT_EQ(ChannelFromText(L"12345"), 1234);
    EXPECT_EQ(ChannelFromText(L"128"), 128);
}

TEST(ColorChannelText, NumbersPastTheTopAreNotClampedByTheReader) {
    EXPECT_EQ(ChannelFromText(L"300"), 300);
}

TEST(ColorChannelText, LettersGiveZero) {
    EXPECT_EQ(ChannelFromText(L"abc"), 0);
    EXPECT_EQ(ChannelFromText(L""), 0);
    EXPECT_EQ(ChannelFromText(nullptr), 0);
}

TEST(ColorChannelText, DigitsAfterTheFourthCharacterAreIgnored) {
    EXPECT_EQ(ChannelFromText(L"   7"), 7);
    EXPECT_EQ(ChannelFromText(L"    7"), 0);
}

TEST(ColorPreview, AtNinetySixDpiTheSwatchIsTheDesignedRectangle) {
    const PreviewBox box = ColorPreviewBox(96, 96);
    EXPECT_EQ(box.left, 3);
    EXPECT_EQ(box.top, 94);
    EXPECT_EQ(box.right, 78);
    EXPECT_EQ(box.bottom, 117);
}

TEST(ColorPreview, HorizontalEdgesFollowTheVerticalDensityAndViceVersa) {
    const PreviewBox box = ColorPreviewBox(96, 192);
    EXPECT_EQ(box.left, 6);
    EXPECT_EQ(box.right, 156);
    EXPECT_EQ(box.top, 94);
    EXPECT_EQ(box.bottom, 117);
}
