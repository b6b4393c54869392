// The button images dialog on a real window, driven from inside its modal loop: its fields, the
// layout for the screen's shape, refilling on a size change, the pickers and the background
// dialog opened from it, OK and Cancel.
#include "ui/backgrounds/button_images_dialog.h"

#include "background_dialog_steps.h"
#include "ids_ui.h"
#include "store/scale.h"
#include "store/screen.h"
#include "store/strings.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::ItemChecked;
using cv2test::ItemEnabled;
using cv2test::ItemRect;
using cv2test::ItemTextOf;
using cv2test::PickColourThrough;
using cv2test::SelectListRow;

namespace {

class ButtonImagesDialogTest : public cv2test::PickerHostTest {
  protected:
    void SetUp() override {
        PickerHostTest::SetUp();
        values.font.Create(L"Tahoma", 8, kFontBold, false);
        values.font.color = MakeColor(255, 255, 255);
        values.font.shadowColor = MakeColor(0, 0, 0x80);
        values.pressedColor = MakeColor(0, 0x40, 0);
        values.normalImage = L"\\Themes\\Blue\\normal.png";
        values.pressedImage = L"\\Themes\\Blue\\pressed.png";
        values.disabledImage = L"\\Themes\\Blue\\disabled.png";
        values.background.mode = kModeGradient;
        values.background.solidColor = MakeColor(1, 2, 3);
        values.background.leftColor = MakeColor(4, 5, 6);
        values.background.rightColor = MakeColor(7, 8, 9);
        values.background.useThemeColors = 1;
        values.leftMargin = 3;
        values.rightMargin = -2;
    }

    // Every value of `a` and `b`, the font's face, size, style and colours included.
    static void ExpectSameValues(const ButtonImages& a, const ButtonImages& b) {
        EXPECT_STREQ(a.font.face, b.font.face);
        EXPECT_EQ(a.font.size, b.font.size);
        EXPECT_EQ(a.font.style, b.font.style);
        EXPECT_EQ(a.font.color, b.font.color);
        EXPECT_EQ(a.font.shadowColor, b.font.shadowColor);
        EXPECT_EQ(a.pressedColor, b.pressedColor);
        EXPECT_EQ(a.normalImage, b.normalImage);
        EXPECT_EQ(a.pressedImage, b.pressedImage);
        EXPECT_EQ(a.disabledImage, b.disabledImage);
        EXPECT_EQ(a.background.mode, b.background.mode);
        EXPECT_EQ(a.background.solidColor, b.background.solidColor);
        EXPECT_EQ(a.background.leftColor, b.background.leftColor);
        EXPECT_EQ(a.background.rightColor, b.background.rightColor);
        EXPECT_EQ(a.background.useThemeColors, b.background.useThemeColors);
        EXPECT_EQ(a.leftMargin, b.leftMargin);
        EXPECT_EQ(a.rightMargin, b.rightMargin);
    }

    ButtonImages values;
};

// Sends the size the dialog already has, as the system does when the screen turns.
void Resize(HWND dlg) {
    RECT client;
    GetClientRect(dlg, &client);
    SendMessageW(dlg, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
}

// Works the font picker opened by the Font button: checks the given style box and ends it.
void PickFontThrough(HWND dlg, int styleBox, int endWith, std::wstring* shownFace = nullptr) {
    DialogDriver::OnNextDialog(
        [=](HWND picker) {
            if (shownFace)
                *shownFace = ItemTextOf(picker, IDC_FONT_FACE);
            SendDlgItemMessageW(picker, styleBox, BM_CLICK, 0, 0);
        },
        endWith);
    DialogDriver::Click(dlg, IDC_BUTTONS_FONT);
}

// Changes the font (underline), the pressed colour, the background (solid colour fill), a path
// and a margin through the dialog's own controls.
void ChangeEverything(HWND dlg) {
    PickFontThrough(dlg, IDC_FONT_UNDERLINE, IDOK);
    PickColourThrough(dlg, IDC_BUTTONS_PRESSED_COLOR, MakeColor(9, 8, 7), IDOK);
    DialogDriver::OnNextDialog(
        [](HWND background) {
            SelectListRow(background, IDC_BACKGROUND_MODE, kModeColor);
            PickColourThrough(background, IDC_BACKGROUND_SOLID, MakeColor(50, 0, 0), IDOK);
        },
        IDOK);
    DialogDriver::Click(dlg, IDC_BUTTONS_BACKGROUND);
    SetDlgItemTextW(dlg, IDC_BUTTONS_PRESSED, L"\\typed.png");
    SetDlgItemTextW(dlg, IDC_BUTTONS_RIGHT, L"40");
}

} // namespace

TEST_F(ButtonImagesDialogTest, OpensWithTheRecordsPathsAndMargins) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_NORMAL), values.normalImage);
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_PRESSED), values.pressedImage);
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_DISABLED), values.disabledImage);
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_LEFT), L"3");
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_RIGHT), L"-2");
        },
        IDCANCEL);
    EXPECT_FALSE(dialog.Run(host));
}

