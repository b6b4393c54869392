#include "program_driver.h"

#include <psapi.h>

#include <algorithm>
#include <cstdlib>

#include "app/page_list.h"
#include "bench_timing.h"
#include "ids_themes.h"
#include "platform/file_access.h"
#include "store/config_sections.h"
#include "store/ini_document.h"
#include "themes/theme_editor.h"

namespace cv2bench {
namespace {

const DWORD kWaitMs = 30000;

std::wstring FolderOf(const std::wstring& path) {
    return path.substr(0, path.find_last_of(L'\\') + 1);
}

void WriteFileText(const std::wstring& path, const std::string& text) {
    cv2::WriteFileReplacing(path, cv2::Bytes(text.begin(), text.end()));
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

// Copies the files of one folder (not its sub-folders).
void CopyFiles(const std::wstring& from, const std::wstring& to) {
    CreateDirectoryW(to.c_str(), nullptr);
    for (const std::wstring& name : cv2::ListFiles(from, L"*"))
        CopyFileW((from + name).c_str(), (to + name).c_str(), FALSE);
}

// Waits until `done` holds, polling; false after 30 s.
template <class Done> bool Until(Done done) {
    const double end = Now() + kWaitMs / 1000.0;
    while (!done()) {
        if (Now() > end)
            return false;
        Sleep(0);
    }
    return true;
}

bool Answered(HWND window) {
    DWORD_PTR ignored;
    return SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kWaitMs, &ignored) != 0;
}

BOOL CALLBACK AddVisible(HWND child, LPARAM list) {
    if (IsWindowVisible(child))
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
    return TRUE;
}

bool NothingToPaint(HWND window, const std::vector<HWND>& children) {
    if (GetUpdateRect(window, nullptr, FALSE))
        return false;
    for (HWND child : children) {
        if (GetUpdateRect(child, nullptr, FALSE))
            return false;
    }
    return true;
}

HWND OpenMenu() {
    HWND menu = FindWindowW(L"#32768", nullptr);
    return menu && IsWindowVisible(menu) ? menu : nullptr;
}

} // namespace

std::wstring ThisFolder() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return FolderOf(path);
}

DeviceFolder::DeviceFolder(const std::wstring& program, const std::wstring& sampleDevice,
                           int themes) {
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    m_dir = std::wstring(temp) + L"cv2bench-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
            std::to_wstring(themes) + L"\\";
    CreateDirectoryW(m_dir.c_str(), nullptr);
    CopyFileW(program.c_str(), Program().c_str(), FALSE);
    CreateDirectoryW(Themes().c_str(), nullptr);
    const std::wstring sample = Themes() + L"CVDefault\\";
    CopyFiles(sampleDevice + L"Themes\\CVDefault\\", sample);
    // The custom theme is the sample theme, its pictures named by full path.
    cv2::IniDocument skin;
    skin.Load(sample + L"CVDefault.skin");
    skin.DeleteSection(cv2::config::kSkinInfo);
    cv2::IniDocument config;
    config.SetString(cv2::config::kSettings, cv2::config::kThemeFile,
                     (m_dir + L"config.ini").c_str());
    config.MergeFrom(skin, true);
    config.Save((m_dir + L"config.ini").c_str());
    for (int i = 0; i < themes; ++i) {
        const std::wstring folder = Themes() + L"Theme" + std::to_wstring(i);
        CreateDirectoryW(folder.c_str(), nullptr);
        WriteFileText(folder + L"\\Theme" + std::to_wstring(i) + L".skin", ThemeText(i));
    }
}

DeviceFolder::~DeviceFolder() {
    cv2::RemoveFolderTree(m_dir);
}

