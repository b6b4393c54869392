// Placement of the file browser's controls and the drawing of its tree button.
#include "ids_ui.h"
#include "store/scale.h"
#include "ui/browser/browser_dialog.h"
#include "ui/control_layout.h"

namespace cv2 {
namespace {

// The drop-down's height includes its open list.
constexpr int kFilterListHeight = 120;

// Portrait and square screens: the filter and Cancel on top, the file name and the tree button
// below them.
const ControlPlace kTallPlaces[] = {
    {IDC_BROWSE_FILTER, From::Left, 2, From::Right, -64, 3, kFilterListHeight},
    {IDC_BROWSE_CANCEL, From::Right, -62, From::Right, -2, 3, 22},
    {IDC_BROWSE_NAME, From::Left, 2, From::Right, -25, 28, 21},
    {IDC_BROWSE_TREE_BUTTON, From::Right, -23, From::Right, -2, 28, 21},
};
constexpr int kTallFilesTop = 52;

// Landscape screens have little height: everything in one row.
const ControlPlace kWidePlaces[] = {
    {IDC_BROWSE_NAME, From::Left, 2, From::Middle, -44, 3, 21},
    {IDC_BROWSE_TREE_BUTTON, From::Middle, -42, From::Middle, -21, 3, 21},
    {IDC_BROWSE_FILTER, From::Middle, -18, From::Right, -64, 3, kFilterListHeight},
    {IDC_BROWSE_CANCEL, From::Right, -62, From::Right, -2, 3, 22},
};
constexpr int kWideFilesTop = 27;

// Picking a folder needs no filter and no tree button: the file name and Cancel share the top.
const ControlPlace kFolderPlaces[] = {
    {IDC_BROWSE_NAME, From::Left, 2, From::Right, -64, 3, 21},
    {IDC_BROWSE_CANCEL, From::Right, -62, From::Right, -2, 3, 22},
};
constexpr int kFolderTreeTop = 27;

// Share of the grid's height that the tree covers when it drops down over the files.
constexpr int kTreeDropPercent = 75;

void Move(HWND dialog, int id, int left, int top, int right, int bottom) {
    if (HWND control = GetDlgItem(dialog, id))
        MoveWindow(control, left, top, right - left, bottom > top ? bottom - top : 0, TRUE);
}

} // namespace

void PlaceBrowserControls(HWND dialog, bool folderMode, bool wide) {
    RECT client;
    GetClientRect(dialog, &client);
    int filesTop;
    if (folderMode) {
        PlaceControls(dialog, kFolderPlaces, sizeof kFolderPlaces / sizeof kFolderPlaces[0]);
        filesTop = Scale(kFolderTreeTop);
    } else if (wide) {
        PlaceControls(dialog, kWidePlaces, sizeof kWidePlaces / sizeof kWidePlaces[0]);
        filesTop = Scale(kWideFilesTop);
    } else {
        PlaceControls(dialog, kTallPlaces, sizeof kTallPlaces / sizeof kTallPlaces[0]);
        filesTop = Scale(kTallFilesTop);
    }
    Move(dialog, IDC_BROWSE_FILES, 0, filesTop, client.right, client.bottom);
    const int margin = ScaleX(2);
    const int treeBottom =
        folderMode ? client.bottom : filesTop + (client.bottom - filesTop) * kTreeDropPercent / 100;
    Move(dialog, IDC_BROWSE_TREE, margin, filesTop, client.right - margin, treeBottom);
}

void DrawTreeButton(const DRAWITEMSTRUCT& item) {
    HDC dc = item.hDC;
    const RECT& r = item.rcItem;
    HBRUSH face = GetSysColorBrush(COLOR_BTNFACE);
    HGDIOBJ oldBrush = SelectObject(dc, face);
    HGDIOBJ oldPen = SelectObject(dc, GetStockObject(BLACK_PEN));
    Rectangle(dc, r.left, r.top, r.right, r.bottom);
    // The triangle: about a third of the button wide, half as high, in the middle; pressed, it
    // moves down and right by a pixel as pushed buttons do.
    const int push = (item.itemState & ODS_SELECTED) ? 1 : 0;
    const int half = (r.right - r.left) / 6 > 2 ? (r.right - r.left) / 6 : 2;
    const int cx = (r.left + r.right) / 2 + push;
    const int top = (r.top + r.bottom) / 2 - half / 2 + push;
    const POINT triangle[3] = {{cx - half, top}, {cx + half, top}, {cx, top + half}};
    SelectObject(dc, GetStockObject(BLACK_BRUSH));
    Polygon(dc, triangle, 3);
    SelectObject(dc, oldPen);
    SelectObject(dc, oldBrush);
    if (item.itemState & ODS_FOCUS) {
        RECT focus = r;
        InflateRect(&focus, -2, -2);
        DrawFocusRect(dc, &focus);
    }
}

} // namespace cv2