TEST_F(ButtonImagesDialogTest, LabelsComeFromTheStringTableAndTheHeadingIsBold) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_HEADING), Localized(IDS_BUTTON_IMAGES));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_NORMAL_LABEL), Localized(IDS_NORMAL_IMAGE));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_PRESSED_LABEL), Localized(IDS_PRESSED_IMAGE));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_DISABLED_LABEL), Localized(IDS_DISABLED_IMAGE));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_LEFT_LABEL), Localized(IDS_LEFT_MARGIN));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_RIGHT_LABEL), Localized(IDS_RIGHT_MARGIN));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_FONT), Localized(IDS_FONT_BUTTON));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_PRESSED_COLOR), Localized(IDS_PRESSED_COLOR));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_BACKGROUND), Localized(IDS_BACKGROUND_SETTINGS));
            EXPECT_EQ(SendDlgItemMessageW(dlg, IDC_BUTTONS_HEADING, WM_GETFONT, 0, 0),
                      reinterpret_cast<LRESULT>(CaptionFont()));
            EXPECT_EQ(SendDlgItemMessageW(dlg, IDC_BUTTONS_NORMAL_LABEL, WM_GETFONT, 0, 0),
                      reinterpret_cast<LRESULT>(TextFont()));
        },
        IDCANCEL);
    dialog.Run(host);
}

TEST_F(ButtonImagesDialogTest, FillsTheWorkAreaWithItsControlsApart) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    RECT work;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    RECT got = {};
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            GetWindowRect(dlg, &got);
            cv2test::ExpectLaidOutApart(dlg);
            cv2test::ExpectTextsFit(dlg);
        },
        IDCANCEL);
    dialog.Run(host);
    EXPECT_TRUE(EqualRect(&got, &work));
}

TEST_F(ButtonImagesDialogTest, MarginLabelsSitOverTheirBoxesOnPortraitScreensAndBesideElsewhere) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    RECT label = {}, box = {};
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            label = ItemRect(dlg, IDC_BUTTONS_LEFT_LABEL);
            box = ItemRect(dlg, IDC_BUTTONS_LEFT);
        },
        IDCANCEL);
    dialog.Run(host);
    if (IsPortraitWidth(ScreenWidth())) {
        EXPECT_LE(label.bottom, box.top);
        EXPECT_EQ(label.left, box.left);
    } else {
        EXPECT_LE(label.right, box.left);
        EXPECT_LT(box.top, label.bottom);
    }
}

TEST_F(ButtonImagesDialogTest, ASizeChangeRefillsTheControlsFromTheRecord) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_BUTTONS_NORMAL, L"\\typed.png");
            SetDlgItemTextW(dlg, IDC_BUTTONS_DISABLED, L"");
            SetDlgItemTextW(dlg, IDC_BUTTONS_LEFT, L"77");
            SetDlgItemTextW(dlg, IDC_BUTTONS_HEADING, L"changed");
            Resize(dlg);
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_NORMAL), values.normalImage);
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_DISABLED), values.disabledImage);
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_LEFT), L"3");
            EXPECT_EQ(ItemTextOf(dlg, IDC_BUTTONS_HEADING), Localized(IDS_BUTTON_IMAGES));
        },
        IDOK);
    EXPECT_TRUE(dialog.Run(host));
    EXPECT_EQ(dialog.record.normalImage, values.normalImage) << "the typed text was dropped";
    EXPECT_EQ(dialog.record.leftMargin, 3);
}

