// Painting the grid: thumbnail cells or list rows, asking the parent for items on demand.
#include <algorithm>

#include "store/scale.h"
#include "store/strings.h"
#include "ui/icon_grid.h"
#include "ui/icon_grid_state.h"

namespace cv2 {
namespace {

constexpr COLORREF kGridLine = 0x00BDBEBD;
// Selected items: light blue at the top to dark blue at the bottom.
constexpr COLORREF kSelectedTop = 0x00FF7B63;
constexpr COLORREF kSelectedBottom = 0x009C2942;

constexpr UINT kThumbCaption =
    DT_BOTTOM | DT_CENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;
constexpr UINT kLoading = DT_VCENTER | DT_CENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;
constexpr UINT kListCaption = DT_VCENTER | DT_LEFT | DT_SINGLELINE | DT_NOPREFIX;

RECT ToRect(const GridRect& r) {
    return {r.left, r.top, r.right, r.bottom};
}

TRIVERTEX Vertex(LONG x, LONG y, COLORREF c) {
    TRIVERTEX v = {};
    v.x = x;
    v.y = y;
    v.Red = static_cast<COLOR16>(GetRValue(c) << 8);
    v.Green = static_cast<COLOR16>(GetGValue(c) << 8);
    v.Blue = static_cast<COLOR16>(GetBValue(c) << 8);
    return v;
}

// The gradient is made in a 16-bit bitmap of the cell's size, the depth the device's screen has,
// so it bands the same way there and here.
void FillSelected(HDC dc, const RECT& cell) {
    const int w = cell.right - cell.left, h = cell.bottom - cell.top;
    if (w <= 0 || h <= 0)
        return;
    HBITMAP bitmap = CreateGridBitmap(dc, w, h, 16);
    HDC mem = CreateCompatibleDC(dc);
    if (bitmap && mem) {
        HGDIOBJ old = SelectObject(mem, bitmap);
        TRIVERTEX v[2] = {Vertex(0, 0, kSelectedTop), Vertex(w, h, kSelectedBottom)};
        GRADIENT_RECT span = {0, 1};
        GradientFill(mem, v, 2, &span, 1, GRADIENT_FILL_RECT_V);
        BitBlt(dc, cell.left, cell.top, w, h, mem, 0, 0, SRCCOPY);
        SelectObject(mem, old);
    }
    if (mem)
        DeleteDC(mem);
    if (bitmap)
        DeleteObject(bitmap);
}

void FillSolid(HDC dc, const RECT& r, COLORREF color) {
    const COLORREF old = SetBkColor(dc, color);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &r, nullptr, 0, nullptr);
    SetBkColor(dc, old);
}

void DrawBackground(const GridState& s, HDC dc, const RECT& cell, int index) {
    if (s.items[static_cast<size_t>(index)].selected)
        FillSelected(dc, cell);
    else
        FillSolid(dc, cell, s.backColor);
    if (index == s.current)
        DrawFocusRect(dc, &cell);
}

SIZE PictureSize(const GridState& s) {
    SIZE size = {};
    if (s.images) {
        int cx = 0, cy = 0;
        ImageList_GetIconSize(s.images, &cx, &cy);
        size = {cx, cy};
    }
    return size;
}

void DrawPicture(const GridState& s, HDC dc, int picture, int x, int y) {
    if (s.images && picture >= 0 && picture < ImageList_GetImageCount(s.images))
        ImageList_Draw(s.images, picture, dc, x, y, ILD_TRANSPARENT);
}

// Selected captions are drawn in the highlight text colour, which is white like the thumbnail
// glow; they glow in the selection's dark blue instead, or the text would vanish into its glow.
void DrawItemText(GridState& s, HDC dc, const std::wstring& text, const RECT& r, UINT flags,
                  bool selected) {
    s.font.color = selected ? GetSysColor(COLOR_HIGHLIGHTTEXT) : s.textColor;
    const COLORREF glow = s.font.shadowColor;
    if (selected)
        s.font.shadowColor = kSelectedBottom;
    RECT box = r;
    s.font.Draw(dc, text.c_str(), &box, flags, true);
    s.font.shadowColor = glow;
}

// Asks the parent for an item's caption and picture. The parent may do anything meanwhile, even
// empty or destroy the grid: the state is looked up again afterwards and null means stop.
GridState* FetchItem(HWND hwnd, int index) {
    if (GridState* s = GridStateOf(hwnd))
        s->items[static_cast<size_t>(index)].fetched = true;
    GridItemDesc desc = {};
    desc.picture = -1;
    SendMessageW(GetParent(hwnd), GRN_NEEDITEM, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&desc));
    GridState* s = GridStateOf(hwnd);
    if (!s || !s->Valid(index))
        return nullptr;
    desc.caption[255] = 0;
    GridItem& item = s->items[static_cast<size_t>(index)];
    item.caption = desc.caption;
    item.picture = desc.picture;
    item.fetched = true;
    return s;
}

