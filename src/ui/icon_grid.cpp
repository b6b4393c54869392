// The grid's window procedure and its private messages.
#include "ui/icon_grid.h"

#include <algorithm>

#include "store/scale.h"
#include "store/screen.h"
#include "ui/icon_grid_state.h"

namespace cv2 {
namespace {

// A parent may ask for any count; beyond this the items would not fit in memory on a device, and
// a request for more is held to it rather than failing the allocation.
constexpr int kMaxItems = 1000000;

constexpr COLORREF kGlowWhite = 0xFFFFFF;

void RemoveOwnedImages(GridState& s) {
    if (s.images && s.ownsImages)
        ImageList_RemoveAll(s.images);
}

void ClearItems(GridState& s) {
    s.items.clear();
    s.items.shrink_to_fit();
    s.firstVisible = 0;
    s.current = -1;
}

void Repaint(const GridState& s, bool erase) {
    InvalidateRect(s.hwnd, nullptr, erase);
}

// Thumbnails glow white so captions stay legible over pictures; the list is plain.
void SetCaptionStyle(GridState& s) {
    if (s.view == 0) {
        s.font.style |= kFontGlow;
        s.font.shadowColor = kGlowWhite;
    } else {
        s.font.style &= ~static_cast<uint32_t>(kFontGlow);
    }
}

LRESULT OnCreate(HWND hwnd) {
    GridState* s = new GridState;
    s->hwnd = hwnd;
    s->textColor = GetSysColor(COLOR_WINDOWTEXT);
    s->backColor = GetSysColor(COLOR_WINDOW);
    s->font.Create(L"Tahoma", 6, 0, true);
    SetCaptionStyle(*s);
    s->images = CreateGridImageList(s->view);
    // The pointer-sized form of the user-data slot: a 64-bit desktop pointer needs it.
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(s));
    return 0;
}

void OnDestroy(HWND hwnd) {
    GridState* s = GridStateOf(hwnd);
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
    if (!s)
        return;
    if (s->images && s->ownsImages)
        ImageList_Destroy(s->images);
    delete s;
}

LRESULT OnSetView(GridState& s, WPARAM wParam, LPARAM lParam) {
    const int view = wParam ? 1 : 0;
    const bool onDemand = lParam != 0;
    const bool viewChanged = view != s.view;
    s.view = view;
    SetCaptionStyle(s);
    if (onDemand != s.onDemand) {
        s.onDemand = onDemand;
        ClearItems(s);
        RemoveOwnedImages(s);
        UpdateGridScrollBar(s);
    } else if (viewChanged && s.items.empty() && s.ownsImages) {
        // Picture slots follow the view: thumbnails or small icons.
        if (s.images)
            ImageList_Destroy(s.images);
        s.images = CreateGridImageList(view);
    }
    Repaint(s, true);
    return 0;
}

LRESULT OnSetColors(GridState& s, WPARAM wParam, LPARAM lParam) {
    s.textColor = static_cast<COLORREF>(wParam);
    s.backColor = static_cast<COLORREF>(lParam);
    // The image list keeps its mask colour: were it the background, a picture's pixels of that
    // colour (white on the window colour) would turn transparent and show a selected cell's blue.
    return 0;
}

LRESULT OnSetCount(GridState& s, WPARAM wParam) {
    if (!s.onDemand)
        return 0;
    const int count = static_cast<int>(std::min<WPARAM>(wParam, kMaxItems));
    s.items.assign(static_cast<size_t>(count), GridItem());
    UpdateGridScrollBar(s);
    Repaint(s, true);
    return count;
}

LRESULT OnAddItem(GridState& s, LPARAM lParam) {
    const auto* desc = reinterpret_cast<const GridItemDesc*>(lParam);
    if (s.onDemand || !desc || s.Count() >= kMaxItems)
        return s.onDemand ? 0 : -1;
    GridItem item;
    item.caption.assign(desc->caption, std::find(desc->caption, desc->caption + 255, L'\0'));
    item.picture = desc->picture;
    s.items.push_back(std::move(item));
    UpdateGridScrollBar(s);
    InvalidateGridItem(s, s.Count() - 1);
    return s.items.empty() ? -1 : s.Count() - 1;
}

// Positions count from 1 here, unlike every other message: callers pass index + 1.
LRESULT OnDeleteItem(GridState& s, WPARAM wParam) {
    if (s.onDemand)
        return 0;
    const long long index = static_cast<long long>(wParam) - 1;
    if (index >= 0 && index < s.Count())
        s.items.erase(s.items.begin() + static_cast<ptrdiff_t>(index));
    while (s.current >= s.Count())
        --s.current;
    while (s.firstVisible > 0 && s.firstVisible >= s.Count())
        --s.firstVisible;
    UpdateGridScrollBar(s);
    Repaint(s, true);
    return 0;
}

LRESULT OnDeleteAll(GridState& s) {
    ClearItems(s);
    RemoveOwnedImages(s);
    UpdateGridScrollBar(s);
    Repaint(s, true);
    return 0;
}

LRESULT OnSetSel(GridState& s, WPARAM wParam) {
    const long long index = static_cast<long long>(wParam);
    for (size_t i = 0; i < s.items.size(); ++i)
        s.items[i].selected = static_cast<long long>(i) == index;
    return 0;
}

LRESULT OnGetSel(const GridState& s) {
    for (size_t i = 0; i < s.items.size(); ++i) {
        if (s.items[i].selected)
            return static_cast<LRESULT>(i);
    }
    return -1;
}

const GridItem* ItemAt(const GridState& s, WPARAM wParam) {
    return wParam < s.items.size() ? &s.items[wParam] : nullptr;
}

LRESULT OnGetText(const GridState& s, WPARAM wParam, LPARAM lParam, bool copy) {
    const GridItem* item = ItemAt(s, wParam);
    if (!item)
        return 0;
    if (copy) {
        auto* buffer = reinterpret_cast<wchar_t*>(lParam);
        if (!buffer)
            return 0;
        std::copy(item->caption.c_str(), item->caption.c_str() + item->caption.size() + 1, buffer);
    }
    return static_cast<LRESULT>(item->caption.size() + 1);
}

LRESULT OnSetImageList(GridState& s, LPARAM lParam) {
    if (s.images && s.ownsImages)
        ImageList_Destroy(s.images);
    s.images = reinterpret_cast<HIMAGELIST>(lParam);
    s.ownsImages = false;
    Repaint(s, true);
    return 0;
}

LRESULT OnSetColumns(GridState& s, WPARAM wParam) {
    s.columns = static_cast<int>(std::min<WPARAM>(wParam, kMaxItems));
    UpdateGridScrollBar(s);
    return 0;
}

// The private messages; false when `msg` is not one of them.
bool OnGridMessage(GridState& s, UINT msg, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (msg) {
    case GRM_SETVIEW:
        result = OnSetView(s, wParam, lParam);
        return true;
    case GRM_SETCOLORS:
        result = OnSetColors(s, wParam, lParam);
        return true;
    case GRM_SETCOUNT:
        result = OnSetCount(s, wParam);
        return true;
    case GRM_ADDITEM:
        result = OnAddItem(s, lParam);
        return true;
    case GRM_DELETEITEM:
        result = OnDeleteItem(s, wParam);
        return true;
    case GRM_DELETEALL:
        result = OnDeleteAll(s);
        return true;
    case GRM_SETSEL:
        result = OnSetSel(s, wParam);
        return true;
    case GRM_GETSEL:
        result = OnGetSel(s);
        return true;
    case GRM_GETTEXTLEN:
        result = OnGetText(s, wParam, 0, false);
        return true;
    case GRM_GETTEXT:
        result = OnGetText(s, wParam, lParam, true);
        return true;
    case GRM_SETIMAGELIST:
        result = OnSetImageList(s, lParam);
        return true;
    case GRM_GETIMAGELIST:
        result = reinterpret_cast<LRESULT>(s.images);
        return true;
    case GRM_ADDBITMAP:
        result = AddGridBitmap(s.images, reinterpret_cast<HBITMAP>(lParam));
        return true;
    case GRM_SETCOLUMNS:
        result = OnSetColumns(s, wParam);
        return true;
    case GRM_ENABLEHOLD:
        s.hold = wParam == 1;
        result = 0;
        return true;
    }
    return false;
}

POINT PointOf(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

LRESULT CALLBACK GridProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_CREATE)
        return OnCreate(hwnd);
    GridState* s = GridStateOf(hwnd);
    if (!s)
        return DefWindowProcW(hwnd, msg, wParam, lParam);
    LRESULT result = 0;
    if (OnGridMessage(*s, msg, wParam, lParam, result))
        return result;
    switch (msg) {
    case WM_DESTROY:
        OnDestroy(hwnd);
        return 0;
    case WM_SIZE:
        UpdateGridScrollBar(*s);
        return 0;
    case WM_SETFOCUS:
        return 0;
    case WM_PAINT:
        PaintGrid(hwnd);
        return 0;
    case WM_ERASEBKGND:
        EraseGrid(*s, reinterpret_cast<HDC>(wParam));
        return 1;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS;
    case WM_KEYDOWN:
        OnGridKeyDown(*s, wParam);
        return 0;
    case WM_KEYUP:
        OnGridKeyUp(*s, wParam);
        return 0;
    case WM_VSCROLL:
        OnGridScroll(*s, LOWORD(wParam));
        return 0;
    case WM_LBUTTONDOWN:
        OnGridPenDown(hwnd, PointOf(lParam));
        return 0;
    case WM_LBUTTONUP:
        OnGridPenUp(*s, PointOf(lParam));
        return 0;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

} // namespace

GridState* GridStateOf(HWND hwnd) {
    return reinterpret_cast<GridState*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
}

bool RegisterIconGridClass(HINSTANCE instance) {
    ReadScreenDensities();
    WNDCLASSW wc = {};
    if (GetClassInfoW(instance, kIconGridClass, &wc))
        return true;
    wc.lpfnWndProc = GridProc;
    wc.hInstance = instance;
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = kIconGridClass;
    return RegisterClassW(&wc) != 0;
}

} // namespace cv2
