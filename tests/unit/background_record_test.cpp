// The background record: mode words and the seven keys of a background in a settings section.
#include "ui/backgrounds/background_record.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "font_ini_text.h"

using namespace cv2;

using cv2test::ParsedIni;

namespace {

const BackgroundDefaults kDefaults = {0x00112233, 0x00445566, 0x00778899};

std::vector<std::wstring> KeysOf(const IniDocument& doc, const wchar_t* section) {
    std::vector<std::wstring> keys;
    for (const IniDocument::EntryRef& e : doc.GetSectionEntries(section))
        keys.push_back(e.first);
    return keys;
}

std::wstring ValueOf(const IniDocument& doc, const wchar_t* section, const wchar_t* key) {
    return doc.GetString(section, key, L"<missing>");
}

} // namespace

TEST(BackgroundMode, WordsNameTheFiveModesInListOrder) {
    EXPECT_EQ(ModeFromWord(L"scaled"), kModeScaled);
    EXPECT_EQ(ModeFromWord(L"tiled"), kModeTiled);
    EXPECT_EQ(ModeFromWord(L"color"), kModeColor);
    EXPECT_EQ(ModeFromWord(L"gradient"), kModeGradient);
    EXPECT_EQ(ModeFromWord(L"none"), kModeNone);
    EXPECT_EQ(kModeScaled, 0);
    EXPECT_EQ(kModeNone, 4);
}

TEST(BackgroundMode, WordIsReadWithoutRegardToCase) {
    EXPECT_EQ(ModeFromWord(L"Tiled"), kModeTiled);
    EXPECT_EQ(ModeFromWord(L"GRADIENT"), kModeGradient);
    EXPECT_EQ(ModeFromWord(L"nOnE"), kModeNone);
}

TEST(BackgroundMode, WordOutsideTheFiveIsAColourFill) {
    EXPECT_EQ(ModeFromWord(L"stretched"), kModeColor);
    EXPECT_EQ(ModeFromWord(L""), kModeColor);
    EXPECT_EQ(ModeFromWord(L"scaled "), kModeColor);
    EXPECT_EQ(ModeFromWord(nullptr), kModeColor);
}

TEST(BackgroundMode, EachModeWritesItsWord) {
    EXPECT_STREQ(ModeWord(kModeScaled), L"scaled");
    EXPECT_STREQ(ModeWord(kModeTiled), L"tiled");
    EXPECT_STREQ(ModeWord(kModeColor), L"color");
    EXPECT_STREQ(ModeWord(kModeGradient), L"gradient");
    EXPECT_STREQ(ModeWord(kModeNone), L"none");
}

TEST(BackgroundMode, ValueOutsideTheFiveWritesColor) {
    EXPECT_STREQ(ModeWord(-1), L"color");
    EXPECT_STREQ(ModeWord(5), L"color");
    EXPECT_STREQ(ModeWord(0x7FFFFFFF), L"color");
}

TEST(BackgroundMode, WrittenWordsReadBackToTheSameMode) {
    for (int32_t mode = 0; mode < kBackgroundModeCount; ++mode)
        EXPECT_EQ(ModeFromWord(ModeWord(mode)), mode);
}

TEST(BackgroundRecord, MissingKeysTakeTheirDefaults) {
    const BackgroundRecord r = ReadBackground(ParsedIni("[Topbar]\n"), L"Topbar", kDefaults);
    EXPECT_EQ(r.portraitImage, L"");
    EXPECT_EQ(r.landscapeImage, L"");
    EXPECT_EQ(r.mode, kModeColor);
    EXPECT_EQ(r.solidColor, kDefaults.solidColor);
    EXPECT_EQ(r.leftColor, kDefaults.leftColor);
    EXPECT_EQ(r.rightColor, kDefaults.rightColor);
    EXPECT_NE(r.useThemeColors, 0u);
}

