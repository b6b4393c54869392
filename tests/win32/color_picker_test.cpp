// The colour picker dialog on a real window, driven with messages from inside its modal loop.
#include "ui/pickers/color_picker.h"

#include <commctrl.h>

#include <string>

#include "color_dialog_driver.h"
#include "ids_ui.h"
#include "store/scale.h"
#include "store/strings.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

class ColorPickerTest : public cv2test::PickerHostTest {};

int SliderPos(HWND dlg, int id) {
    return static_cast<int>(SendDlgItemMessageW(dlg, id, TBM_GETPOS, 0, 0));
}

std::wstring TextOf(HWND dlg, int id) {
    wchar_t text[64] = {};
    GetDlgItemTextW(dlg, id, text, 64);
    return text;
}

// Moves a slider the way a drag does: new position, then the scroll notice to the dialog.
void DragSlider(HWND dlg, int id, int pos) {
    HWND slider = GetDlgItem(dlg, id);
    SendMessageW(slider, TBM_SETPOS, TRUE, pos);
    SendMessageW(dlg, WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, pos), reinterpret_cast<LPARAM>(slider));
}

} // namespace

TEST_F(ColorPickerTest, OpensWithEachByteOnItsSliderAndNumberBox) {
    ColorPicker picker;
    picker.color = MakeColor(0x12, 0x34, 0x56);
    bool seen = false;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            seen = true;
            EXPECT_EQ(SliderPos(dlg, IDC_COLOR_RED_SLIDER), 0x12);
            EXPECT_EQ(SliderPos(dlg, IDC_COLOR_GREEN_SLIDER), 0x34);
            EXPECT_EQ(SliderPos(dlg, IDC_COLOR_BLUE_SLIDER), 0x56);
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_RED_EDIT), L"18");
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_GREEN_EDIT), L"52");
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_BLUE_EDIT), L"86");
            for (int id : {IDC_COLOR_RED_SLIDER, IDC_COLOR_GREEN_SLIDER, IDC_COLOR_BLUE_SLIDER}) {
                EXPECT_EQ(SendDlgItemMessageW(dlg, id, TBM_GETRANGEMIN, 0, 0), 0);
                EXPECT_EQ(SendDlgItemMessageW(dlg, id, TBM_GETRANGEMAX, 0, 0), 255);
            }
        },
        IDCANCEL);
    EXPECT_FALSE(picker.Run(host));
    EXPECT_TRUE(seen);
}

TEST_F(ColorPickerTest, LabelsComeFromTheStringTable) {
    ColorPicker picker;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_RED_LABEL), Localized(IDS_COLOR_RED));
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_GREEN_LABEL), Localized(IDS_COLOR_GREEN));
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_BLUE_LABEL), Localized(IDS_COLOR_BLUE));
        },
        IDCANCEL);
    picker.Run(host);
}

TEST_F(ColorPickerTest, FillsTheWorkArea) {
    ColorPicker picker;
    RECT work;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    RECT got = {};
    DialogDriver::OnNextDialog([&](HWND dlg) { GetWindowRect(dlg, &got); }, IDCANCEL);
    picker.Run(host);
    EXPECT_TRUE(EqualRect(&got, &work));
}

TEST_F(ColorPickerTest, MovingASliderWritesItsNumberAndOkTakesTheSliders) {
    ColorPicker picker;
    picker.color = MakeColor(10, 20, 30);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DragSlider(dlg, IDC_COLOR_GREEN_SLIDER, 200);
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_GREEN_EDIT), L"200");
            EXPECT_EQ(picker.color, MakeColor(10, 20, 30)) << "taken only on OK";
        },
        IDOK);
    EXPECT_TRUE(picker.Run(host));
    EXPECT_EQ(picker.color, MakeColor(10, 200, 30));
}

TEST_F(ColorPickerTest, TypingANumberMovesTheSlider) {
    ColorPicker picker;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_COLOR_BLUE_EDIT, L"77");
            EXPECT_EQ(SliderPos(dlg, IDC_COLOR_BLUE_SLIDER), 77);
        },
        IDOK);
    EXPECT_TRUE(picker.Run(host));
    EXPECT_EQ(picker.color, MakeColor(0, 0, 77));
}

TEST_F(ColorPickerTest, TypingPastTheTopMovesTheSliderToItsEndAndTheBoxKeepsTheNumber) {
    ColorPicker picker;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_COLOR_RED_EDIT, L"300");
            EXPECT_EQ(SliderPos(dlg, IDC_COLOR_RED_SLIDER), 255);
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_RED_EDIT), L"300");
            DragSlider(dlg, IDC_COLOR_RED_SLIDER, 40);
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_RED_EDIT), L"40") << "until the slider is moved";
        },
        IDOK);
    EXPECT_TRUE(picker.Run(host));
    EXPECT_EQ(picker.color, MakeColor(40, 0, 0));
}

TEST_F(ColorPickerTest, TypingPastTheTopAndConfirmingGives255) {
    ColorPicker picker;
    DialogDriver::OnNextDialog([&](HWND dlg) { SetDlgItemTextW(dlg, IDC_COLOR_RED_EDIT, L"300"); },
                               IDOK);
    EXPECT_TRUE(picker.Run(host));
    EXPECT_EQ(picker.color, MakeColor(255, 0, 0));
}

