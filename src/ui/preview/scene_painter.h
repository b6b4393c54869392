// Draws a scene of the preview with the program's own drawing: pictures through the image
// loader and image drawing, fills through the background drawing, texts through font records
// with their shadow or glow. It keeps every picture it has read and every size it has drawn one
// at, so a scene drawn again costs only the copying.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <tuple>

#include "ui/image/loaded_image.h"
#include "ui/image/pixel_image.h"
#include "ui/pickers/font_record.h"
#include "ui/preview/scene.h"

namespace cv2 {

class ScenePainter {
  public:
    ScenePainter();
    ~ScenePainter();
    ScenePainter(const ScenePainter&) = delete;
    ScenePainter& operator=(const ScenePainter&) = delete;

    // The size of the picture in a file (as read, a huge one already shrunk); false when it
    // cannot be read. The picture is read once and kept.
    bool PictureSize(const std::wstring& path, SceneSize& size);
    // The room a line of text takes in a font at a density, as the scene draws it.
    SceneSize TextSize(const FontKeys& font, const std::wstring& text, int dpi);

    // Draws the scene with its top-left corner at (x, y) of the device context.
    void Paint(HDC dc, const Scene& scene, int x, int y);
    // The scene drawn into a picture of its size; empty when no bitmap could be made.
    PixelImage Render(const Scene& scene);

    // How many pictures are kept (read, and drawn at a size).
    size_t PicturesRead() const { return m_read.size(); }
    size_t PicturesDrawn() const { return m_drawn.size(); }

  private:
    struct DrawnKey {
        std::wstring path;
        int width, height;
        int fit; // PictureFit, with its margins and scale for Margins
        int left, top, right, bottom, scale;
        bool operator<(const DrawnKey& o) const {
            return std::tie(path, width, height, fit, left, top, right, bottom, scale) <
                   std::tie(o.path, o.width, o.height, o.fit, o.left, o.top, o.right, o.bottom,
                            o.scale);
        }
    };
    using FontKey = std::tuple<std::wstring, int, uint32_t, int>;

    // The picture as read, or null when it cannot be read.
    const PixelImage* Read(const std::wstring& path);
    // The picture made ready to draw at a size; null when it cannot be read.
    const LoadedImage* Drawn(const SceneFill& fill, int width, int height);
    FontRecord& Font(const FontKeys& keys, int dpi);

    void PaintElement(HDC dc, const Scene& scene, size_t index);
    bool PaintPicture(HDC dc, const SceneFill& fill, const RECT& r);
    void PaintPlaceholder(HDC dc, const Scene& scene, size_t index);
    void PaintText(HDC dc, const SceneText& text, const RECT& r, int dpi);

    std::map<std::wstring, std::unique_ptr<PixelImage>> m_read; // null: cannot be read
    std::map<DrawnKey, LoadedImage> m_drawn;
    std::map<FontKey, FontRecord> m_fonts;
    HDC m_measure = nullptr;
};

// A picture is never read larger than this each way; a larger one is shrunk while it is read.
constexpr int kPreviewPictureLimit = 2048;

} // namespace cv2
