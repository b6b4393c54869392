#include "ui/preview/scene_painter.h"

#include <algorithm>

#include "ui/backgrounds/background_paint.h"
#include "ui/image/image_draw.h"
#include "ui/image/image_loader.h"
#include "ui/image/image_margins.h"
#include "ui/image/image_scale.h"
#include "ui/pickers/font_metrics.h"

namespace cv2 {
namespace {

// A placeholder: a light grey box in a darker frame, its name in dark grey.
constexpr ColorRef kPlaceholderFace = 0xE0E0E0;
constexpr ColorRef kPlaceholderFrame = 0x909090;
constexpr ColorRef kPlaceholderText = 0x505050;
constexpr int kPlaceholderTextSize = 6; // points
// Pictures and drawn sizes kept before they are all let go (a window resized many times, a
// long walk through many themes).
constexpr size_t kMaxRead = 128;
constexpr size_t kMaxDrawn = 512;

RECT ToRect(const SceneRect& r) {
    return {r.left, r.top, r.right, r.bottom};
}

void FrameIn(HDC dc, const RECT& r, ColorRef color) {
    HBRUSH brush = CreateSolidBrush(color);
    FrameRect(dc, &r, brush);
    DeleteObject(brush);
}

// A push button of the system: the face, a light edge at the top and left, a dark one at the
// bottom and right.
void PaintRaised(HDC dc, const RECT& r, const SceneFill& fill) {
    PaintSolid(dc, r, fill.color);
    PaintSolid(dc, {r.left, r.top, r.right, r.top + 1}, fill.color2);
    PaintSolid(dc, {r.left, r.top, r.left + 1, r.bottom}, fill.color2);
    PaintSolid(dc, {r.left, r.bottom - 1, r.right, r.bottom}, fill.color3);
    PaintSolid(dc, {r.right - 1, r.top, r.right, r.bottom}, fill.color3);
}

UINT AlignFlags(TextAlign align) {
    switch (align) {
    case TextAlign::Center:
        return DT_CENTER;
    case TextAlign::Right:
        return DT_RIGHT;
    case TextAlign::Left:
        break;
    }
    return DT_LEFT;
}

} // namespace

ScenePainter::ScenePainter() : m_measure(CreateCompatibleDC(nullptr)) {}

ScenePainter::~ScenePainter() {
    if (m_measure)
        DeleteDC(m_measure);
}

const PixelImage* ScenePainter::Read(const std::wstring& path) {
    auto found = m_read.find(path);
    if (found == m_read.end()) {
        PixelImage pixels = ReadImagePixels(path, kPreviewPictureLimit, kPreviewPictureLimit);
        std::unique_ptr<PixelImage> kept;
        if (m_read.size() >= kMaxRead) {
            m_drawn.clear();
            m_read.clear();
        }
        if (!pixels.Empty())
            kept = std::make_unique<PixelImage>(std::move(pixels));
        found = m_read.emplace(path, std::move(kept)).first;
    }
    return found->second.get();
}

bool ScenePainter::PictureSize(const std::wstring& path, SceneSize& size) {
    const PixelImage* pixels = Read(path);
    if (!pixels)
        return false;
    size = {pixels->width, pixels->height};
    return true;
}

FontRecord& ScenePainter::Font(const FontKeys& keys, int dpi) {
    const FontKey key{keys.face, keys.size, keys.style, dpi};
    auto found = m_fonts.find(key);
    if (found == m_fonts.end()) {
        found = m_fonts.emplace(key, FontRecord()).first;
        found->second.CreateAt(keys.face.c_str(), keys.size, keys.style, false, dpi);
    }
    found->second.color = keys.color;
    found->second.shadowColor = keys.shadowColor;
    return found->second;
}

SceneSize ScenePainter::TextSize(const FontKeys& font, const std::wstring& text, int dpi) {
    FontRecord& record = Font(font, dpi);
    if (!record.Handle() || !m_measure)
        return {};
    HGDIOBJ old = SelectObject(m_measure, record.Handle());
    SIZE plain = {};
    GetTextExtentPoint32W(m_measure, text.c_str(), static_cast<int>(text.size()), &plain);
    SelectObject(m_measure, old);
    const TextExtent e = MeasuredExtent({plain.cx, plain.cy}, font.style, dpi);
    return {e.width, e.height};
}

const LoadedImage* ScenePainter::Drawn(const SceneFill& fill, int width, int height) {
    const bool margins = fill.fit == PictureFit::Margins;
    DrawnKey key{fill.picture, width, height, static_cast<int>(fill.fit), 0, 0, 0, 0, 0};
    if (margins) {
        key.left = fill.margins.left;
        key.top = fill.margins.top;
        key.right = fill.margins.right;
        key.bottom = fill.margins.bottom;
        key.scale = fill.scale;
    }
    const auto found = m_drawn.find(key);
    if (found != m_drawn.end())
        return found->second.IsEmpty() ? nullptr : &found->second;
    const PixelImage* pixels = Read(fill.picture);
    LoadedImage image;
    if (pixels) {
        const ImageMargins m = {key.left, key.top, key.right, key.bottom};
        image = LoadedImage::FromPixels(
            margins ? StretchByMargins(*pixels, width, height, m, fill.scale)
                    : ScaleImage(*pixels, width, height));
    }
    if (m_drawn.size() >= kMaxDrawn)
        m_drawn.clear();
    const LoadedImage& kept = m_drawn.emplace(key, std::move(image)).first->second;
    return kept.IsEmpty() ? nullptr : &kept;
}

bool ScenePainter::PaintPicture(HDC dc, const SceneFill& fill, const RECT& r) {
    if (fill.fit == PictureFit::Tile) {
        const LoadedImage* tile = Drawn(fill, fill.tileWidth, fill.tileHeight);
        if (tile)
            PaintTiled(dc, r, *tile);
        return tile != nullptr;
    }
    const LoadedImage* image = Drawn(fill, r.right - r.left, r.bottom - r.top);
    if (image)
        DrawImage(dc, *image, r.left, r.top);
    return image != nullptr;
}

// The box, and the element's name where nothing drawn over it will run into it: below the
// parts that lie in it, and not at all when they leave no room for a line.
void ScenePainter::PaintPlaceholder(HDC dc, const Scene& scene, size_t index) {
    const SceneElement& e = scene.elements[index];
    const RECT r = ToRect(e.rect);
    PaintSolid(dc, r, kPlaceholderFace);
    FrameIn(dc, r, kPlaceholderFrame);
    SceneText label;
    label.text = e.name;
    label.font.face = L"Tahoma";
    label.font.size = kPlaceholderTextSize;
    label.font.color = kPlaceholderText;
    label.align = TextAlign::Center;
    const SceneRect free = scene.FreeBelowParts(index);
    if (free.Height() >= MulDiv(kPlaceholderTextSize, scene.dpi, 72) + 2)
        PaintText(dc, label, ToRect(free), scene.dpi);
}

void ScenePainter::PaintText(HDC dc, const SceneText& text, const RECT& r, int dpi) {
    if (text.text.empty())
        return;
    RECT inner = {r.left + text.leftInset, r.top, r.right - text.rightInset, r.bottom};
    if (inner.right <= inner.left)
        return;
    const FontRecord& font = Font(text.font, dpi);
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, r.left, r.top, r.right, r.bottom);
    font.Draw(dc, text.text.c_str(), &inner,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | AlignFlags(text.align),
              true);
    RestoreDC(dc, saved);
}

