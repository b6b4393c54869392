// The three rule list pages on a real host window, edited through the real custom task dialog.
#include <gtest/gtest.h>

#include "ids_behaviour.h"
#include "pages/behaviour/rule_pages.h"
#include "rule_page_support.h"

using namespace cv2;
using namespace cv2test;
using Texts = std::vector<std::wstring>;

namespace {

// A dialog step that fills in the field, picks the action's radio button and confirms.
DialogDriver::Step Answer(const std::wstring& text, int radio) {
    return [text, radio](HWND dialog) {
        SetItemText(dialog, IDC_TASK_TEXT, text);
        if (radio)
            ClickItem(dialog, radio);
        PressItem(dialog, IDOK);
    };
}

template <class Page> class RulePageTest : public ::testing::Test {
  protected:
    void Open(const std::string& config) {
        m_doc = DocOf(config);
        m_host.Add(m_page);
        m_page.Load(&m_doc);
    }
    // Runs one button of the page with the dialog worked by `steps`.
    void ClickWithDialog(int button, std::vector<DialogDriver::Step> steps) {
        DialogDriver driver(std::move(steps));
        m_host.Click(button);
        EXPECT_TRUE(driver.AllStepsRun());
        EXPECT_FALSE(driver.CancelledAStuckDialog());
    }

    PageHost m_host;
    Page m_page;
    IniDocument m_doc;
};

using TaskManagementPageTest = RulePageTest<TaskManagementPage>;
using SipPanelPageTest = RulePageTest<SipPanelPage>;
using SkinnedApplicationsPageTest = RulePageTest<SkinnedApplicationsPage>;

} // namespace

// Window rules.

TEST_F(TaskManagementPageTest, WithoutSectionShowsActiveSyncAndPhoneAndSavesThemAsIgnore) {
    Open("");
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"ActiveSync [Ignore]", L"Phone [Ignore]"}));
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Custom Tasks", L"\"ActiveSync\"", L""), L"ignore");
    EXPECT_EQ(m_doc.GetString(L"Custom Tasks", L"\"Phone\"", L""), L"ignore");
    EXPECT_EQ(m_doc.GetSectionEntries(L"Custom Tasks").size(), 2u);
}

TEST_F(TaskManagementPageTest, ModifyAndDeleteStartDisabledAndFollowTheSelection) {
    Open("");
    EXPECT_FALSE(m_host.Enabled(IDC_RULE_MODIFY));
    EXPECT_FALSE(m_host.Enabled(IDC_RULE_DELETE));
    EXPECT_TRUE(m_host.Enabled(IDC_RULE_ADD));
    m_host.SelectRow(1);
    EXPECT_TRUE(m_host.Enabled(IDC_RULE_MODIFY));
    EXPECT_TRUE(m_host.Enabled(IDC_RULE_DELETE));
    m_host.SelectRow(-1);
    EXPECT_FALSE(m_host.Enabled(IDC_RULE_MODIFY));
}

TEST_F(TaskManagementPageTest, AddedRuleIsSortedIntoPlaceAndSaved) {
    Open("");
    ClickWithDialog(IDC_RULE_ADD, {Answer(L"Calendar", IDC_TASK_ACTION_2)});
    EXPECT_EQ(m_host.ListTexts(),
              (Texts{L"ActiveSync [Ignore]", L"Calendar [Minimize]", L"Phone [Ignore]"}));
    EXPECT_EQ(m_host.ListData()[1], 1);
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Custom Tasks", L"\"Calendar\"", L""), L"minimize");
}

TEST_F(TaskManagementPageTest, ModifyOpensTheDialogOnTheRuleAndReplacesIt) {
    Open("[Custom Tasks]\n\"Inbox\"=minimize\n\"Notes\"=ignore\n");
    m_host.SelectRow(0);
    std::wstring shownText;
    bool minimizeChecked = false;
    ClickWithDialog(IDC_RULE_MODIFY, {[&](HWND dialog) {
                        shownText = ItemText(dialog, IDC_TASK_TEXT);
                        minimizeChecked =
                            IsDlgButtonChecked(dialog, IDC_TASK_ACTION_2) == BST_CHECKED;
                        Answer(L"Word", IDC_TASK_ACTION_3)(dialog);
                    }});
    EXPECT_EQ(shownText, L"Inbox");
    EXPECT_TRUE(minimizeChecked);
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"Notes [Ignore]", L"Word [Close]"}));
    m_page.Save(nullptr);
    EXPECT_EQ(DocOf(m_doc.Serialize()).GetString(L"Custom Tasks", L"\"Inbox\"", L"<none>"),
              L"<none>");
    EXPECT_EQ(m_doc.GetString(L"Custom Tasks", L"\"Word\"", L""), L"close");
}

