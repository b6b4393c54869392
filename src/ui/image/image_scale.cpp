#include "ui/image/image_scale.h"

#include <algorithm>
#include <cmath>

namespace cv2 {
namespace {

// The source pixels one target pixel covers along one axis and how much of each.
struct Span {
    int first = 0;
    std::vector<float> weights;
};

// Source pixel i spans [i * to, (i + 1) * to) and target pixel t spans [t * from, (t + 1) * from)
// on a common integer axis; a weight is the overlap divided by the target pixel's length.
std::vector<Span> Spans(int from, int to) {
    std::vector<Span> spans(static_cast<size_t>(to));
    for (int t = 0; t < to; ++t) {
        const int64_t begin = static_cast<int64_t>(t) * from;
        const int64_t end = begin + from;
        const int first = static_cast<int>(begin / to);
        const int last = static_cast<int>(std::min<int64_t>((end + to - 1) / to, from));
        spans[t].first = first;
        for (int i = first; i < last; ++i) {
            const int64_t overlap = std::min<int64_t>(end, static_cast<int64_t>(i + 1) * to) -
                                    std::max<int64_t>(begin, static_cast<int64_t>(i) * to);
            spans[t].weights.push_back(static_cast<float>(overlap) / static_cast<float>(from));
        }
    }
    return spans;
}

// Premultiplied pixels in floating point, between the two passes.
struct Plane {
    int width;
    int height;
    std::vector<float> values; // blue, green, red premultiplied, then alpha 0..1
    float* At(int x, int y) { return &values[(static_cast<size_t>(y) * width + x) * 4]; }
    const float* At(int x, int y) const {
        return &values[(static_cast<size_t>(y) * width + x) * 4];
    }
};

// Adds `weight` times source pixel (x, y) of the image, premultiplied, to `sum`.
void AddPixel(const PixelImage& image, int x, int y, float weight, float* sum) {
    const unsigned char* p = image.At(x, y);
    const float a = p[3] / 255.0f * weight;
    for (int c = 0; c < 3; ++c)
        sum[c] += p[c] * a;
    sum[3] += a;
}

void AddPixel(const Plane& plane, int x, int y, float weight, float* sum) {
    const float* p = plane.At(x, y);
    for (int c = 0; c < 4; ++c)
        sum[c] += p[c] * weight;
}

// One pass along x (horizontal) or y. The first pass reads the image itself, so only the
// narrowed plane is ever held in floating point.
template <class Source> Plane Resample(const Source& in, int width, int height, bool horizontal) {
    Plane out{width, height, std::vector<float>(static_cast<size_t>(width) * height * 4, 0.0f)};
    const std::vector<Span> spans = horizontal ? Spans(in.width, width) : Spans(in.height, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Span& span = spans[horizontal ? x : y];
            float* target = out.At(x, y);
            for (size_t k = 0; k < span.weights.size(); ++k) {
                const int s = span.first + static_cast<int>(k);
                AddPixel(in, horizontal ? s : x, horizontal ? y : s, span.weights[k], target);
            }
        }
    }
    return out;
}

unsigned char ToByte(float v) {
    return static_cast<unsigned char>(std::clamp(std::lround(v), 0L, 255L));
}

PixelImage Unpremultiply(const Plane& plane, bool hasAlpha) {
    PixelImage image = MakePixelImage(plane.width, plane.height);
    for (size_t i = 0; i < image.pixels.size(); i += 4) {
        const float a = plane.values[i + 3];
        for (int c = 0; c < 3; ++c)
            image.pixels[i + c] = a > 0.0f ? ToByte(plane.values[i + c] / a) : 0;
        image.pixels[i + 3] = hasAlpha ? ToByte(a * 255.0f) : 255;
    }
    image.hasAlpha = hasAlpha;
    return image;
}

// The missing side of the wanted size from the source's aspect ratio.
void CompleteSize(const PixelImage& source, int& width, int& height) {
    if (width <= 0 && height <= 0) {
        width = source.width;
        height = source.height;
    } else if (width <= 0) {
        width = static_cast<int>(std::max<int64_t>(
            1, (static_cast<int64_t>(source.width) * height + source.height / 2) / source.height));
    } else if (height <= 0) {
        height = static_cast<int>(std::max<int64_t>(
            1, (static_cast<int64_t>(source.height) * width + source.width / 2) / source.width));
    }
}

} // namespace

PixelImage ScaleImage(const PixelImage& source, int width, int height) {
    if (source.Empty())
        return {};
    CompleteSize(source, width, height);
    if (!IsAcceptableSize(width, height))
        return {};
    if (width == source.width && height == source.height)
        return source;
    const Plane across = Resample(source, width, source.height, true);
    return Unpremultiply(Resample(across, width, height, false), source.hasAlpha);
}

} // namespace cv2
