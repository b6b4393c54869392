#include "rule_page_support.h"

#include <gtest/gtest.h>

#include "ids_behaviour.h"
#include "platform/shell.h"
#include "store/scale.h"
#include "store/screen.h"
#include "ui/page_host.h"
#include "ui/shared_fonts.h"

namespace cv2test {
namespace {

const wchar_t kHostClass[] = L"CV2TestPageHost";

} // namespace

PageHost::PageHost() {
    cv2::ReadScreenDensities();
    cv2::CreateSharedFonts();
    HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSW wc = {};
    if (!GetClassInfoW(instance, kHostClass, &wc)) {
        wc.lpfnWndProc = Proc;
        wc.hInstance = instance;
        wc.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
        wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        wc.lpszClassName = kHostClass;
        RegisterClassW(&wc);
    }
    RECT wa;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &wa, 0);
    m_hwnd = CreateWindowExW(0, kHostClass, L"Corvane 2 Settings", WS_POPUP | WS_VISIBLE, wa.left,
                             wa.top, wa.right - wa.left, wa.bottom - wa.top - cv2::MenuBarHeight(),
                             nullptr, nullptr, instance, this);
}

PageHost::~PageHost() {
    for (cv2::SettingsPage* page : m_pages)
        page->OnDestroy();
    DestroyWindow(m_hwnd);
}

LRESULT CALLBACK PageHost::Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_NCCREATE) {
        auto* cs = reinterpret_cast<CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(cs->lpCreateParams));
    }
    auto* host = reinterpret_cast<PageHost*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (host && msg == WM_COMMAND) {
        for (cv2::SettingsPage* page : host->m_pages) {
            if (page->OnCommand(wParam, lParam))
                return 0;
        }
    }
    if (host && msg == WM_SIZE) {
        const RECT client = {0, 0, LOWORD(lParam), HIWORD(lParam)};
        for (cv2::SettingsPage* page : host->m_pages) {
            cv2::PageHost::GiveArea(*page, cv2::PageArea(client.right, client.bottom));
            page->OnSize(client);
        }
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

void PageHost::Add(cv2::SettingsPage& page, bool show) {
    m_pages.push_back(&page);
    RECT client;
    GetClientRect(m_hwnd, &client);
    cv2::PageHost::GiveArea(page, cv2::PageArea(client.right, client.bottom));
    page.Create(m_hwnd);
    page.Show(show);
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

cv2::IniDocument DocOf(const std::string& text) {
    cv2::IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
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

std::wstring ItemText(HWND dialog, int id) {
    return WindowText(GetDlgItem(dialog, id));
}

bool ItemVisible(HWND dialog, int id) {
    return IsWindowVisible(GetDlgItem(dialog, id)) != FALSE;
}

void SetItemText(HWND dialog, int id, const std::wstring& text) {
    SetDlgItemTextW(dialog, id, text.c_str());
}

void ClickItem(HWND dialog, int id) {
    SendMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

void PressItem(HWND dialog, int id) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

namespace {
std::wstring Describe(HWND control) {
    wchar_t cls[32] = {};
    GetClassNameW(control, cls, 32);
    return std::wstring(cls) + L" " + std::to_wstring(GetDlgCtrlID(control)) + L" \"" +
           WindowText(control).substr(0, 30) + L"\"";
}
} // namespace

void ExpectLaidOutApart(HWND parent) {
    RECT client;
    GetClientRect(parent, &client);
    std::vector<std::pair<HWND, RECT>> placed;
    for (HWND c = GetWindow(parent, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
        if (!IsWindowVisible(c))
            continue;
        RECT r;
        GetWindowRect(c, &r);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&r), 2);
        RECT inside;
        IntersectRect(&inside, &r, &client);
        EXPECT_TRUE(EqualRect(&inside, &r))
            << "outside the client area: " << ::testing::PrintToString(Describe(c));
        for (const auto& other : placed) {
            RECT overlap;
            EXPECT_FALSE(IntersectRect(&overlap, &r, &other.second))
                << ::testing::PrintToString(Describe(c)) << " overlaps "
                << ::testing::PrintToString(Describe(other.first));
        }
        placed.emplace_back(c, r);
    }
}

} // namespace cv2test
