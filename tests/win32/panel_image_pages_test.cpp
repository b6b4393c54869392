// Taskbar Buttons, Start Menu Skin, Checkbox/Radio Buttons and Volume Bubble on the real theme
// editor and its image panel.
#include "ids_ui.h"
#include "pages/behaviour/plugins/plugin_registry.h"
#include "panel_pages_support.h"
#include "plugin_test_support.h"
#include "temp_folder.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::Shown;
using cv2test::Tick;

namespace {

class PanelImagePages : public cv2test::PanelPagesTest {
  protected:
    // Picks list row `row` the way the user does.
    static void ChooseRow(HWND dlg, int row) {
        SendDlgItemMessageW(dlg, IDC_PANEL_LIST, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
        SendMessageW(dlg, WM_COMMAND, MAKEWPARAM(IDC_PANEL_LIST, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(GetDlgItem(dlg, IDC_PANEL_LIST)));
    }
    static bool Enabled(HWND dlg, int id) { return IsWindowEnabled(GetDlgItem(dlg, id)) != FALSE; }
};

constexpr int kPhoneConnectedRow = 15;
constexpr int kSignalStrengthRow = 14;

} // namespace

TEST_F(PanelImagePages, TaskbarButtonsListsTheSeventeenButtonsInOrder) {
    std::vector<std::wstring> names;
    RunEditor(
        cv2test::kTaskbarButtonsPage,
        [&](HWND dlg) {
            HWND list = GetDlgItem(dlg, IDC_PANEL_LIST);
            for (int i = 0; i < 17; ++i) {
                wchar_t text[64] = {};
                SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(i),
                             reinterpret_cast<LPARAM>(text));
                names.push_back(text);
            }
        },
        IDCANCEL);
    ASSERT_EQ(names.size(), 17u);
    EXPECT_EQ(names[0], L"Start Menu");
    EXPECT_EQ(names[3], L"Notification");
    EXPECT_EQ(names[6], L"Vibrate");
    EXPECT_EQ(names[13], L"Disconnected");
    EXPECT_EQ(names[15], L"Phone Connected");
    EXPECT_EQ(names[16], L"SIP Button");
}

TEST_F(PanelImagePages, PhoneConnectedShowsTheSignalStrengthFlagAndSharesIt) {
    doc = cv2test::ParsedDoc("[Button Images]\r\nSignal Strength Custom=TRUE\r\n");
    bool shownAtStart = true, shown = false, checked = false, signalChecked = true;
    RunEditor(cv2test::kTaskbarButtonsPage, [&](HWND dlg) {
        shownAtStart = Shown(dlg, IDC_PANEL_CUSTOM_COLORS);
        ChooseRow(dlg, kPhoneConnectedRow);
        shown = Shown(dlg, IDC_PANEL_CUSTOM_COLORS);
        checked = IsDlgButtonChecked(dlg, IDC_PANEL_CUSTOM_COLORS) == BST_CHECKED;
        Tick(dlg, IDC_PANEL_CUSTOM_COLORS);
        ChooseRow(dlg, kSignalStrengthRow);
        signalChecked = IsDlgButtonChecked(dlg, IDC_PANEL_CUSTOM_COLORS) == BST_CHECKED;
    });
    EXPECT_FALSE(shownAtStart);
    EXPECT_TRUE(shown);
    EXPECT_TRUE(checked);
    EXPECT_FALSE(signalChecked);
    EXPECT_EQ(doc.GetString(L"Button Images", L"Signal Strength Custom", L"?"), L"FALSE");
    EXPECT_EQ(doc.GetString(L"Button Images", L"Battery/Memory Custom", L"?"), L"FALSE");
}

TEST_F(PanelImagePages, BatteryRowHasItsOwnFlag) {
    RunEditor(cv2test::kTaskbarButtonsPage, [&](HWND dlg) {
        ChooseRow(dlg, 7);
        Tick(dlg, IDC_PANEL_CUSTOM_COLORS);
    });
    EXPECT_EQ(doc.GetString(L"Button Images", L"Battery/Memory Custom", L"?"), L"TRUE");
    EXPECT_EQ(doc.GetString(L"Button Images", L"Signal Strength Custom", L"?"), L"FALSE");
}

TEST_F(PanelImagePages, ChoosingARowKeepsTheTypedPathsOfTheRowBefore) {
    doc = cv2test::ParsedDoc("[Button Images]\r\nSIP Normal=\\sip.png\r\n");
    std::wstring sip;
    RunEditor(cv2test::kTaskbarButtonsPage, [&](HWND dlg) {
        cv2test::TypeInto(dlg, IDC_PANEL_FIRST_PATH, L"\\start.png");
        ChooseRow(dlg, 16);
        sip = cv2test::DlgText(dlg, IDC_PANEL_FIRST_PATH);
        cv2test::TypeInto(dlg, IDC_PANEL_SECOND_PATH, L"\\sip-down.png");
    });
    EXPECT_EQ(sip, L"\\sip.png");
    EXPECT_EQ(doc.GetString(L"Button Images", L"Start Menu Normal", L"?"), L"\\start.png");
    EXPECT_EQ(doc.GetString(L"Button Images", L"SIP Pressed", L"?"), L"\\sip-down.png");
}

TEST_F(PanelImagePages, ThemeWithoutButtonImagesSaves34EmptyImagesAndFlagsFalse) {
    EXPECT_TRUE(RunEditor(cv2test::kTaskbarBackgroundPage, [](HWND) {}));
    const auto entries = doc.GetSectionEntries(L"Button Images");
    ASSERT_GE(entries.size(), 36u);
    for (size_t i = 0; i < 34; ++i)
        EXPECT_STREQ(entries[i].second, L"") << entries[i].first;
    EXPECT_EQ(doc.GetString(L"Button Images", L"Battery/Memory Custom", L"?"), L"FALSE");
    EXPECT_EQ(doc.GetString(L"Button Images", L"Signal Strength Custom", L"?"), L"FALSE");
}

TEST_F(PanelImagePages, StartMenuSkinShowsItsPicturesWithoutPreviews) {
    bool paths = false, previews = true, settings = false;
    std::wstring first;
    RunEditor(
        cv2test::kStartMenuSkinPage,
        [&](HWND dlg) {
            paths = Shown(dlg, IDC_PANEL_FIRST_PATH) && Shown(dlg, IDC_PANEL_SECOND_BROWSE);
            previews = Shown(dlg, IDC_PANEL_FIRST_PREVIEW) || Shown(dlg, IDC_PANEL_SECOND_PREVIEW);
            settings = Shown(dlg, IDC_PANEL_SETTINGS);
            first = cv2test::DlgText(dlg, IDC_PANEL_FIRST_LABEL);
        },
        IDCANCEL);
    EXPECT_TRUE(paths);
    EXPECT_FALSE(previews);
    EXPECT_TRUE(settings);
    EXPECT_EQ(first, L"First Level:");
}

TEST_F(PanelImagePages, DontUseImagesLeavesTheSubmenuArrowRowEnabled) {
    doc = cv2test::ParsedDoc("[Start Menu Skin]\r\nUse Colors=TRUE\r\n");
    bool arrow = false, arrowBrowse = false, program = true, helpBrowse = true, margin = true,
         background = false;
    RunSettingsDialog(
        cv2test::kStartMenuSkinPage,
        [&](HWND menu) {
            arrow = Enabled(menu, IDC_MENU_ARROW);
            arrowBrowse = Enabled(menu, IDC_MENU_ARROW_BROWSE);
            program = Enabled(menu, IDC_MENU_PROGRAM);
            helpBrowse = Enabled(menu, IDC_MENU_HELP_BROWSE);
            margin = Enabled(menu, IDC_MENU_SUB_RIGHT);
            background = Enabled(menu, IDC_MENU_BACKGROUND);
        },
        IDCANCEL, IDCANCEL);
    EXPECT_TRUE(arrow);
    EXPECT_TRUE(arrowBrowse);
    EXPECT_FALSE(program);
    EXPECT_FALSE(helpBrowse);
    EXPECT_FALSE(margin);
    EXPECT_TRUE(background);
}

TEST_F(PanelImagePages, UncheckingDontUseImagesDisablesTheColourButtons) {
    doc = cv2test::ParsedDoc("[Start Menu Skin]\r\nUse Colors=TRUE\r\n");
    bool program = false, highlight = true;
    RunSettingsDialog(
        cv2test::kStartMenuSkinPage,
        [&](HWND menu) {
            Tick(menu, IDC_MENU_NO_IMAGES);
            program = Enabled(menu, IDC_MENU_PROGRAM);
            highlight = Enabled(menu, IDC_MENU_HIGHLIGHT);
        },
        IDOK);
    EXPECT_TRUE(program);
    EXPECT_FALSE(highlight);
    EXPECT_EQ(doc.GetString(L"Start Menu Skin", L"Use Colors", L"?"), L"FALSE");
}

TEST_F(PanelImagePages, StartMenuDialogOkTakesIconsAndMarginsButNotThePictures) {
    doc = cv2test::ParsedDoc("[Start Menu Skin]\r\nStart Menu Picture=\\pic.png\r\n"
                             "Find Icon=\\find.png\r\n");
    std::wstring find;
    RunSettingsDialog(
        cv2test::kStartMenuSkinPage,
        [&](HWND menu) {
            find = cv2test::DlgText(menu, IDC_MENU_FIND);
            SetDlgItemTextW(menu, IDC_MENU_ARROW, L"\\arrow.png");
            SetDlgItemTextW(menu, IDC_MENU_SUB_LEFT, L"12");
            SetDlgItemTextW(menu, IDC_MENU_RIGHT, L"letters");
        },
        IDOK);
    EXPECT_EQ(find, L"\\find.png");
    EXPECT_EQ(doc.GetString(L"Start Menu Skin", L"Start Menu Picture", L"?"), L"\\pic.png");
    EXPECT_EQ(doc.GetString(L"Start Menu Skin", L"Submenu Arrow", L"?"), L"\\arrow.png");
    EXPECT_EQ(doc.GetString(L"Start Menu Skin", L"Sublevel Left Margin", L"?"), L"12");
    EXPECT_EQ(doc.GetString(L"Start Menu Skin", L"Right Margin", L"?"), L"0");
}

TEST_F(PanelImagePages, StartMenuMarginFieldsTakeDigitsOnly) {
    std::vector<std::wstring> typed;
    RunSettingsDialog(
        cv2test::kStartMenuSkinPage,
        [&](HWND menu) {
            for (int id : {IDC_MENU_LEFT, IDC_MENU_RIGHT, IDC_MENU_SUB_LEFT, IDC_MENU_SUB_RIGHT}) {
                HWND box = GetDlgItem(menu, id);
                SetWindowTextW(box, L"");
                for (wchar_t c : std::wstring(L"1a2-B3"))
                    SendMessageW(box, WM_CHAR, c, 1);
                typed.push_back(cv2test::DlgText(menu, id));
            }
        },
        IDCANCEL);
    EXPECT_EQ(typed, (std::vector<std::wstring>{L"123", L"123", L"123", L"123"}));
}

TEST_F(PanelImagePages, ThemeWithoutStartMenuSkinSavesUseColorsFalseAndZeroMargins) {
    EXPECT_TRUE(RunEditor(cv2test::kStartMenuSkinPage, [](HWND) {}));
    EXPECT_EQ(doc.GetString(L"Start Menu Skin", L"Use Colors", L"?"), L"FALSE");
    EXPECT_EQ(doc.GetString(L"Start Menu Skin", L"Left Margin", L"?"), L"0");
    EXPECT_EQ(doc.GetString(L"Start Menu Skin", L"Sublevel Right Margin", L"?"), L"0");
}

TEST_F(PanelImagePages, CheckRadioShowsBothRowsWithTheirLabelsAndNothingElse) {
    cv2test::PanelShown shown;
    RunEditor(
        cv2test::kTaskbarButtonsPage,
        [&](HWND dlg) {
            Select(cv2test::kCheckRadioPage);
            shown = cv2test::PanelShownIn(dlg);
        },
        IDCANCEL);
    EXPECT_TRUE(shown.rows);
    EXPECT_FALSE(shown.list);
    EXPECT_FALSE(shown.settings);
    EXPECT_FALSE(shown.customColors);
    EXPECT_EQ(shown.firstLabel, L"Checks:");
    EXPECT_EQ(shown.secondLabel, L"Radios:");
}

TEST_F(PanelImagePages, CheckRadioKeepsTheApplicationButtonKeysOfButtons) {
    doc = cv2test::ParsedDoc("[Buttons]\r\nNormal=\\b.png\r\nCheckbox=\\old.png\r\n");
    RunEditor(cv2test::kCheckRadioPage,
              [](HWND dlg) { cv2test::TypeInto(dlg, IDC_PANEL_SECOND_PATH, L"\\radio.png"); });
    EXPECT_EQ(doc.GetString(L"Buttons", L"Normal", L"?"), L"\\b.png");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Checkbox", L"?"), L"\\old.png");
    EXPECT_EQ(doc.GetString(L"Buttons", L"Radiobutton", L"?"), L"\\radio.png");
}

TEST_F(PanelImagePages, ThemeWithoutVolumeBubbleSavesAnEmptyImage) {
    EXPECT_TRUE(RunEditor(cv2test::kTaskbarBackgroundPage, [](HWND) {}));
    ASSERT_TRUE(doc.HasSection(L"Volume Bubble"));
    EXPECT_EQ(doc.GetString(L"Volume Bubble", L"Image", L"?"), L"");
}

TEST_F(PanelImagePages, VolumeBubbleAfterStartMenuSkinKeepsItsLabelAndShowsOneRow) {
    bool firstRow = false, preview = false, secondRow = true, list = true, settings = true;
    std::wstring label;
    RunEditor(
        cv2test::kStartMenuSkinPage,
        [&](HWND dlg) {
            Select(cv2test::kVolumeBubblePage);
            label = cv2test::DlgText(dlg, IDC_PANEL_FIRST_LABEL);
            firstRow = Shown(dlg, IDC_PANEL_FIRST_PATH) && Shown(dlg, IDC_PANEL_FIRST_BROWSE);
            preview = Shown(dlg, IDC_PANEL_FIRST_PREVIEW);
            secondRow = Shown(dlg, IDC_PANEL_SECOND_LABEL) || Shown(dlg, IDC_PANEL_SECOND_PATH) ||
                        Shown(dlg, IDC_PANEL_SECOND_PREVIEW);
            list = Shown(dlg, IDC_PANEL_LIST);
            settings = Shown(dlg, IDC_PANEL_SETTINGS);
        },
        IDCANCEL);
    EXPECT_EQ(label, L"First Level:");
    EXPECT_TRUE(firstRow);
    EXPECT_TRUE(preview);
    EXPECT_FALSE(secondRow);
    EXPECT_FALSE(list);
    EXPECT_FALSE(settings);
}

TEST_F(PanelImagePages, VolumeBubbleSavesThePathTypedIntoTheFirstRow) {
    RunEditor(cv2test::kVolumeBubblePage,
              [](HWND dlg) { cv2test::TypeInto(dlg, IDC_PANEL_FIRST_PATH, L"\\bubble.png"); });
    EXPECT_EQ(doc.GetString(L"Volume Bubble", L"Image", L"?"), L"\\bubble.png");
}

namespace {

// The application's plug-in list holding the sample plug-in for one test.
class TaskbarButtonsWithPlugin : public PanelImagePages {
  protected:
    void SetUp() override {
        PanelImagePages::SetUp();
        SharedPlugins().Load(
            {cv2test::TextValue(L"Sample", cv2test::CopyPlugin(dir, L"SamplePlugin.dll"))});
    }
    void TearDown() override {
        SharedPlugins().Release();
        PanelImagePages::TearDown();
    }
    cv2test::TempFolder dir;
};

} // namespace

TEST_F(TaskbarButtonsWithPlugin, PluginRowsFollowTheBuiltInOnesAndKeepTheirOwnImages) {
    doc = cv2test::ParsedDoc("[Button Images]\r\nSample Mail Normal=\\mail.png\r\n");
    std::wstring name, mail;
    RunEditor(cv2test::kTaskbarButtonsPage, [&](HWND dlg) {
        wchar_t text[64] = {};
        SendDlgItemMessageW(dlg, IDC_PANEL_LIST, CB_GETLBTEXT, 17, reinterpret_cast<LPARAM>(text));
        name = text;
        ChooseRow(dlg, 18);
        mail = cv2test::DlgText(dlg, IDC_PANEL_FIRST_PATH);
        ChooseRow(dlg, 19);
        cv2test::TypeInto(dlg, IDC_PANEL_SECOND_PATH, L"\\torch-down.png");
    });
    EXPECT_EQ(name, L"Sample Weather");
    EXPECT_EQ(mail, L"\\mail.png");
    EXPECT_EQ(doc.GetString(L"Button Images", L"Sample Mail Normal", L"?"), L"\\mail.png");
    EXPECT_EQ(doc.GetString(L"Button Images", L"Sample Torch Pressed", L"?"), L"\\torch-down.png");
}
