// The grid's private messages, one behaviour each.
#include <gtest/gtest.h>

#include "icon_grid_host.h"

using namespace cv2;
using namespace cv2test;

namespace {

HIMAGELIST Images(const GridHost& host) {
    return reinterpret_cast<HIMAGELIST>(host.Send(GRM_GETIMAGELIST));
}

int SlotSize(HIMAGELIST images) {
    int cx = 0, cy = 0;
    ImageList_GetIconSize(images, &cx, &cy);
    return cx;
}

LRESULT AddBitmap(const GridHost& host, int w, int h, COLORREF color) {
    HBITMAP bitmap = SolidBitmap(w, h, color);
    const LRESULT index = host.Send(GRM_ADDBITMAP, 0, reinterpret_cast<LPARAM>(bitmap));
    DeleteObject(bitmap);
    return index;
}

bool HasUpdate(HWND hwnd) {
    return GetUpdateRect(hwnd, nullptr, FALSE) != FALSE;
}

// True when some pixel of the rectangle is exactly `color`.
bool AnyPixel(HWND grid, const RECT& r, COLORREF color) {
    for (int y = r.top; y < r.bottom; ++y) {
        for (int x = r.left; x < r.right; ++x) {
            if (GridPixel(grid, x, y) == color)
                return true;
        }
    }
    return false;
}

// The same on white.
COLORREF ImagePixel(HIMAGELIST images, int index, int x, int y) {
    return ImagePixelOn(images, index, x, y, RGB(255, 255, 255));
}

// An image list of the test's own, given to the grid; freed after the grid is gone.
struct AdoptedList {
    explicit AdoptedList(GridHost& h, int side = 16) : host(h) {
        list = ImageList_Create(side, side, ILC_COLOR24 | ILC_MASK, 0, 4);
        host.Send(GRM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(list));
    }
    ~AdoptedList() {
        DestroyWindow(host.grid);
        host.grid = nullptr;
        ImageList_Destroy(list);
    }
    GridHost& host;
    HIMAGELIST list;
};

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

} // namespace

TEST(IconGridMessages, NewGridOwnsThumbnailSizedImageList) {
    GridHost host;
    ASSERT_NE(Images(host), nullptr);
    EXPECT_EQ(SlotSize(Images(host)), ScaleX(73));
}

TEST(IconGridMessages, SetViewToListRemakesEmptyOwnedImageListAtSmallIconSize) {
    GridHost host;
    EXPECT_EQ(host.Send(GRM_SETVIEW, 1, 1), 0);
    EXPECT_EQ(SlotSize(Images(host)), GetSystemMetrics(SM_CXSMICON));
    host.Send(GRM_SETVIEW, 0, 1);
    EXPECT_EQ(SlotSize(Images(host)), ScaleX(73));
}

TEST(IconGridMessages, SetViewKeepsImageListWhileItemsExist) {
    GridHost host;
    host.FillGrid(3, 3);
    host.Send(GRM_SETVIEW, 1, 0);
    EXPECT_EQ(SlotSize(Images(host)), ScaleX(73));
}

TEST(IconGridMessages, SetViewKeepsAdoptedImageList) {
    GridHost host;
    AdoptedList adopted(host, 20);
    HIMAGELIST mine = adopted.list;
    host.Send(GRM_SETVIEW, 1, 1);
    EXPECT_EQ(Images(host), mine);
    EXPECT_EQ(SlotSize(mine), 20);
}

TEST(IconGridMessages, SetViewRepaints) {
    GridHost host;
    host.Paint();
    ASSERT_FALSE(HasUpdate(host.grid));
    host.Send(GRM_SETVIEW, 0, 1);
    EXPECT_TRUE(HasUpdate(host.grid));
}

TEST(IconGridMessages, GridCaptionsGlowWhiteAndListCaptionsDoNot) {
    GridHost host;
    host.Send(GRM_SETCOLORS, RGB(0, 0, 0), RGB(128, 128, 128));
    host.FillGrid(3, 3);
    const POINT centre = host.CellCentre(0, 0, 3);
    const RECT caption = {centre.x - ScaleX(20), ScaleX(50), centre.x + ScaleX(20), ScaleX(74)};
    EXPECT_TRUE(AnyPixel(host.grid, caption, kWhite));

    host.Send(GRM_DELETEALL);
    host.FillList(3);
    const RECT row = {0, 0, ScaleX(60), ScaleX(12)};
    EXPECT_FALSE(AnyPixel(host.grid, row, kWhite));
    EXPECT_TRUE(AnyPixel(host.grid, row, RGB(0, 0, 0)) || AnyPixel(host.grid, row, RGB(1, 1, 1)));
}

