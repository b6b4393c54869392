// The Notifications page in the real theme editor with its notification dialog: adding,
// changing and deleting entries, the list read up to its first gap, and a save that removes the
// old entries' sections first.
#include "control_pages_support.h"
#include "pages/appearance/notifications_page.h"

using namespace cv2;
using cv2test::DialogDriver;

namespace {

class NotificationsPageTest : public cv2test::ControlPagesTest {
  protected:
    void SetUp() override {
        ControlPagesTest::SetUp();
        doc = cv2test::ParsedDoc("[Custom Notifications]\r\n0=Alarm\r\n1=Mail\r\n"
                                 "[Notify.Alarm]\r\nNormal=a.png\r\nPressed=ap.png\r\n"
                                 "[Notify.Mail]\r\nNormal=m.png\r\nPressed=mp.png\r\n");
    }

    // Clicks `button` and fills the notification dialog with `texts` (title, normal, pressed)
    // before ending it with `endWith`; `shown` receives what the dialog opened with.
    static void ThroughDialog(HWND dlg, int button, const std::vector<std::wstring>& texts,
                              int endWith, std::vector<std::wstring>* shown = nullptr) {
        DialogDriver::OnNextDialog(
            [=](HWND box) {
                const int ids[] = {IDC_NOTIFY_TITLE, IDC_ROW_NORMAL, IDC_ROW_PRESSED};
                for (size_t i = 0; i < 3; ++i) {
                    if (shown)
                        shown->push_back(cv2test::DlgText(box, ids[i]));
                    if (i < texts.size())
                        cv2test::TypeText(box, ids[i], texts[i]);
                }
            },
            endWith);
        DialogDriver::Click(dlg, button);
    }

    std::vector<std::wstring> Titles() {
        std::vector<std::wstring> titles;
        for (const auto& e : doc.GetSectionEntries(L"Custom Notifications"))
            titles.push_back(std::wstring(e.first) + L"=" + e.second);
        return titles;
    }
};

} // namespace

TEST_F(NotificationsPageTest, ListShowsTheTitlesInOrder) {
    std::vector<std::wstring> rows;
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) { rows = cv2test::ListTexts(dlg, IDC_NOTIFY_LIST); }, IDCANCEL);
    EXPECT_EQ(rows, (std::vector<std::wstring>{L"Alarm", L"Mail"}));
}

TEST_F(NotificationsPageTest, AddAppendsARowFromTheDialogAndSaveWritesIt) {
    std::vector<std::wstring> rows, shown;
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            ThroughDialog(dlg, IDC_NOTIFY_ADD, {L"Reminder", L"r.png", L"rp.png"}, IDOK, &shown);
            rows = cv2test::ListTexts(dlg, IDC_NOTIFY_LIST);
        },
        IDOK);
    EXPECT_EQ(shown, (std::vector<std::wstring>{L"", L"", L""}));
    EXPECT_EQ(rows, (std::vector<std::wstring>{L"Alarm", L"Mail", L"Reminder"}));
    EXPECT_EQ(Titles(), (std::vector<std::wstring>{L"0=Alarm", L"1=Mail", L"2=Reminder"}));
    EXPECT_EQ(doc.GetString(L"Notify.Reminder", L"Normal", L"-"), L"r.png");
    EXPECT_EQ(doc.GetString(L"Notify.Reminder", L"Pressed", L"-"), L"rp.png");
}

