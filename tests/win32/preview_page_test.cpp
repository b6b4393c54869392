// The theme editor's Preview page, in-process: its place in the page menu, what it shows (the
// pages' values not yet saved, never written into the document), the tap on the start button,
// and screenshots of it on the device screen of the run.
#include <gtest/gtest.h>

#include "background_dialog_steps.h"
#include "control_pages_support.h"
#include "temp_folder.h"
#include "theme_editor_support.h"
#include "themes/preview/preview_page.h"
#include "ui/image/bmp_bytes.h"

using namespace cv2;
using cv2test::RunEditorShown;

namespace {

class PreviewPageTest : public cv2test::PickerHostTest {
  protected:
    static PreviewPage& PreviewOf(ThemeEditor& editor) {
        PageHost& pages = editor.Host();
        return *static_cast<PreviewPage*>(pages.Page(pages.PageCount() - 1));
    }
    static void ShowPreview(ThemeEditor& editor) {
        editor.Host().SelectPage(editor.Host().PageCount() - 1);
    }
    // Taps the middle of the preview's start button the way the pen does.
    static void TapStartButton(PreviewPage& page) {
        const SceneElement* start = page.View().Current().Find(SceneKind::StartButton);
        ASSERT_TRUE(start);
        const POINT origin = page.View().SceneOrigin();
        const SIZE shown = page.View().ShownSize();
        const Scene& scene = page.View().Current();
        const int x =
            origin.x + (start->rect.left + start->rect.right) / 2 * shown.cx / scene.width;
        const int y =
            origin.y + (start->rect.top + start->rect.bottom) / 2 * shown.cy / scene.height;
        SendMessageW(page.View().Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    }

    IniDocument doc;
};

} // namespace

TEST_F(PreviewPageTest, PreviewIsTheLastItemOfThePageMenuAfterALine) {
    ThemeEditor editor(&doc);
    int items = 0;
    MENUITEMINFOW line = {};
    line.cbSize = sizeof line;
    line.fMask = MIIM_FTYPE;
    std::wstring last;
    RunEditorShown(
        editor, host,
        [&](HWND) {
            HMENU menu = editor.Host().Menu();
            items = GetMenuItemCount(menu);
            GetMenuItemInfoW(menu, static_cast<UINT>(items - 2), TRUE, &line);
            wchar_t text[64] = {};
            GetMenuStringW(menu, static_cast<UINT>(items - 1), text, 64, MF_BYPOSITION);
            last = text;
        },
        IDCANCEL);
    EXPECT_EQ(items, static_cast<int>(EditorPages().size()) + 2);
    EXPECT_TRUE(line.fType & MFT_SEPARATOR);
    EXPECT_EQ(last, L"Preview");
}

TEST_F(PreviewPageTest, ShowsWhatOkWouldSaveWithoutWritingIt) {
    doc = cv2test::ParsedDoc("[Colors]\nActive Caption=255\n[Topbar]\nMode=color\n");
    const std::string before = doc.Serialize();
    ThemeEditor editor(&doc);
    ColorRef caption = 0;
    std::wstring typed;
    RunEditorShown(
        editor, host,
        [&](HWND dlg) {
            cv2test::ShowPage(editor, L"Taskbar Background");
            cv2test::TypeInto(dlg, IDC_PANEL_FIRST_PATH, L"\\typed.bmp");
            ShowPreview(editor);
            PreviewPage& page = PreviewOf(editor);
            typed = page.Scratch().GetString(L"Topbar", L"Portrait", L"");
            caption = page.View().Current().Find(SceneKind::Caption)->fill.color;
        },
        IDCANCEL);
    EXPECT_EQ(typed, L"\\typed.bmp");
    EXPECT_EQ(caption, 255u);
    EXPECT_EQ(doc.Serialize(), before) << "Cancel after the preview leaves the document alone";
}

TEST_F(PreviewPageTest, OkAfterThePreviewSavesAsWithoutIt) {
    ThemeEditor editor(&doc);
    RunEditorShown(
        editor, host,
        [&](HWND dlg) {
            cv2test::ShowPage(editor, L"Taskbar Background");
            cv2test::TypeInto(dlg, IDC_PANEL_FIRST_PATH, L"\\typed.bmp");
            ShowPreview(editor);
        },
        IDOK);
    EXPECT_EQ(doc.GetString(L"Topbar", L"Portrait", L""), L"\\typed.bmp");
}

TEST_F(PreviewPageTest, TapOnTheStartButtonOpensAndClosesTheStartMenu) {
    ThemeEditor editor(&doc);
    bool closedFirst = false, openAfterTap = false, closedAfterSecond = false;
    RunEditorShown(
        editor, host,
        [&](HWND) {
            ShowPreview(editor);
            PreviewPage& page = PreviewOf(editor);
            closedFirst = !page.View().Current().Find(SceneKind::StartMenu);
            TapStartButton(page);
            openAfterTap = page.View().Current().Find(SceneKind::StartMenu) != nullptr;
            TapStartButton(page);
            closedAfterSecond = !page.View().Current().Find(SceneKind::StartMenu);
        },
        IDCANCEL);
    EXPECT_TRUE(closedFirst);
    EXPECT_TRUE(openAfterTap);
    EXPECT_TRUE(closedAfterSecond);
}

TEST_F(PreviewPageTest, PreviewHidesTheImagePanelAndSaysItIsAnApproximation) {
    ThemeEditor editor(&doc);
    bool panel = true, note = false;
    std::wstring text;
    RunEditorShown(
        editor, host,
        [&](HWND dlg) {
            cv2test::ShowPage(editor, L"Taskbar Background");
            ShowPreview(editor);
            panel = cv2test::Shown(dlg, IDC_PANEL_FIRST_PATH);
            note = cv2test::Shown(dlg, IDC_PREVIEW_NOTE);
            text = cv2test::DlgText(dlg, IDC_PREVIEW_NOTE);
        },
        IDCANCEL);
    EXPECT_FALSE(panel);
    EXPECT_TRUE(note);
    EXPECT_EQ(text, Localized(IDS_PREVIEW_NOTE));
}

TEST_F(PreviewPageTest, ThePictureIsTheWholeScreenShrunkIntoThePage) {
    ThemeEditor editor(&doc);
    SceneRect scene;
    SIZE shown = {};
    RECT view = {};
    RunEditorShown(
        editor, host,
        [&](HWND) {
            ShowPreview(editor);
            PreviewPage& page = PreviewOf(editor);
            const Scene& s = page.View().Current();
            scene = {0, 0, s.width, s.height};
            shown = page.View().ShownSize();
            GetClientRect(page.View().Window(), &view);
        },
        IDCANCEL);
    EXPECT_EQ(scene.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(scene.bottom, GetSystemMetrics(SM_CYSCREEN));
    EXPECT_LE(shown.cx, view.right);
    EXPECT_LE(shown.cy, view.bottom);
    EXPECT_GT(shown.cx, 0);
    EXPECT_NEAR(static_cast<double>(shown.cx) / shown.cy,
                static_cast<double>(scene.right) / scene.bottom, 0.05);
}

namespace {

// A theme with pictures for the screenshots: a gradient bar, a picture behind the start menu,
// skinned buttons.
class PreviewPageScreens : public PreviewPageTest {
  protected:
    void SetUp() override {
        PreviewPageTest::SetUp();
        Write(L"start.bmp", 24, 24, {0x2080F0});
        Write(L"menu.bmp", 40, 40, {0xF0E0D0, 0xE0C0A0});
        Write(L"button.bmp", 24, 12, {0x804020, 0xC08040, 0xC08040, 0x804020});
        Write(L"bubble.bmp", 80, 30, {0x303030, 0x505050});
        const std::wstring path = dir.Path();
        const std::string folder(path.begin(), path.end());
        doc = cv2test::ParsedDoc(
            "[Topbar]\nMode=gradient\nUse Theme Colors=FALSE\nLeft Color=8404992\n"
            "Right Color=16744448\n[Today Menubar]\nMode=gradient\nUse Theme Colors=FALSE\n"
            "Left Color=4210752\nRight Color=8421504\n[Button Images]\nStart Menu Normal=" +
            folder + "start.bmp\n[Start Menu Skin]\nStart Menu Picture=" + folder +
            "menu.bmp\nStart Menu Picture 2=" + folder +
            "menu.bmp\nLeft Margin=6\n"
            "[Buttons]\nnormal=" +
            folder +
            "button.bmp\nleft=4\nright=4\nColor=16777215\n"
            "[Volume Bubble]\nImage=" +
            folder + "bubble.bmp\n");
    }
    void Write(const std::wstring& name, int width, int height, std::vector<ColorRef> bands) {
        PixelImage p = MakePixelImage(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const ColorRef c = bands[static_cast<size_t>(x) * bands.size() / width];
                p.At(x, y)[0] = static_cast<unsigned char>(BlueOf(c));
                p.At(x, y)[1] = static_cast<unsigned char>(GreenOf(c));
                p.At(x, y)[2] = static_cast<unsigned char>(RedOf(c));
            }
        const std::vector<unsigned char> bytes = BmpBytes(p);
        dir.Write(name, std::string(bytes.begin(), bytes.end()));
    }
    void Shoot(const wchar_t* name, bool menuOpen) {
        ThemeEditor editor(&doc);
        RunEditorShown(
            editor, host,
            [&](HWND dlg) {
                ShowPreview(editor);
                if (menuOpen)
                    TapStartButton(PreviewOf(editor));
                cv2test::ExpectLaidOutApart(dlg);
                cv2test::ExpectTextsFit(dlg);
                ShowWindow(dlg, SW_SHOW);
                UpdateWindow(dlg);
                cv2test::PumpMessages(200);
                if (!cv2test::ScreenName().empty()) {
                    EXPECT_FALSE(cv2test::SaveScreenshot(name).empty());
                }
                EXPECT_TRUE(cv2test::ScreenHasContent());
            },
            IDCANCEL);
    }
    cv2test::TempFolder dir;
};

} // namespace

TEST_F(PreviewPageScreens, PreviewPage) {
    Shoot(L"theme_editor_preview", false);
}

TEST_F(PreviewPageScreens, PreviewPageWithTheStartMenuOpen) {
    Shoot(L"theme_editor_preview_start_menu", true);
}
