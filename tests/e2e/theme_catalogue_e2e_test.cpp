// The My Theme page in the real editor, over a device folder holding a named theme, a theme with
// an empty name, an older theme, a .skin of random bytes and a theme in an extra theme folder;
// theme packages installed through it and exported from the theme editor.
#include <windows.h>

#include <string>
#include <vector>

#include "device_fixture.h"
#include "ids_editor.h"
#include "ids_themes.h"
#include "ids_ui.h"
#include "platform/file_access.h"
#include "zip_builder.h"

namespace cv2test {
namespace {

using Texts = std::vector<std::wstring>;

std::string Narrow(const std::wstring& text) {
    return std::string(text.begin(), text.end());
}

class ThemeCatalogueE2E : public DeviceFixture {
  protected:
    void Folder(const std::wstring& name) const { CreateDirectoryW(File(name).c_str(), nullptr); }

    void WriteThemes() {
        Folder(L"Themes");
        Folder(L"Themes\\Named");
        WriteText(L"Themes\\Named\\named.skin",
                  "[Skin Info]\nName=Night Sky\nAuthor=Ann\nAuthorEmail=ann@example.org\n"
                  "HiRes=TRUE\nNotes=Dark and calm\n");
        Folder(L"Themes\\Nameless");
        WriteText(L"Themes\\Nameless\\Nameless.skin", "[Skin Info]\nName=\nAuthor=Bob\n");
        Folder(L"Themes\\Old");
        WriteText(L"Themes\\Old\\old.skin",
                  "Logo=logo.bmp\nTaskbar=bar.bmp\nClockFont=Tahoma, 9, FF0000, t, f, t\n"
                  "BGMode=2002\n");
        Folder(L"Themes\\Junk");
        std::string junk;
        unsigned seed = 12345;
        for (int i = 0; i < 5000; ++i) {
            seed = seed * 1103515245 + 12345;
            junk += static_cast<char>(seed >> 16);
        }
        WriteText(L"Themes\\Junk\\junk.skin", junk);
        Folder(L"Extra");
        Folder(L"Extra\\Far");
        WriteText(L"Extra\\Far\\far.skin", "[Skin Info]\nName=Far Away\n");
    }

    void Start(const std::string& settings = "") {
        WriteThemes();
        WriteText(L"config.ini", "[Theme Directories]\n1=" + Narrow(File(L"Extra")) + "\n" +
                                     settings + "[Sounds]\nStart=start.wav\n");
        ASSERT_TRUE(StartEditor());
        // The page posts its selection change to itself after loading.
        SendMessageW(m_main, WM_NULL, 0, 0);
        WaitFor([&] { return List() != nullptr; });
    }

    HWND List() const { return ShownControl(IDC_THEMES_LIST); }