TEST_F(TaskManagementPageTest, CancelledDialogChangesNothing) {
    Open("[Custom Tasks]\n\"Inbox\"=close\n");
    m_host.SelectRow(0);
    ClickWithDialog(IDC_RULE_MODIFY, {[](HWND dialog) {
                        SetItemText(dialog, IDC_TASK_TEXT, L"Other");
                        PressItem(dialog, IDCANCEL);
                    }});
    ClickWithDialog(IDC_RULE_ADD, {[](HWND dialog) { PressItem(dialog, IDCANCEL); }});
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"Inbox [Close]"}));
}

TEST_F(TaskManagementPageTest, DeletingEveryEntryRemovesTheSectionAndTheDefaultsReturn) {
    Open("[Custom Tasks]\n\"Inbox\"=close\n\"Notes\"=minimize\n");
    m_host.SelectRow(0);
    m_host.Click(IDC_RULE_DELETE);
    m_host.SelectRow(0);
    m_host.Click(IDC_RULE_DELETE);
    EXPECT_TRUE(m_host.ListTexts().empty());
    m_page.Save(nullptr);
    EXPECT_FALSE(m_doc.HasSection(L"Custom Tasks"));
    m_page.Load(&m_doc);
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"ActiveSync [Ignore]", L"Phone [Ignore]"}));
}

TEST_F(TaskManagementPageTest, DeleteLeavesTheButtonsEnabled) {
    Open("");
    m_host.SelectRow(0);
    m_host.Click(IDC_RULE_DELETE);
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"Phone [Ignore]"}));
    EXPECT_TRUE(m_host.Enabled(IDC_RULE_MODIFY));
    EXPECT_TRUE(m_host.Enabled(IDC_RULE_DELETE));
    // Without a selection they do nothing.
    m_host.Click(IDC_RULE_DELETE);
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"Phone [Ignore]"}));
}

TEST_F(TaskManagementPageTest, TitleHoldingABracketIsCutAtTheLastBracketOnly) {
    Open("[Custom Tasks]\n");
    ClickWithDialog(IDC_RULE_ADD, {Answer(L"Notes [draft]", IDC_TASK_ACTION_1)});
    m_host.SelectRow(0);
    std::wstring shownText;
    ClickWithDialog(IDC_RULE_MODIFY, {[&](HWND dialog) {
                        shownText = ItemText(dialog, IDC_TASK_TEXT);
                        PressItem(dialog, IDCANCEL);
                    }});
    EXPECT_EQ(shownText, L"Notes [draft]");
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Custom Tasks", L"\"Notes [draft]\"", L""), L"ignore");
}

TEST_F(TaskManagementPageTest, CloseInAnyCaseIsWrittenBackAsClose) {
    Open("[Custom Tasks]\n\"Inbox\"=CLOSE\n");
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"Inbox [Close]"}));
    EXPECT_EQ(m_host.ListData(), (std::vector<LPARAM>{2}));
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Custom Tasks", L"\"Inbox\"", L""), L"close");
}

TEST_F(TaskManagementPageTest, TitleOfAnyLengthIsKept) {
    Open("[Custom Tasks]\n");
    const std::wstring longTitle(3000, L'w');
    ClickWithDialog(IDC_RULE_ADD, {Answer(longTitle, 0)});
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Custom Tasks", (L"\"" + longTitle + L"\"").c_str(), L"", 4000),
              L"ignore");
}

TEST_F(TaskManagementPageTest, DialogAsksForAWindowTitleAndOneOfThreeActions) {
    Open("");
    std::vector<std::wstring> texts;
    std::vector<bool> visible;
    ClickWithDialog(IDC_RULE_ADD, {[&](HWND dialog) {
                        texts = {WindowText(dialog),
                                 ItemText(dialog, IDC_TASK_TEXT_CAPTION),
                                 ItemText(dialog, IDC_TASK_ACTION_1),
                                 ItemText(dialog, IDC_TASK_ACTION_2),
                                 ItemText(dialog, IDC_TASK_ACTION_3),
                                 ItemText(dialog, IDOK),
                                 ItemText(dialog, IDCANCEL)};
                        for (int id : {IDC_TASK_ACTION_CAPTION, IDC_TASK_ACTION_1,
                                       IDC_TASK_ACTION_2, IDC_TASK_ACTION_3, IDC_TASK_BROWSE})
                            visible.push_back(ItemVisible(dialog, id));
                        PressItem(dialog, IDCANCEL);
                    }});
    EXPECT_EQ(texts, (Texts{L"Task Management", L"Window Title:", L"Hide from the task list",
                            L"Minimize the window", L"Close the window", L"OK", L"Cancel"}));
    EXPECT_EQ(visible, (std::vector<bool>{true, true, true, true, true}));
}

