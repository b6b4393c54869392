#include "themes/preview/scene_context.h"

#include <algorithm>
#include <cstdint>

#include "store/config_sections.h"
#include "store/scale.h"
#include "themes/theme_files.h"

namespace cv2 {
namespace {

// Device colours of a caller that gave none: the colour tables' own fall-backs.
class NoDeviceColors : public DeviceColors {
  public:
    ColorRef SystemColor(int) const override { return 0; }
    ColorRef ThemeColor(int) const override { return 0; }
};

const IniDocument& DocOrEmpty(const IniDocument* doc) {
    static const IniDocument empty;
    return doc ? *doc : empty;
}

const DeviceColors& ColorsOf(const PreviewDevice& device) {
    static const NoDeviceColors none;
    return device.colors ? *device.colors : none;
}

// Lengths stay well inside int arithmetic whatever a theme says.
constexpr long long kMaxLength = 1 << 20;

int Bounded(long long v) {
    return static_cast<int>(std::clamp<long long>(v, -kMaxLength, kMaxLength));
}

} // namespace

SceneContext::SceneContext(const PreviewRequest& r, const PreviewDevice& d)
    : request(r), device(d) {
    scene.width = std::clamp(r.width, 1, kMaxSceneSide);
    scene.height = std::clamp(r.height, 1, kMaxSceneSide);
    scene.dpi = std::clamp(r.dpi, kMinSceneDpi, kMaxSceneDpi);
    if (r.theme)
        hiRes = r.theme->GetBool(config::kSkinInfo, L"HiRes", false);
}

int SceneContext::S(int units) const {
    return ScaleBy(units, scene.dpi);
}

int SceneContext::Pic(long long pixels) const {
    const long long bounded = std::clamp<long long>(pixels, -kMaxLength, kMaxLength);
    return Bounded(bounded * scene.dpi / (hiRes ? 192 : 96));
}

SceneSize SceneContext::PictureOnScreen(SceneSize own, int maxWidth, int maxHeight) const {
    long long w = std::max(1, Pic(own.width));
    long long h = std::max(1, Pic(own.height));
    maxWidth = std::max(1, maxWidth);
    maxHeight = std::max(1, maxHeight);
    if (w > maxWidth) {
        h = std::max(1LL, h * maxWidth / w);
        w = maxWidth;
    }
    if (h > maxHeight) {
        w = std::max(1LL, w * maxHeight / h);
        h = maxHeight;
    }
    return {static_cast<int>(w), static_cast<int>(h)};
}

const IniDocument& SceneContext::ThemeDoc() const {
    return DocOrEmpty(request.theme);
}

const IniDocument& SceneContext::ConfigDoc() const {
    return DocOrEmpty(request.config);
}

SettingValues SceneContext::Theme(const SettingSection& section) const {
    SettingValues values(section);
    values.Load(ThemeDoc(), ColorsOf(device));
    return values;
}

void SceneContext::Use(const wchar_t* section, const wchar_t* key) {
    if (m_used.insert(Folded(section) + L'\n' + Folded(key)).second)
        scene.usedKeys.push_back({section, key});
}

void SceneContext::UseRow(const SettingValues& values, size_t row) {
    const SettingSection& s = values.Section();
    if (row < s.count)
        Use(s.name, s.keys[row].key);
}

const std::wstring& SceneContext::Text(const SettingValues& values, size_t row) {
    UseRow(values, row);
    return values.Text(row);
}

long SceneContext::Int(const SettingValues& values, size_t row) {
    UseRow(values, row);
    return values.Int(row);
}

bool SceneContext::Bool(const SettingValues& values, size_t row) {
    UseRow(values, row);
    return values.Bool(row);
}

ColorRef SceneContext::Color(const SettingValues& values, size_t row) {
    UseRow(values, row);
    return values.Color(row);
}

FontKeys SceneContext::Font(const SettingValues& values) {
    const wchar_t* section = values.Section().name;
    for (const wchar_t* key : {L"Name", L"Size", L"Color", L"Shadow", L"Style"})
        Use(section, key);
    return values.Font();
}

SceneFill SceneContext::PictureFill(const std::wstring& value, SceneSize* size,
                                    bool emptyIsNothing) const {
    SceneFill fill;
    if (value.empty()) {
        fill.kind = emptyIsNothing ? FillKind::None : FillKind::Placeholder;
        return fill;
    }
    fill.picture = ResolveThemeFile(value, request.themeFolder);
    SceneSize own;
    if (!device.pictureSize || !device.pictureSize(fill.picture, own) || own.width <= 0 ||
        own.height <= 0) {
        fill.kind = FillKind::Placeholder;
        return fill;
    }
    fill.kind = FillKind::Picture;
    if (size)
        *size = own;
    return fill;
}

int SceneContext::TextHeight(const FontKeys& font) const {
    if (!device.textSize)
        return S(13);
    return std::clamp(device.textSize(font, L"Ag", scene.dpi).height, 0, kMaxSceneSide);
}

int SceneContext::TextWidth(const FontKeys& font, const std::wstring& text) const {
    if (!device.textSize || text.empty())
        return 0;
    return std::clamp(device.textSize(font, text, scene.dpi).width, 0, kMaxSceneSide * 4);
}

int SceneContext::Add(SceneElement element) {
    if (element.rect.IsEmpty())
        return -1;
    scene.elements.push_back(std::move(element));
    return static_cast<int>(scene.elements.size()) - 1;
}

SceneRect MiddleArea(const SceneContext& c) {
    const int bar = std::min(PreviewBarHeight(c.scene.dpi), c.Height() / 4);
    return {0, bar, c.Width(), c.Height() - bar};
}

FontKeys SystemFont(ColorRef color, bool bold) {
    FontKeys font;
    font.face = L"Tahoma";
    font.size = 8;
    font.color = color;
    font.style = bold ? static_cast<uint32_t>(kFontBold) : 0u;
    return font;
}

int PreviewBarHeight(int dpi) {
    return ScaleBy(26, std::clamp(dpi, kMinSceneDpi, kMaxSceneDpi));
}

} // namespace cv2
