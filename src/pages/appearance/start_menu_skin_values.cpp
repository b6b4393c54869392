#include "pages/appearance/start_menu_skin_values.h"

#include "store/config_sections.h"
namespace cv2 {
namespace {

// The platform's system colours of menus and of highlighted items.
constexpr int kSysMenu = 4;
constexpr int kSysHighlight = 13;

constexpr SettingKey kKeys[] = {
    {L"Start Menu Picture", SettingType::Path},
    {L"Start Menu Picture 2", SettingType::Path},
    {L"Program Group", SettingType::Path},
    {L"Settings Group", SettingType::Path},
    {L"Find Icon", SettingType::Path},
    {L"Help Icon", SettingType::Path},
    {L"Submenu Arrow", SettingType::Path},
    {L"Left Margin", SettingType::Integer, L"0"},
    {L"Right Margin", SettingType::Integer, L"0"},
    {L"Sublevel Left Margin", SettingType::Integer, L"0"},
    {L"Sublevel Right Margin", SettingType::Integer, L"0"},
    {L"Use Colors", SettingType::Boolean, L"FALSE"},
    {L"BKColor", SettingType::Color, L"", DeviceDefault::SystemColor, kSysMenu},
    {L"HighColor", SettingType::Color, L"", DeviceDefault::SystemColor, kSysHighlight},
};

constexpr FontDefault kMenuFont = {L"Tahoma", 8, 0, 0, L"bold"};

} // namespace

const SettingSection kStartMenuSkinSection = SectionOf(config::kStartMenuSkin, kKeys, &kMenuFont);

StartMenuLook LookOf(const SettingValues& values) {
    StartMenuLook look;
    for (size_t i = 0; i < kStartMenuIconCount; ++i)
        look.icons[i] = values.Text(kRowFirstIcon + i);
    for (size_t i = 0; i < kStartMenuMarginCount; ++i)
        look.margins[i] = values.Int(kRowFirstMargin + i);
    look.useColors = values.Bool(kRowUseColors);
    look.backgroundColor = values.Color(kRowBackgroundColor);
    look.highlightColor = values.Color(kRowHighlightColor);
    look.font = values.Font();
    return look;
}

void SetLook(SettingValues& values, const StartMenuLook& look) {
    for (size_t i = 0; i < kStartMenuIconCount; ++i)
        values.SetText(kRowFirstIcon + i, look.icons[i]);
    for (size_t i = 0; i < kStartMenuMarginCount; ++i)
        values.SetInt(kRowFirstMargin + i, look.margins[i]);
    values.SetBool(kRowUseColors, look.useColors);
    values.SetColor(kRowBackgroundColor, look.backgroundColor);
    values.SetColor(kRowHighlightColor, look.highlightColor);
    values.SetFont(look.font);
}

DialogLayout StartMenuLayout(int width, int height) {
    return ChooseLayout(width, height, true);
}

} // namespace cv2