TEST_F(ButtonImagesDialogTest, ASizeChangePlacesTheControlsAgain) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    RECT before = {}, moved = {}, after = {};
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            before = ItemRect(dlg, IDC_BUTTONS_BACKGROUND);
            MoveWindow(GetDlgItem(dlg, IDC_BUTTONS_BACKGROUND), 0, 0, 10, 10, TRUE);
            moved = ItemRect(dlg, IDC_BUTTONS_BACKGROUND);
            Resize(dlg);
            after = ItemRect(dlg, IDC_BUTTONS_BACKGROUND);
        },
        IDCANCEL);
    dialog.Run(host);
    EXPECT_FALSE(EqualRect(&before, &moved));
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(ButtonImagesDialogTest, OkReadsThePathsAndMargins) {
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_BUTTONS_NORMAL, L"\\a.png");
            SetDlgItemTextW(dlg, IDC_BUTTONS_PRESSED, L"");
            SetDlgItemTextW(dlg, IDC_BUTTONS_DISABLED, L"\\Storage Card\\c d.bmp");
            SetDlgItemTextW(dlg, IDC_BUTTONS_LEFT, L"12");
            SetDlgItemTextW(dlg, IDC_BUTTONS_RIGHT, L"-4");
        },
        IDOK);
    ASSERT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(values.normalImage, L"\\a.png");
    EXPECT_EQ(values.pressedImage, L"");
    EXPECT_EQ(values.disabledImage, L"\\Storage Card\\c d.bmp");
    EXPECT_EQ(values.leftMargin, 12);
    EXPECT_EQ(values.rightMargin, -4);
}

TEST_F(ButtonImagesDialogTest, AMarginTypedAsLettersIsStoredAsZero) {
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_BUTTONS_LEFT, L"abc");
            SetDlgItemTextW(dlg, IDC_BUTTONS_RIGHT, L"wide");
        },
        IDOK);
    ASSERT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(values.leftMargin, 0);
    EXPECT_EQ(values.rightMargin, 0);
}

TEST_F(ButtonImagesDialogTest, AMarginIsReadAsItsLeadingDecimalNumber) {
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_BUTTONS_LEFT, L" 8px");
            SetDlgItemTextW(dlg, IDC_BUTTONS_RIGHT, L"010");
        },
        IDOK);
    ASSERT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(values.leftMargin, 8);
    EXPECT_EQ(values.rightMargin, 10);
}

TEST_F(ButtonImagesDialogTest, APathLongerThanItsBufferIsCut) {
    values.normalImage = std::wstring(300, L'n');
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    EXPECT_EQ(dialog.record.normalImage.size(), 259u);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_BUTTONS_PRESSED, std::wstring(400, L'p').c_str());
        },
        IDOK);
    ASSERT_TRUE(dialog.Run(host));
    EXPECT_EQ(dialog.record.normalImage, std::wstring(259, L'n'));
    EXPECT_EQ(dialog.record.pressedImage, std::wstring(259, L'p'));
}

TEST_F(ButtonImagesDialogTest, TheRecordsFontIsMadeWithClearType) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    EXPECT_NE(dialog.record.font.clearType, 0u);
    EXPECT_STREQ(dialog.record.font.face, L"Tahoma");
    EXPECT_EQ(dialog.record.font.style, kFontBold);
    LOGFONTW lf = {};
    GetObjectW(dialog.record.font.Handle(), sizeof lf, &lf);
    EXPECT_EQ(lf.lfQuality, CLEARTYPE_QUALITY);
    EXPECT_NE(dialog.record.font.Handle(), values.font.Handle()) << "a font of its own";
}

TEST_F(ButtonImagesDialogTest, FontOpensThePickerOnACopyAndRemakesTheFontOnOk) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    std::wstring shownFace;
    uint32_t styleWhileOpen = 0;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickFontThrough(dlg, IDC_FONT_ITALIC, IDOK, &shownFace);
            styleWhileOpen = dialog.record.font.style;
        },
        IDOK);
    ASSERT_TRUE(dialog.Run(host));
    EXPECT_EQ(shownFace, L"Tahoma");
    EXPECT_EQ(styleWhileOpen, kFontBold | kFontItalic);
    EXPECT_EQ(dialog.record.font.style, kFontBold | kFontItalic);
    EXPECT_NE(dialog.record.font.clearType, 0u) << "made again with ClearType";
}

TEST_F(ButtonImagesDialogTest, ACancelledFontPickerLeavesTheFont) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    HFONT before = dialog.record.font.Handle();
    DialogDriver::OnNextDialog([&](HWND dlg) { PickFontThrough(dlg, IDC_FONT_ITALIC, IDCANCEL); },
                               IDOK);
    ASSERT_TRUE(dialog.Run(host));
    EXPECT_EQ(dialog.record.font.style, kFontBold);
    EXPECT_EQ(dialog.record.font.Handle(), before);
}

