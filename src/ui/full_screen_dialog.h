// A modal dialog sized to the whole screen, its controls placed by a table of 96-dpi places.
#pragma once

#include <windows.h>

#include <cstddef>

#include "ui/control_layout.h"
#include "ui/dialog_layout.h"

namespace cv2 {

// A modal dialog sized to the whole screen, above an empty menu bar. The common parts are done
// here: the shell calls (the dialog does not open when one fails), placing the controls at every
// size and Cancel; a dialog adds its own set-up and commands.
class FullScreenDialog {
  public:
    virtual ~FullScreenDialog() = default;
    // Runs the template for the current screen: IDOK or IDCANCEL as the dialog ended, -1 when
    // it could not open.
    INT_PTR Run(HWND owner, const DialogTemplates& templates);

  protected:
    virtual const ControlPlace* Places(size_t* count) const = 0;
    virtual void OnInit(HWND dialog) = 0;
    // Every command but Cancel.
    virtual void OnCommand(HWND dialog, WORD id, WORD code) = 0;

  private:
    static INT_PTR CALLBACK Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam);
    bool Init(HWND dialog);
    void Place(HWND dialog) const;
};

// Sets the text of a dialog's control from the string table.
void SetLocalizedItemText(HWND dialog, int id, unsigned stringId);

} // namespace cv2
