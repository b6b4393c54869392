#include "platform/running_tasks.h"

#include <windows.h>
#include <tlhelp32.h>

namespace cv2 {
namespace {

BOOL CALLBACK CollectWindow(HWND hwnd, LPARAM param) {
    auto* windows = reinterpret_cast<std::vector<TopWindowInfo>*>(param);
    TopWindowInfo info;
    const int length = GetWindowTextLengthW(hwnd);
    if (length > 0) {
        info.title.resize(static_cast<size_t>(length) + 1);
        const int got = GetWindowTextW(hwnd, &info.title[0], length + 1);
        info.title.resize(got > 0 ? static_cast<size_t>(got) : 0);
    }
    wchar_t className[256] = {};
    GetClassNameW(hwnd, className, 256);
    info.className = className;
    DWORD pid = 0;
    GetWindowThreadProcessId(hwnd, &pid);
    info.processId = pid;
    info.visible = IsWindowVisible(hwnd) != FALSE;
    info.owned = GetWindow(hwnd, GW_OWNER) != nullptr;
    info.toolWindow = (GetWindowLongW(hwnd, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
    windows->push_back(info);
    return TRUE;
}

} // namespace

std::vector<TopWindowInfo> ListTopWindows() {
    std::vector<TopWindowInfo> windows;
    EnumWindows(CollectWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<ProcessInfo> SnapshotProcesses() {
    std::vector<ProcessInfo> processes;
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snapshot == INVALID_HANDLE_VALUE)
        return processes;
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof entry;
    for (BOOL more = Process32FirstW(snapshot, &entry); more;
         more = Process32NextW(snapshot, &entry)) {
        processes.push_back(ProcessInfo{entry.th32ProcessID, entry.szExeFile});
        entry.dwSize = sizeof entry;
    }
    CloseHandle(snapshot);
    return processes;
}

} // namespace cv2
