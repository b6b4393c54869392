// Fuzz target: a stranger's theme (also read as config.ini, for the button order and the clock)
// drives the preview's scene. The first two bytes choose the screen and the switches; every
// element must come out on the screen and inside its parent.
#include <cstdint>
#include <cstdlib>

#include "preview_fakes.h"
#include "themes/preview/preview_theme.h"

namespace {

struct Screen {
    int width, height, dpi;
};
const Screen kScreens[] = {{240, 320, 96},  {320, 240, 96},  {240, 240, 96},
                           {480, 640, 192}, {640, 480, 192}, {480, 480, 192}};

void Check(const cv2::Scene& scene) {
    const cv2::SceneRect screen = {0, 0, scene.width, scene.height};
    for (const cv2::SceneElement& e : scene.elements) {
        if (e.rect.IsEmpty() || !screen.Contains(e.rect))
            std::abort();
        if (e.parent >= 0 && !scene.elements[static_cast<size_t>(e.parent)].rect.Contains(e.rect))
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const uint8_t choice = size > 0 ? data[0] : 0;
    const uint8_t switches = size > 1 ? data[1] : 0;
    const size_t skip = size < 2 ? size : 2;
    cv2::IniDocument file;
    file.Parse(data + skip, size - skip);
    const cv2::PreviewTheme theme = cv2::PreviewThemeOf(file, {0x123456, 0x654321, 0x0000FF});

    cv2::PreviewRequest request;
    request.theme = &theme.doc;
    request.config = &file;
    request.themeFolder = L"C:\\Themes\\Fuzz\\";
    if (choice % 8 < 6) {
        const Screen& s = kScreens[choice % 8];
        request.width = s.width;
        request.height = s.height;
        request.dpi = s.dpi;
    } else if (choice % 8 == 6) {
        request.width = 1 + switches % 64;
        request.height = 1 + switches / 4;
        request.dpi = choice;
    } else {
        request.width = 300;
        request.height = 500;
        request.dpi = 24 + switches * 3;
    }
    request.startMenuOpen = (switches & 1) != 0;
    request.topBarOnly = (switches & 2) != 0;
    cv2test::PreviewFakes fakes;
    fakes.anyPicture = (switches & 4) != 0;
    cv2::PreviewDevice device = fakes.Device();
    device.hasPhone = (switches & 8) != 0;
    device.pluginButtons.push_back({L"Plug", L"plug", 12, (switches & 16) != 0});
    Check(cv2::BuildScene(request, device));
    return 0;
}
