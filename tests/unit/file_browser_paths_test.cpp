#include <gtest/gtest.h>

#include "ids_ui.h"
#include "ui/browser/browse_paths.h"
#include "ui/browser/browse_templates.h"

using namespace cv2;

using Names = std::vector<std::wstring>;

TEST(FileBrowserFilter, PairsOfLabelAndPatternsBecomeChoices) {
    const std::vector<FilterChoice> choices =
        ParseFilter(L"Graphics Files|*.jpg;*.png;*.gif;*.bmp|All Files|*.*");
    ASSERT_EQ(choices.size(), 2u);
    EXPECT_EQ(choices[0].label, L"Graphics Files");
    EXPECT_EQ(choices[0].patterns, L"*.jpg;*.png;*.gif;*.bmp");
    EXPECT_EQ(choices[1].label, L"All Files");
    EXPECT_EQ(choices[1].patterns, L"*.*");
}

TEST(FileBrowserFilter, LabelWithoutPatternsListsNothing) {
    const std::vector<FilterChoice> choices = ParseFilter(L"All Files|*.*|Odd");
    ASSERT_EQ(choices.size(), 2u);
    EXPECT_EQ(choices[1].label, L"Odd");
    EXPECT_TRUE(SplitPatterns(choices[1].patterns).empty());
}

TEST(FileBrowserFilter, TrailingBarAddsNoChoice) {
    EXPECT_EQ(ParseFilter(L"All Files|*.*|").size(), 1u);
    EXPECT_TRUE(ParseFilter(L"").empty());
}

TEST(FileBrowserFilter, PatternsSplitAtSemicolonsWithoutEmptyParts) {
    EXPECT_EQ(SplitPatterns(L"*.jpg;;*.png;"), (Names{L"*.jpg", L"*.png"}));
}

TEST(FileBrowserPaths, FolderPathSplitsIntoNamesFromTheTop) {
    EXPECT_EQ(SplitFolderPath(L"C:\\Themes\\Blue"), (Names{L"C:", L"Themes", L"Blue"}));
    EXPECT_EQ(SplitFolderPath(L"\\Windows\\Start Menu\\"), (Names{L"Windows", L"Start Menu"}));
    EXPECT_TRUE(SplitFolderPath(L"").empty());
}

TEST(FileBrowserPaths, NamesBelowTheDeviceRootStartAtBackslash) {
    EXPECT_EQ(JoinFolderPath({L"Windows", L"Start Menu"}), L"\\Windows\\Start Menu");
    EXPECT_EQ(JoinFolderPath({}), L"\\");
}

TEST(FileBrowserPaths, DriveNameStartsTheDesktopPath) {
    EXPECT_EQ(JoinFolderPath({L"C:", L"Themes", L"Blue"}), L"C:\\Themes\\Blue");
    EXPECT_EQ(JoinFolderPath({L"z:"}), L"z:\\");
}

TEST(FileBrowserPaths, SplitAndJoinGiveTheSamePathBack) {
    for (const wchar_t* path : {L"C:\\a\\b c", L"\\Storage Card\\Themes"})
        EXPECT_EQ(JoinFolderPath(SplitFolderPath(path)), path);
}

TEST(FileBrowserPaths, PatternJoinsTheFolderWithOneBackslash) {
    EXPECT_EQ(InFolder(L"C:\\", L"*.*"), L"C:\\*.*");
    EXPECT_EQ(InFolder(L"C:\\Themes", L"*.bmp"), L"C:\\Themes\\*.bmp");
}

TEST(FileBrowserPaths, RememberedFolderIsThePathUpToItsLastBackslash) {
    EXPECT_EQ(RememberedFolderOf(L"C:\\Themes\\Blue\\sky.bmp"), L"C:\\Themes\\Blue");
    EXPECT_EQ(RememberedFolderOf(L"\\Windows\\Start Menu"), L"\\Windows");
    EXPECT_EQ(RememberedFolderOf(L"sky.bmp"), L"");
}

TEST(FileBrowserPaths, RememberedFolderIsCutTo260Characters) {
    const std::wstring longFolder = L"C:\\" + std::wstring(300, L'a');
    EXPECT_EQ(RememberedFolderOf(longFolder + L"\\x.bmp"), longFolder.substr(0, 260));
}

TEST(FileBrowserPaths, FilesSortByNameWithoutRegardToCase) {
    Names paths = {L"C:\\p\\beta.jpg", L"C:\\p\\Alpha.png", L"C:\\p\\alpha.jpg",
                   L"C:\\p\\Gamma.bmp", L"C:\\p\\ALPHA.bmp"};
    SortNoCase(paths);
    EXPECT_EQ(paths, (Names{L"C:\\p\\ALPHA.bmp", L"C:\\p\\alpha.jpg", L"C:\\p\\Alpha.png",
                            L"C:\\p\\beta.jpg", L"C:\\p\\Gamma.bmp"}));
}

TEST(FileBrowser, SquareScreenUsesTemplate103WhateverTheOrientation) {
    EXPECT_EQ(BrowserTemplateFor(240, 240), IDD_FILE_BROWSER_SQUARE);
    EXPECT_EQ(BrowserTemplateFor(480, 480), IDD_FILE_BROWSER_SQUARE);
    // A square screen whose width is no portrait width is still square.
    EXPECT_EQ(BrowserTemplateFor(320, 320), IDD_FILE_BROWSER_SQUARE);
    EXPECT_EQ(BrowserTemplateFor(240, 320), IDD_FILE_BROWSER);
    EXPECT_EQ(BrowserTemplateFor(480, 640), IDD_FILE_BROWSER);
    EXPECT_EQ(BrowserTemplateFor(320, 240), IDD_FILE_BROWSER_WIDE);
    EXPECT_EQ(BrowserTemplateFor(640, 480), IDD_FILE_BROWSER_WIDE);
}
