// Hit-testing and scrolling.
#include <gtest/gtest.h>

#include "icon_grid_host.h"

using namespace cv2;
using namespace cv2test;

namespace {

SCROLLINFO Info(const GridHost& host) {
    SCROLLINFO si = {};
    si.cbSize = sizeof si;
    si.fMask = SIF_ALL;
    GetScrollInfo(host.grid, SB_VERT, &si);
    return si;
}

int Pos(const GridHost& host) {
    return GetScrollPos(host.grid, SB_VERT);
}

// The item whose cell is at the top left after painting.
LRESULT TopLeft(GridHost& host, int columns) {
    host.Paint();
    const POINT p = host.CellCentre(0, 0, columns);
    host.Tap(p.x, p.y);
    return host.Send(GRM_GETSEL);
}

int Row() {
    return ScaleX(75);
}

} // namespace

TEST(IconGridHitTest, TapMakesTheItemUnderThePenCurrent) {
    GridHost host;
    host.FillGrid(9, 3);
    for (int i = 0; i < 9; ++i) {
        const POINT p = host.CellCentre(i / 3, i % 3, 3);
        host.Tap(p.x, p.y);
        EXPECT_EQ(host.Send(GRM_GETSEL), i);
    }
    EXPECT_EQ(host.Codes(GRN_CURRENTCHANGED), 9);
}

TEST(IconGridHitTest, GapBetweenCellsHitsNothing) {
    GridHost host;
    host.FillGrid(9, 3);
    const POINT p = host.CellCentre(0, 0, 3);
    host.Tap(p.x, p.y);
    host.notices.clear();
    const int columnWidth = host.Client().right / 3;
    host.Tap(columnWidth, p.y); // on the grid line
    host.Tap(p.x, Row());
    EXPECT_TRUE(host.notices.empty());
    EXPECT_EQ(host.Send(GRM_GETSEL), 0);
}

TEST(IconGridHitTest, ListTapHitsTheRow) {
    GridHost host;
    const int rowHeight = host.DemandList(100);
    ASSERT_GT(rowHeight, 0);
    host.Tap(ScaleX(100), rowHeight * 4 + rowHeight / 2);
    EXPECT_EQ(host.Send(GRM_GETSEL), 4);
}

TEST(IconGridHitTest, ListScrolledDownStartsOneRowEarly) {
    GridHost host;
    const int rowHeight = host.DemandList(100);
    host.Send(WM_VSCROLL, SB_LINEDOWN);
    host.Send(WM_VSCROLL, SB_LINEDOWN);
    host.Paint();
    host.Tap(ScaleX(100), rowHeight / 2);
    EXPECT_EQ(host.Send(GRM_GETSEL), 1);
}

TEST(IconGridScroll, RangeIsOneRowMoreThanTheItemsFill) {
    GridHost host;
    host.FillGrid(30, 3);
    const SCROLLINFO si = Info(host);
    EXPECT_EQ(si.nMin, 0);
    EXPECT_EQ(si.nMax, 11 * Row());
    EXPECT_EQ(static_cast<int>(si.nPage), 3 * Row());
}

TEST(IconGridScroll, ShownScrollBarKeepsItsOldRange) {
    GridHost host;
    host.DemandGrid(100, 3);
    ASSERT_EQ(Info(host).nMax, 35 * Row());
    host.Send(GRM_SETCOUNT, 1000);
    EXPECT_EQ(Info(host).nMax, 35 * Row());
}

TEST(IconGridScroll, ItemsAddedAfterTheBarAppearedDoNotWidenTheRange) {
    GridHost host;
    host.FillGrid(7, 3); // three rows: range of four in a page of three
    ASSERT_EQ(Info(host).nMax, 4 * Row());
    for (int i = 0; i < 20; ++i)
        host.Add(L"more");
    EXPECT_EQ(Info(host).nMax, 4 * Row());
}

TEST(IconGridScroll, HiddenScrollBarTakesTheNewRangeWhenShownAgain) {
    GridHost host;
    host.DemandGrid(100, 3);
    host.Send(GRM_DELETEALL);
    EXPECT_FALSE(host.HasScrollBar());
    host.Send(GRM_SETCOUNT, 1000);
    EXPECT_TRUE(host.HasScrollBar());
    EXPECT_EQ(Info(host).nMax, 335 * Row());
}

TEST(IconGridScroll, ScrollBarHidesWhenItemsFitAgain) {
    GridHost host;
    host.FillGrid(12, 3);
    ASSERT_TRUE(host.HasScrollBar());
    for (int i = 0; i < 6; ++i)
        host.Send(GRM_DELETEITEM, 1);
    EXPECT_FALSE(host.HasScrollBar());
}

TEST(IconGridScroll, ResizeRecomputesTheScrollBar) {
    GridHost host;
    host.FillGrid(12, 3); // five rows of range in a page of three
    ASSERT_TRUE(host.HasScrollBar());
    SetWindowPos(host.grid, nullptr, 0, 0, ScaleX(225), 8 * Row(), SWP_NOZORDER | SWP_NOMOVE);
    EXPECT_FALSE(host.HasScrollBar());
}

TEST(IconGridScroll, LineDownAndUpMoveOneRow) {
    GridHost host;
    host.FillGrid(60, 3);
    host.Send(WM_VSCROLL, SB_LINEDOWN);
    host.Send(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(Pos(host), 2 * Row());
    host.Send(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(Pos(host), Row());
    EXPECT_EQ(TopLeft(host, 3), 2);
}

TEST(IconGridScroll, PageDownMovesOnePage) {
    GridHost host;
    host.FillGrid(60, 3);
    host.Send(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(Pos(host), 3 * Row());
    EXPECT_EQ(TopLeft(host, 3), 8);
    host.Send(WM_VSCROLL, SB_PAGEUP);
    EXPECT_EQ(Pos(host), 0);
}

TEST(IconGridScroll, BottomAndTopGoToTheRangeEnds) {
    GridHost host;
    host.FillGrid(60, 3); // 20 rows, range 21 rows, page 3
    host.Send(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(Pos(host), 21 * Row() - 3 * Row() + 1);
    EXPECT_EQ(TopLeft(host, 3), 18 * 3 - 1);
    host.Send(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(Pos(host), 0);
    EXPECT_EQ(TopLeft(host, 3), 0);
}

TEST(IconGridScroll, ThumbPositionIsIgnored) {
    GridHost host;
    host.FillGrid(60, 3);
    host.Send(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 5 * Row()));
    EXPECT_EQ(Pos(host), 0);
}

TEST(IconGridScroll, UnchangedPositionRepaintsNothing) {
    GridHost host;
    host.FillGrid(60, 3);
    host.Paint();
    host.Send(WM_VSCROLL, SB_LINEUP);
    EXPECT_FALSE(GetUpdateRect(host.grid, nullptr, FALSE));
}

TEST(IconGridScroll, ScrollingRepaintsTheWholeControl) {
    GridHost host;
    host.FillGrid(60, 3);
    host.Paint();
    host.Send(WM_VSCROLL, SB_LINEDOWN);
    RECT update = {};
    GetUpdateRect(host.grid, &update, FALSE);
    const RECT client = host.Client();
    EXPECT_TRUE(EqualRect(&update, &client));
}
