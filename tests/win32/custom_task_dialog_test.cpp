// The custom task dialog and its list picker, run modally on a host window and worked from a
// timer the way a user's taps would.
#include "pages/behaviour/custom_task_dialog.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "ids_behaviour.h"
#include "platform/running_tasks.h"
#include "platform/shell.h"
#include "rule_page_support.h"

using namespace cv2;
using namespace cv2test;

namespace {

RuleRecord Record(const std::wstring& text, int action, bool process = false,
                  bool showHide = false) {
    RuleRecord record;
    record.text = text;
    record.action = action;
    record.processMode = process;
    record.showHideMode = showHide;
    return record;
}

// A visible application window of this program, for the picker to offer.
class TargetWindow {
  public:
    explicit TargetWindow(const wchar_t* title) {
        m_hwnd = CreateWindowExW(0, L"STATIC", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 80,
                                 60, nullptr, nullptr, nullptr, nullptr);
    }
    ~TargetWindow() { DestroyWindow(m_hwnd); }

  private:
    HWND m_hwnd;
};

// A picker step that selects `text` (when offered) and confirms.
DialogDriver::Step PickText(const std::wstring& text, std::vector<std::wstring>* offered) {
    return [text, offered](HWND picker) {
        HWND list = GetDlgItem(picker, IDC_TASK_PICKER_LIST);
        if (offered)
            *offered = ListBoxTexts(list);
        const LRESULT at = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                        reinterpret_cast<LPARAM>(text.c_str()));
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(at), 0);
        PressItem(picker, IDOK);
    };
}

class CustomTaskDialogTest : public ::testing::Test {
  protected:
    bool Run(RuleRecord& record, std::vector<DialogDriver::Step> steps) {
        DialogDriver driver(std::move(steps));
        const bool ok = RunCustomTaskDialog(m_host.Window(), L"Task Management", record);
        EXPECT_TRUE(driver.AllStepsRun());
        EXPECT_FALSE(driver.CancelledAStuckDialog());
        return ok;
    }
    PageHost m_host;
};

} // namespace

TEST_F(CustomTaskDialogTest, StartsWithTheRecordsTextAndAction) {
    RuleRecord record = Record(L"Inbox", 2);
    std::wstring text;
    bool closeChecked = false;
    Run(record, {[&](HWND dialog) {
            text = ItemText(dialog, IDC_TASK_TEXT);
            closeChecked = IsDlgButtonChecked(dialog, IDC_TASK_ACTION_3) == BST_CHECKED;
            PressItem(dialog, IDCANCEL);
        }});
    EXPECT_EQ(text, L"Inbox");
    EXPECT_TRUE(closeChecked);
}

TEST_F(CustomTaskDialogTest, OkTakesTheFieldAndTheCheckedAction) {
    RuleRecord record = Record(L"", 0);
    EXPECT_TRUE(Run(record, {[](HWND dialog) {
                        SetItemText(dialog, IDC_TASK_TEXT, L"Calendar");
                        ClickItem(dialog, IDC_TASK_ACTION_2);
                        PressItem(dialog, IDOK);
                    }}));
    EXPECT_EQ(record.text, L"Calendar");
    EXPECT_EQ(record.action, 1);
}

TEST_F(CustomTaskDialogTest, DoneButtonConfirmsLikeOk) {
    RuleRecord record = Record(L"", 0);
    EXPECT_TRUE(Run(record, {[](HWND dialog) {
                        SetItemText(dialog, IDC_TASK_TEXT, L"Notes");
                        ClickItem(dialog, IDC_TASK_ACTION_3);
                        PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
                    }}));
    EXPECT_EQ(record.text, L"Notes");
    EXPECT_EQ(record.action, 2);
}

TEST_F(CustomTaskDialogTest, CancelLeavesTheRecordUnchanged) {
    RuleRecord record = Record(L"Inbox", 1);
    EXPECT_FALSE(Run(record, {[](HWND dialog) {
                         SetItemText(dialog, IDC_TASK_TEXT, L"Changed");
                         ClickItem(dialog, IDC_TASK_ACTION_3);
                         PressItem(dialog, IDCANCEL);
                     }}));
    EXPECT_EQ(record.text, L"Inbox");
    EXPECT_EQ(record.action, 1);
}

TEST_F(CustomTaskDialogTest, FillsTheScreenAboveAnEmptyMenuBar) {
    RuleRecord record = Record(L"", 0);
    RECT dialogRect = {}, bar = {};
    int barButtons = -1;
    Run(record, {[&](HWND dialog) {
            GetWindowRect(dialog, &dialogRect);
            HWND menuBar = SHFindMenuBar(dialog);
            if (menuBar) {
                GetWindowRect(menuBar, &bar);
                barButtons = static_cast<int>(SendMessageW(menuBar, TB_BUTTONCOUNT, 0, 0));
            }
            PressItem(dialog, IDCANCEL);
        }});
    RECT wa;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &wa, 0);
    EXPECT_EQ(dialogRect.left, wa.left);
    EXPECT_EQ(dialogRect.top, wa.top);
    EXPECT_EQ(dialogRect.right, wa.right);
    EXPECT_EQ(barButtons, 0);
    EXPECT_EQ(dialogRect.bottom, bar.top);
}

