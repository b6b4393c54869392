#include "pages/behaviour/task_picker_dialog.h"

#include <vector>

#include "ids_behaviour.h"
#include "ui/full_screen_dialog.h"
#include "pages/behaviour/task_choices.h"
#include "store/strings.h"

namespace cv2 {
namespace {

const DialogTemplates kPickerTemplates = {IDD_TASK_PICKER, IDD_TASK_PICKER_WIDE, 0};

// Portrait and square screens: the list fills the screen above the buttons, which keep to its
// bottom right corner.
const ControlPlace kTallPlaces[] = {
    {IDC_TASK_PICKER_LABEL, From::Left, 6, From::Right, -7, 7, 15},
    {IDC_TASK_PICKER_LIST, From::Left, 6, From::Right, -7, 24, -39, FromY::Top, true},
    {IDOK, From::Right, -157, From::Right, -85, -30, 23, FromY::Bottom},
    {IDCANCEL, From::Right, -79, From::Right, -7, -30, 23, FromY::Bottom},
};

// Landscape screens: the buttons stay beside the list, at the right edge.
const ControlPlace kWidePlaces[] = {
    {IDC_TASK_PICKER_LABEL, From::Left, 6, From::Right, -85, 7, 15},
    {IDC_TASK_PICKER_LIST, From::Left, 6, From::Right, -85, 24, -8, FromY::Top, true},
    {IDOK, From::Right, -79, From::Right, -7, 24, 23},
    {IDCANCEL, From::Right, -79, From::Right, -7, 54, 23},
};

class TaskPicker : public FullScreenDialog {
  public:
    TaskPicker(bool wide, std::vector<std::wstring> choices)
        : m_wide(wide), m_choices(std::move(choices)) {}
    const std::wstring& Choice() const { return m_choice; }

  protected:
    const ControlPlace* Places(size_t* count) const override {
        *count = m_wide ? sizeof kWidePlaces / sizeof kWidePlaces[0]
                        : sizeof kTallPlaces / sizeof kTallPlaces[0];
        return m_wide ? kWidePlaces : kTallPlaces;
    }

    void OnInit(HWND dialog) override {
        // The picker carries on the dialog it was opened from, under the same title.
        wchar_t title[128] = {};
        GetWindowTextW(GetWindow(dialog, GW_OWNER), title, 128);
        SetWindowTextW(dialog, title);
        SetLocalizedItemText(dialog, IDOK, IDS_OK);
        SetLocalizedItemText(dialog, IDCANCEL, IDS_CANCEL);
        HWND list = GetDlgItem(dialog, IDC_TASK_PICKER_LIST);
        for (const std::wstring& text : m_choices)
            SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        SetFocus(list);
    }

    void OnCommand(HWND dialog, WORD id, WORD code) override {
        if (id == IDOK || (id == IDC_TASK_PICKER_LIST && code == LBN_DBLCLK))
            Confirm(dialog);
    }

  private:
    // Takes the selected entry; without a selection the picker closes as cancelled.
    void Confirm(HWND dialog) {
        const LRESULT at = SendDlgItemMessageW(dialog, IDC_TASK_PICKER_LIST, LB_GETCURSEL, 0, 0);
        if (at < 0 || static_cast<size_t>(at) >= m_choices.size()) {
            EndDialog(dialog, IDCANCEL);
            return;
        }
        m_choice = m_choices[static_cast<size_t>(at)];
        EndDialog(dialog, IDOK);
    }

    bool m_wide;
    std::vector<std::wstring> m_choices;
    std::wstring m_choice;
};

} // namespace

bool RunTaskPicker(HWND owner, bool processNames, std::wstring& choice) {
    const std::vector<TopWindowInfo> windows = ListTopWindows();
    const bool wide = ChooseTemplate(kPickerTemplates) == IDD_TASK_PICKER_WIDE;
    TaskPicker picker(wide, processNames ? ProcessNameChoices(windows, SnapshotProcesses())
                                         : WindowTitleChoices(windows));
    if (picker.Run(owner, kPickerTemplates) != IDOK)
        return false;
    choice = picker.Choice();
    return true;
}

} // namespace cv2
