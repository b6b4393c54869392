// Test support for the theme editor: a host window owning it, pages that keep one value in an
// edit box, and a page that borrows the image panel the way the appearance pages do.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "color_dialog_driver.h"
#include "ids_editor.h"
#include "pages/appearance/image_panel.h"
#include "screen_capture.h"
#include "store/ini_document.h"
#include "themes/theme_editor.h"
#include "ui/settings_page.h"

namespace cv2test {

// A page with one edit box bound to [Test] `key`: Load puts the value into the box, Save
// writes the box's text.
class FieldPage : public cv2::SettingsPage {
  public:
    FieldPage(const wchar_t* key, int id) : SettingsPage(key), m_key(key), m_id(id) {}
    void Create(HWND host) override {
        m_edit = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_BORDER | ES_AUTOHSCROLL, 4, 30, 150,
                                 20, host, reinterpret_cast<HMENU>(static_cast<INT_PTR>(m_id)),
                                 GetModuleHandleW(nullptr), nullptr);
    }
    void Show(bool visible) override { ShowWindow(m_edit, visible ? SW_SHOW : SW_HIDE); }
    void Load(cv2::IniDocument* doc) override {
        SettingsPage::Load(doc);
        SetWindowTextW(m_edit, doc->GetString(L"Test", m_key.c_str(), L"").c_str());
    }
    void Save(cv2::IniDocument* target) override {
        wchar_t text[256] = {};
        GetWindowTextW(m_edit, text, 256);
        SaveTarget(target).SetString(L"Test", m_key.c_str(), text);
    }
    void OnDestroy() override { DestroyWindow(m_edit); }

  private:
    std::wstring m_key;
    int m_id;
    HWND m_edit = nullptr;
};

// A page that owns no controls and shows two image paths through the editor's panel, as the
// bar background pages do: the paths live in the panel while the page is current.
class PanelPage : public cv2::SettingsPage {
  public:
    PanelPage() : SettingsPage(L"Panel Page") {}
    void Create(HWND host) override { m_host = host; }
    void Show(bool visible) override {
        cv2::ImagePanel* panel = cv2::PanelOf(m_host);
        if (!visible || !panel)
            return;
        panel->SetRowLabels(L"Portrait:", L"Landscape:");
        panel->ShowParts(cv2::kPanelRows | cv2::kPanelSettings, true);
        panel->ShowParts(cv2::kPanelList | cv2::kPanelCustomColors, false);
        panel->RefreshPreviews();
    }
    void Load(cv2::IniDocument* doc) override {
        SettingsPage::Load(doc);
        first = doc->GetString(L"Panel", L"Portrait", L"");
        second = doc->GetString(L"Panel", L"Landscape", L"");
    }
    void Save(cv2::IniDocument* target) override {
        if (IsActive())
            OnDeactivate();
        SaveTarget(target).SetString(L"Panel", L"Portrait", first.c_str());
        SaveTarget(target).SetString(L"Panel", L"Landscape", second.c_str());
    }
    void OnActivate() override {
        cv2::ImagePanel* panel = cv2::PanelOf(m_host);
        panel->SetPath(0, first);
        panel->SetPath(1, second);
    }
    void OnDeactivate() override {
        cv2::ImagePanel* panel = cv2::PanelOf(m_host);
        first = panel->Path(0);
        second = panel->Path(1);
    }
    bool OnCommand(WPARAM wParam, LPARAM) override {
        cv2::ImagePanel* panel = cv2::PanelOf(m_host);
        if (!IsActive() || !panel || !panel->IsSettingsClick(wParam))
            return false;
        ++settingsClicks;
        return true;
    }

    std::wstring first, second;
    int settingsClicks = 0;

  private:
    HWND m_host = nullptr;
};

// A document parsed from file text.
inline cv2::IniDocument ParsedDoc(const std::string& text) {
    cv2::IniDocument doc;
    doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    return doc;
}

inline std::wstring DlgText(HWND dlg, int id) {
    wchar_t text[512] = {};
    GetDlgItemTextW(dlg, id, text, 512);
    return text;
}

// Whether the dialog's control is shown (by its own style: the dialog itself may not be on the
// screen yet when a test looks).
inline bool Shown(HWND dlg, int id) {
    return (GetWindowLongW(GetDlgItem(dlg, id), GWL_STYLE) & WS_VISIBLE) != 0;
}

// What the editor's image panel shows for the current page.
struct PanelShown {
    bool rows = false; // both rows whole: path boxes, browse buttons and previews
    bool settings = false;
    bool list = false;
    bool customColors = false;
    std::wstring firstLabel;
    std::wstring secondLabel;
};

inline PanelShown PanelShownIn(HWND dlg) {
    PanelShown shown;
    shown.rows = true;
    for (int id : {IDC_PANEL_FIRST_PATH, IDC_PANEL_FIRST_BROWSE, IDC_PANEL_FIRST_PREVIEW,
                   IDC_PANEL_SECOND_PATH, IDC_PANEL_SECOND_BROWSE, IDC_PANEL_SECOND_PREVIEW})
        shown.rows = shown.rows && Shown(dlg, id);
    shown.settings = Shown(dlg, IDC_PANEL_SETTINGS);
    shown.list = Shown(dlg, IDC_PANEL_LIST);
    shown.customColors = Shown(dlg, IDC_PANEL_CUSTOM_COLORS);
    shown.firstLabel = DlgText(dlg, IDC_PANEL_FIRST_LABEL);
    shown.secondLabel = DlgText(dlg, IDC_PANEL_SECOND_LABEL);
    return shown;
}

// Ticks a check box the way a tap does.
inline void Tick(HWND dlg, int id) {
    SendMessageW(GetDlgItem(dlg, id), BM_CLICK, 0, 0);
}

// Types into an edit box of the dialog the way the keyboard does: the text changes and the
// dialog hears of it.
inline void TypeInto(HWND dlg, int id, const std::wstring& text) {
    SetDlgItemTextW(dlg, id, text.c_str());
}

// Runs `editor` over `parent` and calls `body` on its dialog once every page has its controls,
// as the user meets the editor after its first paint; the dialog then ends with `endWith`.
// Returns what Run returns.
inline bool RunEditorShown(cv2::ThemeEditor& editor, HWND parent,
                           const std::function<void(HWND)>& body, int endWith) {
    DialogDriver::OnNextDialog(
        [&editor, body](HWND dlg) {
            cv2::PageHost& pages = editor.Host();
            EXPECT_TRUE(PumpUntil([&] { return pages.CreatedCount() == pages.PageCount(); }))
                << "the pages are made after the editor's first paint";
            body(dlg);
        },
        endWith);
    return editor.Run(parent);
}

} // namespace cv2test
