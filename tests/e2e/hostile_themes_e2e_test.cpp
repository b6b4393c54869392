// The real program on a device folder full of strangers' themes: huge, binary, empty, deeply
// nested and oddly named theme files. It starts, switches themes, applies and ends normally.
#include "device_fixture.h"
#include "hostile_themes.h"
#include "ids_themes.h"

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
    HWND List() const { return ShownControl(IDC_THEMES_LIST); }
    int Rows() const { return static_cast<int>(SendMessageW(List(), LB_GETCOUNT, 0, 0)); }
    // Selects a row the way a tap does, and waits until the editor has handled it.
    void SelectRow(int row) const {
        HWND list = List();
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        SendMessageW(m_main, WM_COMMAND, MAKEWPARAM(IDC_THEMES_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    int RowOf(const wchar_t* text) const {
        return static_cast<int>(SendMessageW(List(), LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                             reinterpret_cast<LPARAM>(text)));
    }
    // Takes a theme away behind the editor's back, after its scan.
    void RemoveTheme(const std::wstring& folder) const {
        DeleteFileW(File(L"Themes\\" + folder + L"\\" + folder + L".skin").c_str());
        RemoveDirectoryW(File(L"Themes\\" + folder).c_str());
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

TEST_F(HostileThemesE2E, CatalogueListsTheThemesAndShowsEveryEntry) {
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    ASSERT_TRUE(List());
    // Every theme but those whose path the file system cannot reach, and the custom theme.
    EXPECT_GE(Rows(), HostileScaleFromEnvironment().themes + 6);
    for (int row = 0; row < Rows(); ++row)
        SelectRow(row);
    EXPECT_TRUE(EditorRunning());
}

TEST_F(HostileThemesE2E, ThemeRemovedAfterTheScanIsAppliedAndDeletedWithoutHarm) {
    WriteText(L"config.ini", "");
    StartBar();
    ASSERT_TRUE(StartEditor());
    const int big = RowOf(L"Big");
    ASSERT_GE(big, 0);
    RemoveTheme(L"Big");
    SelectRow(big);
    Apply();
    EXPECT_NE(SectionText("Settings").find("Themes\\Big\\Big.skin"), std::string::npos);
    const int plain = RowOf(L"Plain 1");
    ASSERT_GE(plain, 0);
    RemoveTheme(L"Plain1");
    SelectRow(plain);
    PostMessageW(ShownControl(IDC_THEMES_DELETE), BM_CLICK, 0, 0);
    HWND box = nullptr;
    ASSERT_TRUE(
        WaitFor([&] { return (box = FindWindowW(L"#32770", L"Confirm Delete")) != nullptr; }));
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDYES, BN_CLICKED), 0);
    EXPECT_TRUE(WaitFor([&] { return RowOf(L"Plain 1") < 0 && Rows() > 0; }));
    EXPECT_TRUE(EditorRunning());
}

} // namespace cv2test
