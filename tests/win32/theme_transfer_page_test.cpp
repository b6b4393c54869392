// The theme information dialog and the Import Theme page on real files: the dialog turns what
// was entered into a theme document, the page's two buttons import a theme file chosen in the
// file browser and export the pages into a new file through the same dialog.
#include "themes/theme_editor.h"

#include "file_browser_support.h"
#include "ids_editor.h"
#include "ids_ui.h"
#include "pages/appearance/image_pair_pages.h"
#include "platform/file_access.h"
#include "temp_folder.h"
#include "theme_editor_support.h"
#include "themes/import_theme_page.h"
#include "themes/theme_info_dialog.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::TypeInto;

namespace {

// Fills the information dialog and leaves it with OK.
void FillInfo(HWND dlg, const std::wstring& path) {
    TypeInto(dlg, IDC_INFO_NAME, L"Blue Glass");
    TypeInto(dlg, IDC_INFO_AUTHOR, L"A. Maker");
    TypeInto(dlg, IDC_INFO_EMAIL, L"maker@example.org");
    TypeInto(dlg, IDC_INFO_PATH, path);
    cv2test::Tick(dlg, IDC_INFO_HIRES);
}

class ThemeInfoTest : public cv2test::PickerHostTest {
  protected:
    cv2test::TempFolder dir;
};

} // namespace

TEST_F(ThemeInfoTest, InformationDialogWithAnExistingPathReturnsTheFilePlusTheSkinInfoKeys) {
    dir.Write(L"old.skin", "[Skin Info]\r\nName=Old\r\nNotes=kept\r\n[Buttons]\r\nImage=b.png\r\n");
    ThemeInfo info;
    DialogDriver::OnNextDialog([&](HWND dlg) { FillInfo(dlg, dir.File(L"old.skin")); }, IDOK);
    std::unique_ptr<IniDocument> doc(AskThemeInfo(info, host));
    ASSERT_TRUE(doc);
    EXPECT_EQ(doc->GetString(L"Buttons", L"Image", L""), L"b.png");
    EXPECT_EQ(doc->GetString(L"Skin Info", L"Notes", L""), L"kept");
    EXPECT_EQ(doc->GetString(L"Skin Info", L"Name", L""), L"Blue Glass");
    EXPECT_EQ(doc->GetString(L"Skin Info", L"Author", L""), L"A. Maker");
    EXPECT_EQ(doc->GetString(L"Skin Info", L"AuthorEmail", L""), L"maker@example.org");
    EXPECT_EQ(doc->GetString(L"Skin Info", L"HiRes", L""), L"TRUE");
    EXPECT_EQ(doc->Path(), dir.File(L"old.skin"));
    EXPECT_EQ(std::wstring(info.name), L"Blue Glass");
    EXPECT_TRUE(info.hiRes);
}

TEST_F(ThemeInfoTest, InformationDialogWithANewPathGivesOnlyTheSkinInfo) {
    ThemeInfo info;
    DialogDriver::OnNextDialog([&](HWND dlg) { FillInfo(dlg, dir.File(L"new.skin")); }, IDOK);
    std::unique_ptr<IniDocument> doc(AskThemeInfo(info, host));
    ASSERT_TRUE(doc);
    ASSERT_EQ(doc->Sections().size(), 1u);
    EXPECT_EQ(doc->GetSectionEntries(L"Skin Info").size(), 4u);
}

TEST_F(ThemeInfoTest, CancelGivesNoDocumentAndLeavesTheRecord) {
    ThemeInfo info;
    lstrcpyW(info.name, L"Before");
    DialogDriver::OnNextDialog([&](HWND dlg) { FillInfo(dlg, dir.File(L"x.skin")); }, IDCANCEL);
    EXPECT_EQ(AskThemeInfo(info, host), nullptr);
    EXPECT_EQ(std::wstring(info.name), L"Before");
}

TEST_F(ThemeInfoTest, BrowseButtonPutsTheChosenSkinFileIntoThePath) {
    cv2test::RememberedValue remembered(L"skins");
    remembered.Write(cv2test::Bare(dir.Path()));
    dir.Write(L"picked.skin", "[Skin Info]\r\n");
    std::wstring path;
    ThemeInfo info;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DialogDriver::OnNextDialog(
                [&](HWND browser) {
                    SetDlgItemTextW(browser, IDC_BROWSE_NAME, dir.File(L"picked.skin").c_str());
                },
                IDOK);
            DialogDriver::Click(dlg, IDC_INFO_BROWSE);
            path = cv2test::DlgText(dlg, IDC_INFO_PATH);
        },
        IDCANCEL);
    AskThemeInfo(info, host);
    EXPECT_EQ(path, dir.File(L"picked.skin"));
}

