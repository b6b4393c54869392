// Start-up of the real program against a minimal Win32 program, in the same run: the time from
// starting the process to its first painted page and to the themes listed on it (the list fills
// just after the first paint), the time of Customize to the theme editor's first painted page and
// of Apply, and the peak private memory read from outside, each with 0,
// 200 and 2,000 themes in the device folder. Times are medians of several starts, printed with
// their ratio to the minimal program's. It never passes or fails: it reports.
//
//   tools/wine-run.sh build/win/bench/startup_bench.exe [starts]
// (on a screen prepared with use_screen from tools/common.sh; the program and the minimal
// window are taken from the folder of this benchmark and the device folder).
#include <windows.h>
#include <psapi.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench_timing.h"
#include "platform/file_access.h"

using cv2bench::Median;
using cv2bench::Now;

namespace {

std::wstring Folder(const std::wstring& path) {
    return path.substr(0, path.find_last_of(L'\\') + 1);
}

std::wstring ThisFolder() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return Folder(path);
}

void WriteFileText(const std::wstring& path, const std::string& text) {
    HANDLE f = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(f, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(f);
}

// A theme file of the usual size: its information and a few dozen appearance keys.
std::string ThemeText(int n) {
    std::string text = "[Skin Info]\r\nName=Theme " + std::to_string(n) +
                       "\r\nAuthor=Bench\r\nAuthorEmail=bench@example.org\r\nHiRes=FALSE\r\n";
    for (const char* section :
         {"Topbar", "Menubar", "Button Images", "Start Menu Skin", "Sounds"}) {
        text += std::string("[") + section + "]\r\n";
        for (int k = 0; k < 12; ++k)
            text += "Key " + std::to_string(k) + "=picture" + std::to_string(k) + ".png\r\n";
    }
    return text;
}

// A scratch device folder with the program, an empty config.ini and `themes` theme folders.
class DeviceFolder {
  public:
    DeviceFolder(const std::wstring& program, int themes) {
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        m_dir = std::wstring(temp) + L"cv2startup-" + std::to_wstring(GetCurrentProcessId()) +
                L"-" + std::to_wstring(themes) + L"\\";
        CreateDirectoryW(m_dir.c_str(), nullptr);
        CopyFileW(program.c_str(), (m_dir + L"CV2Settings.exe").c_str(), FALSE);
        WriteFileText(m_dir + L"config.ini", "");
        CreateDirectoryW((m_dir + L"Themes").c_str(), nullptr);
        for (int i = 0; i < themes; ++i) {
            const std::wstring folder = m_dir + L"Themes\\Theme" + std::to_wstring(i);
            CreateDirectoryW(folder.c_str(), nullptr);
            WriteFileText(folder + L"\\Theme" + std::to_wstring(i) + L".skin", ThemeText(i));
        }
    }
    ~DeviceFolder() { cv2::RemoveFolderTree(m_dir); }
    std::wstring Program() const { return m_dir + L"CV2Settings.exe"; }

  private:
    std::wstring m_dir;
};

// Waits until a visible top-level window of the class belongs to the process and has no part
// left to paint; null after 30 s.
HWND WaitPainted(const wchar_t* className, DWORD processId) {
    for (int i = 0; i < 30000; ++i) {
        for (HWND w = FindWindowW(className, nullptr); w;
             w = FindWindowExW(nullptr, w, className, nullptr)) {
            DWORD owner = 0;
            GetWindowThreadProcessId(w, &owner);
            if (owner != processId || !IsWindowVisible(w))
                continue;
            DWORD_PTR ignored;
            SendMessageTimeoutW(w, WM_NULL, 0, 0, SMTO_NORMAL, 5000, &ignored);
            if (!GetUpdateRect(w, nullptr, FALSE))
                return w;
        }
        Sleep(1);
    }
    return nullptr;
}

// The first page's theme list, once it holds its rows (at least the custom theme's); null after
// 30 s.
HWND WaitListed(HWND main) {
    for (int i = 0; i < 30000; ++i) {
        HWND list = FindWindowExW(main, nullptr, L"ListBox", nullptr);
        DWORD_PTR count = 0;
        if (list && SendMessageTimeoutW(list, LB_GETCOUNT, 0, 0, SMTO_NORMAL, 5000, &count) &&
            count > 0)
            return list;
        Sleep(1);
    }
    return nullptr;
}

struct Start {
    double painted = 0;    // seconds from CreateProcess to the first painted page
    double listed = -1;    // seconds from CreateProcess to the themes listed on that page
    double customize = -1; // seconds from Customize to the editor's painted first page
    double apply = -1;     // seconds of one Apply
    double memoryMb = 0;   // peak private bytes
};

double PeakPrivateMb(HANDLE process) {
    PROCESS_MEMORY_COUNTERS_EX counters = {};
    counters.cb = sizeof counters;
    GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                         sizeof counters);
    return static_cast<double>(counters.PeakPagefileUsage) / (1024.0 * 1024.0);
}

