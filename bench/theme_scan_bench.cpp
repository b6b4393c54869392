// Where the time of listing the themes goes, step by step, in a scratch device folder of 200 and
// 2,000 generated themes: listing the theme folders, listing each folder's ".skin" files, opening
// them, reading them, the scan on one thread and the program's own scan, and adding the rows
// to a sorted list box. Medians of several rounds, in milliseconds and per theme. It never passes
// or fails: it reports.
//
//   tools/wine-run.sh build/win/bench/theme_scan_bench.exe [rounds]
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "bench_timing.h"
#include "platform/file_access.h"
#include "program_driver.h"
#include "themes/theme_catalogue.h"

using namespace cv2bench;

namespace {

std::vector<std::wstring> Subfolders(const std::wstring& themes) {
    std::vector<std::wstring> folders;
    for (const std::wstring& sub : cv2::ListSubfolders(themes))
        folders.push_back(themes + sub + L"\\");
    return folders;
}

void ListSkins(const std::wstring& themes) {
    for (const std::wstring& folder : Subfolders(themes))
        cv2::ListFiles(folder, L"*.skin");
}

// Each folder's ".skin" names through the basic listing with large fetches (no short names).
void ListSkinsBasic(const std::wstring& themes) {
    for (const std::wstring& folder : Subfolders(themes)) {
        WIN32_FIND_DATAW found;
        HANDLE find = FindFirstFileExW((folder + L"*.skin").c_str(), FindExInfoBasic, &found,
                                       FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
        if (find == INVALID_HANDLE_VALUE)
            continue;
        while (FindNextFileW(find, &found)) {
        }
        FindClose(find);
    }
}

// Each folder's entries through a handle on the folder and its full directory information.
void ListSkinsByHandle(const std::wstring& themes) {
    alignas(8) unsigned char buffer[16384];
    for (const std::wstring& folder : Subfolders(themes)) {
        HANDLE dir = CreateFileW(folder.c_str(), FILE_LIST_DIRECTORY,
                                 FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                 OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (dir == INVALID_HANDLE_VALUE)
            continue;
        while (GetFileInformationByHandleEx(dir, FileFullDirectoryInfo, buffer, sizeof buffer)) {
        }
        CloseHandle(dir);
    }
}

void ReadSkins(const std::wstring& themes) {
    cv2::Bytes bytes;
    for (const std::wstring& folder : Subfolders(themes)) {
        for (const std::wstring& name : cv2::ListFiles(folder, L"*.skin"))
            cv2::ReadWholeFile(folder + name, bytes);
    }
}

// The scan one folder after the other, on this thread only.
void ScanInTurn(const std::wstring& themes) {
    std::vector<cv2::ThemeEntry> found;
    for (const std::wstring& folder : Subfolders(themes))
        cv2::ScanThemeFolder(folder, found);
}

void AddRows(const std::vector<cv2::ThemeEntry>& entries) {
    HWND list = CreateWindowW(L"LISTBOX", L"", LBS_SORT | LBS_NOTIFY | WS_VSCROLL | WS_POPUP, 0, 0,
                              240, 141, nullptr, nullptr, nullptr, nullptr);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (const cv2::ThemeEntry& e : entries) {
        const std::wstring text = cv2::ThemeDisplayText(e, L"[1.x Theme] ");
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    DestroyWindow(list);
}

double MedianMs(int rounds, const std::function<void()>& step) {
    std::vector<double> took;
    for (int i = 0; i < rounds; ++i) {
        const double start = Now();
        step();
        took.push_back(Now() - start);
    }
    return Median(took) * 1e3;
}

} // namespace

int main(int argc, char** argv) {
    const Arguments arguments = ReadArguments(argc, argv);
    const int rounds = argc > 1 ? arguments.starts : 7;
    std::printf("medians of %d rounds: ms (ms per 1,000 themes)\n", rounds);
    for (int themes : {200, 2000}) {
        DeviceFolder device(arguments.program, arguments.device, themes);
        const std::wstring dir = device.Themes();
        const std::vector<cv2::ThemeEntry> entries = cv2::ScanThemes({dir});
        const std::pair<const char*, std::function<void()>> steps[] = {
            {"list the theme folders", [&] { Subfolders(dir); }},
            {"+ list each folder's .skin", [&] { ListSkins(dir); }},
            {"  the same, basic large fetch", [&] { ListSkinsBasic(dir); }},
            {"  the same, by folder handle", [&] { ListSkinsByHandle(dir); }},
            {"+ open and close each (floor)", [&] { ListAndOpenSeconds(dir); }},
            {"+ read each whole", [&] { ReadSkins(dir); }},
            {"the scan on one thread", [&] { ScanInTurn(dir); }},
            {"the program's scan (threads)", [&] { cv2::ScanThemes({dir}); }},
            {"the rows into a sorted list", [&] { AddRows(entries); }},
        };
        std::printf("\n%d themes\n", themes);
        for (const auto& step : steps) {
            const double ms = MedianMs(rounds, step.second);
            std::printf("  %-32s %7.1f ms (%6.1f)\n", step.first, ms, ms * 1000 / themes);
        }
    }
    return 0;
}
