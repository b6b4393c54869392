// The theme editor's shared image panel, through a page that borrows it the way the appearance
// pages do, on the real editor: hidden until a page shows it, paths in and out, previews that
// follow typed, browsed and page-set paths, and nothing shown for files that are not pictures.
#include "themes/theme_editor.h"

#include "bmp_file.h"
#include "file_browser_support.h"
#include "ids_editor.h"
#include "ids_ui.h"
#include "temp_folder.h"
#include "theme_editor_support.h"
#include "themes/import_theme_page.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::PanelPage;
using cv2test::Shown;
using cv2test::TypeInto;

namespace {

const int kPanelIds[] = {
    IDC_PANEL_FIRST_LABEL,   IDC_PANEL_FIRST_PATH,     IDC_PANEL_FIRST_BROWSE,
    IDC_PANEL_FIRST_PREVIEW, IDC_PANEL_SECOND_LABEL,   IDC_PANEL_SECOND_PATH,
    IDC_PANEL_SECOND_BROWSE, IDC_PANEL_SECOND_PREVIEW, IDC_PANEL_LIST,
    IDC_PANEL_SETTINGS,      IDC_PANEL_CUSTOM_COLORS,
};

class ImagePanelTest : public cv2test::PickerHostTest {
  protected:
    void SetUp() override {
        PickerHostTest::SetUp();
        dir.Write(L"portrait.bmp", cv2test::BmpFileBytes(120, 40, 1));
        dir.Write(L"landscape.bmp", cv2test::BmpFileBytes(40, 40, 2));
        doc.SetString(L"Panel", L"Portrait", dir.File(L"portrait.bmp").c_str());
        doc.SetString(L"Panel", L"Landscape", dir.File(L"landscape.bmp").c_str());
    }
    // Runs an editor whose only page is `page`, calls `body` on it, ends with `endWith`.
    bool RunWith(std::vector<SettingsPage*> pages, const std::function<void(HWND)>& body,
                 int endWith = IDCANCEL) {
        editor = std::make_unique<ThemeEditor>(&doc, pages);
        DialogDriver::OnNextDialog(body, endWith);
        return editor->Run(host);
    }
    ImagePanel& Panel() { return editor->Panel(); }

    cv2test::TempFolder dir;
    IniDocument doc;
    std::unique_ptr<ThemeEditor> editor;
};

} // namespace

TEST_F(ImagePanelTest, EveryPanelControlIsHiddenWhenTheEditorStarts) {
    int shown = -1;
    RunWith({new cv2test::FieldPage(L"A", 3001)}, [&](HWND dlg) {
        shown = 0;
        for (int id : kPanelIds)
            shown += Shown(dlg, id) ? 1 : 0;
    });
    EXPECT_EQ(shown, 0);
}

TEST_F(ImagePanelTest, APageShowsTheRowsItAsksForWithItsLabels) {
    cv2test::PanelShown shown;
    RunWith({new PanelPage}, [&](HWND dlg) { shown = cv2test::PanelShownIn(dlg); });
    EXPECT_TRUE(shown.rows);
    EXPECT_TRUE(shown.settings);
    EXPECT_FALSE(shown.list);
    EXPECT_FALSE(shown.customColors);
    EXPECT_EQ(shown.firstLabel, L"Portrait:");
    EXPECT_EQ(shown.secondLabel, L"Landscape:");
}

TEST_F(ImagePanelTest, PathsSetByThePageShowWithTheirPreviews) {
    std::wstring box;
    bool previews = false;
    RunWith({new PanelPage}, [&](HWND dlg) {
        box = cv2test::DlgText(dlg, IDC_PANEL_FIRST_PATH);
        previews = Panel().HasPreview(0) && Panel().HasPreview(1);
    });
    EXPECT_EQ(box, dir.File(L"portrait.bmp"));
    EXPECT_TRUE(previews);
}

