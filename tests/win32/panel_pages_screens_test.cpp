// Screenshots of the pages that borrow the image panel and of the dialogs they open, on the
// device screen the run is made for, with pictures of the sample theme in the previews; each is
// checked for controls cut off or overlapping first.
#include <cstdlib>

#include "background_dialog_steps.h"
#include "panel_pages_support.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

std::wstring SampleTheme() {
    const char* dir = std::getenv("CV2_SAMPLES_DIR");
    const std::string s = std::string(dir ? dir : ".") + "\\Themes\\CVDefault\\";
    return std::wstring(s.begin(), s.end());
}

class PanelPagesScreens : public cv2test::PanelPagesTest {
  protected:
    void SetUp() override {
        PanelPagesTest::SetUp();
        const std::wstring theme = SampleTheme();
        const std::wstring top = theme + L"topbar.bmp", wide = theme + L"topbar_l.bmp",
                           bar = theme + L"menubar.bmp", start = theme + L"start.png";
        for (const wchar_t* section : {L"Topbar", L"Today Menubar", L"SoftKey"}) {
            doc.SetString(section, L"Portrait", top.c_str());
            doc.SetString(section, L"Landscape", wide.c_str());
        }
        doc.SetString(L"Menubar", L"Portrait", bar.c_str());
        doc.SetString(L"Menubar", L"Landscape", bar.c_str());
        doc.SetString(L"Button Images", L"Start Menu Normal", start.c_str());
        doc.SetString(L"Button Images", L"Start Menu Pressed", start.c_str());
        doc.SetString(L"Volume Bubble", L"Image", start.c_str());
        doc.SetString(L"Buttons", L"Checkbox", start.c_str());
        doc.SetString(L"Buttons", L"Radiobutton", start.c_str());
        doc.SetString(L"Start Menu Skin", L"Start Menu Picture", top.c_str());
        doc.SetString(L"Start Menu Skin", L"Program Group", start.c_str());
    }

    // Shows page `page` (and, with `settings`, the dialog its "Settings" button opens) twice:
    // once to check its layout, once for the screenshot `name`.
    void CheckAndShoot(const wchar_t* name, int page, bool settings = false) {
        const std::function<void(HWND)> check = [](HWND dlg) {
            cv2test::ExpectLaidOutApart(dlg);
            cv2test::ExpectTextsFit(dlg);
        };
        bool content = false;
        const std::function<void(HWND)> shoot = [&](HWND dlg) {
            ShowWindow(dlg, SW_SHOW);
            UpdateWindow(dlg);
            cv2test::SaveScreenshot(name);
            content = cv2test::ScreenHasContent();
        };
        for (const auto* step : {&check, &shoot}) {
            RunEditor(
                page,
                [&](HWND dlg) {
                    if (!settings) {
                        (*step)(dlg);
                        return;
                    }
                    OpenSettings(dlg, *step, IDCANCEL);
                },
                IDCANCEL);
        }
        EXPECT_TRUE(content);
    }
};

} // namespace

TEST_F(PanelPagesScreens, TaskbarBackgroundPage) {
    CheckAndShoot(L"panel_taskbar_background", cv2test::kTaskbarBackgroundPage);
}

TEST_F(PanelPagesScreens, TodayMenubarPage) {
    CheckAndShoot(L"panel_today_menubar", cv2test::kTodayMenubarPage);
}

TEST_F(PanelPagesScreens, ApplicationMenubarPage) {
    CheckAndShoot(L"panel_application_menubar", cv2test::kApplicationMenubarPage);
}

TEST_F(PanelPagesScreens, SoftKeysPage) {
    CheckAndShoot(L"panel_soft_keys", cv2test::kSoftKeysPage);
}

TEST_F(PanelPagesScreens, TaskbarButtonsPage) {
    CheckAndShoot(L"panel_taskbar_buttons", cv2test::kTaskbarButtonsPage);
}

TEST_F(PanelPagesScreens, VolumeBubblePage) {
    CheckAndShoot(L"panel_volume_bubble", cv2test::kVolumeBubblePage);
}

TEST_F(PanelPagesScreens, CheckRadioButtonsPage) {
    CheckAndShoot(L"panel_check_radio", cv2test::kCheckRadioPage);
}

TEST_F(PanelPagesScreens, StartMenuSkinPage) {
    CheckAndShoot(L"panel_start_menu_skin", cv2test::kStartMenuSkinPage);
}

