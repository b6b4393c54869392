// Dialogs exist in a portrait, a landscape and sometimes a square template; the screen's shape
// picks one each time a dialog opens. Templates are written in dialog units with an 8-point
// "Tahoma" font, so they come out laid out for the screen's actual density.
#pragma once

#include <windows.h>

namespace cv2 {

struct DialogTemplates {
    WORD portrait;
    WORD landscape;
    WORD square; // 0 when the dialog has no square template
};

// The template for the current screen.
WORD ChooseTemplate(const DialogTemplates& templates);

// Runs the dialog modally with the template for the current screen.
INT_PTR RunDialog(HWND owner, const DialogTemplates& templates, DLGPROC proc, LPARAM param);

// Makes a dialog full-screen with the shell's Done button (which reports IDOK).
bool InitFullScreenDialog(HWND dialog);
// Gives a full-screen dialog the shell's menu bar without any menu.
bool AddEmptyMenuBar(HWND dialog);
// Puts a text button on the dialog's menu bar that sends `command` to the dialog, as the device's
// soft key does; false when the dialog has no bar.
bool AddMenuBarButton(HWND dialog, int command, const wchar_t* text);

} // namespace cv2