TEST(BackgroundRecord, MissingSectionIsNoError) {
    const BackgroundRecord r = ReadBackground(ParsedIni(""), L"Menubar", kDefaults);
    EXPECT_EQ(r.mode, kModeColor);
    EXPECT_EQ(r.solidColor, kDefaults.solidColor);
}

TEST(BackgroundRecord, ReadsEveryKey) {
    const IniDocument doc = ParsedIni("[Menubar]\n"
                                      "Portrait=\\Themes\\Blue\\bar.png\n"
                                      "Landscape=\\Themes\\Blue\\bar_l.png\n"
                                      "Mode=gradient\n"
                                      "Solid Color=255\n"
                                      "Left Color=16711680\n"
                                      "Right Color=16777215\n"
                                      "Use Theme Colors=FALSE\n");
    const BackgroundRecord r = ReadBackground(doc, L"Menubar", kDefaults);
    EXPECT_EQ(r.portraitImage, L"\\Themes\\Blue\\bar.png");
    EXPECT_EQ(r.landscapeImage, L"\\Themes\\Blue\\bar_l.png");
    EXPECT_EQ(r.mode, kModeGradient);
    EXPECT_EQ(r.solidColor, MakeColor(255, 0, 0));
    EXPECT_EQ(r.leftColor, MakeColor(0, 0, 255));
    EXPECT_EQ(r.rightColor, MakeColor(255, 255, 255));
    EXPECT_EQ(r.useThemeColors, 0u);
}

TEST(BackgroundRecord, KeysAreFoundWithoutRegardToCase) {
    const IniDocument doc = ParsedIni("[topbar]\nMODE=none\nsolid color=7\nuse theme colors=no\n");
    const BackgroundRecord r = ReadBackground(doc, L"Topbar", kDefaults);
    EXPECT_EQ(r.mode, kModeNone);
    EXPECT_EQ(r.solidColor, 7u);
    EXPECT_EQ(r.useThemeColors, 0u);
}

TEST(BackgroundRecord, UseThemeColorsReadsTrueForYes) {
    const IniDocument doc = ParsedIni("[Topbar]\nUse Theme Colors=Yes\n");
    EXPECT_NE(ReadBackground(doc, L"Topbar", kDefaults).useThemeColors, 0u);
}

TEST(BackgroundRecord, TiledWithACapitalLoadsAsTiledAndSavesAsTiled) {
    const BackgroundRecord r =
        ReadBackground(ParsedIni("[Topbar]\nMode=Tiled\n"), L"Topbar", kDefaults);
    EXPECT_EQ(r.mode, kModeTiled);
    IniDocument out;
    WriteBackground(out, L"Topbar", r);
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Mode"), L"tiled");
}

TEST(BackgroundRecord, UnknownModeLoadsAsColourAndSavesAsColor) {
    const BackgroundRecord r =
        ReadBackground(ParsedIni("[Topbar]\nMode=stretched\n"), L"Topbar", kDefaults);
    EXPECT_EQ(r.mode, kModeColor);
    IniDocument out;
    WriteBackground(out, L"Topbar", r);
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Mode"), L"color");
}

TEST(BackgroundRecord, PathLongerThanItsBufferIsCut) {
    const std::string longPath(400, 'p');
    const BackgroundRecord r = ReadBackground(
        ParsedIni("[Topbar]\nPortrait=" + longPath + "\nLandscape=" + longPath + "\n"), L"Topbar",
        kDefaults);
    EXPECT_EQ(r.portraitImage, std::wstring(kBackgroundPathChars - 1, L'p'));
    EXPECT_EQ(r.landscapeImage, std::wstring(kBackgroundPathChars - 1, L'p'));
}