    Texts Listed() const {
        Texts texts;
        const LRESULT count = SendMessageW(List(), LB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            wchar_t text[300] = {};
            if (SendMessageW(List(), LB_GETTEXTLEN, i, 0) < 299)
                SendMessageW(List(), LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
            texts.push_back(text);
        }
        return texts;
    }

    std::wstring SelectedText() const {
        const LRESULT row = SendMessageW(List(), LB_GETCURSEL, 0, 0);
        return row < 0 ? L"<none>" : Listed()[static_cast<size_t>(row)];
    }

    void Select(const std::wstring& text) const {
        const Texts texts = Listed();
        for (size_t i = 0; i < texts.size(); ++i) {
            if (texts[i] != text)
                continue;
            SendMessageW(List(), LB_SETCURSEL, i, 0);
            SendMessageW(m_main, WM_COMMAND, MAKEWPARAM(IDC_THEMES_LIST, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(List()));
            return;
        }
        ADD_FAILURE() << "no row " << Narrow(text);
    }

    std::wstring Details() const {
        HWND edit = FindWindowExW(m_main, nullptr, L"EDIT", nullptr);
        for (; edit; edit = FindWindowExW(m_main, edit, L"EDIT", nullptr)) {
            if (GetDlgCtrlID(edit) == IDC_THEMES_DETAILS)
                break;
        }
        wchar_t text[1100] = {};
        SendMessageW(edit, WM_GETTEXT, 1100, reinterpret_cast<LPARAM>(text));
        return text;
    }

    // The visible dialog window of the editor's process with that title (any title when null).
    static HWND Dialog(const wchar_t* title) {
        HWND found = nullptr;
        WaitFor([&] {
            found = FindWindowW(L"#32770", title);
            return found && IsWindowVisible(found);
        });
        return found;
    }

    static bool FolderExists(const std::wstring& path) {
        const DWORD attributes = GetFileAttributesW(path.c_str());
        return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
    }
};

} // namespace

TEST_F(ThemeCatalogueE2E, EveryThemeIsListedSortedWithTheCustomTheme) {
    Start();
    EXPECT_EQ(Listed(), (Texts{L"[1.x Theme] junk", L"[1.x Theme] old", L"Custom Theme",
                               L"Far Away", L"Nameless", L"Night Sky"}));
}

TEST_F(ThemeCatalogueE2E, ThemeFileIsSelectedWithItsDetails) {
    Start("[Settings]\nTheme File=" + Narrow(File(L"Themes\\Named\\named.skin")) + "\n");
    EXPECT_TRUE(WaitFor([&] { return SelectedText() == L"Night Sky"; }));
    EXPECT_TRUE(WaitFor([&] {
        return Details() == L"Author: Ann\r\nE-Mail: ann@example.org\r\nHiRes: Yes\r\n\r\nNotes: "
                            L"\r\nDark and calm";
    })) << Narrow(Details());
    EXPECT_TRUE(IsWindowEnabled(ShownControl(IDC_THEMES_DELETE)));
    EXPECT_FALSE(IsWindowEnabled(ShownControl(IDC_THEMES_CUSTOMIZE)));
}

TEST_F(ThemeCatalogueE2E, DeleteAfterYesRemovesTheThemeFolder) {
    Start();
    Select(L"Far Away");
    PostMessageW(ShownControl(IDC_THEMES_DELETE), BM_CLICK, 0, 0);
    HWND box = Dialog(L"Confirm Delete");
    ASSERT_TRUE(box) << "no confirmation";
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDYES, BN_CLICKED), 0);
    EXPECT_TRUE(WaitFor([&] { return !FolderExists(File(L"Extra\\Far")); }));
    EXPECT_TRUE(FolderExists(File(L"Extra")));
    EXPECT_TRUE(WaitFor([&] { return Listed().size() == 5; }));
    EXPECT_EQ(SelectedText(), L"<none>");
}

TEST_F(ThemeCatalogueE2E, ApplyOnAnOlderThemeWritesTheConvertedSections) {
    Start();
    Select(L"[1.x Theme] old");
    Apply();
    const std::string folder = Narrow(File(L"Themes\\Old\\"));
    const std::string settings = SectionText("Settings");
    EXPECT_NE(settings.find(Lines("Theme File=" + Narrow(File(L"config.ini")) + "\n")),
              std::string::npos)
        << settings;
    EXPECT_NE(settings.find(Lines("Theme On Card=FALSE\n")), std::string::npos) << settings;
    EXPECT_EQ(SectionText("Topbar"), Lines("[Topbar]\nPortrait=" + folder +
                                           "bar.bmp\nMode=Gradient\nUse Theme Colors=TRUE\n\n"));
    EXPECT_EQ(SectionText("Clock Font"),
              Lines("[Clock Font]\nName=Tahoma\nSize=9\nColor=0\nStyle=bold,shadow\n\n"));
    EXPECT_NE(SectionText("Button Images").find("Start Menu Normal=" + folder + "logo.bmp"),
              std::string::npos);
    EXPECT_EQ(SectionText("Sounds"), "<missing>");
}

TEST_F(ThemeCatalogueE2E, CustomizeOpensTheEditorAndCancelLeavesTheThemeAsItWas) {
    Start("[Settings]\nTheme File=" + Narrow(File(L"config.ini")) + "\n");
    EXPECT_TRUE(WaitFor([&] { return SelectedText() == L"Custom Theme"; }));
    Apply();
    const std::string before = ReadText(L"config.ini");
    EXPECT_TRUE(WaitFor([&] { return IsWindowEnabled(ShownControl(IDC_THEMES_CUSTOMIZE)); }));
    PostMessageW(ShownControl(IDC_THEMES_CUSTOMIZE), BM_CLICK, 0, 0);
    HWND editor = Dialog(nullptr);
    ASSERT_TRUE(editor) << "Customize opened no editor";
    PostMessageW(editor, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(editor); }));
    Apply();
    EXPECT_EQ(ReadText(L"config.ini"), before);
}

