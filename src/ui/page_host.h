// The page-switching and dispatch behaviour shared by the main window and the theme editor:
// it owns the pages, builds the page menu, shows one page at a time, paints the header strip
// with the current page's name and forwards window messages to the pages.
#pragma once

#include <windows.h>

#include <vector>

#include "ui/settings_page.h"

namespace cv2 {

class PageHost {
  public:
    PageHost() = default;
    ~PageHost(); // deletes every non-null page
    PageHost(const PageHost&) = delete;
    PageHost& operator=(const PageHost&) = delete;

    // Takes ownership; a null page (failed allocation) keeps its place and is skipped. With
    // `separatorBefore` the page menu draws a line above the page's item.
    void AddPage(SettingsPage* page, bool separatorBefore = false);
    // When the pages' controls are made: all in BuildPages, or only those shown before the
    // window's first paint and the rest just after it, so the window shows at the cost of its
    // first page.
    enum class Making { AllAtOnce, RestAfterFirstPaint };
    // Binds the pages to `window` and `doc`, lists them in the page menu (item id = index + 1)
    // and makes their controls, loaded from `doc`, as `making` says.
    void BuildPages(HWND window, IniDocument* doc, Making making = Making::AllAtOnce);
    // Makes and loads the controls of every page up to `index` that has none yet, in order:
    // some pages read what earlier ones loaded.
    void CreatePagesUpTo(int index);
    // How many pages, from the first, have their controls.
    int CreatedCount() const { return m_created; }
    // Makes page `index` current: radio mark, deactivate/activate, show/hide, repaint.
    void SelectPage(int index);
    // A tap in the right half of the header strip opens the page menu; true when it opened.
    bool TrackPageMenu(int x, int y);

    // Paints the client area off-screen: background, header strip, current page; one copy.
    void Paint();
    void PaintHeader(HDC dc, const RECT& client) const;

    // The window messages both hosts answer alike: sizes, background and painting, the tap on
    // the header strip, notifications. True when the message is answered (`result` then holds
    // the answer); notifications go to every page and still get default processing.
    bool HandleMessage(UINT msg, WPARAM wParam, LPARAM lParam, LRESULT& result);

    // The messages go to the pages that have controls. Offers a command to them in order until
    // one takes it.
    bool DispatchCommand(WPARAM wParam, LPARAM lParam);
    void DispatchNotify(WPARAM wParam, LPARAM lParam);
    void DispatchSize(int width, int height);
    // Every page saves (any page still without controls is made first).
    void SaveAll(IniDocument* target);
    // Loads the made pages from `doc`; the others load from it when they are made.
    void LoadAll(IniDocument* doc);
    void DestroyAll(); // every page's OnDestroy

    int PageCount() const { return static_cast<int>(m_pages.size()); }
    SettingsPage* Page(int index) const;
    SettingsPage* Current() const { return m_current; }
    HMENU Menu() const { return m_pageMenu; }
    HWND Window() const { return m_hwnd; }
    // What a host tells a page about its turn; PageHost does it on SelectPage, and a host of a
    // single page (tests) does it when it shows that page.
    static void MarkActive(SettingsPage& page, bool active) { page.m_active = active ? 1 : 0; }
    static void GiveArea(SettingsPage& page, const RECT& area) { page.m_area = area; }

  private:
    std::vector<SettingsPage*> CreatedPages() const;
    // After the first paint, in two turns of the message loop: the pages made so far hear
    // OnHostShown (My Theme lists its themes) and what they did is painted; then the remaining
    // pages are made and hear it.
    void AfterFirstPaint(int turn);
    // Tells the made pages that have not heard it yet that the window has been shown.
    void TellShown();

    HWND m_hwnd = nullptr;
    SettingsPage* m_current = nullptr;
    std::vector<SettingsPage*> m_pages;
    std::vector<bool> m_separatorBefore; // parallel to m_pages
    int m_created = 0;                   // pages [0, m_created) have their controls
    int m_told = 0;                      // pages [0, m_told) have heard OnHostShown
    bool m_painted = false;
    IniDocument* m_doc = nullptr;
    RECT m_area = {};
    HMENU m_pageMenu = nullptr;
};

// Height of the header strip at the top of a host window, in pixels.
int HeaderHeight();
// The pages' part of a host's client area of that size: all of it below the header strip.
RECT PageArea(int clientWidth, int clientHeight);

} // namespace cv2
