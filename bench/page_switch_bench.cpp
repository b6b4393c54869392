// Every page switch of the real program, through the page menu as a user makes it: the 13 pages
// of the main window and the 14 of the theme editor, each on its first visit and on a later one,
// timed from the pick in the menu to the page painted (the menu's place repainted included).
// Each is printed in milliseconds and as a ratio to the first paint of a minimal Win32 program
// started in the same run, as medians of several starts with their spread; switches over 30 ms
// are marked. The device folder holds the sample theme, which is also the custom theme, so the
// editor's previews show pictures. It never passes or fails: it reports.
//
//   tools/wine-run.sh build/win/bench/page_switch_bench.exe [starts] [program]
// (on a screen prepared with use_screen from tools/common.sh; run it on a QVGA and a VGA
// screen).
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench_timing.h"
#include "ids_behaviour.h"
#include "ids_appearance_controls.h"
#include "program_driver.h"

using namespace cv2bench;

namespace {

const double kSlowSeconds = 0.030;

// One page's switches over the starts: the first visit and a later one.
struct PageTimes {
    Samples first, later;
};

// Visits every page of `host` twice round, from the second page to the last and then the first.
void VisitTwice(HWND host, std::vector<PageTimes>& pages) {
    const int count = static_cast<int>(pages.size());
    for (int round = 0; round < 2; ++round) {
        for (int step = 1; step <= count; ++step) {
            const int page = step % count;
            const double took = SwitchPage(host, page);
            if (took >= 0)
                (round == 0 ? pages[page].first : pages[page].later).values.push_back(took);
        }
    }
}

bool StartOnce(const DeviceFolder& device, std::vector<PageTimes>& main,
               std::vector<PageTimes>& editor) {
    Started program(device.Program());
    HWND window = program.Ok() ? WaitPainted(L"CorvaneSettings", program.Id()) : nullptr;
    if (!window || !WaitChild(window, IDC_PLUGIN_LIST) || !WaitIdle(window))
        return false;
    VisitTwice(window, main);
    double customize = 0;
    HWND dialog = OpenEditor(window, program.Id(), customize);
    if (!dialog || !WaitChild(dialog, IDC_COLORS_CHANGE) || !WaitIdle(dialog))
        return false;
    VisitTwice(dialog, editor);
    CloseEditor(dialog);
    return true;
}

void PrintPages(const char* host, const std::vector<std::wstring>& names,
                const std::vector<PageTimes>& pages, double minimal, int& slow) {
    std::printf("\n%s\n%-24s| %-30s| %-30s\n", host, "page", "first visit: ms (x) lo-hi",
                "later visit: ms (x) lo-hi");
    for (size_t i = 0; i < pages.size(); ++i) {
        std::printf("%-24ls", i < names.size() ? names[i].c_str() : L"?");
        for (const Samples* v : {&pages[i].first, &pages[i].later}) {
            const bool over = v->Median() > kSlowSeconds;
            slow += over ? 1 : 0;
            std::printf("| %5.1f (%.3fx) %5.1f-%-5.1f %s ", v->Median() * 1e3,
                        v->Median() / minimal, v->Lowest() * 1e3, v->Highest() * 1e3,
                        over ? "SLOW" : "    ");
        }
        std::printf("\n");
    }
}

} // namespace

int main(int argc, char** argv) {
    const Arguments arguments = ReadArguments(argc, argv);
    const Samples minimal = MinimalFirstPaint(arguments.starts);
    const std::vector<std::wstring> mainNames = MainPageNames(), editorNames = EditorPageNames();
    std::vector<PageTimes> mainPages(mainNames.size()), editorPages(editorNames.size());
    DeviceFolder folder(arguments.program, arguments.device, 0);
    // The first start warms Wine and the file cache.
    std::vector<PageTimes> warmMain(mainPages.size()), warmEditor(editorPages.size());
    StartOnce(folder, warmMain, warmEditor);
    int done = 0;
    for (int i = 0; i < arguments.starts; ++i)
        done += StartOnce(folder, mainPages, editorPages) ? 1 : 0;
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    std::printf("screen %dx%d at %d dpi; minimal program's first paint %.0f ms (%.0f-%.0f); "
                "medians of %d starts\n",
                GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), dpi,
                minimal.Median() * 1e3, minimal.Lowest() * 1e3, minimal.Highest() * 1e3, done);
    int slow = 0;
    PrintPages("main window", mainNames, mainPages, minimal.Median(), slow);
    PrintPages("theme editor", editorNames, editorPages, minimal.Median(), slow);
    std::printf("\n%d switches over %.0f ms\n", slow, kSlowSeconds * 1e3);
    return 0;
}
