#include "ui/page_host.h"

#include "platform/device_colors.h"
#include "store/scale.h"
#include "store/screen.h"
#include "ui/backgrounds/background_paint.h"
#include "ui/off_screen_paint.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

const COLORREF kHeaderLeft = 0xFFEFDE;
const COLORREF kHeaderRight = 0xE7AD84;
const int kPageBackground = 25; // the device's static-control background colour

// What the host posts its window after the first paint, once for each turn of the work that
// waited for that paint (wParam: the turn).
const UINT kAfterFirstPaint = WM_APP + 0xC2;

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
    for (SettingsPage* page : m_pages)
        delete page;
    if (m_pageMenu)
        DestroyMenu(m_pageMenu);
}

void PageHost::AddPage(SettingsPage* page, bool separatorBefore) {
    m_pages.push_back(page);
    m_separatorBefore.push_back(separatorBefore);
}

SettingsPage* PageHost::Page(int index) const {
    return index >= 0 && index < PageCount() ? m_pages[static_cast<size_t>(index)] : nullptr;
}

void PageHost::BuildPages(HWND window, IniDocument* doc, Making making) {
    m_hwnd = window;
    m_doc = doc;
    m_created = 0;
    m_told = 0;
    m_painted = false;
    m_pageMenu = CreatePopupMenu();
    RECT client;
    GetClientRect(window, &client);
    m_area = PageArea(client.right, client.bottom);
    for (int i = 0; i < PageCount(); ++i) {
        SettingsPage* page = m_pages[static_cast<size_t>(i)];
        if (page && m_separatorBefore[static_cast<size_t>(i)])
            AppendMenuW(m_pageMenu, MF_SEPARATOR, 0, nullptr);
        if (page)
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
    PaintGradient(dc, strip, kHeaderLeft, kHeaderRight);
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
    PaintOffScreen(m_hwnd, [this](HDC dc, const RECT& client) {
        PaintSolid(dc, client, DeviceSysColor(kPageBackground));
        PaintHeader(dc, client);
        if (m_current)
            m_current->Paint(dc);
    });
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
            m_painted = true;
            PostMessageW(m_hwnd, kAfterFirstPaint, 0, 0);
        }
        return true;
    case kAfterFirstPaint:
        AfterFirstPaint(static_cast<int>(wParam));
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

void PageHost::DestroyAll() {
    for (SettingsPage* page : CreatedPages())
        page->OnDestroy();
}

void PageHost::TellShown() {
    for (; m_told < m_created; ++m_told) {
        if (SettingsPage* page = m_pages[static_cast<size_t>(m_told)])
            page->OnHostShown();
    }
}

void PageHost::AfterFirstPaint(int turn) {
    // What waits to be painted is painted first, so that each turn's work comes after the user
    // sees the last: the window's controls after the first paint, then what the first turn did.
    RedrawWindow(m_hwnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    if (turn == 0) {
        TellShown();
        if (m_created < PageCount())
            PostMessageW(m_hwnd, kAfterFirstPaint, 1, 0);
        return;
    }
    CreatePagesUpTo(PageCount() - 1);
    TellShown();
}

} // namespace cv2
