// Screenshots of the background settings dialog and the button images dialog on the device
// screen the run is made for, each with a check that nothing is cut off or overlapping.
#include "ui/backgrounds/background_dialog.h"
#include "ui/backgrounds/button_images_dialog.h"

#include "background_dialog_steps.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

// Checks the layout of the dialog in front before the screenshot is taken.
void CheckLayoutNextDialog() {
    DialogDriver::OnNextDialog(
        [](HWND dlg) {
            cv2test::ExpectLaidOutApart(dlg);
            cv2test::ExpectTextsFit(dlg);
        },
        IDCANCEL);
}

} // namespace

class BackgroundDialogScreens : public cv2test::PickerHostTest {
  protected:
    void Shoot(const BackgroundFill& fill, const wchar_t* name) {
        BackgroundDialog dialog;
        dialog.fill = fill;
        CheckLayoutNextDialog();
        EXPECT_FALSE(dialog.Run(host));
        ShootDialog(name, [&] { EXPECT_FALSE(dialog.Run(host)); });
    }
};

TEST_F(BackgroundDialogScreens, GradientWithItsOwnColours) {
    BackgroundFill fill;
    fill.mode = kModeGradient;
    fill.leftColor = MakeColor(0x08, 0x6D, 0xE7);
    fill.rightColor = MakeColor(0xFF, 0xFF, 0xFF);
    fill.useThemeColors = 0;
    Shoot(fill, L"background_dialog");
}

TEST_F(BackgroundDialogScreens, SolidColour) {
    BackgroundFill fill;
    fill.mode = kModeColor;
    fill.solidColor = MakeColor(0xE0, 0x80, 0x30);
    Shoot(fill, L"background_dialog_solid");
}

class ButtonImagesDialogScreens : public cv2test::PickerHostTest {
  protected:
    void Shoot(const ButtonImages& values, const wchar_t* name) {
        ButtonImagesDialog dialog;
        dialog.Fill(values);
        CheckLayoutNextDialog();
        EXPECT_FALSE(dialog.Run(host));
        ShootDialog(name, [&] { EXPECT_FALSE(dialog.Run(host)); });
    }
};

TEST_F(ButtonImagesDialogScreens, MenubarImages) {
    ButtonImages values;
    values.font.Create(L"Tahoma", 8, kFontBold, false);
    values.normalImage = L"\\Windows\\Themes\\Corvane Blue\\menubar_normal.png";
    values.pressedImage = L"\\Windows\\Themes\\Corvane Blue\\menubar_pressed.png";
    values.disabledImage = L"";
    values.leftMargin = 3;
    values.rightMargin = 3;
    Shoot(values, L"button_images_dialog");
}

TEST_F(ButtonImagesDialogScreens, BackgroundOpenedFromIt) {
    ButtonImages values;
    values.background.mode = kModeGradient;
    values.background.useThemeColors = 1;
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    std::wstring shot;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DialogDriver::OnNextDialog(
                [&](HWND background) {
                    ShowWindow(background, SW_SHOW);
                    UpdateWindow(background);
                    shot = cv2test::SaveScreenshot(L"button_images_background");
                },
                IDCANCEL);
            DialogDriver::Click(dlg, IDC_BUTTONS_BACKGROUND);
        },
        IDCANCEL);
    EXPECT_FALSE(dialog.Run(host));
    if (!cv2test::ScreenName().empty()) {
        EXPECT_FALSE(shot.empty());
    }
}