TEST_F(NotificationsPageTest, ModifyOpensOnTheSelectedEntryAndReplacesItInPlace) {
    std::vector<std::wstring> rows, shown;
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickListRow(dlg, IDC_NOTIFY_LIST, 0);
            ThroughDialog(dlg, IDC_NOTIFY_MODIFY, {L"Alarm 2", L"a2.png", L"a2p.png"}, IDOK,
                          &shown);
            rows = cv2test::ListTexts(dlg, IDC_NOTIFY_LIST);
        },
        IDOK);
    EXPECT_EQ(shown, (std::vector<std::wstring>{L"Alarm", L"a.png", L"ap.png"}));
    EXPECT_EQ(rows, (std::vector<std::wstring>{L"Alarm 2", L"Mail"}));
    EXPECT_EQ(Titles(), (std::vector<std::wstring>{L"0=Alarm 2", L"1=Mail"}));
    EXPECT_FALSE(doc.HasSection(L"Notify.Alarm"));
    EXPECT_EQ(doc.GetString(L"Notify.Alarm 2", L"Pressed", L"-"), L"a2p.png");
}

TEST_F(NotificationsPageTest, CancelledDialogChangesNothing) {
    const std::string before = doc.Serialize();
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickListRow(dlg, IDC_NOTIFY_LIST, 1);
            ThroughDialog(dlg, IDC_NOTIFY_MODIFY, {L"Other"}, IDCANCEL);
            ThroughDialog(dlg, IDC_NOTIFY_ADD, {L"New"}, IDCANCEL);
        },
        IDOK);
    EXPECT_EQ(Titles(), (std::vector<std::wstring>{L"0=Alarm", L"1=Mail"}));
    EXPECT_EQ(doc.GetString(L"Notify.Mail", L"Normal", L"-"), L"m.png");
}

TEST_F(NotificationsPageTest, DeleteRemovesTheSelectedRowOnly) {
    std::vector<std::wstring> rows;
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            DialogDriver::Click(dlg, IDC_NOTIFY_DELETE); // nothing selected: nothing goes
            cv2test::PickListRow(dlg, IDC_NOTIFY_LIST, 0);
            DialogDriver::Click(dlg, IDC_NOTIFY_DELETE);
            rows = cv2test::ListTexts(dlg, IDC_NOTIFY_LIST);
        },
        IDOK);
    EXPECT_EQ(rows, std::vector<std::wstring>{L"Mail"});
    EXPECT_EQ(Titles(), std::vector<std::wstring>{L"0=Mail"});
    EXPECT_FALSE(doc.HasSection(L"Notify.Alarm"));
}

TEST_F(NotificationsPageTest, DeletingEveryEntryAndSavingLeavesNoListAndNoOldSections) {
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            for (int i = 0; i < 2; ++i) {
                cv2test::PickListRow(dlg, IDC_NOTIFY_LIST, 0);
                DialogDriver::Click(dlg, IDC_NOTIFY_DELETE);
            }
        },
        IDOK);
    EXPECT_FALSE(doc.HasSection(L"Custom Notifications"));
    EXPECT_FALSE(doc.HasSection(L"Notify.Alarm"));
    EXPECT_FALSE(doc.HasSection(L"Notify.Mail"));
}

TEST_F(NotificationsPageTest, AListWithAGapIsReadUpToTheGapAndTheSectionBeyondItStays) {
    doc =
        cv2test::ParsedDoc("[Custom Notifications]\r\n0=Alarm\r\n2=Later\r\n"
                           "[Notify.Alarm]\r\nNormal=a.png\r\n[Notify.Later]\r\nNormal=l.png\r\n");
    std::vector<std::wstring> rows;
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) { rows = cv2test::ListTexts(dlg, IDC_NOTIFY_LIST); }, IDOK);
    EXPECT_EQ(rows, std::vector<std::wstring>{L"Alarm"});
    EXPECT_EQ(Titles(), std::vector<std::wstring>{L"0=Alarm"});
    EXPECT_EQ(doc.GetString(L"Notify.Later", L"Normal", L"-"), L"l.png");
}

TEST_F(NotificationsPageTest, TwoEntriesWithTheSameTitleShareOneSectionAndTheLaterWins) {
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            ThroughDialog(dlg, IDC_NOTIFY_ADD, {L"Alarm", L"second.png", L"second-p.png"}, IDOK);
        },
        IDOK);
    EXPECT_EQ(Titles(), (std::vector<std::wstring>{L"0=Alarm", L"1=Mail", L"2=Alarm"}));
    EXPECT_EQ(doc.GetString(L"Notify.Alarm", L"Normal", L"-"), L"second.png");
}