// The path boxes stand beside the previews where a wide screen puts them, and take the whole
// width on a page without previews.
TEST_F(PanelPagesScreens, PathRowsTakeTheRoomOfPreviewsAPageDoesNotShow) {
    for (int page : {static_cast<int>(cv2test::kTaskbarBackgroundPage),
                     static_cast<int>(cv2test::kStartMenuSkinPage)}) {
        RunEditor(
            page,
            [&](HWND dlg) {
                RECT client;
                GetClientRect(dlg, &client);
                const RECT browse = cv2test::ItemRect(dlg, IDC_PANEL_FIRST_BROWSE);
                const RECT preview = cv2test::ItemRect(dlg, IDC_PANEL_FIRST_PREVIEW);
                const bool previews = IsWindowVisible(GetDlgItem(dlg, IDC_PANEL_FIRST_PREVIEW));
                EXPECT_EQ(previews, page == cv2test::kTaskbarBackgroundPage);
                if (previews && preview.top < browse.bottom) // beside the rows
                    EXPECT_LE(browse.right, preview.left) << page;
                else // under them, or none: the rows reach the right edge
                    EXPECT_GT(browse.right, client.right * 9 / 10) << page;
            },
            IDCANCEL);
    }
}

// A path is the longer thing to read: where the previews stand beside the rows, the path boxes
// take the larger part of the width.
TEST_F(PanelPagesScreens, PathBoxesAreWiderThanThePreviewsBesideThem) {
    RunEditor(
        cv2test::kTaskbarBackgroundPage,
        [&](HWND dlg) {
            const RECT path = cv2test::ItemRect(dlg, IDC_PANEL_FIRST_PATH);
            const RECT browse = cv2test::ItemRect(dlg, IDC_PANEL_FIRST_BROWSE);
            const RECT preview = cv2test::ItemRect(dlg, IDC_PANEL_FIRST_PREVIEW);
            if (preview.top >= browse.bottom)
                return; // under the rows: each has the whole width
            EXPECT_LE(browse.right, preview.left);
            EXPECT_GT(path.right - path.left, preview.right - preview.left);
        },
        IDCANCEL);
}

TEST_F(PanelPagesScreens, RowsGoBackBesideThePreviewsOnThePageAfterOneWithoutThem) {
    RunEditor(
        cv2test::kStartMenuSkinPage,
        [&](HWND dlg) {
            Select(cv2test::kTaskbarBackgroundPage);
            const RECT browse = cv2test::ItemRect(dlg, IDC_PANEL_FIRST_BROWSE);
            const RECT preview = cv2test::ItemRect(dlg, IDC_PANEL_FIRST_PREVIEW);
            ASSERT_TRUE(IsWindowVisible(GetDlgItem(dlg, IDC_PANEL_FIRST_PREVIEW)));
            if (preview.top < browse.bottom) {
                EXPECT_LE(browse.right, preview.left);
            }
        },
        IDCANCEL);
}

TEST_F(PanelPagesScreens, BackgroundDialogOfTaskbarBackground) {
    CheckAndShoot(L"panel_background_dialog", cv2test::kTaskbarBackgroundPage, true);
}

TEST_F(PanelPagesScreens, TodayMenubarDialog) {
    CheckAndShoot(L"panel_today_menubar_dialog", cv2test::kTodayMenubarPage, true);
}

TEST_F(PanelPagesScreens, MenubarBackgroundDialog) {
    CheckAndShoot(L"panel_menubar_dialog", cv2test::kApplicationMenubarPage, true);
}

TEST_F(PanelPagesScreens, SoftKeyImagesDialog) {
    CheckAndShoot(L"panel_soft_key_dialog", cv2test::kSoftKeysPage, true);
}

// The screen the run is made for picks the portrait, landscape or square layout.
TEST_F(PanelPagesScreens, StartMenuDialog) {
    CheckAndShoot(L"panel_start_menu_dialog", cv2test::kStartMenuSkinPage, true);
}

// A much narrower path box shows only the drive of a typical path; on wide screens the boxes run
// across the whole width instead of sharing it with the margins.
TEST_F(PanelPagesScreens, StartMenuDialogPathBoxesTakeNearlyHalfTheWidthOrMore) {
    bool checked = false;
    RunSettingsDialog(
        cv2test::kStartMenuSkinPage,
        [&](HWND menu) {
            RECT client;
            GetClientRect(menu, &client);
            for (int id : {IDC_MENU_PROGRAM, IDC_MENU_SETTINGS, IDC_MENU_FIND, IDC_MENU_HELP,
                           IDC_MENU_ARROW}) {
                RECT box;
                GetWindowRect(GetDlgItem(menu, id), &box);
                EXPECT_GE(100 * (box.right - box.left), 45 * client.right) << id;
            }
            checked = true;
        },
        IDCANCEL, IDCANCEL);
    EXPECT_TRUE(checked);
}
