// Pictures of the file browser on the device screen the run is set to: thumbnails of a folder of
// a few hundred pictures, the same folder as a list, the tree dropped over the files, and
// picking a folder.
#include <gtest/gtest.h>

#include <functional>

#include "file_browser_support.h"
#include "ids_ui.h"
#include "rule_page_support.h"
#include "screen_capture.h"
#include "store/strings.h"

using namespace cv2;
using namespace cv2test;

namespace {

class FileBrowserScreens : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        s_pictures = new TempFolder;
        WritePictures(*s_pictures, 300);
        s_pictures->Write(L"Read me first.txt", "notes");
        s_pictures->Write(L"Theme.skin", "[Skin Info]\n");
        MakeFolder(*s_pictures, L"Blue Theme");
        MakeFolder(*s_pictures, L"Blue Theme\\Icons");
        MakeFolder(*s_pictures, L"Sounds");
    }
    static void TearDownTestSuite() {
        delete s_pictures;
        s_pictures = nullptr;
    }

    // Opens `browser` on the picture folder, runs `before` on the dialog, saves the screen.
    void Shoot(FileBrowser& browser, const wchar_t* name,
               std::function<void(HWND)> before = nullptr) {
        PageHost host;
        browser.startFolder = Bare(s_pictures->Path());
        std::wstring saved;
        DialogDriver driver({[&](HWND dialog) {
            if (before)
                before(dialog);
            LetItPaint(dialog);
            saved = SaveScreenshot(name);
            EXPECT_TRUE(ScreenHasContent());
            PressItem(dialog, IDC_BROWSE_CANCEL);
        }});
        EXPECT_FALSE(browser.Run(host.Window()));
        EXPECT_TRUE(driver.AllStepsRun());
        if (!ScreenName().empty()) {
            EXPECT_FALSE(saved.empty());
        }
    }

    static TempFolder* s_pictures;
};

TempFolder* FileBrowserScreens::s_pictures = nullptr;

} // namespace

TEST_F(FileBrowserScreens, ImageMode) {
    FileBrowser browser(true, false);
    browser.SetFilter(Localized(IDS_GRAPHICS_FILTER), false, nullptr);
    Shoot(browser, L"file_browser_images", [](HWND dialog) {
        ExpectLaidOutApart(dialog);
        GridKey(dialog, VK_RIGHT);
        GridKey(dialog, VK_RIGHT);
    });
}

TEST_F(FileBrowserScreens, ListMode) {
    FileBrowser browser(false, false);
    Shoot(browser, L"file_browser_list", [](HWND dialog) {
        ExpectLaidOutApart(dialog);
        GridKey(dialog, VK_DOWN);
    });
}

TEST_F(FileBrowserScreens, TreeOverTheFiles) {
    FileBrowser browser(true, false);
    browser.SetFilter(Localized(IDS_GRAPHICS_FILTER), false, nullptr);
    Shoot(browser, L"file_browser_tree",
          [](HWND dialog) { ClickItem(dialog, IDC_BROWSE_TREE_BUTTON); });
}

TEST_F(FileBrowserScreens, FolderMode) {
    FileBrowser browser(false, true);
    Shoot(browser, L"file_browser_folders", [](HWND dialog) { ExpectLaidOutApart(dialog); });
}
