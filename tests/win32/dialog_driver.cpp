#include "dialog_driver.h"

#include <algorithm>
#include <utility>

namespace cv2test {

// Steps queued together: a driver's list, or one step of OnNextDialog.
struct DialogDriver::Sequence {
    std::vector<Step> steps;
    size_t next = 0;
    int endWith = 0;       // OnNextDialog: the command that ends the dialog after the step
    bool owned = false;    // a driver object owns it; otherwise the queue drops it when done
    bool running = false;  // a step of it is running (and may pump a nested modal loop)
    bool cancelledStuck = false;
    bool Waiting() const { return !running && next < steps.size(); }
};

namespace {

const UINT kTickMs = 30;
const DWORD kStuckMs = 4000;

std::vector<DialogDriver::Sequence*>& Sequences() {
    static std::vector<DialogDriver::Sequence*> sequences;
    return sequences;
}

UINT_PTR g_timer = 0;
DWORD g_idleSince = 0;

BOOL CALLBACK FindFrontDialog(HWND hwnd, LPARAM found) {
    wchar_t cls[16] = {};
    GetClassNameW(hwnd, cls, 16);
    if (lstrcmpW(cls, L"#32770") == 0 && IsWindowVisible(hwnd) && IsWindowEnabled(hwnd))
        *reinterpret_cast<HWND*>(found) = hwnd;
    return TRUE;
}

HWND FrontDialog() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindFrontDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

void StopTimerWhenIdle() {
    if (Sequences().empty() && g_timer) {
        KillTimer(nullptr, g_timer);
        g_timer = 0;
    }
}

void Drop(DialogDriver::Sequence* sequence) {
    auto& all = Sequences();
    all.erase(std::remove(all.begin(), all.end(), sequence), all.end());
    StopTimerWhenIdle();
}

// The most recently queued sequence with a step that can run now.
DialogDriver::Sequence* NextWaiting() {
    auto& all = Sequences();
    for (auto it = all.rbegin(); it != all.rend(); ++it)
        if ((*it)->Waiting())
            return *it;
    return nullptr;
}

void RunStep(DialogDriver::Sequence* sequence, HWND dialog) {
    // A step may pump messages (a screenshot or a nested dialog does); its own ticks must not
    // run its next step meanwhile.
    sequence->running = true;
    sequence->steps[sequence->next++](dialog);
    sequence->running = false;
    if (sequence->owned)
        return;
    if (IsWindow(dialog))
        PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(sequence->endWith, BN_CLICKED), 0);
    Drop(sequence);
    delete sequence;
}

// A dialog up with nothing left to do for it is cancelled once it has been idle too long, while
// a driver object lives.
void CancelWhenStuck(HWND dialog) {
    for (DialogDriver::Sequence* s : Sequences()) {
        if (!s->owned || s->running)
            continue;
        if (GetTickCount() - g_idleSince > kStuckMs) {
            s->cancelledStuck = true;
            g_idleSince = GetTickCount();
            PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        }
        return;
    }
}

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    const HWND dialog = FrontDialog();
    if (!dialog) {
        g_idleSince = GetTickCount();
        return;
    }
    if (DialogDriver::Sequence* sequence = NextWaiting()) {
        g_idleSince = GetTickCount();
        RunStep(sequence, dialog);
        return;
    }
    CancelWhenStuck(dialog);
}

void Enqueue(DialogDriver::Sequence* sequence) {
    Sequences().push_back(sequence);
    g_idleSince = GetTickCount();
    if (!g_timer)
        g_timer = SetTimer(nullptr, 0, kTickMs, Tick);
}

} // namespace

DialogDriver::DialogDriver(std::vector<Step> steps) : m_sequence(new Sequence) {
    // A quit request left by an earlier test (a main window posts one when destroyed) would end
    // the next modal loop at once.
    MSG stale;
    while (PeekMessageW(&stale, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
    }
    m_sequence->steps = std::move(steps);
    m_sequence->owned = true;
    Enqueue(m_sequence);
}

DialogDriver::~DialogDriver() {
    Drop(m_sequence);
    delete m_sequence;
}

size_t DialogDriver::StepsRun() const {
    return m_sequence->next;
}

bool DialogDriver::AllStepsRun() const {
    return m_sequence->next == m_sequence->steps.size();
}

bool DialogDriver::CancelledAStuckDialog() const {
    return m_sequence->cancelledStuck;
}

void DialogDriver::OnNextDialog(Step body, int endWith) {
    auto* sequence = new Sequence;
    sequence->steps.push_back(std::move(body));
    sequence->endWith = endWith;
    Enqueue(sequence);
}

void DialogDriver::Click(HWND dlg, int id) {
    SendMessageW(dlg, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dlg, id)));
}

} // namespace cv2test
