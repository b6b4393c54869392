#include "check_pages_host.h"

#include <commctrl.h>

#include <vector>

#include "ids_behaviour.h"
#include "platform/shell.h"
#include "screen_capture.h"
#include "store/scale.h"
#include "store/screen.h"
#include "ui/page_host.h"
#include "ui/shared_fonts.h"

namespace cv2test {
namespace {

const wchar_t kClass[] = L"CV2PageTestHost";
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

PageHost::PageHost(bool visible) {
    cv2::ReadScreenDensities();
    cv2::CreateSharedFonts();
    RegisterHostClass(Proc);
    RECT wa;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &wa, 0);
    m_hwnd = CreateWindowExW(0, kClass, L"Corvane 2 Settings",
                             WS_POPUP | (visible ? WS_VISIBLE : 0), wa.left, wa.top,
                             wa.right - wa.left, wa.bottom - wa.top - cv2::MenuBarHeight(), nullptr,
                             nullptr, GetModuleHandleW(nullptr), this);
}

PageHost::~PageHost() {
    for (cv2::SettingsPage* page : m_pages)
        page->OnDestroy();
    DestroyWindow(m_hwnd);
}

void PageHost::Add(cv2::SettingsPage& page, bool show) {
    m_pages.push_back(&page);
    RECT client;
    GetClientRect(m_hwnd, &client);
    cv2::PageHost::GiveArea(page, cv2::PageArea(client.right, client.bottom));
    page.Create(m_hwnd);
    page.Show(show);
    if (show)
        SetShown(page);
}

HWND PageHost::Control(int id) const {
    for (HWND child = GetWindow(m_hwnd, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (GetDlgCtrlID(child) == id && IsWindowVisible(child))
            return child;
    }
    return nullptr;
}

void PageHost::Click(int id) const {
    HWND button = Control(id);
    SendMessageW(m_hwnd, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

void PageHost::SelectRow(int row) const {
    HWND list = Control(IDC_RULE_LIST);
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(m_hwnd, WM_COMMAND, MAKEWPARAM(IDC_RULE_LIST, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

std::vector<std::wstring> PageHost::ListTexts() const {
    return ListBoxTexts(Control(IDC_RULE_LIST));
}

std::vector<LPARAM> PageHost::ListData() const {
    HWND list = Control(IDC_RULE_LIST);
    std::vector<LPARAM> data;
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
        data.push_back(SendMessageW(list, LB_GETITEMDATA, i, 0));
    return data;
}

// A plain copy of the main window's header: a tinted strip with the shown page's name on the
// right; then the page's own drawing.
void PageHost::Paint() {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(m_hwnd, &ps);
    if (m_shown) {
        RECT client;
        GetClientRect(m_hwnd, &client);
        RECT strip = {0, 0, client.right, cv2::Scale(kHeaderHeight)};
        HBRUSH tint = CreateSolidBrush(RGB(0xC6, 0xD6, 0xEF));
        FillRect(dc, &strip, tint);
        DeleteObject(tint);
        HGDIOBJ old = SelectObject(dc, cv2::CaptionFont());
        SetBkMode(dc, TRANSPARENT);
        strip.right -= cv2::ScaleX(4);
        DrawTextW(dc, m_shown->GetName(), -1, &strip, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
        SelectObject(dc, old);
        m_shown->Paint(dc);
    }
    EndPaint(m_hwnd, &ps);
}

LRESULT CALLBACK PageHost::Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_NCCREATE) {
        auto* cs = reinterpret_cast<CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(cs->lpCreateParams));
    }
    auto* host = reinterpret_cast<PageHost*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!host)
        return DefWindowProcW(hwnd, msg, wParam, lParam);
    switch (msg) {
    case WM_COMMAND:
        for (cv2::SettingsPage* page : host->m_pages) {
            if (page->OnCommand(wParam, lParam))
                return 0;
        }
        break;
    case WM_NOTIFY:
        for (cv2::SettingsPage* page : host->m_pages)
            page->OnNotify(wParam, lParam);
        break;
    case WM_SIZE: {
        const RECT client = {0, 0, LOWORD(lParam), HIWORD(lParam)};
        for (cv2::SettingsPage* page : host->m_pages) {
            cv2::PageHost::GiveArea(*page, cv2::PageArea(client.right, client.bottom));
            page->OnSize(client);
        }
        return 0;
    }
    case WM_PAINT:
        host->Paint();
        return 0;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

PageHostWindow::PageHostWindow(cv2::SettingsPage& page, cv2::IniDocument& doc)
    : PageHost(false), m_page(page) {
    Add(page, false);
    page.Load(&doc);
}

void PageHostWindow::ShowPage() {
    ShowWindow(hwnd(), SW_SHOW);
    cv2::PageHost::MarkActive(m_page, true);
    m_page.OnActivate();
    m_page.Show(true);
    SetShown(m_page);
    InvalidateRect(hwnd(), nullptr, TRUE);
    UpdateWindow(hwnd());
    PumpMessages(50);
}

void PageHostWindow::SendCommand(HWND control, WORD code) {
    SendMessageW(hwnd(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code),
                 reinterpret_cast<LPARAM>(control));
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

std::vector<std::wstring> ListBoxTexts(HWND list) {
    std::vector<std::wstring> texts;
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        std::wstring text(static_cast<size_t>(SendMessageW(list, LB_GETTEXTLEN, i, 0)) + 1, L'\0');
        const LRESULT got = SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(&text[0]));
        text.resize(got > 0 ? static_cast<size_t>(got) : 0);
        texts.push_back(text);
    }
    return texts;
}

} // namespace cv2test
