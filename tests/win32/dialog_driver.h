// Drives the program's modal dialogs from inside their own message loops. One thread timer
// serves every test: on each tick it finds the dialog in front (the last visible, enabled dialog
// of this thread, which is the innermost modal dialog when dialogs are nested) and runs the next
// step waiting for it.
//
// Two ways to queue steps, one mechanism:
// - a DialogDriver object runs its steps once each, in order, while it lives; a dialog left open
//   with no step to run is cancelled after a few seconds, so a test never hangs;
// - OnNextDialog runs one step on the next dialog and then ends that dialog, so that a failed
//   expectation cannot leave a modal loop running.
// The most recently queued step that can run goes first, so a step that opens a nested dialog
// and queues work for it (OnNextDialog, then Click) has that work done inside its own modal
// loop. Steps post the commands that open or close dialogs (PressItem) instead of sending them,
// unless they queued the work for the dialog they open.
#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace cv2test {

class DialogDriver {
  public:
    using Step = std::function<void(HWND dialog)>;

    explicit DialogDriver(std::vector<Step> steps);
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    size_t StepsRun() const;
    bool AllStepsRun() const;
    bool CancelledAStuckDialog() const;

    // Runs `body` on the next dialog that comes to the front and then ends it with `endWith`
    // (IDOK, IDCANCEL).
    static void OnNextDialog(Step body, int endWith);
    // Sends a click of a push button or check box the way the dialog manager reports it.
    static void Click(HWND dlg, int id);

    // Steps queued together (the driver's own list, or one step of OnNextDialog); defined with
    // the timer that runs them.
    struct Sequence;

  private:
    Sequence* m_sequence;
};

} // namespace cv2test
