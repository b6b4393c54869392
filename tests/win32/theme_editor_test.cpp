// The theme editor on real windows: a second page host in a modal dialog, driven from inside
// its own message loop. OK saves every page into the document, Cancel saves nothing, and the
// two registered messages reload and export the pages.
#include "themes/theme_editor.h"

#include <commctrl.h>

#include "app_fixture.h"
#include "platform/shell.h"
#include "ids_editor.h"
#include "theme_editor_support.h"
#include "themes/theme_messages.h"

using namespace cv2;
using cv2test::DialogDriver;
using cv2test::FieldPage;
using cv2test::TypeInto;

namespace {

const int kFieldA = 3001, kFieldB = 3002, kFieldC = 3003;
const char kStart[] = "[Settings]\r\nTheme File=Themes\\CVDefault\\CVDefault.skin\r\n"
                      "[Test]\r\nA=one\r\nB=two\r\nC=three\r\n";

class ThemeEditorTest : public cv2test::PickerHostTest {
  protected:
    void SetUp() override {
        PickerHostTest::SetUp();
        doc = cv2test::ParsedDoc(kStart);
    }
    std::vector<SettingsPage*> ThreeFields() {
        return {new FieldPage(L"A", kFieldA), new FieldPage(L"B", kFieldB),
                new FieldPage(L"C", kFieldC)};
    }
    IniDocument doc;
};

} // namespace

namespace {

std::vector<std::string> g_events;

// A field page that notes when its controls are made and when the editor paints it.
class NotingPage : public FieldPage {
  public:
    NotingPage(const wchar_t* key, int id, const char* tag) : FieldPage(key, id), m_tag(tag) {}
    void Create(HWND host) override {
        g_events.push_back(m_tag + ":Create");
        FieldPage::Create(host);
    }
    void Paint(HDC) override { g_events.push_back(m_tag + ":Paint"); }
    void OnHostShown() override { g_events.push_back(m_tag + ":HostShown"); }

  private:
    std::string m_tag;
};

// A first page that presses OK as soon as its controls are made, and notes when it is made and
// becomes current (the end of the editor's set-up).
class OkAtOncePage : public NotingPage {
  public:
    OkAtOncePage() : NotingPage(L"A", kFieldA, "A") {}
    void Create(HWND host) override {
        NotingPage::Create(host);
        PostMessageW(host, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    }
    void OnActivate() override { g_events.push_back("A:Activate"); }
};

std::vector<SettingsPage*> ThreeNotingPages() {
    return {new NotingPage(L"A", kFieldA, "A"), new NotingPage(L"B", kFieldB, "B"),
            new NotingPage(L"C", kFieldC, "C")};
}

} // namespace

// Customize shows the editor at the cost of its first page: the others are made after it has
// painted, in order. The first page hears that the editor is up before they are made, they once
// they are.
TEST_F(ThemeEditorTest, OnlyTheFirstPageIsMadeBeforeTheEditorPaintsAndTheRestAfterInOrder) {
    g_events.clear();
    ThemeEditor editor(&doc, ThreeNotingPages());
    cv2test::RunEditorShown(
        editor, host, [](HWND) {}, IDCANCEL);
    std::vector<std::string> made;
    for (const std::string& e : g_events) {
        if (e != "A:Paint")
            made.push_back(e);
    }
    ASSERT_GE(g_events.size(), 2u);
    EXPECT_EQ(g_events[0], "A:Create");
    EXPECT_EQ(g_events[1], "A:Paint") << "the first page is painted before any other is made";
    EXPECT_EQ(made, (std::vector<std::string>{"A:Create", "A:HostShown", "B:Create", "C:Create",
                                              "B:HostShown", "C:HostShown"}));
}

// OK pressed before the first paint: a message posted while the dialog is set up comes before
// its paint.
TEST_F(ThemeEditorTest, OkBeforeTheOtherPagesAreMadeMakesThemAndSavesEveryPage) {
    g_events.clear();
    doc.DeleteSection(L"Test");
    doc.SetString(L"Test", L"C", L"kept");
    ThemeEditor editor(&doc, {new OkAtOncePage, new NotingPage(L"B", kFieldB, "B"),
                              new NotingPage(L"C", kFieldC, "C")});
    DialogDriver stuckGuard({}); // cancels the editor should OK not end it
    EXPECT_TRUE(editor.Run(host));
    EXPECT_EQ(g_events,
              (std::vector<std::string>{"A:Create", "A:Activate", "B:Create", "C:Create"}))
        << "made at OK, after the set-up and before any paint";
    EXPECT_EQ(doc.GetString(L"Test", L"A", L"-"), L"");
    EXPECT_EQ(doc.GetString(L"Test", L"B", L"-"), L"");
    EXPECT_EQ(doc.GetString(L"Test", L"C", L"-"), L"kept");
}

TEST_F(ThemeEditorTest, CancelAfterChangingSeveralPagesLeavesTheDocumentAsItWas) {
    const std::string before = doc.Serialize();
    ThemeEditor editor(&doc, ThreeFields());
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            TypeInto(dlg, kFieldA, L"changed a");
            editor.Host().SelectPage(1);
            TypeInto(dlg, kFieldB, L"changed b");
            editor.Host().SelectPage(2);
            TypeInto(dlg, kFieldC, L"changed c");
        },
        IDCANCEL);
    EXPECT_FALSE(editor.Run(host));
    EXPECT_EQ(doc.Serialize(), before);
}

