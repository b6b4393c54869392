#include "ui/control_layout.h"

#include "platform/device_colors.h"
#include "store/scale.h"
#include "store/screen.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

int EdgeX(From from, int offset, int clientWidth) {
    switch (from) {
    case From::Third:
        return clientWidth / 3 + ScaleX(offset);
    case From::Middle:
        return clientWidth / 2 + ScaleX(offset);
    case From::TwoThirds:
        return clientWidth * 2 / 3 + ScaleX(offset);
    case From::Right:
        return clientWidth + ScaleX(offset);
    case From::Left:
        break;
    }
    return ScaleX(offset);
}

BOOL CALLBACK SetTextFontProc(HWND child, LPARAM) {
    SetControlFont(child, TextFont());
    return TRUE;
}

} // namespace

RECT PlaceRect(const ControlPlace& place, int clientWidth, int clientHeight) {
    RECT r;
    r.left = EdgeX(place.leftFrom, place.left, clientWidth);
    r.right = EdgeX(place.rightFrom, place.right, clientWidth);
    r.top = Scale(place.top) + (place.topFrom == FromY::Bottom ? clientHeight : 0);
    r.bottom = place.stretchDown ? clientHeight + Scale(place.height) : r.top + Scale(place.height);
    // A client too small for the control still gets it one pixel wide and high.
    if (r.right <= r.left)
        r.right = r.left + 1;
    if (r.bottom <= r.top)
        r.bottom = r.top + 1;
    return r;
}

void PlaceControls(HWND dialog, const ControlPlace* places, size_t count) {
    RECT client;
    GetClientRect(dialog, &client);
    PlaceControls(dialog, client, places, count);
}

RECT PlaceRectIn(const ControlPlace& place, const RECT& area) {
    RECT r = PlaceRect(place, area.right - area.left, area.bottom - area.top);
    OffsetRect(&r, area.left, area.top);
    return r;
}

void PlaceWindow(HWND control, const ControlPlace& place, const RECT& area) {
    if (!control)
        return;
    const RECT r = PlaceRectIn(place, area);
    MoveWindow(control, r.left, r.top, r.right - r.left, r.bottom - r.top, TRUE);
}

void PlaceControls(HWND host, const RECT& area, const ControlPlace* places, size_t count) {
    for (size_t i = 0; i < count; ++i)
        PlaceWindow(GetDlgItem(host, places[i].id), places[i], area);
}

void SetControlTexts(HWND dialog, const ControlText* texts, size_t count) {
    for (size_t i = 0; i < count; ++i)
        SetDlgItemTextW(dialog, texts[i].id, Localized(texts[i].text));
}

void SetDialogFonts(HWND dialog, const int* boldIds, size_t boldCount) {
    if (TextFont())
        EnumChildWindows(dialog, SetTextFontProc, 0);
    if (!CaptionFont())
        return;
    for (size_t i = 0; i < boldCount; ++i)
        SetControlFont(GetDlgItem(dialog, boldIds[i]), CaptionFont());
}

INT_PTR StaticColors(HDC dc) {
    return reinterpret_cast<INT_PTR>(DeviceStaticColors(dc));
}

bool UseWideLayout() {
    return ChooseLayout(ScreenWidth(), ScreenHeight(), true) != DialogLayout::Portrait;
}

} // namespace cv2
