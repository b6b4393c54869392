// What the grid tells its parent: WM_COMMAND notices and on-demand item requests.
#include <gtest/gtest.h>

#include <cwchar>

#include "icon_grid_host.h"

using namespace cv2;
using namespace cv2test;

namespace {

// Pixels that read as the red text colour.
bool HasRedPixel(HWND grid, const RECT& r) {
    for (int y = r.top; y < r.bottom; ++y) {
        for (int x = r.left; x < r.right; ++x) {
            const COLORREF c = GridPixel(grid, x, y);
            if (GetRValue(c) > 180 && GetGValue(c) < 90 && GetBValue(c) < 90)
                return true;
        }
    }
    return false;
}

} // namespace

TEST(IconGridNotify, CurrentChangeIsSentWithIdInTheHighWord) {
    GridHost host;
    host.FillGrid(3, 3);
    host.Key(VK_RIGHT);
    ASSERT_EQ(host.notices.size(), 1u);
    const GridNotice& n = host.notices[0];
    EXPECT_EQ(n.code, GRN_CURRENTCHANGED);
    EXPECT_EQ(n.id, kGridId);
    EXPECT_EQ(n.from, host.grid);
    EXPECT_TRUE(n.sent);
}

TEST(IconGridNotify, TapSendsCurrentChangeThenActivationOnPenUp) {
    GridHost host;
    host.FillGrid(3, 3);
    const POINT p = host.CellCentre(0, 1, 3);
    host.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(p.x, p.y));
    ASSERT_EQ(host.notices.size(), 1u);
    EXPECT_EQ(host.notices[0].code, GRN_CURRENTCHANGED);
    host.Send(WM_LBUTTONUP, 0, MAKELPARAM(p.x, p.y));
    ASSERT_EQ(host.notices.size(), 2u);
    EXPECT_EQ(host.notices[1].code, GRN_ACTIVATED);
    EXPECT_EQ(host.notices[1].id, kGridId);
    EXPECT_TRUE(host.notices[1].sent);
}

TEST(IconGridNotify, TapTakesTheFocus) {
    GridHost host;
    host.FillGrid(3, 3);
    SetFocus(host.parent);
    const POINT p = host.CellCentre(0, 0, 3);
    host.Tap(p.x, p.y);
    EXPECT_EQ(GetFocus(), host.grid);
}

TEST(IconGridNotify, PenUpOverAnotherItemActivatesNothing) {
    GridHost host;
    host.FillGrid(3, 3);
    const POINT down = host.CellCentre(0, 0, 3), up = host.CellCentre(0, 2, 3);
    host.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(down.x, down.y));
    host.Send(WM_LBUTTONUP, 0, MAKELPARAM(up.x, up.y));
    host.Pump();
    EXPECT_EQ(host.Codes(GRN_ACTIVATED), 0);
    EXPECT_EQ(host.Send(GRM_GETSEL), 0);
}

TEST(IconGridNotify, HoldPostsContextNoticeWithTheTappedItemCurrent) {
    GridHost host;
    host.FillGrid(3, 3);
    host.Send(GRM_ENABLEHOLD, 1);
    const POINT p = host.CellCentre(0, 2, 3);
    host.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(p.x, p.y)); // held: no pen-up follows
    EXPECT_EQ(host.Codes(GRN_HOLD), 0);                          // posted, not yet seen
    host.Pump();
    ASSERT_EQ(host.Codes(GRN_HOLD), 1);
    EXPECT_FALSE(host.notices.back().sent);
    EXPECT_EQ(host.notices.back().id, kGridId);
    EXPECT_EQ(host.Codes(GRN_ACTIVATED), 0);
    EXPECT_EQ(host.Send(GRM_GETSEL), 2);
}

TEST(IconGridNotify, TapWithHoldEnabledPostsActivation) {
    GridHost host;
    host.FillGrid(3, 3);
    host.Send(GRM_ENABLEHOLD, 1);
    const POINT p = host.CellCentre(0, 1, 3);
    PostMessageW(host.grid, WM_LBUTTONUP, 0, MAKELPARAM(p.x, p.y)); // the pen lifts at once
    host.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(p.x, p.y));
    host.Pump();
    EXPECT_EQ(host.Codes(GRN_HOLD), 0);
    ASSERT_EQ(host.Codes(GRN_ACTIVATED), 1);
    EXPECT_FALSE(host.notices.back().sent);
}

