#include "ui/pickers/color_value.h"

#include <string>

#include "store/scale.h"

namespace cv2 {

ColorRef ReadColor(const IniDocument& doc, const wchar_t* section, const wchar_t* key,
                   ColorRef def) {
    return static_cast<ColorRef>(doc.GetInt(section, key, static_cast<int32_t>(def)));
}

void WriteColor(IniDocument& doc, const wchar_t* section, const wchar_t* key, ColorRef color) {
    doc.SetInt(section, key, static_cast<int32_t>(color));
}

int ChannelFromText(const wchar_t* text) {
    if (!text)
        return 0;
    size_t length = 0;
    while (length < kChannelTextChars && text[length])
        ++length;
    const std::wstring head(text, length);
    return static_cast<int>(LeadingLong(head.c_str()));
}

PreviewBox ColorPreviewBox(int dpiX, int dpiY) {
    return {ScaleBy(3, dpiY), ScaleBy(94, dpiX), ScaleBy(78, dpiY), ScaleBy(117, dpiX)};
}

} // namespace cv2
