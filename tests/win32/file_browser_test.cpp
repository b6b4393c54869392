// The file browser dialog worked from inside its own modal loop: what it lists, what it shows,
// what it returns and what it remembers.
#include <windows.h>
#include <shellapi.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "../unit/image_test_data.h"
#include "file_browser_support.h"
#include "icon_grid_host.h"
#include "ids_ui.h"
#include "rule_page_support.h"
#include "store/screen.h"
#include "store/strings.h"
#include "ui/browser/browse_templates.h"
#include "ui/file_browser.h"
#include "ui/icon_grid.h"

using namespace cv2;
using namespace cv2test;

namespace {

using Texts = std::vector<std::wstring>;

const wchar_t kSoundFilter[] = L"Sound Files|*.wav|All Files|*.*";

bool SameNoCase(const std::wstring& a, const std::wstring& b) {
    return lstrcmpiW(a.c_str(), b.c_str()) == 0;
}

class FileBrowserTest : public ::testing::Test {
  protected:
    // Runs the browser with the steps worked on its dialog; the last step must end it.
    bool Run(FileBrowser& browser, std::vector<DialogDriver::Step> steps) {
        DialogDriver driver(std::move(steps));
        const bool ok = browser.Run(m_host.Window());
        allStepsRun = driver.AllStepsRun();
        return ok;
    }

    // A step that types `text` into the file-name box and presses the button.
    static DialogDriver::Step TypeAndPress(std::wstring text, int button) {
        return [text, button](HWND dialog) {
            SetItemText(dialog, IDC_BROWSE_NAME, text);
            PressItem(dialog, button);
        };
    }

    PageHost m_host;
    TempFolder m_dir;
    bool allStepsRun = false;
};

// A folder with two pictures, a text file, a hidden picture and a folder named like a picture.
void WriteMixedFolder(const TempFolder& dir) {
    dir.Write(L"b.bmp", "x");
    dir.Write(L"A.bmp", "x");
    dir.Write(L"c.txt", "x");
    dir.Write(L"h.bmp", "x");
    SetFileAttributesW(dir.File(L"h.bmp").c_str(), FILE_ATTRIBUTE_HIDDEN);
    MakeFolder(dir, L"d.bmp");
}

HWND Item(HWND dialog, int id) {
    return GetDlgItem(dialog, id);
}

bool Visible(HWND dialog, int id) {
    return IsWindowVisible(Item(dialog, id)) != FALSE;
}

void PickFilter(HWND dialog, int index) {
    SendDlgItemMessageW(dialog, IDC_BROWSE_FILTER, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_BROWSE_FILTER, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Item(dialog, IDC_BROWSE_FILTER)));
}

} // namespace

TEST_F(FileBrowserTest, OkWithEmptyFileNameKeepsTheDialogOpen) {
    FileBrowser browser(false, false);
    HWND first = nullptr, second = nullptr;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                                   first = dialog;
                                   SetItemText(dialog, IDC_BROWSE_NAME, L"");
                                   PressItem(dialog, IDOK);
                               },
                               [&](HWND dialog) {
                                   second = dialog;
                                   PressItem(dialog, IDC_BROWSE_CANCEL);
                               }}));
    EXPECT_TRUE(allStepsRun) << "the dialog closed on OK";
    EXPECT_EQ(first, second);
    EXPECT_TRUE(browser.result.empty());
}

TEST_F(FileBrowserTest, TypedPathNotInTheListIsReturnedAsTyped) {
    WritePictures(m_dir, 3);
    FileBrowser browser(true, false);
    browser.startFolder = Bare(m_dir.Path());
    const std::wstring typed = L"C:\\Not There\\my own picture.bmp";
    EXPECT_TRUE(Run(browser, {TypeAndPress(typed, IDOK)}));
    EXPECT_EQ(browser.result, typed);
    EXPECT_EQ(std::count(browser.files.begin(), browser.files.end(), typed), 0);
}

