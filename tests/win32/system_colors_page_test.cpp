// The System Colors page in the real theme editor: the nineteen names, the swatch the page
// paints in the selected colour, "Change" through the colour picker, and the device's theme
// colours when the device has none.
#include "control_pages_support.h"
#include "pages/appearance/list_pages.h"
#include "pages/platform_colors.h"
#include "platform/theme_color_table.h"
#include "ui/control_layout.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

class SystemColorsPageTest : public cv2test::ControlPagesTest {};

// The colour at the middle of the swatch as the page paints it into an off-screen bitmap of the
// host's size.
ColorRef SwatchColour(HWND dlg, ThemeEditor& editor) {
    RECT client;
    GetClientRect(dlg, &client);
    HDC screen = GetDC(dlg);
    HDC mem = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, client.right, client.bottom);
    HGDIOBJ old = SelectObject(mem, bitmap);
    editor.Host().Current()->Paint(mem);
    const RECT area = editor.Host().Current()->Area();
    const ControlPlace swatch = {0, From::Left, 3, From::Left, 78, 24, 23};
    const RECT r = PlaceRectIn(swatch, area);
    const ColorRef colour = GetPixel(mem, (r.left + r.right) / 2, (r.top + r.bottom) / 2);
    const ColorRef outline = GetPixel(mem, r.left, (r.top + r.bottom) / 2);
    SelectObject(mem, old);
    DeleteObject(bitmap);
    DeleteDC(mem);
    ReleaseDC(dlg, screen);
    EXPECT_EQ(outline, 0u) << "the swatch is outlined in black";
    return colour;
}

} // namespace

TEST_F(SystemColorsPageTest, ThemeWithoutColorsSavesNineteenDefaultsActiveCaptionAs10027008) {
    EXPECT_TRUE(RunEditor(
        {NewSystemColorsPage()}, [](HWND, ThemeEditor&) {}, IDOK));
    EXPECT_EQ(cv2test::KeysOf(doc, L"Colors").size(), 19u);
    EXPECT_EQ(doc.GetString(L"Colors", L"Active Caption", L"-"), L"10027008");
    EXPECT_EQ(doc.GetString(L"Colors", L"WindowFrame", L"-"), L"0");
}

TEST_F(SystemColorsPageTest, SelectingTooltipBackgroundInAFreshThemePaintsTheSwatchLightYellow) {
    ColorRef painted = 0;
    std::wstring name;
    RunEditor(
        {NewSystemColorsPage()},
        [&](HWND dlg, ThemeEditor& editor) {
            cv2test::PickListRow(dlg, IDC_COLORS_LIST, 16);
            name = cv2test::DlgText(dlg, IDC_COLORS_NAME);
            painted = SwatchColour(dlg, editor);
        },
        IDCANCEL);
    EXPECT_EQ(name, L"Tooltip Background");
    EXPECT_EQ(painted, 0x00CCFFFFu);
}

TEST_F(SystemColorsPageTest, ListHoldsTheNineteenNamesWithTheFirstSelectedAndNamed) {
    std::vector<std::wstring> names;
    std::wstring shown;
    LRESULT selected = -1;
    RunEditor(
        {NewSystemColorsPage()},
        [&](HWND dlg, ThemeEditor&) {
            names = cv2test::ListTexts(dlg, IDC_COLORS_LIST);
            shown = cv2test::DlgText(dlg, IDC_COLORS_NAME);
            selected = SendDlgItemMessageW(dlg, IDC_COLORS_LIST, LB_GETCURSEL, 0, 0);
        },
        IDCANCEL);
    ASSERT_EQ(names.size(), 19u);
    EXPECT_EQ(names[3], L"WindowFrame");
    EXPECT_EQ(names[18], L"Static Text");
    EXPECT_EQ(selected, 0);
    EXPECT_EQ(shown, L"Active Caption");
}

TEST_F(SystemColorsPageTest, ChangeStoresThePickedColourInTheSelectedRowAndPaintsIt) {
    doc.SetString(L"Colors", L"Highlight", std::to_wstring(MakeColor(9, 8, 7)).c_str());
    ColorRef opened = 0, painted = 0;
    RunEditor(
        {NewSystemColorsPage()},
        [&](HWND dlg, ThemeEditor& editor) {
            cv2test::PickListRow(dlg, IDC_COLORS_LIST, 7);
            cv2test::PickColourThrough(dlg, IDC_COLORS_CHANGE, MakeColor(40, 50, 60), IDOK,
                                       &opened);
            painted = SwatchColour(dlg, editor);
        },
        IDOK);
    EXPECT_EQ(opened, MakeColor(9, 8, 7));
    EXPECT_EQ(painted, MakeColor(40, 50, 60));
    EXPECT_EQ(doc.GetString(L"Colors", L"Highlight", L"-"), std::to_wstring(MakeColor(40, 50, 60)));
    EXPECT_EQ(doc.GetString(L"Colors", L"Window", L"-"), L"16777215");
}

TEST_F(SystemColorsPageTest, CancelledChangeKeepsTheColour) {
    RunEditor(
        {NewSystemColorsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickColourThrough(dlg, IDC_COLORS_CHANGE, MakeColor(1, 1, 1), IDCANCEL);
        },
        IDOK);
    EXPECT_EQ(doc.GetString(L"Colors", L"Active Caption", L"-"), L"10027008");
}

TEST(SystemColorsDevice, WithoutTheColorKeyThemeColourZeroAndSixAreTheirFallbacks) {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, kThemeColorKey);
    EXPECT_EQ(PlatformColors().ThemeColor(0), 0x00E76D08u);
    EXPECT_EQ(PlatformColors().ThemeColor(6), 0x00C6CFDEu);
}
