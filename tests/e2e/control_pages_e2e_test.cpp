// The theme editor's pages with controls of their own in the real program: a colour, a font and
// a sound path changed from this process reach config.ini after OK and Apply.
#include <windows.h>

#include <string>
#include <vector>

#include "device_fixture.h"
#include "ids_appearance_controls.h"
#include "ids_themes.h"
#include "ids_ui.h"
#include "store/ini_document.h"
#include "test_data.h"

namespace cv2test {
namespace {

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

struct DialogSearch {
    HWND except;
    HWND found;
};

BOOL CALLBACK FindOtherDialog(HWND hwnd, LPARAM param) {
    auto* search = reinterpret_cast<DialogSearch*>(param);
    wchar_t cls[16] = {};
    GetClassNameW(hwnd, cls, 16);
    if (hwnd != search->except && lstrcmpW(cls, L"#32770") == 0 && IsWindowVisible(hwnd) &&
        IsWindowEnabled(hwnd)) {
        search->found = hwnd;
        return FALSE;
    }
    return TRUE;
}

class ControlPagesE2E : public DeviceFixture {
  protected:
    // Starts the program on the custom theme and opens the theme editor with "Customize".
    HWND OpenEditor() {
        WriteText(L"config.ini", "[Settings]\nTheme File=" + Narrow(File(L"config.ini")) + "\n");
        if (!StartEditor())
            return nullptr;
        SendMessageW(m_main, WM_NULL, 0, 0);
        WaitFor([&] {
            HWND customize = ShownControl(IDC_THEMES_CUSTOMIZE);
            return customize && IsWindowEnabled(customize);
        });
        PostMessageW(ShownControl(IDC_THEMES_CUSTOMIZE), BM_CLICK, 0, 0);
        HWND editor = OpenedDialog(m_main);
        // The editor as the user meets it: its later pages are made once it has painted, System
        // Colors last.
        if (editor && !WaitFor([&] { return GetDlgItem(editor, IDC_COLORS_CHANGE) != nullptr; }))
            ADD_FAILURE() << "the editor's later pages were never made";
        return editor;
    }

    // The visible, enabled dialog of the program other than `except`, once it has opened.
    static HWND OpenedDialog(HWND except) {
        DialogSearch search = {except, nullptr};
        WaitFor([&] {
            search.found = nullptr;
            EnumWindows(FindOtherDialog, reinterpret_cast<LPARAM>(&search));
            return search.found != nullptr;
        });
        return search.found;
    }

    // Clicks a page's button in the editor and returns the dialog it opens.
    static HWND Press(HWND editor, int id) {
        PostMessageW(editor, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                     reinterpret_cast<LPARAM>(GetDlgItem(editor, id)));
        return OpenedDialog(editor);
    }

