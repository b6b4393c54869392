// The four bar background pages on the real theme editor and its image panel: paths moved
// through the panel, the settings dialogs each opens, and the soft keys' fixed mode.
#include "ids_ui.h"
#include "panel_pages_support.h"
#include "themes/theme_messages.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::Shown;
using cv2test::Tick;

namespace {

class BarBackgroundPages : public cv2test::PanelPagesTest {};

} // namespace

TEST_F(BarBackgroundPages, ModeTiledWithCapitalTIsSavedBackAsTiled) {
    doc = cv2test::ParsedDoc("[Topbar]\r\nMode=Tiled\r\n");
    EXPECT_TRUE(RunEditor(cv2test::kTaskbarBackgroundPage, [](HWND) {}));
    EXPECT_EQ(doc.GetString(L"Topbar", L"Mode", L"?"), L"tiled");
}

TEST_F(BarBackgroundPages, ModeOutsideTheFiveWordsIsSavedAsColor) {
    doc = cv2test::ParsedDoc("[Today Menubar]\r\nMode=stretched\r\n");
    EXPECT_TRUE(RunEditor(cv2test::kTaskbarBackgroundPage, [](HWND) {}));
    EXPECT_EQ(doc.GetString(L"Today Menubar", L"Mode", L"?"), L"color");
}

TEST_F(BarBackgroundPages, SoftKeyGradientModeIsSavedAsScaled) {
    doc = cv2test::ParsedDoc("[SoftKey]\r\nMode=gradient\r\nSolid Color=255\r\n"
                             "Use Theme Colors=FALSE\r\n");
    EXPECT_TRUE(RunEditor(cv2test::kSoftKeysPage, [](HWND) {}));
    EXPECT_EQ(doc.GetString(L"SoftKey", L"Mode", L"?"), L"scaled");
    // The rest is written back as it was read.
    EXPECT_EQ(doc.GetString(L"SoftKey", L"Solid Color", L"?"), L"255");
    EXPECT_EQ(doc.GetString(L"SoftKey", L"Use Theme Colors", L"?"), L"FALSE");
}

TEST_F(BarBackgroundPages, PageNeverShownSavesItsLoadedValuesAndPaths) {
    doc = cv2test::ParsedDoc("[Menubar]\r\nPortrait=\\p.png\r\nLandscape=\\l.png\r\n"
                             "Mode=none\r\nNormal=\\n.png\r\nLeft=7\r\n");
    EXPECT_TRUE(RunEditor(cv2test::kTaskbarBackgroundPage, [](HWND) {}));
    EXPECT_EQ(doc.GetString(L"Menubar", L"Portrait", L"?"), L"\\p.png");
    EXPECT_EQ(doc.GetString(L"Menubar", L"Landscape", L"?"), L"\\l.png");
    EXPECT_EQ(doc.GetString(L"Menubar", L"Mode", L"?"), L"none");
    EXPECT_EQ(doc.GetString(L"Menubar", L"Normal", L"?"), L"\\n.png");
    EXPECT_EQ(doc.GetString(L"Menubar", L"Left", L"?"), L"7");
}

TEST_F(BarBackgroundPages, PathTypedIntoThePanelIsSavedWhileThePageIsCurrent) {
    doc = cv2test::ParsedDoc("[Topbar]\r\nPortrait=\\old.png\r\n");
    EXPECT_TRUE(RunEditor(cv2test::kTaskbarBackgroundPage, [](HWND dlg) {
        cv2test::TypeInto(dlg, IDC_PANEL_FIRST_PATH, L"\\typed.png");
        cv2test::TypeInto(dlg, IDC_PANEL_SECOND_PATH, L"\\wide.png");
    }));
    EXPECT_EQ(doc.GetString(L"Topbar", L"Portrait", L"?"), L"\\typed.png");
    EXPECT_EQ(doc.GetString(L"Topbar", L"Landscape", L"?"), L"\\wide.png");
}

