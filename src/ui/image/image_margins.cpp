#include "ui/image/image_margins.h"

#include <algorithm>
#include <cstdint>

#include "ui/image/image_scale.h"

namespace cv2 {
namespace {

// One axis: where the three parts start in the source and in the result.
struct Cuts {
    int source[4];
    int target[4];
};

Cuts AxisCuts(int sourceLength, int first, int last, int targetLength, int scalePercent) {
    first = std::clamp(first, 0, sourceLength);
    last = std::clamp(last, 0, sourceLength - first);
    int64_t a = static_cast<int64_t>(first) * scalePercent / 100;
    int64_t b = static_cast<int64_t>(last) * scalePercent / 100;
    if (a + b > targetLength) {
        a = a * targetLength / (a + b);
        b = targetLength - a;
    }
    return {{0, first, sourceLength - last, sourceLength},
            {0, static_cast<int>(a), targetLength - static_cast<int>(b), targetLength}};
}

PixelImage Crop(const PixelImage& source, int left, int top, int right, int bottom) {
    PixelImage part = MakePixelImage(right - left, bottom - top);
    if (part.Empty())
        return part;
    part.hasAlpha = source.hasAlpha;
    for (int y = top; y < bottom; ++y)
        std::copy(source.At(left, y), source.At(right, y), part.Row(y - top));
    return part;
}

void Paste(PixelImage& target, const PixelImage& part, int left, int top) {
    for (int y = 0; y < part.height; ++y)
        std::copy(part.Row(y), part.Row(y) + static_cast<size_t>(part.width) * 4,
                  target.At(left, top + y));
}

} // namespace

PixelImage StretchByMargins(const PixelImage& source, int width, int height,
                            const ImageMargins& margins, int scalePercent) {
    PixelImage result = MakePixelImage(width, height);
    if (source.Empty() || result.Empty())
        return {};
    result.hasAlpha = source.hasAlpha;
    scalePercent = std::clamp(scalePercent, 0, 100000);
    const Cuts x = AxisCuts(source.width, margins.left, margins.right, width, scalePercent);
    const Cuts y = AxisCuts(source.height, margins.top, margins.bottom, height, scalePercent);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const int w = x.target[column + 1] - x.target[column];
            const int h = y.target[row + 1] - y.target[row];
            const PixelImage part = Crop(source, x.source[column], y.source[row],
                                         x.source[column + 1], y.source[row + 1]);
            if (w <= 0 || h <= 0 || part.Empty())
                continue;
            const PixelImage scaled = ScaleImage(part, w, h);
            if (!scaled.Empty())
                Paste(result, scaled, x.target[column], y.target[row]);
        }
    }
    return result;
}

} // namespace cv2
