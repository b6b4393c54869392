// Arrow keys and Enter in both views, and the scrolling they cause.
#include <gtest/gtest.h>

#include "icon_grid_host.h"

using namespace cv2;
using namespace cv2test;

namespace {

// A 3-column grid of `count` items with item `current` made current by a tap.
void GridWithCurrent(GridHost& host, int count, int row, int column) {
    host.FillGrid(count, 3);
    const POINT p = host.CellCentre(row, column, 3);
    host.Tap(p.x, p.y);
    host.notices.clear();
}

int ScrollPos(const GridHost& host) {
    return GetScrollPos(host.grid, SB_VERT);
}

} // namespace

TEST(IconGridKeys, DownMovesOneRow) {
    GridHost host;
    GridWithCurrent(host, 9, 0, 1);
    host.Key(VK_DOWN);
    EXPECT_EQ(host.Send(GRM_GETSEL), 4);
}

TEST(IconGridKeys, DownFromLastRowStays) {
    GridHost host;
    GridWithCurrent(host, 8, 2, 0); // item 6; 6 + 3 reaches the count
    host.Key(VK_DOWN);
    EXPECT_EQ(host.Send(GRM_GETSEL), 6);
    EXPECT_EQ(host.Codes(GRN_CURRENTCHANGED), 0);
}

TEST(IconGridKeys, RightAndLeftMoveOneItemAcrossRows) {
    GridHost host;
    GridWithCurrent(host, 9, 0, 2);
    host.Key(VK_RIGHT);
    EXPECT_EQ(host.Send(GRM_GETSEL), 3);
    host.Key(VK_LEFT);
    host.Key(VK_LEFT);
    EXPECT_EQ(host.Send(GRM_GETSEL), 1);
}

TEST(IconGridKeys, LeftFromFirstItemAndRightFromLastStay) {
    GridHost host;
    GridWithCurrent(host, 2, 0, 0);
    host.Key(VK_LEFT);
    EXPECT_EQ(host.Send(GRM_GETSEL), 0);
    host.Key(VK_RIGHT);
    host.Key(VK_RIGHT);
    EXPECT_EQ(host.Send(GRM_GETSEL), 1);
    EXPECT_EQ(host.Codes(GRN_CURRENTCHANGED), 1);
}

TEST(IconGridKeys, ListUpAndLeftGoBackDownAndRightGoOn) {
    GridHost host;
    host.FillList(5);
    host.Key(VK_DOWN); // from no current item to the first
    EXPECT_EQ(host.Send(GRM_GETSEL), 0);
    host.Key(VK_RIGHT);
    host.Key(VK_DOWN);
    EXPECT_EQ(host.Send(GRM_GETSEL), 2);
    host.Key(VK_LEFT);
    EXPECT_EQ(host.Send(GRM_GETSEL), 1);
    host.Key(VK_UP);
    host.Key(VK_UP);
    EXPECT_EQ(host.Send(GRM_GETSEL), 0);
}

TEST(IconGridKeys, SelectionFollowsTheCurrentItem) {
    GridHost host;
    GridWithCurrent(host, 9, 0, 0);
    host.Key(VK_RIGHT);
    EXPECT_EQ(host.Send(GRM_GETSEL), 1); // item 0 lost the selection
}

TEST(IconGridKeys, OtherKeysDoNothing) {
    GridHost host;
    GridWithCurrent(host, 9, 0, 0);
    host.Key(VK_SPACE);
    host.Key(VK_NEXT);
    host.Key('A');
    EXPECT_EQ(host.Send(GRM_GETSEL), 0);
    EXPECT_TRUE(host.notices.empty());
}

TEST(IconGridKeys, MovingBelowTheViewScrollsOneLineDown) {
    GridHost host; // three whole rows are visible
    GridWithCurrent(host, 30, 2, 1);
    ASSERT_EQ(ScrollPos(host), 0);
    host.Key(VK_DOWN); // item 10, the first row below the view
    EXPECT_EQ(ScrollPos(host), ScaleX(75));
    host.Paint();
    const POINT p = host.CellCentre(0, 0, 3);
    host.Tap(p.x, p.y);
    EXPECT_EQ(host.Send(GRM_GETSEL), 2);
}

TEST(IconGridKeys, MovingWithinTheViewDoesNotScroll) {
    GridHost host;
    GridWithCurrent(host, 30, 1, 1);
    host.Key(VK_DOWN);
    EXPECT_EQ(ScrollPos(host), 0);
}

TEST(IconGridKeys, MovingBeforeTheFirstVisibleItemScrollsOneLineUp) {
    GridHost host;
    host.FillGrid(30, 3);
    host.Send(WM_VSCROLL, SB_LINEDOWN);
    host.Send(WM_VSCROLL, SB_LINEDOWN); // first visible: item 5
    host.Paint();
    const POINT p = host.CellCentre(0, 0, 3);
    host.Tap(p.x, p.y);
    ASSERT_EQ(host.Send(GRM_GETSEL), 5);
    host.Key(VK_LEFT);
    EXPECT_EQ(ScrollPos(host), ScaleX(75));
}

TEST(IconGridKeys, KeyRepaintsOldAndNewCells) {
    GridHost host;
    GridWithCurrent(host, 9, 0, 0);
    host.Paint();
    host.Key(VK_DOWN);
    HRGN region = CreateRectRgn(0, 0, 0, 0);
    GetUpdateRgn(host.grid, region, FALSE);
    const POINT old = host.CellCentre(0, 0, 3), now = host.CellCentre(1, 0, 3),
                other = host.CellCentre(2, 2, 3);
    EXPECT_TRUE(PtInRegion(region, old.x, old.y));
    EXPECT_TRUE(PtInRegion(region, now.x, now.y));
    EXPECT_FALSE(PtInRegion(region, other.x, other.y));
    DeleteObject(region);
}

TEST(IconGridKeys, EnterReleasedOnCurrentItemActivatesIt) {
    GridHost host;
    GridWithCurrent(host, 9, 0, 0);
    host.Send(WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(host.Codes(GRN_ACTIVATED), 0); // on the release, not the press
    host.Send(WM_KEYUP, VK_RETURN, 0xC0000001);
    ASSERT_EQ(host.Codes(GRN_ACTIVATED), 1);
    EXPECT_TRUE(host.notices.back().sent);
}
