// The background settings dialog on a real window, driven from inside its modal loop: the mode
// list, which colour controls each mode allows, the colour picker opened from it, OK and Cancel.
#include "ui/backgrounds/background_dialog.h"

#include "background_dialog_steps.h"
#include <cstdlib>
#include <functional>

#include "ids_ui.h"
#include "platform/device_colors.h"
#include "store/strings.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::ItemChecked;
using cv2test::ItemEnabled;
using cv2test::ItemTextOf;
using cv2test::PickColourThrough;
using cv2test::SelectListRow;

namespace {

class BackgroundDialogTest : public cv2test::PickerHostTest {
  protected:
    BackgroundFill Fill(int32_t mode, uint32_t useThemeColors) const {
        BackgroundFill fill;
        fill.mode = mode;
        fill.solidColor = MakeColor(1, 2, 3);
        fill.leftColor = MakeColor(4, 5, 6);
        fill.rightColor = MakeColor(7, 8, 9);
        fill.useThemeColors = useThemeColors;
        return fill;
    }
};

const int kColorControls[] = {IDC_BACKGROUND_SOLID, IDC_BACKGROUND_THEME_COLORS,
                              IDC_BACKGROUND_LEFT, IDC_BACKGROUND_RIGHT};

// Which of the four colour controls are enabled, as a string of 0 and 1 in the order above.
std::string EnabledColourControls(HWND dlg) {
    std::string on;
    for (int id : kColorControls)
        on += ItemEnabled(dlg, id) ? '1' : '0';
    return on;
}

// Opens the dialog on `fill` and reports the enabled colour controls it opened with.
std::string EnabledOnOpening(HWND host, const BackgroundFill& fill) {
    BackgroundDialog dialog;
    dialog.fill = fill;
    std::string on;
    DialogDriver::OnNextDialog([&](HWND dlg) { on = EnabledColourControls(dlg); }, IDCANCEL);
    dialog.Run(host);
    return on;
}

} // namespace

TEST_F(BackgroundDialogTest, ListsTheFiveModesInOrderAndSelectsTheRecordsMode) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeTiled, 1);
    std::vector<std::wstring> items;
    LRESULT selected = -2;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            HWND list = GetDlgItem(dlg, IDC_BACKGROUND_MODE);
            const int count = static_cast<int>(SendMessageW(list, CB_GETCOUNT, 0, 0));
            for (int i = 0; i < count; ++i) {
                wchar_t item[64] = {};
                SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(i),
                             reinterpret_cast<LPARAM>(item));
                items.push_back(item);
            }
            selected = SendMessageW(list, CB_GETCURSEL, 0, 0);
        },
        IDCANCEL);
    dialog.Run(host);
    const std::vector<std::wstring> expected = {
        Localized(IDS_MODE_SCALED), Localized(IDS_MODE_TILED), Localized(IDS_MODE_COLOR),
        Localized(IDS_MODE_GRADIENT), Localized(IDS_MODE_NONE)};
    EXPECT_EQ(items, expected);
    EXPECT_EQ(expected[0], L"Scaled Image");
    EXPECT_EQ(selected, kModeTiled);
}

TEST_F(BackgroundDialogTest, LabelsAndButtonsComeFromTheStringTable) {
    BackgroundDialog dialog;
    std::wstring title;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            wchar_t text[64] = {};
            GetWindowTextW(dlg, text, 64);
            title = text;
            EXPECT_EQ(ItemTextOf(dlg, IDC_BACKGROUND_MODE_LABEL), Localized(IDS_BACKGROUND_MODE));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BACKGROUND_SOLID_LABEL), Localized(IDS_SOLID_COLOR));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BACKGROUND_SOLID), Localized(IDS_CHANGE));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BACKGROUND_GRADIENT_LABEL),
                      Localized(IDS_GRADIENT_COLORS));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BACKGROUND_THEME_COLORS),
                      Localized(IDS_USE_TODAY_COLORS));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BACKGROUND_LEFT), Localized(IDS_LEFT_COLOR));
            EXPECT_EQ(ItemTextOf(dlg, IDC_BACKGROUND_RIGHT), Localized(IDS_RIGHT_COLOR));
        },
        IDCANCEL);
    dialog.Run(host);
    EXPECT_EQ(title, Localized(IDS_BACKGROUND_SETTINGS));
}

