// Test support for the theme editor's pages with controls of their own: the real editor over a
// document, driven from inside its modal loop, with helpers to pick a page by name, click and
// type the way the dialog manager reports it, and read what the page shows.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "background_dialog_steps.h"
#include "ids_appearance_controls.h"
#include "ids_editor.h"
#include "ids_ui.h"
#include "theme_editor_support.h"
#include "themes/theme_editor.h"

namespace cv2test {

class ControlPagesTest : public PickerHostTest {
  protected:
    // Runs the editor over `doc` with `pages` (the editor's own when empty), calls `body` inside
    // it and ends it with `endWith`; true when the editor ended with OK.
    bool RunEditor(std::vector<cv2::SettingsPage*> pages,
                   const std::function<void(HWND, cv2::ThemeEditor&)>& body, int endWith) {
        cv2::ThemeEditor editor(&doc, pages.empty() ? cv2::EditorPages() : pages);
        return RunEditorShown(
            editor, host, [&](HWND dlg) { body(dlg, editor); }, endWith);
    }

    cv2::IniDocument doc;
};

// Makes the page named `name` the editor's current page; false when there is none.
inline bool ShowPage(cv2::ThemeEditor& editor, const wchar_t* name) {
    cv2::PageHost& pages = editor.Host();
    for (int i = 0; i < pages.PageCount(); ++i) {
        if (pages.Page(i) && lstrcmpW(pages.Page(i)->GetName(), name) == 0) {
            pages.SelectPage(i);
            return true;
        }
    }
    return false;
}

// Picks a row of a list box the way a tap does: new selection, then the notice.
inline void PickListRow(HWND dlg, int id, int row) {
    HWND list = GetDlgItem(dlg, id);
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(dlg, WM_COMMAND, MAKEWPARAM(id, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
}

// Types into an edit box the way the keyboard does: the box's own change notice reaches the
// dialog.
inline void TypeText(HWND dlg, int id, const std::wstring& text) {
    SetDlgItemTextW(dlg, id, text.c_str());
}

inline std::vector<std::wstring> ListTexts(HWND dlg, int id) {
    std::vector<std::wstring> texts;
    HWND list = GetDlgItem(dlg, id);
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        std::wstring text(static_cast<size_t>(SendMessageW(list, LB_GETTEXTLEN, i, 0)) + 1, L'\0');
        SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(&text[0]));
        text.resize(text.size() - 1);
        texts.push_back(text);
    }
    return texts;
}

// Whether any of the image panel's controls is shown.
inline bool AnyPanelControlShown(HWND dlg) {
    for (int id = IDC_PANEL_FIRST_LABEL; id <= IDC_PANEL_CUSTOM_COLORS; ++id)
        if (Shown(dlg, id))
            return true;
    return false;
}

// The keys of a section in stored order.
inline std::vector<std::wstring> KeysOf(const cv2::IniDocument& doc, const wchar_t* section) {
    std::vector<std::wstring> keys;
    for (const cv2::IniDocument::EntryRef& e : doc.GetSectionEntries(section))
        keys.push_back(e.first);
    return keys;
}

// Clicks `button` of `dlg` and, in the font picker that opens, types `size` into the size box
// before ending it with `endWith`; `shownSize` receives the size the picker opened with.
inline void PickFontSizeThrough(HWND dlg, int button, const std::wstring& size, int endWith,
                                std::wstring* shownSize = nullptr) {
    DialogDriver::OnNextDialog(
        [=](HWND picker) {
            if (shownSize)
                *shownSize = DlgText(picker, IDC_FONT_SIZE);
            SetDlgItemTextW(picker, IDC_FONT_SIZE, size.c_str());
            SendMessageW(picker, WM_COMMAND, MAKEWPARAM(IDC_FONT_SIZE, CBN_EDITCHANGE),
                         reinterpret_cast<LPARAM>(GetDlgItem(picker, IDC_FONT_SIZE)));
        },
        endWith);
    DialogDriver::Click(dlg, button);
}

// The first `count` entries of a section as "key=value", in stored order.
inline std::vector<std::wstring> SectionLinesOf(const cv2::IniDocument& doc, const wchar_t* section,
                                                size_t count) {
    std::vector<std::wstring> lines;
    for (const cv2::IniDocument::EntryRef& e : doc.GetSectionEntries(section))
        if (lines.size() < count)
            lines.push_back(std::wstring(e.first) + L"=" + e.second);
    return lines;
}

} // namespace cv2test
