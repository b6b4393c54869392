// The grid's own image list and the fitting of bitmaps into it.
#include "store/scale.h"
#include "ui/icon_grid.h"
#include "ui/icon_grid_state.h"

namespace cv2 {
namespace {

// Raster operation "destination AND NOT source": clears the colour image where the mask is set.
constexpr DWORD kClearMasked = 0x00220326;

struct MemoryDc {
    HDC dc;
    HGDIOBJ old = nullptr;
    explicit MemoryDc(HDC like) : dc(CreateCompatibleDC(like)) {}
    void Select(HGDIOBJ o) { old = SelectObject(dc, o); }
    ~MemoryDc() {
        if (old)
            SelectObject(dc, old);
        DeleteDC(dc);
    }
};

} // namespace

HBITMAP CreateGridBitmap(HDC dc, int width, int height, int bitsPerPixel) {
    BITMAPINFO bi = {};
    bi.bmiHeader.biSize = sizeof bi.bmiHeader;
    bi.bmiHeader.biWidth = width;
    bi.bmiHeader.biHeight = height;
    bi.bmiHeader.biPlanes = 1;
    bi.bmiHeader.biBitCount = static_cast<WORD>(bitsPerPixel);
    void* bits = nullptr;
    return CreateDIBSection(dc, &bi, DIB_RGB_COLORS, &bits, nullptr, 0);
}

HIMAGELIST CreateGridImageList(int view) {
    const int side = view == 0 ? ScaleX(kThumbPicture) : GetSystemMetrics(SM_CXSMICON);
    HIMAGELIST images = ImageList_Create(side, side, ILC_COLOR24 | ILC_MASK, 0, 8);
    if (images)
        ImageList_SetBkColor(images, kGridMaskColor);
    return images;
}

// The bitmap is drawn, fitted and centred, onto a slot-sized picture filled with the list's
// background colour; that colour becomes the mask, so it shows as transparent.
int AddGridBitmap(HIMAGELIST images, HBITMAP bitmap) {
    if (!images)
        return 0;
    BITMAP info = {};
    if (!bitmap || !GetObjectW(bitmap, sizeof info, &info))
        return -1;
    int slotW = 0, slotH = 0;
    ImageList_GetIconSize(images, &slotW, &slotH);
    const GridSize fit = GridFitPicture(info.bmWidth, info.bmHeight, {slotW, slotH});
    const COLORREF back = ImageList_GetBkColor(images);

    HDC screen = GetDC(nullptr);
    HBITMAP colour = CreateGridBitmap(screen, slotW, slotH, 24);
    HBITMAP mask = CreateBitmap(slotW, slotH, 1, 1, nullptr);
    int index = -1;
    if (colour && mask) {
        MemoryDc source(screen), picture(screen), bits(screen);
        source.Select(bitmap);
        picture.Select(colour);
        bits.Select(mask);
        const RECT all = {0, 0, slotW, slotH};
        HBRUSH brush = CreateSolidBrush(back);
        FillRect(picture.dc, &all, brush);
        DeleteObject(brush);
        SetStretchBltMode(picture.dc, COLORONCOLOR);
        StretchBlt(picture.dc, (slotW - fit.width) / 2, (slotH - fit.height) / 2, fit.width,
                   fit.height, source.dc, 0, 0, info.bmWidth, info.bmHeight, SRCCOPY);
        // Colour to monochrome: pixels of the background colour become 1 (transparent).
        SetBkColor(picture.dc, back);
        BitBlt(bits.dc, 0, 0, slotW, slotH, picture.dc, 0, 0, SRCCOPY);
        // Transparent pixels of the colour image must be black for the masked draw.
        SetBkColor(picture.dc, RGB(255, 255, 255));
        SetTextColor(picture.dc, RGB(0, 0, 0));
        BitBlt(picture.dc, 0, 0, slotW, slotH, bits.dc, 0, 0, kClearMasked);
    }
    if (colour && mask)
        index = ImageList_Add(images, colour, mask);
    if (colour)
        DeleteObject(colour);
    if (mask)
        DeleteObject(mask);
    ReleaseDC(nullptr, screen);
    return index;
}

} // namespace cv2
