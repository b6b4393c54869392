// The grid's scroll bar, keys and pen, and the notifications they send.
#include <algorithm>

#include "platform/shell.h"
#include "store/scale.h"
#include "ui/icon_grid.h"
#include "ui/icon_grid_state.h"

namespace cv2 {
namespace {

WPARAM NotifyWParam(const GridState& s, WORD code) {
    return MAKEWPARAM(code, static_cast<WORD>(GetDlgCtrlID(s.hwnd)));
}

bool HasScrollBar(HWND hwnd) {
    return (GetWindowLongW(hwnd, GWL_STYLE) & WS_VSCROLL) != 0;
}

// Shows or hides the scroll bar through the window style, and lets the frame follow.
void SetScrollBarStyle(HWND hwnd, bool shown) {
    const LONG style = GetWindowLongW(hwnd, GWL_STYLE);
    SetWindowLongW(hwnd, GWL_STYLE, shown ? (style | WS_VSCROLL) : (style & ~WS_VSCROLL));
    SetWindowPos(hwnd, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

} // namespace

int GridRowHeight(const GridState& s) {
    if (s.view == 0)
        return std::max(1, ScaleX(kThumbRow));
    SIZE text = {};
    s.font.Measure(L"Wg", &text);
    int pictureHeight = 0;
    if (s.images) {
        int cx = 0;
        ImageList_GetIconSize(s.images, &cx, &pictureHeight);
    }
    return std::max<int>({1, static_cast<int>(text.cy), pictureHeight + ScaleX(2)});
}

GridGeometry GridLayout(const GridState& s) {
    RECT client = {};
    GetClientRect(s.hwnd, &client);
    GridGeometry g;
    g.list = s.view != 0;
    g.columns = s.columns;
    g.rowHeight = GridRowHeight(s);
    g.clientWidth = client.right;
    g.clientHeight = client.bottom;
    g.inset = g.list ? 0 : ScaleX(1);
    return g;
}

// A scroll bar already on screen keeps the range and page it was given until it is hidden
// again; only showing or hiding it applies new values.
void UpdateGridScrollBar(GridState& s) {
    const GridScroll extent = GridScrollExtent(GridLayout(s), s.Count());
    SCROLLINFO si = {};
    si.cbSize = sizeof si;
    si.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    si.nMin = 0;
    si.nMax = extent.max;
    si.nPage = static_cast<UINT>(extent.page);
    si.nPos = 0;
    if (GridScrollFits(extent)) {
        if (HasScrollBar(s.hwnd)) {
            SetScrollInfo(s.hwnd, SB_VERT, &si, TRUE);
            SetScrollBarStyle(s.hwnd, false);
        }
    } else if (!HasScrollBar(s.hwnd)) {
        SetScrollBarStyle(s.hwnd, true);
        SetScrollInfo(s.hwnd, SB_VERT, &si, TRUE);
    }
}

void OnGridScroll(GridState& s, int code) {
    SCROLLINFO si = {};
    si.cbSize = sizeof si;
    si.fMask = SIF_ALL;
    if (!GetScrollInfo(s.hwnd, SB_VERT, &si))
        return;
    const GridGeometry g = GridLayout(s);
    long long pos = si.nPos;
    switch (code) {
    case SB_LINEUP:
        pos -= g.rowHeight;
        break;
    case SB_LINEDOWN:
        pos += g.rowHeight;
        break;
    case SB_PAGEUP:
        pos -= si.nPage;
        break;
    case SB_PAGEDOWN:
        pos += si.nPage;
        break;
    case SB_THUMBTRACK:
        pos = si.nTrackPos;
        break;
    case SB_TOP:
        pos = si.nMin;
        break;
    case SB_BOTTOM:
        pos = si.nMax;
        break;
    default:
        return; // the thumb's release position is ignored: tracking already went there
    }
    SCROLLINFO set = {};
    set.cbSize = sizeof set;
    set.fMask = SIF_POS;
    set.nPos = static_cast<int>(std::max<long long>(si.nMin, std::min<long long>(si.nMax, pos)));
    SetScrollInfo(s.hwnd, SB_VERT, &set, TRUE);
    const int now = GetScrollPos(s.hwnd, SB_VERT);
    if (now == si.nPos)
        return;
    s.firstVisible = GridFirstVisibleAt(g, now);
    InvalidateRect(s.hwnd, nullptr, TRUE);
}

void SendGridNotify(const GridState& s, WORD code) {
    SendMessageW(GetParent(s.hwnd), WM_COMMAND, NotifyWParam(s, code),
                 reinterpret_cast<LPARAM>(s.hwnd));
}

void PostGridNotify(const GridState& s, WORD code) {
    PostMessageW(GetParent(s.hwnd), WM_COMMAND, NotifyWParam(s, code),
                 reinterpret_cast<LPARAM>(s.hwnd));
}

void InvalidateGridItem(const GridState& s, int index) {
    const GridGeometry g = GridLayout(s);
    const int first = std::max(0, s.firstVisible);
    if (!s.Valid(index) || index < first || index >= GridPaintEnd(g, first, s.Count()))
        return;
    const GridRect r = GridCellRect(g, first, index);
    const RECT cell = {r.left, r.top, r.right, r.bottom};
    InvalidateRect(s.hwnd, &cell, FALSE);
}

void SetGridCurrent(GridState& s, int index) {
    const int old = s.current;
    s.current = index;
    if (!s.selectionDecoupled) {
        if (s.Valid(old))
            s.items[static_cast<size_t>(old)].selected = false;
        if (s.Valid(index))
            s.items[static_cast<size_t>(index)].selected = true;
    }
    InvalidateGridItem(s, old);
    InvalidateGridItem(s, index);
    SendGridNotify(s, GRN_CURRENTCHANGED);
}

int GridHitTest(const GridState& s, POINT pt) {
    const int first = std::max(0, s.firstVisible);
    const int end = GridPaintEnd(GridLayout(s), first, s.Count());
    for (int i = first; i < end; ++i) {
        if (PtInRect(&s.items[static_cast<size_t>(i)].cell, pt))
            return i;
    }
    return -1;
}

void OnGridKeyDown(GridState& s, WPARAM key) {
    GridKey direction;
    switch (key) {
    case VK_UP:
        direction = GridKey::Up;
        break;
    case VK_DOWN:
        direction = GridKey::Down;
        break;
    case VK_LEFT:
        direction = GridKey::Left;
        break;
    case VK_RIGHT:
        direction = GridKey::Right;
        break;
    default:
        return;
    }
    const GridGeometry g = GridLayout(s);
    const int next = GridMoveCurrent(g, direction, s.current, s.Count());
    if (next == s.current)
        return;
    // Keep the new current item in view, one line at a time.
    const int first = std::max(0, s.firstVisible);
    if (next >= GridFirstBelowView(g, first))
        SendMessageW(s.hwnd, WM_VSCROLL, SB_LINEDOWN, 0);
    else if (next < first)
        SendMessageW(s.hwnd, WM_VSCROLL, SB_LINEUP, 0);
    SetGridCurrent(s, next);
}

void OnGridKeyUp(GridState& s, WPARAM key) {
    if (key == VK_RETURN && s.current != -1)
        SendGridNotify(s, GRN_ACTIVATED);
}

// With tap-and-hold on, the shell decides between a hold (context menu) and a plain tap. For a
// tap, the messages already queued for the grid are let through until the pen-up has been seen
// over the current item, and the activation is then posted.
void OnGridPenDown(HWND hwnd, POINT pt) {
    GridState* s = GridStateOf(hwnd);
    SetFocus(hwnd);
    s = GridStateOf(hwnd);
    if (!s)
        return;
    s->pressed = -1;
    const int hit = GridHitTest(*s, pt);
    if (hit != -1)
        SetGridCurrent(*s, hit);
    s = GridStateOf(hwnd);
    if (!s || !s->hold)
        return;
    SHRGINFO info = {sizeof info, hwnd, pt, SHRG_RETURNCMD};
    if (SHRecognizeGesture(&info) == GN_CONTEXTMENU) {
        PostGridNotify(*s, GRN_HOLD);
        return;
    }
    MSG msg;
    while ((s = GridStateOf(hwnd)) != nullptr && s->pressed == -1 &&
           PeekMessageW(&msg, hwnd, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    if (s && s->pressed != -1)
        PostGridNotify(*s, GRN_ACTIVATED);
}

void OnGridPenUp(GridState& s, POINT pt) {
    const int hit = GridHitTest(s, pt);
    if (hit == -1 || hit != s.current)
        return;
    if (s.hold)
        s.pressed = hit;
    else
        SendGridNotify(s, GRN_ACTIVATED);
}

} // namespace cv2
