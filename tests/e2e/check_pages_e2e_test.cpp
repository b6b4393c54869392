// General Settings, Start Menu Settings, Clock Settings and Theme Overrides through the real
// program: what Apply writes into config.ini, the registry and the Startup folder.
#include "device_fixture.h"

#include <commctrl.h>

#include <string>
#include <vector>

#include "pages/behaviour/clock_locale.h"
#include "pages/behaviour/general_outside_stores.h"
#include "pages/behaviour/general_startup.h"
#include "platform/file_access.h"
#include "platform/user_registry.h"
#include "shell_link.h"
#include "store/ini_document.h"
#include "store/paths.h"

namespace cv2test {
namespace {

using KeyLines = std::vector<std::wstring>;

bool TahomaInstalled() {
    LOGFONTW lf = {};
    lf.lfCharSet = DEFAULT_CHARSET;
    lstrcpyW(lf.lfFaceName, L"Tahoma");
    bool found = false;
    HDC dc = GetDC(nullptr);
    EnumFontFamiliesExW(
        dc, &lf,
        [](const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM found) -> int {
            *reinterpret_cast<bool*>(found) = true;
            return 0;
        },
        reinterpret_cast<LPARAM>(&found), 0);
    ReleaseDC(nullptr, dc);
    return found;
}

class CheckPagesE2E : public DeviceFixture {
  protected:
    void SetUp() override {
        DeviceFixture::SetUp();
        m_shortcut = cv2::StartupShortcutPath(cv2::StartupFolder());
        ASSERT_FALSE(m_shortcut.empty()) << "no Startup folder";
        ClearOutsideStores();
    }
    void TearDown() override {
        DeviceFixture::TearDown();
        ClearOutsideStores();
    }
    // No shortcut and no registry value, as on a device that never ran the editor.
    void ClearOutsideStores() {
        DeleteFileW(m_shortcut.c_str());
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_CURRENT_USER, cv2::kBarRegistryKey, 0, KEY_SET_VALUE, &key) ==
            ERROR_SUCCESS) {
            RegDeleteValueW(key, cv2::kSoundHookValue);
            RegCloseKey(key);
        }
        // Goes only when nothing else lives there.
        RegDeleteKeyW(HKEY_CURRENT_USER, cv2::kBarRegistryKey);
    }

    cv2::IniDocument Config() const {
        cv2::IniDocument doc;
        const std::string text = ReadText(L"config.ini");
        doc.Parse(reinterpret_cast<const unsigned char*>(text.data()), text.size());
        return doc;
    }
    // "key=value" of every entry of a section, in file order.
    static KeyLines Section(const cv2::IniDocument& doc, const wchar_t* name) {
        KeyLines lines;
        for (const auto& e : doc.GetSectionEntries(name))
            lines.push_back(std::wstring(e.first) + L"=" + e.second);
        return lines;
    }
    // The entries of a section whose keys are among `expected`'s keys, in file order.
    static KeyLines Among(const cv2::IniDocument& doc, const wchar_t* name,
                          const KeyLines& expected) {
        KeyLines found;
        for (const std::wstring& line : Section(doc, name)) {
            const std::wstring key = line.substr(0, line.find(L'='));
            for (const std::wstring& want : expected) {
                if (want.compare(0, key.size() + 1, key + L"=") == 0) {
                    found.push_back(line);
                    break;
                }
            }
        }
        return found;
    }

    // The General Settings list of the running editor, with its page made current.
    HWND ShowGeneralSettings() {
        const std::vector<std::wstring> names = MainPageNames();
        for (size_t i = 0; i < names.size(); ++i) {
            if (names[i] == L"General Settings")
                SelectPage(static_cast<int>(i));
        }
        HWND list = GetDlgItem(m_main, 1170);
        EXPECT_TRUE(list && IsWindowVisible(list));
        return list;
    }
    // Toggles the first row's check box from the keyboard, as a user of the device would, and
    // waits until the list has handled the keys (a sent message would overtake posted ones).
    static void ToggleFirstRow(HWND list) {
        const bool before = FirstRowChecked(list);
        PostMessageW(list, WM_KEYDOWN, VK_HOME, 0);
        PostMessageW(list, WM_KEYDOWN, VK_SPACE, 0);
        PostMessageW(list, WM_KEYUP, VK_SPACE, 0);
        WaitFor([&] { return FirstRowChecked(list) != before; }, 5000);
    }
    static bool FirstRowChecked(HWND list) {
        // The state query carries no pointer, so it works across processes.
        return ListView_GetCheckState(list, 0) != 0;
    }

    std::wstring m_shortcut;
};

