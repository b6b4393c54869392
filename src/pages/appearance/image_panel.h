// The theme editor's shared image panel: two rows of label, path box, "..." browse button and
// preview, a drop-down list, a "Settings" button and a "Use Custom Colors" check box. The
// appearance pages own no controls of their own for images; they borrow these through this
// small interface and never reach into the editor's controls by id. Browsing and previews are
// the panel's business.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "ui/image/loaded_image.h"

namespace cv2 {

// Parts of the panel that a page shows or hides together.
enum PanelParts : unsigned {
    kPanelRows = 1,         // both rows: labels, path boxes, browse buttons, previews
    kPanelList = 2,         // the drop-down list
    kPanelSettings = 4,     // the "Settings" button
    kPanelCustomColors = 8, // the "Use Custom Colors" check box
    kPanelAll = 15,
    // Finer parts inside the rows, for pages that use one row or no previews; kPanelRows still
    // covers them.
    kPanelSecondRow = 16, // the second row's label, path box, browse button and preview
    kPanelPreviews = 32,  // both previews
};

// Longest path a row holds (a path buffer of 260 less its terminator).
constexpr int kPanelPathChars = 259;

class ImagePanel {
  public:
    ImagePanel() = default;
    ~ImagePanel() { Detach(); }
    ImagePanel(const ImagePanel&) = delete;
    ImagePanel& operator=(const ImagePanel&) = delete;

    // What pages use.
    void ShowParts(unsigned parts, bool visible);
    void HideAll() { ShowParts(kPanelAll, false); }
    void SetRowLabels(const wchar_t* first, const wchar_t* second);
    // Puts a path into row 0 or 1 (cut to kPanelPathChars) and refreshes its preview.
    void SetPath(int row, const std::wstring& path);
    std::wstring Path(int row) const;
    // Reloads both previews from the path boxes; a preview whose control is hidden is left
    // alone.
    void RefreshPreviews();
    void SetListItems(const std::vector<std::wstring>& items, int selected);
    int ListSelection() const;
    bool CustomColors() const;
    void SetCustomColors(bool checked);
    // True for a click on the "Settings" button.
    bool IsSettingsClick(WPARAM wParam) const;
    // True for a change of the drop-down's selection or a click on the check box.
    bool IsListChange(WPARAM wParam) const;
    bool IsCustomColorsClick(WPARAM wParam) const;
    // The window that owns the dialogs pages open from the panel.
    HWND Owner() const { return m_dialog; }

    // What the editor uses.
    // Binds the panel to the editor dialog's controls, sets their texts and hides them all.
    void Attach(HWND dialog);
    // Frees the previews' images and lets go of the dialog.
    void Detach();
    // Places the controls for the dialog's size.
    void Layout();
    // Browse clicks and typed paths; true when the command was the panel's.
    bool OnCommand(WPARAM wParam);
    // Draws a preview control; false when the item is not one of them.
    bool DrawItem(const DRAWITEMSTRUCT& item);
    // True while row `row`'s preview holds a picture.
    bool HasPreview(int row) const { return !m_previews[row & 1].IsEmpty(); }

  private:
    void PlaceWideRows();
    void LoadPreview(int row);
    void Browse(int row);

    HWND m_dialog = nullptr;
    bool m_settingPath = false; // SetPath is putting a path into a box
    LoadedImage m_previews[2];
};

// The image panel of the theme editor window `host`; null for a window without one.
ImagePanel* PanelOf(HWND host);

} // namespace cv2
