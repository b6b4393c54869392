// The baseline of the start-up benchmark: the least a Win32 program does to show a page — one
// window the size of the work area, painted with a header strip and a line of text. With
// "--same-libraries" it first loads the system libraries the editor imports and starts COM as
// the editor does, which tells the cost of those libraries from the editor's own.
#include <windows.h>
#include <objbase.h>

#include <cwchar>
#include <initializer_list>

namespace {

LRESULT CALLBACK Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_PAINT: {
        PAINTSTRUCT ps;
        HDC dc = BeginPaint(hwnd, &ps);
        RECT r;
        GetClientRect(hwnd, &r);
        FillRect(dc, &r, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        RECT header = {0, 0, r.right, 20};
        FillRect(dc, &header, static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH)));
        DrawTextW(dc, L"Minimal page", -1, &header, DT_SINGLELINE | DT_VCENTER | DT_RIGHT);
        EndPaint(hwnd, &ps);
        return 0;
    }
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(hwnd, msg, wParam, lParam);
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR commandLine, int) {
    if (commandLine && std::wcsstr(commandLine, L"--same-libraries")) {
        for (const wchar_t* name : {L"advapi32.dll", L"comctl32.dll", L"msimg32.dll", L"ole32.dll",
                                    L"shell32.dll", L"version.dll"})
            LoadLibraryW(name);
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    }
    WNDCLASSW wc = {};
    wc.lpfnWndProc = Proc;
    wc.hInstance = instance;
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = L"CV2MinimalWindow";
    RegisterClassW(&wc);
    RECT work;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    HWND hwnd = CreateWindowExW(0, wc.lpszClassName, L"Minimal", WS_POPUP, work.left, work.top,
                                work.right - work.left, work.bottom - work.top, nullptr, nullptr,
                                instance, nullptr);
    ShowWindow(hwnd, SW_SHOW);
    UpdateWindow(hwnd);
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    return 0;
}