TEST_F(CheckPagesE2E, ApplyOnAnEmptyConfigWritesTheDefaultsInTheirKeyOrder) {
    WriteText(L"config.ini", "");
    ASSERT_TRUE(StartEditor());
    Apply();
    const cv2::IniDocument doc = Config();

    // The section also holds the button pages' title switch and button order, after these.
    const KeyLines topBar = {L"Show Tasks=TRUE", L"Animate Battery Meter=TRUE"};
    EXPECT_EQ(Among(doc, L"TopBar Settings", topBar), topBar);
    EXPECT_EQ(Section(doc, L"TopBar Settings").front(), topBar.front());
    const cv2::LocaleTimeFacts locale = cv2::UserLocaleTimeFacts();
    const KeyLines general = {
        // General Settings
        L"Goto Today=FALSE", L"Smart Minimize=FALSE", L"Gradient on Today=TRUE", L"ClearType=TRUE",
        L"Close By Icon=TRUE", L"Right Handed Landscape=TRUE", L"Standard Hold=FALSE",
        L"Hide Desktop Title=FALSE", L"Hide Disconnected=FALSE",
        L"Show Multiple Notifications=FALSE", L"Notify Reminder=TRUE", L"Vibrate=FALSE",
        L"Close Battery=TRUE", L"Show Original Notification=FALSE", L"Skip Today=FALSE",
        // Clock Settings
        L"Normal Clock=TRUE", L"Show Time=TRUE", L"Show Date=FALSE",
        L"Time Format=\"" + cv2::DefaultTimePicture(locale.twentyFourHour, locale.hourLeadingZero) +
            L"\"",
        L"Date Format=\"" + locale.shortDate + L"\""};
    EXPECT_EQ(Among(doc, L"General Settings", general), general);
    // The section also holds the start menu path of Program Directories.
    const KeyLines startMenu = {
        L"Start Menu Icons=TRUE",   L"Show Recent Items=TRUE",   L"Show Settings=TRUE",
        L"Expand Settings=FALSE",   L"Show Find=FALSE",          L"Show Help=TRUE",
        L"Cache At Startup=FALSE",  L"Release Backgrounds=TRUE", L"Cover Taskbar=FALSE",
        L"Overlap Menu=FALSE",      L"IE Favorites=FALSE",       L"Folders Bottom=FALSE",
        L"Cascading Menu Key=TRUE", L"Show Desktop=TRUE"};
    EXPECT_EQ(Among(doc, L"Start Menu Settings", startMenu), startMenu);
    // "Tahoma" is the default name; a machine without that font has no entry to select.
    EXPECT_EQ(Section(doc, L"Overrides"),
              (KeyLines{L"Use Sounds=TRUE", L"Use Colors=TRUE", L"Custom Font=FALSE",
                        std::wstring(L"Font Name=") + (TahomaInstalled() ? L"Tahoma" : L"")}));

    unsigned long value = 99;
    EXPECT_TRUE(cv2::ReadUserDword(cv2::kBarRegistryKey, cv2::kSoundHookValue, value));
    EXPECT_EQ(value, 0u);
    EXPECT_FALSE(cv2::FileExists(m_shortcut));
}

TEST_F(CheckPagesE2E, YesAndTrueReadAsOnAndAreWrittenBackAsTRUE) {
    WriteText(L"config.ini", "[General Settings]\r\nGoto Today=yes\r\nShow Date=True\r\n"
                             "[TopBar Settings]\r\nShow Tasks=YES\r\n"
                             "[Start Menu Settings]\r\nShow Find=true\r\n"
                             "[Overrides]\r\nCustom Font=Yes\r\n");
    ASSERT_TRUE(StartEditor());
    Apply();
    const cv2::IniDocument doc = Config();
    EXPECT_EQ(doc.GetString(L"General Settings", L"Goto Today", L""), L"TRUE");
    EXPECT_EQ(doc.GetString(L"General Settings", L"Show Date", L""), L"TRUE");
    EXPECT_EQ(doc.GetString(L"TopBar Settings", L"Show Tasks", L""), L"TRUE");
    EXPECT_EQ(doc.GetString(L"Start Menu Settings", L"Show Find", L""), L"TRUE");
    EXPECT_EQ(doc.GetString(L"Overrides", L"Custom Font", L""), L"TRUE");
}

TEST_F(CheckPagesE2E, ApplyCreatesTheShortcutWhenItsBoxIsChecked) {
    ASSERT_TRUE(StartEditor());
    HWND list = ShowGeneralSettings();
    ASSERT_FALSE(FirstRowChecked(list));
    ToggleFirstRow(list);
    ASSERT_TRUE(FirstRowChecked(list));
    Apply();
    ASSERT_TRUE(cv2::FileExists(m_shortcut));
    EXPECT_EQ(LinkCommandLine(m_shortcut), L"\"" + m_dir + L"Corvane2.exe\" /boot");
}

TEST_F(CheckPagesE2E, ApplyDeletesTheShortcutWhenItsBoxIsUnchecked) {
    std::wstring file = m_shortcut;
    ASSERT_TRUE(cv2::WriteFileReplacing(file, cv2::Bytes{'x'}));
    ASSERT_TRUE(StartEditor());
    HWND list = ShowGeneralSettings();
    ASSERT_TRUE(FirstRowChecked(list));
    ToggleFirstRow(list);
    ASSERT_FALSE(FirstRowChecked(list));
    Apply();
    EXPECT_FALSE(cv2::FileExists(m_shortcut));
}

TEST_F(CheckPagesE2E, ApplyLeavesAnExistingShortcutAloneWhileItsBoxIsChecked) {
    ASSERT_TRUE(cv2::WriteFileReplacing(m_shortcut, cv2::Bytes{'o', 'l', 'd'}));
    ASSERT_TRUE(StartEditor());
    Apply();
    cv2::Bytes bytes;
    ASSERT_TRUE(cv2::ReadWholeFile(m_shortcut, bytes));
    EXPECT_EQ(bytes, (cv2::Bytes{'o', 'l', 'd'}));
}

} // namespace
} // namespace cv2test
