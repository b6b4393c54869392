// Exporting a theme as one package: the .skin and every file it names under one folder named
// after the theme, written whole or not at all, and a package that installs as a healthy theme.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "archive/zip_reader.h"
#include "platform/file_access.h"
#include "temp_folder.h"
#include "themes/theme_files.h"
#include "themes/theme_package.h"

using namespace cv2;
using namespace cv2test;

namespace {

const std::vector<PathKey> kKeys = {
    {L"Topbar", L"Portrait"},
    {L"Topbar", L"Landscape"},
    {L"Sounds", L"Startup"},
    {L"Menubar", L"Normal"},
};

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

class StringSink : public ArchiveSink {
  public:
    bool Write(const unsigned char* data, size_t count) override {
        text.append(reinterpret_cast<const char*>(data), count);
        return true;
    }
    std::string text;
};

class PackageExportTest : public ::testing::Test {
  protected:
    // The edited theme is config.ini of `device\`; its pictures lie in two other folders, one
    // beside config.ini, and one picture is missing.
    void SetUp() override {
        m_dir.MakeFolder(L"device");
        m_dir.MakeFolder(L"art1");
        m_dir.MakeFolder(L"art2");
        m_dir.MakeFolder(L"out");
        m_dir.Write(L"art1\\bar.bmp", "BM-one");
        m_dir.Write(L"art2\\bar.bmp", "BM-two");
        m_dir.Write(L"device\\start.wav", "RIFF-start");
        m_dir.Write(L"device\\config.ini", "[Settings]\r\n");
        m_edited.Load(m_dir.File(L"device\\config.ini"));
    }
    void TearDown() override { InjectWriteFault(WriteStep::None, 0); }

    // The document the pages would have saved into, bound to `skinPath`.
    IniDocument Exported(const std::wstring& skinPath) const {
        IniDocument theme;
        theme.Load(skinPath);
        theme.SetString(L"Skin Info", L"Name", L"Blue Glass");
        theme.SetString(L"Topbar", L"Portrait", m_dir.File(L"art1\\bar.bmp").c_str());
        theme.SetString(L"Topbar", L"Landscape", m_dir.File(L"art2\\bar.bmp").c_str());
        theme.SetString(L"Sounds", L"Startup", L"start.wav");
        theme.SetString(L"Menubar", L"Normal", m_dir.File(L"art1\\gone.bmp").c_str());
        return theme;
    }
    // Name and bytes of every entry of the package at `path`.
    std::vector<std::pair<std::wstring, std::string>> Entries(const std::wstring& path) const {
        std::vector<std::pair<std::wstring, std::string>> found;
        FileSource source;
        ZipReader reader;
        if (!source.Open(path) || !reader.Open(source).Ok())
            return found;
        for (const ZipEntry& e : reader.Entries()) {
            StringSink sink;
            reader.Extract(e, sink);
            found.emplace_back(e.name + (e.folder ? L"/" : L""), sink.text);
        }
        return found;
    }

    TempFolder m_dir;
    IniDocument m_edited;
};

} // namespace

TEST_F(PackageExportTest, PackageHoldsTheSkinAndEveryFileUnderOneFolder) {
    IniDocument theme = Exported(m_dir.File(L"out\\blue.skin"));
    const PackageExport result = ExportPackage(theme, m_edited, L"Blue Glass", kKeys);
    ASSERT_TRUE(result.written);
    EXPECT_TRUE(result.unreadable.empty());
    const auto entries = Entries(m_dir.File(L"out\\blue.zip"));
    ASSERT_EQ(entries.size(), 5u);
    EXPECT_EQ(entries[0].first, L"Blue Glass/");
    EXPECT_EQ(entries[1].first, L"Blue Glass/blue.skin");
    EXPECT_EQ(entries[2],
              std::make_pair(std::wstring(L"Blue Glass/bar.bmp"), std::string("BM-one")));
    EXPECT_EQ(entries[3],
              std::make_pair(std::wstring(L"Blue Glass/bar (2).bmp"), std::string("BM-two")));
    EXPECT_EQ(entries[4],
              std::make_pair(std::wstring(L"Blue Glass/start.wav"), std::string("RIFF-start")));
    const std::string skin = entries[1].second;
    EXPECT_NE(skin.find("Portrait=bar.bmp"), std::string::npos) << skin;
    EXPECT_NE(skin.find("Landscape=bar (2).bmp"), std::string::npos) << skin;
    EXPECT_NE(skin.find("Startup=start.wav"), std::string::npos) << skin;
    EXPECT_NE(skin.find("Normal=" + Narrow(m_dir.File(L"art1\\gone.bmp"))), std::string::npos)
        << "a missing file keeps its path";
}

TEST_F(PackageExportTest, ExportWritesNoFolderAndNoSkinBesideThePackage) {
    IniDocument theme = Exported(m_dir.File(L"out\\blue.skin"));
    ASSERT_TRUE(ExportPackage(theme, m_edited, L"Blue Glass", kKeys).written);
    EXPECT_EQ(ListFiles(m_dir.File(L"out"), L"*"), std::vector<std::wstring>{L"blue.zip"});
    EXPECT_TRUE(ListSubfolders(m_dir.File(L"out")).empty());
}

