// The theme catalogue scan and the texts of its entries, on real folders.
#include "themes/theme_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/file_access.h"
#include "store/paths.h"
#include "temp_folder.h"
#include "theme_test_text.h"

using namespace cv2;
using namespace cv2test;

namespace {

const wchar_t kPrefix[] = L"[1.x Theme] ";

Lines g_reads; // what the observer heard

void NoteRead(const std::wstring& path) {
    g_reads.push_back(path);
}

// A device folder: the program's folder with its "Themes\" below it.
class ThemeCatalogue : public ::testing::Test {
  protected:
    void Theme(const std::wstring& relative, const std::string& text) const {
        const size_t slash = relative.find_last_of(L'\\');
        if (slash != std::wstring::npos)
            m_dir.MakeFolder(relative.substr(0, slash));
        m_dir.Write(relative, text);
    }
    std::vector<ThemeEntry> Scan(const std::string& config = "") const {
        return ScanThemes(m_dir.Path(), ThemeText(config));
    }
    // The display texts of the scan, sorted as the list shows them.
    Lines Listed(const std::string& config = "") const {
        Lines texts;
        for (const ThemeEntry& e : Scan(config))
            texts.push_back(ThemeDisplayText(e, kPrefix));
        std::sort(texts.begin(), texts.end());
        return texts;
    }
    ThemeEntry Only(const std::string& text) const {
        Theme(L"Themes\\T\\t.skin", text);
        const std::vector<ThemeEntry> found = Scan();
        EXPECT_EQ(found.size(), 1u);
        return found.empty() ? ThemeEntry() : found[0];
    }

    TempFolder m_dir;
};

} // namespace

TEST_F(ThemeCatalogue, NamedThemeIsListedUnderItsName) {
    Theme(L"Themes\\Blue\\blue.skin", "[Skin Info]\nName=Deep Blue\nAuthor=Ann\n");
    EXPECT_EQ(Listed(), Lines{L"Deep Blue"});
}

TEST_F(ThemeCatalogue, EmptyNameListedUnderFileName) {
    Theme(L"Themes\\Plain\\My.Plain.skin", "[Skin Info]\nName=\nAuthor=Ann\n");
    EXPECT_EQ(Listed(), Lines{L"My.Plain"});
}

TEST_F(ThemeCatalogue, OlderThemeIsListedWithThePrefixAndHasNoDetails) {
    const ThemeEntry entry = Only("Logo=logo.bmp\nAuthor=Bob\n[Other]\nName=x\n");
    EXPECT_FALSE(entry.isCurrentFormat);
    EXPECT_EQ(ThemeDisplayText(entry, kPrefix), L"[1.x Theme] t");
    EXPECT_EQ(entry.author, L"");
    EXPECT_EQ(entry.name, L"");
}

TEST_F(ThemeCatalogue, BinarySkinIsListedLikeAnOlderTheme) {
    std::string bytes;
    for (int i = 0; i < 2000; ++i)
        bytes += static_cast<char>((i * 131 + 7) & 0xFF);
    const ThemeEntry entry = Only(bytes);
    EXPECT_FALSE(entry.isCurrentFormat);
}

TEST_F(ThemeCatalogue, EntryFieldsAreReadFromSkinInfo) {
    const ThemeEntry entry = Only("[Skin Info]\nAuthor=Ann\nAuthorEmail=ann@example.org\n"
                                  "Name=N\nNotes=Some notes\nHiRes=yes\n");
    EXPECT_TRUE(entry.isCurrentFormat);
    EXPECT_EQ(entry.path, m_dir.File(L"Themes\\T\\t.skin"));
    EXPECT_EQ(entry.author, L"Ann");
    EXPECT_EQ(entry.authorEmail, L"ann@example.org");
    EXPECT_EQ(entry.name, L"N");
    EXPECT_EQ(entry.notes, L"Some notes");
    EXPECT_TRUE(entry.hiRes);
}