TEST_F(ButtonImagesDialogTest, PressedColorOpensTheColourPickerOnThePressedColour) {
    ColorRef shown = 0;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_BUTTONS_PRESSED_COLOR, MakeColor(9, 8, 7), IDOK, &shown);
        },
        IDOK);
    ASSERT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(shown, MakeColor(0, 0x40, 0));
    EXPECT_EQ(values.pressedColor, MakeColor(9, 8, 7));
}

TEST_F(ButtonImagesDialogTest, BackgroundSettingsOpensTheBackgroundDialogOnTheRecordsFill) {
    LRESULT shownMode = -1;
    bool shownFlag = false;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DialogDriver::OnNextDialog(
                [&](HWND background) {
                    shownMode =
                        SendDlgItemMessageW(background, IDC_BACKGROUND_MODE, CB_GETCURSEL, 0, 0);
                    shownFlag = ItemChecked(background, IDC_BACKGROUND_THEME_COLORS);
                    SendDlgItemMessageW(background, IDC_BACKGROUND_THEME_COLORS, BM_CLICK, 0, 0);
                    PickColourThrough(background, IDC_BACKGROUND_RIGHT, MakeColor(0, 99, 0), IDOK);
                    SelectListRow(background, IDC_BACKGROUND_MODE, kModeTiled);
                },
                IDOK);
            DialogDriver::Click(dlg, IDC_BUTTONS_BACKGROUND);
        },
        IDOK);
    ASSERT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(shownMode, kModeGradient);
    EXPECT_TRUE(shownFlag);
    EXPECT_EQ(values.background.mode, kModeTiled);
    EXPECT_EQ(values.background.useThemeColors, 0u);
    EXPECT_EQ(values.background.rightColor, MakeColor(0, 99, 0));
    EXPECT_EQ(values.background.leftColor, MakeColor(4, 5, 6));
}

TEST_F(ButtonImagesDialogTest, ACancelledBackgroundDialogLeavesTheRecordsFill) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DialogDriver::OnNextDialog(
                [&](HWND background) {
                    SelectListRow(background, IDC_BACKGROUND_MODE, kModeNone);
                    SendDlgItemMessageW(background, IDC_BACKGROUND_THEME_COLORS, BM_CLICK, 0, 0);
                },
                IDCANCEL);
            DialogDriver::Click(dlg, IDC_BUTTONS_BACKGROUND);
            EXPECT_EQ(dialog.record.background.mode, kModeGradient);
            EXPECT_NE(dialog.record.background.useThemeColors, 0u);
        },
        IDOK);
    ASSERT_TRUE(dialog.Run(host));
    EXPECT_EQ(dialog.record.background.mode, kModeGradient);
}

TEST_F(ButtonImagesDialogTest, CancelLeavesTheCallersValuesUntouchedAfterColourAndFontChanges) {
    const ButtonImages before = values;
    HFONT callerFont = values.font.Handle();
    DialogDriver::OnNextDialog(ChangeEverything, IDCANCEL);
    EXPECT_FALSE(EditButtonImages(values, host));
    ExpectSameValues(values, before);
    EXPECT_EQ(values.font.Handle(), callerFont);
    EXPECT_EQ(values.font.clearType, 0u);
}

TEST_F(ButtonImagesDialogTest, OkCopiesEveryChangeBack) {
    DialogDriver::OnNextDialog(ChangeEverything, IDOK);
    ASSERT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(values.font.style, kFontBold | kFontUnderline);
    EXPECT_STREQ(values.font.face, L"Tahoma");
    EXPECT_EQ(values.font.color, MakeColor(255, 255, 255));
    EXPECT_EQ(values.pressedColor, MakeColor(9, 8, 7));
    EXPECT_EQ(values.background.mode, kModeColor);
    EXPECT_EQ(values.background.solidColor, MakeColor(50, 0, 0));
    EXPECT_EQ(values.pressedImage, L"\\typed.png");
    EXPECT_EQ(values.normalImage, L"\\Themes\\Blue\\normal.png");
    EXPECT_EQ(values.rightMargin, 40);
    EXPECT_EQ(values.leftMargin, 3);
}

TEST_F(ButtonImagesDialogTest, TheDoneButtonConfirms) {
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_BUTTONS_LEFT, L"6");
            SendMessageW(dlg, WM_SYSCOMMAND, SC_CLOSE, 0);
        },
        IDCANCEL);
    ASSERT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(values.leftMargin, 6);
}
