// Conversion of themes of the first format into the current appearance sections.
#include "themes/older_theme.h"

#include <gtest/gtest.h>

#include "temp_folder.h"
#include "theme_test_text.h"

using namespace cv2;
using namespace cv2test;

namespace {

const OlderThemeColors kColors = {0x00112233, 0x00445566, 0x00778899};

IniDocument Converted(const std::string& oldTheme, const std::string& config = "",
                      const std::wstring& path = L"\\Themes\\Old\\old.skin") {
    IniDocument target = ThemeText(config);
    ConvertOlderTheme(ThemeText(oldTheme, path), target, kColors);
    return target;
}

std::wstring Value(const IniDocument& doc, const wchar_t* section, const wchar_t* key) {
    return doc.GetString(section, key, L"<missing>");
}

} // namespace

TEST(OlderTheme, RelativeLogoLandsInTheThemeFolder) {
    const IniDocument doc = Converted("Logo=logo.bmp\n");
    EXPECT_EQ(Value(doc, L"Button Images", L"Start Menu Normal"), L"\\Themes\\Old\\logo.bmp");
}

TEST(OlderTheme, RelativeImageOfARealFileLandsBesideIt) {
    TempFolder dir;
    dir.Write(L"old.skin", "Taskbar=bar.bmp\nClose=sub\\close.bmp\n");
    IniDocument source(dir.File(L"old.skin").c_str());
    IniDocument target;
    ConvertOlderTheme(source, target, kColors);
    EXPECT_EQ(Value(target, L"Topbar", L"Portrait"), dir.File(L"bar.bmp"));
    EXPECT_EQ(Value(target, L"Button Images", L"Close Normal"), dir.File(L"sub\\close.bmp"));
}

TEST(OlderTheme, AbsoluteImageStaysAsItIs) {
    const IniDocument doc = Converted("Menubar=\\Storage Card\\menu.bmp\n");
    EXPECT_EQ(Value(doc, L"Today Menubar", L"Portrait"), L"\\Storage Card\\menu.bmp");
}

TEST(OlderTheme, MissingImageBecomesTheThemeFolder) {
    const IniDocument doc = Converted("");
    EXPECT_EQ(Value(doc, L"Button Images", L"SIP Normal"), L"\\Themes\\Old\\");
}

TEST(OlderTheme, ImagesAreWrittenInTableOrderWithTheMenuBarScaled) {
    const IniDocument doc = Converted("Logo=a\nSIPButton=b\nMenubar=m\n");
    EXPECT_EQ(SectionLines(doc, L"Today Menubar"),
              (Lines{L"Portrait=\\Themes\\Old\\m", L"Mode=scaled"}));
    const Lines images = SectionLines(doc, L"Button Images");
    const Lines expectedFront = {L"Start Menu Normal=\\Themes\\Old\\a",
                                 L"Close Normal=\\Themes\\Old\\",
                                 L"Close Pressed=\\Themes\\Old\\",
                                 L"OK Normal=\\Themes\\Old\\",
                                 L"OK Pressed=\\Themes\\Old\\",
                                 L"Notify Normal=\\Themes\\Old\\",
                                 L"Volume Normal=\\Themes\\Old\\",
                                 L"Mute Normal=\\Themes\\Old\\",
                                 L"Battery/Memory Normal=\\Themes\\Old\\",
                                 L"Home Normal=\\Themes\\Old\\",
                                 L"Menu Normal=\\Themes\\Old\\",
                                 L"Custom1 Normal=\\Themes\\Old\\",
                                 L"Custom2 Normal=\\Themes\\Old\\",
                                 L"Connection Normal=\\Themes\\Old\\",
                                 L"Disconnect Normal=\\Themes\\Old\\",
                                 L"SIP Normal=\\Themes\\Old\\b",
                                 L"Battery/Memory Custom=FALSE"};
    EXPECT_EQ(images, expectedFront);
}

TEST(OlderTheme, ClockFontGivesNameSizeZeroColourAndStyleWords) {
    const IniDocument doc = Converted("ClockFont=Tahoma, 9, FF0000, t, f, t\n");
    EXPECT_EQ(SectionLines(doc, L"Clock Font"),
              (Lines{L"Name=Tahoma", L"Size=9", L"Color=0", L"Style=bold,shadow"}));
}

TEST(OlderTheme, FontColourIsAlwaysZeroWhateverTheDigits) {
    EXPECT_EQ(ParseOlderFont(L"Arial,8,FFFFFF,f,f,f").color, 0u);
    EXPECT_EQ(ParseOlderFont(L"Arial,8,123456").color, 0u);
    EXPECT_EQ(ParseOlderFont(L"Arial,8,1").color, 0u);
}

TEST(OlderTheme, FontFlagsAreTWithoutRegardToCase) {
    const OlderFont font = ParseOlderFont(L"Arial , 12 ,000000, T ,t\r\n,x");
    EXPECT_EQ(font.name, L"Arial");
    EXPECT_EQ(font.size, 12);
    EXPECT_TRUE(font.bold);
    EXPECT_TRUE(font.italic);
    EXPECT_FALSE(font.shadow);
    EXPECT_EQ(OlderFontStyle(font), L"bold,italic");
}

