// The start menu's look, section "Start Menu Skin": two pictures that the page moves through the
// image panel, and everything else that the start menu dialog edits as one copy.
#pragma once

#include <cstddef>
#include <string>

#include "pages/setting_table.h"
#include "store/scale.h"

namespace cv2 {

extern const SettingSection kStartMenuSkinSection;

// Rows, in the order they are written.
enum StartMenuRow : size_t {
    kRowFirstLevelPicture,
    kRowSublevelPicture,
    kRowFirstIcon, // program group, settings group, find, help, submenu arrow
    kRowSubmenuArrow = kRowFirstIcon + 4,
    kRowFirstMargin, // left, right, sublevel left, sublevel right
    kRowUseColors = kRowFirstMargin + 4,
    kRowBackgroundColor,
    kRowHighlightColor,
};
constexpr size_t kStartMenuIconCount = 5;
constexpr size_t kStartMenuMarginCount = 4;

// What the start menu dialog edits: every value of the section but the two pictures.
struct StartMenuLook {
    std::wstring icons[kStartMenuIconCount];
    long margins[kStartMenuMarginCount] = {};
    bool useColors = false;
    ColorRef backgroundColor = 0;
    ColorRef highlightColor = 0;
    FontKeys font;
};
StartMenuLook LookOf(const SettingValues& values);
void SetLook(SettingValues& values, const StartMenuLook& look);

// The dialog's layout for a screen: square screens the square one, widths that are whole
// multiples of 240 the portrait one, any other the landscape one.
DialogLayout StartMenuLayout(int width, int height);

} // namespace cv2
