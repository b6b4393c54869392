#include "pages/behaviour/program_directories_page.h"

#include <shlobj.h>

#include "ids_behaviour.h"
#include "pages/behaviour/program_directories_values.h"
#include "store/scale.h"
#include "ui/control_layout.h"
#include "ui/file_browser.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

// Below the header strip: the start menu path with its browse button, then the caption of the
// theme folders. The list and its two buttons take the rest, down to the bottom.
const ControlPlace kTopPlaces[] = {
    {IDC_PROGRAM_START_MENU_LABEL, From::Left, 4, From::Right, -4, 28, 16},
    {IDC_PROGRAM_START_MENU_PATH, From::Left, 4, From::Right, -34, 45, 21},
    {IDC_PROGRAM_START_MENU_BROWSE, From::Right, -31, From::Right, -4, 45, 21},
    {IDC_PROGRAM_THEMES_LABEL, From::Left, 4, From::Right, -4, 74, 16},
};
constexpr int kListTop = 91;
constexpr int kButtonHeight = 22;

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

HWND ProgramDirectoriesPage::MakeChild(const wchar_t* cls, const wchar_t* text, DWORD style, int id,
                                       HFONT font) {
    return CreatePageControl(m_host, cls, text, style, id, font);
}

void ProgramDirectoriesPage::Create(HWND host) {
    m_host = host;
    m_pathLabel = MakeChild(L"STATIC", Localized(IDS_START_MENU_PATH), SS_LEFT,
                            IDC_PROGRAM_START_MENU_LABEL, CaptionFont());
    m_path = MakeChild(L"EDIT", L"", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL,
                       IDC_PROGRAM_START_MENU_PATH, TextFont());
    const DWORD button = BS_PUSHBUTTON | WS_TABSTOP;
    m_browse = MakeChild(L"BUTTON", L"...", button, IDC_PROGRAM_START_MENU_BROWSE, CaptionFont());
    m_listLabel = MakeChild(L"STATIC", Localized(IDS_THEME_DIRECTORIES), SS_LEFT,
                            IDC_PROGRAM_THEMES_LABEL, CaptionFont());
    m_list = MakeChild(L"LISTBOX", L"",
                       WS_BORDER | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | LBS_NOTIFY |
                           LBS_NOINTEGRALHEIGHT,
                       IDC_PROGRAM_THEMES_LIST, TextFont());
    m_add = MakeChild(L"BUTTON", Localized(IDS_ADD), button, IDC_PROGRAM_THEMES_ADD, CaptionFont());
    m_delete = MakeChild(L"BUTTON", Localized(IDS_DELETE), button, IDC_PROGRAM_THEMES_DELETE,
                         CaptionFont());
    EnableWindow(m_delete, FALSE);
    RECT client;
    GetClientRect(host, &client);
    OnSize(client);
}

void ProgramDirectoriesPage::Show(bool visible) {
    const HWND controls[] = {m_pathLabel, m_path, m_browse, m_listLabel, m_list, m_add, m_delete};
    ShowWindows(controls, sizeof controls / sizeof controls[0], visible);
}

void ProgramDirectoriesPage::OnSize(const RECT& client) {
    const int width = client.right - client.left;
    // In the order of kTopPlaces.
    const HWND top[] = {m_pathLabel, m_path, m_browse, m_listLabel};
    for (size_t i = 0; i < sizeof top / sizeof top[0]; ++i) {
        const RECT r = PlaceRect(kTopPlaces[i], width);
        MoveWindow(top[i], r.left, r.top, r.right - r.left, r.bottom - r.top, TRUE);
    }
    const int margin = ScaleX(4);
    const int buttonTop = client.bottom - Scale(4) - Scale(kButtonHeight);
    const int listTop = Scale(kListTop);
    const int listBottom = buttonTop - Scale(4);
    MoveWindow(m_list, margin, listTop, width - 2 * margin,
               listBottom > listTop ? listBottom - listTop : 0, TRUE);
    const int buttonWidth = (width - 3 * margin) / 2;
    MoveWindow(m_add, margin, buttonTop, buttonWidth, Scale(kButtonHeight), TRUE);
    MoveWindow(m_delete, 2 * margin + buttonWidth, buttonTop, buttonWidth, Scale(kButtonHeight),
               TRUE);
}

void ProgramDirectoriesPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc)
        return;
    const std::wstring defaultPath = DefaultStartMenuPath(ProgramsFolder());
    SetWindowTextW(m_path, LoadStartMenuPath(*doc, defaultPath).c_str());
    SendMessageW(m_list, LB_RESETCONTENT, 0, 0);
    for (const std::wstring& folder : LoadThemeDirectories(*doc))
        SendMessageW(m_list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(folder.c_str()));
    UpdateDelete();
}

std::vector<std::wstring> ProgramDirectoriesPage::Folders() const {
    std::vector<std::wstring> folders;
    const LRESULT count = SendMessageW(m_list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const LRESULT length = SendMessageW(m_list, LB_GETTEXTLEN, static_cast<WPARAM>(i), 0);
        std::wstring text(static_cast<size_t>(length > 0 ? length : 0) + 1, L'\0');
        const LRESULT got = SendMessageW(m_list, LB_GETTEXT, static_cast<WPARAM>(i),
                                         reinterpret_cast<LPARAM>(&text[0]));
        text.resize(got > 0 ? static_cast<size_t>(got) : 0);
        folders.push_back(text);
    }
    return folders;
}

void ProgramDirectoriesPage::Save(IniDocument* target) {
    if (!target && !m_doc)
        return;
    IniDocument& doc = SaveTarget(target);
    SaveStartMenuPath(doc, WindowText(m_path));
    SaveThemeDirectories(doc, Folders());
    UpdateDelete();
    if (m_reloadThemes)
        m_reloadThemes();
}

void ProgramDirectoriesPage::OnDestroy() {
    HWND* const controls[] = {&m_pathLabel, &m_path, &m_browse, &m_listLabel,
                              &m_list,      &m_add,  &m_delete};
    DestroyWindows(controls, sizeof controls / sizeof controls[0]);
}

// Other pages share the host window and may use the same ids: only this page's own controls
// are taken, by window handle.
bool ProgramDirectoriesPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    HWND from = reinterpret_cast<HWND>(lParam);
    if (!from)
        return false;
    const WORD code = HIWORD(wParam);
    if (from == m_list) {
        if (code == LBN_SELCHANGE)
            UpdateDelete();
        return true;
    }
    if (from != m_browse && from != m_add && from != m_delete)
        return from == m_path;
    if (code != BN_CLICKED)
        return true;
    if (from == m_browse)
        BrowseStartMenu();
    else if (from == m_add)
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
        SetWindowTextW(m_path, folder.c_str());
}

void ProgramDirectoriesPage::AddFolder() {
    std::wstring folder;
    if (PickFolder(folder))
        SendMessageW(m_list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(folder.c_str()));
}

void ProgramDirectoriesPage::DeleteFolder() {
    const LRESULT selected = SendMessageW(m_list, LB_GETCURSEL, 0, 0);
    if (selected >= 0)
        SendMessageW(m_list, LB_DELETESTRING, static_cast<WPARAM>(selected), 0);
    UpdateDelete();
}

void ProgramDirectoriesPage::UpdateDelete() {
    EnableWindow(m_delete, SendMessageW(m_list, LB_GETCURSEL, 0, 0) >= 0);
}

} // namespace cv2