TEST_F(BackgroundDialogTest, FillsTheWorkArea) {
    BackgroundDialog dialog;
    RECT work;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    RECT got = {};
    DialogDriver::OnNextDialog([&](HWND dlg) { GetWindowRect(dlg, &got); }, IDCANCEL);
    dialog.Run(host);
    EXPECT_TRUE(EqualRect(&got, &work));
}

TEST_F(BackgroundDialogTest, ControlsAreLaidOutApartInsideTheDialog) {
    BackgroundDialog dialog;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            cv2test::ExpectLaidOutApart(dlg);
            cv2test::ExpectTextsFit(dlg);
        },
        IDCANCEL);
    dialog.Run(host);
}

TEST_F(BackgroundDialogTest, OpeningInModeNoneLeavesEveryColourControlDisabled) {
    EXPECT_EQ(EnabledOnOpening(host, Fill(kModeNone, 0)), "0000");
    EXPECT_EQ(EnabledOnOpening(host, Fill(kModeNone, 1)), "0000");
}

TEST_F(BackgroundDialogTest, ImageModesLeaveEveryColourControlDisabled) {
    EXPECT_EQ(EnabledOnOpening(host, Fill(kModeScaled, 0)), "0000");
    EXPECT_EQ(EnabledOnOpening(host, Fill(kModeTiled, 0)), "0000");
}

TEST_F(BackgroundDialogTest, SolidColourModeEnablesOnlyChange) {
    EXPECT_EQ(EnabledOnOpening(host, Fill(kModeColor, 0)), "1000");
}

TEST_F(BackgroundDialogTest, GradientModeEnablesTheBoxAndBothColoursWhenThemeColoursAreOff) {
    EXPECT_EQ(EnabledOnOpening(host, Fill(kModeGradient, 0)), "0111");
}

TEST_F(BackgroundDialogTest, CheckBoxShowsTheThemeColoursFlag) {
    for (uint32_t flag : {0u, 1u}) {
        BackgroundDialog dialog;
        dialog.fill = Fill(kModeGradient, flag);
        bool checked = !flag;
        DialogDriver::OnNextDialog(
            [&](HWND dlg) { checked = ItemChecked(dlg, IDC_BACKGROUND_THEME_COLORS); }, IDCANCEL);
        dialog.Run(host);
        EXPECT_EQ(checked, flag != 0);
    }
}

TEST_F(BackgroundDialogTest, WithThemeColoursLeftAndRightStayDisabledUntilTheFlagIsCleared) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeGradient, 1);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            EXPECT_EQ(EnabledColourControls(dlg), "0100");
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeColor);
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeGradient);
            EXPECT_EQ(EnabledColourControls(dlg), "0100") << "a new mode keeps them disabled";
            SendDlgItemMessageW(dlg, IDC_BACKGROUND_THEME_COLORS, BM_CLICK, 0, 0);
            EXPECT_EQ(EnabledColourControls(dlg), "0111");
            EXPECT_EQ(dialog.fill.useThemeColors, 0u) << "stored at once";
            SendDlgItemMessageW(dlg, IDC_BACKGROUND_THEME_COLORS, BM_CLICK, 0, 0);
            EXPECT_EQ(EnabledColourControls(dlg), "0100");
            EXPECT_NE(dialog.fill.useThemeColors, 0u);
        },
        IDCANCEL);
    dialog.Run(host);
}

TEST_F(BackgroundDialogTest, ChoosingAModeStoresItAtOnceAndSetsTheControls) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeNone, 0);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeColor);
            EXPECT_EQ(dialog.fill.mode, kModeColor);
            EXPECT_EQ(EnabledColourControls(dlg), "1000");
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeGradient);
            EXPECT_EQ(dialog.fill.mode, kModeGradient);
            EXPECT_EQ(EnabledColourControls(dlg), "0111");
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeScaled);
            EXPECT_EQ(dialog.fill.mode, kModeScaled);
            EXPECT_EQ(EnabledColourControls(dlg), "0000");
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeTiled);
        },
        IDOK);
    EXPECT_TRUE(dialog.Run(host));
    EXPECT_EQ(dialog.fill.mode, kModeTiled);
}

