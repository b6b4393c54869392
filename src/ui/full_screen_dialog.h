// A modal dialog sized to the whole screen, and the anchoring that keeps its controls placed.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

#include "ui/dialog_layout.h"

namespace cv2 {

// How a control follows the dialog's size: its right or bottom edge stretches, or the whole
// control moves along, with the dialog's right or bottom edge.
enum AnchorFlags : unsigned {
    kStretchRight = 1,
    kStretchDown = 2,
    kFollowRight = 4,
    kFollowBottom = 8,
};

struct ControlAnchor {
    int id;
    unsigned flags;
};

// Keeps the controls of a template placed on a dialog that is sized to the screen: the
// template's layout is recorded once and every later size is applied to it by the anchors.
class DialogAnchors {
  public:
    void Capture(HWND dialog, const ControlAnchor* anchors, size_t count);
    void Apply(HWND dialog) const;

  private:
    struct Placed {
        HWND control;
        unsigned flags;
        RECT rect;
    };
    std::vector<Placed> m_controls;
    SIZE m_client = {0, 0};
};

// A modal dialog sized to the whole screen, above an empty menu bar. The common parts are done
// here: the shell calls (the dialog does not open when one fails), the anchored layout and
// Cancel; a dialog adds its own set-up and commands.
class FullScreenDialog {
  public:
    virtual ~FullScreenDialog() = default;
    // Runs the template for the current screen: IDOK or IDCANCEL as the dialog ended, -1 when
    // it could not open.
    INT_PTR Run(HWND owner, const DialogTemplates& templates);

  protected:
    virtual const ControlAnchor* Anchors(size_t* count) const = 0;
    virtual void OnInit(HWND dialog) = 0;
    // Every command but Cancel.
    virtual void OnCommand(HWND dialog, WORD id, WORD code) = 0;

  private:
    static INT_PTR CALLBACK Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam);
    bool Init(HWND dialog);
    DialogAnchors m_anchors;
};

// Sets the text of a dialog's control from the string table.
void SetLocalizedItemText(HWND dialog, int id, unsigned stringId);

} // namespace cv2