namespace {

class ThemeHealthE2E : public ThemeCatalogueE2E {
  protected:
    // Themes\Healthy: every file it names is there, one beside it and one by absolute path.
    // Themes\Holes: one picture present, one relative and one absolute picture missing.
    void WriteHealthThemes() {
        Folder(L"Themes");
        Folder(L"Themes\\Healthy");
        Folder(L"Pictures");
        WriteText(L"Themes\\Healthy\\bar.bmp", "BM-healthy");
        WriteText(L"Pictures\\wide.bmp", "BM-wide");
        WriteText(L"Themes\\Healthy\\healthy.skin",
                  "[Skin Info]\nName=Healthy\nAuthor=Ann\nAuthorEmail=ann@example.org\n"
                  "HiRes=FALSE\nNotes=All there\n[Topbar]\nPortrait=bar.bmp\nLandscape=" +
                      Narrow(File(L"Pictures\\wide.bmp")) + "\n[Menubar]\nNormal=\n");
        Folder(L"Themes\\Holes");
        WriteText(L"Themes\\Holes\\present.bmp", "BM-present");
        WriteText(L"Themes\\Holes\\holes.skin",
                  "[Skin Info]\nName=Holes\nAuthor=Bob\nAuthorEmail=bob@example.org\n"
                  "HiRes=TRUE\nNotes=Two gone\n[Topbar]\nPortrait=gone.bmp\nLandscape=" +
                      Narrow(File(L"Nowhere\\away.png")) + "\n[Menubar]\nNormal=present.bmp\n");
    }

    // The visible dialog of the editor's process other than `except`, waiting for it.
    static HWND OtherDialog(HWND except) {
        HWND found = nullptr;
        WaitFor([&] {
            for (HWND w = FindWindowW(L"#32770", nullptr); w;
                 w = FindWindowExW(nullptr, w, L"#32770", nullptr)) {
                if (w != except && IsWindowVisible(w)) {
                    found = w;
                    return true;
                }
            }
            return false;
        });
        return found;
    }

