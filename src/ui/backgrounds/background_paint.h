// Drawing a bar's background: a solid colour, a gradient from left to right, or a picture
// repeated over the area. The background dialog's sample and the preview of the bar draw with
// these, so both show a fill the same way.
#pragma once

#include <windows.h>

#include "ui/image/loaded_image.h"
#include "ui/pickers/color_value.h"

namespace cv2 {

void PaintSolid(HDC dc, const RECT& area, ColorRef color);
// From `left` at the area's left edge to `right` at its right edge.
void PaintGradient(HDC dc, const RECT& area, ColorRef left, ColorRef right);
// The tile repeated from the area's top-left corner, cut at the area's edges.
void PaintTiled(HDC dc, const RECT& area, const LoadedImage& tile);

} // namespace cv2
