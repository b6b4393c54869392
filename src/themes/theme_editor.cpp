#include "themes/theme_editor.h"

#include <new>

#include "ids_editor.h"
#include "store/strings.h"
#include "themes/preview/preview_page.h"
#include "themes/theme_messages.h"
#include "ui/control_layout.h"
#include "ui/dialog_layout.h"

namespace cv2 {

ThemeEditor::ThemeEditor(IniDocument* doc) : ThemeEditor(doc, EditorPages()) {
    m_host.AddPage(new (std::nothrow) PreviewPage([this] { return ScratchDocument(); }), true);
}

ThemeEditor::ThemeEditor(IniDocument* doc, const std::vector<SettingsPage*>& pages) : m_doc(doc) {
    for (SettingsPage* page : pages)
        m_host.AddPage(page);
}

IniDocument ThemeEditor::ScratchDocument() {
    IniDocument scratch = *m_doc;
    m_host.SaveAll(&scratch);
    return scratch;
}

bool ThemeEditor::Run(HWND parent) {
    // The pages are created on the dialog once; a second run would create them again.
    if (m_host.Window())
        return false;
    return DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_THEME_EDITOR), parent,
                           Proc, reinterpret_cast<LPARAM>(this)) == 1;
}

bool ThemeEditor::OnInit(HWND dialog) {
    m_dialog = dialog;
    if (!InitFullScreenDialog(dialog) || !AddEmptyMenuBar(dialog))
        return false;
    // Escape alone is no visible way out: Cancel stands on the bar at the foot of the screen,
    // where the main window keeps its own soft keys.
    AddMenuBarButton(dialog, IDCANCEL, Localized(IDS_CANCEL));
    SetDialogFonts(dialog, nullptr, 0);
    m_panel.Attach(dialog);
    // The editor shows at the cost of its first page; the others are made once it has painted.
    m_host.BuildPages(dialog, m_doc, PageHost::Making::RestAfterFirstPaint);
    // Sizes that arrived while the pages had no controls yet are given again now.
    RECT client;
    GetClientRect(dialog, &client);
    m_host.DispatchSize(client.right, client.bottom);
    m_host.SelectPage(0);
    return true;
}

// A dialog procedure answers through the dialog's message result.
INT_PTR ThemeEditor::Answer(LRESULT result) {
    SetWindowLongPtrW(m_dialog, DWLP_MSGRESULT, result);
    return TRUE;
}

void ThemeEditor::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
    case IDOK:
        m_host.SaveAll(m_doc);
        EndDialog(m_dialog, 1);
        return;
    case IDCANCEL:
        EndDialog(m_dialog, 2);
        return;
    }
    if (!m_panel.OnCommand(wParam))
        m_host.DispatchCommand(wParam, lParam);
}

INT_PTR ThemeEditor::OnMessage(UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == UpdateThemeMessage()) {
        m_host.LoadAll(m_doc);
        return Answer(1);
    }
    if (msg == ExportThemeMessage()) {
        if (lParam)
            m_host.SaveAll(reinterpret_cast<IniDocument*>(lParam));
        return Answer(1);
    }
    switch (msg) {
    case WM_COMMAND:
        OnCommand(wParam, lParam);
        return TRUE;
    case WM_SIZE:
        // Sizes before the pages exist (the full-screen set-up) are given again after.
        if (!m_host.Window())
            return TRUE;
        m_panel.Layout();
        break;
    case WM_DRAWITEM:
        return m_panel.DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)) ? TRUE : FALSE;
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    case WM_DESTROY:
        m_host.DestroyAll();
        m_panel.Detach();
        return TRUE;
    }
    LRESULT result = 0;
    if (m_host.HandleMessage(msg, wParam, lParam, result))
        return Answer(result);
    return FALSE;
}

INT_PTR CALLBACK ThemeEditor::Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_INITDIALOG) {
        auto* editor = reinterpret_cast<ThemeEditor*>(lParam);
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        if (!editor->OnInit(dialog))
            EndDialog(dialog, -1);
        return FALSE; // the first page has the focus
    }
    auto* editor = reinterpret_cast<ThemeEditor*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (!editor || editor->m_dialog != dialog)
        return FALSE;
    return editor->OnMessage(msg, wParam, lParam);
}

} // namespace cv2
