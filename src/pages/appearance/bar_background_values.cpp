#include "pages/appearance/bar_background_values.h"

#include <array>

#include "store/config_sections.h"
#include "ui/backgrounds/background_record.h"

namespace cv2 {
namespace {

// The platform's system colour of active captions.
constexpr int kActiveCaption = 2;

constexpr SettingKey kBackgroundKeys[kBackgroundRowCount] = {
    {L"Portrait", SettingType::Path},
    {L"Landscape", SettingType::Path},
    {L"Mode", SettingType::Choice, L"color", DeviceDefault::None, 0, kBackgroundModeWords},
    {L"Solid Color", SettingType::Color, L"", DeviceDefault::SystemColor, kActiveCaption},
    {L"Left Color", SettingType::Color, L"", DeviceDefault::ThemeColor, 0},
    {L"Right Color", SettingType::Color, L"", DeviceDefault::ThemeColor, 1},
    {L"Use Theme Colors", SettingType::Boolean, L"TRUE"},
};

// A bar section's rows: the background keys, then the section's own.
template <size_t N>
constexpr std::array<SettingKey, kBackgroundRowCount + N>
WithBackground(const SettingKey (&extra)[N]) {
    std::array<SettingKey, kBackgroundRowCount + N> rows{};
    for (size_t i = 0; i < kBackgroundRowCount; ++i)
        rows[i] = kBackgroundKeys[i];
    for (size_t i = 0; i < N; ++i)
        rows[kBackgroundRowCount + i] = extra[i];
    return rows;
}

template <size_t N>
constexpr SettingSection BarSection(const wchar_t* name, const std::array<SettingKey, N>& rows,
                                    const FontDefault* font = nullptr) {
    return {name, rows.data(), N, font};
}

// The bar fonts are bold black Tahoma of 8 points.
constexpr FontDefault kBarFont = {L"Tahoma", 8, 0, 0, L"bold"};

constexpr SettingKey kTodayExtra[] = {
    {L"Display New Text", SettingType::Boolean, L"TRUE"},
};
constexpr SettingKey kMenubarExtra[] = {
    {L"Pressed Color", SettingType::Color, L"0"},
    {L"Normal", SettingType::Path},
    {L"Pressed", SettingType::Path},
    {L"Disabled", SettingType::Path},
    {L"Left", SettingType::Integer, L"3"},
    {L"Right", SettingType::Integer, L"3"},
};
constexpr SettingKey kSoftKeyExtra[] = {
    {L"Left Button", SettingType::Path},   {L"Right Button", SettingType::Path},
    {L"Left Pressed", SettingType::Path},  {L"Right Pressed", SettingType::Path},
    {L"Left Disabled", SettingType::Path}, {L"Right Disabled", SettingType::Path},
};

constexpr auto kTodayKeys = WithBackground(kTodayExtra);
constexpr auto kMenubarKeys = WithBackground(kMenubarExtra);
constexpr auto kSoftKeyKeys = WithBackground(kSoftKeyExtra);

} // namespace

const SettingSection kTopbarSection = SectionOf(config::kTopbar, kBackgroundKeys);
const SettingSection kTodayMenubarSection =
    BarSection(config::kTodayMenubar, kTodayKeys, &kBarFont);
const SettingSection kMenubarSection = BarSection(config::kMenubar, kMenubarKeys, &kBarFont);
const SettingSection kSoftKeySection = BarSection(config::kSoftKey, kSoftKeyKeys);

BackgroundFill FillOf(const SettingValues& values) {
    BackgroundFill fill;
    fill.mode = ModeFromWord(values.Text(kRowMode).c_str());
    fill.solidColor = values.Color(kRowSolidColor);
    fill.leftColor = values.Color(kRowLeftColor);
    fill.rightColor = values.Color(kRowRightColor);
    fill.useThemeColors = values.Bool(kRowThemeColors) ? 1 : 0;
    return fill;
}

void SetFill(SettingValues& values, const BackgroundFill& fill) {
    values.SetText(kRowMode, ModeWord(fill.mode));
    values.SetColor(kRowSolidColor, fill.solidColor);
    values.SetColor(kRowLeftColor, fill.leftColor);
    values.SetColor(kRowRightColor, fill.rightColor);
    values.SetBool(kRowThemeColors, fill.useThemeColors != 0);
}

} // namespace cv2
