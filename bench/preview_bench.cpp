// What the preview of the bar costs. Each measure is the median of many runs, printed against a
// plain fill of the same bitmap measured in the same run:
//   - the editor's preview at 480x640 (192 dots per inch) with its pictures already read: the
//     scene made and drawn, with the start menu closed and open; and a tap on the start button
//     until the page shows the new picture (made, drawn, shrunk into the page, painted);
//   - My Theme's strip at 240x320: a selection change on the real page until the strip has
//     painted, alternating between two themes with pictures.
// It never passes or fails: it reports.
//
//   tools/wine-run.sh build/win/bench/preview_bench.exe [runs]
// (on a screen prepared with use_screen from tools/common.sh).
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "bench_timing.h"
#include "bmp_file.h"
#include "ids_themes.h"
#include "store/screen.h"
#include "temp_folder.h"
#include "themes/preview/preview_device.h"
#include "themes/preview/scene_builder.h"
#include "themes/theme_catalogue_page.h"
#include "ui/backgrounds/background_paint.h"
#include "ui/page_host.h"
#include "ui/preview/preview_view.h"
#include "ui/preview/scene_painter.h"
#include "ui/shared_fonts.h"

using namespace cv2;
using cv2bench::Median;
using cv2bench::Now;

namespace {

// Milliseconds of the median of `runs` calls.
double MedianMs(int runs, const std::function<void()>& work) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const double start = Now();
        work();
        times.push_back((Now() - start) * 1000.0);
    }
    return Median(times);
}

// A theme naming a picture for most of what the preview shows.
std::string ThemeText(const std::string& folder, int seed) {
    const std::string f = folder;
    return "[Skin Info]\nName=Bench " + std::to_string(seed) + "\n[Topbar]\nPortrait=" + f +
           "top.bmp\nLandscape=" + f + "top.bmp\nMode=scaled\n[Today Menubar]\nPortrait=" + f +
           "menu.bmp\nMode=tiled\n[Button Images]\nStart Menu Normal=" + f +
           "start.bmp\nClose Normal=" + f + "button.bmp\nNotify Normal=" + f +
           "button.bmp\nVolume Normal=" + f + "button.bmp\nConnection Normal=" + f +
           "button.bmp\nMenu Normal=" + f + "button.bmp\nBattery/Memory Normal=" + f +
           "button.bmp\n[Start Menu Skin]\nStart Menu Picture=" + f + "start_menu.bmp\n" +
           "Start Menu Picture 2=" + f + "start_menu.bmp\nProgram Group=" + f +
           "button.bmp\nSettings Group=" + f +
           "button.bmp\nLeft Margin=10\n[Buttons]\nnormal=" + f +
           "button.bmp\nleft=4\nright=4\nCheckbox=" + f + "button.bmp\nRadiobutton=" + f +
           "button.bmp\n[Volume Bubble]\nImage=" + f + "bubble.bmp\n[Clock Font]\nStyle=glow\n";
}

void WritePictures(const cv2test::TempFolder& dir, const std::wstring& folder, unsigned seed) {
    dir.MakeFolder(folder);
    dir.Write(folder + L"\\top.bmp", cv2test::BmpFileBytes(480, 52, seed));
    dir.Write(folder + L"\\menu.bmp", cv2test::BmpFileBytes(32, 52, seed + 1));
    dir.Write(folder + L"\\start.bmp", cv2test::BmpFileBytes(40, 40, seed + 2));
    dir.Write(folder + L"\\button.bmp", cv2test::BmpFileBytes(32, 32, seed + 3));
    dir.Write(folder + L"\\start_menu.bmp", cv2test::BmpFileBytes(200, 300, seed + 4));
    dir.Write(folder + L"\\bubble.bmp", cv2test::BmpFileBytes(160, 60, seed + 5));
}

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

// A bitmap of the given size selected into a memory device context.
struct Canvas {
    Canvas(int width, int height) {
        HDC screen = GetDC(nullptr);
        dc = CreateCompatibleDC(screen);
        bitmap = CreateCompatibleBitmap(screen, width, height);
        ReleaseDC(nullptr, screen);
        old = SelectObject(dc, bitmap);
        area = {0, 0, width, height};
    }
    ~Canvas() {
        SelectObject(dc, old);
        DeleteObject(bitmap);
        DeleteDC(dc);
    }
    // The plain fill every measure is set against.
    void Fill() {
        PaintSolid(dc, area, 0x808080);
        GdiFlush();
    }
    HDC dc;
    HBITMAP bitmap;
    HGDIOBJ old;
    RECT area;
};

// The theme the editor is showing, its pictures in a scratch folder, and an empty config.ini.
struct EditorTheme {
    EditorTheme() {
        WritePictures(dir, L"Theme", 1);
        const std::string text = ThemeText(Narrow(dir.File(L"Theme\\")), 1);
        theme.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    }
    cv2test::TempFolder dir;
    IniDocument theme;
    IniDocument config;
};

// The editor's preview on a 480x640 screen at 192 dots per inch.
PreviewRequest EditorRequest(const IniDocument& theme, const IniDocument& config, bool menu) {
    PreviewRequest request;
    request.theme = &theme;
    request.config = &config;
    request.width = 480;
    request.height = 640;
    request.dpi = 192;
    request.startMenuOpen = menu;
    return request;
}

