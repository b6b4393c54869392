// Test support for the pages that borrow the theme editor's image panel: an editor holding only
// those pages, in the editor's order, run from inside its own message loop.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <vector>

#include "color_dialog_driver.h"
#include "ids_appearance_panel.h"
#include "ids_editor.h"
#include "pages/appearance/bar_background_page.h"
#include "pages/appearance/image_pair_pages.h"
#include "pages/appearance/start_menu_skin_page.h"
#include "pages/appearance/taskbar_buttons_page.h"
#include "theme_editor_support.h"
#include "themes/theme_editor.h"

namespace cv2test {

// The pages' places in PanelPagesOnly().
enum PanelPageIndex {
    kTaskbarBackgroundPage,
    kTodayMenubarPage,
    kApplicationMenubarPage,
    kSoftKeysPage,
    kTaskbarButtonsPage,
    kVolumeBubblePage,
    kCheckRadioPage,
    kStartMenuSkinPage,
    kPanelPageCount,
};

inline std::vector<cv2::SettingsPage*> PanelPagesOnly() {
    using namespace cv2;
    return {NewBarBackgroundPage(BarKind::TaskbarBackground),
            NewBarBackgroundPage(BarKind::TodayMenubar),
            NewBarBackgroundPage(BarKind::ApplicationMenubar),
            NewBarBackgroundPage(BarKind::SoftKeys),
            new TaskbarButtonsPage,
            NewImagePairPage(ImagePairKind::VolumeBubble),
            NewImagePairPage(ImagePairKind::CheckRadioButtons),
            new StartMenuSkinPage};
}

class PanelPagesTest : public PickerHostTest {
  protected:
    // Runs an editor of the panel pages on `doc`, with page `first` current, calls `body` on
    // its dialog and ends it with `endWith`; true when the editor ended with OK.
    bool RunEditor(int first, const std::function<void(HWND)>& body, int endWith = IDOK) {
        editor = std::make_unique<cv2::ThemeEditor>(&doc, PanelPagesOnly());
        return RunEditorShown(
            *editor, host,
            [&, first](HWND dlg) {
                editor->Host().SelectPage(first);
                body(dlg);
            },
            endWith);
    }
    // Runs the editor on page `page`, presses its "Settings" button, calls `inDialog` in the
    // dialog that opens and ends that dialog with `dialogEnd`, then the editor with `editorEnd`.
    bool RunSettingsDialog(int page, const std::function<void(HWND)>& inDialog, int dialogEnd,
                           int editorEnd = IDOK) {
        return RunEditor(
            page, [&](HWND dlg) { OpenSettings(dlg, inDialog, dialogEnd); }, editorEnd);
    }
    void Select(int page) { editor->Host().SelectPage(page); }
    cv2::ImagePanel& Panel() { return editor->Panel(); }
    // Clicks the panel's "Settings" button; `inDialog` runs in the dialog it opens, which is
    // then ended with `endWith`.
    static void OpenSettings(HWND dlg, const std::function<void(HWND)>& inDialog, int endWith) {
        DialogDriver::OnNextDialog(inDialog, endWith);
        DialogDriver::Click(dlg, IDC_PANEL_SETTINGS);
    }

    cv2::IniDocument doc;
    std::unique_ptr<cv2::ThemeEditor> editor;
};

} // namespace cv2test