TEST_F(BarBackgroundPages, EachPageShowsItsOwnPathsInThePanel) {
    doc = cv2test::ParsedDoc(
        "[Topbar]\r\nPortrait=\\top.png\r\n[SoftKey]\r\nPortrait=\\soft.png\r\n");
    std::wstring top, soft, back;
    RunEditor(
        cv2test::kTaskbarBackgroundPage,
        [&](HWND dlg) {
            top = cv2test::DlgText(dlg, IDC_PANEL_FIRST_PATH);
            cv2test::TypeInto(dlg, IDC_PANEL_FIRST_PATH, L"\\changed.png");
            Select(cv2test::kSoftKeysPage);
            soft = cv2test::DlgText(dlg, IDC_PANEL_FIRST_PATH);
            Select(cv2test::kTaskbarBackgroundPage);
            back = cv2test::DlgText(dlg, IDC_PANEL_FIRST_PATH);
        },
        IDCANCEL);
    EXPECT_EQ(top, L"\\top.png");
    EXPECT_EQ(soft, L"\\soft.png");
    EXPECT_EQ(back, L"\\changed.png");
}

TEST_F(BarBackgroundPages, PathLongerThan259CharactersIsCut) {
    const std::string longPath(300, 'x');
    doc = cv2test::ParsedDoc("[Topbar]\r\nPortrait=" + longPath + "\r\n");
    EXPECT_TRUE(RunEditor(cv2test::kTaskbarBackgroundPage, [](HWND) {}));
    EXPECT_EQ(doc.GetString(L"Topbar", L"Portrait", L"").size(), 259u);
}

TEST_F(BarBackgroundPages, BackgroundPagesShowRowsAndSettingsAndHideListAndCheckBox) {
    cv2test::PanelShown shown;
    RunEditor(
        cv2test::kTaskbarButtonsPage,
        [&](HWND dlg) {
            Select(cv2test::kApplicationMenubarPage);
            shown = cv2test::PanelShownIn(dlg);
        },
        IDCANCEL);
    EXPECT_TRUE(shown.rows);
    EXPECT_TRUE(shown.settings);
    EXPECT_FALSE(shown.list);
    EXPECT_FALSE(shown.customColors);
    EXPECT_EQ(shown.firstLabel, L"Portrait:");
    EXPECT_EQ(shown.secondLabel, L"Landscape:");
}

TEST_F(BarBackgroundPages, SoftKeysLeavesTheListAndCheckBoxAsTheyWere) {
    bool list = false;
    RunEditor(
        cv2test::kTaskbarButtonsPage,
        [&](HWND dlg) {
            // Taskbar Buttons showed the list; the soft keys do not hide it.
            Select(cv2test::kSoftKeysPage);
            list = Shown(dlg, IDC_PANEL_LIST);
        },
        IDCANCEL);
    EXPECT_TRUE(list);
}

TEST_F(BarBackgroundPages, SettingsOpensTheBackgroundDialogOnThePagesFill) {
    doc = cv2test::ParsedDoc("[Topbar]\r\nMode=gradient\r\n");
    int shownMode = -1;
    RunSettingsDialog(
        cv2test::kTaskbarBackgroundPage,
        [&](HWND background) {
            shownMode = static_cast<int>(
                SendDlgItemMessageW(background, IDC_BACKGROUND_MODE, CB_GETCURSEL, 0, 0));
            SendDlgItemMessageW(background, IDC_BACKGROUND_MODE, CB_SETCURSEL, 4, 0);
            SendMessageW(background, WM_COMMAND, MAKEWPARAM(IDC_BACKGROUND_MODE, CBN_SELCHANGE), 0);
        },
        IDOK);
    EXPECT_EQ(shownMode, 3);
    EXPECT_EQ(doc.GetString(L"Topbar", L"Mode", L"?"), L"none");
}

