// Screenshots of the theme editor's pages with controls of their own and of their two dialogs,
// on the device screen the run is made for; each is checked for controls cut off or overlapping
// first.
#include "bmp_file.h"
#include "control_pages_support.h"
#include "pages/appearance/editor_buttons_page.h"
#include "pages/appearance/list_pages.h"
#include "pages/appearance/notifications_page.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

using PageMaker = SettingsPage* (*)();

class ControlPagesScreens : public cv2test::ControlPagesTest {
  protected:
    void SetUp() override {
        ControlPagesTest::SetUp();
        doc = cv2test::ParsedDoc(
            "[Sounds]\r\nClose=\\Windows\\Sounds\\close.wav\r\n"
            "[Custom Notifications]\r\n0=Missed Call\r\n1=New Text Message\r\n"
            "[Notify.Missed Call]\r\nNormal=\\Windows\\call.png\r\nPressed=\\Windows\\callp.png\r\n"
            "[Buttons]\r\nnormal=\\Windows\\Themes\\Glass\\button.png\r\n");
    }

    // Checks the page's layout in the editor, then takes its screenshot.
    void CheckAndShootPage(const wchar_t* name, PageMaker make) {
        RunEditor(
            {make()},
            [](HWND dlg, ThemeEditor&) {
                cv2test::ExpectLaidOutApart(dlg);
                cv2test::ExpectTextsFit(dlg);
            },
            IDCANCEL);
        ShootDialog(name, [&] {
            ThemeEditor editor(&doc, {make()});
            EXPECT_FALSE(editor.Run(host));
        });
    }

    // The same for the dialog that `button` of the page opens.
    void CheckAndShootDialog(const wchar_t* name, PageMaker make, int button) {
        RunEditor(
            {make()},
            [&](HWND dlg, ThemeEditor&) {
                DialogDriver::OnNextDialog(
                    [](HWND box) {
                        cv2test::ExpectLaidOutApart(box);
                        cv2test::ExpectTextsFit(box);
                    },
                    IDCANCEL);
                DialogDriver::Click(dlg, button);
            },
            IDCANCEL);
        RunEditor(
            {make()},
            [&](HWND dlg, ThemeEditor&) {
                ShootDialog(name, [&] { DialogDriver::Click(dlg, button); });
            },
            IDCANCEL);
    }
};

} // namespace

TEST_F(ControlPagesScreens, ApplicationButtonsPage) {
    CheckAndShootPage(L"application_buttons", NewAppButtonsPage);
}

TEST_F(ControlPagesScreens, ApplicationButtonImagesDialog) {
    CheckAndShootDialog(L"application_button_images", NewAppButtonsPage, IDC_APP_IMAGES);
}

TEST_F(ControlPagesScreens, TaskbarFontsPage) {
    CheckAndShootPage(L"taskbar_fonts", NewTaskbarFontsPage);
}

TEST_F(ControlPagesScreens, SystemColorsPage) {
    CheckAndShootPage(L"system_colors", NewSystemColorsPage);
}

TEST_F(ControlPagesScreens, SoundEventsPage) {
    CheckAndShootPage(L"sound_events", NewSoundEventsPage);
}

TEST_F(ControlPagesScreens, NotificationsPage) {
    CheckAndShootPage(L"notifications", NewNotificationsPage);
}

TEST_F(ControlPagesScreens, NotificationDialog) {
    CheckAndShootDialog(L"notification_dialog", NewNotificationsPage, IDC_NOTIFY_ADD);
}
