// How the thumbnail grid's painting and scrolling cost grows with the number of on-demand items.
// For 100, 1,000, 10,000 and 100,000 items it times the first paint, a full repaint, scrolling
// by lines, jumping to the end and back, and arrow keys, and prints each as a ratio against the
// 100-item run of the same process. Only items in view should be asked for, so the ratios should
// stay near 1. It never passes or fails: it reports.
//
//   tools/wine-run.sh build/win/bench/icon_grid_bench.exe [rounds]
// (on a screen prepared with use_screen from tools/common.sh).
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <functional>
#include <vector>

#include "store/scale.h"
#include "store/screen.h"
#include "ui/icon_grid.h"

using namespace cv2;

namespace {

const wchar_t kParentClass[] = L"IconGridBenchParent";
long g_requests = 0;
int g_pictures = 0; // pictures in the grid's list, shared round-robin by the items

LRESULT CALLBACK ParentProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == GRN_NEEDITEM) {
        ++g_requests;
        auto* desc = reinterpret_cast<GridItemDesc*>(lParam);
        swprintf(desc->caption, 256, L"Picture %u.jpg", static_cast<unsigned>(wParam));
        desc->picture = g_pictures ? static_cast<int32_t>(wParam % g_pictures) : -1;
        return 0;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

HWND CreateParent() {
    WNDCLASSW wc = {};
    wc.lpfnWndProc = ParentProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = kParentClass;
    RegisterClassW(&wc);
    return CreateWindowExW(0, kParentClass, L"bench", WS_POPUP | WS_VISIBLE, 0, 0,
                           GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr,
                           nullptr, wc.hInstance, nullptr);
}

HBITMAP Picture(int seed) {
    HDC screen = GetDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 120, 90);
    HDC mem = CreateCompatibleDC(screen);
    HGDIOBJ old = SelectObject(mem, bitmap);
    const RECT all = {0, 0, 120, 90};
    HBRUSH brush = CreateSolidBrush(RGB(40 * seed % 256, 90, 200 - 20 * seed));
    FillRect(mem, &all, brush);
    DeleteObject(brush);
    Ellipse(mem, 20, 10, 90, 80);
    SelectObject(mem, old);
    DeleteDC(mem);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

double Now() {
    static LARGE_INTEGER frequency = {};
    if (!frequency.QuadPart)
        QueryPerformanceFrequency(&frequency);
    LARGE_INTEGER t;
    QueryPerformanceCounter(&t);
    return static_cast<double>(t.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Microseconds per step of `steps` steps run by `work`.
double Time(int steps, const std::function<void()>& work) {
    const double start = Now();
    work();
    return (Now() - start) * 1e6 / steps;
}

void Scroll(HWND grid, int code) {
    SendMessageW(grid, WM_VSCROLL, static_cast<WPARAM>(code), 0);
    UpdateWindow(grid);
}

void Key(HWND grid, WPARAM key) {
    SendMessageW(grid, WM_KEYDOWN, key, 1);
    UpdateWindow(grid);
}

enum Step { FirstPaint, Repaint, Line, Jump, Arrow, kSteps };
const char* const kStepNames[kSteps] = {"first paint", "repaint", "line", "end/top", "key"};

struct Sample {
    double us[kSteps];
    long requests; // items asked for by the first paint
};

// One grid of `count` on-demand items in `view` (0 thumbnails, 1 list), each step timed once.
Sample Measure(HWND parent, int view, int count) {
    HWND grid =
        CreateWindowExW(0, kIconGridClass, L"", WS_CHILD | WS_VISIBLE, 0, 0,
                        GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), parent,
                        reinterpret_cast<HMENU>(1024), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(grid, GRM_SETVIEW, static_cast<WPARAM>(view), 1);
    SendMessageW(grid, GRM_SETCOLUMNS, 3, 0);
    g_pictures = 0;
    for (int i = 0; i < 8 && view == 0; ++i) {
        HBITMAP bitmap = Picture(i);
        SendMessageW(grid, GRM_ADDBITMAP, 0, reinterpret_cast<LPARAM>(bitmap));
        DeleteObject(bitmap);
        ++g_pictures;
    }
    SendMessageW(grid, GRM_SETCOUNT, static_cast<WPARAM>(count), 0);

    Sample s = {};
    g_requests = 0;
    s.us[FirstPaint] = Time(1, [&] { UpdateWindow(grid); });
    s.requests = g_requests;
    s.us[Repaint] = Time(1, [&] {
        InvalidateRect(grid, nullptr, TRUE);
        UpdateWindow(grid);
    });
    // Ten lines down and back: every step moves, whatever the count.
    s.us[Line] = Time(20, [&] {
        for (int i = 0; i < 10; ++i)
            Scroll(grid, SB_LINEDOWN);
        for (int i = 0; i < 10; ++i)
            Scroll(grid, SB_LINEUP);
    });
    s.us[Jump] = Time(2, [&] {
        Scroll(grid, SB_BOTTOM);
        Scroll(grid, SB_TOP);
    });
    SendMessageW(grid, WM_KEYDOWN, VK_RIGHT, 1);
    s.us[Arrow] = Time(20, [&] {
        for (int i = 0; i < 10; ++i)
            Key(grid, VK_DOWN);
        for (int i = 0; i < 10; ++i)
            Key(grid, VK_UP);
    });
    DestroyWindow(grid);
    return s;
}

double Median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Rounds interleave the counts, so that a busy moment of the machine hits all of them alike.
void Run(HWND parent, int view, const std::vector<int>& counts, int rounds) {
    Measure(parent, view, counts[0]); // warm-up: fonts, caches
    std::vector<std::vector<Sample>> samples(counts.size());
    for (int r = 0; r < rounds; ++r) {
        for (size_t i = 0; i < counts.size(); ++i)
            samples[i].push_back(Measure(parent, view, counts[i]));
    }
    std::printf("\n%s view: median microseconds per step, and ratio to %d items\n",
                view == 0 ? "thumbnail" : "list", counts[0]);
    std::printf("%8s %6s", "items", "asked");
    for (const char* name : kStepNames)
        std::printf(" | %11s %5s", name, "ratio");
    std::printf("\n");
    double base[kSteps] = {};
    for (size_t i = 0; i < counts.size(); ++i) {
        std::printf("%8d %6ld", counts[i], samples[i][0].requests);
        for (int step = 0; step < kSteps; ++step) {
            std::vector<double> v;
            for (const Sample& s : samples[i])
                v.push_back(s.us[step]);
            const double m = Median(v);
            if (i == 0)
                base[step] = m;
            std::printf(" | %11.0f %5.2f", m, base[step] > 0 ? m / base[step] : 0.0);
        }
        std::printf("\n");
    }
}

} // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    ReadScreenDensities();
    RegisterIconGridClass(GetModuleHandleW(nullptr));
    HWND parent = CreateParent();
    std::printf("screen %dx%d at %d dpi, %d rounds\n", GetSystemMetrics(SM_CXSCREEN),
                GetSystemMetrics(SM_CYSCREEN), g_dpiX, rounds);
    const std::vector<int> counts = {100, 1000, 10000, 100000};
    Run(parent, 0, counts, rounds);
    Run(parent, 1, counts, rounds);
    std::fflush(stdout);
    return 0;
}
