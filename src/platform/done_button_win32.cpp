#include "platform/done_button.h"

#include <commctrl.h>

#include <algorithm>

#include "store/strings.h"

namespace cv2 {
namespace {

const UINT_PTR kDoneSubclass = 1;
const wchar_t kStateProp[] = L"CV2DoneButton";

// The state of one dialog's button while the pointer presses it.
struct DoneButton {
    bool tracking = false; // pressed on the button, not yet released
    bool pushed = false;   // drawn pressed: tracking with the pointer over the button
};

// A font made from the system's caption font, deleted on scope exit.
class CaptionFont {
  public:
    CaptionFont() {
        NONCLIENTMETRICSW metrics = {};
        metrics.cbSize = sizeof metrics;
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        m_font = CreateFontIndirectW(&metrics.lfCaptionFont);
    }
    ~CaptionFont() { DeleteObject(m_font); }
    HFONT Get() const { return m_font; }

  private:
    HFONT m_font;
};

SIZE LabelSize(HDC dc, HFONT font, const wchar_t* label) {
    HGDIOBJ old = SelectObject(dc, font);
    SIZE size = {};
    GetTextExtentPoint32W(dc, label, lstrlenW(label), &size);
    SelectObject(dc, old);
    return size;
}

DoneButton* StateOf(HWND dialog) {
    return static_cast<DoneButton*>(GetPropW(dialog, kStateProp));
}

bool IsOver(HWND dialog, POINT screen) {
    const RECT button = DoneButtonRect(dialog);
    return PtInRect(&button, screen) != FALSE;
}

POINT ClientToScreenPoint(HWND dialog, LPARAM lParam) {
    POINT p = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    ClientToScreen(dialog, &p);
    return p;
}

// Draws the button onto the dialog's frame: a push button with the text centred on it.
void Paint(HWND dialog, const DoneButton& state) {
    RECT box = DoneButtonRect(dialog);
    if (IsRectEmpty(&box))
        return;
    RECT window;
    GetWindowRect(dialog, &window);
    OffsetRect(&box, -window.left, -window.top);
    HDC dc = GetWindowDC(dialog);
    const CaptionFont font;
    HGDIOBJ oldFont = SelectObject(dc, font.Get());
    DrawFrameControl(dc, &box, DFC_BUTTON, DFCS_BUTTONPUSH | (state.pushed ? DFCS_PUSHED : 0));
    if (state.pushed)
        OffsetRect(&box, 1, 1);
    const int oldMode = SetBkMode(dc, TRANSPARENT);
    const COLORREF oldColour = SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    DrawTextW(dc, Localized(IDS_DONE_BUTTON), -1, &box,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    SetTextColor(dc, oldColour);
    SetBkMode(dc, oldMode);
    SelectObject(dc, oldFont);
    ReleaseDC(dialog, dc);
}

void SetPushed(HWND dialog, DoneButton& state, bool pushed) {
    if (state.pushed == pushed)
        return;
    state.pushed = pushed;
    Paint(dialog, state);
}

// Ends a press: OK when it is released over the button.
void Release(HWND dialog, DoneButton& state, bool over) {
    state.tracking = false;
    SetPushed(dialog, state, false);
    if (GetCapture() == dialog)
        ReleaseCapture();
    if (over)
        PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
}

// The mouse messages of a press that began on the button; false for any other message.
bool OnPress(HWND dialog, DoneButton& state, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
        if (wParam != HTCLOSE)
            return false;
        state.tracking = true;
        SetCapture(dialog);
        SetPushed(dialog, state, true);
        return true;
    case WM_MOUSEMOVE:
        if (!state.tracking)
            return false;
        SetPushed(dialog, state, IsOver(dialog, ClientToScreenPoint(dialog, lParam)));
        return true;
    case WM_LBUTTONUP:
        if (!state.tracking)
            return false;
        Release(dialog, state, IsOver(dialog, ClientToScreenPoint(dialog, lParam)));
        return true;
    case WM_CAPTURECHANGED:
        if (state.tracking && reinterpret_cast<HWND>(lParam) != dialog)
            Release(dialog, state, false);
        return false;
    }
    return false;
}

LRESULT CALLBACK DoneButtonProc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                DWORD_PTR data) {
    auto& state = *reinterpret_cast<DoneButton*>(data);
    if (OnPress(dialog, state, msg, wParam, lParam))
        return 0;
    switch (msg) {
    case WM_NCHITTEST:
        if (IsOver(dialog,
                   {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))}))
            return HTCLOSE;
        break;
    case WM_SYSCOMMAND:
        if ((wParam & 0xFFF0) == SC_CLOSE) {
            PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
            return 0;
        }
        break;
    case WM_NCPAINT:
    case WM_NCACTIVATE:
    case WM_SETTEXT: {
        // The frame's own painting draws the close box; the button goes over it after.
        const LRESULT result = DefSubclassProc(dialog, msg, wParam, lParam);
        Paint(dialog, state);
        return result;
    }
    case WM_NCDESTROY:
        RemoveWindowSubclass(dialog, DoneButtonProc, kDoneSubclass);
        RemovePropW(dialog, kStateProp);
        delete &state;
        break;
    }
    return DefSubclassProc(dialog, msg, wParam, lParam);
}

} // namespace

void InstallDoneButton(HWND dialog) {
    if (StateOf(dialog))
        return;
    auto* state = new DoneButton;
    if (!SetPropW(dialog, kStateProp, state)) {
        delete state;
        return;
    }
    if (!SetWindowSubclass(dialog, DoneButtonProc, kDoneSubclass,
                           reinterpret_cast<DWORD_PTR>(state))) {
        RemovePropW(dialog, kStateProp);
        delete state;
    }
}

RECT DoneButtonRect(HWND dialog) {
    RECT none = {};
    if (!StateOf(dialog))
        return none;
    TITLEBARINFO bar = {};
    bar.cbSize = sizeof bar;
    if (!GetTitleBarInfo(dialog, &bar) || IsRectEmpty(&bar.rcTitleBar))
        return none;
    const RECT& caption = bar.rcTitleBar;
    const int height = caption.bottom - caption.top;
    // A margin above and below as the close box has, and room for the text with a blank either
    // side, never narrower than the close box.
    const int margin = std::max(1, height / 10);
    HDC dc = GetDC(dialog);
    const CaptionFont font;
    const SIZE label = LabelSize(dc, font.Get(), Localized(IDS_DONE_BUTTON));
    ReleaseDC(dialog, dc);
    const int width = std::max<int>(GetSystemMetrics(SM_CXSIZE), label.cx + label.cy);
    return {caption.right - margin - width, caption.top + margin, caption.right - margin,
            caption.bottom - margin};
}

} // namespace cv2