TEST_F(ThemeCatalogue, EntryTextsAreCutToTheirBuffers) {
    const std::string longText(400, 'x');
    const ThemeEntry entry = Only("[Skin Info]\nAuthor=" + longText + "\nAuthorEmail=" + longText +
                                  "\nName=" + longText + "\nNotes=" + longText + "\nHiRes=1\n");
    EXPECT_EQ(entry.author.size(), 49u);
    EXPECT_EQ(entry.authorEmail.size(), 99u);
    EXPECT_EQ(entry.name.size(), 99u);
    EXPECT_EQ(entry.notes.size(), 259u);
    EXPECT_FALSE(entry.hiRes);
}

TEST_F(ThemeCatalogue, OnlySkinFilesInSubfoldersAreListed) {
    Theme(L"Themes\\loose.skin", "[Skin Info]\nName=Loose\n");
    Theme(L"Themes\\A\\a.skin", "[Skin Info]\nName=A\n");
    Theme(L"Themes\\A\\b.SKIN", "[Skin Info]\nName=B\n");
    Theme(L"Themes\\A\\readme.txt", "[Skin Info]\nName=Text\n");
    Theme(L"Themes\\A\\deeper\\d.skin", "[Skin Info]\nName=Deeper\n");
    EXPECT_EQ(Listed(), (Lines{L"A", L"B"}));
}

TEST_F(ThemeCatalogue, ThemeDirectoriesAreScannedAfterTheThemesFolderInListedOrder) {
    Theme(L"Themes\\A\\a.skin", "[Skin Info]\nName=Main\n");
    Theme(L"Card\\Themes\\C\\c.skin", "[Skin Info]\nName=Card\n");
    Theme(L"More\\M\\m.skin", "[Skin Info]\nName=More\n");
    const std::wstring base = m_dir.Path();
    const std::string root(base.begin(), base.end());
    const std::string config =
        "[Theme Directories]\nz=" + root + "More\n1=" + root + "Card\\Themes\\\n";
    Lines found;
    for (const ThemeEntry& e : Scan(config))
        found.push_back(e.name);
    EXPECT_EQ(found, (Lines{L"Main", L"More", L"Card"}));
}

// The folders are read by several threads at once; what they find comes out as one thread
// reading the folders in turn would give it.
TEST_F(ThemeCatalogue, ManyFoldersComeOutInTheOrderOfReadingThemOneAfterAnother) {
    for (int i = 0; i < 60; ++i) {
        const std::wstring n = std::to_wstring(i);
        Theme(L"Themes\\F" + n + L"\\a" + n + L".skin", "[Skin Info]\nName=A" + std::to_string(i));
        if (i % 3 == 0)
            Theme(L"Themes\\F" + n + L"\\b" + n + L".skin", "[Skin Info]\nName=B");
        if (i % 7 == 0)
            m_dir.MakeFolder(L"Themes\\Empty" + n);
        if (i % 5 == 0)
            Theme(L"More\\M" + n + L"\\m.skin", "Logo=older.bmp\n");
    }
    const std::vector<std::wstring> folders = {m_dir.File(L"Themes\\"), m_dir.File(L"More")};
    std::vector<ThemeEntry> inTurn;
    for (const std::wstring& folder : folders) {
        for (const std::wstring& sub : ListSubfolders(folder))
            ScanThemeFolder(FolderWithSlash(folder) + sub, inTurn);
    }
    Lines expected, found;
    for (const ThemeEntry& e : inTurn)
        expected.push_back(e.path + L"|" + e.name);
    for (const ThemeEntry& e : ScanThemes(folders))
        found.push_back(e.path + L"|" + e.name);
    EXPECT_EQ(inTurn.size(), 60u + 20u + 12u);
    EXPECT_EQ(found, expected);
}

TEST_F(ThemeCatalogue, EverySkinIsReadOnceWhileThreadsShareTheFolders) {
    Lines written;
    for (int i = 0; i < 40; ++i) {
        const std::wstring file = L"Themes\\F" + std::to_wstring(i) + L"\\t.skin";
        Theme(file, "[Skin Info]\nName=T\n");
        written.push_back(m_dir.File(file));
    }
    g_reads.clear();
    ObserveFileReads(NoteRead);
    const size_t found = Scan().size();
    ObserveFileReads(nullptr);
    std::sort(g_reads.begin(), g_reads.end());
    std::sort(written.begin(), written.end());
    EXPECT_EQ(found, 40u);
    EXPECT_EQ(g_reads, written);
}

