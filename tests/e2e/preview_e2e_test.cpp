// The preview of the bar in the real program: the theme editor's Preview page shows values not
// yet saved and saves none of them; My Theme's strip follows the selected theme; the command
// line writes an image file.
#include <windows.h>

#include <string>

#include "device_fixture.h"
#include "ids_appearance_controls.h"
#include "ids_editor.h"
#include "ids_themes.h"
#include "ids_ui.h"
#include "screen_capture.h"
#include "themes/theme_editor.h"
#include "ui/image/bmp_bytes.h"
#include "ui/image/image_loader.h"

namespace cv2test {
namespace {

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

// A picture file of one colour.
std::string SolidBmp(int width, int height, COLORREF color) {
    cv2::PixelImage image = cv2::MakePixelImage(width, height);
    for (size_t i = 0; i < image.pixels.size(); i += 4) {
        image.pixels[i] = GetBValue(color);
        image.pixels[i + 1] = GetGValue(color);
        image.pixels[i + 2] = GetRValue(color);
    }
    const std::vector<unsigned char> bytes = cv2::BmpBytes(image);
    return std::string(bytes.begin(), bytes.end());
}

bool Near(COLORREF a, COLORREF b) {
    return std::abs(GetRValue(a) - GetRValue(b)) <= 8 &&
           std::abs(GetGValue(a) - GetGValue(b)) <= 8 && std::abs(GetBValue(a) - GetBValue(b)) <= 8;
}

// How many pixels of a rectangle of the screen show a colour close to `color`.
int PixelsNear(const RECT& r, COLORREF color) {
    int count = 0;
    for (int y = r.top; y < r.bottom; y += 2)
        for (int x = r.left; x < r.right; x += 2)
            count += Near(ScreenPixel(x, y), color) ? 1 : 0;
    return count;
}

RECT ScreenRectOf(HWND window) {
    RECT r = {};
    GetWindowRect(window, &r);
    return r;
}

class PreviewE2E : public DeviceFixture {
  protected:
    void StartOnCustomTheme(const std::string& appearance) {
        WriteText(L"config.ini",
                  "[Settings]\nTheme File=" + Narrow(File(L"config.ini")) + "\n" + appearance);
        ASSERT_TRUE(StartEditor());
        m_editorDialog = OpenThemeEditor();
        ASSERT_TRUE(m_editorDialog);
    }

    void VisitPage(int index) { SelectEditorPage(m_editorDialog, index); }

    // The Preview page comes after every other page.
    static int PreviewIndex() {
        int count = 0;
        for (cv2::SettingsPage* page : cv2::EditorPages()) {
            delete page;
            ++count;
        }
        return count;
    }

    // On System Colors, the selected colour (Active Caption) changed to `color` in the picker.
    void ChangeActiveCaption(COLORREF color) {
        VisitPage(EditorPageIndex(L"System Colors"));
        HWND change = GetDlgItem(m_editorDialog, IDC_COLORS_CHANGE);
        ASSERT_TRUE(change);
        PostMessageW(change, BM_CLICK, 0, 0);
        HWND picker = nullptr;
        ASSERT_TRUE(WaitFor([&] {
            picker = FindWindowW(L"#32770", L"Choose Color");
            return picker && IsWindowVisible(picker);
        })) << "no colour picker";
        const int edits[3] = {IDC_COLOR_RED_EDIT, IDC_COLOR_GREEN_EDIT, IDC_COLOR_BLUE_EDIT};
        const int values[3] = {GetRValue(color), GetGValue(color), GetBValue(color)};
        for (int i = 0; i < 3; ++i) {
            const std::wstring text = std::to_wstring(values[i]);
            SendDlgItemMessageW(picker, edits[i], WM_SETTEXT, 0,
                                reinterpret_cast<LPARAM>(text.c_str()));
        }
        PostMessageW(picker, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(picker); }));
    }

    HWND PreviewView() const { return GetDlgItem(m_editorDialog, IDC_PREVIEW_VIEW); }

    HWND m_editorDialog = nullptr;
};

} // namespace

TEST_F(PreviewE2E, PreviewShowsUnsavedColorAndPictureAndNothingReachesConfigIni) {
    const COLORREF picture = RGB(0, 200, 40);
    const COLORREF caption = RGB(250, 20, 180);
    WriteText(L"green.bmp", SolidBmp(16, 16, picture));
    StartOnCustomTheme("[Topbar]\nMode=scaled\n");

    ChangeActiveCaption(caption);
    VisitPage(EditorPageIndex(L"Taskbar Background"));
    SendMessageW(GetDlgItem(m_editorDialog, IDC_PANEL_FIRST_PATH), WM_SETTEXT, 0,
                 reinterpret_cast<LPARAM>(File(L"green.bmp").c_str()));
    VisitPage(PreviewIndex());
    ASSERT_TRUE(WaitFor([&] { return PreviewView() && IsWindowVisible(PreviewView()); }))
        << "the Preview page shows no picture";
    UpdateWindow(PreviewView());
    Sleep(300);
    const RECT view = ScreenRectOf(PreviewView());
    const RECT topStrip = {view.left, view.top, view.right, view.top + 8};
    EXPECT_GT(PixelsNear(topStrip, picture), 10) << "the typed top bar picture shows";
    EXPECT_GT(PixelsNear(view, caption), 10) << "the changed caption colour shows";
    SaveScreenshot(L"e2e-preview");

    PostMessageW(m_editorDialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(m_editorDialog); }));
    Apply();
    const std::string after = ReadText(L"config.ini");
    EXPECT_EQ(after.find("green.bmp"), std::string::npos);
    EXPECT_EQ(after.find(std::to_string(caption)), std::string::npos);
    EXPECT_EQ(SectionText("Colors"), "<missing>");
}

