// General Settings on a real host window: the check list, the start-up shortcut and the
// registry switch.
#include "pages/behaviour/general_outside_stores.h"
#include "pages/behaviour/general_settings_page.h"
#include "pages/behaviour/general_startup.h"
#include "platform/file_access.h"
#include "platform/shell.h"
#include "platform/user_registry.h"
#include "store/scale.h"

#include "check_pages_host.h"
#include "screen_capture.h"
#include "shell_link.h"
#include "temp_folder.h"

#include <commctrl.h>
#include <shlobj.h>

using namespace cv2;
using namespace cv2test;

namespace {

// A registry key of the tests' own, so the bar's key of this prefix stays as it is.
const wchar_t kTestKey[] = L"Software\\Thornlea\\Corvane 2 Page Tests";

void DeleteTestKey() {
    RegDeleteKeyW(HKEY_CURRENT_USER, kTestKey);
}

class GeneralSettingsPageTest : public PageTest {
  protected:
    void SetUp() override { DeleteTestKey(); }
    void TearDown() override { DeleteTestKey(); }

    // The page with the real stores, pointed at a scratch shortcut and the tests' key.
    std::unique_ptr<GeneralSettingsPage> MakePage() {
        return std::make_unique<GeneralSettingsPage>(std::make_unique<DeviceOutsideStores>(
            ShortcutPath(), StartupShortcutTarget(L"C:\\Bar Folder\\"), kTestKey));
    }
    std::wstring ShortcutPath() const { return m_folder.File(L"Corvane.lnk"); }

    TempFolder m_folder;
    IniDocument m_doc;
};

std::vector<int> CheckedRows(HWND list) {
    std::vector<int> rows;
    const int count = ListView_GetItemCount(list);
    for (int i = 0; i < count; ++i) {
        if (RowChecked(list, i))
            rows.push_back(i);
    }
    return rows;
}

} // namespace

TEST_F(GeneralSettingsPageTest, EmptyConfigWithoutShortcutOrRegistryKeyChecksTheDefaultRows) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    ASSERT_EQ(ListView_GetItemCount(page->List()), 19);
    EXPECT_EQ(CheckedRows(page->List()), (std::vector<int>{1, 4, 5, 6, 7, 10, 14, 16}));
}

TEST_F(GeneralSettingsPageTest, RowsShowTheirLabelsInTableOrder) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    wchar_t text[128] = {};
    ListView_GetItemText(page->List(), 0, 0, text, 128);
    EXPECT_STREQ(text, Localized(IDS_GENERAL_SOFT_RESET));
    ListView_GetItemText(page->List(), 18, 0, text, 128);
    EXPECT_STREQ(text, Localized(IDS_GENERAL_SKIP_TODAY));
}

TEST_F(GeneralSettingsPageTest, YesAndTrueReadAsCheckedAndAreWrittenBackAsTRUE) {
    m_doc.SetString(L"General Settings", L"Standard Hold", L"yes");
    m_doc.SetString(L"TopBar Settings", L"Animate Battery Meter", L"True");
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    EXPECT_TRUE(RowChecked(page->List(), 8));
    EXPECT_TRUE(RowChecked(page->List(), 10));
    page->Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"General Settings", L"Standard Hold", L""), L"TRUE");
    EXPECT_EQ(m_doc.GetString(L"TopBar Settings", L"Animate Battery Meter", L""), L"TRUE");
}

TEST_F(GeneralSettingsPageTest, UncheckedRowIsSavedAsFALSE) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    SetRowChecked(page->List(), 5, false);
    page->Save(nullptr);
    EXPECT_EQ(m_doc.GetString(L"General Settings", L"ClearType", L""), L"FALSE");
}

TEST_F(GeneralSettingsPageTest, CheckedShortcutRowCreatesALinkThatStartsTheBarWithBoot) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    ASSERT_FALSE(RowChecked(page->List(), 0));
    SetRowChecked(page->List(), 0, true);
    page->Save(nullptr);
    ASSERT_TRUE(FileExists(ShortcutPath()));
    EXPECT_EQ(LinkCommandLine(ShortcutPath()), L"\"C:\\Bar Folder\\Corvane2.exe\" /boot");
}

TEST_F(GeneralSettingsPageTest, SavingCheckedWhenTheShortcutExistsDoesNotTouchTheFile) {
    m_folder.Write(L"Corvane.lnk", "not rewritten");
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    EXPECT_TRUE(RowChecked(page->List(), 0));
    page->Save(nullptr);
    EXPECT_EQ(m_folder.Read(L"Corvane.lnk"), "not rewritten");
}

TEST_F(GeneralSettingsPageTest, UncheckingTheShortcutRowDeletesTheFile) {
    m_folder.Write(L"Corvane.lnk", "link");
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    SetRowChecked(page->List(), 0, false);
    page->Save(nullptr);
    EXPECT_FALSE(FileExists(ShortcutPath()));
}

TEST_F(GeneralSettingsPageTest, SoundHookRowIsTheRegistryValueWrittenAsOneOrZero) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    EXPECT_FALSE(RowChecked(page->List(), 12));
    SetRowChecked(page->List(), 12, true);
    page->Save(nullptr);
    unsigned long value = 99;
    ASSERT_TRUE(ReadUserDword(kTestKey, kSoundHookValue, value));
    EXPECT_EQ(value, 1u);
    SetRowChecked(page->List(), 12, false);
    page->Save(nullptr);
    ASSERT_TRUE(ReadUserDword(kTestKey, kSoundHookValue, value));
    EXPECT_EQ(value, 0u);
}

