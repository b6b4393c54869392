#include "rule_page_support.h"

#include <gtest/gtest.h>

namespace cv2test {

cv2::IniDocument DocOf(const std::string& text) {
    cv2::IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
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