TEST_F(BackgroundDialogTest, AModeOutsideTheListIsKeptUntilOneIsChosen) {
    BackgroundDialog dialog;
    dialog.fill = Fill(9, 0);
    std::string on;
    DialogDriver::OnNextDialog([&](HWND dlg) { on = EnabledColourControls(dlg); }, IDOK);
    EXPECT_TRUE(dialog.Run(host));
    EXPECT_EQ(on, "0000");
    EXPECT_EQ(dialog.fill.mode, 9);
}

TEST_F(BackgroundDialogTest, ChangeOpensThePickerOnTheSolidColourAndKeepsAConfirmedChoice) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeColor, 0);
    ColorRef shown = 0;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_BACKGROUND_SOLID, MakeColor(200, 100, 50), IDOK, &shown);
        },
        IDOK);
    EXPECT_TRUE(dialog.Run(host));
    EXPECT_EQ(shown, MakeColor(1, 2, 3));
    EXPECT_EQ(dialog.fill.solidColor, MakeColor(200, 100, 50));
    EXPECT_EQ(dialog.fill.leftColor, MakeColor(4, 5, 6));
    EXPECT_EQ(dialog.fill.rightColor, MakeColor(7, 8, 9));
}

TEST_F(BackgroundDialogTest, LeftAndRightColourButtonsPickTheirOwnColours) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeGradient, 0);
    ColorRef shownLeft = 0, shownRight = 0;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_BACKGROUND_LEFT, MakeColor(10, 0, 0), IDOK, &shownLeft);
            PickColourThrough(dlg, IDC_BACKGROUND_RIGHT, MakeColor(0, 20, 0), IDOK, &shownRight);
        },
        IDOK);
    EXPECT_TRUE(dialog.Run(host));
    EXPECT_EQ(shownLeft, MakeColor(4, 5, 6));
    EXPECT_EQ(shownRight, MakeColor(7, 8, 9));
    EXPECT_EQ(dialog.fill.leftColor, MakeColor(10, 0, 0));
    EXPECT_EQ(dialog.fill.rightColor, MakeColor(0, 20, 0));
    EXPECT_EQ(dialog.fill.solidColor, MakeColor(1, 2, 3));
}

TEST_F(BackgroundDialogTest, ACancelledPickerLeavesTheColour) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeColor, 0);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_BACKGROUND_SOLID, MakeColor(99, 99, 99), IDCANCEL);
        },
        IDOK);
    EXPECT_TRUE(dialog.Run(host));
    EXPECT_EQ(dialog.fill.solidColor, MakeColor(1, 2, 3));
}

TEST_F(BackgroundDialogTest, CancelLeavesTheCallersValuesUntouchedAfterColourChanges) {
    BackgroundFill fill = Fill(kModeGradient, 0);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            PickColourThrough(dlg, IDC_BACKGROUND_LEFT, MakeColor(10, 0, 0), IDOK);
            PickColourThrough(dlg, IDC_BACKGROUND_RIGHT, MakeColor(0, 20, 0), IDOK);
            SendDlgItemMessageW(dlg, IDC_BACKGROUND_THEME_COLORS, BM_CLICK, 0, 0);
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeColor);
            PickColourThrough(dlg, IDC_BACKGROUND_SOLID, MakeColor(0, 0, 30), IDOK);
        },
        IDCANCEL);
    EXPECT_FALSE(EditBackground(fill, host));
    EXPECT_EQ(fill.mode, kModeGradient);
    EXPECT_EQ(fill.solidColor, MakeColor(1, 2, 3));
    EXPECT_EQ(fill.leftColor, MakeColor(4, 5, 6));
    EXPECT_EQ(fill.rightColor, MakeColor(7, 8, 9));
    EXPECT_EQ(fill.useThemeColors, 0u);
}

TEST_F(BackgroundDialogTest, OkGivesTheCallerEveryChange) {
    BackgroundFill fill = Fill(kModeGradient, 1);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SendDlgItemMessageW(dlg, IDC_BACKGROUND_THEME_COLORS, BM_CLICK, 0, 0);
            PickColourThrough(dlg, IDC_BACKGROUND_LEFT, MakeColor(10, 0, 0), IDOK);
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeColor);
            PickColourThrough(dlg, IDC_BACKGROUND_SOLID, MakeColor(0, 0, 30), IDOK);
        },
        IDOK);
    EXPECT_TRUE(EditBackground(fill, host));
    EXPECT_EQ(fill.mode, kModeColor);
    EXPECT_EQ(fill.solidColor, MakeColor(0, 0, 30));
    EXPECT_EQ(fill.leftColor, MakeColor(10, 0, 0));
    EXPECT_EQ(fill.rightColor, MakeColor(7, 8, 9));
    EXPECT_EQ(fill.useThemeColors, 0u);
}

