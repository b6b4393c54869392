// Tab and Shift+Tab on the real program walk the shown page's controls in reading order, wrap
// around, and never reach a control of a hidden page.
#include "device_fixture.h"

#include <algorithm>

namespace cv2test {
namespace {

class KeyboardNavigationE2E : public DeviceFixture {
  protected:
    HWND Focus() const {
        GUITHREADINFO info = {};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(m_main, nullptr), &info);
        return info.hwndFocus;
    }
    // Presses Tab (with Shift when `back`) as the user would, and waits for the focus to move.
    HWND PressTab(bool back) {
        const HWND before = Focus();
        INPUT keys[4] = {};
        int n = 0;
        const auto key = [&](WORD vk, bool up) {
            keys[n].type = INPUT_KEYBOARD;
            keys[n].ki.wVk = vk;
            keys[n].ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
            ++n;
        };
        if (back)
            key(VK_SHIFT, false);
        key(VK_TAB, false);
        key(VK_TAB, true);
        if (back)
            key(VK_SHIFT, true);
        SendInput(static_cast<UINT>(n), keys, sizeof(INPUT));
        HWND after = nullptr;
        WaitFor([&] { return (after = Focus()) != before && after != nullptr; }, 3000);
        return after;
    }
    // The focus stops of one whole round of Tab, starting from the first control.
    std::vector<HWND> Round(bool back) {
        std::vector<HWND> stops;
        for (int i = 0; i < 40; ++i) {
            HWND focus = PressTab(back);
            if (!focus || std::find(stops.begin(), stops.end(), focus) != stops.end())
                break;
            stops.push_back(focus);
        }
        return stops;
    }
    // Starts the editor on the Delays/Timers page: a page of several boxes in two columns.
    void StartOnDelaysPage() {
        ASSERT_TRUE(StartEditor());
        const std::vector<std::wstring> names = MainPageNames();
        const auto page = std::find(names.begin(), names.end(), L"Delays/Timers");
        ASSERT_NE(page, names.end());
        SelectPage(static_cast<int>(page - names.begin()));
        SetForegroundWindow(m_main);
    }
    static RECT Place(HWND control) {
        RECT r;
        GetWindowRect(control, &r);
        return r;
    }
};

} // namespace

TEST_F(KeyboardNavigationE2E, TabWalksTheShownPageInReadingOrderAndWraps) {
    StartOnDelaysPage();
    const std::vector<HWND> stops = Round(false);
    ASSERT_GE(stops.size(), 2u) << "Tab must reach the page's controls";
    for (size_t i = 0; i < stops.size(); ++i) {
        EXPECT_TRUE(IsChild(m_main, stops[i]));
        EXPECT_TRUE(IsWindowVisible(stops[i])) << "a hidden page's control took the focus";
        if (i == 0)
            continue;
        const RECT a = Place(stops[i - 1]), b = Place(stops[i]);
        // Reading order: lower down, or on the same line further right.
        EXPECT_TRUE(b.top > a.top || (b.top == a.top && b.left > a.left)) << "stop " << i;
    }
}

TEST_F(KeyboardNavigationE2E, ShiftTabWalksTheSameControlsBackwards) {
    StartOnDelaysPage();
    std::vector<HWND> forward = Round(false);
    ASSERT_GE(forward.size(), 2u);
    // The focus is on the first control again; going back starts from the last.
    std::vector<HWND> backward = Round(true);
    std::reverse(forward.begin(), forward.end());
    ASSERT_EQ(backward.size(), forward.size());
    EXPECT_EQ(backward, forward);
}

} // namespace cv2test
