#include "pages/behaviour/custom_task_dialog.h"

#include <string>

#include "ids_behaviour.h"
#include "ui/full_screen_dialog.h"
#include "pages/behaviour/task_picker_dialog.h"

namespace cv2 {
namespace {

// The fields stretch across the screen; OK and Cancel keep to its bottom right corner.
const ControlPlace kPlaces[] = {
    {IDC_TASK_TEXT_CAPTION, From::Left, 6, From::Right, -7, 7, 15},
    {IDC_TASK_TEXT, From::Left, 6, From::Right, -76, 24, 21},
    {IDC_TASK_BROWSE, From::Right, -70, From::Right, -7, 24, 21},
    {IDC_TASK_ACTION_CAPTION, From::Left, 6, From::Right, -7, 57, 15},
    {IDC_TASK_ACTION_1, From::Left, 12, From::Right, -7, 76, 16},
    {IDC_TASK_ACTION_2, From::Left, 12, From::Right, -7, 96, 16},
    {IDC_TASK_ACTION_3, From::Left, 12, From::Right, -7, 115, 16},
    {IDOK, From::Right, -157, From::Right, -85, -30, 23, FromY::Bottom},
    {IDCANCEL, From::Right, -79, From::Right, -7, -30, 23, FromY::Bottom},
};

const int kActionRadios[3] = {IDC_TASK_ACTION_1, IDC_TASK_ACTION_2, IDC_TASK_ACTION_3};

std::wstring FieldText(HWND field) {
    const int length = GetWindowTextLengthW(field);
    std::wstring text(static_cast<size_t>(length > 0 ? length : 0) + 1, L'\0');
    const int got = GetWindowTextW(field, &text[0], length + 1);
    text.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return text;
}

class CustomTaskDialog : public FullScreenDialog {
  public:
    CustomTaskDialog(const wchar_t* caption, const RuleRecord& record)
        : m_caption(caption ? caption : L""), m_record(record) {}
    const RuleRecord& Record() const { return m_record; }

  protected:
    const ControlPlace* Places(size_t* count) const override {
        *count = sizeof kPlaces / sizeof kPlaces[0];
        return kPlaces;
    }

    void OnInit(HWND dialog) override {
        SetWindowTextW(dialog, m_caption.c_str());
        SetTexts(dialog);
        HideActionControls(dialog);
        HWND text = GetDlgItem(dialog, IDC_TASK_TEXT);
        SendMessageW(text, EM_LIMITTEXT, 0, 0);
        if (!m_record.text.empty())
            SetWindowTextW(text, m_record.text.c_str());
        const int action = m_record.action == 0 || m_record.action == 1 ? m_record.action : 2;
        CheckRadioButton(dialog, IDC_TASK_ACTION_1, IDC_TASK_ACTION_3, kActionRadios[action]);
        SetFocus(text);
    }

    void OnCommand(HWND dialog, WORD id, WORD code) override {
        if (id == IDOK)
            Confirm(dialog);
        else if (id == IDC_TASK_BROWSE && code == BN_CLICKED)
            Browse(dialog);
    }

  private:
    void SetTexts(HWND dialog) const {
        const bool showHide = m_record.showHideMode;
        SetLocalizedItemText(dialog, IDC_TASK_TEXT_CAPTION,
                             m_record.processMode ? IDS_PROCESS_NAME_CAPTION
                                                  : IDS_WINDOW_TITLE_CAPTION);
        SetLocalizedItemText(dialog, IDC_TASK_BROWSE, IDS_BROWSE);
        SetLocalizedItemText(dialog, IDC_TASK_ACTION_CAPTION, IDS_TAKE_ACTION);
        SetLocalizedItemText(dialog, IDC_TASK_ACTION_1,
                             showHide ? IDS_HIDE : IDS_HIDE_FROM_TASK_LIST);
        SetLocalizedItemText(dialog, IDC_TASK_ACTION_2, showHide ? IDS_SHOW : IDS_MINIMIZE_WINDOW);
        SetLocalizedItemText(dialog, IDC_TASK_ACTION_3, IDS_CLOSE_WINDOW);
        SetLocalizedItemText(dialog, IDOK, IDS_OK);
        SetLocalizedItemText(dialog, IDCANCEL, IDS_CANCEL);
    }

    void HideActionControls(HWND dialog) const {
        if (m_record.processMode) {
            ShowWindow(GetDlgItem(dialog, IDC_TASK_ACTION_CAPTION), SW_HIDE);
            for (int id : kActionRadios)
                ShowWindow(GetDlgItem(dialog, id), SW_HIDE);
        } else if (m_record.showHideMode) {
            ShowWindow(GetDlgItem(dialog, IDC_TASK_ACTION_3), SW_HIDE);
        }
    }

    void Confirm(HWND dialog) {
        m_record.text = FieldText(GetDlgItem(dialog, IDC_TASK_TEXT));
        if (IsDlgButtonChecked(dialog, IDC_TASK_ACTION_1) == BST_CHECKED)
            m_record.action = 0;
        else if (IsDlgButtonChecked(dialog, IDC_TASK_ACTION_2) == BST_CHECKED)
            m_record.action = 1;
        else
            m_record.action = 2;
        EndDialog(dialog, IDOK);
    }

    void Browse(HWND dialog) const {
        std::wstring choice;
        if (RunTaskPicker(dialog, m_record.processMode, choice))
            SetDlgItemTextW(dialog, IDC_TASK_TEXT, choice.c_str());
    }

    std::wstring m_caption;
    RuleRecord m_record; // the dialog's own copy, given back only on OK
};

} // namespace

bool RunCustomTaskDialog(HWND owner, const wchar_t* caption, RuleRecord& record) {
    CustomTaskDialog dialog(caption, record);
    if (dialog.Run(owner, {IDD_CUSTOM_TASK, IDD_CUSTOM_TASK, 0}) != IDOK)
        return false;
    record = dialog.Record();
    return true;
}

} // namespace cv2
