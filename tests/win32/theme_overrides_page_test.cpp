// Theme Overrides on a real host window.
#include "themes/overrides_page.h"

#include "ids_themes.h"
#include "store/language_strings.h"
#include "store/scale.h"
#include "ui/text_extent.h"

#include "check_pages_host.h"
#include "pseudo_locale.h"
#include "screen_capture.h"

using namespace cv2;
using namespace cv2test;

namespace {

const wchar_t kSection[] = L"Overrides";
using Page = ThemeOverridesPage;

class ThemeOverridesPageTest : public PageTest {
  protected:
    IniDocument m_doc;
};

bool Checked(HWND box) {
    return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

std::wstring Selection(HWND list) {
    const LRESULT index = SendMessageW(list, CB_GETCURSEL, 0, 0);
    if (index == CB_ERR)
        return L"";
    wchar_t text[LF_FACESIZE + 1] = {};
    SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
    return text;
}

std::vector<std::wstring> Entries(HWND list) {
    std::vector<std::wstring> entries;
    const LRESULT count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        wchar_t text[LF_FACESIZE + 1] = {};
        SendMessageW(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
        entries.push_back(text);
    }
    return entries;
}

bool TahomaInstalled() {
    for (const std::wstring& family : ScreenFontFamilies()) {
        if (lstrcmpiW(family.c_str(), L"Tahoma") == 0)
            return true;
    }
    return false;
}

void Click(PageHostWindow& host, HWND box) {
    SendMessageW(box, BM_SETCHECK, Checked(box) ? BST_UNCHECKED : BST_CHECKED, 0);
    host.SendCommand(box, BN_CLICKED);
}

} // namespace

TEST_F(ThemeOverridesPageTest, EmptySectionChecksTheFirstTwoBoxesAndDisablesTheListOnTahoma) {
    Page page;
    PageHostWindow host(page, m_doc);
    EXPECT_TRUE(Checked(page.Window(Page::Sounds)));
    EXPECT_TRUE(Checked(page.Window(Page::Colors)));
    EXPECT_FALSE(Checked(page.Window(Page::Fonts)));
    EXPECT_FALSE(IsWindowEnabled(page.Window(Page::FontList)));
    // Without Tahoma on this machine the default name matches no entry.
    EXPECT_EQ(Selection(page.Window(Page::FontList)), TahomaInstalled() ? L"Tahoma" : L"");
}

TEST_F(ThemeOverridesPageTest, UncheckingReplaceFontsDisablesTheListKeepsItsSelectionAndSavesIt) {
    m_doc.SetString(kSection, L"Custom Font", L"TRUE");
    Page page;
    PageHostWindow host(page, m_doc);
    ASSERT_TRUE(IsWindowEnabled(page.Window(Page::FontList)));
    HWND list = page.Window(Page::FontList);
    const std::wstring chosen = Entries(list).back();
    SendMessageW(list, CB_SETCURSEL, SendMessageW(list, CB_GETCOUNT, 0, 0) - 1, 0);
    Click(host, page.Window(Page::Fonts));
    EXPECT_FALSE(IsWindowEnabled(list));
    EXPECT_EQ(Selection(list), chosen);
    page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(kSection, L"Custom Font", L""), L"FALSE");
    EXPECT_EQ(m_doc.GetString(kSection, L"Font Name", L""), chosen);
}

TEST_F(ThemeOverridesPageTest, CheckingReplaceFontsEnablesTheList) {
    Page page;
    PageHostWindow host(page, m_doc);
    Click(host, page.Window(Page::Fonts));
    EXPECT_TRUE(IsWindowEnabled(page.Window(Page::FontList)));
}

TEST_F(ThemeOverridesPageTest, FamiliesBeginningWithAtNeverAppearInTheList) {
    Page page;
    PageHostWindow host(page, m_doc);
    HWND list = page.Window(Page::FontList);
    ASSERT_GT(SendMessageW(list, CB_GETCOUNT, 0, 0), 0);
    FillFontList(list, {L"@Vertical Face", L"Upright Face", L"@Upright Face", L"Upright Face"});
    int upright = 0;
    for (const std::wstring& entry : Entries(list)) {
        EXPECT_NE(entry[0], L'@') << std::string(entry.begin(), entry.end());
        upright += entry == L"Upright Face";
    }
    EXPECT_EQ(upright, 1);
}

TEST_F(ThemeOverridesPageTest, ListHoldsTheScreenFontFamiliesSorted) {
    Page page;
    PageHostWindow host(page, m_doc);
    const std::vector<std::wstring> entries = Entries(page.Window(Page::FontList));
    for (size_t i = 1; i < entries.size(); ++i)
        EXPECT_LE(lstrcmpiW(entries[i - 1].c_str(), entries[i].c_str()), 0);
    for (const std::wstring& family : ScreenFontFamilies()) {
        if (family[0] == L'@')
            continue;
        EXPECT_NE(SendMessageW(page.Window(Page::FontList), CB_FINDSTRINGEXACT, WPARAM(-1),
                               reinterpret_cast<LPARAM>(family.c_str())),
                  CB_ERR);
    }
}

