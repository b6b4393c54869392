#include "pages/behaviour/program_directories_page.h"

#include <shlobj.h>

#include "ids_behaviour.h"
#include "pages/behaviour/program_directories_values.h"
#include "store/scale.h"
#include "ui/child_controls.h"
#include "ui/control_layout.h"
#include "ui/file_browser.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

// In creation order, which is also the tab order.
const ChildControl kControls[ProgramDirectoriesPage::Count] = {
    {L"STATIC", SS_LEFT, 0, IDS_START_MENU_PATH, IDC_PROGRAM_START_MENU_LABEL},
    {L"EDIT", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, 0, StringId(0), IDC_PROGRAM_START_MENU_PATH},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, StringId(0), IDC_PROGRAM_START_MENU_BROWSE},
    {L"STATIC", SS_LEFT, 0, IDS_THEME_DIRECTORIES, IDC_PROGRAM_THEMES_LABEL},
    {L"LISTBOX",
     WS_BORDER | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, 0,
     StringId(0), IDC_PROGRAM_THEMES_LIST},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_ADD, IDC_PROGRAM_THEMES_ADD},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_DELETE, IDC_PROGRAM_THEMES_DELETE},
};

// Captions and push buttons are bold.
const ProgramDirectoriesPage::Control kBold[] = {
    ProgramDirectoriesPage::PathLabel, ProgramDirectoriesPage::Browse,
    ProgramDirectoriesPage::ListLabel, ProgramDirectoriesPage::Add, ProgramDirectoriesPage::Delete};

// The start menu path with its browse button, then the theme folders with their caption; the
// list takes the room down to the two buttons along the bottom.
const ControlPlace kPlaces[] = {
    {IDC_PROGRAM_START_MENU_LABEL, From::Left, 4, From::Right, -4, 8, 16},
    {IDC_PROGRAM_START_MENU_PATH, From::Left, 4, From::Right, -34, 25, 21},
    {IDC_PROGRAM_START_MENU_BROWSE, From::Right, -31, From::Right, -4, 25, 21},
    {IDC_PROGRAM_THEMES_LABEL, From::Left, 4, From::Right, -4, 54, 16},
    {IDC_PROGRAM_THEMES_LIST, From::Left, 4, From::Right, -4, 71, -30, FromY::Top, true},
    {IDC_PROGRAM_THEMES_ADD, From::Left, 4, From::Middle, -2, -26, 22, FromY::Bottom},
    {IDC_PROGRAM_THEMES_DELETE, From::Middle, 2, From::Right, -4, -26, 22, FromY::Bottom},
};

// The folder holding the Programs special folder; empty when the shell does not know it.
std::wstring ProgramsFolder() {
    wchar_t folder[MAX_PATH] = {};
    if (!SHGetSpecialFolderPathW(nullptr, folder, CSIDL_PROGRAMS, FALSE))
        return std::wstring();
    return folder;
}

std::wstring WindowText(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<size_t>(length > 0 ? length : 0) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, &text[0], length + 1)));
    return text;
}

} // namespace

ProgramDirectoriesPage::ProgramDirectoriesPage() : SettingsPage(IDS_PROGRAM_DIRECTORIES) {}

ProgramDirectoriesPage::~ProgramDirectoriesPage() {
    OnDestroy();
}

void ProgramDirectoriesPage::Create(HWND host) {
    m_host = host;
    CreateChildControls(host, kControls, Count, m_controls);
    SetWindowTextW(m_controls[Browse], L"...");
    for (Control c : kBold)
        SetControlFont(m_controls[c], CaptionFont());
    EnableWindow(m_controls[Delete], FALSE);
    OnSize(Area());
}

void ProgramDirectoriesPage::Show(bool visible) {
    ShowWindows(m_controls, Count, visible);
}

void ProgramDirectoriesPage::OnSize(const RECT&) {
    if (m_controls[Path])
        PlaceControls(m_host, Area(), kPlaces);
}

void ProgramDirectoriesPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc || !m_controls[Path])
        return;
    const std::wstring defaultPath = DefaultStartMenuPath(ProgramsFolder());
    SetWindowTextW(m_controls[Path], LoadStartMenuPath(*doc, defaultPath).c_str());
    SendMessageW(m_controls[List], LB_RESETCONTENT, 0, 0);
    for (const std::wstring& folder : LoadThemeDirectories(*doc))
        SendMessageW(m_controls[List], LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(folder.c_str()));
    UpdateDelete();
}

std::vector<std::wstring> ProgramDirectoriesPage::Folders() const {
    std::vector<std::wstring> folders;
    HWND list = m_controls[List];
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const LRESULT length = SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(i), 0);
        std::wstring text(static_cast<size_t>(length > 0 ? length : 0) + 1, L'\0');
        const LRESULT got = SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i),
                                         reinterpret_cast<LPARAM>(&text[0]));
        text.resize(got > 0 ? static_cast<size_t>(got) : 0);
        folders.push_back(text);
    }
    return folders;
}

void ProgramDirectoriesPage::Save(IniDocument* target) {
    if ((!target && !Doc()) || !m_controls[Path])
        return;
    IniDocument& doc = SaveTarget(target);
    SaveStartMenuPath(doc, WindowText(m_controls[Path]));
    SaveThemeDirectories(doc, Folders());
    UpdateDelete();
    if (m_reloadThemes)
        m_reloadThemes();
}

void ProgramDirectoriesPage::OnDestroy() {
    DestroyWindows(m_controls, Count);
}

// Other pages share the host window and may use the same ids: only this page's own controls
// are taken, by window handle.
bool ProgramDirectoriesPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    HWND from = reinterpret_cast<HWND>(lParam);
    if (!from)
        return false;
    const WORD code = HIWORD(wParam);
    if (from == m_controls[List]) {
        if (code == LBN_SELCHANGE)
            UpdateDelete();
        return true;
    }
    if (from == m_controls[Path])
        return true;
    if (from != m_controls[Browse] && from != m_controls[Add] && from != m_controls[Delete])
        return false;
    if (code != BN_CLICKED)
        return true;
    if (from == m_controls[Browse])
        BrowseStartMenu();
    else if (from == m_controls[Add])
        AddFolder();
    else
        DeleteFolder();
    return true;
}

bool ProgramDirectoriesPage::PickFolder(std::wstring& folder) const {
    FileBrowser browser(false, true);
    // Both buttons open the browser where the last folder was picked; no kind is named, so it
    // is remembered under the filter.
    browser.SetFilter(browser.filter.c_str(), true, nullptr);
    if (!browser.Run(m_host))
        return false;
    folder = browser.result;
    return true;
}

void ProgramDirectoriesPage::BrowseStartMenu() {
    std::wstring folder;
    if (PickFolder(folder))
        SetWindowTextW(m_controls[Path], folder.c_str());
}

void ProgramDirectoriesPage::AddFolder() {
    std::wstring folder;
    if (PickFolder(folder))
        SendMessageW(m_controls[List], LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(folder.c_str()));
}

void ProgramDirectoriesPage::DeleteFolder() {
    const LRESULT selected = SendMessageW(m_controls[List], LB_GETCURSEL, 0, 0);
    if (selected >= 0)
        SendMessageW(m_controls[List], LB_DELETESTRING, static_cast<WPARAM>(selected), 0);
    UpdateDelete();
}

void ProgramDirectoriesPage::UpdateDelete() {
    EnableWindow(m_controls[Delete], SendMessageW(m_controls[List], LB_GETCURSEL, 0, 0) >= 0);
}

} // namespace cv2
