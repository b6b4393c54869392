// The files a theme names: which ones the bar would not find, and copying them into a theme's own
// folder. On real folders.
#include "themes/theme_files.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/file_access.h"
#include "temp_folder.h"
#include "theme_test_text.h"

using namespace cv2;
using namespace cv2test;

namespace {

const std::vector<PathKey> kKeys = {
    {L"Topbar", L"Portrait"}, {L"Topbar", L"Landscape"}, {L"Sounds", L"Startup"},
    {L"Buttons", L"normal"},  {L"Notify.*", L"Normal"},
};

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

std::vector<std::wstring> ValuesOf(const std::vector<ThemeFileValue>& found) {
    std::vector<std::wstring> values;
    for (const ThemeFileValue& v : found)
        values.push_back(v.value);
    return values;
}

class ThemeFiles : public ::testing::Test {
  protected:
    // `theme\` holds the theme; `elsewhere\` and `other\` hold pictures it names by full path.
    void SetUp() override {
        m_dir.MakeFolder(L"theme");
        m_dir.MakeFolder(L"elsewhere");
        m_dir.MakeFolder(L"other");
        m_dir.Write(L"theme\\here.bmp", "here");
        m_dir.Write(L"elsewhere\\far.bmp", "far");
        m_dir.Write(L"elsewhere\\bar.png", "first bar");
        m_dir.Write(L"other\\bar.png", "second bar");
    }
    std::wstring Folder(const wchar_t* name) const { return m_dir.File(name) + L"\\"; }
    std::string Full(const wchar_t* relative) const { return Narrow(m_dir.File(relative)); }

    TempFolder m_dir;
};

} // namespace

TEST_F(ThemeFiles, MissingFilesAreExactlyTheAbsentOnesInDocumentOrder) {
    const IniDocument theme = ThemeText("[Sounds]\nStartup=" + Full(L"elsewhere\\gone.wav") +
                                        "\n[Topbar]\nPortrait=here.bmp\nLandscape=gone.bmp\n"
                                        "[Buttons]\nnormal=" +
                                        Full(L"elsewhere\\far.bmp") + "\npressed=absent.bmp\n" +
                                        "[Notify.Mail]\nNormal=\n");
    const std::vector<ThemeFileValue> missing = MissingFiles(theme, Folder(L"theme"), kKeys);
    const std::vector<std::wstring> expected = {m_dir.File(L"elsewhere\\gone.wav"), L"gone.bmp"};
    EXPECT_EQ(ValuesOf(missing), expected);
    ASSERT_EQ(missing.size(), 2u);
    EXPECT_EQ(missing[1].section, L"Topbar");
    EXPECT_EQ(missing[1].key, L"Landscape");
}

TEST_F(ThemeFiles, KeysThatNameNoFileAreNeverListed) {
    const IniDocument theme =
        ThemeText("[Topbar]\nMode=missing.bmp\nName=Tahoma\n[Buttons]\npressed=gone.bmp\n");
    EXPECT_TRUE(MissingFiles(theme, Folder(L"theme"), kKeys).empty());
}

TEST_F(ThemeFiles, SectionsNamedAfterEntriesMatchTheirPattern) {
    const IniDocument theme = ThemeText("[Notify.Mail]\nNormal=gone.bmp\n[NotifyX]\nNormal=x\n");
    EXPECT_EQ(ValuesOf(MissingFiles(theme, Folder(L"theme"), kKeys)),
              std::vector<std::wstring>{L"gone.bmp"});
}

TEST_F(ThemeFiles, PathLongerThanAnyBufferIsReportedMissing) {
    const std::string longName(400, 'x');
    const IniDocument theme = ThemeText("[Topbar]\nPortrait=" + longName + ".bmp\n");
    EXPECT_EQ(MissingFiles(theme, Folder(L"theme"), kKeys).size(), 1u);
}

TEST_F(ThemeFiles, RelativeValuesResolveInsideTheThemeFolder) {
    EXPECT_EQ(ResolveThemeFile(L"a.bmp", L"\\T\\"), L"\\T\\a.bmp");
    EXPECT_EQ(ResolveThemeFile(L"a.bmp", L"\\T"), L"\\T\\a.bmp");
    EXPECT_EQ(ResolveThemeFile(L"\\X\\a.bmp", L"\\T\\"), L"\\X\\a.bmp");
}

TEST_F(ThemeFiles, CopyingBringsOutsideFilesInUnderTheirBareNames) {
    m_dir.MakeFolder(L"export");
    IniDocument theme = ThemeText("[Topbar]\nPortrait=" + Full(L"elsewhere\\far.bmp") +
                                  "\nLandscape=" + Full(L"elsewhere\\far.bmp") + "\n");
    const std::vector<std::wstring> failed =
        CopyThemeFiles(theme, Folder(L"theme"), Folder(L"export"), kKeys);
    EXPECT_TRUE(failed.empty());
    EXPECT_EQ(theme.GetString(L"Topbar", L"Portrait", L""), L"far.bmp");
    EXPECT_EQ(theme.GetString(L"Topbar", L"Landscape", L""), L"far.bmp");
    EXPECT_EQ(m_dir.Read(L"export\\far.bmp"), "far");
    EXPECT_TRUE(ListFiles(Folder(L"export"), L"*").size() == 1u) << "copied once";
}

