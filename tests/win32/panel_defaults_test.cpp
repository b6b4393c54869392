// What the pages that borrow the image panel write into an empty document: OK in an editor
// holding only those pages, on a device with known Today theme colours, gives exactly the
// hand-written tests/data/theme_editor/panel_defaults.ini.
#include <string>

#include "panel_pages_support.h"
#include "platform/device_colors.h"
#include "platform/theme_color_table.h"

using namespace cv2;

namespace {

// The file beside this test's sources (under Wine through Z:).
std::wstring DefaultsFile() {
    std::string here = __FILE__;
    here = here.substr(0, here.find_last_of("/\\") + 1) + "../data/theme_editor/panel_defaults.ini";
    std::wstring path(here.begin(), here.end());
    for (wchar_t& c : path) {
        if (c == L'/')
            c = L'\\';
    }
    if (!path.empty() && path[0] == L'\\')
        path = L"Z:" + path;
    return path;
}

// Theme colours 0 and 1 as the file expects them, for one test.
class PanelDefaults : public cv2test::PanelPagesTest {
  protected:
    void SetUp() override {
        PanelPagesTest::SetUp();
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, kThemeColorKey);
        Store(L"5", 0x00123456);
        Store(L"8", 0x00654321);
    }
    void TearDown() override {
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, kThemeColorKey);
        PanelPagesTest::TearDown();
    }
    static void Store(const wchar_t* name, DWORD value) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kThemeColorKey, name, REG_DWORD, &value,
                                  sizeof value),
                  ERROR_SUCCESS);
    }
};

} // namespace

TEST_F(PanelDefaults, OkOnAnEmptyDocumentWritesTheDocumentedDefaults) {
    // The file names the system colours of this machine's standard scheme.
    ASSERT_EQ(DeviceSysColor(COLOR_ACTIVECAPTION), 16422450u);
    ASSERT_EQ(DeviceSysColor(COLOR_MENU), 16777215u);
    ASSERT_EQ(DeviceSysColor(COLOR_HIGHLIGHT), 16422448u);
    IniDocument expected;
    ASSERT_TRUE(expected.Load(DefaultsFile()));
    EXPECT_TRUE(RunEditor(cv2test::kTaskbarBackgroundPage, [](HWND) {}));
    EXPECT_EQ(doc.Serialize(), expected.Serialize());
}
