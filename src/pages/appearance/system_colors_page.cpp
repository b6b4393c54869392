#include <new>

#include "ids_appearance_controls.h"
#include "pages/appearance/control_page_keys.h"
#include "pages/appearance/list_pages.h"
#include "pages/appearance/own_controls_page.h"
#include "ui/pickers/color_picker.h"

namespace cv2 {
namespace {

// Places inside the page's area: the name on the first line, the swatch and "Change" beside
// each other under it, the list filling the rest.
const OwnControl kControls[] = {
    RowNameLabel(IDC_COLORS_NAME),
    {{L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_CHANGE, IDC_COLORS_CHANGE},
     {IDC_COLORS_CHANGE, From::Left, 84, From::Left, 159, 24, 23},
     false},
    RowList(IDC_COLORS_LIST),
};
const ControlPlace kSwatch = {0, From::Left, 3, From::Left, 78, 24, 23};

class SystemColorsPage : public OwnControlsPage {
  public:
    SystemColorsPage()
        : OwnControlsPage(IDS_SYSTEM_COLORS, {std::begin(kControls), std::end(kControls)},
                          {&kSystemColorsSection}) {}

    void Show(bool visible) override {
        if (visible)
            m_painted = SelectedColor();
        OwnControlsPage::Show(visible);
    }

    // The swatch of the selected colour, outlined in black.
    void Paint(HDC dc) override {
        const RECT r = PlaceRectIn(kSwatch, Area());
        HBRUSH brush = CreateSolidBrush(m_painted);
        HGDIOBJ oldBrush = SelectObject(dc, brush);
        HGDIOBJ oldPen = SelectObject(dc, GetStockObject(BLACK_PEN));
        Rectangle(dc, r.left, r.top, r.right, r.bottom);
        SelectObject(dc, oldPen);
        SelectObject(dc, oldBrush);
        DeleteObject(brush);
    }

    bool OnCommand(WPARAM wParam, LPARAM) override {
        if (LOWORD(wParam) == IDC_COLORS_LIST && HIWORD(wParam) == LBN_SELCHANGE) {
            OnSelect();
            return true;
        }
        if (LOWORD(wParam) == IDC_COLORS_CHANGE && HIWORD(wParam) == BN_CLICKED) {
            Change();
            return true;
        }
        return false;
    }

  protected:
    void OnCreated() override {
        FillNameList(Control(IDC_COLORS_LIST), kSystemColorNames, kSystemColorCount);
        SendMessageW(HostWindow(), WM_COMMAND, MAKEWPARAM(IDC_COLORS_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(Control(IDC_COLORS_LIST)));
    }

  private:
    size_t Row() const { return SelectedRow(Control(IDC_COLORS_LIST), kSystemColorCount); }
    ColorRef SelectedColor() { return Values(0).Color(Row()); }

    void InvalidateSwatch() {
        const RECT r = PlaceRectIn(kSwatch, Area());
        InvalidateRect(HostWindow(), &r, FALSE);
    }

    void OnSelect() {
        const size_t row = Row();
        if (row < kSystemColorCount)
            SetWindowTextW(Control(IDC_COLORS_NAME), Localized(kSystemColorNames[row]));
        m_painted = SelectedColor();
        InvalidateSwatch();
    }

    void Change() {
        const size_t row = Row();
        if (row >= kSystemColorCount)
            return;
        ColorRef color = Values(0).Color(row);
        if (!EditColor(color, GetParent(Control(IDC_COLORS_CHANGE))))
            return;
        Values(0).SetColor(row, color);
        m_painted = color;
        InvalidateSwatch();
        UpdateWindow(HostWindow());
    }

    ColorRef m_painted = 0;
};

} // namespace

SettingsPage* NewSystemColorsPage() {
    return new (std::nothrow) SystemColorsPage();
}

} // namespace cv2
