// The device shell's calls that the program uses, under the device's names and with the device's
// meaning. On desktop Windows this layer implements them itself:
//   - the menu bar is a toolbar in its own window along the bottom of the work area, below the
//     window it belongs to, like the device's soft-key bar;
//   - a full-screen dialog fills the work area, and its Done button is a push button reading
//     "ok" in place of the caption's close box, which reports IDOK (platform/done_button.h);
//   - the Done button of a top-level window is a request that the desktop has no place to show:
//     the main window has no caption, and its Apply and Cancel stand on its menu bar;
//   - a shortcut is a shell link file made through the desktop shell's link object.
#pragma once

#include <windows.h>

namespace cv2 {

// Full-screen dialog initialisation.
constexpr DWORD SHIDIM_FLAGS = 0x0001;
constexpr DWORD SHIDIF_DONEBUTTON = 0x0001;
constexpr DWORD SHIDIF_SIZEDLG = 0x0002;
constexpr DWORD SHIDIF_SIZEDLGFULLSCREEN = 0x0004;
constexpr DWORD SHIDIF_SIPDOWN = 0x0008;

struct SHINITDLGINFO {
    DWORD dwMask;
    HWND hDlg;
    DWORD dwFlags;
};
BOOL SHInitDialog(SHINITDLGINFO* info);

// Menu bar creation.
constexpr DWORD SHCMBF_EMPTYBAR = 0x0001;
constexpr DWORD SHCMBF_HIDDEN = 0x0002;
constexpr DWORD SHCMBF_HMENU = 0x0010;

struct SHMENUBARINFO {
    DWORD cbSize;
    HWND hwndParent;
    DWORD dwFlags;
    UINT nToolBarId;
    HINSTANCE hInstRes;
    int nBmpId;
    int cBmpImages;
    HWND hwndMB; // out: the bar; it takes toolbar messages (TB_SETIMAGELIST, TB_ADDBUTTONS, ...)
    COLORREF clrBk;
};
// Creates the bar from menu resource nToolBarId (each top-level item becomes a button that opens
// its popup), or an empty bar. Commands go to hwndParent as WM_COMMAND.
BOOL SHCreateMenuBar(SHMENUBARINFO* info);
// The bar window of `owner` made by SHCreateMenuBar, or null.
HWND SHFindMenuBar(HWND owner);
// The menu whose popups the bar's buttons open (the bar keeps it), or null for an empty bar.
HMENU MenuOfMenuBar(HWND menuBar);

// Done button of a top-level window.
constexpr DWORD SHDB_SHOW = 0x0001;
constexpr DWORD SHDB_HIDE = 0x0002;
BOOL SHDoneButton(HWND hwnd, DWORD state);

// Shortcut creation. `szTarget` is a command line: the program (in quotes when it holds blanks)
// followed by its arguments. The device writes it into the link file as it is; on desktop
// Windows the link file holds the program as its target and the rest as its arguments.
// False when the file cannot be written; an existing file is replaced.
BOOL SHCreateShortcut(LPWSTR szShortcut, LPWSTR szTarget);

// Tap-and-hold recognition. Called on pen-down at `ptDown` (client coordinates of hwndClient);
// returns when the gesture is decided. With SHRG_RETURNCMD the result is GN_CONTEXTMENU for a
// hold and 0 otherwise; the pen-up of a plain tap stays queued for the window. On the desktop a
// hold is the left button kept down, without moving further than the drag distance, for the
// system's double-click time (twice that with SHRG_LONGDELAY); without SHRG_RETURNCMD the device
// would tell the window itself, which the desktop does not do: the result is then 0.
constexpr DWORD SHRG_RETURNCMD = 0x0001;
constexpr DWORD SHRG_NOTIFYPARENT = 0x0002;
constexpr DWORD SHRG_LONGDELAY = 0x0008;
constexpr DWORD GN_CONTEXTMENU = 1000;

struct SHRGINFO {
    DWORD cbSize;
    HWND hwndClient;
    POINT ptDown;
    DWORD dwFlags;
};
DWORD SHRecognizeGesture(SHRGINFO* info);

// Height of the menu bar in pixels on this screen.
int MenuBarHeight();

// After the screen changed size: every menu bar goes back along the bottom of the work area and
// the window it belongs to fills the work area above it.
void FitMenuBarsToWorkArea();

} // namespace cv2
