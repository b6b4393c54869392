// Helpers of the preview scene tests: a theme and a config.ini from file text, the six device
// screens, and a scene built from them with the stand-in device.
#pragma once

#include <string>
#include <vector>

#include "preview_fakes.h"
#include "theme_test_text.h"
#include "themes/preview/scene_builder.h"

namespace cv2test {

struct DeviceScreen {
    const char* name;
    int width, height, dpi;
};
inline const std::vector<DeviceScreen>& SixScreens() {
    static const std::vector<DeviceScreen> screens = {
        {"qvga-portrait", 240, 320, 96},  {"qvga-landscape", 320, 240, 96},
        {"qvga-square", 240, 240, 96},    {"vga-portrait", 480, 640, 192},
        {"vga-landscape", 640, 480, 192}, {"vga-square", 480, 480, 192}};
    return screens;
}

// The folder the test themes live in; their pictures are named relative to it.
constexpr wchar_t kThemeFolder[] = L"C:\\Themes\\Test\\";
inline std::wstring ThemeFile(const std::wstring& name) {
    return kThemeFolder + name;
}

class PreviewSceneFixture {
  public:
    cv2::IniDocument theme;
    cv2::IniDocument config;
    PreviewFakes fakes;
    cv2::PreviewRequest request;

    PreviewSceneFixture() {
        request.theme = &theme;
        request.config = &config;
        request.themeFolder = kThemeFolder;
    }
    void Theme(const std::string& text) { theme = ThemeText(text); }
    void Config(const std::string& text) { config = ThemeText(text); }
    // A picture of the theme's folder that can be read, at its own size.
    void Picture(const std::wstring& name, int width, int height) {
        fakes.pictures[ThemeFile(name)] = {width, height};
    }
    void Screen(int width, int height, int dpi) {
        request.width = width;
        request.height = height;
        request.dpi = dpi;
    }
    void Screen(const DeviceScreen& s) { Screen(s.width, s.height, s.dpi); }
    cv2::Scene Build() const { return cv2::BuildScene(request, fakes.Device()); }
};

// The names of the elements of one kind, in drawing order.
inline std::vector<std::wstring> Names(const cv2::Scene& scene, cv2::SceneKind kind) {
    std::vector<std::wstring> names;
    for (const cv2::SceneElement* e : scene.All(kind))
        names.push_back(e->name);
    return names;
}

} // namespace cv2test
