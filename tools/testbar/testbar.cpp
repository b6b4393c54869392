// Stand-in for the bar in tests and demos. It makes the windows the editor looks for:
//   a top-level "HHTaskbar" window holding a child of class "Corvane_FullBar" ("child"), and
//   a top-level "Corvane_FullBar" window placed right after "HHTaskbar" in the window order
//   ("sibling").
// Every registered message a window receives is appended to the log file named on the command
// line as one line: "<window> <message name> <wParam> <lParam>". Closing "HHTaskbar" ends it.
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

std::wstring g_logPath;

void AppendLog(const wchar_t* window, UINT msg, WPARAM wParam, LPARAM lParam) {
    wchar_t name[128] = L"?";
    GetClipboardFormatNameW(msg, name, 128);
    char line[512];
    std::snprintf(line, sizeof line, "%ls %ls %llu %lld\n", window, name,
                  static_cast<unsigned long long>(wParam), static_cast<long long>(lParam));
    HANDLE h = CreateFileW(g_logPath.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                           nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return;
    DWORD written = 0;
    WriteFile(h, line, static_cast<DWORD>(std::strlen(line)), &written, nullptr);
    CloseHandle(h);
}

LRESULT CALLBACK BarProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg >= 0xC000 && msg <= 0xFFFF) {
        const bool child = (GetWindowLongPtrW(hwnd, GWL_STYLE) & WS_CHILD) != 0;
        AppendLog(child ? L"child" : L"sibling", msg, wParam, lParam);
        return 0;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

LRESULT CALLBACK TaskbarProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg >= 0xC000 && msg <= 0xFFFF) {
        AppendLog(L"taskbar", msg, wParam, lParam);
        return 0;
    }
    if (msg == WM_DESTROY) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

void RegisterClassNamed(HINSTANCE instance, const wchar_t* name, WNDPROC proc) {
    WNDCLASSW wc = {};
    wc.lpfnWndProc = proc;
    wc.hInstance = instance;
    wc.lpszClassName = name;
    RegisterClassW(&wc);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR commandLine, int) {
    g_logPath = (commandLine && *commandLine) ? commandLine : L"testbar.log";
    if (g_logPath.size() > 1 && g_logPath.front() == L'"' && g_logPath.back() == L'"')
        g_logPath = g_logPath.substr(1, g_logPath.size() - 2);
    RegisterWindowMessageW(L"CVResetConfig");
    RegisterClassNamed(instance, L"HHTaskbar", TaskbarProc);
    RegisterClassNamed(instance, L"Corvane_FullBar", BarProc);

    // Hidden windows: they take part in the window order without showing up on screen.
    HWND sibling = CreateWindowExW(0, L"Corvane_FullBar", L"sibling", WS_POPUP, 0, 0, 10, 10,
                                   nullptr, nullptr, instance, nullptr);
    HWND taskbar = CreateWindowExW(0, L"HHTaskbar", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                   instance, nullptr);
    CreateWindowExW(0, L"Corvane_FullBar", L"child", WS_CHILD, 0, 0, 10, 10, taskbar, nullptr,
                    instance, nullptr);
    SetWindowPos(sibling, taskbar, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);

    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    return 0;
}
