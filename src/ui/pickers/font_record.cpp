#include "ui/pickers/font_record.h"

#include <string>

#include "platform/device_screen.h"
#include "store/scale.h"
#include "store/screen.h"

namespace cv2 {
namespace {

int ScreenDensityY() {
    ReadScreenDensities();
    return g_dpiY;
}

// Draws `text` and leaves the device context's colour set to `color`.
int DrawIn(HDC dc, const std::wstring& text, RECT* rect, UINT flags, ColorRef color) {
    SetTextColor(dc, color);
    return DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), rect, flags);
}

} // namespace

FontRecord::~FontRecord() {
    Release();
}

FontRecord::FontRecord(const FontRecord& other) {
    CopyValues(other);
}

FontRecord& FontRecord::operator=(const FontRecord& other) {
    if (this != &other)
        CopyValues(other);
    return *this;
}

void FontRecord::Release() {
    if (font)
        DeleteObject(font);
    font = nullptr;
}

void FontRecord::CopyValues(const FontRecord& other) {
    Release();
    if (other.font) {
        Create(other.face, other.size, other.style, other.clearType != 0);
    } else {
        lstrcpynW(face, other.face, kFaceChars + 1);
        size = other.size;
        clearType = other.clearType;
    }
    style = other.style;
    shadowX = other.shadowX;
    shadowY = other.shadowY;
    color = other.color;
    shadowColor = other.shadowColor;
}

bool FontRecord::Create(const wchar_t* newFace, int newSize, uint32_t newStyle, bool newClearType,
                        HDC dc) {
    HDC measureDc = dc ? dc : GetDC(nullptr);
    const int dpiY = FontDpiY(measureDc);
    if (!dc)
        ReleaseDC(nullptr, measureDc);
    return CreateAt(newFace, newSize, newStyle, newClearType, dpiY);
}

bool FontRecord::CreateAt(const wchar_t* newFace, int newSize, uint32_t newStyle, bool newClearType,
                          int dpiY) {
    // The face may be this record's own; take it before anything changes.
    wchar_t wanted[kFaceChars + 1] = {};
    lstrcpynW(wanted, newFace ? newFace : L"", kFaceChars + 1);
    Release();
    clearType = newClearType ? 1 : 0;

    LOGFONTW lf = {};
    lf.lfHeight = FontHeightForSize(newSize, dpiY);
    lf.lfWeight = (newStyle & kFontBold) ? FW_BOLD : FW_NORMAL;
    lf.lfItalic = (newStyle & kFontItalic) ? TRUE : FALSE;
    lf.lfUnderline = (newStyle & kFontUnderline) ? TRUE : FALSE;
    lf.lfStrikeOut = (newStyle & kFontStrikeout) ? TRUE : FALSE;
    lf.lfCharSet = DEFAULT_CHARSET;
    lf.lfQuality = clearType ? CLEARTYPE_QUALITY : DEFAULT_QUALITY;
    lstrcpynW(lf.lfFaceName, wanted, LF_FACESIZE);
    font = CreateFontIndirectW(&lf);
    if (!font) {
        face[0] = L'\0';
        size = 0;
        style = 0;
        return false;
    }
    lstrcpynW(face, wanted, kFaceChars + 1);
    size = newSize;
    style = newStyle;
    return true;
}

int FontRecord::GetFace(wchar_t* buffer, int capacity) const {
    if (!buffer || capacity <= 0)
        return 0;
    lstrcpynW(buffer, face, capacity);
    return lstrlenW(buffer);
}

void FontRecord::Load(const IniDocument& doc, const wchar_t* section, const wchar_t* defFace,
                      int defSize, ColorRef defColor, ColorRef defShadow, const wchar_t* defStyle) {
    const FontKeys keys =
        ReadFontKeys(doc, section, defFace, defSize, defColor, defShadow, defStyle);
    Create(keys.face.c_str(), keys.size, keys.style, false);
    color = keys.color;
    shadowColor = keys.shadowColor;
}