TEST_F(ColorPickerTest, TypingLettersGivesZero) {
    ColorPicker picker;
    picker.color = MakeColor(90, 90, 90);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_COLOR_GREEN_EDIT, L"abc");
            EXPECT_EQ(SliderPos(dlg, IDC_COLOR_GREEN_SLIDER), 0);
            EXPECT_EQ(TextOf(dlg, IDC_COLOR_GREEN_EDIT), L"abc");
        },
        IDOK);
    EXPECT_TRUE(picker.Run(host));
    EXPECT_EQ(picker.color, MakeColor(90, 0, 90));
}

TEST_F(ColorPickerTest, OnlyTheFirstFourTypedCharactersCount) {
    ColorPicker picker;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SetDlgItemTextW(dlg, IDC_COLOR_RED_EDIT, L"0012999");
            EXPECT_EQ(SliderPos(dlg, IDC_COLOR_RED_SLIDER), 12);
        },
        IDOK);
    EXPECT_TRUE(picker.Run(host));
    EXPECT_EQ(picker.color, MakeColor(12, 0, 0));
}

TEST_F(ColorPickerTest, AColourWithANonzeroTopByteLosesItWhenConfirmed) {
    ColorPicker picker;
    picker.color = 0x7F123456u;
    DialogDriver::OnNextDialog([](HWND) {}, IDOK);
    EXPECT_TRUE(picker.Run(host));
    EXPECT_EQ(picker.color, 0x00123456u);
}

TEST_F(ColorPickerTest, CancelLeavesTheColourAsTheCallerSetIt) {
    ColorPicker picker;
    picker.color = 0x7F123456u;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DragSlider(dlg, IDC_COLOR_RED_SLIDER, 1);
            SetDlgItemTextW(dlg, IDC_COLOR_BLUE_EDIT, L"2");
        },
        IDCANCEL);
    EXPECT_FALSE(picker.Run(host));
    EXPECT_EQ(picker.color, 0x7F123456u);
}

TEST_F(ColorPickerTest, TheDoneButtonConfirms) {
    ColorPicker picker;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DragSlider(dlg, IDC_COLOR_BLUE_SLIDER, 128);
            // The Done button of a full-screen dialog sits where the close box is.
            SendMessageW(dlg, WM_SYSCOMMAND, SC_CLOSE, 0);
        },
        IDCANCEL);
    EXPECT_TRUE(picker.Run(host));
    EXPECT_EQ(picker.color, MakeColor(0, 0, 128));
}

TEST_F(ColorPickerTest, SwatchIsFixedAtConstructionForTheScreenDensity) {
    ColorPicker picker;
    const PreviewBox box = ColorPreviewBox(g_dpiX, g_dpiY);
    EXPECT_EQ(picker.preview.left, box.left);
    EXPECT_EQ(picker.preview.top, box.top);
    EXPECT_EQ(picker.preview.right, box.right);
    EXPECT_EQ(picker.preview.bottom, box.bottom);
    EXPECT_EQ(picker.preview.left, ScaleBy(3, g_dpiY));
}

TEST_F(ColorPickerTest, SwatchIsPaintedInTheSlidersColour) {
    ColorPicker picker;
    picker.color = MakeColor(200, 30, 90);
    COLORREF before = CLR_INVALID, after = CLR_INVALID;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            const RECT& p = picker.preview;
            const POINT centre = {(p.left + p.right) / 2, (p.top + p.bottom) / 2};
            ShowWindow(dlg, SW_SHOW);
            UpdateWindow(dlg);
            HDC dc = GetDC(dlg);
            before = GetPixel(dc, centre.x, centre.y);
            DragSlider(dlg, IDC_COLOR_GREEN_SLIDER, 160);
            UpdateWindow(dlg);
            after = GetPixel(dc, centre.x, centre.y);
            ReleaseDC(dlg, dc);
        },
        IDCANCEL);
    picker.Run(host);
    EXPECT_EQ(before, RGB(200, 30, 90));
    EXPECT_EQ(after, RGB(200, 160, 90));
}

TEST_F(ColorPickerTest, ControlsStayClearOfTheSwatchAndInsideTheDialog) {
    ColorPicker picker;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            RECT client;
            GetClientRect(dlg, &client);
            for (int id : {IDC_COLOR_RED_LABEL, IDC_COLOR_GREEN_LABEL, IDC_COLOR_BLUE_LABEL,
                           IDC_COLOR_RED_SLIDER, IDC_COLOR_GREEN_SLIDER, IDC_COLOR_BLUE_SLIDER,
                           IDC_COLOR_RED_EDIT, IDC_COLOR_GREEN_EDIT, IDC_COLOR_BLUE_EDIT}) {
                RECT r, overlap;
                GetWindowRect(GetDlgItem(dlg, id), &r);
                MapWindowPoints(nullptr, dlg, reinterpret_cast<POINT*>(&r), 2);
                EXPECT_FALSE(IntersectRect(&overlap, &r, &picker.preview)) << id;
                EXPECT_GE(r.left, 0) << id;
                EXPECT_LE(r.right, client.right) << id;
            }
        },
        IDCANCEL);
    picker.Run(host);
}