TEST_F(ThemeCatalogue, MissingThemeDirectoriesAndVanishedFoldersAreNoError) {
    Theme(L"Themes\\A\\a.skin", "[Skin Info]\nName=Main\n");
    EXPECT_EQ(Listed("[Settings]\nTheme File=x\n"), Lines{L"Main"});
    EXPECT_EQ(Listed("[Theme Directories]\n1=\\No Such Folder\n2=\n"), Lines{L"Main"});
}

TEST_F(ThemeCatalogue, NoThemesFolderListsNothing) {
    EXPECT_TRUE(Scan().empty());
}

TEST_F(ThemeCatalogue, SkinFileOfSeveralMegabytesWithTenThousandSectionsIsListed) {
    std::string text = "[Skin Info]\nName=Big\n";
    for (int i = 0; text.size() < 3 * 1024 * 1024; ++i)
        text += "[Section " + std::to_string(i) + "]\nKey=" + std::string(300, 'v') + "\n";
    const ThemeEntry entry = Only(text);
    EXPECT_EQ(entry.name, L"Big");
}

TEST_F(ThemeCatalogue, LongFolderNamesAreListedOrSkippedWithoutHarm) {
    const std::wstring longName(200, L'f');
    Theme(L"Themes\\" + longName + L"\\" + std::wstring(120, L'n') + L".skin",
          "[Skin Info]\nName=Far\n");
    Theme(L"Themes\\A\\a.skin", "[Skin Info]\nName=Near\n");
    const std::vector<ThemeEntry> found = Scan();
    ASSERT_GE(found.size(), 1u);
    for (const ThemeEntry& e : found)
        EXPECT_LT(e.path.size(), 260u);
}

TEST_F(ThemeCatalogue, DetailsShowAuthorMailAndHiRes) {
    ThemeEntry entry;
    entry.author = L"Ann";
    entry.authorEmail = L"a@b";
    entry.hiRes = true;
    EXPECT_EQ(ThemeDetailsText(entry), L"Author: Ann\r\nE-Mail: a@b\r\nHiRes: Yes\r\n");
    entry.hiRes = false;
    entry.notes = L"Line";
    EXPECT_EQ(ThemeDetailsText(entry),
              L"Author: Ann\r\nE-Mail: a@b\r\nHiRes: No\r\n\r\nNotes: \r\nLine");
}

TEST_F(ThemeCatalogue, DefaultThemeIsCVDefaultBesideTheProgram) {
    EXPECT_EQ(DefaultThemeFile(L"\\Program Files\\CV\\"),
              L"\\Program Files\\CV\\Themes\\CVDefault\\CVDefault.skin");
}

TEST(ThemeOnCard, CardFolderIsTheFirstComponentOfTheThemesFolder) {
    EXPECT_EQ(CardFolder(L"\\Storage Card\\Themes\\A\\a.skin"), L"\\Storage Card");
    EXPECT_EQ(CardFolder(L"\\Storage Card\\a.skin"), L"\\Storage Card");
    EXPECT_EQ(CardFolder(L"C:\\Themes\\A\\a.skin"), L"C:");
    EXPECT_EQ(CardFolder(L"a.skin"), L"");
}

TEST(ThemeOnCard, TemporaryAttributeMarksACard) {
    EXPECT_TRUE(IsCardAttributes(kAttributeTemporary | kAttributeFolder));
    EXPECT_FALSE(IsCardAttributes(kAttributeFolder));
}

TEST(ThemeOnCard, FailedAttributeQueryCountsAsOnCard) {
    EXPECT_TRUE(IsCardAttributes(kNoFileAttributes));
    EXPECT_TRUE(ThemeOnCard(L"\\No Such Card Folder\\Themes\\A\\a.skin"));
}

TEST(ThemeOnCard, ThemeInAnOrdinaryFolderIsNotOnCard) {
    TempFolder dir;
    dir.MakeFolder(L"A");
    dir.Write(L"A\\a.skin", "[Skin Info]\n");
    EXPECT_FALSE(ThemeOnCard(dir.File(L"A\\a.skin")));
}
