// Installing theme packages into a real themes folder: where each theme lands, the question
// before a theme is replaced, and every package that is refused, with nothing written for it.
#include "themes/theme_package.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/file_access.h"
#include "temp_folder.h"
#include "zip_builder.h"

using namespace cv2;
using namespace cv2test;

// Named, not anonymous: a parameterised suite below derives from the fixture.
namespace install {

BuiltEntry File(const std::string& name, const std::string& data, bool deflate = true) {
    return Entry(name, data, deflate);
}

const char kSkin[] = "[Skin Info]\r\nName=Blue Glass\r\n[Topbar]\r\nPortrait=bar.bmp\r\n";

class ThemePackage : public ::testing::Test {
  protected:
    void TearDown() override { InjectWriteFault(WriteStep::None, 0); }

    std::wstring Themes() const { return m_dir.File(L"Themes\\"); }
    // Writes the package beside the themes folder and installs it, answering `answer`.
    InstallResult Install(const std::string& bytes, const std::wstring& name = L"Blue Glass.zip",
                          bool answer = true) {
        m_dir.Write(name, bytes);
        return InstallPackage(m_dir.File(name), Themes(), [&](const std::wstring& theme) {
            m_asked.push_back(theme);
            return answer;
        });
    }
    InstallResult Install(const std::vector<BuiltEntry>& entries) {
        return Install(BuildZip(entries));
    }
    // Every file below the themes folder, as "folder\file", sorted.
    std::vector<std::wstring> Tree(const std::wstring& sub = L"") const {
        std::vector<std::wstring> found;
        const std::wstring folder = Themes() + sub;
        for (const std::wstring& name : ListFiles(folder, L"*"))
            found.push_back(sub + name);
        for (const std::wstring& name : ListSubfolders(folder)) {
            found.push_back(sub + name + L"\\");
            for (const std::wstring& inner : Tree(sub + name + L"\\"))
                found.push_back(inner);
        }
        std::sort(found.begin(), found.end());
        return found;
    }

    TempFolder m_dir;
    std::vector<std::wstring> m_asked;
};

using Names = std::vector<std::wstring>;

} // namespace install

using namespace install;

TEST_F(ThemePackage, TopFolderBecomesTheThemesFolder) {
    const InstallResult result = Install(
        {File("Blue/", ""), File("Blue/blue.skin", kSkin), File("Blue/bar.bmp", "BM-bar", false)});
    ASSERT_EQ(result.problem, InstallProblem::None) << InstallMessage(result).c_str();
    EXPECT_EQ(result.installed, Names{Themes() + L"Blue\\"});
    EXPECT_EQ(Tree(), (Names{L"Blue\\", L"Blue\\bar.bmp", L"Blue\\blue.skin"}));
    EXPECT_EQ(m_dir.Read(L"Themes\\Blue\\blue.skin"), kSkin);
    EXPECT_EQ(m_dir.Read(L"Themes\\Blue\\bar.bmp"), "BM-bar");
}

TEST_F(ThemePackage, FilesAtTheRootInstallUnderThePackagesName) {
    const InstallResult result = Install({File("blue.skin", kSkin), File("pics/bar.bmp", "BM")});
    ASSERT_EQ(result.problem, InstallProblem::None);
    EXPECT_EQ(Tree(), (Names{L"Blue Glass\\", L"Blue Glass\\blue.skin", L"Blue Glass\\pics\\",
                             L"Blue Glass\\pics\\bar.bmp"}));
}

TEST_F(ThemePackage, PackageOfSeveralThemesInstallsEachInPackageOrder) {
    const InstallResult result = Install(
        {File("Red/red.skin", kSkin), File("Green/g.skin", kSkin), File("Green/g.bmp", "g")});
    ASSERT_EQ(result.problem, InstallProblem::None);
    EXPECT_EQ(result.installed, (Names{Themes() + L"Red\\", Themes() + L"Green\\"}));
    EXPECT_EQ(Tree(),
              (Names{L"Green\\", L"Green\\g.bmp", L"Green\\g.skin", L"Red\\", L"Red\\red.skin"}));
}

TEST_F(ThemePackage, ThemeFolderInsideAnotherGoesAlongWithTheOuterTheme) {
    ASSERT_EQ(Install({File("Blue/blue.skin", kSkin), File("Blue/alt/alt.skin", kSkin)}).problem,
              InstallProblem::None);
    EXPECT_EQ(Tree(),
              (Names{L"Blue\\", L"Blue\\alt\\", L"Blue\\alt\\alt.skin", L"Blue\\blue.skin"}));
}

TEST_F(ThemePackage, FilesOutsideEveryThemeFolderAreLeftOut) {
    ASSERT_EQ(
        Install({File("readme.txt", "read me"), File("Themes/Blue/blue.skin", kSkin)}).problem,
        InstallProblem::None);
    EXPECT_EQ(Tree(), (Names{L"Blue\\", L"Blue\\blue.skin"}));
}

