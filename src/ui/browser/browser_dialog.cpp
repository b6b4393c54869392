// The file browser's dialog: set-up, the tree's and the grid's events, OK and Cancel.
#include "ui/browser/browser_dialog.h"

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <vector>

#include "ids_ui.h"
#include "platform/device_root.h"
#include "store/scale.h"
#include "store/screen.h"
#include "store/strings.h"
#include "ui/browser/browse_paths.h"
#include "ui/browser/folder_listing.h"
#include "ui/browser/folder_tree.h"
#include "ui/browser/thumbnails.h"
#include "ui/control_layout.h"
#include "ui/dialog_layout.h"
#include "ui/dialog_object.h"
#include "ui/file_browser.h"
#include "ui/icon_grid.h"

namespace cv2 {
namespace {

// Everything the open dialog works with; it lives on Run's stack while the dialog is up.
struct Session {
    Session(FileBrowser& b, bool w) : browser(b), wide(w) {}
    FileBrowser& browser;
    bool wide;
    HWND dialog = nullptr;
    HWND grid = nullptr;
    HWND filterBox = nullptr;
    HWND name = nullptr;
    FolderTree tree;
    std::vector<FilterChoice> filters;
    HIMAGELIST systemIcons = nullptr;
    COLORREF gridBack = 0;
    int thumbSide = 0; // picture slot of the grid's image list in image mode
};

// The shell's small icon list, reached through the file information of any file name.
HIMAGELIST SmallSystemIcons() {
    SHFILEINFOW info = {};
    return reinterpret_cast<HIMAGELIST>(
        SHGetFileInfoW(L"Dummy.txt", FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                       SHGFI_SYSICONINDEX | SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES));
}

void FillFilterBox(Session& s) {
    s.filters = ParseFilter(s.browser.filter);
    for (size_t i = 0; i < s.filters.size(); ++i) {
        const LRESULT at = SendMessageW(s.filterBox, CB_ADDSTRING, 0,
                                        reinterpret_cast<LPARAM>(s.filters[i].label.c_str()));
        // The item's data leads to its pattern list.
        SendMessageW(s.filterBox, CB_SETITEMDATA, static_cast<WPARAM>(at), static_cast<LPARAM>(i));
    }
    SendMessageW(s.filterBox, CB_SETCURSEL, 0, 0);
}

std::vector<std::wstring> CurrentPatterns(const Session& s) {
    const LRESULT at = SendMessageW(s.filterBox, CB_GETCURSEL, 0, 0);
    if (at < 0)
        return {};
    const LRESULT index = SendMessageW(s.filterBox, CB_GETITEMDATA, static_cast<WPARAM>(at), 0);
    if (index < 0 || static_cast<size_t>(index) >= s.filters.size())
        return {};
    return SplitPatterns(s.filters[static_cast<size_t>(index)].patterns);
}

void SetUpGrid(Session& s) {
    FileBrowser& b = s.browser;
    s.gridBack = GetSysColor(COLOR_WINDOW);
    SendMessageW(s.grid, GRM_SETCOLORS, GetSysColor(COLOR_WINDOWTEXT), s.gridBack);
    if (!b.imageMode && s.systemIcons)
        SendMessageW(s.grid, GRM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(s.systemIcons));
    SendMessageW(s.grid, GRM_SETVIEW, b.imageMode ? 0 : 1, 1);
    if (!b.imageMode)
        return;
    SendMessageW(s.grid, GRM_SETCOLUMNS, IsPortraitWidth(ScreenWidth()) ? 3 : 4, 0);
    int cx = 0, cy = 0;
    HIMAGELIST pictures =
        reinterpret_cast<HIMAGELIST>(SendMessageW(s.grid, GRM_GETIMAGELIST, 0, 0));
    if (pictures && ImageList_GetIconSize(pictures, &cx, &cy))
        s.thumbSide = std::min(cx, cy);
}

void ShowTree(const Session& s, bool show) {
    HWND tree = s.tree.Window();
    if (show) {
        SetWindowPos(tree, HWND_TOP, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW | SWP_NOACTIVATE);
    } else {
        ShowWindow(tree, SW_HIDE);
    }
}

// Lists the selected folder's files for the current filter into the grid; the grid asks for
// each file's caption and picture only when it comes into view.
void FillFileList(Session& s) {
    HTREEITEM selected = s.tree.Selected();
    const std::wstring folder = s.tree.PathOf(selected);
    s.browser.files =
        folder.empty() ? std::vector<std::wstring>() : ListFiles(folder, CurrentPatterns(s));
    SendMessageW(s.grid, GRM_DELETEALL, 0, 0);
    SendMessageW(s.grid, GRM_SETCOUNT, s.browser.files.size(), 0);
    // The tree gives way to the files. "My Device" on the desktop holds none: the tree stays,
    // since an empty grid would leave nothing to pick.
    if (selected != s.tree.Root() || !MyDeviceFiles().empty())
        ShowTree(s, false);
}

void OnSelectionChanged(Session& s) {
    if (s.browser.folderMode)
        SetWindowTextW(s.name, s.tree.PathOf(s.tree.Selected()).c_str());
    else
        FillFileList(s);
}

bool OnInit(HWND dialog, Session& s) {
    s.dialog = dialog;
    FileBrowser& b = s.browser;
    if (!InitFullScreenDialog(dialog) || !AddEmptyMenuBar(dialog))
        return false;
    SetWindowTextW(dialog,
                   Localized(b.folderMode ? IDS_BROWSE_FOLDER_TITLE : IDS_BROWSE_FILE_TITLE));
    SetDlgItemTextW(dialog, IDC_BROWSE_CANCEL, Localized(IDS_CANCEL));
    SetDialogFonts(dialog, nullptr, 0);
    s.grid = GetDlgItem(dialog, IDC_BROWSE_FILES);
    s.filterBox = GetDlgItem(dialog, IDC_BROWSE_FILTER);
    s.name = GetDlgItem(dialog, IDC_BROWSE_NAME);
    FillFilterBox(s);
    s.systemIcons = SmallSystemIcons();
    s.tree.Attach(GetDlgItem(dialog, IDC_BROWSE_TREE), s.systemIcons);
    SetUpGrid(s);
    if (b.folderMode) {
        ShowWindow(s.grid, SW_HIDE);
        ShowWindow(s.filterBox, SW_HIDE);
        ShowWindow(GetDlgItem(dialog, IDC_BROWSE_TREE_BUTTON), SW_HIDE);
        ShowTree(s, true);
    }
    PlaceBrowserControls(dialog, b.folderMode, s.wide);
    s.tree.AddRoot();
    if (!b.startFolder.empty())
        s.tree.SelectFolder(b.startFolder);
    SetFocus(b.folderMode ? s.tree.Window() : s.grid);
    return true;
}

// The shell's display name of a file. The shell derives it from the name alone: asked to look at
// the file itself, it takes a time that grows with the size of the folder.
void ShellDisplayName(const std::wstring& path, wchar_t (&caption)[256]) {
    SHFILEINFOW info = {};
    if (SHGetFileInfoW(path.c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                       SHGFI_DISPLAYNAME | SHGFI_USEFILEATTRIBUTES) &&
        info.szDisplayName[0])
        lstrcpynW(caption, info.szDisplayName, 256);
    else
        lstrcpynW(caption, path.c_str() + path.find_last_of(L'\\') + 1, 256);
}

// The grid's on-demand request: file N's display name and its picture or icon.
void OnNeedItem(Session& s, WPARAM index, GridItemDesc* desc) {
    if (!desc || index >= s.browser.files.size())
        return;
    const std::wstring& path = s.browser.files[index];
    ShellDisplayName(path, desc->caption);
    if (!s.browser.imageMode) {
        // The file's own icon (programs and shortcuts have theirs), so the shell looks at it.
        desc->picture = ShellIconIndex(path);
        return;
    }
    if (!IsPictureName(path))
        return;
    LoadedImage picture = LoadThumbnail(path, s.thumbSide, s.gridBack);
    if (!picture.IsEmpty())
        desc->picture = static_cast<int32_t>(
            SendMessageW(s.grid, GRM_ADDBITMAP, 0, reinterpret_cast<LPARAM>(picture.Bitmap())));
}

void OnCurrentFileChanged(Session& s) {
    const LRESULT at = SendMessageW(s.grid, GRM_GETSEL, 0, 0);
    const bool valid = at >= 0 && static_cast<size_t>(at) < s.browser.files.size();
    SetWindowTextW(s.name, valid ? s.browser.files[static_cast<size_t>(at)].c_str() : L"");
}

void OnOk(Session& s) {
    const int length = GetWindowTextLengthW(s.name);
    if (length <= 0)
        return; // nothing chosen: the dialog stays
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(s.name, &text[0], length + 1)));
    s.browser.result = text;
    EndDialog(s.dialog, IDOK);
}