TEST_F(BarBackgroundPages, SettingsOfAPageThatIsNotCurrentDoesNothing) {
    bool taken = true;
    RunEditor(
        cv2test::kTaskbarBackgroundPage,
        [&](HWND dlg) {
            // Today Menubar is not the current page: it declines the click.
            SettingsPage* today = editor->Host().Page(cv2test::kTodayMenubarPage);
            taken = today->OnCommand(MAKEWPARAM(IDC_PANEL_SETTINGS, BN_CLICKED),
                                     reinterpret_cast<LPARAM>(GetDlgItem(dlg, IDC_PANEL_SETTINGS)));
        },
        IDCANCEL);
    EXPECT_FALSE(taken);
}

TEST_F(BarBackgroundPages, CancellingTheTodayMenubarDialogKeepsFontAndCheckBox) {
    doc = cv2test::ParsedDoc("[Today Menubar]\r\nDisplay New Text=TRUE\r\nStyle=bold\r\n");
    RunSettingsDialog(
        cv2test::kTodayMenubarPage,
        [](HWND today) {
            Tick(today, IDC_TODAY_DISPLAY_NEW);
            DialogDriver::OnNextDialog([](HWND picker) { Tick(picker, IDC_FONT_ITALIC); }, IDOK);
            DialogDriver::Click(today, IDC_TODAY_FONT);
        },
        IDCANCEL);
    EXPECT_EQ(doc.GetString(L"Today Menubar", L"Display New Text", L"?"), L"TRUE");
    EXPECT_EQ(doc.GetString(L"Today Menubar", L"Style", L"?"), L"bold");
}

TEST_F(BarBackgroundPages, OkInTheTodayMenubarDialogTakesFontAndCheckBox) {
    doc = cv2test::ParsedDoc("[Today Menubar]\r\nDisplay New Text=TRUE\r\nStyle=bold\r\n");
    bool checked = false;
    RunSettingsDialog(
        cv2test::kTodayMenubarPage,
        [&](HWND today) {
            checked = IsDlgButtonChecked(today, IDC_TODAY_DISPLAY_NEW) == BST_CHECKED;
            Tick(today, IDC_TODAY_DISPLAY_NEW);
            DialogDriver::OnNextDialog([](HWND picker) { Tick(picker, IDC_FONT_ITALIC); }, IDOK);
            DialogDriver::Click(today, IDC_TODAY_FONT);
        },
        IDOK);
    EXPECT_TRUE(checked);
    EXPECT_EQ(doc.GetString(L"Today Menubar", L"Display New Text", L"?"), L"FALSE");
    EXPECT_EQ(doc.GetString(L"Today Menubar", L"Style", L"?"), L"bold,italic");
}

TEST_F(BarBackgroundPages, ApplicationMenubarWithoutMarginsSavesBothAsThree) {
    doc = cv2test::ParsedDoc("[Menubar]\r\nMode=tiled\r\n");
    EXPECT_TRUE(RunEditor(cv2test::kApplicationMenubarPage, [](HWND) {}));
    EXPECT_EQ(doc.GetString(L"Menubar", L"Left", L"?"), L"3");
    EXPECT_EQ(doc.GetString(L"Menubar", L"Right", L"?"), L"3");
}

TEST_F(BarBackgroundPages, MenubarDialogGivesItsPathsAndMarginsBack) {
    doc = cv2test::ParsedDoc("[Menubar]\r\nNormal=\\n.png\r\nLeft=5\r\n");
    std::wstring shown;
    RunSettingsDialog(
        cv2test::kApplicationMenubarPage,
        [&](HWND images) {
            shown = cv2test::DlgText(images, IDC_BUTTONS_NORMAL);
            SetDlgItemTextW(images, IDC_BUTTONS_DISABLED, L"\\d.png");
            SetDlgItemTextW(images, IDC_BUTTONS_RIGHT, L"9");
        },
        IDOK);
    EXPECT_EQ(shown, L"\\n.png");
    EXPECT_EQ(doc.GetString(L"Menubar", L"Disabled", L"?"), L"\\d.png");
    EXPECT_EQ(doc.GetString(L"Menubar", L"Left", L"?"), L"5");
    EXPECT_EQ(doc.GetString(L"Menubar", L"Right", L"?"), L"9");
}

