// Base of every settings page, in the main window and in the theme editor. The host owns the
// pages (it deletes them through the virtual destructor), creates their controls as children of
// its window, binds each to a document, shows one page at a time and forwards window messages.
// A page never talks to another page.
#pragma once

#include <windows.h>

#include <string>

#include "store/ini_document.h"
#include "store/strings.h"

namespace cv2 {

class SettingsPage {
  public:
    // The display name is looked up once, here, and kept as the page's own copy.
    explicit SettingsPage(StringId nameId);
    // For pages whose name is a fixed text that is never looked up.
    explicit SettingsPage(const wchar_t* fixedName);

    // The operations, in the order hosts rely on.
    virtual ~SettingsPage();
    // Creates the page's controls, hidden, as children of `host`.
    virtual void Create(HWND host) = 0;
    // Shows or hides all of the page's controls.
    virtual void Show(bool visible) = 0;
    // The display name, for the page menu and the header strip.
    virtual const wchar_t* GetName() const;
    // Writes every value the page owns into `target`, or into the bound document when null.
    virtual void Save(IniDocument* target);
    // Draws into the host's off-screen bitmap, after the header strip (current page only).
    virtual void Paint(HDC dc);
    virtual void OnDestroy();
    // True when the command was the page's own; pages must decline ids they do not own.
    virtual bool OnCommand(WPARAM wParam, LPARAM lParam);
    virtual LRESULT OnNotify(WPARAM wParam, LPARAM lParam);
    // Binds the document; derived pages then read their values into their controls.
    virtual void Load(IniDocument* doc);
    virtual void OnActivate();
    virtual void OnDeactivate();
    virtual void OnSize(const RECT& client);
    // Once, after the host window's first paint: for work that would keep the window from
    // showing. Pages made before that paint hear it first, and their work shows before the other
    // pages are made; the others hear it once they are all made.
    virtual void OnHostShown();

    SettingsPage(const SettingsPage&) = delete;
    SettingsPage& operator=(const SettingsPage&) = delete;

    // What the host has told the page.
    bool IsActive() const { return m_active != 0; }
    IniDocument* Doc() const { return m_doc; }
    // The page's part of the host's client area: everything below the header strip, in client
    // pixels. Set by the host before Create and before every OnSize.
    const RECT& Area() const { return m_area; }

  protected:
    // The document a Save call writes into.
    IniDocument& SaveTarget(IniDocument* target) { return target ? *target : *m_doc; }

  private:
    // Only the host changes what it has told the page (Load binds the document).
    friend class PageHost;
    int m_active = 0;             // 1 while the page is its host's current page
    std::wstring m_name;          // display name
    IniDocument* m_doc = nullptr; // the document bound by Load; not owned
    RECT m_area = {};
};

// Shows or hides a set of child windows (the usual body of Show).
void ShowWindows(HWND const* windows, size_t count, bool visible);
// Destroys a set of child windows and clears their handles (the usual body of OnDestroy).
void DestroyWindows(HWND* windows, size_t count);

} // namespace cv2
