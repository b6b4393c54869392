#include "themes/import_theme_page.h"

#include <memory>
#include <string>
#include <vector>

#include "ids_editor.h"
#include "pages/appearance/image_panel.h"
#include "pages/appearance/theme_path_keys.h"
#include "store/format_text.h"
#include "store/paths.h"
#include "store/scale.h"
#include "themes/older_theme_device.h"
#include "themes/theme_files.h"
#include "themes/theme_info_dialog.h"
#include "themes/theme_messages.h"
#include "themes/theme_package.h"
#include "themes/theme_transfer.h"
#include "ui/child_controls.h"
#include "ui/control_layout.h"
#include "ui/wait_cursor.h"
#include "ui/file_browser.h"

namespace cv2 {
namespace {

const ChildControl kButtons[] = {
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_IMPORT_THEME, IDC_IMPORT_THEME},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_EXPORT_THEME, IDC_EXPORT_THEME},
};

// The buttons keep their places on every screen.
const ControlPlace kButtonPlaces[] = {
    {IDC_IMPORT_THEME, From::Left, 77, From::Left, 162, 9, 23},
    {IDC_EXPORT_THEME, From::Left, 77, From::Left, 162, 35, 23},
};

// Tells the user which files did not reach the export folder; the theme names those by their
// old paths.
void TellCopyFailed(HWND owner, const std::wstring& folder,
                    const std::vector<std::wstring>& files) {
    constexpr size_t kMostListed = 10;
    std::wstring text = FormatText(Localized(IDS_EXPORT_COPY_FAILED), {folder});
    for (size_t i = 0; i < files.size() && i < kMostListed; ++i)
        text += files[i] + L"\r\n";
    if (files.size() > kMostListed)
        text += L"...\r\n";
    MessageBoxW(owner, text.c_str(), Localized(IDS_EXPORT_THEME), MB_OK | MB_ICONWARNING);
}

} // namespace

ImportThemePage::ImportThemePage() : SettingsPage(IDS_IMPORT_THEME) {}

void ImportThemePage::Create(HWND host) {
    m_host = host;
    CreateChildControls(host, kButtons, 2, m_buttons);
    PlaceControls(host, Area(), kButtonPlaces);
}

void ImportThemePage::Show(bool visible) {
    // The page uses none of the image panel; another page may have left it showing.
    if (visible) {
        if (ImagePanel* panel = PanelOf(m_host))
            panel->HideAll();
    }
    ShowWindows(m_buttons, 2, visible);
}

bool ImportThemePage::OnCommand(WPARAM wParam, LPARAM) {
    if (HIWORD(wParam) != BN_CLICKED)
        return false;
    switch (LOWORD(wParam)) {
    case IDC_IMPORT_THEME:
        Import();
        return true;
    case IDC_EXPORT_THEME:
        Export();
        return true;
    }
    return false;
}

void ImportThemePage::OnDestroy() {
    DestroyWindows(m_buttons, 2);
}

void ImportThemePage::Import() {
    FileBrowser browser(false, false);
    browser.SetFilter(Localized(IDS_SKIN_FILTER), true, L"skins");
    if (!Doc() || !browser.Run(m_host))
        return;
    IniDocument chosen;
    chosen.Load(browser.result);
    WaitCursor wait;
    ImportTheme(*Doc(), chosen, DeviceOlderThemeColors());
    SendMessageW(m_host, UpdateThemeMessage(), 0, 0);
}

void ImportThemePage::Export() {
    ThemeInfo info;
    std::unique_ptr<IniDocument> theme(AskThemeInfo(info, m_host));
    if (!theme || !Doc())
        return;
    if (info.package) {
        ExportAsPackage(*theme, info);
        return;
    }
    std::vector<std::wstring> failed;
    {
        WaitCursor wait;
        SendMessageW(m_host, ExportThemeMessage(), 0, reinterpret_cast<LPARAM>(theme.get()));
        // Copied files get their bare names first; then the paths into the export folder that
        // are left are made relative. The theme file is written last, whole or not at all.
        if (info.copyFiles)
            failed = CopyThemeFiles(*theme, FolderOf(Doc()->Path()), FolderOf(theme->Path()),
                                    ThemePathKeys());
        FinishExport(*theme, *Doc());
        theme->Save();
    }
    if (!failed.empty())
        TellCopyFailed(m_host, FolderOf(theme->Path()), failed);
}

// The package is the only file written: no folder and no .skin beside it.
void ImportThemePage::ExportAsPackage(IniDocument& theme, const ThemeInfo& info) {
    PackageExport result;
    {
        WaitCursor wait;
        SendMessageW(m_host, ExportThemeMessage(), 0, reinterpret_cast<LPARAM>(&theme));
        result = ExportPackage(theme, *Doc(), PackageFolderName(info.name, theme.Path()),
                               ThemePathKeys());
    }
    const std::wstring package = PackagePathsFor(theme.Path()).package;
    if (!result.written)
        MessageBoxW(m_host, FormatText(Localized(IDS_EXPORT_PACKAGE_FAILED), {package}).c_str(),
                    Localized(IDS_EXPORT_THEME), MB_OK | MB_ICONEXCLAMATION);
    else if (!result.unreadable.empty())
        TellCopyFailed(m_host, package, result.unreadable);
}

} // namespace cv2
