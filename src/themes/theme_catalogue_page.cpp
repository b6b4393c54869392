#include "themes/theme_catalogue_page.h"

#include "ids_themes.h"
#include "pages/appearance/theme_path_keys.h"
#include "platform/exe_folder.h"
#include "platform/file_access.h"
#include "store/config_sections.h"
#include "store/paths.h"
#include "store/scale.h"
#include "store/screen.h"
#include "themes/older_theme.h"
#include "themes/older_theme_device.h"
#include "themes/preview/preview_device.h"
#include "themes/preview/scene_builder.h"
#include "themes/theme_editor.h"
#include "themes/theme_files.h"
#include "themes/theme_package.h"
#include "ui/file_browser.h"
#include "ui/child_controls.h"
#include "ui/control_layout.h"
#include "ui/wait_cursor.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

// In creation order; the "Details" button is made by OnSize, on square screens only.
const ChildControl kControls[ThemeCataloguePage::DetailsButton] = {
    {L"LISTBOX", WS_BORDER | WS_VSCROLL | WS_TABSTOP | LBS_SORT | LBS_NOTIFY, 0, StringId(0),
     IDC_THEMES_LIST},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_CUSTOMIZE, IDC_THEMES_CUSTOMIZE},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_DELETE, IDC_THEMES_DELETE},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_INSTALL, IDC_THEMES_INSTALL},
    {L"EDIT", WS_BORDER | ES_MULTILINE | ES_READONLY, 0, StringId(0), IDC_THEMES_DETAILS},
};
const ChildControl kDetailsButton = {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_THEME_DETAILS,
                                     IDC_THEMES_DETAILS_BUTTON};

// Places on the three screen shapes: the list with the details beside it (landscape) or below
// it (portrait); on a square screen a "Details" button stands for the box. "Install" ends the
// row of buttons where there is room for a third (portrait), stands under the details
// (landscape), or starts a second row (square). The selected theme's top bar runs across the
// screen above the details (portrait) or under the buttons.
const ControlPlace kWidePlaces[] = {
    {IDC_THEMES_LIST, From::Left, 0, From::Left, 162, 3, 135},
    {IDC_THEMES_DETAILS, From::Left, 165, From::Left, 320, 3, 135},
    {IDC_THEMES_INSTALL, From::Left, 165, From::Left, 240, 141, 20},
};
const ControlPlace kNarrowPlaces[] = {
    {IDC_THEMES_LIST, From::Left, 0, From::Left, 240, 3, 141},
    {IDC_THEMES_DETAILS, From::Left, 0, From::Left, 240, 198, -2, FromY::Top, true},
    {IDC_THEMES_INSTALL, From::Left, 159, From::Left, 234, 147, 20},
};
// Square screens have the height of landscape ones and two rows of buttons: a shorter list.
const ControlPlace kSquarePlaces[] = {
    {IDC_THEMES_LIST, From::Left, 0, From::Left, 240, 3, 112},
    {IDC_THEMES_CUSTOMIZE, From::Left, 5, From::Left, 80, 118, 20},
    {IDC_THEMES_DELETE, From::Left, 82, From::Left, 157, 118, 20},
    {IDC_THEMES_DETAILS_BUTTON, From::Left, 159, From::Left, 234, 118, 20},
    {IDC_THEMES_INSTALL, From::Left, 5, From::Left, 80, 141, 20},
};
const ControlPlace kButtonPlaces[] = {
    {IDC_THEMES_CUSTOMIZE, From::Left, 5, From::Left, 80, 147, 20},
    {IDC_THEMES_DELETE, From::Left, 82, From::Left, 157, 147, 20},
    {IDC_THEMES_DETAILS_BUTTON, From::Left, 159, From::Left, 234, 147, 20},
    {IDC_THEMES_PREVIEW, From::Left, 0, From::Right, 0, 170, 26},
};
// The same on screens of landscape height, six units higher.
const ControlPlace kShortButtonPlaces[] = {
    {IDC_THEMES_CUSTOMIZE, From::Left, 5, From::Left, 80, 141, 20},
    {IDC_THEMES_DELETE, From::Left, 82, From::Left, 157, 141, 20},
    {IDC_THEMES_DETAILS_BUTTON, From::Left, 159, From::Left, 234, 141, 20},
    {IDC_THEMES_PREVIEW, From::Left, 0, From::Right, 0, 165, 26},
};

