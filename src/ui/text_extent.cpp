#include "ui/text_extent.h"

#include <algorithm>
#include <vector>

namespace cv2 {
namespace {

// A screen DC of the control with the control's font selected, released on scope exit.
class FontDC {
  public:
    explicit FontDC(HWND control)
        : m_control(control), m_dc(GetDC(control)),
          m_old(SelectObject(m_dc,
                             reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)))) {}
    ~FontDC() {
        SelectObject(m_dc, m_old);
        ReleaseDC(m_control, m_dc);
    }
    HDC dc() const { return m_dc; }

  private:
    HWND m_control;
    HDC m_dc;
    HGDIOBJ m_old;
};

} // namespace

int TextWidth(HWND control, const wchar_t* text) {
    FontDC font(control);
    SIZE size = {};
    GetTextExtentPoint32W(font.dc(), text, lstrlenW(text), &size);
    return size.cx;
}

int WindowTextWidth(HWND control) {
    std::vector<wchar_t> text(GetWindowTextLengthW(control) + 1, L'\0');
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
    return TextWidth(control, text.data());
}

int LineHeight(HWND control) {
    FontDC font(control);
    TEXTMETRICW tm = {};
    GetTextMetricsW(font.dc(), &tm);
    return tm.tmHeight + tm.tmExternalLeading;
}

int WrappedLabelHeight(HWND button, int boxWidth) {
    std::vector<wchar_t> text(GetWindowTextLengthW(button) + 1, L'\0');
    GetWindowTextW(button, text.data(), static_cast<int>(text.size()));
    // The mark and the gap after it; the gap is taken generously, so a text that only just fits
    // is counted as wrapping rather than being cut.
    const int mark = GetSystemMetrics(SM_CXMENUCHECK);
    RECT r = {0, 0, std::max(1, boxWidth - mark - mark / 2), 0};
    FontDC font(button);
    DrawTextW(font.dc(), text.data(), -1, &r,
              DT_CALCRECT | DT_WORDBREAK | DT_EXTERNALLEADING | DT_NOPREFIX);
    return std::max<int>(r.bottom - r.top, LineHeight(button));
}

} // namespace cv2
