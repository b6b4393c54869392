// The pixels a scene of the preview should come out as, worked out from its elements alone,
// without the platform's drawing: fills, frames, gradients and the pictures (of known pixels) at
// their places. Texts are left out, since fonts differ from one system to the next; compare the
// painter's picture of the same scene without its texts.
#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "ui/image/image_margins.h"
#include "ui/image/image_scale.h"
#include "ui/preview/scene.h"

namespace cv2test {

using Pictures = std::map<std::wstring, cv2::PixelImage>;

inline void PutPixel(cv2::PixelImage& out, int x, int y, cv2::ColorRef c) {
    if (x < 0 || y < 0 || x >= out.width || y >= out.height)
        return;
    unsigned char* p = out.At(x, y);
    p[0] = static_cast<unsigned char>(cv2::BlueOf(c));
    p[1] = static_cast<unsigned char>(cv2::GreenOf(c));
    p[2] = static_cast<unsigned char>(cv2::RedOf(c));
}

inline void FillIn(cv2::PixelImage& out, const cv2::SceneRect& r, cv2::ColorRef c) {
    for (int y = r.top; y < r.bottom; ++y)
        for (int x = r.left; x < r.right; ++x)
            PutPixel(out, x, y, c);
}

inline void FrameIn(cv2::PixelImage& out, const cv2::SceneRect& r, cv2::ColorRef c) {
    FillIn(out, {r.left, r.top, r.right, r.top + 1}, c);
    FillIn(out, {r.left, r.bottom - 1, r.right, r.bottom}, c);
    FillIn(out, {r.left, r.top, r.left + 1, r.bottom}, c);
    FillIn(out, {r.right - 1, r.top, r.right, r.bottom}, c);
}

inline void PasteIn(cv2::PixelImage& out, const cv2::PixelImage& picture, int left, int top,
                    const cv2::SceneRect& clip) {
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const int tx = left + x, ty = top + y;
            if (!clip.Contains(tx, ty) || tx >= out.width || ty >= out.height)
                continue;
            std::copy(picture.At(x, y), picture.At(x, y) + 3, out.At(tx, ty));
        }
    }
}

inline cv2::ColorRef Mix(cv2::ColorRef a, cv2::ColorRef b, int step, int steps) {
    const auto mix = [&](int ca, int cb) { return ca + (cb - ca) * step / steps; };
    return cv2::MakeColor(mix(cv2::RedOf(a), cv2::RedOf(b)), mix(cv2::GreenOf(a), cv2::GreenOf(b)),
                          mix(cv2::BlueOf(a), cv2::BlueOf(b)));
}

inline void PaintExpected(cv2::PixelImage& out, const cv2::SceneElement& e,
                          const Pictures& pictures) {
    const cv2::SceneRect& r = e.rect;
    const cv2::SceneFill& f = e.fill;
    switch (f.kind) {
    case cv2::FillKind::Solid:
        FillIn(out, r, f.color);
        break;
    case cv2::FillKind::Gradient:
        for (int x = r.left; x < r.right; ++x)
            FillIn(out, {x, r.top, x + 1, r.bottom}, Mix(f.color, f.color2, x - r.left, r.Width()));
        break;
    case cv2::FillKind::Box:
        FillIn(out, r, f.color);
        FrameIn(out, r, f.color2);
        break;
    case cv2::FillKind::Raised:
        FillIn(out, r, f.color);
        FillIn(out, {r.left, r.top, r.right, r.top + 1}, f.color2);
        FillIn(out, {r.left, r.top, r.left + 1, r.bottom}, f.color2);
        FillIn(out, {r.left, r.bottom - 1, r.right, r.bottom}, f.color3);
        FillIn(out, {r.right - 1, r.top, r.right, r.bottom}, f.color3);
        break;
    case cv2::FillKind::Placeholder:
        FillIn(out, r, 0xE0E0E0);
        FrameIn(out, r, 0x909090);
        break;
    case cv2::FillKind::Picture: {
        const auto found = pictures.find(f.picture);
        if (found == pictures.end())
            break;
        if (f.fit == cv2::PictureFit::Tile) {
            const cv2::PixelImage tile = cv2::ScaleImage(found->second, f.tileWidth, f.tileHeight);
            for (int y = r.top; y < r.bottom; y += tile.height)
                for (int x = r.left; x < r.right; x += tile.width)
                    PasteIn(out, tile, x, y, r);
        } else if (f.fit == cv2::PictureFit::Margins) {
            const cv2::ImageMargins m = {f.margins.left, f.margins.top, f.margins.right,
                                         f.margins.bottom};
            PasteIn(out, cv2::StretchByMargins(found->second, r.Width(), r.Height(), m, f.scale),
                    r.left, r.top, r);
        } else {
            PasteIn(out, cv2::ScaleImage(found->second, r.Width(), r.Height()), r.left, r.top, r);
        }
        break;
    }
    case cv2::FillKind::None:
        break;
    }
}

inline cv2::PixelImage ExpectedPixels(const cv2::Scene& scene, const Pictures& pictures) {
    cv2::PixelImage out = cv2::MakePixelImage(scene.width, scene.height);
    FillIn(out, {0, 0, scene.width, scene.height}, 0);
    for (const cv2::SceneElement& e : scene.elements)
        PaintExpected(out, e, pictures);
    return out;
}

// The scene with no text anywhere: no texts, and placeholders without their names.
inline cv2::Scene WithoutTexts(cv2::Scene scene) {
    for (cv2::SceneElement& e : scene.elements) {
        e.text.text.clear();
        e.name.clear();
    }
    return scene;
}

// How many pixels differ by more than `tolerance` in any channel.
inline int DifferentPixels(const cv2::PixelImage& a, const cv2::PixelImage& b, int tolerance) {
    if (a.width != b.width || a.height != b.height)
        return a.width * a.height + 1;
    int different = 0;
    for (int y = 0; y < a.height; ++y) {
        for (int x = 0; x < a.width; ++x) {
            for (int c = 0; c < 3; ++c) {
                if (std::abs(a.At(x, y)[c] - b.At(x, y)[c]) > tolerance) {
                    ++different;
                    break;
                }
            }
        }
    }
    return different;
}

} // namespace cv2test