// The details box shows at most this much of the details.
constexpr int kDetailsBoxChars = 1024;

// The notice the page posts itself, as from its list, to list the themes anew once the message
// being handled is done; list boxes send no notification of this number.
constexpr WORD kListAgain = 0x7C32;

LRESULT Send(HWND window, UINT msg, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(window, msg, wParam, lParam);
}

// The edit gets a scroll bar only when there are notes to scroll through.
void SetVerticalScrollBar(HWND edit, bool on) {
    const LONG_PTR style = GetWindowLongPtrW(edit, GWL_STYLE);
    const LONG_PTR wanted =
        on ? (style | WS_VSCROLL) : (style & ~static_cast<LONG_PTR>(WS_VSCROLL));
    if (wanted == style)
        return;
    SetWindowLongPtrW(edit, GWL_STYLE, wanted);
    SetWindowPos(edit, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

} // namespace

ThemeCataloguePage::ThemeCataloguePage() : ThemeCataloguePage(ExeFolder()) {}

ThemeCataloguePage::ThemeCataloguePage(const std::wstring& programFolder)
    : SettingsPage(IDS_MY_THEME), m_programFolder(FolderWithSlash(programFolder)) {}

ThemeCataloguePage::~ThemeCataloguePage() {
    OnDestroy();
}

void ThemeCataloguePage::Create(HWND host) {
    m_host = host;
    CreateChildControls(host, kControls, DetailsButton, m_controls);
    SetControlFont(m_controls[Customize], CaptionFont());
    SetControlFont(m_controls[Delete], CaptionFont());
    SetControlFont(m_controls[Install], CaptionFont());
    EnableWindow(m_controls[Customize], FALSE);
    EnableWindow(m_controls[Delete], FALSE);
    m_strip.Create(host, IDC_THEMES_PREVIEW);
    m_strip.SetBuilder([this](bool) { return TopBarScene(); });
    OnSize(Area());
}

void ThemeCataloguePage::Show(bool visible) {
    ShowWindows(m_controls, DetailsText, visible);
    const bool detailsButton = m_controls[DetailsButton] != nullptr;
    if (detailsButton)
        ShowWindow(m_controls[DetailsButton], visible ? SW_SHOW : SW_HIDE);
    ShowWindow(m_controls[DetailsText], visible && !detailsButton ? SW_SHOW : SW_HIDE);
    if (m_strip.Window())
        ShowWindow(m_strip.Window(), visible ? SW_SHOW : SW_HIDE);
}

// Landscape screens put the details beside the list, portrait screens below it; square screens
// have no room for them and show them in a message box behind a "Details" button. The layout
// follows the screen, not the window, as the header strip does.
void ThemeCataloguePage::OnSize(const RECT&) {
    if (!m_controls[List])
        return;
    const bool portraitWidth = IsPortraitWidth(ScreenWidth());
    const bool square = portraitWidth && IsPortraitWidth(ScreenHeight());
    if (portraitWidth)
        PlaceControls(m_host, Area(), kNarrowPlaces);
    else
        PlaceControls(m_host, Area(), kWidePlaces);
    if (square && !m_controls[DetailsButton]) {
        CreateChildControls(m_host, &kDetailsButton, 1, &m_controls[DetailsButton]);
        SetControlFont(m_controls[DetailsButton], CaptionFont());
        const bool shown = IsWindowVisible(m_controls[List]) != FALSE;
        ShowWindow(m_controls[DetailsButton], shown ? SW_SHOW : SW_HIDE);
        ShowWindow(m_controls[DetailsText], SW_HIDE);
        EnableWindow(m_controls[DetailsButton], Selected() != nullptr);
    }
    if (portraitWidth && !square)
        PlaceControls(m_host, Area(), kButtonPlaces);
    else
        PlaceControls(m_host, Area(), kShortButtonPlaces);
    if (square)
        PlaceControls(m_host, Area(), kSquarePlaces);
    m_strip.Refresh();
}

void ThemeCataloguePage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    Reload();
}