TEST(IconGridNotify, PenUpWithHoldEnabledOnlyRecordsThePress) {
    GridHost host;
    host.FillGrid(3, 3);
    const POINT p = host.CellCentre(0, 1, 3);
    host.Tap(p.x, p.y); // current item, hold still off
    host.Send(GRM_ENABLEHOLD, 1);
    host.notices.clear();
    host.Send(WM_LBUTTONUP, 0, MAKELPARAM(p.x, p.y));
    host.Pump();
    EXPECT_TRUE(host.notices.empty());
}

TEST(IconGridNotify, EnableHoldTakesOnlyOne) {
    GridHost host;
    host.FillGrid(3, 3);
    host.Send(GRM_ENABLEHOLD, 1);
    EXPECT_EQ(host.Send(GRM_ENABLEHOLD, 2), 0);
    const POINT p = host.CellCentre(0, 1, 3);
    host.Tap(p.x, p.y); // an ordinary tap: activation sent at once
    ASSERT_EQ(host.Codes(GRN_ACTIVATED), 1);
    EXPECT_TRUE(host.notices.back().sent);
}

TEST(IconGridNotify, OnDemandAsksOnlyForItemsInView) {
    GridHost host; // three rows of three
    host.DemandGrid(100000, 3);
    const std::vector<int> expected = {0, 1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(host.requests, expected);
}

TEST(IconGridNotify, OnDemandAsksOncePerItem) {
    GridHost host;
    host.DemandGrid(50, 3);
    const size_t asked = host.requests.size();
    InvalidateRect(host.grid, nullptr, TRUE);
    host.Paint();
    EXPECT_EQ(host.requests.size(), asked);
    host.Send(WM_VSCROLL, SB_LINEDOWN); // items 2..10 in view: only 9 and 10 are new
    host.Paint();
    const std::vector<int> expected = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    EXPECT_EQ(host.requests, expected);
}

TEST(IconGridNotify, OnDemandItemTakesTheParentsCaption) {
    GridHost host;
    host.supply = [](int index, GridItemDesc* desc) {
        swprintf(desc->caption, 256, L"Photo %d.jpg", index * 10);
        desc->picture = -1;
    };
    host.DemandGrid(20, 3);
    EXPECT_EQ(host.Text(4), L"Photo 40.jpg");
    EXPECT_EQ(host.Text(15), L""); // never in view, never asked
}

TEST(IconGridNotify, ListAsksOnDemandToo) {
    GridHost host;
    host.Send(GRM_SETVIEW, 1, 1);
    host.Send(GRM_SETCOUNT, 1000);
    host.Paint();
    ASSERT_FALSE(host.requests.empty());
    EXPECT_EQ(host.requests.front(), 0);
    EXPECT_LT(host.requests.size(), 100u);
}

TEST(IconGridNotify, ThumbnailShowsLoadingWhileTheParentPrepares) {
    GridHost host;
    host.Send(GRM_SETCOLORS, RGB(255, 0, 0), RGB(255, 255, 255));
    bool seen = false;
    const POINT c = host.CellCentre(0, 0, 3);
    const RECT middle = {c.x - ScaleX(30), c.y - ScaleX(8), c.x + ScaleX(30), c.y + ScaleX(8)};
    host.supply = [&](int index, GridItemDesc* desc) {
        if (index == 0)
            seen = HasRedPixel(host.grid, middle);
        desc->caption[0] = 0;
        desc->picture = -1;
    };
    host.DemandGrid(3, 3);
    EXPECT_TRUE(seen);
    EXPECT_FALSE(HasRedPixel(host.grid, middle)); // drawn over by the (empty) item
}

TEST(IconGridNotify, ListShowsNoLoadingText) {
    GridHost host;
    host.Send(GRM_SETCOLORS, RGB(255, 0, 0), RGB(255, 255, 255));
    host.Send(GRM_SETVIEW, 1, 1);
    bool seen = true;
    host.supply = [&](int index, GridItemDesc* desc) {
        if (index == 0)
            seen = HasRedPixel(host.grid, {0, 0, ScaleX(200), ScaleX(14)});
        desc->caption[0] = 0;
        desc->picture = -1;
    };
    host.Send(GRM_SETCOUNT, 3);
    host.Paint();
    ASSERT_FALSE(host.requests.empty());
    EXPECT_FALSE(seen);
}

TEST(IconGridNotify, ParentEmptyingTheGridDuringARequestEndsThePaint) {
    GridHost host;
    host.supply = [&](int, GridItemDesc* desc) {
        desc->caption[0] = 0;
        desc->picture = -1;
        host.Send(GRM_DELETEALL);
    };
    host.DemandGrid(30, 3);
    EXPECT_EQ(host.requests.size(), 1u);
    EXPECT_EQ(host.Send(GRM_GETTEXTLEN, 0), 0);
}