TEST_F(ThemeFiles, SameNameFromTwoFoldersGetsANumberedName) {
    m_dir.MakeFolder(L"export");
    IniDocument theme = ThemeText("[Topbar]\nPortrait=" + Full(L"elsewhere\\bar.png") +
                                  "\nLandscape=" + Full(L"other\\bar.png") + "\n");
    EXPECT_TRUE(CopyThemeFiles(theme, Folder(L"theme"), Folder(L"export"), kKeys).empty());
    EXPECT_EQ(theme.GetString(L"Topbar", L"Portrait", L""), L"bar.png");
    EXPECT_EQ(theme.GetString(L"Topbar", L"Landscape", L""), L"bar (2).png");
    EXPECT_EQ(m_dir.Read(L"export\\bar.png"), "first bar");
    EXPECT_EQ(m_dir.Read(L"export\\bar (2).png"), "second bar");
}

TEST_F(ThemeFiles, FileAlreadyThereWithTheSameBytesIsReused) {
    m_dir.MakeFolder(L"export");
    m_dir.Write(L"export\\far.bmp", "far");
    IniDocument theme = ThemeText("[Topbar]\nPortrait=" + Full(L"elsewhere\\far.bmp") + "\n");
    EXPECT_TRUE(CopyThemeFiles(theme, Folder(L"theme"), Folder(L"export"), kKeys).empty());
    EXPECT_EQ(theme.GetString(L"Topbar", L"Portrait", L""), L"far.bmp");
    EXPECT_EQ(ListFiles(Folder(L"export"), L"*").size(), 1u);
}

TEST_F(ThemeFiles, RelativeValuesAreCopiedFromTheSourceFolder) {
    m_dir.MakeFolder(L"export");
    IniDocument theme = ThemeText("[Topbar]\nPortrait=here.bmp\nLandscape=gone.bmp\n");
    EXPECT_TRUE(CopyThemeFiles(theme, Folder(L"theme"), Folder(L"export"), kKeys).empty());
    EXPECT_EQ(m_dir.Read(L"export\\here.bmp"), "here");
    EXPECT_EQ(theme.GetString(L"Topbar", L"Landscape", L""), L"gone.bmp") << "missing stays";
}

TEST_F(ThemeFiles, FilesInsideTheTargetFolderAreLeftAlone) {
    IniDocument theme = ThemeText("[Topbar]\nPortrait=" + Full(L"theme\\here.bmp") + "\n");
    EXPECT_TRUE(CopyThemeFiles(theme, Folder(L"theme"), Folder(L"theme"), kKeys).empty());
    EXPECT_EQ(theme.GetString(L"Topbar", L"Portrait", L""), m_dir.File(L"theme\\here.bmp"));
}

TEST_F(ThemeFiles, CopyIntoAMissingFolderFailsAndKeepsTheValues) {
    IniDocument theme = ThemeText("[Topbar]\nPortrait=" + Full(L"elsewhere\\far.bmp") +
                                  "\nLandscape=" + Full(L"elsewhere\\far.bmp") + "\n");
    const std::vector<std::wstring> failed =
        CopyThemeFiles(theme, Folder(L"theme"), Folder(L"nowhere"), kKeys);
    EXPECT_EQ(failed, std::vector<std::wstring>{m_dir.File(L"elsewhere\\far.bmp")});
    EXPECT_EQ(theme.GetString(L"Topbar", L"Portrait", L""), m_dir.File(L"elsewhere\\far.bmp"));
}

TEST_F(ThemeFiles, ThousandsOfValuesAreChecked) {
    std::string text = "[Topbar]\n";
    for (int i = 0; i < 5000; ++i)
        text += "Portrait=gone" + std::to_string(i) + ".bmp\n";
    const IniDocument theme = ThemeText(text);
    EXPECT_EQ(MissingFiles(theme, Folder(L"theme"), kKeys).size(), 5000u);
}

TEST_F(ThemeFiles, MissingFilesParagraphCountsAllAndShowsFive) {
    std::vector<ThemeFileValue> missing;
    for (int i = 0; i < 7; ++i)
        missing.push_back({L"Topbar", L"Portrait", L"p" + std::to_wstring(i) + L".bmp"});
    EXPECT_EQ(MissingFilesText(missing, L"\r\nMissing files: %s\r\n"),
              L"\r\nMissing files: 7\r\np0.bmp\r\np1.bmp\r\np2.bmp\r\np3.bmp\r\np4.bmp\r\n");
    EXPECT_EQ(MissingFilesText({}, L"\r\nMissing files: %s\r\n"), L"");
}