void FontRecord::Save(IniDocument& doc, const wchar_t* section) const {
    FontKeys keys;
    keys.face = face;
    keys.size = size;
    keys.color = color;
    keys.shadowColor = shadowColor;
    keys.style = style;
    WriteFontKeys(doc, section, keys);
}

bool FontRecord::Measure(const wchar_t* text, SIZE* out) const {
    if (!font || !out)
        return false;
    const std::wstring s = text ? text : L"";
    HDC screen = GetDC(nullptr);
    HGDIOBJ old = SelectObject(screen, font);
    SIZE plain = {};
    GetTextExtentPoint32W(screen, s.c_str(), static_cast<int>(s.size()), &plain);
    SelectObject(screen, old);
    ReleaseDC(nullptr, screen);
    const TextExtent e = MeasuredExtent({plain.cx, plain.cy}, style, ScreenDensityY());
    out->cx = e.width;
    out->cy = e.height;
    return true;
}

std::wstring FontRecord::Ellipsized(HDC dc, const wchar_t* text, const RECT& rect,
                                    UINT flags) const {
    const auto measure = [&](const std::wstring& s) {
        RECT r = rect;
        DrawTextW(dc, s.c_str(), static_cast<int>(s.size()), &r, flags | DT_CALCRECT);
        return static_cast<int>(r.right - r.left);
    };
    return FitWithEllipsis(text, static_cast<int>(rect.right - rect.left), measure);
}

int FontRecord::Draw(HDC dc, const wchar_t* text, RECT* rect, UINT flags, bool transparent) const {
    if (!dc || !rect)
        return 0;
    HGDIOBJ oldFont = font ? SelectObject(dc, font) : nullptr;
    const int oldMode = SetBkMode(dc, transparent ? TRANSPARENT : OPAQUE);
    const COLORREF oldColor = GetTextColor(dc);

    std::wstring shown = text ? text : L"";
    if (flags & DT_END_ELLIPSIS) {
        flags &= ~static_cast<UINT>(DT_END_ELLIPSIS);
        shown = Ellipsized(dc, shown.c_str(), *rect, flags);
    }
    if (style & kFontShadow) {
        OffsetRect(rect, shadowX, shadowY);
        DrawIn(dc, shown, rect, flags, shadowColor);
        OffsetRect(rect, -shadowX, -shadowY);
    }
    if (style & kFontGlow) {
        Offset at = {0, 0};
        for (const Offset& pass : kGlowPasses) {
            OffsetRect(rect, pass.dx - at.dx, pass.dy - at.dy);
            at = pass;
            DrawIn(dc, shown, rect, flags, shadowColor);
        }
        OffsetRect(rect, 1 - at.dx, 1 - at.dy);
    }
    const int result = DrawIn(dc, shown, rect, flags, color);
    if (flags & DT_CALCRECT) {
        const int growth = EffectGrowth(style, ScreenDensityY());
        rect->right += growth;
        rect->bottom += growth;
    }
    // The text sat at the glow's centre; the caller gets its rectangle back where it was.
    if (style & kFontGlow)
        OffsetRect(rect, -1, -1);

    SetTextColor(dc, oldColor);
    SetBkMode(dc, oldMode);
    if (oldFont)
        SelectObject(dc, oldFont);
    return result;
}

FontRecord FontRecordOf(const FontKeys& keys, bool clearType) {
    FontRecord record;
    record.Create(keys.face.c_str(), keys.size, keys.style, clearType);
    record.color = keys.color;
    record.shadowColor = keys.shadowColor;
    return record;
}

FontKeys FontKeysOf(const FontRecord& record) {
    FontKeys keys;
    keys.face = record.face;
    keys.size = record.size;
    keys.style = record.style;
    keys.color = record.color;
    keys.shadowColor = record.shadowColor;
    return keys;
}

} // namespace cv2