BOOL CALLBACK FindCustomize(HWND child, LPARAM found) {
    wchar_t text[32] = {};
    GetWindowTextW(child, text, 32);
    if (lstrcmpW(text, L"Customize") == 0 && IsWindowVisible(child)) {
        *reinterpret_cast<HWND*>(found) = child;
        return FALSE;
    }
    return TRUE;
}

// Opens the theme editor on the custom theme: the catalogue's last entry, then Customize.
double TimeCustomize(HWND main, DWORD processId) {
    HWND list = FindWindowExW(main, nullptr, L"ListBox", nullptr);
    HWND customize = nullptr;
    EnumChildWindows(main, FindCustomize, reinterpret_cast<LPARAM>(&customize));
    if (!list || !customize)
        return -1;
    const LRESULT last = SendMessageW(list, LB_GETCOUNT, 0, 0) - 1;
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(last), 0);
    SendMessageW(main, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    const double start = Now();
    PostMessageW(main, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(customize), BN_CLICKED),
                 reinterpret_cast<LPARAM>(customize));
    HWND editor = WaitPainted(L"#32770", processId);
    const double took = Now() - start;
    if (!editor)
        return -1;
    PostMessageW(editor, WM_COMMAND, IDCANCEL, 0);
    for (int i = 0; i < 5000 && IsWindow(editor); ++i)
        Sleep(1);
    return took;
}

Start RunOnce(const std::wstring& program, const wchar_t* className, bool isEditor,
              const std::wstring& arguments = L"") {
    Start result;
    STARTUPINFOW si = {};
    si.cb = sizeof si;
    PROCESS_INFORMATION pi = {};
    std::wstring line = L"\"" + program + L"\" " + arguments;
    const double start = Now();
    if (!CreateProcessW(program.c_str(), &line[0], nullptr, nullptr, FALSE, 0, nullptr,
                        Folder(program).c_str(), &si, &pi))
        return result;
    HWND main = WaitPainted(className, pi.dwProcessId);
    result.painted = Now() - start;
    if (main && isEditor && WaitListed(main))
        result.listed = Now() - start;
    if (main && isEditor) {
        result.customize = TimeCustomize(main, pi.dwProcessId);
        const double applyStart = Now();
        SendMessageW(main, WM_COMMAND, MAKEWPARAM(40001, 0), 0); // the menu bar's Apply
        result.apply = Now() - applyStart;
    }
    result.memoryMb = PeakPrivateMb(pi.hProcess);
    TerminateProcess(pi.hProcess, 0);
    WaitForSingleObject(pi.hProcess, 10000);
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
    return result;
}

struct Summary {
    double painted, listed, customize, apply, memoryMb;
};

Summary Measure(const std::wstring& program, const wchar_t* className, bool isEditor, int starts,
                const std::wstring& arguments = L"") {
    // The first start also warms Wine and the file cache.
    RunOnce(program, className, isEditor, arguments);
    std::vector<double> painted, listed, customize, apply, memory;
    for (int i = 0; i < starts; ++i) {
        const Start s = RunOnce(program, className, isEditor, arguments);
        painted.push_back(s.painted);
        listed.push_back(s.listed);
        customize.push_back(s.customize);
        apply.push_back(s.apply);
        memory.push_back(s.memoryMb);
    }
    return {Median(painted), Median(listed), Median(customize), Median(apply), Median(memory)};
}

} // namespace

int main(int argc, char** argv) {
    const int starts = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    const std::wstring here = ThisFolder();
    const std::wstring program = here + L"..\\..\\device\\CV2Settings.exe";
    const Summary minimal =
        Measure(here + L"minimal_window.exe", L"CV2MinimalWindow", false, starts);
    std::printf("minimal program: first paint %.0f ms, peak private %.1f MB (median of %d)\n",
                minimal.painted * 1e3, minimal.memoryMb, starts);
    const Summary libraries = Measure(here + L"minimal_window.exe", L"CV2MinimalWindow", false,
                                      starts, L"--same-libraries");
    std::printf("minimal program with the editor's libraries and COM: first paint %.0f ms, "
                "peak private %.1f MB\n",
                libraries.painted * 1e3, libraries.memoryMb);
    for (int themes : {0, 200, 2000}) {
        DeviceFolder device(program, themes);
        const Summary s = Measure(device.Program(), L"CorvaneSettings", true, starts);
        std::printf("%4d themes: first paint %6.0f ms (%.2f x minimal)  themes listed %6.0f ms "
                    "(%.2f x)  peak private %5.1f MB (+%.1f MB, +%.1f MB over the same "
                    "libraries)  Customize %s  Apply %.0f ms\n",
                    themes, s.painted * 1e3, s.painted / minimal.painted, s.listed * 1e3,
                    s.listed / minimal.painted, s.memoryMb, s.memoryMb - minimal.memoryMb,
                    s.memoryMb - libraries.memoryMb,
                    s.customize < 0
                        ? "n/a"
                        : (std::to_string(static_cast<int>(s.customize * 1e3)) + " ms").c_str(),
                    s.apply * 1e3);
    }
    return 0;
}