namespace {

// Clicks the button of `command` on the dialog's menu bar as the pointer does, and gives its text.
std::wstring ClickMenuBarButton(HWND dlg, int command) {
    HWND bar = SHFindMenuBar(dlg);
    const LRESULT index = SendMessageW(bar, TB_COMMANDTOINDEX, static_cast<WPARAM>(command), 0);
    if (!bar || index < 0)
        return L"<no such button>";
    wchar_t text[64] = {};
    SendMessageW(bar, TB_GETBUTTONTEXTW, static_cast<WPARAM>(command),
                 reinterpret_cast<LPARAM>(text));
    RECT r = {};
    SendMessageW(bar, TB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&r));
    const LPARAM at = MAKELPARAM((r.left + r.right) / 2, (r.top + r.bottom) / 2);
    SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, at);
    SendMessageW(bar, WM_LBUTTONUP, 0, at);
    return text;
}

// Presses a key in the editor's first field, through the editor's own message loop.
void PressKey(HWND dlg, WPARAM key) {
    HWND field = GetDlgItem(dlg, kFieldA);
    SetFocus(field);
    PostMessageW(field, WM_KEYDOWN, key, 1);
    PostMessageW(field, WM_KEYUP, key, 0xC0000001);
}

} // namespace

// The menu bar's Cancel ends the editor as Escape does; were it to leave the editor open, the
// OK that follows would save the typed text.
TEST_F(ThemeEditorTest, CancelOnTheMenuBarEndsTheEditorWithoutSaving) {
    const std::string before = doc.Serialize();
    ThemeEditor editor(&doc, ThreeFields());
    std::wstring label;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            TypeInto(dlg, kFieldA, L"changed a");
            label = ClickMenuBarButton(dlg, IDCANCEL);
        },
        IDOK);
    EXPECT_FALSE(editor.Run(host));
    EXPECT_EQ(label, L"Cancel");
    EXPECT_EQ(doc.Serialize(), before);
}

TEST_F(ThemeEditorTest, EscapeEndsTheEditorWithoutSaving) {
    const std::string before = doc.Serialize();
    ThemeEditor editor(&doc, ThreeFields());
    DialogDriver driver({[&](HWND dlg) {
        TypeInto(dlg, kFieldA, L"changed a");
        PressKey(dlg, VK_ESCAPE);
    }});
    EXPECT_FALSE(editor.Run(host));
    EXPECT_FALSE(driver.CancelledAStuckDialog());
    EXPECT_EQ(doc.Serialize(), before);
}

TEST_F(ThemeEditorTest, EnterEndsTheEditorWithOk) {
    ThemeEditor editor(&doc, ThreeFields());
    DialogDriver driver({[&](HWND dlg) {
        TypeInto(dlg, kFieldA, L"typed");
        PressKey(dlg, VK_RETURN);
    }});
    EXPECT_TRUE(editor.Run(host));
    EXPECT_FALSE(driver.CancelledAStuckDialog());
    EXPECT_EQ(doc.GetString(L"Test", L"A", L"-"), L"typed");
}

TEST_F(ThemeEditorTest, OkOnPagesNeverVisitedStillWritesEveryPage) {
    ThemeEditor editor(&doc, ThreeFields());
    doc.DeleteSection(L"Test");
    doc.SetString(L"Test", L"A", L"kept");
    DialogDriver::OnNextDialog([&](HWND dlg) { TypeInto(dlg, kFieldA, L"typed"); }, IDOK);
    EXPECT_TRUE(editor.Run(host));
    EXPECT_EQ(doc.GetString(L"Test", L"A", L"-"), L"typed");
    // Pages two and three were never shown; they still write their (empty) values.
    EXPECT_EQ(doc.GetString(L"Test", L"B", L"-"), L"");
    EXPECT_EQ(doc.GetString(L"Test", L"C", L"-"), L"");
}