TEST_F(NotificationsPageTest, AnEmptyTitleAddsNothing) {
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            ThroughDialog(dlg, IDC_NOTIFY_ADD, {L"", L"x.png", L"y.png"}, IDOK);
        },
        IDOK);
    EXPECT_EQ(Titles(), (std::vector<std::wstring>{L"0=Alarm", L"1=Mail"}));
}

TEST_F(NotificationsPageTest, ATitleOf300CharactersIsCutToItsBuffer) {
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            ThroughDialog(dlg, IDC_NOTIFY_ADD,
                          {std::wstring(300, L't'), std::wstring(300, L'n'), L"p.png"}, IDOK);
        },
        IDOK);
    EXPECT_EQ(doc.GetString(L"Custom Notifications", L"2", L"-"), std::wstring(259, L't'));
    EXPECT_EQ(doc.GetString((L"Notify." + std::wstring(259, L't')).c_str(), L"Normal", L"-"),
              std::wstring(259, L'n'));
}

TEST_F(NotificationsPageTest, TitlesWithBracketOrEqualsSignNeverBreakTheFile) {
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            ThroughDialog(dlg, IDC_NOTIFY_ADD, {L"a=b", L"eq.png", L""}, IDOK);
            ThroughDialog(dlg, IDC_NOTIFY_ADD, {L"Call [2] missed", L"br.png", L""}, IDOK);
        },
        IDOK);
    const IniDocument reread = cv2test::ParsedDoc(doc.Serialize());
    EXPECT_EQ(cv2test::KeysOf(reread, L"Custom Notifications"),
              (std::vector<std::wstring>{L"0", L"1", L"2", L"3"}));
    EXPECT_EQ(reread.GetString(L"Custom Notifications", L"2", L"-"), L"a=b");
    EXPECT_EQ(reread.GetString(L"Notify.a=b", L"Normal", L"-"), L"eq.png");
    EXPECT_EQ(reread.GetString(L"Custom Notifications", L"3", L"-"), L"Call [2] missed");
    // The header of the bracketed title reads back up to its first "]".
    EXPECT_EQ(reread.GetString(L"Notify.Call [2", L"Normal", L"-"), L"br.png");
    // Read again from the file, the entry still has its pictures.
    doc = reread;
    std::vector<std::wstring> rows;
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            cv2test::PickListRow(dlg, IDC_NOTIFY_LIST, 3);
            ThroughDialog(dlg, IDC_NOTIFY_MODIFY, {}, IDCANCEL, &rows);
        },
        IDCANCEL);
    EXPECT_EQ(rows, (std::vector<std::wstring>{L"Call [2] missed", L"br.png", L""}));
    EXPECT_EQ(reread.GetString(L"Notify.Mail", L"Normal", L"-"), L"m.png");
}

TEST_F(NotificationsPageTest, DialogLabelsAreLocalised) {
    std::wstring title, normal, pressed;
    RunEditor(
        {NewNotificationsPage()},
        [&](HWND dlg, ThemeEditor&) {
            DialogDriver::OnNextDialog(
                [&](HWND box) {
                    title = cv2test::DlgText(box, IDC_NOTIFY_TITLE_LABEL);
                    normal = cv2test::DlgText(box, IDC_ROW_NORMAL_LABEL);
                    pressed = cv2test::DlgText(box, IDC_ROW_PRESSED_LABEL);
                },
                IDCANCEL);
            DialogDriver::Click(dlg, IDC_NOTIFY_ADD);
        },
        IDCANCEL);
    EXPECT_EQ(title, L"Notification Dialog Title:");
    EXPECT_EQ(normal, L"Normal:");
    EXPECT_EQ(pressed, L"Pressed:");
}
