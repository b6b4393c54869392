// The theme editor on real windows: a second page host in a modal dialog, driven from inside
// its own message loop. OK saves every page into the document, Cancel saves nothing, and the
// two registered messages reload and export the pages.
#include "themes/theme_editor.h"

#include "app/app_messages.h"
#include "ids_editor.h"
#include "theme_editor_support.h"

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
    DialogDriver::OnNextDialog(
        [&](HWND dlg) {
            TypeInto(dlg, kFieldB, L"exported");
            answer = SendMessageW(dlg, ExportThemeMessage(), 0, reinterpret_cast<LPARAM>(&target));
        },
        IDCANCEL);
    editor.Run(host);
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
