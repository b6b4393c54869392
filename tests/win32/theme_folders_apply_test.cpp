// Apply in a real main window with the program's own pages over a scratch program folder: the
// themes are read again only when the theme folders changed, and then only once Apply has
// returned. Reads are counted where every file the program reads passes.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "app/page_list.h"
#include "app_fixture.h"
#include "check_pages_host.h"
#include "pages/behaviour/program_directories_page.h"
#include "platform/file_access.h"
#include "screen_capture.h"
#include "themes/theme_catalogue_page.h"

using namespace cv2;
using namespace cv2test;

namespace {

int g_skinReads = 0;

void CountSkinReads(const std::wstring& path) {
    const std::wstring end = L".skin";
    if (path.size() >= end.size() &&
        lstrcmpiW(path.c_str() + path.size() - end.size(), end.c_str()) == 0)
        ++g_skinReads;
}

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

class ThemeFoldersApplyTest : public AppFixture {
  protected:
    void SetUp() override {
        m_dir.MakeFolder(L"Themes\\Blue");
        m_dir.Write(L"Themes\\Blue\\blue.skin", "[Skin Info]\nName=Deep Blue\n");
        m_dir.MakeFolder(L"Extra\\Sky");
        m_dir.Write(L"Extra\\Sky\\sky.skin", "[Skin Info]\nName=Sky\n");
        g_skinReads = 0;
    }
    void TearDown() override {
        ObserveFileReads(nullptr);
        AppFixture::TearDown();
    }
    // The main window as the user meets it, with My Theme and Program Directories tied together
    // as the program ties them (the other pages would change the registry and the Startup
    // folder on Apply): every page made and the themes listed.
    void Open(const std::string& extraConfig = "") {
        std::vector<SettingsPage*> pages = CreateMainPages(m_dir.Path());
        for (size_t i = 2; i < pages.size(); ++i)
            delete pages[i];
        pages.resize(2);
        MakeApp(pages, "[Settings]\r\nTheme File=" +
                           Narrow(m_dir.File(L"Themes\\Blue\\blue.skin")) + "\r\n" + extraConfig);
        ASSERT_TRUE(PumpUntil([&] {
            return m_app->Host().CreatedCount() == m_app->Host().PageCount() &&
                   SendMessageW(List(), LB_GETCOUNT, 0, 0) > 0;
        }));
        PumpMessages(50);
    }
    HWND List() const {
        auto* page = dynamic_cast<ThemeCataloguePage*>(m_app->Host().Page(0));
        return page ? page->Window(ThemeCataloguePage::List) : nullptr;
    }
    bool Listed(const wchar_t* text) const {
        const std::vector<std::wstring> rows = ListBoxTexts(List());
        return std::find(rows.begin(), rows.end(), text) != rows.end();
    }
    // Adds a folder to Program Directories' list, as its Add button does.
    void AddThemeDirectory(const std::wstring& folder) const {
        auto* page = dynamic_cast<ProgramDirectoriesPage*>(m_app->Host().Page(1));
        ASSERT_TRUE(page);
        SendMessageW(page->Window(ProgramDirectoriesPage::List), LB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(folder.c_str()));
    }
    // Apply, counting the theme files read while it runs.
    int SkinReadsDuringApply() {
        g_skinReads = 0;
        ObserveFileReads(CountSkinReads);
        m_app->Apply();
        ObserveFileReads(nullptr);
        return g_skinReads;
    }
};

} // namespace

TEST_F(ThemeFoldersApplyTest, ApplyWithAnUnchangedThemeFolderListReadsNoSkin) {
    Open("[Theme Directories]\r\n1=" + Narrow(m_dir.File(L"Extra")) + "\r\n");
    ASSERT_TRUE(Listed(L"Sky"));
    g_skinReads = 0;
    ObserveFileReads(CountSkinReads);
    m_app->Apply();
    PumpMessages(100); // nothing waits for after Apply either
    ObserveFileReads(nullptr);
    EXPECT_EQ(g_skinReads, 0);
}

TEST_F(ThemeFoldersApplyTest, ApplyAfterAddingAThemeDirectoryListsItsThemes) {
    Open();
    ASSERT_FALSE(Listed(L"Sky"));
    AddThemeDirectory(m_dir.File(L"Extra"));
    m_app->Apply();
    EXPECT_TRUE(PumpUntil([&] { return Listed(L"Sky"); }));
    EXPECT_TRUE(Listed(L"Deep Blue"));
}

TEST_F(ThemeFoldersApplyTest, ApplyAfterAddingAThemeDirectoryReadsTheThemesOnlyOnceItHasReturned) {
    Open();
    AddThemeDirectory(m_dir.File(L"Extra"));
    EXPECT_EQ(SkinReadsDuringApply(), 0);
    EXPECT_FALSE(Listed(L"Sky"));
}

TEST_F(ThemeFoldersApplyTest, ThemesListedAfterApplyKeepTheAppliedThemeSelected) {
    Open();
    AddThemeDirectory(m_dir.File(L"Extra"));
    m_app->Apply();
    ASSERT_TRUE(PumpUntil([&] { return Listed(L"Sky"); }));
    const LRESULT row = SendMessageW(List(), LB_GETCURSEL, 0, 0);
    ASSERT_GE(row, 0);
    EXPECT_EQ(ListBoxTexts(List())[static_cast<size_t>(row)], L"Deep Blue");
}
