#include "ui/image/image_draw.h"

#include "platform/transparent_image.h"
#include "ui/image/image_scale.h"

namespace cv2 {
namespace {

// Blends the pixels onto the device context at (x, y): what is there is copied into a DIB,
// mixed with the picture by its alpha in software (the device's GDI has no alpha blending before
// Windows CE 5), and copied back.
void BlendOnto(HDC dc, const PixelImage& picture, int x, int y) {
    const int w = picture.width;
    const int h = picture.height;
    void* bits = nullptr;
    HBITMAP under = CreateDib(w, h, 32, true, &bits); // top-down, like the picture
    HDC memory = under ? CreateCompatibleDC(dc) : nullptr;
    if (!memory) {
        if (under)
            DeleteObject(under);
        return;
    }
    HGDIOBJ old = SelectObject(memory, under);
    BitBlt(memory, 0, 0, w, h, dc, x, y, SRCCOPY);
    GdiFlush();
    unsigned char* out = static_cast<unsigned char*>(bits);
    const unsigned char* in = picture.pixels.data();
    for (size_t i = 0; i < picture.pixels.size(); i += 4) {
        const int a = in[i + 3];
        for (int c = 0; c < 3; ++c)
            out[i + c] =
                static_cast<unsigned char>((in[i + c] * a + out[i + c] * (255 - a) + 127) / 255);
    }
    BitBlt(dc, x, y, w, h, memory, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    DeleteDC(memory);
    DeleteObject(under);
}

// Copies the bitmap stretched into the rectangle.
void CopyStretched(HDC dc, const LoadedImage& image, const RECT& dest) {
    HDC memory = CreateCompatibleDC(dc);
    if (!memory)
        return;
    HGDIOBJ old = SelectObject(memory, image.Bitmap());
    const int oldMode = SetStretchBltMode(dc, COLORONCOLOR);
    StretchBlt(dc, dest.left, dest.top, dest.right - dest.left, dest.bottom - dest.top, memory, 0,
               0, image.Width(), image.Height(), SRCCOPY);
    SetStretchBltMode(dc, oldMode);
    SelectObject(memory, old);
    DeleteDC(memory);
}

} // namespace

void DrawImage(HDC dc, const LoadedImage& image, int x, int y) {
    DrawImage(dc, image, RECT{x, y, x + image.Width(), y + image.Height()});
}

void DrawImage(HDC dc, const LoadedImage& image, const RECT& dest) {
    const int w = dest.right - dest.left;
    const int h = dest.bottom - dest.top;
    if (image.IsEmpty() || w <= 0 || h <= 0)
        return;
    if (!image.HasAlpha()) {
        CopyStretched(dc, image, dest);
        return;
    }
    const PixelImage pixels = ScaleImage(image.ToPixels(), w, h);
    if (!pixels.Empty())
        BlendOnto(dc, pixels, dest.left, dest.top);
}

void DrawImageKeyed(HDC dc, const LoadedImage& image, const RECT& dest, COLORREF key) {
    if (image.IsEmpty())
        return;
    TransparentImage(dc, dest.left, dest.top, dest.right - dest.left, dest.bottom - dest.top,
                     image.Bitmap(), 0, 0, image.Width(), image.Height(), key);
}

void ShowInPictureControl(HWND control, LoadedImage& image, COLORREF background) {
    if (image.IsEmpty()) {
        SendMessageW(control, STM_SETIMAGE, IMAGE_BITMAP, 0);
        return;
    }
    image.Flatten(background);
    const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
    if ((style & SS_TYPEMASK) != SS_BITMAP)
        SetWindowLongPtrW(control, GWL_STYLE, (style & ~SS_TYPEMASK) | SS_BITMAP);
    SendMessageW(control, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(image.Bitmap()));
    SetWindowPos(control, nullptr, 0, 0, image.Width(), image.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace cv2
