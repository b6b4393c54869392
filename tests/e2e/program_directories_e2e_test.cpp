// Program Directories in the real editor: its defaults and its theme folders written by Apply,
// and the file browser it opens, worked from this process, remembering where it picked.
#include <windows.h>
#include <shlobj.h>

#include <algorithm>

#include "device_fixture.h"
#include "ids_behaviour.h"
#include "ids_ui.h"
#include "pages/behaviour/program_directories_values.h"
#include "ui/file_browser.h"

namespace cv2test {
namespace {

// The page picks folders without naming a kind, so they are remembered under its filter.
const wchar_t kRememberedName[] = L"All Files|*.*";

class ProgramDirectoriesE2E : public DeviceFixture {
  protected:
    void TearDown() override {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, cv2::kBrowseRegistryKey, kRememberedName);
        DeviceFixture::TearDown();
    }

    void OpenPage(const std::string& config) {
        WriteText(L"config.ini", config);
        ASSERT_TRUE(StartEditor());
        const std::vector<std::wstring> names = MainPageNames();
        const auto at = std::find(names.begin(), names.end(), L"Program Directories");
        ASSERT_NE(at, names.end()) << "no Program Directories page";
        SelectPage(static_cast<int>(at - names.begin()));
    }

    HWND Control(int id) const { return ShownControl(id); }

    static std::wstring Text(HWND window) {
        wchar_t text[1024] = {};
        SendMessageW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
        return text;
    }

    // Presses a page button and waits for the file browser picking a folder.
    HWND OpenBrowser(int button) const {
        PostMessageW(Control(button), BM_CLICK, 0, 0);
        HWND dialog = nullptr;
        WaitFor([&] {
            return (dialog = FindWindowW(L"#32770", L"Choose Folder")) && IsWindowVisible(dialog);
        });
        return dialog;
    }

    // Types the folder into the browser's name box and presses OK (the Done button).
    void Pick(HWND dialog, const std::wstring& folder) const {
        SendMessageW(GetDlgItem(dialog, IDC_BROWSE_NAME), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(folder.c_str()));
        PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); })) << "the browser stayed open";
        SendMessageW(m_main, WM_NULL, 0, 0);
    }

    std::string Section(const std::string& name) const { return SectionText(name); }

    static std::wstring Remembered() {
        wchar_t data[600] = {};
        DWORD size = sizeof data - sizeof(wchar_t);
        if (RegGetValueW(HKEY_CURRENT_USER, cv2::kBrowseRegistryKey, kRememberedName, RRF_RT_REG_SZ,
                         nullptr, data, &size) != ERROR_SUCCESS)
            return L"<none>";
        return data;
    }
};

std::string Narrow(const std::wstring& text) {
    std::string out;
    for (wchar_t c : text)
        out += static_cast<char>(c);
    return out;
}

} // namespace

TEST_F(ProgramDirectoriesE2E, ApplyOnAnEmptyConfigWritesTheDefaults) {
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    Apply();
    wchar_t programs[MAX_PATH] = {};
    ASSERT_TRUE(SHGetSpecialFolderPathW(nullptr, programs, CSIDL_PROGRAMS, FALSE));
    const std::string path = Narrow(cv2::DefaultStartMenuPath(programs));
    EXPECT_NE(Section("Start Menu Settings").find(Lines("Start Menu Path=" + path + "\n")),
              std::string::npos)
        << Section("Start Menu Settings");
    EXPECT_EQ(Section("Theme Directories"), Lines("[Theme Directories]\n\n"));
}

TEST_F(ProgramDirectoriesE2E, ThemeDirectoriesListIsWrittenByApply) {
    OpenPage("[Theme Directories]\n7=\\Storage Card\\Themes\\\n9=\\Old\n");
    HWND dialog = OpenBrowser(IDC_PROGRAM_THEMES_ADD);
    ASSERT_TRUE(dialog) << "Add opened no file browser";
    Pick(dialog, L"C:\\More Themes\\");
    // The second entry goes.
    HWND list = Control(IDC_PROGRAM_THEMES_LIST);
    SendMessageW(list, LB_SETCURSEL, 1, 0);
    SendMessageW(m_main, WM_COMMAND, MAKEWPARAM(IDC_PROGRAM_THEMES_LIST, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    SendMessageW(Control(IDC_PROGRAM_THEMES_DELETE), BM_CLICK, 0, 0);
    Apply();
    EXPECT_EQ(Section("Theme Directories"),
              Lines("[Theme Directories]\n1=\\Storage Card\\Themes\n2=C:\\More Themes\n\n"));
}

TEST_F(ProgramDirectoriesE2E, ApplyAfterAddingAThemeDirectoryListsItsThemes) {
    CreateDirectoryW(File(L"More").c_str(), nullptr);
    CreateDirectoryW(File(L"More\\Sky").c_str(), nullptr);
    WriteText(L"More\\Sky\\sky.skin", "[Skin Info]\nName=Sky Theme\n");
    OpenPage("");
    HWND themes = FindWindowExW(m_main, nullptr, L"ListBox", nullptr); // My Theme's, made first
    ASSERT_TRUE(themes);
    const auto listed = [&] {
        return SendMessageW(themes, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                            reinterpret_cast<LPARAM>(L"Sky Theme")) >= 0;
    };
    ASSERT_FALSE(listed());
    HWND dialog = OpenBrowser(IDC_PROGRAM_THEMES_ADD);
    ASSERT_TRUE(dialog) << "Add opened no file browser";
    Pick(dialog, File(L"More"));
    Apply();
    EXPECT_TRUE(WaitFor(listed)) << "the new folder's theme was not listed";
}

TEST_F(ProgramDirectoriesE2E, BrowserRemembersThePickedFolderAndStartsThereNextTime) {
    RegDeleteKeyValueW(HKEY_CURRENT_USER, cv2::kBrowseRegistryKey, kRememberedName);
    OpenPage("");
    const std::wstring picked = File(L"Themes");
    HWND dialog = OpenBrowser(IDC_PROGRAM_START_MENU_BROWSE);
    ASSERT_TRUE(dialog) << "\"...\" opened no file browser";
    Pick(dialog, picked);
    EXPECT_EQ(Text(Control(IDC_PROGRAM_START_MENU_PATH)), picked);
    const std::wstring folder = m_dir.substr(0, m_dir.size() - 1);
    EXPECT_EQ(Remembered(), folder);

    // The next browse opens on the remembered folder, walked down the tree and selected.
    dialog = OpenBrowser(IDC_PROGRAM_START_MENU_BROWSE);
    ASSERT_TRUE(dialog);
    const std::wstring shown = Text(GetDlgItem(dialog, IDC_BROWSE_NAME));
    EXPECT_EQ(lstrcmpiW(shown.c_str(), folder.c_str()), 0)
        << "shows " << ::testing::PrintToString(shown);
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_BROWSE_CANCEL, BN_CLICKED), 0);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(dialog); }));
    EXPECT_EQ(Text(Control(IDC_PROGRAM_START_MENU_PATH)), picked);
}

} // namespace cv2test
