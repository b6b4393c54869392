#include "device_fixture.h"

#include <cstdlib>
#include <vector>

#include "app/page_list.h"
#include "ids_behaviour.h"
#include "ids_editor.h"
#include "ids_themes.h"
#include "platform/file_access.h"
#include "themes/theme_editor.h"

namespace cv2test {
namespace {

std::wstring SourceDeviceFolder() {
    const char* dir = std::getenv("CV2_DEVICE_DIR");
    std::string s = dir ? dir : ".";
    return std::wstring(s.begin(), s.end()) + L"\\";
}

std::wstring UniqueScratchFolder() {
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    static int counter = 0;
    for (;;) {
        std::wstring dir = std::wstring(temp) + L"cv2e2e-" +
                           std::to_wstring(GetCurrentProcessId()) + L"-" +
                           std::to_wstring(counter++) + L"\\";
        if (CreateDirectoryW(dir.c_str(), nullptr))
            return dir;
    }
}

// Starts the program; with `errors` its standard error is that handle (inherited).
bool Launch(const std::wstring& exe, const std::wstring& arguments, PROCESS_INFORMATION& pi,
            HANDLE errors = nullptr) {
    std::wstring line = L"\"" + exe + L"\" " + arguments;
    std::vector<wchar_t> buffer(line.begin(), line.end());
    buffer.push_back(L'\0');
    STARTUPINFOW si{};
    si.cb = sizeof si;
    if (errors) {
        si.dwFlags = STARTF_USESTDHANDLES;
        si.hStdError = errors;
    }
    return CreateProcessW(exe.c_str(), buffer.data(), nullptr, nullptr, errors ? TRUE : FALSE, 0,
                          nullptr, nullptr, &si, &pi) != 0;
}

DWORD WaitForExit(PROCESS_INFORMATION& pi, DWORD timeoutMs) {
    DWORD code = ~0u;
    if (WaitForSingleObject(pi.hProcess, timeoutMs) == WAIT_OBJECT_0) {
        GetExitCodeProcess(pi.hProcess, &code);
    } else {
        ADD_FAILURE() << "the program did not exit in time";
        TerminateProcess(pi.hProcess, 1);
    }
    CloseHandle(pi.hProcess);
    CloseHandle(pi.hThread);
    return code;
}

} // namespace

void DeviceFixture::SetUp() {
    // The X server starts with the pointer in the middle of the screen, where menus and lists
    // open. A window appearing under it gets a mouse move, which would select whatever item lies
    // there between keys the tests send. The top left corner is the header strip, which nothing
    // opens over.
    SetCursorPos(0, 0);
    m_dir = UniqueScratchFolder();
    m_logPath = m_dir.substr(0, m_dir.size() - 1) + L"-bar.log";
    DeleteFileW(m_logPath.c_str());
    ASSERT_TRUE(CopyFileW((SourceDeviceFolder() + L"CV2Settings.exe").c_str(),
                          File(L"CV2Settings.exe").c_str(), FALSE))
        << "CV2_DEVICE_DIR must hold the built program";
}

void DeviceFixture::TearDown() {
    if (EditorRunning()) {
        TerminateProcess(m_editor.hProcess, 1);
        WaitEditorExit(5000);
    }
    StopBar();
    cv2::RemoveFolderTree(m_dir);
    DeleteFileW(m_logPath.c_str());
}

void DeviceFixture::WriteText(const std::wstring& name, const std::string& bytes) const {
    ASSERT_TRUE(cv2::WriteFileReplacing(File(name), cv2::Bytes(bytes.begin(), bytes.end())));
}

std::string DeviceFixture::ReadText(const std::wstring& name) const {
    cv2::Bytes bytes;
    cv2::ReadWholeFile(File(name), bytes);
    return std::string(bytes.begin(), bytes.end());
}

bool DeviceFixture::Exists(const std::wstring& name) const {
    return cv2::FileExists(File(name));
}

void DeviceFixture::StartBar() {
    ASSERT_FALSE(FindWindowW(L"HHTaskbar", nullptr)) << "a test bar is already running";
    ASSERT_TRUE(Launch(SourceDeviceFolder() + L"testbar.exe", L"\"" + m_logPath + L"\"", m_bar));
    for (int i = 0; i < 200 && !FindWindowW(L"HHTaskbar", nullptr); ++i)
        Sleep(50);
    ASSERT_TRUE(FindWindowW(L"HHTaskbar", nullptr)) << "the test bar did not start";
}

void DeviceFixture::StopBar() {
    if (!m_bar.hProcess)
        return;
    if (HWND taskbar = FindWindowW(L"HHTaskbar", nullptr))
        PostMessageW(taskbar, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(m_bar.hProcess, 10000) != WAIT_OBJECT_0)
        TerminateProcess(m_bar.hProcess, 1);
    CloseHandle(m_bar.hProcess);
    CloseHandle(m_bar.hThread);
    m_bar = PROCESS_INFORMATION{};
}

std::string DeviceFixture::BarLog() const {
    cv2::Bytes bytes;
    cv2::ReadWholeFile(m_logPath, bytes);
    return std::string(bytes.begin(), bytes.end());
}

DWORD DeviceFixture::RunEditor(const std::wstring& arguments, DWORD timeoutMs) {
    PROCESS_INFORMATION pi{};
    if (!Launch(File(L"CV2Settings.exe"), arguments, pi)) {
        ADD_FAILURE() << "could not start the program";
        return ~0u;
    }
    return WaitForExit(pi, timeoutMs);
}

DWORD DeviceFixture::RunEditor(const std::wstring& arguments, std::string& errors,
                               DWORD timeoutMs) {
    SECURITY_ATTRIBUTES inherit = {sizeof inherit, nullptr, TRUE};
    HANDLE read = nullptr, write = nullptr;
    if (!CreatePipe(&read, &write, &inherit, 0)) {
        ADD_FAILURE() << "no pipe for standard error";
        return ~0u;
    }
    SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
    PROCESS_INFORMATION pi{};
    const bool started = Launch(File(L"CV2Settings.exe"), arguments, pi, write);
    CloseHandle(write);
    DWORD code = ~0u;
    if (started)
        code = WaitForExit(pi, timeoutMs);
    else
        ADD_FAILURE() << "could not start the program";
    // The program has ended and its end of the pipe is closed: everything is in the pipe.
    char chunk[512];
    DWORD got = 0;
    while (ReadFile(read, chunk, sizeof chunk, &got, nullptr) && got > 0)
        errors.append(chunk, got);
    CloseHandle(read);
    return code;
}

HWND DeviceFixture::StartEditor(const std::wstring& arguments) {
    if (!Launch(File(L"CV2Settings.exe"), arguments, m_editor)) {
        ADD_FAILURE() << "could not start the editor";
        return nullptr;
    }
    WaitForInputIdle(m_editor.hProcess, 10000);
    WaitFor([&] { return (m_main = FindWindowW(L"CorvaneSettings", nullptr)) != nullptr; }, 20000);
    EXPECT_TRUE(m_main) << "the editor's main window did not appear";
    // The first page lists the themes just after the window's first paint; a list that is
    // filled holds at least the custom theme's row.
    EXPECT_TRUE(WaitFor([&] {
        HWND list = FindWindowExW(m_main, nullptr, L"ListBox", nullptr);
        return list && SendMessageW(list, LB_GETCOUNT, 0, 0) > 0;
    })) << "the themes were not listed";
    // The window as the user meets it: the other pages are made once the themes are listed,
    // Plugins last.
    EXPECT_TRUE(WaitFor([&] { return GetDlgItem(m_main, IDC_PLUGIN_LIST) != nullptr; }))
        << "the main window's later pages were never made";
    return m_main;
}

bool DeviceFixture::EditorRunning() const {
    return m_editor.hProcess && WaitForSingleObject(m_editor.hProcess, 0) == WAIT_TIMEOUT;
}

bool DeviceFixture::WaitEditorExit(DWORD timeoutMs) {
    if (!m_editor.hProcess)
        return true;
    const bool ended = WaitForSingleObject(m_editor.hProcess, timeoutMs) == WAIT_OBJECT_0;
    if (!ended)
        TerminateProcess(m_editor.hProcess, 1);
    WaitForSingleObject(m_editor.hProcess, 5000);
    CloseHandle(m_editor.hProcess);
    CloseHandle(m_editor.hThread);
    m_editor = PROCESS_INFORMATION{};
    m_main = nullptr;
    return ended;
}

HWND DeviceFixture::OpenMenu() {
    HWND menu = FindWindowW(L"#32768", nullptr);
    return menu && IsWindowVisible(menu) ? menu : nullptr;
}

// Taps the right end of the header strip and waits for the page menu.
HWND DeviceFixture::TapHeader() {
    RECT client;
    GetClientRect(m_main, &client);
    PostMessageW(m_main, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - 4, 4));
    WaitFor([] { return OpenMenu() != nullptr; });
    return OpenMenu();
}

