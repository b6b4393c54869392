// The Application Buttons page in the real theme editor: its four buttons open the images
// dialog, the font picker and the colour picker on copies, and only Save writes section
// "Buttons".
#include "control_pages_support.h"
#include "pages/appearance/editor_buttons_page.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

class AppButtonsPageTest : public cv2test::ControlPagesTest {
  protected:
    // Opens the images dialog from the page, runs `body` in it and ends it with `endWith`; then
    // ends the editor with OK.
    void ThroughImagesDialog(const std::function<void(HWND)>& body, int endWith) {
        RunEditor(
            {NewAppButtonsPage()},
            [&](HWND dlg, ThemeEditor&) {
                DialogDriver::OnNextDialog(body, endWith);
                DialogDriver::Click(dlg, IDC_APP_IMAGES);
            },
            IDOK);
    }
};

} // namespace

TEST_F(AppButtonsPageTest, FreshThemeSavesMarginsThreeAndZeroAndWhitePressedColor) {
    EXPECT_TRUE(RunEditor(
        {NewAppButtonsPage()}, [](HWND, ThemeEditor&) {}, IDOK));
    EXPECT_EQ(doc.GetString(L"Buttons", L"left", L"-"), L"3");
    EXPECT_EQ(doc.GetString(L"Buttons", L"right", L"-"), L"3");
    EXPECT_EQ(doc.GetString(L"Buttons", L"top", L"-"), L"0");
    EXPECT_EQ(doc.GetString(L"Buttons", L"bottom", L"-"), L"0");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Pressed Color", L"-"), L"16777215");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Disabled Color", L"-"),
              std::to_wstring(GetSysColor(COLOR_GRAYTEXT)));
}

TEST_F(AppButtonsPageTest, ShowingThePageHidesTheImagePanelAndABackgroundPageShowsItAgain) {
    bool panelFirst = false, hiddenOnButtons = false, shownAgain = false, buttonsShown = false;
    RunEditor(
        {new cv2test::PanelPage, NewAppButtonsPage()},
        [&](HWND dlg, ThemeEditor& editor) {
            panelFirst = cv2test::Shown(dlg, IDC_PANEL_FIRST_PATH);
            editor.Host().SelectPage(1);
            hiddenOnButtons = !cv2test::AnyPanelControlShown(dlg);
            buttonsShown =
                cv2test::Shown(dlg, IDC_APP_IMAGES) && cv2test::Shown(dlg, IDC_APP_DISABLED_COLOR);
            editor.Host().SelectPage(0);
            shownAgain =
                cv2test::Shown(dlg, IDC_PANEL_FIRST_PATH) && !cv2test::Shown(dlg, IDC_APP_IMAGES);
        },
        IDCANCEL);
    EXPECT_TRUE(panelFirst);
    EXPECT_TRUE(hiddenOnButtons);
    EXPECT_TRUE(buttonsShown);
    EXPECT_TRUE(shownAgain);
}

TEST_F(AppButtonsPageTest, ButtonsCarryTheirTexts) {
    std::vector<std::wstring> texts;
    RunEditor(
        {NewAppButtonsPage()},
        [&](HWND dlg, ThemeEditor&) {
            for (int id :
                 {IDC_APP_IMAGES, IDC_APP_FONT, IDC_APP_PRESSED_COLOR, IDC_APP_DISABLED_COLOR})
                texts.push_back(cv2test::DlgText(dlg, id));
        },
        IDCANCEL);
    EXPECT_EQ(texts,
              (std::vector<std::wstring>{L"Images", L"Font", L"Pressed Color", L"Disabled Color"}));
}

TEST_F(AppButtonsPageTest, ImagesDialogOpensOnThePathsAndMarginsAndOkReplacesAllEight) {
    doc.SetString(L"Buttons", L"normal", L"n.png");
    doc.SetString(L"Buttons", L"focused", L"f.png");
    doc.SetString(L"Buttons", L"left", L"5");
    std::wstring shownNormal, shownFocused, shownLeft, shownBottom;
    ThroughImagesDialog(
        [&](HWND dlg) {
            shownNormal = cv2test::DlgText(dlg, IDC_ROW_NORMAL);
            shownFocused = cv2test::DlgText(dlg, IDC_ROW_FOCUSED);
            shownLeft = cv2test::DlgText(dlg, IDC_MARGIN_LEFT);
            shownBottom = cv2test::DlgText(dlg, IDC_MARGIN_BOTTOM);
            cv2test::TypeText(dlg, IDC_ROW_NORMAL, L"N2.png");
            cv2test::TypeText(dlg, IDC_ROW_PRESSED, L"P2.png");
            cv2test::TypeText(dlg, IDC_ROW_DISABLED, L"D2.png");
            cv2test::TypeText(dlg, IDC_ROW_FOCUSED, L"F2.png");
            cv2test::TypeText(dlg, IDC_MARGIN_LEFT, L"11");
            cv2test::TypeText(dlg, IDC_MARGIN_RIGHT, L"12");
            cv2test::TypeText(dlg, IDC_MARGIN_TOP, L"13");
            cv2test::TypeText(dlg, IDC_MARGIN_BOTTOM, L"14");
        },
        IDOK);
    EXPECT_EQ(shownNormal, L"n.png");
    EXPECT_EQ(shownFocused, L"f.png");
    EXPECT_EQ(shownLeft, L"5");
    EXPECT_EQ(shownBottom, L"0");
    const std::pair<const wchar_t*, const wchar_t*> stored[] = {
        {L"normal", L"N2.png"},  {L"pressed", L"P2.png"}, {L"disabled", L"D2.png"},
        {L"focused", L"F2.png"}, {L"left", L"11"},        {L"right", L"12"},
        {L"top", L"13"},         {L"bottom", L"14"}};
    for (const auto& key : stored)
        EXPECT_EQ(doc.GetString(L"Buttons", key.first, L"-"), key.second) << key.first;
}

