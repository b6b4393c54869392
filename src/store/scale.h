// Layout numbers are written for a 96-dpi screen and scaled to the screen's density per axis.
#pragma once

namespace cv2 {

// Logical pixels per inch of the screen, read once at start (0 until then).
extern int g_dpiX;
extern int g_dpiY;

// (v * dpi + 48) / 96 in 32-bit arithmetic, the division truncating toward zero.
int ScaleBy(int v, int dpi);
// Vertical sizes and positions.
int Scale(int v);
// Horizontal sizes and positions.
int ScaleX(int v);

// True when the width is an exact multiple of 240 (240, 480, ...).
bool IsPortraitWidth(int width);

enum class DialogLayout { Portrait, Landscape, Square };
// Square when the screen is square and the dialog has such a template; else portrait when the
// width is a portrait width; else landscape.
DialogLayout ChooseLayout(int width, int height, bool hasSquareTemplate);

} // namespace cv2
