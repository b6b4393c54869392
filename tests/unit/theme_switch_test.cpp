#include "app/theme_switch.h"

#include <gtest/gtest.h>

#include "store/ini_document.h"
#include "temp_folder.h"

using namespace cv2;

namespace {
int g_notified = 0;
void CountNotify() {
    ++g_notified;
}
} // namespace

TEST(ThemeSwitch, RecognisedAnywhereInTheCommandLine) {
    EXPECT_TRUE(IsThemeSwitch(L"--theme=a.skin"));
    EXPECT_TRUE(IsThemeSwitch(L"-x --theme=a.skin"));
    EXPECT_FALSE(IsThemeSwitch(L"--THEME=a.skin"));
    EXPECT_FALSE(IsThemeSwitch(L""));
}

TEST(ThemeSwitch, ValueIsTakenFromTheNinthCharacter) {
    EXPECT_EQ(ThemeSwitchPath(L"\\dev\\", L"--theme=Themes\\X\\X.skin"),
              L"\\dev\\Themes\\X\\X.skin");
    EXPECT_EQ(ThemeSwitchPath(L"\\dev\\", L"-x --theme=a.skin"), L"\\dev\\me=a.skin");
}

TEST(ThemeSwitch, PathIsCutToAPathBuffer) {
    std::wstring longName(400, L'a');
    EXPECT_EQ(ThemeSwitchPath(L"\\d\\", L"--theme=" + longName).size(), 259u);
}

TEST(ThemeSwitch, ExistingThemeIsStoredAndBarIsNotified) {
    cv2test::TempFolder dir;
    dir.Write(L"config.ini", "[Settings]\nTheme File=old\nOther=1\n");
    dir.Write(L"new.skin", "[Skin Info]\n");
    g_notified = 0;
    EXPECT_TRUE(RunThemeSwitch(dir.Path(), L"--theme=new.skin", CountNotify));
    IniDocument config(dir.File(L"config.ini").c_str());
    EXPECT_EQ(config.GetString(L"Settings", L"Theme File", L""), dir.File(L"new.skin"));
    EXPECT_EQ(config.GetString(L"Settings", L"Other", L""), L"1");
    EXPECT_EQ(g_notified, 1);
}

TEST(ThemeSwitch, MissingThemeLeavesConfigUntouchedAndBarUntold) {
    cv2test::TempFolder dir;
    dir.Write(L"config.ini", "; kept as it is\n[Settings]\nTheme File=old\n");
    g_notified = 0;
    EXPECT_FALSE(RunThemeSwitch(dir.Path(), L"--theme=missing.skin", CountNotify));
    EXPECT_EQ(dir.Read(L"config.ini"), "; kept as it is\n[Settings]\nTheme File=old\n");
    EXPECT_EQ(g_notified, 0);
}

TEST(ThemeSwitch, SwitchAfterOtherArgumentsReadsTheWrongValueAndChangesNothing) {
    cv2test::TempFolder dir;
    dir.Write(L"a.skin", "[Skin Info]\n");
    dir.Write(L"config.ini", "[Settings]\nTheme File=old\n");
    g_notified = 0;
    EXPECT_FALSE(RunThemeSwitch(dir.Path(), L"-x --theme=a.skin", CountNotify));
    EXPECT_EQ(dir.Read(L"config.ini"), "[Settings]\nTheme File=old\n");
    EXPECT_EQ(g_notified, 0);
}

TEST(ThemeSwitch, MissingConfigIsCreatedWithJustTheTheme) {
    cv2test::TempFolder dir;
    dir.Write(L"t.skin", "[Skin Info]\n");
    EXPECT_TRUE(RunThemeSwitch(dir.Path(), L"--theme=t.skin", nullptr));
    IniDocument config(dir.File(L"config.ini").c_str());
    ASSERT_EQ(config.Sections().size(), 1u);
    EXPECT_EQ(config.GetSectionEntries(L"Settings").size(), 1u);
}
