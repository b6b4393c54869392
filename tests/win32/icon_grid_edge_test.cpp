// The grid's edge cases, each as its own behaviour.
#include <gtest/gtest.h>

#include "icon_grid_host.h"

using namespace cv2;
using namespace cv2test;

TEST(IconGrid, ZeroColumnsShowNoItemsAndNoScrollBar) {
    GridHost host;
    host.DemandGrid(500, 0);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_FALSE(host.HasScrollBar());
    const POINT p = host.CellCentre(0, 0, 3);
    host.Tap(p.x, p.y);
    EXPECT_EQ(host.Codes(GRN_CURRENTCHANGED), 0);
}

TEST(IconGrid, SameItemsWithColumnsDoShowAndScroll) {
    GridHost host;
    host.DemandGrid(500, 3);
    EXPECT_FALSE(host.requests.empty());
    EXPECT_TRUE(host.HasScrollBar());
}

TEST(IconGrid, AddingToOnDemandGridDoesNothing) {
    GridHost host; // on demand from the start
    GridItemDesc desc = {L"extra", -1};
    EXPECT_EQ(host.Send(GRM_ADDITEM, 0, reinterpret_cast<LPARAM>(&desc)), 0);
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 0), 0);
    host.Send(GRM_SETCOUNT, 2);
    EXPECT_EQ(host.Send(GRM_ADDITEM, 0, reinterpret_cast<LPARAM>(&desc)), 0);
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 2), 0);
}

TEST(IconGrid, SwitchingOnDemandFlagEmptiesTheGrid) {
    GridHost host;
    host.FillGrid(5, 3);
    host.Send(GRM_SETSEL, 2);
    HIMAGELIST images = reinterpret_cast<HIMAGELIST>(host.Send(GRM_GETIMAGELIST));
    HBITMAP bitmap = SolidBitmap(8, 8, RGB(255, 0, 0));
    host.Send(GRM_ADDBITMAP, 0, reinterpret_cast<LPARAM>(bitmap));
    DeleteObject(bitmap);
    ASSERT_EQ(ImageList_GetImageCount(images), 1);

    host.Send(GRM_SETVIEW, 0, 1);
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 0), 0);
    EXPECT_EQ(host.Send(GRM_GETSEL), -1);
    EXPECT_EQ(ImageList_GetImageCount(images), 0);
}

TEST(IconGrid, SettingTheSameOnDemandFlagKeepsItems) {
    GridHost host;
    host.FillGrid(5, 3);
    host.Send(GRM_SETVIEW, 1, 0);
    EXPECT_EQ(host.Text(4), L"Item 4");
}

TEST(IconGrid, UpFromFirstRowLeavesCurrentItem) {
    GridHost host;
    host.FillGrid(9, 3);
    const POINT p = host.CellCentre(0, 1, 3);
    host.Tap(p.x, p.y);
    ASSERT_EQ(host.Send(GRM_GETSEL), 1);
    host.notices.clear();
    host.Key(VK_UP);
    EXPECT_EQ(host.Send(GRM_GETSEL), 1);
    EXPECT_EQ(host.Codes(GRN_CURRENTCHANGED), 0);
    host.Key(VK_DOWN); // still current: it moves from item 1
    EXPECT_EQ(host.Send(GRM_GETSEL), 4);
}

TEST(IconGrid, TapOnEmptySpaceKeepsCurrentItemWithoutNotice) {
    GridHost host;
    host.FillGrid(4, 3);
    const POINT first = host.CellCentre(0, 0, 3);
    host.Tap(first.x, first.y);
    ASSERT_EQ(host.Send(GRM_GETSEL), 0);
    host.notices.clear();
    const POINT empty = host.CellCentre(1, 2, 3); // row 2 holds only item 3
    host.Tap(empty.x, empty.y);
    EXPECT_EQ(host.Send(GRM_GETSEL), 0);
    EXPECT_EQ(host.Codes(GRN_CURRENTCHANGED), 0);
    EXPECT_EQ(host.Codes(GRN_ACTIVATED), 0);
}

TEST(IconGrid, EnterWithoutCurrentItemSendsNothing) {
    GridHost host;
    host.FillGrid(4, 3);
    host.Key(VK_RETURN);
    host.Pump();
    EXPECT_TRUE(host.notices.empty());
}

TEST(IconGrid, DeleteItemCountsFromOne) {
    GridHost host;
    host.Send(GRM_SETVIEW, 0, 0);
    host.Add(L"first");
    host.Add(L"second");
    host.Add(L"third");
    EXPECT_EQ(host.Send(GRM_DELETEITEM, 1), 0);
    EXPECT_EQ(host.Text(0), L"second");
    EXPECT_EQ(host.Text(1), L"third");
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 2), 0);
}

TEST(IconGrid, DeleteItemZeroRemovesNothing) {
    GridHost host;
    host.Send(GRM_SETVIEW, 0, 0);
    host.Add(L"first");
    host.Add(L"second");
    host.Send(GRM_DELETEITEM, 0);
    EXPECT_EQ(host.Text(0), L"first");
    EXPECT_EQ(host.Text(1), L"second");
}

namespace {
// The item in the top left cell after scrolling a full grid down by one row.
LRESULT TopLeftAfterOneRowDown(int columns) {
    GridHost host;
    host.FillGrid(60, columns);
    host.Send(WM_VSCROLL, SB_LINEDOWN);
    host.Paint();
    const POINT p = host.CellCentre(0, 0, columns);
    host.Tap(p.x, p.y);
    return host.Send(GRM_GETSEL);
}
} // namespace

TEST(IconGrid, ScrollingOneRowDownMakesFirstVisibleColumnsMinusOne) {
    EXPECT_EQ(TopLeftAfterOneRowDown(3), 2);
    EXPECT_EQ(TopLeftAfterOneRowDown(4), 3);
}
