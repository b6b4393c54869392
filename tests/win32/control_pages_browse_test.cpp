// The "..." buttons of the pages with controls of their own: Sound Events browses for sounds in
// the folder last used for sounds; the application buttons' images dialog and the notification
// dialog browse for pictures. A chosen file goes into its own box.
#include "control_pages_support.h"
#include "file_browser_support.h"
#include "pages/appearance/editor_buttons_page.h"
#include "pages/appearance/list_pages.h"
#include "pages/appearance/notifications_page.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

class ControlPagesBrowseTest : public cv2test::ControlPagesTest {
  protected:
    // Clicks `browse` of `dlg`; in the browser notes the first filter and the folder shown,
    // types `name` and ends it with `endWith`.
    void BrowseThrough(HWND dlg, int browse, const std::wstring& name, int endWith) {
        DialogDriver::OnNextDialog(
            [=](HWND browser) {
                wchar_t item[64] = {};
                SendDlgItemMessageW(browser, IDC_BROWSE_FILTER, CB_GETLBTEXT, 0,
                                    reinterpret_cast<LPARAM>(item));
                firstFilter = item;
                folder = cv2test::SelectedTreeText(browser);
                SetDlgItemTextW(browser, IDC_BROWSE_NAME, name.c_str());
            },
            endWith);
        DialogDriver::Click(dlg, browse);
    }

    // The folder the browser showed was the test's own.
    void ExpectTestFolderShown() const {
        const std::wstring bare = cv2test::Bare(dir.Path());
        EXPECT_EQ(lstrcmpiW(folder.c_str(), bare.substr(bare.rfind(L'\\') + 1).c_str()), 0);
    }

    std::wstring firstFilter, folder;
    cv2test::TempFolder dir;
};

class SoundBrowseTest : public ControlPagesBrowseTest {
  protected:
    void SetUp() override {
        ControlPagesBrowseTest::SetUp();
        dir.Write(L"chime.wav", "RIFF");
        remembered.Write(cv2test::Bare(dir.Path()));
    }
    cv2test::RememberedValue remembered{L"sounds"};
};

class PictureBrowseTest : public ControlPagesBrowseTest {
  protected:
    void SetUp() override {
        ControlPagesBrowseTest::SetUp();
        cv2test::WritePictures(dir, 1);
        remembered.Write(cv2test::Bare(dir.Path()));
    }
    cv2test::RememberedValue remembered{L"graphics"};
};

} // namespace

TEST_F(SoundBrowseTest, BrowseOffersSoundFilesInTheSoundsFolderAndStoresTheChoice) {
    const std::wstring chosen = dir.File(L"chime.wav");
    std::wstring path;
    RunEditor(
        {NewSoundEventsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickListRow(dlg, IDC_SOUNDS_LIST, 4);
            BrowseThrough(dlg, IDC_SOUNDS_BROWSE, chosen, IDOK);
            path = cv2test::DlgText(dlg, IDC_SOUNDS_PATH);
        },
        IDOK);
    EXPECT_EQ(firstFilter, L"Sound Files");
    ExpectTestFolderShown();
    EXPECT_EQ(path, chosen);
    EXPECT_EQ(doc.GetString(L"Sounds", L"Minimize", L"-"), chosen);
}

TEST_F(SoundBrowseTest, ACancelledBrowseKeepsThePath) {
    doc.SetString(L"Sounds", L"Close", L"old.wav");
    RunEditor(
        {NewSoundEventsPage()},
        [&](HWND dlg, ThemeEditor&) {
            BrowseThrough(dlg, IDC_SOUNDS_BROWSE, dir.File(L"chime.wav"), IDCANCEL);
        },
        IDOK);
    EXPECT_EQ(doc.GetString(L"Sounds", L"Close", L"-"), L"old.wav");
}

TEST_F(PictureBrowseTest, EachImagesDialogBrowseButtonFillsItsOwnRow) {
    const int rows[][2] = {{IDC_ROW_NORMAL_BROWSE, IDC_ROW_NORMAL},
                           {IDC_ROW_PRESSED_BROWSE, IDC_ROW_PRESSED},
                           {IDC_ROW_DISABLED_BROWSE, IDC_ROW_DISABLED},
                           {IDC_ROW_FOCUSED_BROWSE, IDC_ROW_FOCUSED}};
    const std::wstring chosen = dir.File(L"Picture 001.bmp");
    for (const auto& row : rows) {
        std::vector<std::wstring> boxes;
        RunEditor(
            {NewAppButtonsPage()},
            [&](HWND dlg, ThemeEditor&) {
                DialogDriver::OnNextDialog(
                    [&](HWND box) {
                        BrowseThrough(box, row[0], chosen, IDOK);
                        for (const auto& other : rows)
                            boxes.push_back(cv2test::DlgText(box, other[1]));
                    },
                    IDCANCEL);
                DialogDriver::Click(dlg, IDC_APP_IMAGES);
            },
            IDCANCEL);
        EXPECT_EQ(firstFilter, L"Graphics Files");
        ExpectTestFolderShown();
        ASSERT_EQ(boxes.size(), 4u);
        for (size_t i = 0; i < 4; ++i)
            EXPECT_EQ(boxes[i] == chosen, rows[i][1] == row[1]) << "row " << i;
    }
}

TEST_F(PictureBrowseTest, NotificationDialogBrowseFillsThePressedRow) {
    const std::wstring chosen = dir.File(L"Picture 001.bmp");
    std::wstring normal, pressed;
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            DialogDriver::OnNextDialog(
                [&](HWND box) {
                    BrowseThrough(box, IDC_ROW_PRESSED_BROWSE, chosen, IDOK);
                    normal = cv2test::DlgText(box, IDC_ROW_NORMAL);
                    pressed = cv2test::DlgText(box, IDC_ROW_PRESSED);
                },
                IDCANCEL);
            DialogDriver::Click(dlg, IDC_NOTIFY_ADD);
        },
        IDCANCEL);
    EXPECT_EQ(firstFilter, L"Graphics Files");
    EXPECT_EQ(normal, L"");
    EXPECT_EQ(pressed, chosen);
}
