// Screenshots of the font picker on the device screen the run is made for.
#include "ui/pickers/font_picker.h"

#include "color_dialog_driver.h"

using namespace cv2;

class FontPickerScreens : public cv2test::PickerHostTest {
  protected:
    void Shoot(FontRecord& record, const wchar_t* name) {
        ShootDialog(name, [&] { EXPECT_FALSE(PickFont(record, host)); });
    }
};

TEST_F(FontPickerScreens, ShadowedWhiteTitleFont) {
    FontRecord record;
    record.Create(L"Tahoma", 8, kFontShadow, false);
    record.color = 0x00FFFFFF;
    Shoot(record, L"font_picker");
}

TEST_F(FontPickerScreens, GlowingBoldFontWithALongName) {
    FontRecord record;
    record.Create(L"Bitstream Vera Sans Condensed Oblique", 12, kFontBold | kFontGlow, false);
    record.color = 0x00802000;
    record.shadowColor = 0x0000FFFF;
    Shoot(record, L"font_picker_glow");
}

TEST_F(FontPickerScreens, ItalicUnderlinedDarkFont) {
    FontRecord record;
    record.Create(L"DejaVu Sans", 10, kFontItalic | kFontUnderline, false);
    Shoot(record, L"font_picker_italic");
}