TEST_F(BarBackgroundPages, SoftKeyDialogShowsEachKeysPicturesAndKeepsBoth) {
    doc = cv2test::ParsedDoc("[SoftKey]\r\nLeft Button=\\lb.png\r\nRight Pressed=\\rp.png\r\n");
    std::wstring left, right;
    RunSettingsDialog(
        cv2test::kSoftKeysPage,
        [&](HWND keys) {
            left = cv2test::DlgText(keys, IDC_SOFTKEY_NORMAL);
            SetDlgItemTextW(keys, IDC_SOFTKEY_DISABLED, L"\\ld.png");
            SendDlgItemMessageW(keys, IDC_SOFTKEY_KEY, CB_SETCURSEL, 1, 0);
            SendMessageW(keys, WM_COMMAND, MAKEWPARAM(IDC_SOFTKEY_KEY, CBN_SELCHANGE), 0);
            right = cv2test::DlgText(keys, IDC_SOFTKEY_PRESSED);
            SetDlgItemTextW(keys, IDC_SOFTKEY_NORMAL, L"\\rb.png");
        },
        IDOK);
    EXPECT_EQ(left, L"\\lb.png");
    EXPECT_EQ(right, L"\\rp.png");
    EXPECT_EQ(doc.GetString(L"SoftKey", L"Left Disabled", L"?"), L"\\ld.png");
    EXPECT_EQ(doc.GetString(L"SoftKey", L"Right Button", L"?"), L"\\rb.png");
    EXPECT_EQ(doc.GetString(L"SoftKey", L"Left Button", L"?"), L"\\lb.png");
}

TEST_F(BarBackgroundPages, CancelledSoftKeyDialogChangesNoPicture) {
    doc = cv2test::ParsedDoc("[SoftKey]\r\nLeft Button=\\lb.png\r\n");
    RunSettingsDialog(
        cv2test::kSoftKeysPage,
        [&](HWND keys) { SetDlgItemTextW(keys, IDC_SOFTKEY_NORMAL, L"\\x.png"); }, IDCANCEL);
    EXPECT_EQ(doc.GetString(L"SoftKey", L"Left Button", L"?"), L"\\lb.png");
}

TEST_F(BarBackgroundPages, ReloadWhileThePageIsCurrentShowsTheReloadedPaths) {
    doc = cv2test::ParsedDoc("[Topbar]\r\nPortrait=\\before.png\r\n");
    std::wstring shown;
    RunEditor(cv2test::kTaskbarBackgroundPage, [&](HWND dlg) {
        doc.SetString(L"Topbar", L"Portrait", L"\\imported.png");
        SendMessageW(dlg, UpdateThemeMessage(), 0, 0);
        shown = cv2test::DlgText(dlg, IDC_PANEL_FIRST_PATH);
    });
    EXPECT_EQ(shown, L"\\imported.png");
    EXPECT_EQ(doc.GetString(L"Topbar", L"Portrait", L"?"), L"\\imported.png");
}

TEST_F(BarBackgroundPages, ExportWritesThePathTypedIntoTheCurrentPage) {
    IniDocument target;
    RunEditor(
        cv2test::kSoftKeysPage,
        [&](HWND dlg) {
            cv2test::TypeInto(dlg, IDC_PANEL_SECOND_PATH, L"\\wide-keys.png");
            SendMessageW(dlg, ExportThemeMessage(), 0, reinterpret_cast<LPARAM>(&target));
        },
        IDCANCEL);
    EXPECT_EQ(target.GetString(L"SoftKey", L"Landscape", L"?"), L"\\wide-keys.png");
    EXPECT_EQ(target.GetString(L"SoftKey", L"Mode", L"?"), L"scaled");
    EXPECT_FALSE(doc.HasSection(L"SoftKey"));
}