TEST_F(TaskManagementPageTest, CommandsOfAnotherPagesButtonsAreDeclined) {
    SipPanelPage other;
    Open("");
    m_host.Add(other, false);
    HWND otherAdd = nullptr;
    for (HWND c = GetWindow(m_host.Window(), GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
        if (GetDlgCtrlID(c) == IDC_RULE_ADD && !IsWindowVisible(c))
            otherAdd = c;
    }
    ASSERT_NE(otherAdd, nullptr);
    EXPECT_FALSE(
        m_page.OnCommand(MAKEWPARAM(IDC_RULE_ADD, BN_CLICKED), reinterpret_cast<LPARAM>(otherAdd)));
    EXPECT_FALSE(m_page.OnCommand(MAKEWPARAM(IDC_RULE_ADD, BN_CLICKED), 0));
    other.OnDestroy();
}

TEST_F(TaskManagementPageTest, NeverSelectedPageStillSavesIntoTheTarget) {
    PageHost host;
    TaskManagementPage page;
    host.Add(page, false);
    IniDocument doc = DocOf("");
    page.Load(&doc);
    IniDocument other;
    page.Save(&other);
    EXPECT_EQ(other.GetSectionEntries(L"Custom Tasks").size(), 2u);
    EXPECT_FALSE(doc.HasSection(L"Custom Tasks"));
    page.OnDestroy();
}

// Input panel rules.

TEST_F(SipPanelPageTest, AbsentSectionGivesAnEmptyListAndSavingMakesAnEmptySection) {
    Open("[Other]\na=1\n");
    EXPECT_TRUE(m_host.ListTexts().empty());
    m_page.Save(nullptr);
    EXPECT_TRUE(m_doc.HasSection(L"Custom SIP"));
    EXPECT_TRUE(m_doc.GetSectionEntries(L"Custom SIP").empty());
}

TEST_F(SipPanelPageTest, DialogOffersHideAndShowOnly) {
    Open("");
    std::vector<std::wstring> texts;
    bool thirdVisible = true;
    ClickWithDialog(IDC_RULE_ADD, {[&](HWND dialog) {
                        texts = {WindowText(dialog), ItemText(dialog, IDC_TASK_TEXT_CAPTION),
                                 ItemText(dialog, IDC_TASK_ACTION_1),
                                 ItemText(dialog, IDC_TASK_ACTION_2)};
                        thirdVisible = ItemVisible(dialog, IDC_TASK_ACTION_3);
                        PressItem(dialog, IDCANCEL);
                    }});
    EXPECT_EQ(texts, (Texts{L"SIP Panel", L"Window Title:", L"Hide", L"Show"}));
    EXPECT_FALSE(thirdVisible);
}

TEST_F(SipPanelPageTest, HideIsWrittenAsZeroAndShowAsOne) {
    Open("");
    ClickWithDialog(IDC_RULE_ADD, {Answer(L"Notes", IDC_TASK_ACTION_2)});
    ClickWithDialog(IDC_RULE_ADD, {Answer(L"Calc", IDC_TASK_ACTION_1)});
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"Calc [Hide]", L"Notes [Show]"}));
    EXPECT_EQ(m_host.ListData(), (std::vector<LPARAM>{0, 1}));
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Custom SIP", L"\"Notes\"", L""), L"1");
    EXPECT_EQ(m_doc.GetString(L"Custom SIP", L"\"Calc\"", L""), L"0");
}

TEST_F(SipPanelPageTest, ZeroOrEmptyReadsHideAndOneOrYesReadsShow) {
    Open("[Custom SIP]\n\"A\"=0\n\"B\"=\n\"C\"=1\n\"D\"=yes\n");
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"A [Hide]", L"B [Hide]", L"C [Show]", L"D [Show]"}));
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Custom SIP", L"\"B\"", L""), L"0");
    EXPECT_EQ(m_doc.GetString(L"Custom SIP", L"\"D\"", L""), L"1");
}

TEST_F(SipPanelPageTest, ModifyStartsOnTheRulesButton) {
    Open("[Custom SIP]\n\"Notes\"=1\n");
    m_host.SelectRow(0);
    bool showChecked = false;
    ClickWithDialog(IDC_RULE_MODIFY, {[&](HWND dialog) {
                        showChecked = IsDlgButtonChecked(dialog, IDC_TASK_ACTION_2) == BST_CHECKED;
                        Answer(L"Notes", IDC_TASK_ACTION_1)(dialog);
                    }});
    EXPECT_TRUE(showChecked);
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"Notes [Hide]"}));
}