TEST_F(ImagePanelTest, TypedPathRefreshesThePreviewAndIsSavedOnOk) {
    bool before = true, after = false;
    auto* page = new PanelPage;
    RunWith(
        {page},
        [&](HWND dlg) {
            TypeInto(dlg, IDC_PANEL_SECOND_PATH, dir.File(L"missing.bmp"));
            before = Panel().HasPreview(1);
            TypeInto(dlg, IDC_PANEL_SECOND_PATH, dir.File(L"portrait.bmp"));
            after = Panel().HasPreview(1);
        },
        IDOK);
    EXPECT_FALSE(before);
    EXPECT_TRUE(after);
    EXPECT_EQ(doc.GetString(L"Panel", L"Landscape", L""), dir.File(L"portrait.bmp"));
}

TEST_F(ImagePanelTest, FilesThatAreNotWholePicturesShowNoPreview) {
    const std::string whole = cv2test::BmpFileBytes(64, 64, 3);
    dir.Write(L"truncated.bmp", whole.substr(0, 70));
    dir.Write(L"text.png", "not a picture at all");
    // A header that claims a picture far larger than anything the editor previews.
    std::string huge = whole.substr(0, 54);
    huge[18] = huge[19] = huge[22] = huge[23] = '\x7f';
    dir.Write(L"huge.bmp", huge);
    std::vector<bool> shown;
    RunWith({new PanelPage}, [&](HWND dlg) {
        for (const wchar_t* name : {L"truncated.bmp", L"text.png", L"huge.bmp"}) {
            TypeInto(dlg, IDC_PANEL_FIRST_PATH, dir.File(name));
            UpdateWindow(dlg);
            shown.push_back(Panel().HasPreview(0));
        }
    });
    EXPECT_EQ(shown, std::vector<bool>({false, false, false}));
}

TEST_F(ImagePanelTest, PathsLongerThanAPathBufferAreCut) {
    size_t set = 0, typed = 0;
    RunWith({new PanelPage}, [&](HWND dlg) {
        Panel().SetPath(0, std::wstring(400, L'x'));
        set = Panel().Path(0).size();
        TypeInto(dlg, IDC_PANEL_SECOND_PATH, std::wstring(300, L'y'));
        typed = Panel().Path(1).size();
    });
    EXPECT_EQ(set, 259u);
    EXPECT_EQ(typed, 259u);
}

TEST_F(ImagePanelTest, BrowsedFileGoesIntoItsRowWithItsPreview) {
    cv2test::RememberedValue remembered(L"graphics");
    remembered.Write(cv2test::Bare(dir.Path()));
    dir.Write(L"chosen.bmp", cv2test::BmpFileBytes(30, 30, 4));
    doc.SetString(L"Panel", L"Portrait", L"");
    std::wstring box;
    bool preview = false;
    RunWith({new PanelPage}, [&](HWND dlg) {
        DialogDriver::OnNextDialog(
            [&](HWND browser) {
                SetDlgItemTextW(browser, IDC_BROWSE_NAME, dir.File(L"chosen.bmp").c_str());
            },
            IDOK);
        DialogDriver::Click(dlg, IDC_PANEL_FIRST_BROWSE);
        box = cv2test::DlgText(dlg, IDC_PANEL_FIRST_PATH);
        preview = Panel().HasPreview(0);
    });
    EXPECT_EQ(box, dir.File(L"chosen.bmp"));
    EXPECT_TRUE(preview);
}

TEST_F(ImagePanelTest, SettingsClickGoesToTheCurrentPage) {
    auto* page = new PanelPage;
    RunWith({page}, [&](HWND dlg) { DialogDriver::Click(dlg, IDC_PANEL_SETTINGS); });
    EXPECT_EQ(page->settingsClicks, 1);
}

TEST_F(ImagePanelTest, ImportThemePageHidesThePanelWhenShown) {
    bool before = false, after = true;
    RunWith({new PanelPage, new ImportThemePage}, [&](HWND dlg) {
        before = Shown(dlg, IDC_PANEL_FIRST_PATH);
        editor->Host().SelectPage(1);
        after = Shown(dlg, IDC_PANEL_FIRST_PATH) || Shown(dlg, IDC_PANEL_SETTINGS);
    });
    EXPECT_TRUE(before);
    EXPECT_FALSE(after);
}