TEST_F(CustomTaskDialogTest, FieldAndButtonsStretchToTheScreen) {
    RuleRecord record = Record(L"", 0);
    RECT client = {}, browse = {}, ok = {};
    Run(record, {[&](HWND dialog) {
            GetClientRect(dialog, &client);
            GetWindowRect(GetDlgItem(dialog, IDC_TASK_BROWSE), &browse);
            GetWindowRect(GetDlgItem(dialog, IDOK), &ok);
            MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&browse), 2);
            MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&ok), 2);
            ExpectLaidOutApart(dialog);
            PressItem(dialog, IDCANCEL);
        }});
    EXPECT_GT(browse.right, client.right * 9 / 10);
    EXPECT_LE(browse.right, client.right);
    EXPECT_GT(ok.bottom, client.bottom * 8 / 10);
}

TEST_F(CustomTaskDialogTest, BrowsePutsTheChosenWindowTitleInTheField) {
    TargetWindow target(L"CV2 Browse Target");
    RuleRecord record = Record(L"typed", 0);
    std::vector<std::wstring> offered;
    EXPECT_TRUE(Run(record, {[](HWND dialog) { PressItem(dialog, IDC_TASK_BROWSE); },
                             PickText(L"CV2 Browse Target", &offered),
                             [](HWND dialog) { PressItem(dialog, IDOK); }}));
    EXPECT_EQ(record.text, L"CV2 Browse Target");
    EXPECT_NE(std::find(offered.begin(), offered.end(), L"CV2 Browse Target"), offered.end());
}

TEST_F(CustomTaskDialogTest, CancelledPickerKeepsTheField) {
    TargetWindow target(L"CV2 Browse Target");
    RuleRecord record = Record(L"typed", 0);
    EXPECT_TRUE(Run(record, {[](HWND dialog) { PressItem(dialog, IDC_TASK_BROWSE); },
                             [](HWND picker) {
                                 SendDlgItemMessageW(picker, IDC_TASK_PICKER_LIST, LB_SETCURSEL, 0,
                                                     0);
                                 PressItem(picker, IDCANCEL);
                             },
                             [](HWND dialog) { PressItem(dialog, IDOK); }}));
    EXPECT_EQ(record.text, L"typed");
}

TEST_F(CustomTaskDialogTest, PickerWithoutSelectionChoosesNothing) {
    TargetWindow target(L"CV2 Browse Target");
    RuleRecord record = Record(L"typed", 0);
    EXPECT_TRUE(Run(record, {[](HWND dialog) { PressItem(dialog, IDC_TASK_BROWSE); },
                             [](HWND picker) { PressItem(picker, IDOK); },
                             [](HWND dialog) { PressItem(dialog, IDOK); }}));
    EXPECT_EQ(record.text, L"typed");
}

TEST_F(CustomTaskDialogTest, BrowseInProcessModeOffersProgramNames) {
    TargetWindow target(L"CV2 Browse Target");
    RuleRecord record = Record(L"", 0, true);
    std::vector<std::wstring> offered;
    EXPECT_TRUE(Run(record, {[](HWND dialog) { PressItem(dialog, IDC_TASK_BROWSE); },
                             PickText(L"win32_tests.exe", &offered),
                             [](HWND dialog) { PressItem(dialog, IDOK); }}));
    EXPECT_EQ(record.text, L"win32_tests.exe");
    EXPECT_EQ(std::find(offered.begin(), offered.end(), L"CV2 Browse Target"), offered.end());
}

// The seam under the picker.

TEST(RunningTasks, TopWindowsIncludeAVisibleWindowOfThisProgram) {
    TargetWindow target(L"CV2 Seam Target");
    bool found = false;
    for (const TopWindowInfo& w : ListTopWindows()) {
        if (w.title == L"CV2 Seam Target") {
            found = true;
            EXPECT_TRUE(w.visible);
            EXPECT_FALSE(w.owned);
            EXPECT_EQ(w.processId, GetCurrentProcessId());
            EXPECT_EQ(w.className, L"Static");
        }
    }
    EXPECT_TRUE(found);
}

TEST(RunningTasks, ProcessSnapshotHoldsThisProgram) {
    bool found = false;
    for (const ProcessInfo& p : SnapshotProcesses()) {
        if (p.processId == GetCurrentProcessId()) {
            found = true;
            EXPECT_NE(p.exeFile.find(L"win32_tests.exe"), std::wstring::npos);
        }
    }
    EXPECT_TRUE(found);
}