void Line(HDC dc, int x1, int y1, int x2, int y2) {
    const POINT points[2] = {{x1, y1}, {x2, y2}};
    Polyline(dc, points, 2);
}

void DrawGridLines(HDC dc, const GridGeometry& g) {
    HPEN pen = CreatePen(PS_SOLID, 1, kGridLine);
    HGDIOBJ old = SelectObject(dc, pen);
    if (g.columns > 0) {
        const int width = g.clientWidth / g.columns;
        const int last = std::min(g.columns - 1, g.clientWidth);
        for (int i = 1; i <= last; ++i)
            Line(dc, i * width, 0, i * width, g.clientHeight);
    }
    for (int j = 1; j <= g.clientHeight / g.rowHeight; ++j)
        Line(dc, 0, j * g.rowHeight, g.clientWidth, j * g.rowHeight);
    SelectObject(dc, old);
    DeleteObject(pen);
}

void DrawThumbnail(GridState& s, HDC dc, const RECT& cell, int index) {
    DrawBackground(s, dc, cell, index);
    const GridItem& item = s.items[static_cast<size_t>(index)];
    const SIZE picture = PictureSize(s);
    DrawPicture(s, dc, item.picture, cell.left + (cell.right - cell.left - picture.cx) / 2,
                cell.top);
    // The glow reaches 2 pixels below the text: keep it off the grid line.
    RECT caption = cell;
    caption.bottom -= (s.font.style & kFontGlow) ? 2 : 0;
    DrawItemText(s, dc, item.caption, caption, kThumbCaption, item.selected);
}

void DrawListRow(GridState& s, HDC dc, const RECT& row, int index) {
    DrawBackground(s, dc, row, index);
    const GridItem& item = s.items[static_cast<size_t>(index)];
    const SIZE picture = PictureSize(s);
    DrawPicture(s, dc, item.picture, row.left + ScaleX(2), row.top);
    RECT text = row;
    text.left = ScaleX(4) + picture.cx;
    DrawItemText(s, dc, item.caption, text, kListCaption, item.selected);
}

void PaintItems(HWND hwnd, HDC dc, const RECT& update) {
    GridState* s = GridStateOf(hwnd);
    const GridGeometry g = GridLayout(*s);
    if (!g.list) {
        DrawGridLines(dc, g);
        if (g.columns <= 0)
            return;
    }
    const int first = std::max(0, s->firstVisible);
    const int end = GridPaintEnd(g, first, s->Count());
    for (int i = first; i < end && i < s->Count(); ++i) {
        const RECT cell = ToRect(GridCellRect(g, first, i));
        s->items[static_cast<size_t>(i)].cell = cell;
        RECT overlap;
        if (!IntersectRect(&overlap, &cell, &update))
            continue;
        if (s->onDemand && !s->items[static_cast<size_t>(i)].fetched) {
            // Shown while the parent prepares the picture; the item is drawn over it after.
            if (!g.list)
                DrawItemText(*s, dc, Localized(IDS_GRID_LOADING), cell, kLoading, false);
            if (!(s = FetchItem(hwnd, i)))
                return;
        }
        if (g.list)
            DrawListRow(*s, dc, cell, i);
        else
            DrawThumbnail(*s, dc, cell, i);
    }
}

} // namespace

void EraseGrid(const GridState& s, HDC dc) {
    RECT client;
    GetClientRect(s.hwnd, &client);
    FillSolid(dc, client, s.backColor);
}

void PaintGrid(HWND hwnd) {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(hwnd, &ps);
    if (GridStateOf(hwnd))
        PaintItems(hwnd, dc, ps.rcPaint);
    EndPaint(hwnd, &ps);
}

} // namespace cv2
