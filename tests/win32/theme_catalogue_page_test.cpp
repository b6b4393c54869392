// The My Theme page on a stand-in main window, over a scratch program folder with real themes.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "app/page_list.h"
#include "app_fixture.h"
#include "ids_behaviour.h"
#include "pages/behaviour/program_directories_page.h"
#include "platform/file_access.h"
#include "ids_themes.h"
#include "rule_page_support.h"
#include "screen_capture.h"
#include "store/scale.h"
#include "store/screen.h"
#include "temp_folder.h"
#include "themes/theme_catalogue.h"
#include "themes/theme_catalogue_page.h"

using namespace cv2;
using namespace cv2test;

namespace {

using Texts = std::vector<std::wstring>;

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

// Runs the messages the page posted (its selection-change notice).
void Pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

class ThemeCataloguePageTest : public ::testing::Test {
  protected:
    ThemeCataloguePageTest() : m_page(m_dir.Path()) {}

    void Theme(const std::wstring& relative, const std::string& text) const {
        m_dir.MakeFolder(relative.substr(0, relative.find_last_of(L'\\')));
        m_dir.Write(relative, text);
    }
    void StandardThemes() const {
        Theme(L"Themes\\Blue\\blue.skin",
              "[Skin Info]\nName=Deep Blue\nAuthor=Ann\nAuthorEmail=ann@example.org\nHiRes=TRUE\n");
        Theme(L"Themes\\Plain\\plain.skin", "[Skin Info]\nName=\nAuthor=Bob\nNotes=Read me\n");
        Theme(L"Themes\\Old\\old.skin", "Logo=logo.bmp\nBGMode=2002\n");
    }
    // Binds the page to a config.ini document of the scratch folder, as the main window does.
    void Open(const std::string& config) {
        m_dir.Write(L"config.ini", config);
        m_doc.Load(m_dir.File(L"config.ini"));
        m_host.Add(m_page);
        m_page.Load(&m_doc);
        Pump();
    }
    HWND List() const { return m_page.Window(ThemeCataloguePage::List); }
    Texts Listed() const { return ListBoxTexts(List()); }
    std::wstring SelectedText() const {
        const LRESULT row = SendMessageW(List(), LB_GETCURSEL, 0, 0);
        return row < 0 ? L"<none>" : Listed()[static_cast<size_t>(row)];
    }
    void Select(const std::wstring& text) const {
        const LRESULT row = SendMessageW(List(), LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(text.c_str()));
        ASSERT_GE(row, 0) << Narrow(text);
        SendMessageW(List(), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        SendMessageW(m_host.Window(), WM_COMMAND, MAKEWPARAM(IDC_THEMES_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(List()));
    }
    bool Enabled(ThemeCataloguePage::Control c) const {
        return IsWindowEnabled(m_page.Window(c)) != FALSE;
    }
    std::wstring Details() const {
        return WindowText(m_page.Window(ThemeCataloguePage::DetailsText));
    }
    std::wstring Value(const wchar_t* key) const {
        return m_doc.GetString(L"Settings", key, L"<missing>");
    }
    void Click(ThemeCataloguePage::Control c) const {
        SendMessageW(m_host.Window(), WM_COMMAND,
                     MAKEWPARAM(GetDlgCtrlID(m_page.Window(c)), BN_CLICKED),
                     reinterpret_cast<LPARAM>(m_page.Window(c)));
    }

    TempFolder m_dir;
    cv2test::PageHost m_host;
    ThemeCataloguePage m_page;
    IniDocument m_doc;
};

} // namespace

TEST_F(ThemeCataloguePageTest, ListIsSortedWithTheCustomThemeAndTheOlderThemePrefix) {
    StandardThemes();
    Open("");
    EXPECT_EQ(Listed(), (Texts{L"[1.x Theme] old", L"Custom Theme", L"Deep Blue", L"plain"}));
}

TEST_F(ThemeCataloguePageTest, ThemeFileSelectsItsThemeWithButtonsAndDetailsFollowing) {
    StandardThemes();
    Open("[Settings]\nTheme File=" + Narrow(m_dir.File(L"THEMES\\Blue\\Blue.skin")) + "\n");
    EXPECT_EQ(SelectedText(), L"Deep Blue");
    EXPECT_TRUE(Enabled(ThemeCataloguePage::Delete));
    EXPECT_FALSE(Enabled(ThemeCataloguePage::Customize));
    EXPECT_EQ(Details(), L"Author: Ann\r\nE-Mail: ann@example.org\r\nHiRes: Yes\r\n");
}

TEST_F(ThemeCataloguePageTest, ThemeFileNamingConfigSelectsTheCustomTheme) {
    StandardThemes();
    Open("[Settings]\nTheme File=" + Narrow(m_dir.File(L"config.ini")) + "\n");
    EXPECT_EQ(SelectedText(), L"Custom Theme");
    EXPECT_TRUE(Enabled(ThemeCataloguePage::Customize));
    EXPECT_FALSE(Enabled(ThemeCataloguePage::Delete));
    EXPECT_EQ(Details(), L"");
}

TEST_F(ThemeCataloguePageTest, ThemeFileOfAVanishedThemeSelectsNothingAndApplyLeavesIt) {
    StandardThemes();
    const std::string gone = Narrow(m_dir.File(L"Themes\\Gone\\gone.skin"));
    Open("[Settings]\nTheme File=" + gone + "\n");
    EXPECT_EQ(SelectedText(), L"<none>");
    EXPECT_FALSE(Enabled(ThemeCataloguePage::Delete));
    EXPECT_FALSE(Enabled(ThemeCataloguePage::Customize));
    m_page.Save(nullptr);
    EXPECT_EQ(Value(L"Theme File"), std::wstring(gone.begin(), gone.end()));
    EXPECT_EQ(Value(L"Theme On Card"), L"<missing>");
}

TEST_F(ThemeCataloguePageTest, SelectingCustomThemeDisablesDeleteAndEnablesCustomize) {
    StandardThemes();
    Open("");
    Select(L"Custom Theme");
    EXPECT_TRUE(Enabled(ThemeCataloguePage::Customize));
    EXPECT_FALSE(Enabled(ThemeCataloguePage::Delete));
    Select(L"plain");
    EXPECT_FALSE(Enabled(ThemeCataloguePage::Customize));
    EXPECT_TRUE(Enabled(ThemeCataloguePage::Delete));
}

TEST_F(ThemeCataloguePageTest, NotesFollowTheDetailsWithAScrollBar) {
    StandardThemes();
    Open("");
    HWND edit = m_page.Window(ThemeCataloguePage::DetailsText);
    Select(L"plain");
    EXPECT_EQ(Details(), L"Author: Bob\r\nE-Mail: \r\nHiRes: No\r\n\r\nNotes: \r\nRead me");
    EXPECT_NE(GetWindowLongPtrW(edit, GWL_STYLE) & WS_VSCROLL, 0);
    Select(L"Deep Blue");
    EXPECT_EQ(GetWindowLongPtrW(edit, GWL_STYLE) & WS_VSCROLL, 0);
    Select(L"[1.x Theme] old");
    EXPECT_EQ(Details(), L"Author: \r\nE-Mail: \r\nHiRes: No\r\n");
}

TEST_F(ThemeCataloguePageTest, DeleteAfterYesRemovesTheThemeFolderAndRefills) {
    StandardThemes();
    Theme(L"Themes\\Plain\\images\\bar.bmp", "BM");
    Open("[Settings]\nTheme File=" + Narrow(m_dir.File(L"Themes\\Plain\\plain.skin")) + "\n");
    DialogDriver driver({[](HWND box) { PressItem(box, IDYES); }});
    Click(ThemeCataloguePage::Delete);
    EXPECT_TRUE(driver.AllStepsRun());
    EXPECT_FALSE(m_dir.HasFolder(L"Themes\\Plain"));
    EXPECT_EQ(Listed(), (Texts{L"[1.x Theme] old", L"Custom Theme", L"Deep Blue"}));
    EXPECT_EQ(SelectedText(), L"<none>");
    EXPECT_FALSE(Enabled(ThemeCataloguePage::Delete));
    EXPECT_EQ(Value(L"Theme File"), m_dir.File(L"Themes\\Plain\\plain.skin"));
}

TEST_F(ThemeCataloguePageTest, DeleteAfterNoKeepsTheTheme) {
    StandardThemes();
    Open("");
    Select(L"Deep Blue");
    DialogDriver driver({[](HWND box) { PressItem(box, IDNO); }});
    Click(ThemeCataloguePage::Delete);
    EXPECT_TRUE(driver.AllStepsRun());
    EXPECT_TRUE(m_dir.HasFolder(L"Themes\\Blue"));
    EXPECT_EQ(SelectedText(), L"Deep Blue");
}

TEST_F(ThemeCataloguePageTest, ApplyOfACurrentThemeStoresItsPathOffCard) {
    StandardThemes();
    Open("[Settings]\nTheme On Card=TRUE\n");
    Select(L"Deep Blue");
    m_page.Save(nullptr);
    EXPECT_EQ(Value(L"Theme File"), m_dir.File(L"Themes\\Blue\\blue.skin"));
    EXPECT_EQ(Value(L"Theme On Card"), L"FALSE");
}

// A mounted storage card marks its top folder with the temporary attribute; the attribute
// query is answered here as a card would answer it.
TEST_F(ThemeCataloguePageTest, ApplyOfAThemeOnACardStoresThemeOnCardTrue) {
    StandardThemes();
    Open("[Settings]\nTheme On Card=FALSE\n");
    const std::wstring theme = m_dir.File(L"Themes\\Blue\\blue.skin");
    struct Card {
        explicit Card(const std::wstring& folder) {
            InjectFileAttributes(folder, kAttributeFolder | kAttributeTemporary);
        }
        ~Card() { InjectFileAttributes(L"", 0); }
    } card(CardFolder(theme));
    Select(L"Deep Blue");
    m_page.Save(nullptr);
    EXPECT_EQ(Value(L"Theme File"), theme);
    EXPECT_EQ(Value(L"Theme On Card"), L"TRUE");
}

TEST_F(ThemeCataloguePageTest, ApplyOfTheCustomThemeStoresConfigPath) {
    StandardThemes();
    Open("");
    Select(L"Custom Theme");
    m_page.Save(nullptr);
    EXPECT_EQ(Value(L"Theme File"), m_dir.File(L"config.ini"));
    EXPECT_EQ(Value(L"Theme On Card"), L"FALSE");
}

TEST_F(ThemeCataloguePageTest, ApplyOfAnOlderThemeConvertsItIntoConfig) {
    StandardThemes();
    Open("[Sounds]\nStart=s.wav\n");
    Select(L"[1.x Theme] old");
    m_page.Save(nullptr);
    EXPECT_EQ(Value(L"Theme File"), m_dir.File(L"config.ini"));
    EXPECT_EQ(m_doc.GetString(L"Button Images", L"Start Menu Normal", L""),
              m_dir.File(L"Themes\\Old\\logo.bmp"));
    EXPECT_EQ(m_doc.GetString(L"Topbar", L"Mode", L""), L"Gradient");
    EXPECT_FALSE(m_doc.HasSection(L"Sounds"));
}

TEST_F(ThemeCataloguePageTest, ThemesOfListedThemeDirectoriesAreListedAndReloadFindsNewOnes) {
    StandardThemes();
    Theme(L"Extra\\E\\e.skin", "[Skin Info]\nName=Extra\n");
    Open("");
    EXPECT_EQ(Listed().size(), 4u);
    m_doc.SetString(L"Theme Directories", L"1", m_dir.File(L"Extra").c_str());
    m_page.Reload();
    EXPECT_EQ(Listed(),
              (Texts{L"[1.x Theme] old", L"Custom Theme", L"Deep Blue", L"Extra", L"plain"}));
}

TEST_F(ThemeCataloguePageTest, CustomizeOpensTheThemeEditorAndCancelLeavesTheDocument) {
    StandardThemes();
    Open("[Settings]\nTheme File=" + Narrow(m_dir.File(L"config.ini")) +
         "\n[Topbar]\nMode=tiled\n");
    const std::string before = m_doc.Serialize();
    bool opened = false;
    DialogDriver driver({[&](HWND editor) {
        opened = true;
        PressItem(editor, IDCANCEL);
    }});
    Click(ThemeCataloguePage::Customize);
    EXPECT_TRUE(driver.AllStepsRun());
    EXPECT_TRUE(opened);
    EXPECT_EQ(m_doc.Serialize(), before);
}

TEST_F(ThemeCataloguePageTest, SquareScreensShowDetailsBehindAButton) {
    StandardThemes();
    Open("");
    const bool square = IsPortraitWidth(ScreenWidth()) && IsPortraitWidth(ScreenHeight());
    HWND button = m_page.Window(ThemeCataloguePage::DetailsButton);
    HWND edit = m_page.Window(ThemeCataloguePage::DetailsText);
    if (!square) {
        EXPECT_EQ(button, nullptr);
        EXPECT_TRUE(IsWindowVisible(edit));
        return;
    }
    ASSERT_NE(button, nullptr);
    EXPECT_FALSE(IsWindowVisible(edit));
    Select(L"Deep Blue");
    std::wstring shown;
    DialogDriver driver({[&](HWND box) {
        shown = WindowText(GetDlgItem(box, 0xFFFF));
        PressItem(box, IDOK);
    }});
    Click(ThemeCataloguePage::DetailsButton);
    EXPECT_TRUE(driver.AllStepsRun());
    EXPECT_EQ(shown.substr(0, 11), L"Author: Ann");
}

TEST_F(ThemeCataloguePageTest, DeletingAThemeWhoseFolderVanishedJustListsAnew) {
    StandardThemes();
    Open("");
    Select(L"Deep Blue");
    ASSERT_TRUE(RemoveFolderTree(m_dir.File(L"Themes\\Blue")));
    DialogDriver driver({[](HWND box) { PressItem(box, IDYES); }});
    Click(ThemeCataloguePage::Delete);
    EXPECT_TRUE(driver.AllStepsRun());
    EXPECT_EQ(Listed(), (Texts{L"[1.x Theme] old", L"Custom Theme", L"plain"}));
}

TEST_F(ThemeCataloguePageTest, ApplyOfAnOlderThemeWhoseFileVanishedConvertsAnEmptyTheme) {
    StandardThemes();
    Open("");
    Select(L"[1.x Theme] old");
    ASSERT_TRUE(RemoveFolderTree(m_dir.File(L"Themes\\Old")));
    m_page.Save(nullptr);
    EXPECT_EQ(Value(L"Theme File"), m_dir.File(L"config.ini"));
    EXPECT_EQ(m_doc.GetString(L"Topbar", L"Mode", L""), L"Scaled");
}

// The main window's page list ties Program Directories to the catalogue: saving new theme
// folders lists the themes in them, once the saving message has been handled.
TEST_F(ThemeCataloguePageTest, SavingProgramDirectoriesReloadsTheMainWindowsCatalogue) {
    std::vector<SettingsPage*> pages = CreateMainPages();
    ASSERT_GE(pages.size(), 2u);
    auto* catalogue = dynamic_cast<ThemeCataloguePage*>(pages[0]);
    auto* directories = dynamic_cast<ProgramDirectoriesPage*>(pages[1]);
    ASSERT_TRUE(catalogue && directories);
    Theme(L"Extra\\E\\e.skin", "[Skin Info]\nName=Extra\n");
    m_doc.Load(m_dir.File(L"config.ini"));
    {
        cv2test::PageHost host;
        host.Add(*catalogue);
        host.Add(*directories, false);
        catalogue->Load(&m_doc);
        directories->Load(&m_doc);
        const std::wstring extra = m_dir.File(L"Extra");
        SendMessageW(directories->Window(ProgramDirectoriesPage::List), LB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(extra.c_str()));
        directories->Save(nullptr);
        Pump();
        const Texts listed = ListBoxTexts(catalogue->Window(ThemeCataloguePage::List));
        EXPECT_NE(std::find(listed.begin(), listed.end(), L"Extra"), listed.end());
    }
    for (SettingsPage* page : pages)
        delete page;
}

// --- In the real main window, which shows before its theme list is filled ---------------------

class CatalogueInMainWindowTest : public AppFixture {
  protected:
    void BlueTheme() const {
        m_dir.MakeFolder(L"Themes\\Blue");
        m_dir.Write(L"Themes\\Blue\\blue.skin", "[Skin Info]\nName=Deep Blue\n");
    }
    ThemeCataloguePage& Make() {
        BlueTheme();
        auto* page = new ThemeCataloguePage(m_dir.Path());
        MakeApp({page}, "[Settings]\r\nTheme File=" + Blue() + "\r\n");
        return *page;
    }
    std::string Blue() const { return Narrow(m_dir.File(L"Themes\\Blue\\blue.skin")); }
    static LRESULT Rows(const ThemeCataloguePage& page) {
        return SendMessageW(page.Window(ThemeCataloguePage::List), LB_GETCOUNT, 0, 0);
    }
};

TEST_F(CatalogueInMainWindowTest,
       TheWindowShowsBeforeTheThemesAreListedAndTheListFillsAfterItPainted) {
    ThemeCataloguePage& page = Make();
    EXPECT_TRUE(IsWindowVisible(Main()));
    EXPECT_EQ(Rows(page), 0);
    ASSERT_TRUE(PumpUntil([&] { return Rows(page) > 0; }));
    Pump();
    const Texts listed = ListBoxTexts(page.Window(ThemeCataloguePage::List));
    ASSERT_EQ(listed.size(), 2u); // the theme and the custom theme
    const LRESULT row = SendMessageW(page.Window(ThemeCataloguePage::List), LB_GETCURSEL, 0, 0);
    ASSERT_GE(row, 0);
    EXPECT_EQ(listed[static_cast<size_t>(row)], L"Deep Blue");
    EXPECT_TRUE(IsWindowEnabled(page.Window(ThemeCataloguePage::Delete)));
}

namespace {

// A second page that notes, when it is made, how far the theme list of the first page got.
class ListWatchingPage : public SettingsPage {
  public:
    explicit ListWatchingPage(const ThemeCataloguePage& catalogue)
        : SettingsPage(L"Second"), m_catalogue(catalogue) {}
    void Create(HWND) override {
        HWND list = m_catalogue.Window(ThemeCataloguePage::List);
        rowsWhenMade = SendMessageW(list, LB_GETCOUNT, 0, 0);
        paintedWhenMade = IsWindowVisible(list) && !GetUpdateRect(list, nullptr, FALSE);
    }
    void Show(bool) override {}

    LRESULT rowsWhenMade = -1;
    bool paintedWhenMade = false;

  private:
    const ThemeCataloguePage& m_catalogue;
};

} // namespace

TEST_F(CatalogueInMainWindowTest, TheThemesAreListedAndPaintedBeforeTheSecondPageIsMade) {
    BlueTheme();
    auto* catalogue = new ThemeCataloguePage(m_dir.Path());
    auto* second = new ListWatchingPage(*catalogue);
    MakeApp({catalogue, second});
    ASSERT_TRUE(PumpUntil([&] { return m_app->Host().CreatedCount() == 2; }));
    EXPECT_EQ(second->rowsWhenMade, 2); // the theme and the custom theme
    EXPECT_TRUE(second->paintedWhenMade);
}

TEST_F(CatalogueInMainWindowTest, ApplyBeforeTheListIsFilledKeepsTheThemeConfigIniNames) {
    ThemeCataloguePage& page = Make();
    ASSERT_EQ(Rows(page), 0);
    m_app->Apply();
    EXPECT_NE(ConfigText().find("Theme File=" + Blue() + "\r\n"), std::string::npos)
        << ConfigText();
    EXPECT_EQ(Rows(page), 2);
}