void OnCommand(Session& s, WPARAM wParam, LPARAM lParam) {
    // The grid puts its id in the high word and its code in the low word.
    if (reinterpret_cast<HWND>(lParam) == s.grid && s.grid) {
        if (GridNotifyCode(wParam) == GRN_CURRENTCHANGED)
            OnCurrentFileChanged(s);
        return;
    }
    const WORD id = LOWORD(wParam);
    const WORD code = HIWORD(wParam);
    switch (id) {
    case IDOK:
        OnOk(s);
        break;
    case IDCANCEL:
    case IDC_BROWSE_CANCEL:
        EndDialog(s.dialog, IDCANCEL);
        break;
    case IDC_BROWSE_TREE_BUTTON:
        if (code == BN_CLICKED) {
            const bool show = !IsWindowVisible(s.tree.Window());
            ShowTree(s, show);
            // The tree takes the keys while it is open, and shows its selection as focused.
            SetFocus(show ? s.tree.Window() : s.grid);
        }
        break;
    case IDC_BROWSE_FILTER:
        if (code == CBN_SELCHANGE && !s.browser.folderMode)
            FillFileList(s);
        break;
    }
}

LRESULT OnNotify(Session& s, const NMHDR& header) {
    if (header.hwndFrom != s.tree.Window())
        return 0;
    const auto& info = reinterpret_cast<const NMTREEVIEWW&>(header);
    if (header.code == TVN_ITEMEXPANDINGW)
        s.tree.OnExpanding(info);
    else if (header.code == TVN_SELCHANGEDW)
        OnSelectionChanged(s);
    return 0;
}