TEST(IconGridMessages, SetColorsKeepsTheMaskColourOfTheOwnedImageList) {
    GridHost host;
    EXPECT_EQ(host.Send(GRM_SETCOLORS, kRed, RGB(0, 128, 0)), 0);
    EXPECT_EQ(ImageList_GetBkColor(Images(host)), kGridMaskColor);
}

// The file browser gives the grid the window colour, white: pictures keep their white pixels,
// also where they are drawn on something else, as on a selected cell.
TEST(IconGridMessages, PicturesKeepPixelsOfTheGridsBackgroundColour) {
    GridHost host;
    host.Send(GRM_SETCOLORS, RGB(0, 0, 0), kWhite);
    const int mid = SlotSize(Images(host)) / 2;
    AddBitmap(host, 10, 10, kWhite);
    EXPECT_EQ(ImagePixelOn(Images(host), 0, mid, mid, kBlue), kWhite);
}

TEST(IconGridMessages, SetColorsLeavesAdoptedImageListAlone) {
    GridHost host;
    AdoptedList adopted(host);
    HIMAGELIST mine = adopted.list;
    ImageList_SetBkColor(mine, kBlue);
    host.Send(GRM_SETCOLORS, kRed, RGB(0, 128, 0));
    EXPECT_EQ(ImageList_GetBkColor(mine), kBlue);
}

TEST(IconGridMessages, EraseFillsWithTheBackgroundColour) {
    GridHost host;
    host.Send(GRM_SETCOLORS, kRed, RGB(0, 128, 0));
    InvalidateRect(host.grid, nullptr, TRUE);
    host.Paint();
    EXPECT_EQ(GridPixel(host.grid, 5, 5), RGB(0, 128, 0));
    HDC dc = GetDC(host.grid);
    EXPECT_EQ(host.Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)), 1);
    ReleaseDC(host.grid, dc);
}

TEST(IconGridMessages, SetCountReplacesItemsWithBlanks) {
    GridHost host;
    host.DemandGrid(3, 3);
    EXPECT_EQ(host.Send(GRM_SETCOUNT, 5), 5);
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 4), 1);
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 5), 0);
    EXPECT_EQ(host.Send(GRM_GETSEL), -1);
}

TEST(IconGridMessages, SetCountIsIgnoredWhenNotOnDemand) {
    GridHost host;
    host.FillGrid(2, 3);
    EXPECT_EQ(host.Send(GRM_SETCOUNT, 10), 0);
    EXPECT_EQ(host.Text(1), L"Item 1");
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 2), 0);
}

TEST(IconGridMessages, AddItemReturnsTheNewIndex) {
    GridHost host;
    host.Send(GRM_SETVIEW, 0, 0);
    EXPECT_EQ(host.Add(L"a"), 0);
    EXPECT_EQ(host.Add(L"b"), 1);
    EXPECT_EQ(host.Add(L"c"), 2);
    EXPECT_EQ(host.Send(GRM_GETSEL), -1);
}

TEST(IconGridMessages, AddItemTakesAtMost255Characters) {
    GridHost host;
    host.Send(GRM_SETVIEW, 0, 0);
    GridItemDesc desc;
    for (wchar_t& c : desc.caption)
        c = L'x'; // no terminator at all
    desc.picture = -1;
    host.Send(GRM_ADDITEM, 0, reinterpret_cast<LPARAM>(&desc));
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 0), 256);
}

