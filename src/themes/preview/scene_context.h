// What the parts of the scene builder share while one scene is made: the request, the device,
// the scene so far, and the small rules every part uses (scaling, reading a theme value and
// noting that it was used, turning a picture value into a fill).
#pragma once

#include <string>
#include <unordered_set>

#include "themes/preview/scene_builder.h"

namespace cv2 {

class SceneContext {
  public:
    SceneContext(const PreviewRequest& request, const PreviewDevice& device);

    const PreviewRequest& request;
    const PreviewDevice& device;
    Scene scene;
    bool hiRes = false; // the theme's pictures are drawn for 192 dots per inch

    int Width() const { return scene.width; }
    int Height() const { return scene.height; }
    bool Landscape() const { return scene.width > scene.height; }

    // A length in 96-dpi units at the scene's density.
    int S(int units) const;
    // A length in the theme's picture pixels at the scene's density.
    int Pic(long long pixels) const;
    // A picture's size on the screen, shrunk (shape kept) to fit maxWidth x maxHeight; at
    // least one pixel each way.
    SceneSize PictureOnScreen(SceneSize own, int maxWidth, int maxHeight) const;

    // The documents of the request; an empty one for a document not given.
    const IniDocument& ThemeDoc() const;
    const IniDocument& ConfigDoc() const;
    // A described section of the theme, read with the device's defaults.
    SettingValues Theme(const SettingSection& section) const;
    // Notes that the scene used `key` of `section`.
    void Use(const wchar_t* section, const wchar_t* key);
    // The value of a row, noted as used.
    const std::wstring& Text(const SettingValues& values, size_t row);
    long Int(const SettingValues& values, size_t row);
    bool Bool(const SettingValues& values, size_t row);
    ColorRef Color(const SettingValues& values, size_t row);
    // The font record of a section, noted as used.
    FontKeys Font(const SettingValues& values);

    // A named picture as a fill stretched over its element: the picture when it can be read
    // (its own size in `size`), else a placeholder. An empty value names no picture: a
    // placeholder too, or nothing (FillKind::None) when `emptyIsNothing`.
    SceneFill PictureFill(const std::wstring& value, SceneSize* size = nullptr,
                          bool emptyIsNothing = false) const;
    // The height of a line of text in a font.
    int TextHeight(const FontKeys& font) const;
    int TextWidth(const FontKeys& font, const std::wstring& text) const;

    // Appends an element; returns its index, or -1 for an empty rectangle, which is left out.
    int Add(SceneElement element);
    const SceneElement& At(int index) const { return scene.elements[static_cast<size_t>(index)]; }

  private:
    void UseRow(const SettingValues& values, size_t row);

    // The keys already noted, folded, as "section\nkey": a scene notes each once.
    std::unordered_set<std::wstring> m_used;
};

// `v` brought between `lo` and `hi`; `lo` wins when the two cross (a screen too small for a
// minimum).
inline int ClampTo(long long v, int lo, int hi) {
    if (v > hi)
        v = hi;
    if (v < lo)
        v = lo;
    return static_cast<int>(v);
}

// The parts of the scene, in drawing order.
void AddTopBar(SceneContext& c, int& startButton, int& volumeButton);
void AddStartMenu(SceneContext& c, int startButton);
void AddDesktopAndWindow(SceneContext& c);
void AddVolumeBubble(SceneContext& c, int volumeButton);
void AddTodayMenubar(SceneContext& c);

// The fill of a bar's background section for the scene's screen shape.
SceneFill BarBackground(SceneContext& c, const SettingSection& section);

// A box that lies in the scene's middle, between the two bars.
SceneRect MiddleArea(const SceneContext& c);

// A font of the system's own controls (the sample window's texts).
FontKeys SystemFont(ColorRef color, bool bold);

} // namespace cv2
