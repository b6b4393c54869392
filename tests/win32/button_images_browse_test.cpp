// The browse buttons of the button images dialog: each opens the file browser on pictures, with
// the graphics filter and the folder last used for pictures, and puts the chosen file into its
// own path box.
#include "ui/backgrounds/button_images_dialog.h"

#include "background_dialog_steps.h"
#include "file_browser_support.h"
#include "ids_ui.h"
#include "store/strings.h"
#include "temp_folder.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::ItemTextOf;

namespace {

class ButtonImagesBrowseTest : public cv2test::PickerHostTest {
  protected:
    void SetUp() override {
        PickerHostTest::SetUp();
        values.font.Create(L"Tahoma", 8, kFontBold, false);
        values.normalImage = L"\\normal.png";
        values.pressedImage = L"\\pressed.png";
        values.disabledImage = L"\\disabled.png";
        cv2test::WritePictures(dir, 2);
        // The browser starts in the test's folder, remembered for pictures.
        remembered.Write(cv2test::Bare(dir.Path()));
    }

    ButtonImages values;
    cv2test::TempFolder dir;
    cv2test::RememberedValue remembered{L"graphics"};
};

struct BrowseRow {
    int browse;
    int edit;
};
const BrowseRow kRows[] = {
    {IDC_BUTTONS_NORMAL_BROWSE, IDC_BUTTONS_NORMAL},
    {IDC_BUTTONS_PRESSED_BROWSE, IDC_BUTTONS_PRESSED},
    {IDC_BUTTONS_DISABLED_BROWSE, IDC_BUTTONS_DISABLED},
};

// Clicks the browse button; in the browser, types `name` and ends it with `endWith`.
void BrowseThrough(HWND dlg, int browse, const std::wstring& name, int endWith) {
    DialogDriver::OnNextDialog(
        [=](HWND browser) { SetDlgItemTextW(browser, IDC_BROWSE_NAME, name.c_str()); }, endWith);
    DialogDriver::Click(dlg, browse);
}

} // namespace

TEST_F(ButtonImagesBrowseTest, EachBrowseButtonPutsTheChosenFileIntoItsOwnPathBox) {
    for (const BrowseRow& row : kRows) {
        const std::wstring chosen = dir.File(L"Picture 002.bmp");
        std::vector<std::wstring> boxes;
        DialogDriver::OnNextDialog(
            [&](HWND dlg) {
                BrowseThrough(dlg, row.browse, chosen, IDOK);
                for (const BrowseRow& other : kRows)
                    boxes.push_back(ItemTextOf(dlg, other.edit));
            },
            IDCANCEL);
        ButtonImagesDialog dialog;
        dialog.Fill(values);
        dialog.Run(host);
        ASSERT_EQ(boxes.size(), 3u);
        for (size_t i = 0; i < 3; ++i) {
            if (kRows[i].edit == row.edit)
                EXPECT_EQ(boxes[i], chosen);
            else
                EXPECT_NE(boxes[i], chosen) << "another row's box changed";
        }
    }
}

TEST_F(ButtonImagesBrowseTest, TheBrowserShowsThumbnailsOfPicturesInTheFolderLastUsedForThem) {
    std::wstring firstFilter, folder;
    int pictures = -1;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DialogDriver::OnNextDialog(
                [&](HWND browser) {
                    wchar_t item[64] = {};
                    SendDlgItemMessageW(browser, IDC_BROWSE_FILTER, CB_GETLBTEXT, 0,
                                        reinterpret_cast<LPARAM>(item));
                    firstFilter = item;
                    folder = cv2test::SelectedTreeText(browser);
                    ShowWindow(browser, SW_SHOW);
                    cv2test::LetItPaint(browser);
                    pictures = cv2test::GridPictureCount(browser);
                },
                IDCANCEL);
            DialogDriver::Click(dlg, IDC_BUTTONS_NORMAL_BROWSE);
        },
        IDCANCEL);
    EXPECT_FALSE(EditButtonImages(values, host));
    EXPECT_EQ(firstFilter, L"Graphics Files");
    EXPECT_EQ(pictures, 2) << "the two pictures of the folder, as thumbnails";
    const std::wstring bare = cv2test::Bare(dir.Path());
    EXPECT_EQ(lstrcmpiW(folder.c_str(), bare.substr(bare.rfind(L'\\') + 1).c_str()), 0);
}

TEST_F(ButtonImagesBrowseTest, TheChosenFilesFolderIsRememberedForPictures) {
    cv2test::TempFolder other;
    cv2test::WritePictures(other, 1);
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            BrowseThrough(dlg, IDC_BUTTONS_PRESSED_BROWSE, other.File(L"Picture 001.bmp"), IDOK);
        },
        IDCANCEL);
    EditButtonImages(values, host);
    std::wstring stored;
    ASSERT_TRUE(remembered.Read(stored));
    EXPECT_EQ(stored, cv2test::Bare(other.Path()));
}

TEST_F(ButtonImagesBrowseTest, CancellingTheBrowserLeavesThePathBox) {
    std::wstring box;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            BrowseThrough(dlg, IDC_BUTTONS_DISABLED_BROWSE, dir.File(L"Picture 001.bmp"), IDCANCEL);
            box = ItemTextOf(dlg, IDC_BUTTONS_DISABLED);
        },
        IDOK);
    ASSERT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(box, L"\\disabled.png");
    EXPECT_EQ(values.disabledImage, L"\\disabled.png");
}

TEST_F(ButtonImagesBrowseTest, ABrowsedPathReachesTheCallerOnlyWithOk) {
    const std::wstring chosen = dir.File(L"Picture 001.bmp");
    DialogDriver::OnNextDialog(
        [&](HWND dlg) { BrowseThrough(dlg, IDC_BUTTONS_NORMAL_BROWSE, chosen, IDOK); }, IDCANCEL);
    EXPECT_FALSE(EditButtonImages(values, host));
    EXPECT_EQ(values.normalImage, L"\\normal.png");
    DialogDriver::OnNextDialog(
        [&](HWND dlg) { BrowseThrough(dlg, IDC_BUTTONS_NORMAL_BROWSE, chosen, IDOK); }, IDOK);
    EXPECT_TRUE(EditButtonImages(values, host));
    EXPECT_EQ(values.normalImage, chosen);
}