double ListAndOpenSeconds(const std::wstring& themes) {
    const double start = Now();
    for (const std::wstring& sub : cv2::ListSubfolders(themes)) {
        const std::wstring folder = themes + sub + L"\\";
        for (const std::wstring& name : cv2::ListFiles(folder, L"*.skin")) {
            HANDLE file = CreateFileW((folder + name).c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
            if (file != INVALID_HANDLE_VALUE)
                CloseHandle(file);
        }
    }
    return Now() - start;
}

Started::Started(const std::wstring& program, const std::wstring& arguments) {
    STARTUPINFOW si = {};
    si.cb = sizeof si;
    std::wstring line = L"\"" + program + L"\" " + arguments;
    m_start = Now();
    if (!CreateProcessW(program.c_str(), &line[0], nullptr, nullptr, FALSE, 0, nullptr,
                        FolderOf(program).c_str(), &si, &m_pi))
        m_pi = PROCESS_INFORMATION{};
}

Started::~Started() {
    if (!m_pi.hProcess)
        return;
    TerminateProcess(m_pi.hProcess, 0);
    WaitForSingleObject(m_pi.hProcess, 10000);
    CloseHandle(m_pi.hThread);
    CloseHandle(m_pi.hProcess);
}

double Started::PeakPrivateMb() const {
    PROCESS_MEMORY_COUNTERS_EX counters = {};
    counters.cb = sizeof counters;
    GetProcessMemoryInfo(m_pi.hProcess, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                         sizeof counters);
    return static_cast<double>(counters.PeakPagefileUsage) / (1024.0 * 1024.0);
}

HWND WaitPainted(const wchar_t* className, DWORD processId) {
    HWND found = nullptr;
    Until([&] {
        for (HWND w = FindWindowW(className, nullptr); w;
             w = FindWindowExW(nullptr, w, className, nullptr)) {
            DWORD owner = 0;
            GetWindowThreadProcessId(w, &owner);
            if (owner != processId || !IsWindowVisible(w) || !Answered(w))
                continue;
            if (!GetUpdateRect(w, nullptr, FALSE)) {
                found = w;
                return true;
            }
        }
        return false;
    });
    return found;
}

bool WaitIdle(HWND window) {
    if (!Answered(window))
        return false;
    std::vector<HWND> children;
    EnumChildWindows(window, AddVisible, reinterpret_cast<LPARAM>(&children));
    return Until([&] { return !OpenMenu() && NothingToPaint(window, children); });
}

bool WaitListed(HWND main, LRESULT rows) {
    HWND list = nullptr;
    const bool filled = Until([&] {
        list = GetDlgItem(main, IDC_THEMES_LIST);
        DWORD_PTR count = 0;
        return list && SendMessageTimeoutW(list, LB_GETCOUNT, 0, 0, SMTO_NORMAL, kWaitMs, &count) &&
               static_cast<LRESULT>(count) >= rows;
    });
    // Asked without a message: the program may go on to other work once the list is painted.
    return filled && Until([&] { return !GetUpdateRect(list, nullptr, FALSE); });
}

bool WaitChild(HWND window, int id) {
    return Until([&] { return GetDlgItem(window, id) != nullptr; });
}

HWND OpenEditor(HWND main, DWORD processId, double& took) {
    HWND list = GetDlgItem(main, IDC_THEMES_LIST);
    HWND customize = GetDlgItem(main, IDC_THEMES_CUSTOMIZE);
    if (!list || !customize)
        return nullptr;
    const LRESULT row = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(L"Custom Theme"));
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(main, WM_COMMAND, MAKEWPARAM(IDC_THEMES_LIST, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    const double start = Now();
    PostMessageW(main, WM_COMMAND, MAKEWPARAM(IDC_THEMES_CUSTOMIZE, BN_CLICKED),
                 reinterpret_cast<LPARAM>(customize));
    HWND editor = WaitPainted(L"#32770", processId);
    took = Now() - start;
    return editor;
}

void CloseEditor(HWND editor) {
    PostMessageW(editor, WM_COMMAND, IDCANCEL, 0);
    Until([&] { return !IsWindow(editor); });
}

double SwitchPage(HWND host, int index) {
    RECT client;
    GetClientRect(host, &client);
    PostMessageW(host, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - 4, 4));
    HWND menu = nullptr;
    if (!Until([&] { return (menu = OpenMenu()) != nullptr; }))
        return -1;
    for (int i = 0; i <= index; ++i)
        PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
    // The item is highlighted before the pick is timed.
    Sleep(30);
    if (!Until([&] { return !GetUpdateRect(menu, nullptr, FALSE); }))
        return -1;
    const double start = Now();
    PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0);
    if (!Until([] { return OpenMenu() == nullptr; }) || !WaitIdle(host))
        return -1;
    return Now() - start;
}

namespace {

std::vector<std::wstring> NamesOf(const std::vector<cv2::SettingsPage*>& pages) {
    std::vector<std::wstring> names;
    for (cv2::SettingsPage* page : pages) {
        names.push_back(page ? page->GetName() : L"");
        delete page;
    }
    return names;
}

} // namespace

std::vector<std::wstring> MainPageNames() {
    return NamesOf(cv2::CreateMainPages());
}

std::vector<std::wstring> EditorPageNames() {
    return NamesOf(cv2::EditorPages());
}

double Samples::Median() const {
    return cv2bench::Median(values);
}

double Samples::Lowest() const {
    return values.empty() ? 0 : *std::min_element(values.begin(), values.end());
}

double Samples::Highest() const {
    return values.empty() ? 0 : *std::max_element(values.begin(), values.end());
}

Arguments ReadArguments(int argc, char** argv) {
    Arguments arguments;
    if (argc > 1)
        arguments.starts = std::max(1, std::atoi(argv[1]));
    arguments.device = ThisFolder() + L"..\\..\\device\\";
    arguments.program = arguments.device + L"CV2Settings.exe";
    if (argc > 2) {
        const std::string given = argv[2];
        arguments.program.assign(given.begin(), given.end());
    }
    return arguments;
}

bool StartMinimal(Samples& painted, Samples* memory) {
    Started minimal(ThisFolder() + L"minimal_window.exe");
    if (!minimal.Ok() || !WaitPainted(L"CV2MinimalWindow", minimal.Id()))
        return false;
    painted.values.push_back(Now() - minimal.StartTime());
    if (memory)
        memory->values.push_back(minimal.PeakPrivateMb());
    return true;
}

Samples MinimalFirstPaint(int starts, Samples* memory) {
    Samples warming, painted;
    StartMinimal(warming);
    for (int i = 0; i < starts; ++i)
        StartMinimal(painted, memory);
    return painted;
}

} // namespace cv2bench
