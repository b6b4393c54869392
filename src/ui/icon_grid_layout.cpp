#include "ui/icon_grid_layout.h"

#include <algorithm>
#include <climits>

namespace cv2 {
namespace {

// Counts and positions are computed wide and brought back into int range, so that absurd
// counts or column numbers from a parent give a wrong picture, never an overflow.
int Clamp(long long v) {
    return static_cast<int>(std::max<long long>(INT_MIN, std::min<long long>(INT_MAX, v)));
}

int RowHeight(const GridGeometry& g) {
    return std::max(1, g.rowHeight);
}

// Items in one painted row.
int ItemsPerRow(const GridGeometry& g) {
    return g.list ? 1 : std::max(0, g.columns);
}

} // namespace

int GridRowCount(const GridGeometry& g, int count) {
    if (count <= 0)
        return 0;
    if (g.list)
        return count;
    if (g.columns <= 0)
        return 0;
    return Clamp((static_cast<long long>(count) + g.columns - 1) / g.columns);
}

GridScroll GridScrollExtent(const GridGeometry& g, int count) {
    const int rowHeight = RowHeight(g);
    GridScroll s;
    s.max = Clamp(std::max(0LL, (static_cast<long long>(GridRowCount(g, count)) + 1) * rowHeight));
    s.page = std::max(0, g.clientHeight / rowHeight) * rowHeight;
    return s;
}

bool GridScrollFits(const GridScroll& s) {
    return s.max <= s.page;
}

int GridFirstVisibleAt(const GridGeometry& g, int position) {
    const long long row = std::max(0, position) / RowHeight(g);
    return Clamp(std::max(0LL, row * ItemsPerRow(g) - 1));
}

int GridFullRows(const GridGeometry& g) {
    return std::max(0, g.clientHeight / RowHeight(g));
}

int GridFirstBelowView(const GridGeometry& g, int first) {
    return Clamp(static_cast<long long>(first) +
                 static_cast<long long>(GridFullRows(g)) * ItemsPerRow(g));
}

int GridPaintEnd(const GridGeometry& g, int first, int count) {
    const int rowHeight = RowHeight(g);
    const long long rows = g.clientHeight <= 0 ? 0 : (g.clientHeight + rowHeight - 1LL) / rowHeight;
    const long long end = static_cast<long long>(std::max(0, first)) + rows * ItemsPerRow(g);
    return Clamp(std::max<long long>(std::max(0, first), std::min<long long>(count, end)));
}

GridRect GridCellRect(const GridGeometry& g, int first, int index) {
    const int rowHeight = RowHeight(g);
    const long long offset = static_cast<long long>(index) - first;
    if (g.list) {
        const int top = Clamp(offset * rowHeight);
        return {0, top, g.clientWidth, Clamp(static_cast<long long>(top) + rowHeight)};
    }
    const int columns = std::max(1, g.columns);
    const int width = g.clientWidth / columns;
    const long long row = offset / columns, column = offset % columns;
    return {Clamp(column * width + g.inset), Clamp(row * rowHeight + g.inset),
            Clamp((column + 1) * width - g.inset), Clamp((row + 1) * rowHeight - g.inset)};
}

int GridMoveCurrent(const GridGeometry& g, GridKey key, int current, int count) {
    const long long c = current;
    long long next = c;
    if (g.list) {
        if ((key == GridKey::Up || key == GridKey::Left) && c >= 1)
            next = c - 1;
        else if ((key == GridKey::Down || key == GridKey::Right) && c < count - 1LL)
            next = c + 1;
        return Clamp(next);
    }
    const long long k = g.columns;
    switch (key) {
    case GridKey::Up:
        if (c - k >= 0)
            next = c - k;
        break;
    case GridKey::Down:
        if (c + k < count)
            next = c + k;
        break;
    case GridKey::Left:
        if (c >= 1)
            next = c - 1;
        break;
    case GridKey::Right:
        if (c < count - 1LL)
            next = c + 1;
        break;
    }
    return Clamp(next);
}

GridSize GridFitPicture(int width, int height, GridSize slot) {
    if (width <= 0 || height <= 0 || slot.width <= 0 || slot.height <= 0)
        return {0, 0};
    if (width <= slot.width && height <= slot.height)
        return {width, height};
    // Wider than the slot's shape: the width fills it; else the height does.
    if (static_cast<long long>(width) * slot.height >= static_cast<long long>(height) * slot.width)
        return {slot.width,
                std::max(1, Clamp(static_cast<long long>(height) * slot.width / width))};
    return {std::max(1, Clamp(static_cast<long long>(width) * slot.height / height)), slot.height};
}

} // namespace cv2
