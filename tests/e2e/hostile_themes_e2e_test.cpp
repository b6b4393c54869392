// The real program on a device folder full of strangers' themes: huge, binary, empty, deeply
// nested and oddly named theme files. It starts, switches themes, applies and ends normally.
#include "device_fixture.h"
#include "hostile_themes.h"

namespace cv2test {
namespace {

class HostileThemesE2E : public DeviceFixture {
  protected:
    void SetUp() override {
        DeviceFixture::SetUp();
        m_themes = MakeHostileThemes(m_dir, HostileScaleFromEnvironment());
    }
    void TearDown() override {
        DeviceFixture::TearDown();
        RemoveHostileThemes(m_dir);
        RemoveDirectoryW(m_dir.c_str());
    }
    std::vector<std::wstring> m_themes;
};

} // namespace

TEST_F(HostileThemesE2E, ThemeSwitchToEachThemeEndsNormally) {
    WriteText(L"config.ini", "[Settings]\r\nTheme File=old.skin\r\n");
    for (const std::wstring& theme : m_themes) {
        if (theme.find(L"Plain") != std::wstring::npos &&
            theme.find(L"Plain0\\") == std::wstring::npos)
            continue; // one ordinary theme stands for all of them
        EXPECT_EQ(RunEditor(L"--theme=" + theme, 60000), 0u)
            << std::string(theme.begin(), theme.end());
    }
    EXPECT_NE(ReadText(L"config.ini").find("[Settings]"), std::string::npos);
}

TEST_F(HostileThemesE2E, EditorStartsAppliesAndCancels) {
    WriteText(L"config.ini", "[Settings]\r\nTheme File=" + std::string(m_dir.begin(), m_dir.end()) +
                                 "Themes\\Big\\Big.skin\r\n");
    StartBar();
    ASSERT_TRUE(StartEditor());
    Apply();
    EXPECT_NE(ReadText(L"config.ini").find("[Settings]"), std::string::npos);
    EXPECT_EQ(BarLog(), "child CVResetConfig 242 0\n");
    Cancel(true);
    EXPECT_TRUE(WaitEditorExit());
}

} // namespace cv2test
