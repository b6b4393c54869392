// The preview command line's words.
#include "app/preview_arguments.h"

#include <gtest/gtest.h>

#include "app/theme_switch.h"

using namespace cv2;

namespace {

PreviewArguments Parsed(const wchar_t* line) {
    PreviewArguments a;
    EXPECT_TRUE(ParsePreviewArguments(line, a)) << "not understood";
    return a;
}

bool Refused(const wchar_t* line) {
    PreviewArguments a;
    return !ParsePreviewArguments(line, a);
}

} // namespace

TEST(PreviewArguments, ThemeAndImageWithTheDefaultScreen) {
    const PreviewArguments a = Parsed(L"--preview=Themes\\A\\a.skin --out=a.bmp");
    EXPECT_EQ(a.theme, L"Themes\\A\\a.skin");
    EXPECT_EQ(a.out, L"a.bmp");
    EXPECT_EQ(a.width, 240);
    EXPECT_EQ(a.height, 320);
    EXPECT_EQ(a.dpi, 96);
    EXPECT_FALSE(a.startMenu);
}

TEST(PreviewArguments, SizeDensityAndStartMenuInAnyOrder) {
    const PreviewArguments a =
        Parsed(L"--start-menu --dpi=120 --out=b.png --size=320x240 --preview=b.skin");
    EXPECT_EQ(a.width, 320);
    EXPECT_EQ(a.height, 240);
    EXPECT_EQ(a.dpi, 120);
    EXPECT_TRUE(a.startMenu);
}

TEST(PreviewArguments, LargeScreensAreDrawnAtHighDensityUnlessToldOtherwise) {
    EXPECT_EQ(Parsed(L"--preview=a --out=b --size=480x640").dpi, 192);
    EXPECT_EQ(Parsed(L"--preview=a --out=b --size=480x320").dpi, 96);
    EXPECT_EQ(Parsed(L"--preview=a --out=b --size=640X480 --dpi=96").dpi, 96);
}

TEST(PreviewArguments, QuotesKeepBlanksInsideAPath) {
    const PreviewArguments a =
        Parsed(L"\"--preview=C:\\My Themes\\a b.skin\" --out=\"C:\\My Pictures\\bar.png\"");
    EXPECT_EQ(a.theme, L"C:\\My Themes\\a b.skin");
    EXPECT_EQ(a.out, L"C:\\My Pictures\\bar.png");
}

TEST(PreviewArguments, MissingThemeOrImageIsRefused) {
    EXPECT_TRUE(Refused(L"--preview=a.skin"));
    EXPECT_TRUE(Refused(L"--out=a.bmp"));
    EXPECT_TRUE(Refused(L"--preview= --out=a.bmp"));
}

TEST(PreviewArguments, BadSizesAndDensitiesAreRefused) {
    for (const wchar_t* line :
         {L"--preview=a --out=b --size=240", L"--preview=a --out=b --size=0x320",
          L"--preview=a --out=b --size=5000x320", L"--preview=a --out=b --size=-240x320",
          L"--preview=a --out=b --size=240x320x2", L"--preview=a --out=b --dpi=12",
          L"--preview=a --out=b --dpi=ninety", L"--preview=a --out=b --dpi=99999999999"})
        EXPECT_TRUE(Refused(line)) << std::string(line, line + wcslen(line));
}

TEST(PreviewArguments, UnknownWordsAreRefused) {
    EXPECT_TRUE(Refused(L"--preview=a --out=b --colour"));
}

TEST(PreviewArguments, PreviewIsRecognisedAnywhereInTheLine) {
    EXPECT_TRUE(IsPreviewCommand(L"--out=b --preview=a"));
    EXPECT_FALSE(IsPreviewCommand(L"--out=b"));
}

TEST(PreviewArguments, ALineWithBothSwitchesIsATheThemeSwitch) {
    // The entry asks for the theme switch first, so "--theme=" keeps its meaning wherever it
    // stands; its value is still read from the ninth character.
    const std::wstring line = L"--preview=a.skin --out=b.bmp --theme=Themes\\X\\X.skin";
    EXPECT_TRUE(IsThemeSwitch(line));
    EXPECT_EQ(ThemeSwitchPath(L"C:\\Dev\\", line),
              L"C:\\Dev\\w=a.skin --out=b.bmp --theme=Themes\\X\\X.skin");
}