TEST_F(ThemeInfoTest, PackageBoxIsUntickedAtFirst) {
    ThemeInfo info;
    bool ticked = true;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) { ticked = IsDlgButtonChecked(dlg, IDC_INFO_PACKAGE) == BST_CHECKED; },
        IDCANCEL);
    AskThemeInfo(info, host);
    EXPECT_FALSE(ticked);
}

TEST_F(ThemeInfoTest, TickedPackageBoxTicksAndLocksTheCopyBoxUntilItIsUnticked) {
    ThemeInfo info;
    bool lockedTicked = false, freedAsBefore = false;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            HWND copy = GetDlgItem(dlg, IDC_INFO_COPY_FILES);
            cv2test::Tick(dlg, IDC_INFO_PACKAGE);
            lockedTicked = IsDlgButtonChecked(dlg, IDC_INFO_COPY_FILES) == BST_CHECKED &&
                           !IsWindowEnabled(copy);
            cv2test::Tick(dlg, IDC_INFO_PACKAGE);
            freedAsBefore = IsDlgButtonChecked(dlg, IDC_INFO_COPY_FILES) == BST_UNCHECKED &&
                            IsWindowEnabled(copy);
        },
        IDCANCEL);
    AskThemeInfo(info, host);
    EXPECT_TRUE(lockedTicked);
    EXPECT_TRUE(freedAsBefore);
}

TEST_F(ThemeInfoTest, PackageEnteredAsAZipPathStandsForItsSkinFile) {
    dir.Write(L"blue.zip", "PK not a theme");
    ThemeInfo info;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            FillInfo(dlg, dir.File(L"blue.zip"));
            cv2test::Tick(dlg, IDC_INFO_PACKAGE);
        },
        IDOK);
    std::unique_ptr<IniDocument> doc(AskThemeInfo(info, host));
    ASSERT_TRUE(doc);
    EXPECT_TRUE(info.package);
    EXPECT_EQ(doc->Path(), dir.File(L"blue.skin"));
    EXPECT_EQ(doc->Sections().size(), 1u) << "the package's bytes are not read as a theme";
}

namespace {

class ImportThemePageTest : public cv2test::PickerHostTest {
  protected:
    void SetUp() override {
        PickerHostTest::SetUp();
        remembered.Write(cv2test::Bare(dir.Path()));
        doc = cv2test::ParsedDoc("[Test]\r\nA=edited\r\n");
    }
    // Runs the editor with the Import Theme page and a field page; `body` runs on it.
    void RunEditor(const std::function<void(HWND)>& body, int endWith) {
        ThemeEditor editor(&doc, {new ImportThemePage, new cv2test::FieldPage(L"A", 3001)});
        cv2test::RunEditorShown(editor, host, body, endWith);
    }

    cv2test::TempFolder dir;
    cv2test::RememberedValue remembered{L"skins"};
    IniDocument doc;
};

// Clicks Import Theme and chooses `path` in the file browser.
void ImportThrough(HWND dlg, const std::wstring& path) {
    DialogDriver::OnNextDialog(
        [=](HWND browser) { SetDlgItemTextW(browser, IDC_BROWSE_NAME, path.c_str()); }, IDOK);
    DialogDriver::Click(dlg, IDC_IMPORT_THEME);
}

// Presses Export Theme and ends the information dialog with `endWith` after filling it in.
void ExportThrough(HWND dlg, const std::wstring& path, int endWith = IDOK) {
    DialogDriver::OnNextDialog([=](HWND info) { FillInfo(info, path); }, endWith);
    DialogDriver::Click(dlg, IDC_EXPORT_THEME);
}

} // namespace

TEST_F(ImportThemePageTest, ImportMergesTheChosenThemeAndReloadsThePages) {
    dir.Write(L"glass.skin", "[Skin Info]\r\nName=Glass\r\n[Test]\r\nA=imported\r\n"
                             "[Buttons]\r\nImage=normal.png\r\nOther=absent.png\r\n");
    dir.Write(L"normal.png", "png");
    std::wstring field;
    RunEditor(
        [&](HWND dlg) {
            ImportThrough(dlg, dir.File(L"glass.skin"));
            field = cv2test::DlgText(dlg, 3001);
        },
        IDCANCEL);
    EXPECT_EQ(field, L"imported") << "the pages were loaded again";
    EXPECT_EQ(doc.GetString(L"Buttons", L"Image", L""), dir.File(L"normal.png"));
    EXPECT_EQ(doc.GetString(L"Buttons", L"Other", L""), L"absent.png");
}

