#include "screen_capture.h"

#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/file_access.h"

namespace cv2test {
namespace {

std::wstring EnvWide(const char* name) {
    const char* v = std::getenv(name);
    std::string s = v ? v : "";
    return std::wstring(s.begin(), s.end());
}

// The screen's pixels as top-down 24-bit rows padded to four bytes.
bool CaptureScreen(int& width, int& height, std::vector<unsigned char>& pixels) {
    width = GetSystemMetrics(SM_CXSCREEN);
    height = GetSystemMetrics(SM_CYSCREEN);
    HDC screen = GetDC(nullptr);
    HDC mem = CreateCompatibleDC(screen);
    BITMAPINFO bi = {};
    bi.bmiHeader.biSize = sizeof bi.bmiHeader;
    bi.bmiHeader.biWidth = width;
    bi.bmiHeader.biHeight = height; // bottom-up, as BMP files store it
    bi.bmiHeader.biPlanes = 1;
    bi.bmiHeader.biBitCount = 24;
    void* bits = nullptr;
    HBITMAP dib = CreateDIBSection(screen, &bi, DIB_RGB_COLORS, &bits, nullptr, 0);
    bool ok = dib != nullptr;
    if (ok) {
        HGDIOBJ old = SelectObject(mem, dib);
        ok = BitBlt(mem, 0, 0, width, height, screen, 0, 0, SRCCOPY) != 0;
        GdiFlush();
        const size_t stride = (static_cast<size_t>(width) * 3 + 3) & ~size_t(3);
        const auto* p = static_cast<const unsigned char*>(bits);
        pixels.assign(p, p + stride * static_cast<size_t>(height));
        SelectObject(mem, old);
        DeleteObject(dib);
    }
    DeleteDC(mem);
    ReleaseDC(nullptr, screen);
    return ok;
}

} // namespace

std::string ScreenName() {
    const char* v = std::getenv("CV2_SCREEN");
    return v ? v : "";
}

std::wstring SaveScreenshot(const std::wstring& name) {
    const std::wstring folder = EnvWide("CV2_SCREENS_DIR");
    if (folder.empty())
        return L"";
    CreateDirectoryW(folder.c_str(), nullptr);
    PumpMessages(300);
    int width = 0, height = 0;
    std::vector<unsigned char> pixels;
    if (!CaptureScreen(width, height, pixels))
        return L"";
    BITMAPFILEHEADER fh = {};
    BITMAPINFOHEADER ih = {};
    ih.biSize = sizeof ih;
    ih.biWidth = width;
    ih.biHeight = height;
    ih.biPlanes = 1;
    ih.biBitCount = 24;
    fh.bfType = 0x4D42;
    fh.bfOffBits = sizeof fh + sizeof ih;
    fh.bfSize = static_cast<DWORD>(fh.bfOffBits + pixels.size());
    cv2::Bytes file(fh.bfSize);
    std::memcpy(file.data(), &fh, sizeof fh);
    std::memcpy(file.data() + sizeof fh, &ih, sizeof ih);
    std::memcpy(file.data() + fh.bfOffBits, pixels.data(), pixels.size());
    const std::wstring path = folder + L"\\" + name + L".bmp";
    return cv2::WriteFileReplacing(path, file) ? path : L"";
}

bool ScreenHasContent() {
    int width = 0, height = 0;
    std::vector<unsigned char> pixels;
    if (!CaptureScreen(width, height, pixels) || pixels.size() < 3)
        return false;
    for (size_t i = 3; i + 2 < pixels.size(); i += 3) {
        if (pixels[i] != pixels[0] || pixels[i + 1] != pixels[1] || pixels[i + 2] != pixels[2])
            return true;
    }
    return false;
}

COLORREF ScreenPixel(int x, int y) {
    HDC screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, x, y);
    ReleaseDC(nullptr, screen);
    return color;
}

void PumpMessages(DWORD ms) {
    PumpUntil([] { return false; }, ms);
}

bool PumpUntil(const std::function<bool()>& done, DWORD ms) {
    const DWORD end = GetTickCount() + ms;
    for (;;) {
        MSG msg;
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        if (done())
            return true;
        if (static_cast<LONG>(end - GetTickCount()) <= 0)
            return false;
        Sleep(10);
    }
}

} // namespace cv2test
