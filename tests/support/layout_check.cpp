#include "layout_check.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace cv2test {

namespace {

std::wstring Text(HWND control) {
    wchar_t text[256] = {};
    GetWindowTextW(control, text, 256);
    return text;
}

std::wstring Describe(HWND control) {
    wchar_t cls[32] = {};
    GetClassNameW(control, cls, 32);
    return std::wstring(cls) + L" " + std::to_wstring(GetDlgCtrlID(control)) + L" \"" +
           Text(control).substr(0, 30) + L"\"";
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
