// Geometry and navigation of the thumbnail grid, without windows.
#include "ui/icon_grid_layout.h"

#include <gtest/gtest.h>

#include <climits>

using namespace cv2;

namespace {
GridGeometry Thumbs(int columns, int width = 240, int height = 300) {
    GridGeometry g;
    g.columns = columns;
    g.rowHeight = 75;
    g.clientWidth = width;
    g.clientHeight = height;
    g.inset = 1;
    return g;
}

GridGeometry List(int rowHeight = 18, int height = 180) {
    GridGeometry g;
    g.list = true;
    g.rowHeight = rowHeight;
    g.clientWidth = 240;
    g.clientHeight = height;
    return g;
}
} // namespace

TEST(IconGridLayout, ThumbnailRowsRoundUp) {
    EXPECT_EQ(GridRowCount(Thumbs(3), 7), 3);
    EXPECT_EQ(GridRowCount(Thumbs(3), 6), 2);
    EXPECT_EQ(GridRowCount(Thumbs(3), 0), 0);
}

TEST(IconGridLayout, NoColumnsGiveNoRows) {
    EXPECT_EQ(GridRowCount(Thumbs(0), 100), 0);
}

TEST(IconGridLayout, ListHasOneRowPerItem) {
    EXPECT_EQ(GridRowCount(List(), 42), 42);
}

TEST(IconGridLayout, ScrollRangeHoldsOneRowMore) {
    const GridScroll s = GridScrollExtent(Thumbs(3), 30); // 10 rows
    EXPECT_EQ(s.max, 11 * 75);
    EXPECT_EQ(s.page, 4 * 75);
    EXPECT_FALSE(GridScrollFits(s));
}

TEST(IconGridLayout, PageIsWholeRowsOfTheClientHeight) {
    EXPECT_EQ(GridScrollExtent(Thumbs(3, 240, 299), 30).page, 3 * 75);
}

TEST(IconGridLayout, EmptyGridFitsItsPage) {
    EXPECT_TRUE(GridScrollFits(GridScrollExtent(Thumbs(0), 1000)));
    EXPECT_TRUE(GridScrollFits(GridScrollExtent(Thumbs(3), 0)));
}

TEST(IconGridLayout, FirstVisibleStepsBackOneItem) {
    EXPECT_EQ(GridFirstVisibleAt(Thumbs(3), 75), 2);
    EXPECT_EQ(GridFirstVisibleAt(Thumbs(3), 150), 5);
    EXPECT_EQ(GridFirstVisibleAt(Thumbs(3), 149), 2); // a part row counts as the row above
    EXPECT_EQ(GridFirstVisibleAt(List(), 36), 1);
}

TEST(IconGridLayout, FirstVisibleNeverBelowZero) {
    EXPECT_EQ(GridFirstVisibleAt(Thumbs(3), 0), 0);
    EXPECT_EQ(GridFirstVisibleAt(List(), 10), 0);
    EXPECT_EQ(GridFirstVisibleAt(Thumbs(0), 750), 0);
}

TEST(IconGridLayout, FirstBelowViewCountsWholeRows) {
    EXPECT_EQ(GridFirstBelowView(Thumbs(3), 0), 12);
    EXPECT_EQ(GridFirstBelowView(Thumbs(3, 240, 299), 2), 11);
    EXPECT_EQ(GridFirstBelowView(List(18, 180), 5), 15);
}

TEST(IconGridLayout, PaintEndIncludesTheCutLastRow) {
    EXPECT_EQ(GridPaintEnd(Thumbs(3, 240, 299), 0, 100), 12);
    EXPECT_EQ(GridPaintEnd(Thumbs(3, 240, 300), 0, 100), 12);
    EXPECT_EQ(GridPaintEnd(Thumbs(3, 240, 301), 0, 100), 15);
    EXPECT_EQ(GridPaintEnd(Thumbs(3), 95, 100), 100);
    EXPECT_EQ(GridPaintEnd(Thumbs(0), 0, 100), 0);
}

