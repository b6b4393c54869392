#include "check_pages_host.h"

#include <commctrl.h>

#include <vector>

#include "screen_capture.h"
#include "store/scale.h"
#include "store/screen.h"
#include "ui/page_host.h"
#include "ui/shared_fonts.h"

namespace cv2test {
namespace {

const wchar_t kClass[] = L"CV2PageTestHost";
constexpr int kMenuBarHeight = 26; // the main window leaves this much of the work area free
constexpr int kHeaderHeight = 20;

void RegisterHostClass(WNDPROC proc) {
    WNDCLASSW wc = {};
    if (GetClassInfoW(GetModuleHandleW(nullptr), kClass, &wc))
        return;
    wc.style = CS_HREDRAW | CS_VREDRAW;
    wc.lpfnWndProc = proc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = kClass;
    RegisterClassW(&wc);
}

} // namespace

PageHostWindow::PageHostWindow(cv2::SettingsPage& page, cv2::IniDocument& doc) : m_page(page) {
    RegisterHostClass(Proc);
    RECT wa;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &wa, 0);
    m_hwnd = CreateWindowExW(0, kClass, L"page host", WS_POPUP, wa.left, wa.top, wa.right - wa.left,
                             wa.bottom - wa.top - cv2::Scale(kMenuBarHeight), nullptr, nullptr,
                             GetModuleHandleW(nullptr), this);
    RECT client;
    GetClientRect(m_hwnd, &client);
    cv2::PageHost::GiveArea(m_page, cv2::PageArea(client.right, client.bottom));
    m_page.Create(m_hwnd);
    m_page.Load(&doc);
}

PageHostWindow::~PageHostWindow() {
    if (m_hwnd)
        DestroyWindow(m_hwnd);
}

void PageHostWindow::ShowPage() {
    ShowWindow(m_hwnd, SW_SHOW);
    cv2::PageHost::MarkActive(m_page, true);
    m_page.OnActivate();
    m_page.Show(true);
    InvalidateRect(m_hwnd, nullptr, TRUE);
    UpdateWindow(m_hwnd);
    PumpMessages(50);
}

void PageHostWindow::SendCommand(HWND control, WORD code) {
    SendMessageW(m_hwnd, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code),
                 reinterpret_cast<LPARAM>(control));
}

// A plain copy of the main window's header: a tinted strip with the page name on the right.
void PageHostWindow::Paint() {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(m_hwnd, &ps);
    RECT client;
    GetClientRect(m_hwnd, &client);
    RECT strip = {0, 0, client.right, cv2::Scale(kHeaderHeight)};
    HBRUSH tint = CreateSolidBrush(RGB(0xC6, 0xD6, 0xEF));
    FillRect(dc, &strip, tint);
    DeleteObject(tint);
    HGDIOBJ old = SelectObject(dc, cv2::CaptionFont());
    SetBkMode(dc, TRANSPARENT);
    strip.right -= cv2::ScaleX(4);
    DrawTextW(dc, m_page.GetName(), -1, &strip, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    SelectObject(dc, old);
    m_page.Paint(dc);
    EndPaint(m_hwnd, &ps);
}

LRESULT CALLBACK PageHostWindow::Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    auto* host = reinterpret_cast<PageHostWindow*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    switch (msg) {
    case WM_NCCREATE:
        SetWindowLongPtrW(
            hwnd, GWLP_USERDATA,
            reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
        break;
    case WM_COMMAND:
        if (host && host->m_page.OnCommand(wParam, lParam))
            return 0;
        break;
    case WM_NOTIFY:
        if (host)
            host->m_page.OnNotify(wParam, lParam);
        break;
    case WM_SIZE:
        if (host) {
            RECT r = {0, 0, LOWORD(lParam), HIWORD(lParam)};
            cv2::PageHost::GiveArea(host->m_page, cv2::PageArea(r.right, r.bottom));
            host->m_page.OnSize(r);
        }
        return 0;
    case WM_PAINT:
        if (host) {
            host->Paint();
            return 0;
        }
        break;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

void PageTest::SetUpTestSuite() {
    cv2::ReadScreenDensities();
    cv2::CreateSharedFonts();
}

void PageTest::TearDownTestSuite() {
    cv2::DestroySharedFonts();
}

bool RowChecked(HWND list, int row) {
    return ListView_GetCheckState(list, row) != 0;
}

void SetRowChecked(HWND list, int row, bool on) {
    ListView_SetCheckState(list, row, on ? TRUE : FALSE);
}

std::wstring WindowText(HWND control) {
    std::vector<wchar_t> text(GetWindowTextLengthW(control) + 1, L'\0');
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
    return text.data();
}

} // namespace cv2test
