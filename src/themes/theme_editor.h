// The theme editor: a full-screen modal dialog that is a second page host, over the appearance
// pages, all bound to the document it is given (the main window's config.ini document, whose
// appearance sections are the custom theme). It adds to the shared page host only what differs
// from the main window: the dialog, its two registered messages and the shared image panel.
#pragma once

#include <windows.h>

#include <vector>

#include "pages/appearance/image_panel.h"
#include "store/ini_document.h"
#include "ui/page_host.h"

namespace cv2 {

class ThemeEditor {
  public:
    // The editor with its own pages (see EditorPages), and last, after a line in the page menu,
    // the Preview page.
    explicit ThemeEditor(IniDocument* doc);
    // The editor with the pages given, in page-menu order; it takes ownership.
    ThemeEditor(IniDocument* doc, const std::vector<SettingsPage*>& pages);
    ~ThemeEditor() = default; // the page host deletes the pages and the menu
    ThemeEditor(const ThemeEditor&) = delete;
    ThemeEditor& operator=(const ThemeEditor&) = delete;

    // Shows the editor modally (once); true when it ended with OK, after every page has saved
    // into the document. Cancel saves nothing.
    bool Run(HWND parent);

    // What OK would save: a copy of the document with every page saved into it. The document
    // itself is left as it is.
    IniDocument ScratchDocument();

    PageHost& Host() { return m_host; }
    ImagePanel& Panel() { return m_panel; }

  private:
    static INT_PTR CALLBACK Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam);
    bool OnInit(HWND dialog);
    INT_PTR OnMessage(UINT msg, WPARAM wParam, LPARAM lParam);
    void OnCommand(WPARAM wParam, LPARAM lParam);
    INT_PTR Answer(LRESULT result);

    IniDocument* m_doc;
    PageHost m_host;
    ImagePanel m_panel;
    HWND m_dialog = nullptr;
};

// The theme editor's pages, newly made, in page-menu order; a page that could not be made is a
// null entry.
std::vector<SettingsPage*> EditorPages();

} // namespace cv2
