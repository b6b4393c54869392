// A real parent window for grid tests: it records every WM_COMMAND the grid sends or posts and
// answers the grid's on-demand requests.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "store/scale.h"
#include "ui/icon_grid.h"

namespace cv2test {

struct GridNotice {
    WORD code;
    WORD id;
    HWND from;
    bool sent; // true for SendMessage, false for PostMessage (seen by Pump)
};

constexpr int kGridId = 1024;

class GridHost {
  public:
    // A grid child of `width` x `height` (96-dpi units, scaled) with the given extra styles, at
    // the top left of a screen-sized parent that all tests share.
    GridHost(int width = 225, int height = 225, DWORD gridStyle = 0);
    ~GridHost();
    GridHost(const GridHost&) = delete;
    GridHost& operator=(const GridHost&) = delete;

    LRESULT Send(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(grid, msg, wParam, lParam);
    }
    // Appends an item (not on demand) and returns the grid's answer.
    LRESULT Add(const std::wstring& caption, int picture = -1) const;
    // Thumbnail grid of `count` plain items in `columns` columns, not on demand.
    void FillGrid(int count, int columns);
    // Thumbnail grid of `count` on-demand items in `columns` columns, painted.
    void DemandGrid(int count, int columns);
    // List of `count` plain items, not on demand.
    void FillList(int count);
    // List of `count` on-demand items, painted; returns its row height, read off the scroll range.
    int DemandList(int count);
    // Runs pending paints and posted messages for a moment.
    void Pump();
    void Paint();
    // Pen down and up at a client point of the grid.
    void Tap(int x, int y) const;
    void Key(WPARAM key) const;
    RECT Client() const;
    bool HasScrollBar() const { return (GetWindowLongW(grid, GWL_STYLE) & WS_VSCROLL) != 0; }
    // Centre of thumbnail cell (row, column) for `columns` columns, from the client size.
    POINT CellCentre(int row, int column, int columns) const;
    std::wstring Text(int index) const;
    int Codes(WORD code) const; // how many notices with this code

    HWND parent = nullptr;
    HWND grid = nullptr;
    std::vector<GridNotice> notices;
    std::vector<int> requests; // item indices the grid asked for, in order
    // Fills an on-demand item; by default caption "Item <n>" and no picture.
    std::function<void(int, cv2::GridItemDesc*)> supply;
};

// A bitmap of one colour, the caller's to delete.
HBITMAP SolidBitmap(int width, int height, COLORREF color);

// Pixel of the grid's client area as shown on screen.
COLORREF GridPixel(HWND grid, int x, int y);

// Draws picture `index` of `images` onto a slot-sized `ground` and reads the pixel at (x, y).
COLORREF ImagePixelOn(HIMAGELIST images, int index, int x, int y, COLORREF ground);

} // namespace cv2test
