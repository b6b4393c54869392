// "Program Directories": the folder the bar's cascading start menu shows, and further folders
// where themes are looked for. Both are picked with the file browser in folder mode.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "ui/settings_page.h"

namespace cv2 {

class ProgramDirectoriesPage : public SettingsPage {
  public:
    ProgramDirectoriesPage();
    ~ProgramDirectoriesPage() override;

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void OnDestroy() override;
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    void Load(IniDocument* doc) override;
    void OnSize(const RECT& client) override;

    // Called after every Save, so that the theme catalogue looks in the new folders. The host
    // that owns both pages sets it; until it does, saving asks no one.
    void SetThemesReload(std::function<void()> reload) { m_reloadThemes = std::move(reload); }

    // The folders in the list, top to bottom.
    std::vector<std::wstring> Folders() const;

  private:
    HWND MakeChild(const wchar_t* cls, const wchar_t* text, DWORD style, int id, HFONT font);
    // Opens the file browser to pick a folder; false when it was cancelled.
    bool PickFolder(std::wstring& folder) const;
    void BrowseStartMenu();
    void AddFolder();
    void DeleteFolder();
    void UpdateDelete();

    std::function<void()> m_reloadThemes;
    HWND m_host = nullptr;
    HWND m_pathLabel = nullptr;
    HWND m_path = nullptr;
    HWND m_browse = nullptr;
    HWND m_listLabel = nullptr;
    HWND m_list = nullptr;
    HWND m_add = nullptr;
    HWND m_delete = nullptr;
};

} // namespace cv2