TEST_F(FileBrowserTest, PagesGivingTheSameContextNameShareOneRememberedFolder) {
    RememberedValue remembered(L"graphics");
    remembered.Remove();
    WritePictures(m_dir, 4);
    FileBrowser first(true, false);
    first.SetFilter(Localized(IDS_GRAPHICS_FILTER), true, L"graphics");
    EXPECT_TRUE(first.startFolder.empty());
    first.startFolder = Bare(m_dir.Path());
    EXPECT_TRUE(Run(first, {[](HWND dialog) {
                        GridKey(dialog, VK_RIGHT);
                        PressItem(dialog, IDOK);
                    }}));
    EXPECT_EQ(first.result, m_dir.File(L"Picture 001.bmp"));
    std::wstring stored;
    ASSERT_TRUE(remembered.Read(stored));
    EXPECT_EQ(stored, Bare(m_dir.Path()));

    // Another page with another filter but the same kind starts where the first one ended.
    FileBrowser second(false, false);
    second.SetFilter(kSoundFilter, true, L"graphics");
    EXPECT_EQ(second.startFolder, Bare(m_dir.Path()));
    std::wstring selected;
    EXPECT_FALSE(Run(second, {[&](HWND dialog) {
                         selected = SelectedTreeText(dialog);
                         PressItem(dialog, IDC_BROWSE_CANCEL);
                     }}));
    EXPECT_TRUE(
        SameNoCase(selected, Bare(m_dir.Path()).substr(Bare(m_dir.Path()).rfind(L'\\') + 1)));
}

TEST_F(FileBrowserTest, WithoutContextNameTheFolderIsRememberedUnderTheFilter) {
    RememberedValue remembered(kSoundFilter);
    remembered.Remove();
    FileBrowser browser(false, false);
    browser.SetFilter(kSoundFilter, true, nullptr);
    EXPECT_EQ(browser.contextName, kSoundFilter);
    EXPECT_TRUE(Run(browser, {TypeAndPress(m_dir.File(L"ring.wav"), IDOK)}));
    std::wstring stored;
    ASSERT_TRUE(remembered.Read(stored));
    EXPECT_EQ(stored, Bare(m_dir.Path()));

    FileBrowser again(false, false);
    again.SetFilter(kSoundFilter, true, nullptr);
    EXPECT_EQ(again.startFolder, Bare(m_dir.Path()));
}

TEST_F(FileBrowserTest, WithoutRememberNothingIsStored) {
    RememberedValue remembered(kSoundFilter);
    remembered.Remove();
    FileBrowser browser(false, false);
    browser.SetFilter(kSoundFilter, false, nullptr);
    EXPECT_TRUE(Run(browser, {TypeAndPress(m_dir.File(L"ring.wav"), IDOK)}));
    std::wstring stored;
    EXPECT_FALSE(remembered.Read(stored));
}

TEST_F(FileBrowserTest, CancelReturnsNothingAndStoresNothing) {
    RememberedValue remembered(L"cv2 test cancel");
    remembered.Remove();
    FileBrowser browser(false, false);
    browser.SetFilter(kSoundFilter, true, L"cv2 test cancel");
    EXPECT_FALSE(Run(browser, {TypeAndPress(m_dir.File(L"ring.wav"), IDC_BROWSE_CANCEL)}));
    EXPECT_TRUE(browser.result.empty());
    std::wstring stored;
    EXPECT_FALSE(remembered.Read(stored));
}

TEST_F(FileBrowserTest, MissingRememberedFolderStartsAtMyDevice) {
    RememberedValue remembered(L"cv2 test missing");
    remembered.Remove();
    FileBrowser browser(false, false);
    browser.SetFilter(kSoundFilter, true, L"cv2 test missing");
    EXPECT_TRUE(browser.startFolder.empty());
    std::wstring selected;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         selected = SelectedTreeText(dialog);
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(selected, Localized(IDS_MY_DEVICE));
}

TEST_F(FileBrowserTest, RememberedFolderTooLongForItsBufferIsNotUsed) {
    RememberedValue remembered(L"cv2 test long");
    // 260 characters and the terminator need 522 bytes: more than the 520 read.
    remembered.Write(L"C:\\" + std::wstring(257, L'a'));
    FileBrowser browser(false, false);
    browser.SetFilter(kSoundFilter, true, L"cv2 test long");
    EXPECT_TRUE(browser.startFolder.empty());
    remembered.Write(L"C:\\" + std::wstring(256, L'a'));
    browser.SetFilter(kSoundFilter, true, L"cv2 test long");
    EXPECT_EQ(browser.startFolder.size(), 259u);
}

TEST_F(FileBrowserTest, MyDeviceHoldsTheDrivesOnTheDesktop) {
    FileBrowser browser(false, true);
    Texts drives;
    std::wstring name;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         HWND tree = Item(dialog, IDC_BROWSE_TREE);
                         drives = ChildTexts(tree, TreeView_GetRoot(tree));
                         name = ItemText(dialog, IDC_BROWSE_NAME);
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_NE(std::find(drives.begin(), drives.end(), L"C:"), drives.end());
    for (const std::wstring& drive : drives)
        EXPECT_TRUE(drive.size() == 2 && drive[1] == L':') << "not a drive";
    // "My Device" itself is no folder here: picking it gives nothing to return.
    EXPECT_TRUE(name.empty());
}