void EditorPreview(int runs) {
    const EditorTheme editor;
    const IniDocument& theme = editor.theme;
    const IniDocument& config = editor.config;
    ScenePainter painter;
    Canvas canvas(480, 640);
    for (bool menu : {false, true}) {
        const PreviewRequest request = EditorRequest(theme, config, menu);
        const PreviewDevice device = ThisDevicePreview(painter);
        // The pictures are read and drawn at their sizes once, as the editor's page keeps them.
        painter.Paint(canvas.dc, BuildScene(request, device), 0, 0);
        const double fill = MedianMs(runs, [&] { canvas.Fill(); });
        const double build = MedianMs(runs, [&] { BuildScene(request, device); });
        const double both = MedianMs(runs, [&] {
            painter.Paint(canvas.dc, BuildScene(request, device), 0, 0);
            GdiFlush();
        });
        std::printf("editor preview 480x640, start menu %-6s  made %.2f ms, made and drawn "
                    "%.2f ms; plain fill %.3f ms; ratio %.0f\n",
                    menu ? "open:" : "closed:", build, both, fill, fill > 0 ? both / fill : 0.0);
    }
}

// The editor's page as a tap on the start button finds it: the view makes the scene anew, draws
// it at 480x640 and shrinks it into the page (here 384x512), then paints.
void EditorTap(int runs) {
    const EditorTheme editor;
    const IniDocument& theme = editor.theme;
    const IniDocument& config = editor.config;
    HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 384, 512, nullptr,
                                  nullptr, GetModuleHandleW(nullptr), nullptr);
    PreviewView view;
    view.Create(window, 1);
    SetWindowPos(view.Window(), nullptr, 0, 0, 384, 512, SWP_NOZORDER | SWP_SHOWWINDOW);
    view.SetBuilder([&](bool menu) {
        return BuildScene(EditorRequest(theme, config, menu), ThisDevicePreview(view.Painter()));
    });
    view.Refresh();
    UpdateWindow(view.Window());
    Canvas canvas(480, 640);
    const double fill = MedianMs(runs, [&] { canvas.Fill(); });
    const SceneElement* start = view.Current().Find(SceneKind::StartButton);
    const int x = (start->rect.left + start->rect.right) / 2 * 384 / 480 + view.SceneOrigin().x;
    const int y = (start->rect.top + start->rect.bottom) / 2 * 512 / 640;
    const double tap = MedianMs(runs, [&] {
        view.Tap(x, y);
        UpdateWindow(view.Window());
        GdiFlush();
    });
    std::printf("editor preview 480x640, a tap on the start button until shown in the page: "
                "%.2f ms; plain fill %.3f ms; ratio %.0f\n",
                tap, fill, fill > 0 ? tap / fill : 0.0);
    view.Destroy();
    DestroyWindow(window);
}

// A window that passes its messages to a page host, as the main window does.
PageHost* g_host = nullptr;

LRESULT CALLBACK HostProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (g_host && msg == WM_COMMAND && g_host->DispatchCommand(wParam, lParam))
        return 0;
    if (g_host && g_host->Window() == hwnd && g_host->HandleMessage(msg, wParam, lParam, result))
        return result;
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

void CatalogueStrip(int runs) {
    cv2test::TempFolder dir;
    for (int i = 0; i < 2; ++i) {
        const std::wstring folder = L"Themes\\Bench" + std::to_wstring(i);
        WritePictures(dir, folder, 10 + 10 * i);
        dir.Write(folder + L"\\bench.skin", ThemeText(Narrow(dir.File(folder + L"\\")), i));
    }
    IniDocument config;
    WNDCLASSW wc = {};
    wc.lpfnWndProc = HostProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = L"PreviewBenchHost";
    RegisterClassW(&wc);
    HWND window = CreateWindowExW(0, wc.lpszClassName, L"bench", WS_POPUP | WS_VISIBLE, 0, 0, 240,
                                  320, nullptr, nullptr, wc.hInstance, nullptr);
    PageHost host;
    g_host = &host;
    auto* page = new ThemeCataloguePage(dir.Path());
    host.AddPage(page);
    host.BuildPages(window, &config);
    host.SelectPage(0);
    UpdateWindow(window);
    HWND list = page->Window(ThemeCataloguePage::List);
    HWND strip = page->Strip().Window();
    auto select = [&](int row) {
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        SendMessageW(window, WM_COMMAND, MAKEWPARAM(IDC_THEMES_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
        UpdateWindow(strip);
        GdiFlush();
    };
    select(0);
    select(1);
    int row = 0;
    Canvas canvas(240, 320);
    const double fill = MedianMs(runs, [&] { canvas.Fill(); });
    const double change = MedianMs(runs, [&] { select(row ^= 1); });
    std::printf("My Theme 240x320, selection change to strip painted: %.2f ms; plain fill %.3f "
                "ms; ratio %.0f\n",
                change, fill, fill > 0 ? change / fill : 0.0);
    host.DestroyAll();
    g_host = nullptr;
    DestroyWindow(window);
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const int runs = argc > 1 ? std::max(1, _wtoi(argv[1])) : 200;
    ReadScreenDensities();
    CreateSharedFonts();
    EditorPreview(runs);
    EditorTap(runs);
    CatalogueStrip(runs);
    DestroySharedFonts();
    return 0;
}
