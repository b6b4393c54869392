#include "ui/backgrounds/background_record.h"

namespace cv2 {

const wchar_t* const kBackgroundModeWords[kBackgroundModeCount + 1] = {
    L"scaled", L"tiled", L"color", L"gradient", L"none", nullptr};

namespace {

const wchar_t kPortraitKey[] = L"Portrait";
const wchar_t kLandscapeKey[] = L"Landscape";
const wchar_t kModeKey[] = L"Mode";
const wchar_t kSolidColorKey[] = L"Solid Color";
const wchar_t kLeftColorKey[] = L"Left Color";
const wchar_t kRightColorKey[] = L"Right Color";
const wchar_t kUseThemeColorsKey[] = L"Use Theme Colors";

} // namespace

int32_t ModeFromWord(const wchar_t* word) {
    if (!word)
        return kModeColor;
    for (int32_t mode = 0; mode < kBackgroundModeCount; ++mode) {
        if (EqualsNoCase(word, kBackgroundModeWords[mode]))
            return mode;
    }
    return kModeColor;
}

const wchar_t* ModeWord(int32_t mode) {
    if (mode < 0 || mode >= kBackgroundModeCount)
        return kBackgroundModeWords[kModeColor];
    return kBackgroundModeWords[mode];
}

BackgroundDefaults MakeBackgroundDefaults(ColorRef activeCaption, const ColorRef* themeColor0,
                                          const ColorRef* themeColor1) {
    return {activeCaption, themeColor0 ? *themeColor0 : kThemeColor0Fallback,
            themeColor1 ? *themeColor1 : activeCaption};
}

BackgroundRecord ReadBackground(const IniDocument& doc, const wchar_t* section,
                                const BackgroundDefaults& defaults) {
    BackgroundRecord r;
    r.portraitImage = doc.GetString(section, kPortraitKey, L"", kBackgroundPathChars);
    r.landscapeImage = doc.GetString(section, kLandscapeKey, L"", kBackgroundPathChars);
    const std::wstring word =
        doc.GetString(section, kModeKey, kBackgroundModeWords[kModeColor], kModeWordChars);
    r.mode = ModeFromWord(word.c_str());
    r.solidColor = ReadColor(doc, section, kSolidColorKey, defaults.solidColor);
    r.leftColor = ReadColor(doc, section, kLeftColorKey, defaults.leftColor);
    r.rightColor = ReadColor(doc, section, kRightColorKey, defaults.rightColor);
    r.useThemeColors = doc.GetBool(section, kUseThemeColorsKey, true) ? 1 : 0;
    return r;
}

void WriteBackground(IniDocument& doc, const wchar_t* section, const BackgroundRecord& record) {
    doc.SetString(section, kPortraitKey, record.portraitImage.c_str());
    doc.SetString(section, kLandscapeKey, record.landscapeImage.c_str());
    doc.SetString(section, kModeKey, ModeWord(record.mode));
    WriteColor(doc, section, kSolidColorKey, record.solidColor);
    WriteColor(doc, section, kLeftColorKey, record.leftColor);
    WriteColor(doc, section, kRightColorKey, record.rightColor);
    doc.SetBool(section, kUseThemeColorsKey, record.useThemeColors != 0);
}

} // namespace cv2