TEST_F(FileBrowserTest, StartFolderIsWalkedDownTheTreeWithoutRegardToCase) {
    MakeFolder(m_dir, L"Blue Theme");
    MakeFolder(m_dir, L"Blue Theme\\Icons");
    const std::wstring folder = m_dir.Path() + L"Blue Theme\\Icons";
    FileBrowser browser(false, true);
    std::wstring start = folder;
    CharUpperW(&start[0]);
    browser.startFolder = start;
    std::wstring selected, name;
    EXPECT_TRUE(Run(browser, {[&](HWND dialog) {
                        selected = SelectedTreeText(dialog);
                        name = ItemText(dialog, IDC_BROWSE_NAME);
                        PressItem(dialog, IDOK);
                    }}));
    EXPECT_EQ(selected, L"Icons");
    EXPECT_TRUE(SameNoCase(name, folder)) << "name box: " << ::testing::PrintToString(name);
    EXPECT_EQ(browser.result, name);
}

TEST_F(FileBrowserTest, FolderModeShowsOnlyTheTreeAndPicksTheSelectedFolder) {
    MakeFolder(m_dir, L"Sounds");
    FileBrowser browser(false, true);
    browser.startFolder = m_dir.File(L"Sounds");
    bool grid = true, filter = true, button = true, tree = false;
    EXPECT_TRUE(Run(browser, {[&](HWND dialog) {
                        grid = Visible(dialog, IDC_BROWSE_FILES);
                        filter = Visible(dialog, IDC_BROWSE_FILTER);
                        button = Visible(dialog, IDC_BROWSE_TREE_BUTTON);
                        tree = Visible(dialog, IDC_BROWSE_TREE);
                        PressItem(dialog, IDOK);
                    }}));
    EXPECT_FALSE(grid);
    EXPECT_FALSE(filter);
    EXPECT_FALSE(button);
    EXPECT_TRUE(tree);
    EXPECT_TRUE(SameNoCase(browser.result, m_dir.File(L"Sounds")));
}

TEST_F(FileBrowserTest, ExpandingAFolderListsItsSubFoldersWithPlaceholders) {
    MakeFolder(m_dir, L"Blue Theme");
    MakeFolder(m_dir, L"Blue Theme\\Icons");
    MakeFolder(m_dir, L"Sounds");
    m_dir.Write(L"not a folder.txt", "x");
    FileBrowser browser(false, true);
    browser.startFolder = Bare(m_dir.Path());
    Texts children, blueChildren, blueAfterExpand, soundChildren;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         HWND tree = Item(dialog, IDC_BROWSE_TREE);
                         HTREEITEM here = TreeView_GetSelection(tree);
                         children = ChildTexts(tree, here);
                         HTREEITEM blue = FindChildItem(tree, here, L"Blue Theme");
                         HTREEITEM sounds = FindChildItem(tree, here, L"Sounds");
                         blueChildren = ChildTexts(tree, blue);
                         soundChildren = ChildTexts(tree, sounds);
                         TreeView_Expand(tree, blue, TVE_EXPAND);
                         blueAfterExpand = ChildTexts(tree, blue);
                         PressItem(dialog, IDCANCEL);
                     }}));
    std::sort(children.begin(), children.end());
    EXPECT_EQ(children, (Texts{L"Blue Theme", L"Sounds"}));
    EXPECT_EQ(blueChildren, (Texts{L""})) << "a folder with sub-folders gets a placeholder";
    EXPECT_TRUE(soundChildren.empty());
    EXPECT_EQ(blueAfterExpand, (Texts{L"Icons"}));
}

TEST_F(FileBrowserTest, FileListHoldsNeitherFoldersNorHiddenFilesSortedWithoutCase) {
    WriteMixedFolder(m_dir);
    FileBrowser browser(false, false);
    browser.SetFilter(Localized(IDS_GRAPHICS_FILTER), false, nullptr);
    browser.startFolder = Bare(m_dir.Path());
    EXPECT_FALSE(Run(browser, {[](HWND dialog) { PressItem(dialog, IDCANCEL); }}));
    EXPECT_EQ(browser.files, (Texts{m_dir.File(L"A.bmp"), m_dir.File(L"b.bmp")}));
}