std::vector<std::wstring> DeviceFixture::MainPageNames() {
    std::vector<std::wstring> names;
    for (cv2::SettingsPage* page : cv2::CreateMainPages()) {
        names.push_back(page ? page->GetName() : L"");
        delete page;
    }
    return names;
}

std::wstring DeviceFixture::ScreenshotName(const std::wstring& prefix, int index,
                                           const std::wstring& name) {
    wchar_t number[8];
    wsprintfW(number, L"-%02d-", index);
    std::wstring out = prefix + number;
    for (wchar_t c : name) {
        if ((c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9'))
            out += c;
    }
    return out;
}

void DeviceFixture::SelectPage(int index) {
    HWND menu = TapHeader();
    ASSERT_TRUE(menu) << "the page menu did not open";
    for (int i = 0; i <= index; ++i)
        PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0);
    ASSERT_TRUE(WaitFor([] { return OpenMenu() == nullptr; })) << "the page menu stayed open";
    SendMessageW(m_main, WM_NULL, 0, 0); // the selection has been handled once this returns
}

HWND DeviceFixture::OpenThemeEditor() {
    SendMessageW(m_main, WM_NULL, 0, 0);
    EXPECT_TRUE(WaitFor([&] {
        HWND customize = ShownControl(IDC_THEMES_CUSTOMIZE);
        return customize && IsWindowEnabled(customize);
    })) << "Customize never became enabled";
    PostMessageW(ShownControl(IDC_THEMES_CUSTOMIZE), BM_CLICK, 0, 0);
    HWND editor = nullptr;
    EXPECT_TRUE(WaitFor([&] {
        editor = FindWindowW(L"#32770", nullptr);
        return editor && IsWindowVisible(editor) && GetDlgItem(editor, IDC_PANEL_FIRST_PATH);
    })) << "Customize opened no editor";
    return editor;
}

void DeviceFixture::SelectEditorPage(HWND editor, int index) {
    ASSERT_GE(index, 0);
    RECT client;
    GetClientRect(editor, &client);
    PostMessageW(editor, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - 4, 4));
    ASSERT_TRUE(WaitFor([] { return OpenMenu() != nullptr; })) << "no page menu";
    HWND menu = OpenMenu();
    for (int i = 0; i <= index; ++i)
        PostMessageW(menu, WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 0);
    ASSERT_TRUE(WaitFor([] { return OpenMenu() == nullptr; })) << "the page menu stayed open";
    SendMessageW(editor, WM_NULL, 0, 0);
}

