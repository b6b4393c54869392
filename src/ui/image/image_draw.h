// Drawing loaded images: blended by their alpha plane, or with a colour left out.
#pragma once

#include <windows.h>

#include "ui/image/loaded_image.h"

namespace cv2 {

// Draws the image at its own size with its top-left corner at (x, y). An image with alpha is
// blended onto what the device context already shows; one without is copied.
void DrawImage(HDC dc, const LoadedImage& image, int x, int y);

// Draws the image stretched (or shrunk) into `dest`, blending by alpha as above.
void DrawImage(HDC dc, const LoadedImage& image, const RECT& dest);

// Draws the image stretched into `dest`, leaving out every pixel of colour `key` (skin images
// that mark their transparent parts with one colour). The alpha plane is not used.
void DrawImageKeyed(HDC dc, const LoadedImage& image, const RECT& dest, COLORREF key);

// Shows the image in a picture (static) control and sizes the control to it. A plain control
// cannot blend, so an image with alpha is first composed onto `background` (the dialog's colour)
// in place. The control shows the image's own bitmap: keep the image while the control shows it.
// An empty image leaves the control empty and its size as it was.
void ShowInPictureControl(HWND control, LoadedImage& image, COLORREF background);

} // namespace cv2