TEST_F(FileBrowserTest, NewFilterRefillsTheFileList) {
    WriteMixedFolder(m_dir);
    FileBrowser browser(false, false);
    browser.SetFilter(Localized(IDS_GRAPHICS_FILTER), false, nullptr);
    browser.startFolder = Bare(m_dir.Path());
    Texts before;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         before = browser.files;
                         PickFilter(dialog, 1);
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(before.size(), 2u);
    EXPECT_EQ(browser.files,
              (Texts{m_dir.File(L"A.bmp"), m_dir.File(L"b.bmp"), m_dir.File(L"c.txt")}));
}

TEST_F(FileBrowserTest, FilterDropDownHoldsTheLabelsFirstSelected) {
    FileBrowser browser(false, false);
    browser.SetFilter(kSoundFilter, false, nullptr);
    Texts labels;
    LRESULT selected = -1;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         HWND box = Item(dialog, IDC_BROWSE_FILTER);
                         for (LRESULT i = 0; i < SendMessageW(box, CB_GETCOUNT, 0, 0); ++i) {
                             wchar_t text[64] = {};
                             SendMessageW(box, CB_GETLBTEXT, static_cast<WPARAM>(i),
                                          reinterpret_cast<LPARAM>(text));
                             labels.push_back(text);
                         }
                         selected = SendMessageW(box, CB_GETCURSEL, 0, 0);
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(labels, (Texts{L"Sound Files", L"All Files"}));
    EXPECT_EQ(selected, 0);
}

TEST_F(FileBrowserTest, CurrentFileGoesIntoTheNameBox) {
    WritePictures(m_dir, 5);
    FileBrowser browser(true, false);
    browser.startFolder = Bare(m_dir.Path());
    std::wstring first, second;
    EXPECT_TRUE(Run(browser, {[&](HWND dialog) {
                        GridKey(dialog, VK_RIGHT);
                        first = ItemText(dialog, IDC_BROWSE_NAME);
                        GridKey(dialog, VK_RIGHT);
                        second = ItemText(dialog, IDC_BROWSE_NAME);
                        PressItem(dialog, IDOK);
                    }}));
    EXPECT_EQ(first, m_dir.File(L"Picture 001.bmp"));
    EXPECT_EQ(second, m_dir.File(L"Picture 002.bmp"));
    EXPECT_EQ(browser.result, second);
}

TEST_F(FileBrowserTest, SelectingAFolderListsItsFilesAndHidesTheTree) {
    MakeFolder(m_dir, L"Sounds");
    m_dir.Write(L"Sounds\\ring.wav", "x");
    m_dir.Write(L"top.wav", "x");
    FileBrowser browser(false, false);
    browser.SetFilter(kSoundFilter, false, nullptr);
    browser.startFolder = Bare(m_dir.Path());
    bool treeAtStart = true, treeShown = false, treeAfter = true;
    Texts atStart;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         atStart = browser.files;
                         treeAtStart = Visible(dialog, IDC_BROWSE_TREE);
                         ClickItem(dialog, IDC_BROWSE_TREE_BUTTON);
                         treeShown = Visible(dialog, IDC_BROWSE_TREE);
                         HWND tree = Item(dialog, IDC_BROWSE_TREE);
                         TreeView_SelectItem(
                             tree, FindChildItem(tree, TreeView_GetSelection(tree), L"Sounds"));
                         treeAfter = Visible(dialog, IDC_BROWSE_TREE);
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(atStart, (Texts{m_dir.File(L"top.wav")}));
    EXPECT_FALSE(treeAtStart);
    EXPECT_TRUE(treeShown);
    EXPECT_FALSE(treeAfter);
    EXPECT_EQ(browser.files, (Texts{m_dir.File(L"Sounds\\ring.wav")}));
}

TEST_F(FileBrowserTest, TreeButtonShowsAndHidesTheTree) {
    FileBrowser browser(false, false);
    browser.startFolder = Bare(m_dir.Path());
    std::vector<bool> shown;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         shown.push_back(Visible(dialog, IDC_BROWSE_TREE));
                         ClickItem(dialog, IDC_BROWSE_TREE_BUTTON);
                         shown.push_back(Visible(dialog, IDC_BROWSE_TREE));
                         ClickItem(dialog, IDC_BROWSE_TREE_BUTTON);
                         shown.push_back(Visible(dialog, IDC_BROWSE_TREE));
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(shown, (std::vector<bool>{false, true, false}));
}

