#include "ui/grid_caption_fit.h"

namespace cv2 {

std::wstring FitEndEllipsis(const std::wstring& text, int width, const TextWidth& measure) {
    const int full = measure(text);
    if (full <= width || full <= 0)
        return text;
    const long long length = static_cast<long long>(text.size());
    long long keep = static_cast<long long>(width < 0 ? 0 : width) * length / full + 1;
    if (keep > length)
        keep = length;
    std::wstring shown = text;
    while (keep - 1 >= 2) {
        --keep;
        shown.assign(text, 0, static_cast<size_t>(keep - 1));
        shown.push_back(L'\x2026');
        if (measure(shown) <= width)
            break;
    }
    return shown;
}

} // namespace cv2