TEST_F(ThemePackage, PackageWithoutASkinIsRefusedAndWritesNothing) {
    const InstallResult result = Install({File("Blue/bar.bmp", "BM")});
    EXPECT_EQ(result.problem, InstallProblem::NoTheme);
    EXPECT_EQ(InstallMessage(result), L"The package holds no theme (no .skin file).");
    EXPECT_TRUE(Tree().empty());
}

TEST_F(ThemePackage, InstalledThemeIsReplacedOnYes) {
    m_dir.MakeFolder(L"Themes\\Blue");
    m_dir.Write(L"Themes\\Blue\\old.bmp", "old");
    const InstallResult result = Install({File("Blue/blue.skin", kSkin)});
    ASSERT_EQ(result.problem, InstallProblem::None);
    EXPECT_EQ(m_asked, Names{L"Blue"});
    EXPECT_EQ(Tree(), (Names{L"Blue\\", L"Blue\\blue.skin"}));
}

TEST_F(ThemePackage, InstalledThemeStaysAsItWasOnNo) {
    m_dir.MakeFolder(L"Themes\\Blue");
    m_dir.Write(L"Themes\\Blue\\old.bmp", "old");
    const InstallResult result =
        Install(BuildZip({File("Blue/blue.skin", kSkin)}), L"Blue Glass.zip", false);
    EXPECT_EQ(result.problem, InstallProblem::None);
    EXPECT_TRUE(result.installed.empty());
    EXPECT_EQ(result.kept, Names{L"Blue"});
    EXPECT_EQ(Tree(), (Names{L"Blue\\", L"Blue\\old.bmp"}));
}

TEST_F(ThemePackage, QuestionIsAskedOnlyForThemesAlreadyThere) {
    m_dir.MakeFolder(L"Themes\\Red");
    ASSERT_EQ(Install({File("Red/r.skin", kSkin), File("Green/g.skin", kSkin)}).problem,
              InstallProblem::None);
    EXPECT_EQ(m_asked, Names{L"Red"});
}

TEST_F(ThemePackage, MissingThemesFolderIsMade) {
    ASSERT_EQ(Install({File("Blue/blue.skin", kSkin)}).problem, InstallProblem::None);
    EXPECT_TRUE(m_dir.HasFolder(L"Themes\\Blue"));
}

TEST_F(ThemePackage, DamagedLastEntryLeavesNothingInstalled) {
    BuiltEntry broken = File("Blue/z.bmp", "picture");
    broken.crc = 1;
    const InstallResult result =
        Install({File("Blue/blue.skin", kSkin), File("Red/r.skin", kSkin), broken});
    EXPECT_EQ(result.problem, InstallProblem::Archive);
    EXPECT_EQ(result.archive.problem, ZipProblem::BadChecksum);
    EXPECT_TRUE(result.installed.empty());
    EXPECT_TRUE(Tree().empty());
}

TEST_F(ThemePackage, WriteThatFailsLeavesNothingAndNamesTheFile) {
    m_dir.Write(L"blue.zip", BuildZip({File("Blue/blue.skin", kSkin)}));
    InjectWriteFault(WriteStep::Write, 112);
    const InstallResult result = InstallPackage(m_dir.File(L"blue.zip"), Themes(), nullptr);
    InjectWriteFault(WriteStep::None, 0);
    EXPECT_EQ(result.problem, InstallProblem::CannotWrite);
    EXPECT_NE(result.detail.find(L"blue.skin"), std::wstring::npos);
    EXPECT_TRUE(Tree().empty());
}

TEST_F(ThemePackage, LeftoverOfAnInstallCutShortIsRemovedByTheNext) {
    m_dir.MakeFolder(L"Themes\\~pkg7\\Blue");
    m_dir.Write(L"Themes\\~pkg7\\Blue\\half.bmp", "half");
    ASSERT_EQ(Install({File("Red/r.skin", kSkin)}).problem, InstallProblem::None);
    EXPECT_EQ(Tree(), (Names{L"Red\\", L"Red\\r.skin"}));
}

TEST_F(ThemePackage, PathLongerThanTheLimitInsideTheThemesFolderIsRefused) {
    const std::string longName(250 - Themes().size(), 'p');
    const InstallResult result =
        Install({File("Blue/blue.skin", kSkin), File("Blue/" + longName + ".bmp", "x")});
    EXPECT_EQ(result.archive.problem, ZipProblem::NameTooLong);
    EXPECT_TRUE(Tree().empty());
}

TEST_F(ThemePackage, TwoThemesOfOneFolderNameAreRefused) {
    const InstallResult result =
        Install({File("a/Blue/b.skin", kSkin), File("b/blue/c.skin", kSkin)});
    EXPECT_EQ(result.archive.problem, ZipProblem::DuplicateName);
    EXPECT_TRUE(Tree().empty());
}