TEST(BackgroundRecord, WritesTheSevenKeysInOrder) {
    BackgroundRecord r;
    r.portraitImage = L"\\a.png";
    r.landscapeImage = L"\\b.png";
    r.mode = kModeScaled;
    r.solidColor = MakeColor(255, 0, 0);
    r.leftColor = MakeColor(0, 0, 255);
    r.rightColor = MakeColor(255, 255, 255);
    r.useThemeColors = 0;
    IniDocument out;
    WriteBackground(out, L"Topbar", r);
    const std::vector<std::wstring> expected = {L"Portrait",        L"Landscape",  L"Mode",
                                                L"Solid Color",     L"Left Color", L"Right Color",
                                                L"Use Theme Colors"};
    EXPECT_EQ(KeysOf(out, L"Topbar"), expected);
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Portrait"), L"\\a.png");
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Landscape"), L"\\b.png");
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Mode"), L"scaled");
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Solid Color"), L"255");
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Left Color"), L"16711680");
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Right Color"), L"16777215");
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Use Theme Colors"), L"FALSE");
}

TEST(BackgroundRecord, ThemeColoursFlagWritesTrue) {
    BackgroundRecord r;
    r.useThemeColors = 5;
    IniDocument out;
    WriteBackground(out, L"Topbar", r);
    EXPECT_EQ(ValueOf(out, L"Topbar", L"Use Theme Colors"), L"TRUE");
}

TEST(BackgroundRecord, WritingReplacesTheKeysInPlace) {
    IniDocument doc = ParsedIni("[Topbar]\nMode=tiled\nExtra=1\nPortrait=\\old.png\n");
    BackgroundRecord r = ReadBackground(doc, L"Topbar", kDefaults);
    r.portraitImage = L"\\new.png";
    WriteBackground(doc, L"Topbar", r);
    EXPECT_EQ(ValueOf(doc, L"Topbar", L"Portrait"), L"\\new.png");
    EXPECT_EQ(ValueOf(doc, L"Topbar", L"Extra"), L"1");
    EXPECT_EQ(KeysOf(doc, L"Topbar").size(), 8u);
}

TEST(BackgroundRecord, WrittenRecordReadsBackUnchanged) {
    BackgroundRecord r;
    r.portraitImage = L"\\Themes\\x\\p.bmp";
    r.landscapeImage = L"";
    r.mode = kModeGradient;
    r.solidColor = 0x00FFFFFF;
    r.leftColor = 0x00010203;
    r.rightColor = 0;
    r.useThemeColors = 0;
    IniDocument doc;
    WriteBackground(doc, L"Today Menubar", r);
    const BackgroundRecord back = ReadBackground(doc, L"Today Menubar", kDefaults);
    EXPECT_EQ(back.portraitImage, r.portraitImage);
    EXPECT_EQ(back.landscapeImage, r.landscapeImage);
    EXPECT_EQ(back.mode, r.mode);
    EXPECT_EQ(back.solidColor, r.solidColor);
    EXPECT_EQ(back.leftColor, r.leftColor);
    EXPECT_EQ(back.rightColor, r.rightColor);
    EXPECT_EQ(back.useThemeColors, r.useThemeColors);
}

TEST(BackgroundDefaults, DeviceThemeColoursGiveTheGradientEnds) {
    const ColorRef c0 = 0x00010101, c1 = 0x00020202;
    const BackgroundDefaults d = MakeBackgroundDefaults(0x00ABCDEF, &c0, &c1);
    EXPECT_EQ(d.solidColor, 0x00ABCDEFu);
    EXPECT_EQ(d.leftColor, c0);
    EXPECT_EQ(d.rightColor, c1);
}

TEST(BackgroundDefaults, MissingThemeColoursFallBack) {
    const BackgroundDefaults d = MakeBackgroundDefaults(0x00ABCDEF, nullptr, nullptr);
    EXPECT_EQ(d.solidColor, 0x00ABCDEFu);
    EXPECT_EQ(d.leftColor, MakeColor(0x08, 0x6D, 0xE7));
    EXPECT_EQ(d.rightColor, 0x00ABCDEFu);
}
