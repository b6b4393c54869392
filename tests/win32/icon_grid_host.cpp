#include "icon_grid_host.h"

#include <cwchar>

#include "store/screen.h"

namespace cv2test {
namespace {

const wchar_t kHostClass[] = L"IconGridTestParent";

// The grid being tested; the parent window outlives it.
GridHost* g_host = nullptr;

LRESULT CALLBACK HostProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    GridHost* host = g_host;
    if (host && msg == WM_COMMAND) {
        host->notices.push_back({cv2::GridNotifyCode(wParam), cv2::GridNotifyId(wParam),
                                 reinterpret_cast<HWND>(lParam), true});
        return 0;
    }
    if (host && msg == cv2::GRN_NEEDITEM) {
        const int index = static_cast<int>(wParam);
        host->requests.push_back(index);
        auto* desc = reinterpret_cast<cv2::GridItemDesc*>(lParam);
        if (host->supply) {
            host->supply(index, desc);
        } else {
            swprintf(desc->caption, 256, L"Item %d", index);
            desc->picture = -1;
        }
        return 0;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

void RegisterHost() {
    WNDCLASSW wc = {};
    HINSTANCE instance = GetModuleHandleW(nullptr);
    if (GetClassInfoW(instance, kHostClass, &wc))
        return;
    wc.lpfnWndProc = HostProc;
    wc.hInstance = instance;
    wc.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    wc.lpszClassName = kHostClass;
    RegisterClassW(&wc);
}

// One parent for the whole run: hiding or destroying a top-level window costs seconds under
// Wine on a bare X server (moving it off the screen too), a child costs nothing. Between grid
// tests the parent waits as one pixel below all other windows, so that it covers nothing that
// other tests show.
HWND SharedParent() {
    static HWND parent = nullptr;
    if (!IsWindow(parent)) {
        RegisterHost();
        parent = CreateWindowExW(0, kHostClass, L"grid host", WS_POPUP | WS_VISIBLE, 0, 0,
                                 GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                                 nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    }
    return parent;
}

void BringParent(HWND parent, bool inView) {
    if (inView) {
        SetWindowPos(parent, HWND_TOPMOST, 0, 0, GetSystemMetrics(SM_CXSCREEN),
                     GetSystemMetrics(SM_CYSCREEN), 0);
        return;
    }
    SetWindowPos(parent, HWND_NOTOPMOST, 0, 0, 1, 1, SWP_NOACTIVATE);
    SetWindowPos(parent, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
}

} // namespace

GridHost::GridHost(int width, int height, DWORD gridStyle) {
    cv2::ReadScreenDensities();
    cv2::RegisterIconGridClass(GetModuleHandleW(nullptr));
    const int w = cv2::ScaleX(width), h = cv2::ScaleX(height);
    parent = SharedParent();
    BringParent(parent, true);
    g_host = this;
    grid = CreateWindowExW(0, cv2::kIconGridClass, L"", WS_CHILD | WS_VISIBLE | gridStyle, 0, 0, w,
                           h, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kGridId)),
                           GetModuleHandleW(nullptr), nullptr);
    Pump();
}

GridHost::~GridHost() {
    if (grid)
        DestroyWindow(grid);
    Pump();
    g_host = nullptr;
    BringParent(parent, false);
}

LRESULT GridHost::Add(const std::wstring& caption, int picture) const {
    cv2::GridItemDesc desc = {};
    wcsncpy(desc.caption, caption.c_str(), 255);
    desc.picture = picture;
    return Send(cv2::GRM_ADDITEM, 0, reinterpret_cast<LPARAM>(&desc));
}

// The columns come last: a scroll bar shown while items arrive one by one would keep the range
// it had when it appeared.
void GridHost::FillGrid(int count, int columns) {
    Send(cv2::GRM_SETVIEW, 0, 0);
    Send(cv2::GRM_SETCOLUMNS, 0);
    for (int i = 0; i < count; ++i)
        Add(L"Item " + std::to_wstring(i));
    Send(cv2::GRM_SETCOLUMNS, static_cast<WPARAM>(columns));
    Paint();
}

void GridHost::DemandGrid(int count, int columns) {
    Send(cv2::GRM_SETVIEW, 0, 1);
    Send(cv2::GRM_SETCOLUMNS, static_cast<WPARAM>(columns));
    Send(cv2::GRM_SETCOUNT, static_cast<WPARAM>(count));
    Paint();
}

void GridHost::FillList(int count) {
    Send(cv2::GRM_SETVIEW, 1, 0);
    for (int i = 0; i < count; ++i)
        Add(L"Item " + std::to_wstring(i));
    Paint();
}

int GridHost::DemandList(int count) {
    Send(cv2::GRM_SETVIEW, 1, 1);
    Send(cv2::GRM_SETCOUNT, static_cast<WPARAM>(count));
    Paint();
    SCROLLINFO si = {};
    si.cbSize = sizeof si;
    si.fMask = SIF_RANGE;
    GetScrollInfo(grid, SB_VERT, &si);
    return si.nMax / (count + 1); // the range holds one row more than the items
}

// Notices posted to the parent are taken from the queue here and recorded as posted; the parent's
// window procedure sees only sent ones.
void GridHost::Pump() {
    const DWORD end = GetTickCount() + 50;
    do {
        MSG msg;
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (msg.hwnd == parent && msg.message == WM_COMMAND) {
                notices.push_back({cv2::GridNotifyCode(msg.wParam), cv2::GridNotifyId(msg.wParam),
                                   reinterpret_cast<HWND>(msg.lParam), false});
                continue;
            }
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        Sleep(10);
    } while (static_cast<LONG>(end - GetTickCount()) > 0);
}

void GridHost::Paint() {
    UpdateWindow(grid);
    Pump();
}

void GridHost::Tap(int x, int y) const {
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void GridHost::Key(WPARAM key) const {
    Send(WM_KEYDOWN, key, 1);
    Send(WM_KEYUP, key, 0xC0000001);
}

RECT GridHost::Client() const {
    RECT r;
    GetClientRect(grid, &r);
    return r;
}

POINT GridHost::CellCentre(int row, int column, int columns) const {
    const int width = Client().right / columns, height = cv2::ScaleX(75);
    return {column * width + width / 2, row * height + height / 2};
}

std::wstring GridHost::Text(int index) const {
    const LRESULT length = Send(cv2::GRM_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length <= 0)
        return L"<none>";
    std::wstring text(static_cast<size_t>(length), L'?');
    Send(cv2::GRM_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&text[0]));
    text.resize(static_cast<size_t>(length) - 1);
    return text;
}

int GridHost::Codes(WORD code) const {
    int n = 0;
    for (const GridNotice& notice : notices)
        n += notice.code == code ? 1 : 0;
    return n;
}

HBITMAP SolidBitmap(int width, int height, COLORREF color) {
    HDC screen = GetDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    HDC mem = CreateCompatibleDC(screen);
    HGDIOBJ old = SelectObject(mem, bitmap);
    const RECT r = {0, 0, width, height};
    HBRUSH brush = CreateSolidBrush(color);
    FillRect(mem, &r, brush);
    DeleteObject(brush);
    SelectObject(mem, old);
    DeleteDC(mem);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

COLORREF GridPixel(HWND grid, int x, int y) {
    HDC dc = GetDC(grid);
    const COLORREF c = GetPixel(dc, x, y);
    ReleaseDC(grid, dc);
    return c;
}

// Draws picture `index` of `images` onto `ground` and reads the pixel at (x, y).
COLORREF ImagePixelOn(HIMAGELIST images, int index, int x, int y, COLORREF ground) {
    int side = 0, unused = 0;
    ImageList_GetIconSize(images, &side, &unused);
    HDC screen = GetDC(nullptr);
    HDC mem = CreateCompatibleDC(screen);
    HBITMAP canvas = CreateCompatibleBitmap(screen, side, side);
    HGDIOBJ old = SelectObject(mem, canvas);
    const RECT all = {0, 0, side, side};
    HBRUSH brush = CreateSolidBrush(ground);
    FillRect(mem, &all, brush);
    DeleteObject(brush);
    ImageList_Draw(images, index, mem, 0, 0, ILD_TRANSPARENT);
    const COLORREF c = GetPixel(mem, x, y);
    SelectObject(mem, old);
    DeleteObject(canvas);
    DeleteDC(mem);
    ReleaseDC(nullptr, screen);
    return c;
}

} // namespace cv2test