TEST_F(ThemeEditorTest, OkEndsTheRunWithTrueAndCancelWithFalse) {
    ThemeEditor ok(&doc, ThreeFields());
    DialogDriver::OnNextDialog([](HWND) {}, IDOK);
    EXPECT_TRUE(ok.Run(host));
    ThemeEditor cancel(&doc, ThreeFields());
    DialogDriver::OnNextDialog([](HWND) {}, IDCANCEL);
    EXPECT_FALSE(cancel.Run(host));
}

TEST_F(ThemeEditorTest, UpdateMessageReloadsEveryPageFromTheDocumentAndAnswersOne) {
    ThemeEditor editor(&doc, ThreeFields());
    LRESULT answer = 0;
    std::wstring shown;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            doc.SetString(L"Test", L"A", L"imported");
            answer = SendMessageW(dlg, UpdateThemeMessage(), 0, 0);
            shown = cv2test::DlgText(dlg, kFieldA);
        },
        IDCANCEL);
    editor.Run(host);
    EXPECT_EQ(answer, 1);
    EXPECT_EQ(shown, L"imported");
}

TEST_F(ThemeEditorTest, ExportMessageSavesEveryPageIntoTheGivenDocumentAndAnswersOne) {
    const std::string before = doc.Serialize();
    ThemeEditor editor(&doc, ThreeFields());
    IniDocument target;
    LRESULT answer = 0;
    cv2test::RunEditorShown(
        editor, host,
        [&](HWND dlg) {
            TypeInto(dlg, kFieldB, L"exported");
            answer = SendMessageW(dlg, ExportThemeMessage(), 0, reinterpret_cast<LPARAM>(&target));
        },
        IDCANCEL);
    EXPECT_EQ(answer, 1);
    EXPECT_EQ(target.GetString(L"Test", L"A", L"-"), L"one");
    EXPECT_EQ(target.GetString(L"Test", L"B", L"-"), L"exported");
    EXPECT_EQ(target.GetString(L"Test", L"C", L"-"), L"three");
    EXPECT_EQ(doc.Serialize(), before);
}

TEST_F(ThemeEditorTest, PagesShareOneHostWithPageMenuAndSwitching) {
    ThemeEditor editor(&doc, ThreeFields());
    int items = 0;
    bool firstShown = false, secondShownAfterSwitch = false, firstHiddenAfterSwitch = false;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            items = GetMenuItemCount(editor.Host().Menu());
            firstShown = cv2test::Shown(dlg, kFieldA);
            editor.Host().SelectPage(1);
            secondShownAfterSwitch = cv2test::Shown(dlg, kFieldB);
            firstHiddenAfterSwitch = !cv2test::Shown(dlg, kFieldA);
        },
        IDCANCEL);
    editor.Run(host);
    EXPECT_EQ(items, 3);
    EXPECT_TRUE(firstShown);
    EXPECT_TRUE(secondShownAfterSwitch);
    EXPECT_TRUE(firstHiddenAfterSwitch);
}

TEST_F(ThemeEditorTest, NullPageIsSkipped) {
    ThemeEditor editor(&doc, {new FieldPage(L"A", kFieldA), nullptr});
    DialogDriver::OnNextDialog([](HWND) {}, IDOK);
    EXPECT_TRUE(editor.Run(host));
}

TEST_F(ThemeEditorTest, TheEditorsOwnPageListStartsWithImportTheme) {
    ThemeEditor editor(&doc);
    std::wstring header;
    DialogDriver::OnNextDialog([&](HWND) { header = editor.Host().Current()->GetName(); },
                               IDCANCEL);
    editor.Run(host);
    EXPECT_EQ(header, L"Import Theme");
}

namespace {

bool g_menuShown = false;

BOOL CALLBACK FindMenuWindow(HWND hwnd, LPARAM) {
    wchar_t cls[16] = {};
    GetClassNameW(hwnd, cls, 16);
    if (lstrcmpW(cls, L"#32768") == 0 && IsWindowVisible(hwnd))
        g_menuShown = true;
    return TRUE;
}

} // namespace

TEST_F(ThemeEditorTest, TapOnTheRightHalfOfTheHeaderOpensThePageMenu) {
    ThemeEditor editor(&doc, ThreeFields());
    bool thirdShown = false;
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            g_menuShown = false;
            cv2test::RunInsideModalLoop([] {
                EnumWindows(FindMenuWindow, 0);
                EndMenu();
            });
            RECT client;
            GetClientRect(dlg, &client);
            SendMessageW(dlg, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(client.right - 4, 4));
            thirdShown = cv2test::Shown(dlg, kFieldC);
        },
        IDCANCEL);
    editor.Run(host);
    EXPECT_TRUE(g_menuShown);
    EXPECT_FALSE(thirdShown) << "a menu ended without a choice selects nothing";
}
