#include "pages/behaviour/plugins/plugin_values.h"

#include "store/paths.h"

namespace cv2 {

bool FitsPluginBuffers(const std::wstring& name, size_t dataBytes) {
    return name.size() < kPluginRegistrationChars && dataBytes <= kPluginDataBytes;
}

PluginRegistration ParsePluginValue(const std::wstring& name, bool isText,
                                    const std::wstring& text) {
    PluginRegistration plugin;
    plugin.name = name;
    if (!isText)
        return plugin;
    // The data arrives through a buffer of fixed size; a longer text is cut as it would be.
    std::wstring data = CutToBuffer(text, kPluginDataChars);
    const size_t mark = data.find(kDisabledSuffix);
    if (mark != std::wstring::npos) {
        data.resize(mark);
        plugin.disabled = true;
    }
    plugin.path = CutToBuffer(data, kPluginPathChars);
    return plugin;
}

std::wstring PluginValueText(const std::wstring& path, bool enabled) {
    return enabled ? path : path + kDisabledSuffix;
}

void CopyToBuffer(wchar_t* buffer, size_t chars, const wchar_t* text) {
    if (!chars)
        return;
    size_t i = 0;
    for (; text && i + 1 < chars && text[i]; ++i)
        buffer[i] = text[i];
    buffer[i] = L'\0';
}

} // namespace cv2
