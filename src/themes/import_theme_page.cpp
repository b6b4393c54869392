#include "themes/import_theme_page.h"

#include <memory>

#include "app/app_messages.h"
#include "ids_editor.h"
#include "store/scale.h"
#include "themes/image_panel.h"
#include "themes/older_theme_device.h"
#include "themes/theme_info_dialog.h"
#include "themes/theme_transfer.h"
#include "ui/child_controls.h"
#include "ui/wait_cursor.h"
#include "ui/file_browser.h"

namespace cv2 {
namespace {

const ChildControl kButtons[] = {
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_IMPORT_THEME, IDC_IMPORT_THEME},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, IDS_EXPORT_THEME, IDC_EXPORT_THEME},
};

// The buttons keep their 96-dpi places on every screen: left, top, width, height.
const RECT kButtonPlaces[] = {{77, 29, 85, 23}, {77, 55, 85, 23}};

} // namespace

ImportThemePage::ImportThemePage() : SettingsPage(IDS_IMPORT_THEME) {}

void ImportThemePage::Create(HWND host) {
    m_host = host;
    CreateChildControls(host, kButtons, 2, m_buttons);
    for (int i = 0; i < 2; ++i) {
        const RECT& p = kButtonPlaces[i];
        MoveWindow(m_buttons[i], ScaleX(p.left), Scale(p.top), ScaleX(p.right), Scale(p.bottom),
                   FALSE);
    }
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
    if (!m_doc || !browser.Run(m_host))
        return;
    IniDocument chosen;
    chosen.Load(browser.result);
    WaitCursor wait;
    ImportTheme(*m_doc, chosen, DeviceOlderThemeColors());
    SendMessageW(m_host, UpdateThemeMessage(), 0, 0);
}

void ImportThemePage::Export() {
    ThemeInfo info;
    std::unique_ptr<IniDocument> theme(AskThemeInfo(info, m_host));
    if (!theme || !m_doc)
        return;
    WaitCursor wait;
    SendMessageW(m_host, ExportThemeMessage(), 0, reinterpret_cast<LPARAM>(theme.get()));
    FinishExport(*theme, *m_doc);
    theme->Save();
}

} // namespace cv2
