// Pictures of the grid on the device screens: thumbnails and list, with generated pictures.
#include <gtest/gtest.h>

#include <string>

#include "icon_grid_host.h"
#include "screen_capture.h"
#include "store/scale.h"
#include "store/screen.h"

using namespace cv2;
using namespace cv2test;

namespace {

const wchar_t* const kNames[] = {L"Sunset.jpg",       L"Harbour at night with boats.png",
                                 L"Logo.gif",         L"Panorama.bmp",
                                 L"Tower.jpg",        L"Icon.png",
                                 L"Beach.jpg",        L"Forest path.jpg",
                                 L"Skyline.png",      L"Notes.bmp",
                                 L"Moon.gif",         L"Garden.jpg",
                                 L"Start button.png", L"Clouds.jpg",
                                 L"Map.png",          L"Keys.bmp"};
constexpr int kNameCount = sizeof kNames / sizeof kNames[0];

// A picture of `w` x `h` with a coloured background, a disc and a bar, varied by `seed`.
HBITMAP MakePicture(int w, int h, int seed) {
    const COLORREF backs[] = {RGB(250, 170, 60), RGB(40, 90, 160),  RGB(60, 150, 80),
                              RGB(200, 60, 60),  RGB(120, 80, 170), RGB(230, 220, 90)};
    HBITMAP bitmap = SolidBitmap(w, h, backs[seed % 6]);
    HDC screen = GetDC(nullptr);
    HDC mem = CreateCompatibleDC(screen);
    HGDIOBJ old = SelectObject(mem, bitmap);
    HBRUSH disc = CreateSolidBrush(backs[(seed + 3) % 6]);
    HGDIOBJ oldBrush = SelectObject(mem, disc);
    Ellipse(mem, w / 5, h / 5, w / 5 + h / 2, h / 5 + h / 2);
    SelectObject(mem, oldBrush);
    DeleteObject(disc);
    const RECT bar = {0, h - h / 4, w, h};
    FillRect(mem, &bar, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    SelectObject(mem, old);
    DeleteDC(mem);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

// Pictures of several shapes: wide, tall, square, and smaller than the slot.
SIZE PictureShape(int index, int slot) {
    switch (index % 4) {
    case 0:
        return {slot * 3, slot * 2};
    case 1:
        return {slot, slot * 2};
    case 2:
        return {slot / 2, slot / 2};
    default:
        return {slot * 2, slot * 2};
    }
}

void SupplyPictures(GridHost& host) {
    host.supply = [&host](int index, GridItemDesc* desc) {
        wcsncpy(desc->caption, kNames[index % kNameCount], 255);
        auto images = reinterpret_cast<HIMAGELIST>(host.Send(GRM_GETIMAGELIST));
        int slot = 0, unused = 0;
        ImageList_GetIconSize(images, &slot, &unused);
        const SIZE shape = PictureShape(index, slot);
        HBITMAP bitmap = MakePicture(shape.cx, shape.cy, index);
        desc->picture =
            static_cast<int32_t>(host.Send(GRM_ADDBITMAP, 0, reinterpret_cast<LPARAM>(bitmap)));
        DeleteObject(bitmap);
    };
}

// A screen dimension in the 96-dpi units the grid host takes.
int ScreenUnits(int metric) {
    ReadScreenDensities();
    return GetSystemMetrics(metric) * 96 / (g_dpiX ? g_dpiX : 96);
}

// As the file browser lays thumbnails out.
int Columns() {
    return IsPortraitWidth(ScreenWidth()) ? 3 : 4;
}

// Saves the screen; a folder for the pictures is set only by the screens run of ./test.sh.
void Save(const wchar_t* name) {
    const std::wstring path = SaveScreenshot(name);
    if (!ScreenName().empty()) {
        EXPECT_FALSE(path.empty());
    }
}

} // namespace

class IconGridScreens : public ::testing::Test {
  protected:
    IconGridScreens() : host(ScreenUnits(SM_CXSCREEN), ScreenUnits(SM_CYSCREEN)) {
        SupplyPictures(host);
        host.Send(GRM_SETCOLORS, RGB(0, 0, 0), RGB(255, 255, 255));
    }
    void ShowThumbnails() {
        host.Send(GRM_SETVIEW, 0, 1);
        host.Send(GRM_SETCOLUMNS, static_cast<WPARAM>(Columns()));
        host.Send(GRM_SETCOUNT, 40);
    }
    GridHost host;
};

TEST_F(IconGridScreens, Thumbnails) {
    ShowThumbnails();
    host.Paint();
    const POINT p = host.CellCentre(1, 1, Columns());
    host.Tap(p.x, p.y);
    host.Paint();
    ASSERT_FALSE(host.requests.empty());
    Save(L"icon_grid_thumbnails");
    EXPECT_TRUE(ScreenHasContent());
}

TEST_F(IconGridScreens, ThumbnailsScrolled) {
    ShowThumbnails();
    host.Send(WM_VSCROLL, SB_LINEDOWN);
    host.Paint();
    ASSERT_FALSE(host.requests.empty());
    Save(L"icon_grid_thumbnails_scrolled");
}

TEST_F(IconGridScreens, List) {
    host.Send(GRM_SETVIEW, 1, 1);
    host.Send(GRM_SETCOUNT, 60);
    host.Paint();
    host.Key(VK_DOWN);
    host.Key(VK_DOWN);
    host.Key(VK_DOWN);
    host.Paint();
    ASSERT_FALSE(host.requests.empty());
    Save(L"icon_grid_list");
    EXPECT_TRUE(ScreenHasContent());
}
