// Test support for the rule list pages and their dialogs: a host window standing in for the
// main window, and a driver that works the modal dialogs the pages open.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "check_pages_host.h" // WindowText
#include "store/ini_document.h"
#include "ui/settings_page.h"

namespace cv2test {

// A top-level window the size of the editor's main window that forwards commands and sizes to
// its pages, as the main window does.
class PageHost {
  public:
    PageHost();
    ~PageHost();
    PageHost(const PageHost&) = delete;
    PageHost& operator=(const PageHost&) = delete;

    // Creates the page's controls on this window and shows them.
    void Add(cv2::SettingsPage& page, bool show = true);
    HWND Window() const { return m_hwnd; }

    // The visible child with this id (the pages share their button ids).
    HWND Control(int id) const;
    // Clicks a button the way a tap does.
    void Click(int id) const;
    // Selects a list row the way a tap does (selection change sent to the host).
    void SelectRow(int row) const;
    std::vector<std::wstring> ListTexts() const;
    std::vector<LPARAM> ListData() const;
    bool Enabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }

  private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);
    HWND m_hwnd = nullptr;
    std::vector<cv2::SettingsPage*> m_pages;
};

// Works the modal dialogs that open while it lives: each step runs once, in order, on the
// dialog in front (the topmost enabled dialog of this thread) as soon as one is up. A dialog
// left open with no step to run is cancelled after a few seconds, so a test never hangs.
// Steps post the commands that open or close dialogs (PressItem) instead of sending them.
class DialogDriver {
  public:
    using Step = std::function<void(HWND dialog)>;
    explicit DialogDriver(std::vector<Step> steps);
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    size_t StepsRun() const { return m_next; }
    bool AllStepsRun() const { return m_next == m_steps.size(); }
    bool CancelledAStuckDialog() const { return m_cancelledStuck; }

  private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
    void OnTick();

    std::vector<Step> m_steps;
    size_t m_next = 0;
    UINT_PTR m_timer = 0;
    DWORD m_idleSince = 0;
    bool m_cancelledStuck = false;
    bool m_busy = false;
};

// A document parsed from file text.
cv2::IniDocument DocOf(const std::string& text);
// The rows of a list box, top to bottom.
std::vector<std::wstring> ListBoxTexts(HWND list);

// Dialog steps.
std::wstring ItemText(HWND dialog, int id);
bool ItemVisible(HWND dialog, int id);
void SetItemText(HWND dialog, int id, const std::wstring& text);
void ClickItem(HWND dialog, int id);
// Posts the button's command, for buttons that open or close a dialog.
void PressItem(HWND dialog, int id);

// Expects the visible children of `parent` inside its client area and clear of each other.
void ExpectLaidOutApart(HWND parent);

} // namespace cv2test
