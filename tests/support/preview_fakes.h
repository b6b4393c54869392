// Stand-ins for what the platform tells the preview's scene builder: fixed device colours, a
// moment, picture sizes from a table and text sizes from the font's height. Shared by the unit
// tests and the fuzz target of the scene.
#pragma once

#include <cstdlib>
#include <map>
#include <string>

#include "themes/preview/scene_builder.h"
#include "ui/pickers/font_metrics.h"

namespace cv2test {

class PreviewColors : public cv2::DeviceColors {
  public:
    cv2::ColorRef SystemColor(int index) const override {
        return 0x000100u * static_cast<unsigned>(index);
    }
    // Theme colour 0 is blue-ish, 1 green-ish: easy to tell from any colour a theme names.
    cv2::ColorRef ThemeColor(int index) const override { return index == 0 ? 0xC00000 : 0x00C000; }
};

// Pictures are known by their full path; any other file cannot be read, unless `anyPicture`
// makes every named file a picture whose size (zero and huge ones among them) follows from its
// name.
struct PreviewFakes {
    PreviewColors colors;
    std::map<std::wstring, cv2::SceneSize> pictures;
    bool anyPicture = false;

    static cv2::SceneSize SizeFromName(const std::wstring& path) {
        unsigned hash = 2166136261u;
        for (wchar_t c : path)
            hash = (hash ^ static_cast<unsigned>(c)) * 16777619u;
        if (hash % 7 == 0)
            return {1 << 30, static_cast<int>(hash % 5)};
        return {static_cast<int>(hash % 300), static_cast<int>((hash / 300) % 300)};
    }

    // A text is as high as its font and half as wide per character.
    static cv2::SceneSize TextSize(const cv2::FontKeys& font, const std::wstring& text, int dpi) {
        int height = std::abs(cv2::FontHeightForSize(font.size, dpi));
        if (height == 0)
            height = 13 * dpi / 96;
        if (height > 100000)
            height = 100000;
        return {static_cast<int>(text.size()) * (height / 2 + 1), height};
    }

    cv2::PreviewDevice Device() const {
        cv2::PreviewDevice device;
        device.colors = &colors;
        device.now.year = 2024;
        device.now.month = 3;
        device.now.day = 5;
        device.now.dayOfWeek = 2;
        device.now.hour = 14;
        device.now.minute = 7;
        device.locale.shortDate = L"M/d/yyyy";
        const auto* table = &pictures;
        const bool any = anyPicture;
        device.pictureSize = [table, any](const std::wstring& path, cv2::SceneSize& size) {
            if (any) {
                size = SizeFromName(path);
                return true;
            }
            const auto found = table->find(path);
            if (found == table->end())
                return false;
            size = found->second;
            return true;
        };
        device.textSize = TextSize;
        return device;
    }
};

} // namespace cv2test
