// The rule list pages in the real editor: their defaults on Apply, and the custom task dialog
// worked from this process with window messages.
#include "device_fixture.h"

#include <algorithm>

#include "ids_behaviour.h"

namespace cv2test {
namespace {

class RulePagesE2E : public DeviceFixture {
  protected:
    // Starts the editor on `config` and shows the page of that name.
    void OpenPage(const std::string& config, const wchar_t* name) {
        WriteText(L"config.ini", config);
        ASSERT_TRUE(StartEditor());
        const std::vector<std::wstring> names = MainPageNames();
        const auto at = std::find(names.begin(), names.end(), name);
        ASSERT_NE(at, names.end()) << "no page of that name";
        SelectPage(static_cast<int>(at - names.begin()));
    }

    HWND Control(int id) const { return ShownControl(id); }

    std::vector<std::wstring> ListTexts() const {
        HWND list = Control(IDC_RULE_LIST);
        std::vector<std::wstring> texts;
        const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            wchar_t text[512] = {};
            SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            texts.push_back(text);
        }
        return texts;
    }

    // Selects a row as a tap does: the list's selection, then its notification to the page.
    void SelectRow(int row) const {
        HWND list = Control(IDC_RULE_LIST);
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        SendMessageW(m_main, WM_COMMAND, MAKEWPARAM(IDC_RULE_LIST, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
    }

    // Presses a page button that opens the dialog, as a tap does (the button's notice to the
    // main window), and waits for the dialog titled `title`.
    HWND OpenDialog(int button, const wchar_t* title) const {
        HWND control = Control(button);
        EXPECT_TRUE(control) << "no shown button " << button;
        PostMessageW(m_main, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                     reinterpret_cast<LPARAM>(control));
        HWND dialog = nullptr;
        if (!WaitFor([&] {
                return (dialog = FindWindowW(L"#32770", title)) && IsWindowVisible(dialog);
            }))
            ADD_FAILURE() << "dialogs open instead: " << DialogTitles();
        return dialog;
    }

    static std::string DialogTitles() {
        std::string titles;
        for (HWND w = FindWindowW(L"#32770", nullptr); w;
             w = FindWindowExW(nullptr, w, L"#32770", nullptr)) {
            char text[64] = {};
            GetWindowTextA(w, text, 64);
            titles += std::string("\"") + text + (IsWindowVisible(w) ? "\" " : "\" (hidden) ");
        }
        return titles;
    }

    static std::wstring FieldText(HWND dialog) {
        wchar_t text[512] = {};
        SendMessageW(GetDlgItem(dialog, IDC_TASK_TEXT), WM_GETTEXT, 512,
                     reinterpret_cast<LPARAM>(text));
        return text;
    }

    // Types the text, taps the radio button (none when 0) and presses OK.
    void Answer(HWND dialog, const wchar_t* text, int radio) const {
        SendMessageW(GetDlgItem(dialog, IDC_TASK_TEXT), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(text));
        if (radio)
            SendMessageW(GetDlgItem(dialog, radio), BM_CLICK, 0, 0);
        PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); })) << "the dialog stayed open";
        SendMessageW(m_main, WM_NULL, 0, 0);
    }

    std::string Section(const std::string& name) const { return SectionText(name); }
};

} // namespace

TEST_F(RulePagesE2E, ApplyOnAnEmptyConfigWritesTheRuleDefaultsInOrder) {
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    Apply();
    EXPECT_EQ(Section("Custom Tasks"),
              Lines("[Custom Tasks]\n\"ActiveSync\"=ignore\n\"Phone\"=ignore\n\n"));
    EXPECT_EQ(Section("Custom SIP"), Lines("[Custom SIP]\n\n"));
    EXPECT_EQ(Section("Dont Skin"), Lines("[Dont Skin]\nREPLIGO.EXE=1\n\n"));
    EXPECT_NE(Section("General Settings").find(Lines("Ignore All Apps=FALSE\n")),
              std::string::npos);
    const std::string text = ReadText(L"config.ini");
    EXPECT_LT(text.find("[Custom Tasks]"), text.find("[Custom SIP]"));
    EXPECT_LT(text.find("[Custom SIP]"), text.find("[Dont Skin]"));
}

TEST_F(RulePagesE2E, TaskRulesAreAddedModifiedAndDeletedThroughTheDialog) {
    OpenPage("", L"Task Management");
    HWND dialog = OpenDialog(IDC_RULE_ADD, L"Task Management");
    ASSERT_TRUE(dialog) << "Add opened no dialog";
    Answer(dialog, L"Calendar", IDC_TASK_ACTION_2);
    EXPECT_EQ(ListTexts(), (std::vector<std::wstring>{L"ActiveSync [Ignore]",
                                                      L"Calendar [Minimize]", L"Phone [Ignore]"}));

    SelectRow(1);
    dialog = OpenDialog(IDC_RULE_MODIFY, L"Task Management");
    ASSERT_TRUE(dialog) << "Modify opened no dialog";
    EXPECT_EQ(FieldText(dialog), L"Calendar");
    EXPECT_EQ(SendMessageW(GetDlgItem(dialog, IDC_TASK_ACTION_2), BM_GETCHECK, 0, 0), BST_CHECKED);
    Answer(dialog, L"Calendar Alarm", IDC_TASK_ACTION_3);

    SelectRow(0);
    SendMessageW(Control(IDC_RULE_DELETE), BM_CLICK, 0, 0);
    EXPECT_EQ(ListTexts(),
              (std::vector<std::wstring>{L"Calendar Alarm [Close]", L"Phone [Ignore]"}));
    Apply();
    EXPECT_EQ(Section("Custom Tasks"),
              Lines("[Custom Tasks]\n\"Calendar Alarm\"=close\n\"Phone\"=ignore\n\n"));
}

TEST_F(RulePagesE2E, InputPanelRuleIsAddedThroughTheDialog) {
    OpenPage("", L"SIP Panel");
    HWND dialog = OpenDialog(IDC_RULE_ADD, L"SIP Panel");
    ASSERT_TRUE(dialog) << "Add opened no dialog";
    Answer(dialog, L"Notes", IDC_TASK_ACTION_2);
    EXPECT_EQ(ListTexts(), (std::vector<std::wstring>{L"Notes [Show]"}));
    Apply();
    EXPECT_EQ(Section("Custom SIP"), Lines("[Custom SIP]\n\"Notes\"=1\n\n"));
}

TEST_F(RulePagesE2E, UnskinnedProgramIsAddedInCapitals) {
    OpenPage("[Dont Skin]\nPWORD.EXE=1\n", L"Skinned Applications");
    HWND dialog = OpenDialog(IDC_RULE_ADD, L"Skinned Applications");
    ASSERT_TRUE(dialog) << "Add opened no dialog";
    Answer(dialog, L"tmail.exe", 0);
    EXPECT_EQ(ListTexts(), (std::vector<std::wstring>{L"PWORD.EXE", L"TMAIL.EXE"}));
    Apply();
    EXPECT_EQ(Section("Dont Skin"), Lines("[Dont Skin]\nPWORD.EXE=1\nTMAIL.EXE=1\n\n"));
}

} // namespace cv2test
