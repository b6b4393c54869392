// The file browser's dialog window: its controls, their placement for the screen and their
// events. FileBrowser runs it; it reads the browser's settings and fills in its files and result.
#pragma once

#include <windows.h>

namespace cv2 {

class FileBrowser;

// Runs the dialog modally from template `templateId`: IDOK (the browser's `result` then holds
// the file-name box's text), IDCANCEL, or -1 when it could not open.
INT_PTR RunBrowserDialog(HWND owner, FileBrowser& browser, int templateId);

// Places the dialog's controls for its client size: the file-name row and the filter row above
// (one row when `wide`, for the landscape template), the file grid below down to the bottom, and
// the tree over the grid (over all of it in folder mode, else over its upper part like a
// drop-down).
void PlaceBrowserControls(HWND dialog, bool folderMode, bool wide);

// Draws the button that shows and hides the tree: a button-face rectangle with a small black
// triangle pointing down.
void DrawTreeButton(const DRAWITEMSTRUCT& item);

} // namespace cv2