    // Starts the editor on a custom theme whose pictures lie in Art1\ and Art2\ (one name in
    // both), opens the theme editor and its Export Theme dialog, names the theme "Shared" at
    // Out\shared.skin and ticks `box`, then presses OK and waits for `written`. Both windows
    // are closed again, without saving, before it returns.
    void ExportSharedTheme(int box, const wchar_t* written) {
        Folder(L"Art1");
        Folder(L"Art2");
        Folder(L"Out");
        WriteText(L"Art1\\bar.bmp", "BM-one");
        WriteText(L"Art2\\bar.bmp", "BM-two");
        WriteText(L"Art1\\button.bmp", "BM-button");
        const std::string art1 = Narrow(File(L"Art1\\")), art2 = Narrow(File(L"Art2\\"));
        Start("[Settings]\nTheme File=" + Narrow(File(L"config.ini")) + "\n[Topbar]\nPortrait=" +
              art1 + "bar.bmp\nLandscape=" + art2 + "bar.bmp\n[Menubar]\nNormal=" + art1 +
              "button.bmp\nPressed=" + art1 + "button.bmp\n");
        ASSERT_TRUE(WaitFor([&] { return IsWindowEnabled(ShownControl(IDC_THEMES_CUSTOMIZE)); }));
        PostMessageW(ShownControl(IDC_THEMES_CUSTOMIZE), BM_CLICK, 0, 0);
        HWND editor = Dialog(nullptr);
        ASSERT_TRUE(editor);
        PostMessageW(GetDlgItem(editor, IDC_EXPORT_THEME), BM_CLICK, 0, 0);
        HWND info = OtherDialog(editor);
        ASSERT_TRUE(info) << "Export Theme opened no dialog";
        SetDlgItemTextW(info, IDC_INFO_NAME, L"Shared");
        SetDlgItemTextW(info, IDC_INFO_PATH, File(L"Out\\shared.skin").c_str());
        SendDlgItemMessageW(info, box, BM_CLICK, 0, 0);
        PostMessageW(info, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        ASSERT_TRUE(WaitFor([&] { return Exists(written); }));
        PostMessageW(editor, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(editor); }));
        Cancel(true);
        ASSERT_TRUE(WaitEditorExit());
    }
};

} // namespace

TEST_F(ThemeHealthE2E, HealthyThemeDetailsAreExactlyTheThemeInformation) {
    WriteHealthThemes();
    Start();
    Select(L"Healthy");
    EXPECT_TRUE(WaitFor([&] {
        return Details() == L"Author: Ann\r\nE-Mail: ann@example.org\r\nHiRes: No\r\n\r\nNotes: "
                            L"\r\nAll there";
    })) << Narrow(Details());
}

TEST_F(ThemeHealthE2E, ThemeWithTwoMissingPicturesEndsItsDetailsWithThem) {
    WriteHealthThemes();
    Start();
    Select(L"Holes");
    const std::wstring expected =
        L"Author: Bob\r\nE-Mail: bob@example.org\r\nHiRes: Yes\r\n\r\nNotes: \r\nTwo gone"
        L"\r\nMissing files: 2\r\ngone.bmp\r\n" +
        File(L"Nowhere\\away.png") + L"\r\n";
    EXPECT_TRUE(WaitFor([&] { return Details() == expected; })) << Narrow(Details());
}

TEST_F(ThemeHealthE2E, ExportWithCopiedFilesMakesAFolderThatIsWholeOnItsOwn) {
    ASSERT_NO_FATAL_FAILURE(ExportSharedTheme(IDC_INFO_COPY_FILES, L"Out\\shared.skin"));

    const std::string skin = ReadText(L"Out\\shared.skin");
    EXPECT_NE(skin.find("Portrait=bar.bmp"), std::string::npos) << skin;
    EXPECT_NE(skin.find("Landscape=bar (2).bmp"), std::string::npos) << skin;
    EXPECT_NE(skin.find("Normal=button.bmp"), std::string::npos) << skin;
    EXPECT_NE(skin.find("Pressed=button.bmp"), std::string::npos) << skin;
    // The folder alone, moved among the themes, with every original gone.
    ASSERT_TRUE(MoveFileW(File(L"Out").c_str(), File(L"Themes\\Shared").c_str()));
    cv2::RemoveFolderTree(File(L"Art1\\"));
    cv2::RemoveFolderTree(File(L"Art2\\"));
    EXPECT_EQ(ReadText(L"Themes\\Shared\\bar (2).bmp"), "BM-two");
    ASSERT_TRUE(StartEditor());
    SendMessageW(m_main, WM_NULL, 0, 0);
    ASSERT_TRUE(WaitFor([&] { return List() != nullptr; }));
    Select(L"Shared");
    EXPECT_TRUE(WaitFor([&] { return Details() == L"Author: \r\nE-Mail: \r\nHiRes: No\r\n"; }))
        << Narrow(Details());
}

