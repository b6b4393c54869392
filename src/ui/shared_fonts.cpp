#include "ui/shared_fonts.h"

#include "store/scale.h"

namespace cv2 {
namespace {

HFONT g_text = nullptr;
HFONT g_caption = nullptr;
HFONT g_underline = nullptr;

// A point size becomes a height the way the program's font records do it: size + 3, scaled
// to the vertical density.
HFONT MakeTahoma(int points, bool bold, bool underline) {
    LOGFONTW lf = {};
    lf.lfHeight = -((points + 3) * (g_dpiY ? g_dpiY : 96) / 96);
    lf.lfWeight = bold ? FW_BOLD : FW_NORMAL;
    lf.lfUnderline = underline ? TRUE : FALSE;
    lf.lfCharSet = DEFAULT_CHARSET;
    lstrcpynW(lf.lfFaceName, L"Tahoma", LF_FACESIZE);
    return CreateFontIndirectW(&lf);
}

void Release(HFONT& font) {
    if (font)
        DeleteObject(font);
    font = nullptr;
}

// The old fonts and their replacements, in the same order.
struct FontSwap {
    HFONT from[3];
    HFONT to[3];
};

BOOL CALLBACK SwapControlFont(HWND control, LPARAM param) {
    const FontSwap& swap = *reinterpret_cast<const FontSwap*>(param);
    const HFONT font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    for (int i = 0; i < 3; ++i) {
        if (font && font == swap.from[i])
            SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(swap.to[i]), TRUE);
    }
    return TRUE;
}

} // namespace

void RemakeSharedFonts(HWND window) {
    FontSwap swap = {{g_text, g_caption, g_underline}, {}};
    g_text = g_caption = g_underline = nullptr;
    CreateSharedFonts();
    swap.to[0] = g_text;
    swap.to[1] = g_caption;
    swap.to[2] = g_underline;
    EnumChildWindows(window, SwapControlFont, reinterpret_cast<LPARAM>(&swap));
    for (HFONT old : swap.from) {
        if (old)
            DeleteObject(old);
    }
}

void CreateSharedFonts() {
    DestroySharedFonts();
    g_text = MakeTahoma(8, false, false);
    g_caption = MakeTahoma(8, true, false);
    g_underline = MakeTahoma(8, false, true);
}

void DestroySharedFonts() {
    Release(g_text);
    Release(g_caption);
    Release(g_underline);
}

HFONT TextFont() {
    return g_text;
}
HFONT CaptionFont() {
    return g_caption;
}
HFONT UnderlineFont() {
    return g_underline;
}

void SetControlFont(HWND control, HFONT font) {
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

} // namespace cv2