int DeviceFixture::EditorPageIndex(const wchar_t* title) {
    int index = -1, i = 0;
    for (cv2::SettingsPage* page : cv2::EditorPages()) {
        if (page && index < 0 && lstrcmpW(page->GetName(), title) == 0)
            index = i;
        delete page;
        ++i;
    }
    return index;
}

void DeviceFixture::Apply() {
    SendMessageW(m_main, WM_COMMAND, MAKEWPARAM(40001, 0), 0);
}

void DeviceFixture::Cancel(bool answerYes, bool escape) {
    if (escape)
        PostMessageW(m_main, WM_KEYDOWN, VK_ESCAPE, 0);
    else
        PostMessageW(m_main, WM_COMMAND, MAKEWPARAM(40002, 0), 0);
    HWND box = nullptr;
    ASSERT_TRUE(WaitFor([&] {
        return (box = FindWindowW(L"#32770", L"Cancel Confirmation")) != nullptr;
    })) << "no cancel confirmation";
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(answerYes ? IDYES : IDNO, BN_CLICKED), 0);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(box); }));
}

int DeviceFixture::CountWindows(const wchar_t* className) {
    int count = 0;
    for (HWND w = FindWindowExW(nullptr, nullptr, className, nullptr); w;
         w = FindWindowExW(nullptr, w, className, nullptr))
        ++count;
    return count;
}

HWND DeviceFixture::VisibleChild(const wchar_t* className, int nth) const {
    for (HWND w = FindWindowExW(m_main, nullptr, className, nullptr); w;
         w = FindWindowExW(m_main, w, className, nullptr)) {
        if (IsWindowVisible(w) && nth-- == 0)
            return w;
    }
    return nullptr;
}

HWND DeviceFixture::ShownControl(int id) const {
    for (HWND w = GetWindow(m_main, GW_CHILD); w; w = GetWindow(w, GW_HWNDNEXT)) {
        if (GetDlgCtrlID(w) == id && IsWindowVisible(w))
            return w;
    }
    return nullptr;
}

std::string DeviceFixture::SectionText(const std::string& name) const {
    const std::string text = ReadText(L"config.ini");
    const size_t start = text.find("[" + name + "]\r\n");
    if (start == std::string::npos)
        return "<missing>";
    const size_t end = text.find("\r\n\r\n", start);
    return text.substr(start, end == std::string::npos ? std::string::npos : end + 4 - start);
}

std::string DeviceFixture::Lines(const std::string& text) {
    std::string out;
    for (char c : text) {
        if (c == '\n')
            out += "\r\n";
        else
            out += c;
    }
    return out;
}

} // namespace cv2test
