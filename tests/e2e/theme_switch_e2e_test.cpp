// The real program started with "--theme=..." in a scratch device folder.
#include "device_fixture.h"

namespace cv2test {
namespace {

class ThemeSwitchE2E : public DeviceFixture {
  protected:
    void SetUp() override {
        DeviceFixture::SetUp();
        CreateDirectoryW(File(L"Themes").c_str(), nullptr);
        CreateDirectoryW(File(L"Themes\\X").c_str(), nullptr);
        WriteText(L"Themes\\X\\X.skin", "[Skin Info]\nName=X\n");
    }
    // The device folder as 8-bit text (the scratch folder's name is plain ASCII).
    std::string Dir() const { return std::string(m_dir.begin(), m_dir.end()); }
};

TEST_F(ThemeSwitchE2E, ExistingThemeIsStoredAndTheBarFollowingTheTaskbarIsTold) {
    WriteText(L"config.ini", "[Settings]\r\nTheme File=old.skin\r\n[Other]\r\nk=v\r\n");
    StartBar();
    EXPECT_EQ(RunEditor(L"--theme=Themes\\X\\X.skin"), 0u);
    EXPECT_EQ(ReadText(L"config.ini"),
              Lines("[Settings]\nTheme File=" + Dir() + "Themes\\X\\X.skin\n\n[Other]\nk=v\n\n"));
    // The walk starts at "HHTaskbar" itself, so the top-level bar after it gets the message,
    // not the child inside it.
    EXPECT_EQ(BarLog(), "sibling CVResetConfig 242 0\n");
}

TEST_F(ThemeSwitchE2E, SectionWithoutThemeKeyGainsIt) {
    WriteText(L"config.ini", "[Settings]\r\nOther=1\r\n");
    StartBar();
    EXPECT_EQ(RunEditor(L"--theme=Themes\\X\\X.skin"), 0u);
    EXPECT_EQ(ReadText(L"config.ini"),
              Lines("[Settings]\nOther=1\nTheme File=" + Dir() + "Themes\\X\\X.skin\n\n"));
}

TEST_F(ThemeSwitchE2E, MissingThemeFileLeavesConfigAndBarAlone) {
    const std::string before = "; my settings\r\n[Settings]\r\nTheme File=old.skin\r\n";
    WriteText(L"config.ini", before);
    StartBar();
    EXPECT_EQ(RunEditor(L"--theme=Themes\\Y\\Y.skin"), 0u);
    EXPECT_EQ(ReadText(L"config.ini"), before);
    EXPECT_EQ(BarLog(), "");
}

TEST_F(ThemeSwitchE2E, SwitchAfterAnotherArgumentReadsFromPositionEightAndChangesNothing) {
    WriteText(L"a.skin", "[Skin Info]\n");
    const std::string before = "[Settings]\r\nTheme File=old.skin\r\n";
    WriteText(L"config.ini", before);
    StartBar();
    EXPECT_EQ(RunEditor(L"-x --theme=a.skin"), 0u);
    EXPECT_EQ(ReadText(L"config.ini"), before);
    EXPECT_EQ(BarLog(), "");
}

TEST_F(ThemeSwitchE2E, WithoutRunningBarTheFileIsStillWritten) {
    WriteText(L"config.ini", "[Settings]\r\nTheme File=old.skin\r\n");
    EXPECT_EQ(RunEditor(L"--theme=Themes\\X\\X.skin"), 0u);
    EXPECT_EQ(ReadText(L"config.ini"),
              Lines("[Settings]\nTheme File=" + Dir() + "Themes\\X\\X.skin\n\n"));
}

TEST_F(ThemeSwitchE2E, MissingConfigIsCreatedWithJustTheTheme) {
    StartBar();
    EXPECT_EQ(RunEditor(L"--theme=Themes\\X\\X.skin"), 0u);
    EXPECT_EQ(ReadText(L"config.ini"),
              Lines("[Settings]\nTheme File=" + Dir() + "Themes\\X\\X.skin\n\n"));
    EXPECT_EQ(BarLog(), "sibling CVResetConfig 242 0\n");
}

TEST_F(ThemeSwitchE2E, ConfigFullOfParserEdgeCasesIsRewrittenAsTheDocumentHoldsIt) {
    WriteText(L"config.ini",
              "; comment line\n"
              "orphan = before any header\n"
              "[General Settings]\r\n"
              "  Key = Value # note\n"
              "Title=\"A # B\"\n"
              " ;x=1\n"
              ";y=2\n"
              "words without equals\n"
              "Tab=\tx\n"
              "[Broken\n"
              "[settings] trailing text\n"
              "Theme File=old\n"
              "Theme File=second\n"
              "[Settings]\n"
              "Theme File=other section\n"
              "[Caf\xE9]\n"
              "\xFC=\x80\x9F\n"
              "Last=no line break");
    StartBar();
    EXPECT_EQ(RunEditor(L"--theme=Themes\\X\\X.skin"), 0u);
    EXPECT_EQ(ReadText(L"config.ini"),
              Lines("[]\n"
                    "orphan=before any header\n"
                    "\n"
                    "[General Settings]\n"
                    "Key=Value\n"
                    "Title=\"A # B\"\n"
                    ";x=1\n"
                    "Tab=\tx\n"
                    "\n"
                    "[settings]\n"
                    "Theme File=" + Dir() + "Themes\\X\\X.skin\n"
                    "Theme File=second\n"
                    "\n"
                    "[Settings]\n"
                    "Theme File=other section\n"
                    "\n"
                    "[Caf\xE9]\n"
                    "\xFC=\x80\x9F\n"
                    "Last=no line break\n"
                    "\n"));
    EXPECT_EQ(BarLog(), "sibling CVResetConfig 242 0\n");
}

} // namespace
} // namespace cv2test
