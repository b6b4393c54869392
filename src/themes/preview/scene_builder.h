// The scene of the preview, made from a theme and the behaviour settings for a screen: the top
// bar with its buttons, title and clock; the start menu opened under the start button; a sample
// window in the theme's system colours with an application button, a check box and a radio
// button; the volume bubble; the Today menu bar with its soft keys. Portable: what only the
// platform knows (its colours, the time, the size of a picture or of a text) is passed in.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "pages/behaviour/button_order_values.h"
#include "pages/behaviour/clock_text.h"
#include "pages/behaviour/clock_values.h"
#include "pages/setting_table.h"
#include "store/ini_document.h"
#include "ui/preview/scene.h"

namespace cv2 {

// The size of the picture in a file, at its own resolution; false when it cannot be read.
using PictureSizeFn = std::function<bool(const std::wstring& path, SceneSize& size)>;
// The room a line of text takes in a font at a density, shadow or glow included.
using TextSizeFn =
    std::function<SceneSize(const FontKeys& font, const std::wstring& text, int dpi)>;

// What the platform tells the builder.
struct PreviewDevice {
    const DeviceColors* colors = nullptr; // defaults, and the Today theme's gradient colours
    bool hasPhone = false;
    ClockTime now;
    ClockNames names = EnglishClockNames();
    LocaleTimeFacts locale;
    // Buttons that plug-ins add to the button order, after the built-in items.
    std::vector<OrderItem> pluginButtons;
    PictureSizeFn pictureSize;
    TextSizeFn textSize;
};

struct PreviewRequest {
    const IniDocument* theme = nullptr;  // the appearance sections (a current-format theme)
    std::wstring themeFolder;            // where names that are not absolute paths are looked for
    const IniDocument* config = nullptr; // the behaviour settings (config.ini)
    int width = 240;
    int height = 320;
    int dpi = 96;
    bool startMenuOpen = false;
    // Only the top bar, filling the whole width and height (My Theme's strip).
    bool topBarOnly = false;
};

// Sizes the builder accepts; anything outside is brought inside.
constexpr int kMaxSceneSide = 4096;
constexpr int kMinSceneDpi = 24;
constexpr int kMaxSceneDpi = 960;

Scene BuildScene(const PreviewRequest& request, const PreviewDevice& device);

// Height of the top bar (and of the Today menu bar) on a screen of that density.
int PreviewBarHeight(int dpi);

} // namespace cv2