TEST_F(ImportThemePageTest, CancelledBrowserChangesNothing) {
    const std::string before = doc.Serialize();
    RunEditor(
        [&](HWND dlg) {
            DialogDriver::OnNextDialog([](HWND) {}, IDCANCEL);
            DialogDriver::Click(dlg, IDC_IMPORT_THEME);
        },
        IDCANCEL);
    EXPECT_EQ(doc.Serialize(), before);
}

TEST_F(ImportThemePageTest, ExportWritesThePagesAndTheThemeInformationIntoTheNewFile) {
    const std::string before = doc.Serialize();
    RunEditor(
        [&](HWND dlg) {
            TypeInto(dlg, 3001, L"as shown");
            ExportThrough(dlg, dir.File(L"out.skin"));
        },
        IDCANCEL);
    IniDocument written;
    ASSERT_TRUE(written.Load(dir.File(L"out.skin")));
    EXPECT_EQ(written.GetString(L"Test", L"A", L""), L"as shown");
    EXPECT_EQ(written.GetString(L"Skin Info", L"Name", L""), L"Blue Glass");
    EXPECT_EQ(written.GetString(L"Skin Info", L"HiRes", L""), L"TRUE");
    EXPECT_EQ(doc.Serialize(), before) << "export never changes the edited theme";
}

TEST_F(ImportThemePageTest, CancelledExportDialogWritesNothing) {
    RunEditor([&](HWND dlg) { ExportThrough(dlg, dir.File(L"no.skin"), IDCANCEL); }, IDCANCEL);
    IniDocument written;
    EXPECT_FALSE(written.Load(dir.File(L"no.skin")));
}

TEST_F(ImportThemePageTest, ImportingAThemeWithoutSoundsLeavesNoSoundsSection) {
    doc.SetString(L"Sounds", L"Startup", L"\\Windows\\start.wav");
    dir.Write(L"quiet.skin", "[Skin Info]\r\nName=Quiet\r\n[Buttons]\r\nImage=\\b.png\r\n");
    RunEditor([&](HWND dlg) { ImportThrough(dlg, dir.File(L"quiet.skin")); }, IDCANCEL);
    EXPECT_FALSE(doc.HasSection(L"Sounds"));
    EXPECT_EQ(doc.GetString(L"Buttons", L"Image", L""), L"\\b.png");
}

TEST_F(ImportThemePageTest, ImportRemovesTheListedNotificationSectionsOnly) {
    doc.SetString(L"Custom Notifications", L"0", L"Mail");
    doc.SetString(L"Notify.Mail", L"Image", L"\\mail.png");
    doc.SetString(L"Notify.Other", L"Image", L"\\other.png");
    dir.Write(L"plain.skin", "[Skin Info]\r\nName=Plain\r\n");
    RunEditor([&](HWND dlg) { ImportThrough(dlg, dir.File(L"plain.skin")); }, IDCANCEL);
    EXPECT_FALSE(doc.HasSection(L"Notify.Mail"));
    EXPECT_FALSE(doc.HasSection(L"Custom Notifications"));
    EXPECT_TRUE(doc.HasSection(L"Notify.Other"));
}

TEST_F(ImportThemePageTest, ExportToTheImagesFolderWritesBareNamesAndCarriesTheTaskPanel) {
    dir.Write(L"bar.png", "png");
    doc.SetString(L"Task Panel", L"Height", L"40");
    RunEditor(
        [&](HWND dlg) {
            TypeInto(dlg, 3001, dir.File(L"bar.png"));
            ExportThrough(dlg, dir.File(L"out.skin"));
        },
        IDCANCEL);
    IniDocument written;
    ASSERT_TRUE(written.Load(dir.File(L"out.skin")));
    EXPECT_EQ(written.GetString(L"Test", L"A", L""), L"bar.png");
    EXPECT_EQ(written.GetString(L"Task Panel", L"Height", L""), L"40");
}