TEST_F(FileBrowserTest, OnlyFilesScrolledIntoViewAreDecoded) {
    WritePictures(m_dir, 300);
    FileBrowser browser(true, false);
    browser.startFolder = Bare(m_dir.Path());
    int atStart = -1, afterJump = -1;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         LetItPaint(dialog);
                         atStart = GridPictureCount(dialog);
                         SendMessageW(Item(dialog, IDC_BROWSE_FILES), WM_VSCROLL, SB_BOTTOM, 0);
                         LetItPaint(dialog);
                         afterJump = GridPictureCount(dialog);
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(browser.files.size(), 300u);
    EXPECT_GT(atStart, 0) << "no thumbnail was made";
    // A screen shows a few rows of three or four: far fewer than the folder holds.
    EXPECT_LT(atStart, 40);
    EXPECT_GT(afterJump, atStart);
    EXPECT_LT(afterJump, 80);
}

TEST_F(FileBrowserTest, ListModeShowsShellNamesAndSystemIcons) {
    WritePictures(m_dir, 3);
    FileBrowser browser(false, false);
    browser.startFolder = Bare(m_dir.Path());
    HIMAGELIST gridIcons = nullptr;
    std::wstring caption;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         LetItPaint(dialog);
                         HWND grid = Item(dialog, IDC_BROWSE_FILES);
                         gridIcons = reinterpret_cast<HIMAGELIST>(
                             SendMessageW(grid, GRM_GETIMAGELIST, 0, 0));
                         wchar_t text[256] = {};
                         SendMessageW(grid, GRM_GETTEXT, 0, reinterpret_cast<LPARAM>(text));
                         caption = text;
                         PressItem(dialog, IDCANCEL);
                     }}));
    SHFILEINFOW info = {};
    const HIMAGELIST system = reinterpret_cast<HIMAGELIST>(
        SHGetFileInfoW(L"Dummy.txt", FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                       SHGFI_SYSICONINDEX | SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES));
    EXPECT_EQ(gridIcons, system);
    EXPECT_EQ(caption.rfind(L"Picture 001", 0), 0u) << ::testing::PrintToString(caption);
}

TEST_F(FileBrowserTest, OpensTheTemplateOfTheScreensShape) {
    FileBrowser browser(false, false);
    EXPECT_FALSE(Run(browser, {[](HWND dialog) { PressItem(dialog, IDCANCEL); }}));
    EXPECT_EQ(browser.TemplateUsed(), BrowserTemplateFor(ScreenWidth(), ScreenHeight()));
    if (ScreenWidth() == ScreenHeight()) {
        EXPECT_EQ(browser.TemplateUsed(), IDD_FILE_BROWSER_SQUARE);
    }
}

// opaque.bmp is 23 x 17 with a white block at (14, 10) to (22, 16), small enough to keep its size
// in the middle of its slot.
TEST_F(FileBrowserTest, ThumbnailsKeepTheirWhitePixels) {
    ASSERT_TRUE(
        CopyFileW(ImageDataPath("opaque.bmp").c_str(), m_dir.File(L"opaque.bmp").c_str(), FALSE));
    FileBrowser browser(true, false);
    browser.SetFilter(L"All Files|*.*", false, nullptr);
    browser.startFolder = Bare(m_dir.Path());
    COLORREF white = 0;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         LetItPaint(dialog);
                         HWND grid = GetDlgItem(dialog, IDC_BROWSE_FILES);
                         SendMessageW(grid, GRM_SETSEL, 0, 0);
                         HIMAGELIST images = reinterpret_cast<HIMAGELIST>(
                             SendMessageW(grid, GRM_GETIMAGELIST, 0, 0));
                         int side = 0, unused = 0;
                         ImageList_GetIconSize(images, &side, &unused);
                         // Drawn on blue, as a selected cell's ground is.
                         white = cv2test::ImagePixelOn(images, 0, (side - 23) / 2 + 18,
                                                       (side - 17) / 2 + 13, RGB(0, 0, 255));
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(white, RGB(255, 255, 255));
}

TEST_F(FileBrowserTest, ImageModeMakesThumbnailsOfPicturesOnly) {
    WritePictures(m_dir, 2);
    m_dir.Write(L"a notes.txt", "not a picture");
    m_dir.Write(L"broken.bmp", "not a picture either");
    FileBrowser browser(true, false);
    browser.SetFilter(L"All Files|*.*", false, nullptr);
    browser.startFolder = Bare(m_dir.Path());
    int pictures = -1;
    EXPECT_FALSE(Run(browser, {[&](HWND dialog) {
                         LetItPaint(dialog);
                         pictures = GridPictureCount(dialog);
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(browser.files.size(), 4u);
    EXPECT_EQ(pictures, 2);
}
