// Screenshots of the colour picker on the device screen the run is made for.
#include "ui/pickers/color_picker.h"

#include "color_dialog_driver.h"

using namespace cv2;

class ColorPickerScreens : public cv2test::PickerHostTest {};

TEST_F(ColorPickerScreens, Dialog) {
    ColorPicker picker;
    picker.color = MakeColor(224, 128, 48);
    ShootDialog(L"color_picker", [&] { EXPECT_FALSE(picker.Run(host)); });
}
