// Geometry and navigation of the thumbnail grid, without any window: where each item's cell lies,
// how far the scroll bar reaches, which item the arrow keys move to and how a picture is fitted
// into an image-list slot. The control applies these; tests check them natively.
#pragma once

namespace cv2 {

struct GridRect {
    int left, top, right, bottom;
};

struct GridSize {
    int width, height;
};

// What the layout depends on; sizes in device pixels.
struct GridGeometry {
    bool list = false; // one full-width row per item instead of thumbnail cells
    int columns = 0;   // thumbnail columns; 0 shows no items
    int rowHeight = 1; // height of a thumbnail row or a list row (at least 1)
    int clientWidth = 0;
    int clientHeight = 0;
    int inset = 0; // thumbnail cells stand this far inside their grid square
};

// Rows the items fill: ceil(count / columns) thumbnail rows (0 without columns), or count.
int GridRowCount(const GridGeometry& g, int count);

// The scroll bar's range end and page. The range holds one row more than the items fill, so the
// last row can be scrolled fully into view after the one-item step back of GridFirstVisibleAt.
struct GridScroll {
    int max;
    int page;
};
GridScroll GridScrollExtent(const GridGeometry& g, int count);
// True when the whole range fits in the page and the scroll bar is not wanted.
bool GridScrollFits(const GridScroll& s);

// The first painted item for a scroll position: one item before the first item of the
// scrolled-to row, never below 0.
int GridFirstVisibleAt(const GridGeometry& g, int position);

// Rows wholly inside the client area.
int GridFullRows(const GridGeometry& g);
// The first item below the wholly visible rows when painting starts at `first`.
int GridFirstBelowView(const GridGeometry& g, int first);
// One past the last item painted when painting starts at `first` (rows down to the client
// height, the last one possibly cut), at most `count`; equal to `first` when nothing is painted.
int GridPaintEnd(const GridGeometry& g, int first, int count);
// The cell of item `index` when painting starts at `first` (index >= first).
GridRect GridCellRect(const GridGeometry& g, int first, int index);

enum class GridKey { Up, Down, Left, Right };
// The current item after an arrow key; the same index when the key leads nowhere.
int GridMoveCurrent(const GridGeometry& g, GridKey key, int current, int count);

// Size of a picture of `width` x `height` in an image-list slot of `slot`: kept when it fits,
// else scaled so that its longer side fills the slot, keeping the aspect ratio.
GridSize GridFitPicture(int width, int height, GridSize slot);

} // namespace cv2
