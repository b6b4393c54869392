#include "ui/off_screen_paint.h"

namespace cv2 {

void PaintOffScreen(HWND window, const std::function<void(HDC dc, const RECT& client)>& draw) {
    PAINTSTRUCT ps;
    HDC screen = BeginPaint(window, &ps);
    RECT client;
    GetClientRect(window, &client);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, client.right, client.bottom);
    if (memory && bitmap) {
        HGDIOBJ old = SelectObject(memory, bitmap);
        draw(memory, client);
        BitBlt(screen, 0, 0, client.right, client.bottom, memory, 0, 0, SRCCOPY);
        SelectObject(memory, old);
    }
    if (bitmap)
        DeleteObject(bitmap);
    if (memory)
        DeleteDC(memory);
    EndPaint(window, &ps);
}

} // namespace cv2
