// The end ellipsis of caption text, done by the program itself so that it looks the same on
// every platform: the text is cut from the end, its last kept character replaced by "…", until
// it fits the width.
#pragma once

#include <functional>
#include <string>

namespace cv2 {

// Width of a text as it would be drawn.
using TextWidth = std::function<int(const std::wstring&)>;

// `text` unchanged when it fits `width`; else the start of it ending in U+2026 that fits. The
// number of characters that fit is first estimated from the full width, then the text is cut one
// character at a time. When a further cut would leave fewer than 2 characters the text is
// returned as it stands at that point (possibly still too wide, or even uncut).
std::wstring FitEndEllipsis(const std::wstring& text, int width, const TextWidth& measure);

} // namespace cv2
