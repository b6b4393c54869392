// Inside the thumbnail grid: the per-window state and the pieces its message handlers share.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>
#include <vector>

#include "ui/icon_grid_layout.h"
#include "ui/pickers/font_record.h"

namespace cv2 {

struct GridItem {
    std::wstring caption;
    int picture = -1; // image-list index, -1 for none
    bool selected = false;
    bool fetched = false; // on-demand: the parent has supplied caption and picture
    RECT cell = {};       // where the item was last laid out, for hit-testing and repainting
};

// Per-window state, on the heap, its pointer in the window's user-data slot.
struct GridState {
    HWND hwnd = nullptr;
    std::vector<GridItem> items;
    int view = 0; // 0 thumbnails, 1 list
    HIMAGELIST images = nullptr;
    bool ownsImages = true;
    COLORREF textColor = 0;
    COLORREF backColor = 0;
    int firstVisible = 0;
    int current = -1;
    int columns = 0;
    bool onDemand = true;
    bool hold = false;
    // When set, moving the current item leaves the selection alone.
    bool selectionDecoupled = false;
    int pressed = -1; // item under the last pen-up while tap-and-hold is on
    FontRecord font;  // captions

    int Count() const { return static_cast<int>(items.size()); }
    bool Valid(int index) const { return index >= 0 && index < Count(); }
};

GridState* GridStateOf(HWND hwnd);

// Thumbnail cells and thumbnail pictures are this many 96-dpi pixels.
constexpr int kThumbRow = 75;
constexpr int kThumbPicture = 73;

// Row height of the current view, in pixels.
int GridRowHeight(const GridState& s);
// The layout facts for the window's current client size.
GridGeometry GridLayout(const GridState& s);

// Scroll bar after a change of items, size or columns.
void UpdateGridScrollBar(GridState& s);
// WM_VSCROLL.
void OnGridScroll(GridState& s, int code);

// Tells the parent: WM_COMMAND with the code low and the grid's id high.
void SendGridNotify(const GridState& s, WORD code);
void PostGridNotify(const GridState& s, WORD code);

// Makes `index` the current item: selection, repaint of both cells, notification 100.
void SetGridCurrent(GridState& s, int index);
void InvalidateGridItem(const GridState& s, int index);

// The item whose laid-out cell holds `pt`, or -1.
int GridHitTest(const GridState& s, POINT pt);

// Input.
void OnGridKeyDown(GridState& s, WPARAM key);
void OnGridKeyUp(GridState& s, WPARAM key);
void OnGridPenDown(HWND hwnd, POINT pt);
void OnGridPenUp(GridState& s, POINT pt);

// Painting.
void PaintGrid(HWND hwnd);
void EraseGrid(const GridState& s, HDC dc);

// A bottom-up DIB section of that depth, the caller's to delete; null on failure.
HBITMAP CreateGridBitmap(HDC dc, int width, int height, int bitsPerPixel);
// Image list of the view's picture size, masked, with magenta as background; null on failure.
HIMAGELIST CreateGridImageList(int view);
// Adds `bitmap` fitted to the list's picture size; the new index, 0 without a list.
int AddGridBitmap(HIMAGELIST images, HBITMAP bitmap);

} // namespace cv2