TEST(IconGridMessages, ItemPictureIsDrawnAtTheTopCentreOfItsCell) {
    GridHost host;
    host.Send(GRM_SETVIEW, 0, 0);
    host.Send(GRM_SETCOLUMNS, 3);
    ASSERT_EQ(AddBitmap(host, ScaleX(20), ScaleX(20), kRed), 0);
    host.Add(L"red", 0);
    host.Add(L"none", -1);
    host.Paint();
    const POINT first = host.CellCentre(0, 0, 3), second = host.CellCentre(0, 1, 3);
    const int y = ScaleX(73) / 2 + ScaleX(1);
    EXPECT_EQ(GridPixel(host.grid, first.x, y), kRed);
    EXPECT_NE(GridPixel(host.grid, first.x, ScaleX(3)), kRed); // above the 20-pixel picture
    EXPECT_NE(GridPixel(host.grid, second.x, y), kRed);
}

TEST(IconGridMessages, DeleteItemLowersCurrentBelowTheCount) {
    GridHost host;
    host.FillGrid(3, 3);
    const POINT last = host.CellCentre(0, 2, 3);
    host.Tap(last.x, last.y);
    host.Send(GRM_DELETEITEM, 3);
    host.Key(VK_LEFT); // from item 1, not from the removed item 2
    EXPECT_EQ(host.Send(GRM_GETSEL), 0);
}

TEST(IconGridMessages, DeleteItemIsIgnoredOnDemand) {
    GridHost host;
    host.DemandGrid(5, 3);
    EXPECT_EQ(host.Send(GRM_DELETEITEM, 1), 0);
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 4), static_cast<LRESULT>(host.Text(4).size() + 1));
}

TEST(IconGridMessages, DeleteItemPastTheEndRemovesNothing) {
    GridHost host;
    host.FillGrid(2, 3);
    host.Send(GRM_DELETEITEM, 3);
    EXPECT_EQ(host.Text(1), L"Item 1");
}

TEST(IconGridMessages, DeleteAllEmptiesItemsAndOwnedPictures) {
    GridHost host;
    host.FillGrid(4, 3);
    AddBitmap(host, 8, 8, kRed);
    const POINT p = host.CellCentre(0, 1, 3);
    host.Tap(p.x, p.y);
    host.notices.clear();
    EXPECT_EQ(host.Send(GRM_DELETEALL), 0);
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 0), 0);
    EXPECT_EQ(ImageList_GetImageCount(Images(host)), 0);
    host.Key(VK_RETURN); // no current item any more
    EXPECT_EQ(host.Codes(GRN_ACTIVATED), 0);
}

TEST(IconGridMessages, DeleteAllKeepsAdoptedPictures) {
    GridHost host;
    AdoptedList adopted(host);
    HIMAGELIST mine = adopted.list;
    AddBitmap(host, 8, 8, kRed);
    host.Send(GRM_DELETEALL);
    EXPECT_EQ(ImageList_GetImageCount(mine), 1);
}

TEST(IconGridMessages, MessageBetweenDeleteAllAndSetSelIsNotHandled) {
    GridHost host;
    host.FillGrid(2, 3);
    EXPECT_EQ(host.Send(WM_USER + 107, 0, 0), 0);
    EXPECT_EQ(host.Text(1), L"Item 1");
}

TEST(IconGridMessages, SetSelSelectsExactlyOneItem) {
    GridHost host;
    host.FillGrid(6, 3);
    EXPECT_EQ(host.Send(GRM_SETSEL, 2), 0);
    EXPECT_EQ(host.Send(GRM_GETSEL), 2);
    host.Send(GRM_SETSEL, 4);
    EXPECT_EQ(host.Send(GRM_GETSEL), 4);
}

TEST(IconGridMessages, SetSelOutOfRangeClearsTheSelection) {
    GridHost host;
    host.FillGrid(6, 3);
    host.Send(GRM_SETSEL, 2);
    host.Send(GRM_SETSEL, 99);
    EXPECT_EQ(host.Send(GRM_GETSEL), -1);
}

TEST(IconGridMessages, SetSelDoesNotRepaint) {
    GridHost host;
    host.FillGrid(6, 3);
    ASSERT_FALSE(HasUpdate(host.grid));
    host.Send(GRM_SETSEL, 1);
    EXPECT_FALSE(HasUpdate(host.grid));
}