void ScenePainter::PaintElement(HDC dc, const Scene& scene, size_t index) {
    const SceneElement& e = scene.elements[index];
    const int dpi = scene.dpi;
    const RECT r = ToRect(e.rect);
    const SceneFill& fill = e.fill;
    switch (fill.kind) {
    case FillKind::Solid:
        PaintSolid(dc, r, fill.color);
        break;
    case FillKind::Gradient:
        PaintGradient(dc, r, fill.color, fill.color2);
        break;
    case FillKind::Picture:
        // A picture that the file no longer gives is shown as one that was never there.
        if (!PaintPicture(dc, fill, r))
            PaintPlaceholder(dc, scene, index);
        break;
    case FillKind::Placeholder:
        PaintPlaceholder(dc, scene, index);
        break;
    case FillKind::Raised:
        PaintRaised(dc, r, fill);
        break;
    case FillKind::Box:
        PaintSolid(dc, r, fill.color);
        FrameIn(dc, r, fill.color2);
        break;
    case FillKind::None:
        break;
    }
    PaintText(dc, e.text, r, dpi);
}

void ScenePainter::Paint(HDC dc, const Scene& scene, int x, int y) {
    POINT origin;
    SetViewportOrgEx(dc, x, y, &origin);
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, 0, 0, scene.width, scene.height);
    for (size_t i = 0; i < scene.elements.size(); ++i)
        PaintElement(dc, scene, i);
    RestoreDC(dc, saved);
    SetViewportOrgEx(dc, origin.x, origin.y, nullptr);
}

PixelImage ScenePainter::Render(const Scene& scene) {
    PixelImage out = MakePixelImage(scene.width, scene.height);
    if (out.Empty())
        return out;
    void* bits = nullptr;
    HBITMAP bitmap = CreateDib(scene.width, scene.height, 32, true, &bits); // as a pixel image
    HDC memory = bitmap ? CreateCompatibleDC(nullptr) : nullptr;
    if (!memory) {
        if (bitmap)
            DeleteObject(bitmap);
        return {};
    }
    HGDIOBJ old = SelectObject(memory, bitmap);
    PaintSolid(memory, {0, 0, scene.width, scene.height}, 0);
    Paint(memory, scene, 0, 0);
    GdiFlush();
    const unsigned char* in = static_cast<const unsigned char*>(bits);
    std::copy(in, in + out.pixels.size(), out.pixels.begin());
    for (size_t i = 3; i < out.pixels.size(); i += 4)
        out.pixels[i] = 255;
    SelectObject(memory, old);
    DeleteDC(memory);
    DeleteObject(bitmap);
    return out;
}

} // namespace cv2
