// What Program Directories reads from and writes into config.ini.
#include "pages/behaviour/program_directories_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace cv2;

namespace {

using Folders = std::vector<std::wstring>;

IniDocument Parse(const std::string& text) {
    IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

std::string Text(const IniDocument& doc) {
    std::string text = doc.Serialize();
    std::string plain;
    for (char c : text) {
        if (c != '\r')
            plain += c;
    }
    return plain;
}

} // namespace

TEST(ProgramDirectories, DefaultStartMenuIsTheFolderAboveProgramsWithBackslash) {
    EXPECT_EQ(DefaultStartMenuPath(L"\\Windows\\Start Menu\\Programs"), L"\\Windows\\Start Menu\\");
    EXPECT_EQ(DefaultStartMenuPath(L"C:\\Users\\u\\Start Menu\\Programs"),
              L"C:\\Users\\u\\Start Menu\\");
}

TEST(ProgramDirectories, UnknownProgramsFolderGivesTheDeviceStartMenu) {
    EXPECT_EQ(DefaultStartMenuPath(L""), L"\\Windows\\Start Menu\\");
    EXPECT_EQ(DefaultStartMenuPath(L"Programs"), L"\\Windows\\Start Menu\\");
}

TEST(ProgramDirectories, MissingStartMenuPathReadsTheDefault) {
    const IniDocument doc = Parse("[Start Menu Settings]\nShow Find=TRUE\n");
    EXPECT_EQ(LoadStartMenuPath(doc, L"\\X\\"), L"\\X\\");
    EXPECT_EQ(LoadStartMenuPath(Parse("[Start Menu Settings]\nStart Menu Path=\\M\\\n"), L"\\X\\"),
              L"\\M\\");
}

TEST(ProgramDirectories, StartMenuPathIsStoredAsItStandsCutToItsBuffer) {
    IniDocument doc;
    SaveStartMenuPath(doc, L"\\Not There");
    EXPECT_EQ(doc.GetString(kStartMenuSection, kStartMenuPathKey, L""), L"\\Not There");
    SaveStartMenuPath(doc, std::wstring(300, L'a'));
    EXPECT_EQ(doc.GetString(kStartMenuSection, kStartMenuPathKey, L"", 1024).size(), 259u);
}

TEST(ProgramDirectories, ThemeDirectoriesAreReadInFileOrderIgnoringKeys) {
    const IniDocument doc = Parse("[Theme Directories]\n7=\\B\nx=\\A\n1=\\C\n");
    EXPECT_EQ(LoadThemeDirectories(doc), (Folders{L"\\B", L"\\A", L"\\C"}));
}

TEST(ProgramDirectories, WithoutThemeDirectoriesSectionListIsEmptyAndSaveWritesEmptySection) {
    IniDocument doc = Parse("[Settings]\nTheme File=a.skin\n");
    const Folders folders = LoadThemeDirectories(doc);
    EXPECT_TRUE(folders.empty());
    SaveThemeDirectories(doc, folders);
    EXPECT_TRUE(doc.HasSection(kThemeDirectoriesSection));
    EXPECT_EQ(Text(doc), "[Settings]\nTheme File=a.skin\n\n[Theme Directories]\n\n");
}

TEST(ProgramDirectories, TwoFoldersFirstEndingInBackslashAreSavedAsOneAndTwoWithoutIt) {
    IniDocument doc;
    SaveThemeDirectories(doc, {L"\\Storage Card\\Themes\\", L"C:\\More Themes"});
    EXPECT_EQ(Text(doc), "[Theme Directories]\n1=\\Storage Card\\Themes\n2=C:\\More Themes\n\n");
}

TEST(ProgramDirectories, OnlyOneTrailingBackslashIsRemoved) {
    IniDocument doc;
    SaveThemeDirectories(doc, {L"\\A\\\\"});
    EXPECT_EQ(LoadThemeDirectories(doc), (Folders{L"\\A\\"}));
}

TEST(ProgramDirectories, RemovingAllFoldersLeavesTheSectionWithNoEntries) {
    IniDocument doc = Parse("[Theme Directories]\n1=\\A\n2=\\B\n3=\\C\n[After]\nk=v\n");
    SaveThemeDirectories(doc, {});
    EXPECT_TRUE(doc.GetSectionEntries(kThemeDirectoriesSection).empty());
    EXPECT_EQ(Text(doc), "[Theme Directories]\n\n[After]\nk=v\n\n");
}

TEST(ProgramDirectories, FewerFoldersLeaveNoOldNumberedKeys) {
    IniDocument doc = Parse("[Theme Directories]\n1=\\A\n2=\\B\n3=\\C\n");
    SaveThemeDirectories(doc, {L"\\C"});
    EXPECT_EQ(Text(doc), "[Theme Directories]\n1=\\C\n\n");
}