TEST_F(ImportThemePageTest, ExportingOverAnExistingFileKeepsItsKeysThatNoPageWrites) {
    dir.Write(L"over.skin",
              "[Skin Info]\r\nNotes=mine\r\n[Extra]\r\nKey=kept\r\n[Test]\r\nA=old\r\n");
    RunEditor([&](HWND dlg) { ExportThrough(dlg, dir.File(L"over.skin")); }, IDCANCEL);
    IniDocument written;
    ASSERT_TRUE(written.Load(dir.File(L"over.skin")));
    EXPECT_EQ(written.GetString(L"Extra", L"Key", L""), L"kept");
    EXPECT_EQ(written.GetString(L"Skin Info", L"Notes", L""), L"mine");
    EXPECT_EQ(written.GetString(L"Test", L"A", L""), L"edited");
}

TEST_F(ImportThemePageTest, AFileWithoutSkinInfoIsConvertedAsAnOlderTheme) {
    doc.SetString(L"Sounds", L"Startup", L"\\Windows\\start.wav");
    dir.Write(L"old.skin", "TopbarImage=top.bmp\r\n");
    RunEditor([&](HWND dlg) { ImportThrough(dlg, dir.File(L"old.skin")); }, IDCANCEL);
    EXPECT_FALSE(doc.HasSection(L"Sounds")) << "the conversion replaced the appearance sections";
    EXPECT_EQ(doc.GetString(L"Test", L"A", L""), L"edited");
}

namespace {

// Every text a message box shows, one after another.
std::wstring MessageTextOf(HWND box) {
    std::wstring text;
    for (HWND c = GetWindow(box, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
        wchar_t cls[16] = {};
        GetClassNameW(c, cls, 16);
        wchar_t shown[1024] = {};
        if (lstrcmpiW(cls, L"Static") == 0 && GetWindowTextW(c, shown, 1024) > 0)
            text += shown;
    }
    return text;
}

} // namespace

TEST_F(ImportThemePageTest, ExportThatCannotCopyAPictureSaysSoAndStillWritesTheWholeTheme) {
    dir.Write(L"bubble.png", "png");
    doc.SetString(L"Volume Bubble", L"Image", dir.File(L"bubble.png").c_str());
    CreateDirectoryW(dir.File(L"out").c_str(), nullptr);
    // Another program holds the picture open without sharing it: it cannot be read.
    HANDLE held = CreateFileW(dir.File(L"bubble.png").c_str(), GENERIC_READ, 0, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    std::wstring told;
    ThemeEditor editor(&doc, {new ImportThemePage, NewImagePairPage(ImagePairKind::VolumeBubble)});
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            DialogDriver::OnNextDialog(
                [&](HWND info) {
                    FillInfo(info, dir.File(L"out\\shared.skin"));
                    cv2test::Tick(info, IDC_INFO_COPY_FILES);
                    DialogDriver::OnNextDialog([&](HWND box) { told = MessageTextOf(box); }, IDOK);
                },
                IDOK);
            DialogDriver::Click(dlg, IDC_EXPORT_THEME);
        },
        IDCANCEL);
    editor.Run(host);
    CloseHandle(held);
    EXPECT_NE(told.find(dir.File(L"bubble.png")), std::wstring::npos) << "told: " << told.c_str();
    IniDocument written;
    ASSERT_TRUE(written.Load(dir.File(L"out\\shared.skin")));
    EXPECT_EQ(written.GetString(L"Volume Bubble", L"Image", L""), dir.File(L"bubble.png"))
        << "a file that was not copied keeps its path";
    EXPECT_EQ(written.GetString(L"Skin Info", L"Name", L""), L"Blue Glass");
    EXPECT_FALSE(cv2::FileExists(dir.File(L"out\\bubble.png")));
}

TEST_F(ImportThemePageTest, ExportAsAPackageWritesThePackageAndNothingElse) {
    dir.Write(L"bar.png", "png");
    CreateDirectoryW(dir.File(L"out").c_str(), nullptr);
    RunEditor(
        [&](HWND dlg) {
            TypeInto(dlg, 3001, dir.File(L"bar.png"));
            DialogDriver::OnNextDialog(
                [&](HWND info) {
                    FillInfo(info, dir.File(L"out\\blue.skin"));
                    cv2test::Tick(info, IDC_INFO_PACKAGE);
                },
                IDOK);
            DialogDriver::Click(dlg, IDC_EXPORT_THEME);
        },
        IDCANCEL);
    EXPECT_EQ(ListFiles(dir.File(L"out"), L"*"), std::vector<std::wstring>{L"blue.zip"});
    EXPECT_TRUE(ListSubfolders(dir.File(L"out")).empty());
}
