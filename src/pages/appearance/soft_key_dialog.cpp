#include "pages/appearance/soft_key_dialog.h"

#include "ids_appearance_panel.h"
#include "store/paths.h"
#include "ui/backgrounds/graphics_browse.h"
#include "ui/full_screen_dialog.h"

namespace cv2 {
namespace {

const DialogTemplates kTemplates = {IDD_SOFT_KEYS, IDD_SOFT_KEYS, 0};
constexpr int kPathChars = 259;

// The three picture rows, by state.
struct StateRow {
    int edit;
    int browse;
};
const StateRow kRows[3] = {
    {IDC_SOFTKEY_NORMAL, IDC_SOFTKEY_NORMAL_BROWSE},
    {IDC_SOFTKEY_PRESSED, IDC_SOFTKEY_PRESSED_BROWSE},
    {IDC_SOFTKEY_DISABLED, IDC_SOFTKEY_DISABLED_BROWSE},
};

const ControlText kTexts[] = {
    {IDC_SOFTKEY_NORMAL_LABEL, IDS_NORMAL_IMAGE},
    {IDC_SOFTKEY_PRESSED_LABEL, IDS_PRESSED_IMAGE},
    {IDC_SOFTKEY_DISABLED_LABEL, IDS_DISABLED_IMAGE},
};

// The list's height includes its drop-down part.
const ControlPlace kPlaces[] = {
    {IDC_SOFTKEY_KEY, From::Left, 4, From::Right, -4, 6, 80},
    {IDC_SOFTKEY_NORMAL_LABEL, From::Left, 4, From::Right, -4, 36, 16},
    {IDC_SOFTKEY_NORMAL, From::Left, 4, From::Right, -31, 52, 21},
    {IDC_SOFTKEY_NORMAL_BROWSE, From::Right, -28, From::Right, -4, 52, 21},
    {IDC_SOFTKEY_PRESSED_LABEL, From::Left, 4, From::Right, -4, 78, 16},
    {IDC_SOFTKEY_PRESSED, From::Left, 4, From::Right, -31, 94, 21},
    {IDC_SOFTKEY_PRESSED_BROWSE, From::Right, -28, From::Right, -4, 94, 21},
    {IDC_SOFTKEY_DISABLED_LABEL, From::Left, 4, From::Right, -4, 120, 16},
    {IDC_SOFTKEY_DISABLED, From::Left, 4, From::Right, -31, 136, 21},
    {IDC_SOFTKEY_DISABLED_BROWSE, From::Right, -28, From::Right, -4, 136, 21},
};

std::wstring ItemPath(HWND dialog, int id) {
    wchar_t text[kPathChars + 1] = {};
    GetDlgItemTextW(dialog, id, text, kPathChars + 1);
    return text;
}

class SoftKeyDialog : public FullScreenDialog {
  public:
    explicit SoftKeyDialog(const SoftKeyImages& images) : images(images) {}
    SoftKeyImages images;

  protected:
    const ControlPlace* Places(size_t* count) const override {
        *count = sizeof kPlaces / sizeof kPlaces[0];
        return kPlaces;
    }
    void OnInit(HWND dialog) override {
        SetWindowTextW(dialog, L"SoftKeys");
        SetControlTexts(dialog, kTexts, sizeof kTexts / sizeof kTexts[0]);
        SetDialogFonts(dialog, nullptr, 0);
        HWND list = GetDlgItem(dialog, IDC_SOFTKEY_KEY);
        // The two keys' names are not looked up.
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Left"));
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Right"));
        SendMessageW(list, CB_SETCURSEL, 0, 0);
        for (const StateRow& row : kRows)
            SendDlgItemMessageW(dialog, row.edit, EM_LIMITTEXT, kPathChars, 0);
        m_key = -1;
        ShowKey(dialog);
    }
    void OnCommand(HWND dialog, WORD id, WORD code) override {
        if (id == IDC_SOFTKEY_KEY && code == CBN_SELCHANGE) {
            ShowKey(dialog);
            return;
        }
        if (code != BN_CLICKED)
            return;
        if (id == IDOK) {
            TakeEdits(dialog);
            EndDialog(dialog, IDOK);
            return;
        }
        for (const StateRow& row : kRows) {
            std::wstring path;
            if (id == row.browse && BrowseGraphicsFile(dialog, path))
                SetDlgItemTextW(dialog, row.edit, path.c_str());
        }
    }

  private:
    std::wstring& Path(int key, int state) { return images.paths[state * 2 + key]; }

    // What was typed for the key shown so far goes into the copy.
    void TakeEdits(HWND dialog) {
        if (m_key < 0)
            return;
        for (int state = 0; state < 3; ++state)
            Path(m_key, state) = ItemPath(dialog, kRows[state].edit);
    }
    void ShowKey(HWND dialog) {
        TakeEdits(dialog);
        const LRESULT sel = SendDlgItemMessageW(dialog, IDC_SOFTKEY_KEY, CB_GETCURSEL, 0, 0);
        m_key = sel == 1 ? 1 : 0;
        for (int state = 0; state < 3; ++state)
            SetDlgItemTextW(dialog, kRows[state].edit, Path(m_key, state).c_str());
    }

    int m_key = -1; // the key whose pictures the boxes show
};

} // namespace

bool EditSoftKeys(SoftKeyImages& images, HWND owner) {
    SoftKeyImages cut;
    for (int i = 0; i < 6; ++i)
        cut.paths[i] = CutToBuffer(images.paths[i], kPathChars + 1);
    SoftKeyDialog dialog(cut);
    if (dialog.Run(owner, kTemplates) != IDOK)
        return false;
    images = dialog.images;
    return true;
}

} // namespace cv2