    static void SetText(HWND dialog, int id, const wchar_t* text) {
        SendMessageW(GetDlgItem(dialog, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }

    // A click of the left button at a place of the screen, as the user makes it; the pointer
    // goes back to the corner where it waits.
    static void ClickAt(POINT at) {
        SetCursorPos(at.x, at.y);
        INPUT clicks[2] = {};
        clicks[0].type = clicks[1].type = INPUT_MOUSE;
        clicks[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
        clicks[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
        SendInput(2, clicks, sizeof(INPUT));
        Sleep(200);
        SetCursorPos(0, 0);
    }

    // The middle of the right end of the dialog's caption, where the "ok" button stands.
    static POINT CaptionButton(HWND dialog) {
        TITLEBARINFO bar = {};
        bar.cbSize = sizeof bar;
        GetTitleBarInfo(dialog, &bar);
        return {bar.rcTitleBar.right - GetSystemMetrics(SM_CXSIZE) / 2,
                (bar.rcTitleBar.top + bar.rcTitleBar.bottom) / 2};
    }

    // The middle of the first button of the menu bar along the bottom of the screen.
    static POINT FirstMenuBarButton(HWND dialog) {
        HWND bar = FindWindowW(L"CV2MenuBar", nullptr);
        while (bar && GetWindow(bar, GW_OWNER) != dialog)
            bar = FindWindowExW(nullptr, bar, L"CV2MenuBar", nullptr);
        RECT r = {};
        GetWindowRect(bar, &r);
        return {r.left + (r.bottom - r.top) / 2, (r.top + r.bottom) / 2};
    }

    static bool End(HWND dialog, int with) {
        PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(with, BN_CLICKED), 0);
        return WaitFor([&] { return !IsWindow(dialog); });
    }
};

} // namespace

TEST_F(ControlPagesE2E, AColourAFontAndASoundPathChangedFromOutsideReachConfigAfterOkAndApply) {
    HWND editor = OpenEditor();
    ASSERT_TRUE(editor) << "Customize opened no editor";

    HWND picker = Press(editor, IDC_COLORS_CHANGE); // row 0, "Active Caption", is selected
    ASSERT_TRUE(picker) << "Change opened no colour picker";
    SetText(picker, IDC_COLOR_RED_EDIT, L"1");
    SetText(picker, IDC_COLOR_GREEN_EDIT, L"2");
    SetText(picker, IDC_COLOR_BLUE_EDIT, L"3");
    ASSERT_TRUE(End(picker, IDOK));

    HWND fonts = Press(editor, IDC_FONTS_TITLE);
    ASSERT_TRUE(fonts) << "Title Font opened no font picker";
    SetText(fonts, IDC_FONT_SIZE, L"12");
    SendMessageW(fonts, WM_COMMAND, MAKEWPARAM(IDC_FONT_SIZE, CBN_EDITCHANGE),
                 reinterpret_cast<LPARAM>(GetDlgItem(fonts, IDC_FONT_SIZE)));
    ASSERT_TRUE(End(fonts, IDOK));

    // The first event, "Close Window", is selected; the field stores what is typed at once.
    SetText(editor, IDC_SOUNDS_PATH, L"\\Windows\\close.wav");

    ASSERT_TRUE(End(editor, IDOK));
    Apply();
    EXPECT_NE(SectionText("Colors").find(Lines("Active Caption=197121\n")), std::string::npos)
        << SectionText("Colors");
    EXPECT_NE(SectionText("Title Font").find(Lines("Size=12\n")), std::string::npos)
        << SectionText("Title Font");
    EXPECT_NE(SectionText("Sounds").find(Lines("Close=\\Windows\\close.wav\n")), std::string::npos)
        << SectionText("Sounds");
}

TEST_F(ControlPagesE2E, CustomizeThenOkThenApplyWritesTheDefaultsOfEveryPage) {
    const std::string text = TestDataText("theme_editor/editor_defaults.ini");
    ASSERT_FALSE(text.empty()) << "the expected file could not be read";
    cv2::IniDocument expected;
    expected.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    HWND editor = OpenEditor();
    ASSERT_TRUE(editor) << "Customize opened no editor";
    ASSERT_TRUE(End(editor, IDOK));
    Apply();
    cv2::IniDocument written;
    ASSERT_TRUE(written.Load(File(L"config.ini")));
    // The appearance sections stand in config.ini in the expected order, each key by key.
    size_t previous = 0;
    for (const auto& section : expected.Sections()) {
        size_t at = 0;
        while (at < written.Sections().size() && written.Sections()[at].name != section.name)
            ++at;
        ASSERT_LT(at, written.Sections().size()) << Narrow(section.name) << " is missing";
        EXPECT_GE(at, previous) << Narrow(section.name) << " is out of order";
        previous = at;
        std::vector<std::wstring> want, got;
        for (const auto& e : expected.GetSectionEntries(section.name.c_str()))
            want.push_back(std::wstring(e.first) + L"=" + e.second);
        for (const auto& e : written.GetSectionEntries(section.name.c_str()))
            got.push_back(std::wstring(e.first) + L"=" + e.second);
        EXPECT_EQ(got, want) << Narrow(section.name);
    }
}

TEST_F(ControlPagesE2E, TheOkButtonInTheEditorsCaptionKeepsItsPagesValues) {
    HWND editor = OpenEditor();
    ASSERT_TRUE(editor) << "Customize opened no editor";
    SetText(editor, IDC_SOUNDS_PATH, L"\\Windows\\close.wav");
    SetForegroundWindow(editor);
    ClickAt(CaptionButton(editor));
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(editor); })) << "the editor is still open";
    Apply();
    EXPECT_NE(SectionText("Sounds").find(Lines("Close=\\Windows\\close.wav\n")), std::string::npos)
        << SectionText("Sounds");
}

TEST_F(ControlPagesE2E, CancelOnTheEditorsMenuBarDropsItsPagesValues) {
    HWND editor = OpenEditor();
    ASSERT_TRUE(editor) << "Customize opened no editor";
    SetText(editor, IDC_SOUNDS_PATH, L"\\Windows\\close.wav");
    SetForegroundWindow(editor);
    ClickAt(FirstMenuBarButton(editor));
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(editor); })) << "the editor is still open";
    Apply();
    EXPECT_EQ(SectionText("Sounds"), "<missing>");
}

TEST_F(ControlPagesE2E, CustomizeThenCancelThenApplyWritesNoneOfThem) {
    HWND editor = OpenEditor();
    ASSERT_TRUE(editor) << "Customize opened no editor";
    ASSERT_TRUE(End(editor, IDCANCEL));
    Apply();
    EXPECT_EQ(SectionText("Buttons"), "<missing>");
    EXPECT_EQ(SectionText("Colors"), "<missing>");
    EXPECT_EQ(SectionText("Sounds"), "<missing>");
    EXPECT_EQ(SectionText("Title Font"), "<missing>");
}

} // namespace cv2test