TEST_F(BackgroundDialogTest, TheDoneButtonConfirms) {
    BackgroundFill fill = Fill(kModeNone, 1);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeScaled);
            SendMessageW(dlg, WM_SYSCOMMAND, SC_CLOSE, 0);
        },
        IDCANCEL);
    EXPECT_TRUE(EditBackground(fill, host));
    EXPECT_EQ(fill.mode, kModeScaled);
}

namespace {

// Colours of the preview strip at its left end, middle and right end, read off the screen.
struct StripColours {
    COLORREF left, middle, right;
};

StripColours PreviewAfter(HWND host, BackgroundDialog& dialog,
                          const std::function<void(HWND)>& change) {
    StripColours seen = {CLR_INVALID, CLR_INVALID, CLR_INVALID};
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            ShowWindow(dlg, SW_SHOW);
            UpdateWindow(dlg);
            if (change)
                change(dlg);
            UpdateWindow(dlg);
            RECT client;
            GetClientRect(dlg, &client);
            const RECT s = BackgroundPreviewRect(client.right);
            const int y = (s.top + s.bottom) / 2;
            HDC dc = GetDC(dlg);
            seen = {GetPixel(dc, s.left + 2, y), GetPixel(dc, (s.left + s.right) / 2, y),
                    GetPixel(dc, s.right - 3, y)};
            ReleaseDC(dlg, dc);
        },
        IDCANCEL);
    dialog.Run(host);
    return seen;
}

int Distance(COLORREF a, COLORREF b) {
    return abs(GetRValue(a) - GetRValue(b)) + abs(GetGValue(a) - GetGValue(b)) +
           abs(GetBValue(a) - GetBValue(b));
}

} // namespace

TEST_F(BackgroundDialogTest, PreviewShowsTheSolidColourAndFollowsTheChange) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeColor, 0);
    dialog.fill.solidColor = MakeColor(200, 0, 0);
    EXPECT_EQ(PreviewAfter(host, dialog, nullptr).middle, RGB(200, 0, 0));
    const StripColours after = PreviewAfter(host, dialog, [](HWND dlg) {
        PickColourThrough(dlg, IDC_BACKGROUND_SOLID, MakeColor(0, 0, 200), IDOK);
    });
    EXPECT_EQ(after.middle, RGB(0, 0, 200));
}

TEST_F(BackgroundDialogTest, PreviewShowsTheGradientFromTheLeftColourToTheRightOne) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeGradient, 0);
    dialog.fill.leftColor = MakeColor(255, 0, 0);
    dialog.fill.rightColor = MakeColor(0, 0, 255);
    const StripColours seen = PreviewAfter(host, dialog, nullptr);
    EXPECT_LT(Distance(seen.left, RGB(255, 0, 0)), 30);
    EXPECT_LT(Distance(seen.right, RGB(0, 0, 255)), 30);
    EXPECT_GT(Distance(seen.middle, RGB(255, 0, 0)), 100);
    EXPECT_GT(Distance(seen.middle, RGB(0, 0, 255)), 100);
}

TEST_F(BackgroundDialogTest, PreviewIsEmptyForPicturesAndForTheThemeColours) {
    BackgroundDialog dialog;
    dialog.fill = Fill(kModeColor, 1);
    dialog.fill.solidColor = MakeColor(200, 0, 0);
    const COLORREF empty = PreviewAfter(host, dialog, [](HWND dlg) {
                               SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeScaled);
                           }).middle;
    EXPECT_EQ(empty, DeviceSysColor(COLOR_STATIC));
    const COLORREF theme = PreviewAfter(host, dialog, [](HWND dlg) {
                               SelectListRow(dlg, IDC_BACKGROUND_MODE, kModeGradient);
                           }).middle;
    EXPECT_EQ(theme, empty);
}
