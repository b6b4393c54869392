#include "ui/backgrounds/background_paint.h"

#include "ui/image/image_draw.h"

namespace cv2 {

void PaintSolid(HDC dc, const RECT& area, ColorRef color) {
    HBRUSH brush = CreateSolidBrush(color);
    FillRect(dc, &area, brush);
    DeleteObject(brush);
}

void PaintGradient(HDC dc, const RECT& area, ColorRef left, ColorRef right) {
    TRIVERTEX v[2] = {
        {area.left, area.top, static_cast<COLOR16>(RedOf(left) << 8),
         static_cast<COLOR16>(GreenOf(left) << 8), static_cast<COLOR16>(BlueOf(left) << 8), 0},
        {area.right, area.bottom, static_cast<COLOR16>(RedOf(right) << 8),
         static_cast<COLOR16>(GreenOf(right) << 8), static_cast<COLOR16>(BlueOf(right) << 8), 0},
    };
    GRADIENT_RECT g = {0, 1};
    GradientFill(dc, v, 2, &g, 1, GRADIENT_FILL_RECT_H);
}

void PaintTiled(HDC dc, const RECT& area, const LoadedImage& tile) {
    if (tile.IsEmpty())
        return;
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    for (int y = area.top; y < area.bottom; y += tile.Height()) {
        for (int x = area.left; x < area.right; x += tile.Width())
            DrawImage(dc, tile, x, y);
    }
    RestoreDC(dc, saved);
}

} // namespace cv2