TEST_F(PreviewE2E, MyThemeStripFollowsTheSelectedThemesTopBar) {
    CreateDirectoryW(File(L"Themes").c_str(), nullptr);
    CreateDirectoryW(File(L"Themes\\Red").c_str(), nullptr);
    CreateDirectoryW(File(L"Themes\\Blue").c_str(), nullptr);
    WriteText(L"Themes\\Red\\red.skin",
              "[Skin Info]\nName=Red Bar\n[Topbar]\nMode=color\nSolid Color=255\n");
    WriteText(L"Themes\\Blue\\blue.skin",
              "[Skin Info]\nName=Blue Bar\n[Topbar]\nMode=color\nSolid Color=16711680\n");
    WriteText(L"config.ini", "[Settings]\n");
    ASSERT_TRUE(StartEditor());
    SendMessageW(m_main, WM_NULL, 0, 0);
    HWND list = ShownControl(IDC_THEMES_LIST);
    ASSERT_TRUE(list);
    for (COLORREF color : {RGB(255, 0, 0), RGB(0, 0, 255)}) {
        const wchar_t* name = color == RGB(255, 0, 0) ? L"Red Bar" : L"Blue Bar";
        const LRESULT row = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(name));
        ASSERT_GE(row, 0);
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        SendMessageW(m_main, WM_COMMAND, MAKEWPARAM(IDC_THEMES_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
        HWND strip = ShownControl(IDC_THEMES_PREVIEW);
        ASSERT_TRUE(strip) << "no strip on My Theme";
        UpdateWindow(strip);
        Sleep(200);
        const RECT r = ScreenRectOf(strip);
        EXPECT_GT(PixelsNear(r, color), (r.right - r.left) * (r.bottom - r.top) / 40)
            << Narrow(name);
    }
}

TEST_F(PreviewE2E, CommandLineWritesAnImageInTheThemesTopBarColor) {
    CreateDirectoryW(File(L"Themes").c_str(), nullptr);
    CreateDirectoryW(File(L"Themes\\Red").c_str(), nullptr);
    WriteText(L"Themes\\Red\\red.skin",
              "[Skin Info]\nName=Red Bar\n[Topbar]\nMode=color\nSolid Color=255\n");
    WriteText(L"config.ini", "[Settings]\nTheme File=x\n");
    const std::string config = ReadText(L"config.ini");
    for (const wchar_t* name : {L"shot.bmp", L"shot.png"}) {
        EXPECT_EQ(RunEditor(L"--preview=\"" + File(L"Themes\\Red\\red.skin") + L"\" --out=\"" +
                            File(name) + L"\" --size=320x240"),
                  0u);
        const cv2::PixelImage image = cv2::ReadImagePixels(File(name));
        ASSERT_EQ(image.width, 320) << Narrow(name);
        ASSERT_EQ(image.height, 240);
        // The top row, between the start button and the buttons on the right.
        const unsigned char* bar = image.At(100, 1);
        EXPECT_EQ(bar[2], 255) << "red";
        EXPECT_EQ(bar[1], 0);
        EXPECT_EQ(bar[0], 0);
    }
    EXPECT_EQ(ReadText(L"config.ini"), config) << "config.ini is only read";
    EXPECT_EQ(CountWindows(L"CorvaneSettings"), 0);
}

TEST_F(PreviewE2E, CommandLineWithAMissingThemeSaysSoOnStandardError) {
    std::string errors;
    EXPECT_EQ(RunEditor(L"--preview=" + File(L"none.skin") + L" --out=" + File(L"x.bmp"), errors),
              2u);
    EXPECT_NE(errors.find("none.skin"), std::string::npos) << errors;
    EXPECT_FALSE(Exists(L"x.bmp"));
}

TEST_F(PreviewE2E, CommandLineWithAnUnwritableImageSaysSoOnStandardError) {
    WriteText(L"a.skin", "[Skin Info]\n");
    std::string errors;
    EXPECT_EQ(
        RunEditor(L"--preview=" + File(L"a.skin") + L" --out=" + File(L"no\\such\\x.bmp"), errors),
        3u);
    EXPECT_NE(errors.find("x.bmp"), std::string::npos) << errors;
}

TEST_F(PreviewE2E, CommandLineNotUnderstoodPrintsHowToUseIt) {
    std::string errors;
    EXPECT_EQ(RunEditor(L"--preview=a.skin", errors), 1u);
    EXPECT_NE(errors.find("--out="), std::string::npos) << errors;
}

TEST_F(PreviewE2E, ThemeSwitchWinsOverPreview) {
    WriteText(L"a.skin", "[Skin Info]\n");
    WriteText(L"config.ini", "[Settings]\nTheme File=old\n");
    EXPECT_EQ(RunEditor(L"--preview=" + File(L"a.skin") + L" --out=" + File(L"x.bmp") +
                        L" --theme=a.skin"),
              0u);
    EXPECT_FALSE(Exists(L"x.bmp")) << "no image: the line was a theme switch";
    EXPECT_EQ(ReadText(L"config.ini"), "[Settings]\nTheme File=old\n")
        << "whose value, read from the ninth character, names no file";
}

} // namespace cv2test
