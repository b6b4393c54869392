#include "themes/overrides_values.h"

#include "store/config_sections.h"
#include "store/paths.h"

namespace cv2 {
namespace {

const wchar_t* const kSection = config::kOverrides;

} // namespace

OverrideValues ReadOverrideValues(const IniDocument& doc) {
    OverrideValues v;
    v.useSounds = doc.GetBool(kSection, L"Use Sounds", true);
    v.useColors = doc.GetBool(kSection, L"Use Colors", true);
    v.customFont = doc.GetBool(kSection, L"Custom Font", false);
    v.fontName = doc.GetString(kSection, L"Font Name", L"Tahoma", kFaceNameChars);
    return v;
}

void WriteOverrideValues(IniDocument& doc, const OverrideValues& values) {
    doc.SetBool(kSection, L"Use Sounds", values.useSounds);
    doc.SetBool(kSection, L"Use Colors", values.useColors);
    doc.SetBool(kSection, L"Custom Font", values.customFont);
    doc.SetString(kSection, L"Font Name", CutToBuffer(values.fontName, kFaceNameChars).c_str());
}

bool IsOfferedFontFamily(const wchar_t* family) {
    return family && family[0] != L'\0' && family[0] != L'@';
}

} // namespace cv2