namespace {

BuiltEntry PackedFile(const std::string& name, const std::string& data) {
    return Entry(name, data, true);
}

class ThemePackageE2E : public ThemeHealthE2E {
  protected:
    // Presses Install and picks `package` in the file browser it opens.
    void InstallThrough(const std::wstring& package) {
        ASSERT_TRUE(WaitFor([&] { return ShownControl(IDC_THEMES_INSTALL) != nullptr; }));
        PostMessageW(ShownControl(IDC_THEMES_INSTALL), BM_CLICK, 0, 0);
        HWND browser = Dialog(L"Open");
        ASSERT_TRUE(browser) << "Install opened no file browser";
        SendMessageW(GetDlgItem(browser, IDC_BROWSE_NAME), WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(package.c_str()));
        PostMessageW(browser, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        ASSERT_TRUE(WaitFor([&] { return !IsWindow(browser); })) << "the browser stayed open";
    }
    // The text of a message box, its static controls one after another.
    static std::wstring BoxText(HWND box) {
        std::wstring text;
        for (HWND c = GetWindow(box, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
            wchar_t cls[16] = {}, shown[1024] = {};
            GetClassNameW(c, cls, 16);
            if (lstrcmpiW(cls, L"Static") == 0 && GetWindowTextW(c, shown, 1024) > 0)
                text += shown;
        }
        return text;
    }
    // Every file below the themes folder, "folder\file", for comparing before and after.
    std::vector<std::wstring> ThemeFiles(const std::wstring& sub = L"Themes\\") const {
        std::vector<std::wstring> found;
        for (const std::wstring& name : cv2::ListFiles(File(sub), L"*"))
            found.push_back(sub + name + L"=" + std::to_wstring(ReadText(sub + name).size()));
        for (const std::wstring& name : cv2::ListSubfolders(File(sub)))
            for (const std::wstring& inner : ThemeFiles(sub + name + L"\\"))
                found.push_back(inner);
        return found;
    }
};

const char kOceanSkin[] = "[Skin Info]\r\nName=Ocean Deep\r\nAuthor=Cy\r\n[Topbar]\r\n"
                          "Portrait=waves.bmp\r\n";

} // namespace

TEST_F(ThemePackageE2E, InstalledThemeIsSelectedNotAppliedAndApplyMakesItCurrent) {
    StartBar();
    Start();
    WriteText(L"Ocean Deep.zip", BuildZip({PackedFile("Ocean/ocean.skin", kOceanSkin),
                                           PackedFile("Ocean/waves.bmp", "BM-waves")}));
    const std::string before = ReadText(L"config.ini");
    InstallThrough(File(L"Ocean Deep.zip"));
    EXPECT_TRUE(WaitFor([&] { return SelectedText() == L"Ocean Deep"; })) << Narrow(SelectedText());
    EXPECT_EQ(ReadText(L"Themes\\Ocean\\waves.bmp"), "BM-waves");
    EXPECT_EQ(ReadText(L"config.ini"), before) << "installing applies nothing";
    EXPECT_EQ(BarLog(), "");
    EXPECT_TRUE(WaitFor([&] { return Details() == L"Author: Cy\r\nE-Mail: \r\nHiRes: No\r\n"; }))
        << Narrow(Details());
    Apply();
    EXPECT_NE(SectionText("Settings")
                  .find(Lines("Theme File=" + Narrow(File(L"Themes\\Ocean\\ocean.skin")) + "\n")),
              std::string::npos)
        << SectionText("Settings");
    EXPECT_EQ(BarLog(), "child CVResetConfig 242 0\n");
}

TEST_F(ThemePackageE2E, ReplaceAnsweredNoChangesNothing) {
    Start();
    WriteText(L"named.zip", BuildZip({PackedFile("Named/named.skin", kOceanSkin)}));
    const std::vector<std::wstring> before = ThemeFiles();
    const std::vector<std::wstring> listed = Listed();
    InstallThrough(File(L"named.zip"));
    HWND question = Dialog(L"Named");
    ASSERT_TRUE(question) << "no question before replacing the theme";
    EXPECT_EQ(BoxText(question), L"Replace the theme that is already installed?");
    PostMessageW(question, WM_COMMAND, MAKEWPARAM(IDNO, BN_CLICKED), 0);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(question); }));
    SendMessageW(m_main, WM_NULL, 0, 0);
    EXPECT_EQ(ThemeFiles(), before);
    EXPECT_EQ(Listed(), listed);
}