TEST_F(GeneralSettingsPageTest, NonZeroRegistryValueLoadsChecked) {
    ASSERT_TRUE(WriteUserDword(kTestKey, kSoundHookValue, 5));
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    EXPECT_TRUE(RowChecked(page->List(), 12));
    EXPECT_EQ(m_doc.Sections().size(), 0u);
}

TEST_F(GeneralSettingsPageTest, ListFillsThePageBelowTheHeader) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    RECT client, list;
    GetClientRect(host.hwnd(), &client);
    GetWindowRect(page->List(), &list);
    MapWindowPoints(nullptr, host.hwnd(), reinterpret_cast<POINT*>(&list), 2);
    EXPECT_EQ(list.left, 0);
    EXPECT_EQ(list.top, Scale(23));
    EXPECT_EQ(list.right, client.right);
    EXPECT_EQ(list.bottom, client.bottom);
}

TEST_F(GeneralSettingsPageTest, ListIsHiddenUntilThePageIsShown) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    EXPECT_FALSE(GetWindowLongW(page->List(), GWL_STYLE) & WS_VISIBLE);
    page->Show(true);
    EXPECT_TRUE(GetWindowLongW(page->List(), GWL_STYLE) & WS_VISIBLE);
    page->Show(false);
    EXPECT_FALSE(GetWindowLongW(page->List(), GWL_STYLE) & WS_VISIBLE);
}

TEST_F(GeneralSettingsPageTest, ColumnHoldsTheWidestLabelBesideItsCheckBox) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    HWND list = page->List();
    RECT label = {LVIR_LABEL, 0, 0, 0};
    int widest = 0;
    HDC dc = GetDC(list);
    HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0)));
    for (int i = 0; i < 19; ++i) {
        wchar_t text[128] = {};
        ListView_GetItemText(list, i, 0, text, 128);
        SIZE size;
        GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
        widest = std::max(widest, static_cast<int>(size.cx));
    }
    SelectObject(dc, old);
    ReleaseDC(list, dc);
    SendMessageW(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&label));
    EXPECT_GE(label.right - label.left, widest);
}

TEST_F(GeneralSettingsPageTest, SaveBeforeLoadWritesNothing) {
    auto page = MakePage();
    page->Save(nullptr);
    EXPECT_FALSE(FileExists(ShortcutPath()));
}

TEST(UserRegistry, WrittenValueReadsBackAndMissingKeyReadsAsAbsent) {
    DeleteTestKey();
    unsigned long value = 0;
    EXPECT_FALSE(ReadUserDword(kTestKey, L"H5555", value));
    ASSERT_TRUE(WriteUserDword(kTestKey, L"H5555", 0x12345678));
    ASSERT_TRUE(ReadUserDword(kTestKey, L"H5555", value));
    EXPECT_EQ(value, 0x12345678u);
    DeleteTestKey();
}

TEST(UserRegistry, ValueOfAnotherSizeReadsAsAbsent) {
    DeleteTestKey();
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kTestKey, 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                              &key, nullptr),
              ERROR_SUCCESS);
    const wchar_t text[] = L"yes";
    RegSetValueExW(key, L"H5555", 0, REG_SZ, reinterpret_cast<const BYTE*>(text), sizeof text);
    RegCloseKey(key);
    unsigned long value = 0;
    EXPECT_FALSE(ReadUserDword(kTestKey, L"H5555", value));
    DeleteTestKey();
}

TEST(StartupFolder, IsTheShellsStartupFolder) {
    wchar_t expected[MAX_PATH] = {};
    ASSERT_TRUE(SHGetSpecialFolderPathW(nullptr, expected, CSIDL_STARTUP, FALSE));
    EXPECT_EQ(StartupFolder(), expected);
}

TEST(DeviceShortcut, ReplacesAnExistingFileAndKeepsArgumentsApart) {
    TempFolder folder;
    folder.Write(L"x.lnk", "old");
    std::wstring file = folder.File(L"x.lnk");
    std::wstring target = L"\"C:\\A B\\prog.exe\" /boot /x";
    ASSERT_TRUE(SHCreateShortcut(&file[0], &target[0]));
    EXPECT_EQ(LinkCommandLine(file), target);
}

TEST(DeviceShortcut, UnquotedProgramEndsAtTheFirstBlank) {
    TempFolder folder;
    std::wstring file = folder.File(L"y.lnk");
    std::wstring target = L"C:\\prog.exe /boot";
    ASSERT_TRUE(SHCreateShortcut(&file[0], &target[0]));
    EXPECT_EQ(LinkCommandLine(file), L"\"C:\\prog.exe\" /boot");
}

TEST(DeviceShortcut, FolderThatDoesNotExistFails) {
    TempFolder folder;
    std::wstring file = folder.File(L"missing\\z.lnk");
    std::wstring target = L"\"C:\\prog.exe\" /boot";
    EXPECT_FALSE(SHCreateShortcut(&file[0], &target[0]));
    EXPECT_FALSE(FileExists(file));
}

class GeneralSettingsPageScreens : public GeneralSettingsPageTest {};

TEST_F(GeneralSettingsPageScreens, DefaultSwitches) {
    auto page = MakePage();
    PageHostWindow host(*page, m_doc);
    host.ShowPage();
    EXPECT_FALSE(SaveScreenshot(L"general_settings").empty());
    EXPECT_TRUE(ScreenHasContent());
}
