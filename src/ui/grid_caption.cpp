#include "ui/grid_caption.h"

#include <string>

#include "store/scale.h"
#include "ui/grid_caption_fit.h"

namespace cv2 {
namespace {

// Where the glow is drawn around the text, which itself stands at (1, 1).
const POINT kGlowOffsets[] = {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {0, 1}, {0, 2}, {1, 2}, {2, 2}};

int Density(HDC dc) {
    HDC screen = dc ? dc : GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    if (!dc)
        ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : 96;
}

void DrawAt(HDC dc, const std::wstring& text, RECT rect, int dx, int dy, UINT flags) {
    OffsetRect(&rect, dx, dy);
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &rect, flags);
}

// The text cut with an ellipsis to the rectangle's width, as measured with the selected font.
std::wstring FitToRect(HDC dc, const wchar_t* text, const RECT& rect, UINT flags) {
    const UINT measureFlags = (flags & ~DT_END_ELLIPSIS) | DT_CALCRECT;
    auto width = [&](const std::wstring& s) {
        RECT r = rect;
        DrawTextW(dc, s.c_str(), static_cast<int>(s.size()), &r, measureFlags);
        return static_cast<int>(r.right - r.left);
    };
    return FitEndEllipsis(text, rect.right - rect.left, width);
}

} // namespace

GridCaptionFont::~GridCaptionFont() {
    if (font)
        DeleteObject(font);
}

bool CreateCaptionFont(GridCaptionFont& record, const wchar_t* face, int size, unsigned style,
                       bool clearType, HDC dc) {
    if (record.font)
        DeleteObject(record.font);
    record.font = nullptr;
    record.clearType = clearType ? 1 : 0;

    LOGFONTW lf = {};
    lf.lfHeight = size >= 1 ? -((size + 3) * Density(dc) / 96) : size;
    lf.lfWeight = (style & kCaptionBold) ? FW_BOLD : FW_NORMAL;
    lf.lfItalic = (style & kCaptionItalic) ? TRUE : FALSE;
    lf.lfUnderline = (style & kCaptionUnderline) ? TRUE : FALSE;
    lf.lfStrikeOut = (style & kCaptionStrikeout) ? TRUE : FALSE;
    lf.lfCharSet = DEFAULT_CHARSET;
    lf.lfQuality = clearType ? CLEARTYPE_QUALITY : DEFAULT_QUALITY;
    lstrcpynW(lf.lfFaceName, face ? face : L"", LF_FACESIZE);
    record.font = CreateFontIndirectW(&lf);
    if (!record.font) {
        record.face[0] = 0;
        record.size = 0;
        record.style = 0;
        return false;
    }
    lstrcpynW(record.face, lf.lfFaceName, 32);
    record.size = size;
    record.style = style;
    return true;
}

bool MeasureCaption(const GridCaptionFont& record, const wchar_t* text, SIZE* size) {
    if (!record.font || !size)
        return false;
    HDC screen = GetDC(nullptr);
    const int dpi = Density(screen);
    HGDIOBJ old = SelectObject(screen, record.font);
    SIZE extent = {};
    const std::wstring s = text ? text : L"";
    GetTextExtentPoint32W(screen, s.c_str(), static_cast<int>(s.size()), &extent);
    SelectObject(screen, old);
    ReleaseDC(nullptr, screen);
    extent.cx += ScaleBy(4, dpi);
    const int extra = (record.style & kCaptionGlow)     ? ScaleBy(2, dpi)
                      : (record.style & kCaptionShadow) ? ScaleBy(1, dpi)
                                                        : 0;
    extent.cx += extra;
    extent.cy += extra;
    *size = extent;
    return true;
}

void DrawCaption(const GridCaptionFont& record, HDC dc, const wchar_t* text, const RECT& rect,
                 UINT flags, bool transparent) {
    if (!dc || !text)
        return;
    HGDIOBJ oldFont = record.font ? SelectObject(dc, record.font) : nullptr;
    const int oldMode = SetBkMode(dc, transparent ? TRANSPARENT : OPAQUE);
    const COLORREF oldColor = GetTextColor(dc);

    std::wstring shown = text;
    if (flags & DT_END_ELLIPSIS) {
        flags &= ~DT_END_ELLIPSIS;
        shown = FitToRect(dc, text, rect, flags);
    }
    int x = 0, y = 0;
    if (record.style & kCaptionShadow) {
        SetTextColor(dc, record.shadowColor);
        DrawAt(dc, shown, rect, record.shadowX, record.shadowY, flags);
    } else if (record.style & kCaptionGlow) {
        SetTextColor(dc, record.shadowColor);
        for (const POINT& p : kGlowOffsets)
            DrawAt(dc, shown, rect, p.x, p.y, flags);
        x = y = 1;
    }
    SetTextColor(dc, record.color);
    DrawAt(dc, shown, rect, x, y, flags);

    SetTextColor(dc, oldColor);
    SetBkMode(dc, oldMode);
    if (oldFont)
        SelectObject(dc, oldFont);
}

} // namespace cv2
