// Screenshots of the rule list pages, the custom task dialog and the list picker on the device
// screen the run is set to, with a check that nothing is cut off or overlapping.
#include <gtest/gtest.h>

#include "ids_behaviour.h"
#include "pages/behaviour/custom_task_dialog.h"
#include "pages/behaviour/rule_pages.h"
#include "rule_page_support.h"
#include "screen_capture.h"
#include "store/scale.h"
#include "store/screen.h"

using namespace cv2;
using namespace cv2test;

namespace {

void ShootPage(SettingsPage& page, const std::string& config, const wchar_t* name) {
    PageHost host;
    IniDocument doc = DocOf(config);
    host.Add(page);
    page.Load(&doc);
    host.SelectRow(0);
    ExpectLaidOutApart(host.Window());
    EXPECT_FALSE(SaveScreenshot(name).empty());
    EXPECT_TRUE(ScreenHasContent());
    page.OnDestroy();
}

// Opens the dialog on `record`, checks its layout and saves a picture of it.
void ShootDialog(RuleRecord record, const wchar_t* caption, const wchar_t* name) {
    PageHost host;
    std::wstring saved;
    DialogDriver driver({[&](HWND dialog) {
        ExpectLaidOutApart(dialog);
        saved = SaveScreenshot(name);
        PressItem(dialog, IDCANCEL);
    }});
    RunCustomTaskDialog(host.Window(), caption, record);
    EXPECT_TRUE(driver.AllStepsRun());
    EXPECT_FALSE(saved.empty());
}

} // namespace

TEST(TaskManagementPageScreens, Rules) {
    TaskManagementPage page;
    ShootPage(page,
              "[Custom Tasks]\n\"ActiveSync\"=ignore\n\"Calendar\"=minimize\n\"Phone\"=ignore\n"
              "\"Pocket Internet Explorer - a long window title\"=close\n",
              L"task_management_page");
}

TEST(SipPanelPageScreens, Rules) {
    SipPanelPage page;
    ShootPage(page, "[Custom SIP]\n\"Notes\"=1\n\"Calculator\"=0\n\"Messaging\"=1\n",
              L"sip_panel_page");
}

TEST(SkinnedApplicationsPageScreens, Rules) {
    SkinnedApplicationsPage page;
    ShootPage(page,
              "[Dont Skin]\nREPLIGO.EXE=1\nTMAIL.EXE=1\n[General Settings]\nIgnore All Apps=TRUE\n",
              L"skinned_applications_page");
}

TEST(CustomTaskDialogScreens, WindowActions) {
    RuleRecord record;
    record.text = L"Calendar";
    record.action = 1;
    ShootDialog(record, L"Task Management", L"custom_task_dialog");
}

TEST(CustomTaskDialogScreens, ShowHide) {
    RuleRecord record;
    record.text = L"Notes";
    record.action = 1;
    record.showHideMode = true;
    ShootDialog(record, L"SIP Panel", L"custom_task_dialog_show_hide");
}

TEST(CustomTaskDialogScreens, ProcessName) {
    RuleRecord record;
    record.text = L"REPLIGO.EXE";
    record.processMode = true;
    ShootDialog(record, L"Skinned Applications", L"custom_task_dialog_process");
}

// The picker keeps its buttons under the list on portrait and square screens and beside it on
// landscape screens.
TEST(TaskPickerScreens, RunningWindows) {
    PageHost host;
    HWND target = CreateWindowExW(0, L"STATIC", L"Calendar", WS_OVERLAPPEDWINDOW, 0, 0, 80, 60,
                                  nullptr, nullptr, nullptr, nullptr);
    ShowWindow(target, SW_SHOWNOACTIVATE);
    RECT list = {}, ok = {};
    std::wstring saved;
    DialogDriver driver({[](HWND dialog) { PressItem(dialog, IDC_TASK_BROWSE); },
                         [&](HWND picker) {
                             GetWindowRect(GetDlgItem(picker, IDC_TASK_PICKER_LIST), &list);
                             GetWindowRect(GetDlgItem(picker, IDOK), &ok);
                             ExpectLaidOutApart(picker);
                             SendDlgItemMessageW(picker, IDC_TASK_PICKER_LIST, LB_SETCURSEL, 0, 0);
                             saved = SaveScreenshot(L"task_picker");
                             PressItem(picker, IDCANCEL);
                         },
                         [](HWND dialog) { PressItem(dialog, IDCANCEL); }});
    RuleRecord record;
    RunCustomTaskDialog(host.Window(), L"Task Management", record);
    DestroyWindow(target);
    EXPECT_TRUE(driver.AllStepsRun());
    EXPECT_FALSE(saved.empty());
    if (IsPortraitWidth(ScreenWidth()))
        EXPECT_GE(ok.top, list.bottom);
    else
        EXPECT_GE(ok.left, list.right);
}