TEST(OlderTheme, FontWithFewerFieldsWritesEmptyLaterKeys) {
    const IniDocument doc = Converted("TitleFont=Courier\nSmallClockFont=\n");
    EXPECT_EQ(SectionLines(doc, L"Title Font"),
              (Lines{L"Name=Courier", L"Size=0", L"Color=0", L"Style="}));
    EXPECT_EQ(SectionLines(doc, L"Small Clock Font"),
              (Lines{L"Name=", L"Size=0", L"Color=0", L"Style="}));
}

TEST(OlderTheme, FontTextIsCutTo255Characters) {
    const std::string name(300, 'n');
    const IniDocument doc = Converted("ClockFont=" + name + ",9\n");
    EXPECT_EQ(Value(doc, L"Clock Font", L"Name").size(), 255u);
    EXPECT_EQ(Value(doc, L"Clock Font", L"Size"), L"0");
}

TEST(OlderTheme, BackgroundMode2002IsGradientWithThemeColours) {
    const IniDocument doc = Converted("BGMode=2002\n");
    EXPECT_EQ(Value(doc, L"Topbar", L"Mode"), L"Gradient");
    EXPECT_EQ(Value(doc, L"Topbar", L"Use Theme Colors"), L"TRUE");
}

TEST(OlderTheme, NoBackgroundModeIsScaled) {
    const IniDocument doc = Converted("Taskbar=t.bmp\n");
    EXPECT_EQ(SectionLines(doc, L"Topbar"),
              (Lines{L"Portrait=\\Themes\\Old\\t.bmp", L"Mode=Scaled"}));
}

TEST(OlderTheme, BackgroundModeIsComparedWithoutRegardToCase) {
    EXPECT_EQ(Value(Converted("BGMode=fILE\n"), L"Topbar", L"Mode"), L"Scaled");
    EXPECT_EQ(Value(Converted("BGMode=SOLID\n"), L"Topbar", L"Mode"), L"color");
    EXPECT_EQ(Value(Converted("BGMode=Gradient\n"), L"Topbar", L"Mode"), L"Gradient");
}

TEST(OlderTheme, GradientTakesItsColoursOrTheDeviceThemeColours) {
    const IniDocument given = Converted("BGMode=gradient\nLeftGrad=255\nRightGrad=65280\n");
    EXPECT_EQ(Value(given, L"Topbar", L"Left Color"), L"255");
    EXPECT_EQ(Value(given, L"Topbar", L"Right Color"), L"65280");
    EXPECT_EQ(Value(given, L"Topbar", L"Use Theme Colors"), L"<missing>");
    const IniDocument device = Converted("BGMode=gradient\n");
    EXPECT_EQ(Value(device, L"Topbar", L"Left Color"), std::to_wstring(kColors.themeColor0));
    EXPECT_EQ(Value(device, L"Topbar", L"Right Color"), std::to_wstring(kColors.themeColor1));
}

TEST(OlderTheme, SolidTakesItsColourOrTheActiveCaptionColour) {
    EXPECT_EQ(Value(Converted("BGMode=solid\nSolidColor=42\n"), L"Topbar", L"Solid Color"), L"42");
    EXPECT_EQ(Value(Converted("BGMode=solid\n"), L"Topbar", L"Solid Color"),
              std::to_wstring(kColors.activeCaption));
}

TEST(OlderTheme, UnknownBackgroundModeWritesNoBackgroundKeys) {
    const IniDocument doc = Converted("BGMode=tiled\n");
    EXPECT_EQ(SectionLines(doc, L"Topbar"), (Lines{L"Portrait=\\Themes\\Old\\"}));
}

TEST(OlderTheme, CustomBatteryColourIsCarriedAsBoolean) {
    EXPECT_EQ(
        Value(Converted("CustomBatteryColor=yes\n"), L"Button Images", L"Battery/Memory Custom"),
        L"TRUE");
    EXPECT_EQ(
        Value(Converted("CustomBatteryColor=1\n"), L"Button Images", L"Battery/Memory Custom"),
        L"FALSE");
}

TEST(OlderTheme, ReplacedSectionsGoAndOthersStay) {
    const IniDocument doc = Converted(
        "Logo=l\n", "[Settings]\nTheme File=x\n[Sounds]\nStart=s.wav\n[Buttons]\nA=1\n"
                    "[SoftKey]\nMode=tiled\n[Skin Info]\nName=N\nHiRes=TRUE\n[Colors]\nWindow=1\n");
    EXPECT_EQ(SectionNames(doc),
              (Lines{L"Settings", L"SoftKey", L"Colors", L"Skin Info", L"Button Images", L"Topbar",
                     L"Today Menubar", L"Clock Font", L"Title Font", L"Small Clock Font"}));
    EXPECT_EQ(SectionLines(doc, L"Skin Info"), (Lines{L"HiRes=FALSE"}));
    EXPECT_EQ(SectionLines(doc, L"SoftKey"), (Lines{L"Mode=tiled"}));
}

TEST(OlderTheme, BinaryFileConvertsWithoutHarm) {
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>((i * 7919) & 0xFF);
    const IniDocument doc = Converted(bytes);
    EXPECT_TRUE(doc.HasSection(L"Topbar"));
}
