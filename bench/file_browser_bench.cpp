// How long the file browser takes, in image mode, from being opened on a folder of pictures to
// its first painted screen of thumbnails, for folders of 100, 1,000 and 10,000 pictures. Each is
// printed as a ratio against the 100-picture folder of the same run. Only the thumbnails in view
// are decoded, so beyond listing the folder (its files for each pattern of the filter, and its
// sub-folders when the tree opens it) and sorting the files, timed on their own alongside, the
// time should not grow with the folder. It never passes or fails: it reports.
//
//   tools/wine-run.sh build/win/bench/file_browser_bench.exe [rounds]
// (on a screen prepared with use_screen from tools/common.sh).
#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bmp_file.h"
#include "bench_timing.h"
#include "store/scale.h"
#include "store/screen.h"
#include "ui/browser/folder_listing.h"
#include "ui/browser/thumbnails.h"
#include "ui/file_browser.h"
#include "ui/icon_grid.h"

using namespace cv2;
using cv2bench::Median;
using cv2bench::Now;

namespace {

// A scratch folder of `count` small pictures of a few shapes, removed again on destruction.
class PictureFolder {
  public:
    explicit PictureFolder(int count) {
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        m_path = std::wstring(temp) + L"cv2bench-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                 std::to_wstring(count);
        CreateDirectoryW(m_path.c_str(), nullptr);
        const int shapes[][2] = {{96, 64}, {48, 48}, {64, 96}, {80, 60}};
        for (int i = 0; i < count; ++i) {
            wchar_t name[32];
            swprintf(name, 32, L"\\Picture %05d.bmp", i + 1);
            const std::string bytes =
                cv2test::BmpFileBytes(shapes[i % 4][0], shapes[i % 4][1], static_cast<unsigned>(i));
            HANDLE file = CreateFileW((m_path + name).c_str(), GENERIC_WRITE, 0, nullptr,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
            DWORD written = 0;
            WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
            CloseHandle(file);
            m_files.push_back(m_path + name);
        }
    }
    ~PictureFolder() {
        for (const std::wstring& file : m_files)
            DeleteFileW(file.c_str());
        RemoveDirectoryW(m_path.c_str());
    }
    const std::wstring& Path() const { return m_path; }

  private:
    std::wstring m_path;
    std::vector<std::wstring> m_files;
};

// The open measurement: the grid's painting is watched. The first paint that leaves thumbnails in
// its picture list is the first painted screen of thumbnails; the dialog is then cancelled.
struct Watch {
    HWND grid = nullptr;
    WNDPROC gridProc = nullptr;
    double start = 0;
    double firstScreen = 0;
    int pictures = 0;
};
Watch g_watch;
HHOOK g_hook = nullptr;

int PictureCount(HWND grid) {
    HIMAGELIST images = reinterpret_cast<HIMAGELIST>(SendMessageW(grid, GRM_GETIMAGELIST, 0, 0));
    return images ? ImageList_GetImageCount(images) : 0;
}

LRESULT CALLBACK WatchedGridProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CallWindowProcW(g_watch.gridProc, hwnd, msg, wParam, lParam);
    if (msg == WM_PAINT && g_watch.firstScreen == 0) {
        const int pictures = PictureCount(hwnd);
        if (pictures > 0) {
            g_watch.firstScreen = Now();
            g_watch.pictures = pictures;
            PostMessageW(GetParent(hwnd), WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
        }
    }
    return result;
}

// The grid is caught as it is made, before its WM_CREATE, and its window procedure wrapped.
LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && !g_watch.grid) {
        const auto* create = reinterpret_cast<CBT_CREATEWNDW*>(lParam);
        const wchar_t* cls = create->lpcs->lpszClass;
        if (!IS_INTRESOURCE(cls) && lstrcmpiW(cls, kIconGridClass) == 0) {
            g_watch.grid = reinterpret_cast<HWND>(wParam);
            g_watch.gridProc = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
                g_watch.grid, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WatchedGridProc)));
        }
    }
    return CallNextHookEx(g_hook, code, wParam, lParam);
}

