#include "themes/preview/preview_theme.h"

#include "platform/file_access.h"
#include "store/config_sections.h"
#include "store/paths.h"

namespace cv2 {
namespace {

bool IsConfigFile(const std::wstring& path) {
    const size_t slash = path.find_last_of(L"\\/");
    const std::wstring name = slash == std::wstring::npos ? path : path.substr(slash + 1);
    return EqualsNoCase(name.c_str(), L"config.ini");
}

} // namespace

bool IsFirstFormatTheme(const IniDocument& file) {
    return !file.HasSection(config::kSkinInfo);
}

PreviewTheme PreviewThemeOf(const IniDocument& file, const OlderThemeColors& colors) {
    PreviewTheme theme;
    theme.folder = FolderOf(file.Path());
    if (IsFirstFormatTheme(file) && !IsConfigFile(file.Path()))
        ConvertOlderTheme(file, theme.doc, colors);
    else
        theme.doc = file;
    return theme;
}

bool LoadPreviewTheme(const std::wstring& path, const OlderThemeColors& colors,
                      PreviewTheme& theme) {
    if (!FileExists(path))
        return false;
    IniDocument file;
    if (!file.Load(path))
        return false;
    theme = PreviewThemeOf(file, colors);
    return true;
}

} // namespace cv2
