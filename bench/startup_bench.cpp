// Where users of the real program wait, against a minimal Win32 program started in the same run
// (once after each start of the real program, so that a machine that slows down or speeds up
// during the run moves both alike), with 0, 200 and 2,000 themes in the device folder (besides
// the sample theme, which is also the custom theme): the time from starting the process to its
// first painted page; to every theme listed on it; the cost of just listing the theme folders
// and opening their files on one thread (what any listing pays, timed here); Customize, from the
// press to the theme editor's painted first page; one Apply; the slowest first switch to a page
// of the main window or the editor (see page_switch_bench for every page); and the peak private
// memory, read from outside. Times are medians of several starts, printed as ratios to the
// minimal program's first paint, then in milliseconds with the spread of the starts. It never
// passes or fails: it reports.
//
//   tools/wine-run.sh build/win/bench/startup_bench.exe [starts] [program]
// (on a screen prepared with use_screen from tools/common.sh; the program is by default the
// device folder's, and the minimal window is taken from the folder of this benchmark).
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench_timing.h"
#include "ids_app.h"
#include "ids_behaviour.h"
#include "ids_appearance_controls.h"
#include "program_driver.h"

using namespace cv2bench;

namespace {

enum Measure { FirstPaint, Listed, Floor, Customize, Apply, WorstSwitch, Memory, MeasureCount };
const char* const kHeadings[MeasureCount] = {"first paint", "themes listed", "list floor",
                                             "Customize",   "Apply",         "worst switch",
                                             "peak private"};

// Every page of `host` once, from the second to the last and then the first; the seconds of
// each, by page index.
std::vector<double> VisitEveryPage(HWND host, int pages) {
    std::vector<double> took(static_cast<size_t>(pages), -1);
    for (int step = 1; step <= pages; ++step) {
        const int page = step % pages;
        took[static_cast<size_t>(page)] = SwitchPage(host, page);
    }
    return took;
}

struct Run {
    Samples measures[MeasureCount];
    std::vector<Samples> switches; // main pages, then editor pages
    std::wstring worstPage;
};

// One start of the real program through everything the table shows; false if it failed.
bool StartOnce(const DeviceFolder& device, int themes, Run& run) {
    const size_t mainPages = MainPageNames().size(), editorPages = EditorPageNames().size();
    Started program(device.Program());
    HWND main = program.Ok() ? WaitPainted(L"CorvaneSettings", program.Id()) : nullptr;
    const double painted = Now() - program.StartTime();
    // Every generated theme, the sample theme and the custom theme.
    if (!main || !WaitListed(main, themes + 2))
        return false;
    const double listed = Now() - program.StartTime();
    if (!WaitChild(main, IDC_PLUGIN_LIST) || !WaitIdle(main))
        return false;
    std::vector<double> switches = VisitEveryPage(main, static_cast<int>(mainPages));
    double customize = 0;
    HWND editor = OpenEditor(main, program.Id(), customize);
    if (!editor || !WaitChild(editor, IDC_COLORS_CHANGE) || !WaitIdle(editor))
        return false;
    for (double t : VisitEveryPage(editor, static_cast<int>(editorPages)))
        switches.push_back(t);
    CloseEditor(editor);
    WaitIdle(main);
    const double applyStart = Now();
    SendMessageW(main, WM_COMMAND, MAKEWPARAM(IDC_APPLY, 0), 0);
    const double apply = Now() - applyStart;
    const auto note = [&](Measure m, double value) { run.measures[m].values.push_back(value); };
    note(FirstPaint, painted);
    note(Listed, listed);
    note(Floor, ListAndOpenSeconds(device.Themes()));
    note(Customize, customize);
    note(Apply, apply);
    note(Memory, program.PeakPrivateMb());
    run.switches.resize(switches.size());
    for (size_t i = 0; i < switches.size(); ++i)
        run.switches[i].values.push_back(switches[i]);
    return true;
}

// The slowest page by its median over the starts.
void FindWorstSwitch(Run& run) {
    std::vector<std::wstring> names = MainPageNames();
    for (const std::wstring& name : EditorPageNames())
        names.push_back(L"editor: " + name);
    size_t worst = 0;
    for (size_t i = 0; i < run.switches.size(); ++i) {
        if (run.switches[i].Median() > run.switches[worst].Median())
            worst = i;
    }
    if (run.switches.empty())
        return;
    run.measures[WorstSwitch] = run.switches[worst];
    run.worstPage = worst < names.size() ? names[worst] : L"?";
}

void PrintRow(int themes, const Run& run, double minimal, double minimalMb) {
    std::printf("%5d ", themes);
    for (int m = 0; m < MeasureCount; ++m) {
        const Samples& s = run.measures[m];
        if (m == Memory)
            std::printf("| %5.1f MB (+%.1f) ", s.Median(), s.Median() - minimalMb);
        else
            std::printf("| %5.2fx %5.0f ms ", s.Median() / minimal, s.Median() * 1e3);
    }
    std::printf("| %ls\n", run.worstPage.c_str());
}

void PrintSpread(int themes, const Run& run) {
    std::printf("%5d ", themes);
    for (int m = 0; m < MeasureCount; ++m) {
        const Samples& s = run.measures[m];
        const double scale = m == Memory ? 1 : 1e3;
        std::printf("| %6.0f - %-6.0f ", s.Lowest() * scale, s.Highest() * scale);
    }
    std::printf("|\n");
}

} // namespace

int main(int argc, char** argv) {
    const Arguments arguments = ReadArguments(argc, argv);
    // The minimal program starts once after each start of the real one, so that both are
    // measured over the same minutes of the machine's life.
    Samples minimal, minimalMemory;
    StartMinimal(minimal); // warms Wine and the file cache
    minimal = Samples();
    std::vector<std::pair<int, Run>> rows;
    for (int themes : {0, 200, 2000}) {
        DeviceFolder folder(arguments.program, arguments.device, themes);
        Run run;
        StartOnce(folder, themes, run); // warms Wine and the file cache
        run = Run();
        for (int i = 0; i < arguments.starts; ++i) {
            if (!StartOnce(folder, themes, run))
                std::printf("(%d themes: a start failed and is left out)\n", themes);
            StartMinimal(minimal, &minimalMemory);
        }
        FindWorstSwitch(run);
        rows.emplace_back(themes, run);
    }
    std::printf("minimal program: first paint %.0f ms (%.0f - %.0f), peak private %.1f MB; "
                "medians of %d starts, %d of the minimal program\n\n",
                minimal.Median() * 1e3, minimal.Lowest() * 1e3, minimal.Highest() * 1e3,
                minimalMemory.Median(), arguments.starts, static_cast<int>(minimal.values.size()));
    std::printf("themes");
    for (const char* heading : kHeadings)
        std::printf("| %-16s", heading);
    std::printf("| slowest page\n");
    for (const auto& row : rows)
        PrintRow(row.first, row.second, minimal.Median(), minimalMemory.Median());
    std::printf("\nspread of the starts (ms; MB for memory), lowest - highest:\n");
    for (const auto& row : rows)
        PrintSpread(row.first, row.second);
    return 0;
}