TEST_F(PackageExportTest, ExportedPackageInstallsAsAThemeWithNothingMissing) {
    IniDocument theme = Exported(m_dir.File(L"out\\blue.skin"));
    theme.SetString(L"Menubar", L"Normal", L"");
    ASSERT_TRUE(ExportPackage(theme, m_edited, L"Blue Glass", kKeys).written);
    RemoveFolderTree(m_dir.File(L"art1"));
    RemoveFolderTree(m_dir.File(L"art2"));
    m_dir.MakeFolder(L"fresh");
    const InstallResult installed =
        InstallPackage(m_dir.File(L"out\\blue.zip"), m_dir.File(L"fresh\\Themes"), nullptr);
    ASSERT_EQ(installed.problem, InstallProblem::None) << InstallMessage(installed).c_str();
    IniDocument back;
    ASSERT_TRUE(back.Load(m_dir.File(L"fresh\\Themes\\Blue Glass\\blue.skin")));
    EXPECT_TRUE(MissingFiles(back, m_dir.File(L"fresh\\Themes\\Blue Glass"), kKeys).empty());
    EXPECT_EQ(m_dir.Read(L"fresh\\Themes\\Blue Glass\\bar (2).bmp"), "BM-two");
}

TEST_F(PackageExportTest, FailedWriteLeavesTheOldPackageWholeAndNoTemporaryFile) {
    m_dir.Write(L"out\\blue.zip", "old package");
    for (const WriteStep step : {WriteStep::CreateTemporary, WriteStep::Write, WriteStep::Flush,
                                 WriteStep::Close, WriteStep::Replace}) {
        InjectWriteFault(step, 112);
        IniDocument theme = Exported(m_dir.File(L"out\\blue.skin"));
        const PackageExport result = ExportPackage(theme, m_edited, L"Blue Glass", kKeys);
        EXPECT_FALSE(result.written);
        EXPECT_EQ(result.failure.step, step);
        EXPECT_EQ(m_dir.Read(L"out\\blue.zip"), "old package");
        EXPECT_EQ(ListFiles(m_dir.File(L"out"), L"*"), std::vector<std::wstring>{L"blue.zip"});
    }
}

TEST_F(PackageExportTest, PackagePathsComeFromTheEnteredPath) {
    const PackagePaths fromSkin = PackagePathsFor(L"\\Out\\Blue.skin");
    EXPECT_EQ(fromSkin.skin, L"\\Out\\Blue.skin");
    EXPECT_EQ(fromSkin.package, L"\\Out\\Blue.zip");
    const PackagePaths fromZip = PackagePathsFor(L"\\Out\\Blue.ZIP");
    EXPECT_EQ(fromZip.skin, L"\\Out\\Blue.skin");
    EXPECT_EQ(fromZip.package, L"\\Out\\Blue.zip");
    EXPECT_EQ(PackagePathsFor(L"\\Out\\Blue").package, L"\\Out\\Blue.zip");
}

TEST_F(PackageExportTest, FolderIsNamedAfterTheThemeMadeFitForAFolder) {
    EXPECT_EQ(PackageFolderName(L"Blue Glass", L"\\Out\\blue.skin"), L"Blue Glass");
    EXPECT_EQ(PackageFolderName(L"Blue: 2/3?", L"\\Out\\blue.skin"), L"Blue_ 2_3_");
    EXPECT_EQ(PackageFolderName(L"Night...", L"\\Out\\blue.skin"), L"Night");
    EXPECT_EQ(PackageFolderName(L"", L"\\Out\\blue.skin"), L"blue");
    EXPECT_EQ(PackageFolderName(L"CON", L"\\Out\\blue.skin"), L"blue");
}

#ifndef _WIN32
// Debian's unzip tests the package and unpacks it to the same bytes.
TEST_F(PackageExportTest, UnzipTestsThePackageAndUnpacksTheSameBytes) {
    IniDocument theme = Exported(m_dir.File(L"out\\blue.skin"));
    ASSERT_TRUE(ExportPackage(theme, m_edited, L"Blue Glass", kKeys).written);
    const std::string zip = "'" + Narrow(m_dir.File(L"out\\blue.zip")) + "'";
    const std::string slashed = [&] {
        std::string s = zip;
        for (char& c : s)
            if (c == '\\')
                c = '/';
        return s;
    }();
    ASSERT_EQ(std::system(("/usr/bin/unzip -tq " + slashed + " >/dev/null").c_str()), 0);
    std::string into = Narrow(m_dir.File(L"unzipped"));
    for (char& c : into)
        if (c == '\\')
            c = '/';
    ASSERT_EQ(std::system(("/usr/bin/unzip -q " + slashed + " -d '" + into + "'").c_str()), 0);
    EXPECT_EQ(m_dir.Read(L"unzipped\\Blue Glass\\bar.bmp"), "BM-one");
    EXPECT_EQ(m_dir.Read(L"unzipped\\Blue Glass\\bar (2).bmp"), "BM-two");
    EXPECT_EQ(m_dir.Read(L"unzipped\\Blue Glass\\start.wav"), "RIFF-start");
    IniDocument skin;
    ASSERT_TRUE(skin.Load(m_dir.File(L"unzipped\\Blue Glass\\blue.skin")));
    EXPECT_EQ(skin.GetString(L"Topbar", L"Landscape", L""), L"bar (2).bmp");
}
#endif
