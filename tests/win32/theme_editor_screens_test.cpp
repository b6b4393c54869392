// Screenshots of the theme editor's first page, the editor with a page that shows the image
// panel, and the theme information dialog, on the device screen the run is made for; each is
// checked for controls cut off or overlapping first.
#include "themes/theme_editor.h"

#include "background_dialog_steps.h"
#include "bmp_file.h"
#include "temp_folder.h"
#include "theme_editor_support.h"
#include "themes/theme_info_dialog.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

class ThemeEditorScreens : public cv2test::PickerHostTest {
  protected:
    // Opens the dialog `open` shows twice: once to check its layout, once for the screenshot.
    void CheckAndShoot(const wchar_t* name, const std::function<void()>& open) {
        DialogDriver::OnNextDialog(
            [](HWND dlg) {
                cv2test::ExpectLaidOutApart(dlg);
                cv2test::ExpectTextsFit(dlg);
            },
            IDCANCEL);
        open();
        ShootDialog(name, open);
    }
    IniDocument doc;
};

} // namespace

TEST_F(ThemeEditorScreens, ImportThemePage) {
    CheckAndShoot(L"theme_editor", [&] {
        ThemeEditor editor(&doc);
        EXPECT_FALSE(editor.Run(host));
    });
}

TEST_F(ThemeEditorScreens, ImagePanel) {
    cv2test::TempFolder dir;
    dir.Write(L"portrait.bmp", cv2test::BmpFileBytes(200, 30, 5));
    dir.Write(L"landscape.bmp", cv2test::BmpFileBytes(60, 60, 6));
    doc.SetString(L"Panel", L"Portrait", dir.File(L"portrait.bmp").c_str());
    doc.SetString(L"Panel", L"Landscape", dir.File(L"landscape.bmp").c_str());
    CheckAndShoot(L"theme_editor_panel", [&] {
        ThemeEditor editor(&doc, {new cv2test::PanelPage});
        EXPECT_FALSE(editor.Run(host));
    });
}

TEST_F(ThemeEditorScreens, ThemeInformation) {
    CheckAndShoot(L"theme_information", [&] {
        ThemeInfo info;
        lstrcpyW(info.name, L"Blue Glass");
        lstrcpyW(info.author, L"A. Maker");
        lstrcpyW(info.path, L"\\Windows\\Themes\\Blue Glass\\Blue Glass.skin");
        EXPECT_EQ(AskThemeInfo(info, host), nullptr);
    });
}