TEST_F(SipPanelPageTest, EntriesWithAnEmptyTitleAreSaved) {
    Open("");
    ClickWithDialog(IDC_RULE_ADD, {Answer(L"", IDC_TASK_ACTION_2)});
    EXPECT_EQ(m_host.ListTexts(), (Texts{L" [Show]"}));
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Custom SIP", L"\"\"", L"<none>"), L"1");
}

// Applications left unskinned.

TEST_F(SkinnedApplicationsPageTest, WithoutSectionShowsRepligoAndSavesIt) {
    Open("");
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"REPLIGO.EXE"}));
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Dont Skin", L"REPLIGO.EXE", L""), L"1");
    EXPECT_EQ(m_doc.GetString(L"General Settings", L"Ignore All Apps", L""), L"FALSE");
}

TEST_F(SkinnedApplicationsPageTest, ProcessNameTypedInLowerCaseIsShownAndStoredInUpperCase) {
    Open("");
    ClickWithDialog(IDC_RULE_ADD, {Answer(L"tmail.exe", 0)});
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"REPLIGO.EXE", L"TMAIL.EXE"}));
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"Dont Skin", L"TMAIL.EXE", L""), L"1");
    auto entries = m_doc.GetSectionEntries(L"Dont Skin");
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_STREQ(entries[1].first, L"TMAIL.EXE");
}

TEST_F(SkinnedApplicationsPageTest, ModifiedNameIsUpperCasedAndReplacesTheOld) {
    Open("[Dont Skin]\nPWORD.EXE=1\n");
    m_host.SelectRow(0);
    std::wstring shown;
    ClickWithDialog(IDC_RULE_MODIFY, {[&](HWND dialog) {
                        shown = ItemText(dialog, IDC_TASK_TEXT);
                        Answer(L"pxl.exe", 0)(dialog);
                    }});
    EXPECT_EQ(shown, L"PWORD.EXE");
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"PXL.EXE"}));
}

TEST_F(SkinnedApplicationsPageTest, DialogAsksForAProcessNameWithoutActions) {
    Open("");
    std::wstring caption;
    std::vector<bool> visible;
    ClickWithDialog(IDC_RULE_ADD, {[&](HWND dialog) {
                        caption = ItemText(dialog, IDC_TASK_TEXT_CAPTION);
                        for (int id : {IDC_TASK_ACTION_CAPTION, IDC_TASK_ACTION_1,
                                       IDC_TASK_ACTION_2, IDC_TASK_ACTION_3, IDC_TASK_BROWSE})
                            visible.push_back(ItemVisible(dialog, id));
                        PressItem(dialog, IDCANCEL);
                    }});
    EXPECT_EQ(caption, L"Process Name:");
    EXPECT_EQ(visible, (std::vector<bool>{false, false, false, false, true}));
}

TEST_F(SkinnedApplicationsPageTest, DeletingAllEntriesRemovesTheSectionSoRepligoReturns) {
    Open("");
    m_host.SelectRow(0);
    m_host.Click(IDC_RULE_DELETE);
    m_page.Save(nullptr);
    EXPECT_FALSE(m_doc.HasSection(L"Dont Skin"));
    m_page.Load(&m_doc);
    EXPECT_EQ(m_host.ListTexts(), (Texts{L"REPLIGO.EXE"}));
}

TEST_F(SkinnedApplicationsPageTest, IgnoreAllAppsBoxFollowsItsKey) {
    Open("[General Settings]\nIgnore All Apps=yes\n");
    HWND box = m_host.Control(IDC_RULE_OPTION);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(WindowText(box), L"Ignore all applications");
    EXPECT_EQ(SendMessageW(box, BM_GETCHECK, 0, 0), BST_CHECKED);
    SendMessageW(box, BM_CLICK, 0, 0);
    m_page.Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"General Settings", L"Ignore All Apps", L""), L"FALSE");
}

TEST_F(SkinnedApplicationsPageTest, ShowsItsCaptionAboveTheList) {
    Open("");
    EXPECT_EQ(WindowText(m_host.Control(IDC_RULE_CAPTION)),
              L"Ignore the applications listed below");
    RECT caption, list;
    GetWindowRect(m_host.Control(IDC_RULE_CAPTION), &caption);
    GetWindowRect(m_host.Control(IDC_RULE_LIST), &list);
    EXPECT_LE(caption.bottom, list.top);
}