TEST_F(ThemePackageE2E, ReplaceAnsweredYesPutsThePackagedThemeInPlace) {
    Start();
    WriteText(L"named.zip", BuildZip({PackedFile("Named/ocean.skin", kOceanSkin)}));
    InstallThrough(File(L"named.zip"));
    HWND question = Dialog(L"Named");
    ASSERT_TRUE(question) << "no question before replacing the theme";
    PostMessageW(question, WM_COMMAND, MAKEWPARAM(IDYES, BN_CLICKED), 0);
    EXPECT_TRUE(WaitFor([&] { return SelectedText() == L"Ocean Deep"; })) << Narrow(SelectedText());
    EXPECT_FALSE(Exists(L"Themes\\Named\\named.skin"));
    EXPECT_EQ(ReadText(L"Themes\\Named\\ocean.skin"), kOceanSkin);
}

TEST_F(ThemePackageE2E, HostilePackageIsRefusedWithItsReasonAndWritesNothing) {
    Start();
    WriteText(L"slip.zip", BuildZip({PackedFile("Evil/evil.skin", kOceanSkin),
                                     PackedFile("Evil/../../../slipped.txt", "x")}));
    const std::vector<std::wstring> before = ThemeFiles();
    InstallThrough(File(L"slip.zip"));
    HWND box = Dialog(L"Install Theme");
    ASSERT_TRUE(box) << "no message";
    EXPECT_EQ(
        BoxText(box),
        L"The package names a file outside its folder (\"..\"):\r\nEvil/../../../slipped.txt");
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    ASSERT_TRUE(WaitFor([&] { return !IsWindow(box); }));
    EXPECT_EQ(ThemeFiles(), before);
    EXPECT_FALSE(Exists(L"slipped.txt"));
}

TEST_F(ThemePackageE2E, ExportedPackageInstallsOnAFreshDeviceWithNothingMissing) {
    ASSERT_NO_FATAL_FAILURE(ExportSharedTheme(IDC_INFO_PACKAGE, L"Out\\shared.zip"));
    EXPECT_FALSE(Exists(L"Out\\shared.skin")) << "the package is the only file written";

    // A fresh device: no themes, none of the theme's originals, a new config.ini.
    cv2::RemoveFolderTree(File(L"Themes"));
    cv2::RemoveFolderTree(File(L"Art1"));
    cv2::RemoveFolderTree(File(L"Art2"));
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    SendMessageW(m_main, WM_NULL, 0, 0);
    ASSERT_TRUE(WaitFor([&] { return List() != nullptr; }));
    InstallThrough(File(L"Out\\shared.zip"));
    EXPECT_TRUE(WaitFor([&] { return SelectedText() == L"Shared"; })) << Narrow(SelectedText());
    EXPECT_EQ(ReadText(L"Themes\\Shared\\bar (2).bmp"), "BM-two");
    EXPECT_TRUE(WaitFor([&] { return Details() == L"Author: \r\nE-Mail: \r\nHiRes: No\r\n"; }))
        << Narrow(Details());
}

} // namespace cv2test
