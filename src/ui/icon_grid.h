// IconGrid, window class "TRLGRIDEX": the program's item picker. A scrolling collection of items,
// each a caption with an optional picture, shown as a grid of thumbnail cells or as a one-column
// list. The parent drives it with the GRM_* messages below and hears back through WM_COMMAND.
//
// Notifications arrive as WM_COMMAND with lParam = the grid's window and the codes in the LOW
// word of wParam, the grid's id in the HIGH word (the reverse of the common control convention;
// the pages decode it so, use GridNotifyCode/GridNotifyId).
//
// In on-demand mode (the default) the grid holds only blank items and asks its parent for each
// item's caption and picture when the item is first painted (GRN_NEEDITEM), so a folder of
// thousands of files costs no more than the handful on screen.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <cstdint>

namespace cv2 {

constexpr wchar_t kIconGridClass[] = L"TRLGRIDEX";

// The background colour of the grid's own image list, magenta: pictures are drawn onto it and its
// pixels become the mask, so it shows as transparent whatever colours the grid is given.
constexpr COLORREF kGridMaskColor = 0xFF00FF;

// Registers the window class for `instance` once; true when it is (or already was) registered.
bool RegisterIconGridClass(HINSTANCE instance);

// Item description exchanged with the parent: by GRM_ADDITEM and by the on-demand request.
struct GridItemDesc {
    wchar_t caption[256]; // NUL-terminated
    int32_t picture;      // index into the grid's image list, -1 for none
};
static_assert(sizeof(GridItemDesc) == 516, "the parent and the grid share this layout");

// Messages to the grid (wParam / lParam -> result). Indices count from 0 except GRM_DELETEITEM.
enum : UINT {
    GRM_SETVIEW = WM_USER + 101,      // 0 thumbnails, else list / nonzero on-demand -> 0
    GRM_SETCOLORS = WM_USER + 102,    // text colour / background colour -> 0
    GRM_SETCOUNT = WM_USER + 103,     // count (on-demand only) -> count
    GRM_ADDITEM = WM_USER + 104,      // - / GridItemDesc* (not on-demand) -> new index
    GRM_DELETEITEM = WM_USER + 105,   // position counted from 1 (not on-demand) -> 0
    GRM_DELETEALL = WM_USER + 106,    // -> 0
    GRM_SETSEL = WM_USER + 108,       // index: the only selected item -> 0
    GRM_GETSEL = WM_USER + 109,       // -> first selected index or -1
    GRM_GETTEXTLEN = WM_USER + 110,   // index -> caption length + 1
    GRM_GETTEXT = WM_USER + 111,      // index / wchar_t* buffer -> caption length + 1
    GRM_SETIMAGELIST = WM_USER + 112, // - / HIMAGELIST, adopted without ownership -> 0
    GRM_GETIMAGELIST = WM_USER + 113, // -> HIMAGELIST
    GRM_ADDBITMAP = WM_USER + 114,    // - / HBITMAP (copied, stays the caller's) -> picture index
    GRM_SETCOLUMNS = WM_USER + 115,   // thumbnail columns -> 0
    GRM_ENABLEHOLD = WM_USER + 116,   // 1 enables tap-and-hold, anything else disables -> 0
};

// Sent by the grid to its parent while painting an item it has not asked about before:
// wParam = item index, lParam = GridItemDesc* for the parent to fill.
constexpr UINT GRN_NEEDITEM = WM_APP + 100;

// Notification codes (low word of WM_COMMAND's wParam).
enum : WORD {
    GRN_CURRENTCHANGED = 100, // the current item changed (key or tap); sent
    GRN_ACTIVATED = 101,      // Enter released or pen lifted on the current item
    GRN_HOLD = 1000,          // tap-and-hold on the control: context menu wanted; posted
};

inline WORD GridNotifyCode(WPARAM wParam) {
    return LOWORD(wParam);
}
inline WORD GridNotifyId(WPARAM wParam) {
    return HIWORD(wParam);
}

} // namespace cv2
