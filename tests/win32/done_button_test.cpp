// The desktop's "ok" button in the caption of a full-screen dialog, on the colour picker.
#include "platform/done_button.h"

#include <gtest/gtest.h>

#include <vector>

#include "color_dialog_driver.h"
#include "store/strings.h"
#include "ui/pickers/color_picker.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

class DoneButtonTest : public cv2test::PickerHostTest {
  protected:
    // Runs the colour picker with `body` worked on it; true when it ended with OK. A step that
    // leaves it open has it cancelled.
    bool RunPicker(const std::function<void(HWND)>& body) {
        ColorPicker picker;
        DialogDriver driver({[&](HWND dlg) {
            cv2test::PumpMessages(50);
            body(dlg);
            cv2test::PumpMessages(50);
            if (IsWindow(dlg))
                PostMessageW(dlg, WM_COMMAND, IDCANCEL, 0);
        }});
        const bool ok = picker.Run(host);
        EXPECT_TRUE(driver.AllStepsRun());
        return ok;
    }
};

POINT Centre(const RECT& r) {
    return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
}

LPARAM ScreenParam(POINT p) {
    return MAKELPARAM(p.x, p.y);
}

LPARAM ClientParam(HWND dlg, POINT p) {
    ScreenToClient(dlg, &p);
    return MAKELPARAM(p.x, p.y);
}

// The pixels of a rectangle of the screen, or of a memory picture, as 0x00RRGGBB values.
std::vector<COLORREF> Pixels(HDC dc, const RECT& r) {
    std::vector<COLORREF> pixels;
    for (int y = r.top; y < r.bottom; ++y) {
        for (int x = r.left; x < r.right; ++x)
            pixels.push_back(GetPixel(dc, x, y));
    }
    return pixels;
}

// What a push button reading `label` in the caption's font looks like at this size.
std::vector<COLORREF> PushButtonReading(const wchar_t* label, int width, int height) {
    HDC screen = GetDC(nullptr);
    HDC mem = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ oldBitmap = SelectObject(mem, bitmap);
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    HFONT font = CreateFontIndirectW(&metrics.lfCaptionFont);
    HGDIOBJ oldFont = SelectObject(mem, font);
    RECT box = {0, 0, width, height};
    DrawFrameControl(mem, &box, DFC_BUTTON, DFCS_BUTTONPUSH);
    SetBkMode(mem, TRANSPARENT);
    SetTextColor(mem, GetSysColor(COLOR_BTNTEXT));
    DrawTextW(mem, label, -1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    const std::vector<COLORREF> pixels = Pixels(mem, box);
    SelectObject(mem, oldFont);
    DeleteObject(font);
    SelectObject(mem, oldBitmap);
    DeleteObject(bitmap);
    DeleteDC(mem);
    ReleaseDC(nullptr, screen);
    return pixels;
}

std::vector<COLORREF> ScreenPixels(const RECT& r) {
    HDC screen = GetDC(nullptr);
    const std::vector<COLORREF> pixels = Pixels(screen, r);
    ReleaseDC(nullptr, screen);
    return pixels;
}

} // namespace

TEST_F(DoneButtonTest, StandsAtTheRightEndOfTheCaptionWhereTheCloseBoxWas) {
    RunPicker([](HWND dlg) {
        TITLEBARINFO bar = {};
        bar.cbSize = sizeof bar;
        ASSERT_TRUE(GetTitleBarInfo(dlg, &bar));
        const RECT button = DoneButtonRect(dlg);
        ASSERT_FALSE(IsRectEmpty(&button));
        EXPECT_GE(button.top, bar.rcTitleBar.top);
        EXPECT_LE(button.bottom, bar.rcTitleBar.bottom);
        EXPECT_LE(button.right, bar.rcTitleBar.right);
        EXPECT_GE(button.right, bar.rcTitleBar.right - 4);
        EXPECT_GE(button.right - button.left, GetSystemMetrics(SM_CXSIZE));
        EXPECT_EQ(SendMessageW(dlg, WM_NCHITTEST, 0, ScreenParam(Centre(button))), HTCLOSE);
    });
}

TEST_F(DoneButtonTest, ReadsOk) {
    EXPECT_STREQ(Localized(IDS_DONE_BUTTON), L"ok");
    RunPicker([](HWND dlg) {
        RedrawWindow(dlg, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
        const RECT button = DoneButtonRect(dlg);
        ASSERT_FALSE(IsRectEmpty(&button));
        EXPECT_TRUE(ScreenPixels(button) == PushButtonReading(L"ok", button.right - button.left,
                                                              button.bottom - button.top))
            << "the caption's right end is not a push button reading \"ok\"";
    });
}

TEST_F(DoneButtonTest, ClickEndsTheDialogWithOk) {
    EXPECT_TRUE(RunPicker([](HWND dlg) {
        const POINT at = Centre(DoneButtonRect(dlg));
        SendMessageW(dlg, WM_NCLBUTTONDOWN, HTCLOSE, ScreenParam(at));
        SendMessageW(dlg, WM_LBUTTONUP, 0, ClientParam(dlg, at));
    }));
}

TEST_F(DoneButtonTest, ReleasedAwayFromTheButtonNothingHappens) {
    EXPECT_FALSE(RunPicker([](HWND dlg) {
        const RECT button = DoneButtonRect(dlg);
        const POINT away = {button.left - 20, button.bottom + 40};
        SendMessageW(dlg, WM_NCLBUTTONDOWN, HTCLOSE, ScreenParam(Centre(button)));
        SendMessageW(dlg, WM_MOUSEMOVE, MK_LBUTTON, ClientParam(dlg, away));
        SendMessageW(dlg, WM_LBUTTONUP, 0, ClientParam(dlg, away));
        cv2test::PumpMessages(50);
        EXPECT_TRUE(IsWindow(dlg));
    }));
}

// At the screen's density the text fits the button, and the button the caption.
class DoneButtonScreens : public DoneButtonTest {};

TEST_F(DoneButtonScreens, OkFitsItsButtonAndTheButtonTheCaption) {
    RunPicker([](HWND dlg) {
        TITLEBARINFO bar = {};
        bar.cbSize = sizeof bar;
        GetTitleBarInfo(dlg, &bar);
        const RECT button = DoneButtonRect(dlg);
        NONCLIENTMETRICSW metrics = {};
        metrics.cbSize = sizeof metrics;
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        HFONT font = CreateFontIndirectW(&metrics.lfCaptionFont);
        HDC dc = GetDC(dlg);
        HGDIOBJ old = SelectObject(dc, font);
        SIZE text = {};
        GetTextExtentPoint32W(dc, L"ok", 2, &text);
        SelectObject(dc, old);
        ReleaseDC(dlg, dc);
        DeleteObject(font);
        EXPECT_GE(button.right - button.left, text.cx + 4);
        EXPECT_GE(button.bottom - button.top, text.cy);
        EXPECT_LE(button.bottom - button.top, bar.rcTitleBar.bottom - bar.rcTitleBar.top);
        EXPECT_FALSE(cv2test::SaveScreenshot(L"done_button").empty());
    });
}