TEST_F(ThemeOverridesPageTest, StoredNameMatchesAnEntryWithoutRegardToCase) {
    std::wstring installed;
    for (const std::wstring& family : ScreenFontFamilies()) {
        if (family[0] != L'@')
            installed = family;
    }
    ASSERT_FALSE(installed.empty());
    std::wstring stored = installed;
    CharUpperBuffW(&stored[0], static_cast<DWORD>(stored.size()));
    m_doc.SetString(kSection, L"Font Name", stored.c_str());
    Page page;
    PageHostWindow host(page, m_doc);
    EXPECT_EQ(Selection(page.Window(Page::FontList)), installed);
}

// Deliberate: a font that is not installed is shown as no selection and is lost on save.
TEST_F(ThemeOverridesPageTest, UnknownFontNameLoadsAsNoSelectionAndIsSavedEmpty) {
    m_doc.SetString(kSection, L"Custom Font", L"TRUE");
    m_doc.SetString(kSection, L"Font Name", L"No Such Face 1234");
    Page page;
    PageHostWindow host(page, m_doc);
    EXPECT_EQ(SendMessageW(page.Window(Page::FontList), CB_GETCURSEL, 0, 0), CB_ERR);
    page.Save(nullptr);
    EXPECT_TRUE(m_doc.HasSection(kSection));
    EXPECT_EQ(m_doc.GetString(kSection, L"Font Name", L"unchanged"), L"");
    EXPECT_EQ(m_doc.GetString(kSection, L"Custom Font", L""), L"TRUE");
}

TEST_F(ThemeOverridesPageTest, SaveWritesTheCheckBoxStates) {
    Page page;
    PageHostWindow host(page, m_doc);
    Click(host, page.Window(Page::Sounds));
    page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(kSection, L"Use Sounds", L""), L"FALSE");
    EXPECT_EQ(m_doc.GetString(kSection, L"Use Colors", L""), L"TRUE");
}

TEST_F(ThemeOverridesPageTest, OnlyTheReplaceFontsBoxIsHandled) {
    Page page;
    PageHostWindow host(page, m_doc);
    EXPECT_FALSE(page.OnCommand(MAKEWPARAM(1610, BN_CLICKED),
                                reinterpret_cast<LPARAM>(page.Window(Page::Sounds))));
    EXPECT_TRUE(page.OnCommand(MAKEWPARAM(1612, BN_CLICKED),
                               reinterpret_cast<LPARAM>(page.Window(Page::Fonts))));
}

TEST_F(ThemeOverridesPageTest, CheckBoxesAre234UnitsWideOneUnderAnother) {
    Page page;
    PageHostWindow host(page, m_doc);
    RECT boxes[3];
    for (int i = 0; i < 3; ++i) {
        GetWindowRect(page.Window(static_cast<Page::Control>(i)), &boxes[i]);
        EXPECT_EQ(boxes[i].right - boxes[i].left, ScaleX(234));
    }
    EXPECT_LE(boxes[0].bottom, boxes[1].top);
    EXPECT_LE(boxes[1].bottom, boxes[2].top);
    RECT list;
    GetWindowRect(page.Window(Page::FontList), &list);
    EXPECT_EQ(list.right - list.left, ScaleX(150));
    EXPECT_GE(list.top, boxes[2].bottom);
}

// The pseudo-locale's text of the third box is longer than the box is wide, as a translation
// may be.
void TranslateFontsBox(Page& page) {
    LanguageStrings pseudo(PseudoModulePath().c_str());
    ASSERT_TRUE(pseudo.HasModule()) << "pseudo-locale module not found";
    SetWindowTextW(page.Window(Page::Fonts), pseudo.Get(IDS_OVERRIDE_FONTS, L""));
    page.OnSize(page.Area());
}

TEST_F(ThemeOverridesPageTest, AFontsBoxTextThatWrapsGrowsTheBoxAndMovesTheListBelowIt) {
    Page page;
    PageHostWindow host(page, m_doc);
    HWND box = page.Window(Page::Fonts);
    TranslateFontsBox(page);
    RECT r, list;
    GetWindowRect(box, &r);
    GetWindowRect(page.Window(Page::FontList), &list);
    ASSERT_GT(WindowTextWidth(box), r.right - r.left) << "the text must need a second line";
    EXPECT_GE(r.bottom - r.top, 2 * LineHeight(box)) << "two lines of text";
    EXPECT_EQ(r.right - r.left, ScaleX(234));
    EXPECT_GE(list.top, r.bottom);
}

class ThemeOverridesPageScreens : public ThemeOverridesPageTest {};

TEST_F(ThemeOverridesPageScreens, CustomFont) {
    m_doc.SetString(kSection, L"Custom Font", L"TRUE");
    Page page;
    PageHostWindow host(page, m_doc);
    host.ShowPage();
    EXPECT_FALSE(SaveScreenshot(L"theme_overrides").empty());
    EXPECT_TRUE(ScreenHasContent());
}

TEST_F(ThemeOverridesPageScreens, TranslatedFontsBoxOnTwoLines) {
    m_doc.SetString(kSection, L"Custom Font", L"TRUE");
    Page page;
    PageHostWindow host(page, m_doc);
    TranslateFontsBox(page);
    host.ShowPage();
    EXPECT_FALSE(SaveScreenshot(L"theme_overrides_translated").empty());
}
