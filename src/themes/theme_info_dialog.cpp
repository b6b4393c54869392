#include "themes/theme_info_dialog.h"

#include <new>

#include "ids_editor.h"
#include "store/config_sections.h"
#include "store/strings.h"
#include "themes/theme_package.h"
#include "ui/control_layout.h"
#include "ui/dialog_layout.h"
#include "ui/file_browser.h"

namespace cv2 {
namespace {

const ControlText kTexts[] = {
    {IDC_INFO_NAME_LABEL, IDS_THEME_NAME},
    {IDC_INFO_AUTHOR_LABEL, IDS_THEME_AUTHOR},
    {IDC_INFO_EMAIL_LABEL, IDS_THEME_EMAIL},
    {IDC_INFO_PATH_LABEL, IDS_THEME_PATH},
    {IDC_INFO_HIRES, IDS_THEME_HIRES},
    {IDCANCEL, IDS_CANCEL},
    {IDC_INFO_COPY_FILES, IDS_EXPORT_COPY_FILES},
    {IDC_INFO_PACKAGE, IDS_EXPORT_PACKAGE},
};

// Each label beside its box; one table serves every screen shape.
const ControlPlace kPlaces[] = {
    {IDC_INFO_NAME_LABEL, From::Left, 4, From::Left, 88, 7, 16},
    {IDC_INFO_NAME, From::Left, 90, From::Right, -4, 4, 21},
    {IDC_INFO_AUTHOR_LABEL, From::Left, 4, From::Left, 88, 32, 16},
    {IDC_INFO_AUTHOR, From::Left, 90, From::Right, -4, 29, 21},
    {IDC_INFO_EMAIL_LABEL, From::Left, 4, From::Left, 88, 57, 16},
    {IDC_INFO_EMAIL, From::Left, 90, From::Right, -4, 54, 21},
    {IDC_INFO_PATH_LABEL, From::Left, 4, From::Left, 88, 82, 16},
    {IDC_INFO_PATH, From::Left, 90, From::Right, -31, 79, 21},
    {IDC_INFO_BROWSE, From::Right, -28, From::Right, -4, 79, 21},
    {IDC_INFO_HIRES, From::Left, 4, From::Right, -4, 106, 21},
    {IDC_INFO_COPY_FILES, From::Left, 4, From::Right, -4, 127, 32},
    {IDC_INFO_PACKAGE, From::Left, 4, From::Right, -4, 160, 21},
    {IDCANCEL, From::Right, -84, From::Right, -4, 184, 23},
};

// A text field and the record's buffer it fills, with the buffer's size.
struct Field {
    int id;
    wchar_t* text;
    int chars;
};

struct Fields {
    Field rows[4];
};

Fields FieldsOf(ThemeInfo& info) {
    return {{{IDC_INFO_NAME, info.name, 100},
             {IDC_INFO_AUTHOR, info.author, 100},
             {IDC_INFO_EMAIL, info.email, 100},
             {IDC_INFO_PATH, info.path, 260}}};
}

void Fill(HWND dlg, ThemeInfo& info) {
    for (const Field& f : FieldsOf(info).rows) {
        SendDlgItemMessageW(dlg, f.id, EM_LIMITTEXT, static_cast<WPARAM>(f.chars - 1), 0);
        SetDlgItemTextW(dlg, f.id, f.text);
    }
    CheckDlgButton(dlg, IDC_INFO_HIRES, info.hiRes ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(dlg, IDC_INFO_COPY_FILES, info.copyFiles ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(dlg, IDC_INFO_PACKAGE, info.package ? BST_CHECKED : BST_UNCHECKED);
}

// A package always carries the theme's files: while it is ticked, the copy box shows ticked and
// cannot be changed; unticked, it shows what the user had chosen.
void FollowPackageBox(HWND dlg, bool& copyChosen) {
    const bool package = IsDlgButtonChecked(dlg, IDC_INFO_PACKAGE) == BST_CHECKED;
    HWND copy = GetDlgItem(dlg, IDC_INFO_COPY_FILES);
    if (package && IsWindowEnabled(copy))
        copyChosen = IsDlgButtonChecked(dlg, IDC_INFO_COPY_FILES) == BST_CHECKED;
    CheckDlgButton(dlg, IDC_INFO_COPY_FILES, package || copyChosen ? BST_CHECKED : BST_UNCHECKED);
    EnableWindow(copy, !package);
}

void Take(HWND dlg, ThemeInfo& info) {
    for (const Field& f : FieldsOf(info).rows)
        GetDlgItemTextW(dlg, f.id, f.text, f.chars);
    info.hiRes = IsDlgButtonChecked(dlg, IDC_INFO_HIRES) == BST_CHECKED;
    info.copyFiles = IsDlgButtonChecked(dlg, IDC_INFO_COPY_FILES) == BST_CHECKED;
    info.package = IsDlgButtonChecked(dlg, IDC_INFO_PACKAGE) == BST_CHECKED;
}

void BrowseSkin(HWND dlg) {
    FileBrowser browser(false, false);
    browser.SetFilter(Localized(IDS_SKIN_FILTER), true, L"skins");
    if (browser.Run(dlg))
        SetDlgItemTextW(dlg, IDC_INFO_PATH, browser.result.c_str());
}

void PlaceAll(HWND dlg) {
    PlaceControls(dlg, kPlaces, sizeof kPlaces / sizeof kPlaces[0]);
}

INT_PTR OnInit(HWND dlg, ThemeInfo& info) {
    if (!InitFullScreenDialog(dlg)) {
        EndDialog(dlg, -1);
        return FALSE;
    }
    SetWindowTextW(dlg, Localized(IDS_THEME_INFO_TITLE));
    SetControlTexts(dlg, kTexts, sizeof kTexts / sizeof kTexts[0]);
    SetDialogFonts(dlg, nullptr, 0);
    Fill(dlg, info);
    bool copyChosen = info.copyFiles;
    FollowPackageBox(dlg, copyChosen);
    PlaceAll(dlg);
    return TRUE;
}

INT_PTR CALLBACK InfoProc(HWND dlg, UINT msg, WPARAM wParam, LPARAM lParam) {
    auto* info = reinterpret_cast<ThemeInfo*>(GetWindowLongPtrW(dlg, DWLP_USER));
    switch (msg) {
    case WM_INITDIALOG:
        SetWindowLongPtrW(dlg, DWLP_USER, lParam);
        return OnInit(dlg, *reinterpret_cast<ThemeInfo*>(lParam));
    case WM_SIZE:
        PlaceAll(dlg);
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    case WM_COMMAND:
        if (!info)
            return FALSE;
        switch (LOWORD(wParam)) {
        case IDOK:
            Take(dlg, *info);
            EndDialog(dlg, IDOK);
            return TRUE;
        case IDCANCEL:
            EndDialog(dlg, IDCANCEL);
            return TRUE;
        case IDC_INFO_BROWSE:
            BrowseSkin(dlg);
            return TRUE;
        case IDC_INFO_PACKAGE:
            FollowPackageBox(dlg, info->copyFiles);
            return TRUE;
        }
        return FALSE;
    }
    return FALSE;
}

} // namespace

IniDocument* AskThemeInfo(ThemeInfo& info, HWND parent) {
    // The dialog works on a copy; the caller's record changes only on OK.
    ThemeInfo entered = info;
    if (DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_THEME_INFO), parent,
                        InfoProc, reinterpret_cast<LPARAM>(&entered)) != IDOK)
        return nullptr;
    info = entered;
    IniDocument* doc = new (std::nothrow) IniDocument();
    if (!doc)
        return nullptr;
    // An absent file leaves the document empty, bound to the path.
    doc->Load(info.package ? PackagePathsFor(info.path).skin : std::wstring(info.path));
    doc->SetString(config::kSkinInfo, L"Author", info.author);
    doc->SetString(config::kSkinInfo, L"AuthorEmail", info.email);
    doc->SetString(config::kSkinInfo, L"Name", info.name);
    doc->SetBool(config::kSkinInfo, L"HiRes", info.hiRes);
    return doc;
}

} // namespace cv2
