#include "app/preview_command.h"

#include <windows.h>

#include "app/preview_arguments.h"
#include "platform/file_access.h"
#include "platform/image_encoder.h"
#include "platform/std_error.h"
#include "store/format_text.h"
#include "store/strings.h"
#include "themes/older_theme_device.h"
#include "themes/preview/preview_device.h"
#include "themes/preview/preview_theme.h"
#include "themes/preview/scene_builder.h"
#include "ui/image/bmp_bytes.h"
#include "ui/preview/scene_painter.h"

namespace cv2 {
namespace {

// A path typed on the command line is relative to the current folder.
std::wstring FullPath(const std::wstring& path) {
    wchar_t full[MAX_PATH * 4] = {};
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH * 4, full, nullptr);
    return length > 0 && length < MAX_PATH * 4 ? std::wstring(full) : path;
}

bool EndsWithPng(const std::wstring& path) {
    return path.size() >= 4 && EqualsNoCase(path.substr(path.size() - 4).c_str(), L".png");
}

int Fail(int code, StringId message, const std::wstring& path) {
    WriteStdError(FormatText(Localized(message), {path}));
    return code;
}

} // namespace

int RunPreviewCommand(const std::wstring& exeFolder, const std::wstring& commandLine) {
    PreviewArguments args;
    if (!ParsePreviewArguments(commandLine, args)) {
        WriteStdError(Localized(IDS_PREVIEW_USAGE));
        return kPreviewUsage;
    }
    const std::wstring themePath = FullPath(args.theme);
    PreviewTheme theme;
    if (!LoadPreviewTheme(themePath, DeviceOlderThemeColors(), theme))
        return Fail(kPreviewNoTheme, IDS_PREVIEW_NO_THEME, themePath);
    IniDocument config;
    config.Load(exeFolder + L"config.ini");

    ScenePainter painter;
    PreviewRequest request;
    request.theme = &theme.doc;
    request.themeFolder = theme.folder;
    request.config = &config;
    request.width = args.width;
    request.height = args.height;
    request.dpi = args.dpi;
    request.startMenuOpen = args.startMenu;
    const PixelImage image = painter.Render(BuildScene(request, ThisDevicePreview(painter)));

    const std::wstring outPath = FullPath(args.out);
    Bytes bytes;
    if (EndsWithPng(outPath)) {
        if (!EncodePng(image.width, image.height, image.pixels.data(), image.width * 4, bytes))
            return Fail(kPreviewNotWritten, IDS_PREVIEW_NO_PNG, outPath);
    } else {
        bytes = BmpBytes(image);
    }
    if (bytes.empty() || !WriteFileReplacing(outPath, bytes))
        return Fail(kPreviewNotWritten, IDS_PREVIEW_NOT_WRITTEN, outPath);
    return kPreviewWritten;
}

} // namespace cv2
