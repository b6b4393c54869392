// The caption font of the thumbnail grid: a face, a point size, style flags and colours, with
// the live font made for the screen's density, and text measured and drawn with its shadow or
// glow and the program's own end ellipsis. Its fields and calls follow the program's font record
// one to one, so the grid can move onto that record by changing names only.
#pragma once

#include <windows.h>

namespace cv2 {

enum : unsigned {
    kCaptionBold = 1,
    kCaptionItalic = 2,
    kCaptionUnderline = 4,
    kCaptionStrikeout = 8,
    kCaptionShadow = 16,
    kCaptionGlow = 32,
};

struct GridCaptionFont {
    HFONT font = nullptr; // owned; replaced on every CreateCaptionFont
    int size = 0;         // points
    unsigned style = 0;   // kCaption* flags
    int shadowX = 1;      // shadow offsets in pixels, used with kCaptionShadow
    int shadowY = 1;
    COLORREF color = 0;       // text
    COLORREF shadowColor = 0; // shadow and glow
    int clearType = 0;        // nonzero: made with ClearType quality
    wchar_t face[32] = {};

    GridCaptionFont() = default;
    ~GridCaptionFont();
    GridCaptionFont(const GridCaptionFont&) = delete;
    GridCaptionFont& operator=(const GridCaptionFont&) = delete;
};

// (Re)makes the font for the density of `dc`, or of the screen when null. The height is the size
// plus 3, scaled to the density: the record's sizes are counted that way. False when the font
// could not be made; face, size and style are then empty.
bool CreateCaptionFont(GridCaptionFont& record, const wchar_t* face, int size, unsigned style,
                       bool clearType, HDC dc = nullptr);

// Width and height of `text` as DrawCaption draws it, with room for the shadow or glow. False
// (and `size` untouched) when the record has no font.
bool MeasureCaption(const GridCaptionFont& record, const wchar_t* text, SIZE* size);

// Draws `text` in `rect` with DrawText `flags`. DT_END_ELLIPSIS is done here rather than by the
// platform. The background is left alone when `transparent`.
void DrawCaption(const GridCaptionFont& record, HDC dc, const wchar_t* text, const RECT& rect,
                 UINT flags, bool transparent);

} // namespace cv2
