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

    // Takes ownership; a null page (failed allocation) keeps its place and is skipped.
    void AddPage(SettingsPage* page);
    // Creates every page's controls on `window`, loads it from `doc` and lists it in the page
    // menu (item id = index + 1).
    void BuildPages(HWND window, IniDocument* doc);
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

    // Offers a command to the pages in order until one takes it.
    bool DispatchCommand(WPARAM wParam, LPARAM lParam);
    void DispatchNotify(WPARAM wParam, LPARAM lParam);
    void DispatchSize(int width, int height);
    void SaveAll(IniDocument* target);
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
    HWND m_hwnd = nullptr;
    SettingsPage* m_current = nullptr;
    std::vector<SettingsPage*> m_pages;
    HMENU m_pageMenu = nullptr;
};

// Height of the header strip at the top of a host window, in pixels.
int HeaderHeight();
// The pages' part of a host's client area of that size: all of it below the header strip.
RECT PageArea(int clientWidth, int clientHeight);

} // namespace cv2
