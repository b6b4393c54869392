// The whole theme editor with its own pages over an empty config.ini: OK writes every
// appearance page's defaults in page order and key order, as the hand-written expected file
// holds them; Cancel writes nothing.

#include "control_pages_support.h"
#include "pages/appearance/editor_buttons_page.h"
#include "pages/appearance/list_pages.h"
#include "pages/appearance/notifications_page.h"
#include "temp_folder.h"
#include "test_data.h"

using namespace cv2;

namespace {

class EditorDefaultsTest : public cv2test::ControlPagesTest {};

} // namespace

TEST_F(EditorDefaultsTest, OkOnAnEmptyConfigWritesEveryPagesDefaultsInPageAndKeyOrder) {
    const std::string expected = cv2test::TestDataText("theme_editor/editor_defaults.ini");
    ASSERT_FALSE(expected.empty()) << "the expected file could not be read";
    cv2test::TempFolder dir;
    dir.Write(L"config.ini", "");
    ASSERT_TRUE(doc.Load(dir.File(L"config.ini")));
    EXPECT_TRUE(RunEditor(
        {}, [](HWND, ThemeEditor&) {}, IDOK));
    ASSERT_TRUE(doc.Save());
    const IniDocument written = cv2test::ParsedDoc(dir.Read(L"config.ini"));
    EXPECT_EQ(written.Serialize(), cv2test::ParsedDoc(expected).Serialize());
}

TEST_F(EditorDefaultsTest, CancelOnAnEmptyConfigWritesNone) {
    EXPECT_FALSE(RunEditor(
        {}, [](HWND, ThemeEditor&) {}, IDCANCEL));
    EXPECT_TRUE(doc.Sections().empty());
}

TEST_F(EditorDefaultsTest, EveryPageStandsInItsPlaceInThePageMenu) {
    std::vector<std::wstring> names;
    RunEditor(
        {},
        [&](HWND, ThemeEditor& editor) {
            for (int i = 0; i < editor.Host().PageCount(); ++i)
                names.push_back(editor.Host().Page(i)->GetName());
        },
        IDCANCEL);
    const std::vector<std::wstring> order = {
        L"Import Theme",        L"Taskbar Background",     L"Today Menubar",
        L"Application Menubar", L"SoftKeys",               L"Taskbar Buttons",
        L"Volume Bubble",       L"Application Buttons",    L"Checkbox/Radio Buttons",
        L"Taskbar Fonts",       L"Start Menu Skin",        L"Sound Events",
        L"Notifications",       L"System Colors"};
    EXPECT_EQ(names, order);
}

TEST_F(EditorDefaultsTest, EveryPageWithItsOwnControlsHidesTheImagePanelAndShowsItsControls) {
    struct Maker {
        SettingsPage* (*make)();
        int control;
    };
    const Maker makers[] = {{NewAppButtonsPage, IDC_APP_IMAGES},
                            {NewTaskbarFontsPage, IDC_FONTS_TITLE},
                            {NewSoundEventsPage, IDC_SOUNDS_LIST},
                            {NewNotificationsPage, IDC_NOTIFY_LIST},
                            {NewSystemColorsPage, IDC_COLORS_LIST}};
    for (const Maker& maker : makers) {
        bool panelBefore = false, panelAfter = true, controlShown = false;
        RunEditor(
            {new cv2test::PanelPage, maker.make()},
            [&](HWND dlg, ThemeEditor& editor) {
                panelBefore = cv2test::AnyPanelControlShown(dlg);
                editor.Host().SelectPage(1);
                panelAfter = cv2test::AnyPanelControlShown(dlg);
                controlShown = cv2test::Shown(dlg, maker.control);
            },
            IDCANCEL);
        EXPECT_TRUE(panelBefore) << maker.control;
        EXPECT_FALSE(panelAfter) << maker.control;
        EXPECT_TRUE(controlShown) << maker.control;
    }
}
