#include "ui/pickers/font_metrics.h"

#include "store/scale.h"
#include "ui/pickers/font_style.h"

namespace cv2 {

int FontHeightForSize(int points, int dpiY) {
    if (points < 1)
        return points > -kMaxFontHeight ? points : -kMaxFontHeight;
    const long long pixels = (static_cast<long long>(points) + 3) * dpiY / 96;
    return -static_cast<int>(pixels < kMaxFontHeight ? pixels : kMaxFontHeight);
}

int EffectGrowth(uint32_t style, int dpiY) {
    int growth = 0;
    if (style & kFontShadow)
        growth += ScaleBy(1, dpiY);
    if (style & kFontGlow)
        growth += ScaleBy(2, dpiY);
    return growth;
}

TextExtent MeasuredExtent(TextExtent plain, uint32_t style, int dpiY) {
    const int growth = EffectGrowth(style, dpiY);
    return {plain.width + ScaleBy(4, dpiY) + growth, plain.height + growth};
}

const Offset kGlowPasses[8] = {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {0, 1}, {0, 2}, {1, 2}, {2, 2}};

std::wstring FitWithEllipsis(const std::wstring& text, int width,
                             const std::function<int(const std::wstring&)>& measure) {
    const int full = measure(text);
    if (full <= width || full <= 0)
        return text;
    const long long length = static_cast<long long>(text.size());
    long long keep = static_cast<long long>(width < 0 ? 0 : width) * length / full + 1;
    if (keep > length)
        keep = length;
    std::wstring fitted = text.substr(0, static_cast<size_t>(keep));
    while (fitted.size() >= 3) {
        fitted.pop_back();
        fitted.back() = kEllipsis;
        if (measure(fitted) <= width)
            break;
    }
    return fitted;
}

} // namespace cv2
