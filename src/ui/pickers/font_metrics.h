// The arithmetic of drawing text with a font record, kept apart from the platform so that it can
// be checked on its own: the font height for a point size, the room a shadow or glow needs, the
// glow's passes and the end ellipsis.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace cv2 {

// Character height (negative, as the platform takes it) for `points` on a screen of `dpiY`.
// Three points are added before scaling: the bar's fonts are meant to come out that much larger
// than their nominal size. A size below 1 is taken as a height as it is; no height is larger
// than kMaxFontHeight, whatever size a theme names.
constexpr int kMaxFontHeight = 4096;
int FontHeightForSize(int points, int dpiY);

// Width and height of drawn text: the plain extent, widened by the fixed margin and by what a
// shadow or glow adds.
struct TextExtent {
    int width, height;
};
TextExtent MeasuredExtent(TextExtent plain, uint32_t style, int dpiY);
// What a shadow (one step) or a glow (two steps) adds to the right and bottom of a text.
int EffectGrowth(uint32_t style, int dpiY);

// The glow draws the text in the shadow colour at these offsets, in this order, around the
// centre (+1, +1) where the text itself is drawn last.
struct Offset {
    int dx, dy;
};
extern const Offset kGlowPasses[8];

// The end ellipsis the program does itself. `measure` gives the drawn width of a text. When the
// text is wider than `width`, it is cut to an estimate of what fits, then shortened one
// character at a time with its last kept character replaced by U+2026, until it fits or fewer
// than two characters would remain; the text at that point is the result.
constexpr wchar_t kEllipsis = 0x2026;
std::wstring FitWithEllipsis(const std::wstring& text, int width,
                             const std::function<int(const std::wstring&)>& measure);

} // namespace cv2