TEST_F(ThemePackage, MissingPackageCannotBeOpened) {
    const InstallResult result = InstallPackage(m_dir.File(L"gone.zip"), Themes(), nullptr);
    EXPECT_EQ(result.problem, InstallProblem::CannotOpen);
    EXPECT_EQ(InstallMessage(result),
              L"The package cannot be opened:\r\n" + m_dir.File(L"gone.zip"));
}

// Hostile packages: each refused with the message of its reason, and nothing written. Named,
// not anonymous: the parameterised suite's types may not use the anonymous namespace.
namespace hostile {

struct Hostile {
    const char* name;
    std::string (*bytes)();
    const wchar_t* message;
};

std::string ZipSlip() {
    return BuildZip({File("Blue/blue.skin", kSkin), File("Blue/../../evil.bat", "x")});
}
std::string AbsolutePath() {
    return BuildZip({File("Blue/blue.skin", kSkin), File("/tmp/evil", "x")});
}
std::string DrivePath() {
    return BuildZip({File("Blue/blue.skin", kSkin), File("C:\\evil.bat", "x")});
}
std::string RatioBomb() {
    return BuildZip(
        {File("Blue/blue.skin", kSkin), File("Blue/bomb.bmp", std::string(20 << 20, 'A'))});
}
std::string HundredThousandEntries() {
    std::vector<BuiltEntry> entries;
    for (int i = 0; i < 100000; ++i)
        entries.push_back(File("Blue/" + std::to_string(i) + ".skin", "", false));
    return WithZip64End(BuildZip(entries), 100000);
}
std::string Truncated() {
    const std::string zip = BuildZip(
        {File("Blue/blue.skin", kSkin), File("Blue/a.bmp", std::string(5000, 'x'), false)});
    return zip.substr(0, zip.size() * 2 / 3);
}
std::string WrongCrc() {
    BuiltEntry e = File("Blue/blue.skin", kSkin);
    e.crc = 0xDEADBEEF;
    return BuildZip({e});
}
std::string Duplicate() {
    return BuildZip({File("Blue/blue.skin", kSkin), File("Blue/BLUE.SKIN", kSkin)});
}
std::string Encrypted() {
    BuiltEntry e = File("Blue/blue.skin", kSkin);
    e.flags = 1;
    return BuildZip({e});
}
std::string Zip64() {
    return WithZip64End(BuildZip({File("Blue/blue.skin", kSkin)}), 1);
}
std::string DeviceName() {
    return BuildZip({File("Blue/blue.skin", kSkin), File("Blue/aux.bmp", "x")});
}

const Hostile kHostile[] = {
    {"ZipSlip", ZipSlip,
     L"The package names a file outside its folder (\"..\"):\r\nBlue/../../evil.bat"},
    {"AbsolutePath", AbsolutePath, L"The package names a file by an absolute path:\r\n/tmp/evil"},
    {"DrivePath", DrivePath, L"The package names a file by an absolute path:\r\nC:\\evil.bat"},
    {"RatioBomb", RatioBomb,
     L"A file unpacks to more than 200 times its packed size:\r\nBlue/bomb.bmp"},
    {"HundredThousandEntries", HundredThousandEntries, L"The package holds more than 5,000 files."},
    {"Truncated", Truncated, L"The package is incomplete: it ends too early."},
    {"WrongCrc", WrongCrc, L"A file of the package fails its checksum:\r\nBlue/blue.skin"},
    {"DuplicateNames", Duplicate, L"The package holds the same name twice:\r\nBlue/BLUE.SKIN"},
    {"Encrypted", Encrypted,
     L"The package is encrypted, which is not supported:\r\nBlue/blue.skin"},
    {"Zip64", Zip64, L"The package is in the ZIP64 format, which is not supported."},
    {"DeviceName", DeviceName, L"The package holds a name no file can have:\r\nBlue/aux.bmp"},
};

class HostilePackage : public ThemePackage, public ::testing::WithParamInterface<Hostile> {};

} // namespace hostile

using hostile::Hostile;
using hostile::HostilePackage;
using hostile::kHostile;

TEST_P(HostilePackage, IsRefusedWithItsReasonAndWritesNothing) {
    m_dir.MakeFolder(L"Themes\\Kept");
    m_dir.Write(L"Themes\\Kept\\kept.skin", kSkin);
    const InstallResult result = Install(GetParam().bytes());
    EXPECT_EQ(InstallMessage(result), GetParam().message);
    EXPECT_TRUE(result.installed.empty());
    EXPECT_EQ(Tree(), (Names{L"Kept\\", L"Kept\\kept.skin"}));
    EXPECT_FALSE(FileExists(m_dir.File(L"evil.bat")));
}

INSTANTIATE_TEST_SUITE_P(Packages, HostilePackage, ::testing::ValuesIn(kHostile),
                         [](const ::testing::TestParamInfo<Hostile>& info) {
                             return info.param.name;
                         });