TEST_F(AppButtonsPageTest, EnteringAnEmptyMarginFieldAndPressingOkStoresZero) {
    ThroughImagesDialog([](HWND dlg) { cv2test::TypeText(dlg, IDC_MARGIN_LEFT, L""); }, IDOK);
    EXPECT_EQ(doc.GetString(L"Buttons", L"left", L"-"), L"0");
    EXPECT_EQ(doc.GetString(L"Buttons", L"right", L"-"), L"3");
}

TEST_F(AppButtonsPageTest, CancellingTheImagesDialogChangesNothing) {
    ThroughImagesDialog(
        [](HWND dlg) {
            cv2test::TypeText(dlg, IDC_ROW_NORMAL, L"typed.png");
            cv2test::TypeText(dlg, IDC_MARGIN_TOP, L"9");
        },
        IDCANCEL);
    EXPECT_EQ(doc.GetString(L"Buttons", L"normal", L"-"), L"");
    EXPECT_EQ(doc.GetString(L"Buttons", L"top", L"-"), L"0");
}

TEST_F(AppButtonsPageTest, FocusedRowIsLabelledFocusedLWithoutALanguageModule) {
    std::wstring label, margins;
    ThroughImagesDialog(
        [&](HWND dlg) {
            label = cv2test::DlgText(dlg, IDC_ROW_FOCUSED_LABEL);
            margins = cv2test::DlgText(dlg, IDC_MARGINS_HEADING);
        },
        IDCANCEL);
    EXPECT_EQ(label, L"FocusedL");
    EXPECT_EQ(margins, L"Margins:");
}

TEST_F(AppButtonsPageTest, MarginFieldsTakeDigitsOnlyAndAtMostNine) {
    bool digitsOnly = true;
    ThroughImagesDialog(
        [&](HWND dlg) {
            for (int id : {IDC_MARGIN_LEFT, IDC_MARGIN_RIGHT, IDC_MARGIN_TOP, IDC_MARGIN_BOTTOM})
                digitsOnly =
                    digitsOnly && (GetWindowLongW(GetDlgItem(dlg, id), GWL_STYLE) & ES_NUMBER);
            SendDlgItemMessageW(dlg, IDC_MARGIN_RIGHT, WM_SETTEXT, 0,
                                reinterpret_cast<LPARAM>(L"1234567890123"));
        },
        IDOK);
    EXPECT_TRUE(digitsOnly);
    // The box's limit holds typing; text put in from outside is cut when read.
    EXPECT_EQ(doc.GetString(L"Buttons", L"right", L"-"), L"123456789");
}

TEST_F(AppButtonsPageTest, APathLongerThan259CharactersIsCut) {
    doc.SetString(L"Buttons", L"pressed", std::wstring(300, L'p').c_str());
    EXPECT_TRUE(RunEditor(
        {NewAppButtonsPage()}, [](HWND, ThemeEditor&) {}, IDOK));
    EXPECT_EQ(doc.GetString(L"Buttons", L"pressed", L"-"), std::wstring(259, L'p'));
}

TEST_F(AppButtonsPageTest, PressedColorOpensThePickerOnThePressedColourAndOkStoresIt) {
    doc.SetString(L"Buttons", L"Pressed Color", std::to_wstring(MakeColor(10, 20, 30)).c_str());
    ColorRef shown = 0;
    RunEditor(
        {NewAppButtonsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickColourThrough(dlg, IDC_APP_PRESSED_COLOR, MakeColor(1, 2, 3), IDOK,
                                       &shown);
        },
        IDOK);
    EXPECT_EQ(shown, MakeColor(10, 20, 30));
    EXPECT_EQ(doc.GetString(L"Buttons", L"Pressed Color", L"-"),
              std::to_wstring(MakeColor(1, 2, 3)));
}

TEST_F(AppButtonsPageTest, DisabledColorCancelledKeepsTheColour) {
    doc.SetString(L"Buttons", L"Disabled Color", L"255");
    RunEditor(
        {NewAppButtonsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickColourThrough(dlg, IDC_APP_DISABLED_COLOR, MakeColor(1, 2, 3), IDCANCEL);
        },
        IDOK);
    EXPECT_EQ(doc.GetString(L"Buttons", L"Disabled Color", L"-"), L"255");
}

TEST_F(AppButtonsPageTest, FontButtonPicksTheButtonFont) {
    RunEditor(
        {NewAppButtonsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickFontSizeThrough(dlg, IDC_APP_FONT, L"11", IDOK);
        },
        IDOK);
    EXPECT_EQ(doc.GetString(L"Buttons", L"Size", L"-"), L"11");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Name", L"-"), L"Tahoma");
}

TEST_F(AppButtonsPageTest, NothingReachesTheDocumentBeforeSave) {
    const std::string before = doc.Serialize();
    RunEditor(
        {NewAppButtonsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickColourThrough(dlg, IDC_APP_PRESSED_COLOR, MakeColor(1, 2, 3), IDOK);
        },
        IDCANCEL);
    EXPECT_EQ(doc.Serialize(), before);
}
