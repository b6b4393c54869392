// The theme editor's pages with controls of their own in the real program: a colour, a font and
// a sound path changed from this process reach config.ini after OK and Apply.
#include <windows.h>

#include <string>

#include "device_fixture.h"
#include "ids_appearance_controls.h"
#include "ids_themes.h"
#include "ids_ui.h"

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
        return OpenedDialog(m_main);
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
    HWND editor = OpenEditor();
    ASSERT_TRUE(editor) << "Customize opened no editor";
    ASSERT_TRUE(End(editor, IDOK));
    Apply();
    EXPECT_NE(SectionText("Buttons").find(Lines("left=3\nright=3\ntop=0\nbottom=0\n")),
              std::string::npos);
    EXPECT_NE(SectionText("Small Clock Font").find(Lines("Size=6\nColor=16777215\n")),
              std::string::npos);
    EXPECT_NE(SectionText("Sounds").find(Lines("NotificationReminder=\n")), std::string::npos);
    EXPECT_NE(SectionText("Colors").find(Lines("WindowFrame=0\n")), std::string::npos);
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
