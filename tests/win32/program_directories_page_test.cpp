// The Program Directories page on a stand-in main window, with the file browser it opens worked
// from inside its modal loop.
#include <windows.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include "file_browser_support.h"
#include "ids_behaviour.h"
#include "ids_ui.h"
#include "pages/behaviour/program_directories_page.h"
#include "pages/behaviour/program_directories_values.h"
#include "rule_page_support.h"
#include "store/strings.h"

using namespace cv2;
using namespace cv2test;

namespace {

using Texts = std::vector<std::wstring>;

std::string Plain(const IniDocument& doc) {
    std::string plain;
    for (char c : doc.Serialize()) {
        if (c != '\r')
            plain += c;
    }
    return plain;
}

class ProgramDirectoriesPageTest : public ::testing::Test {
  protected:
    void Open(const std::string& config) {
        m_doc = DocOf(config);
        m_host.Add(m_page);
        m_page.Load(&m_doc);
    }
    HWND Control(int id) const { return m_host.Control(id); }
    std::wstring PathText() const { return WindowText(Control(IDC_PROGRAM_START_MENU_PATH)); }
    Texts Listed() const { return ListBoxTexts(Control(IDC_PROGRAM_THEMES_LIST)); }
    void SelectRow(int row) const {
        HWND list = Control(IDC_PROGRAM_THEMES_LIST);
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        SendMessageW(m_host.Window(), WM_COMMAND,
                     MAKEWPARAM(IDC_PROGRAM_THEMES_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }
    // Presses a page button that opens the file browser and types `folder` into it before
    // pressing `button` there.
    void PickWith(int pageButton, const std::wstring& folder, int button = IDOK) {
        DialogDriver driver({[&](HWND dialog) {
            inFolderMode =
                !ItemVisible(dialog, IDC_BROWSE_FILES) && ItemVisible(dialog, IDC_BROWSE_TREE);
            SetItemText(dialog, IDC_BROWSE_NAME, folder);
            PressItem(dialog, button);
        }});
        m_host.Click(pageButton);
        EXPECT_TRUE(driver.AllStepsRun()) << "no file browser opened";
    }

    // The browser remembers where the page picked last; the test puts that back as it was.
    RememberedValue m_remembered{Localized(IDS_ALL_FILES_FILTER)};
    PageHost m_host;
    ProgramDirectoriesPage m_page;
    IniDocument m_doc;
    bool inFolderMode = false;
};

} // namespace

TEST_F(ProgramDirectoriesPageTest, LoadShowsThePathAndTheFoldersInFileOrder) {
    Open("[Start Menu Settings]\nStart Menu Path=\\My Menu\\\n"
         "[Theme Directories]\n2=\\Storage Card\\Themes\nx=C:\\More\n");
    EXPECT_EQ(PathText(), L"\\My Menu\\");
    EXPECT_EQ(Listed(), (Texts{L"\\Storage Card\\Themes", L"C:\\More"}));
}

TEST_F(ProgramDirectoriesPageTest, MissingStartMenuPathShowsTheFolderAbovePrograms) {
    Open("");
    wchar_t programs[MAX_PATH] = {};
    ASSERT_TRUE(SHGetSpecialFolderPathW(nullptr, programs, CSIDL_PROGRAMS, FALSE));
    const std::wstring expected = DefaultStartMenuPath(programs);
    EXPECT_EQ(PathText(), expected);
    EXPECT_EQ(expected.back(), L'\\');
    EXPECT_EQ(expected + L"Programs", programs);
}

TEST_F(ProgramDirectoriesPageTest,
       WithoutThemeDirectoriesSectionListIsEmptyAndSaveWritesEmptySection) {
    Open("[Start Menu Settings]\nStart Menu Path=\\M\\\n");
    EXPECT_TRUE(Listed().empty());
    m_page.Save(nullptr);
    EXPECT_EQ(Plain(m_doc),
              "[Start Menu Settings]\nStart Menu Path=\\M\\\n\n[Theme Directories]\n\n");
}

TEST_F(ProgramDirectoriesPageTest, TwoFoldersFirstEndingInBackslashAreSavedAsOneAndTwoWithoutIt) {
    Open("[Start Menu Settings]\nStart Menu Path=\\M\\\n");
    PickWith(IDC_PROGRAM_THEMES_ADD, L"\\Storage Card\\Themes\\");
    PickWith(IDC_PROGRAM_THEMES_ADD, L"C:\\More Themes");
    EXPECT_EQ(Listed(), (Texts{L"\\Storage Card\\Themes\\", L"C:\\More Themes"}));
    m_page.Save(nullptr);
    EXPECT_EQ(Plain(m_doc), "[Start Menu Settings]\nStart Menu Path=\\M\\\n\n[Theme Directories]\n"
                            "1=\\Storage Card\\Themes\n2=C:\\More Themes\n\n");
}

TEST_F(ProgramDirectoriesPageTest, RemovingAllFoldersLeavesTheSectionWithNoEntries) {
    Open("[Theme Directories]\n1=\\A\n2=\\B\n5=\\C\n[After]\nk=v\n");
    for (int i = 0; i < 3; ++i) {
        SelectRow(0);
        m_host.Click(IDC_PROGRAM_THEMES_DELETE);
    }
    EXPECT_TRUE(Listed().empty());
    m_page.Save(nullptr);
    EXPECT_TRUE(m_doc.GetSectionEntries(L"Theme Directories").empty());
    EXPECT_EQ(m_doc.GetString(L"Theme Directories", L"5", L"gone"), L"gone");
    EXPECT_EQ(m_doc.GetString(L"After", L"k", L""), L"v");
}

TEST_F(ProgramDirectoriesPageTest, DeleteStartsDisabledAndFollowsTheSelection) {
    Open("[Theme Directories]\n1=\\A\n2=\\B\n");
    EXPECT_FALSE(IsWindowEnabled(Control(IDC_PROGRAM_THEMES_DELETE)));
    SelectRow(1);
    EXPECT_TRUE(IsWindowEnabled(Control(IDC_PROGRAM_THEMES_DELETE)));
    m_host.Click(IDC_PROGRAM_THEMES_DELETE);
    EXPECT_EQ(Listed(), (Texts{L"\\A"}));
    EXPECT_FALSE(IsWindowEnabled(Control(IDC_PROGRAM_THEMES_DELETE)));
}

TEST_F(ProgramDirectoriesPageTest, SaveEnablesDeleteOnlyWithASelection) {
    Open("[Theme Directories]\n1=\\A\n");
    SendMessageW(Control(IDC_PROGRAM_THEMES_LIST), LB_SETCURSEL, 0, 0);
    m_page.Save(nullptr);
    EXPECT_TRUE(IsWindowEnabled(Control(IDC_PROGRAM_THEMES_DELETE)));
}

TEST_F(ProgramDirectoriesPageTest, BrowsePutsTheChosenFolderIntoThePathBox) {
    Open("");
    PickWith(IDC_PROGRAM_START_MENU_BROWSE, L"C:\\Menus\\Mine");
    EXPECT_TRUE(inFolderMode) << "the browser picks folders here";
    EXPECT_EQ(PathText(), L"C:\\Menus\\Mine");
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Start Menu Settings", L"Start Menu Path", L""), L"C:\\Menus\\Mine");
}

TEST_F(ProgramDirectoriesPageTest, AddOpensTheBrowserForFolders) {
    Open("");
    PickWith(IDC_PROGRAM_THEMES_ADD, L"C:\\Themes");
    EXPECT_TRUE(inFolderMode);
}

TEST_F(ProgramDirectoriesPageTest, CancelledBrowsingChangesNothing) {
    Open("[Start Menu Settings]\nStart Menu Path=\\M\\\n[Theme Directories]\n1=\\A\n");
    PickWith(IDC_PROGRAM_START_MENU_BROWSE, L"C:\\Other", IDC_BROWSE_CANCEL);
    PickWith(IDC_PROGRAM_THEMES_ADD, L"C:\\Other", IDC_BROWSE_CANCEL);
    EXPECT_EQ(PathText(), L"\\M\\");
    EXPECT_EQ(Listed(), (Texts{L"\\A"}));
}

TEST_F(ProgramDirectoriesPageTest, PickedFoldersAreRememberedForTheNextPick) {
    Open("");
    m_remembered.Remove();
    PickWith(IDC_PROGRAM_THEMES_ADD, L"C:\\windows\\Fonts");
    std::wstring stored;
    ASSERT_TRUE(m_remembered.Read(stored));
    EXPECT_EQ(stored, L"C:\\windows");
}

TEST_F(ProgramDirectoriesPageTest, FolderThatDoesNotExistIsStoredAsTyped) {
    Open("");
    SetWindowTextW(Control(IDC_PROGRAM_START_MENU_PATH), L"Q:\\nowhere");
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Start Menu Settings", L"Start Menu Path", L""), L"Q:\\nowhere");
}

TEST_F(ProgramDirectoriesPageTest, SaveAsksTheThemesToReload) {
    Open("");
    int reloads = 0;
    m_page.Save(nullptr);
    m_page.SetThemesReload([&] { ++reloads; });
    m_page.Save(nullptr);
    m_page.Save(nullptr);
    EXPECT_EQ(reloads, 2);
    m_page.SetThemesReload(nullptr);
}

TEST_F(ProgramDirectoriesPageTest, SaveIntoAnotherDocumentLeavesTheBoundOneAlone) {
    Open("[Theme Directories]\n1=\\A\n");
    IniDocument other;
    m_page.Save(&other);
    EXPECT_EQ(LoadThemeDirectories(other), (Texts{L"\\A"}));
    EXPECT_EQ(Plain(m_doc), "[Theme Directories]\n1=\\A\n\n");
}

TEST_F(ProgramDirectoriesPageTest, ControlsLieApartInsideTheWindow) {
    Open("[Theme Directories]\n1=\\Storage Card\\Themes\n");
    ExpectLaidOutApart(m_host.Window());
    RECT list, add;
    GetWindowRect(Control(IDC_PROGRAM_THEMES_LIST), &list);
    GetWindowRect(Control(IDC_PROGRAM_THEMES_ADD), &add);
    EXPECT_GT(list.bottom - list.top, add.bottom - add.top) << "the list has room for folders";
}