TEST(IconGridLayout, ThumbnailCellsAreInsetGridSquares) {
    const GridRect r = GridCellRect(Thumbs(3), 2, 6); // second row, second column
    EXPECT_EQ(r.left, 81);
    EXPECT_EQ(r.top, 76);
    EXPECT_EQ(r.right, 159);
    EXPECT_EQ(r.bottom, 149);
}

TEST(IconGridLayout, ListRowsSpanTheWidth) {
    const GridRect r = GridCellRect(List(18), 10, 13);
    EXPECT_EQ(r.left, 0);
    EXPECT_EQ(r.top, 54);
    EXPECT_EQ(r.right, 240);
    EXPECT_EQ(r.bottom, 72);
}

TEST(IconGridLayout, GridKeysMoveByRowsAndItems) {
    const GridGeometry g = Thumbs(3);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Down, 1, 10), 4);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Up, 4, 10), 1);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Left, 4, 10), 3);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Right, 4, 10), 5);
}

TEST(IconGridLayout, GridKeysStopAtTheEdges) {
    const GridGeometry g = Thumbs(3);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Up, 2, 10), 2);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Down, 7, 10), 7);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Left, 0, 10), 0);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Right, 9, 10), 9);
}

TEST(IconGridLayout, LeftAndRightWrapAcrossRows) {
    EXPECT_EQ(GridMoveCurrent(Thumbs(3), GridKey::Right, 2, 10), 3);
    EXPECT_EQ(GridMoveCurrent(Thumbs(3), GridKey::Left, 3, 10), 2);
}

TEST(IconGridLayout, WithoutCurrentItemDownGoesToTheLastColumnOfTheFirstRow) {
    EXPECT_EQ(GridMoveCurrent(Thumbs(3), GridKey::Down, -1, 10), 2);
    EXPECT_EQ(GridMoveCurrent(Thumbs(3), GridKey::Right, -1, 10), 0);
    EXPECT_EQ(GridMoveCurrent(Thumbs(3), GridKey::Up, -1, 10), -1);
}

TEST(IconGridLayout, ListKeysPairUpAndLeftDownAndRight) {
    const GridGeometry g = List();
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Up, 3, 10), 2);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Left, 3, 10), 2);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Down, 3, 10), 4);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Right, 3, 10), 4);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Up, 0, 10), 0);
    EXPECT_EQ(GridMoveCurrent(g, GridKey::Down, 9, 10), 9);
}

TEST(IconGridLayout, SmallPictureKeepsItsSize) {
    const GridSize s = GridFitPicture(40, 20, {73, 73});
    EXPECT_EQ(s.width, 40);
    EXPECT_EQ(s.height, 20);
}

TEST(IconGridLayout, WidePictureFillsTheSlotWidth) {
    const GridSize s = GridFitPicture(146, 73, {73, 73});
    EXPECT_EQ(s.width, 73);
    EXPECT_EQ(s.height, 36);
}

TEST(IconGridLayout, TallPictureFillsTheSlotHeight) {
    const GridSize s = GridFitPicture(100, 400, {16, 16});
    EXPECT_EQ(s.width, 4);
    EXPECT_EQ(s.height, 16);
}

TEST(IconGridLayout, EmptyPictureFitsToNothing) {
    EXPECT_EQ(GridFitPicture(0, 10, {16, 16}).width, 0);
    EXPECT_EQ(GridFitPicture(10, 10, {0, 0}).height, 0);
}

TEST(IconGridLayout, HugeCountsDoNotOverflow) {
    const GridScroll s = GridScrollExtent(List(18), INT_MAX);
    EXPECT_EQ(s.max, INT_MAX);
    EXPECT_EQ(GridFirstBelowView(Thumbs(INT_MAX), INT_MAX - 1), INT_MAX);
    EXPECT_EQ(GridMoveCurrent(Thumbs(INT_MAX), GridKey::Down, 5, INT_MAX), 5);
}