INT_PTR CALLBACK BrowserProc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    Session* s = DialogObject<Session>(dialog, msg, lParam);
    if (msg == WM_INITDIALOG) {
        if (!OnInit(dialog, *s))
            EndDialog(dialog, -1);
        return FALSE; // the focus is set
    }
    if (!s)
        return FALSE;
    switch (msg) {
    case WM_SIZE:
        PlaceBrowserControls(dialog, s->browser.folderMode, s->wide);
        return TRUE;
    case WM_COMMAND:
        OnCommand(*s, wParam, lParam);
        return TRUE;
    case WM_NOTIFY:
        SetWindowLongPtrW(dialog, DWLP_MSGRESULT,
                          OnNotify(*s, *reinterpret_cast<const NMHDR*>(lParam)));
        return TRUE;
    case GRN_NEEDITEM:
        OnNeedItem(*s, wParam, reinterpret_cast<GridItemDesc*>(lParam));
        return TRUE;
    case WM_DRAWITEM:
        if (wParam != IDC_BROWSE_TREE_BUTTON)
            return FALSE;
        DrawTreeButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

} // namespace

INT_PTR RunBrowserDialog(HWND owner, FileBrowser& browser, int templateId) {
    Session session(browser, templateId == IDD_FILE_BROWSER_WIDE);
    return DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId), owner,
                           BrowserProc, reinterpret_cast<LPARAM>(&session));
}

} // namespace cv2