TEST(IconGridMessages, GetTextCopiesCaptionWithItsTerminator) {
    GridHost host;
    host.Send(GRM_SETVIEW, 0, 0);
    host.Add(L"Sunset.jpg");
    wchar_t buffer[32];
    for (wchar_t& c : buffer)
        c = L'#';
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 0), 11);
    EXPECT_EQ(host.Send(GRM_GETTEXT, 0, reinterpret_cast<LPARAM>(buffer)), 11);
    EXPECT_STREQ(buffer, L"Sunset.jpg");
    EXPECT_EQ(buffer[11], L'#');
}

TEST(IconGridMessages, GetTextOfMissingItemGivesZero) {
    GridHost host;
    wchar_t buffer[8] = L"keep";
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 3), 0);
    EXPECT_EQ(host.Send(GRM_GETTEXT, 3, reinterpret_cast<LPARAM>(buffer)), 0);
    EXPECT_STREQ(buffer, L"keep");
}

TEST(IconGridMessages, AdoptedImageListOutlivesTheGrid) {
    HIMAGELIST mine = ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4);
    {
        GridHost host;
        EXPECT_EQ(host.Send(GRM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(mine)), 0);
        EXPECT_EQ(Images(host), mine);
    }
    HBITMAP bitmap = SolidBitmap(16, 16, kRed);
    EXPECT_EQ(ImageList_Add(mine, bitmap, nullptr), 0);
    DeleteObject(bitmap);
    ImageList_Destroy(mine);
}

TEST(IconGridMessages, AddBitmapWithoutImageListGivesZero) {
    GridHost host;
    host.Send(GRM_SETIMAGELIST, 0, 0);
    EXPECT_EQ(AddBitmap(host, 8, 8, kRed), 0);
    EXPECT_EQ(Images(host), nullptr);
}

TEST(IconGridMessages, AddBitmapReturnsNewPictureIndex) {
    GridHost host;
    EXPECT_EQ(AddBitmap(host, 8, 8, kRed), 0);
    EXPECT_EQ(AddBitmap(host, 8, 8, kBlue), 1);
    EXPECT_EQ(ImageList_GetImageCount(Images(host)), 2);
}

TEST(IconGridMessages, SmallBitmapKeepsItsSizeCentred) {
    GridHost host;
    const int side = SlotSize(Images(host)), mid = side / 2;
    AddBitmap(host, 10, 10, kRed);
    EXPECT_EQ(ImagePixel(Images(host), 0, mid, mid), kRed);
    EXPECT_EQ(ImagePixel(Images(host), 0, mid - 7, mid), kWhite);
    EXPECT_EQ(ImagePixel(Images(host), 0, 0, 0), kWhite);
}

TEST(IconGridMessages, LargeBitmapFillsTheSlotKeepingItsShape) {
    GridHost host;
    const int side = SlotSize(Images(host)), mid = side / 2;
    AddBitmap(host, 400, 200, kBlue); // half as high as wide
    EXPECT_EQ(ImagePixel(Images(host), 0, 0, mid), kBlue);
    EXPECT_EQ(ImagePixel(Images(host), 0, side - 1, mid), kBlue);
    EXPECT_EQ(ImagePixel(Images(host), 0, mid, side / 8), kWhite);
    EXPECT_EQ(ImagePixel(Images(host), 0, mid, side - 1 - side / 8), kWhite);
}

TEST(IconGridMessages, MaskColouredPixelsBecomeTransparent) {
    GridHost host;
    const int mid = SlotSize(Images(host)) / 2;
    AddBitmap(host, 10, 10, kGridMaskColor); // magenta
    EXPECT_EQ(ImagePixel(Images(host), 0, mid, mid), kWhite);
}

TEST(IconGridMessages, SetColumnsShowsTheScrollBarWithoutRepainting) {
    GridHost host;
    host.FillGrid(30, 0);
    ASSERT_FALSE(host.HasScrollBar());
    EXPECT_EQ(host.Send(GRM_SETCOLUMNS, 3), 0);
    EXPECT_TRUE(host.HasScrollBar());
    host.Paint();
    host.Send(GRM_SETCOLUMNS, 4); // the bar stays: no frame change, nothing to paint
    EXPECT_FALSE(HasUpdate(host.grid));
}

TEST(IconGridMessages, GridWantsArrowKeys) {
    GridHost host;
    EXPECT_EQ(host.Send(WM_GETDLGCODE), DLGC_WANTARROWS);
}
