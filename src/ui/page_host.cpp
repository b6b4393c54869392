#include "ui/page_host.h"

#include "platform/device_colors.h"
#include "store/scale.h"
#include "store/screen.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

const COLORREF kHeaderLeft = 0xFFEFDE;
const COLORREF kHeaderRight = 0xE7AD84;
const int kPageBackground = 25; // the device's static-control background colour

// The host window's property that leads its after-paint timer back to the host.
const wchar_t kHostProperty[] = L"CV2PageHost";
const UINT_PTR kAfterPaintTimer = 0xC2;

void FillGradient(HDC dc, const RECT& r, COLORREF left, COLORREF right) {
    TRIVERTEX v[2] = {};
    v[0].x = r.left;
    v[0].y = r.top;
    v[0].Red = static_cast<COLOR16>(GetRValue(left) << 8);
    v[0].Green = static_cast<COLOR16>(GetGValue(left) << 8);
    v[0].Blue = static_cast<COLOR16>(GetBValue(left) << 8);
    v[1].x = r.right;
    v[1].y = r.bottom;
    v[1].Red = static_cast<COLOR16>(GetRValue(right) << 8);
    v[1].Green = static_cast<COLOR16>(GetGValue(right) << 8);
    v[1].Blue = static_cast<COLOR16>(GetBValue(right) << 8);
    GRADIENT_RECT g = {0, 1};
    GradientFill(dc, v, 2, &g, 1, GRADIENT_FILL_RECT_H);
}

// The page-menu mark: a small black triangle pointing down at the strip's right end.
// Returns its left edge.
int DrawMenuMark(HDC dc, const RECT& strip) {
    const int w = ScaleX(7), h = Scale(4);
    const int right = strip.right - ScaleX(4);
    const int top = (strip.top + strip.bottom - h) / 2;
    POINT pts[3] = {{right - w, top}, {right, top}, {right - w / 2, top + h}};
    HGDIOBJ oldBrush = SelectObject(dc, GetStockObject(BLACK_BRUSH));
    HGDIOBJ oldPen = SelectObject(dc, GetStockObject(BLACK_PEN));
    Polygon(dc, pts, 3);
    SelectObject(dc, oldPen);
    SelectObject(dc, oldBrush);
    return right - w;
}

} // namespace

int HeaderHeight() {
    return Scale(20);
}

RECT PageArea(int clientWidth, int clientHeight) {
    // The strip's one-pixel bottom line falls on the area's first row, which pages leave empty;
    // starting here keeps every place a whole number of units below the client's top.
    const int top = HeaderHeight();
    return {0, top, clientWidth, clientHeight > top ? clientHeight : top};
}

PageHost::~PageHost() {
    // A window that outlives its host must not lead its timer back here.
    LetGoOfWindow();
    for (SettingsPage* page : m_pages)
        delete page;
    if (m_pageMenu)
        DestroyMenu(m_pageMenu);
}

void PageHost::AddPage(SettingsPage* page) {
    m_pages.push_back(page);
}

SettingsPage* PageHost::Page(int index) const {
    return index >= 0 && index < PageCount() ? m_pages[static_cast<size_t>(index)] : nullptr;
}

void PageHost::BuildPages(HWND window, IniDocument* doc, Making making) {
    m_hwnd = window;
    m_doc = doc;
    m_created = 0;
    m_painted = false;
    SetPropW(window, kHostProperty, this);
    m_pageMenu = CreatePopupMenu();
    RECT client;
    GetClientRect(window, &client);
    m_area = PageArea(client.right, client.bottom);
    for (int i = 0; i < PageCount(); ++i) {
        if (SettingsPage* page = m_pages[static_cast<size_t>(i)])
            AppendMenuW(m_pageMenu, MF_STRING, static_cast<UINT_PTR>(i + 1), page->GetName());
    }
    if (making == Making::AllAtOnce)
        CreatePagesUpTo(PageCount() - 1);
}

void PageHost::CreatePagesUpTo(int index) {
    if (!m_hwnd)
        return;
    while (m_created <= index && m_created < PageCount()) {
        SettingsPage* page = m_pages[static_cast<size_t>(m_created)];
        // Counted first: a page hears the commands its own controls send while it is made.
        ++m_created;
        if (!page)
            continue;
        GiveArea(*page, m_area);
        page->Create(m_hwnd);
        page->Load(m_doc);
    }
}

void PageHost::SelectPage(int index) {
    CheckMenuRadioItem(m_pageMenu, 1, static_cast<UINT>(PageCount()), static_cast<UINT>(index + 1),
                       MF_BYCOMMAND);
    SettingsPage* next = Page(index);
    if (!next || next == m_current)
        return;
    CreatePagesUpTo(index);
    if (m_current) {
        m_current->OnDeactivate();
        MarkActive(*m_current, false);
    }
    MarkActive(*next, true);
    next->OnActivate();
    for (int i = 0; i < m_created; ++i) {
        if (SettingsPage* page = m_pages[static_cast<size_t>(i)])
            page->Show(i == index);
    }
    m_current = next;
    InvalidateRect(m_hwnd, nullptr, TRUE);
}

