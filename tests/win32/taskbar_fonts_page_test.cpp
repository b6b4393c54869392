// The Taskbar Fonts page in the real theme editor: three buttons, each opening the font picker
// on its own record; the records' white, shadowed defaults.
#include "control_pages_support.h"
#include "pages/appearance/editor_buttons_page.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

class TaskbarFontsPageTest : public cv2test::ControlPagesTest {
  protected:
    // Picks a size for the font of `button` and ends the editor with OK.
    void PickSize(int button, const wchar_t* size, int endWith, std::wstring* shownSize = nullptr) {
        RunEditor(
            {NewTaskbarFontsPage()},
            [&](HWND dlg, ThemeEditor&) {
                cv2test::PickFontSizeThrough(dlg, button, size, endWith, shownSize);
            },
            IDOK);
    }
};

} // namespace

TEST_F(TaskbarFontsPageTest, ThemeWithoutSmallClockFontSavesSixPointWhiteShadowedTahoma) {
    EXPECT_TRUE(RunEditor(
        {NewTaskbarFontsPage()}, [](HWND, ThemeEditor&) {}, IDOK));
    EXPECT_EQ(cv2test::SectionLinesOf(doc, L"Small Clock Font", 5),
              (std::vector<std::wstring>{L"Name=Tahoma", L"Size=6", L"Color=16777215", L"Shadow=0",
                                         L"Style=shadow"}));
    EXPECT_EQ(cv2test::SectionLinesOf(doc, L"Title Font", 5),
              (std::vector<std::wstring>{L"Name=Tahoma", L"Size=8", L"Color=16777215", L"Shadow=0",
                                         L"Style=shadow"}));
}

TEST_F(TaskbarFontsPageTest, SelectingTaskbarFontsAfterABackgroundPageHidesEveryPanelControl) {
    bool panelShown = false, panelHidden = false, buttonsShown = false;
    RunEditor(
        {new cv2test::PanelPage, NewTaskbarFontsPage()},
        [&](HWND dlg, ThemeEditor& editor) {
            panelShown = cv2test::AnyPanelControlShown(dlg);
            editor.Host().SelectPage(1);
            panelHidden = !cv2test::AnyPanelControlShown(dlg);
            buttonsShown = cv2test::Shown(dlg, IDC_FONTS_TITLE) &&
                           cv2test::Shown(dlg, IDC_FONTS_CLOCK) &&
                           cv2test::Shown(dlg, IDC_FONTS_SMALL_CLOCK);
        },
        IDCANCEL);
    EXPECT_TRUE(panelShown);
    EXPECT_TRUE(panelHidden);
    EXPECT_TRUE(buttonsShown);
}

TEST_F(TaskbarFontsPageTest, EachButtonOpensThePickerOnItsOwnRecordAndOkReplacesIt) {
    doc.SetString(L"Clock Font", L"Size", L"10");
    std::wstring shown;
    PickSize(IDC_FONTS_CLOCK, L"14", IDOK, &shown);
    EXPECT_EQ(shown, L"10");
    EXPECT_EQ(doc.GetString(L"Clock Font", L"Size", L"-"), L"14");
    EXPECT_EQ(doc.GetString(L"Title Font", L"Size", L"-"), L"8");
    EXPECT_EQ(doc.GetString(L"Small Clock Font", L"Size", L"-"), L"6");
}

TEST_F(TaskbarFontsPageTest, CancellingTheFontPickerChangesNothing) {
    PickSize(IDC_FONTS_SMALL_CLOCK, L"20", IDCANCEL);
    EXPECT_EQ(doc.GetString(L"Small Clock Font", L"Size", L"-"), L"6");
}

TEST_F(TaskbarFontsPageTest, ButtonsCarryTheirTexts) {
    std::vector<std::wstring> texts;
    RunEditor(
        {NewTaskbarFontsPage()},
        [&](HWND dlg, ThemeEditor&) {
            for (int id : {IDC_FONTS_TITLE, IDC_FONTS_CLOCK, IDC_FONTS_SMALL_CLOCK})
                texts.push_back(cv2test::DlgText(dlg, id));
        },
        IDCANCEL);
    EXPECT_EQ(texts,
              (std::vector<std::wstring>{L"Title Font", L"Clock Font", L"Small Clock Font"}));
}