struct Sample {
    double listMs;  // listing the folder's files and sub-folders, and sorting, alone
    double firstMs; // opening the browser to its first screen of thumbnails
    int pictures;   // thumbnails decoded for it
};

Sample Measure(const PictureFolder& folder) {
    Sample s = {};
    // What the browser lists of the folder: its files for the filter's four patterns, and its
    // sub-folders when the tree opens it.
    const double listStart = Now();
    const size_t listed = ListFiles(folder.Path(), {L"*.jpg", L"*.png", L"*.gif", L"*.bmp"}).size();
    ListSubFolders(folder.Path());
    s.listMs = (Now() - listStart) * 1e3;

    g_watch = Watch();
    g_hook = SetWindowsHookExW(WH_CBT, CreationHook, nullptr, GetCurrentThreadId());
    FileBrowser browser(true, false);
    browser.SetFilter(L"Graphics Files|*.jpg;*.png;*.gif;*.bmp|All Files|*.*", false, nullptr);
    browser.startFolder = folder.Path();
    g_watch.start = Now();
    browser.Run(nullptr);
    UnhookWindowsHookEx(g_hook);
    s.firstMs = g_watch.firstScreen > 0 ? (g_watch.firstScreen - g_watch.start) * 1e3 : -1;
    s.pictures = g_watch.pictures;
    if (browser.files.size() != listed)
        std::printf("warning: the browser listed %zu files, the listing %zu\n",
                    browser.files.size(), listed);
    return s;
}

// Milliseconds to read one picture and make its thumbnail, the median over the first files.
double ThumbnailMs(const PictureFolder& folder) {
    std::vector<double> times;
    for (const std::wstring& path : ListFiles(folder.Path(), {L"*.bmp"})) {
        const double start = Now();
        LoadThumbnail(path, ScaleX(73), RGB(255, 255, 255));
        times.push_back((Now() - start) * 1e3);
        if (times.size() == 20)
            break;
    }
    return times.empty() ? 0 : Median(times);
}

} // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    ReadScreenDensities();
    RegisterIconGridClass(GetModuleHandleW(nullptr));
    std::printf("screen %dx%d at %d dpi, %d rounds\n", GetSystemMetrics(SM_CXSCREEN),
                GetSystemMetrics(SM_CYSCREEN), g_dpiX, rounds);
    const std::vector<int> counts = {100, 1000, 10000};
    std::vector<PictureFolder*> folders;
    for (int count : counts)
        folders.push_back(new PictureFolder(count));

    Measure(*folders[0]); // warm-up: fonts, the decoder, caches
    std::vector<std::vector<Sample>> samples(counts.size());
    // Rounds interleave the folders, so that a busy moment of the machine hits all of them alike.
    for (int r = 0; r < rounds; ++r) {
        for (size_t i = 0; i < counts.size(); ++i)
            samples[i].push_back(Measure(*folders[i]));
    }
    std::printf("\nimage mode: median milliseconds, and ratio to %d pictures\n", counts[0]);
    std::printf("%8s | %10s %6s | %14s %6s | %16s %6s | %9s\n", "pictures", "listing", "ratio",
                "first screen", "ratio", "screen - listing", "ratio", "decoded");
    double base[3] = {};
    for (size_t i = 0; i < counts.size(); ++i) {
        std::vector<double> list, first, rest;
        for (const Sample& s : samples[i]) {
            list.push_back(s.listMs);
            first.push_back(s.firstMs);
            rest.push_back(s.firstMs - s.listMs);
        }
        const double m[3] = {Median(list), Median(first), Median(rest)};
        if (i == 0)
            std::copy(m, m + 3, base);
        std::printf("%8d | %10.1f %6.2f | %14.1f %6.2f | %16.1f %6.2f | %9d\n", counts[i], m[0],
                    base[0] > 0 ? m[0] / base[0] : 0.0, m[1], base[1] > 0 ? m[1] / base[1] : 0.0,
                    m[2], base[2] > 0 ? m[2] / base[2] : 0.0, samples[i][0].pictures);
    }
    std::printf("one thumbnail (read, scale, flatten): %.1f ms\n", ThumbnailMs(*folders[0]));
    for (PictureFolder* folder : folders)
        delete folder;
    std::fflush(stdout);
    return 0;
}