bool PageHost::TrackPageMenu(int x, int y) {
    if (x < ScreenWidth() / 2 || y >= HeaderHeight())
        return false;
    // The menu drops from just under the strip at the window's right edge, the screen's on the
    // device. (There the window starts below the 26-pixel navigation bar, which puts this at 47.)
    RECT window;
    GetWindowRect(m_hwnd, &window);
    const UINT cmd = TrackPopupMenu(m_pageMenu, TPM_RIGHTALIGN | TPM_RETURNCMD, window.right,
                                    window.top + Scale(21), 0, m_hwnd, nullptr);
    if (cmd)
        SelectPage(static_cast<int>(cmd) - 1);
    return true;
}

void PageHost::PaintHeader(HDC dc, const RECT& client) const {
    const RECT strip = {client.left, client.top, client.right, client.top + HeaderHeight()};
    FillGradient(dc, strip, kHeaderLeft, kHeaderRight);
    const int markLeft = DrawMenuMark(dc, strip);
    const RECT line = {strip.left, strip.bottom, strip.right, strip.bottom + 1};
    FillRect(dc, &line, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    if (!m_current)
        return;
    RECT text = {strip.left + ScaleX(3), strip.top, markLeft - ScaleX(4), strip.bottom};
    HGDIOBJ oldFont = SelectObject(dc, CaptionFont());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(0, 0, 0));
    DrawTextW(dc, m_current->GetName(), -1, &text,
              DT_SINGLELINE | DT_VCENTER | DT_RIGHT | DT_NOPREFIX | DT_END_ELLIPSIS);
    SelectObject(dc, oldFont);
}

void PageHost::Paint() {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(m_hwnd, &ps);
    RECT client;
    GetClientRect(m_hwnd, &client);
    HDC mem = CreateCompatibleDC(dc);
    HBITMAP bitmap = CreateCompatibleBitmap(dc, client.right, client.bottom);
    HGDIOBJ oldBitmap = SelectObject(mem, bitmap);
    HBRUSH background = CreateSolidBrush(DeviceSysColor(kPageBackground));
    FillRect(mem, &client, background);
    DeleteObject(background);
    PaintHeader(mem, client);
    if (m_current)
        m_current->Paint(mem);
    BitBlt(dc, 0, 0, client.right, client.bottom, mem, 0, 0, SRCCOPY);
    SelectObject(mem, oldBitmap);
    DeleteObject(bitmap);
    DeleteDC(mem);
    EndPaint(m_hwnd, &ps);
}

bool PageHost::HandleMessage(UINT msg, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    result = 0;
    switch (msg) {
    case WM_SIZE:
        DispatchSize(LOWORD(lParam), HIWORD(lParam));
        return true;
    case WM_ERASEBKGND:
        result = 1; // WM_PAINT covers every pixel from its off-screen bitmap
        return true;
    case WM_PAINT:
        Paint();
        if (!m_painted) {
            // A timer fires only when no message and no paint is waiting: after every control
            // has painted too.
            m_painted = true;
            SetTimer(m_hwnd, kAfterPaintTimer, 0, AfterFirstPaint);
        }
        return true;
    case WM_LBUTTONDOWN:
        TrackPageMenu(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
        return true;
    case WM_NOTIFY:
        DispatchNotify(wParam, lParam);
        return false;
    }
    return false;
}

std::vector<SettingsPage*> PageHost::CreatedPages() const {
    std::vector<SettingsPage*> made;
    for (int i = 0; i < m_created; ++i) {
        if (SettingsPage* page = m_pages[static_cast<size_t>(i)])
            made.push_back(page);
    }
    return made;
}

bool PageHost::DispatchCommand(WPARAM wParam, LPARAM lParam) {
    for (SettingsPage* page : CreatedPages()) {
        if (page->OnCommand(wParam, lParam))
            return true;
    }
    return false;
}

void PageHost::DispatchNotify(WPARAM wParam, LPARAM lParam) {
    for (SettingsPage* page : CreatedPages())
        page->OnNotify(wParam, lParam);
}

void PageHost::DispatchSize(int width, int height) {
    const RECT client = {0, 0, width, height};
    m_area = PageArea(width, height);
    for (SettingsPage* page : m_pages) {
        if (page)
            GiveArea(*page, m_area);
    }
    for (SettingsPage* page : CreatedPages())
        page->OnSize(client);
}

void PageHost::SaveAll(IniDocument* target) {
    CreatePagesUpTo(PageCount() - 1);
    for (SettingsPage* page : CreatedPages())
        page->Save(target);
}

void PageHost::LoadAll(IniDocument* doc) {
    m_doc = doc;
    for (SettingsPage* page : CreatedPages())
        page->Load(doc);
}

void PageHost::LetGoOfWindow() {
    if (m_hwnd && IsWindow(m_hwnd) && GetPropW(m_hwnd, kHostProperty) == this) {
        KillTimer(m_hwnd, kAfterPaintTimer);
        RemovePropW(m_hwnd, kHostProperty);
    }
}

void PageHost::DestroyAll() {
    LetGoOfWindow();
    for (SettingsPage* page : CreatedPages())
        page->OnDestroy();
}

void CALLBACK PageHost::AfterFirstPaint(HWND window, UINT, UINT_PTR timer, DWORD) {
    KillTimer(window, timer);
    auto* host = static_cast<PageHost*>(GetPropW(window, kHostProperty));
    if (!host)
        return;
    host->CreatePagesUpTo(host->PageCount() - 1);
    for (SettingsPage* page : host->CreatedPages())
        page->OnHostShown();
}

} // namespace cv2