void ThemeCataloguePage::Reload() {
    if (!Doc() || !m_controls[List])
        return;
    if (!IsWindowVisible(m_host)) {
        m_fillPending = true;
        return;
    }
    m_fillPending = false;
    Fill();
    SelectThemeFile();
}

void ThemeCataloguePage::OnHostShown() {
    FinishPendingFill();
}

void ThemeCataloguePage::ThemeFoldersSaved() {
    // A fill still to come reads the folders as they are then.
    if (!Doc() || !m_controls[List] || m_fillPending || !FoldersChanged())
        return;
    PostMessageW(m_host, WM_COMMAND, MAKEWPARAM(IDC_THEMES_LIST, kListAgain),
                 reinterpret_cast<LPARAM>(m_controls[List]));
}

bool ThemeCataloguePage::FoldersChanged() const {
    return ThemeFolders(m_programFolder, *Doc()) != m_listedFolders;
}

void ThemeCataloguePage::FinishPendingFill() {
    if (!m_fillPending)
        return;
    m_fillPending = false;
    Fill();
    SelectThemeFile();
}

void ThemeCataloguePage::Fill() {
    WaitCursor wait;
    // A shown list would repaint for every row added; it is drawn once, when full.
    Send(m_controls[List], WM_SETREDRAW, FALSE);
    Send(m_controls[List], LB_RESETCONTENT);
    m_entries.clear();
    const std::wstring prefix = Localized(IDS_OLDER_THEME_PREFIX);
    m_listedFolders = ThemeFolders(m_programFolder, *Doc());
    for (ThemeEntry& found : ScanThemes(m_listedFolders)) {
        m_entries.push_back(std::make_unique<ThemeEntry>(std::move(found)));
        const ThemeEntry* entry = m_entries.back().get();
        const std::wstring text = ThemeDisplayText(*entry, prefix);
        const LRESULT row =
            Send(m_controls[List], LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        if (row >= 0)
            Send(m_controls[List], LB_SETITEMDATA, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(entry));
    }
    const LRESULT row =
        Send(m_controls[List], LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(kCustomThemeText));
    if (row >= 0)
        Send(m_controls[List], LB_SETITEMDATA, static_cast<WPARAM>(row), 0);
    Send(m_controls[List], WM_SETREDRAW, TRUE);
    InvalidateRect(m_controls[List], nullptr, TRUE);
}

// The first row whose file is the one config.ini names; the custom theme's file is config.ini.
// The selection-change notice goes through the host, as a tap's would, so the buttons and the
// details follow. The list is drawn first: the user reads it while the details and the top bar's
// picture are made.
void ThemeCataloguePage::SelectThemeFile() {
    const std::wstring themeFile =
        Doc()->GetString(config::kSettings, config::kThemeFile,
                         DefaultThemeFile(m_programFolder).c_str(), static_cast<int>(kMaxPath));
    HWND list = m_controls[List];
    const LRESULT count = Send(list, LB_GETCOUNT);
    Send(list, LB_SETCURSEL, static_cast<WPARAM>(-1));
    for (LRESULT row = 0; row < count; ++row) {
        const auto* entry = reinterpret_cast<const ThemeEntry*>(
            Send(list, LB_GETITEMDATA, static_cast<WPARAM>(row)));
        const std::wstring& path = entry ? entry->path : Doc()->Path();
        if (EqualsNoCase(path.c_str(), themeFile.c_str())) {
            Send(list, LB_SETCURSEL, static_cast<WPARAM>(row));
            break;
        }
    }
    UpdateWindow(list);
    PostMessageW(m_host, WM_COMMAND, MAKEWPARAM(IDC_THEMES_LIST, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

const ThemeEntry* ThemeCataloguePage::Selected(bool* customTheme) const {
    if (customTheme)
        *customTheme = false;
    const LRESULT row = Send(m_controls[List], LB_GETCURSEL);
    if (row < 0)
        return nullptr;
    const auto* entry = reinterpret_cast<const ThemeEntry*>(
        Send(m_controls[List], LB_GETITEMDATA, static_cast<WPARAM>(row)));
    if (customTheme)
        *customTheme = entry == nullptr;
    return entry;
}

void ThemeCataloguePage::OnSelectionChange() {
    bool customTheme = false;
    const ThemeEntry* entry = Selected(&customTheme);
    EnableWindow(m_controls[Customize], customTheme);
    EnableWindow(m_controls[Delete], entry != nullptr);
    if (m_controls[DetailsButton])
        EnableWindow(m_controls[DetailsButton], entry != nullptr);
    // The theme is read again here, on selection, so that the scan of hundreds of themes does
    // not pay for it.
    IniDocument theme;
    if (entry)
        theme.Load(entry->path);
    ShowDetails(entry, entry ? &theme : nullptr);
    ShowTopBar(entry, customTheme, entry ? &theme : nullptr);
}

// The details end with the files the theme names but lacks.
void ThemeCataloguePage::ShowDetails(const ThemeEntry* entry, const IniDocument* theme) {
    HWND edit = m_controls[DetailsText];
    std::wstring missing;
    if (entry && entry->isCurrentFormat && theme) {
        missing = MissingFilesText(MissingFiles(*theme, FolderOf(entry->path), ThemePathKeys()),
                                   Localized(IDS_MISSING_FILES));
    }
    SetVerticalScrollBar(edit, entry && (!entry->notes.empty() || !missing.empty()));
    SetWindowTextW(edit, entry ? (ThemeDetailsText(*entry) + missing).c_str() : L"");
}

// The strip shows a theme file's top bar (a first-format theme converted for the purpose), or
// the custom theme's from config.ini itself; nothing while nothing is selected.
void ThemeCataloguePage::ShowTopBar(const ThemeEntry* entry, bool customTheme,
                                    const IniDocument* theme) {
    m_stripTheme = nullptr;
    if (entry && theme) {
        m_stripFile = PreviewThemeOf(*theme, DeviceOlderThemeColors());
        m_stripTheme = &m_stripFile.doc;
    } else if (customTheme && Doc()) {
        m_stripFile = PreviewTheme();
        m_stripFile.folder = FolderOf(Doc()->Path());
        m_stripTheme = Doc();
    }
    m_strip.Refresh();
}

Scene ThemeCataloguePage::TopBarScene() {
    if (!m_stripTheme || !m_strip.Window())
        return Scene();
    RECT strip;
    GetClientRect(m_strip.Window(), &strip);
    PreviewRequest request;
    request.theme = m_stripTheme;
    request.themeFolder = m_stripFile.folder;
    request.config = Doc();
    request.width = strip.right;
    request.height = strip.bottom;
    request.dpi = g_dpiY;
    request.topBarOnly = true;
    return BuildScene(request, ThisDevicePreview(m_strip.Painter()));
}

// Only this page's own controls are taken, by window handle: other pages share the host.
bool ThemeCataloguePage::OnCommand(WPARAM wParam, LPARAM lParam) {
    HWND from = reinterpret_cast<HWND>(lParam);
    if (!from)
        return false;
    const WORD code = HIWORD(wParam);
    if (from == m_controls[List]) {
        if (code == LBN_SELCHANGE)
            OnSelectionChange();
        else if (code == kListAgain && FoldersChanged())
            Reload(); // once, however many saves asked for it
        return true;
    }
    if (from == m_controls[DetailsText])
        return true;
    if (from != m_controls[Customize] && from != m_controls[Delete] &&
        from != m_controls[Install] &&
        (!m_controls[DetailsButton] || from != m_controls[DetailsButton]))
        return false;
    if (code != BN_CLICKED)
        return true;
    if (from == m_controls[Customize])
        OpenEditor();
    else if (from == m_controls[Delete])
        DeleteSelected();
    else if (from == m_controls[Install])
        InstallPackageFile();
    else
        ShowDetailsBox();
    return true;
}

// The editor works on the custom theme, i.e. on config.ini's own document; whether it ended
// with OK does not matter here (the document holds whatever it saved).
void ThemeCataloguePage::OpenEditor() {
    if (!Doc())
        return;
    ThemeEditor editor(Doc());
    editor.Run(m_host);
    // The custom theme's top bar shows what the editor left in the document.
    m_strip.Refresh();
}

void ThemeCataloguePage::DeleteSelected() {
    const ThemeEntry* entry = Selected();
    if (!entry)
        return;
    if (MessageBoxW(m_host, Localized(IDS_DELETE_THEME_QUESTION), Localized(IDS_CONFIRM_DELETE),
                    MB_YESNO | MB_ICONEXCLAMATION) != IDYES)
        return;
    WaitCursor wait;
    // The theme's whole folder goes; what cannot be removed stays, without a message.
    const size_t slash = entry->path.find_last_of(L'\\');
    if (slash != std::wstring::npos)
        RemoveFolderTree(entry->path.substr(0, slash));
    // "Theme File" keeps naming the deleted theme until the next Apply.
    Fill();
    OnSelectionChange();
}

// The package is unpacked and checked before anything changes among the themes; the themes it
// put in place are listed and the first selected, but nothing is applied until Apply.
void ThemeCataloguePage::InstallPackageFile() {
    FileBrowser browser(false, false);
    browser.SetFilter(Localized(IDS_PACKAGE_FILTER), true, L"packages");
    if (!Doc() || !browser.Run(m_host))
        return;
    InstallResult result;
    {
        WaitCursor wait;
        result = InstallPackage(
            browser.result, m_programFolder + L"Themes\\", [&](const std::wstring& name) {
                return MessageBoxW(m_host, Localized(IDS_INSTALL_REPLACE), name.c_str(),
                                   MB_YESNO | MB_ICONQUESTION) == IDYES;
            });
    }
    if (!result.installed.empty()) {
        Fill();
        SelectThemeIn(result.installed.front());
    }
    if (result.problem != InstallProblem::None)
        MessageBoxW(m_host, InstallMessage(result).c_str(), Localized(IDS_INSTALL_TITLE),
                    MB_OK | MB_ICONEXCLAMATION);
}

void ThemeCataloguePage::SelectThemeIn(const std::wstring& folder) {
    HWND list = m_controls[List];
    const LRESULT count = Send(list, LB_GETCOUNT);
    for (LRESULT row = 0; row < count; ++row) {
        const auto* entry = reinterpret_cast<const ThemeEntry*>(
            Send(list, LB_GETITEMDATA, static_cast<WPARAM>(row)));
        if (entry && entry->path.size() > folder.size() &&
            EqualsNoCase(entry->path.substr(0, folder.size()).c_str(), folder.c_str())) {
            Send(list, LB_SETCURSEL, static_cast<WPARAM>(row));
            break;
        }
    }
    OnSelectionChange();
}

void ThemeCataloguePage::ShowDetailsBox() const {
    wchar_t text[kDetailsBoxChars] = {};
    GetWindowTextW(m_controls[DetailsText], text, kDetailsBoxChars);
    MessageBoxW(m_host, text, Localized(IDS_THEME_DETAILS), MB_OK);
}

void ThemeCataloguePage::Save(IniDocument* target) {
    if ((!target && !Doc()) || !m_controls[List])
        return;
    // Apply before the list was filled still stores the theme config.ini names.
    FinishPendingFill();
    IniDocument& doc = SaveTarget(target);
    const std::wstring configPath = Doc() ? Doc()->Path() : doc.Path();
    bool customTheme = false;
    const ThemeEntry* entry = Selected(&customTheme);
    if (!entry && !customTheme)
        return;
    if (customTheme) {
        doc.SetString(config::kSettings, config::kThemeFile, configPath.c_str());
    } else if (entry->isCurrentFormat) {
        doc.SetString(config::kSettings, config::kThemeFile, entry->path.c_str());
    } else {
        // An older theme is converted into config.ini and becomes the custom theme.
        IniDocument older;
        older.Load(entry->path);
        ConvertOlderTheme(older, doc, DeviceOlderThemeColors());
        doc.SetString(config::kSettings, config::kThemeFile, configPath.c_str());
    }
    doc.SetBool(config::kSettings, config::kThemeOnCard, entry && ThemeOnCard(entry->path));
}

void ThemeCataloguePage::OnDestroy() {
    m_fillPending = false;
    DestroyWindows(m_controls, Count);
    m_strip.Destroy();
    m_stripTheme = nullptr;
    m_entries.clear();
}

} // namespace cv2
